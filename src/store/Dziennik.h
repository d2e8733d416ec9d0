// The journal as it is read: who changed what and when; trimming; the end of the chain of undo.
#pragma once
#include "store/ZapisDziennika.h"
#include <optional>
#include <QDate>

namespace tornel::store {

/// An action or an event.
struct WpisDziennika {
    qint64 id = 0;
    StanWpisu stan = StanWpisu::Zdarzenie;
    QDate dzien; ///< invalid where nobody told the time
    QString czas;
    QString kto;
    QString czynnosc;   ///< in words
    QStringList tabele; ///< by their names in the file
    qint64 wierszy = 0; ///< that it wrote
    QString osoby;      ///< ",7,12,"; "*" for many
    qint64 dotyczy = 0;
};

/// Which entries; what is not given may be anything.
struct SzukaneWpisy {
    QDate od = {}, do_ = {}; ///< both days included
    QString kto = {};
    qint64 osoba = 0;
    QString tabela = {}; ///< of month tables also the prefix alone: "PLA"
    QString tekst = {};  ///< in the words of the action, or among the texts that it changed
};

/// The latest first. Throws `BladBazy`, and `Blad` for a damaged entry.
[[nodiscard]] QList<WpisDziennika> WpisyDziennika(Polaczenie& polaczenie, const SzukaneWpisy& szukane = {});

/// What the entry changed, in the order of making, at most `najwiecej` rows. Throws as above.
[[nodiscard]] QList<PakietZmian> ZmianyWpisu(Polaczenie& polaczenie, qint64 id, qint64 najwiecej);

/// The packets of an entry, as they are packed.
enum class KolejnoscPakietow { Naprzod, Wstecz };
class PakietyWpisu {
public:
    PakietyWpisu(Polaczenie& polaczenie, qint64 id, KolejnoscPakietow kolejnosc);
    /// Nothing behind the last one. Throws `BladBazy`, `Blad`.
    [[nodiscard]] std::optional<PakietZmian> nastepny();

private:
    // Reset after each packet: while a statement reads, the engine drops no table.
    Instrukcja instrukcja_;
    qint64 nr_;
};

/// Takes away the entries before the day, with what they changed, and says so in an entry. Gives their
/// number. An action of its own.
qint64 PrzytnijDziennik(Polaczenie& polaczenie, QDate przed);

/// Nothing that was done so far can be undone or made again: the file is no longer the one that the entries
/// are about. `powod` becomes an entry, as "Aktualizacja struktury bazy danych". A part of the open action,
/// or one of its own; also on a connection that keeps no journal (then `kiedy` is the entry's time), and on a
/// file without one it does nothing.
void ZakonczLancuch(Polaczenie& polaczenie, const QString& powod, const QDateTime& kiedy = {});

} // namespace tornel::store
