#include "rules/frmSkladnikiPlac.h"
#include "okna/Klepsydra.h"
#include "okna/Kontrolki.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include "okna/ZnakZmiany.h"
#include "store/Sesja.h"
#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tornel::rules {

using schemat::SZ_PL;

namespace {

struct KolumnaEkranu {
    QStringView nazwa; ///< of the control array
    QStringView naglowek;
    Kolumna kolumna;
    QString Skladnik::*tekst = nullptr;
    bool Skladnik::*flaga = nullptr;
    bool tylkoDodatnie = false;
};

constexpr KolumnaEkranu kKolumny[] = {
    {u"txtNazwa", u"Nazwa składnika", SZ_PL("naz_sk"), &Skladnik::nazwa},
    {u"chkBrutto", u"Brutto?", SZ_PL("Brutto"), nullptr, &Skladnik::brutto},
    {u"chkZus", u"Do ZUS?", SZ_PL("Zus"), nullptr, &Skladnik::zus},
    {u"chkUbzdr", u"Do ub. zdr.?", SZ_PL("Ubzdr"), nullptr, &Skladnik::ubzdr},
    {u"chkAkt", u"Aktywny?", SZ_PL("Akt"), nullptr, &Skladnik::akt},
    {u"txtK1", u"Kod ZUS 1", SZ_PL("KodZUS"), &Skladnik::kodZUS, nullptr, true},
    {u"txtK2", u"Kod świad. przerwy", SZ_PL("kodswprz"), &Skladnik::kodSwPrz, nullptr, true},
};
constexpr int kKolumnaAktywny = 4;
constexpr int kSzerokoscNazwy = 34 * Wyglad::kSiatka;

struct ZakladkaEkranu {
    QStringView napis;
    int pierwszy; ///< number of the first record
};
constexpr ZakladkaEkranu kZakladki[] = {{u"Dodatnie 1-15", 1}, {u"Dodatnie 16-30", 16}, {u"Ujemne 1-15", 31}};

/// The number as the clerk knows it: negative components count from 1 again.
int numerNaEkranie(int numer) { return numer > kDodatnich ? numer - kDodatnich : numer; }

Pole poleKontrolki(const KolumnaEkranu& k, int numer) {
    return {.nazwa = QStringLiteral("%1(%2)").arg(k.nazwa).arg(numer),
            .podpis = {},
            .kolumna = k.kolumna,
            .rodzaj = k.flaga ? Rodzaj::Flaga : Rodzaj::Tekst};
}

QLabel* naglowek(QStringView tekst, Qt::Alignment wyrownanie) {
    auto* etykieta = new QLabel(tekst.toString());
    QFont pismo = etykieta->font();
    pismo.setBold(true);
    etykieta->setFont(pismo);
    etykieta->setAlignment(wyrownanie | Qt::AlignVCenter);
    return etykieta;
}

} // namespace

frmSkladnikiPlac::frmSkladnikiPlac(Otoczenie& otoczenie, QWidget* rodzic)
    : OknoEdycji(QStringLiteral("frmSkladnikiPlac"), otoczenie.rozmowa, Zamykanie::Pytanie, rodzic),
      o_(otoczenie), zakladki_(new QTabWidget) {
    static_assert(std::size(kKolumny) == kKolumn);
    const Klepsydra klepsydra;
    setWindowTitle(QStringLiteral("Składniki zmienne płac"));
    auto* uklad = new QVBoxLayout(this);
    zakladki_->setObjectName(QStringLiteral("zakladki"));
    for (const ZakladkaEkranu& z : kZakladki) zakladki_->addTab(zakladka(z.pierwszy), z.napis.toString());
    uklad->addWidget(zakladki_, 1);
    QPushButton* uaktywnienie = przycisk(QStringLiteral("Command2"), QStringLiteral("Uaktywnij składniki"));
    QPushButton* powrot = przycisk(QStringLiteral("Command1"), QStringLiteral("&Powrót"), u"powrot");
    // Enter belongs to the fields: no button takes it from them.
    for (QPushButton* p : {uaktywnienie, powrot}) p->setAutoDefault(false);
    connect(uaktywnienie, &QPushButton::clicked, this, &frmSkladnikiPlac::uaktywnij);
    connect(powrot, &QPushButton::clicked, this, &QDialog::reject);
    auto* dol = new QHBoxLayout;
    dol->addWidget(etykietaZmian(QStringLiteral("Ctrl+S zapisuje; przy zamknięciu program zapyta o zapis.")),
                   1);
    dol->addWidget(rzadPrzyciskow({uaktywnienie, przyciskPomocy(), powrot}));
    uklad->addLayout(dol);
    pokaz();
    kontrolki_[0][0]->setFocus();
}

QWidget* frmSkladnikiPlac::zakladka(int pierwszy) {
    auto* strona = new QWidget;
    auto* siatka = new QGridLayout(strona);
    siatka->setHorizontalSpacing(2 * Wyglad::kSiatka);
    siatka->setVerticalSpacing(Wyglad::kSiatka / 2);
    siatka->addWidget(naglowek(u"NR", Qt::AlignRight), 0, 0);
    for (int k = 0; k < kKolumn; ++k) {
        const KolumnaEkranu& kolumna = kKolumny[k];
        if (kolumna.tylkoDodatnie && pierwszy > kDodatnich) continue;
        siatka->addWidget(naglowek(kolumna.naglowek, kolumna.flaga ? Qt::AlignHCenter : Qt::AlignLeft), 0,
                          k + 1);
    }
    for (int i = 0; i < kNaZakladce; ++i) {
        auto* nr = new QLabel(QString::number(numerNaEkranie(pierwszy + i)));
        nr->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        siatka->addWidget(nr, i + 1, 0);
        for (int k = 0; k < kKolumn; ++k) {
            QWidget* pole = kontrolka(pierwszy + i, k);
            if (pole)
                siatka->addWidget(pole, i + 1, k + 1, kKolumny[k].flaga ? Qt::AlignCenter : Qt::Alignment());
        }
    }
    siatka->setColumnStretch(1, 1);
    siatka->setColumnMinimumWidth(1, kSzerokoscNazwy);
    siatka->setRowStretch(kNaZakladce + 1, 1);
    return strona;
}

