#include "payroll/lista/Naliczanie.h"
#include "common/Daty.h"
#include "payroll/lista/StareBrutto.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <set>

namespace tornel::payroll {

using schemat::PLA;
using schemat::PLB;
using schemat::PRACPR;

Naliczanie::Naliczanie(Otoczenie& otoczenie, const Pozycje& pozycje, OdpowiedziSerii& odpowiedzi,
                       WykazyPodstaw* wykazy)
    : o_(otoczenie), pozycje_(pozycje),
      odpowiedzi_(odpowiedzi), w_{otoczenie, pozycje, odpowiedzi, wykazy, DaneNieobecnosci(otoczenie.sesja)} {
}

Naliczanie::~Naliczanie() = default;

void Naliczanie::WypelnijDodatni(int i) {
    Sesja& s = o_.sesja;
    const Waluta zasadnicza = s.rsPRACPR.kwota(PRACPR("placa_zas"));
    Waluta kwota;
    if (i == o_.stale.PlZas)
        kwota = zasadnicza;
    else if (i == o_.stale.PremPr)
        kwota = Procent(zasadnicza, s.rsPRACPR.kwota(PRACPR("Premia_pr")));
    else
        kwota = s.rsPRACSK.kwota(schemat::DodatniPracownika(i));
    s.rsPLS.ustaw(schemat::SP(i), kwota);
    WypelnijOkres(i);
}

void Naliczanie::WypelnijOkres(int i) {
    Sesja& s = o_.sesja;
    QDate od, dokad;
    if (s.rsPLS.kwota(schemat::SP(i)) > Waluta{}) {
        const QDate pierwszy = PierwszyDzien(s.rok(), s.mies());
        const QDate umowaOd = s.rsPRACPR.data(PRACPR("umowa_od"));
        od = !umowaOd.isValid() || umowaOd < pierwszy ? pierwszy : umowaOd;
        dokad = OstatniDzien(s.rok(), s.mies());
    }
    s.rsPLD.ustaw(schemat::SOD(i), od);
    s.rsPLD.ustaw(schemat::SDO(i), dokad);
}

void Naliczanie::WypelnijUjemny(int i) {
    o_.sesja.rsPLS.ustaw(schemat::SM(i), o_.sesja.rsPRACSK.kwota(schemat::UjemnyPracownika(i)));
}

void Naliczanie::WypelnijSkladniki() {
    // A row removed and added again has the same key, but no leave has been priced on it.
    zasilek_.reset();
    for (int i = 1; i <= 30; ++i)
        if (pozycje_.dodatnia(i).aktywna()) WypelnijDodatni(i);
    for (int i = 1; i <= 15; ++i)
        if (pozycje_.ujemna(i).aktywna()) WypelnijUjemny(i);
}

void Naliczanie::Przelicz2(Tryb tryb) {
    WypelnijSkladniki();
    if (o_.stale.AktRejNadg)
        for (const int nr : nadgodziny_.PrzeniesNadgodziny(tryb)) WypelnijOkres(nr);
    const Waluta zasilek = l4_.WyliczL4(tryb);
    urlop_.WyliczURL(tryb);
    const Recordset& a = o_.sesja.rsPLA;
    zasilek_ = {a.liczba(PLA("PRC_ID")), a.tekst(PLA("LISTA")), zasilek};
}

void Naliczanie::dolicz(const PozycjaSkladnika& pozycja, Waluta kwota) {
    if (kwota.zero()) return;
    const Waluta ubruttowiona = Procent(kwota, o_.sesja.rsPLB.kwota(PLB("WSK_UBR")), 2);
    if (pozycja.brutto) {
        sumy_.SumaBrutto += kwota;
        sumy_.SumaBruttoUbr += pozycja.zus ? ubruttowiona : kwota;
    } else {
        sumy_.SumaInne += kwota;
    }
    if (pozycja.zus) {
        sumy_.RoznicaUbr += ubruttowiona - kwota;
        sumy_.PodstawaZUS += kwota;
        sumy_.PodstawaZUSUbr += ubruttowiona;
    }
    // Deliberate: the multiplied value enters the health base only for components outside ZUS.
    if (pozycja.ubzdr) sumy_.PodstawaUbzdr += pozycja.zus ? kwota : ubruttowiona;
}

void Naliczanie::WyliczPodstawy(Tryb tryb) {
    Sesja& s = o_.sesja;
    sumy_ = {};
    Waluta dodatki, potracenia;
    for (int i = 1; i <= 30; ++i) {
        const PozycjaSkladnika& pozycja = pozycje_.dodatnia(i);
        if (!pozycja.aktywna()) continue;
        const Waluta kwota = s.rsPLS.kwota(schemat::SP(i));
        if (!pozycja.brutto) dodatki += kwota;
        dolicz(pozycja, kwota);
    }
    for (int i = 1; i <= 15; ++i) {
        const PozycjaSkladnika& pozycja = pozycje_.ujemna(i);
        if (!pozycja.aktywna()) continue;
        const Waluta kwota = s.rsPLS.kwota(schemat::SM(i));
        if (!pozycja.brutto) potracenia += kwota;
        dolicz(pozycja, -kwota);
    }

    const Waluta ppe = s.rsPLB.kwota(PLB("PPE"));
    if (ppe > s.rsPLB.kwota(PLB("ZUS_PPE")) &&
        (tryb == Tryb::Seria ||
         o_.rozmowa.pytanie(
             QStringLiteral("Kwota odpisu w ramach PPE jest większa od średniej. Czy zwiększyć podstawę "
                            "do ZUS o różnicę między kwotą odpisu a średnią ?"))))
        s.rsPLB.ustaw(PLB("ZUS_PPE"), ppe);
    const Waluta doliczonePpe = s.rsPLB.kwota(PLB("ZUS_PPE")) - ppe;
    sumy_.PodstawaZUS += doliczonePpe;
    sumy_.PodstawaUbzdr += doliczonePpe;

    s.rsPLA.ustaw(PLA("BRUTTO"), Round(sumy_.SumaBrutto, 2));
    s.rsPLA.ustaw(PLA("DODATKI"), dodatki);
    s.rsPLA.ustaw(PLA("POTRACENIA"), potracenia);
    s.rsPLB.ustaw(PLB("UBRUTTOW"), sumy_.RoznicaUbr);
}

void Naliczanie::WyliczSkladki() {
    Recordset& a = o_.sesja.rsPLA;
    Recordset& b = o_.sesja.rsPLB;
    // The employer's rates come from the constants each time, the employee's and those of FP and FGSP from
    // the row.
    b.ustaw(PLB("WSK_FEPRD"), o_.stale.FEprd);
    b.ustaw(PLB("WSK_FRPRD"), o_.stale.FRprd);
    b.ustaw(PLB("WSK_FWPRD"), o_.stale.FWprd);
    const auto skladka = [&](Waluta stawka) { return Procent(sumy_.PodstawaZUS, stawka, 2); };
    a.ustaw(PLA("SKL_FP"), skladka(a.kwota(PLA("ST_SKL_FP"))));
    a.ustaw(PLA("SKL_FGSP"), skladka(a.kwota(PLA("ST_SKLFGSP"))));
    b.ustaw(PLB("FEPRC"), skladka(b.kwota(PLB("WSK_FEPRC"))));
    b.ustaw(PLB("FEPRD"), skladka(o_.stale.FEprd));
    b.ustaw(PLB("FRPRC"), skladka(b.kwota(PLB("WSK_FRPRC"))));
    b.ustaw(PLB("FRPRD"), skladka(o_.stale.FRprd));
    b.ustaw(PLB("FCPRC"), skladka(b.kwota(PLB("WSK_FCPRC"))));
    b.ustaw(PLB("FWPRD"), skladka(o_.stale.FWprd));
}

namespace {

/// What the employee pays into the pension, disability and sickness funds.
Waluta SkladkiPracownika(const Recordset& plb) {
    return plb.kwota(PLB("FEPRC")) + plb.kwota(PLB("FRPRC")) + plb.kwota(PLB("FCPRC"));
}

} // namespace

void Naliczanie::WyliczKosztyUzyskania() {
    const Recordset& pr = o_.sesja.rsPRACPR;
    o_.sesja.rsPLA.ustaw(PLA("KUP"), pr.flaga(PRACPR("czy_kuz")) ? pr.kwota(PRACPR("Kup")) : Waluta{});
}

void Naliczanie::WyliczUlge() {
    // Deliberate: not doubled here, although a new row starts with the doubled amount for doubled limits.
    const bool ulga = o_.sesja.rsPRACPR.flaga(PRACPR("czy_ulga"));
    o_.sesja.rsPLA.ustaw(PLA("PPD"), ulga ? Proporcja(o_.stale.RKwPZ, 1, 12) : Waluta{});
}

void Naliczanie::WyliczNetto() {
    Recordset& a = o_.sesja.rsPLA;
    const Waluta dochod = a.kwota(PLA("BRUTTO")) - SkladkiPracownika(o_.sesja.rsPLB) - a.kwota(PLA("KUP"));
    a.ustaw(PLA("NETTO"), NieMniejNizZero(Round(dochod, 2)));
}

void Naliczanie::WyliczUbzdr() {
    Recordset& b = o_.sesja.rsPLB;
    b.ustaw(PLB("UBZDR_NAL"),
            Procent(sumy_.PodstawaUbzdr - SkladkiPracownika(b), b.kwota(PLB("WSK_UBZDR")), 2));
}

void Naliczanie::PrzyjmijUbzdrNalezne() {
    o_.sesja.rsPLB.ustaw(PLB("UBZDR"), o_.sesja.rsPLB.kwota(PLB("UBZDR_NAL")));
}

void Naliczanie::zapomnij(Odczyt odczyt) {
    w_.zapomnij(odczyt);
    nadgodziny_.zapomnij();
    stareBrutto_.reset();
}

void Naliczanie::przygotujWiersz() { zapomnij(Odczyt::PoJednym); }

void Naliczanie::przygotujSerie(qsizetype ile) {
    constexpr qsizetype kCzescFirmy = 8;
    const bool wiekszosc = ile * kCzescFirmy >= o_.sesja.rsPRACPR.RecordCount();
    zapomnij(wiekszosc ? Odczyt::Wszystkich : Odczyt::PoJednym);
    stareBrutto_ = std::make_unique<StareBrutto>(o_.sesja);
    if (wiekszosc) stareBrutto_->wczytajWszystkich();
}

BruttoRoku Naliczanie::OdczytajStareBrutto(Tryb tryb) {
    const Recordset& pr = o_.sesja.rsPRACPR;
    const qint64 prcId = pr.liczba(PRACPR("prc_id"));
    if (!stareBrutto_) stareBrutto_ = std::make_unique<StareBrutto>(o_.sesja);
    return {pr.kwota(PRACPR("doch_start")) + stareBrutto_->zListPlac(prcId),
            tryb == Tryb::Seria ? Waluta{} : stareBrutto_->zUmow(prcId)};
}

void Naliczanie::ostrzezOUmowach(Waluta brutto, int mnoznik) {
    // Deliberate: contracts never raise the rate, and the warning comes even when the rate was that high
    // already.
    if (!(brutto > Proporcja(o_.stale.GranicaG12, mnoznik, 1))) return;
    o_.rozmowa.komunikat(
        brutto > Proporcja(o_.stale.GranicaG23, mnoznik, 1)
            ? QStringLiteral("Uwaga! Po zsumowaniu kwot z umów zleceń, umów o dzieło i honorariów "
                             "następuje przekroczenie grupy podatkowej do 3.")
            : QStringLiteral("Uwaga! Po zsumowaniu kwot z umów zleceń, umów o dzieło i honorariów "
                             "następuje przekroczenie grupy podatkowej do 2."),
        Styl::Wykrzyknik);
}

Waluta Naliczanie::stawkaPodatku(Tryb tryb) {
    const Stale& c = o_.stale;
    const Recordset& pr = o_.sesja.rsPRACPR;
    // A fixed group wins over all cumulation, without a warning.
    switch (pr.liczba(PRACPR("gr_pod"))) {
    case 1:
        return c.PodatekG1;
    case 2:
        return c.PodatekG2;
    case 3:
        return c.PodatekG3;
    default:
        break;
    }
    const BruttoRoku rok = OdczytajStareBrutto(tryb);
    const Waluta suma = rok.stare + o_.sesja.rsPLA.kwota(PLA("BRUTTO"));
    const int mnoznik = pr.flaga(PRACPR("czy_2progi")) ? 2 : 1;
    Waluta stawka = c.PodatekG1;
    if (suma > Proporcja(c.GranicaG12, mnoznik, 1)) {
        const bool druga = !(suma > Proporcja(c.GranicaG23, mnoznik, 1));
        stawka = druga ? c.PodatekG2 : c.PodatekG3;
        if (tryb == Tryb::Pojedynczy)
            o_.rozmowa.komunikat(
                druga ? QStringLiteral("Uwaga! Przekroczona grupa podatkowa. Wyliczenie nastąpi w grupie 2.")
                      : QStringLiteral("Uwaga! Przekroczona grupa podatkowa. Wyliczenie nastąpi w grupie 3."),
                Styl::Wykrzyknik);
    }
    if (tryb == Tryb::Pojedynczy) ostrzezOUmowach(suma + rok.kwotaUmow, mnoznik);
    return stawka;
}

void Naliczanie::WyliczPodatek(Tryb tryb) {
    Recordset& a = o_.sesja.rsPLA;
    Recordset& b = o_.sesja.rsPLB;
    const Waluta stawka = stawkaPodatku(tryb);
    const Waluta podatekDochodowy = Procent(Round(a.kwota(PLA("NETTO")), o_.stale.ZaokPod), stawka, 2);
    a.ustaw(PLA("POD_DOCH"), podatekDochodowy);
    // The tax is computed with the exact rate; the column is a whole number.
    a.ustaw(PLA("ST_PD"), static_cast<qint64>(Round(stawka, 0).surowa() / 10000));

    const Waluta zaliczka = podatekDochodowy - a.kwota(PLA("PPD"));
    if (zaliczka < b.kwota(PLB("UBZDR"))) b.ustaw(PLB("UBZDR"), NieMniejNizZero(zaliczka));
    a.ustaw(PLA("PODATEK"), Round(NieMniejNizZero(zaliczka - b.kwota(PLB("UBZDR"))), o_.stale.ZaokZal));
}

Waluta Naliczanie::ZasilekChorobowy() const {
    const Sesja& s = o_.sesja;
    if (zasilek_ && zasilek_->prcId == s.rsPLA.liczba(PLA("PRC_ID")) &&
        zasilek_->lista == s.rsPLA.tekst(PLA("LISTA")))
        return zasilek_->kwota;
    Waluta zasilek;
    if (s.rsPLA.liczba(PLA("DNI_L4_ZUS")) <= 0) return zasilek;
    // The four numbers may repeat a component, which still counts once.
    for (const int nr : std::set<int>(o_.stale.L4ZUS.begin(), o_.stale.L4ZUS.end()))
        if (nr >= 1 && nr <= 30) zasilek += s.rsPLS.kwota(schemat::SP(nr));
    return zasilek;
}

void Naliczanie::Dowyplaty(Tryb tryb) {
    Recordset& a = o_.sesja.rsPLA;
    Waluta kwota = a.kwota(PLA("BRUTTO")) - SkladkiPracownika(o_.sesja.rsPLB);
    // The advance before the health deduction is taken off.
    kwota -= NieMniejNizZero(a.kwota(PLA("POD_DOCH")) - a.kwota(PLA("PPD")));
    kwota += sumy_.SumaInne;
    const Waluta zasilek = ZasilekChorobowy();
    if (zasilek > Waluta{} &&
        odpowiedzi_.pomniejszacZasilek.pytaj(
            o_.rozmowa, tryb,
            QStringLiteral("Czy pomniejszać kwotę do wypłaty pracownikom o zasiłek chorobowy ?"),
            QStringLiteral("Czy pomniejszyć kwotę do wypłaty pracownika o zasiłek chorobowy ?")))
        kwota -= zasilek;
    a.ustaw(PLA("DO_WYPLATY"), Round(kwota, o_.stale.ZaokWyp));
}

void Naliczanie::Przelicz1(Tryb tryb) {
    WyliczPodstawy(tryb);
    WyliczSkladki();
    WyliczKosztyUzyskania();
    WyliczNetto();
    WyliczUbzdr();
    PrzyjmijUbzdrNalezne();
    WyliczUlge();
    WyliczPodatek(tryb);
    Dowyplaty(tryb);
}

} // namespace tornel::payroll
