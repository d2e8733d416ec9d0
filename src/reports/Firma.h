// What every print says of the employer, of itself and of the day.
#pragma once
#include "common/RokMies.h"
#include "druk/Opis.h"
#include <QDate>

namespace tornel::rules {
struct Stale;
} // namespace tornel::rules

namespace tornel::reports {

struct Firma {
    QString nazwa; ///< both parts of the name
    QString adres; ///< street, then post code and town
    [[nodiscard]] QString wLinii() const {
        return adres.isEmpty() ? nazwa : nazwa.isEmpty() ? adres : nazwa + QStringLiteral(", ") + adres;
    }
};
/// From constants 300, 301, 304 and 303; parts that are blank leave no gap.
[[nodiscard]] Firma FirmaNaWydruku(const Stale& stale);

/// Where papers are issued: constant 662, else the town of the firm's "26-610 Radom".
[[nodiscard]] QString MiejscowoscPism(const Stale& stale);

/// "Marzec 2001".
[[nodiscard]] QString MiesiacSlownie(RokMies miesiac);

/// The foot of every page: firm, print, day of printing, page n of m.
[[nodiscard]] Pasmo StopkaZFirma(const OpisWydruku& opis, const Firma& firma, QDate dzien);

/// An empty description with the page of most prints.
[[nodiscard]] OpisWydruku NowyOpis(QStringView nazwa, const QString& tytul, bool poziomo);

} // namespace tornel::reports
