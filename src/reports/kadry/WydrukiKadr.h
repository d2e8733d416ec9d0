// The prints of the personnel file.
#pragma once
#include "druk/Uklad.h"
#include "personnel/PortWydrukowKadr.h"
#include "rules/Otoczenie.h"
#include <QDate>
#include <span>

namespace tornel::reports {

/// In the order of the menu.
enum class WydrukKadr { ListaPracownikow, KartaEwidencji, ListaObecnosci, KartaPrzychodow, Zaswiadczenie };

struct OpisWydrukuKadr {
    WydrukKadr ktory;
    QStringView napis; ///< in the menu
    QStringView nazwa; ///< by which the console calls it
    CzasWydruku okres;
};
[[nodiscard]] std::span<const OpisWydrukuKadr> wydrukiKadr();

/// The print of these employees in the order given, each once. `dzien` is the day of printing. Reads
/// `PRACDP`, `PRACPR`, and of the time: calendars and registers (card and list of attendance), the payroll
/// lists (income card, certificate). Throws `Blad`, as for an employee who is not in the personnel file.
[[nodiscard]] std::shared_ptr<const Uklad> UlozWydrukKadr(WydrukKadr ktory, Otoczenie& otoczenie,
                                                          const ZlecenieWydruku& zlecenie, QDate dzien);

} // namespace tornel::reports
