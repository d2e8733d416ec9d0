// What the screens of the yearly declarations show, as a table, and where the values of their fields are.
#pragma once
#include "okna/RamkiPol.h"
#include "tax/DeklaracjeRoczne.h"

namespace tornel::tax {

/// The frames and tabs of a yearly declaration.
[[nodiscard]] QList<GrupaPol> GrupyDeklaracji(Deklaracja ktora);

/// The working row of a yearly declaration behind the fields of its screen: besides the columns themselves,
/// choices that stand as an "x" in one of several columns, the row "Razem", and the formulas of the scale,
/// which are not stored.
class ZrodloDeklaracji final : public ZrodloPol {
public:
    ZrodloDeklaracji(Deklaracja ktora, Recordset& wiersz, const Stale& stale)
        : ktora_(ktora), wiersz_(wiersz), skala_(stale) {}

    [[nodiscard]] Wartosc czytaj(const Pole& pole) const override;
    void zapisz(const Pole& pole, const Wartosc& wartosc) override;

    [[nodiscard]] const SkalaPodatku& skala() const { return skala_; }

private:
    Deklaracja ktora_;
    Recordset& wiersz_;
    SkalaPodatku skala_;
};

} // namespace tornel::tax
