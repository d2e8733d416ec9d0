#include "zus/frmKedu.h"
#include "common/Blad.h"
#include "okna/Klepsydra.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTreeView>

namespace tornel::zus {

namespace {

/// A collection of that many documents opens with their blocks to be seen.
constexpr int kMaloDokumentow = 30;

QString pytajOKolekcje(QWidget* rodzic, const QString& folder) {
    return QFileDialog::getOpenFileName(
        rodzic, QStringLiteral("Podgląd kolekcji"), folder,
        QStringLiteral("Kolekcja Dokumentów Ubezp. (*.kdu);;Wszystkie pliki (*.*)"));
}

} // namespace

frmKedu::frmKedu(Rozmowa& rozmowa, const QString& folder, const QString& plik, Wydrukuj wydrukuj,
                 QWidget* rodzic, WybierzPlik wybierz)
    : Okno(QStringLiteral("frmKedu"), rodzic), rozmowa_(rozmowa), folder_(folder),
      wydrukuj_(std::move(wydrukuj)), wybierz_(wybierz ? std::move(wybierz) : pytajOKolekcje),
      tvwKolekcja_(new QTreeView), txtSzukaj_(new PoleTekstu), labPlik_(new QLabel), labWynik_(new QLabel),
      labUwagi_(new QLabel), cmdPlik_(przycisk(QStringLiteral("cmdPlik"), QStringLiteral("&Otwórz plik..."))),
      cmdDrukuj_(przycisk(QStringLiteral("cmdDrukuj"), QStringLiteral("&Drukuj"), u"drukuj")) {
    setWindowTitle(QStringLiteral("Podgląd kolekcji"));
    labPlik_->setObjectName(QStringLiteral("labPlik"));
    labPlik_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    labUwagi_->setObjectName(QStringLiteral("labUwagi"));
    labUwagi_->setWordWrap(true);
    labUwagi_->hide();
    txtSzukaj_->setObjectName(QStringLiteral("txtSzukaj"));
    txtSzukaj_->setAccessibleName(QStringLiteral("Szukaj"));
    txtSzukaj_->setPlaceholderText(QStringLiteral("Szukaj nazwiska, numeru, kwoty..."));
    txtSzukaj_->setMaximumWidth(40 * Wyglad::kSiatka);
    labWynik_->setObjectName(QStringLiteral("labWynik"));
    tvwKolekcja_->setObjectName(QStringLiteral("tvwKolekcja"));
    tvwKolekcja_->setAccessibleName(QStringLiteral("Dokumenty kolekcji"));
    tvwKolekcja_->setModel(&model_);
    tvwKolekcja_->setUniformRowHeights(true);
    tvwKolekcja_->setAlternatingRowColors(true);
    tvwKolekcja_->setColumnWidth(ModelKedu::Nazwa, 56 * Wyglad::kSiatka);

    auto* powrot = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Powrót"), u"powrot");
    for (QPushButton* p : {cmdPlik_, cmdDrukuj_, powrot}) p->setAutoDefault(false);
    connect(cmdPlik_, &QPushButton::clicked, this, &frmKedu::wybierzPlik);
    connect(cmdDrukuj_, &QPushButton::clicked, this, &frmKedu::drukuj);
    connect(powrot, &QPushButton::clicked, this, &QDialog::reject);
    connect(txtSzukaj_, &QLineEdit::textChanged, labWynik_, &QLabel::clear);
    connect(txtSzukaj_, &QLineEdit::returnPressed, this, &frmKedu::szukaj);
    auto* gora = new QHBoxLayout;
    gora->addWidget(labPlik_, 1);
    gora->addWidget(labWynik_);
    gora->addWidget(txtSzukaj_, 1);
    auto* uklad = new QVBoxLayout(this);
    uklad->addLayout(gora);
    uklad->addWidget(labUwagi_);
    uklad->addWidget(tvwKolekcja_, 1);
    uklad->addWidget(rzadPrzyciskow({cmdPlik_, cmdDrukuj_, przyciskPomocy(), powrot}));
    resize(120 * Wyglad::kSiatka, 80 * Wyglad::kSiatka);
    budujSkroty();
    cmdDrukuj_->setEnabled(false);
    labPlik_->setText(QStringLiteral("Otwórz plik kolekcji (*.kdu)."));
    if (!plik.isEmpty()) (void)otworz(plik);
    tvwKolekcja_->setFocus();
}

void frmKedu::budujSkroty() {
    const auto skrot = [this](const QKeySequence& klawisze, auto czynnosc) {
        connect(new QShortcut(klawisze, this), &QShortcut::activated, this, czynnosc);
    };
    skrot(QKeySequence::Open, &frmKedu::wybierzPlik);
    skrot(QKeySequence::Print, &frmKedu::drukuj);
    skrot(Qt::Key_F3, &frmKedu::szukaj);
    skrot(QKeySequence::Find, [this] {
        txtSzukaj_->setFocus(Qt::ShortcutFocusReason);
        txtSzukaj_->selectAll();
    });
}

void frmKedu::wybierzPlik() {
    const QString plik = wybierz_(this, plik_.isEmpty() ? folder_ : plik_);
    if (!plik.isEmpty()) (void)otworz(plik);
}

bool frmKedu::otworz(const QString& plik) {
    try {
        const Klepsydra klepsydra;
        kolekcja_ = std::make_shared<const OdczytKedu>(OdczytKedu::zPliku(plik));
    } catch (const Blad& blad) {
        rozmowa_.komunikat(blad.komunikat(), Styl::Krytyczny);
        return false;
    }
    plik_ = plik;
    model_.ustaw(kolekcja_);
    const auto dokumentow = static_cast<int>(kolekcja_->dokumenty().size());
    labPlik_->setText(
        QStringLiteral("%1, dokumentów: %2").arg(QDir::toNativeSeparators(plik)).arg(dokumentow));
    labUwagi_->setText(kolekcja_->uwagi().join(QLatin1Char('\n')));
    labUwagi_->setVisible(!kolekcja_->uwagi().isEmpty());
    labWynik_->clear();
    if (dokumentow <= kMaloDokumentow) tvwKolekcja_->expandToDepth(0);
    if (dokumentow > 0) tvwKolekcja_->setCurrentIndex(model_.index(0, 0));
    cmdDrukuj_->setEnabled(wydrukuj_ && dokumentow > 0);
    return true;
}

void frmKedu::szukaj() {
    const QString tekst = txtSzukaj_->text().trimmed();
    if (tekst.isEmpty()) return labWynik_->clear();
    const Klepsydra klepsydra;
    const QModelIndex znaleziony = model_.szukaj(tekst, tvwKolekcja_->currentIndex());
    labWynik_->setText(znaleziony.isValid() ? QString() : QStringLiteral("nie znaleziono"));
    if (!znaleziony.isValid()) return;
    tvwKolekcja_->setCurrentIndex(znaleziony);
    tvwKolekcja_->scrollTo(znaleziony, QAbstractItemView::PositionAtCenter);
}

void frmKedu::drukuj() {
    if (cmdDrukuj_->isEnabled()) wydrukuj_(kolekcja_, plik_, this);
}

} // namespace tornel::zus
