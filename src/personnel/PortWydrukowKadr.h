// The prints of the personnel file as a port: its screens offer what they are given, and know nothing of
// paper.
#pragma once
#include "common/RokMies.h"
#include <functional>
#include <QList>
#include <QString>

class QWidget;

namespace tornel::personnel {

/// What a print has to be told of time.
enum class CzasWydruku { Zaden, Miesiac, Rok, Miesiace };

/// Whom and what time a print is about; a year is its first and last month.
struct ZlecenieWydruku {
    QList<qint64> numery;
    RokMies od = {}, dokad = {};
};

struct PozycjaWydrukow {
    QString napis; ///< in the menu "Drukuj"
    CzasWydruku okres = CzasWydruku::Zaden;
};

struct PortWydrukowKadr {
    QList<PozycjaWydrukow> dostepne = {};
    QString kartaEwidencji = {}; ///< that one among them which the screen of the attendance card prints
    std::function<RokMies()> ostatniMiesiac = {}; ///< that is proposed; the one of today without it
    std::function<void(const QString& napis, const ZlecenieWydruku& zlecenie, QWidget* rodzic)> drukuj = {};
};

} // namespace tornel::personnel
