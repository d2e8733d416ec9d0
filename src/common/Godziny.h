// Hours of work as text. Hours are exact decimals, as amounts are, so that they can be multiplied by a rate.
#pragma once
#include "common/Waluta.h"
#include <optional>
#include <QString>

namespace tornel::common {

/// "0.0" with a decimal comma, half away from zero as a display does: 1,25 shows as "1,3".
[[nodiscard]] QString FormatGodzin(Waluta godziny);

/// Reads hours up to `najwiecej` in either direction (negative ones are corrections), whole hours and at most
/// two decimal places behind a comma or a dot; an empty text is 0. Nothing for any other text.
[[nodiscard]] std::optional<Waluta> CzytajGodziny(const QString& tekst, Waluta najwiecej);

} // namespace tornel::common
