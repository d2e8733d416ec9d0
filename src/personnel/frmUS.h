// "Urzędy skarbowe": the tax offices with their addresses and accounts.
#pragma once
#include "rules/frmKartoteka.h"

namespace tornel::personnel {

class frmUS : public frmKartoteka {
    Q_OBJECT
public:
    /// Opens `US` anew. Throws `BladBazy`.
    explicit frmUS(Otoczenie& otoczenie, QWidget* rodzic = nullptr);
};

} // namespace tornel::personnel
