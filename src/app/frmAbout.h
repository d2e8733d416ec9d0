// Product and version.
#pragma once
#include "common/Przestrzenie.h"
#include <QDialog>

namespace tornel::app {

class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(QWidget* rodzic = nullptr);
};

} // namespace tornel::app
