#include "personnel/frmPracZakladki.h"
#include "okna/Przyciski.h"
#include "okna/Wyglad.h"
#include "rules/SkladnikiPlac.h"
#include "store/SchematKadr.h"
#include <algorithm>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace tornel::personnel {

using namespace ekranKartoteki;
using schemat::PRACDP;

namespace {

/// Longest shown name of a component, in pixels: four columns of check boxes and three of amounts have to
/// stand side by side.
constexpr int kSzerokoscNazwy = 20 * Wyglad::kSiatka;
constexpr int kSzerokoscPodpisu = 21 * Wyglad::kSiatka;

void wyrownajSzerokosc(const QList<QWidget*>& widzety, int zapas) {
    int szerokosc = 0;
    for (const QWidget* w : widzety) szerokosc = std::max(szerokosc, w->sizeHint().width());
    for (QWidget* w : widzety) w->setFixedWidth(szerokosc + zapas);
}

QString bezMnemonika(QString tekst) { return tekst.replace(QLatin1Char('&'), QLatin1String("&&")); }

QList<Pozycja> pozycje(const KartotekaPracownika::Slownik& slownik) {
    QList<Pozycja> wynik{{qint64{0}, QString()}};
    for (const auto& [numer, opis] : slownik)
        if (numer != 0) wynik.append({numer, opis});
    return wynik;
}

} // namespace

Wartosc ZrodloKartoteki::czytaj(const Pole& pole) const {
    Wartosc wartosc = kartoteka_.wartosc(pole.kolumna);
    if (pole.klucz == 0) return wartosc;
    const auto* bity = std::get_if<qint64>(&wartosc);
    const bool tak = bity && maBit(static_cast<quint32>(*bity), pole.klucz);
    return tak ? QStringLiteral("T") : QStringLiteral("N");
}

void ZrodloKartoteki::zapisz(const Pole& pole, const Wartosc& wartosc) {
    if (pole.klucz == 0) {
        zmiany_.append({pole.kolumna, wartosc});
        return;
    }
    // The bits of one mask are one value.
    auto ta = std::ranges::find_if(zmiany_, [&](const auto& z) { return z.first.nr == pole.kolumna.nr; });
    if (ta == zmiany_.end()) ta = zmiany_.insert(ta, {pole.kolumna, kartoteka_.wartosc(pole.kolumna)});
    const auto* bity = std::get_if<qint64>(&ta->second);
    const qint64 bit = qint64{1} << (pole.klucz - 1);
    const qint64 maska = bity ? *bity : 0;
    ta->second = wartosc == Wartosc(QStringLiteral("T")) ? maska | bit : maska & ~bit;
}

KartotekaPracownika::Zmiany ZrodloKartoteki::zabierz() { return std::exchange(zmiany_, {}); }

ZakladkiPracownika::ZakladkiPracownika(Otoczenie& otoczenie, KartotekaPracownika& kartoteka, QWidget* rodzic)
    : QTabWidget(rodzic), o_(otoczenie), kartoteka_(kartoteka), zrodlo_(kartoteka), wiazanieNotatki_(zrodlo_),
      ramkaNotatki_(
          wiazanieNotatki_.grupa(QStringLiteral("INFORMACJE OPISOWE"), {ekranKartoteki::notatka()})) {
    setObjectName(QStringLiteral("tabPrac"));
    for (const ZakladkaKartoteki& z : zakladki()) {
        const int nr = count();
        wiazania_.push_back(std::make_unique<Wiazanie>(zrodlo_));
        connect(wiazania_.back().get(), &Wiazanie::zmienione, this, &ZakladkiPracownika::zmienione);
        addTab(strona(nr, z), z.tytul);
        setTabToolTip(nr, nr < 10 ? QStringLiteral("Alt+%1").arg((nr + 1) % 10) : QStringLiteral("Alt+-"));
    }
    connect(&wiazanieNotatki_, &Wiazanie::zmienione, this, &ZakladkiPracownika::zmienione);
    connect(this, &QTabWidget::currentChanged, this, &ZakladkiPracownika::zmienZakladke);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, const QWidget* nowy) { sprawdzWejscieDoAdresu(nowy); });
    wykoncz();
    opiszSkladniki();
}

