// What every declaration copies from the program constants and from the personnel file.
#pragma once
#include "rules/Stale.h"
#include "tax/Deklaracja.h"
#include <optional>
#include <QDate>
#include <QHash>

namespace tornel::tax {

/// Payer's number, name and address, and who fills the declaration in.
void WpiszPlatnika(WierszDeklaracji& deklaracja, const Stale& stale);

/// The payer of a yearly declaration: the above, his kind, the period of work, and `dzis` as its day.
void WpiszPlatnikaRocznej(WierszDeklaracji& deklaracja, const Stale& stale, QDate dzis);

/// Taxpayers with their addresses and tax offices, read once.
class Podatnicy {
public:
    /// Of everybody, or of one employee. Reads `PRACDP`, `PRACPR`, `US`. Throws `BladBazy`.
    explicit Podatnicy(Sesja& sesja, std::optional<qint64> jeden = {});

    /// Fills the declaration's part of the taxpayer. Throws `Blad` for an unknown employee.
    void wpisz(WierszDeklaracji& deklaracja, qint64 prcId) const;
    [[nodiscard]] QString nazwa(qint64 prcId) const; ///< surname and name; empty for nobody
    [[nodiscard]] QString pesel(qint64 prcId) const;

private:
    struct Podatnik {
        QList<QString> teksty; // in the order of the table of columns
        QDate urodzony;
        QString pesel, urzad;
    };
    QHash<qint64, Podatnik> osoby_;
};

} // namespace tornel::tax
