// Constants of the tabs "Użytkownik (1)" to "Użytkownik (3)", "ZUS (1)" and "ZUS (2)".
#include "rules/TabelaStalych.h"

namespace tornel::rules {

namespace {

using S = Stale;
using enum KartaStalych;
using enum SprawdzenieStalej;

constexpr QStringView kPlatnik = u"DANE PŁATNIKA (OSOBY FIZYCZNEJ):";
constexpr QStringView kSiedziba = u"ADRES SIEDZIBY PŁATNIKA:";
constexpr QStringView kZamieszkanie = u"ADRES ZAMIESZKANIA PŁATNIKA:";
constexpr QStringView kKorespondencja = u"ADRES PŁATNIKA DO KORESPONDENCJI:";
constexpr QStringView kZasilki = u"NUMERY SKŁADNIKÓW - ŚWIADCZENIA I ZASIŁKI:";
constexpr QStringView kSwiadczenia = u"(ZUS DRA) USTALENIE NUMERÓW SKŁADNIKÓW JAKO ŚWIADCZENIA WYPŁACANE Z:";

constexpr QStringView kNumerySwiadczen[] = {u"Świadczenie nr 1:", u"Świadczenie nr 2:", u"Świadczenie nr 3:",
                                            u"Świadczenie nr 4:", u"Świadczenie nr 5:"};

constexpr StalaDef kStaleFirma[] = {
    {300, u"NazwaUzCz1", &S::NazwaUzCz1, u"", u"Nazwa użytkownika (1 część):", Uzytkownik1, Tekst},
    {301, u"NazwaUzCz2", &S::NazwaUzCz2, u"", u"Nazwa użytkownika (2 część):", Uzytkownik1, Tekst},
    {302, u"NazwaSkrocona", &S::NazwaSkrocona, u"", u"Nazwa skrócona:", Uzytkownik1, Tekst},
    {303, u"KodiMiasto", &S::KodiMiasto, u"", u"Kod i miasto:", Uzytkownik1, Tekst},
    {304, u"Ulica", &S::Ulica, u"", u"Ulica:", Uzytkownik1, Tekst},
    {305, u"Telefon", &S::Telefon, u"", u"Telefon:", Uzytkownik1, Tekst},
    {306, u"NIP", &S::NIP, u"", u"NIP:", Uzytkownik1, Tekst},
    {307, u"Regon", &S::Regon, u"", u"Regon:", Uzytkownik1, Tekst},
    {308, u"EKD", &S::EKD, u"", u"EKD:", Uzytkownik1, Tekst},
    {309, u"Bank", &S::Bank, u"", u"Bank:", Uzytkownik1, Tekst},
    {310, u"Konto", &S::Konto, u"", u"Konto:", Uzytkownik1, Tekst},
    {663, u"USUzytk", &S::USUzytk, u"0", u"Urząd skarbowy pracodawcy:", Uzytkownik1, Urzad},

    {311, u"USERNazwisko", &S::USERNazwisko, u"", u"Nazwisko:", Uzytkownik2, Tekst, kPlatnik},
    {312, u"USERImie1", &S::USERImie1, u"", u"Pierwsze imię:", Uzytkownik2, Tekst, kPlatnik},
    {313, u"USERImie2", &S::USERImie2, u"", u"Drugie imię:", Uzytkownik2, Tekst, kPlatnik},
    {314, u"USERObywatelstwo", &S::USERObywatelstwo, u"", u"Obywatelstwo:", Uzytkownik2, Tekst, kPlatnik},
    {315, u"USERDataUr", &S::USERDataUr, u"", u"Data urodzenia:", Uzytkownik2, Data, kPlatnik},
    {316, u"USERMiejsceUr", &S::USERMiejsceUr, u"", u"Miejsce urodzenia:", Uzytkownik2, Tekst, kPlatnik},
    {317, u"USERSeriaDowodu", &S::USERSeriaDowodu, u"", u"Seria dowodu:", Uzytkownik2, Tekst, kPlatnik},
    {318, u"USERNumerDowodu", &S::USERNumerDowodu, u"", u"Numer dowodu:", Uzytkownik2, Tekst, kPlatnik},
    {319, u"USERPesel", &S::USERPesel, u"", u"PESEL:", Uzytkownik2, Tekst, kPlatnik},
    {330, u"UASPKod", &S::UASPKod, u"", u"Kod:", Uzytkownik2, Tekst, kSiedziba},
    {331, u"UASPMiejscowosc", &S::UASPMiejscowosc, u"", u"Miejscowość:", Uzytkownik2, Tekst, kSiedziba},
    {332, u"UASPGmina", &S::UASPGmina, u"", u"Gmina:", Uzytkownik2, Tekst, kSiedziba},
    {333, u"UASPUlica", &S::UASPUlica, u"", u"Ulica:", Uzytkownik2, Tekst, kSiedziba},
    {334, u"UASPNrDomu", &S::UASPNrDomu, u"", u"Nr domu:", Uzytkownik2, Tekst, kSiedziba},
    {335, u"UASPNrMieszkania", &S::UASPNrMieszkania, u"", u"Nr mieszkania:", Uzytkownik2, Tekst, kSiedziba},
    {336, u"UASPNrSkrytkiPoczt", &S::UASPNrSkrytkiPoczt, u"", u"Nr skrytki pocztowej:", Uzytkownik2, Tekst,
     kSiedziba},
    {337, u"UASPNrTelTelet", &S::UASPNrTelTelet, u"", u"Nr telefonu/teletransmisji:", Uzytkownik2, Tekst,
     kSiedziba},
    {338, u"UASPNrTel", &S::UASPNrTel, u"", u"Nr telefonu:", Uzytkownik2, Tekst, kSiedziba},
    {339, u"UASPNrFaksu", &S::UASPNrFaksu, u"", u"Nr faksu:", Uzytkownik2, Tekst, kSiedziba},
    {340, u"UASPEmail", &S::UASPEmail, u"", u"Adres e-mail:", Uzytkownik2, Tekst, kSiedziba},

    {350, u"UAZPKod", &S::UAZPKod, u"", u"Kod:", Uzytkownik3, Tekst, kZamieszkanie},
    {351, u"UAZPMiejscowosc", &S::UAZPMiejscowosc, u"", u"Miejscowość:", Uzytkownik3, Tekst, kZamieszkanie},
    {352, u"UAZPGmina", &S::UAZPGmina, u"", u"Gmina:", Uzytkownik3, Tekst, kZamieszkanie},
    {353, u"UAZPUlica", &S::UAZPUlica, u"", u"Ulica:", Uzytkownik3, Tekst, kZamieszkanie},
    {354, u"UAZPNrDomu", &S::UAZPNrDomu, u"", u"Nr domu:", Uzytkownik3, Tekst, kZamieszkanie},
    {355, u"UAZPNrMieszkania", &S::UAZPNrMieszkania, u"", u"Nr mieszkania:", Uzytkownik3, Tekst,
     kZamieszkanie},
    {356, u"UAZPNrSkrytkiPoczt", &S::UAZPNrSkrytkiPoczt, u"", u"Nr skrytki pocztowej:", Uzytkownik3, Tekst,
     kZamieszkanie},
    {357, u"UAZPNrTelTelet", &S::UAZPNrTelTelet, u"", u"Nr telefonu/teletransmisji:", Uzytkownik3, Tekst,
     kZamieszkanie},
    {358, u"UAZPNrTel", &S::UAZPNrTel, u"", u"Nr telefonu:", Uzytkownik3, Tekst, kZamieszkanie},
    {359, u"UAZPNrFaksu", &S::UAZPNrFaksu, u"", u"Nr faksu:", Uzytkownik3, Tekst, kZamieszkanie},
    {360, u"UAZPEmail", &S::UAZPEmail, u"", u"Adres e-mail:", Uzytkownik3, Tekst, kZamieszkanie},
    {370, u"UAPKKod", &S::UAPKKod, u"", u"Kod:", Uzytkownik3, Tekst, kKorespondencja},
    {371, u"UAPKMiejscowosc", &S::UAPKMiejscowosc, u"", u"Miejscowość:", Uzytkownik3, Tekst, kKorespondencja},
    {372, u"UAPKUlica", &S::UAPKUlica, u"", u"Ulica:", Uzytkownik3, Tekst, kKorespondencja},
    {373, u"UAPKNrDomu", &S::UAPKNrDomu, u"", u"Nr domu:", Uzytkownik3, Tekst, kKorespondencja},
    {374, u"UAPKNrMieszkania", &S::UAPKNrMieszkania, u"", u"Nr mieszkania:", Uzytkownik3, Tekst,
     kKorespondencja},
    {375, u"UAPKNrSkrytkiPoczt", &S::UAPKNrSkrytkiPoczt, u"", u"Nr skrytki pocztowej:", Uzytkownik3, Tekst,
     kKorespondencja},
    {376, u"UAPKNrTelTelet", &S::UAPKNrTelTelet, u"", u"Nr telefonu/teletransmisji:", Uzytkownik3, Tekst,
     kKorespondencja},
    {377, u"UAPKNrTel", &S::UAPKNrTel, u"", u"Nr telefonu:", Uzytkownik3, Tekst, kKorespondencja},
    {378, u"UAPKNrFaksu", &S::UAPKNrFaksu, u"", u"Nr faksu:", Uzytkownik3, Tekst, kKorespondencja},
    {379, u"UAPKEmail", &S::UAPKEmail, u"", u"Adres e-mail:", Uzytkownik3, Tekst, kKorespondencja},

    {400, u"PozarolDzialKod", &S::PozarolDzialKod, u"",
     u"Podstawa do prowadzenia pozarolniczej działalności - kod rodzaju uprawnień:", ZUS1, Tekst},
    {401, u"NazwaOrgZal", &S::NazwaOrgZal, u"", u"Nazwa organu założycielskiego:", ZUS1, Tekst},
    {402, u"CzyJedBud", &S::CzyJedBud, u"False", u"Czy płatnik jest jednostką budżetową ?", ZUS1,
     Przelacznik},
    {403, u"CzyPodlWpisDoRej", &S::CzyPodlWpisDoRej, u"False",
     u"Czy płatnik podlega wpisowi do rejestru / ewidencji ?", ZUS1, Przelacznik},
    {404, u"PowstObowOplSkl", &S::PowstObowOplSkl, u"",
     u"Data powstania obowiązku opłacania składek na ub. społ.:", ZUS1, Data},
    {405, u"RozpWykDzial", &S::RozpWykDzial, u"", u"Data rozpoczęcia wykonywania działalności:", ZUS1, Data},
    {406, u"CzyStatusZPCHR", &S::CzyStatusZPCHR, u"False",
     u"Czy płatnik posiada status Z.P.CHR. / aktywności zawodowej ?", ZUS1, Przelacznik},
    {407, u"OtrzymZPCHR", &S::OtrzymZPCHR, u"", u"Data otrzymania statusu Z.P.CHR. / aktywności zawodowej:",
     ZUS1, Data},
    {408, u"UtrataZPCHR", &S::UtrataZPCHR, u"", u"Data utraty statusu Z.P.CHR. / aktywności zawodowej:", ZUS1,
     Data},
    {409, u"NIPBiurRach", &S::NIPBiurRach, u"", u"NIP biura rachunkowego", ZUS1, Tekst},
    {410, u"REGONBiurRach", &S::REGONBiurRach, u"", u"REGON biura rachunkowego:", ZUS1, Tekst},
    {411, u"NazSkrBiurRach", &S::NazSkrBiurRach, u"", u"Nazwa skrócona biura rachunkowego:", ZUS1, Tekst},
    {425, u"PathKDU", &S::PathKDU, u"", u"Podpowiadana scieżka przy kopiowaniu plików KDU", ZUS1, Katalog},

    {412, u"Swiad_rech", &S::Swiad_rech, u"0", u"Świadczenia rechab.:", ZUS2, Numer, kZasilki},
    {413, u"Zas_chor", &S::Zas_chor, u"0", u"Zasiłki chorobowe:", ZUS2, Numer, kZasilki},
    {414, u"Zas_op", &S::Zas_op, u"0", u"Zasiłki opiekuńcze:", ZUS2, Numer, kZasilki},
    {415, u"Zas_mac", &S::Zas_mac, u"0", u"Zasiłki macierzyńskie:", ZUS2, Numer, kZasilki},
    {416, u"Zas_por", &S::Zas_por, u"0", u"Zasiłki porodowe:", ZUS2, Numer, kZasilki},
    {417, u"Zas_wyr", &S::Zas_wyr, u"0", u"Zasiłki wyrównawcze:", ZUS2, Numer, kZasilki},
    {418, u"Zas_pog", &S::Zas_pog, u"0", u"Zasiłki pogrzebowe:", ZUS2, Numer, kZasilki},
    {419, u"Zas_rodz", &S::Zas_rodz, u"0", u"Zasiłki rodzinne:", ZUS2, Numer, kZasilki},
    {420, u"Zas_piel", &S::Zas_piel, u"0", u"Zasiłki pielęgnacyjne:", ZUS2, Numer, kZasilki},
    {421, u"Zas_wych", &S::Zas_wych, u"0", u"Zasiłki wychowawcze:", ZUS2, Numer, kZasilki},
    {422, u"FC_zas", &S::FC_zas, u"", u"Ubezpieczenia chorobowego:", ZUS2, Numer, kSwiadczenia,
     kNumerySwiadczen},
    {423, u"FW_zas", &S::FW_zas, u"", u"Ubezpieczenia wypadkowego:", ZUS2, Numer, kSwiadczenia,
     kNumerySwiadczen},
    {424, u"BP_zas", &S::BP_zas, u"", u"Budżetu państwa:", ZUS2, Numer, kSwiadczenia, kNumerySwiadczen},

    {999, u"WydrukiZUS", &S::WydrukiZUS, u"000000000000000", u"Dokumenty kolekcji ZUS", Brak, Tekst},
};

} // namespace

std::span<const StalaDef> stale_czesci::firma() { return kStaleFirma; }

} // namespace tornel::rules
