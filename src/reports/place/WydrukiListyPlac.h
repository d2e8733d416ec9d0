// The prints of a payroll list.
#pragma once
#include "druk/Uklad.h"
#include "rules/Otoczenie.h"
#include "rules/Wykonane.h"
#include <optional>
#include <QDate>
#include <span>

namespace tornel::payroll {
class ListaPlac;
} // namespace tornel::payroll

namespace tornel::reports {

/// A payroll list that went to paper or into a file, as it is noted: the list's symbol, empty for all lists.
inline constexpr RodzajWykonania kWydrukListy{u"lista-plac", u"wydrukowano"};

/// Which print, in the order of the menu.
enum class WydrukListy { ListaPlac, Wersja2, Wersja3, Pokwitowania, Zbiorowka };

/// Its caption in the menu, and the name by which the console calls it.
struct OpisWydrukuListy {
    WydrukListy ktory;
    QStringView napis;
    QStringView nazwa;
};
[[nodiscard]] std::span<const OpisWydrukuListy> wydrukiListy();

/// The print of the list in work; `prcId` narrows it to one employee. `dzien` is the day of printing. The
/// open month must not change while the print lives. Reads `PLA`, `PLB`, `PLS`, `PLACEN`. Throws `Blad`.
[[nodiscard]] std::shared_ptr<const Uklad> UlozWydrukListy(WydrukListy ktory, Otoczenie& otoczenie,
                                                           const ListaPlac& lista, QDate dzien,
                                                           std::optional<qint64> prcId = {});

} // namespace tornel::reports
