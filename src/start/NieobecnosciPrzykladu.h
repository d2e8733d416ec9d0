// The absences of the example firm's employees beyond those described one by one.
#pragma once
#include "rules/Otoczenie.h"

namespace tornel::start {

/// Gives about one in ten of the employees `od` to `dokad` a week of vacation or of sick leave in 2001,
/// always the same ones. Reads `PRACDP` and the general calendar; writes `URL`, `ZW`.
void DodajNieobecnosciPrzykladu(Otoczenie& otoczenie, int od, int dokad);

} // namespace tornel::start
