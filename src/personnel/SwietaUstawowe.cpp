#include "personnel/SwietaUstawowe.h"
#include <algorithm>

namespace tornel::personnel {

namespace {

struct SwietoStale {
    int mies;
    int dzien;
    QStringView nazwa;
};

struct SwietoRuchome {
    int poWielkanocy; ///< days
    QStringView nazwa;
};

// 6 January is no day off: it ceased to be one in 1960.
constexpr SwietoStale kStale[] = {
    {1, 1, u"Nowy Rok"},
    {5, 1, u"Święto Pracy"},
    {5, 3, u"Święto Narodowe Trzeciego Maja"},
    {8, 15, u"Wniebowzięcie Najświętszej Maryi Panny"},
    {11, 1, u"Wszystkich Świętych"},
    {11, 11, u"Narodowe Święto Niepodległości"},
    {12, 25, u"Pierwszy dzień Bożego Narodzenia"},
    {12, 26, u"Drugi dzień Bożego Narodzenia"},
};

constexpr SwietoRuchome kRuchome[] = {
    {0, u"Wielkanoc"},
    {1, u"Poniedziałek Wielkanocny"},
    {49, u"Zielone Świątki"},
    {60, u"Boże Ciało"},
};

} // namespace

QDate Wielkanoc(int rok) {
    // The Gregorian reckoning: the golden number and the century give the full moon, the year its Sunday.
    const int zlota = rok % 19;
    const int wiek = rok / 100;
    const int epakta = (19 * zlota + wiek - wiek / 4 - (wiek - (wiek + 8) / 25 + 1) / 3 + 15) % 30;
    const int doNiedzieli = (32 + 2 * (wiek % 4) + 2 * (rok % 100 / 4) - epakta - rok % 4) % 7;
    const int poprawka = (zlota + 11 * epakta + 22 * doNiedzieli) / 451;
    const int dzien = epakta + doNiedzieli - 7 * poprawka + 114;
    return {rok, dzien / 31, dzien % 31 + 1};
}

QList<Swieto> SwietaUstawowe(int rok) {
    QList<Swieto> wynik;
    for (const SwietoStale& s : kStale) wynik.append({QDate(rok, s.mies, s.dzien), s.nazwa.toString()});
    const QDate wielkanoc = Wielkanoc(rok);
    for (const SwietoRuchome& s : kRuchome)
        wynik.append({wielkanoc.addDays(s.poWielkanocy), s.nazwa.toString()});
    std::ranges::stable_sort(wynik, {}, &Swieto::data);
    return wynik;
}

} // namespace tornel::personnel
