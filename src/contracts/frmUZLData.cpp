#include "contracts/frmUZLData.h"
#include "common/Daty.h"
#include "contracts/frmUmowyTabele.h"
#include "okna/Pole.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/UwagaPola.h"
#include "okna/Wyglad.h"
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::contracts {

frmUZLData::frmUZLData(const RodzajUmowy& rodzaj, QWidget* rodzic)
    : Okno(QStringLiteral("frmUZLData"), rodzic), dtpDataZ_(new PoleDaty) {
    const EkranUmow& ekran = EkranRodzaju(rodzaj);
    setWindowTitle(ekran.tytulDaty.toString());
    dtpDataZ_->setObjectName(QStringLiteral("dtpDataZ"));
    dtpDataZ_->setText(FormatDaty(QDate::currentDate()));
    auto* podpis = new QLabel(ekran.pytanieDaty.toString());
    podpis->setBuddy(dtpDataZ_);
    dtpDataZ_->setAccessibleName(nazwaDostepna(podpis->text()));
    QPushButton* cmdDalej = przycisk(QStringLiteral("cmdDalej"), QStringLiteral("&Dalej"));
    QPushButton* cmdAnuluj = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Anuluj"));
    connect(cmdDalej, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);

    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka,
                              2 * Wyglad::kSiatka);
    uklad->setSpacing(2 * Wyglad::kSiatka);
    auto* linia = new QHBoxLayout;
    linia->addWidget(podpis);
    linia->addWidget(dtpDataZ_);
    uklad->addLayout(linia);
    uklad->addStretch();
    uklad->addWidget(rzadPrzyciskow({cmdDalej, cmdAnuluj}));
    cmdDalej->setDefault(true);
    dtpDataZ_->setFocus();
}

QDate frmUZLData::data() const { return CzytajWpisanaDate(dtpDataZ_->text()).value_or(QDate()); }

void frmUZLData::accept() {
    if (data().isValid()) return QDialog::accept();
    // As on leaving any date field: what is no date is taken away, and the dialog waits for one.
    UwagaPola::ustaw(
        *dtpDataZ_,
        nieZrozumiano({.nazwa = {}, .podpis = {}, .kolumna = {}, .rodzaj = Rodzaj::Data}, dtpDataZ_->text()));
    dtpDataZ_->clear();
    dtpDataZ_->setFocus();
}

} // namespace tornel::contracts
