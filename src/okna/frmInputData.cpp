#include "okna/frmInputData.h"
#include "common/Daty.h"
#include "okna/Pole.h"
#include "okna/PoleMiesiaca.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/UwagaPola.h"
#include "okna/Wyglad.h"
#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::okna {

frmInputData::frmInputData(Tryb tryb, const QString& tytul, QDate wstepna, QWidget* rodzic)
    : Okno(QStringLiteral("frmInputData"), rodzic), tryb_(tryb) {
    setWindowTitle(tytul);
    setMinimumWidth(40 * Wyglad::kSiatka);
    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka,
                              2 * Wyglad::kSiatka);
    uklad->setSpacing(2 * Wyglad::kSiatka);
    if (tryb == Tryb::Miesiac)
        uklad->addWidget(miesiac_ = new PoleMiesiaca(wstepna));
    else
        uklad->addWidget(polaDaty(wstepna));
    uklad->addStretch();
    uklad->addWidget(przyciskiOkAnuluj(*this, QStringLiteral("OK")));
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
    if (tryb_ == Tryb::Miesiac) return miesiac_->pierwszyDzien();
    return CzytajWpisanaDate(dtData_->text()).value_or(QDate());
}

void frmInputData::accept() {
    if (!data().isValid()) {
        // As on leaving any date field: what is no date is taken away, and the dialog waits for one.
        UwagaPola::ustaw(*dtData_,
                         nieZrozumiano({.nazwa = {}, .podpis = {}, .kolumna = {}, .rodzaj = Rodzaj::Data},
                                       dtData_->text()));
        dtData_->clear();
        dtData_->setFocus();
        return;
    }
    QDialog::accept();
}

} // namespace tornel::okna
