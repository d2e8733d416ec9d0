// Which departments an analysis takes.
#pragma once
#include "okna/WyborWielu.h"
#include "personnel/Pracownicy.h"

namespace tornel::personnel {

class frmDzial : public WyborWielu {
    Q_OBJECT
public:
    explicit frmDzial(const QList<DzialFirmy>& dzialy, QWidget* rodzic = nullptr);

    /// The names of the chosen departments; nothing for all of them.
    [[nodiscard]] std::optional<QStringList> dzialy() const;

private:
    QList<DzialFirmy> dzialy_;
};

} // namespace tornel::personnel
