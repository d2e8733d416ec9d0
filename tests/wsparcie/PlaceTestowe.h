// A payroll on a database of its own: a catalogue known to the tests, and months, employees and rows that are
// set and checked by texts such as "BRUTTO=1650 KUP=101,82".
#pragma once
#include "common/Blad.h"
#include "common/Liczby.h"
#include "payroll/lista/ListaPlac.h"
#include "payroll/miesiace/Miesiace.h"
#include "rules/SkladnikiPlac.h"
#include "rules/Stale.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <span>

namespace tornel::testy {

using Tabele = std::span<const TabelaDef* const>;
inline constexpr const TabelaDef* kTabeleKadr[] = {&schemat::PRACDP, &schemat::PRACPR, &schemat::PRACSK,
                                                   &schemat::PRACZUS};

struct PoleTestu {
    Kolumna kolumna;
    Wartosc wartosc;
};

/// Takes "COLUMN=value" pairs apart; a column belongs to the first of `tabele` that has it, its type decides
/// how the value is read. "null" is null.
inline QList<PoleTestu> polaTestu(Tabele tabele, const std::string& tekst) {
    QList<PoleTestu> wynik;
    for (const QString& para : QString::fromStdString(tekst).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString nazwa = para.section(QLatin1Char('='), 0, 0), wart = para.section(QLatin1Char('='), 1);
        const auto* tabela = std::find_if(tabele.data(), tabele.data() + tabele.size(),
                                          [&](const auto* t) { return t->numer(nazwa.toStdString()) >= 0; });
        if (tabela == tabele.data() + tabele.size()) throw Blad(QStringLiteral("Brak kolumny ") + nazwa);
        const Kolumna k = (*tabela)->nr((*tabela)->numer(nazwa.toStdString()));
        const Typ typ = k.def().typ;
        Wartosc w = Null;
        if (wart == QLatin1String("null"))
            w = Null;
        else if (typ == Typ::Currency)
            w = CzytajKwote(wart).value();
        else if (typ == Typ::Date)
            w = QDate::fromString(wart, Qt::ISODate);
        else if (typ == Typ::Short || typ == Typ::Integer)
            w = CzytajLiczbe(wart, -32768, 1LL << 31).value();
        else
            w = wart;
        wynik.append({k, w});
    }
    return wynik;
}

inline std::string tekstWartosci(const Wartosc& wartosc) {
    if (const auto* n = std::get_if<qint64>(&wartosc)) return std::to_string(*n);
    if (const auto* w = std::get_if<Waluta>(&wartosc)) return TekstKwoty(*w).toStdString() + " zł";
    if (const auto* t = std::get_if<QString>(&wartosc)) return t->toStdString();
    if (const auto* d = std::get_if<QDate>(&wartosc)) return d->toString(Qt::ISODate).toStdString();
    return "null";
}

/// How GoogleTest prints an amount.
inline void PrintTo(Waluta kwota, std::ostream* strumien) { *strumien << TekstKwoty(kwota).toStdString(); }

/// The user's side where nobody can answer.
class RozmowaBezOdpowiedzi : public RozmowaSkrypt {
public:
    [[nodiscard]] bool pytanie(const QString& tekst, const QString&) override { throw Przerwanie(tekst); }
};

namespace pytania {
inline const QString dniWylaczone =
    QStringLiteral("Rejestracja przepracowanych dni jest wyłączona. Nie można obliczyć ilości "
                   "przepracowanych dni, urlopu i L-4.");
inline const QString naInnejLiscie =
    QStringLiteral("Pracownik jest w tym miesiącu także na innej liście: nieobecności, urlop, nadgodziny, "
                   "koszty uzyskania i ulga liczą się na obu.");
} // namespace pytania

class PlaceTestowe : public BazaTestowa {
protected:
    PlaceTestowe() {
        ulozKatalog();
        stale().AktRejPrzepDni = false;
    }

    static constexpr RokMies kLipiec{2001, 7};

