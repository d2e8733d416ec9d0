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
constexpr int kWysokoscWiersza = 22;
constexpr int kOdstepWLiscie = 5;
constexpr int kOdstepWPolu = 2;
/// Added to the caption of a tab: eleven of them have to stand side by side.
constexpr int kOdstepZakladki = 2 * Wyglad::kSiatka;

/// Fusion on the 8 px grid, with menus that a first letter reaches, since their captions carry no mnemonics.
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
        // One ground for all tabs, whether or not their pages scroll.
        if (co == PE_FrameTabWidget)
            malarz->fillRect(opcja->rect.adjusted(1, 1, -1, -1), opcja->palette.window());
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
    int styleHint(StyleHint wskazowka, const QStyleOption* opcja, const QWidget* widzet,
                  QStyleHintReturn* zwrot) const override {
        if (wskazowka == SH_Menu_KeyboardSearch) return 1;
        return QProxyStyle::styleHint(wskazowka, opcja, widzet, zwrot);
    }
};

struct Barwy {
    QColor tlo, pole, obliczane, tekst, zablokowany, wygaszony, linia, przycisk, akcent, naAkcencie;
};

const Barwy& jasne() {
    static const Barwy barwy{0xf3f5f6, 0xffffff, 0xe6ebee, 0x1d2529, 0x4d585e,
                             0x7b868c, 0xc3ccd1, 0xfafbfb, 0x1f6f8b, 0xffffff};
    return barwy;
}

const Barwy& ciemne() {
    static const Barwy barwy{0x262b2e, 0x1c2023, 0x31383c, 0xe6eaec, 0xb4bdc2,
                             0x8a959b, 0x4a5459, 0x30363a, 0x58b5d2, 0x10181c};
    return barwy;
}

QPalette paleta(const Barwy& b) {
    QPalette p;
    p.setColor(QPalette::Window, b.tlo);
    p.setColor(QPalette::WindowText, b.tekst);
    p.setColor(QPalette::Base, b.pole);
    p.setColor(QPalette::AlternateBase, b.obliczane);
    p.setColor(QPalette::Text, b.tekst);
    p.setColor(QPalette::Button, b.przycisk);
    p.setColor(QPalette::ButtonText, b.tekst);
    p.setColor(QPalette::BrightText, b.naAkcencie);
    p.setColor(QPalette::Mid, b.linia);
    p.setColor(QPalette::Light, b.pole);
    p.setColor(QPalette::Midlight, b.przycisk);
    p.setColor(QPalette::Dark, b.linia.darker(130));
    p.setColor(QPalette::Shadow, b.linia.darker(180));
    p.setColor(QPalette::Highlight, b.akcent);
    p.setColor(QPalette::HighlightedText, b.naAkcencie);
    p.setColor(QPalette::Link, b.akcent);
    p.setColor(QPalette::LinkVisited, b.akcent);
    p.setColor(QPalette::ToolTipBase, b.pole);
    p.setColor(QPalette::ToolTipText, b.tekst);
    p.setColor(QPalette::PlaceholderText, b.wygaszony);
    for (const auto rola : {QPalette::WindowText, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, rola, b.wygaszony);
    p.setColor(QPalette::Disabled, QPalette::Text,
               b.zablokowany); // a blocked month is still there to be read
    p.setColor(QPalette::Disabled, QPalette::Base, b.tlo);
    p.setColor(QPalette::Disabled, QPalette::Highlight, b.linia);
    return p;
}

QString arkusz(const Barwy& b) {
    return QStringLiteral(R"(
QGroupBox { border: 1px solid palette(mid); border-radius: 4px; margin-top: 10px; padding: 8px 4px 4px 4px; }
QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 4px; color: palette(highlight); }
QPushButton { border: 1px solid palette(mid); border-radius: 4px; background: palette(button);
              padding: 4px 14px; min-height: 20px; }
QPushButton:hover { background: palette(alternate-base); }
QPushButton:pressed { background: palette(mid); }
QPushButton:default { border: 2px solid palette(highlight); padding: 3px 13px; }
QPushButton:focus { border: 2px solid palette(highlight); padding: 3px 13px; background: palette(alternate-base); }
QPushButton:disabled { color: %2; border-color: palette(alternate-base);
                       background: palette(window); }
QPushButton[doPrzeliczenia="true"], QToolButton[doPrzeliczenia="true"] { background: rgb(238,238,64);
                                                                         color: rgb(29,37,41); }
QLineEdit[obliczane="true"], QPlainTextEdit[obliczane="true"] { background: palette(alternate-base);
    border: 1px solid palette(alternate-base); border-radius: 2px; padding: 1px 0;
    min-height: 22px; }
QLineEdit[blad="true"] { border: 2px solid rgb(198,40,40); border-radius: 2px; padding: 0 1px; min-height: 22px; }
QLabel[uwagaPola="true"] { background: rgb(255,235,238); color: rgb(136,14,14); border: 1px solid rgb(198,40,40);
                           border-radius: 3px; padding: 3px 6px; }
QLineEdit[glowne="true"] { font-weight: bold; }
QLabel[baner="true"] { background: palette(highlight); color: palette(highlighted-text); padding: 6px 8px;
                       border-radius: 4px; }
QLabel[wolny="true"] { background: rgb(208,0,0); color: rgb(255,255,255); font-weight: bold;
                       border-radius: 3px; }
QLabel[koniecTygodnia="true"] { font-weight: bold; }
QLabel[podpowiedz="true"] { color: %1; }
QPushButton[kafel="true"] { text-align: left; padding: 12px 8px; background: palette(base); }
QPushButton[odnosnik="true"] { text-align: left; border: 1px solid transparent; background: transparent;
                               padding: 2px 6px; color: palette(link); text-decoration: underline; }
QPushButton[odnosnik="true"]:hover { background: palette(alternate-base); }
QPushButton[odnosnik="true"]:focus { border: 1px solid palette(highlight); background: palette(alternate-base); }
QPushButton[odnosnik="true"]:disabled { color: palette(window-text); text-decoration: none; background: transparent; }
QLabel[pilne="true"] { font-weight: bold; }
QToolBar QToolButton { font-size: 9pt; padding: 2px 3px; }
QHeaderView::section { background: palette(alternate-base); color: palette(text); border: none;
                       border-right: 1px solid palette(mid); padding: 4px 3px; }
QToolBar { border: none; border-bottom: 1px solid palette(mid); spacing: 2px; padding: 2px 6px; }
QComboBox:disabled, QCheckBox:disabled, QRadioButton:disabled { color: %1; }
)")
        .arg(b.zablokowany.name(), b.wygaszony.name());
}

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
    const bool ciemnyPulpit = program.palette().color(QPalette::Window).lightness() < 128;
    program.setStyle(new StylTornel);
    const Barwy& barwy = ciemnyPulpit ? ciemne() : jasne();
    program.setPalette(paleta(barwy));
    QFont pismo = program.font();
    pismo.setPointSize(kRozmiarPisma);
    program.setFont(pismo);
    program.setStyleSheet(arkusz(barwy));
    program.setWindowIcon(ikona(u"program"));
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
