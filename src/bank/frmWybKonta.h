// "Wybór konta bankowego": from which account of the employer is paid.
#pragma once
#include "bank/Przelewy.h"
#include "bank/UkladPrzelewu.h"
#include "okna/Okno.h"

class QCheckBox;
class QComboBox;
class QVBoxLayout;

namespace tornel::okna {
class WidokListy;
} // namespace tornel::okna

namespace tornel::bank {

/// What the dialog asks and tells besides when transfers are to be printed.
struct PytanieOPrzelewy {
    QString ile;        ///< "przelewy: 5, razem 7250,00 zł"
    QString wykonane;   ///< which of them were made before; empty for none
    bool czesc = false; ///< some of them only, so that those can be left out
};

class frmWybKonta : public Okno {
    Q_OBJECT
public:
    /// Lists `KONTA`. With `przelewy` it asks for the form as well.
    explicit frmWybKonta(Otoczenie& otoczenie, QWidget* rodzic = nullptr,
                         const std::optional<PytanieOPrzelewy>& przelewy = {});

    /// With no account it says so and is cancelled at once.
    int exec() override;
    [[nodiscard]] std::optional<KontoNadawcy> konto() const;
    [[nodiscard]] UkladPrzelewu uklad() const;
    /// Whether what was made before is to be left out.
    [[nodiscard]] bool pominWykonane() const;

    /// Opens the dialog; nothing when it was cancelled.
    [[nodiscard]] static std::optional<KontoNadawcy> wybierz(Otoczenie& otoczenie, QWidget* rodzic);

private:
    void dodajPrzelewy(QVBoxLayout& uklad, const PytanieOPrzelewy& przelewy);

    Otoczenie& o_;
    QList<KontoNadawcy> konta_;
    WidokListy* lstLista_;
    QComboBox* cboUklad_ = nullptr; ///< both only for transfers
    QCheckBox* chkPomin_ = nullptr;
};

} // namespace tornel::bank