    void miesiac(RokMies rm = kLipiec) {
        rozmowa_.spodziewaj(QStringLiteral("Czy na pewno utworzyć nową listę ?"), Odpowiedz::Tak);
        ASSERT_TRUE(Miesiace(otoczenie()).Nowy_miesiac([&] { return rm; }));
    }
    void blokada(RokMies rm, Odpowiedz zKatalogiem) {
        rozmowa_.spodziewaj(QStringLiteral("Czy napewno zablokować wybrany miesiąc?"), Odpowiedz::Tak);
        rozmowa_.spodziewaj(
            QStringLiteral("Czy zapisać aktualne dane o składnikach (nazwa składnika, czy brutto, do ZUS, do "
                           "ubezpieczenia zdrowotnego, czy aktywny, kody ZUS) do listy płac za wybrany "
                           "miesiąc?"),
            zKatalogiem);
        ASSERT_TRUE(Miesiace(otoczenie()).BlokadaMies(rm));
    }

    /// A new employee with these columns of the personnel tables.
    void pracownik(qint64 prcId, const std::string& pola, const QString& nazwisko = QStringLiteral("Nowak")) {
        dodajPracownika(prcId, nazwisko);
        zmienPracownika(prcId, pola);
    }
    void zmienPracownika(qint64 prcId, const std::string& pola) {
        Sesja& s = sesja();
        ASSERT_TRUE(s.UstawPracownika(prcId));
        for (const auto& [k, wartosc] : polaTestu(kTabeleKadr, pola)) uchwyt(*k.tabela).ustaw(k, wartosc);
        for (const TabelaDef* tabela : kTabeleKadr) uchwyt(*tabela).UpdateBatch(u"Dane testu");
    }
    void usunZKadr(qint64 prcId) {
        for (const TabelaDef* tabela : kTabeleKadr) {
            ASSERT_TRUE(uchwyt(*tabela).Znajdz(prcId));
            uchwyt(*tabela).Delete();
            uchwyt(*tabela).UpdateBatch(u"Dane testu");
        }
    }
    /// One employee onto the list, where no days are counted.
    std::optional<KluczListy> dopisz(ListaPlac& lista, qint64 prcId) {
        if (!stale().AktRejPrzepDni) rozmowa_.spodziewaj(pytania::dniWylaczone, Styl::Wykrzyknik);
        return lista.Nowy_prac(prcId);
    }
    /// Columns of the month's row that the handles stand on, in memory.
    void ustaw(const std::string& pola) {
        for (const auto& [k, wartosc] : polaTestu(schemat::TabeleMiesiaca, pola))
            uchwyt(*k.tabela).ustaw(k, wartosc);
    }
    void ustawIZapisz(const std::string& pola) {
        ustaw(pola);
        for (const TabelaDef* tabela : schemat::TabeleMiesiaca) uchwyt(*tabela).UpdateBatch(u"Dane testu");
    }
    void oczekuj(const std::string& pola) {
        for (const auto& [k, wartosc] : polaTestu(schemat::TabeleMiesiaca, pola))
            EXPECT_EQ(tekstWartosci(uchwyt(*k.tabela).wartosc(k)), tekstWartosci(wartosc)) << k.def().nazwa;
    }
    /// The columns of a month's row as the file holds them.
    void oczekujWPliku(const KluczListy& klucz, const std::string& pola, RokMies rm = kLipiec) {
        for (const auto& [k, wartosc] : polaTestu(schemat::TabeleMiesiaca, pola)) {
            Recordset rs = zPliku(*k.tabela, rm);
            ASSERT_TRUE(rs.Znajdz(klucz.prcId, klucz.lista)) << klucz.prcId;
            EXPECT_EQ(tekstWartosci(rs.wartosc(k)), tekstWartosci(wartosc)) << k.def().nazwa;
        }
    }
    /// The month's sums as the file holds them.
    void oczekujSum(RokMies rm, const std::string& pola) {
        static constexpr const TabelaDef* naglowek[] = {&schemat::PLACE};
        Recordset rs(schemat::PLACE);
        rs.Open(sesja().cnPlace);
        ASSERT_TRUE(
            rs.Znajdz(QString::number(rm.rok), QString::number(rm.mies).rightJustified(2, QLatin1Char('0'))));
        for (const auto& [k, wartosc] : polaTestu(naglowek, pola))
            EXPECT_EQ(tekstWartosci(rs.wartosc(k)), tekstWartosci(wartosc)) << k.def().nazwa;
    }
    /// The keys of the rows in the month's four tables in the file, which must agree.
    std::string wierszeWPliku(RokMies rm = kLipiec) {
        QStringList wynik;
        for (const TabelaDef* tabela : schemat::TabeleMiesiaca) {
            Recordset rs = zPliku(*tabela, rm);
            rs.Sort({tabela->nr(0), tabela->nr(1)});
            QStringList klucze;
            for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext())
                klucze += QString::number(rs.liczba(tabela->nr(0))) + rs.tekst(tabela->nr(1));
            if (tabela != schemat::TabeleMiesiaca.front())
                EXPECT_EQ(klucze, wynik) << "rows without a partner in " << tabela->nazwa;
            wynik = klucze;
        }
        return wynik.join(QLatin1Char(',')).toStdString();
    }

