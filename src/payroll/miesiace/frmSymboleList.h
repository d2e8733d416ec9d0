// Which payroll lists an analysis takes.
#pragma once
#include "okna/WyborWielu.h"
#include "payroll/miesiace/SymboleList.h"

namespace tornel::payroll {

class frmSymboleList : public WyborWielu {
    Q_OBJECT
public:
    explicit frmSymboleList(const QList<SymbolListyPlac>& symbole, QWidget* rodzic = nullptr);

    /// The chosen symbols, a character each; empty for all of them.
    [[nodiscard]] QString listy() const;

private:
    QList<SymbolListyPlac> symbole_;
};

} // namespace tornel::payroll
