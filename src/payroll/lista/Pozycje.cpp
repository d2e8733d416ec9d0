#include "payroll/lista/Pozycje.h"
#include "rules/SkladnikiPlac.h"

namespace tornel::payroll {

Pozycje PozycjeZMasek(const Maski& miesiac, const Maski& katalog) {
    Pozycje pozycje;
    for (int i = 1; i <= kDodatnich; ++i)
        pozycje.dodatnie[static_cast<std::size_t>(i - 1)] = {
            maBit(miesiac.akt_sp, i), maBit(katalog.akt_sp, i), maBit(miesiac.br_sp, i),
            maBit(miesiac.zus_sp, i), maBit(miesiac.ubzdr_sp, i)};
    for (int i = 1; i <= kUjemnych; ++i)
        pozycje.ujemne[static_cast<std::size_t>(i - 1)] = {maBit(miesiac.akt_sm, i), maBit(katalog.akt_sm, i),
                                                           maBit(miesiac.br_sm, i), maBit(miesiac.zus_sm, i),
                                                           maBit(miesiac.ubzdr_sm, i)};
    return pozycje;
}

} // namespace tornel::payroll
