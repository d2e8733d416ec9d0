// The fifteen documents of a collection, block by block.
#include "store/Schemat.h"
#include "zus/BlokiKedu.h"

namespace tornel::zus {

using schemat::KONTA;
using schemat::M_PRACY;
using schemat::PRACZUS;
using schemat::RODZINA;

namespace {

using namespace bloki;
using C = CzescDokumentu;

constexpr C kZUA[] = {{&DOZUA}, {&DIPL}, {&DAU},  {&DEOZ}, {&TYUB}, {&DOWP}, {&DOOU}, {&DOBU},
                      {&DODU},  {&IODZ}, {&DOKC}, {&AZMO}, {&ADZA}, {&ADKB}, {&OPL1}};
constexpr C kZZA[] = {{&DOZZA}, {&DIPL}, {&DAU},  {&DEOZ}, {&TYUBZ}, {&DOOU},
                      {&DODU},  {&DOKC}, {&AZMO}, {&ADZA}, {&ADKB},  {&OPL1}};
constexpr C kZIUA[] = {{&DOZIUA}, {&DIPL}, {&DIOP}, {&ADIU}, {&OPL1}};
constexpr C kZCNA[] = {{&DOZCBA}, {&DIPL}, {&DAU}, {&DOCRA, &schemat::RODZINA}, {&OPL1}};
constexpr C kZCZA[] = {{&DOZCBA}, {&DIPL}, {&DAU}, {&DOCRBA, &schemat::RODZINA}, {&OPL1}};
constexpr C kZWUA[] = {{&DOZWUA}, {&DIPL}, {&DAU}, {&WUBD}, {&WNOU}, {&OPL1}};
constexpr C kZBA[] = {{&DOZCBA}, {&DIPL}, {&IORB, &schemat::KONTA}, {&OPL1}};
constexpr C kZAA[] = {{&DOZCBA}, {&DIPL}, {&APDG, &schemat::M_PRACY}, {&OPL1}};
constexpr C kZPA[] = {{&DOZPF}, {&DAIP}, {&DAPL}, {&DORB}, {&IDO1}, {&ASZP}, {&ADKP}, {&DOBR}, {&OPL2}};
constexpr C kZFA[] = {{&DOZPF}, {&DIPL}, {&DEPL}, {&PPDB}, {&DORB}, {&IDOP},
                      {&ASPL},  {&ASZP}, {&ADKP}, {&DOBR}, {&OPL2}};
constexpr C kRCA[] = {{&DORCA}, {&DIPL}, {&DDORCA, &schemat::PRACDP}, {&OPLR}};
constexpr C kRNA[] = {{&DORNA}, {&DIPL}, {&DDORNA, &schemat::PRACDP}, {&OPLR}};
constexpr C kRZA[] = {{&DORZA}, {&DIPL}, {&DDORZA, &schemat::PRACDP}, {&OPLR}};
constexpr C kRSA[] = {{&DORSA}, {&DIPL}, {&DDORSA, &schemat::PRACDP}, {&OPLR}};

constexpr std::array<DokumentKedu, kDokumentow> kDokumenty{{
    {KodKedu::ZUA, u"ZUA", u"Zgłoszenie do ubezpieczeń / Zgłoszenie zmiany danych osoby ubezpieczonej",
     Petla::Pracownik, kZUA, PRACZUS("oi_zua"), 4},
    {KodKedu::ZZA, u"ZZA", u"", Petla::Pracownik, kZZA, PRACZUS("oi_zza"), 3},
    {KodKedu::ZIUA, u"ZIUA", u"Zgłoszenie zmiany danych identyfikacyjnych osoby ubezpieczonej",
     Petla::Pracownik, kZIUA, PRACZUS("oi_ziua"), 2},
    // The spelling and the two blanks stand as they are: deliberate.
    {KodKedu::ZCNA, u"ZCNA",
     u"Zgłoszenie danych o członkach rodziny, których adres zamieszkania nie jest zgodzny z adresem "
     u"zamieszkania ubezpieczonego, dla celów ubezpieczenia  zdrowotnego",
     Petla::Rodzina, kZCNA, RODZINA("zcna")},
    {KodKedu::ZCZA, u"ZCZA",
     u"Zgłoszenie danych o członkach rodziny, których adres zamieszkania jest zgodny z adresem zamieszkania "
     u"ubezpieczonego, dla celów ubezpieczenia zdrowotnego",
     Petla::Rodzina, kZCZA, RODZINA("zcza")},
    {KodKedu::ZWUA, u"ZWUA", u"Wyrejestrowanie z ubezpieczeń / Kontynuowanie ubezpieczeń", Petla::Pracownik,
     kZWUA, PRACZUS("zus_zwua"), 4},
    {KodKedu::ZBA, u"ZBA", u"Informacja o numerach rachunków bankowych płatnika składek", Petla::Konta, kZBA,
     KONTA("zba")},
    {KodKedu::ZAA, u"ZAA", u"Adresy prowadzenia działalności gospodarczej płatnika składek", Petla::Adresy,
     kZAA, M_PRACY("zza")},
    {KodKedu::ZPA, u"ZPA", u"", Petla::Platnik, kZPA},
    {KodKedu::ZFA, u"ZFA", u"", Petla::Platnik, kZFA},
    {KodKedu::RCA,
     u"RCA",
     u"Raport imienny dla platnikow uprawnionych do wypłaty świadczeń z ubezpieczenia Chorobowego",
     Petla::Raport,
     kRCA,
     {},
     2,
     u"Formularz ZUS RCA na:",
     u"Proszę podać identyfikator raportu ZUS RCA"},
    {KodKedu::RNA,
     u"RNA",
     u"Raport imienny dla płatników nie uprawnionych do wypłaty świadczeń z ubezpieczenia Chorobowego",
     Petla::Raport,
     kRNA,
     {},
     2,
     u"Formularz ZUS RNA na:",
     u"Proszę podać identyfikator raportu ZUS RNA"},
    {KodKedu::RZA,
     u"RZA",
     u"Raport imienny o należnych składkach na ubezpieczenie zdrowotne",
     Petla::Raport,
     kRZA,
     {},
     2,
     u"Formularz ZUS RZA na:",
     u"Proszę podać identyfikator raportu ZUS RZA"},
    // Its identifier is asked for by the name of the RZA: deliberate.
    {KodKedu::RSA,
     u"RSA",
     u"Raport imienny o wypłaconych świadczeniach i przerwach w opłacaniu składek",
     Petla::Raport,
     kRSA,
     {},
     2,
     u"Formularz ZUS RSA na:",
     u"Proszę podać identyfikator raportu ZUS RZA"},
    {KodKedu::DRA, u"DRA", u"Deklaracja rozliczeniowa", Petla::Brak},
}};

} // namespace

std::span<const DokumentKedu, kDokumentow> DokumentyKedu() { return kDokumenty; }

} // namespace tornel::zus
