#include "rules/frmStaleProgramu.h"
#include "common/Rozmowa.h"
#include "okna/Klepsydra.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include "rules/frmStaleKarta.h"
#include "rules/Konfiguracja.h"
#include "rules/UstawianieStalych.h"
#include <QFileDialog>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tornel::rules {

using namespace ekranStalych;

namespace {

constexpr QSize kRozmiar{158 * Wyglad::kSiatka, 92 * Wyglad::kSiatka};
const QString kUrzad = QStringLiteral("cboUS");

struct PrzyciskFolderu {
    int num;
    QStringView nazwa;
};
constexpr PrzyciskFolderu kFoldery[] = {{425, u"cmdPath"}, {701, u"cmdArch"}, {605, u"cmdMCS"}};

QString zapytajOFolder(QWidget* rodzic, const QString& wstepny) {
    return QFileDialog::getExistingDirectory(rodzic, QStringLiteral("Wybór katalogu"), wstepny);
}

/// The first field of a tab.
QWidget* pierwszePole(QWidget& karta) {
    for (QWidget* w = karta.nextInFocusChain(); w != &karta; w = w->nextInFocusChain())
        if (karta.isAncestorOf(w) && (w->focusPolicy() & Qt::TabFocus) && w->isEnabled()) return w;
    return nullptr;
}

/// Reached by the Tab key and its mnemonic, not by the click itself: what is typed is left by the button's
/// action, or by none at all when the clerk cancels.
QPushButton* przyciskBezWejscia(const QString& nazwa, const QString& napis) {
    QPushButton* nowy = przycisk(nazwa, napis);
    nowy->setFocusPolicy(Qt::TabFocus);
    return nowy;
}

} // namespace

frmStaleProgramu::frmStaleProgramu(Otoczenie& otoczenie, PortyStalych porty, QWidget* rodzic)
    : OknoEdycji(QStringLiteral("frmStaleProgramu"), otoczenie.rozmowa, Zamykanie::Pytanie, rodzic,
                 PoEnterze::PrzyciskDomyslny),
      o_(otoczenie), porty_(std::move(porty)), zrodlo_(otoczenie.stale), sprawdzenia_(otoczenie, zrodlo_),
      wiazanie_(zrodlo_), lstKarty_(new QListWidget), karty_(new QStackedWidget) {
    const Klepsydra klepsydra;
    setWindowTitle(QStringLiteral("Konfiguracja stałych programu"));
    if (!porty_.wybierzFolder) porty_.wybierzFolder = zapytajOFolder;
    buduj();
    ustawSprawdzenia();
    pokazUrzedy();
    Wyswietl();
    connect(&wiazanie_, &Wiazanie::opuszczone, this, &frmStaleProgramu::poOpuszczeniu);
    connect(&wiazanie_, &Wiazanie::zmienione, this, &frmStaleProgramu::pokazZmiany);
    connect(&wiazanie_, &Wiazanie::opuszczone, this, &frmStaleProgramu::pokazZmiany);
    lstKarty_->setFocus();
}

void frmStaleProgramu::buduj() {
    auto* uklad = new QVBoxLayout(this);
    auto* srodek = new QHBoxLayout;
    srodek->addWidget(lstKarty_);
    srodek->addWidget(karty_, 1);
    uklad->addLayout(srodek, 1);
    budujKarty();
    dodajPrzyciski();
    QPushButton* ok = przyciskBezWejscia(QStringLiteral("Command1"), QStringLiteral("OK"));
    QPushButton* anuluj = przyciskBezWejscia(QStringLiteral("Command2"), QStringLiteral("&Anuluj"));
    connect(ok, &QPushButton::clicked, this, &frmStaleProgramu::accept);
    connect(anuluj, &QPushButton::clicked, this, &frmStaleProgramu::zamknijBezZapisu);
    auto* dol = new QHBoxLayout;
    dol->addWidget(etykietaZmian(QStringLiteral("OK zapisuje, Anuluj porzuca zmiany; Escape pyta o zapis.")),
                   1);
    dol->addWidget(rzadPrzyciskow({ok, anuluj, przyciskPomocy()}));
    uklad->addLayout(dol);
    ok->setDefault(true);
    dodajSkroty();
    resize(kRozmiar);
}

void frmStaleProgramu::budujKarty() {
    lstKarty_->setObjectName(QStringLiteral("lstKarty"));
    karty_->setObjectName(QStringLiteral("karty"));
    const auto nazwy = kartyStalych();
    for (std::size_t i = 0; i < nazwy.size(); ++i) {
        QScrollArea* karta = zbudujKarte(static_cast<KartaStalych>(i), wiazanie_);
        karta->setObjectName(nazwy[i].toString());
        karta->setFocusPolicy(Qt::NoFocus);
        karty_->addWidget(karta);
        lstKarty_->addItem(nazwy[i].toString());
    }
    const auto opisy = karty_->findChildren<OpisPola*>();
    for (OpisPola* opis : opisy) opisy_.insert(opis->objectName(), opis);
    lstKarty_->setFixedWidth(lstKarty_->sizeHintForColumn(0) + 4 * Wyglad::kSiatka);
    connect(lstKarty_, &QListWidget::currentRowChanged, this, [this](int nr) {
        wiazanie_.zakoncz();
        karty_->setCurrentIndex(nr);
    });
    lstKarty_->setCurrentRow(0);
}

