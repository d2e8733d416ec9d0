// "Data": asks for a range of days.
#pragma once
#include "okna/Okno.h"
#include "personnel/RejestrNieobecnosci.h"
#include <span>

class QComboBox;

namespace tornel::okna {
class PoleDaty;
} // namespace tornel::okna

namespace tornel::personnel {

class frmData : public Okno {
    Q_OBJECT
public:
    /// `kto`: whose absence it is, as the clerk reads it. `rodzaje`: kinds to choose from, none for an
    /// absence of one kind only.
    frmData(const QString& kto, std::span<const QStringView> rodzaje, QWidget* rodzic = nullptr);

    /// Proposes a range in place of today.
    void ustawZakres(const ZakresDat& zakres);
    /// The range; an end or start that is no date is invalid.
    [[nodiscard]] ZakresDat zakres() const;
    /// The position of the kind, 0 if there is nothing to choose.
    [[nodiscard]] int rodzaj() const;

    /// Stays open for a field that holds no date and for an end before the start, which the field says.
    void accept() override;

private:
    void sprawdzKoniec();

    PoleDaty *dtOd_, *dtDo_;
    QComboBox* cboRodzaj_;
    bool koniecWpisany_ = false;
};

} // namespace tornel::personnel
