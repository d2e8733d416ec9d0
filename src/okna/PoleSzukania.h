// The filter over a list of people: as it is typed, only the rows whose number or surname fits are shown.
#pragma once
#include "common/Przestrzenie.h"
#include <QLineEdit>

namespace tornel::okna {

class WidokListy;
struct WierszListy;

/// Takes over what is typed into the list; arrows and Enter pressed here act on the list, Escape empties it
/// first. It tells how many rows fit, and chooses the one that fits best. A text that fits no row says so, is
/// struck through and leaves the list alone.
class PoleSzukania : public QLineEdit {
    Q_OBJECT
public:
    /// The list's columns that hold the number and the surname.
    PoleSzukania(WidokListy& lista, int kolumnaNumeru, int kolumnaNazwiska, QWidget* rodzic = nullptr);

    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

    /// "3 z 120", "nie znaleziono", or nothing for an empty text.
    [[nodiscard]] const QString& wynik() const { return wynik_; }

protected:
    void keyPressEvent(QKeyEvent* zdarzenie) override;
    void paintEvent(QPaintEvent* zdarzenie) override;

private:
    void szukaj(const QString& tekst);
    void powiedz(const QString& wynik);
    /// How well a row fits: 0 not at all, the very number best, then a beginning, then a part of the name.
    [[nodiscard]] int trafnosc(const WierszListy& wiersz, const QString& szukany, bool numer) const;

    WidokListy& lista_;
    int kolumnaNumeru_;
    int kolumnaNazwiska_;
    QString wynik_;
};

} // namespace tornel::okna
