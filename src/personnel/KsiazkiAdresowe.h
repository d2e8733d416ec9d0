// The address books: tax offices (`US`) and the employer's workplaces (`M_PRACY`).
#pragma once
#include "rules/Kartoteka.h"

namespace tornel::personnel {

/// In use by `us_id` of employees, contracts and fees, and by constant 663.
[[nodiscard]] const KartotekaDef& UrzedySkarbowe();
/// In use by `mp_id` of employees and employment contracts. A new one is not reported to the insurer (`zza`
/// "0").
[[nodiscard]] const KartotekaDef& MiejscaPracy();

} // namespace tornel::personnel
