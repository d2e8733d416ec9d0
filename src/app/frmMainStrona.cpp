#include "app/frmMainStrona.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include <algorithm>
#include <array>
#include <QAction>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tornel::app {

namespace {

constexpr int kKolumnSkrotow = 2;
constexpr int kZnakZadania = 2 * Wyglad::kSiatka;

/// The screen of each step, in the order of the steps.
constexpr std::pair<KrokPracy, Wejscie> kEkranyKrokow[] = {
    {KrokPracy::DaneFirmy, Wejscie::StaleProgramu},   {KrokPracy::Stawki, Wejscie::StaleProgramu},
    {KrokPracy::Kalendarz, Wejscie::DniWolneOgolne},  {KrokPracy::Pracownicy, Wejscie::PracownicyWszyscy},
    {KrokPracy::Miesiac, Wejscie::ListaPlac},         {KrokPracy::Lista, Wejscie::ListaPlac},
    {KrokPracy::Obliczenie, Wejscie::ListaPlac},      {KrokPracy::Wydruk, Wejscie::ListaPlac},
    {KrokPracy::Przelewy, Wejscie::ListaPlac},        {KrokPracy::Podatek, Wejscie::PIT4},
    {KrokPracy::Skladki, Wejscie::ListaDRA},          {KrokPracy::Dokumenty, Wejscie::WydrukiZUS},
    {KrokPracy::NastepnyMiesiac, Wejscie::ListaPlac}, {KrokPracy::Archiwum, Wejscie::UtworzArchiwum},
};

/// What a clerk opens most.
constexpr std::array kSkroty{Wejscie::PracownicyWszyscy, Wejscie::ListaPlac,      Wejscie::UmowyZlecenia,
                             Wejscie::UmowyODzielo,      Wejscie::DniWolneOgolne, Wejscie::Urlopy,
                             Wejscie::UrzedySkarbowe,    Wejscie::StaleProgramu};

enum KolumnaKwot { NapisKolumna, TerazKolumna, PrzedtemKolumna };

QLabel* napisStrony(const QString& tekst, Qt::Alignment polozenie = Qt::AlignLeft) {
    auto* napis = new QLabel(tekst);
    napis->setTextFormat(Qt::PlainText);
    napis->setAlignment(polozenie | Qt::AlignVCenter);
    return napis;
}

QString nazwaKroku(QStringView rodzaj, KrokPracy krok) {
    return QStringLiteral("%1Zadanie(%2)").arg(rodzaj).arg(static_cast<int>(krok));
}

/// The state of a task in a word, for whoever cannot see its sign.
QString stanSlowem(const Zadanie& z) {
    if (z.zrobione) return QStringLiteral("zrobione");
    return z.poTerminie ? QStringLiteral("po terminie") : QStringLiteral("do zrobienia");
}

QIcon znakZadania(const Zadanie& z) {
    return Wyglad::ikona(z.zrobione ? u"zrobione" : z.poTerminie ? u"ostrzezenie" : u"dozrobienia");
}

} // namespace

StronaStartowa::StronaStartowa(AkcjaWejscia akcja, QWidget* rodzic)
    : QWidget(rodzic), akcja_(std::move(akcja)) {
    auto* uklad = new QHBoxLayout(this);
    uklad->setContentsMargins(0, 0, 0, 0);
    uklad->setSpacing(3 * Wyglad::kSiatka);
    uklad->addWidget(ramkaZadan(), 2);
    auto* prawa = new QVBoxLayout;
    prawa->setSpacing(3 * Wyglad::kSiatka);
    prawa->addWidget(ramkaKwot());
    prawa->addWidget(skroty());
    prawa->addStretch();
    uklad->addLayout(prawa, 1);
}

QWidget* StronaStartowa::ramkaZadan() {
    ramkaZadan_ = new QGroupBox;
    ramkaZadan_->setObjectName(QStringLiteral("ramkaZadan"));
    auto* pionowo = new QVBoxLayout(ramkaZadan_);
    labUwaga_ = Wyglad::baner({}, ramkaZadan_);
    labUwaga_->setObjectName(QStringLiteral("labUwagaPlanu"));
    pionowo->addWidget(labUwaga_);
    auto* siatka = new QGridLayout;
    siatka->setHorizontalSpacing(2 * Wyglad::kSiatka);
    siatka->setVerticalSpacing(2);
    siatka->setColumnStretch(1, 1);
    cmdPotwierdz_ = przycisk(QStringLiteral("cmdPotwierdzStawki"), QStringLiteral("Potwierdź stawki"));
    cmdPotwierdz_->setAutoDefault(true);
    connect(cmdPotwierdz_, &QPushButton::clicked, this, &StronaStartowa::potwierdzStawki);
    for (const auto& [krok, wejscie] : kEkranyKrokow) {
        const int nr = siatka->rowCount();
        Wiersz w{krok, wejscie, przycisk(nazwaKroku(u"cmd", krok), {}), napisStrony({}), napisStrony({})};
        w.odnosnik->setProperty("odnosnik", true);
        w.odnosnik->setAutoDefault(true); // Enter opens it as a click does
        w.odnosnik->setIconSize(QSize(kZnakZadania, kZnakZadania));
        w.szczegol->setObjectName(nazwaKroku(u"lab", krok));
        w.szczegol->setWordWrap(true);
        w.termin->setObjectName(nazwaKroku(u"termin", krok));
        connect(w.odnosnik, &QPushButton::clicked, this, [this, w] { akcja_(w.wejscie)->trigger(); });
        siatka->addWidget(w.odnosnik, nr, 0);
        siatka->addWidget(w.szczegol, nr, 1);
        siatka->addWidget(w.termin, nr, 2);
        if (krok == KrokPracy::Stawki) siatka->addWidget(cmdPotwierdz_, nr, 2, Qt::AlignLeft);
        wiersze_.push_back(w);
    }
    pionowo->addLayout(siatka);
    pionowo->addStretch();
    return ramkaZadan_;
}

