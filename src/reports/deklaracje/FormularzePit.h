// The pages of the declarations' forms, drawn by us after those of the year.
#pragma once
#include "reports/deklaracje/StronaFormularza.h"
#include "tax/Deklaracja.h"
#include <array>

namespace tornel::reports {

/// The two pages of a form; the same objects at each call.
[[nodiscard]] std::array<StronaFormularza, 2>& StronyFormularza(tax::Deklaracja ktora);
/// The sums that a form has behind the columns of its table, by their names.
[[nodiscard]] QList<std::string_view> SumyFormularza(tax::Deklaracja ktora);

} // namespace tornel::reports
