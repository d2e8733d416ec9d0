#include "personnel/frmNowyPrc.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include "store/Schemat.h"
#include <QFormLayout>
#include <QPushButton>

using schemat::PRACDP;

frmNowyPrc::frmNowyPrc(Otoczenie& otoczenie, QWidget* rodzic) : QDialog(rodzic), o_(otoczenie) {
    setObjectName(QStringLiteral("frmNowyPrc"));
    setWindowTitle(QStringLiteral("Rejestracja nowego pracownika"));
    setMinimumWidth(48 * Wyglad::kSiatka);
    const QString najwyzszy = QString::number(kNajwyzszyNumer);
    auto* pola = new QFormLayout;
    txtNR_ = dodaj(*pola, QStringLiteral("txtNR"), QStringLiteral("NR"), static_cast<int>(najwyzszy.size()));
    txtNazwisko_ =
        dodaj(*pola, QStringLiteral("txtNazwisko"), QStringLiteral("NAZWISKO"), PRACDP("Naz").def().rozmiar);
    txtImie_ =
        dodaj(*pola, QStringLiteral("txtImie"), QStringLiteral("IMIĘ"), PRACDP("Imie_1").def().rozmiar);
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
    uklad->addLayout(pola);
    uklad->addWidget(rzadPrzyciskow({cmdDalej, cmdAnuluj}));
    cmdDalej->setDefault(true);
}

PoleTekstu* frmNowyPrc::dodaj(QFormLayout& uklad, const QString& nazwa, const QString& podpis, int rozmiar) {
    auto* pole = new PoleTekstu;
    pole->setObjectName(nazwa);
    pole->setAccessibleName(podpis);
    pole->setMaxLength(rozmiar);
    uklad.addRow(podpis, pole);
    return pole;
}

DaneNowegoPracownika frmNowyPrc::dane() const {
    return {LiczbaAlboZero(txtNR_->text(), 1, kNajwyzszyNumer), txtNazwisko_->text().trimmed(),
            txtImie_->text().trimmed()};
}

void frmNowyPrc::odrzuc(const QString& komunikat, PoleTekstu& pole) {
    o_.rozmowa.komunikat(komunikat, Styl::Wykrzyknik);
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
