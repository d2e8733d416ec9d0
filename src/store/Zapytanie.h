// Reading some columns of some rows: a query built from the schema's columns, its values bound, every value
// that is read checked against the type of its column.
//
//     PrzygotowaneZapytanie brutto(baza, Zapytanie(PLA).kolumny(PLA("BRUTTO")).zTabel(tabele)
//                                            .gdzie(PLA("PRC_ID") == Parametr{0}));
//     for (auto wiersze = brutto.uruchom(prcId); wiersze.nastepny();) suma += wiersze.kwota(PLA("BRUTTO"));
#pragma once
#include "store/Kryterium.h"
#include "store/Polaczenie.h"
#include <cstdint>
#include <optional>
#include <QStringList>
#include <variant>
#include <vector>

namespace tornel::store {

/// Stands in a condition for a value that is given at each run; counted from 0.
struct Parametr {
    explicit constexpr Parametr(int ktory) : nr(ktory) {}
    int nr;
};

/// Comparisons of columns with values or parameters, joined by "and" and "or".
class WarunekZapytania {
public:
    using Strona = std::variant<Wartosc, Parametr>;
    /// Throws `Blad` for a value that such a column cannot hold.
    WarunekZapytania(Kolumna kolumna, Kryterium::Operator op, Strona strona);

    friend WarunekZapytania operator&&(const WarunekZapytania& a, const WarunekZapytania& b) {
        return a.zlacz(" AND ", b);
    }
    friend WarunekZapytania operator||(const WarunekZapytania& a, const WarunekZapytania& b) {
        return a.zlacz(" OR ", b);
    }

    /// A stored value that is not in the form of a date: no comparison finds it, but whoever reads the row
    /// has to meet it. Null is one.
    [[nodiscard]] static WarunekZapytania bezDaty(Kolumna k);

private:
    friend class Zapytanie;
    friend class PrzygotowaneZapytanie;
    WarunekZapytania() = default;
    [[nodiscard]] WarunekZapytania zlacz(const char* spojnik, const WarunekZapytania& b) const;

    struct Miejsce {
        Kolumna kolumna;
        Strona strona;
    };
    QByteArray sql_; // a question mark for each of `miejsca_`
    std::vector<Miejsce> miejsca_;
};

inline WarunekZapytania operator==(Kolumna k, WarunekZapytania::Strona s) {
    return {k, Kryterium::Operator::Rowne, std::move(s)};
}
inline WarunekZapytania operator!=(Kolumna k, WarunekZapytania::Strona s) {
    return {k, Kryterium::Operator::Rozne, std::move(s)};
}
inline WarunekZapytania operator>=(Kolumna k, WarunekZapytania::Strona s) {
    return {k, Kryterium::Operator::NieMniejsze, std::move(s)};
}
inline WarunekZapytania operator<=(Kolumna k, WarunekZapytania::Strona s) {
    return {k, Kryterium::Operator::NieWieksze, std::move(s)};
}

/// What is to be read, without a connection.
class Zapytanie {
public:
    /// Of the standing table `tabela`, unless `zTabel` names others.
    explicit Zapytanie(const TabelaDef& tabela) : zrodla_{{&tabela, {}}} {}

    /// Adds columns to be read.
    template <typename... K>
    Zapytanie& kolumny(K... kolumny) {
        (kolumny_.push_back(Kolumna(kolumny)), ...);
        return *this;
    }
    /// Adds a condition; several stand for "and".
    Zapytanie& gdzie(const WarunekZapytania& warunek);
    /// The month tables of these names, one after the other. Without any the query gives no rows.
    Zapytanie& zTabel(const QStringList& nazwy);
    /// After the rows of the tables before, those of a table that has the same columns under the same names.
    Zapytanie& oraz(const TabelaDef& tabela);
    template <typename... K>
    Zapytanie& wedlug(K... kolumny) {
        (porzadek_.push_back(Kolumna(kolumny)), ...);
        return *this;
    }
    /// In the order in which the rows came into the file.
    Zapytanie& wedlugZapisu();
    /// Equal rows once.
    Zapytanie& rozne();
    /// The first rows only.
    Zapytanie& pierwszych(int ile);

