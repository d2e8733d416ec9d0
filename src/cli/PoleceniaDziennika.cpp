#include "cli/Polecenia.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "rules/CofanieCzynnosci.h"
#include "rules/SlowaDziennika.h"
#include <limits>
#include <QJsonArray>

namespace tornel::cli {

namespace {

constexpr qint64 kNajwiecejZmian = 10'000;

QDate dzienOpcji(const Wywolanie& w, const QString& nazwa) {
    if (!w.argumenty.ma(nazwa)) return {};
    const auto dzien = CzytajDate(w.argumenty.wartosc(nazwa));
    if (!dzien)
        throw ZleUzycie(QStringLiteral("--%1: \"%2\" nie jest datą.").arg(nazwa, w.argumenty.wartosc(nazwa)));
    return *dzien;
}

QStringList poleWpisu(const WpisDziennika& wpis) {
    return {QString::number(wpis.id),
            wpis.dzien.isValid() ? FormatDaty(wpis.dzien) : QString(),
            wpis.czas,
            wpis.kto,
            wpis.czynnosc,
            wpis.tabele.join(QStringLiteral(", ")),
            QString::number(wpis.wierszy),
            NapisStanu(wpis.stan)};
}

/// Rows of texts, as a table or as objects under the names of the first row.
void piszWiersze(Wywolanie& w, const QList<QStringList>& wiersze, const QList<bool>& doPrawej) {
    if (!w.json()) return w.piszTabele(wiersze, doPrawej);
    QJsonArray json;
    for (const QStringList& wiersz : wiersze.mid(1)) {
        QJsonObject obiekt;
        for (qsizetype i = 0; i < wiersz.size(); ++i) obiekt[wiersze.first()[i]] = wiersz[i];
        json.append(obiekt);
    }
    w.pisz(QJsonValue(json));
}

int zmianyWpisu(Wywolanie& w) {
    const Otoczenie& o = w.otoczenie();
    const qint64 id = liczbaZTekstu(w.argumenty.pozycje.first(), 1, std::numeric_limits<int>::max(),
                                    QStringLiteral("Numer wpisu"));
    QList<QStringList> wiersze{{QStringLiteral("CO"), QStringLiteral("WIERSZ"), QStringLiteral("POLE"),
                                QStringLiteral("BYŁO"), QStringLiteral("JEST")}};
    for (const OpisanaZmiana& z : OpiszZmiany(ZmianyWpisu(o.sesja.cnPlace, id, kNajwiecejZmian), o.skladniki))
        wiersze.append({z.rzecz, z.wiersz, z.kolumna, z.stara, z.nowa});
    piszWiersze(w, wiersze, {false, false, false, false, false});
    return status::Wykonane;
}

int dziennik(Wywolanie& w) {
    if (!w.argumenty.pozycje.isEmpty()) return zmianyWpisu(w);
    const QString pracownik = QStringLiteral("pracownik");
    SzukaneWpisy szukane{.od = dzienOpcji(w, QStringLiteral("od")),
                         .do_ = dzienOpcji(w, QStringLiteral("do"))};
    if (w.argumenty.ma(pracownik)) szukane.osoba = numerPracownikaZTekstu(w.argumenty.wartosc(pracownik));
    QList<QStringList> wiersze{{QStringLiteral("NR"), QStringLiteral("DZIEŃ"), QStringLiteral("CZAS"),
                                QStringLiteral("KTO"), QStringLiteral("CZYNNOŚĆ"), QStringLiteral("TABELE"),
                                QStringLiteral("WIERSZY"), QStringLiteral("STAN")}};
    for (const WpisDziennika& wpis : WpisyDziennika(w.otoczenie().sesja.cnPlace, szukane))
        wiersze.append(poleWpisu(wpis));
    piszWiersze(w, wiersze, {true, false, false, false, false, false, true, false});
    return status::Wykonane;
}

int przesun(Wywolanie& w, Kierunek kierunek) {
    const auto wpis = CofnijLubPonow(w.otoczenie(), w.folderProgramu, kierunek);
    if (!wpis) return status::Odmowa;
    w.pisz((kierunek == Kierunek::Cofnij ? QStringLiteral("Cofnięto: %1") : QStringLiteral("Ponowiono: %1"))
               .arg(wpis->czynnosc));
    return status::Wykonane;
}

int cofnij(Wywolanie& w) { return przesun(w, Kierunek::Cofnij); }
int ponow(Wywolanie& w) { return przesun(w, Kierunek::Ponow); }

} // namespace

QList<Polecenie> poleceniaDziennika() {
    return {
        {u"dziennik",
         u"[NR | --od D --do D --pracownik N]",
         u"kto, co i kiedy zmienił, od najnowszych; z numerem wpisu: każda wartość przed zmianą i po niej",
         0,
         1,
         {{u"od", u"D"}, {u"do", u"D"}, {u"pracownik", u"N"}},
         dziennik},
        {u"cofnij", u"", u"cofa ostatnią czynność, także z poprzedniej pracy", 0, 0, {}, cofnij},
        {u"ponow", u"", u"wykonuje ponownie cofniętą czynność", 0, 0, {}, ponow},
    };
}

} // namespace tornel::cli
