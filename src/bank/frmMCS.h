// "Przelew do MultiCash": what the clerk sets for a file of payment orders.
#pragma once
#include "bank/MultiCash.h"
#include "okna/Okno.h"
#include <functional>

class QLabel;
class QLineEdit;

namespace tornel::okna {
class PoleDaty;
class PoleTekstu;
} // namespace tornel::okna

namespace tornel::bank {

/// Asks for a folder, beginning at the one given; empty when nothing was chosen.
using WybierzFolder = std::function<QString(QWidget* rodzic, const QString& wstepny)>;

class frmMCS : public Okno {
    Q_OBJECT
public:
    /// Proposes the first package with something to send, today, the folder of constant 605, or the program's
    /// own where that is empty, and the first account of `KONTA`. Without `folder` the system's dialog asks
    /// for one.
    frmMCS(Otoczenie& otoczenie, ZrodloPrzelewow zrodlo, QWidget* rodzic = nullptr,
           WybierzFolder folder = {});

    [[nodiscard]] PrzebiegMCS przebieg() const;
    /// Stays open while a field says what it waits for.
    void accept() override;

private:
    [[nodiscard]] QWidget* paczka();
    [[nodiscard]] QWidget* katalog();
    [[nodiscard]] QWidget* szczegoly();
    [[nodiscard]] QWidget* bank();
    void pokazKonto(const KontoNadawcy& konto);
    /// What the package holds and when it was written before.
    void pokazPaczke();
    [[nodiscard]] std::optional<int> numerPaczki() const;
    /// The field that is not filled as it has to be, after it has said so.
    [[nodiscard]] QWidget* poleDoPoprawy();

    Otoczenie& o_;
    ZrodloPrzelewow zrodlo_;
    WybierzFolder wybierzFolder_;
    QString konto_;
    PoleTekstu *txtNrP_, *txtKatalog_, *txtSzczegoly_;
    PoleDaty *dtpWyst_, *dtpPlatn_;
    QLineEdit *txtSkrot_, *txtNazwaBanku_;
    QLabel *labZlecenia_, *labWykonane_;
};

} // namespace tornel::bank
