#include "payroll/miesiace/frmPlace.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "okna/frmInputData.h"
#include "okna/Klawisze.h"
#include "okna/Klepsydra.h"
#include "okna/Przyciski.h"
#include "okna/WidokListy.h"
#include "okna/Wyglad.h"
#include "payroll/lista/frmPlaceLista.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <algorithm>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace tornel::payroll {

using schemat::PLACE;

namespace {

const QString kOpis = QStringLiteral("txtInfOpis");

QList<Pole> polaPodsumowania() {
    const auto kwota = [](const QString& nazwa, const QString& podpis, Kolumna kolumna) {
        return Pole{nazwa, podpis, kolumna, Rodzaj::Kwota, Dostep::Odczyt};
    };
    return {
        {QStringLiteral("txtIlWyplat"), QStringLiteral("Ilość wypłat:"), PLACE("il_wyplat"), Rodzaj::Liczba,
         Dostep::Odczyt},
        kwota(QStringLiteral("txtSumBrutto"), QStringLiteral("Brutto:"), PLACE("sum_brutto")),
        kwota(QStringLiteral("txtSumKup"), QStringLiteral("Koszty uzysk. przych.:"), PLACE("sum_kup")),
        kwota(QStringLiteral("txtSumNetto"), QStringLiteral("Netto:"), PLACE("sum_netto")),
        kwota(QStringLiteral("txtSumPodat"), QStringLiteral("Podatek dochodowy:"), PLACE("sum_podat")),
        kwota(QStringLiteral("txtSumInne"), QStringLiteral("Dodatki i potrącenia:"), PLACE("sum_inne")),
        kwota(QStringLiteral("txtDoWyplaty"), QStringLiteral("Do wypłaty:"), PLACE("do_wyplaty")),
        kwota(QStringLiteral("txtSumFp"), QStringLiteral("Fundusz pracy:"), PLACE("sum_fp")),
        kwota(QStringLiteral("txtSumFgsp"), QStringLiteral("Fundusz GSP:"), PLACE("sum_fgsp")),
        kwota(QStringLiteral("txtSumFeprd"), QStringLiteral("Fundusz emerytalny:"), PLACE("sum_feprd")),
        kwota(QStringLiteral("txtSumFrprd"), QStringLiteral("Fundusz rentowy:"), PLACE("sum_frprd")),
        kwota(QStringLiteral("txtSumFc"), QStringLiteral("Fundusz chorobowy:"), PLACE("sum_fc")),
        kwota(QStringLiteral("txtSumFw"), QStringLiteral("Fundusz wypadkowy:"), PLACE("sum_fw")),
        kwota(QStringLiteral("txtSumUbzdr"), QStringLiteral("Ubezp. zdrowotne:"), PLACE("sum_ubzdr")),
    };
}

QStringList tekstyWiersza(const WierszMiesiaca& w) {
    return {NapisMiesiaca(w.miesiac.rok, w.miesiac.mies), NazwaMiesiaca(w.miesiac.mies).toUpper(),
            w.zablokowany ? QStringLiteral("ZABLOKOWANY") : QString()};
}

} // namespace

