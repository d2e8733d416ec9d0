#include "personnel/frmPrac.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "okna/Klawisze.h"
#include "okna/Klepsydra.h"
#include "okna/PamiecOkien.h"
#include "okna/PoleSzukania.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include "personnel/frmFind.h"
#include "personnel/frmNowyPrc.h"
#include "personnel/frmPracWydruki.h"
#include "personnel/frmPracZakladki.h"
#include "personnel/frmRodzina.h"
#include "store/SchematKadr.h"
#include <algorithm>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <utility>

namespace tornel::personnel {

namespace {

enum KolumnaPrac { KolNumer, KolNazwisko };

constexpr int kSzerokoscListy = 30 * Wyglad::kSiatka;

QStringList tekstyWiersza(const Osoba& o) {
    return {FormatNumeru(o.prcId), o.nazwisko + QLatin1Char(' ') + o.imie};
}

QString uwagaWiersza(const Osoba& o) { return o.zwolniony ? QStringLiteral("Zwolniony") : QString(); }

} // namespace

frmPrac::frmPrac(Otoczenie& otoczenie, FiltrPracownikow filtr, QWidget* rodzic, PortWydrukowKadr wydruki)
    : OknoEdycji(QStringLiteral("frmPrac"), otoczenie.rozmowa, Zamykanie::Pytanie, rodzic), o_(otoczenie),
      filtr_(filtr), wydruki_(std::move(wydruki)), pracownicy_(otoczenie), kartoteka_(otoczenie),
      lvwPrac_(
          new WidokListy({{QStringLiteral("NR"), Qt::AlignRight}, {QStringLiteral("NAZWISKO")}}, {22, 78})),
      cboSort_(new QComboBox), labIlu_(new QLabel), zakladki_(new ZakladkiPracownika(otoczenie, kartoteka_)) {
    const Klepsydra klepsydra;
    setWindowTitle(QStringLiteral("Pracownicy[*]"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(dzielnik(lewaStrona(), kSzerokoscListy, zakladki_), 1);
    uklad->addWidget(rzad());
    budujSkroty();
    resize(158 * Wyglad::kSiatka, 92 * Wyglad::kSiatka);

    connect(lvwPrac_, &WidokListy::wybrano, this, &frmPrac::wybierz);
    connect(lvwPrac_, &WidokListy::wejscie, zakladki_, &ZakladkiPracownika::wejdz);
    connect(zakladki_, &ZakladkiPracownika::zmienione, this, &frmPrac::pokazStan);
    connect(zakladki_, &ZakladkiPracownika::zapisane, this, &frmPrac::odswiezWiersz);
    connect(cboSort_, &QComboBox::currentIndexChanged, this, [this] {
        zakladki_->Zapisz();
        WczytajListePrac(filtr_, lvwPrac_->wybrany());
    });
    pamiecOkien::pamietajZakladke(*zakladki_);
    WczytajListePrac(filtr_, -1);
    lvwPrac_->setFocus();
}

frmPrac::~frmPrac() = default;

void frmPrac::pokaz(qint64 prcId) { lvwPrac_->wybierz(prcId); }

QWidget* frmPrac::lewaStrona() {
    auto* tytul = new QLabel(Pracownicy::tytulListy(filtr_));
    tytul->setObjectName(QStringLiteral("labTytul"));
    tytul->setWordWrap(true);
    QFont pismo = tytul->font();
    pismo.setBold(true);
    tytul->setFont(pismo);
    lvwPrac_->setObjectName(QStringLiteral("lvwPrac"));
    lvwPrac_->setAccessibleName(tytul->text());
    lvwPrac_->ustawPodpowiedz(
        filtr_ == FiltrPracownikow::Wszyscy
            ? QStringLiteral("Nie ma jeszcze pracowników.\nPrzycisk „Nowy prac.” rejestruje pierwszego.")
            : QStringLiteral("Nikt nie należy do tej listy.\nPracowników rejestruje się w menu „Wszyscy "
                             "pracownicy”."));
    cboSort_->setObjectName(QStringLiteral("cboSort"));
    cboSort_->addItems({QStringLiteral("Według nazwisk"), QStringLiteral("Według numerów")});
    auto* podpisSort = new QLabel(QStringLiteral("SORTOWANIE:"));
    podpisSort->setBuddy(cboSort_);
    cboSort_->setAccessibleName(QStringLiteral("Sortowanie"));
    labIlu_->setObjectName(QStringLiteral("labIlu"));

    auto* lewa = new QWidget;
    auto* uklad = new QVBoxLayout(lewa);
    uklad->setContentsMargins(0, 0, 0, 0);
    uklad->addWidget(tytul);
    uklad->addWidget(new PoleSzukania(*lvwPrac_, KolNumer, KolNazwisko));
    uklad->addWidget(lvwPrac_, 1);
    uklad->addWidget(labIlu_);
    uklad->addWidget(
        etykietaZmian(QStringLiteral("Ctrl+S zapisuje; przy zamknięciu program zapyta o zapis.")));
    auto* sort = new QHBoxLayout;
    sort->addWidget(podpisSort);
    sort->addWidget(cboSort_, 1);
    uklad->addLayout(sort);
    uklad->addWidget(zakladki_->notatka());
    return lewa;
}

QWidget* frmPrac::rzad() {
    cmdWyszukaj_ = przycisk(QStringLiteral("cmdWyszukaj"), QStringLiteral("&Wyszukaj"), u"szukaj");
    cmdNowy_ = przycisk(QStringLiteral("cmdnowyprac"), QStringLiteral("&Nowy prac."), u"nowy");
    cmdUsun_ = przycisk(QStringLiteral("cmdusunprac"), QStringLiteral("&Usuń prac."), u"usun");
    cmdRodzina_ = przycisk(QStringLiteral("cmdRodzina"), QStringLiteral("&Rodzina"));
    cmdDrukuj_ = przycisk(QStringLiteral("cmdDrukuj"), QStringLiteral("&Drukuj"), u"drukuj");
    cmdAnuluj_ = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Anuluj"));
    cmdZapisz_ = przycisk(QStringLiteral("cmdZapisz"), QStringLiteral("&Zapisz"));
    cmdPowrot_ = przycisk(QStringLiteral("cmdPowrot"), QStringLiteral("&Powrót"), u"powrot");
    const QList<QPushButton*> przyciski{cmdWyszukaj_, cmdNowy_,   cmdUsun_,   cmdRodzina_,
                                        cmdDrukuj_,   cmdAnuluj_, cmdZapisz_, cmdPowrot_};
    // Enter goes from field to field, so no button may answer it from afar.
    for (QPushButton* p : przyciski) p->setAutoDefault(false);
    connect(cmdWyszukaj_, &QPushButton::clicked, this, &frmPrac::szukaj);
    connect(cmdNowy_, &QPushButton::clicked, this, &frmPrac::NowyPracownik);
    connect(cmdUsun_, &QPushButton::clicked, this, &frmPrac::UsunPracownika);
    connect(cmdRodzina_, &QPushButton::clicked, this, &frmPrac::rodzina);
    connect(cmdAnuluj_, &QPushButton::clicked, this, &frmPrac::anuluj);
    connect(cmdZapisz_, &QPushButton::clicked, this, &frmPrac::zapisz);
    connect(cmdPowrot_, &QPushButton::clicked, this, &QDialog::reject);
    auto* menu = new QMenu(this);
    for (const PozycjaWydrukow& w : std::as_const(wydruki_.dostepne))
        connect(menu->addAction(w.napis), &QAction::triggered, this, [this, w] { drukuj(w); });
    cmdDrukuj_->setMenu(menu);
    return rzadPrzyciskow({cmdWyszukaj_, cmdNowy_, cmdUsun_, cmdRodzina_, cmdDrukuj_, cmdAnuluj_, cmdZapisz_,
                           przyciskPomocy(), cmdPowrot_});
}

void frmPrac::budujSkroty() {
    const auto skrot = [this](const QKeySequence& klawisze, auto czynnosc) {
        connect(new QShortcut(klawisze, this), &QShortcut::activated, this, czynnosc);
    };
    podlacz(Polecenie::Nowy, *cmdNowy_);
    podlacz(Polecenie::Usun, *cmdUsun_, *lvwPrac_);
    skrot(QKeySequence(Qt::CTRL | Qt::Key_Down), [this] { przejdz(1); });
    skrot(QKeySequence(Qt::CTRL | Qt::Key_Up), [this] { przejdz(-1); });
    skrot(QKeySequence(Qt::ALT | Qt::Key_L), [this] { lvwPrac_->setFocus(Qt::ShortcutFocusReason); });
    constexpr Qt::Key cyfry[] = {Qt::Key_1, Qt::Key_2, Qt::Key_3, Qt::Key_4, Qt::Key_5,    Qt::Key_6,
                                 Qt::Key_7, Qt::Key_8, Qt::Key_9, Qt::Key_0, Qt::Key_Minus};
    for (int i = 0; i < zakladki_->count(); ++i)
        skrot(QKeySequence(Qt::ALT | cyfry[i]), [this, i] { zakladki_->setCurrentIndex(i); });
    dopiszKlawisz(*cmdZapisz_, klawisz(Polecenie::Zapisz).napis);
    lvwPrac_->setToolTip(QStringLiteral("Alt+L: do listy, Enter: do pól, Ctrl+Góra i Ctrl+Dół: poprzedni i "
                                        "następny pracownik"));
}

void frmPrac::WczytajListePrac(FiltrPracownikow filtr, qint64 zaznacz) {
    const Klepsydra klepsydra;
    osoby_ = pracownicy_.lista(filtr, cboSort_->currentIndex() == 0 ? PorzadekPracownikow::Nazwiska
                                                                    : PorzadekPracownikow::Numery);
    QList<WierszListy> wiersze;
    wiersze.reserve(osoby_.size());
    for (const Osoba& o : osoby_) wiersze.append({o.prcId, tekstyWiersza(o), uwagaWiersza(o)});
    labIlu_->setText(QStringLiteral("Pracowników na liście: %1").arg(osoby_.size()));
    lvwPrac_->ustaw(std::move(wiersze), zaznacz);
    if (osoby_.isEmpty()) {
        kartoteka_.Ustaw({});
        zakladki_->Pokaz();
    }
    pokazStan();
}

void frmPrac::wybierz(qint64 prcId) {
    if (prcId == kartoteka_.pracownik()) return;
    if (!zapiszZakladke()) {
        // Not at once, since the view is still in the middle of its own change.
        QMetaObject::invokeMethod(
            this, [this] { lvwPrac_->wybierz(kartoteka_.pracownik().value_or(-1)); }, Qt::QueuedConnection);
        return;
    }
    kartoteka_.Ustaw(prcId);
    zakladki_->Pokaz();
    pokazStan();
}

void frmPrac::przejdz(int oIle) {
    const qint64 id = lvwPrac_->lista().id(lvwPrac_->currentIndex().row() + oIle);
    if (id >= 0) lvwPrac_->wybierz(id);
}

void frmPrac::pokazPonownie() {
    kartoteka_.Ponow();
    const auto prcId = kartoteka_.pracownik();
    if (!prcId || !pracownicy_.istnieje(*prcId)) {
        kartoteka_.Ustaw({});
        WczytajListePrac(filtr_, -1);
    } else if (lvwPrac_->wybrany() != *prcId) {
        lvwPrac_->wybierz(*prcId);
    } else if (!zakladki_->jestZmiana()) {
        zakladki_->Pokaz();
    }
    pokazStan();
}

void frmPrac::wczytajPonownie() {
    pokazPonownie();
    WczytajListePrac(filtr_, kartoteka_.pracownik().value_or(-1));
}

void frmPrac::pokazStan() {
    const bool jest = kartoteka_.pracownik().has_value();
    const bool wpisane = zakladki_->jestZmiana();
    const bool zmiany = jestZmiana();
    pokazZmiany();
    cmdZapisz_->setEnabled(zmiany);
    cmdAnuluj_->setEnabled(kartoteka_.zmienionyPracownik() || wpisane);
    cmdUsun_->setEnabled(jest);
    cmdRodzina_->setEnabled(jest);
    cmdWyszukaj_->setEnabled(jest);
    cmdDrukuj_->setEnabled(!osoby_.isEmpty() && !wydruki_.dostepne.isEmpty());
}

void frmPrac::odswiezWiersz() {
    const auto prcId = kartoteka_.pracownik();
    const auto ta = prcId ? std::ranges::find(osoby_, *prcId, &Osoba::prcId) : osoby_.end();
    if (ta != osoby_.end()) {
        const auto tekst = [this](Kolumna k) {
            const Wartosc wartosc = kartoteka_.wartosc(k);
            const auto* t = std::get_if<QString>(&wartosc);
            return t ? *t : QString();
        };
        ta->nazwisko = tekst(schemat::PRACDP("Naz"));
        ta->imie = tekst(schemat::PRACDP("Imie_1"));
        ta->zwolniony = tekst(schemat::PRACPR("Zwoln")).compare(QLatin1String("T"), Qt::CaseInsensitive) == 0;
        lvwPrac_->lista().zmien(*prcId, tekstyWiersza(*ta), uwagaWiersza(*ta));
    }
    pokazStan();
}

void frmPrac::szukaj() {
    frmFind(
        [this](const QString& tekst) {
            if (lvwPrac_->wybierz(Pracownicy::szukaj(osoby_, tekst))) return true;
            o_.rozmowa.komunikat(QStringLiteral("Nie znaleziono"), Styl::Informacja);
            return false;
        },
        this)
        .exec();
}

void frmPrac::rodzina() {
    if (lvwPrac_->wybrany() >= 0) frmRodzina(o_, lvwPrac_->wybrany(), this).exec();
}

void frmPrac::NowyPracownik() {
    if (filtr_ != FiltrPracownikow::Wszyscy) {
        o_.rozmowa.komunikat(
            QStringLiteral("Nowych pracowników można rejestrować tylko w menu \"Wszyscy pracownicy\""),
            Styl::Informacja);
        return;
    }
    if (!rozstrzygnijZmiany()) return;
    frmNowyPrc okno(o_, this);
    while (okno.exec() == Accepted) {
        const DaneNowegoPracownika dane = okno.dane();
        if (!pracownicy_.istnieje(dane.prcId)) {
            pracownicy_.NowyPracownik(dane);
            WczytajListePrac(filtr_, dane.prcId);
            zakladki_->setCurrentIndex(ekranKartoteki::Ogolne);
            zakladki_->wejdz();
            return;
        }
        if (!o_.rozmowa.pytanie(
                QStringLiteral("Pracownik o takim numerze już istnieje ! Czy chcesz spróbować jeszcze raz ?"),
                QStringLiteral("Błąd !")))
            return;
    }
}

void frmPrac::UsunPracownika() {
    const auto prcId = kartoteka_.pracownik();
    if (!prcId || !rozstrzygnijZmiany()) return;
    const qint64 sasiad = lvwPrac_->sasiad(*prcId);
    if (!pracownicy_.UsunPracownika(*prcId)) return;
    kartoteka_.Ustaw({});
    WczytajListePrac(filtr_, sasiad);
}

void frmPrac::anuluj() {
    if (!kartoteka_.pracownik() || !kartoteka_.Anuluj()) return;
    zakladki_->Pokaz();
    odswiezWiersz();
}

void frmPrac::zapisz() {
    if (!zapiszZmiany()) pokazStan();
}

void frmPrac::drukuj(const PozycjaWydrukow& wydruk) {
    if (!rozstrzygnijZmiany()) return; // paper tells what is stored
    WydrukujZKartoteki(o_, wydruki_, wydruk, {osoby_, kartoteka_.pracownik()}, this);
}

bool frmPrac::zapiszZakladke() {
    zakladki_->Zapisz();
    return !zakladki_->wlasnieNieZrozumiano();
}

bool frmPrac::jestZmiana() const { return kartoteka_.zmieniony() || zakladki_->jestZmiana(); }

bool frmPrac::zapiszZmiany() {
    if (!zapiszZakladke()) return false;
    const Klepsydra klepsydra;
    kartoteka_.Zapisz();
    zakladki_->odswiezZnaki();
    odswiezWiersz();
    return true;
}

void frmPrac::porzucZmiany() {
    kartoteka_.Porzuc();
    zakladki_->Pokaz();
    odswiezWiersz();
}

void frmPrac::nastepnePole() {
    if (zakladki_->isAncestorOf(focusWidget())) zakladki_->nastepnePole();
}

} // namespace tornel::personnel
