// The family of one employee, whom the insurer is told of for the health insurance.
#pragma once
#include "rules/Otoczenie.h"
#include "store/Sesja.h"
#include <QList>

namespace tornel::personnel {

class Rodzina {
public:
    /// Opens `rsRODZINA` anew. Throws `BladBazy`.
    Rodzina(Otoczenie& otoczenie, qint64 prcId);

    /// The numbers within the family (`ROD_ID`), in order.
    [[nodiscard]] QList<qint64> numery() const;
    /// Moves `rsRODZINA` to the member; false if there is none.
    bool Ustaw(qint64 rodId);
    /// Adds a member under the smallest free number, with the employee's surname and address of residence,
    /// and moves to him. Reads `PRACDP`. Throws `BladBazy`; then nothing is added.
    qint64 Nowy();
    /// Stores what was changed in memory. Throws `BladBazy`, `Konflikt`; the changes then stay pending.
    void Wpisz();
    /// Asks and deletes the member. False on No. Throws `Blad` for an unknown number, `BladBazy`.
    bool Usun(qint64 rodId);

    /// "Adamska Barbara, nr 1".
    [[nodiscard]] QString pracownik() const;

private:
    [[nodiscard]] Recordset& rs() const { return o_.sesja.rsRODZINA; }

    Otoczenie& o_;
    qint64 prcId_;
};

} // namespace tornel::personnel
