// Constants of the tabs "PIT (1)" to "PIT (4)" and "MCS", and those that the PIT-40 screen keeps.
#include "rules/TabelaStalych.h"

namespace tornel::rules {

namespace {

using S = Stale;
using enum KartaStalych;
using enum SprawdzenieStalej;

constexpr QStringView kAdres = u"ZMIANA DANYCH O FIRMIE - ADRES SIEDZIBY * / ADRES ZAMIESZKANIA **";
constexpr QStringView kKoszty =
    u"Wysokość miesięcznego kosztu uzyskania przychodu na podstawie: (dla: PIT-11)";
constexpr QStringView kArchiwum = u"ARCHIWUM DANYCH";

constexpr QStringView kRodzajePlatnika[] = {u"1 - płatnik nie będący osobą fizyczną", u"2 - osoba fizyczna"};

constexpr StalaDef kStaleDeklaracje[] = {
    {500, u"NazwaPelna", &S::NazwaPelna, u"", u"Nazwa pełna * / Nazwisko, pierwsze imię **", PIT1, Tekst},
    {501, u"NazwaSkroc", &S::NazwaSkroc, u"", u"Nazwa skrócona * / Imię ojca, imię matki **", PIT1, Tekst},
    {502, u"NIPPlatnika", &S::NIPPlatnika, u"", u"Numer Identyfikacji Podatkowej płatnika:", PIT1, Tekst},
    {503, u"OsFizyczna", &S::OsFizyczna, u"False", u"Rodzaj płatnika", PIT1, Wybor, u"Rodzaj płatnika",
     kRodzajePlatnika},
    {504, u"REGON_PESEL", &S::REGON_PESEL, u"", u"Identyfikator REGON * / Numer ewidencyjny PESEL **", PIT1,
     Tekst},
    {505, u"DataRozpDzial", &S::DataRozpDzial, u"", u"Data rozpoczęcia działalności **", PIT1, Data},
    {506, u"NazOrgZal", &S::NazOrgZal, u"", u"Nazwa organu rejestrowego:", PIT1, Tekst},
    {507, u"NazwaRejestru", &S::NazwaRejestru, u"", u"Nazwa rejestru:", PIT1, Tekst},
    {508, u"DataRejestracji", &S::DataRejestracji, u"", u"Data rejestracji:", PIT1, Data},
    {509, u"NumerWRej", &S::NumerWRej, u"", u"Numer w rejestrze:", PIT1, Tekst},

    {510, u"PITKraj", &S::PITKraj, u"", u"Kraj:", PIT2, Tekst, kAdres},
    {511, u"PITWoj", &S::PITWoj, u"", u"Województwo:", PIT2, Tekst, kAdres},
    {512, u"PITPowiat", &S::PITPowiat, u"", u"Powiat:", PIT2, Tekst, kAdres},
    {513, u"PITGmina", &S::PITGmina, u"", u"Gmina:", PIT2, Tekst, kAdres},
    {514, u"PITMiejsc", &S::PITMiejsc, u"", u"Miejscowość:", PIT2, Tekst, kAdres},
    {515, u"PITUlica", &S::PITUlica, u"", u"Ulica:", PIT2, Tekst, kAdres},
    {516, u"PITNrDomu", &S::PITNrDomu, u"", u"Nr domu:", PIT2, Tekst, kAdres},
    {517, u"PITNrLok", &S::PITNrLok, u"", u"Nr lokalu:", PIT2, Tekst, kAdres},
    {518, u"PITKodPocztowy", &S::PITKodPocztowy, u"", u"Kod pocztowy:", PIT2, Tekst, kAdres},
    {519, u"PITPoczta", &S::PITPoczta, u"", u"Poczta:", PIT2, Tekst, kAdres},
    {520, u"PITSkrzynka", &S::PITSkrzynka, u"", u"Skrzynka pocztowa:", PIT2, Tekst, kAdres},
    {521, u"PITTelefon", &S::PITTelefon, u"", u"Telefon:", PIT2, Tekst, kAdres},
    {522, u"PITTeleks", &S::PITTeleks, u"", u"Teleks:", PIT2, Tekst, kAdres},
    {523, u"PITFaks", &S::PITFaks, u"", u"Faks:", PIT2, Tekst, kAdres},

    {524, u"PITUs", &S::PITUs, u"", u"Nazwa urzędu skarbowego (dla: PIT-4):", PIT3, Tekst},
    {525, u"PITImie", &S::PITImie, u"", u"Imię osoby wypełniającej deklaracje:", PIT3, Tekst},
    {526, u"PITNazw", &S::PITNazw, u"", u"Nazwisko osoby wypełniającej deklaracje:", PIT3, Tekst},
    {527, u"PITOkresOd", &S::PITOkresOd, u"", u"Okres pracy od (dla: PIT-11):", PIT3, Data},
    {528, u"PITOkresDo", &S::PITOkresDo, u"", u"do", PIT3, Data},

    {529, u"PITKuz1", &S::PITKuz1, u"0", u"1 - art.22 ust.2 ustawy:", PIT4, Kwota, kKoszty},
    {530, u"PITKuz2", &S::PITKuz2, u"0", u"2 - art.22 ust.2a ustawy:", PIT4, Kwota, kKoszty},
    {531, u"PITKuz3", &S::PITKuz3, u"0", u"3 - art.22 ust.2 i 2a ustawy:", PIT4, Kwota, kKoszty},
    {532, u"PITCzyPITr", &S::PITCzyPITr, u"False", u"Dołączono załącznik PIT-R", PIT4, Przelacznik},

    // The thresholds in the formulas are deliberately not tied to constants 40 and 41, nor is 53248 a slip.
    {550, u"GrpPIT40", &S::GrpPIT40, u"", u"", Brak, Calkowita},
    {551, u"WzorPIT40G1", &S::WzorPIT40G1, u"DOCH*0,19-394,8", u"", Brak, Wzor},
    {552, u"WzorPIT40G2", &S::WzorPIT40G2, u"5233,76+((DOCH-29624)*0,3)", u"", Brak, Wzor},
    {553, u"WzorPIT40G3", &S::WzorPIT40G3, u"14120,96+((DOCH-53248)*0,4)", u"", Brak, Wzor},

    {600, u"MCSAkt", &S::MCSAkt, u"False", u"Aktywna współpraca z programem MultiCash", MCS, Przelacznik},
    {601, u"MCSNazwa1", &S::MCSNazwa1, u"", u"Nazwa użytkownika (część 1):", MCS, Tekst},
    {602, u"MCSNazwa2", &S::MCSNazwa2, u"", u"Nazwa użytkownika (cześć 2):", MCS,
     Tekst}, // spelt so deliberately
    {603, u"MCSUlica", &S::MCSUlica, u"", u"Ulica:", MCS, Tekst},
    {604, u"MCSKod", &S::MCSKod, u"", u"Kod, miasto:", MCS, Tekst},
    {605, u"MCSPath", &S::MCSPath, u"", u"Ścieżka do kopiowania plików:", MCS, Katalog},
    {700, u"PytajArch", &S::PytajArch, u"True", u"Pytaj o tworzenie archiwum przy zamykaniu programu.", MCS,
     Przelacznik, kArchiwum},
    {701, u"ArchPath", &S::ArchPath, u"", u"Ścieżka dostępu dla archiwum:", MCS, Katalog, kArchiwum},
};

} // namespace

std::span<const StalaDef> stale_czesci::deklaracje() { return kStaleDeklaracje; }

} // namespace tornel::rules
