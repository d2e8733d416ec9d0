// The person picker.
#pragma once
#include "personnel/Pracownicy.h"
#include "rules/Otoczenie.h"
#include <QDialog>

class QLabel;

namespace tornel::okna {
class WidokListy;
} // namespace tornel::okna

namespace tornel::personnel {

/// The mode of working employees.
inline constexpr int kTrybPracujacy = 1;

class frmWybPr : public QDialog {
    Q_OBJECT
public:
    enum class Ilu { Jeden, Wielu };

    /// `tryb`: whom it offers, as in `Pracownicy::doWyboru`; `zaznacz`: who is chosen at first, if offered.
    /// Reads the personnel tables, whose handles stand elsewhere afterwards.
    frmWybPr(Otoczenie& otoczenie, int tryb, Ilu ilu = Ilu::Wielu, QWidget* rodzic = nullptr,
             qint64 zaznacz = -1);

    /// With nobody to offer it gives the mode's message, if there is one, and is cancelled at once.
    int exec() override;
    /// The chosen `PRC_ID`s, ascending.
    [[nodiscard]] QList<qint64> wybrani() const;

    /// Opens the picker; nobody when it was cancelled.
    [[nodiscard]] static QList<qint64> wybierz(Otoczenie& otoczenie, int tryb, Ilu ilu = Ilu::Wielu,
                                               QWidget* rodzic = nullptr, qint64 zaznacz = -1);

private:
    void buduj(Ilu ilu);
    void zaznaczDzial();
    void pokazIlu();

    Otoczenie& o_;
    int tryb_;
    QList<Osoba> osoby_;
    WidokListy* lvwWybPr_;
    QLabel* labZaznaczono_;
};

} // namespace tornel::personnel
