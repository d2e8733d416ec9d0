// From a print to paper: preview or printer, as the program constants say.
#pragma once
#include "druk/Uklad.h"

class QWidget;

namespace tornel::common {
class Rozmowa;
} // namespace tornel::common

namespace tornel::okna {

/// Whether a print is looked at first (constants 650 to 652 switch it off).
enum class Podglad { Tak, Nie };

/// Shows the preview; without one asks "Czy na pewno drukować ?" and prints. True if the paper or the preview
/// came.
bool PokazWydruk(std::shared_ptr<const Uklad> uklad, Podglad podglad, Rozmowa& rozmowa, QWidget* rodzic);

/// What the printer is asked for.
enum class Drukarka { Domyslna, Wybierana };

/// Prints all pages, after the system's dialog for `Wybierana`. False when the clerk gave up or, after a
/// message, when the printer fails.
bool Drukuj(const Uklad& uklad, Drukarka drukarka, Rozmowa& rozmowa, QWidget* rodzic);

} // namespace tornel::okna
