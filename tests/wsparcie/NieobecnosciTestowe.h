// A payroll with registers of absence, calendars and earlier months, and the questions that they bring.
#pragma once
#include "payroll/nieobecnosci/WykazyPodstaw.h"
#include "wsparcie/PlaceTestowe.h"
#include "wsparcie/Przestrzen.h"
#include <deque>

namespace tornel::testy {

namespace pytania {
inline const QString dni = QStringLiteral("Czy wyliczyć ilość przepracowanych dni dla pracownika ?");
inline const QString dniSerii = QStringLiteral("Czy wyliczać ilość przepracowanych dni dla pracowników ?");
inline const QString l4 = QStringLiteral("Czy wyliczyć L4 dla pracownika ?");
inline const QString l4Serii = QStringLiteral("Czy wyliczać L4 dla pracowników ?");
inline const QString placaPoL4 = QStringLiteral("Czy przeliczyć płacę zasadniczą dla pracownika po L-4 ?");
inline const QString placaPoL4Serii =
    QStringLiteral("Czy przeliczać płacę zasadniczą dla pracowników po L-4 ?");
inline const QString premiaPoL4 = QStringLiteral("Czy przeliczyć premię procentową dla pracownika po L-4 ?");
inline const QString premiaPoL4Serii =
    QStringLiteral("Czy przeliczać premię procentową dla pracowników po L-4 ?");
inline const QString urlop = QStringLiteral("Czy wyliczyć urlop dla pracownika ?");
inline const QString urlopSerii = QStringLiteral("Czy wyliczać urlop dla pracowników ?");
inline const QString jedenSkladnik =
    QStringLiteral("Uwaga. W miesiącu zarejestrowano kilka okresów urlopowych dla pracownika. Czy kwoty "
                   "wyliczonoe zapisać w jednym składniku ?");
inline const QString jedenSkladnikSerii =
    QStringLiteral("Uwaga. W miesiącu zarejestrowano kilka okresów urlopowych dla pracownika. Czy kwoty "
                   "wyliczonoe zapisywać w jednym składniku ?");
inline const QString poUrlopie = QStringLiteral("Czy przeliczyć składniki uwzględniając urlop pracownika ?");
inline const QString poUrlopieSerii =
    QStringLiteral("Czy przeliczać składniki uwzględniając urlop pracowników ?");
inline const QString zasilek =
    QStringLiteral("Czy pomniejszyć kwotę do wypłaty pracownika o zasiłek chorobowy ?");
inline const QString zasilekSerii =
    QStringLiteral("Czy pomniejszać kwotę do wypłaty pracownikom o zasiłek chorobowy ?");
inline const QString nadgodziny = QStringLiteral("Czy przenieść kwoty z nadgodzin na listę płac ?");
inline const QString nadgodzinySerii = QStringLiteral("Czy przenosić kwoty z nadgodzin na listę płac ?");
} // namespace pytania

/// The clerk before the lists of averages: what she is shown is kept, what she leaves is scripted.
class WykazySkrypt : public WykazyPodstaw {
public:
    [[nodiscard]] std::optional<Waluta> sredniaL4(const QList<LiniaWykazu>& miesiace,
                                                  Waluta srednia) override {
        linie = miesiace;
        return poprawka ? *poprawka : srednia;
    }
    [[nodiscard]] std::optional<Waluta> dniowka(const QList<LiniaWykazu>& miesiace, qint64 ileDni,
                                                Waluta stawka) override {
        linie = miesiace;
        dni = ileDni;
        return poprawka ? *poprawka : stawka;
    }
    [[nodiscard]] std::optional<int> numerSkladnika(const OkresUrlopu& okres, int proponowany) override {
        okresy.append(okres);
        proponowane.append(proponowany);
        if (numery.empty()) return proponowany;
        const std::optional<int> numer = numery.front();
        numery.pop_front();
        return numer;
    }

    std::optional<std::optional<Waluta>> poprawka; ///< none: the average stands
    std::deque<std::optional<int>> numery;         ///< empty: the suggestion stands
    QList<LiniaWykazu> linie;
    qint64 dni = 0;
    QList<OkresUrlopu> okresy;
    QList<int> proponowane;
};

class NieobecnosciTestowe : public PlaceTestowe {
protected:
    /// The month of a calendar with these free days besides Saturdays and Sundays.
    void kalendarz(qint64 prcId, RokMies m, const std::vector<int>& wolne = {}) {
        DniKalendarza dni = DniKalendarza::nowyMiesiac(m.rok, m.mies);
        for (const int d : wolne) dni.ustaw(d, DniKalendarza::Wolny);
        zapiszKalendarz(prcId, m, dni);
    }
    void zapiszKalendarz(qint64 prcId, RokMies m, const DniKalendarza& dni) {
        Recordset rs(schemat::KALENDARZ);
        rs.Open(sesja().cnPlace);
        rs.AddNewZero();
        rs.ustaw(schemat::KALENDARZ("PrcId"), prcId);
        rs.ustaw(schemat::KALENDARZ("Rok"), m.rok);
        rs.ustaw(schemat::KALENDARZ("Mies"), m.mies);
        for (int d = 1; d <= 31; ++d) rs.ustaw(schemat::DzienKalendarza(d), static_cast<qint64>(dni[d]));
        rs.UpdateBatch(u"Dane testu");
    }
    void urlop(qint64 prcId, QDate od, QDate dokad, int rodzaj = 0, double kwota = 0) {
        dopiszNieobecnosc(schemat::URL, prcId, od, dokad, [&](Recordset& rs) {
            rs.ustaw(schemat::URL("Rodzaj"), rodzaj);
            rs.ustaw(schemat::URL("Kwota"), zl(kwota));
        });
    }
    void zwolnienie(qint64 prcId, QDate od, QDate dokad, double procent = 80) {
        dopiszNieobecnosc(schemat::ZW, prcId, od, dokad,
                          [&](Recordset& rs) { rs.ustaw(schemat::ZW("st_proc"), zl(procent)); });
    }
    void wyczyscRejestry() {
        sesja().cnPlace.wykonaj("DELETE FROM URL; DELETE FROM ZW; DELETE FROM KALENDARZ");
    }

    /// An earlier month with one row of the employee: "SP_1=3000 DN_RO=20".
    void wczesniej(RokMies m, qint64 prcId, const std::string& pola,
                   const QString& lista = QStringLiteral(" ")) {
        if (!JestMiesiac(sesja(), m, {})) miesiac(m);
        for (const TabelaDef* tabela : schemat::TabeleMiesiaca) {
            Recordset rs = zPliku(*tabela, m);
            rs.AddNewZero(prcId, lista);
            for (const auto& [k, wartosc] : polaTestu(schemat::TabeleMiesiaca, pola))
                if (k.tabela == tabela) rs.ustaw(k, wartosc);
            rs.UpdateBatch(u"Dane testu");
        }
    }

private:
    void dopiszNieobecnosc(const TabelaDef& tabela, qint64 prcId, QDate od, QDate dokad,
                           const std::function<void(Recordset&)>& reszta) {
        Recordset rs(tabela);
        rs.Open(sesja().cnPlace);
        rs.AddNewZero(prcId);
        rs.ustaw(tabela.nr(tabela.numer("Data")), od);
        rs.ustaw(tabela.nr(tabela.numer("data_do")), dokad);
        reszta(rs);
        rs.UpdateBatch(u"Dane testu");
    }
};

} // namespace tornel::testy