ZakladkiPracownika::~ZakladkiPracownika() {
    // The pages that go down with it may still move the focus.
    disconnect(qApp, nullptr, this, nullptr);
}

QWidget* ZakladkiPracownika::strona(int zakladka, const ZakladkaKartoteki& opis) {
    auto* strona = new QWidget;
    auto* uklad = new QVBoxLayout(strona);
    auto* naglowek = new QLabel;
    naglowek->setObjectName(QStringLiteral("labImiona(%1)").arg(zakladka + 1));
    naglowek->setTextFormat(Qt::PlainText);
    QFont pismo = naglowek->font();
    pismo.setBold(true);
    pismo.setPointSize(pismo.pointSize() + 1);
    naglowek->setFont(pismo);
    naglowki_.append(naglowek);
    uklad->addWidget(naglowek);
    auto* kolumny = new QHBoxLayout;
    for (const KolumnaKartoteki& k : opis.kolumny)
        kolumny->addWidget(kolumna(wiazanie(zakladka), k), zakladka == Skladniki ? k.first().kolumn : 1);
    uklad->addLayout(kolumny);
    if (zakladka == AktywneSkladniki) uklad->addWidget(przyciskiSkladnikow());
    uklad->addStretch();
    auto* przewijanie = new QScrollArea;
    przewijanie->setWidget(strona);
    przewijanie->setWidgetResizable(true);
    przewijanie->setFrameShape(QFrame::NoFrame);
    przewijanie->setFocusPolicy(Qt::NoFocus);
    return przewijanie;
}

QWidget* ZakladkiPracownika::kolumna(Wiazanie& wiazanie, const KolumnaKartoteki& grupy) {
    auto* kolumna = new QWidget;
    auto* uklad = new QVBoxLayout(kolumna);
    uklad->setContentsMargins(0, 0, 0, 0);
    QList<QGroupBox*> ramki;
    for (const GrupaKartoteki& g : grupy) {
        QGroupBox* ramka = wiazanie.grupa(g.tytul, g.pola, g.kolumn);
        ramki.append(ramka);
        if (g.tytul == kAdresZamieszkania) ramkaZamieszkania_ = ramka;
        if (g.tytul == kAdresKorespondencji) ramkaKorespondencji_ = ramka;
        uklad->addWidget(ramka);
    }
    uklad->addStretch();
    wyrownajPodpisy(ramki);
    return kolumna;
}

QWidget* ZakladkiPracownika::przyciskiSkladnikow() {
    const auto nowy = [this](const char16_t* nazwa, const char16_t* napis, auto czynnosc) {
        QPushButton* p = przycisk(QString::fromUtf16(nazwa), QString::fromUtf16(napis));
        p->setAutoDefault(false);
        connect(p, &QPushButton::clicked, this, czynnosc);
        return p;
    };
    using Katalog = const SkladnikiPlac&;
    auto* wszystkie = nowy(u"cmdAktAll", u"AktAll", [this] {
        zaznaczSkladniki([](Katalog, int) { return true; }, [](Katalog, int) { return true; });
    });
    auto* zadne = nowy(u"cmdDellAll", u"DellAll", [this] {
        zaznaczSkladniki([](Katalog, int) { return false; }, [](Katalog, int) { return false; });
    });
    auto* katalogowe = nowy(u"cmdAktSys", u"AktSys", [this] {
        zaznaczSkladniki([](Katalog k, int n) { return k.SkAkt(n); },
                         [](Katalog k, int n) { return k.SkUAkt(n); });
    });
    auto* dodatnie = nowy(u"cmdUaktDod", u"Uaktywnij", [this] { uaktywnij(); });
    auto* ujemne = nowy(u"cmdUaktUje", u"Uaktywnij", [this] { uaktywnij(); });
    wszystkie->setToolTip(QStringLiteral("Zaznacza wszystkie składniki"));
    zadne->setToolTip(QStringLiteral("Odznacza wszystkie składniki"));
    katalogowe->setToolTip(QStringLiteral("Zaznacza składniki aktywne w systemie"));
    dodatnie->setAccessibleName(QStringLiteral("Uaktywnij dodatnie"));
    ujemne->setAccessibleName(QStringLiteral("Uaktywnij ujemne"));
    labMiejsca_ = new QLabel;
    labMiejsca_->setObjectName(QStringLiteral("labMiejsca"));
    labMiejsca_->setProperty("podpowiedz", true);

    auto* rzad = new QWidget;
    auto* uklad = new QHBoxLayout(rzad);
    uklad->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* p : {wszystkie, zadne, katalogowe}) uklad->addWidget(p);
    uklad->addWidget(labMiejsca_, 1, Qt::AlignCenter);
    uklad->addWidget(new QLabel(QStringLiteral("Dodatnie:")));
    uklad->addWidget(dodatnie);
    uklad->addWidget(new QLabel(QStringLiteral("Ujemne:")));
    uklad->addWidget(ujemne);
    return rzad;
}

