// The rows from which the fields of the personnel file are made, tab by tab.
#pragma once
#include "okna/Pole.h"
#include "store/SchematKadr.h"
#include <QStringView>
#include <span>

namespace tornel::personnel {

namespace tabeleKartoteki {

using schemat::PRACDP;
using schemat::PRACPR;
using schemat::PRACSK;
using schemat::PRACZUS;

using enum Rodzaj;

using Wybory = std::span<const QStringView>;

struct PoleTabeli {
    QStringView podpis; ///< empty for a box that stands beside the one before it
    Kolumna kolumna;
    Rodzaj rodzaj = Tekst;
    QStringView opis = {}; ///< what the caption does not tell
    Wybory wybory = {};    ///< stored by their number, or as they stand in a column of text
    Dostep dostep = Dostep::Edycja;
};

inline constexpr QStringView kPlec[] = {u"M", u"K"};

/// Numbers 4 and 6 have no code of the insurer.
inline constexpr QStringView kWyksztalcenie[] = {
    u"niepełne podstawowe",
    u"podstawowe",
    u"zasadnicze zawodowe",
    u"średnie ogólnokształcące",
    u"niepełne wyższe",
    u"wyższe",
    u"inne",
    u"średnie zawodowe",
    u"policealne",
};

inline constexpr QStringView kGrupaPodatkowa[] = {u"Wyliczaj automatycznie", u"Grupa I", u"Grupa II",
                                                  u"Grupa III"};

inline constexpr QStringView kZUA[] = {
    u"pomijane",
    u"zgłoszenie do ubezpieczeń społecznych i ubezpieczenia zdrowotnego",
    u"zgłoszenie do ubezpieczeń społecznych",
    u"zgłoszenie zmiany danych",
    u"zgłoszenie korekty danych",
};
inline constexpr QStringView kZZA[] = {u"pomijane", u"zgłoszenie do ubezpieczenia zdrowotnego",
                                       u"zgłoszenie zmiany danych", u"zgłoszenie korekty danych"};
inline constexpr QStringView kZIUA[] = {u"pomijane", u"zgłoszenie zmiany danych identyfikacyjnych",
                                        u"zgłoszenie korekty danych identyfikacyjnych"};
/// The reports take 1 and 2 alike.
inline constexpr QStringView kRZA[] = {u"bez RZA i RSA", u"RZA i RSA", u"RZA i RSA: to samo co wyżej"};
inline constexpr QStringView kZWUA[] = {
    u"pomijane",
    u"wyrejestrowanie z ubezpieczeń",
    u"korekta wyrejestrowania",
    u"kontynuowanie ubezpieczeń",
    u"korekta kontynuowania",
};

// --- the rows of each tab
// ----------------------------------------------------------------------------------------

inline constexpr PoleTabeli kOsobowe[] = {
    {u"Numer pracownika:", PRACDP("prc_id"), Liczba, {}, {}, Dostep::Odczyt},
    {u"Nazwisko:", PRACDP("Naz")},
    {u"Imię 1:", PRACDP("Imie_1")},
    {u"Imię 2:", PRACDP("imie_2")},
    {u"Płeć:", PRACDP("plec"), Wybor, {}, kPlec},
    {u"Data urodzenia:", PRACDP("data_ur"), Data},
    {u"Miejsce urodzenia:", PRACDP("miejsce_ur")},
    {u"Nazwisko rodowe:", PRACDP("naz_rod")},
    {u"Imię ojca:", PRACDP("imie_oj")},
    {u"Imię matki:", PRACDP("imie_mat")},
};
inline constexpr PoleTabeli kStan[] = {
    {u"Stan cywilny:", PRACDP("stan_cyw")},
    {u"Obywatelstwo:", PRACDP("obywatel")},
    {u"Ilość dzieci:", PRACDP("il_dzieci"), Liczba},
};
inline constexpr PoleTabeli kZameldowanie[] = {
    {u"Miasto:", PRACDP("miasto")},
    {u"Kod:", PRACDP("Kod")},
    {u"Ulica:", PRACDP("ulica")},
    {u"Numer:", PRACDP("nr_domu"), Tekst, u"Numer domu"},
    {u"", PRACDP("nr_miesz"), Tekst, u"Numer mieszkania"},
    {u"Gmina/Dzielnica:", PRACDP("gm_dz")},
    {u"Powiat:", PRACDP("powiat")},
};
inline constexpr PoleTabeli kDokumenty[] = {
    {u"Dowód osobisty:", PRACDP("dowod_ser"), Tekst, u"Seria dowodu osobistego"},
    {u"", PRACDP("dowod_nr"), Tekst, u"Numer dowodu osobistego"},
    {u"Wydał:", PRACDP("dowod_wyd")},
    {u"Dnia:", PRACDP("dowod_dn"), Data},
    {u"Pesel:", PRACDP("pesel")},
    {u"NIP:", PRACDP("Nip")},
};

inline constexpr PoleTabeli kZamieszkanie[] = {
    {u"Miasto:", PRACDP("miasto_m")},
    {u"Kod:", PRACDP("kod_m")},
    {u"Ulica:", PRACDP("ulica_m")},
    {u"Numer:", PRACDP("nr_domu_m"), Tekst, u"Numer domu"},
    {u"", PRACDP("nr_miesz_m"), Tekst, u"Numer mieszkania"},
    {u"Gmina/Dzielnica:", PRACDP("gm_dz_m")},
    {u"Powiat:", PRACDP("powiat_m")},
    {u"Telefon:", PRACDP("telefon_m")},
    {u"Faks:", PRACDP("faks_m")},
};
inline constexpr PoleTabeli kKorespondencja[] = {
    {u"Miasto:", PRACDP("miasto_k")},
    {u"Kod:", PRACDP("kod_k")},
    {u"Ulica:", PRACDP("ulica_k")},
    {u"Numer:", PRACDP("nr_domu_k"), Tekst, u"Numer domu"},
    {u"", PRACDP("nr_miesz_k"), Tekst, u"Numer mieszkania"},
    {u"Gmina/Dzielnica:", PRACDP("gm_dz_k")},
    {u"Powiat:", PRACDP("powiat_k")},
    {u"Telefon:", PRACDP("telefon_k")},
    {u"Faks:", PRACDP("faks_k")},
};
inline constexpr PoleTabeli kPoczta[] = {{u"E-mail:", PRACDP("e_mail")}};

inline constexpr PoleTabeli kZatrudnienie[] = {
    {u"Zatrudnienie od:", PRACPR("data_zatr"), Data},
    {u"Zatrudnienie do:", PRACPR("data_zwoln"), Data},
    {u"Zwolniony", PRACPR("Zwoln"), Flaga},
    {u"Ostatnia umowa od:", PRACPR("umowa_od"), Data},
    {u"Ostatnia umowa do:", PRACPR("umowa_do"), Data},
    {u"Dział:", PRACPR("dzial")},
    {u"Stanowisko:", PRACPR("stanow")},
    {u"Etat:", PRACPR("etat"), Liczba, u"Etat, licznik"},
    {u"", PRACPR("etat2"), Liczba, u"Etat, mianownik"},
};
inline constexpr PoleTabeli kWynagrodzenie[] = {
    {u"Płaca zasadnicza:", PRACPR("placa_zas"), Kwota},
    {u"Stawka godzinowa:", PRACPR("Sgp"), Kwota},
    {u"Premia (%):", PRACPR("Premia_pr"), Kwota},
    {u"Symbol listy płac:", PRACPR("Lista")},
};
inline constexpr PoleTabeli kKwalifikacje[] = {
    {u"Wykształcenie:", PRACPR("wyksz"), Wybor, {}, kWyksztalcenie},
    {u"Zawód 1:", PRACPR("zawod_1")},
    {u"Zawód 2:", PRACPR("zawod_2")},
    {u"Specjalność:", PRACPR("specjaln")},
    {u"Kod zawodu:", PRACPR("kod_zawodu")},
};

inline constexpr PoleTabeli kUrzad[] = {
    {u"Urząd skarbowy:", PRACPR("us_id"), Wybor},
    {u"Koszty uzyskania przychodu:", PRACPR("Kup"), Kwota},
};
inline constexpr PoleTabeli kPodatek[] = {
    {u"BIEŻĄCA GRUPA PODATKOWA:", PRACPR("gr_pod"), Wybor, {}, kGrupaPodatkowa},
    {u"Podwojone progi", PRACPR("czy_2progi"), Flaga},
    {u"Odliczanie kosztów uzyskania przychodu", PRACPR("czy_kuz"), Flaga},
    {u"Pomniejszanie zaliczki na podatek", PRACPR("czy_ulga"), Flaga},
};
inline constexpr PoleTabeli kKonto[] = {
    {u"Bank:", PRACPR("bank")},
    {u"Konto:", PRACPR("konto")},
    {u"Płatne na konto", PRACPR("czy_konto"), Flaga},
};

inline constexpr PoleTabeli kBilans[] = {
    {u"Dochód:", PRACPR("doch_start"), Kwota},
    {u"Podatek:", PRACPR("pod_start"), Kwota},
    {u"Koszty uzyskania:", PRACPR("kup_start"), Kwota},
    {u"Zdrowotne pobrane:", PRACPR("ubzp_start"), Kwota},
    {u"Zdrowotne odliczone:", PRACPR("ubzo_start"), Kwota},
    {u"Fundusz emerytalny:", PRACPR("fepc_start"), Kwota},
    {u"Fundusz rentowy:", PRACPR("frpc_start"), Kwota},
    {u"Fundusz chorobowy:", PRACPR("fcpc_start"), Kwota},
    {u"Podstawa FE i FR:", PRACPR("fefr_start"), Kwota},
};

inline constexpr PoleTabeli kAdresDodatki[] = {
    {u"Kraj:", PRACDP("kraj")},       {u"Województwo:", PRACDP("woj")},
    {u"Poczta:", PRACDP("poczta")},   {u"Skrytka pocztowa:", PRACDP("skr_pocz")},
    {u"Telefon:", PRACDP("telefon")}, {u"Teleks:", PRACDP("teleks")},
    {u"Faks:", PRACDP("faks")},
};
inline constexpr PoleTabeli kMiejscePracy[] = {{u"Miejsce pracy:", PRACPR("mp_id"), Wybor}};
inline constexpr PoleTabeli kUrlop[] = {
    {u"Zaległego:", PRACPR("il_zal_url"), Liczba, u"Dni urlopu zaległego"},
    {u"Nowego:", PRACPR("il_url"), Liczba, u"Dni urlopu nowego"},
};
inline constexpr PoleTabeli kZasilki[] = {
    {u"Pielęgnacyjne:", PRACZUS("il_z_piel"), Liczba},
    {u"Rodzinne:", PRACZUS("il_z_rodz"), Liczba},
    {u"Wychowawcze:", PRACZUS("il_z_wych"), Liczba},
};
inline constexpr PoleTabeli kPozyczka[] = {
    {u"Kwota udzielonej pożyczki:", PRACSK("kwota_kzp"), Kwota},
    {u"Spłata pożyczki od miesiąca:", PRACSK("kzp_odmies"), Tekst, u"Spłata pożyczki od miesiąca (mm.rrrr)"},
};
inline constexpr PoleTabeli kWskazniki[] = {
    {u"Wskaźnik 1:", PRACSK("wsk_1"), Kwota, u"Wskaźnik 1, we wzorach WS1"},
    {u"Wskaźnik 2:", PRACSK("wsk_2"), Kwota, u"Wskaźnik 2, we wzorach WS2"},
};

inline constexpr PoleTabeli kZlecenie[] = {
    {u"Zatrudniony na umowę zlecenie", PRACPR("umowa_zlec"), Flaga},
    {u"Koszty uzyskania (%):", PRACPR("k_uz_uzl"), Kwota},
    {u"Stawka podatku (%):", PRACPR("st_pod_uzl"), Kwota},
    {u"Ubezp. zdrowotne (%):", PRACPR("wuzubzdr"), Kwota},
};
inline constexpr PoleTabeli kSkladkiOsoby[] = {
    {u"Fundusz emerytalny:", PRACPR("wuzfeprc"), Kwota},
    {u"Fundusz rentowy:", PRACPR("wuzfrprc"), Kwota},
    {u"Fundusz chorobowy:", PRACPR("wuzfcprc"), Kwota},
};
inline constexpr PoleTabeli kSkladkiFirmy[] = {
    {u"Fundusz emerytalny:", PRACPR("wuzfeprd"), Kwota}, {u"Fundusz rentowy:", PRACPR("wuzfrprd"), Kwota},
    {u"Fundusz wypadkowy:", PRACPR("wuzfwprd"), Kwota},  {u"Fundusz pracy:", PRACPR("wuzfp"), Kwota},
    {u"Fundusz GSP:", PRACPR("wuzfgsp"), Kwota},
};
inline constexpr PoleTabeli kDzielo[] = {
    {u"Zatrudniony na umowę o dzieło", PRACPR("umowa_o_dz"), Flaga},
    {u"Koszty uzyskania (%):", PRACPR("k_uz_uod"), Kwota},
    {u"Stawka podatku (%):", PRACPR("st_pod_uod"), Kwota},
};
inline constexpr PoleTabeli kHonoraria[] = {
    {u"Otrzymuje honoraria", PRACPR("honorarium"), Flaga},
    {u"Koszty uzyskania (%):", PRACPR("k_uz_hon"), Kwota},
    {u"Stawka podatku (%):", PRACPR("st_pod_hon"), Kwota},
};

inline constexpr PoleTabeli kTytul[] = {
    {u"Kod tytułu ubezpieczenia:", PRACZUS("kod_tyt_ub")},
    {u"Prawo do emerytury lub renty:", PRACZUS("emer_rent")},
    {u"Stopień niepełnosprawności:", PRACZUS("st_niespr")},
    {u"Niepełnosprawność od:", PRACZUS("niespr_od"), Data},
    {u"Niepełnosprawność do:", PRACZUS("niespr_do"), Data},
};
inline constexpr PoleTabeli kNiezdolnosc[] = {
    {u"Stopień niezdolności:", PRACZUS("st_niezdpr")},
    {u"Opis:", PRACZUS("opisniezd"), Tekst, u"Opis niezdolności do pracy"},
    {u"Niezdolność od:", PRACZUS("niezdpr_od"), Data},
    {u"Niezdolność do:", PRACZUS("niezdpr_do"), Data},
};
inline constexpr PoleTabeli kKasa[] = {
    {u"Kod kasy chorych:", PRACZUS("kod_k_ch")},
    {u"Data przystąpienia:", PRACZUS("dat_k_ch"), Data, u"Data przystąpienia do kasy chorych"},
};
inline constexpr PoleTabeli kPoczatek[] = {
    {u"Społeczne od:", PRACZUS("pocz_ub_sp"), Data, u"Ubezpieczenie społeczne od"},
    {u"Zdrowotne od:", PRACZUS("pocz_ub_zd"), Data, u"Ubezpieczenie zdrowotne od"},
};
inline constexpr PoleTabeli kPodlega[] = {
    {u"emerytalnemu", PRACZUS("podlega_fe"), Flaga}, {u"rentowemu", PRACZUS("podlega_fr"), Flaga},
    {u"chorobowemu", PRACZUS("podlega_fc"), Flaga},  {u"wypadkowemu", PRACZUS("podlega_fw"), Flaga},
    {u"zdrowotnemu", PRACZUS("podlega_uz"), Flaga},
};
inline constexpr PoleTabeli kRodzina[] = {
    {u"Kod pokrewieństwa:", PRACZUS("kod_pokr")},
    {u"Wspólne gospodarstwo domowe", PRACZUS("wsp_gosp"), Flaga},
};

/// What a marking sends, where its words do not tell it all.
inline constexpr QStringView kOpisZUA =
    u"ZUS ZUA: pierwsze trzy znaki rozstrzygają też o rodzaju zgłoszenia w ZUS ZZA";
inline constexpr QStringView kOpisZZA =
    u"ZUS ZZA: każdy znak wysyła ZUS ZZA, a rodzaj zgłoszenia bierze się w nim ze "
    u"znaku przy ZUS ZUA";
inline constexpr QStringView kOpisZIUA = u"ZUS ZIUA: wysyła poprzednie i obecne dane identyfikacyjne";

inline constexpr PoleTabeli kDokumentyZus[] = {
    {u"ZUS ZUA:", PRACZUS("oi_zua"), Wybor, kOpisZUA, kZUA},
    {u"ZUS ZZA:", PRACZUS("oi_zza"), Wybor, kOpisZZA, kZZA},
    {u"ZUS ZIUA:", PRACZUS("oi_ziua"), Wybor, kOpisZIUA, kZIUA},
    {u"ZUS RCA, RNA lub RZA:", PRACZUS("rza"), Wybor,
     u"Wiersz w raportach RZA i RSA; 1 i 2 działają tak samo", kRZA},
};
inline constexpr PoleTabeli kStawki[] = {
    {u"Ubezp. zdrowotne:", PRACZUS("wsk_ubzdr"), Kwota}, {u"Fundusz emerytalny:", PRACZUS("wsk_fe"), Kwota},
    {u"Fundusz rentowy:", PRACZUS("wsk_fr"), Kwota},     {u"Fundusz chorobowy:", PRACZUS("wsk_fc"), Kwota},
    {u"Fundusz pracy:", PRACZUS("Fp"), Kwota},           {u"Fundusz GSP:", PRACZUS("gsp"), Kwota},
};
inline constexpr PoleTabeli kPPE[] = {{u"Składka PPE:", PRACZUS("PPE"), Kwota}};

inline constexpr PoleTabeli kDokumentZwua[] = {{u"ZUS ZWUA:", PRACZUS("zus_zwua"), Wybor, {}, kZWUA}};
inline constexpr PoleTabeli kUstanie[] = {
    {u"Emerytalne", PRACZUS("zwua_e"), Flaga, u"Ustanie ubezpieczenia emerytalnego"},
    {u"", PRACZUS("zwua_d_e"), Data, u"Data ustania ubezpieczenia emerytalnego"},
    {u"", PRACZUS("zwua_k_e"), Tekst, u"Kod przyczyny ustania ubezpieczenia emerytalnego"},
    {u"Rentowe", PRACZUS("zwua_r"), Flaga, u"Ustanie ubezpieczenia rentowego"},
    {u"", PRACZUS("zwua_d_r"), Data, u"Data ustania ubezpieczenia rentowego"},
    {u"", PRACZUS("zwua_k_r"), Tekst, u"Kod przyczyny ustania ubezpieczenia rentowego"},
    {u"Chorobowe", PRACZUS("zwua_c"), Flaga, u"Ustanie ubezpieczenia chorobowego"},
    {u"", PRACZUS("zwua_d_c"), Data, u"Data ustania ubezpieczenia chorobowego"},
    {u"", PRACZUS("zwua_k_c"), Tekst, u"Kod przyczyny ustania ubezpieczenia chorobowego"},
    {u"Wypadkowe", PRACZUS("zwua_w"), Flaga, u"Ustanie ubezpieczenia wypadkowego"},
    {u"", PRACZUS("zwua_d_w"), Data, u"Data ustania ubezpieczenia wypadkowego"},
    {u"", PRACZUS("zwua_k_w"), Tekst, u"Kod przyczyny ustania ubezpieczenia wypadkowego"},
    {u"Zdrowotne", PRACZUS("zwua_z"), Flaga, u"Ustanie ubezpieczenia zdrowotnego"},
    {u"", PRACZUS("zwua_d_z"), Data, u"Data ustania ubezpieczenia zdrowotnego"},
    {u"", PRACZUS("zwua_k_z"), Tekst, u"Kod przyczyny ustania ubezpieczenia zdrowotnego"},
};
inline constexpr PoleTabeli kKontynuacja[] = {
    {u"Kontynuowanie od:", PRACZUS("dkont_ubsp"), Data},
    {u"Kod tytułu ubezpieczenia:", PRACZUS("k_k_tyt_ub")},
    {u"Prawo do emerytury lub renty:", PRACZUS("k_em_rent")},
    {u"Stopień niepełnosprawności:", PRACZUS("kst_niespr")},
};

} // namespace tabeleKartoteki

} // namespace tornel::personnel
