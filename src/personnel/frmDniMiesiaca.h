// The days of one month of a calendar, a line each in two columns: number, weekday, "Wolny", "Opis".
#pragma once
#include "personnel/Kalendarz.h"
#include <QDate>
#include <QWidget>
#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace tornel::personnel {

/// Keys: up and down go to the same control of the next day, left and right (in "Wolny") to the other column,
/// the space bar marks a day, a letter begins its description, Enter goes on to the next control.
class DniMiesiaca : public QWidget {
    Q_OBJECT
public:
    explicit DniMiesiaca(QWidget* rodzic = nullptr);

    /// Shows the month; what was changed in the one before is dropped.
    void pokaz(int rok, int mies, const TrescMiesiaca& tresc);
    /// No month: all lines are hidden.
    void czysc();
    /// What is shown, with the clerk's changes.
    [[nodiscard]] TrescMiesiaca tresc() const;
    [[nodiscard]] bool jestZmiana() const { return zmieniona_; }
    /// What is shown counts as stored.
    void przyjmij() { zmieniona_ = false; }
    /// Puts the focus on the first day.
    void wejdz();

    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

signals:
    /// The clerk has changed a day.
    void zmienione();

private:
    struct Linia {
        QLabel* numer;
        QLabel* nazwa;
        QCheckBox* wolny;
        QLineEdit* opis;
    };

    void dodajLinie(int dzien);
    /// Shows the lines of as many days, and the headings with the first.
    void pokazLinie(int ile);
    void pokazZnak(const Linia& linia);
    void zmien(const Linia& linia);
    /// Moves the focus by `oIle` days; past the ends of the month it stays.
    void przesun(QObject* skad, int oIle);
    bool klawisz(QWidget& kontrolka, QKeyEvent& zdarzenie);
    [[nodiscard]] int dzien(const QObject* kontrolka) const; ///< 0 for none

    std::vector<Linia> linie_; ///< by day, beginning with 1
    QList<QLabel*> naglowki_;
    TrescMiesiaca wczytana_;
    int iloscDni_ = 0;
    bool zmieniona_ = false;
};

} // namespace tornel::personnel
