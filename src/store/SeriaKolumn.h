// Building blocks of column lists: numbered series, joining, and the widths that several tables share.
#pragma once
#include "store/Tabela.h"
#include <array>

namespace tornel::store {

namespace schemat {

/// The names PREFIX<od> to PREFIX<od + N - 1>, at most 15 characters each. Columns only view their names, so
/// an object of this type must be `inline constexpr`.
template <std::size_t N>
class SeriaNazw {
public:
    consteval explicit SeriaNazw(std::string_view przedrostek, int od = 1) {
        for (std::size_t i = 0; i < N; ++i) {
            const int numer = od + static_cast<int>(i);
            std::size_t n = 0;
            for (const char c : przedrostek) znaki_[i][n++] = c;
            if (numer >= 10) znaki_[i][n++] = static_cast<char>('0' + numer / 10);
            znaki_[i][n++] = static_cast<char>('0' + numer % 10);
        }
    }
    constexpr std::string_view operator[](std::size_t i) const { return znaki_[i].data(); }

private:
    std::array<std::array<char, 16>, N> znaki_{};
};

/// A list written out, as a part of a longer one.
template <std::size_t N>
consteval std::array<KolumnaDef, N> lista(const KolumnaDef (&kolumny)[N]) {
    return std::to_array(kolumny);
}

/// One column of `typ` for every name.
template <std::size_t N>
consteval std::array<KolumnaDef, N> seria(const SeriaNazw<N>& nazwy, Typ typ, int rozmiar = 0) {
    std::array<KolumnaDef, N> wynik{};
    for (std::size_t i = 0; i < N; ++i) wynik[i] = {nazwy[i], typ, rozmiar};
    return wynik;
}

/// The lists one behind another.
template <std::size_t... N>
consteval std::array<KolumnaDef, (N + ...)> polacz(const std::array<KolumnaDef, N>&... czesci) {
    std::array<KolumnaDef, (N + ...)> wynik{};
    std::size_t i = 0;
    const auto dopisz = [&](const auto& czesc) {
        for (const KolumnaDef& kolumna : czesc) wynik[i++] = kolumna;
    };
    (dopisz(czesci), ...);
    return wynik;
}

/// The first of each list, then the second of each, and so on.
template <std::size_t N, typename... Inne>
consteval std::array<KolumnaDef, N*(1 + sizeof...(Inne))> przeplot(const std::array<KolumnaDef, N>& pierwsza,
                                                                   const Inne&... inne) {
    std::array<KolumnaDef, N*(1 + sizeof...(Inne))> wynik{};
    std::size_t j = 0;
    for (std::size_t i = 0; i < N; ++i) {
        wynik[j++] = pierwsza[i];
        ((wynik[j++] = inne[i]), ...);
    }
    return wynik;
}

/// Element `i`, counted from 1 to `ile`, of a series whose first column has the ordinal `pierwsza`. A number
/// out of range is a fault of the caller (`std::out_of_range`): it would reach a column of another meaning.
constexpr Kolumna elementSerii(const TabelaDef& tabela, int pierwsza, int ile, int i) {
    if (i < 1 || i > ile) throw std::out_of_range("no such column in the series");
    return tabela.nr(pierwsza + i - 1);
}

/// Characters of the columns that recur. The identity and address ones follow the widths of the social
/// insurer's documents, so that what can be typed also arrives there.
namespace rozmiary {
inline constexpr int Nazwisko = 31;
inline constexpr int Imie = 22;
/// Longer than the 11 and 13 characters that are asked for, because only a shorter text is refused.
inline constexpr int Pesel = 15;
inline constexpr int Nip = 15;
inline constexpr int SeriaDowodu = 5;
inline constexpr int NumerDowodu = 10;
inline constexpr int KodPocztowy = 6;
inline constexpr int Miejscowosc = 26; ///< also commune, county, voivodeship, post office
inline constexpr int Ulica = 30;
inline constexpr int NumerDomu = 7;
/// Wider than the insurer's 12, as a number is typed with its blanks and hyphens.
inline constexpr int Telefon = 20;
inline constexpr int Kraj = 22;
inline constexpr int Nazwa = 60;    ///< a firm, an office, a bank
inline constexpr int Konto = 45;    ///< the account field of a transfer form
inline constexpr int Skladnik = 30; ///< name of a payroll component
inline constexpr int KodZUS = 4;
inline constexpr int KodSwiadczenia = 3;
inline constexpr int Stala = 60;  ///< a program constant, copied into a declaration
inline constexpr int Tekst = 255; ///< free text in one field
} // namespace rozmiary

/// Key columns. Where a key has more than two in life, the first two are indexed and the rest is searched.
namespace klucze {
inline constexpr std::string_view Pracownik[] = {"PRC_ID"};
inline constexpr std::string_view PracownikLista[] = {"PRC_ID", "LISTA"};
inline constexpr std::string_view PracownikData[] = {"PRC_ID", "DATA"};
inline constexpr std::string_view Miesiac[] = {"ROK", "MIES"};
} // namespace klucze

} // namespace schemat

} // namespace tornel::store
