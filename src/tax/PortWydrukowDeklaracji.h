// The prints of declarations as a port: their screens offer what they are given, and know nothing of paper.
#pragma once
#include "common/Przestrzenie.h"
#include <functional>
#include <memory>
#include <QList>
#include <QString>

class QWidget;

namespace tornel::tax {

enum class Deklaracja { Pit4, Pit11, Pit40, Pit8B };

/// Each member may be empty, then it is not offered. They may throw `Blad`.
struct PortWydrukowDeklaracji {
    /// Prints or shows the current row of the declaration's handle (`rsPIT4`, `rsPIT11`, `rsPIT40`,
    /// `rsPIT8B`), all its pages.
    std::function<void(Deklaracja ktora, QWidget* rodzic)> drukuj = {};
    /// Writes the declarations of these persons into one PDF; `wypelnij` makes the working row of the person
    /// given current. True if the file stands whole.
    std::function<bool(Deklaracja ktora, const QList<qint64>& osoby,
                       const std::function<void(qint64 prcId)>& wypelnij, const QString& plik,
                       QWidget* rodzic)>
        doPdf = {};
};

} // namespace tornel::tax
