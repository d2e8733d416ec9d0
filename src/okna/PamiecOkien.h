// What the desktop remembers of the windows from one time to the next: never the clerk's data, which is in
// the database.
#pragma once
#include "common/Przestrzenie.h"

class QString;
class QWidget;

namespace tornel::okna::pamiecOkien {

/// Marks a QTabWidget inside a window as one whose last tab is remembered.
void pamietajZakladke(QWidget& zakladki);
/// Marks a QComboBox inside a window as one whose last choice, by its data, is remembered.
void pamietajWybor(QWidget& wybor);

/// Notes the window's size and place, its splitters, the widths and the order of its lists, its marked tabs
/// and choices, under its objectName in the user's settings file (`Tornel.ini`). A window without a name is
/// not noted.
void zapamietaj(const QWidget& okno);
/// Gives the window back what was noted; what is missing or does not fit is left as it was built.
void przywroc(QWidget& okno);

/// A choice of the desktop's kind that belongs to no window, by its name with a group, as "wyglad/barwy".
[[nodiscard]] QString ustawienie(const QString& nazwa);
void ustaw(const QString& nazwa, const QString& wartosc);

} // namespace tornel::okna::pamiecOkien
