// The main window: menu, toolbar, the firm's title panel, a start page that says what to do, and the exit
// question.
#pragma once
#include "app/Menu.h"
#include "rules/Otoczenie.h"
#include <functional>
#include <map>
#include <QMainWindow>
#include <vector>

class QAction;
class QLabel;
class QMenu;
class QToolButton;

namespace tornel::app {

class StronaStartowa;

class frmMain : public QMainWindow {
    Q_OBJECT
public:
    explicit frmMain(Otoczenie& otoczenie);

    /// Names what opens an entry; the function returns when its screen is closed. An entry without one is
    /// closed to everybody. `Koniec` and `OProgramie` are the window's own.
    void rejestruj(Wejscie wejscie, std::function<void()> otwarcie);
    /// What an entry says each time that the menu is set anew; with an empty text it keeps its caption and is
    /// closed.
    void ustawNapis(Wejscie wejscie, std::function<QString()> napis);
    /// What happens once all entries are registered: rights, title, and the warning about a removed password
    /// (constant 998). Reads `KON`.
    void wczytaj();

    /// Opens and closes the entries by the user's rights, the constants and the registered screens; to be run
    /// again after either changed.
    void UstawDostepnoscMenu();
    void UstawUprawnienia() { UstawDostepnoscMenu(); }
    /// Shows the firm's name and address: constants 300, 301, 304, 303.
    void RefreshTitle();
    /// Shows user, database and open month, and on the start page what is to be done next.
    void odswiezStan();

    /// What comes once the window and the session are closed.
    struct PoZamknieciu {
        std::vector<std::function<void()>> prace; ///< on the closed file, in their order
        bool odNowa = false;                      ///< the program starts anew, with the login
        bool innaBaza = false;                    ///< on the database that `Baza.ini` names
    };
    enum class Dalej { Koniec, OdNowa };
    /// Ends the program without the exit question, as the archive does.
    void zamknijBezPytania(std::function<void()> poZamknieciu = {}, Dalej dalej = Dalej::Koniec);
    /// Ends the session after the exit question and starts anew on the database of `Baza.ini`. A No leaves
    /// everything as it was.
    void zamknijIZacznijOdNowa(std::function<void()> poZamknieciu);
    [[nodiscard]] const PoZamknieciu& poZamknieciu() const { return poZamknieciu_; }
    /// What the start found of a program that did not end by itself, in the status bar.
    void pokazZnalezione(const QString& tekst);
    [[nodiscard]] QAction* akcja(Wejscie wejscie) const { return akcje_.at(wejscie); }

protected:
    void closeEvent(QCloseEvent* zdarzenie) override;

private:
    struct PrzyciskPaska {
        QToolButton* przycisk;
        QAction* akcja;
        QMenu* lista; ///< null for a plain button
    };

    void budujMenu();
    void budujPasek();
    void dodajNaPasek(const PozycjaMenu& pozycja);
    void budujStan();
    [[nodiscard]] QWidget* panelTytulu();
    void potwierdzStawki();
    void otworz(Wejscie wejscie);
    [[nodiscard]] bool pozegnaj();

    Otoczenie& o_;
    std::map<Wejscie, std::function<void()>> ekrany_;
    std::map<Wejscie, std::function<QString()>> napisy_;
    std::map<Wejscie, QAction*> akcje_;
    std::map<QString, QMenu*> menu_;
    std::vector<PrzyciskPaska> pasek_;
    StronaStartowa* strona_ = nullptr;
    QLabel* labTitle_[4] = {};
    QLabel* labUzytkownik_ = nullptr;
    QLabel* labBaza_ = nullptr;
    QLabel* labMiesiac_ = nullptr;
    QLabel* labZnalezione_ = nullptr;
    PoZamknieciu poZamknieciu_;
    bool bezPytania_ = false;
};

} // namespace tornel::app
