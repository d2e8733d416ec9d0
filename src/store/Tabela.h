// What a table and a column are: the types behind the one declarative schema.
#pragma once
#include "common/Przestrzenie.h"
#include <cstdint>
#include <limits>
#include <span>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace tornel::store {

/// The column types by their words in the schema. Stored as: `Currency` a whole number of 1/10000, `Date`
/// text YYYY-MM-DD, the other numbers as numbers, text as UTF-8.
enum class Typ { Byte, Short, Integer, Currency, Single, Double, Text, Char, Memo, Date };

/// The least and the greatest whole number that a column of the type holds; of `Currency`, in 1/10000. The
/// word SHORT is kept in the schema, but employee numbers and counts go beyond 16 bits.
constexpr std::pair<std::int64_t, std::int64_t> zakresTypu(Typ typ) {
    switch (typ) {
    case Typ::Byte:
        return {0, 255};
    case Typ::Short:
    case Typ::Integer:
        return {std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()};
    default:
        return {std::numeric_limits<std::int64_t>::min() + 1, std::numeric_limits<std::int64_t>::max()};
    }
}

/// The kinds of values; every type holds one of them.
enum class RodzajWartosci : std::uint8_t { Calkowita, Kwota, Rzeczywista, Tekst, Data };

constexpr RodzajWartosci rodzajWartosci(Typ typ) {
    switch (typ) {
    case Typ::Currency:
        return RodzajWartosci::Kwota;
    case Typ::Single:
    case Typ::Double:
        return RodzajWartosci::Rzeczywista;
    case Typ::Text:
    case Typ::Char:
    case Typ::Memo:
        return RodzajWartosci::Tekst;
    case Typ::Date:
        return RodzajWartosci::Data;
    default:
        return RodzajWartosci::Calkowita;
    }
}
constexpr bool jestTekstem(Typ typ) { return rodzajWartosci(typ) == RodzajWartosci::Tekst; }
constexpr bool jestRzeczywista(Typ typ) { return rodzajWartosci(typ) == RodzajWartosci::Rzeczywista; }

struct KolumnaDef {
    std::string_view nazwa;
    Typ typ = Typ::Short;
    int rozmiar = 0;       ///< characters of `Text` and `Char`, otherwise 0
    bool wymagana = false; ///< NOT NULL
    bool tajna = false;    ///< its values never enter the journal
};

/// ASCII names are compared without regard to case, as the program has always written them both ways.
constexpr bool teSameNazwy(std::string_view a, std::string_view b) {
    constexpr auto mala = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (mala(a[i]) != mala(b[i])) return false;
    return true;
}

struct TabelaDef;

/// A column of a table, found at compile time by name or at run time by ordinal.
struct Kolumna {
    const TabelaDef* tabela = nullptr;
    int nr = -1; ///< ordinal from 0
    [[nodiscard]] constexpr const KolumnaDef& def() const;
};

/// Whether the key names one row each or is only searched by.
enum class Klucz { Jednoznaczny, Wieloznaczny };

/// What the journal does with changes of a table: keeps them so that they can be undone; shows them only,
/// since what happened stays so (a printed paper, a password); or knows nothing of them.
enum class Slad { Cofany, Pokazywany, Zaden };

/// One table. Month tables are templates: their name is a prefix before yyyymm.
struct TabelaDef {
    std::string_view nazwa;
    std::span<const KolumnaDef> kolumny;
    std::span<const std::string_view> klucz; ///< one or two columns, indexed in the file and in memory
    Klucz rodzajKlucza = Klucz::Jednoznaczny;
    /// The index in the file where it has more columns than `klucz`, which then finds a row among those that
    /// were opened together.
    std::span<const std::string_view> pelnyKlucz = {};
    Slad slad = Slad::Cofany;

    [[nodiscard]] constexpr std::span<const std::string_view> kluczPliku() const {
        return pelnyKlucz.empty() ? klucz : pelnyKlucz;
    }
    /// `PLA("BRUTTO")`: the column, checked when the program is compiled.
    consteval Kolumna operator()(std::string_view nazwaKolumny) const {
        const int nr = numer(nazwaKolumny);
        if (nr < 0) throw std::logic_error("no such column");
        return {this, nr};
    }
    /// The column at `nr`, counted from 0.
    [[nodiscard]] constexpr Kolumna nr(int numerKolumny) const { return {this, numerKolumny}; }
    /// The ordinal of a column found at run time, -1 if there is none.
    [[nodiscard]] constexpr int numer(std::string_view nazwaKolumny) const {
        for (std::size_t i = 0; i < kolumny.size(); ++i)
            if (teSameNazwy(kolumny[i].nazwa, nazwaKolumny)) return static_cast<int>(i);
        return -1;
    }
};

constexpr const KolumnaDef& Kolumna::def() const { return tabela->kolumny[static_cast<std::size_t>(nr)]; }

} // namespace tornel::store
