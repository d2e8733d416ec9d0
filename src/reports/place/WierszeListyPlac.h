// The rows of an open payroll list as prints see them.
#pragma once
#include "common/RokMies.h"
#include "druk/Wiersze.h"
#include "payroll/lista/Pozycje.h"
#include "reports/Firma.h"
#include "reports/place/PolaListyPlac.h"
#include "rules/Otoczenie.h"
#include "store/Recordset.h"
#include <QStringList>

namespace tornel::payroll {
class ListaPlac;
} // namespace tornel::payroll

namespace tornel::reports {

/// The month and the components by name: what a print says of a list besides its rows.
struct NaglowekListyPlac {
    Firma firma;
    RokMies miesiac;
    QString symbol;                         ///< blank for all lists
    QStringList plusy, minusy;              ///< names by number, from 1; element 0 is empty
    QList<int> uzywanePlusy, uzywaneMinusy; ///< numbers of the positions in use, ascending
};

class WierszeListyPlac final : public WierszeDruku {
public:
    /// The rows of the list in work, or of one employee. They are read from the session's handles each time a
    /// page is drawn, so the month stays open and unchanged for as long as the print lives.
    WierszeListyPlac(Otoczenie& otoczenie, const ListaPlac& lista, std::optional<qint64> prcId = {});

    [[nodiscard]] const NaglowekListyPlac& naglowek() const { return naglowek_; }
    [[nodiscard]] int ile() const override { return static_cast<int>(wiersze_.size()); }
    [[nodiscard]] Wartosc pole(int wiersz, int nr) const override;
    /// Whether some row has an amount of the component.
    [[nodiscard]] bool uzyty(int pole) const;

private:
    struct Rekordy {
        Zakladka a, b, s;
    };
    [[nodiscard]] QString spis(int wiersz, int nr) const;

    Sesja& sesja_;
    NaglowekListyPlac naglowek_;
    std::vector<Rekordy> wiersze_;
};

/// The names of the fields for a CSV.
[[nodiscard]] QList<QString> nazwyPolListyPlac(const NaglowekListyPlac& naglowek);

} // namespace tornel::reports
