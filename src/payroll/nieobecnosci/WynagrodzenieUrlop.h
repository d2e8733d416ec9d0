// Vacation pay: the month's vacation periods priced into the payroll row.
#pragma once
#include "payroll/lista/MiesiacPlac.h"
#include "payroll/lista/PytaniaListy.h"
#include "payroll/lista/WierszPlac.h"
#include "payroll/nieobecnosci/DaneNieobecnosci.h"
#include "payroll/nieobecnosci/WykazyPodstaw.h"

namespace tornel::payroll {

struct PodstawaUrlopu;

/// The daily rate of the months before the open one.
struct SredniaUrlopu {
    QList<LiniaWykazu> miesiace; ///< the latest first
    qint64 dni = 0;              ///< days worked in them
    Waluta StawkaDzienna;        ///< zł a day
};

/// A period to be priced.
struct OkresDoWyceny {
    QDate od, dokad;
    Waluta Kwota;           ///< fixed, zł; 0 for none
    std::optional<int> dni; ///< nothing: the calendar that was wanted lacks the month
};

/// What the pricing reads beside the row.
struct DaneUrlopu {
    QList<OkresDoWyceny> okresy;
    Waluta StawkaDzienna;
    /// The component of each period, none where it is left out. Empty: all go to the one of constant 203.
    QList<std::optional<int>> skladniki;
};

struct WynikUrlopu {
    SkladnikiWiersza skladniki;
    ListaUwag uwagi;
};

inline constexpr int kNajwiecejMiesiecyUrlopu = 9;
/// The rate over these months; none gives zeros.
[[nodiscard]] SredniaUrlopu SredniaDoUrlopu(const QList<PodstawaUrlopu>& podstawy);

/// The periods that earn, cut to the month, their days not yet counted.
[[nodiscard]] QList<OkresDoWyceny> OkresyUrlopow(RokMies miesiac, Nieobecnosci urlopy);
/// Days of the period that are not free in the calendar of its first day's month; nothing without one.
[[nodiscard]] std::optional<int> DniWedlugKalendarza(const OkresDoWyceny& okres,
                                                     const std::optional<DniKalendarza>& kalendarz);
/// Days of the period from Monday to Friday, with Saturdays by constant 200.
[[nodiscard]] int DniWedlugTygodnia(const MiesiacPlac& miesiac, const OkresDoWyceny& okres);
/// What a period comes to.
[[nodiscard]] OkresUrlopu WycenOkres(const OkresDoWyceny& okres, Waluta StawkaDzienna);
/// The components of constant 208 for so many periods, 0 where there is none.
[[nodiscard]] QList<int> ProponowaneSkladniki(const MiesiacPlac& miesiac, qsizetype okresow);

/// The amounts and periods of the vacation components, and the components that a vacation reduces, as the
/// answers want it. `wiersz` gives the components and days. Throws `Blad` when components are to be reduced
/// in a month without days.
[[nodiscard]] WynikUrlopu WyliczURL(const MiesiacPlac& miesiac, const WierszPlac& wiersz,
                                    const DaneUrlopu& dane, const Odpowiedzi& odpowiedzi);

} // namespace tornel::payroll
