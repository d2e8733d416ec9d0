// What is remembered of a collection that was written: a line for each of its documents.
#pragma once
#include "rules/Wykonane.h"
#include "zus/ZbiorKedu.h"

namespace tornel::zus {

/// A document in a collection; `zrodlo` is its code, `dokument` how many there were.
inline constexpr RodzajWykonania kWykonanieKedu{u"KEDU", u"zapisano"};

/// Notes what was written, as a part of the open action. Writes `WYKONANE`.
void ZapamietajKedu(Sesja& sesja, const ZamowienieKedu& zamowienie, const WynikKedu& wynik);

/// "zapisano 10-04-2001" of the last collection with this document; empty for none. Reads `WYKONANE`.
[[nodiscard]] QString ZapisanoKedu(Sesja& sesja, KodKedu kod, std::optional<RokMies> miesiac = {});

} // namespace tornel::zus
