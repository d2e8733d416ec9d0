#include "zus/frmWydrukiZUS.h"
#include "common/Rozmowa.h"
#include "okna/frmInputData.h"
#include "okna/Klawisze.h"
#include "okna/PoleTekstu.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include "payroll/miesiace/Miesiace.h"
#include "personnel/frmWybPr.h"
#include "rules/Konfiguracja.h"
#include "zus/frmUwagiKedu.h"
#include "zus/WykonanieKedu.h"
#include <QCheckBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

namespace tornel::zus {

namespace {

constexpr int kSzerokoscNazwy = 12 * Wyglad::kSiatka, kSzerokoscStanu = 26 * Wyglad::kSiatka;

std::optional<QString> pytajOPlik(QWidget* rodzic, const QString& folder) {
    // The screen asks itself before it replaces a file.
    const QString plik = QFileDialog::getSaveFileName(
        rodzic, QStringLiteral("Kolekcja dokumentów"), folder,
        QStringLiteral("Kolekcja Dokumentów Ubezp. (*.kdu);;Wszystkie pliki (*.*)"), nullptr,
        QFileDialog::DontConfirmOverwrite);
    return plik.isEmpty() ? std::nullopt : std::optional(plik);
}

} // namespace

frmWydrukiZUS::frmWydrukiZUS(Otoczenie& otoczenie, PortKedu port, QWidget* rodzic)
    : Okno(QStringLiteral("frmWydrukiZUS"), rodzic, PoEnterze::NastepnePole), o_(otoczenie),
      port_(std::move(port)) {
    setWindowTitle(QStringLiteral("Wydruki dla ZUS"));
    using enum KodKedu;
    auto* tresc = new QWidget;
    auto* kolumna = new QVBoxLayout(tresc);
    kolumna->setSpacing(2 * Wyglad::kSiatka);
    kolumna->addWidget(ramka(QStringLiteral("Zgłoszenia osób"), {ZUA, ZZA, ZIUA, ZCNA, ZCZA, ZWUA}));
    kolumna->addWidget(ramka(QStringLiteral("Płatnik"), {ZBA, ZAA, ZPA, ZFA}));
    kolumna->addWidget(ramka(QStringLiteral("Dokumenty miesiąca"), {RCA, RNA, RZA, RSA, DRA}));
    kolumna->addStretch(1);
    auto* przewijane = new QScrollArea;
    przewijane->setWidgetResizable(true);
    przewijane->setFrameShape(QFrame::NoFrame);
    przewijane->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    przewijane->setWidget(tresc);
    przewijane->setFocusPolicy(Qt::NoFocus);
    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(przewijane, 1);
    labZapisano_ = new QLabel;
    labZapisano_->setObjectName(QStringLiteral("labZapisano"));
    labZapisano_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    labZapisano_->hide();
    uklad->addWidget(labZapisano_);
    uklad->addWidget(rzad());
    resize(124 * Wyglad::kSiatka, 90 * Wyglad::kSiatka);
    WczytajUstawienia();
    pokazStany();
    wiersze_.front().znak->setFocus();
}

QWidget* frmWydrukiZUS::ramka(const QString& tytul, std::initializer_list<KodKedu> kody) {
    auto* grupa = new QGroupBox(tytul);
    auto* uklad = new QVBoxLayout(grupa);
    uklad->setSpacing(Wyglad::kSiatka / 2);
    for (const KodKedu kod : kody) uklad->addWidget(wiersz(kod));
    if (*kody.begin() == KodKedu::ZBA) uklad->addWidget(podpowiedz());
    return grupa;
}

QWidget* frmWydrukiZUS::wiersz(KodKedu kod) {
    const DokumentKedu& d = dokumentKedu(kod);
    WierszDokumentu& w = wiersze_[static_cast<std::size_t>(kod)];
    auto* linia = new QWidget;
    auto* uklad = new QHBoxLayout(linia);
    uklad->setContentsMargins(0, 0, 0, 0);
    const QString nazwa = QStringLiteral("ZUS %1").arg(d.nazwa);
    auto* opis = new QLabel(d.opis.toString());
    opis->setWordWrap(true);
    w.stan = new QLabel;
    w.stan->setObjectName(QStringLiteral("labStan%1").arg(d.nazwa));
    w.stan->setProperty("podpowiedz", true);
    w.stan->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    w.stan->setMinimumWidth(kSzerokoscStanu);
    if (d.petla == Petla::Platnik) {
        w.typ = new PoleTekstu;
        w.typ->setObjectName(QStringLiteral("txtZUS%1").arg(d.nazwa));
        w.typ->setAccessibleName(nazwa);
        w.typ->setMaxLength(1);
        w.typ->setFixedWidth(5 * Wyglad::kSiatka);
        w.typ->installEventFilter(this);
        auto* podpis = new QLabel(nazwa);
        podpis->setFixedWidth(kSzerokoscNazwy);
        podpis->setBuddy(w.typ);
        uklad->addWidget(podpis);
        uklad->addWidget(w.typ);
    } else {
        w.znak = new QCheckBox(nazwa);
        w.znak->setObjectName(QStringLiteral("chkZUS%1").arg(d.nazwa));
        w.znak->setMinimumWidth(kSzerokoscNazwy);
        uklad->addWidget(w.znak);
    }
    uklad->addWidget(opis, 1);
    uklad->addWidget(w.stan);
    if (d.petla == Petla::Brak) {
        w.znak->setEnabled(false);
        w.znak->setToolTip(QStringLiteral("Kolekcja nie zawiera deklaracji DRA. Rozliczenie miesiąca jest w "
                                          "menu Analizy, Lista dokumentów ZUS DRA."));
    }
    return linia;
}

QWidget* frmWydrukiZUS::podpowiedz() {
    picTips_ = new QFrame;
    picTips_->setObjectName(QStringLiteral("picTips"));
    picTips_->setFrameShape(QFrame::StyledPanel);
    auto* uklad = new QHBoxLayout(picTips_);
    uklad->setSpacing(3 * Wyglad::kSiatka);
    for (const QStringView tekst :
         {u"0-pomijane", u"1-zgłoszenie płatnika", u"2-zgłoszenie zmiany", u"3-zgłoszenie korekty"})
        uklad->addWidget(new QLabel(tekst.toString()));
    uklad->addStretch(1);
    // Nothing below moves when it comes.
    QSizePolicy miejsce = picTips_->sizePolicy();
    miejsce.setRetainSizeWhenHidden(true);
    picTips_->setSizePolicy(miejsce);
    picTips_->hide();
    return picTips_;
}

QWidget* frmWydrukiZUS::rzad() {
    Command2_ = przycisk(QStringLiteral("Command2"), QStringLiteral("Przygotowanie KEDU"), u"deklaracje");
    cmdPodglad_ = przycisk(QStringLiteral("cmdPodglad"), QStringLiteral("P&odgląd kolekcji"), u"szukaj");
    QPushButton* pomoc = przyciskPomocy();
    pomoc->setObjectName(QStringLiteral("cmdHelp"));
    QPushButton* powrot = przycisk(QStringLiteral("Command1"), QStringLiteral("&Powrót"), u"powrot");
    for (QPushButton* p : {Command2_, cmdPodglad_, powrot}) p->setAutoDefault(false);
    podlacz(Polecenie::Przelicz, *Command2_);
    connect(Command2_, &QPushButton::clicked, this, &frmWydrukiZUS::StworzPlik);
    connect(cmdPodglad_, &QPushButton::clicked, this, [this] { port_.pokaz(zapisany_, this); });
    cmdPodglad_->setVisible(static_cast<bool>(port_.pokaz));
    connect(powrot, &QPushButton::clicked, this, &QDialog::reject);
    return rzadPrzyciskow({Command2_, cmdPodglad_, pomoc, powrot});
}

bool frmWydrukiZUS::JakieDokumenty(WyborDokumentow& wybor) const {
    wybor = {};
    for (const DokumentKedu& d : DokumentyKedu()) {
        const WierszDokumentu& w = wiersze_[static_cast<std::size_t>(d.kod)];
        wybor.ustaw(d.kod, w.typ                                        ? w.typ->text().toInt()
                           : w.znak->isEnabled() && w.znak->isChecked() ? 1
                                                                        : 0);
    }
    return wybor.jakikolwiek();
}

void frmWydrukiZUS::WczytajUstawienia() {
    const auto wybor = WyborDokumentow::zeSlowa(o_.stale.WydrukiZUS);
    for (const DokumentKedu& d : DokumentyKedu()) {
        const WierszDokumentu& w = wiersze_[static_cast<std::size_t>(d.kod)];
        if (w.typ)
            w.typ->setText(QString::number(wybor[d.kod]));
        else
            w.znak->setChecked(wybor.jest(d.kod));
    }
}

void frmWydrukiZUS::ZapiszUstawienia() {
    WyborDokumentow wybor;
    (void)JakieDokumenty(wybor);
    const QString slowo = wybor.UtworzSlowo();
    if (slowo == o_.stale.WydrukiZUS) return;
    o_.stale.WydrukiZUS = slowo;
    ZapiszStala(o_.sesja, o_.stale, kStalaWyboru);
}

void frmWydrukiZUS::done(int wynik) {
    ZapiszUstawienia();
    Okno::done(wynik);
}

bool frmWydrukiZUS::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    auto* pole = qobject_cast<QLineEdit*>(obiekt);
    if (pole && zdarzenie->type() == QEvent::FocusIn) {
        picTips_->show();
    } else if (pole && zdarzenie->type() == QEvent::FocusOut) {
        picTips_->hide();
        poprawTyp(*pole);
    }
    return Okno::eventFilter(obiekt, zdarzenie);
}

