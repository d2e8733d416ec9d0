#include "okna/Kontrolki.h"
#include "okna/PoleTekstu.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QCheckBox>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QSignalBlocker>

namespace tornel::okna {

namespace {

/// Texts up to this length have a field of their own width; longer ones share the room that is left.
constexpr int kKrotkiTekst = 16;
constexpr int kNajmniejDlugiego = 18;
constexpr int kZnakiDaty = 11;
/// Employee numbers have five digits; counts and days are shorter.
constexpr int kZnakiLiczby = 6;
constexpr int kZnakiWyboru = 12;
/// A choice of symbols no longer than this does not stretch.
constexpr int kZnakowSymbolu = 3;
constexpr int kWierszeNotatki = 4;
constexpr auto kSpozaListy = "spozaListy";

int szerokoscZnakow(const QWidget& widzet, int znaki) {
    return widzet.fontMetrics().horizontalAdvance(QLatin1Char('0')) * znaki + 2 * Wyglad::kSiatka;
}

int znakiPola(const Pole& pole) {
    switch (pole.rodzaj) {
    case Rodzaj::Kwota:
        return Wyglad::kZnakiKwoty;
    case Rodzaj::Data:
        return kZnakiDaty;
    case Rodzaj::Liczba:
        return kZnakiLiczby;
    default:
        return std::max(2, najdluzszy(pole));
    }
}

QLineEdit* liniaTekstu(const Pole& pole) {
    QLineEdit* linia = pole.rodzaj == Rodzaj::Data ? new PoleDaty : new PoleTekstu;
    if (const int dlugosc = najdluzszy(pole); dlugosc > 0) linia->setMaxLength(dlugosc);
    if (pole.rodzaj == Rodzaj::Kwota || pole.rodzaj == Rodzaj::Liczba) linia->setAlignment(Qt::AlignRight);
    const bool waska =
        pole.rodzaj != Rodzaj::Tekst || (najdluzszy(pole) > 0 && najdluzszy(pole) <= kKrotkiTekst);
    if (waska)
        linia->setFixedWidth(szerokoscZnakow(*linia, znakiPola(pole)));
    else
        linia->setMinimumWidth(szerokoscZnakow(*linia, kNajmniejDlugiego));
    linia->setSizePolicy(waska ? QSizePolicy::Fixed : QSizePolicy::Expanding, QSizePolicy::Fixed);
    if (pole.dostep == Dostep::Odczyt) {
        linia->setReadOnly(true);
        linia->setPlaceholderText({}); // nothing is asked for
        linia->setToolTip({});
    }
    return linia;
}

QPlainTextEdit* notatka(const Pole& pole) {
    auto* pudlo = new QPlainTextEdit;
    pudlo->setTabChangesFocus(true);
    pudlo->setReadOnly(pole.dostep == Dostep::Odczyt);
    pudlo->setMinimumHeight(kWierszeNotatki * pudlo->fontMetrics().lineSpacing() + 2 * Wyglad::kSiatka);
    return pudlo;
}

QComboBox* wybor(const Pole& pole) {
    auto* lista = new QComboBox;
    lista->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    lista->setMinimumContentsLength(kZnakiWyboru);
    lista->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const bool znaki = !pole.pozycje.isEmpty() && std::ranges::all_of(pole.pozycje, [](const Pozycja& p) {
        return p.opis.size() <= kZnakowSymbolu;
    });
    if (znaki) lista->setFixedWidth(szerokoscZnakow(*lista, kZnakiDaty));
    wypelnijWybor(*lista, pole);
    return lista;
}

QWidget* wedlugRodzaju(const Pole& pole) {
    switch (pole.rodzaj) {
    case Rodzaj::Flaga:
        return new QCheckBox(pole.podpis);
    case Rodzaj::Wybor:
        return wybor(pole);
    case Rodzaj::Notatka:
        return notatka(pole);
    default:
        return liniaTekstu(pole);
    }
}

} // namespace

QWidget* zbudujKontrolke(const Pole& pole) {
    QWidget* kontrolka = wedlugRodzaju(pole);
    kontrolka->setObjectName(pole.nazwa);
    if (pole.dostep == Dostep::Edycja) return kontrolka;
    const bool napis = pole.rodzaj != Rodzaj::Flaga && pole.rodzaj != Rodzaj::Wybor;
    if (napis)
        Wyglad::oznaczObliczane(*kontrolka);
    else
        kontrolka->setEnabled(false);
    // Reached by the mouse for copying, passed over by the Tab key.
    kontrolka->setFocusPolicy(napis ? Qt::ClickFocus : Qt::NoFocus);
    return kontrolka;
}

QString tekstKontrolki(const QWidget& kontrolka) {
    if (const auto* linia = qobject_cast<const QLineEdit*>(&kontrolka)) return linia->text();
    if (const auto* flaga = qobject_cast<const QCheckBox*>(&kontrolka))
        return flaga->isChecked() ? QStringLiteral("T") : QStringLiteral("N");
    if (const auto* lista = qobject_cast<const QComboBox*>(&kontrolka))
        return (lista->currentIndex() < 0 ? lista->property(kSpozaListy) : lista->currentData()).toString();
    if (const auto* pudlo = qobject_cast<const QPlainTextEdit*>(&kontrolka)) return pudlo->toPlainText();
    return {};
}

void wpiszDoKontrolki(QWidget& kontrolka, const QString& tekst) {
    if (auto* linia = qobject_cast<QLineEdit*>(&kontrolka)) {
        linia->setText(tekst);
        linia->setCursorPosition(0);
    } else if (auto* flaga = qobject_cast<QCheckBox*>(&kontrolka)) {
        flaga->setChecked(tekst == QLatin1String("T"));
    } else if (auto* lista = qobject_cast<QComboBox*>(&kontrolka)) {
        lista->setProperty(kSpozaListy, tekst);
        lista->setPlaceholderText(tekst);
        lista->setCurrentIndex(lista->findData(tekst));
    } else if (auto* pudlo = qobject_cast<QPlainTextEdit*>(&kontrolka)) {
        const QSignalBlocker cisza(pudlo); // it alone does not tell typing from setting
        pudlo->setPlainText(tekst);
    }
}

void wypelnijWybor(QWidget& kontrolka, const Pole& pole) {
    auto* lista = qobject_cast<QComboBox*>(&kontrolka);
    if (!lista) return;
    const QString bylo = tekstKontrolki(kontrolka);
    lista->clear();
    for (const Pozycja& p : pole.pozycje) lista->addItem(p.opis, tekstWartosci(pole, p.wartosc));
    wpiszDoKontrolki(kontrolka, bylo);
}

} // namespace tornel::okna
