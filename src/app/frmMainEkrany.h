// The one place that says which screen opens from which entry of the main window.
#pragma once
#include "rules/Otoczenie.h"

namespace tornel::app {

class frmMain;

/// Registers every screen that exists with its entry; the others stay closed.
void ZarejestrujEkrany(frmMain& okno, Otoczenie& otoczenie);

} // namespace tornel::app
