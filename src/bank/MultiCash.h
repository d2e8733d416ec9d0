// Payment orders for the bank's program MultiCash, as a text file `.pli`.
#pragma once
#include "bank/ZleceniaPrzelewow.h"
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
    QDateTime kiedy; ///< now
};

/// One order that waits, and the row that will say that it was sent.
struct PozycjaMCS {
    Zakladka wiersz = -1;
    qint64 prcId = 0;
    Waluta kwota; ///< zł
    qint64 paczka = 0;
};

/// What a run would write.
struct PodsumowanieMCS {
    qsizetype zlecen = 0;
    Waluta kwota; ///< zł
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
    /// The orders of the package; of contracts also by the run's day of payment. Reads as `utworz`.
    [[nodiscard]] PodsumowanieMCS podsumuj(const ZrodloPrzelewow& zrodlo, int paczka, QDate platnosc) const;
    /// "zapisano 10-04-2001" of a package that was written before; empty for another. Reads `WYKONANE`.
    [[nodiscard]] QString zapisano(const ZrodloPrzelewow& zrodlo, int paczka, QDate platnosc) const;
    /// The first package with something to send, 0 without any.
    [[nodiscard]] int pierwszaPaczka(const ZrodloPrzelewow& zrodlo) const;

    /// Asks about an existing file, writes the orders of the open month's rows (of the list's symbol, blank
    /// for all), or of the commission contracts paid on the run's day of payment: those that have an amount
    /// by transfer and this package's number and are not sent yet. Marks them. The file is put in place
    /// whole; the marks are stored after that in one action, also in a blocked month, together with a row
    /// that says what was made. A run that was killed between the file and its marks is told to the next one
    /// for the same month or the contracts, which asks before it writes another file. Tells how it ended. An
    /// employee who is not in the personnel file is left out and named. Gives the number of orders; nothing
    /// on No, 0 when there was nothing to write: no file is made then. Reads `PLA`, `PLB` or `UZL`, the
    /// personnel tables, `WYKONANE`; writes `PLB` or `UZL`, `WYKONANE`. Throws `Blad` that names the file
    /// when it cannot be written; then nothing is marked.
    std::optional<int> utworz(const PrzebiegMCS& przebieg, const ZrodloPrzelewow& zrodlo);

private:
    [[nodiscard]] QList<PozycjaMCS> pozycjeListy(const QString& symbol, std::optional<int> paczka) const;
    [[nodiscard]] static QList<PozycjaMCS> pozycjeUmow(Recordset& umowy);
    [[nodiscard]] Recordset umowyPaczki(std::optional<int> paczka, std::optional<QDate> platnosc) const;
    /// The parts of a line that all orders of a run share.
    struct CzesciStale {
        QString poczatek, nadawca, nazwaNadawcy, koniec;
    };
    [[nodiscard]] CzesciStale czesciStale(const PrzebiegMCS& przebieg) const;
    /// Adds one line to the file.
    static void ZapiszRekordMCS(const RekordMCS& rekord, const CzesciStale& stale, QByteArray& plik);
    /// Adds the order of an employee; true if he was found.
    [[nodiscard]] bool PrzelewMCSPracownika(qint64 prcId, Waluta kwota, const CzesciStale& stale,
                                            QByteArray& plik);
    [[nodiscard]] QList<PozycjaMCS> pozycje(const ZrodloPrzelewow& zrodlo, std::optional<int> paczka,
                                            std::optional<QDate> platnosc) const;
    /// The month under which a run is noted.
    [[nodiscard]] RokMies miesiacPliku(const ZrodloPrzelewow& zrodlo, QDate platnosc) const;
    /// Whether the run may go on although one before it was broken off.
    [[nodiscard]] bool pomimoPrzerwanego(const SzukaneWykonania& wToku, const QString& plik) const;
    /// Writes the file for the rows and marks them in `doOznaczenia`.
    [[nodiscard]] std::optional<int> wykonaj(const PrzebiegMCS& przebieg, const ZrodloPrzelewow& zrodlo,
                                             Recordset& doOznaczenia, Kolumna znak,
                                             const QList<PozycjaMCS>& pozycje);

    /// Puts the file in place, noted as begun.
    void zapiszPlik(const QByteArray& bajty, const Wykonanie& wToku, const QDateTime& kiedy);
    /// Stores the marks and that it is done.
    void zapiszZnaki(Recordset& doOznaczenia, Wykonanie wykonany, const QDateTime& kiedy);

    Otoczenie& o_;
};

} // namespace tornel::bank
