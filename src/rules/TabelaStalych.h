// The one table of program constants: number, name, kind, default, caption, tab and the check of its field.
// Loading, saving, the screen of constants and the console all work from it.
#pragma once
#include "rules/Stale.h"
#include <QStringView>
#include <span>
#include <type_traits>
#include <variant>

namespace tornel::rules {

/// The tabs of the screen in order; `Brak` for constants that another screen keeps.
enum class KartaStalych {
    GrupyPodatkowe,
    StaleSystemu,
    Inne1,
    Inne2,
    Urlopy,
    L4,
    Nadgodziny,
    Uzytkownik1,
    Uzytkownik2,
    Uzytkownik3,
    ZUS1,
    ZUS2,
    PIT1,
    PIT2,
    PIT3,
    PIT4,
    MCS,
    KartaEwidencji,
    Brak,
};

/// What a field of the screen does with its text when it is left, and what the console accepts.
enum class SprawdzenieStalej {
    Kwota,        ///< money or percent: "0.00", a non-number becomes 0
    Calkowita,    ///< a whole number, a non-number becomes 0
    Zaokraglenie, ///< 0, 1 or 2 decimal places, anything else becomes 2
    NumerJedyny,  ///< component number 0 to 30, not 0 twice among all fields of this kind; otherwise put back
    Numer,        ///< component number 0 to 30, anything else becomes 0
    Wzor,         ///< formula: checked and shown in upper case, stored whatever the check says
    Nominal,      ///< a number gets " zł" or " gr" behind it, an empty field stays empty
    Tekst,
    Znak, ///< one character
    Data,
    Przelacznik, ///< check box
    Wybor,       ///< one of `opcje`, stored as its index from 0 (a boolean: False, True)
    Urzad,       ///< the number of a tax office, 0 for none
    Katalog,     ///< a folder; the default is the program's own
};

/// One element of a text array that has a number of its own.
struct ElementStalej {
    Stale::Teksty<10> Stale::*tablica;
    std::size_t nr; ///< from 0
};

/// Where the value lives; the alternative is the kind of the constant.
using PoleStalej =
    std::variant<int Stale::*, bool Stale::*, Waluta Stale::*, QDate Stale::*, QString Stale::*,
                 ElementStalej, Stale::Numery<3> Stale::*, Stale::Numery<4> Stale::*,
                 Stale::Numery<5> Stale::*, Stale::Numery<7> Stale::*, Stale::Numery<10> Stale::*,
                 Stale::Numery<20> Stale::*, Stale::Teksty<3> Stale::*, Stale::Teksty<7> Stale::*,
                 Stale::Teksty<10> Stale::*>;

struct StalaDef {
    int num; ///< key in table KON
    QStringView nazwa;
    PoleStalej pole;
    QStringView domyslna; ///< text stored when the record is missing; not used for `Katalog`
    QStringView napis;    ///< caption of the field
    KartaStalych karta;
    SprawdzenieStalej sprawdzenie;
    QStringView ramka = {}; ///< caption of the frame or group around the field, empty for none
    std::span<const QStringView> opcje =
        {}; ///< of `Wybor`: the choices; of an array: captions of its elements
};

/// All constants, tab by tab as the screen shows them.
[[nodiscard]] std::span<const StalaDef> tabelaStalych();
/// The row of constant `num`, null if there is no such constant.
[[nodiscard]] const StalaDef* znajdzStala(int num);
/// The captions of the eighteen tabs, indexed by `KartaStalych`.
[[nodiscard]] std::span<const QStringView> kartyStalych();

/// One callable made of several, one for each kind of value.
template <typename... F>
struct Warianty : F... {
    using F::operator()...;
};
template <typename... F>
Warianty(F...) -> Warianty<F...>;

/// Calls `f` with a reference to the value: int, bool, Waluta, QDate, QString, or a `std::array` of int or
/// QString.
template <typename S, typename F>
requires std::is_same_v<std::remove_const_t<S>, Stale>
decltype(auto) zPolemStalej(const StalaDef& stala, S& stale, F&& f) {
    return std::visit(
        [&](const auto& pole) -> decltype(auto) {
            if constexpr (std::is_same_v<std::remove_cvref_t<decltype(pole)>, ElementStalej>)
                return f((stale.*pole.tablica)[pole.nr]);
            else
                return f(stale.*pole);
        },
        stala.pole);
}

/// The parts of the table, each in a file of its own.
namespace stale_czesci {
[[nodiscard]] std::span<const StalaDef> place();
[[nodiscard]] std::span<const StalaDef> nieobecnosci();
[[nodiscard]] std::span<const StalaDef> firma();
[[nodiscard]] std::span<const StalaDef> deklaracje();
} // namespace stale_czesci

} // namespace tornel::rules
