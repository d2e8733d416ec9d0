// The papers of contracts: the contract itself, its bill, and a list of several.
#pragma once
#include "contracts/RodzajeUmow.h"
#include "druk/Uklad.h"
#include "rules/Otoczenie.h"
#include <memory>
#include <QDate>
#include <QList>

namespace tornel::reports {

/// `dtrUZL`, `dtrUOD`: the contract to be signed. Reads the kind's table, `PRACDP`. Throws `Blad` for a kind
/// without such a paper. Empty for an unknown contract.
[[nodiscard]] std::shared_ptr<const Uklad> UlozUmowe(Otoczenie& otoczenie, const RodzajUmowy& rodzaj,
                                                     qint64 id);

/// `dtrUZLRach`, `dtrUODRach`, `dtrHONRach`: the bill. Empty for a contract whose tax office is not on the
/// list: deliberate. Reads the kind's table, `PRACDP`, `US`.
[[nodiscard]] std::shared_ptr<const Uklad> UlozRachunek(Otoczenie& otoczenie, const RodzajUmowy& rodzaj,
                                                        qint64 id, QDate dzis);

/// The contracts with these keys in this order, with sums. `tytul` says which they are.
[[nodiscard]] std::shared_ptr<const Uklad> UlozZestawienieUmow(Otoczenie& otoczenie,
                                                               const RodzajUmowy& rodzaj,
                                                               const QString& tytul,
                                                               const QList<qint64>& klucze, QDate dzis);

} // namespace tornel::reports
