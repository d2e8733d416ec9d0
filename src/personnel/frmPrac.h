// The personnel file: the list of employees at the left, the eleven tabs of the one chosen at the right.
#pragma once
#include "okna/Okno.h"
#include "personnel/KartotekaPracownika.h"
#include "personnel/PortWydrukowKadr.h"
#include "personnel/Pracownicy.h"
#include "rules/Otoczenie.h"
#include <QList>

class QComboBox;
class QLabel;
class QPushButton;

namespace tornel::okna {
class WidokListy;
} // namespace tornel::okna

namespace tornel::personnel {

class ZakladkiPracownika;

class frmPrac : public OknoEdycji {
    Q_OBJECT
public:
    frmPrac(Otoczenie& otoczenie, FiltrPracownikow filtr, QWidget* rodzic = nullptr,
            PortWydrukowKadr wydruki = {});
    ~frmPrac() override;

    /// Chooses the employee, if he is on the list.
    void pokaz(qint64 prcId);

protected:
    [[nodiscard]] bool jestZmiana() const override;
    [[nodiscard]] bool zapiszZmiany() override;
    void porzucZmiany() override;
    void pokazPonownie() override;
    void wczytajPonownie() override;
    void nastepnePole() override;

private:
    [[nodiscard]] QWidget* lewaStrona();
    [[nodiscard]] QWidget* rzad();
    void budujSkroty();

    /// Fills the list by the filter and chooses the employee, else the first; empty, it clears the tabs.
    void WczytajListePrac(FiltrPracownikow filtr, qint64 zaznacz);
    void wybierz(qint64 prcId);
    void pokazStan();
    void odswiezWiersz();
    void przejdz(int oIle);

    void szukaj();
    void rodzina();
    void NowyPracownik();
    void UsunPracownika();
    void anuluj();
    void zapisz();
    void drukuj(const PozycjaWydrukow& wydruk);
    /// Writes the current tab to the handles; false if a field has just had to say what it did not
    /// understand.
    [[nodiscard]] bool zapiszZakladke();

    Otoczenie& o_;
    FiltrPracownikow filtr_;
    PortWydrukowKadr wydruki_;
    Pracownicy pracownicy_;
    KartotekaPracownika kartoteka_;
    QList<Osoba> osoby_;
    WidokListy* lvwPrac_;
    QComboBox* cboSort_;
    QLabel* labIlu_;
    ZakladkiPracownika* zakladki_;
    QPushButton *cmdWyszukaj_, *cmdNowy_, *cmdUsun_, *cmdDrukuj_, *cmdRodzina_, *cmdAnuluj_, *cmdZapisz_,
        *cmdPowrot_;
};

} // namespace tornel::personnel
