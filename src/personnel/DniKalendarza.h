// The days of one month of a calendar of days off, by day of the month.
#pragma once
#include "common/Daty.h"
#include "store/SchematKadr.h"
#include <array>

namespace tornel::store {
class Recordset;
} // namespace tornel::store

namespace tornel::personnel {

class DniKalendarza {
public:
    /// As the table stores them.
    enum Znak : signed char { NieMa = -1, Roboczy = 0, Wolny = 1 };

    /// A month whose Saturdays and Sundays are free.
    static DniKalendarza nowyMiesiac(int rok, int mies);
    /// The flags of the current row of `KALENDARZ`. Any flag above 0 is a free day, below 0 no day; a day
    /// that the row's month lacks is none, whatever the row holds.
    static DniKalendarza zWiersza(const Recordset& kalendarz);
    /// The flags of one month as they were stored, by day, beginning with day 1.
    static DniKalendarza zFlag(int rok, int mies, const std::array<qint64, 31>& flagi);

    /// Day `d` from 1 to 31.
    [[nodiscard]] Znak operator[](int d) const { return dni_.at(static_cast<std::size_t>(d - 1)); }
    void ustaw(int d, Znak znak) { dni_.at(static_cast<std::size_t>(d - 1)) = znak; }
    /// How many of the days `od` to `dokad` have the mark.
    [[nodiscard]] int ile(Znak znak, int od = 1, int dokad = 31) const;

private:
    std::array<Znak, 31> dni_{};
};

} // namespace tornel::personnel
