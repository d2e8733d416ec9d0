// The keys that mean the same on every screen, as a table: what the screens bind, what tool tips and the
// handbook tell.
#pragma once
#include "common/Przestrzenie.h"
#include <functional>
#include <QKeySequence>
#include <QStringView>
#include <span>

class QAbstractButton;
class QWidget;

namespace tornel::okna {

enum class Polecenie {
    Nowy,      ///< a new row, month, person
    Usun,      ///< deletes what the list has marked; in a field the key deletes a letter
    Edycja,    ///< from the list to the fields of what it has marked, as Enter does
    Odswiez,   ///< reads the data anew
    Przepisz,  ///< fills from the personnel file
    Przelicz,  ///< computes
    Szukaj,    ///< to the field that searches
    Zapisz,    ///< stores, the screen stays
    Zatwierdz, ///< stores and closes; in a dialog the default button
    Zamknij,   ///< closes, as the screen's way with changes is
};

struct Klawisz {
    Polecenie polecenie;
    QKeyCombination klawisz;
    QStringView napis; ///< as keyboards and the handbook have it
    QStringView znaczenie;
};

/// All of them, in the order of `Polecenie`.
[[nodiscard]] std::span<const Klawisz> klawisze();
[[nodiscard]] const Klawisz& klawisz(Polecenie polecenie);

/// The key presses the button, as long as that can be pressed; its tool tip tells so.
void podlacz(Polecenie polecenie, QAbstractButton& przycisk);
/// The same while `gdzie` has the focus, and only then.
void podlacz(Polecenie polecenie, QAbstractButton& przycisk, QWidget& gdzie);
/// The key does `czynnosc` anywhere in the window of `ekran`, unless something in it has the key already.
void podlacz(Polecenie polecenie, QWidget& ekran, std::function<void()> czynnosc);

/// Adds the key to a tool tip, in brackets behind what is told there.
void dopiszKlawisz(QWidget& widzet, QStringView napis);

} // namespace tornel::okna
