#include "okna/frmZakresMies.h"
#include "common/Rozmowa.h"
#include "okna/PoleMiesiaca.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tornel::okna {

PolaZakresu::PolaZakresu(RokMies od, RokMies dokad, QWidget* rodzic)
    : QWidget(rodzic),
      od_(new PoleMiesiaca(od.pierwszyDzien(), nullptr,
                           {QStringLiteral("Od"), QStringLiteral("&Miesiąc:"), QStringLiteral("&Rok:")})),
      dokad_(new PoleMiesiaca(dokad.pierwszyDzien(), nullptr,
                              {QStringLiteral("Do"), QStringLiteral("M&iesiąc:"), QStringLiteral("R&ok:")})) {
    auto* obok = new QHBoxLayout(this);
    obok->setContentsMargins(0, 0, 0, 0);
    obok->setSpacing(2 * Wyglad::kSiatka);
    for (const auto& [tytul, pole] :
         {std::pair(QStringLiteral("Od"), od_), std::pair(QStringLiteral("Do"), dokad_)}) {
        auto* ramka = new QGroupBox(tytul);
        (new QVBoxLayout(ramka))->addWidget(pole);
        obok->addWidget(ramka, 1);
    }
}

RokMies PolaZakresu::od() const { return RokMies::dnia(od_->pierwszyDzien()); }
RokMies PolaZakresu::dokad() const { return RokMies::dnia(dokad_->pierwszyDzien()); }

bool PolaZakresu::poprawny(Rozmowa& rozmowa) const {
    if (od() <= dokad()) return true;
    rozmowa.komunikat(QStringLiteral("Zakres dat jest nieprawidłowy."), Styl::Wykrzyknik);
    return false;
}

frmZakresMies::frmZakresMies(Rozmowa& rozmowa, const QString& tytul, RokMies od, RokMies dokad,
                             QWidget* rodzic)
    : Okno(QStringLiteral("frmZakresMies"), rodzic), rozmowa_(rozmowa), zakres_(new PolaZakresu(od, dokad)) {
    setWindowTitle(tytul);
    setMinimumWidth(60 * Wyglad::kSiatka);
    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka,
                              2 * Wyglad::kSiatka);
    uklad->setSpacing(2 * Wyglad::kSiatka);
    uklad->addWidget(zakres_);
    uklad->addStretch();
    uklad->addWidget(przyciskiOkAnuluj(*this, QStringLiteral("OK")));
}

void frmZakresMies::accept() {
    if (zakres_->poprawny(rozmowa_)) Okno::accept();
}

} // namespace tornel::okna
