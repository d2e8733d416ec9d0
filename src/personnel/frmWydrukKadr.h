// Before a print of the personnel file: what time it is about, and whether it is for one employee or for all
// of the list.
#pragma once
#include "okna/Okno.h"
#include "personnel/PortWydrukowKadr.h"

class QRadioButton;
class QSpinBox;

namespace tornel::okna {
class PoleMiesiaca;
class PolaZakresu;
} // namespace tornel::okna

namespace tornel::personnel {

class frmWydrukKadr : public Okno {
    Q_OBJECT
public:
    /// `od`, `dokad`: the months that are proposed; `wybrany`: the employee in work in words, empty without
    /// one; `ilu`: how many the list shows.
    frmWydrukKadr(Rozmowa& rozmowa, const PozycjaWydrukow& wydruk, const ZlecenieWydruku& wstepne,
                  const QString& wybrany, qsizetype ilu, QWidget* rodzic = nullptr);

    // Meaningful once the dialog was accepted.
    [[nodiscard]] RokMies od() const;
    [[nodiscard]] RokMies dokad() const;
    [[nodiscard]] bool wszyscy() const;

    void accept() override;

private:
    [[nodiscard]] QWidget* polaOkresu(const ZlecenieWydruku& wstepne);

    Rozmowa& rozmowa_;
    CzasWydruku okres_;
    QSpinBox* spnRok_ = nullptr;
    PoleMiesiaca* miesiac_ = nullptr;
    PolaZakresu* zakres_ = nullptr;
    QRadioButton* optWszyscy_;
};

} // namespace tornel::personnel
