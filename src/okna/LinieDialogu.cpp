#include "okna/LinieDialogu.h"
#include "okna/PoleTekstu.h"
#include "okna/SiatkaPol.h"
#include "okna/Wyglad.h"
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace tornel::okna {

namespace {

constexpr int kSzerokoscLinii = 30 * Wyglad::kSiatka;

} // namespace

LinieDialogu::LinieDialogu(QWidget* rodzic) : QWidget(rodzic), siatka_(new SiatkaPol(1)) {
    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(0, 0, 0, 0);
    uklad->addWidget(siatka_);
}

PoleTekstu* LinieDialogu::dodaj(const QString& nazwa, const QString& podpis, int dlugosc, Pisownia pisownia) {
    auto* linia = new PoleTekstu;
    linia->setObjectName(nazwa);
    linia->setAccessibleName(podpis);
    linia->setMaxLength(dlugosc);
    linia->setMinimumWidth(kSzerokoscLinii);
    linia->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    if (pisownia == Pisownia::Ukryta) linia->setEchoMode(QLineEdit::Password);
    linia->installEventFilter(this);
    auto* etykieta = new QLabel(podpis);
    etykieta->setBuddy(linia);
    siatka_->dodaj(etykieta, linia);
    siatka_->uloz();
    linie_.append(linia);
    return linia;
}

bool LinieDialogu::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    if (zdarzenie->type() == QEvent::KeyPress) {
        const int klawisz = static_cast<QKeyEvent*>(zdarzenie)->key();
        const auto nr = linie_.indexOf(obiekt);
        const bool enter = klawisz == Qt::Key_Return || klawisz == Qt::Key_Enter;
        if (enter && nr >= 0 && nr + 1 < linie_.size()) {
            linie_.at(nr + 1)->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return QWidget::eventFilter(obiekt, zdarzenie);
}

} // namespace tornel::okna
