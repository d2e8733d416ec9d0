// A row of a table as the console prints it.
#pragma once
#include "cli/Wywolanie.h"
#include "common/Waluta.h"
#include "store/Recordset.h"
#include <QList>
#include <QString>
#include <utility>

namespace tornel::cli {

/// Names and amounts, zł.
using SumyPodWierszem = QList<std::pair<QString, Waluta>>;

/// The current row column by column, then the sums that only the print has: a table, or one object as JSON.
void PiszWiersz(Wywolanie& w, const Recordset& rs, const SumyPodWierszem& sumy);

} // namespace tornel::cli
