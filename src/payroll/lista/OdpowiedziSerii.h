// The answers that a batch remembers: each question is asked at the first row that needs it.
#pragma once
#include "common/Rozmowa.h"

namespace tornel::payroll {

struct OdpowiedziSerii {
    PytanieRaz iloscZasilkow;      ///< copy the counts of family, nursing and childcare benefits
    PytanieRaz pomniejszacZasilek; ///< `PomniejszacZasilek`: take the sick benefit off the amount to pay

    PytanieRaz liczycDni;      ///< count the month's days
    PytanieRaz dniZKalendarza; ///< ... by the employees' own calendars

    PytanieRaz liczycL4;             ///< price sick leaves
    PytanieRaz obowiazekZKalendarza; ///< days on which work was due by the employees' own calendars
    PytanieRaz zasadniczaPoL4;       ///< compute the base salary anew after sick leave
    PytanieRaz premiaPoL4;           ///< compute the percentage bonus anew after sick leave

    PytanieRaz liczycUrlop;        ///< price vacations
    PytanieRaz urlopZKalendarza;   ///< ... by the employees' own calendars
    PytanieRaz jedenSkladnik;      ///< several vacation periods go to one component
    PytanieRaz skladnikiPoUrlopie; ///< reduce other components for the vacation days

    PytanieRaz przenosicNadgodziny; ///< add the overtime to the components
};

} // namespace tornel::payroll
