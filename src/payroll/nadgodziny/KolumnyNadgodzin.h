// The numbered columns of the overtime tables, by time group.
#pragma once
#include "store/SchematPlac.h"
#include <array>

namespace tornel::payroll {

inline constexpr int kGrupNadgodzin = 7;

/// One value for each time group; element 0 is group 1.
template <typename T>
using WgGrup = std::array<T, kGrupNadgodzin>;

/// Hours and amount (zł) of time group `g`, 1 to 7, on a person's row of the month.
constexpr Kolumna GodzinyOsoby(int g) {
    return schemat::elementSerii(schemat::NADGN, schemat::NADGN("SP_C1").nr, kGrupNadgodzin, g);
}
constexpr Kolumna KwotaOsoby(int g) {
    return schemat::elementSerii(schemat::NADGN, schemat::NADGN("SP_K1").nr, kGrupNadgodzin, g);
}

/// The same on a person's row of a day.
constexpr Kolumna GodzinyDnia(int g) {
    return schemat::elementSerii(schemat::NADGDzien, schemat::NADGDzien("C1").nr, kGrupNadgodzin, g);
}
constexpr Kolumna KwotaDnia(int g) {
    return schemat::elementSerii(schemat::NADGDzien, schemat::NADGDzien("K1").nr, kGrupNadgodzin, g);
}

/// The same on the header: the sums of the month.
constexpr Kolumna GodzinyMiesiaca(int g) {
    return schemat::elementSerii(schemat::NADG, schemat::NADG("sm_c1").nr, kGrupNadgodzin, g);
}
constexpr Kolumna KwotaMiesiaca(int g) {
    return schemat::elementSerii(schemat::NADG, schemat::NADG("sm_k1").nr, kGrupNadgodzin, g);
}

} // namespace tornel::payroll
