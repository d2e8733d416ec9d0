// The register of sick leaves (`ZW`).
#pragma once
#include "common/Waluta.h"
#include "personnel/RejestrNieobecnosci.h"

namespace tornel::personnel {

struct NoweZwolnienie {
    qint64 prcId = 0;
    ZakresDat zakres;
    std::optional<Waluta> procent = {}; ///< of the average; constant 100 if not given
};

class RejestrZwolnien final : public RejestrNieobecnosci {
public:
    explicit RejestrZwolnien(Otoczenie& otoczenie);

    /// Refuses a range with a day of another leave of the employee, and adds the row. Gives its id, nothing
    /// when it is refused. Reads `PRACDP`.
    std::optional<qint64> Zarejestruj(const NoweZwolnienie& zwolnienie);
    /// Calendar days of the row taken up, 0 without dates.
    [[nodiscard]] qint64 CzasTrwania() const;
};

} // namespace tornel::personnel
