// Asks for number and name of a new employee.
#pragma once
#include "okna/Okno.h"
#include "personnel/Pracownicy.h"

namespace tornel::okna {
class PoleTekstu;
} // namespace tornel::okna

namespace tornel::personnel {

class frmNowyPrc : public Okno {
    Q_OBJECT
public:
    /// Suggests the number after the highest one.
    explicit frmNowyPrc(Otoczenie& otoczenie, QWidget* rodzic = nullptr);

    /// What was entered; meaningful once the dialog was accepted.
    [[nodiscard]] DaneNowegoPracownika dane() const;
    /// Stays, after a message, without a surname or a number that an employee can have.
    void accept() override;

private:
    void odrzuc(const QString& komunikat, PoleTekstu& pole);

    Otoczenie& o_;
    PoleTekstu *txtNR_, *txtNazwisko_, *txtImie_;
};

} // namespace tornel::personnel
