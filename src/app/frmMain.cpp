#include "app/frmMain.h"
#include "app/frmAbout.h"
#include "app/frmMainStrona.h"
#include "app/Uprawnienia.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "okna/Mnemoniki.h"
#include "okna/Wyglad.h"
#include "rules/Konfiguracja.h"
#include "start/Foldery.h"
#include "start/PlanPracy.h"
#include "store/Sesja.h"
#include <algorithm>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace tornel::app {

namespace {

constexpr int kStalaUsunietegoHasla = 998;
constexpr int kSzerokoscBazy = 50 * Wyglad::kSiatka;
constexpr int kSzerokoscZnalezionych = 90 * Wyglad::kSiatka;

QString folderPlanu() { return FolderDanych(QCoreApplication::applicationDirPath()); }

QLabel* etykieta(const QString& nazwa, int powiekszenie = 0, bool tlusta = false) {
    auto* napis = new QLabel;
    napis->setObjectName(nazwa);
    napis->setTextFormat(Qt::PlainText);
    QFont pismo = napis->font();
    pismo.setPointSize(pismo.pointSize() + powiekszenie);
    pismo.setBold(tlusta);
    napis->setFont(pismo);
    return napis;
}

} // namespace

frmMain::frmMain(Otoczenie& otoczenie) : o_(otoczenie) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Tornel 2001"));
    budujMenu();
    budujPasek();
    auto* srodek = new QWidget;
    strona_ = new StronaStartowa([this](Wejscie wejscie) { return akcja(wejscie); });
    connect(strona_, &StronaStartowa::potwierdzStawki, this, &frmMain::potwierdzStawki);
    auto* uklad = new QVBoxLayout(srodek);
    uklad->setContentsMargins(3 * Wyglad::kSiatka, 3 * Wyglad::kSiatka, 3 * Wyglad::kSiatka, Wyglad::kSiatka);
    uklad->setSpacing(3 * Wyglad::kSiatka);
    uklad->addWidget(panelTytulu());
    uklad->addWidget(strona_);
    uklad->addStretch();
    auto* przewijanie = new QScrollArea; // a large font needs more than a small screen has
    przewijanie->setWidget(srodek);
    przewijanie->setWidgetResizable(true);
    przewijanie->setFrameShape(QFrame::NoFrame);
    przewijanie->setFocusPolicy(Qt::NoFocus);
    setCentralWidget(przewijanie);
    budujStan();
    resize(1180, 720);

    rejestruj(Wejscie::Koniec, [this] { close(); });
    rejestruj(Wejscie::OProgramie, [this] { frmAbout(this).exec(); });
    akcja(Wejscie::Koniec)->setShortcut(Qt::CTRL | Qt::Key_Q); // not every desktop has a key for it
    akcja(Wejscie::Cofnij)->setShortcut(QKeySequence::Undo);
    akcja(Wejscie::Ponow)->setShortcut(Qt::CTRL | Qt::Key_Y);
    akcja(Wejscie::Pomoc)->setShortcut(QKeySequence::HelpContents);
    UstawDostepnoscMenu();
}

void frmMain::budujMenu() {
    for (const PozycjaMenu& p : menuGlowne()) {
        QMenu*& menu = menu_[p.menu.toString()];
        if (!menu) menu = menuBar()->addMenu(p.menu.toString());
        QMenu* gdzie = menu;
        if (!p.podmenu.isEmpty()) {
            QMenu*& podmenu = menu_[p.menu.toString() + QLatin1Char('>') + p.podmenu.toString()];
            if (!podmenu) podmenu = menu->addMenu(p.podmenu.toString());
            gdzie = podmenu;
        }
        QAction* akcja = gdzie->addAction(Wyglad::ikona(p.ikona), p.napis.toString());
        const Wejscie wejscie = p.wejscie;
        connect(akcja, &QAction::triggered, this, [this, wejscie] { otworz(wejscie); });
        akcje_[wejscie] = akcja;
    }
    mnemoniki::nadaj(*menuBar());
}

void frmMain::budujPasek() {
    auto* pasek = addToolBar(QStringLiteral("Pasek narzędzi"));
    pasek->setObjectName(QStringLiteral("pasek"));
    pasek->setMovable(false);
    pasek->setContextMenuPolicy(Qt::PreventContextMenu);
    QStringView menu;
    for (const PozycjaMenu& p : menuGlowne()) {
        if (p.pasek == Pasek::Nie || p.wejscie == Wejscie::Koniec) continue;
        if (!menu.isEmpty() && menu != p.menu) pasek->addSeparator();
        menu = p.menu;
        dodajNaPasek(p);
        pasek->addWidget(pasek_.back().przycisk);
    }
    // The way out stands apart, where no hand looking for the first button meets it.
    auto* odstep = new QWidget;
    odstep->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    pasek->addWidget(odstep);
    dodajNaPasek(pozycjaMenu(Wejscie::Koniec));
    pasek->addWidget(pasek_.back().przycisk);
}

