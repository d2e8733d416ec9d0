#include "tax/frmDeklaracjaRoczna.h"
#include "common/Rozmowa.h"
#include "okna/Klepsydra.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include "rules/Wzory.h"
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tornel::tax {

frmDeklaracjaRoczna::frmDeklaracjaRoczna(Otoczenie& otoczenie, Deklaracja ktora, qint64 prcId,
                                         const OkresPodatkowy& okres, PortWydrukowDeklaracji port,
                                         QWidget* rodzic)
    : OknoEdycji(OpisDeklaracji(ktora).ekran.toString(), otoczenie.rozmowa, Zamykanie::Zapis, rodzic),
      o_(otoczenie), ktora_(ktora), port_(std::move(port)), zrodlo_(ktora, rs(), otoczenie.stale),
      wiazanie_(zrodlo_), labUwagi_(Wyglad::baner({}, this)) {
    {
        const Klepsydra klepsydra;
        WypelnijDeklaracje(o_, ktora_, prcId, okres, QDate::currentDate());
    }
    const WierszDeklaracji d(ktora_, rs());
    setWindowTitle(QStringLiteral("Wydruk %1").arg(OpisDeklaracji(ktora_).nazwa));
    auto* uklad = new QVBoxLayout(this);
    auto* labOsoba = new QLabel(QStringLiteral("%1 %2, nr %3, okres %4 do %5")
                                    .arg(d.tekst("imie1"), d.tekst("Nazwisko"))
                                    .arg(prcId)
                                    .arg(okres.od.napis(), okres.dokad.napis()));
    labOsoba->setObjectName(QStringLiteral("labOsoba"));
    labOsoba->setTextFormat(Qt::PlainText);
    labOsoba->setProperty("naglowek", true);
    labUwagi_->setObjectName(QStringLiteral("labUwagi"));
    labUwagi_->setWordWrap(true);
    uklad->addWidget(labOsoba);
    uklad->addWidget(labUwagi_);
    uklad->addWidget(ZakladkiPol(wiazanie_, QStringLiteral("tabDeklaracja"), GrupyDeklaracji(ktora_)), 1);
    uklad->addWidget(przyciski());
    if (ktora_ == Deklaracja::Pit40) sprawdzajWzory();
    connect(&wiazanie_, &Wiazanie::opuszczone, this, &frmDeklaracjaRoczna::Oblicz3);
    resize(112 * Wyglad::kSiatka, 80 * Wyglad::kSiatka);
    Wyswietl();
    wiazanie_.kontrolka(PolaDoWpisania(GrupyDeklaracji(ktora_)).first())->setFocus();
}

QWidget* frmDeklaracjaRoczna::przyciski() {
    auto* cmdDrukuj = przycisk(QStringLiteral("cmdDrukuj"), QStringLiteral("&Drukuj"), u"drukuj");
    auto* cmdRozlicz = przycisk(QStringLiteral("cmdRozlicz"), QStringLiteral("Ro&zlicz"));
    auto* cmdPowrot = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Powrót"), u"powrot");
    for (QPushButton* p : {cmdDrukuj, cmdRozlicz, cmdPowrot}) p->setAutoDefault(false);
    connect(cmdDrukuj, &QPushButton::clicked, this, &frmDeklaracjaRoczna::drukuj);
    connect(cmdRozlicz, &QPushButton::clicked, this, &frmDeklaracjaRoczna::rozlicz);
    connect(cmdPowrot, &QPushButton::clicked, this, &QDialog::reject);
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, cmdDrukuj, &QPushButton::click);
    cmdDrukuj->setEnabled(static_cast<bool>(port_.drukuj));
    if (ktora_ == Deklaracja::Pit40)
        return rzadPrzyciskow({cmdRozlicz, cmdDrukuj, przyciskPomocy(), cmdPowrot});
    delete cmdRozlicz;
    return rzadPrzyciskow({cmdDrukuj, przyciskPomocy(), cmdPowrot});
}

void frmDeklaracjaRoczna::sprawdzajWzory() {
    for (int i = 1; i <= 3; ++i)
        wiazanie_.sprawdzaj(QStringLiteral("txtWzor%1").arg(i), [this](const QString& tekst, const QString&) {
            Wzory wzory(o_.rozmowa);
            return SprawdzPoleWzoru(wzory, tekst, o_.rozmowa);
        });
}

bool frmDeklaracjaRoczna::jestZmiana() const { return wiazanie_.jestZmiana() || rs().zmieniony(); }

void frmDeklaracjaRoczna::WpiszDoBazy() { wiazanie_.zbierz(); }

bool frmDeklaracjaRoczna::zapiszZmiany() {
    wiazanie_.zakoncz();
    if (wiazanie_.wlasnieNieZrozumiano()) return false;
    WpiszDoBazy();
    if (rs().zmieniony()) rs().UpdateBatch(QStringLiteral("Deklaracja %1").arg(OpisDeklaracji(ktora_).nazwa));
    return true;
}

void frmDeklaracjaRoczna::Oblicz3() {
    WpiszDoBazy();
    wiazanie_.odswiez();
    Wyglad::ustawBaner(*labUwagi_, UwagiDoKwot(WierszDeklaracji(ktora_, rs()), zrodlo_.skala(), o_.rozmowa));
}

void frmDeklaracjaRoczna::Wyswietl() {
    wiazanie_.wczytaj();
    wiazanie_.blokuj(!rs().naWierszu());
    if (rs().naWierszu()) Oblicz3();
}

void frmDeklaracjaRoczna::rozlicz() {
    if (!zapiszZmiany()) return;
    try {
        WierszDeklaracji d(ktora_, rs());
        RozliczPit40(zrodlo_.skala(), d, o_.rozmowa);
        d.przepisz(rs());
        rs().UpdateBatch(u"Rozliczenie PIT-40");
    } catch (const Blad& blad) {
        o_.rozmowa.komunikat(blad.komunikat(), Styl::Wykrzyknik);
    }
    Wyswietl();
}

void frmDeklaracjaRoczna::drukuj() {
    if (!zapiszZmiany()) return;
    const QString nazwa = OpisDeklaracji(ktora_).nazwa.toString();
    if (o_.rozmowa.pytanie(QStringLiteral("Czy drukować pierwszą stronę %1 ?").arg(nazwa)))
        port_.drukuj(WierszDeklaracji(ktora_, rs()), 1, this);
    if (o_.rozmowa.pytanie(QStringLiteral("Czy drukować drugą stronę %1 ?").arg(nazwa)))
        port_.drukuj(WierszDeklaracji(ktora_, rs()), 2, this);
}

} // namespace tornel::tax