void frmWydrukiZUS::poprawTyp(QLineEdit& pole) {
    bool liczba = false;
    const int typ = pole.text().trimmed().toInt(&liczba);
    pole.setText(QString::number(liczba && typ >= 0 && typ <= 3 ? typ : 0));
}

void frmWydrukiZUS::pokazStany() {
    for (const DokumentKedu& d : DokumentyKedu()) {
        if (d.petla == Petla::Brak) continue;
        const WierszDokumentu& w = wiersze_[static_cast<std::size_t>(d.kod)];
        QStringList czesci;
        const int ile = IleOznaczonych(o_, d.kod);
        if (d.kod == KodKedu::RCA)
            czesci += QStringLiteral("dla jednego pracownika"); // that of all has no rows
        else if (ile >= 0)
            czesci += ile == 0 ? QStringLiteral("nikt nie jest oznaczony")
                               : QStringLiteral("oznaczonych: %1").arg(ile);
        if (const QString kiedy = ZapisanoKedu(o_.sesja, d.kod); !kiedy.isEmpty()) czesci += kiedy;
        w.stan->setText(czesci.join(QStringLiteral(", ")));
    }
}

void frmWydrukiZUS::StworzPlik() {
    WyborDokumentow wybor;
    (void)JakieDokumenty(wybor);
    const auto wykonane = PrzygotowanieKedu(o_, *this).Przygotuj(wybor, QDateTime::currentDateTime());
    pokazStany();
    if (!wykonane) return;
    zapisany_ = wykonane->zamowienie.plik;
    labZapisano_->setText(QStringLiteral("Zapisano dokumentów: %1, plik %2")
                              .arg(wykonane->wynik.razem())
                              .arg(QDir::toNativeSeparators(zapisany_)));
    labZapisano_->show();
    if (cmdPodglad_->isVisible()) cmdPodglad_->setFocus(Qt::OtherFocusReason);
}

