// The attendance card: what each day of a year was to an employee, from the calendars and the registers of
// absence.
#pragma once
#include "personnel/DniKalendarza.h"
#include "rules/Otoczenie.h"
#include "store/Zapytanie.h"
#include <array>
#include <map>
#include <optional>
#include <QString>

namespace tornel::personnel {

/// In the order of the symbols, constants 210 to 219. The kinds of vacations follow `RodzajUrlopu`.
enum class DzienPracy : signed char {
    Brak = -1, ///< the month has no such day, or he was not employed
    Roboczy,
    Wolny,
    L4,
    Wypoczynkowy,
    Bezplatny,
    Okolicznosciowy,
    Inny,
    Wychowawczy,
    Opieka,
    InnaPrzerwa,
};
inline constexpr int kRodzajowDni = 10;

/// What the legend calls the kind; empty for `Brak`.
[[nodiscard]] QString NazwaDniaPracy(DzienPracy rodzaj);
/// The heading of its sum.
[[nodiscard]] QString SkrotDniaPracy(DzienPracy rodzaj);
/// Its symbol by the constants, "-" for `Brak`.
[[nodiscard]] QString SymbolDnia(const Stale& stale, DzienPracy rodzaj);

struct MiesiacEwidencji {
    std::array<DzienPracy, 31> dni{}; ///< beginning with day 1

    [[nodiscard]] int ile(DzienPracy rodzaj) const;
};

struct KartaRoku {
    qint64 prcId = 0;
    int rok = 0;
    std::array<MiesiacEwidencji, 12> miesiace{}; ///< beginning with January

    [[nodiscard]] const MiesiacEwidencji& miesiac(int mies) const {
        return miesiace.at(static_cast<std::size_t>(mies - 1));
    }
    [[nodiscard]] int ile(DzienPracy rodzaj) const;
};

/// Cards of one year, employee by employee through the file's indexes.
class EwidencjaCzasuPracy {
public:
    EwidencjaCzasuPracy(Otoczenie& otoczenie, int rok);

    /// As payroll counts days: a sick leave goes before a free day, which goes before any other absence; a
    /// later one of a register overwrites an earlier one. The employee's own calendar if constant 201 is on
    /// and he has the month, else the general one; without either the Saturdays and Sundays are free. Reads
    /// `KALENDARZ`, `URL`, `ZW`, `PRACPR`. Throws `BladBazy`, and `UszkodzonaWartosc` for a damaged row.
    [[nodiscard]] KartaRoku karta(qint64 prcId);

private:
    using Kalendarze = std::map<int, DniKalendarza>; // by month
    [[nodiscard]] Kalendarze kalendarze(qint64 prcId);

    Otoczenie& o_;
    int rok_;
    PrzygotowaneZapytanie dni_, urlopy_, zwolnienia_;
    Kalendarze ogolny_;
};

} // namespace tornel::personnel