frmPlace::frmPlace(Otoczenie& otoczenie, QWidget* rodzic, PortWydrukow wydruki)
    : OknoEdycji(QStringLiteral("frmPlace"), otoczenie.rozmowa, Zamykanie::Zapis, rodzic,
                 PoEnterze::PrzyciskDomyslny),
      o_(otoczenie), wydruki_(std::move(wydruki)), miesiace_(otoczenie), zrodlo_{&otoczenie.sesja.rsPLACE},
      wiazanie_(zrodlo_),
      lvwLista_(new WidokListy({{QStringLiteral("MIESIĄC"), Qt::AlignLeft, Porzadek::Data},
                                {QString()},
                                {QStringLiteral("STATUS")}},
                               {25, 35, 35})) {
    const Klepsydra klepsydra;
    setWindowTitle(QStringLiteral("Lista płac"));
    lvwLista_->setObjectName(QStringLiteral("lvwLista"));
    lvwLista_->ustawPodpowiedz(QStringLiteral(
        "Nie ma jeszcze żadnego miesiąca.\nPrzycisk „Nowy” tworzy pierwszą miesięczną listę płac."));
    budujPrzyciski();
    auto* uklad = new QVBoxLayout(this);
    uklad->addWidget(dzielnik(lvwLista_, 44 * Wyglad::kSiatka, ramki()), 1);
    auto* dol = new QHBoxLayout;
    dol->addWidget(etykietaZmian(QStringLiteral("Opis zapisuje się przy wyborze innego miesiąca.")), 1);
    dol->addWidget(
        rzadPrzyciskow({cmdNowy_, cmdUsun_, cmdBlokada_, cmdWejdz_, przyciskPomocy(), cmdAnuluj_}));
    uklad->addLayout(dol);
    cmdWejdz_->setDefault(true);
    resize(122 * Wyglad::kSiatka, 68 * Wyglad::kSiatka);

    connect(lvwLista_, &WidokListy::wybrano, this, [this](qint64 id) {
        zapiszOpis();
        Wypisz_dane(RokMies::zId(id));
    });
    connect(lvwLista_, &WidokListy::wejscie, this, &frmPlace::WejdzNaListe);
    connect(&wiazanie_, &Wiazanie::zmienione, this, &frmPlace::pokazZmiany);
    connect(&przeglad_, &QTimer::timeout, this, &frmPlace::przejrzyjNastepny);
    Wczytaj_liste();
    lvwLista_->setFocus();
}

void frmPlace::budujPrzyciski() {
    cmdNowy_ = przycisk(QStringLiteral("cmdNowy"), QStringLiteral("&Nowy"), u"nowy");
    cmdUsun_ = przycisk(QStringLiteral("cmdUsun"), QStringLiteral("&Usuń"), u"usun");
    cmdBlokada_ = przycisk(QStringLiteral("Command1"), QStringLiteral("&Blokada mies."), u"blokada");
    cmdWejdz_ = przycisk(QStringLiteral("Command2"), QStringLiteral("&Wejdź na listę"), u"wejdz");
    cmdAnuluj_ = przycisk(QStringLiteral("cmdAnuluj"), QStringLiteral("&Powrót"), u"powrot");
    connect(cmdNowy_, &QPushButton::clicked, this, &frmPlace::nowy);
    connect(cmdUsun_, &QPushButton::clicked, this, &frmPlace::usun);
    connect(cmdBlokada_, &QPushButton::clicked, this, &frmPlace::blokuj);
    connect(cmdWejdz_, &QPushButton::clicked, this, &frmPlace::WejdzNaListe);
    connect(cmdAnuluj_, &QPushButton::clicked, this, &QDialog::reject);
    podlacz(Polecenie::Nowy, *cmdNowy_);
    podlacz(Polecenie::Usun, *cmdUsun_, *lvwLista_);
}

QWidget* frmPlace::ramki() {
    auto* prawa = new QWidget;
    auto* uklad = new QVBoxLayout(prawa);
    uklad->setContentsMargins(0, 0, 0, 0);
    uklad->addWidget(wiazanie_.grupa(QStringLiteral("PODSUMOWANIE MIESIĄCA"), polaPodsumowania(), 2));
    QGroupBox* opis =
        wiazanie_.grupa(QStringLiteral("INFORMACJE OPISOWE"),
                        {{kOpis, QString(), PLACE("inf_opis"), Rodzaj::Notatka, Dostep::Edycja}});
    // The count stands under the same right edge as the amounts.
    wiazanie_.kontrolka(QStringLiteral("txtIlWyplat"))
        ->setFixedWidth(wiazanie_.kontrolka(QStringLiteral("txtDoWyplaty"))->maximumWidth());
    Wyglad::oznaczGlowne(*wiazanie_.kontrolka(QStringLiteral("txtDoWyplaty")));
    wiazanie_.kontrolka(kOpis)->setAccessibleName(opis->title());
    uklad->addWidget(opis, 1);
    return prawa;
}

void frmPlace::Wczytaj_liste(std::optional<RokMies> zaznacz) {
    QList<WierszListy> wiersze;
    wiersze_ = miesiace_.Wczytaj_liste();
    for (const WierszMiesiaca& w : wiersze_) wiersze.append({w.miesiac.id(), tekstyWiersza(w)});
    if (!zaznacz && !wiersze.isEmpty()) zaznacz = RokMies::zId(wiersze.last().id);
    biezacy_.reset();
    const bool pusta = wiersze.isEmpty();
    QList<RokMies> miesiace;
    for (const WierszListy& w : wiersze) miesiace.append(RokMies::zId(w.id));
    lvwLista_->ustaw(std::move(wiersze), zaznacz ? zaznacz->id() : -1);
    if (pusta) Wypisz_dane({});
    przejrzyj(miesiace);
}

