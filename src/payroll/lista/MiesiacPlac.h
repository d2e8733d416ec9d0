// What all rows of an open month are computed with.
#pragma once
#include "common/RokMies.h"
#include "payroll/lista/Pozycje.h"

namespace tornel::rules {
struct Stale;
} // namespace tornel::rules

namespace tornel::payroll {

struct MiesiacPlac {
    RokMies rm;
    const Stale& stale;
    const Pozycje& pozycje;

    /// Whether the additive component may take an amount: a number from 1 to 30 with both active marks.
    [[nodiscard]] bool aktywny(int nr) const { return nr >= 1 && nr <= 30 && pozycje.dodatnia(nr).aktywna(); }
};

} // namespace tornel::payroll
