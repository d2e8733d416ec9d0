#include "okna/frmListaPol.h"
#include "common/Rozmowa.h"
#include "okna/Klawisze.h"
#include "okna/PoleSzukania.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

namespace tornel::okna {

namespace {

constexpr int kSzerokoscListy = 38 * Wyglad::kSiatka;
constexpr int kSzerokosc = 112 * Wyglad::kSiatka;
constexpr int kNajmniejszaWysokosc = 50 * Wyglad::kSiatka;

} // namespace

frmListaPol::frmListaPol(Rozmowa& rozmowa, std::unique_ptr<ZrodloPol> zrodlo, const OpisListyPol& opis,
                         QWidget* rodzic)
    : OknoEdycji(opis.nazwa, rozmowa, Zamykanie::Zapis, rodzic), zrodlo_(std::move(zrodlo)),
      wiazanie_(*zrodlo_), lvwLista_(new WidokListy(opis.kolumny, opis.udzialy)),
      cmdNowy_(przycisk(QStringLiteral("cmdNowy"), opis.nowy, u"nowy")),
      cmdUsun_(przycisk(QStringLiteral("cmdUsun"), opis.usun, u"usun")),
      cmdAnuluj_(przycisk(QStringLiteral("cmdAnuluj"), opis.powrot, u"powrot")) {
    setWindowTitle(opis.tytul);
    auto* uklad = new QVBoxLayout(this);
    const int szerokoscListy = opis.szerokosc > 0 ? opis.szerokosc : kSzerokoscListy;
    QWidget* pola = prawaStrona(opis);
    const QSize rozmiarPol = pola->sizeHint();
    // The fields scroll on a small screen, the buttons never do; tabs scroll page by page.
    uklad->addWidget(
        dzielnik(lewaStrona(opis), szerokoscListy, opis.zakladki.isEmpty() ? Przewijane(pola) : pola), 1);
    QWidget* przyciski = dol(opis.przyciski);
    uklad->addWidget(przyciski);
    budujSkroty();
    resize(std::max(kSzerokosc, szerokoscListy + rozmiarPol.width() + 4 * Wyglad::kSiatka),
           std::max(kNajmniejszaWysokosc,
                    rozmiarPol.height() + przyciski->sizeHint().height() + 3 * Wyglad::kSiatka));

    connect(lvwLista_, &WidokListy::wybrano, this, &frmListaPol::wybierzWiersz);
    connect(lvwLista_, &WidokListy::wejscie, this, &frmListaPol::doPierwszegoPola);
    connect(&wiazanie_, &Wiazanie::zmienione, this, &frmListaPol::pokazZmiany);
    connect(&wiazanie_, &Wiazanie::opuszczone, this, &frmListaPol::pokazZmiany);
}

frmListaPol::~frmListaPol() = default;

// --- building
// ----------------------------------------------------------------------------------------------------

QWidget* frmListaPol::lewaStrona(const OpisListyPol& opis) {
    lvwLista_->setObjectName(QStringLiteral("lvwLista"));
    lvwLista_->ustawPodpowiedz(opis.pustaLista);
    txtSzukaj_ = new PoleSzukania(*lvwLista_, opis.kolumnaNumeru, opis.kolumnaNazwy);
    txtSzukaj_->setPlaceholderText(opis.szukaj);
    auto* lewa = new QWidget;
    lewy_ = new QVBoxLayout(lewa);
    lewy_->setContentsMargins(0, 0, 0, 0);
    if (opis.nadLista) lewy_->addWidget(opis.nadLista);
    lewy_->addWidget(txtSzukaj_);
    lewy_->addWidget(lvwLista_, 1);
    return lewa;
}

QWidget* frmListaPol::prawaStrona(const OpisListyPol& opis) {
    auto* prawa = new QWidget;
    auto* uklad = new QVBoxLayout(prawa);
    uklad->setContentsMargins(0, 0, 0, 0);
    ramki_ = new QVBoxLayout;
    uklad->addLayout(ramki_);
    bool wypelnione = true;
    if (opis.zakladki.isEmpty())
        wypelnione = UstawRamki(wiazanie_, *ramki_, opis.grupy, opis.najszerszePodpisy);
    else
        ramki_->addWidget(ZakladkiPol(wiazanie_, opis.zakladki, opis.grupy, opis.najszerszePodpisy), 1);
    pola_ = PolaDoWpisania(opis.grupy);
    // A note takes the height that is left; without one the frames stay together at the top.
    if (wypelnione)
        uklad->setStretchFactor(ramki_, 1);
    else
        uklad->addStretch(1);
    return prawa;
}

QWidget* frmListaPol::dol(const QList<QPushButton*>& wlasne) {
    // Enter belongs to the fields: no button takes it from them.
    const QList<QPushButton*> przyciski = QList{cmdNowy_, cmdUsun_} + wlasne;
    for (QPushButton* p : przyciski + QList{cmdAnuluj_}) p->setAutoDefault(false);
    connect(cmdNowy_, &QPushButton::clicked, this, &frmListaPol::nowy);
    connect(cmdUsun_, &QPushButton::clicked, this, &frmListaPol::usun);
    connect(cmdAnuluj_, &QPushButton::clicked, this, &QDialog::reject);
    auto* rzad = new QWidget;
    auto* uklad = new QHBoxLayout(rzad);
    uklad->setContentsMargins(0, 0, 0, 0);
    uklad->addWidget(etykietaZmian(QStringLiteral("Zapis nastąpi przy opuszczeniu pozycji.")), 1);
    uklad->addWidget(rzadPrzyciskow(przyciski + QList{przyciskPomocy(), cmdAnuluj_}));
    return rzad;
}

void frmListaPol::budujSkroty() {
    podlacz(Polecenie::Nowy, *cmdNowy_);
    podlacz(Polecenie::Usun, *cmdUsun_, *lvwLista_);
}

void frmListaPol::dodaj(QWidget* widzet) { ramki_->addWidget(widzet); }
void frmListaPol::dodajNadPolami(QWidget* widzet) { ramki_->insertWidget(0, widzet); }
void frmListaPol::dodajPodLista(QWidget* widzet) { lewy_->addWidget(widzet); }

// --- list and row
// ------------------------------------------------------------------------------------------------

void frmListaPol::Wczytaj(qint64 id) {
    QList<WierszListy> wiersze;
    for (const qint64 nr : numery()) wiersze.append({nr, tekstyWiersza(nr)});
    const bool pusta = wiersze.isEmpty();
    biezacy_ = -1;
    wiazanie_.czysc();
    lvwLista_->ustaw(std::move(wiersze), id);
    txtSzukaj_->setEnabled(!pusta);
    if (pusta) {
        Wypisz(-1);
        cmdNowy_->setFocus();
    } else if (!isVisible()) {
        lvwLista_->setFocus();
    }
}

void frmListaPol::wybierzWiersz(qint64 id) {
    if (id == biezacy_) return;
    bool zapisany = false;
    // Whatever ends the storing, the list goes back to the row whose fields are shown; not at once, since the
    // view is still in the middle of its own change.
    const auto powrot = qScopeGuard([&] {
        if (zapisany) return;
        QMetaObject::invokeMethod(
            this, [this] { lvwLista_->wybierz(biezacy_); }, Qt::QueuedConnection);
    });
    zapisany = Wpisz();
    if (zapisany) Wypisz(id);
}

void frmListaPol::Wypisz(qint64 id) {
    const bool jest = id >= 0 && przejdz(id);
    biezacy_ = jest ? id : -1;
    cmdUsun_->setEnabled(jest);
    wiazanie_.blokuj(!jest);
    if (jest)
        wiazanie_.wczytaj();
    else
        wiazanie_.czysc();
    pokazano(biezacy_);
    pokazZmiany();
}

bool frmListaPol::Wpisz() {
    wiazanie_.zakoncz();
    if (!jestZmiana()) return true;
    if (wiazanie_.wlasnieNieZrozumiano()) return false;
    QHash<QString, QString> wpisane;
    for (const QString& pole : pola_) wpisane.insert(pole, wiazanie_.tekst(pole));
    try {
        przejdz(biezacy_);
        wiazanie_.zbierz();
        if (!zapisz(biezacy_)) {
            przywroc(wpisane);
            return false;
        }
    } catch (...) {
        przywroc(wpisane);
        throw;
    }
    lvwLista_->lista().zmien(biezacy_, tekstyWiersza(biezacy_));
    Wypisz(biezacy_);
    return true;
}

void frmListaPol::przywroc(const QHash<QString, QString>& wpisane) {
    porzuc();
    if (!przejdz(biezacy_)) return;
    wiazanie_.wczytaj();
    for (const QString& pole : pola_) wiazanie_.ustawTekst(pole, wpisane.value(pole));
    pokazZmiany();
}

void frmListaPol::pokazPonownie() {
    // What could not be stored stays in its fields.
    if (wiazanie_.jestZmiana())
        przejdz(biezacy_);
    else
        Wczytaj(biezacy_);
}

void frmListaPol::doPierwszegoPola() {
    for (const QString& pole : pola_) {
        QWidget* kontrolka = wiazanie_.kontrolka(pole);
        if (!kontrolka->isEnabled()) continue;
        kontrolka->setFocus(Qt::TabFocusReason);
        return;
    }
}

// --- the clerk's actions
// -----------------------------------------------------------------------------------------

void frmListaPol::nowy() {
    if (!Wpisz()) return;
    const auto id = utworz();
    if (!id) return;
    Wczytaj(*id);
    doPierwszegoPola();
}

qint64 frmListaPol::poUsunieciu(qint64 id) { return lvwLista_->sasiad(id); }

void frmListaPol::usun() {
    if (biezacy_ < 0) return;
    const qint64 nastepny = poUsunieciu(biezacy_);
    if (skasuj(biezacy_)) Wczytaj(nastepny);
}

} // namespace tornel::okna
