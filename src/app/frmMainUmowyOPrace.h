// Wires the list of employment contracts.
#pragma once
#include "personnel/PortUmowOPrace.h"
#include "rules/Otoczenie.h"

namespace tornel::app {

class frmMain;

/// The papers of an employment, previewed or printed as constant 652 says.
[[nodiscard]] DrukUmowyOPrace DrukiUmowOPrace(Otoczenie& otoczenie);
/// The entry "Lista umów o pracę".
void ZarejestrujUmowyOPrace(frmMain& okno, Otoczenie& otoczenie);

} // namespace tornel::app
