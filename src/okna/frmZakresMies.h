// Asks for a range of months.
#pragma once
#include "common/RokMies.h"
#include "okna/Okno.h"

namespace tornel::common {
class Rozmowa;
} // namespace tornel::common

namespace tornel::okna {

class PoleMiesiaca;

/// Two months, the first and the last, side by side; also a part of dialogs that ask for more.
class PolaZakresu : public QWidget {
    Q_OBJECT
public:
    PolaZakresu(RokMies od, RokMies dokad, QWidget* rodzic = nullptr);
    [[nodiscard]] RokMies od() const;
    [[nodiscard]] RokMies dokad() const;
    /// False, after the message, when the first month is later than the last.
    [[nodiscard]] bool poprawny(Rozmowa& rozmowa) const;

private:
    PoleMiesiaca *od_, *dokad_;
};

class frmZakresMies : public Okno {
    Q_OBJECT
public:
    /// `tytul` is the caption of the window, the months are the proposal.
    frmZakresMies(Rozmowa& rozmowa, const QString& tytul, RokMies od, RokMies dokad,
                  QWidget* rodzic = nullptr);

    // Meaningful once the dialog was accepted.
    [[nodiscard]] RokMies od() const { return zakres_->od(); }
    [[nodiscard]] RokMies dokad() const { return zakres_->dokad(); }

    /// Stays, after a message, while the range is the wrong way round.
    void accept() override;

private:
    Rozmowa& rozmowa_;
    PolaZakresu* zakres_;
};

} // namespace tornel::okna
