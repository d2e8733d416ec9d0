#include "payroll/lista/frmPlaceListaPasek.h"
#include "okna/Klawisze.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <utility>

namespace tornel::payroll {

namespace {

constexpr QStringView kWydruki[] = {
    u"Lista płac",
    u"Lista płac - wersja 2",
    u"Lista płac - wersja 3",
    u"Pokwitowania",
    u"Pokwitowanie dla wybranego",
    u"Wydruk zbiorówki",
    u"Wydruk przelewu dla pracownika",
    u"Wydruk wszystkich przelewów",
    u"Wydruk przelewu dla podatku",
    u"Przelewy do MultiCash",
};

} // namespace

PasekListy::PasekListy(const PortWydrukow& wydruki, QWidget* rodzic) : QWidget(rodzic) {
    cmdNowy_ = przycisk(QStringLiteral("cmdNowy"), QStringLiteral("&Nowy prac."), u"nowy");
    cmdUsun_ = przycisk(QStringLiteral("cmdUsun"), QStringLiteral("&Usuń prac."), u"usun");
    cmdPrzepisz_ = przycisk(QStringLiteral("Command1"), QStringLiteral("Przepisz"));
    cmdDni_ = przycisk(QStringLiteral("Command3"), QStringLiteral("Przelicz dni"));
    cmdPrzelicz_ = przycisk(QStringLiteral("cmdPrzelicz"), QStringLiteral("Prze&licz"), u"przelicz");
    cmdCalaLista_ = przycisk(QStringLiteral("cmdCalaLista"), QStringLiteral("&Cała lista"));
    cmdKonto_ = przycisk(QStringLiteral("cmdKonto"), QStringLiteral("Całość na &konto"));
    cmdKonto_->setToolTip(QStringLiteral("Cała kwota do wypłaty idzie przelewem"));
    cmdDrukuj_ = przycisk(QStringLiteral("cmdDrukuj"), QStringLiteral("&Drukuj"), u"drukuj");
    cmdAnuluj_ = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Powrót"), u"powrot");
    cmdPrzepisz_->setToolTip(QStringLiteral("Składniki na nowo z kadr, nadgodziny, L-4 i urlopy"));
    cmdPrzelicz_->setToolTip(QStringLiteral("Podstawy, składki, podatek i kwota do wypłaty"));
    cmdDni_->setToolTip(QStringLiteral("Dni miesiąca z kalendarza i rejestrów nieobecności (F7)"));
    // Enter moves on from field to field, so no button may catch it.
    const QList<QPushButton*> wszystkie{cmdNowy_,  cmdUsun_,      cmdPrzepisz_, cmdDni_,   cmdPrzelicz_,
                                        cmdKonto_, cmdCalaLista_, cmdDrukuj_,   cmdAnuluj_};
    for (QPushButton* p : wszystkie) p->setAutoDefault(false);
    connect(cmdNowy_, &QPushButton::clicked, this, &PasekListy::nowy);
    connect(cmdUsun_, &QPushButton::clicked, this, &PasekListy::usun);
    connect(cmdPrzepisz_, &QPushButton::clicked, this, &PasekListy::przepisz);
    connect(cmdDni_, &QPushButton::clicked, this, &PasekListy::przeliczDni);
    connect(cmdPrzelicz_, &QPushButton::clicked, this, &PasekListy::przelicz);
    connect(cmdKonto_, &QPushButton::clicked, this, &PasekListy::caloscNaKonto);
    connect(cmdAnuluj_, &QPushButton::clicked, this, &PasekListy::powrot);
    connect(new QShortcut(Qt::Key_F7, this), &QShortcut::activated, cmdDni_, &QPushButton::click);
    podlacz(Polecenie::Nowy, *cmdNowy_);
    podlacz(Polecenie::Przepisz, *cmdPrzepisz_);
    podlacz(Polecenie::Przelicz, *cmdPrzelicz_);
    budujMenu(wydruki);

    auto* uklad = new QHBoxLayout(this);
    uklad->setContentsMargins(0, 0, 0, 0);
    QList<QPushButton*> rzad = wszystkie;
    rzad.insert(rzad.size() - 1, przyciskPomocy());
    uklad->addWidget(rzadPrzyciskow(rzad));
}

void PasekListy::budujMenu(const PortWydrukow& port) {
    auto* cala = new QMenu(this);
    const std::pair<QString, QList<Obliczenie>> serie[] = {
        {QStringLiteral("Przelicz dni wszystkich"), {Obliczenie::PoliczenieDni}},
        {QStringLiteral("Przepisz wszystkich"), {Obliczenie::Przepisanie}},
        {QStringLiteral("Przelicz wszystkich"), {Obliczenie::Przeliczenie}},
        {QStringLiteral("Przepisz i przelicz wszystkich"),
         {Obliczenie::Przepisanie, Obliczenie::Przeliczenie}},
    };
    for (const auto& [opis, obliczenia] : serie)
        connect(cala->addAction(opis), &QAction::triggered, this,
                [this, obliczenia = obliczenia] { emit seria(obliczenia); });
    cala->addSeparator();
    QAction* konto = cala->addAction(QStringLiteral("Całość na &konto wszystkich"));
    konto->setToolTip(QStringLiteral("Tym, którym karta pracownika każe przelewać wypłatę na konto"));
    connect(konto, &QAction::triggered, this, &PasekListy::caloscNaKontoWszystkich);
    cala->setToolTipsVisible(true);
    cmdCalaLista_->setMenu(cala);

    auto* wydruki = new QMenu(this);
    wydruki->setToolTipsVisible(true);
    for (const QStringView opis : kWydruki) {
        QAction* pozycja = wydruki->addAction(opis.toString());
        pozycja->setEnabled(port.dostepne.contains(opis));
        if (!pozycja->isEnabled())
            pozycja->setToolTip(
                port.niedostepne.value(opis.toString(), QStringLiteral("Ten wydruk nie jest dostępny.")));
        connect(pozycja, &QAction::triggered, this, [this, opis] { emit wydruk(opis.toString()); });
    }
    cmdDrukuj_->setMenu(wydruki);
}

void PasekListy::podlaczListe(QWidget& lista) { podlacz(Polecenie::Usun, *cmdUsun_, lista); }

void PasekListy::ustawDostepnosc(bool zablokowany, bool pusta) {
    cmdNowy_->setEnabled(!zablokowany);
    for (QPushButton* p : {cmdUsun_, cmdPrzepisz_, cmdDni_, cmdPrzelicz_, cmdKonto_, cmdCalaLista_})
        p->setEnabled(!zablokowany && !pusta);
    cmdDrukuj_->setEnabled(!pusta);
}

void PasekListy::oznaczDoPrzeliczenia(bool tak) { Wyglad::oznaczDoPrzeliczenia(*cmdPrzelicz_, tak); }

void PasekListy::przejdzDoPrzelicz() { cmdPrzelicz_->setFocus(Qt::TabFocusReason); }

void PasekListy::przejdzDoNowy() { cmdNowy_->setFocus(); }

} // namespace tornel::payroll
