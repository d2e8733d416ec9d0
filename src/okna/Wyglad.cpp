#include "okna/Wyglad.h"
#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QSvgRenderer>
#include <QVariant>

// The pictures lie in a static library, whose resources register only when asked to. The macro cannot stand
// in a namespace.
static void zapewnijObrazy() { Q_INIT_RESOURCE(obrazy); }

namespace tornel::okna {

namespace {

constexpr int kRozmiarPisma = 10;
/// Windows below this lightness, of 255, are a dark desktop's.
constexpr int kCiemnyPulpit = 128;
constexpr int kWysokoscWiersza = 22;
constexpr int kOdstepWLiscie = 5;
constexpr int kOdstepWPolu = 2;
/// Added to the caption of a tab: eleven of them have to stand side by side.
constexpr int kOdstepZakladki = 2 * Wyglad::kSiatka;

/// Fusion on the 8 px grid.
class StylTornel : public QProxyStyle {
public:
    StylTornel() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    using QProxyStyle::polish;
    void polish(QWidget* widzet) override {
        QProxyStyle::polish(widzet);
        auto* linia = qobject_cast<QLineEdit*>(widzet);
        if (linia && !qobject_cast<QAbstractSpinBox*>(linia->parentWidget()))
            linia->setTextMargins(kOdstepWPolu, 0, kOdstepWPolu, 0);
    }

    int pixelMetric(PixelMetric miara, const QStyleOption* opcja, const QWidget* widzet) const override {
        switch (miara) {
        case PM_LayoutLeftMargin:
        case PM_LayoutTopMargin:
        case PM_LayoutRightMargin:
        case PM_LayoutBottomMargin:
        case PM_LayoutHorizontalSpacing:
        case PM_LayoutVerticalSpacing:
            return Wyglad::kSiatka;
        case PM_ToolBarIconSize:
            return 3 * Wyglad::kSiatka;
        case PM_TabBarTabHSpace:
            return kOdstepZakladki;
        default:
            return QProxyStyle::pixelMetric(miara, opcja, widzet);
        }
    }
    QSize sizeFromContents(ContentsType co, const QStyleOption* opcja, const QSize& tresc,
                           const QWidget* widzet) const override {
        const QSize rozmiar = QProxyStyle::sizeFromContents(co, opcja, tresc, widzet);
        switch (co) {
        case CT_LineEdit:
        case CT_ComboBox:
        case CT_SpinBox:
            return rozmiar.expandedTo(QSize(0, Wyglad::kWysokoscPola));
        case CT_ItemViewItem:
            return rozmiar.expandedTo(QSize(0, kWysokoscWiersza));
        default:
            return rozmiar;
        }
    }
    void drawPrimitive(PrimitiveElement co, const QStyleOption* opcja, QPainter* malarz,
                       const QWidget* widzet) const override {
        QProxyStyle::drawPrimitive(co, opcja, malarz, widzet);
        obrysuj(co, *opcja, *malarz);
        // One ground for all tabs, whether or not their pages scroll.
        if (co == PE_FrameTabWidget)
            malarz->fillRect(opcja->rect.adjusted(1, 1, -1, -1), opcja->palette.window());
    }
    void drawControl(ControlElement co, const QStyleOption* opcja, QPainter* malarz,
                     const QWidget* widzet) const override {
        const auto* pozycja = qstyleoption_cast<const QStyleOptionMenuItem*>(opcja);
        if (co != CE_MenuItem || !pozycja || !(pozycja->state & State_Selected) || pozycja->icon.isNull())
            return QProxyStyle::drawControl(co, opcja, malarz, widzet);
        // The entry under the mouse has the accent's ground, on which a picture in the colour of plain text
        // would vanish.
        QStyleOptionMenuItem wybrana = *pozycja;
        const int bok = pixelMetric(PM_SmallIconSize, opcja, widzet);
        if (wybrana.state & State_Enabled)
            wybrana.icon = QIcon(wybrana.icon.pixmap(QSize(bok, bok), QIcon::Selected));
        QProxyStyle::drawControl(co, &wybrana, malarz, widzet);
    }
    /// Fusion takes the ground made darker for the outlines of fields and boxes, which on a dark one nobody
    /// sees.
    static void obrysuj(PrimitiveElement co, const QStyleOption& opcja, QPainter& malarz) {
        const bool pole = co == PE_FrameLineEdit;
        const bool znak = co == PE_IndicatorCheckBox || co == PE_IndicatorRadioButton;
        if ((!pole && !znak) || opcja.palette.color(QPalette::Window).lightness() >= kCiemnyPulpit) return;
        const QRectF obrys = QRectF(opcja.rect).adjusted(0.5, 0.5, -0.5, -0.5);
        const double promien = co == PE_IndicatorRadioButton ? obrys.width() / 2 : 2;
        malarz.save();
        malarz.setRenderHint(QPainter::Antialiasing);
        malarz.setBrush(Qt::NoBrush);
        const bool wPracy = pole && (opcja.state & State_HasFocus);
        malarz.setPen(opcja.palette.color(wPracy ? QPalette::Highlight
                                          : pole ? QPalette::Mid
                                                 : QPalette::PlaceholderText));
        malarz.drawRoundedRect(obrys, promien, promien);
        malarz.restore();
    }
    QIcon standardIcon(StandardPixmap obraz, const QStyleOption* opcja,
                       const QWidget* widzet) const override {
        switch (obraz) {
        case SP_MessageBoxInformation:
            return Wyglad::ikona(u"oprogramie");
        case SP_MessageBoxQuestion:
            return Wyglad::ikona(u"pomoc");
        case SP_MessageBoxWarning:
            return Wyglad::ikona(u"ostrzezenie");
        case SP_MessageBoxCritical:
            return Wyglad::ikona(u"blad");
        default:
            return QProxyStyle::standardIcon(obraz, opcja, widzet);
        }
    }
};

/// An SVG whose currentColor takes the palette's text colour at the moment of drawing.
class IkonaPalety : public QIconEngine {
public:
    explicit IkonaPalety(QString nazwa, QByteArray svg) : nazwa_(std::move(nazwa)), svg_(std::move(svg)) {}

