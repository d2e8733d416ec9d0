// Whether the tax transfer of a month still holds when a contract is paid in it.
#pragma once
#include "common/Waluta.h"
#include "contracts/RodzajeUmow.h"
#include "rules/Otoczenie.h"
#include <QDate>

namespace tornel::store {
class Recordset;
} // namespace tornel::store

namespace tornel::contracts {

/// A contract as its fields show it.
struct PodatekUmowy {
    qint64 id = 0, usId = 0;
    QDate wyplacona;
    Waluta podatek, przelewem; ///< zł
};

/// What to tell the clerk when the tax transfer of the month of payment was printed already and the month's
/// contracts of this office now make another sum; empty when all is well. A contract that is not paid by
/// transfer never counts for a tax transfer, so it is silent. Reads `WYKONANE` and the kind's handle, which
/// must be open.
[[nodiscard]] QString PrzypomnieniePodatku(Otoczenie& otoczenie, const RodzajUmowy& rodzaj,
                                           const store::Recordset& umowy, const PodatekUmowy& umowa);

} // namespace tornel::contracts
