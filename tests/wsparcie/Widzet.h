// A control of a screen by its name.
#pragma once
#include "wsparcie/Przestrzen.h"
#include <QWidget>
#include <stdexcept>

namespace tornel::testy {

template <typename T = QWidget>
T& widzet(const QWidget& okno, const QString& nazwa) {
    if (auto* znaleziony = okno.findChild<T*>(nazwa)) return *znaleziony;
    throw std::runtime_error("no control " + nazwa.toStdString());
}

} // namespace tornel::testy