    void paint(QPainter* malarz, const QRect& prostokat, QIcon::Mode tryb, QIcon::State) override {
        QByteArray barwiony = svg_;
        barwiony.replace("currentColor", barwa(tryb).name().toLatin1());
        QSvgRenderer svg(barwiony);
        const QSizeF rozmiar = QSizeF(svg.defaultSize()).scaled(prostokat.size(), Qt::KeepAspectRatio);
        QRectF cel(QPointF(), rozmiar);
        cel.moveCenter(QRectF(prostokat).center());
        svg.render(malarz, cel);
    }

    QPixmap pixmap(const QSize& rozmiar, QIcon::Mode tryb, QIcon::State stan) override {
        const QString klucz = QStringLiteral("tornel-%1-%2x%3-%4")
                                  .arg(nazwa_)
                                  .arg(rozmiar.width())
                                  .arg(rozmiar.height())
                                  .arg(barwa(tryb).name());
        QPixmap obraz;
        if (QPixmapCache::find(klucz, &obraz)) return obraz;
        obraz = QPixmap(rozmiar);
        obraz.fill(Qt::transparent);
        QPainter malarz(&obraz);
        malarz.setRenderHint(QPainter::Antialiasing);
        paint(&malarz, QRect(QPoint(), rozmiar), tryb, stan);
        malarz.end();
        QPixmapCache::insert(klucz, obraz);
        return obraz;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new IkonaPalety(*this); }

private:
    static QColor barwa(QIcon::Mode tryb) {
        const QPalette p = QApplication::palette();
        if (tryb == QIcon::Disabled) return p.color(QPalette::Disabled, QPalette::ButtonText);
        return p.color(tryb == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText);
    }

