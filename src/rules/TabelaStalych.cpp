#include "rules/TabelaStalych.h"
#include <algorithm>
#include <array>
#include <vector>

namespace tornel::rules {

std::span<const StalaDef> tabelaStalych() {
    static const auto tabela = [] {
        std::vector<StalaDef> wiersze;
        for (const auto czesc : {stale_czesci::place(), stale_czesci::nieobecnosci(), stale_czesci::firma(),
                                 stale_czesci::deklaracje()})
            wiersze.insert(wiersze.end(), czesc.begin(), czesc.end());
        return wiersze;
    }();
    return tabela;
}

const StalaDef* znajdzStala(int num) {
    const auto tabela = tabelaStalych();
    const auto it = std::ranges::find(tabela, num, &StalaDef::num);
    return it == tabela.end() ? nullptr : &*it;
}

std::span<const QStringView> kartyStalych() {
    static constexpr std::array<QStringView, 18> karty{
        u"Grupy podatkowe",
        u"Stałe systemu",
        u"Inne (1)",
        u"Inne (2)",
        u"Urlopy",
        u"L-4",
        u"Nadgodziny",
        u"Użytkownik (1)",
        u"Użytkownik (2)",
        u"Użytkownik (3)",
        u"ZUS (1)",
        u"ZUS (2)",
        u"PIT (1)",
        u"PIT (2)",
        u"PIT (3)",
        u"PIT (4)",
        u"MCS",
        u"Karta ewidencji",
    };
    static_assert(karty.size() == static_cast<std::size_t>(KartaStalych::Brak));
    return karty;
}

} // namespace tornel::rules
