#include "payroll/lista/Przelewy.h"
#include "common/Blad.h"
#include "common/Rozmowa.h"
#include "payroll/lista/KontrolaWierszy.h"
#include "store/Seria.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::PLA;
using schemat::PRACPR;

namespace {

const QString kCaloscNaKonto = QStringLiteral("Całość na konto");

const QString kBezPrzelewu =
    QStringLiteral("Wiersz nie jest policzony, kwota przelewu nie została zmieniona.");

/// Puts `PLA` on the row. Throws `Blad` without it.
void ustawNaWierszu(Sesja& s, const KluczListy& klucz) {
    if (!s.rsPLA.Znajdz(klucz.prcId, klucz.lista)) throw Blad(QStringLiteral("Nie ma go na liście płac."));
}

bool niePoliczony(const Sesja& s, const KontrolaWierszy& kontrola, const KluczListy& klucz) {
    return kontrola.sprawdz(s.rsPLA.biezacyWiersz(), s.rsPLS.szukaj(klucz.prcId, klucz.lista)).niePoliczony;
}

void przelejCalosc(Recordset& pla) {
    pla.ustaw(PLA("PRZELEWEM"), NieMniejNizZero(pla.kwota(PLA("DO_WYPLATY"))));
}

WynikKroku przelejWiersz(Sesja& s, const KontrolaWierszy& kontrola, const KluczListy& klucz) {
    ustawNaWierszu(s, klucz);
    if (!s.rsPRACPR.Znajdz(klucz.prcId))
        throw Blad(QStringLiteral("Nie ma pracownika o numerze %1 w kadrach.").arg(klucz.prcId));
    if (!s.rsPRACPR.flaga(PRACPR("czy_konto"))) return {WynikKroku::Los::Pominiety, {}};
    if (niePoliczony(s, kontrola, klucz)) throw Blad(kBezPrzelewu);
    przelejCalosc(s.rsPLA);
    return {};
}

void wymagajOtwartego(const ListaPlac& lista) {
    if (lista.zablokowany()) throw Blad(QStringLiteral("Miesiąc jest zablokowany i nie można go zmieniać."));
}

} // namespace

bool CaloscNaKonto(Otoczenie& otoczenie, ListaPlac& lista) {
    wymagajOtwartego(lista);
    if (!lista.wiersz()) throw Blad(QStringLiteral("Nie wybrano pracownika z listy płac."));
    Sesja& s = otoczenie.sesja;
    ustawNaWierszu(s, *lista.wiersz());
    if (niePoliczony(s, KontrolaWierszy(lista.pozycje()), *lista.wiersz())) {
        otoczenie.rozmowa.komunikat(kBezPrzelewu, Styl::Wykrzyknik);
        return false;
    }
    przelejCalosc(s.rsPLA);
    s.rsPLA.UpdateBatch(kCaloscNaKonto);
    return true;
}

RaportSerii CaloscNaKontoWszystkich(Otoczenie& otoczenie, ListaPlac& lista,
                                    const QList<KluczListy>& wiersze) {
    wymagajOtwartego(lista);
    Sesja& s = otoczenie.sesja;
    lista.CofnijWiersz();
    const KontrolaWierszy kontrola(lista.pozycje());
    return WykonajSerie(s.cnPlace, otoczenie.rozmowa,
                        {.czynnosc = kCaloscNaKonto + QStringLiteral(": ") + lista.tytul(),
                         .tytul = kCaloscNaKonto,
                         .krok = QStringLiteral("Pracownik nr ")},
                        {.ile = wiersze.size(),
                         .numer = [&](qsizetype i) { return wiersze[i].prcId; },
                         .krok = [&](qsizetype i) { return przelejWiersz(s, kontrola, wiersze[i]); },
                         .zapisz = [&](const Transakcja& akcja) { s.rsPLA.UpdateBatch(akcja); },
                         .cofnij = [&] { s.rsPLA.CancelBatch(); }});
}

} // namespace tornel::payroll
