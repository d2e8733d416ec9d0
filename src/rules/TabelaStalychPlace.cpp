// Constants of the tabs "Grupy podatkowe", "Stałe systemu", "Inne (1)" and "Inne (2)".
#include "rules/TabelaStalych.h"

namespace tornel::rules {

namespace {

using S = Stale;
using enum KartaStalych;
using enum SprawdzenieStalej;

constexpr QStringView kZaokraglenia = u"ZAOKRĄGLENIA KWOT (Ilość miejsc po przecinku)";
constexpr QStringView kPracodawca = u"Stawki funduszów płaconych przez pracodawcę:";
constexpr QStringView kAkordRownania = u"RÓWNANIA STAWEK AKORDOWYCH:";
constexpr QStringView kSrednia = u"SPOSÓB PRZELICZANIA ŚREDNIEJ W MIESIĄCU";
constexpr QStringView kPodpowiadane =
    u"PODPOWIADANE STAWKI PROCENTOWE PRZY REJESTRACJI NOWEGP PRACOWNIKA:"; // spelt so deliberately
constexpr QStringView kNominaly = u"NOMINAŁY PIENIĘŻNE";

constexpr QStringView kSposobySredniej[] = {
    u"SumaSkładników / ( 30 - IleDniL4 ) * 30",
    u"SumaSkładników / DniPrzepracowane * DniZObowiązkuPracy",
    u"Wzór:",
};

constexpr StalaDef kStalePlace[] = {
    {40, u"GranicaG12", &S::GranicaG12, u"29624", u"Granica grup 1 i 2:", GrupyPodatkowe, Kwota},
    {41, u"GranicaG23", &S::GranicaG23, u"59248", u"Granica grup 2 i 3:", GrupyPodatkowe, Kwota},
    {42, u"PodatekG1", &S::PodatekG1, u"19", u"Stawka podatku w grupie 1:", GrupyPodatkowe, Kwota},
    {43, u"PodatekG2", &S::PodatekG2, u"30", u"Stawka podatku w grupie 2:", GrupyPodatkowe, Kwota},
    {44, u"PodatekG3", &S::PodatekG3, u"40", u"Stawka podatku w grupie 3:", GrupyPodatkowe, Kwota},
    {63, u"RKwPZ", &S::RKwPZ, u"436,2", u"Roczna kwota pomniejszenia zaliczki:", GrupyPodatkowe, Kwota},
    {60, u"ZaokZal", &S::ZaokZal, u"1", u"Zaokrąglenie zaliczki na podatek:", GrupyPodatkowe, Zaokraglenie,
     kZaokraglenia},
    {61, u"ZaokPod", &S::ZaokPod, u"0", u"Zaokrąglenie podstawy do podatku:", GrupyPodatkowe, Zaokraglenie,
     kZaokraglenia},
    {62, u"ZaokWyp", &S::ZaokWyp, u"2", u"Zaokrąglenie kwoty do wypłaty:", GrupyPodatkowe, Zaokraglenie,
     kZaokraglenia},
    {4, u"FEprd", &S::FEprd, u"0,2", u"Fundusz emerytalny:", GrupyPodatkowe, Kwota, kPracodawca},
    {5, u"FRprd", &S::FRprd, u"1,2", u"Fundusz rentowy:", GrupyPodatkowe, Kwota, kPracodawca},
    {6, u"FWprd", &S::FWprd, u"2,2", u"Fundusz wypadkowy:", GrupyPodatkowe, Kwota, kPracodawca},
    {7, u"KwotaFEFR", &S::KwotaFEFR, u"5000",
     u"Kwota podstawy wymiaru na ubezpieczenia społeczne do której liczone są FE i FR:", GrupyPodatkowe,
     Kwota},
    {64, u"WskUbruttow", &S::WskUbruttow, u"100", u"Wskaźnik ubruttowienia:", GrupyPodatkowe, Kwota},
    {65, u"BlokujUbruttow", &S::BlokujUbruttow, u"False", u"Blokuj kolejne ubruttowienia płac",
     GrupyPodatkowe, Przelacznik},

    {1, u"PlZas", &S::PlZas, u"1", u"Numer dodatniego składnika będącego pensją zasadniczą (0-30) (0-brak):",
     StaleSystemu, NumerJedyny},
    {2, u"PremPr", &S::PremPr, u"2",
     u"Numer dodatniego składnika będącego premią procentową (0-30) (0-brak):", StaleSystemu, NumerJedyny},
    {3, u"Nr13", &S::Nr13, u"0", u"Numer dodatniego składnika będącego \"trzynastką\" (0-30) (0-brak):",
     StaleSystemu, NumerJedyny},
    {150, u"NrAKS", &S::NrAKS, u"", u"Numer akordowego składnika płac (0-30) (0-brak):", StaleSystemu,
     NumerJedyny},
    {151, u"AKNazwaS", &S::AKNazwaS, u"", u"AKORDOWE GRUPY CZASOWE:", StaleSystemu, Tekst},
    {152, u"RowAKRob", &S::RowAKRob, u"", u"- dni robocze:", StaleSystemu, Wzor, kAkordRownania},
    {153, u"RowAKSob", &S::RowAKSob, u"", u"- soboty:", StaleSystemu, Wzor, kAkordRownania},
    {154, u"RowAKNie", &S::RowAKNie, u"", u"- niedziele:", StaleSystemu, Wzor, kAkordRownania},

    {66, u"StawkaPomPPE", &S::StawkaPomPPE, u"2",
     u"Stawka granicy pomniejszania podstawy na ZUS w ramach PPE:", Inne1, Kwota},
    {67, u"AktRejPrzepDni", &S::AktRejPrzepDni, u"True", u"Aktywana rejestracja przepracowanych dni", Inne1,
     Przelacznik},
    {68, u"AktSystAk", &S::AktSystAk, u"False", u"Aktywny system akordowy", Inne1, Przelacznik},
    {69, u"AktOpWieluList", &S::AktOpWieluList, u"False", u"Aktywna opcja wielu list w miesiącu", Inne1,
     Przelacznik},
    {70, u"AktKontrOdpPPE", &S::AktKontrOdpPPE, u"False", u"Aktywna kontrola odpisów w ramach PPE", Inne1,
     Przelacznik},
    {71, u"PytanieOPPE", &S::PytanieOPPE, u"False", u"Pytanie o potrącenie składki PPE od wypłaty", Inne1,
     Przelacznik},
    {72, u"PytanieOLiczSkl", &S::PytanieOLiczSkl, u"False",
     u"Pytanie o liczenie składek i podatku przy płacach", Inne1, Przelacznik},
    {73, u"SposobPrzelSr", &S::SposobPrzelSr, u"0", u"", Inne1, Wybor, kSrednia, kSposobySredniej},
    {74, u"WzorSposPrzelSr", &S::WzorSposPrzelSr, u"", u"Wzór:", Inne1, Wzor, kSrednia},
    {90, u"AktywneUmowyZlecenia", &S::AktywneUmowyZlecenia, u"False", u"Aktywny system umów zleceń", Inne1,
     Przelacznik},
    {91, u"AktywneUmowyODzielo", &S::AktywneUmowyODzielo, u"False", u"Aktywny system umów o dzieło", Inne1,
     Przelacznik},
    {92, u"AktywneHonoraria", &S::AktywneHonoraria, u"False", u"Aktywny system honorariów", Inne1,
     Przelacznik},

    {20, u"PFE", &S::PFE, u"9,76", u"Stawka Funduszu Emerytalnego:", Inne2, Kwota, kPodpowiadane},
    {21, u"PFR", &S::PFR, u"6,5", u"Stawka Funduszu Rentowego:", Inne2, Kwota, kPodpowiadane},
    {22, u"PFC", &S::PFC, u"2,45", u"Stawka Funduszu Chorobowego:", Inne2, Kwota, kPodpowiadane},
    {23, u"PFP", &S::PFP, u"2,45", u"Stawka Funduszu Pracy:", Inne2, Kwota, kPodpowiadane},
    {24, u"PFGSP", &S::PFGSP, u"0,08", u"Stawka Funduszu Gwarantowanych Świadczeń Pracowniczych:", Inne2,
     Kwota, kPodpowiadane},
    {25, u"PUBZD", &S::PUBZD, u"7,5", u"Stawka na ubezpieczenie zdrowotne:", Inne2, Kwota, kPodpowiadane},
    {660, u"NPZl", &S::NPZl, u"", u"Złote:", Inne2, Nominal, kNominaly},
    {661, u"NPGr", &S::NPGr, u"", u"Grosze:", Inne2, Nominal, kNominaly},
    {662, u"MiastoDok", &S::MiastoDok, u"", u"Miasto - miejsce wystawiania dokumentów:", Inne2, Tekst},
    {650, u"DrukPrzel", &S::DrukPrzel, u"False", u"Drukuj przelewy bez podglądu", Inne2, Przelacznik},
    {651, u"DrukPIT", &S::DrukPIT, u"False", u"Drukuj deklaracje PIT bez podglądu", Inne2, Przelacznik},
    {652, u"DrukReszta", &S::DrukReszta, u"False", u"Drukuj bez pokazywania (dotyczy reszty wydruków)", Inne2,
     Przelacznik},
};

} // namespace

std::span<const StalaDef> stale_czesci::place() { return kStalePlace; }

} // namespace tornel::rules