QWidget* StronaStartowa::ramkaKwot() {
    ramkaKwot_ = new QGroupBox;
    ramkaKwot_->setObjectName(QStringLiteral("ramkaKwot"));
    kwoty_ = new QGridLayout(ramkaKwot_);
    kwoty_->setHorizontalSpacing(3 * Wyglad::kSiatka);
    kwoty_->setVerticalSpacing(Wyglad::kSiatka / 2);
    kwoty_->setColumnStretch(NapisKolumna, 1);
    return ramkaKwot_;
}

QWidget* StronaStartowa::skroty() {
    auto* ramka = new QWidget;
    kafle_ = new QGridLayout(ramka);
    kafle_->setContentsMargins(0, 0, 0, 0);
    kafle_->setSpacing(Wyglad::kSiatka);
    for (int k = 0; k < kKolumnSkrotow; ++k) kafle_->setColumnStretch(k, 1);
    for (const Wejscie wejscie : kSkroty) {
        const PozycjaMenu& p = pozycjaMenu(wejscie);
        auto* kafel = new QPushButton(Wyglad::ikona(p.ikona), p.napis.toString(), ramka);
        kafel->setProperty("kafel", true);
        kafel->setAutoDefault(true);
        // Wider than the picture, which keeps it off the caption.
        kafel->setIconSize(QSize(6 * Wyglad::kSiatka, 4 * Wyglad::kSiatka));
        connect(kafel, &QPushButton::clicked, akcja_(wejscie), &QAction::trigger);
        skroty_.emplace_back(wejscie, kafel);
    }
    return ramka;
}

void StronaStartowa::ulozKafle() {
    while (QLayoutItem* pozycja = kafle_->takeAt(0)) delete pozycja;
    int nr = 0;
    for (const auto& [wejscie, kafel] : skroty_) {
        const bool otwarte = akcja_(wejscie)->isEnabled();
        kafel->setVisible(otwarte);
        if (!otwarte) continue;
        kafle_->addWidget(kafel, nr / kKolumnSkrotow, nr % kKolumnSkrotow);
        ++nr;
    }
}

void StronaStartowa::ustawDostepnosc() {
    for (const Wiersz& w : wiersze_) w.odnosnik->setEnabled(akcja_(w.wejscie)->isEnabled());
    cmdPotwierdz_->setEnabled(akcja_(Wejscie::StaleProgramu)->isEnabled());
    ulozKafle();
}

void StronaStartowa::pokazZadanie(const Wiersz& wiersz, const Zadanie* zadanie) {
    wiersz.odnosnik->setVisible(zadanie);
    wiersz.szczegol->setVisible(zadanie);
    wiersz.termin->setVisible(zadanie && zadanie->termin.isValid());
    if (!zadanie) return;
    wiersz.odnosnik->setText(zadanie->napis);
    wiersz.odnosnik->setIcon(znakZadania(*zadanie));
    wiersz.odnosnik->setAccessibleDescription(stanSlowem(*zadanie));
    wiersz.szczegol->setText(zadanie->szczegol);
    wiersz.termin->setText(zadanie->napisTerminu());
    Wyglad::oznaczPilne(*wiersz.termin, zadanie->poTerminie);
}

void StronaStartowa::pokaz(const PlanPracy& plan) {
    ramkaZadan_->setTitle(plan.etap == EtapPracy::PierwszaWyplata || !plan.miesiac
                              ? QStringLiteral("DO PIERWSZEJ WYPŁATY")
                              : QStringLiteral("MIESIĄC %1").arg(plan.miesiac->napis()));
    Wyglad::ustawBaner(*labUwaga_, plan.uwaga);
    for (const Wiersz& w : wiersze_) {
        const auto z = std::ranges::find(plan.zadania, w.krok, &Zadanie::krok);
        pokazZadanie(w, z == plan.zadania.end() ? nullptr : &*z);
    }
    cmdPotwierdz_->setVisible(plan.niepotwierdzoneStawki.has_value());
    pokazKwoty(plan);
}

void StronaStartowa::pokazKwoty(const PlanPracy& plan) {
    while (QLayoutItem* pozycja = kwoty_->takeAt(0)) {
        delete pozycja->widget();
        delete pozycja;
    }
    ramkaKwot_->setVisible(!plan.kwoty.isEmpty());
    if (plan.kwoty.isEmpty()) return;
    ramkaKwot_->setTitle(QStringLiteral("KWOTY"));
    kwoty_->addWidget(napisStrony(plan.miesiac->napis(), Qt::AlignRight), 0, TerazKolumna);
    if (plan.poprzedni) {
        auto* przedtem = napisStrony(plan.poprzedni->napis(), Qt::AlignRight);
        przedtem->setProperty("podpowiedz", true);
        kwoty_->addWidget(przedtem, 0, PrzedtemKolumna);
    }
    for (const PorownanieKwot& k : plan.kwoty) {
        const int nr = kwoty_->rowCount();
        kwoty_->addWidget(napisStrony(k.napis.toString()), nr, NapisKolumna);
        kwoty_->addWidget(napisStrony(NapisKwoty(k.teraz), Qt::AlignRight), nr, TerazKolumna);
        if (!k.przedtem) continue;
        auto* przedtem = napisStrony(NapisKwoty(*k.przedtem), Qt::AlignRight);
        przedtem->setProperty("podpowiedz", true);
        kwoty_->addWidget(przedtem, nr, PrzedtemKolumna);
    }
}

} // namespace tornel::app
