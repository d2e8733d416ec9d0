// The one look of the program: style, palette, style sheet, the 8 px grid and the pictures.
#pragma once
#include "okna/Barwy.h"
#include <QColor>
#include <QIcon>
#include <QStringView>

class QAbstractButton;
class QApplication;
class QLabel;
class QString;
class QWidget;

namespace tornel::okna {

namespace Wyglad {

/// The step of the grid in pixels; margins and spacings are its multiples.
inline constexpr int kSiatka = 8;
/// Width of every money field in characters: the widest amount of the data with its sign and decimals.
inline constexpr int kZnakiKwoty = 13;
/// The smallest height of an entry field.
inline constexpr int kWysokoscPola = 26;

/// Ground of a button whose row waits for its calculation.
inline constexpr QColor kDoPrzeliczenia{238, 238, 64};

/// Sets style, font, palette and style sheet of the whole program, in the theme that was chosen.
void zastosuj(QApplication& program);
/// Shows the whole program in the theme, windows that are open too, without remembering it. As the desktop:
/// dark where its windows are.
void pokazMotyw(QApplication& program, WyborMotywu wybor);

/// The picture `nazwa` of data/obrazy, drawn in the text colour of the palette in force (dimmed when
/// disabled). An unknown name gives an empty icon.
[[nodiscard]] QIcon ikona(QStringView nazwa);

/// Marks a button as due for calculation, or takes the mark off.
void oznaczDoPrzeliczenia(QAbstractButton& przycisk, bool doPrzeliczenia);

/// The sign of what waits for the clerk: a dot with an exclamation mark, to be told apart without colours.
[[nodiscard]] QIcon znakUwagi();

/// Marks a field as computed: it looks unlike one that is typed into.
void oznaczObliczane(QWidget& pole);

/// Frames a field that did not understand what was typed into it, or takes the frame off.
void oznaczBlad(QWidget& pole, bool blad);

/// Marks a field or a caption as one of the few amounts that the eye looks for first.
void oznaczGlowne(QWidget& pole);

/// Marks a text as one that does not wait, or takes the mark off.
void oznaczPilne(QWidget& napis, bool pilne);

/// Marks the number of a calendar's day as that of a free day (white on red, bold), or takes the mark off.
void oznaczWolny(QWidget& numer, bool wolny);

/// Marks the name of a day as that of a Saturday or Sunday.
void oznaczKoniecTygodnia(QWidget& nazwa, bool koniec);

/// A label that stands out as a banner over a screen, as for a blocked month. Hidden while `tekst` is empty.
[[nodiscard]] QLabel* baner(const QString& tekst, QWidget* rodzic);
void ustawBaner(QLabel& baner, const QString& tekst);

} // namespace Wyglad

} // namespace tornel::okna
