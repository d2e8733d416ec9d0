// The register of vacations and other breaks (`URL`).
#pragma once
#include "common/Waluta.h"
#include "personnel/RejestrNieobecnosci.h"
#include <span>

namespace tornel::personnel {

class DniKalendarza;

/// `Rodzaj` as the table stores it: the position in the list of kinds.
enum class RodzajUrlopu {
    Wypoczynkowy,
    Bezplatny,
    Okolicznosciowy,
    Inny,
    Wychowawczy,
    OpiekaNadDzieckiem,
    InnaPrzerwa,
};

/// The kinds in the words of the list, by position.
[[nodiscard]] std::span<const QStringView> RodzajeUrlopu();
/// The words of a stored kind, empty for one that the list lacks.
[[nodiscard]] QString NazwaRodzaju(qint64 rodzaj);

struct NowyUrlop {
    qint64 prcId = 0;
    ZakresDat zakres;
    RodzajUrlopu rodzaj = RodzajUrlopu::Wypoczynkowy;
    Waluta kwota = {}; ///< zł; rounded to grosze
};

class RejestrUrlopow final : public RejestrNieobecnosci {
public:
    explicit RejestrUrlopow(Otoczenie& otoczenie);

    /// Refuses a range with a day of another vacation of the employee, asks whether and from which calendar
    /// to work out the length, and adds the row. Warns when vacation days go beyond those due; the row stays.
    /// Gives the new row's id, nothing when it is refused. Reads `KALENDARZ`, `PRACDP`, `PRACPR`.
    std::optional<qint64> Zarejestruj(const NowyUrlop& urlop);
    /// Also warns when the changed row brings the vacation days beyond those due.
    void Wpisz() override;

    /// The vacation days of the employee's entitlement: this year's and those left over. Reads `PRACPR`.
    [[nodiscard]] qint64 PrzyslugujeDni(qint64 prcId) const;
    /// The days of vacation proper that begin in the year.
    [[nodiscard]] qint64 WykorzystaneDni(qint64 prcId, int rok) const;

private:
    /// Asks, and gives the length in days; 0 where the clerk or the calendar does not tell it.
    [[nodiscard]] qint64 wyliczDlugosc(qint64 prcId, const ZakresDat& zakres) const;
    void ostrzezOPrzekroczeniu(qint64 prcId, int rok) const;
};

} // namespace tornel::personnel
