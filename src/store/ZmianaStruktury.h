// What the statements of a structure update mean: tables and columns added, the type of a column changed with
// the data kept.
#pragma once
#include "store/OpisStruktury.h"
#include <QSet>

namespace tornel::store {

/// Each operation is an action of its own: done, or the file is as it was. Each throws `Blad` with the cause.
class ZmianaStruktury {
public:
    explicit ZmianaStruktury(Polaczenie& polaczenie) : polaczenie_(polaczenie) {}

    // The statements as a report shows them; what they mean is done by the operations below.

    [[nodiscard]] static QString TekstUtworzenia(const QString& tabela);
    [[nodiscard]] static QString TekstDodania(const QString& tabela, const QString& pole,
                                              const QString& typSql);
    [[nodiscard]] static QString TekstZmiany(const QString& tabela, const QString& pole,
                                             const QString& typSql);

    /// CREATE TABLE without columns: the table is made with its first column.
    void UtworzTabele(const QString& tabela);
    /// A new column, null in every row. With its last key column a table of the schema gets its indexes.
    void DodajPole(const QString& tabela, const QString& pole, const QString& typSql);
    /// Makes the table anew with the column of another type or width: rows keep their numbers, keys and
    /// indexes stay. A value that the new type would cut or lose is a failure that names the row.
    void ZmienPole(const QString& tabela, const QString& pole, const QString& typSql);

private:
    Polaczenie& polaczenie_;
    QSet<QString> bezPol_; ///< tables that wait for their first column
    QSet<QString> nowe_;   ///< tables made since
};

} // namespace tornel::store
