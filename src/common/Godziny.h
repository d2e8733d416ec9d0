// Hours of work: their arithmetic, their text and what they are worth.
#pragma once
#include "common/Waluta.h"
#include <compare>
#include <optional>
#include <QString>

namespace tornel::common {

/// Hours, negative ones being corrections. They are typed with two decimal places; what a file holds counts
/// to the fourth place, exactly as an amount does. An overflow throws `Przepelnienie`.
class Godziny {
public:
    constexpr Godziny() = default;
    explicit constexpr Godziny(Waluta dziesietnie) : dziesietnie_(dziesietnie) {}

    [[nodiscard]] static constexpr Godziny calych(int ile) {
        return Godziny(Waluta::zSurowej(std::int64_t{ile} * 10000));
    }
    /// From a column's value, as `Waluta::zLiczby` takes it.
    [[nodiscard]] static Godziny zLiczby(double liczba) { return Godziny(Waluta::zLiczby(liczba)); }
    /// The value for a column.
    [[nodiscard]] double naLiczbe() const { return dziesietnie_.naLiczbe(); }
    /// The number of hours as an exact decimal.
    [[nodiscard]] constexpr Waluta dziesietnie() const { return dziesietnie_; }
    [[nodiscard]] constexpr bool zero() const { return dziesietnie_.zero(); }

    Godziny& operator+=(Godziny b) {
        dziesietnie_ += b.dziesietnie_;
        return *this;
    }
    friend Godziny operator+(Godziny a, Godziny b) { return a += b; }
    friend Godziny operator-(Godziny a) { return Godziny(-a.dziesietnie_); }
    friend constexpr auto operator<=>(Godziny, Godziny) = default;

private:
    Waluta dziesietnie_;
};

/// What `godziny` are worth, zł, at `stawkaGodzinowa` zł an hour: formed exactly and rounded once, half to
/// even, to four places. Throws `Przepelnienie`.
[[nodiscard]] Waluta KwotaZaGodziny(Godziny godziny, Waluta stawkaGodzinowa);

/// "0.0" with a decimal comma, half away from zero as a display does: 1,25 shows as "1,3".
[[nodiscard]] QString FormatGodzin(Godziny godziny);
/// The shortest exact form with a decimal comma: "2,5", "-8".
[[nodiscard]] QString TekstGodzin(Godziny godziny);

/// Reads hours up to `najwiecej` in either direction (negative ones are corrections), whole hours and at most
/// two decimal places behind a comma or a dot; an empty text is 0. Nothing for any other text.
[[nodiscard]] std::optional<Godziny> CzytajGodziny(const QString& tekst, Godziny najwiecej);

} // namespace tornel::common
