#include "personnel/frmWydrukKadr.h"
#include "okna/frmZakresMies.h"
#include "okna/PoleMiesiaca.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <QFormLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace tornel::personnel {

frmWydrukKadr::frmWydrukKadr(Rozmowa& rozmowa, const PozycjaWydrukow& wydruk, const ZlecenieWydruku& wstepne,
                             const QString& wybrany, qsizetype ilu, QWidget* rodzic)
    : Okno(QStringLiteral("frmWydrukKadr"), rodzic), rozmowa_(rozmowa), okres_(wydruk.okres),
      optWszyscy_(new QRadioButton(
          QStringLiteral("W&szyscy z listy zatrudnieni w tym czasie (na liście: %1)").arg(ilu))) {
    setWindowTitle(wydruk.napis);
    setMinimumWidth(64 * Wyglad::kSiatka);
    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka,
                              2 * Wyglad::kSiatka);
    uklad->setSpacing(2 * Wyglad::kSiatka);
    uklad->addWidget(polaOkresu(wstepne));
    auto* optWybrany = new QRadioButton(QStringLiteral("&Wybrany pracownik: ") +
                                        QString(wybrany).replace(QLatin1Char('&'), QLatin1String("&&")));
    optWybrany->setObjectName(QStringLiteral("optWybrany"));
    optWszyscy_->setObjectName(QStringLiteral("optWszyscy"));
    optWybrany->setEnabled(!wybrany.isEmpty());
    (wybrany.isEmpty() ? optWszyscy_ : optWybrany)->setChecked(true);
    auto* dlaKogo = new QGroupBox(QStringLiteral("Dla kogo"));
    auto* pionowo = new QVBoxLayout(dlaKogo);
    pionowo->addWidget(optWybrany);
    pionowo->addWidget(optWszyscy_);
    uklad->addWidget(dlaKogo);
    uklad->addStretch();
    uklad->addWidget(przyciskiOkAnuluj(*this, QStringLiteral("OK")));
}

QWidget* frmWydrukKadr::polaOkresu(const ZlecenieWydruku& wstepne) {
    if (okres_ == CzasWydruku::Miesiace) return zakres_ = new PolaZakresu(wstepne.od, wstepne.dokad);
    auto* ramka = new QGroupBox(QStringLiteral("Okres"));
    auto* pionowo = new QVBoxLayout(ramka);
    if (okres_ == CzasWydruku::Miesiac) {
        pionowo->addWidget(miesiac_ = new PoleMiesiaca(wstepne.dokad.pierwszyDzien()));
        return ramka;
    }
    spnRok_ = new QSpinBox;
    spnRok_->setObjectName(QStringLiteral("spnRok"));
    spnRok_->setRange(PoleMiesiaca::kPierwszyRok, PoleMiesiaca::kOstatniRok);
    spnRok_->setValue(wstepne.dokad.rok);
    auto* formularz = new QFormLayout;
    formularz->addRow(QStringLiteral("&Rok:"), spnRok_);
    pionowo->addLayout(formularz);
    return ramka;
}

RokMies frmWydrukKadr::od() const {
    if (zakres_) return zakres_->od();
    return miesiac_ ? RokMies::dnia(miesiac_->pierwszyDzien()) : RokMies{spnRok_->value(), 1};
}

RokMies frmWydrukKadr::dokad() const {
    if (zakres_) return zakres_->dokad();
    return miesiac_ ? od() : RokMies{spnRok_->value(), 12};
}

bool frmWydrukKadr::wszyscy() const { return optWszyscy_->isChecked(); }

void frmWydrukKadr::accept() {
    if (!zakres_ || zakres_->poprawny(rozmowa_)) Okno::accept();
}

} // namespace tornel::personnel
