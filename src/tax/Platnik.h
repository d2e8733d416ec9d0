// What every declaration copies from the program constants and from the personnel file.
#pragma once
#include "rules/Stale.h"
#include <QDate>
#include <string_view>

namespace tornel::store {
class Recordset;
class Sesja;
} // namespace tornel::store

namespace tornel::tax {

/// A column of a declaration, by the name that it bears in each of them.
[[nodiscard]] Kolumna KolumnaDeklaracji(const Recordset& deklaracja, std::string_view nazwa);

/// Payer's number, name and address, and who fills the declaration in.
void WpiszPlatnika(Recordset& deklaracja, const Stale& stale);

/// The heading of a yearly declaration: the payer, his kind, the period of work from the constants, the
/// employee with his address and tax office, and `dzis` as its day. The declaration's one working row becomes
/// current, added if there is none. Reads `PRACDP`, `PRACPR`, `US`. Throws `Blad` for an unknown employee.
void WpiszNaglowekRoczny(Sesja& sesja, Recordset& deklaracja, const Stale& stale, qint64 prcId, QDate dzis);

} // namespace tornel::tax
