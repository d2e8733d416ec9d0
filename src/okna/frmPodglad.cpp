#include "okna/frmPodglad.h"
#include "common/Blad.h"
#include "common/Pliki.h"
#include "common/Rozmowa.h"
#include "druk/Wyjscie.h"
#include "okna/Klepsydra.h"
#include "okna/Mnemoniki.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QSpinBox>
#include <QVBoxLayout>

namespace tornel::okna {

namespace {

constexpr int kProcenty[] = {50, 75, 100, 125, 150, 200, 300};
constexpr int kRozdzielczoscKopii = 150;

} // namespace

frmPodglad::frmPodglad(std::shared_ptr<const Uklad> uklad, Rozmowa& rozmowa, QWidget* rodzic,
                       PoWydaniu poWydaniu)
    : QDialog(rodzic), uklad_(std::move(uklad)), rozmowa_(rozmowa), poWydaniu_(std::move(poWydaniu)),
      widok_(new WidokStrony(uklad_)), numStrona_(new QSpinBox), cboPowiekszenie_(new QComboBox),
      txtSzukaj_(new QLineEdit), labWynik_(new QLabel) {
    setObjectName(QStringLiteral("frmPodglad"));
    setWindowTitle(uklad_->opis().tytul);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* uklad2 = new QVBoxLayout(this);
    uklad2->addWidget(pasek());
    uklad2->addWidget(widok_, 1);
    uklad2->addWidget(dol());
    budujSkroty();
    resize(124 * Wyglad::kSiatka, 90 * Wyglad::kSiatka);
    connect(widok_, &WidokStrony::pokazano, this, &frmPodglad::pokazano);
    widok_->powieksz(Powiekszenie::SzerokoscStrony);
    widok_->pokazStrone(0);
    mnemoniki::nadajPrzyciskom(*this);
    widok_->setFocus();
}

QWidget* frmPodglad::pasek() {
    auto* wynik = new QWidget;
    auto* rzad = new QHBoxLayout(wynik);
    rzad->setContentsMargins(0, 0, 0, 0);
    const auto podpis = [&](const QString& tekst, QWidget* pole) {
        auto* etykieta = new QLabel(tekst);
        etykieta->setBuddy(pole);
        rzad->addWidget(etykieta);
        rzad->addWidget(pole);
    };
    numStrona_->setObjectName(QStringLiteral("numStrona"));
    numStrona_->setRange(1, uklad_->stron());
    numStrona_->setKeyboardTracking(false);
    podpis(QStringLiteral("&Strona:"), numStrona_);
    rzad->addWidget(new QLabel(QStringLiteral("z %1").arg(uklad_->stron())));
    connect(numStrona_, &QSpinBox::valueChanged, this, [this](int nr) {
        if (nr - 1 != widok_->strona()) widok_->pokazStrone(nr - 1);
    });
    cboPowiekszenie_->setObjectName(QStringLiteral("cboPowiekszenie"));
    cboPowiekszenie_->addItem(QStringLiteral("szerokość strony"), -1);
    cboPowiekszenie_->addItem(QStringLiteral("cała strona"), -2);
    for (const int procent : kProcenty)
        cboPowiekszenie_->addItem(QStringLiteral("%1 %").arg(procent), procent);
    rzad->addSpacing(2 * Wyglad::kSiatka);
    podpis(QStringLiteral("Po&większenie:"), cboPowiekszenie_);
    connect(cboPowiekszenie_, &QComboBox::activated, this, [this] {
        const int wybor = cboPowiekszenie_->currentData().toInt();
        widok_->powieksz(wybor == -1   ? Powiekszenie::SzerokoscStrony
                         : wybor == -2 ? Powiekszenie::CalaStrona
                                       : Powiekszenie::Swobodne,
                         wybor);
    });
    rzad->addStretch(1);
    txtSzukaj_->setObjectName(QStringLiteral("txtSzukaj"));
    txtSzukaj_->setClearButtonEnabled(true);
    txtSzukaj_->setMinimumWidth(24 * Wyglad::kSiatka);
    connect(txtSzukaj_, &QLineEdit::returnPressed, this, &frmPodglad::szukaj);
    labWynik_->setObjectName(QStringLiteral("labWynik"));
    labWynik_->setMinimumWidth(16 * Wyglad::kSiatka);
    rzad->addWidget(labWynik_);
    podpis(QStringLiteral("S&zukaj:"), txtSzukaj_);
    return wynik;
}

QWidget* frmPodglad::dol() {
    auto* cmdDrukuj = przycisk(QStringLiteral("cmdDrukuj"), QStringLiteral("&Drukuj"), u"drukuj");
    auto* cmdPdf = przycisk(QStringLiteral("cmdPdf"), QStringLiteral("Zapisz &PDF"));
    auto* cmdCsv = przycisk(QStringLiteral("cmdCsv"), QStringLiteral("Zapisz &CSV"));
    auto* cmdKopiuj = przycisk(QStringLiteral("cmdKopiuj"), QStringLiteral("&Kopiuj stronę"));
    auto* cmdPowrot = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("P&owrót"), u"powrot");
    for (QPushButton* p : {cmdDrukuj, cmdPdf, cmdCsv, cmdKopiuj, cmdPowrot}) p->setAutoDefault(false);
    cmdDrukuj->setToolTip(QStringLiteral("Ctrl+P"));
    cmdPdf->setToolTip(QStringLiteral("Ctrl+S"));
    cmdKopiuj->setToolTip(QStringLiteral("Ctrl+C"));
    cmdCsv->setVisible(!uklad_->opis().nazwyPol.isEmpty());
    connect(cmdDrukuj, &QPushButton::clicked, this, &frmPodglad::drukuj);
    connect(cmdPdf, &QPushButton::clicked, this, [this] {
        wybierzPlik(QStringLiteral("pdf"), QStringLiteral("Dokument PDF"), &frmPodglad::zapiszPdf);
    });
    connect(cmdCsv, &QPushButton::clicked, this, [this] {
        wybierzPlik(QStringLiteral("csv"), QStringLiteral("Arkusz CSV"), &frmPodglad::zapiszCsv);
    });
    connect(cmdKopiuj, &QPushButton::clicked, this, &frmPodglad::kopiuj);
    connect(cmdPowrot, &QPushButton::clicked, this, &QDialog::reject);
    return rzadPrzyciskow({cmdDrukuj, cmdPdf, cmdCsv, cmdKopiuj, przyciskPomocy(), cmdPowrot});
}

