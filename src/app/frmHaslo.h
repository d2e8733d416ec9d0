// "Hasło": the user at work changes his own password.
#pragma once
#include "okna/Okno.h"
#include "rules/Otoczenie.h"

namespace tornel::okna {
class PoleTekstu;
} // namespace tornel::okna

namespace tornel::app {

class frmHaslo : public Okno {
    Q_OBJECT
public:
    explicit frmHaslo(Otoczenie& otoczenie, QWidget* rodzic = nullptr);

    /// Changes the password; the dialog stays while something can be typed anew.
    void accept() override;
    /// Closes and says that nothing was changed.
    void reject() override;

private:
    Otoczenie& o_;
    PoleTekstu *txtHaslo1_, *txtHaslo2_, *txtHaslo3_;
};

} // namespace tornel::app
