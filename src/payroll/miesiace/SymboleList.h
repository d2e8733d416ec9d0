// Which lists payroll months have.
#pragma once
#include "common/RokMies.h"
#include <QList>
#include <QString>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::payroll {

struct SymbolListyPlac {
    QString symbol; ///< one character, a blank for a list without a symbol
    qint64 wierszy = 0;
};
/// The symbols of the lists in these months, ascending. Reads `PLA` of each. Throws `BladBazy`.
[[nodiscard]] QList<SymbolListyPlac> SymboleList(Sesja& sesja, const QList<RokMies>& miesiace);

} // namespace tornel::payroll