void frmStaleProgramu::dodajPrzyciski() {
    for (const auto& [num, nazwa] : kFoldery) {
        const QString pole = nazwaPola(wymaganaStala(num));
        QPushButton* cmd = przyciskBezWejscia(nazwa.toString(), QStringLiteral("..."));
        cmd->setToolTip(QStringLiteral("Wybór katalogu"));
        dolaczPrzycisk(pole, cmd);
        connect(cmd, &QPushButton::clicked, this, [this, pole] { wybierzFolder(pole); });
    }
    QPushButton* cmdNowy = przyciskBezWejscia(QStringLiteral("cmdNowy"), QStringLiteral("&Nowy"));
    cmdNowy->setEnabled(static_cast<bool>(porty_.otworzUrzedy));
    dolaczPrzycisk(kUrzad, cmdNowy);
    connect(cmdNowy, &QPushButton::clicked, this, &frmStaleProgramu::otworzUrzedy);
}

void frmStaleProgramu::dolaczPrzycisk(const QString& pole, QPushButton* przycisk) {
    wiazanie_.dolacz(pole, przycisk);
    setTabOrder(wiazanie_.kontrolka(pole), przycisk);
}

void frmStaleProgramu::dodajSkroty() {
    const std::pair<QKeySequence, int> skroty[] = {
        {QKeySequence(Qt::CTRL | Qt::Key_Tab), 1},
        {QKeySequence(Qt::CTRL | Qt::Key_PageDown), 1},
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab), -1},
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), -1},
        {QKeySequence(Qt::CTRL | Qt::Key_PageUp), -1},
    };
    for (const auto& [klawisze, oIle] : skroty) {
        auto* skrot = new QShortcut(klawisze, this);
        connect(skrot, &QShortcut::activated, this, [this, o = oIle] { przesunKarte(o); });
    }
}

void frmStaleProgramu::ustawSprawdzenia() {
    for (const StalaDef& stala : tabelaStalych()) {
        if (stala.karta == KartaStalych::Brak || stala.num == kRowNGGr) continue;
        for (std::size_t i = 0; i < ileElementow(stala); ++i)
            if (auto sprawdzenie = sprawdzenia_.dla(stala, i))
                wiazanie_.sprawdzaj(nazwaPola(stala, i), std::move(sprawdzenie));
    }
}

void frmStaleProgramu::Wyswietl() {
    wiazanie_.wczytaj();
    for (const StalaDef& stala : tabelaStalych()) {
        if (stala.karta == KartaStalych::Brak || stala.num == kRowNGGr) continue;
        for (std::size_t i = 0; i < ileElementow(stala); ++i) pokazNazwe(nazwaPola(stala, i));
    }
    NadgSzczeg(wiazanie_, zrodlo_.stale().SzczegRejNadg);
}

void frmStaleProgramu::pokazUrzedy() { wiazanie_.ustawPozycje(kUrzad, urzedy(o_.sesja)); }

void frmStaleProgramu::pokazNazwe(const QString& pole) {
    OpisPola* opis = opisy_.value(QStringLiteral("lab") + pole.mid(3));
    if (!opis) return;
    opis->setText(nazwaSkladnika(o_.skladniki, wiazanie_.tekst(pole)));
    opis->setToolTip(opis->text());
}

void frmStaleProgramu::poOpuszczeniu(const QString& pole) {
    // The checks of the fields to come look at the values of those left before.
    wiazanie_.zbierz();
    pokazNazwe(pole);
    if (pole != nazwaPola(wymaganaStala(kSzczegRejNadg))) return;
    zrodlo_.przyjmijUklad();
    wiazanie_.wczytaj();
    NadgSzczeg(wiazanie_, zrodlo_.stale().SzczegRejNadg);
}

void frmStaleProgramu::wybierzFolder(const QString& pole) {
    const QString wybrany = porty_.wybierzFolder(this, wiazanie_.tekst(pole));
    if (wybrany.isEmpty()) return;
    const QString sciezka = QDir::toNativeSeparators(wybrany);
    // Cut to what KON holds, the path would lead somewhere else.
    if (sciezka.size() > kDlugoscStalej)
        return o_.rozmowa.komunikat(
            QStringLiteral("Ścieżka \"%1\" jest dłuższa niż %2 znaków i nie może być zapisana.")
                .arg(sciezka)
                .arg(kDlugoscStalej),
            Styl::Wykrzyknik);
    wiazanie_.ustawTekst(pole, sciezka);
}

void frmStaleProgramu::otworzUrzedy() {
    porty_.otworzUrzedy();
    pokazUrzedy();
}

void frmStaleProgramu::pokazKarte(KartaStalych karta) { lstKarty_->setCurrentRow(static_cast<int>(karta)); }

void frmStaleProgramu::przesunKarte(int oIle) {
    const bool wPolu = karty_->isAncestorOf(focusWidget());
    const int ile = lstKarty_->count();
    lstKarty_->setCurrentRow((lstKarty_->currentRow() + oIle + ile) % ile);
    QWidget* pole = wPolu ? pierwszePole(*karty_->currentWidget()) : nullptr;
    if (pole) pole->setFocus(Qt::TabFocusReason);
}

bool frmStaleProgramu::zapiszZmiany() {
    wiazanie_.zbierz();
    if (wiazanie_.wlasnieNieZrozumiano()) return false;
    const Stale nowe = zrodlo_.stale();
    ZapiszKonfiguracje(o_.sesja, nowe);
    o_.stale = nowe;
    zrodlo_.przyjmijZapis();
    wiazanie_.odswiezZnaki();
    if (porty_.UstawDostepnoscMenu) porty_.UstawDostepnoscMenu();
    return true;
}

void frmStaleProgramu::accept() {
    if (zapiszZmiany()) QDialog::accept();
}

} // namespace tornel::rules
