// "Stałe programu": all program constants on eighteen tabs, stored together as one action.
#pragma once
#include "okna/Okno.h"
#include "okna/Wiazanie.h"
#include "rules/frmStalePola.h"
#include "rules/frmStaleSprawdzenia.h"
#include "rules/Otoczenie.h"
#include <functional>
#include <QHash>

class QListWidget;
class QPushButton;
class QStackedWidget;

namespace tornel::rules {

class OpisPola;

/// What the screen asks of those above it; each may be left out.
struct PortyStalych {
    /// Opens the register of tax offices and returns when it is closed. Without it "&Nowy" is disabled.
    std::function<void()> otworzUrzedy = {};
    /// The constants are stored: rights and titles apply anew.
    std::function<void()> UstawDostepnoscMenu = {};
    /// Asks for a folder, beginning at `wstepny`; an empty answer is none. Without it the folder dialog asks.
    std::function<QString(QWidget* rodzic, const QString& wstepny)> wybierzFolder = {};
};

class frmStaleProgramu : public OknoEdycji {
    Q_OBJECT
public:
    /// Shows the constants in memory and the offices of `US`. Throws `BladBazy`.
    explicit frmStaleProgramu(Otoczenie& otoczenie, PortyStalych porty = {}, QWidget* rodzic = nullptr);

    /// Stores all constants in `KON` as one action and closes. Throws `BladBazy`; the screen then stays open
    /// with what was typed, and the constants in memory stay as they were.
    void accept() override;

    void pokazKarte(KartaStalych karta);

protected:
    [[nodiscard]] bool jestZmiana() const override {
        return wiazanie_.jestZmiana() || zrodlo_.stale() != o_.stale;
    }
    [[nodiscard]] bool zapiszZmiany() override;
    void porzucZmiany() override {} // nothing has left the screen's own copy
    /// That copy would bring back what was undone.
    [[nodiscard]] bool cofaCzynnosci() const override { return false; }

private:
    void buduj();
    void budujKarty();
    void dodajPrzyciski();
    void dolaczPrzycisk(const QString& pole, QPushButton* przycisk);
    void dodajSkroty();
    void ustawSprawdzenia();
    void Wyswietl();
    void pokazUrzedy();
    void pokazNazwe(const QString& pole);
    void poOpuszczeniu(const QString& pole);
    void wybierzFolder(const QString& pole);
    void otworzUrzedy();
    void przesunKarte(int oIle);

    Otoczenie& o_;
    PortyStalych porty_;
    ZrodloStalych zrodlo_;
    SprawdzeniaStalych sprawdzenia_;
    Wiazanie wiazanie_;
    QListWidget* lstKarty_;
    QStackedWidget* karty_;
    QHash<QString, OpisPola*> opisy_; ///< the names of components, by the name of their label
};

} // namespace tornel::rules
