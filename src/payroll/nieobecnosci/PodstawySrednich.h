// The earlier months' rows that the averages for sick pay and vacation pay are made of.
#pragma once
#include "common/Waluta.h"
#include "payroll/lista/Odczyt.h"
#include <memory>
#include <QList>
#include <QString>
#include <vector>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::rules {
struct Stale;
} // namespace tornel::rules

namespace tornel::payroll {

/// What one month gives to the average for sick pay; all zero when there is no such month or the employee is
/// not on its lists.
struct PodstawaL4 {
    QString miesiac;  ///< year, a blank and the month's name
    Waluta skladniki; ///< the components of constant 107 of all his rows, zł
    /// His contribution rates on the last of his rows.
    Stawka wsk_feprc, wsk_frprc, wsk_fcprc;
};

/// The same for vacation pay.
struct PodstawaUrlopu {
    QString miesiac;
    Waluta skladniki;    ///< the components of constant 206 of all his rows, zł
    qint64 dniPracy = 0; ///< working days, Saturdays and Sundays of his first row
};

/// Look-ups in the months before the open one, over the turn of the year, for one action. Each month's table
/// is opened when it is first needed.
class PodstawySrednich {
public:
    /// By constants 107 and 206, where a number counts as often as it stands there.
    PodstawySrednich(Sesja& sesja, const Stale& stale, Odczyt odczyt);
    ~PodstawySrednich();

    /// The `ile` months before the open one, the latest first. Reads `PLACE` (its position is kept), `PLS`,
    /// `PLB` of the months. Throws `Blad` when a month stands on the list and its table is missing,
    /// `Przepelnienie` for a sum out of range.
    [[nodiscard]] QList<PodstawaL4> doL4(qint64 prcId, int ile);
    /// The same from `PLS` and `PLA`.
    [[nodiscard]] QList<PodstawaUrlopu> doUrlopu(qint64 prcId, int ile);

private:
    class Miesiac;
    [[nodiscard]] Miesiac& miesiac(int wstecz);

    Sesja& sesja_;
    QList<int> skladnikiL4_, skladnikiUrlopu_;
    Odczyt odczyt_;
    std::vector<std::unique_ptr<Miesiac>> miesiace_; // from the latest
};

} // namespace tornel::payroll
