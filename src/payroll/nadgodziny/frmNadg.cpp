#include "payroll/nadgodziny/frmNadg.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Godziny.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "okna/frmInputData.h"
#include "okna/Klawisze.h"
#include "okna/Klepsydra.h"
#include "okna/PoleSzukania.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include "payroll/nadgodziny/frmNadgSiatka.h"
#include "personnel/frmWybPr.h"
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace tornel::payroll {

namespace {

constexpr int kWierszyMiesiecy = 7;

enum KolumnaOsoby { Numer, Nazwisko };
enum WierszSum { SumaGodzinOsoby, SumaKwotOsoby, SumaGodzinMiesiaca, SumaKwotMiesiaca };

QStringList tekstyOsoby(const OsobaNadgodzin& o) {
    return {FormatNumeru(o.prcId), o.nazwisko.isEmpty() ? QStringLiteral("(brak w kadrach)") : o.nazwisko,
            FormatGodzin(o.sumy.godzinyRazem()), FormatKwoty(o.sumy.kwotaRazem())};
}

QStringList tekstyGodzin(const QString& nazwa, const SumyNadgodzin& s) {
    QStringList wynik{nazwa};
    for (const Godziny ile : s.godziny) wynik.append(FormatGodzin(ile));
    return wynik + QStringList{FormatGodzin(s.godzinyRazem())};
}

QStringList tekstyKwot(const QString& nazwa, const SumyNadgodzin& s) {
    QStringList wynik{nazwa};
    for (const Waluta kwota : s.kwoty) wynik.append(FormatKwoty(kwota));
    return wynik + QStringList{FormatKwoty(s.kwotaRazem())};
}

/// A table that is only read: no row is chosen in it, and it is as high as its rows.
WidokListy* tabliczka(const QString& nazwa, QList<KolumnaListy> kolumny, const QList<int>& udzialy,
                      int wierszy) {
    auto* widok = new WidokListy(std::move(kolumny), udzialy);
    widok->setObjectName(nazwa);
    widok->ustawRole(RolaListy::Tabliczka);
    widok->setFocusPolicy(Qt::NoFocus);
    widok->setSelectionMode(QAbstractItemView::NoSelection);
    widok->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    widok->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    widok->setFixedHeight((wierszy + 1) * 3 * Wyglad::kSiatka);
    return widok;
}

WidokListy* tabliczkaSum(const Stale& stale) {
    QList<KolumnaListy> kolumny{{QStringLiteral("SUMY")}};
    for (int g = 1; g <= kGrupNadgodzin; ++g) kolumny.append({NazwaGrupyNadgodzin(stale, g), Qt::AlignRight});
    kolumny.append({QStringLiteral("RAZEM"), Qt::AlignRight});
    return tabliczka(QStringLiteral("lvwSumy"), kolumny, {16, 10, 10, 10, 10, 10, 10, 10, 14}, 4);
}

WidokListy* tabliczkaRownan() {
    return tabliczka(QStringLiteral("lvwRownania"),
                     {{QStringLiteral("RÓWNANIA MIESIĄCA")},
                      {QStringLiteral("Grupy 1-3")},
                      {QStringLiteral("Grupy 4-6")},
                      {QStringLiteral("Grupa 7")}},
                     {18, 36, 30, 16}, 4);
}

} // namespace

frmNadg::frmNadg(Otoczenie& otoczenie, QWidget* rodzic)
    : Okno(QStringLiteral("frmNadg"), rodzic), o_(otoczenie), nadgodziny_(otoczenie),
      lvwLista_(new WidokListy({{QStringLiteral("MIESIĄC"), Qt::AlignLeft, Porzadek::Data}, {QString()}},
                               {35, 65})),
      lvwOsoby_(new WidokListy({{QStringLiteral("NR"), Qt::AlignRight},
                                {QStringLiteral("NAZWISKO")},
                                {QStringLiteral("GODZ."), Qt::AlignRight},
                                {QStringLiteral("KWOTA"), Qt::AlignRight}},
                               {14, 42, 19, 25})),
      lvwSumy_(tabliczkaSum(otoczenie.stale)), lvwRownania_(tabliczkaRownan()), siatka_(new SiatkaNadgodzin),
      labOsoba_(new QLabel), labIleOsob_(new QLabel) {
    const Klepsydra klepsydra;
    setWindowTitle(QStringLiteral("Nadgodzinowe listy płac"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    budujPrzyciski();
    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(dzielnik(lewaStrona(), 39 * Wyglad::kSiatka, prawaStrona()), 1);
    uklad->addWidget(rzadPrzyciskow({cmdNowaLista_, cmdUsunListe_, cmdNowaOsoba_, cmdUsunOsobe_, cmdOdswiez_,
                                     przyciskPomocy(), cmdAnuluj_}));
    setMinimumSize(128 * Wyglad::kSiatka, 75 * Wyglad::kSiatka); // below it the sums are cut off
    resize(156 * Wyglad::kSiatka, 92 * Wyglad::kSiatka);
    polacz();
    pokazListe();
    (lvwOsoby_->wybrany() < 0 ? lvwLista_ : lvwOsoby_)->setFocus();
}

frmNadg::~frmNadg() {
    siatka_->ustaw(nullptr); // the grid outlives the list that it shows
}

void frmNadg::budujPrzyciski() {
    cmdNowaLista_ = przycisk(QStringLiteral("cmdNowaLista"), QStringLiteral("&Nowa lista"), u"nowy");
    cmdUsunListe_ = przycisk(QStringLiteral("cmdUsunListe"), QStringLiteral("&Usuń listę"), u"usun");
    cmdNowaOsoba_ = przycisk(QStringLiteral("cmdNowaOsoba"), QStringLiteral("&Dodaj osoby"), u"nowy");
    cmdUsunOsobe_ = przycisk(QStringLiteral("cmdUsunOsobe"), QStringLiteral("U&suń osobę"), u"usun");
    cmdStawka_ = przycisk(QStringLiteral("cmdStawka"), QStringLiteral("Stawka do &końca miesiąca"));
    cmdStawka_->setToolTip(
        QStringLiteral("Stawka dnia zaznaczonego w siatce przechodzi na wszystkie następne dni miesiąca"));
    cmdStawka_->setAutoDefault(false);
    cmdOdswiez_ = przycisk(QStringLiteral("cmdOdswiez"), QStringLiteral("&Odśwież"), u"przelicz");
    cmdAnuluj_ = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Powrót"), u"powrot");
}

void frmNadg::polacz() {
    connect(cmdNowaLista_, &QPushButton::clicked, this, &frmNadg::NowaLista);
    connect(cmdUsunListe_, &QPushButton::clicked, this, &frmNadg::UsunListe);
    connect(cmdNowaOsoba_, &QPushButton::clicked, this, &frmNadg::NowaOsoba);
    connect(cmdUsunOsobe_, &QPushButton::clicked, this, &frmNadg::UsunOsobe);
    connect(cmdStawka_, &QPushButton::clicked, this, &frmNadg::przeniesStawke);
    connect(cmdOdswiez_, &QPushButton::clicked, this, &frmNadg::odswiez);
    connect(cmdAnuluj_, &QPushButton::clicked, this, &QDialog::reject);
    connect(lvwLista_, &WidokListy::wybrano, this, [this](qint64 id) {
        siatka_->zakoncz();
        pokazMiesiac(RokMies::zId(id));
    });
    connect(lvwLista_, &WidokListy::wejscie, this, [this] { lvwOsoby_->setFocus(Qt::OtherFocusReason); });
    connect(lvwOsoby_, &WidokListy::wybrano, this, [this](qint64 prcId) {
        siatka_->zakoncz();
        WypiszNadgodziny(prcId);
    });
    connect(lvwOsoby_, &WidokListy::wejscie, this, [this] { siatka_->wejdz(); });
    connect(siatka_, &SiatkaNadgodzin::koniec, this, [this] { lvwOsoby_->setFocus(Qt::OtherFocusReason); });
    connect(&siatka_->nadgodziny(), &ModelNadgodzin::zmieniono, this, &frmNadg::pokazSumy);
    podlacz(Polecenie::Nowy, *cmdNowaLista_, *lvwLista_);
    podlacz(Polecenie::Usun, *cmdUsunListe_, *lvwLista_);
    podlacz(Polecenie::Nowy, *cmdNowaOsoba_, *lvwOsoby_);
    podlacz(Polecenie::Usun, *cmdUsunOsobe_, *lvwOsoby_);
    podlacz(Polecenie::Odswiez, *cmdOdswiez_);
}

QWidget* frmNadg::lewaStrona() {
    lvwLista_->setObjectName(QStringLiteral("lvwLista"));
    lvwLista_->setFixedHeight((kWierszyMiesiecy + 1) * 3 * Wyglad::kSiatka);
    lvwLista_->ustawPodpowiedz(
        QStringLiteral("Nie ma jeszcze żadnej listy.\nPrzycisk „Nowa lista” tworzy pierwszą."));
    lvwOsoby_->setObjectName(QStringLiteral("lvwOsoby"));
    labIleOsob_->setObjectName(QStringLiteral("labIleOsob"));
    auto* lewa = new QWidget;
    auto* uklad = new QVBoxLayout(lewa);
    uklad->setContentsMargins(0, 0, 0, 0);
    uklad->addWidget(lvwLista_);
    uklad->addWidget(new PoleSzukania(*lvwOsoby_, Numer, Nazwisko));
    uklad->addWidget(lvwOsoby_, 1);
    uklad->addWidget(labIleOsob_);
    auto* sposob = new QLabel(QStringLiteral("Każda zmiana zapisuje się od razu."));
    sposob->setObjectName(QStringLiteral("labZmiana"));
    sposob->setProperty("podpowiedz", true);
    uklad->addWidget(sposob);
    return lewa;
}

QWidget* frmNadg::prawaStrona() {
    siatka_->setObjectName(QStringLiteral("grdNadg"));
    labOsoba_->setObjectName(QStringLiteral("labOsoba"));
    labOsoba_->setTextFormat(Qt::PlainText);
    QFont pismo = labOsoba_->font();
    pismo.setPointSize(pismo.pointSize() + 2);
    pismo.setBold(true);
    labOsoba_->setFont(pismo);
    auto* prawa = new QWidget;
    auto* uklad = new QVBoxLayout(prawa);
    uklad->setContentsMargins(0, 0, 0, 0);
    auto* naglowek = new QHBoxLayout;
    naglowek->addWidget(labOsoba_, 1);
    naglowek->addWidget(cmdStawka_);
    uklad->addLayout(naglowek);
    uklad->addWidget(siatka_, 1);
    uklad->addWidget(lvwSumy_);
    uklad->addWidget(lvwRownania_);
    return prawa;
}

void frmNadg::pokazListe(std::optional<RokMies> zaznacz) {
    QList<WierszListy> wiersze;
    for (const RokMies m : nadgodziny_.WczytajListe())
        wiersze.append({m.id(), {NapisMiesiaca(m.rok, m.mies), NazwaMiesiaca(m.mies).toUpper()}});
    if (!zaznacz && !wiersze.isEmpty()) zaznacz = RokMies::zId(wiersze.last().id);
    const bool puste = wiersze.isEmpty();
    lvwLista_->ustaw(std::move(wiersze), zaznacz ? zaznacz->id() : -1);
    if (puste) pokazMiesiac({});
}

void frmNadg::pokazMiesiac(std::optional<RokMies> miesiac) {
    const Klepsydra klepsydra;
    siatka_->ustaw(nullptr);
    lista_.reset();
    try {
        if (miesiac) lista_ = std::make_unique<ListaNadgodzin>(o_, *miesiac);
    } catch (const Blad& blad) {
        // A damaged month is shown empty, so that the others can be reached and this one deleted.
        o_.rozmowa.komunikat(blad.komunikat(), Styl::Krytyczny);
    }
    pokazRownania();
    pokazOsoby();
}

void frmNadg::pokazOsoby(qint64 zaznacz) {
    QList<WierszListy> wiersze;
    if (lista_)
        for (const OsobaNadgodzin& o : lista_->WczytajNazw()) wiersze.append({o.prcId, tekstyOsoby(o)});
    const auto ile = wiersze.size();
    labIleOsob_->setText(lista_ ? QStringLiteral("Osób na liście: %1").arg(ile) : QString());
    lvwOsoby_->ustawPodpowiedz(
        lista_ ? QStringLiteral("Lista jest pusta.\nPrzycisk „Dodaj osoby” dopisuje pracowników z kadr.")
               : QString());
    lvwOsoby_->ustaw(std::move(wiersze), zaznacz);
    if (ile == 0) WypiszNadgodziny(-1);
    ustawDostepnosc();
}

void frmNadg::WypiszNadgodziny(qint64 prcId) {
    const bool jest = lista_ && lista_->WypiszNadgodziny(prcId);
    siatka_->ustaw(jest ? lista_.get() : nullptr);
    const OsobaNadgodzin osoba = jest ? *lista_->osoba() : OsobaNadgodzin{};
    cmdStawka_->setVisible(jest && lista_->szczegolowa());
    labOsoba_->setText(jest ? tekstyOsoby(osoba).first(2).join(QStringLiteral("  ")) : QString());
    pokazSumy();
}

void frmNadg::pokazSumy() {
    if (!lista_) return lvwSumy_->ustaw({});
    const SumyNadgodzin osoby = lista_->osoba() ? lista_->osoba()->sumy : SumyNadgodzin{};
    const SumyNadgodzin miesiaca = lista_->sumyMiesiaca();
    lvwSumy_->ustaw({{SumaGodzinOsoby, tekstyGodzin(QStringLiteral("Godziny osoby"), osoby)},
                     {SumaKwotOsoby, tekstyKwot(QStringLiteral("Kwoty osoby"), osoby)},
                     {SumaGodzinMiesiaca, tekstyGodzin(QStringLiteral("Godziny miesiąca"), miesiaca)},
                     {SumaKwotMiesiaca, tekstyKwot(QStringLiteral("Kwoty miesiąca"), miesiaca)}});
    if (lista_->osoba()) lvwOsoby_->lista().zmien(lista_->osoba()->prcId, tekstyOsoby(*lista_->osoba()));
}

void frmNadg::pokazRownania() {
    if (!lista_) return lvwRownania_->ustaw({});
    const RownaniaNadgodzin& r = lista_->rownania();
    const auto wiersz = [](const QString& nazwa, const RownaniaNadgodzin::Trojka& t) {
        return QStringList{nazwa, t[0], t[1], t[2]};
    };
    const auto grupy = [&](int od, int dokad) {
        QStringList teksty;
        for (int g = od; g <= dokad; ++g)
            if (const QString& rownanie = r.dla({}, g); !rownanie.isEmpty())
                teksty.append(QStringLiteral("%1: %2").arg(g).arg(rownanie));
        return teksty.join(QStringLiteral("; "));
    };
    lvwRownania_->ustaw(
        {{0, wiersz(QStringLiteral("Dni robocze:"), r.robocze)},
         {1, wiersz(QStringLiteral("Soboty:"), r.soboty)},
         {2, wiersz(QStringLiteral("Niedziele:"), r.niedziele)},
         {3, {QStringLiteral("Bez podziału na dni:"), grupy(1, 3), grupy(4, 6), grupy(7, 7)}}});
}

void frmNadg::pokazPonownie() {
    const qint64 id = lvwLista_->wybrany();
    const qint64 prcId = lvwOsoby_->wybrany();
    try {
        pokazListe(id > 0 ? std::optional(RokMies::zId(id)) : std::nullopt);
        lvwOsoby_->wybierz(prcId);
    } catch (const Blad& blad) {
        // The outermost handler is already at work and takes no second failure.
        o_.rozmowa.komunikat(blad.komunikat(), Styl::Krytyczny);
        pokazMiesiac({});
    }
}

void frmNadg::ustawDostepnosc() {
    const bool osoby = lvwOsoby_->wybrany() >= 0;
    (lista_ ? cmdNowaOsoba_ : cmdNowaLista_)->setDefault(true);
    cmdUsunListe_->setEnabled(lvwLista_->wybrany() >= 0);
    cmdNowaOsoba_->setEnabled(lista_ != nullptr);
    cmdUsunOsobe_->setEnabled(osoby);
    cmdOdswiez_->setEnabled(osoby);
}

void frmNadg::NowaLista() {
    siatka_->zakoncz();
    const auto zapytaj = [this]() -> std::optional<RokMies> {
        const qint64 ostatni = lvwLista_->lista().ostatni();
        const RokMies o = RokMies::zId(ostatni);
        const QDate wstepna = ostatni > 0 ? PierwszyDzien(o.rok, o.mies).addMonths(1) : QDate::currentDate();
        frmInputData okno(frmInputData::Tryb::Miesiac, windowTitle(), wstepna, this);
        if (okno.exec() != Accepted) return std::nullopt;
        return RokMies{okno.rok(), okno.mies()};
    };
    if (const auto miesiac = nadgodziny_.NowaLista(zapytaj)) pokazListe(miesiac);
}

void frmNadg::UsunListe() {
    siatka_->zakoncz();
    const qint64 sasiad = lvwLista_->sasiad(lvwLista_->wybrany());
    if (nadgodziny_.UsunListe(RokMies::zId(lvwLista_->wybrany()))) pokazListe(RokMies::zId(sasiad));
}

void frmNadg::NowaOsoba() {
    siatka_->zakoncz();
    if (!lista_) return;
    const qint64 wybrany = lvwOsoby_->wybrany();
    const QList<qint64> osoby = frmWybPr::wybierz(o_, kTrybPracujacy, frmWybPr::Ilu::Wielu, this);
    if (osoby.isEmpty()) return;
    const Klepsydra klepsydra;
    if (osoby.size() == 1) {
        pokazOsoby(lista_->NowaOsoba(osoby.first()) ? osoby.first() : wybrany);
    } else {
        const RaportSerii raport = lista_->NoweOsoby(osoby);
        pokazOsoby(raport.wykonane > 0 ? osoby.first() : wybrany);
        raport.pokaz(o_.rozmowa);
    }
    lvwOsoby_->setFocus(Qt::OtherFocusReason);
}

void frmNadg::UsunOsobe() {
    siatka_->zakoncz();
    if (!lista_ || !lista_->osoba()) return;
    const qint64 sasiad = lvwOsoby_->sasiad(lista_->osoba()->prcId);
    if (lista_->UsunOsobe()) pokazOsoby(sasiad);
}

void frmNadg::przeniesStawke() {
    siatka_->zakoncz();
    if (siatka_->currentIndex().isValid())
        siatka_->nadgodziny().przeniesStawke(siatka_->currentIndex().row());
    siatka_->setFocus(Qt::OtherFocusReason);
}

void frmNadg::odswiez() {
    siatka_->zakoncz();
    if (!lista_) return;
    const Klepsydra klepsydra;
    const qint64 wybrany = lvwOsoby_->wybrany();
    const RaportSerii raport = lista_->Odswiez();
    pokazOsoby(wybrany);
    raport.pokaz(o_.rozmowa);
}

bool frmNadg::moznaZamknac() {
    siatka_->zakoncz();
    return true;
}

} // namespace tornel::payroll
