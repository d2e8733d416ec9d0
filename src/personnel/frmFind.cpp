#include "personnel/frmFind.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <QLabel>
#include <QVBoxLayout>

namespace tornel::personnel {

frmFind::frmFind(std::function<bool(const QString& tekst)> szukaj, QWidget* rodzic)
    : Okno(QStringLiteral("frmFind"), rodzic), szukaj_(std::move(szukaj)), txtSzukany_(new PoleTekstu) {
    setWindowTitle(QStringLiteral("Szukanie pracownika"));
    setMinimumWidth(46 * Wyglad::kSiatka);
    txtSzukany_->setObjectName(QStringLiteral("txtSzukany"));
    auto* podpis = new QLabel(QStringLiteral("Numer lub nazwisko szukanej osoby:"));
    podpis->setBuddy(txtSzukany_);
    txtSzukany_->setAccessibleName(podpis->text());
    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka,
                              2 * Wyglad::kSiatka);
    uklad->addWidget(podpis);
    uklad->addWidget(txtSzukany_);
    uklad->addSpacing(Wyglad::kSiatka);
    uklad->addWidget(przyciskiOkAnuluj(*this, QStringLiteral("&Szukaj")));
    txtSzukany_->setFocus();
}

void frmFind::accept() {
    if (szukaj_(txtSzukany_->text())) return QDialog::accept();
    txtSzukany_->setFocus();
    ZaznaczTekst(*txtSzukany_);
}

} // namespace tornel::personnel
