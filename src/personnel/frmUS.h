// "Urzędy skarbowe": the tax offices with their addresses and accounts.
#pragma once
#include "okna/frmKartoteka.h"

class frmUS : public frmKartoteka {
    Q_OBJECT
public:
    /// Opens `US` anew. Throws `BladBazy`.
    explicit frmUS(Otoczenie& otoczenie, QWidget* rodzic = nullptr);
};
