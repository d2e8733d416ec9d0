// "Lista dokumentów ZUS DRA": the settlements of contributions, made from payroll months and edited by hand.
#pragma once
#include "okna/frmListaPol.h"
#include "zus/RozliczenieDRA.h"

namespace tornel::okna {
class WidokListy;
} // namespace tornel::okna

namespace tornel::zus {

/// Keys: those of its kind of screens, and Ctrl+P prints.
class frmListaDRA : public frmListaPol {
    Q_OBJECT
public:
    /// Prints the current row of `rsZUS`.
    using Wydrukuj = std::function<void(QWidget* rodzic)>;

    explicit frmListaDRA(Otoczenie& otoczenie, Wydrukuj wydrukuj = {}, QWidget* rodzic = nullptr);

protected:
    QList<qint64> numery() override;
    QStringList tekstyWiersza(qint64 id) override;
    bool przejdz(qint64 id) override { return rozliczenia_.zaznacz(KluczDRA::zId(id)); }
    bool zapisz(qint64 id) override;
    void porzuc() override;
    std::optional<qint64> utworz() override;
    bool skasuj(qint64 id) override { return rozliczenia_.Usun(KluczDRA::zId(id)); }
    void pokazano(qint64 id) override;

private:
    frmListaDRA(Otoczenie& otoczenie, Wydrukuj wydrukuj, QWidget* rodzic, QPushButton* kontrola,
                QPushButton* druk);
    [[nodiscard]] QWidget* podsumowanie();
    void kontroluj();
    void drukuj();

    Otoczenie& o_;
    Wydrukuj wydrukuj_;
    RozliczeniaDRA rozliczenia_;
    QLabel *labWplaty_, *labNieaktualne_;
    WidokListy* lvwKontrola_;
    QPushButton *cmdKontrola_, *cmdDrukuj_;
};

} // namespace tornel::zus
