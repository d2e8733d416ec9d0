// The yearly declarations of an employee. Each has one working row, which every making fills anew, which the
// screen edits and the print reads.
#pragma once
#include "rules/Otoczenie.h"
#include "store/Recordset.h"
#include "tax/Przychody.h"
#include <QDate>

namespace tornel::tax {

/// The row "Razem" of PIT-11, PIT-40 and PIT-8B, zł; income and costs of PIT-11 with line 1a.
struct SumyZrodel {
    Waluta SPRZY, SKUP, SDOCHOD, SPOB_ZAL;
};
[[nodiscard]] SumyZrodel SumujZrodla(const Recordset& deklaracja);

/// PIT-11: payroll is line 1, commission contracts line 8. Fills `rsPIT11` and stores it. Reads `PLACE`, the
/// months' `PLA`, `PLB`, `PLS`, then `UZL`, `PRACDP`, `PRACPR`, `US`. Throws `Blad` for an unknown employee.
void WypelnijPit11(Otoczenie& otoczenie, qint64 prcId, const OkresPodatkowy& okres, QDate dzis);

/// PIT-8B, flat-rate tax: commissions and specific works are line 8, fees line 9. Fills and stores `rsPIT8B`.
/// Reads `UZL`, `UOD`, `HON`, `PRACDP`, `PRACPR`, `US`.
void WypelnijPit8B(Otoczenie& otoczenie, qint64 prcId, const OkresPodatkowy& okres, QDate dzis);

/// The settlement of the year, zł.
struct RozliczenieRoku {
    Waluta doch_odl; ///< income less social contributions
    Waluta podst;    ///< the same in whole zł, not below zero
    Waluta pod_obl;  ///< tax by the scale
    Waluta podatek;  ///< less the health insurance, in tens of grosze
    Waluta nadplata; ///< overpaid in advances
    Waluta doplata;  ///< still to pay
};
/// The tax of `podst` by the formula of its bracket (constants 551 to 553, brackets by 40 and 41), two
/// places, not below zero. Shows no message. Throws `Blad` for a formula that cannot be computed.
[[nodiscard]] Waluta PodatekWedlugSkali(Otoczenie& otoczenie, Waluta podst);
/// Settles `dochod`. `ubzdr` is what may be deducted, `zaliczki` what was paid.
[[nodiscard]] RozliczenieRoku Rozlicz(Otoczenie& otoczenie, Waluta dochod, Waluta skladki, Waluta ubzdr,
                                      Waluta zaliczki);

/// PIT-40: the income of PIT-11 and its settlement. Fills and stores `rsPIT40`.
void WypelnijPit40(Otoczenie& otoczenie, qint64 prcId, const OkresPodatkowy& okres, QDate dzis);

} // namespace tornel::tax
