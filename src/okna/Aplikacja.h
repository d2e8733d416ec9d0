// The outermost handler of the window program: a failure in any action is shown and undone, and the clerk
// goes on.
#pragma once
#include "store/Cofanie.h"
#include <functional>
#include <QApplication>

namespace tornel::okna {

class Aplikacja : public QApplication {
    Q_OBJECT

public:
    Aplikacja(int& argc, char** argv);

    /// How a failed action is told, before the handles are read again. It may throw; then the session itself
    /// is lost and the program ends.
    using Naprawa = std::function<void(const QString& komunikat)>;
    void ustawNaprawe(Naprawa naprawa) { naprawa_ = std::move(naprawa); }
    /// How the session's handles are read again; it may throw likewise.
    void ustawOdczyt(std::function<void()> odczyt) { odczyt_ = std::move(odczyt); }
    /// Reads the handles and tells the screens: after a failure that a screen has told by itself.
    void odczytajPonownie();

    /// How the last action is undone or made again; gives what to tell of it, nothing when it was refused.
    using Cofniecie = std::function<QString(Kierunek)>;
    void ustawCofanie(Cofniecie cofniecie) { cofniecie_ = std::move(cofniecie); }
    /// Undoes the last action or makes it again, once every open screen has stored or dropped its changes;
    /// then the screens read again. What came of it is told at the foot of the window.
    void cofnij(Kierunek kierunek);

    bool notify(QObject* odbiorca, QEvent* zdarzenie) override;
    /// Keeps the mouse wheel from changing a choice or a number that does not have the focus: it scrolls the
    /// screen.
    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

signals:
    /// The handles were read anew: screens show their current row again.
    void danePrzeczytane();
    /// An action was undone or made again, and the handles were read anew.
    void czynnoscCofnieta();

private:
    void napraw(const QString& komunikat);

    Naprawa naprawa_;
    std::function<void()> odczyt_;
    Cofniecie cofniecie_;
    bool wNaprawie_ = false;
};

} // namespace tornel::okna
