#include "tax/frmSeriaDeklaracji.h"
#include "common/Liczby.h"
#include "common/Pliki.h"
#include "common/Rozmowa.h"
#include "okna/Klepsydra.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

namespace tornel::tax {

namespace {

QString pytajOPlikSerii(QWidget* rodzic, const QString& nazwa, const QString& filtr) {
    return QFileDialog::getSaveFileName(rodzic, QStringLiteral("Deklaracje"), nazwa, filtr);
}

} // namespace

frmSeriaDeklaracji::frmSeriaDeklaracji(Otoczenie& otoczenie, Deklaracja ktora, const OkresPodatkowy& okres,
                                       const QList<qint64>& osoby, PortWydrukowDeklaracji port,
                                       OtworzJedna otworz, QWidget* rodzic, WybierzPlik wybierz)
    : Okno(QStringLiteral("frmSeriaDeklaracji"), rodzic), o_(otoczenie), ktora_(ktora), okres_(okres),
      osoby_(osoby), port_(std::move(port)), otworz_(std::move(otworz)),
      wybierz_(wybierz ? std::move(wybierz) : pytajOPlikSerii),
      lvwOsoby_(new WidokListy({{QStringLiteral("NR"), Qt::AlignRight},
                                {QStringLiteral("NAZWISKO I IMIĘ")},
                                {QStringLiteral("PRZYCHÓD"), Qt::AlignRight},
                                {QStringLiteral("DOCHÓD"), Qt::AlignRight},
                                {QStringLiteral("ZALICZKI"), Qt::AlignRight},
                                {QStringLiteral("UWAGI")}},
                               {7, 24, 13, 13, 12, 31})),
      labUwagi_(Wyglad::baner({}, this)), labSumy_(new QLabel),
      cmdOtworz_(przycisk(QStringLiteral("cmdOtworz"), QStringLiteral("&Otwórz"), u"wejdz")),
      cmdPdf_(przycisk(QStringLiteral("cmdPdf"), QStringLiteral("Zapisz PD&F..."))),
      cmdCSV_(przycisk(QStringLiteral("cmdCSV"), QStringLiteral("Zapisz &CSV..."))),
      cmdDrukuj_(przycisk(QStringLiteral("cmdDrukuj"), QStringLiteral("&Drukuj"), u"drukuj")) {
    setWindowTitle(QStringLiteral("%1 za okres %2 do %3")
                       .arg(OpisDeklaracji(ktora_).nazwa)
                       .arg(okres_.od.napis(), okres_.dokad.napis()));
    buduj();
    wczytaj();
    lvwOsoby_->setFocus();
}

void frmSeriaDeklaracji::buduj() {
    lvwOsoby_->setObjectName(QStringLiteral("lvwOsoby"));
    lvwOsoby_->setAccessibleName(QStringLiteral("Podatnicy"));
    labUwagi_->setObjectName(QStringLiteral("labUwagi"));
    labUwagi_->setWordWrap(true);
    labSumy_->setObjectName(QStringLiteral("labSumy"));
    auto* powrot = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Powrót"), u"powrot");
    for (QPushButton* p : {cmdOtworz_, cmdPdf_, cmdCSV_, cmdDrukuj_, powrot}) p->setAutoDefault(false);
    cmdPdf_->setVisible(static_cast<bool>(port_.doPdf));
    cmdDrukuj_->setVisible(static_cast<bool>(port_.drukujSerie));
    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(labUwagi_);
    uklad->addWidget(lvwOsoby_, 1);
    uklad->addWidget(labSumy_);
    uklad->addWidget(rzadPrzyciskow({cmdOtworz_, cmdPdf_, cmdCSV_, cmdDrukuj_, przyciskPomocy(), powrot}));
    resize(124 * Wyglad::kSiatka, 76 * Wyglad::kSiatka);
    connect(lvwOsoby_, &WidokListy::wejscie, this, &frmSeriaDeklaracji::otworz);
    connect(cmdOtworz_, &QPushButton::clicked, this, [this] { otworz(lvwOsoby_->wybrany()); });
    connect(cmdPdf_, &QPushButton::clicked, this, &frmSeriaDeklaracji::zapiszPdf);
    connect(cmdCSV_, &QPushButton::clicked, this, &frmSeriaDeklaracji::zapiszCsv);
    connect(cmdDrukuj_, &QPushButton::clicked, this, [this] { port_.drukujSerie(seria_->strony(), this); });
    connect(powrot, &QPushButton::clicked, this, &QDialog::reject);
    connect(new QShortcut(Qt::Key_F5, this), &QShortcut::activated, this, &frmSeriaDeklaracji::wczytaj);
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, cmdDrukuj_, &QPushButton::click);
}

