// The one place that says which print stands behind which entry of the menu "Drukuj" of a payroll list.
#pragma once
#include "payroll/lista/PortWydrukow.h"
#include "rules/Otoczenie.h"

namespace tornel::app {

/// The prints, transfers and the bank's file of the list in work.
[[nodiscard]] PortWydrukow wydrukiListyPlac(Otoczenie& otoczenie);

} // namespace tornel::app
