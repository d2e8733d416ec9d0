// The earlier months' rows that the averages for sick pay and vacation pay are made of.
#pragma once
#include "common/Waluta.h"
#include "payroll/Odczyt.h"
#include <memory>
#include <QList>
#include <QString>
#include <vector>

class Sesja;

/// One month of one employee; all zero when there is no such month or he is not on its lists.
struct PodstawaMiesiaca {
    QString nazwa;       ///< year, a blank and the month's name
    Waluta skladniki;    ///< the chosen components of all his rows, zł
    qint64 dniPracy = 0; ///< working days, Saturdays and Sundays of his first row
    /// His contribution rates on the last of his rows, percent.
    Waluta wsk_feprc, wsk_frprc, wsk_fcprc;
};

/// Look-ups in the months before the open one, over the turn of the year.
class PodstawySrednich {
public:
    /// What is wanted beside the components: the rates (`PLB`) or the days (`PLA`).
    enum class Rodzaj { ZeStawkami, ZDniami };

    /// `skladniki`: numbers of components, counted as often as they stand there; others than 1 to 30 are left
    /// out.
    PodstawySrednich(Sesja& sesja, const QList<int>& skladniki, Rodzaj rodzaj, Odczyt odczyt);
    ~PodstawySrednich();

    /// The `ile` months before the open one, the latest first. Reads `PLACE` (its position is kept), `PLS`
    /// and `PLB` or `PLA` of the months. Throws `Blad` when a month stands on the list and its table is
    /// missing, `Przepelnienie` for a sum out of range.
    [[nodiscard]] QList<PodstawaMiesiaca> pracownika(qint64 prcId, int ile);

private:
    class Miesiac;

    Sesja& sesja_;
    QList<int> skladniki_;
    Rodzaj rodzaj_;
    Odczyt odczyt_;
    std::vector<std::unique_ptr<Miesiac>> miesiace_; // from the latest, opened when first needed
};
