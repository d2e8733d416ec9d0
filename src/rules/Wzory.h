// modWzory: the formula language of rates and tax brackets, an array of text tokens rewritten in place.
#pragma once
#include "common/Blad.h"
#include "common/Waluta.h"
#include <array>
#include <optional>
#include <QString>
#include <vector>

namespace tornel::common {
class Rozmowa;
} // namespace tornel::common

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::rules {

/// Bits of the result word.
namespace bityWzoru {
inline constexpr int PustyWzor = 1;
inline constexpr int Skladnia = 2;
inline constexpr int DzieleniePrzezZero = 4;
inline constexpr int UjemnyPierwiastek = 8;
inline constexpr int NieznanaZmienna = 16; ///< the token counts as 0 and the evaluation goes on
inline constexpr int BrakRekordu = 32;     ///< a source record or table is missing; the evaluation goes on
inline constexpr int Przerywajace = PustyWzor | Skladnia | DzieleniePrzezZero | UjemnyPierwiastek;
} // namespace bityWzoru

/// Bits of the mode word: which messages are shown during the evaluation.
namespace trybWzoru {
inline constexpr int NieznaneZmienne = 1;
inline constexpr int BledyWzoru = 2;
inline constexpr int BrakiRekordow = 4;
} // namespace trybWzoru

/// A formula that cannot be carried to an end: an operator at the very end, a number out of range, a power
/// without a value, LU16 to LU30.
class BladWzoru : public Blad {
public:
    using Blad::Blad;
};

/// The variables of the language, all 0 until set. Element 0 of an array is variable 1.
struct ZmienneWzoru {
    Waluta DOCH, SGP, STZ, STC, WS1, WS2;
    std::array<Waluta, 30> DD{};
    std::array<Waluta, 15> DU{};
    std::array<Waluta, 30> LD{};
    std::array<Waluta, 15> LU{};

    /// Sets the variable of this exact name ("DOCH", "DD1", ...). False if there is none.
    [[nodiscard]] bool ustaw(const QString& nazwa, Waluta wartosc);
    /// The value that `token` reads in a formula, nothing for an unknown variable. Throws `BladWzoru` for
    /// LU16 to LU30.
    [[nodiscard]] std::optional<Waluta> odczytaj(const QString& token) const;
};

/// The evaluator. The variables live between calls: one that cannot be loaded keeps its value.
class Wzory {
public:
    /// Tokens at 1 to N; index 0 always holds the empty text. The array keeps its size, only the live count
    /// shrinks.
    using Tokeny = std::vector<QString>;

    /// Without a session: only the variables that the caller sets.
    explicit Wzory(Rozmowa& rozmowa) : rozmowa_(rozmowa) {}
    /// Each evaluation loads the variables from the rows on which the session's handles stand.
    Wzory(Sesja& sesja, Rozmowa& rozmowa) : sesja_(&sesja), rozmowa_(rozmowa) {}

    /// The value of `wzor`; 0 after a fatal bit. `flags` takes the mode word (`trybWzoru`) and gives the
    /// result word
    /// (`bityWzoru`). Reads `PRACPR`, `PRACSK` and the open `PLS`. Throws `BladWzoru`.
    [[nodiscard]] Waluta ObliczWzor(const QString& wzor, int& flags);

    /// Loads the variables: STZ and STC from `PRACPR`; DD, DU, WS1, WS2 from `PRACSK`; LD and LU from the
    /// open `PLS`. Moves no handle. A source without a current row sets bit 32 and leaves its variables.
    void WczytajZmienne(int& flags);
    /// The value of one token, a number or a variable; 0 and bit 16 for anything else. Throws `BladWzoru` or
    /// `Przepelnienie`.
    [[nodiscard]] Waluta WartoscTokenu(const QString& token, int& flags);
    /// Reduces the operators from `pierwszy` to `ostatni`: first % ^ # * /, then + -, each level from the
    /// left. Throws `BladWzoru` or `Przepelnienie`.
    void RedukujZakres(int pierwszy, int ostatni, Tokeny& tokeny, int& ile, int& flags);
    /// Moves the tokens left over the emptied ones and lowers `ostatni` by the number of these.
    static void ScalTokeny(Tokeny& tokeny, int& ile, int& ostatni);
    /// Shows the messages of the fatal bits in `flags`, if the mode of the call wants them.
    void RaportujBladWzoru(int flags);

    ZmienneWzoru zmienne;

private:
    [[nodiscard]] Waluta obliczTekst(const QString& wzor, int& flags);
    [[nodiscard]] Waluta obliczTokeny(Tokeny& tokeny, int& flags);
    void rozwiazNawiasy(Tokeny& tokeny, int& ile, int& flags);
    void zastosujOperator(Tokeny& tokeny, int pozycja, int& flags);
    void brakRekordu(const QString& tabela, int& flags);

    Sesja* sesja_ = nullptr;
    Rozmowa& rozmowa_;
    int tryb_ = 0;
};

/// What a screen shows after it has checked a formula field (mode 1): "BŁĄD SKŁADNI" for bit 2, "BŁĄD
/// ZMIENNEJ" for bit 16. Other bits are not reported.
void ErrorWzor(int flags, Rozmowa& rozmowa);

/// What leaving a formula field does: computes it (mode 1) and shows what was wrong. Gives the text to stand
/// in the field, in upper case.
[[nodiscard]] QString SprawdzPoleWzoru(Wzory& wzory, const QString& tekst, Rozmowa& rozmowa);

} // namespace tornel::rules
