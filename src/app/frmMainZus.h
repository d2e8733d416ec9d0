// Wires the screens of the insurer's documents.
#pragma once
#include "rules/Otoczenie.h"

namespace tornel::app {

class frmMain;

/// The entries "Lista dokumentów ZUS DRA" and "Wydruki ZUS", with the screens that its remarks lead to and
/// the view of a collection.
void ZarejestrujZus(frmMain& okno, Otoczenie& otoczenie);

} // namespace tornel::app
