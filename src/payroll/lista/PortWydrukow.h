// The prints of a payroll list as a port: the list's screen offers what it is given, and knows nothing of
// paper.
#pragma once
#include "common/Przestrzenie.h"
#include <functional>
#include <optional>
#include <QHash>
#include <QStringList>

class QWidget;

namespace tornel::payroll {

class ListaPlac;

struct PortWydrukow {
    QStringList dostepne;                     ///< captions of the menu "Drukuj" behind which a print stands
    QHash<QString, QString> niedostepne = {}; ///< why one does not, as the menu's tool tip says
    /// Prints or shows; `prcId` is the employee in work.
    std::function<void(const QString& napis, const ListaPlac& lista, std::optional<qint64> prcId,
                       QWidget* rodzic)>
        drukuj = {};
};

} // namespace tornel::payroll
