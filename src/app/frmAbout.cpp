#include "app/frmAbout.h"
#include "common/Rozmowa.h"
#include "okna/Mnemoniki.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace tornel::app {

namespace {

constexpr int kIkona = 8 * Wyglad::kSiatka;

} // namespace

frmAbout::frmAbout(QWidget* rodzic) : QDialog(rodzic) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("O programie"));
    auto* siatka = new QGridLayout(this);
    siatka->setContentsMargins(3 * Wyglad::kSiatka, 3 * Wyglad::kSiatka, 3 * Wyglad::kSiatka,
                               2 * Wyglad::kSiatka);
    siatka->setHorizontalSpacing(3 * Wyglad::kSiatka);

    auto* obraz = new QLabel;
    obraz->setPixmap(Wyglad::ikona(u"program").pixmap(kIkona, kIkona));
    auto* nazwa = new QLabel(Rozmowa::domyslnyTytul());
    QFont pismo = nazwa->font();
    pismo.setPointSize(pismo.pointSize() * 2);
    pismo.setBold(true);
    nazwa->setFont(pismo);
    // The project's version is major.minor.revision.
    auto* wersja = new QLabel(QStringLiteral("wersja ") + QStringLiteral(TORNEL_WERSJA));
    wersja->setObjectName(QStringLiteral("labWersja"));

    siatka->addWidget(obraz, 0, 0, 2, 1, Qt::AlignTop);
    siatka->addWidget(nazwa, 0, 1);
    siatka->addWidget(wersja, 1, 1);
    siatka->setRowMinimumHeight(2, Wyglad::kSiatka);
    QPushButton* cmdOK = przycisk(QStringLiteral("cmdOK"), QStringLiteral("OK"));
    siatka->addWidget(rzadPrzyciskow({cmdOK}), 3, 0, 1, 2);
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    siatka->setSizeConstraint(QLayout::SetFixedSize);
    mnemoniki::nadajPrzyciskom(*this);
}

} // namespace tornel::app
