// CSV text: semicolons between fields, quotes around those that need them, UTF-8.
#pragma once
#include "common/Przestrzenie.h"
#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace tornel::common {

/// One row, with the number of the line on which it begins, from 1.
struct WierszCsv {
    int linia = 0;
    QStringList pola;
};

/// Takes CSV apart. A byte order mark is accepted, empty lines are passed over; a quoted field may hold
/// semicolons, line breaks and quotes (doubled). Throws `Blad` that names the line for text that is not UTF-8
/// or whose quotes do not match.
[[nodiscard]] QList<WierszCsv> CzytajCsv(const QByteArray& utf8);

/// A field as it stands in CSV: in quotes if it holds a semicolon, a quote or a line break, or begins or ends
/// with a blank.
[[nodiscard]] QString PoleCsv(const QString& tekst);

} // namespace tornel::common
