// The overtime lists by month: their list, making and deleting them.
#pragma once
#include "payroll/miesiace/Miesiace.h"
#include "rules/Otoczenie.h"
#include <optional>
#include <QList>

namespace tornel::payroll {

class Nadgodziny {
public:
    /// Opens the header of the overtime months anew, in the order "ROK, MIES".
    explicit Nadgodziny(Otoczenie& otoczenie);

    /// All overtime months in the order "ROK, MIES". Reads `NADG`.
    [[nodiscard]] QList<RokMies> WczytajListe() const;

    /// Asks whether and which, then makes the header row with today's equations (constants 254 to 257) and
    /// the two month tables, in one action. Nothing when the clerk refuses or, after a message, when the
    /// month exists. Writes `NADG`. Throws `Blad` for a month that no calendar has.
    std::optional<RokMies> NowaLista(const WyborMiesiaca& wybor);
    /// Asks and drops the month's two tables with its header row, in one action. False on No. Throws `Blad`
    /// for an unknown month. Writes `NADG`.
    bool UsunListe(RokMies miesiac);

private:
    [[nodiscard]] bool znajdz(RokMies miesiac);
    void otworz();

    Otoczenie& o_;
};

} // namespace tornel::payroll
