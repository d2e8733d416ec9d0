#include "okna/frmInputData.h"
#include "common/Daty.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QComboBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

frmInputData::frmInputData(Tryb tryb, const QString& tytul, QDate wstepna, QWidget* rodzic)
    : QDialog(rodzic), tryb_(tryb) {
    setObjectName(QStringLiteral("frmInputData"));
    setWindowTitle(tytul);
    setMinimumWidth(40 * Wyglad::kSiatka);
    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka,
                              2 * Wyglad::kSiatka);
    uklad->setSpacing(2 * Wyglad::kSiatka);
    uklad->addWidget(tryb == Tryb::Miesiac ? polaMiesiaca(wstepna) : polaDaty(wstepna));
    uklad->addStretch();
    uklad->addWidget(przyciskiOkAnuluj(*this, QStringLiteral("OK")));
}

QWidget* frmInputData::polaMiesiaca(QDate wstepna) {
    auto* pola = new QWidget;
    auto* formularz = new QFormLayout(pola);
    formularz->setContentsMargins(0, 0, 0, 0);
    cboMies_ = new QComboBox;
    cboMies_->setObjectName(QStringLiteral("cboMies"));
    for (int m = 1; m <= 12; ++m)
        cboMies_->addItem(FormatMiesiaca(m) + QStringLiteral("  ") + NazwaMiesiaca(m));
    cboMies_->setMaxVisibleItems(12);
    cboMies_->setCurrentIndex(wstepna.isValid() ? wstepna.month() - 1 : 0);
    spnRok_ = new QSpinBox;
    spnRok_->setObjectName(QStringLiteral("spnRok"));
    spnRok_->setRange(kPierwszyRok, kOstatniRok);
    spnRok_->setValue(wstepna.isValid() ? wstepna.year() : kPierwszyRok);
    formularz->addRow(QStringLiteral("&Miesiąc:"), cboMies_);
    formularz->addRow(QStringLiteral("&Rok:"), spnRok_);
    return pola;
}

QWidget* frmInputData::polaDaty(QDate wstepna) {
    auto* pola = new QWidget;
    auto* formularz = new QFormLayout(pola);
    formularz->setContentsMargins(0, 0, 0, 0);
    dtData_ = new PoleDaty;
    dtData_->setObjectName(QStringLiteral("dtData"));
    dtData_->setText(FormatDaty(wstepna));
    formularz->addRow(QStringLiteral("&Data (dd-mm-rrrr):"), dtData_);
    return pola;
}

QDate frmInputData::data() const {
    if (tryb_ == Tryb::Miesiac) return PierwszyDzien(spnRok_->value(), cboMies_->currentIndex() + 1);
    return CzytajDate(SprawdzDate(dtData_->text())).value_or(QDate());
}

void frmInputData::accept() {
    if (!data().isValid()) {
        // As on leaving any date field: what is no date is taken away, and the dialog waits for one.
        dtData_->clear();
        dtData_->setFocus();
        return;
    }
    QDialog::accept();
}
