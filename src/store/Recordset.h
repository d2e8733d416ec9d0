// A table handle: an in-memory snapshot with a current row, edited in memory and written back as a batch.
#pragma once
#include "store/Kryterium.h"
#include "store/Polaczenie.h"
#include <array>
#include <functional>
#include <iterator>
#include <limits>
#include <optional>
#include <QHash>
#include <QList>
#include <QString>
#include <unordered_map>
#include <vector>

namespace tornel::store {

/// Stands for a row over all sorting, filtering and editing; -1 is no row.
using Zakladka = int;

/// From where `Find` searches.
enum class Skad { Poczatek, Biezacy };

class PisarzPakietu;
class Recordset;

/// A row of a handle, read without moving the handle. Valid until the handle is changed, opened or read
/// again.
class Wiersz {
public:
    Wiersz(const Recordset& tabela, int wiersz) : rs_(&tabela), wiersz_(wiersz) {}

    // Each throws `Blad` for a column of another table or another kind.

    [[nodiscard]] bool jestNull(Kolumna k) const;
    [[nodiscard]] Waluta kwota(Kolumna k) const;       ///< null is 0
    [[nodiscard]] qint64 liczba(Kolumna k) const;      ///< null is 0
    [[nodiscard]] double rzeczywista(Kolumna k) const; ///< null is 0
    [[nodiscard]] QString tekst(Kolumna k) const;      ///< null is the empty text
    [[nodiscard]] QDate data(Kolumna k) const;         ///< null is an invalid date
    [[nodiscard]] bool flaga(Kolumna k) const;         ///< the text is "T", whatever its case
    [[nodiscard]] Wartosc wartosc(Kolumna k) const;
    [[nodiscard]] Zakladka zakladka() const { return wiersz_; }

private:
    [[nodiscard]] std::optional<std::int64_t> komorka(Kolumna k,
                                                      RodzajWartosci rodzajKolumny) const; // nothing for null
    const Recordset* rs_;
    int wiersz_;
};

/// The rows that a handle shows, in its order.
class Wiersze {
public:
    class Iterator {
    public:
        using difference_type = std::ptrdiff_t;
        using value_type = Wiersz;
        Iterator() = default;
        Iterator(const Recordset& rs, const int* miejsce) : rs_(&rs), miejsce_(miejsce) {}
        Wiersz operator*() const { return {*rs_, *miejsce_}; }
        Iterator& operator++() { return ++miejsce_, *this; }
        Iterator operator++(int) { return {*rs_, miejsce_++}; }
        friend bool operator==(const Iterator& a, const Iterator& b) { return a.miejsce_ == b.miejsce_; }

    private:
        const Recordset* rs_ = nullptr;
        const int* miejsce_ = nullptr;
    };
    Wiersze(const Recordset& rs, const std::vector<int>& kolejnosc) : rs_(&rs), kolejnosc_(&kolejnosc) {}
    [[nodiscard]] Iterator begin() const { return {*rs_, kolejnosc_->data()}; }
    [[nodiscard]] Iterator end() const { return {*rs_, kolejnosc_->data() + kolejnosc_->size()}; }

private:
    const Recordset* rs_;
    const std::vector<int>* kolejnosc_;
};

class Recordset {
public:
    explicit Recordset(const TabelaDef& tabela) : tabela_(&tabela) {
        for (std::size_t i = 0; i < kolumnyKlucza_.size() && i < tabela.klucz.size(); ++i)
            kolumnyKlucza_[i] = tabela.numer(tabela.klucz[i]);
    }
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;
    Recordset(Recordset&&) = default;
    Recordset& operator=(Recordset&&) = default;

    // Opening.

