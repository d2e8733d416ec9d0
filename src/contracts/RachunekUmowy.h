// The calculation of a contract from its gross amount to its net amount.
#pragma once
#include "common/Waluta.h"
#include "contracts/RodzajeUmow.h"
#include <array>

namespace tornel::contracts {

/// A contribution: its rate (percent) and its amount (zł).
struct SkladkaUmowy {
    Waluta wskaznik, kwota;
};

/// The amounts (zł) and rates (percent) of a contract as its screen shows them, with two places. What a kind
/// has no column for stays 0.
struct RachunekUmowy {
    /// In the order of the calculation; the contractor's own are taken off his pay.
    enum Fundusz { FEprd, FEprc, FRprd, FRprc, FCprc, FWprd, FP, FGSP, kFunduszy };

    Waluta Brutto, koszt_uz, Podatek, Netto, przelewem, Ubzdr;
    Waluta wskkuz, wskpod, wskubzdr;
    std::array<SkladkaUmowy, kFunduszy> skladki;

    /// Gross less the contractor's contributions.
    [[nodiscard]] Waluta poSkladkach() const;
};

/// The calculation from `krok` on. Each amount times rate is rounded to grosze, half to even. Throws
/// `Przepelnienie` when an amount leaves the range of money.
[[nodiscard]] RachunekUmowy Przelicz(RachunekUmowy rachunek, KrokUmowy krok);

/// The rachunek after a field was left with this amount: rounded to grosze, half to even; a transfer above
/// the net amount becomes 0; then calculated from the field's step. Throws `Przepelnienie`.
[[nodiscard]] RachunekUmowy PoOpuszczeniu(RachunekUmowy rachunek, const PoleUmowy& pole, Waluta kwota);

/// A number of the rachunek by its column ("Brutto", "wskfeprd"), in any case; none for another column.
[[nodiscard]] Waluta* PozycjaRachunku(RachunekUmowy& rachunek, std::string_view kolumna);

} // namespace tornel::contracts
