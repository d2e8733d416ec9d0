// The payroll components in memory: what each of the thirty positive and fifteen negative ones is called and
// counts towards, and the bit masks by which a month keeps these flags.
#pragma once
#include "common/Przestrzenie.h"
#include <array>
#include <QString>

namespace tornel::store {
class Recordset;
class Sesja;
} // namespace tornel::store

namespace tornel::rules {

/// How many components there are.
inline constexpr int kDodatnich = 30;
inline constexpr int kUjemnych = 15;

/// One component. Negative ones have no codes.
struct Skladnik {
    bool akt = false;    ///< active: shown on the list and in the personnel file
    bool brutto = false; ///< counts towards gross pay
    bool zus = false;    ///< in the base of the social-insurance contributions
    bool ubzdr = false;  ///< in the base of health insurance
    QString nazwa;
    QString kodZUS;
    QString kodSwPrz; ///< benefit or break in the monthly report
};

/// The flags of all components: bit n-1 stands for component n.
struct Maski {
    quint32 akt_sp = 0, br_sp = 0, zus_sp = 0, ubzdr_sp = 0; ///< positive, bits 0 to 29
    quint16 akt_sm = 0, br_sm = 0, zus_sm = 0, ubzdr_sm = 0; ///< negative, bits 0 to 14

    /// From the current row of `PLACE`. Throws `Blad` without one.
    [[nodiscard]] static Maski zMiesiaca(const Recordset& rsPLACE);
    /// Into the current row of `PLACE`, in memory.
    void naMiesiac(Recordset& rsPLACE) const;

    bool operator==(const Maski&) const = default;
};

/// Whether `maska` has the bit of component `n`, counted from 1.
[[nodiscard]] constexpr bool maBit(quint32 maska, int n) { return (maska >> (n - 1) & 1U) != 0; }

/// The catalogue, shared by the whole program. Numbers count from 1; a number outside 1 to 30 (1 to 15 for
/// negative ones) throws `Blad`.
class SkladnikiPlac {
public:
    /// Reads the 45 records of `SZ_PL` through the session's handle, whose filter is taken off. Throws `Blad`
    /// that names the component whose record is missing; the catalogue then stays as it was.
    void WczytajSkladnikiPlac(Sesja& sesja);

    /// Replaces the four flags of every component with those that the month of the current `PLACE` row has
    /// kept, until the next `WczytajSkladnikiPlac`. Names and codes stay those of the catalogue.
    void WczytajSkladnikiMiesiaca(Sesja& sesja);

    [[nodiscard]] Maski maski() const;

    [[nodiscard]] const Skladnik& dodatni(int n) const;
    [[nodiscard]] const Skladnik& ujemny(int n) const;

    [[nodiscard]] bool SkAkt(int n) const { return dodatni(n).akt; }
    [[nodiscard]] const QString& SkNazwa(int n) const { return dodatni(n).nazwa; }
    [[nodiscard]] const QString& SkKodZUS(int n) const { return dodatni(n).kodZUS; }

    [[nodiscard]] bool SkUAkt(int n) const { return ujemny(n).akt; }
    [[nodiscard]] const QString& SkUNazwa(int n) const { return ujemny(n).nazwa; }

private:
    std::array<Skladnik, kDodatnich> dodatnie_;
    std::array<Skladnik, kUjemnych> ujemne_;
};

} // namespace tornel::rules
