// The contracts of the example firm.
#pragma once
#include "rules/Otoczenie.h"

namespace tornel::start {

/// Eight contracts of all kinds from January to March 2001, of employees of the example firm up to number
/// `ile`: with and without transfer, one whose tax is below zero, one without tax office, one not yet paid.
/// Whom they are made with gets the rates of contracts in his personnel file; payrolls do not read them.
void DodajUmowyPrzykladu(Otoczenie& otoczenie, int ile);

} // namespace tornel::start
