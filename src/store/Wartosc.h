// One value on its way into or out of a column; null is kept apart from 0 and from the empty text.
#pragma once
#include "common/Waluta.h"
#include <QDate>
#include <QString>
#include <variant>

namespace tornel::store {

using Wartosc = std::variant<std::monostate, qint64, double, Waluta, QString, QDate>;

/// Null, written where a value could stand.
inline constexpr std::monostate Null{};

} // namespace tornel::store
