// Wires the screens of contracts.
#pragma once
#include "rules/Otoczenie.h"

namespace tornel::app {

class frmMain;

/// The entries "Umowy zlecenia", "Umowy o dzieło" and "Honoraria".
void ZarejestrujUmowy(frmMain& okno, Otoczenie& otoczenie);

} // namespace tornel::app
