// A month of a year, the key of payrolls, calendars and overtime lists.
#pragma once
#include "common/Daty.h"
#include <compare>

namespace tornel::common {

struct RokMies {
    int rok = 0;
    int mies = 0; ///< 1 to 12

    /// The month that a day lies in.
    [[nodiscard]] static RokMies dnia(QDate dzien) { return {dzien.year(), dzien.month()}; }
    /// 200107 for July 2001: the number by which lists of months find their rows.
    [[nodiscard]] constexpr qint64 id() const { return rok * 100LL + mies; }
    [[nodiscard]] static constexpr RokMies zId(qint64 id) {
        return {static_cast<int>(id / 100), static_cast<int>(id % 100)};
    }

    /// "200107", as it stands in the names of month tables and in columns `ROKMIES`.
    [[nodiscard]] QString klucz() const { return FormatRoku(rok) + FormatMiesiaca(mies); }

    [[nodiscard]] QDate pierwszyDzien() const { return PierwszyDzien(rok, mies); }
    [[nodiscard]] QDate ostatniDzien() const { return OstatniDzien(rok, mies); }
    [[nodiscard]] int dni() const { return DniWMiesiacu(rok, mies); }
    /// The month `ile` months later; earlier for a negative number.
    [[nodiscard]] RokMies plus(int ile) const { return dnia(pierwszyDzien().addMonths(ile)); }
    /// "07.2001", as titles and lists show it.
    [[nodiscard]] QString napis() const { return NapisMiesiaca(rok, mies); }

    friend constexpr auto operator<=>(const RokMies&, const RokMies&) = default;
};

} // namespace tornel::common
