#include "personnel/frmTrDoPr.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "okna/Klepsydra.h"
#include "okna/PoleMiesiaca.h"
#include "okna/PoleSzukania.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include "personnel/Kalendarz.h"
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::personnel {

namespace {

enum KolumnaTransportu { TrNumer, TrNazwisko };

QDate proponowany(Otoczenie& otoczenie) {
    const QList<MiesiacKalendarza> sa = Kalendarz(otoczenie).miesiace(kKalendarzOgolny);
    return sa.isEmpty() ? QDate::currentDate() : PierwszyDzien(sa.last().rok, sa.last().mies);
}

} // namespace

frmTrDoPr::frmTrDoPr(Otoczenie& otoczenie, QWidget* rodzic)
    : Okno(QStringLiteral("frmTrDoPr"), rodzic), o_(otoczenie),
      osoby_(Pracownicy(otoczenie).lista(FiltrPracownikow::Pracujacy, PorzadekPracownikow::Nazwiska)),
      lvwPrac_(new WidokListy(
          {{QStringLiteral("NR"), Qt::AlignRight}, {QStringLiteral("NAZWISKO")}, {QStringLiteral("IMIE")}},
          {14, 48, 38})),
      miesiac_(new PoleMiesiaca(proponowany(otoczenie))), labZaznaczono_(new QLabel) {
    setWindowTitle(QStringLiteral("Transport dni wolnych do pracowników"));
    lvwPrac_->setObjectName(QStringLiteral("lvwPrac"));
    lvwPrac_->setAccessibleName(QStringLiteral("Pracownicy"));
    lvwPrac_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lvwPrac_->ustawPodpowiedz(QStringLiteral("Brak pracowników na liście."));
    labZaznaczono_->setObjectName(QStringLiteral("labZaznaczono"));
    buduj();
    QList<WierszListy> wiersze;
    wiersze.reserve(osoby_.size());
    for (const Osoba& o : osoby_) wiersze.append({o.prcId, {FormatNumeru(o.prcId), o.nazwisko, o.imie}});
    lvwPrac_->ustaw(std::move(wiersze));
    // Nobody is chosen until the clerk does it.
    lvwPrac_->clearSelection();
    pokazIlu();
    connect(lvwPrac_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &frmTrDoPr::pokazIlu);
    resize(86 * Wyglad::kSiatka, 72 * Wyglad::kSiatka);
}

void frmTrDoPr::buduj() {
    auto* ramka = new QGroupBox(QStringLiteral("MIESIĄC KALENDARZA OGÓLNEGO"));
    (new QVBoxLayout(ramka))->addWidget(miesiac_);
    auto* gora = new QHBoxLayout;
    gora->addWidget(new PoleSzukania(*lvwPrac_, TrNumer, TrNazwisko));
    gora->addWidget(labZaznaczono_);

    auto* cmdWszyscy = przycisk(QStringLiteral("cmdWszyscy"), QStringLiteral("Do w&szystkich"));
    auto* cmdWybrani = przycisk(QStringLiteral("cmdWybrani"), QStringLiteral("Do &wybranych"));
    auto* cmdAnuluj = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Powrót"), u"powrot");
    // Enter decides nothing here: it would change the calendars of all.
    for (QPushButton* p : {cmdWszyscy, cmdWybrani, cmdAnuluj}) p->setAutoDefault(false);
    connect(cmdWszyscy, &QPushButton::clicked, this, [this] {
        QList<qint64> numery;
        for (const Osoba& o : osoby_) numery.append(o.prcId);
        Transp(numery);
    });
    connect(cmdWybrani, &QPushButton::clicked, this, [this] { Transp(lvwPrac_->zaznaczeni()); });
    connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);

    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(ramka);
    uklad->addLayout(gora);
    uklad->addWidget(lvwPrac_, 1);
    uklad->addWidget(rzadPrzyciskow({cmdWszyscy, cmdWybrani, przyciskPomocy(), cmdAnuluj}));
    lvwPrac_->setFocus();
}

int frmTrDoPr::exec() {
    if (!osoby_.isEmpty()) return QDialog::exec();
    o_.rozmowa.komunikat(QStringLiteral("Brak pracowników na liście."), Styl::Informacja);
    return Rejected;
}

void frmTrDoPr::Transp(const QList<qint64>& numery) {
    const Klepsydra klepsydra;
    const QDate miesiac = miesiac_->pierwszyDzien();
    (void)Kalendarz(o_).Transp(miesiac.year(), miesiac.month(), numery);
}

void frmTrDoPr::pokazIlu() {
    labZaznaczono_->setText(
        QStringLiteral("Zaznaczono: %1 z %2").arg(lvwPrac_->zaznaczeni().size()).arg(osoby_.size()));
}

} // namespace tornel::personnel
