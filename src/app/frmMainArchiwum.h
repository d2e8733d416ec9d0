// What the main window does with the database file as a whole: archives, restores, other databases, its
// structure.
#pragma once
#include "rules/Otoczenie.h"
#include "start/AktualizacjaBazy.h"

class QWidget;

namespace tornel::app {

class frmMain;

/// Registers the entries of "Plik" and "Konfiguracja" that concern the file: "Otwórz bazę", "Ostatnie bazy",
/// "Utwórz archiwum danych", "Przywróć z archiwum", "Aktualizuj bazę danych", "Pobierz strukturę bazy".
void ZarejestrujArchiwum(frmMain& okno, Otoczenie& otoczenie);

/// An update of the structure on the screen: `frmInform` while it runs, the report in a window of its own.
[[nodiscard]] OtoczenieAktualizacji aktualizacjaWOknach(QWidget* rodzic);

} // namespace tornel::app