void frmPodglad::budujSkroty() {
    const auto skrot = [this](const QKeySequence& klawisze, auto czynnosc) {
        connect(new QShortcut(klawisze, this), &QShortcut::activated, this, czynnosc);
    };
    skrot(QKeySequence::Find, [this] {
        txtSzukaj_->setFocus(Qt::ShortcutFocusReason);
        txtSzukaj_->selectAll();
    });
    skrot(Qt::Key_F3, &frmPodglad::szukaj);
    skrot(QKeySequence::ZoomIn, [this] { zmienPowiekszenie(1); });
    skrot(Qt::CTRL | Qt::Key_Equal, [this] { zmienPowiekszenie(1); });
    skrot(QKeySequence::ZoomOut, [this] { zmienPowiekszenie(-1); });
    skrot(QKeySequence::Print, &frmPodglad::drukuj);
    skrot(QKeySequence::Save, [this] { findChild<QPushButton*>(QStringLiteral("cmdPdf"))->click(); });
    skrot(QKeySequence::Copy, &frmPodglad::kopiuj);
}

void frmPodglad::pokazano(int strona) { numStrona_->setValue(strona + 1); }

/// From the page behind the one shown, around to it.
void frmPodglad::szukaj() {
    const QString tekst = txtSzukaj_->text().trimmed();
    if (tekst.isEmpty()) return labWynik_->clear();
    const Klepsydra klepsydra;
    const int stron = uklad_->stron();
    for (int i = 1; i <= stron; ++i) {
        const int strona = (widok_->strona() + i) % stron;
        if (!uklad_->zawiera(strona, tekst)) continue;
        labWynik_->setText(QStringLiteral("strona %1").arg(strona + 1));
        return widok_->pokazStrone(strona);
    }
    labWynik_->setText(QStringLiteral("nie znaleziono"));
}

