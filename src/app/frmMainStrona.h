// The start page of the main window: what is to be done next, each task a link to its screen, the month in
// figures, and the screens opened most.
#pragma once
#include "app/Menu.h"
#include "start/PlanPracy.h"
#include <functional>
#include <QWidget>
#include <vector>

class QAction;
class QGridLayout;
class QGroupBox;
class QLabel;
class QPushButton;

namespace tornel::app {

class StronaStartowa : public QWidget {
    Q_OBJECT
public:
    using AkcjaWejscia = std::function<QAction*(Wejscie)>;
    /// `akcja` gives the action of an entry, whose state the links follow; it lives as long as the page.
    explicit StronaStartowa(AkcjaWejscia akcja, QWidget* rodzic = nullptr);

    void pokaz(const PlanPracy& plan);
    /// Opens and closes the links as their entries are.
    void ustawDostepnosc();

signals:
    /// The clerk wants to say that the rates are right.
    void potwierdzStawki();

private:
    /// A line of the list, made once: a screen may be open from it while it is shown anew.
    struct Wiersz {
        KrokPracy krok;
        Wejscie wejscie;
        QPushButton* odnosnik;
        QLabel* szczegol;
        QLabel* termin;
    };
    [[nodiscard]] QWidget* ramkaZadan();
    [[nodiscard]] QWidget* ramkaKwot();
    [[nodiscard]] QWidget* skroty();
    void pokazZadanie(const Wiersz& wiersz, const Zadanie* zadanie);
    void pokazKwoty(const PlanPracy& plan);
    void ulozKafle();

    AkcjaWejscia akcja_;
    QGroupBox* ramkaZadan_ = nullptr;
    QGroupBox* ramkaKwot_ = nullptr;
    QLabel* labUwaga_ = nullptr;
    QPushButton* cmdPotwierdz_ = nullptr;
    std::vector<Wiersz> wiersze_;
    QGridLayout* kwoty_ = nullptr;
    QGridLayout* kafle_ = nullptr;
    std::vector<std::pair<Wejscie, QPushButton*>> skroty_;
};

} // namespace tornel::app
