#include "reports/kadry/Elementy.h"

namespace tornel::reports {

Element napisNa(Miejsce m, const QString& tekst, Pismo pismo, Ulozenie ulozenie) {
    return {.miejsce = m, .tekst = tekst, .pismo = pismo, .ulozenie = ulozenie};
}

Element poleNa(Miejsce m, int pole, Pismo pismo, Ulozenie ulozenie, Format format) {
    return {.rodzaj = Element::Rodzaj::Pole,
            .miejsce = m,
            .pole = pole,
            .format = format,
            .pismo = pismo,
            .ulozenie = ulozenie};
}

Pasmo liniaFirmy(const Strona& strona, const Firma& firma) {
    return {.rola = Rola::NaglowekStrony,
            .wys = 4,
            .elementy = {napisNa({0, 0, strona.szerTresci(), 4}, firma.wLinii(), Pismo::Drobne)}};
}

Pasmo naglowekOsoby(const Strona& strona, const QString& tytul, const QString& podtytul) {
    const double szer = strona.szerTresci();
    return {.rola = Rola::NaglowekGrupy,
            .wys = kWysNaglowkaOsoby,
            .elementy = {napisNa({0, 0, szer, 8}, tytul, Pismo::Tytul, Ulozenie::Srodek),
                         napisNa({0, 8, szer, 5}, podtytul, Pismo::Podtytul, Ulozenie::Srodek),
                         poleNa({0, 15, 12, 5}, OsNumer, Pismo::Podtytul, Ulozenie::Lewo, Format::Liczba),
                         poleNa({12, 15, szer - 12, 5}, OsNazwisko, Pismo::Podtytul),
                         poleNa({0, 20.5, szer, 4}, OsPraca), poleNa({0, 24.5, szer, 4}, OsTozsamosc)},
            .nowaStrona = true};
}

QList<Element> podpisy(double szer, double y, const QStringList& kto) {
    QList<Element> wynik;
    const double krok = szer / static_cast<double>(kto.size());
    constexpr double kPodpis = 62, kWolne = 12;
    double x = 0;
    for (const QString& podpis : kto) {
        const double srodek = x + (krok - kPodpis) / 2;
        wynik.append(napisNa({srodek, y + kWolne, kPodpis, 4},
                             QStringLiteral("............................................................"),
                             Pismo::Drobne, Ulozenie::Srodek));
        wynik.append(napisNa({srodek, y + kWolne + 4, kPodpis, 4}, podpis, Pismo::Drobne, Ulozenie::Srodek));
        x += krok;
    }
    return wynik;
}

QList<Element> linieKolumn(const QList<double>& szerokosci, double wys) {
    QList<Element> wynik;
    double x = 0;
    wynik.append({.rodzaj = Element::Rodzaj::Linia, .miejsce = {x, 0, 0, wys}});
    for (const double szer : szerokosci) {
        x += szer;
        wynik.append({.rodzaj = Element::Rodzaj::Linia, .miejsce = {x, 0, 0, wys}});
    }
    return wynik;
}

} // namespace tornel::reports
