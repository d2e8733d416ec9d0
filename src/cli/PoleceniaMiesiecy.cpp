#include "cli/Polecenia.h"
#include "common/Daty.h"
#include <QJsonArray>

namespace tornel::cli {

namespace {

int wynik(bool wykonane) { return wykonane ? status::Wykonane : status::Odmowa; }

int lista(Wywolanie& w) {
    QJsonArray json;
    QList<QStringList> wiersze{{QStringLiteral("MIESIĄC"), QString(), QStringLiteral("STATUS")}};
    for (const WierszMiesiaca& m : Miesiace(w.otoczenie()).Wczytaj_liste()) {
        json.append(QJsonObject{{QStringLiteral("miesiac"), tekstMiesiaca(m.miesiac)},
                                {QStringLiteral("rok"), m.miesiac.rok},
                                {QStringLiteral("mies"), m.miesiac.mies},
                                {QStringLiteral("zablokowany"), m.zablokowany}});
        wiersze.append({tekstMiesiaca(m.miesiac), NazwaMiesiaca(m.miesiac.mies).toUpper(),
                        m.zablokowany ? QStringLiteral("ZABLOKOWANY") : QString()});
    }
    if (w.json())
        w.pisz(json);
    else
        w.piszTabele(wiersze, {false, false, false});
    return status::Wykonane;
}

int nowy(Wywolanie& w) {
    const RokMies miesiac = miesiacZTekstu(w.argumenty.pozycje.first());
    return wynik(Miesiace(w.otoczenie()).Nowy_miesiac([&] { return miesiac; }).has_value());
}

int usun(Wywolanie& w) {
    const RokMies miesiac = miesiacZTekstu(w.argumenty.pozycje.first());
    return wynik(Miesiace(w.otoczenie()).Usun_miesiac(miesiac));
}

int blokada(Wywolanie& w) {
    const RokMies miesiac = miesiacZTekstu(w.argumenty.pozycje.first());
    return wynik(Miesiace(w.otoczenie()).BlokadaMies(miesiac));
}

} // namespace

QList<Polecenie> poleceniaMiesiecy() {
    return {
        {u"miesiac lista", {}, u"wypisuje miesiące płac", 0, 0, {}, lista},
        {u"miesiac nowy", u"RRRR-MM", u"zakłada miesiąc płac", 1, 1, {}, nowy},
        {u"miesiac usun", u"RRRR-MM", u"usuwa miesiąc płac", 1, 1, {}, usun},
        {u"miesiac blokada",
         u"RRRR-MM",
         u"blokuje otwarty miesiąc albo odblokowuje zablokowany",
         1,
         1,
         {},
         blokada},
    };
}

} // namespace tornel::cli
