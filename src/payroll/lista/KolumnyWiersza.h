// The way between the records of the payroll and the table handles: which member is which column, told once.
#pragma once
#include "payroll/lista/WierszPlac.h"
#include "store/Tabela.h"

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::payroll {

/// The row on which `rsPLA`, `rsPLB`, `rsPLS`, `rsPLD` stand; a null is 0.
[[nodiscard]] WierszPlac WczytajWiersz(const Sesja& sesja);
/// The employee on whom the personnel handles stand; a null is 0. Throws `Blad` when `rsPRACPR` stands on
/// nobody; what the other tables lack is 0.
[[nodiscard]] DanePracownika WczytajPracownika(const Sesja& sesja);
/// Whether family, nursing or childcare benefits are counted for the employee on whom `rsPRACZUS` stands.
[[nodiscard]] bool MaIlosciZasilkow(const Sesja& sesja);
/// Sets, on the same row and in memory, the columns in which `wiersz` differs from `przedtem`. Throws
/// `Przepelnienie` for a number that its column cannot hold.
void ZapiszZmiany(Sesja& sesja, const WierszPlac& przedtem, const WierszPlac& wiersz);
/// Adds the four records of a row, in memory; the handles stand on it. Throws `Przepelnienie`.
void DopiszWiersz(Sesja& sesja, const WierszPlac& wiersz);

/// The amount of `wiersz` in a column of `PLA` or `PLB`; another column throws `Blad`.
[[nodiscard]] Waluta& KwotaKolumny(WierszPlac& wiersz, Kolumna kolumna);

} // namespace tornel::payroll
