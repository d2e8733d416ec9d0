// Copies of the database file: of an open one through the engine, of a closed one byte by byte, both whole or
// not at all.
#pragma once
#include "common/Przestrzenie.h"
#include <QDateTime>
#include <QString>

namespace tornel::store {

class Polaczenie;

/// A name that no file has yet, beside the database: Tornel-`co`-20010731-153000.mdb.
[[nodiscard]] QString NazwaKopii(const QString& baza, const QString& co, const QDateTime& chwila);

/// Copies the open database page by page, as the file stands: closing a second handle of it after an ordinary
/// copy would drop the engine's lock. Throws `BladBazy` that names both files; `cel` is then not there.
void KopiujOtwarta(Polaczenie& polaczenie, const QString& cel);

/// Copies a file that nobody has open, byte by byte, and puts it onto the disk. Throws `BladBazy` that names
/// both files and the cause; `cel` is then not there. An existing `cel` is refused.
void KopiujZamknieta(const QString& zrodlo, const QString& cel);

/// Puts `nowy` in the place of `stary`, at once, and makes the change last over a power cut. Throws
/// `BladBazy`; both are then as they were.
void ZamienPlik(const QString& nowy, const QString& stary);

/// The same for a name that is still free: an existing file is refused.
void NadajNazwe(const QString& nowy, const QString& nazwa);

} // namespace tornel::store
