// The declarations on their forms, two pages each.
#pragma once
#include "druk/Uklad.h"
#include "tax/PortWydrukowDeklaracji.h"
#include <memory>
#include <optional>

namespace tornel::reports {

/// All declarations of the series; of each both pages, or only page `strona` (1 or 2). A declaration is made
/// when its page is drawn.
[[nodiscard]] std::shared_ptr<const Uklad> UlozDeklaracje(const tax::SeriaStron& seria,
                                                          std::optional<int> strona = {});

} // namespace tornel::reports
