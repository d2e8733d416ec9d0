// The light and the dark theme can be read, and the clerk's choice holds.
#include "app/frmSplash.h"
#include "app/frmWyglad.h"
#include "okna/Wyglad.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/Widzet.h"
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleFactory>
#include <QTest>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

constexpr double kNajmniejTekstu = 4.5;
constexpr double kNajmniejObrazu = 3.0;

double swiatlo(const QColor& barwa) {
    const auto skladowa = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * skladowa(barwa.redF()) + 0.7152 * skladowa(barwa.greenF()) +
           0.0722 * skladowa(barwa.blueF());
}

double kontrast(const QColor& a, const QColor& b) {
    const auto [ciemna, jasna] = std::minmax({swiatlo(a), swiatlo(b)});
    return (jasna + 0.05) / (ciemna + 0.05);
}

/// The program's look for one test; the others have that of the desktop.
class ZWygladem {
public:
    ZWygladem() { Wyglad::zastosuj(*qApp); }
    ~ZWygladem() {
        qApp->setStyleSheet({});
        QApplication::setPalette(QPalette());
        QApplication::setStyle(QStyleFactory::create(styl_));
        QApplication::setFont(pismo_);
    }
    ZWygladem(const ZWygladem&) = delete;
    ZWygladem& operator=(const ZWygladem&) = delete;

private:
    QString styl_ = QApplication::style()->objectName();
    QFont pismo_ = QApplication::font();
};

class BarwyTest : public testing::TestWithParam<Motyw> {
    ZWygladem wyglad_;
};
class WygladOknaTest : public testing::Test {
    ZWygladem wyglad_;
};
INSTANTIATE_TEST_SUITE_P(Motywy, BarwyTest, testing::Values(Motyw::Jasny, Motyw::Ciemny),
                         [](const auto& motyw) { return motyw.param == Motyw::Ciemny ? "Ciemny" : "Jasny"; });

TEST_P(BarwyTest, KazdyTekstMaKontrast) {
    using P = QPalette;
    const struct {
        P::ColorRole tekst;
        QList<P::ColorRole> tla;
    } role[] = {
        {P::WindowText, {P::Window, P::Base, P::AlternateBase}},
        {P::Text, {P::Base, P::AlternateBase, P::Window}},
        {P::ButtonText, {P::Button, P::Window, P::Midlight}},
        {P::HighlightedText, {P::Highlight}},
        {P::Link, {P::Window, P::Base, P::AlternateBase}},
        {P::LinkVisited, {P::Window, P::Base, P::AlternateBase}},
        {P::PlaceholderText, {P::Base, P::AlternateBase, P::Window}},
        {P::ToolTipText, {P::ToolTipBase}},
        {P::BrightText, {P::Highlight}},
    };
    const QPalette paleta = PaletaMotywu(GetParam());
    for (const auto grupa : {P::Active, P::Inactive, P::Disabled})
        for (const auto& r : role)
            for (const auto tlo : r.tla)
                // A highlight in a disabled view is a line's colour, with text of its own.
                if (grupa != P::Disabled || r.tekst != P::BrightText)
                    EXPECT_GE(kontrast(paleta.color(grupa, r.tekst), paleta.color(grupa, tlo)),
                              kNajmniejTekstu)
                        << "group " << grupa << ", text " << r.tekst << " on " << tlo;
    for (const ParaBarw& p : ParyArkusza(GetParam()))
        EXPECT_GE(kontrast(p.tekst, p.tlo), kNajmniejTekstu) << p.gdzie;
    EXPECT_FALSE(ArkuszMotywu(GetParam()).contains(u'@')) << "a colour without a name";
}

/// The pixel of the picture that stands out most from its ground.
double kontrastObrazu(const QIcon& ikona, QIcon::Mode tryb, const QColor& tlo) {
    QImage obraz(24, 24, QImage::Format_RGB32);
    obraz.fill(tlo);
    QPainter malarz(&obraz);
    ikona.paint(&malarz, obraz.rect(), Qt::AlignCenter, tryb);
    malarz.end();
    double najwiekszy = 0;
    for (int y = 0; y < obraz.height(); ++y)
        for (int x = 0; x < obraz.width(); ++x)
            najwiekszy = std::max(najwiekszy, kontrast(obraz.pixelColor(x, y), tlo));
    return najwiekszy;
}

