// What the monthly reports say of one employee: sums over his list rows of the month.
#pragma once
#include "common/Waluta.h"
#include <array>
#include <QDate>
#include <QString>

namespace tornel::zus {

/// A benefit or a break.
struct WpisSwiadczenia {
    QString kod;
    QDate od, dokad;
    Waluta kwota; ///< zł
};
inline constexpr std::size_t kWpisowRNA = 10;

struct DaneRaportu {
    QString identyfikator; ///< of the report, as the clerk gave it
    /// Whether the month has a row of the employee; without one the lines about him are not written.
    bool jest = false;
    QString nazwisko, imie;

    // zł. The bases, then the insured's and the employer's contributions.
    Waluta BaseZus, BaseZdr;
    Waluta Feprc, Frprc, FcPrc, Ubzdr, Feprd, Frprd, fwprd;
    Waluta Ppe;
    Waluta skladki; ///< sum of the seven contributions
    int zRodz = 0;  ///< family and nursing benefits, how many
    int zPiel = 0;
    Waluta Rodzinne, Wychowawcze, Pielegnacyjne;
    Waluta zasilki; ///< sum of the three
    int dni = 0;    ///< days of the month on the list
    int dniObowiazku = 0;

    // RNA.
    std::array<WpisSwiadczenia, kWpisowRNA> wpisy;
    int wpisow = 0;
    Waluta sumaWpisow; ///< zł

    // RZA, of list rows and contracts, zł.
    Waluta podstawaZdr, skladkaZdr;

    WpisSwiadczenia przerwa; ///< of the RSA block that is being written
};

} // namespace tornel::zus
