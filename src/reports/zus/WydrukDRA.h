// The settlement of contributions on its form.
#pragma once
#include "druk/Uklad.h"
#include "rules/Otoczenie.h"
#include <memory>

namespace tornel::reports {

/// The current row of `rsZUS`. Throws `Blad` without one.
[[nodiscard]] std::shared_ptr<const Uklad> UlozDRA(Otoczenie& otoczenie);

} // namespace tornel::reports
