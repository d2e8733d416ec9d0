// What the declarations take from payroll months and contracts: the sums of one employee, or of all at once.
#pragma once
#include "common/RokMies.h"
#include "common/Waluta.h"
#include "store/Tabela.h"
#include <optional>
#include <QHash>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::tax {

/// From one month to another, both included; any number of years.
struct OkresPodatkowy {
    RokMies od;
    RokMies dokad;
};

/// Sums over payroll rows, zł.
struct SumyPlac {
    Waluta przychod; ///< active components that count to the gross, by the masks of each month
    Waluta koszty;   ///< `KUP`
    Waluta zaliczka; ///< `PODATEK`
    Waluta skladki;  ///< employee's pension, disability and sickness contributions
    Waluta ubzdr;    ///< health insurance: `UBZDR` and `UBZDR_NAL`
    Waluta ubzdr_nal;
};

/// Of one employee; zeros for somebody without a row. Months that do not exist add nothing. All lists of a
/// month count; a row of `PLA` without its partner in `PLB` adds nothing, deliberately. Reads `PLACE`, the
/// months' `PLA`, `PLB`, `PLS`. Throws `BladBazy`, and `Blad` for a month whose table is missing.
[[nodiscard]] SumyPlac SumyPracownika(Sesja& sesja, const OkresPodatkowy& okres, qint64 prcId);
/// The same of everybody who has a row, in one reading of each month.
[[nodiscard]] QHash<qint64, SumyPlac> SumyWszystkich(Sesja& sesja, const OkresPodatkowy& okres);

/// What the first line of PIT-4 takes from a month.
struct Wiersz1Pit4 {
    int podatnikow = 0;
    Waluta przychod; ///< gross less the employee's contributions
    Waluta zaliczka; ///< tax before deductions
    Waluta ubzdr;

    friend bool operator==(const Wiersz1Pit4&, const Wiersz1Pit4&) = default;
};
/// Nothing when `PLA` has no rows. Reads `PLA`, `PLB` of a month that exists.
[[nodiscard]] std::optional<Wiersz1Pit4> PodsumujMiesiac(Sesja& sesja, RokMies miesiac);

/// A month held against itself: PIT-4 takes the tax before deductions, PIT-11 the advance. zł.
struct KontrolaMiesiaca {
    Waluta naliczony, zaliczka;
    Waluta ulga;          ///< the monthly reduction, as far as there was tax
    Waluta ubzdr;         ///< health insurance deducted
    Waluta zaokraglenie;  ///< of the advances, row by row
    Waluta niewyjasnione; ///< of rows whose rest is more than a rounding
};
/// `zaokragl` is the number of places that advances are rounded to. Reads `PLA`, `PLB` of a month that
/// exists.
[[nodiscard]] KontrolaMiesiaca SprawdzMiesiac(Sesja& sesja, RokMies miesiac, int zaokragl);

/// Sums over contracts, zł. A fee has no contributions.
struct SumyUmow {
    Waluta brutto, koszty, podatek, skladki, ubzdr;

    SumyUmow& operator+=(const SumyUmow& b);
};

/// Contracts of the tables `UZL`, `UOD` or `HON` that were paid in the months, by the day of payment; one
/// without it never counts. Of one employee, or of everybody.
[[nodiscard]] SumyUmow SumujUmowy(Sesja& sesja, const TabelaDef& tabela, const OkresPodatkowy& okres,
                                  qint64 prcId);
[[nodiscard]] QHash<qint64, SumyUmow> SumujUmowyWszystkich(Sesja& sesja, const TabelaDef& tabela,
                                                           const OkresPodatkowy& okres);

} // namespace tornel::tax
