// The outermost handler of the window program: a failure in any action is shown and undone, and the clerk
// goes on.
#pragma once
#include "common/Przestrzenie.h"
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

    bool notify(QObject* odbiorca, QEvent* zdarzenie) override;
    /// Keeps the mouse wheel from changing a choice or a number that does not have the focus: it scrolls the
    /// screen.
    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

signals:
    /// The handles were read anew: screens show their current row again.
    void danePrzeczytane();

private:
    void napraw(const QString& komunikat);

    Naprawa naprawa_;
    std::function<void()> odczyt_;
    bool wNaprawie_ = false;
};

} // namespace tornel::okna
