#include "personnel/DniKalendarza.h"
#include "store/Recordset.h"

namespace tornel::personnel {

using schemat::DzienKalendarza;
using schemat::KALENDARZ;

DniKalendarza DniKalendarza::nowyMiesiac(int rok, int mies) {
    DniKalendarza wynik;
    const int dlugosc = DniWMiesiacu(rok, mies);
    const int pierwszy = QDate(rok, mies, 1).dayOfWeek();
    for (int d = 1; d <= 31; ++d) {
        const bool wolny = (pierwszy + d - 2) % 7 + 1 >= Qt::Saturday;
        wynik.ustaw(d, d > dlugosc ? NieMa : wolny ? Wolny : Roboczy);
    }
    return wynik;
}

DniKalendarza DniKalendarza::zFlag(int rok, int mies, const std::array<qint64, 31>& flagi) {
    DniKalendarza wynik;
    const int dlugosc = DniWMiesiacu(rok, mies);
    for (int d = 1; d <= 31; ++d) {
        const qint64 flaga = flagi[static_cast<std::size_t>(d - 1)];
        wynik.ustaw(d, d > dlugosc || flaga < 0 ? NieMa : flaga > 0 ? Wolny : Roboczy);
    }
    return wynik;
}

DniKalendarza DniKalendarza::zWiersza(const Recordset& kalendarz) {
    std::array<qint64, 31> flagi{};
    for (int d = 1; d <= 31; ++d)
        flagi[static_cast<std::size_t>(d - 1)] = kalendarz.liczba(DzienKalendarza(d));
    return zFlag(static_cast<int>(kalendarz.liczba(KALENDARZ("Rok"))),
                 static_cast<int>(kalendarz.liczba(KALENDARZ("Mies"))), flagi);
}

int DniKalendarza::ile(Znak znak, int od, int dokad) const {
    int wynik = 0;
    for (int d = std::max(od, 1); d <= std::min(dokad, 31); ++d) wynik += (*this)[d] == znak;
    return wynik;
}

} // namespace tornel::personnel
