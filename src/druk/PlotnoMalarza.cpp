#include "druk/PlotnoMalarza.h"
#include "druk/Pisma.h"
#include <QFontMetricsF>
#include <QPainter>
#include <QSvgRenderer>

namespace tornel::druk {

namespace {

constexpr double kNajmniejszePismo = 0.7; // of its size; below that a text is cut
constexpr double kLinia = 0.2;            // mm

QRectF prostokat(const Miejsce& m) {
    return {m.x * kJednostekWMm, m.y * kJednostekWMm, m.szer * kJednostekWMm, m.wys * kJednostekWMm};
}

} // namespace

void Plotno::kratki(const Miejsce& m, const QString& znaki, Pismo pismo, int ile, int od) {
    const double krok = m.szer / ile;
    for (int i = 0; i < znaki.size(); ++i)
        tekst({m.x + (od + i) * krok, m.y, krok, m.wys}, znaki.mid(i, 1), pismo, Ulozenie::Srodek);
}

PlotnoMalarza::PlotnoMalarza(QPainter& malarz) : malarz_(malarz) {
    malarz_.setPen(QPen(Qt::black, kLinia * kJednostekWMm));
    malarz_.setBrush(Qt::NoBrush);
}

PlotnoMalarza::~PlotnoMalarza() = default;

void PlotnoMalarza::ustawPismo(Pismo rola) {
    if (pismo_ == static_cast<int>(rola)) return;
    pismo_ = static_cast<int>(rola);
    malarz_.setFont(pismo(rola));
}

void PlotnoMalarza::tekst(const Miejsce& m, const QString& tekst, Pismo rola, Ulozenie ulozenie) {
    if (tekst.isEmpty()) return;
    const QRectF pole = prostokat(m);
    double szer = szerTekstu(tekst, rola) * kJednostekWMm;
    QString widoczny = tekst;
    QFont font = pismo(rola);
    if (szer > pole.width()) {
        font.setPixelSize(std::max(
            1, static_cast<int>(font.pixelSize() * std::max(kNajmniejszePismo, pole.width() / szer))));
        const QFontMetricsF miary(font);
        widoczny = miary.elidedText(tekst, Qt::ElideRight, pole.width());
        szer = miary.horizontalAdvance(widoczny);
        malarz_.setFont(font);
        pismo_ = -1;
    } else {
        ustawPismo(rola);
    }
    const double wolne = pole.width() - szer;
    const double x = ulozenie == Ulozenie::Lewo ? 0 : ulozenie == Ulozenie::Srodek ? wolne / 2 : wolne;
    // The line stands in the middle of its place by the height of capital letters.
    const double y = pole.center().y() + font.pixelSize() * 0.36;
    malarz_.drawText(QPointF(pole.x() + x, y), widoczny);
}

void PlotnoMalarza::linia(const Miejsce& m, bool przerywana) {
    const QRectF r = prostokat(m);
    if (!przerywana) return malarz_.drawLine(r.topLeft(), r.bottomRight());
    const QPen zwykle = malarz_.pen();
    QPen kreski = zwykle;
    kreski.setStyle(Qt::DashLine);
    malarz_.setPen(kreski);
    malarz_.drawLine(r.topLeft(), r.bottomRight());
    malarz_.setPen(zwykle);
}

void PlotnoMalarza::ramka(const Miejsce& m) { malarz_.drawRect(prostokat(m)); }

void PlotnoMalarza::obraz(const Miejsce& m, const QString& zasob) {
    auto& rysunek = obrazy_[zasob];
    if (!rysunek) rysunek = std::make_shared<QSvgRenderer>(zasob);
    rysunek->render(&malarz_, prostokat(m));
}

} // namespace tornel::druk