    /// The table whose columns the query is made of.
    [[nodiscard]] const TabelaDef& tabela() const { return *wzor_; }

private:
    friend class PrzygotowaneZapytanie;
    friend class WierszeZapytania;
    struct Zrodlo {
        const TabelaDef* tabela = nullptr;
        QString nazwa; // empty for the table's own
    };
    enum class Powtorzenia { Zostaja, Znikaja };

    void sprawdz() const;
    [[nodiscard]] QByteArray sql() const;
    [[nodiscard]] int parametrow() const;

    std::vector<Zrodlo> zrodla_;
    const TabelaDef* wzor_ = zrodla_.front().tabela;
    std::vector<Kolumna> kolumny_, porzadek_;
    WarunekZapytania warunek_;
    enum class Porzadek { Dowolny, Zapisu };
    Porzadek zapis_ = Porzadek::Dowolny;
    Powtorzenia powtorzenia_ = Powtorzenia::Zostaja;
    int pierwszych_ = 0; // 0 for all
};

class PrzygotowaneZapytanie;

/// The rows of one run. The query is free for the next run when this object ends.
class WierszeZapytania {
public:
    explicit WierszeZapytania(PrzygotowaneZapytanie& zapytanie) : z_(&zapytanie) {}
    ~WierszeZapytania();
    WierszeZapytania(const WierszeZapytania&) = delete;
    WierszeZapytania& operator=(const WierszeZapytania&) = delete;

    /// Moves to the next row, first to the first one; false past the last. Throws `BladBazy`.
    [[nodiscard]] bool nastepny();

    // Of the row, by the columns that the query names; null is 0 and empty, as in a `Recordset`. Throw
    // `UszkodzonaWartosc` for a stored value that is not of its column's type.

    [[nodiscard]] bool jestNull(Kolumna k) const;
    [[nodiscard]] Waluta kwota(Kolumna k) const;
    [[nodiscard]] qint64 liczba(Kolumna k) const;
    [[nodiscard]] double rzeczywista(Kolumna k) const;
    [[nodiscard]] QDate data(Kolumna k) const;
    [[nodiscard]] QString tekst(Kolumna k) const;
    [[nodiscard]] std::string_view utf8(Kolumna k) const; ///< the text's bytes, valid until the next row
    /// The row's number in its table of the file.
    [[nodiscard]] qint64 nrWiersza() const;

private:
    [[nodiscard]] int miejsce(Kolumna k) const;
    [[nodiscard]] std::optional<qint64> slowoKolumny(Kolumna k) const; // nothing for null
    [[noreturn]] void uszkodzona(Kolumna k) const;
    PrzygotowaneZapytanie* z_;
};

/// A query made ready once, to be run again and again with new values.
class PrzygotowaneZapytanie {
public:
    /// Throws `BladBazy`, as for a table that the file lacks, and `Blad` for a column or value that does not
    /// fit.
    PrzygotowaneZapytanie(Polaczenie& polaczenie, const Zapytanie& zapytanie);

    /// Runs it with the values of its parameters in their order. Only one run at a time. Throws `Blad` for
    /// values that do not fit the columns.
    template <typename... W>
    [[nodiscard]] WierszeZapytania uruchom(const W&... wartosci) {
        zacznij(sizeof...(W));
        int nr = 0;
        (wiaz(nr++, wartosci), ...);
        return WierszeZapytania(*this);
    }

private:
    friend class WierszeZapytania;
    void zacznij(std::size_t ileWartosci);
    void wiaz(int nr, qint64 liczba);
    void wiaz(int nr, int liczba) { wiaz(nr, static_cast<qint64>(liczba)); }
    void wiaz(int nr, const QString& tekst);
    void wiaz(int nr, QDate data);
    template <typename T>
    void wiaz(int nr, const T&) = delete;
    void wymagajRodzaju(int nr, RodzajWartosci oczekiwany) const;

    Polaczenie* polaczenie_;
    Zapytanie zapytanie_;
    std::vector<int> miejsca_;        // ordinal in the table -> column of the statement, -1 if it is not read
    std::vector<Typ> typyParametrow_; // by the columns that they are compared with
    std::optional<Instrukcja> instrukcja_;
};

} // namespace tornel::store
