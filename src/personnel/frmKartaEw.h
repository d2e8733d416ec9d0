// The attendance card of an employee on screen: months as rows, days as columns, sums by kind; printed for
// him or for all of the list.
#pragma once
#include "okna/Okno.h"
#include "personnel/PortWydrukowKadr.h"
#include "personnel/Pracownicy.h"
#include "rules/Otoczenie.h"

class QComboBox;
class QLabel;
class QSpinBox;

namespace tornel::personnel {

class ModelKarty;

class frmKartaEw : public Okno {
    Q_OBJECT
public:
    /// `osoby`: whom it can be turned to, `wybrany`: who is shown first.
    frmKartaEw(Otoczenie& otoczenie, const QList<Osoba>& osoby, qint64 wybrany, int rok,
               PortWydrukowKadr wydruki, QWidget* rodzic = nullptr);
    ~frmKartaEw() override;

protected:
    void pokazPonownie() override { pokaz(); }

private:
    [[nodiscard]] QWidget* gora(const QList<Osoba>& osoby, int rok);
    [[nodiscard]] QWidget* tabela();
    [[nodiscard]] QWidget* rzad();
    void pokaz();
    void przejdz(int oIle);
    void drukuj(const QList<qint64>& numery);

    Otoczenie& o_;
    PortWydrukowKadr wydruki_;
    QComboBox* cboPracownik_;
    QSpinBox* spnRok_;
    QLabel* labLegenda_;
    ModelKarty* model_;
};

} // namespace tornel::personnel
