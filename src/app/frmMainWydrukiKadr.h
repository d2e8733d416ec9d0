// Wires the prints that the main window and the personnel file offer.
#pragma once
#include "personnel/PortWydrukowKadr.h"
#include "rules/Otoczenie.h"

namespace tornel::app {

class frmMain;

/// The prints of the personnel file.
[[nodiscard]] PortWydrukowKadr WydrukiKartoteki(Otoczenie& otoczenie);
/// The entries "Zbiorówka za miesiąc" and "Zbiorówka za rok".
void ZarejestrujZbiorowki(frmMain& okno, Otoczenie& otoczenie);

} // namespace tornel::app
