// The payroll months: making, deleting and blocking them, their summary, and the way to a month's list.
#pragma once
#include "okna/Okno.h"
#include "okna/Wiazanie.h"
#include "payroll/lista/PortWydrukow.h"
#include "payroll/miesiace/Miesiace.h"
#include "rules/Otoczenie.h"
#include <optional>
#include <QList>
#include <QTimer>

class QPushButton;

namespace tornel::okna {
class WidokListy;
} // namespace tornel::okna

namespace tornel::payroll {

class frmPlace : public OknoEdycji {
    Q_OBJECT
public:
    /// Opens the month headers anew. Throws `BladBazy`.
    explicit frmPlace(Otoczenie& otoczenie, QWidget* rodzic = nullptr, PortWydrukow wydruki = {});

protected:
    [[nodiscard]] bool jestZmiana() const override { return biezacy_ && wiazanie_.jestZmiana(); }
    [[nodiscard]] bool zapiszZmiany() override;
    void porzucZmiany() override { wiazanie_.wczytaj(); }
    void pokazPonownie() override;
    void wczytajPonownie() override { Wczytaj_liste(biezacy_); }

private:
    void budujPrzyciski();
    [[nodiscard]] QWidget* ramki();
    void Wczytaj_liste(std::optional<RokMies> zaznacz = {});
    void Wypisz_dane(std::optional<RokMies> miesiac);
    void zapiszOpis();
    /// Looks at the rows of the months, one month at a time while nothing else is to be done, and marks those
    /// with rows that need attention.
    void przejrzyj(QList<RokMies> miesiace);
    void przejrzyjNastepny();
    void nowy();
    void usun();
    void blokuj();
    void WejdzNaListe();

    Otoczenie& o_;
    PortWydrukow wydruki_; ///< of the lists
    Miesiace miesiace_;
    ZrodloWierszy zrodlo_;
    Wiazanie wiazanie_;
    std::optional<RokMies> biezacy_;
    QList<WierszMiesiaca> wiersze_;
    QList<RokMies> doPrzejrzenia_; ///< the last one comes first
    QTimer przeglad_;
    WidokListy* lvwLista_;
    QPushButton *cmdNowy_, *cmdUsun_, *cmdBlokada_, *cmdWejdz_, *cmdAnuluj_;
};

} // namespace tornel::payroll
