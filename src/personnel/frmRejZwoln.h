// "Zwolnienia lekarskie": the register of sick leaves.
#pragma once
#include "personnel/frmRejestr.h"
#include "personnel/Zwolnienia.h"

namespace tornel::personnel {

class frmRejZwoln : public frmRejestr {
    Q_OBJECT
public:
    explicit frmRejZwoln(Otoczenie& otoczenie, QWidget* rodzic = nullptr);

protected:
    [[nodiscard]] std::optional<qint64> Zarejestruj(qint64 prcId, const frmData& dane) override;

private:
    frmRejZwoln(Otoczenie& otoczenie, QWidget* rodzic, std::shared_ptr<RejestrZwolnien> zwolnienia);

    std::shared_ptr<RejestrZwolnien> zwolnienia_;
};

} // namespace tornel::personnel
