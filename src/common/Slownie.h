// Amounts in Polish words, as contracts and receipts print them.
#pragma once
#include "common/Waluta.h"
#include <QString>

namespace tornel::common {

/// The amount in words with single blanks: 2,05 is "dwa złote pięć groszy". Decimals from the third on are
/// cut, not rounded; digits of the whole part above the twelfth are not read. Empty for zero and below.
[[nodiscard]] QString SlownieKwota(Waluta kwota);

/// One digit (0 to 9) in words at rank 1 (units), 2 (tens) or 3 (hundreds). Empty for 0 and outside the
/// ranges.
[[nodiscard]] QString SlownieCyfra(int cyfra, int rzad);

/// "jedenaście" to "dziewiętnaście" for 1 to 9, otherwise empty.
[[nodiscard]] QString SlownieNascie(int cyfra);

/// The word of a group of three digits worth `wartosc` (0 to 999): thousands in group 2, millions in 3,
/// milliards in 4. Empty for group 1.
[[nodiscard]] QString SlownieGrupa(int nrGrupy, int wartosc);

} // namespace tornel::common