TEST_P(BarwyTest, KazdyObrazWidacNaKazdymTle) {
    Wyglad::pokazMotyw(*qApp, GetParam() == Motyw::Ciemny ? WyborMotywu::Ciemny : WyborMotywu::Jasny);
    const QPalette p = QApplication::palette();
    const std::pair<QIcon::Mode, QList<QColor>> tla[] = {
        {QIcon::Normal,
         {p.color(QPalette::Window), p.color(QPalette::Button), p.color(QPalette::Base),
          p.color(QPalette::AlternateBase)}},
        {QIcon::Active, {p.color(QPalette::AlternateBase), p.color(QPalette::Window)}},
        {QIcon::Disabled, {p.color(QPalette::Window), p.color(QPalette::Button)}},
        {QIcon::Selected, {p.color(QPalette::Highlight)}},
    };
    (void)Wyglad::ikona(u"nowy"); // the pictures are there once one was asked for
    int obrazow = 0;
    for (const QString& plik : QDir(u":/obrazy"_s).entryList({u"*.svg"_s})) {
        QFile tresc(u":/obrazy/"_s + plik);
        ASSERT_TRUE(tresc.open(QIODevice::ReadOnly));
        if (!tresc.readAll().contains("currentColor")) continue; // has a ground of its own
        ++obrazow;
        const QIcon ikona = Wyglad::ikona(plik.chopped(4));
        for (const auto& [tryb, barwy] : tla)
            for (const QColor& tlo : barwy)
                EXPECT_GE(kontrastObrazu(ikona, tryb, tlo), kNajmniejObrazu)
                    << plik.toStdString() << " in mode " << tryb << " on " << tlo.name().toStdString();
    }
    EXPECT_GE(obrazow, 30);
}

TEST_P(BarwyTest, ObrazZaznaczonegoWejsciaMenuMaBarweJegoTekstu) {
    Wyglad::pokazMotyw(*qApp, GetParam() == Motyw::Ciemny ? WyborMotywu::Ciemny : WyborMotywu::Jasny);
    QMenu menu;
    QAction* wejscie = menu.addAction(Wyglad::ikona(u"haslo"_s), u"Zmiana hasła"_s);
    menu.popup(QPoint(0, 0));
    menu.setActiveAction(wejscie);
    QApplication::processEvents();
    const QImage obraz = menu.grab().toImage();
    const QRect pozycja = menu.actionGeometry(wejscie);
    const QColor tlo = QApplication::palette().color(QPalette::Highlight);
    double najwiekszy = 0;
    for (int y = pozycja.top() + 2; y < pozycja.bottom() - 1; ++y)
        for (int x = pozycja.left() + 4; x < pozycja.left() + 22; ++x) // before the text
            najwiekszy = std::max(najwiekszy, kontrast(obraz.pixelColor(x, y), tlo));
    EXPECT_GE(najwiekszy, kNajmniejTekstu);
    menu.close();
}

TEST_F(WygladOknaTest, WyborWidacOdRazuAPamietaGoDopieroOK) {
    const auto ciemno = [] { return QApplication::palette().color(QPalette::Window).lightness() < 128; };
    Wyglad::pokazMotyw(*qApp, zapamietanyMotyw());
    const bool pulpit = ciemno();
    for (const bool potwierdz : {false, true}) {
        frmWyglad okno;
        okno.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
        EXPECT_TRUE(widzet<QRadioButton>(okno, u"optJakPulpit"_s).isChecked());
        widzet<QRadioButton>(okno, u"optCiemny"_s).click();
        EXPECT_TRUE(ciemno());
        EXPECT_EQ(zapamietanyMotyw(), WyborMotywu::JakPulpit);
        QTest::keyClick(&okno, potwierdz ? Qt::Key_Return : Qt::Key_Escape);
        EXPECT_FALSE(okno.isVisible());
        EXPECT_EQ(ciemno(), potwierdz || pulpit);
    }
    EXPECT_EQ(zapamietanyMotyw(), WyborMotywu::Ciemny);
    Wyglad::pokazMotyw(*qApp, WyborMotywu::JakPulpit);
    EXPECT_EQ(ciemno(), pulpit) << "the desktop's own comes to light again";
}

TEST_F(WygladOknaTest, PowitanieUstepujePytaniu) {
    frmSplash powitanie;
    powitanie.show();
    QApplication::processEvents();
    EXPECT_TRUE(powitanie.isVisible());
    frmWyglad okno;
    okno.show();
    EXPECT_FALSE(powitanie.isVisible());
}

} // namespace

} // namespace tornel::testy
