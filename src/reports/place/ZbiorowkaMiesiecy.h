// The payroll of a month or of several: by employee, by department and whole.
#pragma once
#include "druk/Uklad.h"
#include "reports/place/PlaceMiesiecy.h"
#include "rules/Otoczenie.h"
#include <optional>
#include <QDate>
#include <QStringList>

namespace tornel::reports {

struct WarunkiZbiorowki {
    ZakresMiesiecy okres;
    QString listy;                          ///< symbols, a character each; empty for all lists
    std::optional<QStringList> dzialy = {}; ///< nothing for all departments
};

/// An employee's sums. Whoever has left the personnel file stands in no department.
struct PozycjaZbiorowki {
    QString dzial;
    QString osoba;
    PlacaOsoby placa;
};

/// By department, surname and number. Reads `PLACE`, the months' `PLA`, `PLB`, `PLS`, and `PRACDP`, `PRACPR`.
/// Throws `Blad` when the span has no month.
[[nodiscard]] QList<PozycjaZbiorowki> PozycjeZbiorowki(Otoczenie& otoczenie, const WarunkiZbiorowki& warunki);

/// The print: a sheet of the main amounts, one of the contributions, and as many of the components as the
/// months use, side by side. `dzien` is the day of printing. Throws as `PozycjeZbiorowki`.
[[nodiscard]] std::shared_ptr<const Uklad>
UlozZbiorowkeMiesiecy(Otoczenie& otoczenie, const WarunkiZbiorowki& warunki, QDate dzien);

} // namespace tornel::reports
