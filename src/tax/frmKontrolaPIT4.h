// The year's PIT-4 held against the advances that PIT-11 takes, month by month.
#pragma once
#include "okna/Okno.h"
#include "rules/Otoczenie.h"

class QLabel;
class QSpinBox;

namespace tornel::okna {
class WidokListy;
} // namespace tornel::okna

namespace tornel::tax {

class frmKontrolaPIT4 : public Okno {
    Q_OBJECT
public:
    frmKontrolaPIT4(Otoczenie& otoczenie, int rok, QWidget* rodzic = nullptr);

private:
    void wczytaj();

    Otoczenie& o_;
    QSpinBox* spnRok_;
    WidokListy* lvwMiesiace_;
    QLabel* labWynik_;
};

} // namespace tornel::tax
