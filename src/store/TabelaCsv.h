// Rows of a table as CSV, both ways: a header row with column names, decimal comma, dates dd-mm-yyyy.
//
// An empty field is a missing date, the number 0 or the empty text. Numbers and texts that are missing in the
// file are written as 0 and as an empty field, as the program reads them.
#pragma once
#include "store/Polaczenie.h"
#include "store/Tabela.h"
#include <functional>
#include <QByteArray>
#include <QString>

namespace tornel::store {

class Recordset;

/// A table of the open file.
struct TabelaPliku {
    const TabelaDef* def = nullptr;
    QString nazwa; ///< its name in the file, as PLA200107
    int rok = 0;   ///< of a month table, otherwise 0
    int mies = 0;
};

/// The table of this name, in any case: a standing one, or a month table that exists. Throws `Blad` for any
/// other name.
[[nodiscard]] TabelaPliku ZnajdzTabele(Polaczenie& polaczenie, const QString& nazwa);

/// All rows and columns in the order of the key (of the file, for a table without one), lines ended by "\n".
[[nodiscard]] QByteArray EksportujTabele(Polaczenie& polaczenie, const TabelaPliku& tabela);

struct WynikImportu {
    int dodane = 0;
    int zmienione = 0;
};

/// Gives the current, newly added row its defaults, in memory.
using DomyslneWiersza = std::function<void(Recordset& nowy)>;

/// Updates the rows whose key stands in `csv` and adds the others, all or nothing; columns that the header
/// leaves out keep their values (0, empty and null in a new row). A table without a key only gets new rows.
/// Tables whose rows correspond one to one (personnel, month tables, month headers) get a partner for each
/// new row: empty, but for what `domyslne` writes into it. Throws `Blad` that names line, column and value:
/// unknown column, missing key, key given twice, a value that the column cannot hold as it stands.
WynikImportu ImportujTabele(Polaczenie& polaczenie, const TabelaPliku& tabela, const QByteArray& csv,
                            const DomyslneWiersza& domyslne = {});

} // namespace tornel::store
