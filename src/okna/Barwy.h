// The colours of the program: a light and a dark theme, each as palette and style sheet, and which is chosen.
#pragma once
#include "common/Przestrzenie.h"
#include <QColor>
#include <QList>
#include <QPalette>
#include <QString>

namespace tornel::okna {

enum class Motyw { Jasny, Ciemny };

/// The colours of a theme by what they are for. Every text has a contrast of at least 4.5 to 1 on each ground
/// that it stands on, disabled ones included: a locked month is there to be read.
struct Barwy {
    QColor tlo, pole, obliczane; ///< grounds: of windows, of fields, of computed fields and headers
    QColor tekst, zablokowany, wygaszony;
    QColor linia, przycisk;
    QColor akcent, naAkcencie;
    QColor blad, tloBledu, tekstBledu; ///< frame of a field, ground and text of what it says
    QColor wolny, naWolnym;            ///< number of a free day
    QColor czeka, naCzekajacym;        ///< a button whose row waits for its calculation
};
[[nodiscard]] const Barwy& barwy(Motyw motyw);

[[nodiscard]] QPalette PaletaMotywu(Motyw motyw);
[[nodiscard]] QString ArkuszMotywu(Motyw motyw);

/// A text and a ground that meet on screen outside the roles of the palette.
struct ParaBarw {
    const char* gdzie;
    QColor tekst, tlo;
};
[[nodiscard]] QList<ParaBarw> ParyArkusza(Motyw motyw);

/// What the clerk has chosen; the desktop's settings file remembers it.
enum class WyborMotywu { JakPulpit, Jasny, Ciemny };
[[nodiscard]] WyborMotywu zapamietanyMotyw();
void zapamietajMotyw(WyborMotywu wybor);

} // namespace tornel::okna
