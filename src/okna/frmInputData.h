// Asks for a month or for a day.
#pragma once
#include "common/Przestrzenie.h"
#include "okna/Okno.h"
#include <QDate>

namespace tornel::okna {

class PoleDaty;
class PoleMiesiaca;

class frmInputData : public Okno {
    Q_OBJECT
public:
    enum class Tryb { Miesiac, Data };

    /// `tytul` is the caption of the window, `wstepna` the proposal: its month, or the day itself.
    frmInputData(Tryb tryb, const QString& tytul, QDate wstepna, QWidget* rodzic = nullptr);

    /// The chosen day; in the mode of months the first of the month. Meaningful once the dialog was accepted.
    [[nodiscard]] QDate data() const;
    [[nodiscard]] int rok() const { return data().year(); }
    [[nodiscard]] int mies() const { return data().month(); }

    void accept() override;

private:
    [[nodiscard]] QWidget* polaDaty(QDate wstepna);

    Tryb tryb_;
    PoleMiesiaca* miesiac_ = nullptr;
    PoleDaty* dtData_ = nullptr;
};

} // namespace tornel::okna
