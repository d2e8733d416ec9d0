// The papers of an employment, with what the Labour Code of 2001 asked of each: the contract, a change of its
// terms, the notice, the certificate of work.
#pragma once
#include "druk/Uklad.h"
#include "rules/Otoczenie.h"
#include <memory>
#include <QDate>

namespace tornel::reports {

// Each reads `UMOP`, `M_PRACY` and the personnel file, and throws `Blad` for an unknown contract or one that
// the paper cannot be about, saying why.

/// `dtrUMOP`: the contract to be signed; of a change, the contract that it belongs to.
[[nodiscard]] std::shared_ptr<const Uklad> UlozUmoweOPrace(Otoczenie& otoczenie, qint64 id);

/// `dtrUMOPZmiana`: the agreement on new terms, what stood before beside them; the notice of the old terms
/// where the change has a day of notice. `id` is a change that changes something.
[[nodiscard]] std::shared_ptr<const Uklad> UlozZmianeWarunkow(Otoczenie& otoczenie, qint64 id);

/// `dtrUMOPWypow`: the notice by employer or employee, with its length and last day. The contract says who
/// gives it and when.
[[nodiscard]] std::shared_ptr<const Uklad> UlozWypowiedzenie(Otoczenie& otoczenie, qint64 id);

/// `dtrUMOPSwiad`: the certificate of work, issued on `dzis`. Reads `URL` and `ZW` besides.
[[nodiscard]] std::shared_ptr<const Uklad> UlozSwiadectwoPracy(Otoczenie& otoczenie, qint64 id, QDate dzis);

} // namespace tornel::reports
