// The way of the month's overtime from its own lists to the payroll row.
#pragma once
#include "payroll/lista/MiesiacPlac.h"
#include "payroll/lista/Uwagi.h"
#include "payroll/lista/WierszPlac.h"
#include "payroll/nadgodziny/KolumnyNadgodzin.h"
#include "store/Zapytanie.h"
#include <optional>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::payroll {

/// The month's overtime by employee.
class NadgodzinyMiesiaca {
public:
    /// For the month open in `sesja`. Its list is looked up when it is first asked for.
    explicit NadgodzinyMiesiaca(Sesja& sesja);
    ~NadgodzinyMiesiaca();

    /// Forgets which overtime list is open.
    void zapomnij();
    /// The employee's seven amounts, zł; nothing when he has no overtime in the month. Reads `NADG`, `NADGN`
    /// of the month. Throws `Blad` when the month's overtime table is missing.
    [[nodiscard]] std::optional<WgGrup<Waluta>> pracownika(qint64 prcId);

private:
    Sesja& sesja_;
    bool sprawdzone_ = false;
    std::optional<PrzygotowaneZapytanie> lista_; // none when the month has no overtime list
};

struct ZNadgodzinami {
    SkladnikiWiersza skladniki;
    QList<int> zmienione; ///< components that took an amount; their periods are due
    ListaUwag uwagi;
};

/// Adds the amounts to the components of constant 252.
[[nodiscard]] ZNadgodzinami PrzeniesNadgodziny(const MiesiacPlac& miesiac, const SkladnikiWiersza& skladniki,
                                               const WgGrup<Waluta>& kwoty);

} // namespace tornel::payroll
