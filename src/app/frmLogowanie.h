// The login: name and password, handed over as typed.
#pragma once
#include "common/Przestrzenie.h"
#include "okna/Okno.h"

namespace tornel::okna {
class PoleTekstu;
} // namespace tornel::okna

namespace tornel::app {

/// Accepted: somebody wants in, and the caller checks who. Rejected: no login.
class frmLogowanie : public Okno {
    Q_OBJECT
public:
    explicit frmLogowanie(QWidget* rodzic = nullptr);

    [[nodiscard]] QString nazwa() const;
    [[nodiscard]] QString haslo() const;

protected:
    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

private:
    PoleTekstu* txtUser_;
    PoleTekstu* txtPass_;
};

} // namespace tornel::app
