// The components of a payroll row: filled from the personnel file, with overtime, sick pay and vacation pay.
#pragma once
#include "payroll/lista/MiesiacPlac.h"
#include "payroll/lista/PytaniaListy.h"
#include "payroll/lista/WierszPlac.h"
#include "payroll/nadgodziny/PrzenoszenieNadgodzin.h"
#include "payroll/nieobecnosci/WynagrodzenieL4.h"
#include "payroll/nieobecnosci/WynagrodzenieUrlop.h"

namespace tornel::payroll {

/// The active components and their periods anew by the employee; those out of use stay.
[[nodiscard]] SkladnikiWiersza WypelnijSkladniki(const MiesiacPlac& miesiac, SkladnikiWiersza skladniki,
                                                 const DanePracownika& pracownik);
/// The period of an amount: the month, from the contract's first day on; none without an amount.
void WypelnijOkres(const MiesiacPlac& miesiac, SkladnikiWiersza& skladniki, int i,
                   const DanePracownika& pracownik);

/// What `Przelicz2` reads of the registers. Nothing stands for none of the kind, or not wanted.
struct DaneSkladnikow {
    std::optional<WgGrup<Waluta>> nadgodziny;
    std::optional<DaneL4> l4;
    std::optional<DaneUrlopu> urlop;
};

struct WynikSkladnikow {
    WierszPlac wiersz;
    Waluta ZasilekChorobowy; ///< what the insurer pays, zł
    ListaUwag uwagi;
};

/// Refills the components, adds the overtime and prices sick leaves and vacations. Throws `Blad` where a
/// division by zero days would be due, `Przepelnienie`.
[[nodiscard]] WynikSkladnikow Przelicz2(const MiesiacPlac& miesiac, const WierszPlac& wiersz,
                                        const DanePracownika& pracownik, const DaneSkladnikow& dane,
                                        const Odpowiedzi& odpowiedzi);

/// The row of an employee who comes onto the list, with his rates and components, its days not yet counted.
[[nodiscard]] WierszPlac NowyWiersz(const MiesiacPlac& miesiac, const KluczListy& klucz,
                                    const DanePracownika& pracownik, const Odpowiedzi& odpowiedzi);
} // namespace tornel::payroll
