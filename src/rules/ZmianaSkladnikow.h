// The component catalogue as its screen edits it: the 45 records of `SZ_PL` taken up and stored as one.
#pragma once
#include "rules/Otoczenie.h"
#include "rules/SkladnikiPlac.h"

namespace tornel::rules {

/// Number n stands at n - 1: 1 to 30 the positive components, 31 to 45 the negative ones.
using KatalogSkladnikow = std::array<Skladnik, kDodatnich + kUjemnych>;

/// The catalogue as it is stored; the one in memory is read anew. Reads `SZ_PL`. Throws `Blad` that names the
/// component whose record is missing.
[[nodiscard]] KatalogSkladnikow Wczytaj_skladniki(Otoczenie& otoczenie);

/// Stores names and flags of all components, and the codes of the positive ones, as one action, then reads
/// the catalogue in memory anew. Writes `SZ_PL`. Throws as above and `BladBazy`; then nothing is stored.
void Zapisz_zmiany(Otoczenie& otoczenie, const KatalogSkladnikow& katalog);

} // namespace tornel::rules
