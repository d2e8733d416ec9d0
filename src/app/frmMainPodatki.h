// The declarations: from the menu's entries to their screens and prints.
#pragma once
#include "rules/Otoczenie.h"

namespace tornel::app {

class frmMain;

/// The entries "PIT-4", "PIT-8B", "PIT-11" and "PIT-40".
void ZarejestrujPodatki(frmMain& okno, Otoczenie& otoczenie);

} // namespace tornel::app
