// The employment contracts of the example firm.
#pragma once
#include "rules/Otoczenie.h"

namespace tornel::start {

/// A contract of every described employee up to number `ile`, as his personnel file says it; besides a trial
/// and a fixed term before one of them, a notice that ended one, and a change of terms that is agreed on for
/// the months to come and not yet in the personnel file.
void DodajUmowyOPracePrzykladu(Otoczenie& otoczenie, int ile);

} // namespace tornel::start
