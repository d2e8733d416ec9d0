// "Rodzina pracownika": the members of an employee's family, and which document each goes into.
#pragma once
#include "okna/frmListaPol.h"
#include "personnel/Rodzina.h"

namespace tornel::personnel {

class frmRodzina : public frmListaPol {
    Q_OBJECT
public:
    /// Opens `rsRODZINA` anew. Throws `BladBazy`.
    frmRodzina(Otoczenie& otoczenie, qint64 prcId, QWidget* rodzic = nullptr);

protected:
    QList<qint64> numery() override { return rodzina_.numery(); }
    QStringList tekstyWiersza(qint64 id) override;
    bool przejdz(qint64 id) override { return rodzina_.Ustaw(id); }
    bool zapisz(qint64 id) override;
    void porzuc() override;
    std::optional<qint64> utworz() override { return rodzina_.Nowy(); }
    bool skasuj(qint64 id) override { return rodzina_.Usun(id); }

private:
    Otoczenie& o_;
    Rodzina rodzina_;
};

} // namespace tornel::personnel