void frmSeriaDeklaracji::wczytaj() {
    const Klepsydra klepsydra;
    seria_ = std::make_unique<SeriaDeklaracji>(o_, ktora_, okres_, osoby_, QDate::currentDate());
    QList<WierszListy> wiersze;
    SumyZrodel razem;
    int zUwagami = 0;
    for (const PozycjaSerii& p : seria_->pozycje()) {
        razem.SPRZY += p.sumy.SPRZY;
        razem.SDOCHOD += p.sumy.SDOCHOD;
        razem.SPOB_ZAL += p.sumy.SPOB_ZAL;
        zUwagami += !p.uwagi.isEmpty();
        const QString uwagi = p.uwagi.join(u' ');
        wiersze.append({p.prcId,
                        {QString::number(p.prcId), p.nazwa, FormatKwoty(p.sumy.SPRZY),
                         FormatKwoty(p.sumy.SDOCHOD), FormatKwoty(p.sumy.SPOB_ZAL), uwagi},
                        uwagi,
                        Waga::Wazna});
    }
    lvwOsoby_->ustaw(wiersze, lvwOsoby_->wybrany());
    labSumy_->setText(
        QStringLiteral("Deklaracji: %1,  przychód %2,  dochód %3,  zaliczki %4")
            .arg(wiersze.size())
            .arg(FormatKwoty(razem.SPRZY), FormatKwoty(razem.SDOCHOD), FormatKwoty(razem.SPOB_ZAL)));
    QStringList banner;
    if (zUwagami > 0)
        banner.append(
            QStringLiteral("Podatników z uwagami: %1. Urząd może odesłać ich deklaracje.").arg(zUwagami));
    QStringList brak;
    for (const RokMies m : seria_->brakujaceMiesiace()) brak.append(m.napis());
    if (!brak.isEmpty() && ktora_ != Deklaracja::Pit8B)
        banner.append(QStringLiteral("Nie ma list płac za: %1.").arg(brak.join(QStringLiteral(", "))));
    Wyglad::ustawBaner(*labUwagi_, banner.join(u'\n'));
}

void frmSeriaDeklaracji::otworz(qint64 prcId) {
    if (prcId < 0 || !otworz_) return;
    otworz_(prcId, this);
}

void frmSeriaDeklaracji::zapisz(const QString& koncowka, const QString& filtr,
                                const std::function<void(const QString& plik)>& pisz) {
    QString plik = wybierz_(this,
                            QStringLiteral("%1 %2-%3%4")
                                .arg(OpisDeklaracji(ktora_).nazwa)
                                .arg(okres_.od.klucz(), okres_.dokad.klucz(), koncowka),
                            filtr);
    if (plik.isEmpty()) return;
    if (!plik.endsWith(koncowka, Qt::CaseInsensitive)) plik += koncowka;
    {
        const Klepsydra klepsydra;
        pisz(plik);
    }
    o_.rozmowa.komunikat(QStringLiteral("Plik ") + QDir::toNativeSeparators(plik) +
                             QStringLiteral(" został utworzony."),
                         Styl::Informacja);
}

void frmSeriaDeklaracji::zapiszPdf() {
    zapisz(QStringLiteral(".pdf"), QStringLiteral("Dokument PDF (*.pdf)"),
           [this](const QString& plik) { port_.doPdf(seria_->strony(), plik); });
}

void frmSeriaDeklaracji::zapiszCsv() {
    zapisz(QStringLiteral(".csv"), QStringLiteral("Plik CSV (*.csv)"),
           [this](const QString& plik) { ZapiszPlik(plik, seria_->csv()); });
}

} // namespace tornel::tax
