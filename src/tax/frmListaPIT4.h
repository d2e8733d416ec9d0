// "Lista deklaracji PIT-4": the monthly declarations of withheld advances, made from a payroll month and
// edited by hand.
#pragma once
#include "okna/frmListaPol.h"
#include "tax/Pit4.h"
#include "tax/PortWydrukowDeklaracji.h"

namespace tornel::tax {

/// Keys: those of its kind of screens, and Ctrl+P prints.
class frmListaPIT4 : public frmListaPol {
    Q_OBJECT
public:
    explicit frmListaPIT4(Otoczenie& otoczenie, PortWydrukowDeklaracji port = {}, QWidget* rodzic = nullptr);

protected:
    QList<qint64> numery() override;
    QStringList tekstyWiersza(qint64 id) override;
    bool przejdz(qint64 id) override { return pit4_.zaznacz(KluczPit4::zId(id)); }
    bool zapisz(qint64 id) override;
    void porzuc() override { rs().CancelBatch(); }
    std::optional<qint64> utworz() override;
    bool skasuj(qint64 id) override { return pit4_.Usun(KluczPit4::zId(id)); }
    void pokazano(qint64 id) override;

private:
    frmListaPIT4(Otoczenie& otoczenie, PortWydrukowDeklaracji port, QWidget* rodzic, QPushButton* druk,
                 QPushButton* kontrola);
    [[nodiscard]] Recordset& rs() { return o_.sesja.rsPIT4; }
    void drukuj();
    void DrukStr1() { drukujStrone(1); }
    void DrukStr2() { drukujStrone(2); }
    void drukujStrone(int strona);
    void kontroluj();

    Otoczenie& o_;
    PortWydrukowDeklaracji port_;
    Pit4 pit4_;
    QLabel* labNieaktualne_;
    QPushButton* cmdDrukuj_;
};

} // namespace tornel::tax