    QString nazwa_;
    QByteArray svg_;
};

/// Sets a property that the style sheet looks at, and has the widget drawn by it.
void oznacz(QWidget& widzet, const char* wlasnosc, bool wartosc) {
    if (widzet.property(wlasnosc).toBool() == wartosc) return;
    widzet.setProperty(wlasnosc, wartosc);
    widzet.style()->unpolish(&widzet);
    widzet.style()->polish(&widzet);
}

} // namespace

namespace Wyglad {

void zastosuj(QApplication& program) {
    program.setStyle(new StylTornel);
    QFont pismo = program.font();
    pismo.setPointSize(kRozmiarPisma);
    program.setFont(pismo);
    pokazMotyw(program, zapamietanyMotyw());
    program.setWindowIcon(ikona(u"program"));
}

void pokazMotyw(QApplication& program, WyborMotywu wybor) {
    Motyw motyw = wybor == WyborMotywu::Ciemny ? Motyw::Ciemny : Motyw::Jasny;
    if (wybor == WyborMotywu::JakPulpit) {
        program.setPalette(QPalette()); // the desktop's own comes to light
        if (program.palette().color(QPalette::Window).lightness() < kCiemnyPulpit) motyw = Motyw::Ciemny;
    }
    program.setPalette(PaletaMotywu(motyw));
    program.setStyleSheet(ArkuszMotywu(motyw));
}

QIcon ikona(QStringView nazwa) {
    zapewnijObrazy();
    QFile plik(QStringLiteral(":/obrazy/%1.svg").arg(nazwa));
    if (nazwa.isEmpty() || !plik.open(QIODevice::ReadOnly)) return {};
    return QIcon(new IkonaPalety(nazwa.toString(), plik.readAll()));
}

QIcon znakUwagi() {
    static constexpr int kBok = 2 * kSiatka;
    QPixmap obraz(kBok, kBok);
    obraz.fill(Qt::transparent);
    QPainter malarz(&obraz);
    malarz.setRenderHint(QPainter::Antialiasing);
    malarz.setBrush(kDoPrzeliczenia);
    malarz.setPen(QColor(Qt::darkGray));
    malarz.drawEllipse(QRectF(obraz.rect()).adjusted(1.5, 1.5, -1.5, -1.5));
    malarz.setPen(Qt::NoPen);
    malarz.setBrush(Qt::black);
    malarz.drawRect(QRectF(7.25, 4, 1.5, 5));
    malarz.drawRect(QRectF(7.25, 10.25, 1.5, 1.5));
    malarz.end();
    return QIcon(obraz);
}

void oznaczDoPrzeliczenia(QAbstractButton& przycisk, bool doPrzeliczenia) {
    oznacz(przycisk, "doPrzeliczenia", doPrzeliczenia);
}

void oznaczObliczane(QWidget& pole) { oznacz(pole, "obliczane", true); }

void oznaczBlad(QWidget& pole, bool blad) { oznacz(pole, "blad", blad); }

void oznaczGlowne(QWidget& pole) { oznacz(pole, "glowne", true); }

void oznaczPilne(QWidget& napis, bool pilne) { oznacz(napis, "pilne", pilne); }

void oznaczWolny(QWidget& numer, bool wolny) { oznacz(numer, "wolny", wolny); }

void oznaczKoniecTygodnia(QWidget& nazwa, bool koniec) { oznacz(nazwa, "koniecTygodnia", koniec); }

QLabel* baner(const QString& tekst, QWidget* rodzic) {
    auto* etykieta = new QLabel(rodzic);
    etykieta->setProperty("baner", true);
    etykieta->setTextFormat(Qt::PlainText);
    ustawBaner(*etykieta, tekst);
    return etykieta;
}

void ustawBaner(QLabel& baner, const QString& tekst) {
    baner.setText(tekst);
    baner.setVisible(!tekst.isEmpty());
}

} // namespace Wyglad

} // namespace tornel::okna
