// Sick pay: the month's sick leaves priced into the payroll row, split between the employer and the insurer.
#pragma once
#include "common/Rozmowa.h"
#include "payroll/lista/Warsztat.h"

namespace tornel::payroll {

/// Sick days from the start of the year to the day before the open month, of leaves that
/// `DaneNieobecnosci::zwolnieniaRoku` gave. A leave that began in the year before counts whole.
[[nodiscard]] int IleDotDniL4(Nieobecnosci zwolnienia, int rok, int mies);

/// The averages of the months before the open one, zł.
struct SrednieL4 {
    QList<LiniaWykazu> miesiace; ///< the latest first
    Waluta SredniaBrutto;        ///< before contributions
    Waluta SredniaNetto;         ///< after the employee's contributions
};

class WynagrodzenieL4 {
public:
    explicit WynagrodzenieL4(Warsztat& warsztat) : w_(warsztat) {}

    /// Fills the row on which the month's handles stand, in memory: the amounts and periods of the components
    /// of constants 104 and 105, base salary and bonus if the clerk wants it, the average and the days. Gives
    /// the sick benefit, zł: what the insurer pays. Reads `ZW`, `KALENDARZ`, `PRACPR` and the earlier months;
    /// changes `PLA`, `PLS`, `PLD`. Throws `Blad` when the base salary cannot be divided by the days due.
    [[nodiscard]] Waluta WyliczL4(Tryb tryb);

    /// `ile` months, at most 12; one without a row counts too. None or fewer gives zeros.
    [[nodiscard]] SrednieL4 SredniaDoL4(qint64 prcId, int ile);

private:
    struct Rozliczenie {
        int dniMies = 0; ///< days of the leaves priced
        int dniZUS = 0;  ///< of them, days that the insurer pays
        Waluta zasilek;  ///< zł
    };

    [[nodiscard]] SrednieL4 srednie(qint64 prcId, Tryb tryb);
    [[nodiscard]] Rozliczenie rozlicz(Nieobecnosci zwolnienia, int uzyte, Waluta dzienna, Tryb tryb);
    void wpiszSkladnik(int nr, Waluta kwota, QDate od, QDate dokad, Tryb tryb);
    void przeliczPlace(const SrednieL4& srednie, int dniMies, int dniObowiazku, Tryb tryb);
    [[nodiscard]] Waluta zasadniczaPoL4(const SrednieL4& srednie, int dniMies, int dniObowiazku) const;
    [[nodiscard]] Waluta poSkladkach(Waluta brutto) const;

    Warsztat& w_;
};

} // namespace tornel::payroll
