// "Urlopy i inne przerwy": the register of vacations.
#pragma once
#include "personnel/frmRejestr.h"
#include "personnel/Urlopy.h"

namespace tornel::personnel {

class frmRejUrl : public frmRejestr {
    Q_OBJECT
public:
    explicit frmRejUrl(Otoczenie& otoczenie, QWidget* rodzic = nullptr);

protected:
    [[nodiscard]] std::span<const QStringView> rodzaje() const override { return RodzajeUrlopu(); }
    [[nodiscard]] std::optional<qint64> Zarejestruj(qint64 prcId, const frmData& dane) override;

private:
    frmRejUrl(Otoczenie& otoczenie, QWidget* rodzic, std::shared_ptr<RejestrUrlopow> urlopy);

    std::shared_ptr<RejestrUrlopow> urlopy_;
};

} // namespace tornel::personnel
