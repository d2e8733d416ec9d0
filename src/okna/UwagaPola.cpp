#include "okna/UwagaPola.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>

namespace tornel::okna {

namespace {

constexpr int kNajszersza = 44 * Wyglad::kSiatka;
constexpr int kOdstep = 2;

/// What scrolls together with the field, or the whole window.
QWidget& stronaPola(QWidget& pole) {
    QWidget* strona = &pole;
    while (!strona->isWindow() && strona->parentWidget()) {
        QWidget* nad = strona->parentWidget();
        const auto* przewijana = qobject_cast<QAbstractScrollArea*>(nad->parentWidget());
        if (przewijana && przewijana->viewport() == nad && strona != &pole) return *strona;
        strona = nad;
    }
    return *strona;
}

QRect naStronie(const QWidget& widzet, const QWidget& strona) {
    return {widzet.mapTo(&strona, QPoint()), widzet.size()};
}

} // namespace

UwagaPola::UwagaPola(QWidget& pole, QWidget& strona) : QLabel(&strona), pole_(&pole) {
    setObjectName(QStringLiteral("uwaga(%1)").arg(pole.objectName()));
    setProperty("uwagaPola", true);
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    pole.installEventFilter(this);
    connect(&pole, &QObject::destroyed, this, &QObject::deleteLater);
    connect(qApp, &QApplication::focusChanged, this, &UwagaPola::umiesc);
}

UwagaPola* UwagaPola::uwaga(const QWidget& pole) {
    const QList<UwagaPola*> wszystkie = pole.window()->findChildren<UwagaPola*>();
    const auto ta = std::ranges::find_if(wszystkie, [&](const UwagaPola* u) { return u->pole_ == &pole; });
    return ta == wszystkie.end() ? nullptr : *ta;
}

void UwagaPola::ustaw(QWidget& pole, const QString& zdanie) {
    UwagaPola* jest = uwaga(pole);
    if (zdanie.isEmpty() && !jest) return;
    Wyglad::oznaczBlad(pole, !zdanie.isEmpty());
    pole.setAccessibleDescription(zdanie);
    if (zdanie.isEmpty()) {
        delete jest;
        return;
    }
    if (!jest) jest = new UwagaPola(pole, stronaPola(pole));
    jest->setText(zdanie);
    jest->umiesc();
}

QString UwagaPola::zdanie(const QWidget& pole) {
    const UwagaPola* jest = uwaga(pole);
    return jest ? jest->text() : QString();
}

QPoint UwagaPola::miejsce() const {
    const QWidget& strona = *parentWidget();
    const QRect tu = naStronie(*pole_, strona);
    const int doPrawej = std::max(0, std::min(tu.left(), strona.width() - width()));
    const QPoint kandydaci[] = {{tu.right() + 1 + kOdstep, tu.center().y() - height() / 2},
                                {doPrawej, tu.bottom() + 1 + kOdstep},
                                {doPrawej, tu.top() - height() - kOdstep}};
    const QWidget* wPracy = QApplication::focusWidget();
    const bool tutaj = wPracy && strona.isAncestorOf(wPracy);
    for (const QPoint& p : kandydaci) {
        const QRect zajete(p, size());
        const bool zaslania = tutaj && zajete.intersects(naStronie(*wPracy, strona));
        if (strona.rect().contains(zajete) && !zaslania) return p;
    }
    return kandydaci[1];
}

void UwagaPola::umiesc() {
    if (!pole_ || !pole_->isVisible()) return hide();
    setWordWrap(false);
    const int szerokosc = std::min({kNajszersza, sizeHint().width(), parentWidget()->width()});
    setWordWrap(true);
    resize(szerokosc, heightForWidth(szerokosc));
    move(miejsce());
    raise();
    show();
}

bool UwagaPola::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    switch (zdarzenie->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
        umiesc();
        break;
    case QEvent::Hide:
        hide();
        break;
    default:
        break;
    }
    return QLabel::eventFilter(obiekt, zdarzenie);
}

} // namespace tornel::okna
