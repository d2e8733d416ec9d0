#include "payroll/Warsztat.h"

void Warsztat::uwaga(Tryb tryb, const QString& tekst, Styl styl) {
    if (tryb == Tryb::Seria)
        uwagi.append(tekst);
    else
        o.rozmowa.komunikat(tekst, styl);
}
