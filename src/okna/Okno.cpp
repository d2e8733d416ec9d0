#include "okna/Okno.h"
#include "common/Blad.h"
#include "okna/Aplikacja.h"
#include "okna/Klawisze.h"
#include "okna/Mnemoniki.h"
#include "okna/PamiecOkien.h"
#include "okna/PoleSzukania.h"
#include <algorithm>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QSplitter>

namespace tornel::okna {

namespace {

/// What the desktop puts around a window.
constexpr QSize kRamkaOkna{8, 40};

/// Ctrl+Z and Ctrl+Y that no field has taken for itself.
std::optional<Kierunek> kierunekKlawisza(const QKeyEvent& zdarzenie) {
    if (zdarzenie.matches(QKeySequence::Undo)) return Kierunek::Cofnij;
    const bool ctrlY = zdarzenie.key() == Qt::Key_Y && zdarzenie.modifiers() == Qt::ControlModifier;
    return ctrlY || zdarzenie.matches(QKeySequence::Redo) ? std::optional(Kierunek::Ponow) : std::nullopt;
}

} // namespace

Okno::Okno(const QString& nazwa, QWidget* rodzic, PoEnterze poEnterze)
    : QDialog(rodzic), poEnterze_(poEnterze) {
    setObjectName(nazwa);
    if (const auto* program = qobject_cast<Aplikacja*>(qApp)) {
        connect(program, &Aplikacja::danePrzeczytane, this, [this] { pokazPonownie(); });
        connect(program, &Aplikacja::czynnoscCofnieta, this, [this] { wczytajPonownie(); });
    }
}

QSplitter* Okno::dzielnik(QWidget* lewa, int szerokosc, QWidget* prawa) {
    auto* dzielnik = new QSplitter;
    dzielnik->setObjectName(QStringLiteral("dzielnik"));
    dzielnik->setChildrenCollapsible(false);
    for (QWidget* strona : {lewa, prawa}) dzielnik->addWidget(strona);
    dzielnik->setStretchFactor(1, 1);
    lewa->setMinimumWidth(std::max(szerokosc / 2, lewa->minimumSizeHint().width()));
    dzielnik->setSizes({szerokosc, QWIDGETSIZE_MAX / 2});
    return dzielnik;
}

void Okno::showEvent(QShowEvent* zdarzenie) {
    if (!std::exchange(pokazane_, true)) {
        podlaczKlawisze();
        mnemoniki::nadajPrzyciskom(*this);
        pamiecOkien::przywroc(*this);
        // A screen smaller than the one the window was made or left on.
        resize(size().boundedTo(screen()->availableSize() - kRamkaOkna));
    }
    QDialog::showEvent(zdarzenie);
}

void Okno::podlaczKlawisze() {
    if (auto* pole = findChild<PoleSzukania*>()) {
        podlacz(Polecenie::Szukaj, *this, [pole] {
            pole->setFocus(Qt::ShortcutFocusReason);
            pole->selectAll();
        });
        dopiszKlawisz(*pole, klawisz(Polecenie::Szukaj).napis);
    }
    if (cofaCzynnosci()) {
        podlacz(Polecenie::Odswiez, *this, [this] { odczytajDane(); });
        return podlaczZapis();
    }
    podlacz(Polecenie::Zatwierdz, *this, [this] {
        const auto przyciski = findChildren<QPushButton*>();
        const auto domyslny = std::ranges::find_if(przyciski, &QPushButton::isDefault);
        if (domyslny != przyciski.end()) (*domyslny)->click();
    });
}

void Okno::podlaczZapis() {
    podlacz(Polecenie::Zapisz, *this, [this] { (void)zapiszTeraz(); });
    podlacz(Polecenie::Zatwierdz, *this, [this] {
        if (zapiszTeraz()) QDialog::accept();
    });
}

void Okno::odczytajDane() {
    if (!przygotujCofniecie()) return;
    if (auto* program = qobject_cast<Aplikacja*>(qApp)) program->odczytajPonownie();
    wczytajPonownie();
}

void Okno::done(int wynik) {
    if (!moznaZamknac()) return;
    if (pokazane_) pamiecOkien::zapamietaj(*this);
    QDialog::done(wynik);
}

void Okno::closeEvent(QCloseEvent* zdarzenie) {
    // Refused in advance: should something keep the window, it has to stay.
    zdarzenie->ignore();
    reject();
    zdarzenie->setAccepted(!isVisible());
}

void Okno::keyPressEvent(QKeyEvent* zdarzenie) {
    auto* program = qobject_cast<Aplikacja*>(qApp);
    if (const auto kierunek = kierunekKlawisza(*zdarzenie); kierunek && program && cofaCzynnosci())
        return program->cofnij(*kierunek);
    const bool enter = zdarzenie->key() == Qt::Key_Return || zdarzenie->key() == Qt::Key_Enter;
    if (!enter || poEnterze_ == PoEnterze::PrzyciskDomyslny) return QDialog::keyPressEvent(zdarzenie);
    if (auto* naPrzycisku = qobject_cast<QPushButton*>(focusWidget()))
        naPrzycisku->click();
    else
        nastepnePole();
}

OknoEdycji::OknoEdycji(const QString& nazwa, Rozmowa& rozmowa, Zamykanie zamykanie, QWidget* rodzic,
                       PoEnterze poEnterze)
    : Okno(nazwa, rodzic, poEnterze), rozmowa_(rozmowa), zamykanie_(zamykanie) {}

void OknoEdycji::podlaczKlawisze() {
    podlaczZapis();
    Okno::podlaczKlawisze();
}

bool OknoEdycji::zapiszTeraz() {
    const bool zapisane = !jestZmiana() || zapiszZmiany();
    pokazZmiany();
    return zapisane;
}

QLabel* OknoEdycji::etykietaZmian(const QString& sposob) {
    labZmiana_ = new QLabel(sposob);
    labZmiana_->setObjectName(QStringLiteral("labZmiana"));
    labZmiana_->setProperty("podpowiedz", true);
    labZmiana_->setWordWrap(true);
    sposobZapisu_ = sposob;
    return labZmiana_;
}

void OknoEdycji::pokazZmiany() {
    const bool zmiana = jestZmiana();
    const QString znak = QStringLiteral("[*]");
    if (zmiana && !windowTitle().contains(znak)) setWindowTitle(windowTitle() + znak);
    setWindowModified(zmiana);
    if (labZmiana_)
        labZmiana_->setText(zmiana ? QStringLiteral("●  Zmieniono. ") + sposobZapisu_ : sposobZapisu_);
}

bool OknoEdycji::rozstrzygnijZmiany() {
    const auto poWszystkim = qScopeGuard([this] { pokazZmiany(); });
    if (!jestZmiana()) return true;
    if (zamykanie_ == Zamykanie::Zapis) return zapiszZmiany();
    const auto [tekst, tytul] = pytanieOZmiany();
    const auto zapisac = rozmowa_.pytanieZAnulowaniem(tekst, tytul);
    if (!zapisac) return false;
    if (*zapisac) return zapiszZmiany();
    porzucZmiany();
    return true;
}

void OknoEdycji::zamknijBezZapisu() {
    bezZapisu_ = true;
    reject();
}

bool OknoEdycji::moznaZamknac() {
    if (bezZapisu_) return true;
    try {
        return rozstrzygnijZmiany();
    } catch (const Blad& blad) {
        const QString pytanie = QStringLiteral("\r\n\r\nCzy zamknąć okno bez zapisania zmian ?");
        const bool bezZapisu = rozmowa_.pytanieUsuwajace(blad.komunikat() + pytanie);
        if (bezZapisu)
            porzucZmiany();
        else if (auto* program = qobject_cast<Aplikacja*>(qApp))
            program->odczytajPonownie();
        return bezZapisu;
    }
}

} // namespace tornel::okna
