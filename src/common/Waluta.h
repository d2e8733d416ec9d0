// Money: a whole number of 1/10000 zł, and every rounding that the payroll knows.
#pragma once
#include "common/Przestrzenie.h"
// First, since moc cannot read the concepts that <compare> brings where Qt's own headers have not been
// before.
#include <QString>

#include <compare>
#include <cstdint>

namespace tornel::common {

/// An amount in zł (or a stored percentage, which becomes a `Stawka` where it is calculated with) with
/// exactly four decimal places. Addition, subtraction and comparison are exact; an overflow throws
/// `Przepelnienie`. There is no conversion from double without a named rounding.
class Waluta {
public:
    constexpr Waluta() = default;

    /// From the raw number of 1/10000 zł.
    [[nodiscard]] static constexpr Waluta zSurowej(std::int64_t dziesieciotysieczne) {
        Waluta w;
        w.surowa_ = dziesieciotysieczne;
        return w;
    }
    /// From whole złoty. Throws `Przepelnienie`.
    [[nodiscard]] static Waluta zlotych(std::int64_t zl);
    /// From a double taken at its 15 significant decimal digits, half to even at the fourth place. Throws
    /// `Przepelnienie` for what the range cannot hold, infinities and NaN included.
    [[nodiscard]] static Waluta zLiczby(double liczba);

    [[nodiscard]] constexpr std::int64_t surowa() const { return surowa_; }
    /// The value as a double, for the formula language and for display outside the sums only.
    [[nodiscard]] double naLiczbe() const { return static_cast<double>(surowa_) / 10000.0; }
    [[nodiscard]] constexpr bool zero() const { return surowa_ == 0; }

    Waluta& operator+=(Waluta b);
    Waluta& operator-=(Waluta b);
    friend Waluta operator+(Waluta a, Waluta b) { return a += b; }
    friend Waluta operator-(Waluta a, Waluta b) { return a -= b; }
    friend Waluta operator-(Waluta a) { return Waluta{} -= a; }
    friend constexpr auto operator<=>(Waluta, Waluta) = default;

private:
    std::int64_t surowa_ = 0;
};

/// A rate in percent with exactly four decimal places. A type of its own, so that a calculation cannot take
/// it for an amount.
class Stawka {
public:
    constexpr Stawka() = default;
    explicit constexpr Stawka(Waluta procent) : procent_(procent) {}

    [[nodiscard]] constexpr Waluta procent() const { return procent_; }
    friend constexpr auto operator<=>(Stawka, Stawka) = default;

private:
    Waluta procent_;
};

/// Rounds to `miejsca` decimal places (0 to 4; more leaves the value), half to even.
[[nodiscard]] Waluta Round(Waluta kwota, int miejsca);

/// `stawka` of `kwota`, formed exactly and rounded once, half to even, to `miejsca` places.
[[nodiscard]] Waluta Procent(Waluta kwota, Stawka stawka, int miejsca = 4);

/// `kwota` * `licznik` / `mianownik`, formed exactly and rounded once, half to even, to `miejsca` places.
/// Throws `Blad` for a zero `mianownik`.
[[nodiscard]] Waluta Proporcja(Waluta kwota, std::int64_t licznik, std::int64_t mianownik, int miejsca = 4);

/// The product of two amounts (money multiplication), rounded once to four places.
[[nodiscard]] Waluta Iloczyn(Waluta a, Waluta b);

/// The larger of zero and `kwota`.
[[nodiscard]] inline Waluta NieMniejNizZero(Waluta kwota) { return kwota < Waluta{} ? Waluta{} : kwota; }

/// "0.00" with a decimal comma, half away from zero as a display does: 9,765 shows as "9,77", -0,004 as
/// "0,00".
[[nodiscard]] QString FormatKwoty(Waluta kwota);
/// The same with the thousands set apart by no-break blanks, for reading only: "1 234 567,89".
[[nodiscard]] QString NapisKwoty(Waluta kwota);
/// The shortest exact form with a decimal comma: "1505,2", "-3", "0,0001".
[[nodiscard]] QString TekstKwoty(Waluta kwota);

} // namespace tornel::common
