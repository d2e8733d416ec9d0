#include "bank/frmWybKonta.h"
#include "common/Rozmowa.h"
#include "okna/PamiecOkien.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::bank {

frmWybKonta::frmWybKonta(Otoczenie& otoczenie, QWidget* rodzic,
                         const std::optional<PytanieOPrzelewy>& przelewy)
    : Okno(QStringLiteral("frmWybKonta"), rodzic), o_(otoczenie), konta_(KontaNadawcy(otoczenie)),
      lstLista_(new WidokListy({{QStringLiteral("NR"), Qt::AlignRight},
                                {QStringLiteral("SKRÓT KONTA")},
                                {QStringLiteral("NAZWA BANKU")},
                                {QStringLiteral("NUMER KONTA")}},
                               {8, 24, 34, 34})) {
    setWindowTitle(QStringLiteral("Wybór konta bankowego"));
    lstLista_->setObjectName(QStringLiteral("lstLista"));
    lstLista_->setAccessibleName(QStringLiteral("Konta bankowe"));
    QList<WierszListy> wiersze;
    for (const KontoNadawcy& k : konta_)
        wiersze.append({k.nr, {QString::number(k.nr), k.skrot, k.bank, k.konto}});
    lstLista_->ustaw(wiersze);
    connect(lstLista_, &WidokListy::wejscie, this, &QDialog::accept);

    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(lstLista_, 1);
    if (przelewy) dodajPrzelewy(*uklad, *przelewy);
    auto* cmdWybierz = przycisk(QStringLiteral("cmdWybierz"), QStringLiteral("&Wybierz"));
    auto* cmdAnuluj = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Anuluj"));
    connect(cmdWybierz, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);
    uklad->addWidget(rzadPrzyciskow({cmdWybierz, cmdAnuluj, przyciskPomocy()}));
    cmdWybierz->setDefault(true);
    lstLista_->setFocus();
    resize(86 * Wyglad::kSiatka, (przelewy ? 52 : 44) * Wyglad::kSiatka);
}

void frmWybKonta::dodajPrzelewy(QVBoxLayout& uklad, const PytanieOPrzelewy& przelewy) {
    cboUklad_ = new QComboBox;
    cboUklad_->setObjectName(QStringLiteral("cboUklad"));
    for (const OpisUkladuPrzelewu& u : UkladyPrzelewu)
        cboUklad_->addItem(u.opis.toString(), u.nazwa.toString());
    pamiecOkien::pamietajWybor(*cboUklad_);
    auto* labIle = new QLabel(przelewy.ile);
    labIle->setObjectName(QStringLiteral("labIle"));
    auto* pola = new QFormLayout;
    pola->addRow(QStringLiteral("Do wydrukowania:"), labIle);
    if (!przelewy.wykonane.isEmpty()) {
        auto* labWykonane = new QLabel(przelewy.wykonane);
        labWykonane->setObjectName(QStringLiteral("labWykonane"));
        labWykonane->setWordWrap(true);
        QFont pismo = labWykonane->font();
        pismo.setBold(true);
        labWykonane->setFont(pismo);
        pola->addRow(QStringLiteral("Uwaga:"), labWykonane);
    }
    if (przelewy.czesc) {
        chkPomin_ = new QCheckBox(QStringLiteral("&Pomiń już wykonane"));
        chkPomin_->setObjectName(QStringLiteral("chkPomin"));
        pola->addRow(QString(), chkPomin_);
    }
    pola->addRow(QStringLiteral("&Formularz:"), cboUklad_);
    uklad.addLayout(pola);
}

int frmWybKonta::exec() {
    if (!konta_.isEmpty()) return QDialog::exec();
    o_.rozmowa.komunikat(QStringLiteral("Brak zdefiniowanych kont bankowych"), Styl::Informacja);
    return Rejected;
}

std::optional<KontoNadawcy> frmWybKonta::konto() const {
    const auto wybrane = std::ranges::find(konta_, lstLista_->wybrany(), &KontoNadawcy::nr);
    return wybrane == konta_.end() ? std::nullopt : std::optional(*wybrane);
}

UkladPrzelewu frmWybKonta::uklad() const {
    const QString nazwa = cboUklad_ ? cboUklad_->currentData().toString() : QString();
    const auto wybrany = std::ranges::find(UkladyPrzelewu, nazwa, &OpisUkladuPrzelewu::nazwa);
    return wybrany == UkladyPrzelewu.end() ? UkladPrzelewu::Przelew : wybrany->uklad;
}

bool frmWybKonta::pominWykonane() const { return chkPomin_ && chkPomin_->isChecked(); }

std::optional<KontoNadawcy> frmWybKonta::wybierz(Otoczenie& otoczenie, QWidget* rodzic) {
    frmWybKonta okno(otoczenie, rodzic);
    return okno.exec() == Accepted ? okno.konto() : std::nullopt;
}

} // namespace tornel::bank
