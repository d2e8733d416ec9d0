// How the program looks: light, dark, or as the desktop is.
#pragma once
#include "okna/Barwy.h"
#include "okna/Okno.h"

class QButtonGroup;

namespace tornel::app {

/// What is marked shows at once; OK remembers it, anything else takes it back.
class frmWyglad : public Okno {
    Q_OBJECT
public:
    explicit frmWyglad(QWidget* rodzic = nullptr);
    void done(int wynik) override;

private:
    WyborMotywu przedtem_;
    QButtonGroup* wybory_;
};

} // namespace tornel::app