void ZakladkiPracownika::wykoncz() {
    Wiazanie& ogolne = wiazanie(Ogolne);
    const auto sprawdzaj = [&](const char16_t* nazwa,
                               QString (KartotekaPracownika::*regula)(const QString&) const) {
        ogolne.sprawdzaj(QString::fromUtf16(nazwa), [this, regula](const QString& tekst, const QString&) {
            return (kartoteka_.*regula)(tekst);
        });
    };
    sprawdzaj(u"txtPesel", &KartotekaPracownika::SprawdzPesel);
    sprawdzaj(u"txtNip", &KartotekaPracownika::SprawdzNip);

    // Dates and codes of the five insurances stand in columns behind their check boxes, and so do the names
    // of the components.
    QList<QWidget*> ubezpieczenia, skladniki;
    for (const QChar fundusz : QStringLiteral("ercwz"))
        ubezpieczenia.append(wiazanie(Zus3).kontrolka(QStringLiteral("chkZwua_") + fundusz));
    wyrownajSzerokosc(ubezpieczenia, 2 * Wyglad::kSiatka);
    for (int n = 1; n <= kDodatnich; ++n) skladniki.append(wiazanie(AktywneSkladniki).kontrolka(poleD(n)));
    for (int n = 1; n <= kUjemnych; ++n) skladniki.append(wiazanie(AktywneSkladniki).kontrolka(poleP(n)));
    wyrownajSzerokosc(skladniki, 0);
    wiazanie(DanePracownicze).dolacz(QStringLiteral("txtEtat"), new QLabel(QStringLiteral("/")));
}

void ZakladkiPracownika::opiszSkladniki() {
    const auto opisz = [this](const QString& flaga, const QString& kwota, const QString& nazwa) {
        // Names that differ often do so in their last letter.
        const auto doSzerokosci = [&](int szerokosc) {
            return fontMetrics().elidedText(nazwa, Qt::ElideMiddle, szerokosc);
        };
        wiazanie(AktywneSkladniki).ustawDopisek(flaga, doSzerokosci(kSzerokoscNazwy));
        QWidget* pudelko = wiazanie(AktywneSkladniki).kontrolka(flaga);
        pudelko->setToolTip(nazwa);
        pudelko->setAccessibleName(pudelko->accessibleName() + QLatin1Char(' ') + nazwa);
        // A nameless component still needs a caption of its own.
        const QString podpis = nazwa.isEmpty() ? QStringLiteral("?") : doSzerokosci(kSzerokoscPodpisu);
        wiazanie(Skladniki).ustawPodpis(kwota, bezMnemonika(podpis) + QLatin1Char(':'));
        wiazanie(Skladniki).kontrolka(kwota)->setToolTip(nazwa);
        wiazanie(Skladniki).kontrolka(kwota)->setAccessibleName(nazwa);
    };
    for (int n = 1; n <= kDodatnich; ++n) opisz(poleD(n), kwotaDodatnia(n), o_.skladniki.SkNazwa(n));
    for (int n = 1; n <= kUjemnych; ++n) opisz(poleP(n), kwotaUjemna(n), o_.skladniki.SkUNazwa(n));
}