    Recordset zPliku(const TabelaDef& tabela, RokMies rm = kLipiec) {
        Recordset rs(tabela);
        rs.Open(sesja().cnPlace, Sesja::nazwaMiesiaca(tabela.nazwa, rm.rok, rm.mies));
        return rs;
    }
    Recordset& uchwyt(const TabelaDef& tabela) {
        Sesja& s = sesja();
        for (Recordset* rs :
             {&s.rsPRACDP, &s.rsPRACPR, &s.rsPRACSK, &s.rsPRACZUS, &s.rsPLA, &s.rsPLB, &s.rsPLS, &s.rsPLD})
            if (&rs->tabela() == &tabela) return *rs;
        throw Blad(QStringLiteral("Brak uchwytu tabeli."));
    }

    /// Flags as on the list, "B", "Z", "U" or a blank, and whether the component is in use.
    void skladnik(int nr, std::string_view flagi, bool aktywny) {
        opiszSkladnik(nr, flagi, aktywny);
        zapiszKatalog();
    }

private:
    void opiszSkladnik(int nr, std::string_view flagi, bool aktywny) {
        Recordset& rs = sesja().rsSZ_PL;
        ASSERT_TRUE(rs.Znajdz(nr));
        rs.ustaw(schemat::SZ_PL("naz_sk"), QString(QLatin1Char('S') + QString::number(nr)));
        rs.ustaw(schemat::SZ_PL("KodZUS"), QString(QLatin1Char('K') + QString::number(nr)));
        rs.ustawFlage(schemat::SZ_PL("Brutto"), flagi[0] == 'B');
        rs.ustawFlage(schemat::SZ_PL("Zus"), flagi[1] == 'Z');
        rs.ustawFlage(schemat::SZ_PL("Ubzdr"), flagi[2] == 'U');
        rs.ustawFlage(schemat::SZ_PL("Akt"), aktywny);
    }
    void zapiszKatalog() {
        sesja().rsSZ_PL.UpdateBatch(u"Dane testu");
        otoczenie().skladniki.WczytajSkladnikiPlac(sesja());
    }
    /// In use: 1, 2, 5, 30 full; 10 outside ZUS; 12 brutto only; 16, 24 outside brutto; deductions 1 and 15
    /// outside brutto, 9 full. Component 3 is full and out of use.
    void ulozKatalog() {
        for (int nr = 1; nr <= 45; ++nr) opiszSkladnik(nr, "   ", false);
        for (const int nr : {1, 2, 5, 30, 39}) opiszSkladnik(nr, "BZU", true);
        opiszSkladnik(3, "BZU", false);
        opiszSkladnik(10, "B U", true);
        opiszSkladnik(12, "B  ", true);
        for (const int nr : {16, 24, 31, 45}) opiszSkladnik(nr, "   ", true);
        zapiszKatalog();
    }
};

} // namespace tornel::testy
