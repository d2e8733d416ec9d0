// The days off that the law gives to everybody, as it stood in 2001.
#pragma once
#include "common/Przestrzenie.h"
#include <QDate>
#include <QList>
#include <QString>

namespace tornel::personnel {

struct Swieto {
    QDate data;
    QString nazwa;
};

/// Easter Sunday of the Gregorian year.
[[nodiscard]] QDate Wielkanoc(int rok);
/// The holidays of the year in the order of the calendar; Easter and Whit Sunday are among them.
[[nodiscard]] QList<Swieto> SwietaUstawowe(int rok);

} // namespace tornel::personnel
