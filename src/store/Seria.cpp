#include "store/Seria.h"
#include "common/Blad.h"
#include "common/Rozmowa.h"
#include "store/Polaczenie.h"

namespace tornel::store {

namespace {

void wykonajKrok(const CzynnosciSerii& c, qsizetype i, const Transakcja& akcja, RaportSerii& raport) {
    const qint64 numer = c.numer(i);
    WynikKroku wynik;
    try {
        wynik = c.krok(i);
    } catch (const BladBazy&) {
        throw; // the file itself fails: nothing of the batch may stay
    } catch (const Blad& blad) {
        c.cofnij();
        raport.niepowodzenia.append({numer, blad.komunikat()});
        return;
    }
    ++(wynik.los == WynikKroku::Los::Wykonany ? raport.wykonane : raport.pominiete);
    raport.dodajUwagi(numer, wynik.uwagi);
    c.zapisz(akcja);
}

} // namespace

RaportSerii WykonajSerie(Polaczenie& polaczenie, Rozmowa& rozmowa, const NapisySerii& napisy,
                         const CzynnosciSerii& czynnosci) {
    RaportSerii raport;
    raport.podmiot = napisy.podmiot;
    const auto postep = rozmowa.postep(napisy.tytul, static_cast<int>(czynnosci.ile));
    Transakcja transakcja(polaczenie, napisy.czynnosc);
    for (qsizetype i = 0; i < czynnosci.ile; ++i) {
        raport.przerwana =
            !postep->krok(static_cast<int>(i) + 1, napisy.krok + QString::number(czynnosci.numer(i)));
        if (raport.przerwana) break;
        wykonajKrok(czynnosci, i, transakcja, raport);
    }
    if (czynnosci.zakoncz) czynnosci.zakoncz(transakcja);
    transakcja.zatwierdz();
    return raport;
}

} // namespace tornel::store
