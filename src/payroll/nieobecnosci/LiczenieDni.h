// The days of the month by kind: work, Saturdays, Sundays, vacation, sickness, other free days.
#pragma once
#include "payroll/lista/Uwagi.h"
#include "payroll/lista/WierszPlac.h"
#include "payroll/nieobecnosci/DaneNieobecnosci.h"
#include "personnel/DniKalendarza.h"
#include <optional>

namespace tornel::payroll {

/// What the days of a row are counted from.
struct DaneDni {
    Nieobecnosci urlopy, zwolnienia;
    bool kalendarzPusty = false;              ///< there is no calendar at all
    std::optional<DniKalendarza> kalendarz{}; ///< the month's, the own or the general one
};

struct WynikDni {
    std::optional<DniWiersza> dni; ///< nothing: they cannot be counted, the row keeps its own
    ListaUwag uwagi;
};

/// Whether a vacation and a sick leave share a day of the month, so that no day can be counted.
[[nodiscard]] bool NieobecnosciPokrywajaSie(RokMies miesiac, Nieobecnosci urlopy, Nieobecnosci zwolnienia);
/// The month's days by kind; a calendar without the month gives zeros.
[[nodiscard]] WynikDni Przelicz_Dni(RokMies miesiac, const DaneDni& dane);

/// Days of the month on which work was due: not free in the calendar, Monday to Friday without one.
[[nodiscard]] int DniObowiazkuPracy(RokMies miesiac, const std::optional<DniKalendarza>& kalendarz);

} // namespace tornel::payroll
