#include "payroll/nieobecnosci/frmWykazy.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/UwagaPola.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::payroll {

namespace {

constexpr int kMargines = 2 * Wyglad::kSiatka;

PoleTekstu* pole(const QString& nazwa, const QString& tekst) {
    auto* pole = new PoleTekstu(tekst);
    pole->setObjectName(nazwa);
    pole->setAlignment(Qt::AlignRight);
    return pole;
}

QPushButton* domyslny(const QString& nazwa, const QString& napis) {
    QPushButton* p = przycisk(nazwa, napis);
    p->setDefault(true);
    return p;
}

QLabel* podpowiedz(const QString& tekst) {
    auto* napis = new QLabel(tekst);
    napis->setWordWrap(true);
    napis->setProperty("podpowiedz", true);
    return napis;
}

enum class Kwoty { Brutto, BruttoINetto };

QList<WierszListy> wiersze(const QList<LiniaWykazu>& miesiace, Kwoty kwoty) {
    QList<WierszListy> wynik;
    for (const LiniaWykazu& m : miesiace) {
        QStringList teksty{m.miesiac, FormatKwoty(m.kwota)};
        if (kwoty == Kwoty::BruttoINetto) teksty.append(FormatKwoty(m.netto));
        wynik.append({wynik.size(), teksty});
    }
    return wynik;
}

} // namespace

frmWykaz::frmWykaz(const QString& nazwa, const QString& tytul, WidokListy* lista, QWidget* rodzic)
    : Okno(nazwa, rodzic), uklad_(new QVBoxLayout(this)), lvwMiesiace_(lista) {
    setWindowTitle(tytul);
    setMinimumSize(58 * Wyglad::kSiatka, 44 * Wyglad::kSiatka);
    uklad_->setContentsMargins(kMargines, kMargines, kMargines, kMargines);
    uklad_->setSpacing(Wyglad::kSiatka);
    lista->setObjectName(QStringLiteral("lvwMiesiace"));
    lista->setAccessibleName(tytul);
    lista->ustawPodpowiedz(QStringLiteral("Liczba miesięcy średniej w stałych programu jest równa 0."));
    uklad_->addWidget(lista, 1);
}

PoleTekstu* frmWykaz::poleSredniej(const QString& nazwa, const QString& podpis, Waluta srednia) {
    PoleTekstu* sredniej = pole(nazwa, FormatKwoty(srednia));
    sredniej->setFixedWidth(sredniej->fontMetrics().averageCharWidth() * 2 * Wyglad::kZnakiKwoty);
    auto* formularz = new QFormLayout;
    formularz->addRow(podpis, sredniej);
    uklad_->addLayout(formularz);
    QPushButton* cmdDalej = domyslny(QStringLiteral("cmdDalej"), QStringLiteral("&Dalej"));
    connect(cmdDalej, &QPushButton::clicked, this, &QDialog::accept);
    uklad_->addWidget(rzadPrzyciskow({cmdDalej}));
    sredniej->setFocus();
    sredniej_ = sredniej;
    return sredniej;
}

void frmWykaz::accept() {
    const QString tekst = sredniej_->text().trimmed();
    const QString zdanie = QStringLiteral("„%1” nie jest kwotą. „Dalej” przyjmie 0,00.").arg(tekst);
    const bool kwota = tekst.isEmpty() || CzytajKwote(tekst);
    if (kwota || UwagaPola::zdanie(*sredniej_) == zdanie) return QDialog::accept();
    UwagaPola::ustaw(*sredniej_, zdanie);
    sredniej_->setFocus();
}

frmWykazPodstawL4::frmWykazPodstawL4(const QList<LiniaWykazu>& miesiace, Waluta sredniaBrutto,
                                     QWidget* rodzic)
    : frmWykaz(QStringLiteral("frmWykazPodstawL4"), QStringLiteral("Wykaz miesięcznych podstaw do L-4"),
               new WidokListy({{QStringLiteral("MIESIĄC")},
                               {QStringLiteral("KWOTA"), Qt::AlignRight},
                               {QStringLiteral("PO SKŁADKACH"), Qt::AlignRight}},
                              {44, 28, 28}),
               rodzic) {
    lvwMiesiace_->ustaw(wiersze(miesiace, Kwoty::BruttoINetto));
    uklad_->addWidget(podpowiedz(QStringLiteral("Stawkę za dzień daje średnia po składkach. Zmieniona "
                                                "średnia brutto jest pomniejszana o składki pracownika.")));
    txtBruttoSr_ =
        poleSredniej(QStringLiteral("txtBruttoSr"), QStringLiteral("Średnia brutto wynosi:"), sredniaBrutto);
}

