// What a payroll list comes to: gross and amount to pay of each of its rows, and the totals.
#pragma once
#include "payroll/lista/ListaPlac.h"
#include "store/Recordset.h"
#include <optional>
#include <vector>

namespace tornel::payroll {

/// zł.
struct KwotyWiersza {
    Waluta brutto, doWyplaty;
};

class SumyListy {
public:
    /// Takes the rows of the list as `pla` has them; one that it lacks counts as zeros.
    void wczytaj(const Recordset& pla, const QList<LiniaListy>& linie);
    /// The row at place `i` was changed: costs the same however long the list is.
    void odswiez(qsizetype i, const Recordset& pla, const KluczListy& klucz);
    [[nodiscard]] const KwotyWiersza& wiersz(qsizetype i) const {
        return wiersze_.at(static_cast<std::size_t>(i));
    }
    /// Nothing when the totals leave the range of money.
    [[nodiscard]] const std::optional<KwotyWiersza>& razem() const { return razem_; }

private:
    std::vector<KwotyWiersza> wiersze_;
    std::optional<KwotyWiersza> razem_;
};

/// What stands between the columns of a row on the way from its gross to the amount to pay, zł.
struct DrogaWyplaty {
    Waluta skladki;   ///< the three funds together
    Waluta poPodatku; ///< gross less contributions and the advance before the health deduction
    /// What neither additions nor deductions explain: a sick benefit taken off, the pension plan, rounding.
    Waluta pozostale;
};
/// Of a row of `PLA` with that of `PLB`. Throws `Przepelnienie`.
[[nodiscard]] DrogaWyplaty PoliczDroge(const store::Wiersz& pla, const std::optional<store::Wiersz>& plb);

} // namespace tornel::payroll
