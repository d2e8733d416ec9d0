// "Transport dni wolnych do pracowników": copies a month of the general calendar to the employees.
#pragma once
#include "okna/Okno.h"
#include "personnel/Pracownicy.h"

class QLabel;
class QPushButton;

namespace tornel::okna {
class PoleMiesiaca;
class WidokListy;
} // namespace tornel::okna

namespace tornel::personnel {

class frmTrDoPr : public Okno {
    Q_OBJECT
public:
    /// Offers the working employees, and proposes the last month of the general calendar.
    explicit frmTrDoPr(Otoczenie& otoczenie, QWidget* rodzic = nullptr);

    /// With nobody to transport to it says so and is cancelled at once.
    int exec() override;

private:
    void buduj();
    void Transp(const QList<qint64>& numery);
    void pokazIlu();

    Otoczenie& o_;
    QList<Osoba> osoby_;
    WidokListy* lvwPrac_;
    PoleMiesiaca* miesiac_;
    QLabel* labZaznaczono_;
};

} // namespace tornel::personnel
