// Constants of the tabs "Urlopy", "L-4" and "Nadgodziny", and the symbols of the tab "Karta ewidencji".
#include "rules/TabelaStalych.h"

namespace tornel::rules {

namespace {

using S = Stale;
using enum KartaStalych;
using enum SprawdzenieStalej;

constexpr QStringView kStawkaUrlop = u"Sposób liczenia stawki zasadniczej przy urlopie:";
constexpr QStringView kDaneUrlop = u"DANE DO LICZENIA URLOPÓW:";
constexpr QStringView kStawkaL4 = u"Sposób liczenia stawki zasadniczej przy L-4";
constexpr QStringView kRownania = u"RÓWNANIA STAWEK AKORDOWYCH:";

constexpr QStringView kStawkiUrlop[] = {
    u"StawkaZasadnicza / IleDniRoboczych * IleDniPrzepracowanych",
    u"Wzór:",
};
// The captions do not tell what values 1 and 2 compute; captions and stored values stay as they are
// deliberately.
constexpr QStringView kStawkiL4[] = {
    u"( StawkaZasadnicza / 30 ) * (30 - IleDniL4 )",
    u"StawkaZasadnicza / DniRoboczychWMiesiącu * DniPrzepracowanych",
    u"( 30 - IleDniL4 ) * ( ŚredniaBrutto / 30 )",
    u"Wzór:",
};
// Captions of the three rows of boxes that constant 257 shares with constants 254 to 256.
constexpr QStringView kGrupyNadgodzin[] = {u"Grupy 1-3:", u"Grupy 4-6:", u"Grupa 7:"};

constexpr ElementStalej symbol(std::size_t nr) { return {&S::Symbol, nr}; }

constexpr StalaDef kStaleNieobecnosci[] = {
    {200, u"WliczSobDoUrl", &S::WliczSobDoUrl, u"False", u"Wliczaj do urlopu soboty pracujące", Urlopy,
     Przelacznik},
    {201, u"OsobHarPrac", &S::OsobHarPrac, u"False",
     u"Aktywne osobne harmonogramy dni wolnych dla pracowników", Urlopy, Przelacznik},
    {202, u"ZIluMSrDn", &S::ZIluMSrDn, u"3", u"Z ilu miesięcy liczyć średnią dniówkę:", Urlopy, Calkowita},
    {203, u"SklUrl", &S::SklUrl, u"3", u"Numer składnika odpowiadającego wynagrodzeniu za urlop:", Urlopy,
     NumerJedyny},
    {204, u"StZasUrl", &S::StZasUrl, u"0", u"", Urlopy, Wybor, kStawkaUrlop, kStawkiUrlop},
    {205, u"WzorUrl", &S::WzorUrl, u"", u"Wzór:", Urlopy, Wzor, kStawkaUrlop},
    {206, u"SkSumDoSrURL", &S::SkSumDoSrURL, u"",
     u"Numery składników sumowanych podczas liczenia średniej dniówki za urlop:", Urlopy, Numer},
    {207, u"SklPrzelURL", &S::SklPrzelURL, u"",
     u"Numery składników, które mają być przeliczone po wyliczeniu urlopu:", Urlopy, Numer},
    {208, u"SklUrlz", &S::SklUrlz, u"", u"Numery składników kolejnych okresów urlopowych:", Urlopy, Numer,
     kDaneUrlop},

    {100, u"StProcL4", &S::StProcL4, u"0", u"Stawka procentowa L-4:", L4, Kwota},
    {101, u"MiesSrBr", &S::MiesSrBr, u"3", u"Z ilu miesięcy liczyć średnią płacę brutto:", L4, Calkowita},
    {102, u"L4Pracod", &S::L4Pracod, u"35", u"Do ilu dni L-4 płacone przez pracodawcę:", L4, Calkowita},
    {103, u"DniKomunikatL4", &S::DniKomunikatL4, u"35",
     u"Po ilu dniach L-4, komunikat o przekroczeniu limitu niepełnopłatnego L-4:", L4, Calkowita},
    {104, u"L4Prd", &S::L4Prd, u"", u"Numery składników L-4 płaconego przez pracodawcę:", L4, Numer},
    {105, u"L4ZUS", &S::L4ZUS, u"", u"Numery składników L-4 płaconego przez ZUS:", L4, Numer},
    {106, u"SposobStZasL4", &S::SposobStZasL4, u"0", u"", L4, Wybor, kStawkaL4, kStawkiL4},
    {107, u"SklSrL4", &S::SklSrL4, u"", u"Numery składników sumowanych podczas liczenia średniej za L-4:", L4,
     Numer},
    {108, u"RownSrL4", &S::RownSrL4, u"", u"Wyrażenie wykonywane przy liczeniu średniej:", L4, Wzor},
    {109, u"WzorStZasL4", &S::WzorStZasL4, u"", u"Wzór:", L4, Wzor, kStawkaL4},

    {250, u"AktRejNadg", &S::AktRejNadg, u"False", u"Aktywna rejestracja i liczenie nadgodzin", Nadgodziny,
     Przelacznik},
    {251, u"SzczegRejNadg", &S::SzczegRejNadg, u"False",
     u"Szczegółowa rejestracja nadgodzin (za każdy dzień)", Nadgodziny, Przelacznik},
    {252, u"NrNGS", &S::NrNGS, u"", u"Numery akordowych składników płac (0-30) (0-brak):", Nadgodziny,
     NumerJedyny},
    {253, u"NGNazwaS", &S::NGNazwaS, u"", u"AKORDOWE GRUPY CZASOWE:", Nadgodziny, Tekst},
    {254, u"RowNGRob", &S::RowNGRob, u"", u"Dni robocze:", Nadgodziny, Wzor, kRownania},
    {255, u"RowNGSob", &S::RowNGSob, u"", u"Soboty:", Nadgodziny, Wzor, kRownania},
    {256, u"RowNGNie", &S::RowNGNie, u"", u"Niedziele:", Nadgodziny, Wzor, kRownania},
    {257, u"RowNGGr", &S::RowNGGr, u"", u"", Nadgodziny, Wzor, kRownania, kGrupyNadgodzin},

    // The default blank of the first symbol is stored trimmed, so as an empty text.
    {210, u"Symbol(0)", symbol(0), u" ", u"Symbol dla dnia roboczego:", KartaEwidencji, Znak},
    {211, u"Symbol(1)", symbol(1), u"w", u"Symbol dla dnia wolnego:", KartaEwidencji, Znak},
    {212, u"Symbol(2)", symbol(2), u"L", u"Symbol dla zwolnienia L4:", KartaEwidencji, Znak},
    {213, u"Symbol(3)", symbol(3), u"W", u"Symbol dla urlopu wypoczynkowego:", KartaEwidencji, Znak},
    {214, u"Symbol(4)", symbol(4), u"B", u"Symbol dla urlopu bezpłatnego:", KartaEwidencji, Znak},
    {215, u"Symbol(5)", symbol(5), u"O", u"Symbol dla urlopu okolicznościowego:", KartaEwidencji, Znak},
    {216, u"Symbol(6)", symbol(6), u"I", u"Symbol dla urlopu innego:", KartaEwidencji, Znak},
    {217, u"Symbol(7)", symbol(7), u"C", u"Symbol dla urlopu wychowawczego:", KartaEwidencji, Znak},
    {218, u"Symbol(8)", symbol(8), u"P", u"Symbol dla urlopu opieki:", KartaEwidencji, Znak},
    {219, u"Symbol(9)", symbol(9), u"?", u"Symbol dla innej przerwy:", KartaEwidencji, Znak},
};

} // namespace

std::span<const StalaDef> stale_czesci::nieobecnosci() { return kStaleNieobecnosci; }

} // namespace tornel::rules
