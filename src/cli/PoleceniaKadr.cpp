#include "cli/Polecenia.h"
#include "common/Liczby.h"
#include "personnel/Pracownicy.h"
#include <QJsonArray>

namespace tornel::cli {

namespace {

int nowy(Wywolanie& w) {
    for (const QString& wymagana : {QStringLiteral("nr"), QStringLiteral("nazwisko"), QStringLiteral("imie")})
        if (!w.argumenty.ma(wymagana)) throw ZleUzycie(QStringLiteral("Brakuje opcji --%1.").arg(wymagana));
    const qint64 numer = numerPracownikaZTekstu(w.argumenty.wartosc(QStringLiteral("nr")));
    Pracownicy(w.otoczenie())
        .NowyPracownik({numer, w.argumenty.wartosc(QStringLiteral("nazwisko")),
                        w.argumenty.wartosc(QStringLiteral("imie"))});
    return status::Wykonane;
}

int lista(Wywolanie& w) {
    QJsonArray json;
    QList<QStringList> wiersze{{QStringLiteral("NR"), QStringLiteral("NAZWISKO")}};
    for (const Osoba& osoba :
         Pracownicy(w.otoczenie()).lista(FiltrPracownikow::Wszyscy, PorzadekPracownikow::Numery)) {
        json.append(QJsonObject{{QStringLiteral("nr"), osoba.prcId},
                                {QStringLiteral("nazwisko"), osoba.nazwisko},
                                {QStringLiteral("imie"), osoba.imie},
                                {QStringLiteral("dzial"), osoba.dzial}});
        wiersze.append({FormatNumeru(osoba.prcId), osoba.nazwisko + QLatin1Char(' ') + osoba.imie});
    }
    if (w.json())
        w.pisz(json);
    else
        w.piszTabele(wiersze, {true, false});
    return status::Wykonane;
}

int usun(Wywolanie& w) {
    const qint64 numer = numerPracownikaZTekstu(w.argumenty.pozycje.first());
    return Pracownicy(w.otoczenie()).UsunPracownika(numer) ? status::Wykonane : status::Odmowa;
}

} // namespace

QList<Polecenie> poleceniaKadr() {
    return {
        {u"pracownik nowy",
         u"--nr N --nazwisko X --imie Y",
         u"zakłada kartę nowego pracownika",
         0,
         0,
         {{u"nr", u"N"}, {u"nazwisko", u"X"}, {u"imie", u"Y"}},
         nowy},
        {u"pracownik lista", {}, u"wypisuje wszystkich pracowników", 0, 0, {}, lista},
        {u"pracownik usun", u"N", u"usuwa pracownika z kadr", 1, 1, {}, usun},
    };
}

} // namespace tornel::cli
