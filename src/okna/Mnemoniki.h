// The letters that work with Alt in menus and windows. Captions do not carry them: they stand in one table,
// and a menu or window takes from it what nobody in it has yet.
#pragma once
#include "common/Przestrzenie.h"
#include <QString>

class QMenu;
class QMenuBar;
class QWidget;

namespace tornel::okna::mnemoniki {

/// The letters of a caption in the order of preference, empty for one that the table does not know. Of a
/// caption that goes on behind a colon ("Cofnij: Nowy miesiąc") the first part counts.
[[nodiscard]] QStringView litery(QStringView napis);

/// Marks the letters of the menus in the bar, and of all entries in them.
void nadaj(QMenuBar& pasek);
/// Marks the letters of the menu's entries and of its sub-menus' entries. An entry that the table does not
/// know, as the name of a column, takes the first letter of its words that is left, then any other. An entry
/// that has its letter keeps it; calling again does no harm.
void nadaj(QMenu& menu);
/// Marks the letters of the buttons of a window that the table knows, and of the entries of their menus.
/// Letters that captions of fields, other buttons and shortcuts have stay theirs.
void nadajPrzyciskom(QWidget& okno);

} // namespace tornel::okna::mnemoniki
