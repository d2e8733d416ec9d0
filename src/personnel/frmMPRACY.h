// "Adresy działalności": the employer's workplaces, and which of them the insurer is told of.
#pragma once
#include "rules/frmKartoteka.h"

namespace tornel::personnel {

class frmMPRACY : public frmKartoteka {
    Q_OBJECT
public:
    /// Opens `M_PRACY` anew. Throws `BladBazy`.
    explicit frmMPRACY(Otoczenie& otoczenie, QWidget* rodzic = nullptr);
};

} // namespace tornel::personnel
