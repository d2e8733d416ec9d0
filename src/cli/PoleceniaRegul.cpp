#include "cli/Polecenia.h"
#include "common/Liczby.h"
#include "common/Slownie.h"
#include "rules/Konfiguracja.h"
#include "rules/Otoczenie.h"
#include "rules/Wzory.h"
#include <algorithm>
#include <QJsonArray>
#include <QRegularExpression>

namespace tornel::cli {

namespace {

void ustawZmienna(ZmienneWzoru& zmienne, const QString& podana) {
    const qsizetype znak = podana.indexOf(QLatin1Char('='));
    const auto wartosc = znak < 0 ? std::nullopt : CzytajKwote(podana.mid(znak + 1), Zapis::Dane);
    if (!wartosc) throw ZleUzycie(QStringLiteral("\"%1\" nie ma postaci NAZWA=LICZBA.").arg(podana));
    if (!zmienne.ustaw(podana.left(znak).trimmed().toUpper(), *wartosc))
        throw ZleUzycie(QStringLiteral("Język wzorów nie ma zmiennej %1.").arg(podana.left(znak)));
}

int wzor(Wywolanie& w) {
    // Without a session: the variables are those of the command line, so no table can be missing.
    Wzory wzory(w.rozmowa);
    for (const QString& podana : w.argumenty.opcje.value(QStringLiteral("zmienna")))
        ustawZmienna(wzory.zmienne, podana);
    int bity = 0;
    if (const QString tryb = QStringLiteral("tryb"); w.argumenty.ma(tryb))
        bity = liczbaZTekstu(w.argumenty.wartosc(tryb), 0, 7, QStringLiteral("--tryb"));
    const QString wynik = TekstKwoty(wzory.ObliczWzor(w.argumenty.pozycje.first(), bity));
    if (w.json()) {
        w.pisz(QJsonObject{{QStringLiteral("wynik"), wynik}, {QStringLiteral("bity"), bity}});
    } else {
        w.pisz(QStringLiteral("wynik: ") + wynik);
        w.pisz(QStringLiteral("bity: ") + QString::number(bity));
    }
    return status::Wykonane;
}

int slownie(Wywolanie& w) {
    const QString& tekst = w.argumenty.pozycje.first();
    const auto kwota = CzytajKwote(tekst, Zapis::Dane);
    if (!kwota) throw ZleUzycie(QStringLiteral("\"%1\" nie jest kwotą.").arg(tekst));
    const QString slowa = SlownieKwota(*kwota);
    if (w.json())
        w.pisz(
            QJsonObject{{QStringLiteral("kwota"), TekstKwoty(*kwota)}, {QStringLiteral("slownie"), slowa}});
    else
        w.pisz(slowa);
    return status::Wykonane;
}

QJsonObject stalaJson(int num, const QString& wartosc) {
    const StalaDef* stala = znajdzStala(num);
    return {{QStringLiteral("num"), num},
            {QStringLiteral("nazwa"), stala ? stala->nazwa.toString() : QString()},
            {QStringLiteral("wart"), wartosc}};
}

void wypiszStale(Wywolanie& w) {
    const Otoczenie& o = w.otoczenie();
    QList<int> numery;
    for (const StalaDef& stala : tabelaStalych()) numery.append(stala.num);
    std::sort(numery.begin(), numery.end());
    QJsonArray json;
    QList<QStringList> wiersze{{QStringLiteral("NUM"), QStringLiteral("NAZWA"), QStringLiteral("WARTOŚĆ")}};
    for (const int num : numery) {
        const QString wartosc = PodajStala(o.sesja, o.stale, num);
        json.append(stalaJson(num, wartosc));
        wiersze.append({QString::number(num), znajdzStala(num)->nazwa.toString(), wartosc});
    }
    if (w.json())
        w.pisz(json);
    else
        w.piszTabele(wiersze, {true, false, false});
}

int stale(Wywolanie& w) {
    if (w.argumenty.pozycje.isEmpty()) {
        wypiszStale(w);
        return status::Wykonane;
    }
    static const QRegularExpression postac(QStringLiteral("^([0-9]{1,5})(=(.*))?$"),
                                           QRegularExpression::DotMatchesEverythingOption);
    const QString& podana = w.argumenty.pozycje.first();
    const QRegularExpressionMatch czesci = postac.match(podana);
    if (!czesci.hasMatch())
        throw ZleUzycie(QStringLiteral("\"%1\" nie ma postaci NUM ani NUM=WART.").arg(podana));
    const int num = czesci.captured(1).toInt();
    Otoczenie& o = w.otoczenie();
    if (czesci.hasCaptured(2)) {
        UstawStala(o.sesja, o.stale, num, czesci.captured(3));
    } else {
        const QString wartosc = PodajStala(o.sesja, o.stale, num);
        if (w.json())
            w.pisz(stalaJson(num, wartosc));
        else
            w.pisz(wartosc);
    }
    return status::Wykonane;
}

} // namespace

QList<Polecenie> poleceniaRegul() {
    return {
        {u"wzor",
         u"TEKST [--zmienna NAZWA=LICZBA]... [--tryb N]",
         u"oblicza wzór; N to suma bitów: 1 nieznane zmienne, 2 błędy wzoru, 4 braki rekordów",
         1,
         1,
         {{u"zmienna", u"NAZWA=LICZBA"}, {u"tryb", u"N"}},
         wzor},
        {u"slownie", u"KWOTA", u"podaje kwotę słownie", 1, 1, {}, slownie},
        {u"stale", u"[NUM | NUM=WART]", u"wypisuje, podaje albo ustawia stałe programu", 0, 1, {}, stale},
    };
}

} // namespace tornel::cli
