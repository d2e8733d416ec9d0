// More employees of the example firm, as many as wanted, each like one of the first twelve.
#pragma once
#include "common/Przestrzenie.h"

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::start {

/// Adds the employees numbered `od` to `dokad`, by a fixed sequence of pseudo-random numbers. Reads and
/// writes the five personnel tables through the session's handles, as one action.
void DodajPracownikowPrzykladu(Sesja& sesja, int od, int dokad);

} // namespace tornel::start
