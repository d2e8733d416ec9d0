#include "payroll/lista/frmPlaceListaPola.h"
#include "payroll/lista/PolaListy.h"
#include "rules/SkladnikiPlac.h"
#include "store/SchematPlac.h"

namespace tornel::payroll {

using schemat::PLA;
using schemat::PLB;

namespace {

using enum Rodzaj;
constexpr Dostep kEdycja = Dostep::Edycja;
constexpr Dostep kOdczyt = Dostep::Odczyt;

constexpr PoleEkranu kDoPodatku[] = {
    {u"txtBrutto", u"Brutto:", PLA("BRUTTO"), Kwota, kOdczyt},
    {u"txtFEPC", u"Fundusz emerytalny %1:", {}, Kwota, kEdycja, PLB("WSK_FEPRC")},
    {u"txtFRPC", u"Fundusz rentowy %1:", {}, Kwota, kEdycja, PLB("WSK_FRPRC")},
    {u"txtFC", u"Fundusz chorobowy %1:", {}, Kwota, kEdycja, PLB("WSK_FCPRC")},
    {u"txtSkladki", u"Składki razem:", {}, Tekst, kOdczyt, {}, SumaEkranu::Skladki},
    {u"txtKosztyUz", u"Koszty uzysk. przych.:"},
    {u"txtNetto", u"Netto:", PLA("NETTO"), Kwota, kOdczyt},
    {u"txtPodDoch", u"Podatek przed odliczeniami:", PLA("POD_DOCH"), Kwota, kOdczyt},
    {u"txtUlgaPod", u"Ulga podatkowa:"},
    {u"txtUZNA", u"Ubezp. zdrowotne należne %1:", {}, Kwota, kEdycja, PLB("WSK_UBZDR")},
    {u"txtUZPO", u"Ubezp. zdrowotne odliczone:"},
    {u"txtPodatek19", u"Podatek %1:", {}, Kwota, kEdycja, PLA("ST_PD")},
    {u"txtPoPodatku", u"Po składkach i podatku:", {}, Tekst, kOdczyt, {}, SumaEkranu::PoPodatku},
};

constexpr PoleEkranu kDodatki[] = {{u"txtDodatki", u"Dodatki:", PLA("DODATKI"), Kwota, kOdczyt}};
constexpr PoleEkranu kPotracenia[] = {{u"txtPotracenia", u"Potrącenia:", PLA("POTRACENIA"), Kwota, kOdczyt}};

constexpr PoleEkranu kDoWyplaty[] = {
    {ekranListy::kPozostale,
     u"Zasiłek ZUS, PPE, zaokrąglenie:",
     {},
     Tekst,
     kOdczyt,
     {},
     SumaEkranu::Pozostale},
    {u"txtDoWyplaty", u"Do wypłaty:", PLA("DO_WYPLATY"), Kwota, kOdczyt},
    {u"txtPrzelewem", u"Przelewem:"},
};

constexpr PoleEkranu kPodstawy[] = {
    {u"txtPodstawaZUS", u"Ubezp. społeczne:", {}, Tekst, kOdczyt, {}, SumaEkranu::PodstawaZUS},
    {u"txtPodstawaUbzdr", u"Ubezp. zdrowotne:", {}, Tekst, kOdczyt, {}, SumaEkranu::PodstawaUbzdr},
};

constexpr PoleEkranu kDniMiesiaca[] = {
    {u"txtDnirob", u"Dni robocze:", PLA("DN_RO"), Liczba},
    {u"txtSoboty", u"Soboty:", PLA("DN_SO"), Liczba},
    {u"txtNiedziele", u"Niedziele:", PLA("DN_NI"), Liczba},
    {u"txtDniprzepr", u"Razem przepracowane:", PLA("DN_PR"), Liczba, kOdczyt},
    {u"txtCzasnaurl", u"Czas na urlopie:", PLA("DN_URL"), Liczba},
    {u"txtCzasnl4", u"Czas na L-4:", PLA("DN_ZAS"), Liczba},
    {u"txtInnewolne", u"Inne dni wolne:", PLA("DN_INN"), Liczba},
};

constexpr PoleEkranu kZwolnienia[] = {
    {u"txtDniL4Pr", u"Płatne przez pracodawcę:", PLA("DNI_L4_PR"), Liczba, kOdczyt},
    {u"txtDniL4Zus", u"Płatne przez ZUS:", PLA("DNI_L4_ZUS"), Liczba, kOdczyt},
};

constexpr PoleEkranu kUrlopy[] = {
    {u"txtWypocz", u"Wypoczynkowy:", PLB("DNI_UWYP"), Liczba},
    {u"txtBezpl", u"Bezpłatny:", PLB("DN_UBEZPL"), Liczba},
    {u"txtOkol", u"Okolicznościowy:", PLB("DN_UOK"), Liczba},
    {u"txtInnyurl", u"Inny:", PLB("DN_UINNY"), Liczba},
    {u"txtWychow", u"Wychowawczy:", PLB("DN_UWYCH"), Liczba},
    {u"txtOpiekand", u"Opieka nad dzieckiem:", PLB("DN_UOPDZI"), Liczba},
    {u"txtInnaprzer", u"Inna przerwa!", PLB("DN_PRZERWY"), Liczba},
};

constexpr PoleEkranu kSrednie[] = {
    {u"txtSrBrZus", u"Średnia do L-4:", PLA("SR_BR_ZUS"), Kwota, kOdczyt},
    {u"txtSrBrUrl", u"Średnia do urlopu:", PLB("SR_BR_URL"), Kwota, kOdczyt},
};

constexpr PoleEkranu kSwiadczenia[] = {
    {u"txtSwrech", u"Rehabilitacyjne:", PLA("IL_S_REH"), Liczba},
    {u"txtSwrech2", u"Rehabilitacyjne chorobowe:", PLA("IL_Z_REHCH"), Liczba},
    {u"txtZasrodz", u"Zasiłki rodzinne:", PLA("IL_Z_RODZ"), Liczba},
    {u"txtZaspor", u"Zasiłki porodowe:", PLA("IL_Z_POR"), Liczba},
    {u"txtZaspiel", u"Zasiłki pielęgnacyjne:", PLA("IL_Z_PIEL"), Liczba},
    {u"txtZaswych", u"Zasiłki wychowawcze:", PLA("IL_Z_WYCH"), Liczba},
    {u"txtZaspogrz", u"Zasiłki pogrzebowe:", PLA("IL_Z_POG"), Liczba},
    {u"txtZaspogrz2", u"Zasiłki pogrzebowe (2):", PLA("IL_S_POGCH"), Liczba},
};

constexpr PoleEkranu kPracodawca[] = {
    {u"txtFEPD", u"Fundusz emerytalny %1:", {}, Kwota, kEdycja, PLB("WSK_FEPRD")},
    {u"txtFRPD", u"Fundusz rentowy %1:", {}, Kwota, kEdycja, PLB("WSK_FRPRD")},
    {u"txtFW", u"Fundusz wypadkowy %1:", {}, Kwota, kEdycja, PLB("WSK_FWPRD")},
    {u"txtFP", u"Fundusz pracy %1:", {}, Kwota, kEdycja, PLA("ST_SKL_FP")},
    {u"txtFGSP", u"Fundusz GSP %1:", {}, Kwota, kEdycja, PLA("ST_SKLFGSP")},
};

constexpr PoleEkranu kPPE[] = {
    {u"txtPotrPPE", u"Składka PPE:"},
    {u"txtPPEosk", u"Doliczone do podstawy ZUS:"},
};

constexpr PoleEkranu kUbruttowienie[] = {
    {u"txtWskUbr", u"Wskaźnik ubruttowienia (%):", PLB("WSK_UBR"), Kwota, kOdczyt},
    {u"txtUbruttow", u"Kwota ubruttowienia:", PLB("UBRUTTOW"), Kwota, kOdczyt},
};

constexpr PoleEkranu kZatrudnienie[] = {
    {u"txtEtat", u"Etat:", PLA("ETAT"), Liczba, kOdczyt},
    {u"txtEtat2", u"", PLA("ETAT2"), Liczba, kOdczyt},
    {u"txtUsId", u"Numer urzędu skarbowego:", PLA("US_ID"), Liczba, kOdczyt},
};

constexpr PoleEkranu kPolaMultiCash[] = {
    {u"txtPaczkaMCS", u"Numer paczki:", PLB("PACZKA"), Liczba},
    {u"txtWyslaneMCS", u"Wysłane (T/N):", PLB("WYS_MCS"), Tekst},
};

constexpr GrupaEkranu kPlacaPrawa[] = {{u"PODSTAWY SKŁADEK", kPodstawy}};
constexpr GrupaEkranu kDni[] = {{u"DNI MIESIĄCA", kDniMiesiaca}, {u"ZWOLNIENIA L-4 (DNI)", kZwolnienia}};
constexpr GrupaEkranu kDniUrlopow[] = {{u"URLOPY (DNI)", kUrlopy}};
constexpr GrupaEkranu kIlosci[] = {{u"ŚWIADCZENIA (ILOŚĆ)", kSwiadczenia}};
constexpr GrupaEkranu kInneLewa[] = {{u"SKŁADKI PRACODAWCY", kPracodawca},
                                     {u"PRACOWNICZY PROGRAM EMERYTALNY", kPPE}};
constexpr GrupaEkranu kInnePrawa[] = {{u"UBRUTTOWIENIE", kUbruttowienie},
                                      {u"ŚREDNIE", kSrednie},
                                      {u"ZATRUDNIENIE", kZatrudnienie},
                                      {ekranListy::kMultiCash, kPolaMultiCash}};

/// Room for an amount in a field that may also stay empty.
constexpr int kZnakiSumy = 13;

} // namespace

namespace ekranListy {

std::span<const PoleEkranu> drogaWyplaty(CzescDrogi czesc) {
    switch (czesc) {
    case CzescDrogi::DoPodatku:
        return kDoPodatku;
    case CzescDrogi::Dodatki:
        return kDodatki;
    case CzescDrogi::Potracenia:
        return kPotracenia;
    case CzescDrogi::DoWyplaty:
        return kDoWyplaty;
    }
    return {};
}

Pole skladnikDrogi(QStringView tablica, int nr) {
    const bool dodatni = tablica == kDrogaPlus;
    return {nazwaPola(tablica, nr), QStringLiteral("%1:").arg(nr),
            dodatni ? schemat::SP(nr) : schemat::SM(nr), Kwota, kOdczyt};
}

KolumnaEkranu placaPrawa() { return kPlacaPrawa; }
KolumnaEkranu dniMiesiaca() { return kDni; }
KolumnaEkranu dniUrlopow() { return kDniUrlopow; }
KolumnaEkranu swiadczenia() { return kIlosci; }
KolumnaEkranu inneLewa() { return kInneLewa; }
KolumnaEkranu innePrawa() { return kInnePrawa; }

Pole pole(const PoleEkranu& p) {
    Pole wynik{p.nazwa.toString(), p.podpis.toString(), p.kolumna, p.rodzaj, p.dostep};
    wynik.klucz = static_cast<int>(p.suma);
    if (p.suma != SumaEkranu::Brak)
        wynik.rozmiar = kZnakiSumy;
    else if (!p.kolumna.tabela)
        wynik.kolumna = poleListy(p.nazwa).kolumna;
    return wynik;
}

QString nazwaPola(QStringView tablica, int nr) { return QStringLiteral("%1(%2)").arg(tablica).arg(nr); }

QList<Pole> polaDodatnie() {
    QList<Pole> pola;
    for (int i = 1; i <= kDodatnich; ++i) {
        // The caption is set from the catalogue; an empty one would join the field to the one before it.
        pola.append({nazwaPola(u"txtPlus", i), QStringLiteral("%1:").arg(i), schemat::SP(i), Kwota});
        pola.append({nazwaPola(u"txtDataPocz", i), QString(), schemat::SOD(i), Data});
        pola.append({nazwaPola(u"txtDataKonc", i), QString(), schemat::SDO(i), Data});
    }
    return pola;
}

QList<Pole> polaUjemne() {
    QList<Pole> pola;
    for (int i = 1; i <= kUjemnych; ++i)
        pola.append({nazwaPola(u"txtMinus", i), QStringLiteral("%1:").arg(i), schemat::SM(i), Kwota});
    return pola;
}

} // namespace ekranListy

} // namespace tornel::payroll
