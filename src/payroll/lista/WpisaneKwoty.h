// Which component amounts of the open month's rows the clerk typed himself, so that nothing writes over them
// unasked.
#pragma once
#include "store/Tabela.h"
#include <QList>
#include <QString>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::payroll {

struct Pozycje;

// All work on the open month's records of `WPISANE`, in memory: the caller writes them with the row.

/// Marks columns of `PLS` as typed.
void ZaznaczWpisane(Sesja& sesja, qint64 prcId, const QString& lista, const QList<Kolumna>& kolumny);
/// Takes off the marks of components in use: they hold what the personnel file gives from now on.
void PrzepisanoSkladniki(Sesja& sesja, const Pozycje& pozycje, qint64 prcId, const QString& lista);
/// Whether the row has typed components in use, which a refill would write over.
[[nodiscard]] bool SaWpisane(const Sesja& sesja, const Pozycje& pozycje, qint64 prcId, const QString& lista);

} // namespace tornel::payroll