void ZakladkiPracownika::pokazNaglowki() {
    QStringList czesci;
    for (const Kolumna k : {PRACDP("Imie_1"), PRACDP("imie_2"), PRACDP("Naz")}) {
        Pole pole;
        pole.kolumna = k;
        czesci.append(tekstWartosci(pole, zrodlo_.czytaj(pole)));
    }
    const QString tekst = czesci.join(QLatin1Char(' ')).simplified();
    for (QLabel* naglowek : naglowki_) naglowek->setText(tekst);
}

void ZakladkiPracownika::Pokaz() {
    const bool jest = kartoteka_.pracownik().has_value();
    for (const auto& w : wiazania_) w->blokuj(!jest);
    wiazanieNotatki_.blokuj(!jest);
    for (QPushButton* p : findChildren<QPushButton*>()) p->setEnabled(jest);
    if (jest) {
        zablokujNieaktywne();
        wiazanieNotatki_.wczytaj();
    } else {
        for (const auto& w : wiazania_) w->czysc();
        wiazanieNotatki_.czysc();
    }
    PokazZakladke(currentIndex());
}

void ZakladkiPracownika::zablokujNieaktywne() {
    Wiazanie& w = wiazanie(AktywneSkladniki);
    for (int n = 1; n <= kDodatnich; ++n) w.kontrolka(poleD(n))->setEnabled(o_.skladniki.SkAkt(n));
    for (int n = 1; n <= kUjemnych; ++n) w.kontrolka(poleP(n))->setEnabled(o_.skladniki.SkUAkt(n));
}

void ZakladkiPracownika::PokazZakladke(int zakladka) {
    Wiazanie& w = wiazanie(zakladka);
    if (zakladka == Adresy) zaproponowane_.clear();
    if (zakladka == UrzadSkarbowy) w.ustawPozycje(QStringLiteral("cboUs_id"), pozycje(kartoteka_.urzedy()));
    if (zakladka == Inne) w.ustawPozycje(QStringLiteral("cboMp_id"), pozycje(kartoteka_.miejscaPracy()));
    if (kartoteka_.pracownik()) w.wczytaj();
    if (zakladka == Skladniki || zakladka == AktywneSkladniki) Miejsca();
    pokazNaglowki();
    // The tab or the employee may have come to the focus, and not the focus to the address.
    sprawdzWejscieDoAdresu(QApplication::focusWidget());
}

void ZakladkiPracownika::ZapiszZakladke(int zakladka) {
    wiazanie(zakladka).zbierz();
    wiazanieNotatki_.zbierz();
    kartoteka_.ZapiszZakladke(zrodlo_.zabierz());
    pokazNaglowki();
    emit zapisane();
}

void ZakladkiPracownika::Zapisz() { ZapiszZakladke(biezaca_); }

void ZakladkiPracownika::zmienZakladke(int zakladka) {
    ZapiszZakladke(biezaca_);
    biezaca_ = zakladka;
    PokazZakladke(zakladka);
}

void ZakladkiPracownika::odswiezZnaki() {
    for (const auto& w : wiazania_) w->odswiezZnaki();
    wiazanieNotatki_.odswiezZnaki();
}

bool ZakladkiPracownika::jestZmiana() const {
    return wiazanieNotatki_.jestZmiana() ||
           std::ranges::any_of(wiazania_, [](const auto& w) { return w->jestZmiana(); });
}

bool ZakladkiPracownika::wlasnieNieZrozumiano() const {
    return wiazania_[static_cast<std::size_t>(biezaca_)]->wlasnieNieZrozumiano();
}

