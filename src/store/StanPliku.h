// What can be told of a database file without working on it: whether it can be opened, what is damaged or
// missing, what it holds.
#pragma once
#include "common/RokMies.h"
#include <map>
#include <QString>
#include <QStringList>

struct sqlite3;

namespace tornel::store {

enum class StanPliku { Dobry, Brak, Zajety, BezZapisu, NieBaza, Uszkodzony, Nowszy };

struct ZbadanyPlik {
    StanPliku stan = StanPliku::Dobry;
    QStringList tabele; ///< of a damaged file: each table and what is wrong with it
};

/// Tries to open the file as the program would, changes nothing in it, and names the tables that are damaged
/// or incomplete. An unfinished action of a killed program is taken back on the way, as every opening does.
[[nodiscard]] ZbadanyPlik ZbadajPlik(const QString& sciezka);

/// The tables of the schema that the file lacks, and the columns that its tables lack, a line each; month
/// tables by those that are there. Throws `BladBazy` when the list of tables cannot be read.
[[nodiscard]] QStringList BrakiBudowy(sqlite3* baza);

/// A file that is only looked into: nothing is written beside it, nothing locked. For closed files.
class PodgladPliku {
public:
    /// Throws `BladBazy` that names the file, also for one that is no database of the program.
    explicit PodgladPliku(const QString& sciezka);
    ~PodgladPliku();
    PodgladPliku(const PodgladPliku&) = delete;
    PodgladPliku& operator=(const PodgladPliku&) = delete;

    // Each throws `BladBazy` when the file cannot be read so far.

    [[nodiscard]] int wersja() const;
    [[nodiscard]] std::map<QString, qint64> liczbyWierszy() const; ///< by table
    [[nodiscard]] QStringList uszkodzoneTabele() const;            ///< by the engine's check of each
    struct Tresc {
        int miesiecy = 0;
        RokMies pierwszy, ostatni; ///< of the payroll months
        int pracownikow = 0;
    };
    [[nodiscard]] Tresc tresc() const;
    /// The text of program constant `num`, empty without a record.
    [[nodiscard]] QString stala(int num) const;

private:
    QString sciezka_;
    sqlite3* baza_ = nullptr;
};

} // namespace tornel::store
