// Yearly declarations of many persons at once: what is in the way of each, their sums, and a file of them
// all.
#pragma once
#include "tax/DeklaracjeRoczne.h"
#include "tax/PortWydrukowDeklaracji.h"

namespace tornel::tax {

/// One person of the series.
struct PozycjaSerii {
    qint64 prcId = 0;
    QString nazwa;
    SumyZrodel sumy;
    QStringList uwagi; ///< a sentence for each thing that an office would send back; empty when all is well
};

class SeriaDeklaracji {
public:
    /// Reads what `DaneRoczne` reads, once for all persons. Throws as that does.
    SeriaDeklaracji(Otoczenie& otoczenie, Deklaracja ktora, const OkresPodatkowy& okres,
                    const QList<qint64>& osoby, QDate dzis);

    /// The persons in the order given. Checks number, PESEL and tax office of each, and whether his rows are
    /// computed. Reads the months' `PLA`, `PLS`.
    [[nodiscard]] QList<PozycjaSerii> pozycje() const;
    /// Months of the span that do not exist, in their order.
    [[nodiscard]] QList<RokMies> brakujaceMiesiace() const;
    /// The declarations to be printed. What it gives lives no longer than this object.
    [[nodiscard]] SeriaStron strony() const;
    /// The declarations column by column under the columns' names, with the sums, as UTF-8; dates as
    /// dd-mm-yyyy.
    [[nodiscard]] QByteArray csv() const;
    [[nodiscard]] int ile() const { return static_cast<int>(osoby_.size()); }

private:
    [[nodiscard]] QHash<qint64, QStringList> niepoliczone() const;

    Otoczenie& o_;
    Deklaracja ktora_;
    OkresPodatkowy okres_;
    QList<qint64> osoby_;
    QDate dzis_;
    DaneRoczne dane_;
};

} // namespace tornel::tax
