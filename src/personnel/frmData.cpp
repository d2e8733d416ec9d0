#include "personnel/frmData.h"
#include "common/Daty.h"
#include "okna/Pole.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/UwagaPola.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace tornel::personnel {

frmData::frmData(const QString& kto, std::span<const QStringView> rodzaje, QWidget* rodzic)
    : Okno(QStringLiteral("frmData"), rodzic), dtOd_(new PoleDaty), dtDo_(new PoleDaty),
      cboRodzaj_(new QComboBox) {
    setWindowTitle(QStringLiteral("Data"));
    setMinimumWidth(40 * Wyglad::kSiatka);
    dtOd_->setObjectName(QStringLiteral("dtOd"));
    dtOd_->setAccessibleName(QStringLiteral("Od"));
    dtDo_->setObjectName(QStringLiteral("dtDo"));
    dtDo_->setAccessibleName(QStringLiteral("Do"));
    cboRodzaj_->setObjectName(QStringLiteral("cboRodzaj"));
    cboRodzaj_->setAccessibleName(QStringLiteral("Rodzaj"));
    for (const QStringView nazwa : rodzaje) cboRodzaj_->addItem(nazwa.toString());
    for (PoleDaty* pole : {dtOd_, dtDo_}) pole->setText(FormatDaty(QDate::currentDate()));

    auto* osoba = new QLabel(kto);
    osoba->setObjectName(QStringLiteral("labKto"));
    osoba->setTextFormat(Qt::PlainText);
    QFont pismo = osoba->font();
    pismo.setBold(true);
    osoba->setFont(pismo);
    auto* pola = new QFormLayout;
    pola->addRow(QStringLiteral("&Od:"), dtOd_);
    pola->addRow(QStringLiteral("&Do:"), dtDo_);
    pola->addRow(QStringLiteral("&Rodzaj:"), cboRodzaj_);
    // An absence of one kind only has nothing to choose.
    for (QWidget* w : {pola->labelForField(cboRodzaj_), static_cast<QWidget*>(cboRodzaj_)})
        w->setVisible(!rodzaje.empty());

    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka,
                              2 * Wyglad::kSiatka);
    uklad->setSpacing(2 * Wyglad::kSiatka);
    uklad->addWidget(osoba);
    uklad->addLayout(pola);
    uklad->addStretch();
    uklad->addWidget(przyciskiOkAnuluj(*this, QStringLiteral("OK")));
    dtOd_->setFocus();

    // A single day until the clerk says otherwise.
    connect(dtOd_, &QLineEdit::textEdited, this, [this] {
        if (!koniecWpisany_ && zakres().od.isValid()) dtDo_->setText(dtOd_->text());
        if (zakres().poprawny()) UwagaPola::ustaw(*dtDo_, {});
    });
    connect(dtDo_, &QLineEdit::textEdited, this, &frmData::sprawdzKoniec);
}

void frmData::ustawZakres(const ZakresDat& zakres) {
    dtOd_->setText(FormatDaty(zakres.od));
    dtDo_->setText(FormatDaty(zakres.dokad));
    koniecWpisany_ = true; // the end is a proposal of its own, not the start repeated
}

ZakresDat frmData::zakres() const {
    const auto dzien = [](const PoleDaty& pole) { return CzytajWpisanaDate(pole.text()).value_or(QDate()); };
    return {dzien(*dtOd_), dzien(*dtDo_)};
}

int frmData::rodzaj() const { return std::max(0, cboRodzaj_->currentIndex()); }

void frmData::sprawdzKoniec() {
    koniecWpisany_ = true;
    const ZakresDat z = zakres();
    const bool dobry = !z.od.isValid() || !z.dokad.isValid() || z.poprawny();
    UwagaPola::ustaw(*dtDo_,
                     dobry ? QString()
                           : QStringLiteral("Data końcowa musi być większa lub równa od  daty początkowej."));
}

void frmData::accept() {
    const ZakresDat z = zakres();
    for (const auto& [pole, dzien] : {std::pair{dtOd_, z.od}, {dtDo_, z.dokad}}) {
        if (dzien.isValid()) {
            UwagaPola::ustaw(*pole, {});
            continue;
        }
        // As on leaving any date field: what is no date is taken away, and the dialog waits for one.
        UwagaPola::ustaw(
            *pole,
            nieZrozumiano({.nazwa = {}, .podpis = {}, .kolumna = {}, .rodzaj = Rodzaj::Data}, pole->text()));
        pole->clear();
        pole->setFocus();
        return;
    }
    if (z.poprawny()) return QDialog::accept();
    UwagaPola::ustaw(*dtDo_, odmowaZakresu());
    dtDo_->setFocus();
    ZaznaczDate(*dtDo_);
}

} // namespace tornel::personnel
