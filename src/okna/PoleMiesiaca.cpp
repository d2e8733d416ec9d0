#include "okna/PoleMiesiaca.h"
#include "common/Daty.h"
#include <QComboBox>
#include <QFormLayout>
#include <QSpinBox>

namespace tornel::okna {

PoleMiesiaca::PoleMiesiaca(QDate wstepna, QWidget* rodzic, const NazwyPolMiesiaca& nazwy)
    : QWidget(rodzic), cboMies_(new QComboBox), spnRok_(new QSpinBox) {
    auto* formularz = new QFormLayout(this);
    formularz->setContentsMargins(0, 0, 0, 0);
    cboMies_->setObjectName(QStringLiteral("cboMies") + nazwy.koncowka);
    cboMies_->setAccessibleName(QStringLiteral("Miesiąc"));
    for (int m = 1; m <= 12; ++m)
        cboMies_->addItem(FormatMiesiaca(m) + QStringLiteral("  ") + NazwaMiesiaca(m));
    cboMies_->setMaxVisibleItems(12);
    cboMies_->setCurrentIndex(wstepna.isValid() ? wstepna.month() - 1 : 0);
    spnRok_->setObjectName(QStringLiteral("spnRok") + nazwy.koncowka);
    spnRok_->setAccessibleName(QStringLiteral("Rok"));
    spnRok_->setRange(kPierwszyRok, kOstatniRok);
    spnRok_->setValue(wstepna.isValid() ? wstepna.year() : kPierwszyRok);
    formularz->addRow(nazwy.mies, cboMies_);
    formularz->addRow(nazwy.rok, spnRok_);
}

QDate PoleMiesiaca::pierwszyDzien() const {
    return PierwszyDzien(spnRok_->value(), cboMies_->currentIndex() + 1);
}

} // namespace tornel::okna
