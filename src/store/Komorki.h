// What all readers and writers of the file share: how a value of each kind of column stands there, and what
// is said of one that does not.
#pragma once
#include "store/Kryterium.h"
#include "store/Polaczenie.h"
#include <optional>
#include <QByteArray>
#include <sqlite3.h>

namespace tornel::store {

/// Whether the value may stand in such a column; null may anywhere.
[[nodiscard]] bool pasuje(const Wartosc& wartosc, Typ typ);

/// YYYY-MM-DD, the one form in which dates stand in the file, to the day number. Nothing for any other text.
[[nodiscard]] std::optional<qint64> dzienZTekstu(std::string_view tekst);
/// The day number as YYYY-MM-DD.
class TekstDnia {
public:
    explicit TekstDnia(qint64 dzien);
    operator std::string_view() const { return {znaki_, sizeof znaki_}; }

private:
    char znaki_[10];
};

/// A number, money, a double by its bits, or the day number of a column that is neither null nor text.
/// Nothing for a value that is not of the column's type. `typWartosci` is its `Instrukcja::typ`.
[[nodiscard]] std::optional<qint64> slowo(const Instrukcja& instrukcja, int kolumna, Typ typ,
                                          int typWartosci);

/// Throws `UszkodzonaWartosc` that names table, row (by its number, 0 if unknown, and its key as it stands)
/// and column.
[[noreturn]] void zglosUszkodzenie(Polaczenie& polaczenie, const TabelaDef& tabela, const QString& nazwa,
                                   qint64 nrWiersza, const KolumnaDef& kolumna);

void wiazWartosc(Instrukcja& instrukcja, int nr, const Wartosc& wartosc);
[[nodiscard]] const char* znakOperatora(Kryterium::Operator op);
/// All columns of a table for a statement, in their order.
[[nodiscard]] QByteArray listaKolumn(const TabelaDef& tabela);
/// A name of the schema for a message or as that of a table in the file.
[[nodiscard]] QString napis(std::string_view nazwa);

} // namespace tornel::store
