// The row of buttons under a payroll list, with the menus of the whole list and of the prints.
#pragma once
#include "payroll/lista/ListaPlac.h"
#include "payroll/lista/PortWydrukow.h"
#include <QList>
#include <QWidget>

class QPushButton;

namespace tornel::payroll {

class PasekListy : public QWidget {
    Q_OBJECT
public:
    explicit PasekListy(const PortWydrukow& wydruki, QWidget* rodzic = nullptr);

    /// Opens and closes the buttons: nothing is changed in a blocked month, and a list without rows can only
    /// be added to.
    void ustawDostepnosc(bool zablokowany, bool pusta);
    /// Delete on the list presses "&Usuń prac.".
    void podlaczListe(QWidget& lista);
    /// Whether the row chosen waits for `Przelicz1`.
    void oznaczDoPrzeliczenia(bool tak);
    /// Where the clerk goes on from the last field, and from an empty list.
    void przejdzDoPrzelicz();
    void przejdzDoNowy();

signals:
    void nowy();
    void usun();
    void przepisz();
    void przeliczDni();
    void przelicz();
    void caloscNaKonto();
    void caloscNaKontoWszystkich();
    void seria(const QList<Obliczenie>& obliczenia);
    void powrot();
    /// The entry of "Drukuj" with this caption.
    void wydruk(const QString& napis);

private:
    void budujMenu(const PortWydrukow& wydruki);

    QPushButton *cmdNowy_, *cmdUsun_, *cmdPrzepisz_, *cmdDni_, *cmdPrzelicz_, *cmdCalaLista_, *cmdKonto_,
        *cmdDrukuj_, *cmdAnuluj_;
};

} // namespace tornel::payroll