void frmPlace::przejrzyj(QList<RokMies> miesiace) {
    doPrzejrzenia_ = std::move(miesiace);
    przeglad_.start();
}

void frmPlace::przejrzyjNastepny() {
    if (doPrzejrzenia_.isEmpty()) return przeglad_.stop();
    const RokMies miesiac = doPrzejrzenia_.takeLast();
    const auto wiersz = std::ranges::find(wiersze_, miesiac, &WierszMiesiaca::miesiac);
    if (wiersz == wiersze_.end()) return;
    lvwLista_->lista().zmien(miesiac.id(), tekstyWiersza(*wiersz), miesiace_.doUwagi(miesiac), Waga::Wazna);
}

void frmPlace::Wypisz_dane(std::optional<RokMies> miesiac) {
    biezacy_ = miesiac;
    for (QPushButton* p : {cmdUsun_, cmdBlokada_, cmdWejdz_}) p->setEnabled(biezacy_.has_value());
    wiazanie_.blokuj(!biezacy_);
    if (!biezacy_) return wiazanie_.czysc();
    // A month with a damaged header shows what it can.
    (void)miesiace_.Ustaw(*biezacy_);
    wiazanie_.wczytaj();
}

void frmPlace::zapiszOpis() {
    if (jestZmiana()) (void)zapiszZmiany();
}

bool frmPlace::zapiszZmiany() {
    miesiace_.ZapiszOpis(*biezacy_, wiazanie_.tekst(kOpis));
    wiazanie_.wczytaj();
    pokazZmiany();
    return true;
}

void frmPlace::pokazPonownie() {
    if (biezacy_) (void)miesiace_.Ustaw(*biezacy_);
    // A note that could not be stored stays in its field.
    if (biezacy_ && !wiazanie_.jestZmiana()) wiazanie_.wczytaj();
}

void frmPlace::nowy() {
    zapiszOpis();
    const auto zapytaj = [this]() -> std::optional<RokMies> {
        const qint64 ostatni = lvwLista_->lista().ostatni();
        const RokMies o = RokMies::zId(ostatni);
        const QDate wstepna = ostatni > 0 ? PierwszyDzien(o.rok, o.mies).addMonths(1) : QDate::currentDate();
        frmInputData okno(frmInputData::Tryb::Miesiac, QStringLiteral("Nowa lista płac"), wstepna, this);
        if (okno.exec() != Accepted) return std::nullopt;
        return RokMies{okno.rok(), okno.mies()};
    };
    if (const auto miesiac = miesiace_.Nowy_miesiac(zapytaj)) Wczytaj_liste(miesiac);
}

void frmPlace::usun() {
    zapiszOpis();
    if (!biezacy_) return;
    const qint64 sasiad = lvwLista_->sasiad(biezacy_->id());
    if (miesiace_.Usun_miesiac(*biezacy_)) Wczytaj_liste(RokMies::zId(sasiad));
}

void frmPlace::blokuj() {
    zapiszOpis();
    if (biezacy_ && miesiace_.BlokadaMies(*biezacy_)) Wczytaj_liste(RokMies(*biezacy_));
}

void frmPlace::WejdzNaListe() {
    zapiszOpis();
    if (!biezacy_) return;
    QString symbol = QStringLiteral(" ");
    if (o_.stale.AktOpWieluList) {
        const auto podany = o_.rozmowa.wprowadz(QStringLiteral("Podaj symbol listy.\n(Cancel - wszystkie)"),
                                                QString(windowTitle()).remove(QStringLiteral("[*]")));
        if (podany && !podany->isEmpty()) symbol = podany->left(1);
    }
    przeglad_.stop(); // what the clerk waits for goes first
    frmPlaceLista(o_, *biezacy_, symbol, this, wydruki_).exec();
    Wypisz_dane(biezacy_);
    przejrzyj(doPrzejrzenia_ + QList{*biezacy_});
}

} // namespace tornel::payroll
