// Setting one constant from a text that somebody typed: unlike loading, a wrong text is refused and not
// repaired.
#pragma once
#include "rules/TabelaStalych.h"

namespace tornel::rules {

/// The range of a short number.
inline constexpr int kNajmniejszaKrotka = -32768;
inline constexpr int kNajwiekszaKrotka = 32767;
/// The highest number of a positive component.
inline constexpr int kNajwyzszySkladnik = 30;

/// The row of constant `num`. Throws `Blad` that names the number if there is none.
[[nodiscard]] const StalaDef& wymaganaStala(int num);

/// Whether component number `numer` may stand in element `element` (0 for a single number) of constant `num`:
/// it is 0, or no other field of the kind `NumerJedyny` in `stale` holds it.
[[nodiscard]] bool NumerSkladnikaWolny(const Stale& stale, int num, std::size_t element, int numer);

/// Sets the value in `stale`; formulas are taken in upper case, elements left out of an array become empty.
/// Throws `Blad` that says what the constant takes; `stale` is then undefined.
void przyjmijTekst(const StalaDef& stala, const QString& tekst, Stale& stale);

} // namespace tornel::rules
