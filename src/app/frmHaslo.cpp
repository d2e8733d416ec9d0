#include "app/frmHaslo.h"
#include "app/ListaUzytkownikow.h"
#include "common/Rozmowa.h"
#include "okna/LinieDialogu.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include "start/Uzytkownicy.h"
#include <QVBoxLayout>

namespace tornel::app {

frmHaslo::frmHaslo(Otoczenie& otoczenie, QWidget* rodzic)
    : Okno(QStringLiteral("frmHaslo"), rodzic), o_(otoczenie) {
    setWindowTitle(QStringLiteral("Hasło"));
    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka,
                              2 * Wyglad::kSiatka);
    uklad->setSpacing(2 * Wyglad::kSiatka);
    auto* linie = new LinieDialogu;
    const auto dodaj = [&](const QString& nazwa, const QString& podpis) {
        return linie->dodaj(nazwa, podpis, ListaUzytkownikow::kDlugosc, Pisownia::Ukryta);
    };
    txtHaslo1_ = dodaj(QStringLiteral("txtHaslo1"), QStringLiteral("Stare hasło"));
    txtHaslo2_ = dodaj(QStringLiteral("txtHaslo2"), QStringLiteral("Nowe hasło"));
    txtHaslo3_ = dodaj(QStringLiteral("txtHaslo3"), QStringLiteral("Potwierdź hasło"));
    uklad->addWidget(linie);
    uklad->addWidget(przyciskiOkAnuluj(*this, QStringLiteral("&OK")));
    uklad->setSizeConstraint(QLayout::SetFixedSize);
    txtHaslo1_->setFocus();
}

void frmHaslo::accept() {
    switch (SprHaslo(o_, txtHaslo1_->text(), txtHaslo2_->text(), txtHaslo3_->text())) {
    case ZmianaHasla::Zmienione:
        return QDialog::accept();
    case ZmianaHasla::BrakUzytkownika:
        return QDialog::reject(); // the message has said that nothing was changed
    case ZmianaHasla::ZleStare:
        return txtHaslo1_->setFocus(Qt::TabFocusReason);
    case ZmianaHasla::RozneNowe:
        return txtHaslo2_->setFocus(Qt::TabFocusReason);
    }
}

void frmHaslo::reject() {
    QDialog::reject();
    o_.rozmowa.komunikat(QStringLiteral("Hasło nie zostało zmienione"), Styl::Informacja,
                         QStringLiteral("Hasło"));
}

} // namespace tornel::app
