// Sick pay: the month's sick leaves priced into the payroll row, split between the employer and the insurer.
#pragma once
#include "payroll/lista/MiesiacPlac.h"
#include "payroll/lista/PytaniaListy.h"
#include "payroll/lista/WierszPlac.h"
#include "payroll/nieobecnosci/DaneNieobecnosci.h"
#include "payroll/nieobecnosci/WykazyPodstaw.h"

namespace tornel::payroll {

struct PodstawaL4;

/// The averages of the months before the open one, zł.
struct SrednieL4 {
    QList<LiniaWykazu> miesiace; ///< the latest first
    Waluta SredniaBrutto;        ///< before contributions
    Waluta SredniaNetto;         ///< after the employee's contributions
};

/// What the pricing reads beside the row.
struct DaneL4 {
    Nieobecnosci zwolnieniaRoku; ///< from 1 January to the end of the month
    int dniObowiazku = 0;        ///< `DniObowiazkuPracy` of the month
    SrednieL4 srednie;
};

struct WynikL4 {
    SkladnikiWiersza skladniki;
    int dniMies = 0; ///< days of the leaves priced
    int dniZUS = 0;  ///< of them, days that the insurer pays
    Waluta ZasilekChorobowy;
    ListaUwag uwagi;
};

/// Sick days from the start of the year to the day before the month. A leave that began in the year before
/// counts whole.
[[nodiscard]] int IleDotDniL4(Nieobecnosci zwolnieniaRoku, RokMies miesiac);
/// Whether a leave has a day in the month.
[[nodiscard]] bool SaZwolnieniaMiesiaca(Nieobecnosci zwolnieniaRoku, RokMies miesiac);
/// Whether days of the month's leaves lie beyond those that the employer pays.
[[nodiscard]] bool PlaciUbezpieczyciel(const MiesiacPlac& miesiac, Nieobecnosci zwolnieniaRoku);

inline constexpr int kNajwiecejMiesiecyL4 = 12;
/// The averages over these months; none gives zeros.
[[nodiscard]] SrednieL4 SredniaDoL4(const QList<PodstawaL4>& podstawy);
/// The same where the clerk left another gross average, which the row's own contributions reduce. Nothing
/// left is 0.
[[nodiscard]] SrednieL4 PoprawionaSrednia(SrednieL4 srednie, std::optional<Waluta> zostawiona,
                                          const WierszPlac& wiersz);

/// Amounts and periods of the components of constants 104 and 105, base salary and bonus as the answers want
/// it. `wiersz` gives the components and days. Throws `Blad` when the base salary cannot be divided by the
/// days due.
[[nodiscard]] WynikL4 WyliczL4(const MiesiacPlac& miesiac, const WierszPlac& wiersz,
                               const DanePracownika& pracownik, const DaneL4& dane,
                               const Odpowiedzi& odpowiedzi);

} // namespace tornel::payroll