std::optional<Waluta> frmWykazPodstawL4::srednia() const { return CzytajKwote(txtBruttoSr_->text()); }

frmWykazPodstaw::frmWykazPodstaw(const QList<LiniaWykazu>& miesiace, qint64 dni, Waluta stawkaDzienna,
                                 QWidget* rodzic)
    : frmWykaz(
          QStringLiteral("frmWykazPodstaw"), QStringLiteral("Wykaz miesięcznych podstaw do urlopu"),
          new WidokListy({{QStringLiteral("MIESIĄC")}, {QStringLiteral("KWOTA"), Qt::AlignRight}}, {60, 40}),
          rodzic) {
    lvwMiesiace_->ustaw(wiersze(miesiace, Kwoty::Brutto));
    auto* labDni = new QLabel(QStringLiteral("Dni przepracowane w tych miesiącach: %1").arg(dni));
    labDni->setObjectName(QStringLiteral("labDni"));
    uklad_->addWidget(labDni);
    txtDniowka_ =
        poleSredniej(QStringLiteral("txtDniowka"), QStringLiteral("Średnia dniówka wynosi:"), stawkaDzienna);
}

std::optional<Waluta> frmWykazPodstaw::dniowka() const { return CzytajKwote(txtDniowka_->text()); }

frmNrSkladnikaURL::frmNrSkladnikaURL(const OkresUrlopu& okres, int proponowany, QWidget* rodzic)
    : Okno(QStringLiteral("frmNrSkladnikaURL"), rodzic),
      txtSkl_(pole(QStringLiteral("txtSkl"), QString::number(proponowany))) {
    setWindowTitle(QStringLiteral("Wyliczanie urlopu"));
    setMinimumWidth(40 * Wyglad::kSiatka);
    auto* uklad = new QVBoxLayout(this);
    uklad->setContentsMargins(kMargines, kMargines, kMargines, kMargines);
    uklad->setSpacing(kMargines);
    auto* formularz = new QFormLayout;
    const auto wartosc = [&](const QString& podpis, const QString& nazwa, const QString& tekst) {
        auto* napis = new QLabel(tekst);
        napis->setObjectName(nazwa);
        formularz->addRow(podpis, napis);
    };
    wartosc(QStringLiteral("Za okres od"), QStringLiteral("labOd"), FormatDaty(okres.od));
    wartosc(QStringLiteral("do"), QStringLiteral("labDo"), FormatDaty(okres.dokad));
    wartosc(QStringLiteral("Kwota za urlopu"), QStringLiteral("labKwota"), FormatKwoty(okres.kwota));
    txtSkl_->setMaxLength(2);
    txtSkl_->setFixedWidth(8 * Wyglad::kSiatka);
    formularz->addRow(QStringLiteral("Numer składnika"), txtSkl_);
    uklad->addLayout(formularz);
    uklad->addStretch();
    QPushButton* cmdOK = domyslny(QStringLiteral("cmdOK"), QStringLiteral("&Dalej"));
    QPushButton* cmdPomin = przycisk(QStringLiteral("cmdPomin"), QStringLiteral("&Pomiń"));
    cmdPomin->setAutoDefault(false);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdPomin, &QPushButton::clicked, this, &QDialog::reject);
    uklad->addWidget(rzadPrzyciskow({cmdOK, cmdPomin}));
    txtSkl_->setFocus();
}

int frmNrSkladnikaURL::numer() const { return static_cast<int>(LiczbaAlboZero(txtSkl_->text(), 1, 30)); }

std::optional<Waluta> WykazyOkien::sredniaL4(const QList<LiniaWykazu>& miesiace, Waluta sredniaBrutto) {
    frmWykazPodstawL4 okno(miesiace, sredniaBrutto, rodzic_);
    okno.exec(); // however it is closed, what the field holds counts
    return okno.srednia();
}

std::optional<Waluta> WykazyOkien::dniowka(const QList<LiniaWykazu>& miesiace, qint64 dni,
                                           Waluta stawkaDzienna) {
    frmWykazPodstaw okno(miesiace, dni, stawkaDzienna, rodzic_);
    okno.exec();
    return okno.dniowka();
}

std::optional<int> WykazyOkien::numerSkladnika(const OkresUrlopu& okres, int proponowany) {
    frmNrSkladnikaURL okno(okres, proponowany, rodzic_);
    return okno.exec() == QDialog::Accepted ? std::optional(okno.numer()) : std::nullopt;
}

} // namespace tornel::payroll
