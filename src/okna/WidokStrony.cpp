#include "okna/WidokStrony.h"
#include "common/Blad.h"
#include "druk/Wyjscie.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <cmath>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

namespace tornel::okna {

namespace {

constexpr int kMargines = 2 * Wyglad::kSiatka; // of the desk around the paper
constexpr double kNajmniej = 0.2, kNajwiecej = 5;

} // namespace

class WidokStrony::Papier : public QWidget {
public:
    explicit Papier(WidokStrony& widok) : widok_(widok) {
        setObjectName(QStringLiteral("papier"));
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter malarz(this);
        const QRect kartka = rect().adjusted(kMargines, kMargines, -kMargines, -kMargines);
        malarz.fillRect(kartka.translated(3, 3), palette().color(QPalette::Shadow));
        malarz.fillRect(kartka, Qt::white);
        malarz.translate(kartka.topLeft());
        try {
            MalujStrone(malarz, logicalDpiX() * widok_.skala_, *widok_.uklad_, widok_.strona_);
        } catch (const Blad& blad) {
            // A row that cannot be read is told on its page; the others can be looked at.
            malarz.resetTransform();
            malarz.drawText(kartka.adjusted(kMargines, kMargines, -kMargines, -kMargines), Qt::TextWordWrap,
                            blad.komunikat());
        }
    }

private:
    WidokStrony& widok_;
};

WidokStrony::WidokStrony(std::shared_ptr<const Uklad> uklad, QWidget* rodzic)
    : QScrollArea(rodzic), uklad_(std::move(uklad)), papier_(new Papier(*this)) {
    setObjectName(QStringLiteral("widokStrony"));
    setAccessibleName(QStringLiteral("Strona wydruku"));
    setBackgroundRole(QPalette::Mid);
    setAlignment(Qt::AlignCenter);
    setWidget(papier_);
    setFocusPolicy(Qt::StrongFocus);
}

void WidokStrony::pokazStrone(int strona) {
    strona_ = std::clamp(strona, 0, uklad_->stron() - 1);
    verticalScrollBar()->setValue(0);
    papier_->update();
    emit pokazano(strona_);
}

void WidokStrony::powieksz(Powiekszenie jak, int procent) {
    jak_ = jak;
    if (jak == Powiekszenie::Swobodne) skala_ = std::clamp(procent / 100.0, kNajmniej, kNajwiecej);
    dopasuj();
}

int WidokStrony::procent() const { return static_cast<int>(std::lround(skala_ * 100)); }

void WidokStrony::dopasuj() {
    const Strona& s = uklad_->opis().strona;
    const double pikseliWMm = logicalDpiX() / 25.4;
    const double szer = s.szer() * pikseliWMm, wys = s.wys() * pikseliWMm;
    const QSize miejsce = maximumViewportSize() - QSize(2 * kMargines, 2 * kMargines);
    const int pasek = verticalScrollBar()->sizeHint().width();
    if (jak_ == Powiekszenie::SzerokoscStrony)
        skala_ = std::clamp((miejsce.width() - pasek) / szer, kNajmniej, kNajwiecej);
    else if (jak_ == Powiekszenie::CalaStrona)
        skala_ = std::clamp(std::min(miejsce.width() / szer, miejsce.height() / wys), kNajmniej, kNajwiecej);
    papier_->resize(static_cast<int>(szer * skala_) + 2 * kMargines,
                    static_cast<int>(wys * skala_) + 2 * kMargines);
    papier_->update();
}

void WidokStrony::resizeEvent(QResizeEvent* zdarzenie) {
    QScrollArea::resizeEvent(zdarzenie);
    dopasuj();
}

void WidokStrony::przewin(int kierunek) {
    QScrollBar* pasek = verticalScrollBar();
    const int przedtem = pasek->value();
    pasek->setValue(przedtem + kierunek * pasek->pageStep());
    if (pasek->value() != przedtem) return;
    const int strona = strona_;
    pokazStrone(strona_ + kierunek);
    if (kierunek < 0 && strona_ != strona) pasek->setValue(pasek->maximum());
}

void WidokStrony::keyPressEvent(QKeyEvent* zdarzenie) {
    switch (zdarzenie->key()) {
    case Qt::Key_PageDown:
    case Qt::Key_Space:
        return przewin(1);
    case Qt::Key_PageUp:
        return przewin(-1);
    case Qt::Key_Home:
        return pokazStrone(0);
    case Qt::Key_End:
        return pokazStrone(uklad_->stron() - 1);
    default:
        QScrollArea::keyPressEvent(zdarzenie);
    }
}

} // namespace tornel::okna
