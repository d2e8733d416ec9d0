// Paper transfer orders: from whom and to whom, laid into the columns of the form.
#pragma once
#include "bank/Wyplaty.h"

namespace tornel::bank {

/// A transfer order as its form takes it: the columns of `PRZELEW`.
struct Przelew {
    QString nazodb, nazodbcd;                   ///< receiver
    QString LK;                                 ///< the title's first two characters
    QString nrrachodb1, nrrachodb2, nrrachodb3; ///< his account
    Waluta Kwota;                               ///< zł
    QString NrRachZlec, nazzlec, nazzleccd;     ///< sender
    QString Tytulem, tytulemcd;
    Wyplata za; ///< the payment that it makes, no column
};

/// What a transfer says, before it is cut to the form.
struct DanePrzelewu {
    QString odbiorca, kontoOdbiorcy;
    Waluta kwota;
    QString zleceniodawca, kontoZleceniodawcy;
    QString tytul;
};
/// Upper case, cut into the columns; what a column has no room for is lost.
[[nodiscard]] Przelew UlozPrzelew(const DanePrzelewu& dane);

/// The input box for a title that nobody has given.
inline const QString kSzczegolyPlatnosci = QStringLiteral("Szczegóły płatności:");
inline const QString kTytulSzczegolow = QStringLiteral("Przelew");

/// Transfers of one action. The sender is the firm of constants 300, 301, 304, 303 with one account of
/// `KONTA`.
class Przelewy {
public:
    explicit Przelewy(Otoczenie& otoczenie) : o_(otoczenie) {}

    /// A transfer for each payment to an employee, or, after a message, none: no accounts at all, no such
    /// account. An employee who is not in the personnel file is named in a message and left out. Reads
    /// `KONTA`, the personnel tables.
    [[nodiscard]] QList<Przelew> PrzelewPracownika(const QList<Wyplata>& wyplaty, qint64 konto,
                                                   const QString& tytul);
    /// The same to tax offices. Reads `US`.
    [[nodiscard]] QList<Przelew> PrzelewPodatku(const QList<Wyplata>& wyplaty, qint64 konto,
                                                const QString& tytul);
    /// Fills the one record of `PRZELEW` with each transfer; the last one stays. One action.
    void ZapiszPrzelewy(const QList<Przelew>& przelewy);

private:
    [[nodiscard]] std::optional<QString> kontoNadawcy(qint64 konto);
    [[nodiscard]] QString nadawca() const;

    Otoczenie& o_;
};

/// The accounts from which may be paid, as `frmWybKonta` lists them: number and what they are called.
struct KontoNadawcy {
    qint64 nr = 0;
    QString skrot, bank, konto;
};
[[nodiscard]] QList<KontoNadawcy> KontaNadawcy(Otoczenie& otoczenie);

} // namespace tornel::bank
