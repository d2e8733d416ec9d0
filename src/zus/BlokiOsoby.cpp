// Blocks of the insured person and his family.
#include "store/Schemat.h"
#include "zus/BlokiKedu.h"
#include "zus/PisarzeKedu.h"
#include "zus/PolaKedu.h"

namespace tornel::zus {

using namespace pola;
using schemat::PRACDP;
using schemat::PRACPR;
using schemat::PRACZUS;
using schemat::RODZINA;

namespace {

Wartosc plecDuza(const KontekstKedu& k) {
    const Wartosc w = k.wartosc(PRACDP("plec"));
    const auto* plec = std::get_if<QString>(&w);
    return plec ? plec->toUpper() : QString();
}

Wartosc kasaChorych(const KontekstKedu& k) {
    const Wartosc w = k.wartosc(PRACZUS("kod_k_ch"));
    const auto* kod = std::get_if<QString>(&w);
    return kod ? NazwaKasyChorych(*kod) : QString();
}

constexpr QStringView kPesel = u"PESEL", kNip = u"NIP", kDokument = u"Rodzaj dokumentu tożsamości";
constexpr QStringView kSeriaNumer = u"Seria i numer dokumentu";
constexpr QStringView kUrodzenie = u"Data urodzenia";

constexpr PoleKedu kOsoba[] = {
    tekst(11, PRACDP("pesel"), kPesel),
    cyfry(10, PRACDP("Nip"), kNip),
    stale(u"1", kDokument),
    tekst(9, DwieKolumny{PRACDP("dowod_ser"), PRACDP("dowod_nr")}, kSeriaNumer),
    tekst(31, PRACDP("Naz"), kNapisNazwiska),
    tekst(22, PRACDP("Imie_1"), kNapisImienia),
    data(PRACDP("data_ur"), kUrodzenie),
    zera(16),
    zera(16),
    zera(2),
};
constexpr PoleKedu kDIOP[] = {
    tekst(11, PRACDP("spesel"), kPesel),
    cyfry(10, PRACDP("snip"), kNip),
    stale(u"1", kDokument),
    tekst(9, DwieKolumny{PRACDP("sdowod_ser"), PRACDP("sdowod_nr")}, kSeriaNumer),
    tekst(31, PRACDP("snaz"), kNapisNazwiska),
    tekst(22, PRACDP("simie_1"), kNapisImienia),
    data(PRACDP("sdata_ur"), kUrodzenie),
    zera(16),
    zera(16),
    zera(2),
};
constexpr PoleKedu kDEOZ[] = {
    tekst(22, PRACDP("imie_2"), u"Drugie imię"),
    tekst(31, PRACDP("naz_rod"), u"Nazwisko rodowe"),
    tekst(22, PRACDP("obywatel"), u"Obywatelstwo"),
    tekst(1, plecDuza, u"Płeć"),
    odstepy(1),
    odstepy(1),
};

constexpr QStringView kTytul = u"Kod tytułu ubezpieczenia", kEmerytura = u"Prawo do emerytury lub renty";
constexpr QStringView kStopien = u"Stopień niepełnosprawności";
constexpr PoleKedu kTYUB[] = {
    tekst(4, PRACZUS("kod_tyt_ub"), kTytul),
    dalej(tekst(1, PRACZUS("emer_rent"), kEmerytura)),
    dalej(tekst(1, PRACZUS("st_niespr"), kStopien)),
    okres(PRACZUS("niespr_od"), PRACZUS("niespr_do"), u"Niepełnosprawność od - do"),
};
constexpr PoleKedu kDOWP[] = {
    licznik(3, PRACPR("etat"), u"Wymiar czasu pracy: licznik"),
    dalej(licznik(3, PRACPR("etat2"), u"mianownik")),
    data(PRACZUS("pocz_ub_sp"), u"Ubezpieczenia społeczne od"),
    znacznik(PRACZUS("podlega_fe"), u"Ubezpieczenie emerytalne"),
    znacznik(PRACZUS("podlega_fr"), u"Ubezpieczenie rentowe"),
    znacznik(PRACZUS("podlega_fc"), u"Ubezpieczenie chorobowe"),
    znacznik(PRACZUS("podlega_fw"), u"Ubezpieczenie wypadkowe"),
};
constexpr PoleKedu kDOOU[] = {data(PRACZUS("pocz_ub_zd"), u"Ubezpieczenie zdrowotne od")};
constexpr PoleKedu kDOBU[] = {odstepy(1), odstepy(8), odstepy(1), odstepy(8), odstepy(1), odstepy(8)};
constexpr PoleKedu kDODU[] = {odstepy(8), odstepy(9)};
constexpr PoleKedu kIODZ[] = {
    tekst(2, PRACZUS("kod_pokr"), u"Kod pokrewieństwa"),
    znacznik(PRACZUS("wsp_gosp"), u"Wspólne gospodarstwo domowe"),
    tekst(2, PRACZUS("st_niezdpr"), u"Stopień niezdolności do pracy"),
    okres(PRACZUS("niezdpr_od"), PRACZUS("niezdpr_do"), u"Niezdolność do pracy od - do"),
    tekst(7, PRACPR("kod_zawodu"), u"Kod zawodu"),
    odstepy(6),
    odstepy(16),
    {Pisarz::Wyksztalcenie, 2, PRACPR("wyksz"), u"Kod wykształcenia"},
    odstepy(9),
    odstepy(16),
};
constexpr PoleKedu kDOKC[] = {
    tekst(3, PRACZUS("kod_k_ch"), u"Kod kasy chorych"),
    tekst(23, kasaChorych, u"Nazwa kasy chorych"),
    data(PRACZUS("dat_k_ch"), u"Członek kasy od"),
};

constexpr QStringView kKodPocztowy = u"Kod pocztowy", kMiejscowosc = u"Miejscowość",
                      kGminaOsoby = u"Gmina / dzielnica";
constexpr QStringView kUlicaOsoby = u"Ulica", kNrDomu = u"Numer domu", kNrLokalu = u"Numer lokalu";
constexpr QStringView kNrTelefonu = u"Telefon", kNrFaksu = u"Faks";
constexpr PoleKedu kAZMO[] = {
    cyfry(5, PRACDP("Kod"), kKodPocztowy),     tekst(26, PRACDP("miasto"), kMiejscowosc),
    tekst(26, PRACDP("gm_dz"), kGminaOsoby),   tekst(30, PRACDP("ulica"), kUlicaOsoby),
    tekst(7, PRACDP("nr_domu"), kNrDomu),      tekst(7, PRACDP("nr_miesz"), kNrLokalu),
    cyfry(12, PRACDP("telefon"), kNrTelefonu), cyfry(12, PRACDP("faks"), kNrFaksu),
};
constexpr PoleKedu kADZA[] = {
    cyfry(5, PRACDP("kod_m"), kKodPocztowy),     tekst(26, PRACDP("miasto_m"), kMiejscowosc),
    tekst(26, PRACDP("gm_dz_m"), kGminaOsoby),   tekst(30, PRACDP("ulica_m"), kUlicaOsoby),
    tekst(7, PRACDP("nr_domu_m"), kNrDomu),      tekst(7, PRACDP("nr_miesz_m"), kNrLokalu),
    cyfry(12, PRACDP("telefon_m"), kNrTelefonu), cyfry(12, PRACDP("faks_m"), kNrFaksu),
};
constexpr PoleKedu kADKB[] = {
    cyfry(5, PRACDP("kod_k"), kKodPocztowy),     tekst(26, PRACDP("miasto_k"), kMiejscowosc),
    tekst(30, PRACDP("ulica_k"), kUlicaOsoby),   tekst(7, PRACDP("nr_domu_k"), kNrDomu),
    tekst(7, PRACDP("nr_miesz_k"), kNrLokalu),   tekst(5, PRACDP("skr_pocz"), u"Skrytka pocztowa"),
    cyfry(12, PRACDP("telefon_k"), kNrTelefonu), cyfry(12, PRACDP("faks_k"), kNrFaksu),
    tekst(30, PRACDP("e_mail"), u"E-mail"),
};
constexpr PoleKedu kWNOU[] = {
    tekst(4, PRACZUS("k_k_tyt_ub"), kTytul),
    dalej(tekst(1, PRACZUS("k_em_rent"), kEmerytura)),
    dalej(tekst(1, PRACZUS("kst_niespr"), kStopien)),
    data(PRACZUS("dkont_ubsp"), u"Kontynuowanie ubezpieczeń od"),
};

constexpr QStringView kUstaloOd = u"od dnia", kPrzyczyna = u"kod przyczyny";
constexpr PoleKedu kWUBD[] = {
    tekst(4, PRACZUS("kod_tyt_ub"), kTytul),
    dalej(tekst(1, PRACZUS("emer_rent"), kEmerytura)),
    dalej(tekst(1, PRACZUS("st_niespr"), kStopien)),
    krzyzyk(PRACZUS("zwua_e"), u"Ustało ubezpieczenie emerytalne"),
    data(PRACZUS("zwua_d_e"), kUstaloOd),
    tekst(3, PRACZUS("zwua_k_e"), kPrzyczyna),
    krzyzyk(PRACZUS("zwua_r"), u"Ustało ubezpieczenie rentowe"),
    data(PRACZUS("zwua_d_r"), kUstaloOd),
    tekst(3, PRACZUS("zwua_k_r"), kPrzyczyna),
    krzyzyk(PRACZUS("zwua_c"), u"Ustało ubezpieczenie chorobowe"),
    data(PRACZUS("zwua_d_c"), kUstaloOd),
    tekst(3, PRACZUS("zwua_k_c"), kPrzyczyna),
    krzyzyk(PRACZUS("zwua_w"), u"Ustało ubezpieczenie wypadkowe"),
    data(PRACZUS("zwua_d_w"), kUstaloOd),
    tekst(3, PRACZUS("zwua_k_w"), kPrzyczyna),
    krzyzyk(PRACZUS("zwua_z"), u"Ustało ubezpieczenie zdrowotne"),
    data(PRACZUS("zwua_d_z"), kUstaloOd),
    tekst(3, PRACZUS("zwua_k_z"), kPrzyczyna),
};

/// The twelve lines that both family blocks share behind their first one.
constexpr std::array<PoleKedu, 12> kCzlonek{
    data(RODZINA("d_ub_zdr"), u"Ubezpieczenie zdrowotne od"),
    tekst(11, RODZINA("pesel"), kPesel),
    cyfry(10, RODZINA("Nip"), kNip),
    stale(u"1", kDokument),
    tekst(9, DwieKolumny{RODZINA("dowod_ser"), RODZINA("dowod_nr")}, kSeriaNumer),
    tekst(31, RODZINA("Naz"), kNapisNazwiska),
    tekst(22, RODZINA("Imie"), kNapisImienia),
    data(RODZINA("data_ur"), kUrodzenie),
    tekst(2, RODZINA("kod_pokr"), u"Kod pokrewieństwa"),
    krzyzyk(RODZINA("wyl_utrz"), u"Na wyłącznym utrzymaniu"),
    krzyzyk(RODZINA("wsp_gosp"), u"Wspólne gospodarstwo domowe"),
    tekst(1, RODZINA("st_niespr"), kStopien),
};
constexpr std::array<PoleKedu, 8> kAdresCzlonka{
    cyfry(5, RODZINA("Kod"), kKodPocztowy),     tekst(26, RODZINA("miasto"), kMiejscowosc),
    tekst(26, RODZINA("gm_dz"), kGminaOsoby),   tekst(30, RODZINA("ulica"), kUlicaOsoby),
    tekst(7, RODZINA("nr_domu"), kNrDomu),      tekst(7, RODZINA("nr_miesz"), kNrLokalu),
    tekst(12, RODZINA("telefon"), kNrTelefonu), tekst(12, RODZINA("faks"), kNrFaksu),
};
constexpr std::array<PoleKedu, 3> kKoniecCzlonka{odstepy(16), odstepy(16), odstepy(2)};

template <std::size_t... N>
constexpr auto razem(const std::array<PoleKedu, N>&... czesci) {
    std::array<PoleKedu, (N + ...)> wynik{};
    std::size_t i = 0;
    ((std::ranges::copy(czesci, wynik.begin() + static_cast<std::ptrdiff_t>(i)), i += N), ...);
    return wynik;
}

constexpr QStringView kRodzajCzlonka = u"1 - zgłoszenie, 2 - zmiana";
constexpr std::array<PoleKedu, 1> kZnakCNA{licznik(1, RODZINA("zcna"), kRodzajCzlonka)};
constexpr std::array<PoleKedu, 1> kZnakCZA{licznik(1, RODZINA("zcza"), kRodzajCzlonka)};
constexpr auto kDOCRA = razem(kZnakCNA, kCzlonek, kAdresCzlonka, kKoniecCzlonka);
constexpr auto kDOCRBA = razem(kZnakCZA, kCzlonek, kKoniecCzlonka);

} // namespace

namespace bloki {

const BlokKedu DAU{u"DAU", u"Ubezpieczony", kOsoba};
const BlokKedu ADIU{u"ADIU", u"Aktualne dane identyfikacyjne", kOsoba};
const BlokKedu DIOP{u"DIOP", u"Poprzednie dane identyfikacyjne", kDIOP};
const BlokKedu DEOZ{u"DEOZ", u"Dane ewidencyjne", kDEOZ};
const BlokKedu TYUB{u"TYUB", u"Tytuł ubezpieczenia", kTYUB};
const BlokKedu TYUBZ{u"TYUBZ", u"Tytuł ubezpieczenia", std::span(kTYUB).first(3)};
const BlokKedu DOWP{u"DOWP", u"Ubezpieczenia obowiązkowe", kDOWP};
const BlokKedu DOOU{u"DOOU", u"Ubezpieczenie zdrowotne", kDOOU};
const BlokKedu DOBU{u"DOBU", u"Ubezpieczenia dobrowolne", kDOBU};
const BlokKedu DODU{u"DODU", u"Dobrowolne ubezpieczenie zdrowotne", kDODU};
const BlokKedu IODZ{u"IODZ", u"Inne dane", kIODZ};
const BlokKedu DOKC{u"DOKC", u"Kasa chorych", kDOKC};
const BlokKedu AZMO{u"AZMO", u"Adres zameldowania", kAZMO};
const BlokKedu ADZA{u"ADZA", u"Adres zamieszkania", kADZA};
const BlokKedu ADKB{u"ADKB", u"Adres do korespondencji", kADKB};
const BlokKedu WNOU{u"WNOU", u"Kontynuowanie ubezpieczeń", kWNOU};
const BlokKedu WUBD{u"WUBD", u"Ustanie ubezpieczeń", kWUBD};
const BlokKedu DOCRA{u"DOCRA", u"Członek rodziny", kDOCRA};
const BlokKedu DOCRBA{u"DOCRBA", u"Członek rodziny", kDOCRBA};

} // namespace bloki

} // namespace tornel::zus