void frmPodglad::zmienPowiekszenie(int krok) {
    const int teraz = widok_->procent();
    int nowe = krok > 0 ? kProcenty[std::size(kProcenty) - 1] : kProcenty[0];
    if (krok > 0) {
        for (const int p : kProcenty)
            if (p > teraz && p < nowe) nowe = p;
    } else {
        for (const int p : kProcenty)
            if (p < teraz && p > nowe) nowe = p;
    }
    cboPowiekszenie_->setCurrentIndex(cboPowiekszenie_->findData(nowe));
    widok_->powieksz(Powiekszenie::Swobodne, nowe);
}

void frmPodglad::kopiuj() {
    const Strona& s = uklad_->opis().strona;
    const double punkty = kRozdzielczoscKopii / 25.4;
    QImage obraz(static_cast<int>(s.szer() * punkty), static_cast<int>(s.wys() * punkty),
                 QImage::Format_RGB32);
    obraz.fill(Qt::white);
    QPainter malarz(&obraz);
    MalujStrone(malarz, kRozdzielczoscKopii, *uklad_, widok_->strona());
    malarz.end();
    auto* dane = new QMimeData;
    dane->setImageData(obraz);
    QGuiApplication::clipboard()->setMimeData(dane);
    labWynik_->setText(QStringLiteral("skopiowano"));
}

void frmPodglad::drukuj() {
    const auto wydane = Drukuj(*uklad_, Drukarka::Wybierana, rozmowa_, this);
    if (!wydane) return;
    labWynik_->setText(QStringLiteral("wydrukowano"));
    if (poWydaniu_) poWydaniu_(*wydane);
}

void frmPodglad::wybierzPlik(const QString& rozszerzenie, const QString& opis,
                             bool (frmPodglad::*zapisz)(const QString&)) {
    QString plik = QFileDialog::getSaveFileName(this, windowTitle(),
                                                uklad_->opis().nazwa + QLatin1Char('.') + rozszerzenie,
                                                QStringLiteral("%1 (*.%2)").arg(opis, rozszerzenie));
    if (plik.isEmpty()) return;
    if (!plik.contains(QLatin1Char('.'))) plik += QLatin1Char('.') + rozszerzenie;
    if ((this->*zapisz)(plik)) labWynik_->setText(QStringLiteral("zapisano"));
}

bool frmPodglad::zapiszPdf(const QString& plik) {
    try {
        const auto postep = rozmowa_.postep(windowTitle(), uklad_->stron());
        if (!ZapiszPdf(*uklad_, plik,
                       [&](int s) { return postep->krok(s, QStringLiteral("Zapis strony %1").arg(s)); }))
            return false;
    } catch (const Blad& blad) {
        rozmowa_.komunikat(blad.komunikat(), Styl::Krytyczny);
        return false;
    }
    if (poWydaniu_) poWydaniu_({1, uklad_->stron(), QFileInfo(plik).absoluteFilePath()});
    return true;
}

bool frmPodglad::zapiszCsv(const QString& plik) {
    try {
        ZapiszPlik(plik, CsvWydruku(*uklad_));
        return true;
    } catch (const Blad& blad) {
        rozmowa_.komunikat(blad.komunikat(), Styl::Krytyczny);
        return false;
    }
}

void frmPodglad::keyPressEvent(QKeyEvent* zdarzenie) {
    const bool enter = zdarzenie->key() == Qt::Key_Return || zdarzenie->key() == Qt::Key_Enter;
    if (enter) {
        if (auto* cmd = qobject_cast<QPushButton*>(focusWidget())) cmd->click();
        return;
    }
    QDialog::keyPressEvent(zdarzenie);
}

} // namespace tornel::okna
