// Vacation pay: the month's vacation periods priced into the payroll row.
#pragma once
#include "common/Rozmowa.h"
#include "payroll/lista/Warsztat.h"

namespace tornel::payroll {

/// The daily rate of the months before the open one.
struct SredniaUrlopu {
    QList<LiniaWykazu> miesiace; ///< the latest first
    qint64 dni = 0;              ///< days worked in them
    Waluta StawkaDzienna;        ///< zł a day
};

class WynagrodzenieUrlop {
public:
    explicit WynagrodzenieUrlop(Warsztat& warsztat) : w_(warsztat) {}

    /// Fills the row on which the month's handles stand, in memory: the amounts and periods of the vacation
    /// components, the components that a vacation reduces, the average rate. Reads `URL`, `KALENDARZ` and the
    /// earlier months; changes `PLS`, `PLD`, `PLB`. Throws `Blad` when components are to be reduced in a
    /// month without days.
    void WyliczURL(Tryb tryb);

    /// `ile` months, at most 9. None or fewer gives zeros.
    [[nodiscard]] SredniaUrlopu SredniaDoUrlopu(qint64 prcId, int ile);

    /// By what the days of a period are counted.
    enum class Liczenie { Kalendarz, DniTygodnia };
    /// Days of the period: those not free in the calendar of the first day's month, the employee's own or the
    /// general one, and nothing when neither has that month; or those from Monday to Friday, with Saturdays
    /// by constant 200.
    [[nodiscard]] std::optional<int> WyliczIleDniUrl(qint64 prcId, QDate od, QDate dokad, Liczenie liczenie);

private:
    [[nodiscard]] Waluta stawka(qint64 prcId, Tryb tryb);
    [[nodiscard]] QList<OkresUrlopu> okresy(qint64 prcId, Nieobecnosci urlopy, Waluta stawka,
                                            Liczenie liczenie, Tryb tryb);
    void wpiszRazem(const QList<OkresUrlopu>& okresy, Tryb tryb);
    void wpiszKolejno(const QList<OkresUrlopu>& okresy);
    void wpiszWedlugKlerka(const QList<OkresUrlopu>& okresy);
    [[nodiscard]] std::optional<int> wybranySkladnik(const OkresUrlopu& okres, int proponowany);
    void przeliczSkladniki();

    Warsztat& w_;
};

} // namespace tornel::payroll
