// The sums of a payroll list on one sheet: components, contributions, tax by office, what is paid how.
#pragma once
#include "druk/Uklad.h"
#include "rules/Otoczenie.h"

namespace tornel::reports {

class WierszeListyPlac;

/// `opis` brings page and title, `stopka` the foot of the pages. Reads `PLA`, `PLB` of the open month, `US`.
[[nodiscard]] std::shared_ptr<const Uklad> UlozZbiorowke(OpisWydruku opis, Otoczenie& otoczenie,
                                                         const WierszeListyPlac& wiersze,
                                                         const QString& zaMiesiac, const Pasmo& stopka);

/// How many pieces of each denomination pay out the amounts one by one, the largest first; what is left over
/// goes to nobody. Denominations in zł.
struct Nominal {
    Waluta nominal;
    qint64 sztuk = 0;
};
[[nodiscard]] QList<Nominal> RozmienKwoty(const QList<Waluta>& kwoty, QList<Waluta> nominaly);

} // namespace tornel::reports
