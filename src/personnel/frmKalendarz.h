// What the two screens of calendars do alike: the list of months at the left, the days of the chosen one at
// the right, stored when another month is chosen or the screen closes.
#pragma once
#include "okna/Okno.h"
#include "personnel/Kalendarz.h"
#include <functional>

class QGroupBox;
class QHBoxLayout;
class QLabel;
class QPushButton;

namespace tornel::okna {
class WidokListy;
} // namespace tornel::okna

namespace tornel::personnel {

class DniMiesiaca;

/// A screen gives the functions below and calls `WczytajMiesiace` at the end of its constructor.
class frmKalendarz : public OknoEdycji {
    Q_OBJECT
protected:
    /// `dodatkowe`: buttons of the screen's own, between those for a month and "&Powrót".
    frmKalendarz(Otoczenie& otoczenie, const QString& nazwa, const QList<QPushButton*>& dodatkowe,
                 QWidget* rodzic);

    /// Whose calendar is shown: an employee's number, or `kKalendarzOgolny`.
    [[nodiscard]] virtual qint64 czyj() const = 0;
    /// Before the clerk is asked for a new month: whether there is somebody to have it.
    [[nodiscard]] virtual bool jestKomu() { return true; }
    /// After a month was shown, or (nothing) an empty list.
    virtual void pokazano(const std::optional<MiesiacKalendarza>& miesiac) = 0;
    /// After the set of months has changed, with the one to show.
    virtual void odswiez(const MiesiacKalendarza& zaznacz) { WczytajMiesiace(zaznacz); }
    /// Puts the lists back on the month that is shown.
    virtual void cofnijListy();

    /// Fills the list of months of `czyj()` and shows `zaznacz`, else the last one.
    void WczytajMiesiace(std::optional<MiesiacKalendarza> zaznacz = std::nullopt);
    /// Drops the month shown with what was changed in it.
    void porzuc();
    /// Stores the days of the month shown, if they were changed, and goes on with `dalej`. Should storing
    /// fail, the lists go back.
    void poZapisie(const std::function<void()>& dalej);
    /// Asks for a month and makes it in the calendar of `prcId`.
    void nowyMiesiac(qint64 prcId);

    /// "Marzec 2001".
    [[nodiscard]] static QString nazwaMiesiaca(const MiesiacKalendarza& miesiac);
    [[nodiscard]] Kalendarz& kalendarz() { return kalendarz_; }
    [[nodiscard]] Otoczenie& otoczenie() { return o_; }
    [[nodiscard]] const std::optional<MiesiacKalendarza>& biezacy() const { return biezacy_; }
    [[nodiscard]] WidokListy& listaMiesiecy() { return *lvwMies_; }
    /// Puts a list to the left of the list of months.
    void dodajListe(QWidget* lista);
    void ustawTytulDni(const QString& tytul);

    [[nodiscard]] bool jestZmiana() const override;
    [[nodiscard]] bool zapiszZmiany() override;
    void porzucZmiany() override { porzuc(); }
    void pokazPonownie() override;
    void wczytajPonownie() override;

private:
    [[nodiscard]] QWidget* ramkaDni();
    [[nodiscard]] QWidget* rzad(const QList<QPushButton*>& dodatkowe);
    void budujSkroty();
    void wybierzMiesiac(qint64 id);
    void WypiszDni(const std::optional<MiesiacKalendarza>& miesiac);
    void policz();
    void usun();
    void zaznaczSwieta();

    Otoczenie& o_;
    Kalendarz kalendarz_;
    std::optional<MiesiacKalendarza> biezacy_;
    QHBoxLayout* listy_;
    WidokListy* lvwMies_;
    QGroupBox* ramka_ = nullptr;
    DniMiesiaca* dni_;
    QLabel *labDni_, *labWolne_;
    QPushButton *cmdNowy_, *cmdSwieta_, *cmdUsun_, *cmdAnuluj_;
};

} // namespace tornel::personnel