    /// Reads the whole table (`SELECT * FROM nazwa`); `nazwa` is that of a month table, or empty for the
    /// table's own. Throws `BladBazy`, and `UszkodzonaWartosc` for a value that is not of its column's type;
    /// an open handle then stays as it was.
    void Open(Polaczenie& polaczenie, const QString& nazwa = {});
    /// Reads only the rows that meet `warunek`, through the file's indexes.
    void Open(Polaczenie& polaczenie, const QString& nazwa, const Warunek& warunek);
    void Close();
    [[nodiscard]] bool otwarty() const { return polaczenie_ != nullptr; }
    /// Reads the rows again with the same condition, sort and filter; unsaved changes are dropped.
    void Requery();
    /// The name of the table that is open, as PLA200107.
    [[nodiscard]] const QString& nazwa() const { return nazwa_; }
    [[nodiscard]] const TabelaDef& tabela() const { return *tabela_; }

    // Order and position.

    /// Sorts by columns, ascending; the position stays on its row.
    void Sort(const QList<Kolumna>& kolumny);
    /// Shows only the rows that meet `warunek`; moves to the first of them. An empty condition takes it off.
    void Filter(const Warunek& warunek);
    [[nodiscard]] int RecordCount() const;
    void MoveFirst() { pozycja_ = 0; }
    void MoveNext() { ++pozycja_; }
    [[nodiscard]] bool EOF_() const { return pozycja_ >= RecordCount(); }
    [[nodiscard]] bool BOF_() const { return pozycja_ < 0; }
    /// Whether the handle stands on a row.
    [[nodiscard]] bool naWierszu() const { return otwarty() && !BOF_() && !EOF_(); }
    [[nodiscard]] Zakladka Bookmark() const;
    void Bookmark(Zakladka zakladka);
    /// Forward search by one criterion. Past the last row and false when nothing is found.
    bool Find(const Kryterium& kryterium, Skad skad = Skad::Poczatek);
    /// Search by the key (`PRC_ID`, or `PRC_ID` and `LISTA`) through the index; past the last row and false
    /// when nothing is found. It sees only rows that pass the filter.
    template <typename... Klucz>
    bool Znajdz(const Klucz&... klucz) {
        const int wiersz = wierszKlucza(klucz...);
        Bookmark(wiersz);
        return wiersz >= 0;
    }
    /// The row that `Znajdz` would move to; nothing when there is none.
    template <typename... Klucz>
    [[nodiscard]] std::optional<Wiersz> szukaj(const Klucz&... klucz) const {
        const int wiersz = wierszKlucza(klucz...);
        return wiersz < 0 ? std::nullopt : std::optional(Wiersz(*this, wiersz));
    }
    /// The rows that pass the filter, in order, read without moving.
    [[nodiscard]] Wiersze wiersze() const { return {*this, kolejnosc_}; }
    /// All rows with this first key column, in reading order, whatever the filter.
    [[nodiscard]] QList<Zakladka> wiersze(qint64 klucz) const;

    // The current row, as in `Wiersz`. Without one every operation throws `Blad`.

    [[nodiscard]] Wiersz biezacyWiersz() const { return {*this, biezacy()}; }
    [[nodiscard]] bool jestNull(Kolumna k) const { return biezacyWiersz().jestNull(k); }
    [[nodiscard]] Waluta kwota(Kolumna k) const { return biezacyWiersz().kwota(k); }
    [[nodiscard]] qint64 liczba(Kolumna k) const { return biezacyWiersz().liczba(k); }
    [[nodiscard]] double rzeczywista(Kolumna k) const { return biezacyWiersz().rzeczywista(k); }
    [[nodiscard]] QString tekst(Kolumna k) const { return biezacyWiersz().tekst(k); }
    [[nodiscard]] QDate data(Kolumna k) const { return biezacyWiersz().data(k); }
    [[nodiscard]] bool flaga(Kolumna k) const { return biezacyWiersz().flaga(k); }
    [[nodiscard]] Wartosc wartosc(Kolumna k) const { return biezacyWiersz().wartosc(k); }

    /// Sets a value in memory. A text longer than the column is cut to it; a number that the column's type
    /// cannot hold throws `Przepelnienie`, a column of another table or kind `Blad`.
    void ustaw(Kolumna k, Waluta kwota);
    void ustaw(Kolumna k, qint64 liczba);
    void ustaw(Kolumna k, int liczba) { ustaw(k, static_cast<qint64>(liczba)); }
    void ustaw(Kolumna k, double liczba);
    void ustaw(Kolumna k, const QString& tekst);
    void ustaw(Kolumna k, QDate data); ///< an invalid date stores null
    void ustaw(Kolumna k, std::monostate);
    void ustaw(Kolumna k, const Wartosc& wartosc);
    void ustawFlage(Kolumna k, bool wlaczona);
    void ustaw(Kolumna k, bool) = delete;

