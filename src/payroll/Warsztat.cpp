#include "payroll/Warsztat.h"

void Warsztat::zapomnij(Odczyt nowy) {
    odczyt = nowy;
    uwagi.clear();
    dane.zapomnij(nowy);
    podstawyZnane.reset();
}

PodstawySrednich& Warsztat::podstawy() {
    if (!podstawyZnane) podstawyZnane = std::make_unique<PodstawySrednich>(o.sesja, o.stale, odczyt);
    return *podstawyZnane;
}

void Warsztat::uwaga(Tryb tryb, const QString& tekst, Styl styl) {
    if (tryb == Tryb::Seria)
        uwagi.append(tekst);
    else
        o.rozmowa.komunikat(tekst, styl);
}
