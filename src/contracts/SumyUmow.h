// What declarations take from contracts: the sums of those that were paid in a period.
#pragma once
#include "common/Waluta.h"
#include "contracts/RodzajeUmow.h"
#include <optional>
#include <QDate>
#include <QHash>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::contracts {

/// zł. A fee has no contributions.
struct SumyKwot {
    Waluta brutto, koszty, podatek, feprc, frprc, fcprc, ubzdr;

    SumyKwot& operator+=(const SumyKwot& b);
    friend bool operator==(const SumyKwot&, const SumyKwot&) = default;
};

/// The contracts of one kind that were paid from `od` to `dokad`, both included, by `PRC_ID`; of one person
/// if `prcId` names him. One without a day of payment never counts. Reads the kind's table. Throws
/// `BladBazy`, `UszkodzonaWartosc`.
[[nodiscard]] QHash<qint64, SumyKwot> SumujUmowy(store::Sesja& sesja, const RodzajUmowy& rodzaj, QDate od,
                                                 QDate dokad, std::optional<qint64> prcId = {});

/// One contract that was paid.
struct ZaplaconaUmowa {
    QString numer;
    QDate zaplacona;
    SumyKwot kwoty;
};
/// Those that the sums of one person are made of, by the day of payment.
[[nodiscard]] QList<ZaplaconaUmowa> ZaplaconeUmowy(store::Sesja& sesja, const RodzajUmowy& rodzaj, QDate od,
                                                   QDate dokad, qint64 prcId);

/// Of one person's commission contracts; the other kinds do not count, deliberately. Zeros without any.
[[nodiscard]] SumyKwot SumyUZL(store::Sesja& sesja, qint64 prcId, QDate od, QDate dokad);

} // namespace tornel::contracts
