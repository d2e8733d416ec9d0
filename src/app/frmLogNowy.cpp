#include "app/frmLogNowy.h"
#include "app/ListaUzytkownikow.h"
#include "okna/LinieDialogu.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <QVBoxLayout>

namespace tornel::app {

frmLogNowy::frmLogNowy(ListaUzytkownikow& lista, QWidget* rodzic)
    : Okno(QStringLiteral("frmLogNowy"), rodzic), lista_(lista) {
    setWindowTitle(QStringLiteral("Nowy użytkownik"));
    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka,
                              2 * Wyglad::kSiatka);
    uklad->setSpacing(2 * Wyglad::kSiatka);
    auto* linie = new LinieDialogu;
    constexpr int dlugosc = ListaUzytkownikow::kDlugosc;
    txtNazwa_ = linie->dodaj(QStringLiteral("txtNazwa"), QStringLiteral("Nazwa użytkonika"), dlugosc,
                             Pisownia::Jawna);
    txtHaslo_ = linie->dodaj(QStringLiteral("txtHaslo"), QStringLiteral("Hasło użytkownika"), dlugosc,
                             Pisownia::Ukryta);
    txtPowtorzenie_ = linie->dodaj(QStringLiteral("txtPowtorzenie"), QStringLiteral("Powtórzenie hasła"),
                                   dlugosc, Pisownia::Ukryta);
    uklad->addWidget(linie);
    uklad->addWidget(przyciskiOkAnuluj(*this, QStringLiteral("&Utworz")));
    uklad->setSizeConstraint(QLayout::SetFixedSize);
    txtNazwa_->setFocus();
}

QString frmLogNowy::nazwa() const { return txtNazwa_->text().trimmed(); }

void frmLogNowy::accept() {
    if (lista_.Nowy(txtNazwa_->text(), txtHaslo_->text(), txtPowtorzenie_->text())) return QDialog::accept();
    const bool rozne = txtHaslo_->text().trimmed() != txtPowtorzenie_->text().trimmed();
    (rozne ? txtHaslo_ : txtNazwa_)->setFocus(Qt::TabFocusReason);
}

} // namespace tornel::app
