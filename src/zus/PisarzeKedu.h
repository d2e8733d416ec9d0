// The value writers of the insurer's collection: each turns a value into the characters of a field. Widths
// count characters.
#pragma once
#include "common/PolaKedu.h"
#include "common/Przestrzenie.h"
#include <QDate>
#include <QString>

namespace tornel::zus {

/// The first `szer` characters, blanks on the right up to `szer`. A control character becomes a blank.
[[nodiscard]] QString KeduPole(const QString& tekst, int szer);
/// The first ten digits of the text.
[[nodiscard]] QString KeduCyfry(const QString& tekst);
/// "DDMMYYYY"; 8 blanks for an invalid date.
[[nodiscard]] QString KeduData(QDate data);
/// "DDMMYYYYDDMMYYYY"; 16 blanks if either date is invalid.
[[nodiscard]] QString KeduOkres(QDate od, QDate dokad);
/// "X" if the first character is "T" or "t", otherwise a blank.
[[nodiscard]] QString KeduZnacznik(const QString& tekst);
/// The insurer's code of an education by its position in the list; two blanks for one without a code.
[[nodiscard]] QString KeduWyksztalcenie(qint64 pozycja);
/// Decimal digits with zeros on the left up to `szer`; a longer number is not cut.
[[nodiscard]] QString KeduLicznik(qint64 liczba, int szer);

/// The name of a health fund by its code, whatever its case; empty for an unknown one.
[[nodiscard]] QString NazwaKasyChorych(const QString& kod);

} // namespace tornel::zus
