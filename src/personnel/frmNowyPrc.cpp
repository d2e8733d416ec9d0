#include "personnel/frmNowyPrc.h"
#include "common/Liczby.h"
#include "okna/LinieDialogu.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/UwagaPola.h"
#include "okna/Wyglad.h"
#include "store/SchematKadr.h"
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::personnel {

using schemat::PRACDP;

frmNowyPrc::frmNowyPrc(Otoczenie& otoczenie, QWidget* rodzic)
    : Okno(QStringLiteral("frmNowyPrc"), rodzic), o_(otoczenie) {
    setWindowTitle(QStringLiteral("Rejestracja nowego pracownika"));
    auto* linie = new LinieDialogu;
    const auto dodaj = [&](const QString& nazwa, const QString& podpis, int dlugosc) {
        return linie->dodaj(nazwa, podpis, dlugosc, Pisownia::Jawna);
    };
    const auto cyfr = static_cast<int>(QString::number(kNajwyzszyNumer).size());
    txtNR_ = dodaj(QStringLiteral("txtNR"), QStringLiteral("NR"), cyfr);
    txtNazwisko_ =
        dodaj(QStringLiteral("txtNazwisko"), QStringLiteral("NAZWISKO"), PRACDP("Naz").def().rozmiar);
    txtImie_ = dodaj(QStringLiteral("txtImie"), QStringLiteral("IMIĘ"), PRACDP("Imie_1").def().rozmiar);
    if (const qint64 nr = Pracownicy(o_).proponowanyNumer(); nr <= kNajwyzszyNumer)
        txtNR_->setText(QString::number(nr));

    QPushButton* cmdDalej = przycisk(QStringLiteral("cmdDalej"), QStringLiteral("&Dalej"));
    QPushButton* cmdAnuluj = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Anuluj"));
    connect(cmdDalej, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka, 2 * Wyglad::kSiatka,
                              2 * Wyglad::kSiatka);
    uklad->setSpacing(2 * Wyglad::kSiatka);
    uklad->addWidget(linie);
    uklad->addWidget(rzadPrzyciskow({cmdDalej, cmdAnuluj}));
    uklad->setSizeConstraint(QLayout::SetFixedSize);
    cmdDalej->setDefault(true);
    txtNR_->setFocus();
}

DaneNowegoPracownika frmNowyPrc::dane() const {
    return {LiczbaAlboZero(txtNR_->text(), 1, kNajwyzszyNumer), txtNazwisko_->text().trimmed(),
            txtImie_->text().trimmed()};
}

void frmNowyPrc::odrzuc(const QString& komunikat, PoleTekstu& pole) {
    for (PoleTekstu* inne : {txtNR_, txtNazwisko_}) UwagaPola::ustaw(*inne, {});
    UwagaPola::ustaw(pole, komunikat);
    pole.setFocus();
}

void frmNowyPrc::accept() {
    const DaneNowegoPracownika d = dane();
    if (d.nazwisko.isEmpty())
        return odrzuc(QStringLiteral("Musisz podać nazwisko pracownika!"), *txtNazwisko_);
    if (d.prcId == 0)
        return odrzuc(QStringLiteral("Numer pracownika musi być liczbą od 1 do %1.").arg(kNajwyzszyNumer),
                      *txtNR_);
    QDialog::accept();
}

} // namespace tornel::personnel
