// "Dni Wolne (lista ogólna)": the general calendar of days off.
#pragma once
#include "personnel/frmKalendarz.h"

namespace tornel::personnel {

class frmDniWolne : public frmKalendarz {
    Q_OBJECT
public:
    explicit frmDniWolne(Otoczenie& otoczenie, QWidget* rodzic = nullptr);

protected:
    [[nodiscard]] qint64 czyj() const override { return kKalendarzOgolny; }
    void pokazano(const std::optional<MiesiacKalendarza>& miesiac) override;
};

} // namespace tornel::personnel
