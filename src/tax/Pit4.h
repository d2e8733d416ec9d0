// PIT-4: the monthly declarations of withheld tax advances, made from a payroll month and edited by hand.
#pragma once
#include "common/RokMies.h"
#include "rules/Otoczenie.h"
#include "store/Recordset.h"
#include "tax/Deklaracja.h"
#include "tax/Przychody.h"
#include <optional>
#include <QDate>

namespace tornel::tax {

/// Year, month and the number within the month.
struct KluczPit4 {
    RokMies miesiac;
    int numer = 0;

    /// Eight digits, as the list shows it: "20010501".
    [[nodiscard]] QString napis() const { return miesiac.klucz() + FormatMiesiaca(numer); }
    /// A number for lists, in the declarations' order.
    [[nodiscard]] qint64 id() const { return miesiac.id() * kNumerow + numer; }
    [[nodiscard]] static KluczPit4 zId(qint64 id) {
        return {RokMies::zId(id / kNumerow), static_cast<int>(id % kNumerow)};
    }
    friend constexpr auto operator<=>(const KluczPit4&, const KluczPit4&) = default;

private:
    static constexpr qint64 kNumerow = 100'000;
};

/// The sums of the print, zł: line 9, the amount after lines 10 to 16, the amount to pay.
struct SumyPit4 {
    Waluta SUMA1, SUMA2, SUMA3;
};

/// Columns of line `n`: 1 to 8 have six, 10 to 17 their number and `pob_zal`. They stand block by block in
/// the table, and the screen walks them by position.
namespace wierszPit4 {
inline constexpr int Zrodel = 8;
inline constexpr int OdPozycji = 10, DoPozycji = 17;
enum Kolumny { nr_p, przy, kup, pob_zal, ubzdr_pob, ubzdr_odl };
[[nodiscard]] Kolumna zrodlo(int n, Kolumny ktora);
[[nodiscard]] Kolumna numerPozycji(int n);
[[nodiscard]] Kolumna kwotaPozycji(int n);
} // namespace wierszPit4

class Pit4 {
public:
    /// Opens `rsPIT4`, sorted by year, month and number. Throws `BladBazy`.
    explicit Pit4(Otoczenie& otoczenie);

    /// In their order.
    [[nodiscard]] QList<KluczPit4> lista() const;
    /// Moves `rsPIT4` to the declaration. False, and nothing moves, if there is none.
    bool zaznacz(const KluczPit4& klucz);
    /// Makes a declaration of all lists of the month and makes it current; a missing or empty month is asked
    /// about. Nothing, after a message, when the key is taken, or when the clerk refuses. `listy` is stored
    /// only. Reads `PLACE`, the month's `PLA`, `PLB`; writes `PIT4`.
    [[nodiscard]] std::optional<KluczPit4> Nowy(const KluczPit4& klucz, const QString& listy, QDate dzis);
    /// Asks and deletes. False on No. Throws `Blad` if there is no such declaration.
    bool Usun(const KluczPit4& klucz);

    /// What line 1 of the current declaration holds.
    [[nodiscard]] Wiersz1Pit4 zapisane() const;
    /// What it would hold were it made now; nothing if the month is gone or has no rows. A difference from
    /// `zapisane` means that the month, or line 1, was changed after the declaration was made.
    [[nodiscard]] std::optional<Wiersz1Pit4> dzisiejsze() const;

private:
    [[nodiscard]] bool jestNaLiscie(const KluczPit4& klucz);
    /// The sums that line 1 begins with; nothing when the clerk wants no empty declaration.
    [[nodiscard]] std::optional<Wiersz1Pit4> sumyNowej(RokMies miesiac);
    void wpiszNowa(const KluczPit4& klucz, const QString& listy, const Wiersz1Pit4& sumy, QDate dzis);

    Otoczenie& o_;
    Recordset& rs_;
};

/// A month of the year's control: PIT-4 against the advances that PIT-11 takes.
struct KontrolaPit4 {
    RokMies miesiac;
    std::optional<Waluta> pit4; ///< line 1 of the month's first declaration; nothing without one
    KontrolaMiesiaca place;

    /// What neither reduction, health insurance nor rounding explains: rows that do not add up, and a
    /// declaration that is missing, was edited, or is older than a change of the month.
    [[nodiscard]] Waluta niewyjasnione() const {
        return place.niewyjasnione + pit4.value_or(Waluta{}) - place.naliczony;
    }
};
/// The twelve months; one without a payroll has zeros. Reads `PIT4`, `PLACE`, the months' `PLA`, `PLB`.
[[nodiscard]] QList<KontrolaPit4> KontrolaRoku(Otoczenie& otoczenie, int rok);

/// Of one declaration. Throws `Przepelnienie`.
[[nodiscard]] SumyPit4 SumyDeklaracji(const Wiersz& deklaracja);
[[nodiscard]] SumyPit4 SumyDeklaracji(const WierszDeklaracji& deklaracja);

} // namespace tornel::tax
