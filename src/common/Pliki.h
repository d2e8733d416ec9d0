// The files that are read and written besides the database.
#pragma once
#include "common/Przestrzenie.h"
#include <QByteArray>
#include <QString>

namespace tornel::common {

/// The whole content. Throws `Blad` that names the file.
[[nodiscard]] QByteArray CzytajPlik(const QString& sciezka);
/// The same of a UTF-8 text, without a byte order mark. Throws `Blad` that names the file.
[[nodiscard]] QString CzytajTekst(const QString& sciezka);
/// Replaces the file at once or leaves it as it was. Throws `Blad` that names the file.
void ZapiszPlik(const QString& sciezka, const QByteArray& tresc);

} // namespace tornel::common
