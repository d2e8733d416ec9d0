// What the papers of an employment have in common: who the parties are, where and when, the words that go by
// the employee's sex.
#pragma once
#include "personnel/UmowyOPrace.h"
#include "reports/Firma.h"
#include "reports/kadry/DaneOsoby.h"
#include "reports/umowy/Pismo.h"

namespace tornel::reports {

struct StronyUmowy {
    /// Reads `UMOP` and the personnel file. Throws `Blad` for an unknown contract or employee.
    StronyUmowy(Otoczenie& otoczenie, qint64 id);

    Otoczenie& o;
    UmowyOPrace umowy;
    UmowaOPrace wybrana; ///< the row that was chosen
    UmowaOPrace umowa;   ///< the contract that it belongs to
    DaneOsoby osoba;

    /// Throws `Blad` with the reason why the chosen row has no such paper.
    void wymagajPisma(PismoOPrace pismo) const;
    /// One of the two forms of a word.
    [[nodiscard]] QString forma(QStringView meska, QStringView zenska) const {
        return (osoba.kobieta ? zenska : meska).toString();
    }
    [[nodiscard]] QString imieNazwisko() const;
    /// "umowę o pracę na czas określony nr 3/2000, zawartą w dniu 01-10-2000".
    [[nodiscard]] QString opisUmowy() const;
    /// "Zakład produkcyjny, Fabryczna 4, 26-610 Radom"; the employer's address without a workplace.
    [[nodiscard]] QString miejscePracy() const;

    /// Name, address, NIP and REGON of the employer, a line each.
    void pracodawca(PismoDoPodpisu& p) const;
    /// Name and address of the employee as those of whom the paper goes to, at the right.
    void adresat(PismoDoPodpisu& p) const;
    /// "Radom, dnia 05-03-2001"; dots for no date.
    void miejsceIData(PismoDoPodpisu& p, QDate dzien) const;
};

/// "1650,00 zł (słownie: ...)".
[[nodiscard]] QString KwotaZeSlowami(Waluta kwota);
/// A dotted line of so many dots, for what is written by hand.
[[nodiscard]] QString MiejsceNaWpis(int kropek);

} // namespace tornel::reports
