#include "app/frmSplash.h"
#include "common/Rozmowa.h"
#include "okna/Wyglad.h"
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPainter>

namespace tornel::app {

namespace {

constexpr QSize kRozmiar(480, 280);
constexpr int kBrzeg = 4 * Wyglad::kSiatka;
constexpr int kPismoNazwy = 26;
constexpr QColor kNapis(0xf8, 0xfa, 0xfb);

} // namespace

frmSplash::frmSplash() : QSplashScreen(Wyglad::ikona(u"powitanie").pixmap(kRozmiar, 1.0)) {
    setObjectName(QStringLiteral("frmSplash"));
    qApp->installEventFilter(this);
}

bool frmSplash::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    if (zdarzenie->type() == QEvent::Show && qobject_cast<QDialog*>(obiekt)) hide();
    return QSplashScreen::eventFilter(obiekt, zdarzenie);
}

void frmSplash::drawContents(QPainter* malarz) {
    const QRect pole = rect().adjusted(kBrzeg, kBrzeg, -kBrzeg, -kBrzeg);
    malarz->setPen(kNapis);
    QFont pismo = font();
    malarz->setFont(pismo);
    malarz->drawText(pole, Qt::AlignLeft | Qt::AlignBottom, QStringLiteral("wersja 1.1"));
    pismo.setPointSize(kPismoNazwy);
    pismo.setBold(true);
    malarz->setFont(pismo);
    malarz->drawText(pole, Qt::AlignLeft | Qt::AlignTop, Rozmowa::domyslnyTytul());
}

} // namespace tornel::app
