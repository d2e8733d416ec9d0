// The employer's bank accounts (`KONTA`).
#pragma once
#include "rules/Kartoteka.h"

namespace tornel::bank {

/// Transfers take an account when they are printed and keep no number of it, so every account can be deleted.
[[nodiscard]] const KartotekaDef& KontaBankowe();

} // namespace tornel::bank
