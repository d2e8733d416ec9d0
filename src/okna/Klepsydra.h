// The hourglass pointer for as long as a piece of work lasts.
#pragma once
#include "common/Przestrzenie.h"
#include <QApplication>

namespace tornel::okna {

class Klepsydra {
public:
    Klepsydra() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Klepsydra() { QApplication::restoreOverrideCursor(); }
    Klepsydra(const Klepsydra&) = delete;
    Klepsydra& operator=(const Klepsydra&) = delete;
};

} // namespace tornel::okna