QWidget* frmSkladnikiPlac::kontrolka(int numer, int kolumna) {
    const KolumnaEkranu& k = kKolumny[kolumna];
    if (k.tylkoDodatnie && numer > kDodatnich) return nullptr;
    QWidget* pole = zbudujKontrolke(poleKontrolki(k, numer));
    pole->setAccessibleName(QStringLiteral("%1 %2").arg(k.naglowek).arg(numerNaEkranie(numer)));
    pole->installEventFilter(this);
    const auto zmiana = [this, pole] {
        zmieniono_ = true;
        ZnakZmiany::ustaw(*pole, true);
        pokazZmiany();
    };
    if (auto* linia = qobject_cast<QLineEdit*>(pole))
        connect(linia, &QLineEdit::textEdited, this, zmiana);
    else if (auto* flaga = qobject_cast<QCheckBox*>(pole))
        connect(flaga, &QCheckBox::clicked, this, zmiana);
    kontrolki_[static_cast<std::size_t>(numer) - 1][static_cast<std::size_t>(kolumna)] = pole;
    return pole;
}

void frmSkladnikiPlac::pokaz() {
    const KatalogSkladnikow katalog = Wczytaj_skladniki(o_);
    for (std::size_t n = 0; n < kWszystkich; ++n)
        for (std::size_t k = 0; k < kKolumn; ++k) {
            QWidget* pole = kontrolki_[n][k];
            if (auto* flaga = qobject_cast<QCheckBox*>(pole))
                flaga->setChecked(katalog[n].*kKolumny[k].flaga);
            else if (pole)
                wpiszDoKontrolki(*pole, katalog[n].*kKolumny[k].tekst);
        }
    zdejmijZnaki();
}

void frmSkladnikiPlac::zdejmijZnaki() {
    for (const auto& linia : kontrolki_)
        for (QWidget* pole : linia)
            if (pole) ZnakZmiany::ustaw(*pole, false);
    zmieniono_ = false;
    pokazZmiany();
}

KatalogSkladnikow frmSkladnikiPlac::zbierz() const {
    KatalogSkladnikow katalog;
    for (std::size_t n = 0; n < kWszystkich; ++n)
        for (std::size_t k = 0; k < kKolumn; ++k) {
            const QWidget* pole = kontrolki_[n][k];
            if (const auto* flaga = qobject_cast<const QCheckBox*>(pole))
                katalog[n].*kKolumny[k].flaga = flaga->isChecked();
            else if (pole)
                katalog[n].*kKolumny[k].tekst =
                    uporzadkuj(poleKontrolki(kKolumny[k], static_cast<int>(n) + 1), tekstKontrolki(*pole));
        }
    return katalog;
}

void frmSkladnikiPlac::uaktywnij() {
    const auto od = static_cast<std::size_t>(kZakladki[zakladki_->currentIndex()].pierwszy) - 1;
    const auto aktywny = [&](std::size_t i) {
        return qobject_cast<QCheckBox*>(kontrolki_[od + i][kKolumnaAktywny]);
    };
    bool wszystkie = true;
    for (std::size_t i = 0; i < kNaZakladce; ++i) wszystkie = wszystkie && aktywny(i)->isChecked();
    for (std::size_t i = 0; i < kNaZakladce; ++i) {
        if (aktywny(i)->isChecked() == wszystkie) ZnakZmiany::ustaw(*aktywny(i), true);
        aktywny(i)->setChecked(!wszystkie);
    }
    zmieniono_ = true;
    pokazZmiany();
}

void frmSkladnikiPlac::pokazPonownie() {
    // What could not be stored stays in its fields.
    if (!zmieniono_) pokaz();
}

bool frmSkladnikiPlac::zapiszZmiany() {
    const Klepsydra klepsydra;
    Zapisz_zmiany(o_, zbierz());
    zdejmijZnaki();
    return true;
}

OknoEdycji::PytanieOZmiany frmSkladnikiPlac::pytanieOZmiany() const {
    return {QStringLiteral("Czy zapisać wprowadzone zmiany?"), Rozmowa::domyslnyTytul()};
}

bool frmSkladnikiPlac::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    if (zdarzenie->type() != QEvent::KeyPress) return OknoEdycji::eventFilter(obiekt, zdarzenie);
    const int klawisz = static_cast<QKeyEvent*>(zdarzenie)->key();
    const int oIle = klawisz == Qt::Key_Up ? -1 : klawisz == Qt::Key_Down ? 1 : 0;
    if (oIle == 0) return OknoEdycji::eventFilter(obiekt, zdarzenie);
    // As in a table, the arrows keep the column.
    for (int n = 0; n < kWszystkich; ++n) {
        const auto& linia = kontrolki_[static_cast<std::size_t>(n)];
        const auto ta = std::find(linia.begin(), linia.end(), obiekt);
        if (ta == linia.end()) continue;
        const int cel = n + oIle;
        if (cel / kNaZakladce != n / kNaZakladce || cel < 0) return true;
        kontrolki_[static_cast<std::size_t>(cel)][static_cast<std::size_t>(ta - linia.begin())]->setFocus(
            Qt::TabFocusReason);
        return true;
    }
    return OknoEdycji::eventFilter(obiekt, zdarzenie);
}

} // namespace tornel::rules
