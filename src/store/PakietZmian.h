// Changes of one table, packed: what each row was and what it became, in a form that reads itself. The
// journal keeps such packets; undoing reads them.
#pragma once
#include "store/Tabela.h"
#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tornel::store {

/// Stands where a value may not be told.
struct WartoscTajna {
    bool operator==(const WartoscTajna&) const = default;
};

/// A value as the file holds it: null, a whole number (money in 1/10000), a double, the UTF-8 of a text (also
/// of a date).
using WartoscPliku = std::variant<std::monostate, qint64, double, QByteArray, WartoscTajna>;

/// The column that holds an employee's number, -1 without one.
[[nodiscard]] int kolumnaPracownika(const TabelaDef& tabela);

/// Whether the file would hold the two as the same; a double that is whole may stand there as a number.
[[nodiscard]] bool rownaWPliku(const WartoscPliku& a, const WartoscPliku& b);

enum class RodzajZmiany : std::uint8_t { Nowy = 1, Zmieniony, Usuniety, UtworzonaTabela, UsunietaTabela };

struct ZmianaKolumny {
    int nr = 0;         ///< ordinal in `PakietZmian::kolumny`
    WartoscPliku stara; ///< null of a new row
    WartoscPliku nowa;  ///< null of a deleted one
};

struct ZmianaWiersza {
    RodzajZmiany rodzaj = RodzajZmiany::Zmieniony;
    qint64 nrWiersza = 0; ///< in the file's table
    /// All columns of a new or deleted row, the changed ones of another.
    std::vector<ZmianaKolumny> kolumny;
    /// Of a changed row, the columns that name it, with their new values.
    std::vector<ZmianaKolumny> klucz;
    QStringList polecenia; ///< of a table made or dropped otherwise than by the schema
};

/// A packet, read.
struct PakietZmian {
    QString tabela;
    const TabelaDef* szablon = nullptr; ///< null of a table that the schema does not know, or knows otherwise
    QStringList kolumny;                ///< their names; numbers where they are not known any more
    bool znaneKolumny = true;
    std::vector<ZmianaWiersza> zmiany; ///< in the order in which they were made
};

/// Throws `Blad` for bytes that are no packet.
[[nodiscard]] PakietZmian CzytajPakiet(const QByteArray& bajty);

/// Writes a packet, change by change. The values of a change follow `zmiana` in this order: all of a new or a
/// deleted row; of a changed one the number of its changed columns, of each its ordinal, old and new value,
/// then the number of its key columns, of each its ordinal and value.
class PisarzPakietu {
public:
    /// `kolumny` are those of a table that the schema does not describe.
    PisarzPakietu(QString tabela, const TabelaDef* szablon, const QStringList& kolumny = {});

    void zmiana(RodzajZmiany rodzaj, qint64 nrWiersza);
    void ile(std::uint64_t liczba);
    void null() { dane_ += '\0'; }
    void liczba(qint64 liczba);
    void rzeczywista(double liczba);
    void tekst(std::string_view utf8);
    void dzien(qint64 nrDnia); ///< a date by its day number
    void tajna();
    /// Of a table made or dropped; none for one by the schema.
    void polecenia(const std::vector<std::string>& polecenia);

    [[nodiscard]] const QString& tabela() const { return tabela_; }
    [[nodiscard]] const TabelaDef* szablon() const { return szablon_; }
    /// The columns that name a row for people: the key, and the employee.
    [[nodiscard]] const std::vector<int>& kolumnyKlucza() const { return klucz_; }
    [[nodiscard]] int kolumnaOsoby() const { return osoba_; } ///< -1 without one
    [[nodiscard]] std::size_t rozmiar() const { return dane_.size(); }
    [[nodiscard]] bool pusty() const { return dane_.size() == naglowek_; }
    /// The packet so far; the next one begins.
    [[nodiscard]] QByteArray wydaj();

private:
    void napis(std::string_view utf8);
    QString tabela_;
    const TabelaDef* szablon_;
    std::vector<int> klucz_;
    int osoba_ = -1;
    std::string dane_;
    std::size_t naglowek_ = 0;
    qint64 poprzedni_ = 0; // rows mostly follow one another, so differences are short
};

} // namespace tornel::store