void frmMain::dodajNaPasek(const PozycjaMenu& pozycja) {
    const bool zLista = pozycja.pasek == Pasek::ZLista;
    auto* przycisk = new QToolButton;
    przycisk->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    przycisk->setAutoRaise(true);
    przycisk->setIcon(Wyglad::ikona(pozycja.ikona));
    przycisk->setText((zLista ? pozycja.menu : pozycja.napis).toString());
    przycisk->setToolTip(pozycja.napis.toString());
    QMenu* lista = zLista ? menu_.at(pozycja.menu.toString()) : nullptr;
    QAction* akcja = akcje_.at(pozycja.wejscie);
    if (lista) {
        przycisk->setMenu(lista);
        przycisk->setPopupMode(QToolButton::MenuButtonPopup);
    }
    connect(przycisk, &QToolButton::clicked, this, [przycisk, akcja] {
        if (akcja->isEnabled())
            akcja->trigger();
        else
            przycisk->showMenu();
    });
    pasek_.push_back({przycisk, akcja, lista});
}

QWidget* frmMain::panelTytulu() {
    auto* panel = new QFrame;
    panel->setObjectName(QStringLiteral("panelTytulu"));
    panel->setStyleSheet(
        QStringLiteral("#panelTytulu { background: palette(base); border: 1px solid palette(mid); "
                       "border-left: 4px solid palette(highlight); border-radius: 4px; }"));
    auto* uklad = new QVBoxLayout(panel);
    uklad->setContentsMargins(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka,
                              2 * Wyglad::kSiatka);
    uklad->setSpacing(2);
    for (int i = 0; i < 4; ++i) {
        labTitle_[i] = etykieta(QStringLiteral("labTitle%1").arg(i + 1), i == 0 ? 8 : i == 1 ? 4 : 0, i == 0);
        uklad->addWidget(labTitle_[i]);
    }
    return panel;
}

void frmMain::potwierdzStawki() {
    const QDateTime teraz = QDateTime::currentDateTime();
    const auto rok = UlozPlan(o_, teraz.date(), folderPlanu()).niepotwierdzoneStawki;
    if (!rok || !o_.rozmowa.pytanie(PytanieOStawki(o_.stale, *rok))) return;
    PotwierdzStawki(o_, *rok, teraz);
    odswiezStan();
}

void frmMain::budujStan() {
    labUzytkownik_ = etykieta(QStringLiteral("labUzytkownik"));
    labBaza_ = etykieta(QStringLiteral("labBaza"));
    labMiesiac_ = etykieta(QStringLiteral("labMiesiac"));
    for (QLabel* napis : {labUzytkownik_, labBaza_}) {
        napis->setContentsMargins(Wyglad::kSiatka, 0, 2 * Wyglad::kSiatka, 0);
        statusBar()->addWidget(napis);
    }
    labZnalezione_ = etykieta(QStringLiteral("labZnalezione"), 0, true);
    labZnalezione_->hide();
    statusBar()->addWidget(labZnalezione_);
    labMiesiac_->setContentsMargins(0, 0, Wyglad::kSiatka, 0);
    statusBar()->addPermanentWidget(labMiesiac_);
}

void frmMain::rejestruj(Wejscie wejscie, std::function<void()> otwarcie) {
    ekrany_[wejscie] = std::move(otwarcie);
}

void frmMain::ustawNapis(Wejscie wejscie, std::function<QString()> napis) {
    napisy_[wejscie] = std::move(napis);
}

void frmMain::wczytaj() {
    UstawUprawnienia();
    RefreshTitle();
    odswiezStan();
    const QString tekst = TekstStalej(o_.sesja, kStalaUsunietegoHasla);
    if (!tekst.trimmed().isEmpty())
        o_.rozmowa.komunikat(QStringLiteral("UWAGA !") + QStringLiteral("\r\n") + tekst +
                                 QStringLiteral(" zostało usunięte hasło !"),
                             Styl::Wykrzyknik);
}