void ZakladkiPracownika::zaznaczSkladniki(bool (*dodatni)(const SkladnikiPlac&, int),
                                          bool (*ujemny)(const SkladnikiPlac&, int)) {
    const auto tekst = [](bool tak) { return tak ? QStringLiteral("T") : QStringLiteral("N"); };
    Wiazanie& w = wiazanie(AktywneSkladniki);
    for (int n = 1; n <= kDodatnich; ++n) w.ustawTekst(poleD(n), tekst(dodatni(o_.skladniki, n)));
    for (int n = 1; n <= kUjemnych; ++n) w.ustawTekst(poleP(n), tekst(ujemny(o_.skladniki, n)));
}

void ZakladkiPracownika::uaktywnij() {
    ZapiszZakladke(AktywneSkladniki);
    Miejsca();
}

void ZakladkiPracownika::Miejsca() {
    const bool jest = kartoteka_.pracownik().has_value();
    QHash<QString, bool> widoczne;
    int dodatnie = 0, ujemne = 0;
    for (int n = 1; n <= kDodatnich; ++n) {
        const bool miejsce = jest && kartoteka_.miejsceDodatnie(n);
        widoczne.insert(kwotaDodatnia(n), miejsce);
        dodatnie += miejsce;
    }
    for (int n = 1; n <= kUjemnych; ++n) {
        const bool miejsce = jest && kartoteka_.miejsceUjemne(n);
        widoczne.insert(kwotaUjemna(n), miejsce);
        ujemne += miejsce;
    }
    wiazanie(Skladniki).pokaz(widoczne);
    labMiejsca_->setText(
        QStringLiteral("Na zakładce „Składniki”: dodatnich %1, ujemnych %2").arg(dodatnie).arg(ujemne));
}

void ZakladkiPracownika::sprawdzWejscieDoAdresu(const QWidget* pole) {
    if (biezaca_ != Adresy || !pole || !kartoteka_.pracownik()) return;
    for (const auto& [ramka, adres] : {std::pair(ramkaZamieszkania_, AdresKopii::Zamieszkania),
                                       std::pair(ramkaKorespondencji_, AdresKopii::Korespondencji)}) {
        if (!ramka->isAncestorOf(pole) || zaproponowane_.contains(adres)) continue;
        // Asked once the focus has settled: a box in the middle of its change would take it away.
        QMetaObject::invokeMethod(
            this, [this, adres = adres] { zaproponujKopie(adres); }, Qt::QueuedConnection);
    }
}

void ZakladkiPracownika::zaproponujKopie(AdresKopii adres) {
    const QGroupBox* ramka = adres == AdresKopii::Zamieszkania ? ramkaZamieszkania_ : ramkaKorespondencji_;
    if (biezaca_ != Adresy || !ramka->isAncestorOf(QApplication::focusWidget())) return;
    if (!zaproponowane_.insert(adres).second) return;
    ZapiszZakladke(Adresy);
    if (!kartoteka_.ZaproponujKopieAdresu(adres)) return;
    wiazanie(Adresy).wczytaj();
    emit zmienione();
}

void ZakladkiPracownika::wejdz() {
    for (QWidget* w = nextInFocusChain(); w != this; w = w->nextInFocusChain()) {
        const bool pole = (w->focusPolicy() & Qt::TabFocus) != 0 && w->isEnabled() && w->isVisible();
        if (!pole || !currentWidget()->isAncestorOf(w)) continue;
        w->setFocus(Qt::TabFocusReason);
        qobject_cast<QScrollArea*>(currentWidget())->ensureWidgetVisible(w);
        return;
    }
}

void ZakladkiPracownika::nastepnePole() {
    focusNextChild();
    QWidget* pole = QApplication::focusWidget();
    auto* strona = qobject_cast<QScrollArea*>(currentWidget());
    if (!strona->isAncestorOf(pole)) return wejdz();
    strona->ensureWidgetVisible(pole);
}

} // namespace tornel::personnel
