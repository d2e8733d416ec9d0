// The hourglass pointer for as long as a piece of work lasts.
#pragma once
#include <QApplication>

class Klepsydra {
public:
    Klepsydra() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Klepsydra() { QApplication::restoreOverrideCursor(); }
    Klepsydra(const Klepsydra&) = delete;
    Klepsydra& operator=(const Klepsydra&) = delete;
};
