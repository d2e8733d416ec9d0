// Product and version.
#pragma once
#include <QDialog>

class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(QWidget* rodzic = nullptr);
};