    /// So many rows will be added: their place is made at once.
    void zapowiedzNowe(qsizetype ile);
    /// A new row with null in every column, current from now on.
    void AddNew();
    /// A new row with numbers 0, texts empty, dates null; current from now on.
    void AddNewZero();
    /// The same with its key (`PRC_ID`, or `PRC_ID` and `LISTA`) already set.
    void AddNewZero(qint64 klucz, const QString& drugi = {});
    /// Takes the current row away; the position moves to the next one.
    void Delete();

    // Writing.

    /// Writes the changed, new and deleted rows as a part of `akcja`. Throws `Konflikt` if a stored row is no
    /// longer the one that was read, `BladBazy` for any other failure; the changes then stay pending in
    /// memory.
    void UpdateBatch(const Transakcja& akcja);
    /// The same as an action of its own, named `czynnosc` in Polish; inside an open action, as a part of that
    /// one.
    void UpdateBatch(QStringView czynnosc);
    /// Drops all pending changes in memory.
    void CancelBatch();
    [[nodiscard]] bool zmieniony() const { return !oczekujace_.empty(); }
    /// By how much the pending changes raise the sum of a money column over all rows.
    [[nodiscard]] Waluta przyrost(Kolumna k) const;
    /// New rows less deleted ones among the pending changes.
    [[nodiscard]] int przyrostWierszy() const;
    /// The columns of the current row that differ from what was read; none of a new row.
    [[nodiscard]] QList<Kolumna> zmienioneKolumny() const;
    /// Whether the current row is new or changed and not yet written.
    [[nodiscard]] bool wierszZmieniony() const {
        return stany_[static_cast<std::size_t>(biezacy())] != Stan::Czysty;
    }

private:
    friend class Wiersz;
    // Every cell is one 64-bit word: money, numbers and day numbers as they are, doubles by their bits, texts
    // by their place in the pool. So 50,000 employees fit in tens of megabytes.
    using Komorka = std::int64_t;
    static constexpr Komorka kNull = std::numeric_limits<Komorka>::min();
    enum class Stan : std::uint8_t { Czysty, Nowy, Zmieniony, Usuniety };
    using KluczWiersza = std::pair<Komorka, Komorka>;
    struct Skrot {
        std::size_t operator()(const KluczWiersza& k) const {
            return std::hash<Komorka>{}(k.first * 0x9E3779B97F4A7C15LL ^ k.second);
        }
    };

