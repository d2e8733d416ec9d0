// Values as the files for the insurer and the bank write them.
#pragma once
#include "common/Waluta.h"
#include <QByteArray>
#include <QByteArrayView>
#include <QDate>
#include <QString>

namespace tornel::common {

/// "YYYYMMDD"; 8 blanks for an invalid date.
[[nodiscard]] QString KeduDataOdwrotna(QDate data);
/// Hundredths of a złoty, cut towards minus infinity, in `szer` digits: zeros on the left, a longer number
/// keeps its rightmost characters, a minus sign stands among the digits.
[[nodiscard]] QString KeduKwota(Waluta kwota, int szer);
/// Windows-1250; a character that it lacks becomes "?".
[[nodiscard]] QByteArray windows1250(const QString& tekst);
/// The other way round; a byte without a character becomes U+FFFD.
[[nodiscard]] QString zWindows1250(QByteArrayView bajty);

} // namespace tornel::common
