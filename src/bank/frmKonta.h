// "Konta bankowe użytkownika": the employer's bank accounts, and which of them the insurer is told of.
#pragma once
#include "rules/frmKartoteka.h"

namespace tornel::bank {

class frmKonta : public frmKartoteka {
    Q_OBJECT
public:
    /// Opens `KONTA` anew. Throws `BladBazy`.
    explicit frmKonta(Otoczenie& otoczenie, QWidget* rodzic = nullptr);
};

} // namespace tornel::bank
