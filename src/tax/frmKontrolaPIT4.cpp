#include "tax/frmKontrolaPIT4.h"
#include "common/Liczby.h"
#include "okna/Klepsydra.h"
#include "okna/PoleMiesiaca.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include "tax/Pit4.h"
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace tornel::tax {

namespace {

/// The amounts of a month, or of the year.
struct KwotyKontroli {
    Waluta pit4, pit11, ulga, ubzdr, zaokraglenie, reszta;

    [[nodiscard]] QStringList teksty() const {
        QStringList wynik;
        for (const Waluta kwota : {pit4, pit11, ulga, ubzdr, zaokraglenie, reszta})
            wynik.append(FormatKwoty(kwota));
        return wynik;
    }
    void dodaj(const KwotyKontroli& k) {
        pit4 += k.pit4;
        pit11 += k.pit11;
        ulga += k.ulga;
        ubzdr += k.ubzdr;
        zaokraglenie += k.zaokraglenie;
        reszta += k.reszta;
    }
};

KwotyKontroli kwoty(const KontrolaPit4& k) {
    return {k.pit4.value_or(Waluta{}), k.place.zaliczka, k.place.ulga, k.place.ubzdr,
            k.place.zaokraglenie,      k.niewyjasnione()};
}

} // namespace

frmKontrolaPIT4::frmKontrolaPIT4(Otoczenie& otoczenie, int rok, QWidget* rodzic)
    : Okno(QStringLiteral("frmKontrolaPIT4"), rodzic), o_(otoczenie), spnRok_(new QSpinBox),
      lvwMiesiace_(new WidokListy({{QStringLiteral("MIESIĄC"), Qt::AlignLeft, Porzadek::Data},
                                   {QStringLiteral("PIT-4, WIERSZ 1"), Qt::AlignRight},
                                   {QStringLiteral("ZALICZKI PIT-11"), Qt::AlignRight},
                                   {QStringLiteral("ULGA"), Qt::AlignRight},
                                   {QStringLiteral("UB. ZDROWOTNE"), Qt::AlignRight},
                                   {QStringLiteral("ZAOKRĄGLENIA"), Qt::AlignRight},
                                   {QStringLiteral("NIEWYJAŚNIONE"), Qt::AlignRight}},
                                  {12, 15, 15, 13, 15, 14, 16})),
      labWynik_(new QLabel) {
    setWindowTitle(QStringLiteral("Kontrola roku PIT-4 i PIT-11"));
    spnRok_->setObjectName(QStringLiteral("spnRok"));
    spnRok_->setRange(PoleMiesiaca::kPierwszyRok, PoleMiesiaca::kOstatniRok);
    spnRok_->setValue(rok);
    lvwMiesiace_->setObjectName(QStringLiteral("lvwMiesiace"));
    lvwMiesiace_->setAccessibleName(QStringLiteral("Miesiące roku"));
    labWynik_->setObjectName(QStringLiteral("labWynik"));
    labWynik_->setWordWrap(true);
    auto* uklad = new QVBoxLayout(this);
    auto* gora = new QHBoxLayout;
    auto* podpis = new QLabel(QStringLiteral("&Rok:"));
    podpis->setBuddy(spnRok_);
    gora->addWidget(podpis);
    gora->addWidget(spnRok_);
    gora->addStretch(1);
    uklad->addLayout(gora);
    uklad->addWidget(lvwMiesiace_, 1);
    uklad->addWidget(labWynik_);
    auto* powrot = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Powrót"), u"powrot");
    connect(powrot, &QPushButton::clicked, this, &QDialog::reject);
    uklad->addWidget(rzadPrzyciskow({przyciskPomocy(), powrot}));
    resize(118 * Wyglad::kSiatka, 58 * Wyglad::kSiatka);
    connect(spnRok_, &QSpinBox::valueChanged, this, &frmKontrolaPIT4::wczytaj);
    wczytaj();
    lvwMiesiace_->setFocus();
}

void frmKontrolaPIT4::wczytaj() {
    const Klepsydra klepsydra;
    QList<WierszListy> wiersze;
    KwotyKontroli rok;
    int zlych = 0;
    for (const KontrolaPit4& k : KontrolaRoku(o_, spnRok_->value())) {
        const KwotyKontroli miesiac = kwoty(k);
        rok.dodaj(miesiac);
        QStringList teksty = QStringList{k.miesiac.napis()} + miesiac.teksty();
        if (!k.pit4) teksty[1] = QStringLiteral("brak");
        const bool zly = !miesiac.reszta.zero();
        zlych += zly;
        wiersze.append({wiersze.size(), teksty,
                        zly ? QStringLiteral("Tej różnicy nie tłumaczy ulga, ubezpieczenie ani zaokrąglenie.")
                            : QString(),
                        Waga::Wazna});
    }
    wiersze.append({wiersze.size(), QStringList{QStringLiteral("ROK")} + rok.teksty()});
    lvwMiesiace_->ustaw(wiersze);
    labWynik_->setText(
        zlych == 0
            ? QStringLiteral("Rok się zgadza: podatek z PIT-4 pomniejszony o ulgę, ubezpieczenie zdrowotne i "
                             "zaokrąglenia daje zaliczki z PIT-11.")
            : QStringLiteral(
                  "Miesięcy z niewyjaśnioną różnicą: %1. Deklaracji tam brak, zmieniono ją ręcznie "
                  "albo miesiąc zmienił się po jej utworzeniu.")
                  .arg(zlych));
}

} // namespace tornel::tax
