#include "payroll/lista/SumyMiesiaca.h"
#include "common/Blad.h"
#include "store/Sesja.h"
#include <iterator>

namespace tornel::payroll {

using schemat::PLA;
using schemat::PLACE;
using schemat::PLB;

namespace {

/// A sum of the header: the column of a row, less another one where it has a second.
struct SumaNaglowka {
    Kolumna suma;
    Kolumna kolumna;
    Kolumna odejmowana = {};
};

constexpr SumaNaglowka kSumy[] = {
    {PLACE("sum_brutto"), PLA("BRUTTO")},
    {PLACE("sum_podat"), PLA("PODATEK")},
    {PLACE("sum_netto"), PLA("NETTO")},
    {PLACE("sum_fp"), PLA("SKL_FP")},
    {PLACE("sum_fgsp"), PLA("SKL_FGSP")},
    {PLACE("sum_kup"), PLA("KUP")},
    {PLACE("sum_ppd"), PLA("PPD")},
    {PLACE("do_wyplaty"), PLA("DO_WYPLATY")},
    {PLACE("sum_inne"), PLA("DODATKI"), PLA("POTRACENIA")},
    {PLACE("sum_feprd"), PLB("FEPRD")},
    {PLACE("sum_frprd"), PLB("FRPRD")},
    {PLACE("sum_feprc"), PLB("FEPRC")},
    {PLACE("sum_frprc"), PLB("FRPRC")},
    {PLACE("sum_fc"), PLB("FCPRC")},
    {PLACE("sum_fw"), PLB("FWPRD")},
    {PLACE("sum_ubzdr"), PLB("UBZDR")},
};

} // namespace

SumyMiesiaca::Sumy SumyMiesiaca::sumaWierszy() const {
    static_assert(std::size(kSumy) == kKwot);
    Sumy sumy;
    for (const Wiersz a : sesja_.rsPLA.wiersze()) {
        const auto b = sesja_.rsPLB.szukaj(a.liczba(PLA("PRC_ID")), a.tekst(PLA("LISTA")));
        for (std::size_t i = 0; i < kKwot; ++i) {
            const SumaNaglowka& s = kSumy[i];
            if (s.kolumna.tabela == &PLA)
                sumy.kwoty[i] += a.kwota(s.kolumna);
            else if (b)
                sumy.kwoty[i] += b->kwota(s.kolumna);
            if (s.odejmowana.tabela) sumy.kwoty[i] -= a.kwota(s.odejmowana);
        }
        ++sumy.wierszy;
    }
    return sumy;
}

SumyMiesiaca::Sumy SumyMiesiaca::zeZmianami(Sumy sumy) const {
    const Recordset &a = sesja_.rsPLA, &b = sesja_.rsPLB;
    for (std::size_t i = 0; i < kKwot; ++i) {
        const SumaNaglowka& s = kSumy[i];
        sumy.kwoty[i] += (s.kolumna.tabela == &PLA ? a : b).przyrost(s.kolumna);
        if (s.odejmowana.tabela) sumy.kwoty[i] -= a.przyrost(s.odejmowana);
    }
    sumy.wierszy += a.przyrostWierszy();
    return sumy;
}

void SumyMiesiaca::policz() {
    try {
        sumy_ = sumaWierszy();
    } catch (const Przepelnienie&) {
        sumy_.reset(); // `zapisz` tells
    }
}

void SumyMiesiaca::dolicz() {
    if (!sumy_) return policz(); // the changes are among the rows already
    try {
        sumy_ = zeZmianami(*sumy_);
    } catch (const Przepelnienie&) {
        sumy_.reset();
    }
}

bool SumyMiesiaca::zapisz(const Transakcja& akcja) {
    if (!sumy_) policz();
    if (!sumy_) return false;
    Recordset& place = sesja_.rsPLACE;
    if (!sesja_.ZnajdzMiesiac(miesiac_)) return true;
    for (std::size_t i = 0; i < kKwot; ++i) place.ustaw(kSumy[i].suma, sumy_->kwoty[i]);
    place.ustaw(PLACE("il_wyplat"), sumy_->wierszy);
    place.UpdateBatch(akcja);
    return true;
}

} // namespace tornel::payroll
