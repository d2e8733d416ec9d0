// What the button "Drukuj" of the personnel file asks before it prints.
#pragma once
#include "personnel/PortWydrukowKadr.h"
#include "personnel/Pracownicy.h"
#include "rules/Otoczenie.h"
#include <optional>

namespace tornel::personnel {

/// The employees that the list shows, and the one in work.
struct ListaDoWydruku {
    const QList<Osoba>& osoby;
    std::optional<qint64> wybrany;
};

/// Asks for time and persons as the print needs, and prints; the attendance card opens its own screen. Of all
/// in the list those are printed who were employed in that time; a message when nobody was.
void WydrukujZKartoteki(Otoczenie& otoczenie, const PortWydrukowKadr& wydruki, const PozycjaWydrukow& wydruk,
                        const ListaDoWydruku& lista, QWidget* rodzic);

} // namespace tornel::personnel