std::optional<QString> frmWydrukiZUS::plik(const QString& folder) {
    return port_.wybierzPlik ? port_.wybierzPlik(this, folder) : pytajOPlik(this, folder);
}

std::optional<qint64> frmWydrukiZUS::pracownik() {
    const QList<qint64> wybrani = frmWybPr::wybierz(o_, kTrybPracujacy, frmWybPr::Ilu::Jeden, this);
    return wybrani.isEmpty() ? std::nullopt : std::optional(wybrani.first());
}

std::optional<QDate> frmWydrukiZUS::dzien(const QString& pytanie) {
    frmInputData okno(frmInputData::Tryb::Data, pytanie, QDate::currentDate(), this);
    return okno.exec() == Accepted ? std::optional(okno.data()) : std::nullopt;
}

std::optional<RokMies> frmWydrukiZUS::miesiac(const QString& pytanie) {
    // The month that is settled is the one of the last payroll.
    const QList<WierszMiesiaca> miesiace = Miesiace(o_).Wczytaj_liste();
    frmInputData okno(frmInputData::Tryb::Miesiac, pytanie,
                      miesiace.isEmpty() ? QDate::currentDate() : miesiace.last().miesiac.pierwszyDzien(),
                      this);
    return okno.exec() == Accepted ? std::optional(RokMies{okno.rok(), okno.mies()}) : std::nullopt;
}

bool frmWydrukiZUS::mimoUwag(const std::function<QList<UwagaKedu>()>& sprawdz) {
    return frmUwagiKedu(sprawdz, port_.popraw, this).exec() == Accepted;
}

} // namespace tornel::zus
