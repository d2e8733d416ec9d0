// Quick find over a list of people: typing goes to the first row whose number or surname fits.
#pragma once
#include "common/Przestrzenie.h"
#include <QLineEdit>

namespace tornel::okna {

class WidokListy;

/// Takes over what is typed into the list; arrows and Enter pressed here act on the list. A text that fits no
/// row leaves the list alone and is struck through.
class PoleSzukania : public QLineEdit {
    Q_OBJECT
public:
    /// The list's columns that hold the number and the surname.
    PoleSzukania(WidokListy& lista, int kolumnaNumeru, int kolumnaNazwiska, QWidget* rodzic = nullptr);

    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

protected:
    void keyPressEvent(QKeyEvent* zdarzenie) override;

private:
    void szukaj(const QString& tekst);
    /// The row that fits best: the very number, else the first that begins with the text, else the first that
    /// contains it; -1 if none does.
    [[nodiscard]] int znajdz(const QString& tekst) const;

    WidokListy& lista_;
    int kolumnaNumeru_;
    int kolumnaNazwiska_;
};

} // namespace tornel::okna
