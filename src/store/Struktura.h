// The tables in the file: made and dropped.
#pragma once
#include "store/Polaczenie.h"
#include "store/Tabela.h"
#include <string>
#include <vector>

namespace tornel::store {

/// Makes a new database file with every table of the schema, empty. Throws `BladBazy`; an existing file is
/// refused.
void UtworzBaze(const QString& sciezka);

/// The statements by which a table of the schema and its indexes are made under this name.
[[nodiscard]] std::string PolecenieTabeli(const TabelaDef& tabela, const QString& nazwa);
[[nodiscard]] std::vector<std::string> PoleceniaIndeksow(const TabelaDef& tabela, const QString& nazwa);

/// Makes one table with its index in the file (DDL). Throws `BladBazy`.
void UtworzTabele(Polaczenie& polaczenie, const TabelaDef& tabela, const QString& nazwa);
/// Makes the indexes of a table that has none yet. Throws `BladBazy`.
void UtworzIndeksy(Polaczenie& polaczenie, const TabelaDef& tabela, const QString& nazwa);
/// Drops one table. Throws `BladBazy`.
void UsunTabele(Polaczenie& polaczenie, const QString& nazwa);

} // namespace tornel::store
