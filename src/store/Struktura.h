// The tables in the file: made and dropped.
#pragma once
#include "store/Polaczenie.h"
#include "store/Tabela.h"

namespace tornel::store {

/// Makes a new database file with every table of the schema, empty. Throws `BladBazy`; an existing file is
/// refused.
void UtworzBaze(const QString& sciezka);

/// Makes one table with its index in the file (DDL). Throws `BladBazy`.
void UtworzTabele(Polaczenie& polaczenie, const TabelaDef& tabela, const QString& nazwa);
/// Makes the indexes of a table that has none yet. Throws `BladBazy`.
void UtworzIndeksy(Polaczenie& polaczenie, const TabelaDef& tabela, const QString& nazwa);
/// Drops one table. Throws `BladBazy`.
void UsunTabele(Polaczenie& polaczenie, const QString& nazwa);

} // namespace tornel::store
