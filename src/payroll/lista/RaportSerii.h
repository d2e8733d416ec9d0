// How a batch over employees ended.
#pragma once
#include "common/Przestrzenie.h"
#include <QList>
#include <QString>

namespace tornel::common {
class Rozmowa;
} // namespace tornel::common

namespace tornel::payroll {

/// The rows that succeeded are stored, whatever the others did.
struct RaportSerii {
    struct Niepowodzenie {
        qint64 prcId = 0;
        QString powod;
    };
    int wykonane = 0;
    int pominiete = 0; ///< already on the list
    bool przerwana = false;
    QList<Niepowodzenie> niepowodzenia;
    /// What the calculations left out, with the employees whom it concerns, in the order it was met.
    struct Uwaga {
        QString tekst;
        QList<qint64> pracownicy;
    };
    QList<Uwaga> uwagi;

    /// One line for each employee who was not computed, then one for each remark; empty if there is none.
    [[nodiscard]] QString tekst() const;
    /// Shows as much of it as a message box has room for; nothing if it is empty.
    void pokaz(Rozmowa& rozmowa) const;
};

} // namespace tornel::payroll
