// What an employee earned in the year before the open month, read through the file's indexes.
#pragma once
#include "payroll/lista/SumaKwot.h"
#include "payroll/lista/WgPracownika.h"
#include "store/Zapytanie.h"
#include <optional>
#include <QStringList>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::payroll {

/// Look-ups for one open month. The queries are made ready once and serve every employee of the list.
class StareBrutto {
public:
    /// For the month open in `sesja`. Reads `PLACE` (its position is kept). Throws `Blad` when an earlier
    /// month stands on the list and its table is missing.
    explicit StareBrutto(Sesja& sesja);

    /// From now on the lists' gross comes from memory, read once for all employees: for a batch over most of
    /// them. Reads the tables `PLA` of the earlier months.
    void wczytajWszystkich();

    /// `BRUTTO` in zł of all rows of the employee, on every list, in the months of the year before the open
    /// one. Reads the tables `PLA` of those months. Throws `Przepelnienie`.
    [[nodiscard]] Waluta zListPlac(qint64 prcId);
    /// Brutto in zł of the employee's contracts paid from 1 January to the last day of the open month. Reads
    /// `UZL`, `UOD`, `HON`.
    [[nodiscard]] Waluta zUmow(qint64 prcId);

private:
    struct Wiersz {
        qint64 prcId = 0;
        Waluta brutto;
    };

    Sesja& sesja_;
    QStringList tabele_; // PLA of the year's earlier months
    std::optional<PrzygotowaneZapytanie> listy_;
    std::optional<WgPracownika<Wiersz>> wszystkie_;
    std::optional<PrzygotowaneZapytanie> umowy_;
};

} // namespace tornel::payroll
