// The answers that a batch remembers: each question is asked at the first row that needs it.
#pragma once
#include "common/Rozmowa.h"

struct OdpowiedziSerii {
    PytanieRaz iloscZasilkow;      ///< copy the counts of family, nursing and childcare benefits
    PytanieRaz pomniejszacZasilek; ///< `PomniejszacZasilek`: take the sick benefit off the amount to pay
};
