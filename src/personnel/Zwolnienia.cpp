#include "personnel/Zwolnienia.h"
#include "rules/Stale.h"
#include "store/Sesja.h"

namespace tornel::personnel {

using schemat::ZW;

RejestrZwolnien::RejestrZwolnien(Otoczenie& otoczenie)
    : RejestrNieobecnosci(
          otoczenie, otoczenie.sesja.rsZW,
          {u"Zakres dat rejestrowanego zwolnienia dla pracownika pokrywa się z innymi już zarejestrowanymi "
           u"zwolnieniami. Zwolnienie nie zostanie zarejestrowane.",
           u"Czy na pewno usunąć wprowadzone zwolnienie ?"}) {}

std::optional<qint64> RejestrZwolnien::Zarejestruj(const NoweZwolnienie& zwolnienie) {
    if (!moznaZarejestrowac(zwolnienie.prcId, zwolnienie.zakres)) return std::nullopt;
    return dopisz(zwolnienie.prcId, zwolnienie.zakres,
                  {{ZW("st_proc"), zwolnienie.procent.value_or(o_.stale.StProcL4)}});
}

qint64 RejestrZwolnien::CzasTrwania() const {
    const Recordset& rs = tabela();
    if (!rs.naWierszu()) return 0;
    return ZakresDat{rs.data(ZW("Data")), rs.data(ZW("data_do"))}.dni();
}

} // namespace tornel::personnel