    [[nodiscard]] int szerokosc() const { return static_cast<int>(tabela_->kolumny.size()); }
    [[nodiscard]] int biezacy() const; ///< row index; throws without a current row
    [[nodiscard]] Komorka& komorka(int wiersz, int kolumna) {
        return komorki_[static_cast<std::size_t>(wiersz) * tabela_->kolumny.size() +
                        static_cast<std::size_t>(kolumna)];
    }
    [[nodiscard]] Komorka komorka(int wiersz, int kolumna) const {
        return komorki_[static_cast<std::size_t>(wiersz) * tabela_->kolumny.size() +
                        static_cast<std::size_t>(kolumna)];
    }
    /// Throws for a column that is not of this table, or of another kind.
    void wymagajKolumny(Kolumna k) const {
        if (k.tabela != tabela_ || static_cast<unsigned>(k.nr) >= tabela_->kolumny.size()) obcaKolumna(k);
    }
    void wymagajKolumny(Kolumna k, RodzajWartosci oczekiwany) const {
        wymagajKolumny(k);
        if (rodzajWartosci(k.def().typ) != oczekiwany) obcaKolumna(k);
    }
    [[noreturn]] void obcaKolumna(Kolumna k) const;
    void zapisz(Kolumna k, Komorka wartosc);
    [[nodiscard]] Komorka tekstNaKomorke(const QString& tekst);
    [[nodiscard]] const QString& puli(Komorka k) const { return teksty_[static_cast<std::size_t>(k)]; }
    [[nodiscard]] Wartosc wartoscKomorki(int wiersz, int kolumna) const;
    [[nodiscard]] KluczWiersza klucz(int wiersz) const;
    enum class IleKolumn { Pierwsza, Obie };
    [[nodiscard]] int wierszKlucza(KluczWiersza klucz, IleKolumn kolumny) const; // -1 if there is none
    [[nodiscard]] int wierszKlucza(qint64 klucz) const;
    [[nodiscard]] int wierszKlucza(qint64 klucz, const QString& drugi) const;
    [[nodiscard]] int wierszKlucza(qint64 klucz, qint64 drugi) const;
    [[nodiscard]] int wierszKlucza(const QString& klucz) const; // for tables whose key is text
    [[nodiscard]] int wierszKlucza(const QString& klucz, const QString& drugi) const;
    [[nodiscard]] Komorka tekstWPuli(const QString& tekst) const; // null for one that no row has
    [[nodiscard]] bool spelnia(int wiersz, const Warunek& warunek) const;
    [[nodiscard]] int porownaj(int a, int b) const;
    void czytajWiersz(const Instrukcja& instrukcja, int wiersz, int pierwszaKolumna, qint64 nrWiersza);
    void wczytaj();
    void ulozKolejnosc();
    void wstawDoKolejnosci(int wiersz);
    void usunZKolejnosci(int wiersz);
    [[nodiscard]] int miejsceWKolejnosci(int wiersz) const; ///< -1 if the row is not shown
    void indeksuj(int wiersz);
    void odindeksuj(int wiersz);
    void zaznaczZmiane(int wiersz);
    void wiazWiersz(Instrukcja& instrukcja, int wiersz) const;
    void sprawdzKonflikt(int wiersz);
    void zapiszWiersz(int wiersz);
    void pakujKomorke(PisarzPakietu& pakiet, int kolumna, Komorka wartosc) const;
    void zapiszWDzienniku(int wiersz) const;
    void zapiszOczekujace(const Transakcja& akcja);
    void uznajZapisane();
    int nowyWiersz();
    int nowyWierszZer();
    void przyjmijNowy(int wiersz);

    const TabelaDef* tabela_;
    std::array<int, 2> kolumnyKlucza_{-1, -1}; // ordinals, -1 for a key that has fewer columns
    Polaczenie* polaczenie_ = nullptr;
    QString nazwa_;
    Warunek warunekOtwarcia_;
    std::vector<Komorka> komorki_;
    std::vector<qint64> rowid_;
    std::vector<Stan> stany_;
    QList<QString> teksty_;
    QHash<QString, Komorka> pula_;
    // Asked for last: rows one behind the other mostly have the same symbols and flags.
    mutable std::array<Komorka, 16> ostatnieTeksty_{};
    std::vector<int> kolejnosc_; // rows in sort order that pass the filter
    QList<Kolumna> sort_;
    Warunek filtr_;
    int pozycja_ = 0;
    std::unordered_multimap<Komorka, int> indeks_;            // first key column -> row
    std::unordered_map<int, std::vector<Komorka>> oryginaly_; // rows as they were read
    std::vector<int> oczekujace_; // rows with pending changes, in order of the first change
    std::unique_ptr<Instrukcja> wstaw_, zmien_, czytaj_, usun_;
};

inline std::optional<std::int64_t> Wiersz::komorka(Kolumna k, RodzajWartosci rodzajKolumny) const {
    rs_->wymagajKolumny(k, rodzajKolumny);
    const std::int64_t c = rs_->komorka(wiersz_, k.nr);
    return c == Recordset::kNull ? std::nullopt : std::optional(c);
}
inline Waluta Wiersz::kwota(Kolumna k) const {
    return Waluta::zSurowej(komorka(k, RodzajWartosci::Kwota).value_or(0));
}
inline qint64 Wiersz::liczba(Kolumna k) const { return komorka(k, RodzajWartosci::Calkowita).value_or(0); }

} // namespace tornel::store
