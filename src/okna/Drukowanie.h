// From a print to paper: preview or printer, as the program constants say.
#pragma once
#include "druk/Wyjscie.h"
#include <functional>
#include <memory>
#include <optional>

class QPagedPaintDevice;
class QWidget;

namespace tornel::common {
class Rozmowa;
} // namespace tornel::common

namespace tornel::okna {

/// Whether a print is looked at first (constants 650 to 652 switch it off).
enum class Podglad { Tak, Nie };

/// Pages of a print that left the program.
struct Wydanie {
    int od = 1; ///< first and last page, from 1
    int dokad = 1;
    QString plik = {}; ///< where they were written; empty for a printer
};
/// Told each time that pages went to a printer or as a document into a file.
using PoWydaniu = std::function<void(const Wydanie&)>;

/// Shows the preview; without one asks "Czy na pewno drukować ?" and prints. True if the paper or the preview
/// came.
bool PokazWydruk(std::shared_ptr<const Uklad> uklad, Podglad podglad, Rozmowa& rozmowa, QWidget* rodzic,
                 const PoWydaniu& poWydaniu = {});

/// What the printer is asked for.
enum class Drukarka { Domyslna, Wybierana };

/// Prints all pages, or those chosen in the system's dialog for `Wybierana`. Gives the pages printed; nothing
/// when the clerk gave up or, after a message, when there is no printer or it fails.
std::optional<Wydanie> Drukuj(const Uklad& uklad, Drukarka drukarka, Rozmowa& rozmowa, QWidget* rodzic);

/// How it ended on a device.
enum class WynikStron { Gotowe, Zatrzymane, Niepowodzenie };
/// Draws the pages `od` to `dokad`, from 1. `postep` is asked after each page and may stop it.
[[nodiscard]] WynikStron RysujStrony(QPagedPaintDevice& urzadzenie, double rozdzielczosc, const Uklad& uklad,
                                     int od, int dokad, const PostepStron& postep);

} // namespace tornel::okna
