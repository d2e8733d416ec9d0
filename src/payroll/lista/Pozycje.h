// The component positions of an open month: which of the 30 additive and 15 deductive ones are in use and
// what they count towards.
#pragma once
#include "common/Przestrzenie.h"
#include <array>
#include <QString>

namespace tornel::rules {
struct Maski;
} // namespace tornel::rules

namespace tornel::payroll {

struct PozycjaSkladnika {
    bool aktMiesiaca = false; ///< mark of the month (its mask when blocked, the catalogue otherwise)
    bool aktKatalogu = false; ///< mark of the catalogue today
    bool brutto = false;
    bool zus = false;
    bool ubzdr = false;

    /// A position counts only if both marks are set.
    [[nodiscard]] bool aktywna() const { return aktMiesiaca && aktKatalogu; }
    /// The three letters shown beside the field: "B" brutto, "Z" subject to ZUS, "U" to health insurance;
    /// blanks where not.
    [[nodiscard]] QString flagi() const {
        return QString(QLatin1Char(brutto ? 'B' : ' ')) + QLatin1Char(zus ? 'Z' : ' ') +
               QLatin1Char(ubzdr ? 'U' : ' ');
    }
};

struct Pozycje {
    std::array<PozycjaSkladnika, 30> dodatnie;
    std::array<PozycjaSkladnika, 15> ujemne;

    /// By component number, from 1.
    [[nodiscard]] const PozycjaSkladnika& dodatnia(int i) const {
        return dodatnie.at(static_cast<std::size_t>(i - 1));
    }
    [[nodiscard]] const PozycjaSkladnika& ujemna(int i) const {
        return ujemne.at(static_cast<std::size_t>(i - 1));
    }
};

/// The positions by the month's marks and today's catalogue.
[[nodiscard]] Pozycje PozycjeZMasek(const Maski& miesiac, const Maski& katalog);

} // namespace tornel::payroll
