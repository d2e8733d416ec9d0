// The yardstick: the same rows written and read through the engine alone, with prepared statements.
#pragma once
#include "store/Sesja.h"
#include <initializer_list>

/// Writes the rows of the open month's four tables once into a new file of the same schema, in one
/// transaction with `synchronous=FULL`. Gives the seconds that the writing took, the commit included.
[[nodiscard]] double ZapiszSurowo(tornel::store::Sesja& sesja, int miesiac);

/// Reads every column of every row of the tables. Gives the seconds.
[[nodiscard]] double CzytajSurowo(tornel::store::Sesja& sesja, std::initializer_list<const char*> tabele);
