// "Aktualizer": stands on the screen while the structure of the database is brought up to date.
#pragma once
#include "common/Przestrzenie.h"
#include <QDialog>

namespace tornel::app {

class frmInform : public QDialog {
    Q_OBJECT
public:
    explicit frmInform(QWidget* rodzic = nullptr);
    /// Shows the window at once, without waiting for the next events.
    void pokaz();
};

} // namespace tornel::app
