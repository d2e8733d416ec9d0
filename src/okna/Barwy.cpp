#include "okna/Barwy.h"
#include "okna/PamiecOkien.h"
#include <algorithm>
#include <iterator>

namespace tornel::okna {

namespace {

const QString kKluczMotywu = QStringLiteral("wyglad/barwy");

constexpr std::pair<WyborMotywu, QStringView> kWybory[] = {
    {WyborMotywu::JakPulpit, u"pulpit"},
    {WyborMotywu::Jasny, u"jasne"},
    {WyborMotywu::Ciemny, u"ciemne"},
};

const Barwy kJasne{
    .tlo = 0xf3f5f6,
    .pole = 0xffffff,
    .obliczane = 0xe6ebee,
    .tekst = 0x1d2529,
    .zablokowany = 0x4d585e,
    .wygaszony = 0x59646a,
    .linia = 0xc3ccd1,
    .przycisk = 0xfafbfb,
    .akcent = 0x1f6f8b,
    .naAkcencie = 0xffffff,
    .blad = 0xc62828,
    .tloBledu = 0xffebee,
    .tekstBledu = 0x880e0e,
    .wolny = 0xd00000,
    .naWolnym = 0xffffff,
    .czeka = 0xeeee40,
    .naCzekajacym = 0x1d2529,
};

const Barwy kCiemne{
    .tlo = 0x262b2e,
    .pole = 0x1c2023,
    .obliczane = 0x31383c,
    .tekst = 0xe6eaec,
    .zablokowany = 0xb4bdc2,
    .wygaszony = 0xa3aeb4,
    .linia = 0x4a5459,
    .przycisk = 0x30363a,
    .akcent = 0x58b5d2,
    .naAkcencie = 0x10181c,
    .blad = 0xff8a80,
    .tloBledu = 0x3b1d1d,
    .tekstBledu = 0xffb4ab,
    .wolny = 0xd00000,
    .naWolnym = 0xffffff,
    .czeka = 0xeeee40,
    .naCzekajacym = 0x1d2529,
};

/// Roles of the style sheet that are colours of their own: "@name" stands for them.
constexpr std::pair<QStringView, QColor Barwy::*> kNazwy[] = {
    {u"@blad", &Barwy::blad},
    {u"@tloBledu", &Barwy::tloBledu},
    {u"@naBledzie", &Barwy::tekstBledu},
    {u"@wolny", &Barwy::wolny},
    {u"@naWolnym", &Barwy::naWolnym},
    {u"@czeka", &Barwy::czeka},
    {u"@naCzekajacym", &Barwy::naCzekajacym},
    {u"@zablokowany", &Barwy::zablokowany},
    {u"@wygaszony", &Barwy::wygaszony},
};

const QString kArkusz = QStringLiteral(R"(
QGroupBox { border: 1px solid palette(mid); border-radius: 4px; margin-top: 10px; padding: 8px 4px 4px 4px; }
QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 4px; color: palette(highlight); }
QPushButton { border: 1px solid palette(mid); border-radius: 4px; background: palette(button);
              padding: 4px 14px; min-height: 20px; }
QPushButton:hover { background: palette(alternate-base); }
QPushButton:pressed { background: palette(mid); }
QPushButton:default { border: 2px solid palette(highlight); padding: 3px 13px; }
QPushButton:focus { border: 2px solid palette(highlight); padding: 3px 13px; background: palette(alternate-base); }
QPushButton:disabled { color: @wygaszony; border-color: palette(alternate-base);
                       background: palette(window); }
QPushButton[doPrzeliczenia="true"], QToolButton[doPrzeliczenia="true"] { background: @czeka;
                                                                         color: @naCzekajacym; }
QLineEdit[obliczane="true"], QPlainTextEdit[obliczane="true"] { background: palette(alternate-base);
    border: 1px solid palette(alternate-base); border-radius: 2px; padding: 1px 0;
    min-height: 22px; }
QLineEdit[blad="true"] { border: 2px solid @blad; border-radius: 2px; padding: 0 1px; min-height: 22px; }
QLabel[uwagaPola="true"] { background: @tloBledu; color: @naBledzie; border: 1px solid @blad;
                           border-radius: 3px; padding: 3px 6px; }
QLineEdit[glowne="true"], QLabel[glowne="true"] { font-weight: bold; }
QLabel[baner="true"] { background: palette(highlight); color: palette(highlighted-text); padding: 6px 8px;
                       border-radius: 4px; }
QLabel[wolny="true"] { background: @wolny; color: @naWolnym; font-weight: bold; border-radius: 3px; }
QLabel[koniecTygodnia="true"] { font-weight: bold; }
QLabel[podpowiedz="true"] { color: @zablokowany; }
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
QComboBox:disabled, QCheckBox:disabled, QRadioButton:disabled { color: @zablokowany; }
)");

/// Where the sheet, or a screen, puts one of the colours onto another.
constexpr struct {
    const char* gdzie;
    QColor Barwy::*tekst;
    QColor Barwy::*tlo;
} kPary[] = {
    {"title of a group", &Barwy::akcent, &Barwy::tlo},
    {"button under the mouse", &Barwy::tekst, &Barwy::obliczane},
    {"button pressed", &Barwy::tekst, &Barwy::linia},
    {"button disabled", &Barwy::wygaszony, &Barwy::tlo},
    {"button that waits", &Barwy::naCzekajacym, &Barwy::czeka},
    {"remark beside a field", &Barwy::tekstBledu, &Barwy::tloBledu},
    {"banner", &Barwy::naAkcencie, &Barwy::akcent},
    {"number of a free day", &Barwy::naWolnym, &Barwy::wolny},
    {"hint", &Barwy::zablokowany, &Barwy::tlo},
    {"hint on a field's ground", &Barwy::zablokowany, &Barwy::pole},
    {"tile", &Barwy::tekst, &Barwy::pole},
    {"link in focus", &Barwy::akcent, &Barwy::obliczane},
    {"choice disabled", &Barwy::zablokowany, &Barwy::przycisk},
    {"entry of a menu disabled", &Barwy::wygaszony, &Barwy::przycisk},
};

} // namespace

