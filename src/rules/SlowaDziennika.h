// What the journal kept, in words: tables and columns as screens call them, values as they are typed.
#pragma once
#include "store/Dziennik.h"

namespace tornel::rules {

class SkladnikiPlac;

/// One changed value of one row.
struct OpisanaZmiana {
    QString tabela;  ///< name in the file
    QString rzecz;   ///< what the table holds: "lista płac 07.2001"
    QString wiersz;  ///< which row: "pracownik nr 5, lista A"
    QString kolumna; ///< in words where there are some, otherwise the column's name
    QString stara;   ///< empty of a new row
    QString nowa;    ///< empty of a deleted one
};

/// "lista płac 07.2001" of PLA200107; the name itself for a table without words.
[[nodiscard]] QString NapisTabeli(const QString& nazwa);
/// "wykonana", "cofnięta" and so on; empty for an event.
[[nodiscard]] QString NapisStanu(StanWpisu stan);

/// The changes of an entry, one value after the other. Of new and deleted rows the values that say something:
/// neither null nor 0 nor empty. A table made or dropped is one line.
[[nodiscard]] QList<OpisanaZmiana> OpiszZmiany(const QList<PakietZmian>& pakiety,
                                               const SkladnikiPlac& skladniki);

} // namespace tornel::rules
