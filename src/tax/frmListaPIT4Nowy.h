// "Nowa lista PIT-4": month, year and number of a new declaration, and the payroll lists that it is made for.
#pragma once
#include "okna/Okno.h"
#include "tax/Pit4.h"

class QLabel;

namespace tornel::okna {
class PoleTekstu;
} // namespace tornel::okna

namespace tornel::tax {

/// Keys: Enter goes from month to year and from year to number, Escape gives up.
class frmListaPIT4Nowy : public Okno {
    Q_OBJECT
public:
    /// Proposes the month of `dzis`. The lists are asked for only with `listy`.
    enum class Listy { Pytaj, Nie };
    frmListaPIT4Nowy(QDate dzis, Listy listy, QWidget* rodzic = nullptr);

    /// Zeros after "&Anuluj".
    [[nodiscard]] int mies() const { return liczba(txtMies_); }
    [[nodiscard]] int rok() const { return liczba(txtRok_); }
    [[nodiscard]] int numer() const { return liczba(txtNr_); }
    [[nodiscard]] QString listy() const;

protected:
    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

private:
    [[nodiscard]] QWidget* pola(Listy listy);
    void opuszczono(const PoleTekstu* pole);
    [[nodiscard]] int liczba(const PoleTekstu* pole) const;

    QDate dzis_;
    PoleTekstu *txtMies_, *txtRok_, *txtNr_, *txtListy_;
    QLabel* labListy_;
};

} // namespace tornel::tax
