// "Ostatnie bazy": the databases that were open before, one of which the program can start with.
#pragma once
#include "okna/Okno.h"
#include <QStringList>

namespace tornel::okna {
class WidokListy;
} // namespace tornel::okna

namespace tornel::app {

class frmOstatnieBazy : public Okno {
    Q_OBJECT
public:
    explicit frmOstatnieBazy(const QStringList& bazy, QWidget* rodzic = nullptr);
    /// The path of the chosen one, empty for none.
    [[nodiscard]] QString wybrana() const;

private:
    QStringList bazy_;
    WidokListy* lvwBazy_;
};

} // namespace tornel::app
