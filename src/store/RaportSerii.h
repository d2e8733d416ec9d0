// How a batch ended: what was done, what failed and what was left out.
#pragma once
#include "common/Przestrzenie.h"
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace tornel::common {
class Rozmowa;
} // namespace tornel::common

namespace tornel::store {

/// What succeeded is stored, whatever happened to the others.
struct RaportSerii {
    struct Niepowodzenie {
        qint64 numer = 0; ///< of the employee, contract, document ...
        QString powod;
    };
    /// Something that was left out or needs a look, with those whom it concerns.
    struct Uwaga {
        QString tekst;
        QList<qint64> numery; ///< each once, in the order they were met
    };
    /// What stands before a number.
    QString podmiot = QStringLiteral("pracownik nr");
    int wykonane = 0;
    int pominiete = 0; ///< there was nothing to do for them
    bool przerwana = false;
    QList<Niepowodzenie> niepowodzenia;
    QList<Uwaga> uwagi; ///< each text once, in the order it was met

    /// Joins the texts to the equal ones that others left.
    void dodajUwagi(qint64 numer, const QStringList& teksty);
    /// One line for each failure, then one for each remark; empty if there is none.
    [[nodiscard]] QString tekst() const;
    /// Shows as much of it as a message box has room for; nothing if it is empty.
    void pokaz(Rozmowa& rozmowa) const;

private:
    QHash<QString, qsizetype> znaneUwagi_; ///< where a text stands; a batch may leave thousands of them
};

} // namespace tornel::store
