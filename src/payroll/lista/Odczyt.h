// How calculations read what lies outside the open month's handles.
#pragma once
#include "common/Przestrzenie.h"

namespace tornel::payroll {

/// Employee by employee through the file's indexes, or, for a batch over most of the firm, once for all.
enum class Odczyt { PoJednym, Wszystkich };

} // namespace tornel::payroll
