// What a certificate of work says of an employment: its days and posts, how it ended, and the absences that
// the next employer has to know of.
#pragma once
#include "personnel/RejestrNieobecnosci.h"
#include "personnel/UmowyOPrace.h"

namespace tornel::personnel {

struct OkresNaStanowisku {
    QString stanowisko; ///< may be empty
    QString etat;       ///< "pełny etat"
    ZakresDat zakres;
};

struct DaneSwiadectwa {
    UmowaOPrace umowa; ///< the contract that ended
    ZakresDat zatrudnienie;
    QList<OkresNaStanowisku> stanowiska; ///< one after the other
    /// Days of the year in which the employment ended: vacation taken and due, sick days paid by the employer
    /// (constant 102 at most), days off for the care of a child.
    qint64 urlop = 0, urlopNalezny = 0, chorobowe = 0, opieka = 0;
    /// Over the whole employment.
    QList<ZakresDat> bezplatne, wychowawcze, zwolnienia;
};

/// Of the contract `id`, or of that which the change `id` belongs to. Reads `UMOP`, `PRACPR`, `URL`, `ZW`.
/// Throws `Blad` for an unknown key and for a contract whose last day is not known.
[[nodiscard]] DaneSwiadectwa ZbierzSwiadectwo(Otoczenie& otoczenie, qint64 id);

} // namespace tornel::personnel
