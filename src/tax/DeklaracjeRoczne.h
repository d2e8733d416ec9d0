// The yearly declarations of an employee. Each has one working row, which every making fills anew, which the
// screen edits and the print reads; a series of many persons makes its rows one by one and stores none.
#pragma once
#include "rules/Otoczenie.h"
#include "tax/Deklaracja.h"
#include "tax/Platnik.h"
#include "tax/Przychody.h"
#include <array>
#include <QDate>

namespace tornel::tax {

/// The row "Razem" of PIT-11, PIT-40 and PIT-8B, zł; income and costs of PIT-11 with line 1a.
struct SumyZrodel {
    Waluta SPRZY, SKUP, SDOCHOD, SPOB_ZAL;
};
[[nodiscard]] SumyZrodel SumujZrodla(const WierszDeklaracji& deklaracja);

/// What the declarations of a span are made of, read once, whether for one employee or for everybody.
class DaneRoczne {
public:
    /// PIT-11 and PIT-40 read `PLACE`, the months' `PLA`, `PLB`, `PLS`, and `UZL`; PIT-8B reads `UZL`, `UOD`,
    /// `HON`; all of them `PRACDP`, `PRACPR`, `US`. Throws `BladBazy`, `Blad`.
    DaneRoczne(Otoczenie& otoczenie, Deklaracja ktora, const OkresPodatkowy& okres,
               std::optional<qint64> jeden = {});

    /// A declaration of the employee. PIT-11: payroll is line 1, commission contracts line 8. PIT-40: the
    /// same and its settlement. PIT-8B, flat-rate tax: commissions and specific works are line 8, fees line
    /// 9. Throws `Blad` for an unknown employee, and for a scale that cannot be computed.
    [[nodiscard]] WierszDeklaracji wypelnij(qint64 prcId, QDate dzis) const;
    [[nodiscard]] const Podatnicy& podatnicy() const { return podatnicy_; }

private:
    Otoczenie& o_;
    Deklaracja ktora_;
    Podatnicy podatnicy_;
    QHash<qint64, SumyPlac> place_;
    QHash<qint64, SumyUmow> zlecenia_, prawa_;
};

/// Makes the employee's declaration the working row of its table and stores it. Throws as above; the row is
/// then as it was.
void WypelnijDeklaracje(Otoczenie& otoczenie, Deklaracja ktora, qint64 prcId, const OkresPodatkowy& okres,
                        QDate dzis);

/// The settlement of the year, zł.
struct RozliczenieRoku {
    Waluta doch_odl; ///< income less social contributions
    Waluta podst;    ///< the same in whole zł, not below zero
    Waluta pod_obl;  ///< tax by the scale
    Waluta podatek;  ///< less the health insurance, in tens of grosze
    Waluta nadplata; ///< overpaid in advances
    Waluta doplata;  ///< still to pay
};
/// The scale of the year: the formula of each bracket, and how far the first two reach, zł.
struct SkalaPodatku {
    /// Constants 551 to 553, 40 and 41.
    explicit SkalaPodatku(const Stale& stale);

    std::array<QString, 3> wzory;
    Waluta granica12, granica23;
};
/// The tax of `podst` by the formula of its bracket, two places, not below zero. Shows no message. Throws
/// `Blad` for a formula that cannot be computed.
[[nodiscard]] Waluta PodatekWedlugSkali(const SkalaPodatku& skala, Waluta podst, Rozmowa& rozmowa);
/// Settles `dochod`. `ubzdr` is what may be deducted, `zaliczki` what was paid.
[[nodiscard]] RozliczenieRoku Rozlicz(const SkalaPodatku& skala, Waluta dochod, Waluta skladki, Waluta ubzdr,
                                      Waluta zaliczki, Rozmowa& rozmowa);
/// Settles a PIT-40 by the amounts that it holds.
void RozliczPit40(const SkalaPodatku& skala, WierszDeklaracji& deklaracja, Rozmowa& rozmowa);

/// What is to be said of the amounts as they stand: lines whose income is not what income less costs
/// gives, and a settlement that its amounts do not give. A sentence for each; empty when all is well.
[[nodiscard]] QString UwagiDoKwot(const WierszDeklaracji& deklaracja, const SkalaPodatku& skala,
                                  Rozmowa& rozmowa);

} // namespace tornel::tax
