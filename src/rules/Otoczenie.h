// What every calculation needs, handed on by reference: session, constants, catalogue and the user's side.
#pragma once

class Sesja;
class Rozmowa;
struct Stale;
class SkladnikiPlac;

struct Otoczenie {
    Sesja& sesja;
    Stale& stale;
    SkladnikiPlac& skladniki;
    Rozmowa& rozmowa;
};
