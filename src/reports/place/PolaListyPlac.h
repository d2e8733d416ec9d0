// The fields of a payroll row as prints see them, and the columns they come from.
#pragma once
#include "common/RokMies.h"
#include "rules/Otoczenie.h"
#include "store/Tabela.h"
#include <QStringList>
#include <span>

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
    EmerytalnaPracodawcy,
    RentowaPracodawcy,
    Wypadkowa,
    FunduszPracy,
    Fgsp,
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

/// A field that is a column as it stands.
struct PoleKolumna {
    PoleListyPlac pole;
    Kolumna kolumna;
    QStringView nazwa;
};
[[nodiscard]] std::span<const PoleKolumna> kolumnyListyPlac();

/// What the components are called in the month, by number from 1 to 45: those of a blocked month as it has
/// kept them, of any other as the catalogue has them today; element 0 is empty. Reads `PLACE`, `PLACEN`.
[[nodiscard]] QStringList NazwySkladnikow(Otoczenie& otoczenie, RokMies miesiac);

} // namespace tornel::reports
