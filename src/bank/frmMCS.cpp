#include "bank/frmMCS.h"
#include "bank/frmWybKonta.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/UwagaPola.h"
#include "okna/Wyglad.h"
#include "rules/Stale.h"
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::bank {

namespace {

constexpr int kNajdluzszeSzczegoly = 140; // four pieces of 35 characters
constexpr int kNajwiekszaPaczka = 32767;

QString pytajOFolder(QWidget* rodzic, const QString& wstepny) {
    return QFileDialog::getExistingDirectory(rodzic, QStringLiteral("Wybór katalogu"), wstepny);
}

QLineEdit* tylkoOdczyt(const QString& nazwa, const QString& opis) {
    auto* pole = new QLineEdit;
    pole->setObjectName(nazwa);
    pole->setAccessibleName(opis);
    pole->setReadOnly(true);
    pole->setFocusPolicy(Qt::NoFocus);
    return pole;
}

QPushButton* obok(const QString& nazwa, const QString& napis) {
    auto* nowy = przycisk(nazwa, napis);
    nowy->setAutoDefault(false);
    return nowy;
}

template <typename T>
T* nazwane(T* pole, const QString& nazwa, const QString& opis) {
    pole->setObjectName(nazwa);
    pole->setAccessibleName(opis);
    return pole;
}

} // namespace

frmMCS::frmMCS(Otoczenie& otoczenie, ZrodloPrzelewow zrodlo, QWidget* rodzic, WybierzFolder folder)
    : Okno(QStringLiteral("frmMCS"), rodzic), o_(otoczenie), zrodlo_(std::move(zrodlo)),
      wybierzFolder_(folder ? std::move(folder) : pytajOFolder), txtNrP_(new PoleTekstu),
      txtKatalog_(new PoleTekstu), txtSzczegoly_(new PoleTekstu), dtpWyst_(new PoleDaty),
      dtpPlatn_(new PoleDaty),
      txtSkrot_(tylkoOdczyt(QStringLiteral("txtSkrot"), QStringLiteral("Skrót konta"))),
      txtNazwaBanku_(tylkoOdczyt(QStringLiteral("txtNazwaBanku"), QStringLiteral("Nazwa banku"))),
      labZlecenia_(new QLabel), labWykonane_(new QLabel) {
    setWindowTitle(QStringLiteral("Przelew do MultiCash"));
    setMinimumWidth(76 * Wyglad::kSiatka);
    auto* uklad = new QVBoxLayout(this);
    uklad->setSpacing(2 * Wyglad::kSiatka);
    for (QWidget* czesc : {paczka(), katalog(), szczegoly(), bank()}) uklad->addWidget(czesc);
    uklad->addStretch(1);
    auto* cmdUtworz = przycisk(QStringLiteral("cmdUtworz"), QStringLiteral("&Utwórz plik"));
    auto* cmdAnuluj = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Anuluj"));
    uklad->addWidget(rzadPrzyciskow({cmdUtworz, cmdAnuluj, przyciskPomocy()}));
    cmdUtworz->setDefault(true);
    connect(cmdUtworz, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdAnuluj, &QPushButton::clicked, this, &QDialog::reject);

    txtNrP_->setText(QString::number(MultiCash(o_).pierwszaPaczka(zrodlo_)));
    for (PoleDaty* pole : {dtpWyst_, dtpPlatn_}) pole->setText(FormatDaty(QDate::currentDate()));
    const QString& stalyKatalog = o_.stale.MCSPath;
    txtKatalog_->setText(QDir::toNativeSeparators(
        stalyKatalog.isEmpty() ? QCoreApplication::applicationDirPath() : stalyKatalog));
    if (const QList<KontoNadawcy> konta = KontaNadawcy(o_); !konta.isEmpty()) pokazKonto(konta.first());
    pokazPaczke();
    for (QLineEdit* pole : {static_cast<QLineEdit*>(txtNrP_), static_cast<QLineEdit*>(dtpPlatn_)})
        connect(pole, &QLineEdit::textChanged, this, &frmMCS::pokazPaczke);
    txtNrP_->setFocus();
}

QWidget* frmMCS::paczka() {
    auto* grupa = new QGroupBox(QStringLiteral("PACZKA"));
    auto* pola = new QFormLayout(grupa);
    pola->addRow(QStringLiteral("Numer paczki do wysłania:"),
                 nazwane(txtNrP_, QStringLiteral("txtNrP"), QStringLiteral("Numer paczki do wysłania")));
    pola->addRow(QStringLiteral("Data wystawienia przelewu:"),
                 nazwane(dtpWyst_, QStringLiteral("dtpWyst"), QStringLiteral("Data wystawienia przelewu")));
    pola->addRow(QStringLiteral("Data płatności:"),
                 nazwane(dtpPlatn_, QStringLiteral("dtpPlatn"), QStringLiteral("Data płatności")));
    for (QLineEdit* pole : {static_cast<QLineEdit*>(txtNrP_), static_cast<QLineEdit*>(dtpWyst_),
                            static_cast<QLineEdit*>(dtpPlatn_)})
        pole->setMaximumWidth(16 * Wyglad::kSiatka);
    labZlecenia_->setObjectName(QStringLiteral("labZlecenia"));
    labWykonane_->setObjectName(QStringLiteral("labWykonane"));
    QFont pismo = labWykonane_->font();
    pismo.setBold(true);
    labWykonane_->setFont(pismo);
    pola->addRow(QStringLiteral("Do zapisania:"), labZlecenia_);
    pola->addRow(QString(), labWykonane_);
    return grupa;
}

QWidget* frmMCS::katalog() {
    auto* grupa = new QGroupBox(QStringLiteral("KATALOG DOCELOWY:"));
    auto* rzad = new QHBoxLayout(grupa);
    auto* cmdKatalog = obok(QStringLiteral("cmdKatalog"), QStringLiteral("&Zmień"));
    rzad->addWidget(nazwane(txtKatalog_, QStringLiteral("txtKatalog"), QStringLiteral("Katalog docelowy")));
    rzad->addWidget(cmdKatalog);
    connect(cmdKatalog, &QPushButton::clicked, this, [this] {
        const QString wybrany = wybierzFolder_(this, txtKatalog_->text());
        if (!wybrany.isEmpty()) txtKatalog_->setText(QDir::toNativeSeparators(wybrany));
    });
    return grupa;
}

QWidget* frmMCS::szczegoly() {
    auto* grupa = new QGroupBox(QStringLiteral("SZCZEGÓŁY PŁATNOŚCI:"));
    auto* rzad = new QHBoxLayout(grupa);
    txtSzczegoly_->setMaxLength(kNajdluzszeSzczegoly);
    rzad->addWidget(
        nazwane(txtSzczegoly_, QStringLiteral("txtSzczegoly"), QStringLiteral("Szczegóły płatności")));
    return grupa;
}

QWidget* frmMCS::bank() {
    auto* grupa = new QGroupBox(QStringLiteral("BANK ZLECENIODAWCY:"));
    auto* rzad = new QHBoxLayout(grupa);
    auto* cmdBank = obok(QStringLiteral("cmdBank"), QStringLiteral("&Wybierz"));
    rzad->addWidget(txtSkrot_, 2);
    rzad->addWidget(txtNazwaBanku_, 3);
    rzad->addWidget(cmdBank);
    connect(cmdBank, &QPushButton::clicked, this, [this] {
        if (const auto wybrane = frmWybKonta::wybierz(o_, this)) pokazKonto(*wybrane);
    });
    return grupa;
}

void frmMCS::pokazKonto(const KontoNadawcy& konto) {
    konto_ = konto.konto;
    txtSkrot_->setText(konto.skrot);
    txtNazwaBanku_->setText(konto.bank);
    for (QLineEdit* pole : {txtSkrot_, txtNazwaBanku_}) pole->setCursorPosition(0);
    UwagaPola::ustaw(*txtSkrot_, {});
}

std::optional<int> frmMCS::numerPaczki() const {
    bool liczba = false;
    const int numer = txtNrP_->text().trimmed().toInt(&liczba);
    return liczba && numer >= 0 && numer <= kNajwiekszaPaczka ? std::optional(numer) : std::nullopt;
}

void frmMCS::pokazPaczke() {
    const auto numer = numerPaczki();
    const auto platnosc = CzytajWpisanaDate(dtpPlatn_->text());
    labZlecenia_->clear();
    labWykonane_->clear();
    labWykonane_->hide();
    if (!numer || !platnosc) return;
    const PodsumowanieMCS p = MultiCash(o_).podsumuj(zrodlo_, *numer, *platnosc);
    labZlecenia_->setText(
        p.zlecen == 0 ? QStringLiteral("brak zleceń w tej paczce")
                      : QStringLiteral("zlecenia: %1, razem %2 zł").arg(p.zlecen).arg(FormatKwoty(p.kwota)));
    labWykonane_->setText(MultiCash(o_).zapisano(zrodlo_, *numer, *platnosc));
    labWykonane_->setVisible(!labWykonane_->text().isEmpty());
}

PrzebiegMCS frmMCS::przebieg() const {
    return {CzytajWpisanaDate(dtpWyst_->text()).value_or(QDate()),
            CzytajWpisanaDate(dtpPlatn_->text()).value_or(QDate()),
            numerPaczki().value_or(0),
            QDir::fromNativeSeparators(txtKatalog_->text().trimmed()),
            konto_,
            txtSzczegoly_->text(),
            QDateTime::currentDateTime()};
}

QWidget* frmMCS::poleDoPoprawy() {
    const PrzebiegMCS p = przebieg();
    const struct {
        QLineEdit* pole;
        bool dobrze;
        QString zdanie;
    } wymagania[] = {
        {txtNrP_, numerPaczki().has_value(), QStringLiteral("Numer paczki to liczba od 0 do 32767.")},
        {dtpWyst_, p.wystawienie.isValid(), QStringLiteral("Wpisz datę dd-mm-rrrr.")},
        {dtpPlatn_, p.platnosc.isValid(), QStringLiteral("Wpisz datę dd-mm-rrrr.")},
        {txtKatalog_, !p.katalog.isEmpty() && QDir(p.katalog).exists(),
         QStringLiteral("Nie ma takiego katalogu.")},
        {txtSkrot_, !konto_.isEmpty(), QStringLiteral("Wybierz konto, z którego wychodzą przelewy.")},
    };
    QWidget* pierwsze = nullptr;
    for (const auto& w : wymagania) {
        UwagaPola::ustaw(*w.pole, w.dobrze ? QString() : w.zdanie);
        if (!w.dobrze && !pierwsze) pierwsze = w.pole;
    }
    return pierwsze;
}

void frmMCS::accept() {
    QWidget* pole = poleDoPoprawy();
    if (!pole) return QDialog::accept();
    if (pole == txtSkrot_) pole = findChild<QPushButton*>(QStringLiteral("cmdBank"));
    pole->setFocus(Qt::OtherFocusReason);
}

} // namespace tornel::bank
