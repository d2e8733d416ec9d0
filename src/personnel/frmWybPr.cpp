#include "personnel/frmWybPr.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "okna/PoleSzukania.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::personnel {

namespace {

enum KolumnaWyboru { WybNumer, WybNazwisko, WybImie, WybDzial };

QList<WierszListy> wiersze(const QList<Osoba>& osoby) {
    QList<WierszListy> wynik;
    wynik.reserve(osoby.size());
    for (const Osoba& o : osoby)
        wynik.append({o.prcId,
                      {FormatNumeru(o.prcId), o.nazwisko, o.imie, o.dzial},
                      o.zwolniony ? QStringLiteral("Zwolniony") : QString()});
    return wynik;
}

} // namespace

frmWybPr::frmWybPr(Otoczenie& otoczenie, int tryb, Ilu ilu, QWidget* rodzic, qint64 zaznacz,
                   Przelacznik przelacznik)
    : Okno(QStringLiteral("frmWybPr"), rodzic), o_(otoczenie), tryb_(tryb), przelacznik_(przelacznik),
      lvwWybPr_(new WidokListy({{QStringLiteral("NR"), Qt::AlignRight},
                                {QStringLiteral("NAZWISKO")},
                                {QStringLiteral("IMIĘ")},
                                {QStringLiteral("DZIAŁ")}},
                               {12, 36, 26, 26})),
      chkZwolnieni_(new QCheckBox(QStringLiteral("Ta&kże zwolnieni"))), labZaznaczono_(new QLabel) {
    setWindowTitle(QStringLiteral("Wybór pracownika"));
    lvwWybPr_->setObjectName(QStringLiteral("lvwWybPr"));
    labZaznaczono_->setObjectName(QStringLiteral("labZaznaczono"));
    buduj(ilu);
    resize(86 * Wyglad::kSiatka, 76 * Wyglad::kSiatka);
    wczytaj(zaznacz);
    connect(chkZwolnieni_, &QCheckBox::toggled, this, [this] {
        const QList<qint64> przedtem = wybrani();
        wczytaj(przedtem.isEmpty() ? -1 : przedtem.first());
    });
    connect(lvwWybPr_, &WidokListy::wejscie, this, &QDialog::accept);
    connect(lvwWybPr_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &frmWybPr::pokazIlu);
}

void frmWybPr::wczytaj(qint64 zaznacz) {
    osoby_ =
        Pracownicy(o_).doWyboru(tryb_, chkZwolnieni_->isChecked() ? Zwolnieni::Takze : Zwolnieni::Pominieci);
    lvwWybPr_->ustaw(wiersze(osoby_), zaznacz);
    pokazIlu();
}

void frmWybPr::buduj(Ilu ilu) {
    chkZwolnieni_->setObjectName(QStringLiteral("chkZwolnieni"));
    if (przelacznik_ == Przelacznik::Brak) chkZwolnieni_->hide();
    if (ilu == Ilu::Wielu) lvwWybPr_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto* cmdWszyscy = przycisk(QStringLiteral("cmdWszyscy"), QStringLiteral("Wszyscy"));
    auto* cmdDzial = przycisk(QStringLiteral("cmdDzial"), QStringLiteral("&Zaznacz dział"));
    auto* cmdWybierz = przycisk(QStringLiteral("cmdWybierz"), QStringLiteral("&Wybierz"));
    auto* cmdAnuluj = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Anuluj"));
    for (QPushButton* p : {cmdWszyscy, cmdDzial}) {
        p->setAutoDefault(false);
        if (ilu == Ilu::Jeden) p->hide();
    }
    connect(cmdWszyscy, &QPushButton::clicked, this, [this] {
        lvwWybPr_->pokazWszystkie();
        lvwWybPr_->selectAll();
    });
    connect(cmdDzial, &QPushButton::clicked, this, &frmWybPr::zaznaczDzial);
    connect(cmdWybierz, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);

    auto* uklad = new QVBoxLayout(this);
    auto* gora = new QHBoxLayout;
    auto* txtSzukaj = new PoleSzukania(*lvwWybPr_, WybNumer, WybNazwisko);
    gora->addWidget(txtSzukaj);
    gora->addWidget(chkZwolnieni_);
    gora->addWidget(labZaznaczono_);
    uklad->addLayout(gora);
    uklad->addWidget(lvwWybPr_, 1);
    uklad->addWidget(rzadPrzyciskow({cmdWszyscy, cmdDzial, cmdWybierz, cmdAnuluj}));
    cmdWybierz->setDefault(true);
    lvwWybPr_->setFocus();
}

int frmWybPr::exec() {
    const bool nikogo = osoby_.isEmpty() && (przelacznik_ == Przelacznik::Brak ||
                                             Pracownicy(o_).doWyboru(tryb_, Zwolnieni::Takze).isEmpty());
    if (!nikogo) return QDialog::exec();
    if (const QString komunikat = Pracownicy::komunikatPustejListy(tryb_); !komunikat.isEmpty())
        o_.rozmowa.komunikat(komunikat, Styl::Informacja);
    return Rejected;
}

QList<qint64> frmWybPr::wybrani() const { return lvwWybPr_->zaznaczeni(); }

QList<qint64> frmWybPr::wybierz(Otoczenie& otoczenie, int tryb, Ilu ilu, QWidget* rodzic, qint64 zaznacz) {
    frmWybPr okno(otoczenie, tryb, ilu, rodzic, zaznacz);
    return okno.exec() == Accepted ? okno.wybrani() : QList<qint64>();
}

void frmWybPr::zaznaczDzial() {
    lvwWybPr_->pokazWszystkie();
    const ListaModel& lista = lvwWybPr_->lista();
    const int biezacy = lvwWybPr_->currentIndex().row();
    if (biezacy < 0) return;
    const auto dzial = [&](int nr) { return lista.widoczny(nr).teksty.at(WybDzial); };
    const QString szukany = dzial(biezacy);
    // Whole stretches of rows: a range for each person would cost the square of their number.
    QItemSelection zaznaczenie;
    const int ile = lista.rowCount();
    for (int od = 0; od < ile; ++od) {
        if (dzial(od) != szukany) continue;
        int dokad = od;
        while (dokad + 1 < ile && dzial(dokad + 1) == szukany) ++dokad;
        zaznaczenie.append({lista.index(od, WybNumer), lista.index(dokad, WybDzial)});
        od = dokad;
    }
    lvwWybPr_->selectionModel()->select(zaznaczenie, QItemSelectionModel::Select);
}

void frmWybPr::pokazIlu() {
    labZaznaczono_->setText(QStringLiteral("Zaznaczono: %1 z %2").arg(wybrani().size()).arg(osoby_.size()));
}

} // namespace tornel::personnel
