// What the screen of employment contracts shows, as tables.
#pragma once
#include "okna/frmListaPol.h"
#include "personnel/PortUmowOPrace.h"

namespace tornel::personnel {

struct PozycjaDrukuUmoP {
    PismoOPrace pismo;
    QStringView napis;
};
[[nodiscard]] std::span<const PozycjaDrukuUmoP> MenuDrukuUmoP();

/// How far ahead the filter looks for contracts that run out.
struct OkresKonczacych {
    QStringView napis;
    int miesiecy; ///< 0 for all contracts
};
[[nodiscard]] std::span<const OkresKonczacych> OkresyKonczacych();

/// List, frames and buttons (change of terms, personnel file, prints in this order).
[[nodiscard]] OpisListyPol OpisUmoP(Otoczenie& otoczenie);
/// The kind in the narrow column of the list.
[[nodiscard]] QString RodzajNaLiscie(const UmowaOPrace& umowa);

} // namespace tornel::personnel
