// What a calculation left out or warns of, for its caller to show.
#pragma once
#include "common/Przestrzenie.h"
#include <optional>
#include <QList>
#include <QString>

namespace tornel::payroll {

/// Whether one row is computed before the clerk's eyes, or many as a batch.
enum class Zakres { Wiersz, Seria };

struct Uwaga {
    QString tekst;
    std::optional<Zakres> tylkoDla = {}; ///< told in this one only; otherwise in both

    [[nodiscard]] bool dotyczy(Zakres zakres) const { return !tylkoDla || *tylkoDla == zakres; }
};
using ListaUwag = QList<Uwaga>;

} // namespace tornel::payroll
