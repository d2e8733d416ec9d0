// The payroll months: their list, making, deleting and blocking them, and their summary.
#pragma once
#include "common/RokMies.h"
#include "rules/Otoczenie.h"
#include <functional>
#include <initializer_list>
#include <optional>
#include <QList>
#include <QString>
#include <string_view>

namespace tornel::payroll {

/// One line of the list of months.
struct WierszMiesiaca {
    RokMies miesiac;
    bool zablokowany = false;
};

/// Throws `Blad` that names the table when the file lacks it, though a header says that it is there.
void WymagajTabeli(Sesja& sesja, const QString& nazwa);
/// Whether the month is on the list. Reads `PLACE`, whose position is kept. Throws `Blad` when one of its
/// tables
/// (`PLA`, ...) is missing.
[[nodiscard]] bool JestMiesiac(Sesja& sesja, RokMies miesiac, std::initializer_list<std::string_view> tabele);

/// Asks the clerk for a month; nothing when cancelled.
using WyborMiesiaca = std::function<std::optional<RokMies>()>;

class Miesiace {
public:
    /// Opens the three month headers anew.
    explicit Miesiace(Otoczenie& otoczenie);

    /// All months in the order "ROK, MIES". Reads `PLACE`.
    [[nodiscard]] QList<WierszMiesiaca> Wczytaj_liste() const;
    /// Moves the three headers to the month. False when one of them lacks it.
    bool Ustaw(RokMies miesiac);

    /// Asks whether and which, then makes the header rows and the four month tables, in one action. Nothing
    /// when the clerk refuses or, after a message, when the month exists. Reads `SZ_PL`; writes `PLACE`,
    /// `PLACEN`, `PLACEK`.
    std::optional<RokMies> Nowy_miesiac(const WyborMiesiaca& wybor);
    /// Asks and drops the month with its four tables. False on No, or after a message for a blocked month.
    /// Throws `Blad` for an unknown month.
    bool Usun_miesiac(RokMies miesiac);
    /// Blocks an open month (with the question whether to keep today's catalogue in it) or opens a blocked
    /// one. Rows that need attention are told and need a Yes of their own. False on No. Throws `Blad` for an
    /// unknown month.
    bool BlokadaMies(RokMies miesiac);
    /// Which rows of the month need attention, or what keeps them from being looked at; empty if all is well.
    /// Reads `PLACE`, `PLA`, `PLS`.
    [[nodiscard]] QString doUwagi(RokMies miesiac) const;
    /// Stores the month's note.
    void ZapiszOpis(RokMies miesiac, const QString& opis);

private:
    void wymagaj(RokMies miesiac);
    void ZapiszAktualneDane();
    void dodajNaglowki(RokMies miesiac);

    Otoczenie& o_;
};

} // namespace tornel::payroll
