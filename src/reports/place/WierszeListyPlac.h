// The rows of an open payroll list as prints see them.
#pragma once
#include "common/RokMies.h"
#include "druk/Wiersze.h"
#include "payroll/lista/Pozycje.h"
#include "rules/Otoczenie.h"
#include "store/Recordset.h"
#include <QStringList>

namespace tornel::payroll {
class ListaPlac;
} // namespace tornel::payroll

namespace tornel::reports {

/// The fields of a row. Behind the last of them stand the components: `polePlusa(1)` to `polePlusa(30)`,
/// `poleMinusa(1)` to `poleMinusa(15)`.
enum PoleListyPlac : int {
    Numer,
    Osoba,
    SymbolListy,
    Brutto,
    SkladkiPracownika,
    Koszty,
    Dochod,
    PodatekPrzed,
    Ulga,
    Zdrowotna,
    ZdrowotnaNalezna,
    Zaliczka,
    Dodatki,
    Potracenia,
    DoWyplaty,
    Przelewem,
    Gotowka,
    Emerytalna,
    Rentowa,
    Chorobowa,
    DniPracy,
    DniUrlopu,
    DniChorobowe,
    Slownie,
    SpisNalezne,   ///< names of the additive components with an amount, one below the other
    SpisKwot,      ///< and their amounts
    SpisPotracane, ///< the same of deductions, contributions and tax
    SpisKwotPotracanych,
    OstatniePole
};
constexpr int polePlusa(int nr) { return OstatniePole + nr - 1; }
constexpr int poleMinusa(int nr) { return OstatniePole + 30 + nr - 1; }
inline constexpr int kPolListyPlac = OstatniePole + 45;

/// The firm, the month and the components by name: what a print says of a list besides its rows.
struct NaglowekListyPlac {
    QString firma;
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
