#include "store/Schemat.h"
#include <algorithm>

namespace tornel::store::schemat {

const TabelaDef* szablonTabeli(std::string_view nazwa) {
    for (const TabelaDef* def : Tabele)
        if (teSameNazwy(def->nazwa, nazwa)) return def;
    constexpr std::size_t cyfr = 6;
    if (nazwa.size() <= cyfr) return nullptr;
    const std::string_view miesiac = nazwa.substr(nazwa.size() - cyfr);
    if (!std::ranges::all_of(miesiac, [](char c) { return c >= '0' && c <= '9'; })) return nullptr;
    for (const std::span<const TabelaDef* const> tabele :
         {std::span<const TabelaDef* const>(TabeleMiesiaca),
          std::span<const TabelaDef* const>(TabeleNadgodzin)})
        for (const TabelaDef* def : tabele)
            if (teSameNazwy(def->nazwa, nazwa.substr(0, nazwa.size() - cyfr))) return def;
    return nullptr;
}

} // namespace tornel::store::schemat
