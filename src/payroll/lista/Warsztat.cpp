#include "payroll/lista/Warsztat.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::PLA;

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

void Warsztat::wpisz(int nr, Waluta kwota, QDate od, QDate dokad) {
    o.sesja.rsPLS.ustaw(schemat::SP(nr), kwota);
    o.sesja.rsPLD.ustaw(schemat::SOD(nr), od);
    o.sesja.rsPLD.ustaw(schemat::SDO(nr), dokad);
}

qint64 Warsztat::dniPrzepracowane() const {
    const Recordset& a = o.sesja.rsPLA;
    return a.liczba(PLA("DN_RO")) + a.liczba(PLA("DN_SO")) + a.liczba(PLA("DN_NI"));
}

void Warsztat::uwaga(Tryb tryb, const QString& tekst, Styl styl) {
    if (tryb == Tryb::Seria)
        uwagi.append(tekst);
    else
        o.rozmowa.komunikat(tekst, styl);
}

} // namespace tornel::payroll
