// What every calculation needs, handed on by reference: session, constants, catalogue and the user's side.
#pragma once
#include "common/Przestrzenie.h"

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::common {
class Rozmowa;
} // namespace tornel::common

namespace tornel::rules {

struct Stale;
class SkladnikiPlac;

struct Otoczenie {
    Sesja& sesja;
    Stale& stale;
    SkladnikiPlac& skladniki;
    Rozmowa& rozmowa;
};

} // namespace tornel::rules
