#include "okna/Aplikacja.h"
#include "common/Blad.h"
#include <new>

namespace tornel::okna {

Aplikacja::Aplikacja(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("Tornel"));
    setApplicationVersion(QStringLiteral(TORNEL_WERSJA));
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

void Aplikacja::napraw(const QString& komunikat) {
    while (overrideCursor()) restoreOverrideCursor();
    if (wNaprawie_ || !naprawa_) {
        qCritical("%s", qUtf8Printable(komunikat));
        return;
    }
    wNaprawie_ = true;
    try {
        naprawa_(komunikat);
    } catch (const std::exception& utrata) {
        // The session itself is gone: nothing can be saved any more.
        qCritical("%s", utrata.what());
        exit(1);
    }
    wNaprawie_ = false;
    emit danePrzeczytane();
}

} // namespace tornel::okna
