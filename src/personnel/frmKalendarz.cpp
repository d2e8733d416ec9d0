#include "personnel/frmKalendarz.h"
#include "common/Daty.h"
#include "okna/frmInputData.h"
#include "okna/Klawisze.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include "personnel/frmDniMiesiaca.h"
#include <algorithm>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QVBoxLayout>

namespace tornel::personnel {

namespace {

constexpr int kSzerokoscMiesiecy = 18 * Wyglad::kSiatka;

qint64 idMiesiaca(const MiesiacKalendarza& m) { return m.rok * 100LL + m.mies; }

QLabel* licznik(const QString& nazwa) {
    auto* napis = new QLabel;
    napis->setObjectName(nazwa);
    QFont pismo = napis->font();
    pismo.setBold(true);
    napis->setFont(pismo);
    return napis;
}

} // namespace

frmKalendarz::frmKalendarz(Otoczenie& otoczenie, const QString& nazwa, const QList<QPushButton*>& dodatkowe,
                           QWidget* rodzic)
    : OknoEdycji(nazwa, otoczenie.rozmowa, Zamykanie::Zapis, rodzic), o_(otoczenie), kalendarz_(otoczenie),
      listy_(new QHBoxLayout),
      lvwMies_(new WidokListy(
          {{QStringLiteral("MIES."), Qt::AlignLeft, Porzadek::Data}, {QStringLiteral("ROK"), Qt::AlignRight}},
          {64, 36})),
      dni_(new DniMiesiaca), labDni_(licznik(QStringLiteral("labDni"))),
      labWolne_(licznik(QStringLiteral("labWolne"))),
      cmdNowy_(przycisk(QStringLiteral("cmdNowy"), QStringLiteral("&Nowy"), u"nowy")),
      cmdSwieta_(przycisk(QStringLiteral("cmdSwieta"), QStringLiteral("Święta us&tawowe"), u"dniwolne")),
      cmdUsun_(przycisk(QStringLiteral("cmdUsun"), QStringLiteral("&Usuń"), u"usun")),
      cmdAnuluj_(przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Powrót"), u"powrot")) {
    lvwMies_->setObjectName(QStringLiteral("lvwMies"));
    lvwMies_->setAccessibleName(QStringLiteral("Miesiące"));
    lvwMies_->setFixedWidth(kSzerokoscMiesiecy);
    lvwMies_->ustawPodpowiedz(QStringLiteral("Nie ma jeszcze żadnego miesiąca.\nPrzycisk „Nowy” dopisuje "
                                             "pierwszy."));
    listy_->addWidget(lvwMies_);
    auto* srodek = new QHBoxLayout;
    srodek->addLayout(listy_);
    srodek->addWidget(ramkaDni(), 1);
    auto* uklad = new QVBoxLayout(this);
    uklad->addLayout(srodek, 1);
    uklad->addWidget(rzad(dodatkowe));
    budujSkroty();
    resize(156 * Wyglad::kSiatka, 73 * Wyglad::kSiatka);

    connect(lvwMies_, &WidokListy::wybrano, this, &frmKalendarz::wybierzMiesiac);
    connect(lvwMies_, &WidokListy::wejscie, dni_, &DniMiesiaca::wejdz);
    connect(dni_, &DniMiesiaca::zmienione, this, &frmKalendarz::policz);
}

// --- building

QWidget* frmKalendarz::ramkaDni() {
    ramka_ = new QGroupBox;
    auto* liczniki = new QHBoxLayout;
    liczniki->addWidget(
        etykietaZmian(QStringLiteral("Zapis nastąpi przy wyborze innego miesiąca i przy zamknięciu.")), 1);
    for (const auto& [podpis, napis] : {std::pair{QStringLiteral("Dni w miesiącu:"), labDni_},
                                        {QStringLiteral("W tym wolnych:"), labWolne_}}) {
        liczniki->addSpacing(2 * Wyglad::kSiatka);
        liczniki->addWidget(new QLabel(podpis));
        liczniki->addWidget(napis);
    }
    auto* uklad = new QVBoxLayout(ramka_);
    uklad->addWidget(dni_, 1);
    uklad->addLayout(liczniki);
    return ramka_;
}

QWidget* frmKalendarz::rzad(const QList<QPushButton*>& dodatkowe) {
    const QList<QPushButton*> przyciski = QList<QPushButton*>{cmdNowy_, cmdSwieta_, cmdUsun_} + dodatkowe +
                                          QList<QPushButton*>{przyciskPomocy(), cmdAnuluj_};
    // Enter belongs to the days: no button takes it from them.
    for (QPushButton* p : przyciski) p->setAutoDefault(false);
    connect(cmdNowy_, &QPushButton::clicked, this, [this] {
        if (jestKomu()) poZapisie([this] { nowyMiesiac(czyj()); });
    });
    connect(cmdSwieta_, &QPushButton::clicked, this, &frmKalendarz::zaznaczSwieta);
    connect(cmdUsun_, &QPushButton::clicked, this, &frmKalendarz::usun);
    connect(cmdAnuluj_, &QPushButton::clicked, this, &QDialog::reject);
    return rzadPrzyciskow(przyciski);
}

void frmKalendarz::budujSkroty() {
    podlacz(Polecenie::Nowy, *cmdNowy_);
    podlacz(Polecenie::Usun, *cmdUsun_, *lvwMies_);
}

void frmKalendarz::dodajListe(QWidget* lista) { listy_->insertWidget(0, lista); }

void frmKalendarz::ustawTytulDni(const QString& tytul) { ramka_->setTitle(tytul); }

QString frmKalendarz::nazwaMiesiaca(const MiesiacKalendarza& miesiac) {
    return NazwaMiesiaca(miesiac.mies) + QLatin1Char(' ') + FormatRoku(miesiac.rok);
}

// --- months and days

void frmKalendarz::WczytajMiesiace(std::optional<MiesiacKalendarza> zaznacz) {
    QList<WierszListy> wiersze;
    for (const MiesiacKalendarza& m : kalendarz_.miesiace(czyj()))
        wiersze.append({idMiesiaca(m), {NazwaMiesiaca(m.mies), FormatRoku(m.rok)}});
    porzuc();
    const bool pusta = wiersze.isEmpty();
    qint64 id = pusta ? -1 : wiersze.last().id;
    const auto jest = [&](qint64 szukany) {
        return std::ranges::find(wiersze, szukany, &WierszListy::id) != wiersze.end();
    };
    if (zaznacz && jest(idMiesiaca(*zaznacz))) id = idMiesiaca(*zaznacz);
    lvwMies_->ustaw(std::move(wiersze), id);
    if (pusta) WypiszDni(std::nullopt);
}

void frmKalendarz::porzuc() {
    biezacy_.reset();
    dni_->czysc();
}

void frmKalendarz::wybierzMiesiac(qint64 id) {
    const MiesiacKalendarza miesiac{czyj(), static_cast<int>(id / 100), static_cast<int>(id % 100)};
    if (biezacy_ == miesiac) return;
    poZapisie([&] { WypiszDni(miesiac); });
}

void frmKalendarz::WypiszDni(const std::optional<MiesiacKalendarza>& miesiac) {
    const auto tresc = miesiac ? kalendarz_.WypiszDni(*miesiac) : std::nullopt;
    biezacy_ = tresc ? miesiac : std::nullopt;
    if (tresc)
        dni_->pokaz(miesiac->rok, miesiac->mies, *tresc);
    else
        dni_->czysc();
    for (QPushButton* p : {cmdUsun_, cmdSwieta_}) p->setEnabled(biezacy_.has_value());
    policz();
    pokazano(biezacy_);
}

void frmKalendarz::policz() {
    const DniKalendarza dni = dni_->tresc().dni;
    const int wMiesiacu = biezacy_ ? DniWMiesiacu(biezacy_->rok, biezacy_->mies) : 0;
    pokazZmiany();
    labDni_->setText(QString::number(wMiesiacu));
    labWolne_->setText(QString::number(dni.ile(DniKalendarza::Wolny, 1, wMiesiacu)));
}

bool frmKalendarz::jestZmiana() const { return biezacy_ && dni_->jestZmiana(); }

bool frmKalendarz::zapiszZmiany() {
    kalendarz_.ZapiszDni(*biezacy_, dni_->tresc());
    dni_->przyjmij();
    return true;
}

void frmKalendarz::poZapisie(const std::function<void()>& dalej) {
    bool zapisane = false;
    {
        // Not at once, since a list is still in the middle of its own change.
        const auto powrot = qScopeGuard([&] {
            if (!zapisane)
                QMetaObject::invokeMethod(
                    this, [this] { cofnijListy(); }, Qt::QueuedConnection);
        });
        zapisane = rozstrzygnijZmiany();
    }
    if (zapisane) dalej();
}

void frmKalendarz::cofnijListy() {
    if (biezacy_) lvwMies_->wybierz(idMiesiaca(*biezacy_));
}

void frmKalendarz::pokazPonownie() {
    // What could not be stored stays on the screen.
    if (!dni_->jestZmiana()) WypiszDni(std::optional(biezacy_));
}

void frmKalendarz::wczytajPonownie() {
    if (biezacy_)
        odswiez(MiesiacKalendarza(*biezacy_));
    else
        WczytajMiesiace();
}

// --- the clerk's actions

void frmKalendarz::nowyMiesiac(qint64 prcId) {
    const QList<MiesiacKalendarza> sa = kalendarz_.miesiace(prcId);
    const QDate wstepna =
        sa.isEmpty() ? QDate::currentDate() : PierwszyDzien(sa.last().rok, sa.last().mies).addMonths(1);
    frmInputData okno(frmInputData::Tryb::Miesiac, QStringLiteral("Nowy miesiąc"), wstepna, this);
    if (okno.exec() != Accepted) return;
    const MiesiacKalendarza miesiac{prcId, okno.rok(), okno.mies()};
    if (kalendarz_.Nowy_dniwolne(miesiac)) odswiez(miesiac);
}

void frmKalendarz::usun() {
    if (!biezacy_) return;
    const qint64 sasiad = lvwMies_->sasiad(idMiesiaca(*biezacy_));
    const MiesiacKalendarza usuwany = *biezacy_;
    if (kalendarz_.Usun(usuwany))
        odswiez({usuwany.prcId, static_cast<int>(sasiad / 100), static_cast<int>(sasiad % 100)});
}

void frmKalendarz::zaznaczSwieta() {
    if (!biezacy_) return;
    poZapisie([this] {
        if (kalendarz_.SwietaRoku(biezacy_->prcId, biezacy_->rok)) WypiszDni(std::optional(biezacy_));
    });
}

} // namespace tornel::personnel
