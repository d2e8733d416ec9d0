#include "druk/Tabela.h"
#include <numeric>

namespace tornel::druk {

namespace {

constexpr double kOdstep = 0.8; // between a cell's text and its lines, mm

} // namespace

QList<Element> naglowkiKolumn(const QList<KolumnaDruku>& kolumny, double y, double wys) {
    QList<Element> wynik;
    double x = 0;
    for (const KolumnaDruku& k : kolumny) {
        wynik.append({.rodzaj = Element::Rodzaj::Ramka, .miejsce = {x, y, k.szer, wys}});
        const QStringList linie = k.naglowek.split(QLatin1Char('\n'));
        const double linia = wys / static_cast<double>(std::max<qsizetype>(2, linie.size()));
        double yLinii = y + (wys - linia * static_cast<double>(linie.size())) / 2;
        for (const QString& tekst : linie) {
            wynik.append({.miejsce = {x + kOdstep / 2, yLinii, k.szer - kOdstep, linia},
                          .tekst = tekst,
                          .pismo = Pismo::Naglowek,
                          .ulozenie = Ulozenie::Srodek});
            yLinii += linia;
        }
        x += k.szer;
    }
    return wynik;
}

QList<Element> komorkiWiersza(const QList<KolumnaDruku>& kolumny, double wys) {
    QList<Element> wynik;
    double x = 0;
    for (const KolumnaDruku& k : kolumny) {
        wynik.append({.rodzaj = Element::Rodzaj::Pole,
                      .miejsce = {x + kOdstep, 0, k.szer - 2 * kOdstep, wys},
                      .pole = k.pole,
                      .format = k.format,
                      .ulozenie = k.ulozenie()});
        x += k.szer;
    }
    wynik.append({.rodzaj = Element::Rodzaj::Linia, .miejsce = {0, wys, x, 0}});
    return wynik;
}

QList<Element> sumyKolumn(const QList<KolumnaDruku>& kolumny, const QString& podpis, double wys,
                          Element::Rodzaj rodzaj) {
    QList<Element> wynik;
    double x = 0, wolne = 0;
    for (const KolumnaDruku& k : kolumny) {
        if (!k.sumowana) {
            if (x == wolne) wolne += k.szer;
        } else {
            wynik.append({.rodzaj = rodzaj,
                          .miejsce = {x + kOdstep, 0, k.szer - 2 * kOdstep, wys},
                          .pole = k.pole,
                          .format = k.format,
                          .pismo = Pismo::Wazne,
                          .ulozenie = Ulozenie::Prawo});
        }
        x += k.szer;
    }
    wynik.prepend(
        {.miejsce = {kOdstep, 0, wolne - 2 * kOdstep, wys}, .tekst = podpis, .pismo = Pismo::Wazne});
    wynik.append({.rodzaj = Element::Rodzaj::Linia, .miejsce = {0, wys, x, 0}});
    return wynik;
}

QString wDwochLiniach(QString napis) {
    if (const qsizetype odstep = napis.indexOf(QLatin1Char(' '), napis.size() / 3); odstep > 0)
        napis[odstep] = QLatin1Char('\n');
    return napis;
}

double szerKolumn(const QList<KolumnaDruku>& kolumny) {
    return std::accumulate(kolumny.begin(), kolumny.end(), 0.0,
                           [](double suma, const KolumnaDruku& k) { return suma + k.szer; });
}

Pasmo naglowekWydruku(const Strona& strona, const QString& firma, const QString& tytul,
                      const QString& podtytul) {
    const double szer = strona.szerTresci();
    return {
        .rola = Rola::NaglowekWydruku,
        .wys = podtytul.isEmpty() ? 14.0 : 19.0,
        .elementy = {
            {.miejsce = {0, 0, szer, 4}, .tekst = firma, .pismo = Pismo::Drobne},
            {.miejsce = {0, 4, szer, 8}, .tekst = tytul, .pismo = Pismo::Tytul, .ulozenie = Ulozenie::Srodek},
            {.miejsce = {0, 12, szer, 5},
             .tekst = podtytul,
             .pismo = Pismo::Podtytul,
             .ulozenie = Ulozenie::Srodek}}};
}

Pasmo stopkaStrony(const Strona& strona, const QString& opis) {
    const double szer = strona.szerTresci();
    return {.rola = Rola::StopkaStrony,
            .wys = 5,
            .elementy = {{.miejsce = {0, 1, szer - 40, 4}, .tekst = opis, .pismo = Pismo::Drobne},
                         {.rodzaj = Element::Rodzaj::Strona,
                          .miejsce = {szer - 40, 1, 40, 4},
                          .tekst = QStringLiteral("Strona %1 z %2"),
                          .pismo = Pismo::Drobne,
                          .ulozenie = Ulozenie::Prawo}}};
}

} // namespace tornel::druk
