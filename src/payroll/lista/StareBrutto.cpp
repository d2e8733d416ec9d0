#include "payroll/lista/StareBrutto.h"
#include "payroll/miesiace/Miesiace.h"
#include "store/SchematDokumentow.h"
#include "store/SchematPlac.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::PLA;
using schemat::UZL;

StareBrutto::StareBrutto(Sesja& sesja) : sesja_(sesja) {
    for (RokMies m{sesja.rok(), 1}; m < sesja.miesiac(); ++m.mies)
        if (JestMiesiac(sesja, m, {"PLA"})) tabele_.append(Sesja::nazwaMiesiaca("PLA", m));
}

void StareBrutto::wczytajWszystkich() {
    wszystkie_.emplace();
    PrzygotowaneZapytanie zapytanie(sesja_.cnPlace,
                                    Zapytanie(PLA).kolumny(PLA("PRC_ID"), PLA("BRUTTO")).zTabel(tabele_));
    for (auto wiersze = zapytanie.uruchom(); wiersze.nastepny();)
        wszystkie_->dopisz(wiersze, PLA("PRC_ID"),
                           [&](Wiersz& w) { w.brutto = wiersze.kwota(PLA("BRUTTO")); });
    wszystkie_->uloz();
}

Waluta StareBrutto::zListPlac(qint64 prcId) {
    if (wszystkie_) {
        SumaKwot suma;
        for (const Wiersz& w : wszystkie_->pracownika(prcId)) suma.dodaj(w.brutto);
        return suma.kwota();
    }
    if (!listy_)
        listy_.emplace(
            sesja_.cnPlace,
            Zapytanie(PLA).kolumny(PLA("BRUTTO")).zTabel(tabele_).gdzie(PLA("PRC_ID") == Parametr{0}));
    // Added one by one: the engine would quietly turn a sum out of range into a fraction.
    SumaKwot suma;
    for (auto wiersze = listy_->uruchom(prcId); wiersze.nastepny();) suma.dodaj(wiersze.kwota(PLA("BRUTTO")));
    return suma.kwota();
}

Waluta StareBrutto::zUmow(qint64 prcId) {
    if (!umowy_)
        umowy_.emplace(sesja_.cnPlace, Zapytanie(UZL)
                                           .oraz(schemat::UOD)
                                           .oraz(schemat::HON)
                                           .kolumny(UZL("data_wyp"), UZL("Brutto"))
                                           .gdzie(UZL("prc_id") == Parametr{0}));
    const QDate od = RokMies{sesja_.rok(), 1}.pierwszyDzien(), dokad = sesja_.miesiac().ostatniDzien();
    SumaKwot suma;
    for (auto umowy = umowy_->uruchom(prcId); umowy.nastepny();)
        if (const QDate wyplata = umowy.data(UZL("data_wyp"));
            wyplata.isValid() && wyplata >= od && wyplata <= dokad)
            suma.dodaj(umowy.kwota(UZL("Brutto")));
    return suma.kwota();
}

} // namespace tornel::payroll