void frmMain::UstawDostepnoscMenu() {
    const Uzytkownik& uzytkownik = o_.sesja.uzytkownik;
    for (const auto& [wejscie, akcja] : akcje_)
        akcja->setEnabled(ekrany_.contains(wejscie) && dozwolone(wejscie, uzytkownik, o_.stale));
    for (const auto& [wejscie, napis] : napisy_) {
        const QString tekst = napis();
        QAction* akcja = akcje_.at(wejscie);
        // What was done is named by data, in which the sign is only a sign.
        akcja->setText(tekst.isEmpty() ? pozycjaMenu(wejscie).napis.toString()
                                       : QString(tekst).replace(QLatin1Char('&'), QLatin1String("&&")));
        akcja->setEnabled(akcja->isEnabled() && !tekst.isEmpty());
    }
    mnemoniki::nadaj(*menuBar());
    for (const auto& [nazwa, menu] : menu_) {
        const auto pozycje = menu->actions();
        const bool otwarte =
            std::ranges::any_of(pozycje, [](const QAction* a) { return !a->menu() && a->isEnabled(); });
        menu->menuAction()->setEnabled(otwarte || dozwoloneMenu(nazwa, uzytkownik));
    }
    for (const PrzyciskPaska& p : pasek_) {
        const auto lista = p.lista ? p.lista->actions() : QList<QAction*>{p.akcja};
        p.przycisk->setEnabled(std::ranges::any_of(lista, [](const QAction* a) { return a->isEnabled(); }));
    }
    strona_->ustawDostepnosc();
}

void frmMain::RefreshTitle() {
    const Stale& stale = o_.stale;
    const QString* teksty[] = {&stale.NazwaUzCz1, &stale.NazwaUzCz2, &stale.Ulica, &stale.KodiMiasto};
    for (std::size_t i = 0; i < std::size(teksty); ++i) {
        labTitle_[i]->setText(*teksty[i]);
        labTitle_[i]->setVisible(!teksty[i]->trimmed().isEmpty());
    }
}

void frmMain::odswiezStan() {
    const Sesja& sesja = o_.sesja;
    labUzytkownik_->setText(QStringLiteral("Użytkownik: ") + sesja.uzytkownik.nazwa);
    const QString baza = QDir::toNativeSeparators(sesja.cnPlace.sciezka());
    labBaza_->setText(QStringLiteral("Baza: ") +
                      fontMetrics().elidedText(baza, Qt::ElideMiddle, kSzerokoscBazy));
    labBaza_->setToolTip(baza);
    labMiesiac_->setText(QStringLiteral("Miesiąc: ") + (sesja.rok() > 0
                                                            ? NapisMiesiaca(sesja.rok(), sesja.mies())
                                                            : QStringLiteral("nie otwarto")));
    strona_->pokaz(UlozPlan(o_, QDate::currentDate(), folderPlanu()));
}

void frmMain::otworz(Wejscie wejscie) {
    ekrany_.at(wejscie)();
    if (bezPytania_) return; // the archive has closed the session
    UstawUprawnienia();
    RefreshTitle();
    odswiezStan();
}

void frmMain::pokazZnalezione(const QString& tekst) {
    labZnalezione_->setText(fontMetrics().elidedText(tekst, Qt::ElideRight, kSzerokoscZnalezionych));
    labZnalezione_->setToolTip(tekst);
    labZnalezione_->setVisible(!tekst.isEmpty());
}

void frmMain::zamknijBezPytania(std::function<void()> poZamknieciu, Dalej dalej) {
    if (poZamknieciu) poZamknieciu_.prace.push_back(std::move(poZamknieciu));
    if (dalej == Dalej::OdNowa) poZamknieciu_.odNowa = true;
    bezPytania_ = true;
    close();
}

void frmMain::zamknijIZacznijOdNowa(std::function<void()> poZamknieciu) {
    poZamknieciu_ = {{std::move(poZamknieciu)}, true, true};
    if (!close()) poZamknieciu_ = {};
}

bool frmMain::pozegnaj() {
    if (!o_.rozmowa.pytanie(QStringLiteral("Zakończyć pracę programu ?"))) return false;
    if (o_.stale.PytajArch && ekrany_.contains(Wejscie::UtworzArchiwum) &&
        o_.rozmowa.pytanie(QStringLiteral("Czy utworzyć archiwum bazy danych programu ?")))
        otworz(Wejscie::UtworzArchiwum);
    return true;
}

void frmMain::closeEvent(QCloseEvent* zdarzenie) { zdarzenie->setAccepted(bezPytania_ || pozegnaj()); }

} // namespace tornel::app
