// Undo and redo with the clerk at hand: the question about a file that was written, and everything in memory
// read again.
#pragma once
#include "rules/Otoczenie.h"
#include "store/Cofanie.h"

namespace tornel::rules {

/// Undoes the last action, or makes the undone one again. Asks first, with No as the default, when the action
/// has written a file, which it names: its marks are taken off and the file stays, so that somebody could be
/// paid twice. Nothing after a No. Reads handles, constants and catalogue again. `folderProgramu` is the
/// default of the folder constants. Throws `OdmowaCofniecia`, `BladBazy`.
std::optional<WpisDziennika> CofnijLubPonow(Otoczenie& otoczenie, const QString& folderProgramu,
                                            Kierunek kierunek);

} // namespace tornel::rules
