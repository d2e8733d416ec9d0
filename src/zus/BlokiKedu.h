// The blocks of the insurer's documents.
#pragma once
#include "zus/OpisKedu.h"

namespace tornel::zus::bloki {

// Kind of the document, then the payer.
extern const BlokKedu DOZUA, DOZZA, DOZIUA, DOZWUA, DOZCBA, DOZPF;
extern const BlokKedu DIPL, DAIP, DAPL, DEPL, PPDB, DORB, IDO1, IDOP, ASPL, ASZP, ADKP, DOBR, OPL1, OPL2;
extern const BlokKedu IORB, APDG;

// The insured and his family.
extern const BlokKedu DAU, ADIU, DIOP, DEOZ, TYUB, TYUBZ, DOWP, DOOU, DOBU, DODU, IODZ, DOKC, AZMO, ADZA,
    ADKB;
extern const BlokKedu WNOU, WUBD, DOCRA, DOCRBA;

// The monthly reports.
extern const BlokKedu DORCA, DORNA, DORZA, DORSA, DDORCA, DDORNA, DDORZA, DDORSA, OPLR;

} // namespace tornel::zus::bloki
