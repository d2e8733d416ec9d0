// A typed comparison of a column, shared by table handles and queries.
#pragma once
#include "store/Tabela.h"
#include "store/Wartosc.h"
#include <QList>

namespace tornel::store {

/// One typed comparison of a column; several stand for "and". A quote in a text is just a letter.
struct Kryterium {
    enum class Operator { Rowne, Rozne, NieMniejsze, NieWieksze, Wieksze, Mniejsze };
    Kolumna kolumna;
    Operator op = Operator::Rowne;
    Wartosc wartosc;
};
using Warunek = QList<Kryterium>;

} // namespace tornel::store