const Barwy& barwy(Motyw motyw) { return motyw == Motyw::Ciemny ? kCiemne : kJasne; }

QPalette PaletaMotywu(Motyw motyw) {
    const Barwy& b = barwy(motyw);
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
    p.setColor(QPalette::Disabled, QPalette::HighlightedText, b.tekst);
    return p;
}

QString ArkuszMotywu(Motyw motyw) {
    QString arkusz = kArkusz;
    for (const auto& [nazwa, barwa] : kNazwy)
        arkusz.replace(nazwa.toString() + QLatin1Char(';'), (barwy(motyw).*barwa).name() + QLatin1Char(';'));
    return arkusz;
}

QList<ParaBarw> ParyArkusza(Motyw motyw) {
    QList<ParaBarw> wynik;
    for (const auto& p : kPary) wynik.append({p.gdzie, barwy(motyw).*p.tekst, barwy(motyw).*p.tlo});
    return wynik;
}

WyborMotywu zapamietanyMotyw() {
    const QString nazwa = pamiecOkien::ustawienie(kKluczMotywu);
    const auto wybor = std::ranges::find(kWybory, QStringView(nazwa), [](const auto& w) { return w.second; });
    return wybor == std::end(kWybory) ? WyborMotywu::JakPulpit : wybor->first;
}

void zapamietajMotyw(WyborMotywu wybor) {
    pamiecOkien::ustaw(kKluczMotywu, std::ranges::find(kWybory, wybor, [](const auto& w) {
                                         return w.first;
                                     })->second.toString());
}

} // namespace tornel::okna
