// Numbers typed, stored or shown as text, free of the machine's locale. A text that is no number is refused,
// never repaired.
#pragma once
#include "common/Waluta.h"
#include <optional>
#include <QString>

namespace tornel::common {

/// How a decimal number may be written.
enum class Zapis {
    /// Typed by the clerk, as money is written: blanks (also no-break ones) between thousands, a sign before
    /// or
    /// behind, "zł" at the end, a decimal comma or dot. Dots group thousands only where a comma follows;
    /// "1.500"
    /// alone could be either and is no number.
    Pole,
    Dane, ///< stored, exchanged or given to a command: a comma or a dot as the decimal mark, no grouping, a
          ///< sign before
    Wzor, ///< the formula language: a comma only, and an optional exponent ("1,5E+20")
};

/// A decimal number exactly as written: `cyfry` (ASCII digits) times ten to the power `wykladnik`.
struct LiczbaDziesietna {
    bool ujemna = false;
    QByteArray cyfry;
    qint64 wykladnik = 0;

    /// Half to even at the fourth decimal place, from the digits and not through a double. Throws
    /// `Przepelnienie`.
    [[nodiscard]] Waluta naKwote() const;
};

/// Takes a number apart: blanks around it, one optional sign, digits with at most one decimal mark ("5,",
/// ",5"), and what `zapis` allows besides. Nothing for any other text.
[[nodiscard]] std::optional<LiczbaDziesietna> RozbierzLiczbe(const QString& tekst, Zapis zapis);

/// Reads an amount, rounded half to even at the fourth place. Nothing for a text that is no number or leaves
/// the range of money.
[[nodiscard]] std::optional<Waluta> CzytajKwote(const QString& tekst, Zapis zapis = Zapis::Pole);
/// Reads a whole number from `min` to `max`: blanks around it, one optional sign, digits.
[[nodiscard]] std::optional<qint64> CzytajLiczbe(const QString& tekst, qint64 min, qint64 max);

/// As `CzytajKwote`; 0 where that gives nothing.
[[nodiscard]] Waluta KwotaAlboZero(const QString& tekst, Zapis zapis = Zapis::Pole);
/// As `CzytajLiczbe`; 0 where that gives nothing.
[[nodiscard]] qint64 LiczbaAlboZero(const QString& tekst, qint64 min, qint64 max);

/// "000".
[[nodiscard]] QString FormatNumeru(qint64 numer);

} // namespace tornel::common
