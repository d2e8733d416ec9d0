#include "okna/ZnakZmiany.h"
#include <QEvent>

namespace tornel::okna {

namespace {

constexpr int kGruboscZnaku = 3;

ZnakZmiany* znakPola(const QWidget& pole) {
    return pole.findChild<ZnakZmiany*>(QString(), Qt::FindDirectChildrenOnly);
}

} // namespace

ZnakZmiany::ZnakZmiany(QWidget& pole) : QWidget(&pole) {
    setObjectName(QStringLiteral("znakZmiany"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Highlight);
    setGeometry(0, 0, kGruboscZnaku, pole.height());
    pole.installEventFilter(this);
}

void ZnakZmiany::ustaw(QWidget& pole, bool zmienione) {
    ZnakZmiany* znak = znakPola(pole);
    if (!zmienione) {
        delete znak;
        return;
    }
    if (znak) return;
    znak = new ZnakZmiany(pole);
    znak->raise();
    znak->show();
}

bool ZnakZmiany::jest(const QWidget& pole) { return znakPola(pole) != nullptr; }

bool ZnakZmiany::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    if (zdarzenie->type() == QEvent::Resize && obiekt == parent()) resize(width(), parentWidget()->height());
    return QWidget::eventFilter(obiekt, zdarzenie);
}

} // namespace tornel::okna
