// What reading and writing a recordset share: kinds of columns and the list of their names.
#pragma once
#include "store/Polaczenie.h"
#include "store/Tabela.h"
#include <QByteArray>

namespace tornel::store {

inline bool jestTekstem(Typ typ) { return typ == Typ::Text || typ == Typ::Char || typ == Typ::Memo; }
inline bool jestRzeczywista(Typ typ) { return typ == Typ::Double || typ == Typ::Single; }

/// All columns of a table for a statement, in their order.
inline QByteArray listaKolumn(const TabelaDef& t) {
    QByteArray wynik;
    for (const KolumnaDef& k : t.kolumny) wynik += (wynik.isEmpty() ? "" : ", ") + nazwaSql(k.nazwa);
    return wynik;
}

} // namespace tornel::store
