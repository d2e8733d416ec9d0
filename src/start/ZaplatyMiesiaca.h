// What a month's payroll has to pay out, and how much of it was made: transfers, tax, contributions, reports.
#pragma once
#include "common/RokMies.h"
#include "common/Waluta.h"
#include "payroll/lista/WierszPlac.h"
#include <QList>
#include <QString>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::start {

/// How many of the rows have their transfer on paper or in a file for the bank. Reads the month's `PLB`,
/// `WYKONANE`.
[[nodiscard]] qsizetype PrzelewyZrobione(Sesja& sesja, RokMies miesiac, const QList<KluczListy>& wiersze);

/// An amount to be paid, zł.
struct Zaplata {
    Waluta kwota;
    bool zgloszona = false; ///< the month has its declaration
};
/// To the tax office: the advances of the lists, also where PIT-4 exists, which begins with the tax before
/// deductions. Reads `PIT4`, `PLACE`.
[[nodiscard]] Zaplata PodatekMiesiaca(Sesja& sesja, RokMies miesiac);
/// To the insurer: by the settlements, else the contributions of the lists without the benefits that reduce
/// them.
/// Reads `ZUS`, `PLACE`.
[[nodiscard]] Zaplata SkladkiMiesiaca(Sesja& sesja, RokMies miesiac);

/// "zapisano 10-04-2001" of the last collection with a report of the month; empty for none. Reads `WYKONANE`.
[[nodiscard]] QString RaportyZapisane(Sesja& sesja, RokMies miesiac);

} // namespace tornel::start
