// Tables of records that the clerk keeps one by one under numbers of the program's own, without windows: the
// address books and the bank accounts.
#pragma once
#include "rules/Otoczenie.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <span>
#include <utility>
#include <vector>

namespace tornel::rules {

/// The smallest number from 1 that no row has as its key, filtered or not.
[[nodiscard]] qint64 WolnyNumer(const Recordset& tabela);

/// Where else a record's number stands: a column of a table that has `PRC_ID` too.
struct UzycieNumeru {
    Kolumna kolumna;
    QStringView kto; ///< whose rows they are, as the clerk is told: "pracownicy"
};

/// One such table.
struct KartotekaDef {
    Recordset Sesja::*uchwyt = nullptr;
    QStringView czynnosc; ///< the list, by which the journal names its changes
    QStringView pytanie;  ///< the question before deleting
    QStringView odmowa;   ///< the message for a record in use; who uses it follows
    /// Values of a new record other than 0 and the empty text.
    std::vector<std::pair<Kolumna, Wartosc>> nowy = {};
    std::span<const UzycieNumeru> uzycia = {};
    /// The program constant that holds a number of this table, and what the clerk calls it.
    int Stale::*stala = nullptr;
    QStringView nazwaStalej = {};
};

class Kartoteka {
public:
    /// Opens the table anew, sorted by its key. `def` must outlive the object. Throws `BladBazy`.
    Kartoteka(Otoczenie& otoczenie, const KartotekaDef& def);

    [[nodiscard]] Recordset& tabela() const { return o_.sesja.*def_.uchwyt; }
    /// The numbers in order.
    [[nodiscard]] QList<qint64> numery() const;
    /// Moves to the record; false if there is none.
    bool Ustaw(qint64 numer) { return tabela().Znajdz(numer); }

    /// Adds a record under the smallest free number, moves to it and gives the number. Throws `BladBazy`;
    /// then nothing is added.
    qint64 Nowy();
    /// Writes what was changed in memory. Throws `BladBazy`; the changes then stay pending.
    void Wpisz() { tabela().UpdateBatch(def_.czynnosc.toString() + QStringLiteral(": zmiana pozycji")); }
    /// Asks and deletes. False on No, or after a message that names those who use the record: it is refused
    /// then, whatever the clerk would answer. Reads the tables of `uzycia` and `PRACDP` from the file. Throws
    /// `Blad` for an unknown number, `BladBazy`; then nothing is deleted.
    bool Usun(qint64 numer);
    /// Who uses the record, a line each, as "pracownicy: 2 (Nowak Anna, Kowalski Jan)". Empty for nobody.
    [[nodiscard]] QStringList uzytkownicy(qint64 numer) const;

private:
    [[nodiscard]] Kolumna klucz() const;
    void wymagaj(qint64 numer);

    Otoczenie& o_;
    const KartotekaDef& def_;
};

} // namespace tornel::rules
