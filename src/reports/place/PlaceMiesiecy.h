// What the payroll lists of several months paid to whom, each month read once.
#pragma once
#include "common/RokMies.h"
#include "common/Waluta.h"
#include "reports/place/PolaListyPlac.h"
#include <array>
#include <functional>
#include <optional>
#include <QList>
#include <QString>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::reports {

/// First and last month.
struct ZakresMiesiecy {
    RokMies od, dokad;
    /// "Marzec 2001", or "Styczeń 2001 - Marzec 2001".
    [[nodiscard]] QString napis() const;
};

/// Sums in zł of list rows, by their fields; those that are no amounts stay 0.
class SumyPlac {
public:
    [[nodiscard]] Waluta operator[](int pole) const { return kwoty_.at(static_cast<std::size_t>(pole)); }
    /// Throw `Przepelnienie`.
    void dodaj(int pole, Waluta kwota) { kwoty_.at(static_cast<std::size_t>(pole)) += kwota; }
    void dodaj(const SumyPlac& inne) {
        for (std::size_t i = 0; i < kwoty_.size(); ++i) kwoty_[i] += inne.kwoty_[i];
    }

private:
    std::array<Waluta, kPolListyPlac> kwoty_{};
};

/// What somebody got in one or more months.
struct PlacaOsoby {
    qint64 prcId = 0;
    QString nazwisko; ///< with the first name, as the last list read had them
    qint64 wyplat = 0;
    SumyPlac sumy;
};

/// Which rows are read.
struct WyborPlac {
    QString listy; ///< symbols, a character each; empty for all lists
    std::optional<qint64> prcId = {};
};

/// The months of the span that are on the list of months. Reads `PLACE`. Throws `Blad` when a table of one is
/// missing.
[[nodiscard]] QList<RokMies> MiesiaceZakresu(Sesja& sesja, const ZakresMiesiecy& okres);

/// Adds the rows of the month to the sums that `osoba` gives for an employee's number. Reads `PLA`, `PLB`,
/// `PLS` of the month once, through the index where one employee is wanted. Throws `BladBazy`, and
/// `UszkodzonaWartosc` for a damaged row.
void DoliczMiesiac(Sesja& sesja, RokMies miesiac, const WyborPlac& wybor,
                   const std::function<PlacaOsoby&(qint64 prcId)>& osoba);

} // namespace tornel::reports
