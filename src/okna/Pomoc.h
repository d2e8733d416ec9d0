// F1: the page of the handbook that tells of the screen in work.
#pragma once
#include "common/Przestrzenie.h"
#include <QObject>
#include <QPointer>
#include <QSize>

class QWidget;

namespace tornel::common {
class Rozmowa;
} // namespace tornel::common

namespace tornel::okna {

class frmPomoc;

/// Answers F1 and the "Pomoc" buttons (`QEvent::WhatsThis`) of every window. A page bears the objectName of
/// its screen; a section for one of the screen's tabs has the tab's caption behind it, in small letters
/// without Polish marks and with dashes for all other signs ("frmStaleProgramu-uzytkownik-1"). A screen
/// without a page shows that of the screen from which it was opened.
class Pomoc : public QObject {
    Q_OBJECT
public:
    /// `plik`: the handbook. It is read when help is asked for; one that cannot be read is reported through
    /// `rozmowa`, by its name.
    Pomoc(QString plik, Rozmowa& rozmowa);

    /// Shows the section or page for the screen in which `widzet` stands.
    void pokaz(QWidget& widzet);
    /// Shows the contents of the handbook over `ekran`.
    void pokazSpis(QWidget& ekran);

    bool eventFilter(QObject* obiekt, QEvent* zdarzenie) override;

private:
    /// The window, over `ekran`; null after a message.
    [[nodiscard]] frmPomoc* okno(QWidget& ekran);
    [[nodiscard]] QString czytajPodrecznik();
    void pokaz(QWidget& ekran, const QStringList& tematy);
    void poSchowaniu(QWidget& widzet);

    QString plik_;
    Rozmowa& rozmowa_;
    QPointer<frmPomoc> okno_; ///< a child of the screen over which it stands
    QSize rozmiar_;           ///< what the clerk last made of it; empty before that
    bool wKomunikacie_ = false;
};

} // namespace tornel::okna
