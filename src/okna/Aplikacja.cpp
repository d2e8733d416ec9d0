#include "okna/Aplikacja.h"
#include "common/Blad.h"
#include "okna/Okno.h"
#include <new>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QToolTip>

namespace tornel::okna {

Aplikacja::Aplikacja(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("Tornel"));
    setApplicationVersion(QStringLiteral(TORNEL_WERSJA));
    installEventFilter(this);
}

bool Aplikacja::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    if (zdarzenie->type() != QEvent::Wheel) return false;
    const auto* widzet = qobject_cast<const QWidget*>(obiekt);
    const bool zmienny =
        qobject_cast<const QComboBox*>(widzet) || qobject_cast<const QAbstractSpinBox*>(widzet);
    if (!zmienny || widzet->hasFocus()) return false;
    zdarzenie->ignore(); // handed on to what the control stands on
    return true;
}

bool Aplikacja::notify(QObject* odbiorca, QEvent* zdarzenie) {
    try {
        return QApplication::notify(odbiorca, zdarzenie);
    } catch (const Blad& blad) {
        napraw(blad.komunikat());
    } catch (const Przerwanie& przerwanie) {
        napraw(przerwanie.powod());
    } catch (const std::bad_alloc&) {
        napraw(tr("Zabrakło pamięci. Czynność nie została wykonana."));
    } catch (const std::exception& wyjatek) {
        napraw(QString::fromUtf8(wyjatek.what()));
    }
    return false;
}

void Aplikacja::odczytajPonownie() {
    if (odczyt_) odczyt_();
    emit danePrzeczytane();
}

void Aplikacja::cofnij(Kierunek kierunek) {
    if (!cofniecie_) return;
    constexpr int milisekund = 6000;
    constexpr QPoint odRogu{16, -56};
    for (QWidget* okno : topLevelWidgets())
        if (auto* ekran = qobject_cast<Okno*>(okno);
            ekran && ekran->isVisible() && !ekran->przygotujCofniecie())
            return;
    const QString tekst = cofniecie_(kierunek);
    if (tekst.isEmpty()) return;
    emit czynnoscCofnieta();
    if (QWidget* okno = activeWindow())
        QToolTip::showText(okno->mapToGlobal(okno->rect().bottomLeft() + odRogu), tekst, okno, {},
                           milisekund);
}

void Aplikacja::napraw(const QString& komunikat) {
    while (overrideCursor()) restoreOverrideCursor();
    if (wNaprawie_ || !naprawa_) {
        qCritical("%s", qUtf8Printable(komunikat));
        return;
    }
    wNaprawie_ = true;
    try {
        naprawa_(komunikat);
        if (odczyt_) odczyt_();
    } catch (const std::exception& utrata) {
        // The session itself is gone: nothing can be saved any more.
        qCritical("%s", utrata.what());
        exit(1);
    }
    wNaprawie_ = false;
    emit danePrzeczytane();
}

} // namespace tornel::okna
