// Asks for the day on which a contract is concluded.
#pragma once
#include "contracts/RodzajeUmow.h"
#include "okna/Okno.h"
#include <QDate>

namespace tornel::okna {
class PoleDaty;
} // namespace tornel::okna

namespace tornel::contracts {

class frmUZLData : public Okno {
    Q_OBJECT
public:
    /// Caption and label are those of the kind; the proposal is today.
    explicit frmUZLData(const RodzajUmowy& rodzaj, QWidget* rodzic = nullptr);

    /// Meaningful once the dialog was accepted.
    [[nodiscard]] QDate data() const;
    /// Stays open, the field saying why, while it holds no date.
    void accept() override;

private:
    PoleDaty* dtpDataZ_;
};

} // namespace tornel::contracts
