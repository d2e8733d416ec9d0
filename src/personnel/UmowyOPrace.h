// The employment contracts of all employees (`UMOP`): the list, new contracts and changes of terms, what the
// personnel file takes back from them, what the law has to say of one.
#pragma once
#include "personnel/WarunkiPracy.h"
#include "rules/Otoczenie.h"
#include <optional>
#include <QStringList>

namespace tornel::personnel {

/// Which contracts are wanted; what is not given may be anything.
struct FiltrUmowOPrace {
    std::optional<qint64> prcId = {};
    std::optional<qint64> rodzaj = {};
    /// Those that end on one of these days, of which both count; a contract whose terms a later change has
    /// replaced is left out then.
    QDate konczaceOd = {}, konczaceDo = {};

    [[nodiscard]] bool pasuje(const UmowaOPrace& umowa) const;
};

/// One of the terms of work, where two of them differ.
struct RoznicaWarunku {
    QString nazwa;
    QString dotad, teraz; ///< as text

    friend bool operator==(const RoznicaWarunku&, const RoznicaWarunku&) = default;
};

/// The papers of an employment.
enum class PismoOPrace { Umowa, Zmiana, Wypowiedzenie, Swiadectwo };

class UmowyOPrace {
public:
    /// Opens `UMOP` and `M_PRACY` on the session's handles. Throws `BladBazy`, `UszkodzonaWartosc`.
    explicit UmowyOPrace(Otoczenie& otoczenie);

    /// By surname and name, then by their first day and key.
    [[nodiscard]] QList<UmowaOPrace> Wczytaj() const;
    /// One of them as it stands in the handle; nothing for an unknown key.
    [[nodiscard]] std::optional<UmowaOPrace> umowa(qint64 id) const;
    /// The contracts and changes of one employee, by their first day and key.
    [[nodiscard]] QList<UmowaOPrace> pracownika(qint64 prcId) const;
    /// The contract that a change belongs to, the contract itself otherwise.
    [[nodiscard]] UmowaOPrace glowna(const UmowaOPrace& umowa) const;
    /// The row whose terms are those at last agreed on with the employee: nothing without one.
    [[nodiscard]] std::optional<UmowaOPrace> ostatnia(qint64 prcId) const;

    /// The day that a new contract of this employee would begin on: that of the last contract in his file
    /// while `UMOP` has none of his, else the day after his last one, else `dzis`. Reads `PRACPR`.
    [[nodiscard]] QDate proponowanyDzien(qint64 prcId, QDate dzis) const;
    /// Adds a contract concluded on `dzien` with the terms of the personnel file and saves it; gives its key.
    /// The first one of an employee also takes the days of his last contract, each further one begins on
    /// `dzien`. Reads `PRACDP`, `PRACPR`. Throws `Blad` for somebody who is not in the file or no date.
    qint64 Nowa(qint64 prcId, QDate dzien);
    /// Adds a change of the terms of contract `id` as they are now, in force from `od`, and saves it; gives
    /// its key. Throws `Blad` for an unknown contract, no date, or one before the contract begins.
    qint64 Zmiana(qint64 id, QDate od);

    /// Moves the handle to the row; false if there is none.
    bool Ustaw(qint64 id);
    /// Why the row that the handle stands on cannot be stored, in a sentence; empty if it can.
    [[nodiscard]] QString odmowa() const;
    /// Stores what was changed in memory. Throws `Blad` with what `odmowa` says, `BladBazy`, `Konflikt`; the
    /// changes then stay pending.
    void Wpisz();
    /// Drops what was changed and not stored.
    void Porzuc();
    /// Asks and deletes the row. False on No, and, after a message, for a contract with changes of its terms.
    /// Throws `Blad` for an unknown key.
    bool Usun(qint64 id);

    /// In what the personnel file (`dotad`) differs from the terms of this row. Reads `PRACPR`, `M_PRACY`.
    [[nodiscard]] QList<RoznicaWarunku> roznicaOdKartoteki(const UmowaOPrace& umowa) const;
    /// In what a change differs from the terms that stood before it; none for a contract.
    [[nodiscard]] QList<RoznicaWarunku> roznicaOdPoprzednich(const UmowaOPrace& umowa) const;
    /// Asks, naming each difference, and writes the terms of the row into the personnel file as one action.
    /// False on No or where nothing differs. Throws `Blad` for an unknown key or an employee who is not in
    /// the file.
    bool PrzepiszDoKartoteki(qint64 id);

    /// What should be looked at in a contract, a sentence each: days that do not go with its kind, the third
    /// fixed term in a row, a notice that the law does not know. Reads `PRACPR`.
    [[nodiscard]] QStringList uwagi(const UmowaOPrace& umowa) const;
    /// The first day of the employment: that of the personnel file, else of the first contract.
    [[nodiscard]] QDate zatrudnionyOd(const UmowaOPrace& umowa) const;

    /// The last day of the employment as far as it is known, a change of the term taken in; invalid for none.
    [[nodiscard]] QDate koniecZatrudnienia(const UmowaOPrace& umowa) const;
    /// Why the row has no such paper, in a sentence; empty where it has.
    [[nodiscard]] QString odmowaPisma(const UmowaOPrace& umowa, PismoOPrace pismo) const;

    /// "Zakład produkcyjny"; empty for none.
    [[nodiscard]] QString nazwaMiejsca(qint64 miejsce) const;
    [[nodiscard]] Recordset& tabela() const;

private:
    [[nodiscard]] qint64 wolnyNumer() const;
    [[nodiscard]] WarunkiPracy warunkiDlaKartoteki(const UmowaOPrace& umowa) const;
    [[nodiscard]] QList<RoznicaWarunku> roznice(const WarunkiPracy& dotad, const WarunkiPracy& teraz) const;
    [[nodiscard]] QList<std::pair<QString, QString>> opis(const WarunkiPracy& warunki) const;
    [[nodiscard]] QString odmowaWypowiedzenia(const UmowaOPrace& umowa, QDate dzien) const;
    [[nodiscard]] bool trzeciaZRzedu(const UmowaOPrace& umowa) const;
    void zapisz(QStringView czynnosc);

    Otoczenie& o_;
};

} // namespace tornel::personnel
