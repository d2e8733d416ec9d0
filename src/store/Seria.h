// The batch runner: one action over many employees, contracts or documents.
#pragma once
#include "store/RaportSerii.h"
#include <functional>
#include <QString>
#include <QStringList>

namespace tornel::common {
class Rozmowa;
} // namespace tornel::common

namespace tornel::store {

class Polaczenie;
class Transakcja;

/// The words of a batch.
struct NapisySerii {
    QString czynnosc; ///< the action's name in words: "Przeliczenie listy płac 07.2001"
    QString tytul;    ///< of the progress
    /// Stands before the number while it is worked on.
    QString krok = QStringLiteral("PROSZĘ CZEKAĆ ! Wyliczanie pracownika nr ");
    QString podmiot = QStringLiteral("pracownik nr"); ///< stands before a number in the report
};

/// What became of one item.
struct WynikKroku {
    enum class Los { Wykonany, Pominiety };
    Los los = Los::Wykonany;
    QStringList uwagi; ///< for the closing report, which joins equal texts
};

/// What a batch does. Questions are settled before it begins: none of these may ask.
struct CzynnosciSerii {
    qsizetype ile = 0;
    /// The number that names item `i`, from 0.
    std::function<qint64(qsizetype i)> numer;
    /// Computes item `i` in memory. A `Blad` is this item's failure alone.
    std::function<WynikKroku(qsizetype i)> krok;
    /// Writes what the step just done changed. A failure here is the file's: it ends the batch.
    std::function<void(const Transakcja& akcja)> zapisz;
    /// Drops what a failed step left in memory.
    std::function<void()> cofnij;
    /// Runs once behind the last step, also of a batch that was stopped: totals and headers. May be empty.
    std::function<void(const Transakcja& akcja)> zakoncz = {};
};

/// Runs the batch as one transaction, with progress. Stopped by the clerk between two items, it keeps those
/// done. An item whose step throws `Blad` is undone and named in the report, and the others go on; `BladBazy`
/// and `Przerwanie` undo the whole batch and are passed on: the caller then reads its handles again.
[[nodiscard]] RaportSerii WykonajSerie(Polaczenie& polaczenie, Rozmowa& rozmowa, const NapisySerii& napisy,
                                       const CzynnosciSerii& czynnosci);

} // namespace tornel::store
