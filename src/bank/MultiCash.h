// Payment orders for the bank's program MultiCash, as a text file `.pli`.
#pragma once
#include "bank/Wyplaty.h"
#include "store/Recordset.h"
#include <array>
#include <QByteArray>

namespace tornel::bank {

/// What one order needs.
struct RekordMCS {
    Waluta kwota;  ///< zł
    QString konto; ///< receiver's account; its first 8 characters are his bank's number
    std::array<QString, 4> odbiorca;
};

/// What the clerk sets for a run.
struct PrzebiegMCS {
    QDate wystawienie, platnosc;
    int paczka = 0;  ///< number of the package
    QString katalog; ///< target folder
    QString konto;   ///< sender's account
    QString szczegoly;
};

/// The part behind the first "-"; empty without one.
[[nodiscard]] QString PoMyslniku(const QString& tekst);

class MultiCash {
public:
    explicit MultiCash(Otoczenie& otoczenie) : o_(otoczenie) {}

    /// The path of the run's file: the folder and "yymmddNN.pli".
    [[nodiscard]] static QString nazwaPliku(const PrzebiegMCS& przebieg);
    /// True if the file may be written: it is not there, or the clerk lets it be replaced.
    [[nodiscard]] bool CzyZastapicPlik(const QString& plik) const;

    /// Asks about an existing file, writes the orders of the open month's rows (of `symbol`, blank for all)
    /// that have an amount by transfer, this package's number and are not sent yet, and marks them. The file
    /// is put in place whole; the marks are stored after that in one action, also in a blocked month. Tells
    /// how it ended. An employee who is not in the personnel file is left out and named. Gives the number of
    /// orders; nothing on No, 0 when there was nothing to write: no file is made then. Reads `PLA`, `PLB`,
    /// the personnel tables; writes `PLB`. Throws `Blad` that names the file when it cannot be written; then
    /// nothing is marked.
    std::optional<int> zListy(const PrzebiegMCS& przebieg, const QString& symbol);
    /// The same for the commission contracts paid on the run's day of payment. Reads and writes `UZL`.
    std::optional<int> zUmow(const PrzebiegMCS& przebieg);

private:
    [[nodiscard]] QByteArray ZapiszRekordMCS(const RekordMCS& rekord, const PrzebiegMCS& przebieg) const;
    [[nodiscard]] std::optional<QByteArray> PrzelewMCSPracownika(qint64 prcId, Waluta kwota,
                                                                 const PrzebiegMCS& przebieg);
    /// Writes the file for the rows and marks them in `doOznaczenia`.
    [[nodiscard]] std::optional<int> wykonaj(const PrzebiegMCS& przebieg, Recordset& doOznaczenia,
                                             Kolumna znak,
                                             const QList<std::pair<Zakladka, Wyplata>>& pozycje);

    Otoczenie& o_;
};

} // namespace tornel::bank
