// The days of the month by kind: work, Saturdays, Sundays, vacation, sickness, other free days.
#pragma once
#include "common/Rozmowa.h"
#include <array>
#include <optional>
#include <QtGlobal>

namespace tornel::personnel {
class DniKalendarza;
} // namespace tornel::personnel

namespace tornel::payroll {

struct Warsztat;

/// Work counters of a row, in days.
struct LicznikiDni {
    int Dnirob = 0;
    int Soboty = 0;
    int Niedziele = 0;
    int Czasnaurl = 0;           ///< on any vacation
    int Czasnl4 = 0;             ///< sick
    int Innewolne = 0;           ///< other free days
    std::array<int, 7> urlopy{}; ///< by kind of vacation
};

class LiczenieDni {
public:
    explicit LiczenieDni(Warsztat& warsztat) : w_(warsztat) {}

    /// Counts the days of the row on which the month's handles stand and sets them there, in memory. The row
    /// stays as it was when counting is off or refused, when a vacation and a sick leave share a day, and
    /// when there is no calendar at all; a calendar without the month gives zeros. Reads `URL`, `ZW`,
    /// `KALENDARZ`; changes `PLA`, `PLB`.
    void Przelicz_Dni(Tryb tryb);

    /// Days of the open month on which work was due: not free in the employee's own calendar (`wlasny`, if he
    /// has the month) or the general one; Monday to Friday where no calendar has the month.
    enum class CzyjKalendarz { Ogolny, Wlasny };
    [[nodiscard]] int DniObowiazkuPracy(qint64 prcId, CzyjKalendarz czyj);

private:
    [[nodiscard]] std::optional<LicznikiDni> policz(qint64 prcId, Tryb tryb);
    [[nodiscard]] std::optional<DniKalendarza> kalendarzMiesiaca(qint64 prcId, CzyjKalendarz czyj, Tryb tryb);
    void WpiszDni(const LicznikiDni& dni);

    Warsztat& w_;
};

} // namespace tornel::payroll
