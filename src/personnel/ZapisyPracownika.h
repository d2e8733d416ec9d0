// What the rest of the program keeps under an employee's number and a deletion from the personnel file leaves
// behind: rows of payroll lists and overtime, contracts.
#pragma once
#include "common/RokMies.h"
#include "store/Tabela.h"
#include <QList>
#include <QString>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::personnel {

/// The contracts of one kind.
struct UmowyPracownika {
    QString rodzaj;     ///< in the plural, as the question names it
    QStringList numery; ///< the clerk's number, or the record's where there is none, with the date
};

struct ZapisyPracownika {
    QList<RokMies> listyPlac;  ///< ascending, each once
    QList<RokMies> nadgodziny; ///< ascending, each once
    QList<UmowyPracownika> umowy;

    [[nodiscard]] bool puste() const {
        return listyPlac.isEmpty() && nadgodziny.isEmpty() && umowy.isEmpty();
    }
    /// A line for each kind: "listy płac: 01.2001 - 03.2001, 05.2001".
    [[nodiscard]] QString opis() const;
};

/// Reads `PLACE`, `NADG`, the tables of their months, `UZL`, `UOD`, `HON` and `UMOP` through their indexes;
/// moves none of the session's handles. Throws `BladBazy`.
[[nodiscard]] ZapisyPracownika ZnajdzZapisy(Sesja& sesja, qint64 prcId);

} // namespace tornel::personnel
