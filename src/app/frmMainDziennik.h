// The journal, undo and redo in the main window.
#pragma once
#include "rules/Otoczenie.h"

namespace tornel::app {

class frmMain;

/// Registers "Cofnij" and "Ponów", whose captions name the action, and "Dziennik zmian"; the same keys undo
/// in the screens that the window opens, for as long as it lives.
void ZarejestrujDziennik(frmMain& okno, Otoczenie& otoczenie);

} // namespace tornel::app
