#include "payroll/lista/SumyListy.h"
#include "common/Blad.h"

namespace tornel::payroll {

using schemat::PLA;
using schemat::PLB;

namespace {

KwotyWiersza kwotyWiersza(const Recordset& pla, const KluczListy& klucz) {
    const auto w = pla.szukaj(klucz.prcId, klucz.lista);
    if (!w) return {};
    return {w->kwota(PLA("BRUTTO")), w->kwota(PLA("DO_WYPLATY"))};
}

} // namespace

void SumyListy::wczytaj(const Recordset& pla, const QList<LiniaListy>& linie) {
    wiersze_.clear();
    wiersze_.reserve(static_cast<std::size_t>(linie.size()));
    for (const LiniaListy& l : linie) wiersze_.push_back(kwotyWiersza(pla, l.klucz));
    razem_.emplace();
    try {
        for (const KwotyWiersza& w : wiersze_) {
            razem_->brutto += w.brutto;
            razem_->doWyplaty += w.doWyplaty;
        }
    } catch (const Przepelnienie&) {
        razem_.reset();
    }
}

void SumyListy::odswiez(qsizetype i, const Recordset& pla, const KluczListy& klucz) {
    KwotyWiersza& wiersz = wiersze_.at(static_cast<std::size_t>(i));
    const KwotyWiersza bylo = wiersz;
    wiersz = kwotyWiersza(pla, klucz);
    if (!razem_) return;
    try {
        razem_->brutto += wiersz.brutto - bylo.brutto;
        razem_->doWyplaty += wiersz.doWyplaty - bylo.doWyplaty;
    } catch (const Przepelnienie&) {
        razem_.reset();
    }
}

DrogaWyplaty PoliczDroge(const store::Wiersz& pla, const std::optional<store::Wiersz>& plb) {
    DrogaWyplaty d;
    if (plb) d.skladki = plb->kwota(PLB("FEPRC")) + plb->kwota(PLB("FRPRC")) + plb->kwota(PLB("FCPRC"));
    const Waluta zaliczka = NieMniejNizZero(pla.kwota(PLA("POD_DOCH")) - pla.kwota(PLA("PPD")));
    d.poPodatku = pla.kwota(PLA("BRUTTO")) - d.skladki - zaliczka;
    d.pozostale = pla.kwota(PLA("DO_WYPLATY")) -
                  (d.poPodatku + pla.kwota(PLA("DODATKI")) - pla.kwota(PLA("POTRACENIA")));
    return d;
}

} // namespace tornel::payroll
