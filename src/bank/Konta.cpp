#include "bank/Konta.h"

namespace tornel::bank {

const KartotekaDef& KontaBankowe() {
    static const KartotekaDef def{
        .uchwyt = &Sesja::rsKONTA,
        .czynnosc = u"Konta bankowe",
        .pytanie = u"Czy na pewno usunąć wybrane konto bankowe z listy kont ?",
        .odmowa = u"Nie można usunąć wybranego konta bankowego, ponieważ jest używane.",
    };
    return def;
}

} // namespace tornel::bank
