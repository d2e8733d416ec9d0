// The check of stored payroll rows: whether they are computed, and no more is transferred than is paid.
#pragma once
#include "common/RokMies.h"
#include "payroll/lista/Pozycje.h"
#include "payroll/lista/WierszPlac.h"
#include "rules/Otoczenie.h"
#include "store/Recordset.h"
#include "store/Zapytanie.h"
#include <array>
#include <optional>
#include <QList>
#include <QSet>
#include <QString>
#include <vector>

namespace tornel::payroll {

/// What needs the clerk's look at a row, whoever wrote it: a hand, a calculation or an import.
struct StanWiersza {
    bool niePoliczony = false; ///< gross, additions or deductions are not what its components give
    bool przelewPonadWyplate = false;

    [[nodiscard]] bool wymagaUwagi() const { return niePoliczony || przelewPonadWyplate; }
    /// In words, a sentence for each; empty when all is well.
    [[nodiscard]] QString opis() const;
    friend bool operator==(const StanWiersza&, const StanWiersza&) = default;
};

class KontrolaWierszy {
public:
    /// By the marks that the month's list works with: a component out of use today still belongs to a blocked
    /// month that had it.
    explicit KontrolaWierszy(const Pozycje& pozycje);

    /// A row of `PLA` with that of `PLS`, without which it has no components.
    [[nodiscard]] StanWiersza sprawdz(const Wiersz& pla, const std::optional<Wiersz>& pls) const;
    /// The same of rows that queries read, with the columns of `dodajKolumny`; null for no row of `PLS`.
    [[nodiscard]] StanWiersza sprawdz(const WierszeZapytania& pla, const WierszeZapytania* pls) const;
    void dodajKolumny(Zapytanie& pla, Zapytanie& pls) const;

private:
    template <typename A, typename S>
    [[nodiscard]] StanWiersza stan(const A& pla, const S* pls) const;
    enum Suma { Brutto, Dodatki, Potracenia, Razem };
    struct Skladnik {
        Kolumna kolumna;
        bool odejmowany;
    };
    std::array<std::vector<Skladnik>, Razem> skladniki_;
};

/// A row that needs attention.
struct WierszDoUwagi {
    qint64 prcId = 0;
    QString lista;
    StanWiersza stan;
};

/// The rows of one month's tables that need attention, in the order of `pla`.
[[nodiscard]] QList<WierszDoUwagi> PrzejrzyjWiersze(const Pozycje& pozycje, const Recordset& pla,
                                                    const Recordset& pls);
/// The same for a month that need not be open. Reads `PLACE`, `PLA`, `PLS`. Throws `Blad` for a month that is
/// not there or lacks a table.
[[nodiscard]] QList<WierszDoUwagi> PrzejrzyjMiesiac(Otoczenie& otoczenie, RokMies miesiac);

/// A month's rows in numbers.
struct LicznikWierszy {
    int wierszy = 0;
    int niePoliczonych = 0;
    int przelewPonadWyplate = 0;
    QList<KluczListy> przelewem; ///< rows with an amount by transfer
    QSet<QString> listy;         ///< their symbols in upper case
};
/// Of a month that need not be open, reading only the columns that tell. Reads `PLACE`, `PLA`, `PLS`. Throws
/// `Blad` for a month that is not there or lacks a table.
[[nodiscard]] LicznikWierszy PoliczWiersze(Otoczenie& otoczenie, RokMies miesiac);

/// How many of each kind there are, with the first numbers: a line for each kind, empty if there is none.
[[nodiscard]] QString OpisDoUwagi(const QList<WierszDoUwagi>& wiersze);

} // namespace tornel::payroll
