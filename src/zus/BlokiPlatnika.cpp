// Blocks of the kind of a document and of the payer, who is described by the program constants.
#include "store/Schemat.h"
#include "zus/BlokiKedu.h"
#include "zus/PolaKedu.h"

namespace tornel::zus {

using namespace pola;
using schemat::KONTA;
using schemat::M_PRACY;
using schemat::PRACZUS;
using S = Stale;

namespace {

bool znanyRodzajZZA(const KontekstKedu& k) {
    const Wartosc w = k.wartosc(PRACZUS("oi_zua"));
    const auto* rodzaj = std::get_if<qint64>(&w);
    return rodzaj && *rodzaj >= 1 && *rodzaj <= 3;
}

Wartosc rodzajZIUA(const KontekstKedu& k) {
    const Wartosc w = k.wartosc(PRACZUS("oi_ziua"));
    const auto* rodzaj = std::get_if<qint64>(&w);
    return rodzaj && *rodzaj == 1 ? QStringLiteral("1") : QStringLiteral("2");
}

Wartosc typ(const KontekstKedu& k) { return qint64{k.typ}; }
Wartosc liczbaKont(const KontekstKedu& k) { return qint64{k.kont}; }
Wartosc liczbaAdresow(const KontekstKedu& k) { return qint64{k.adresow}; }
Wartosc dzis(const KontekstKedu& k) { return k.dzis; }

constexpr QStringView kZgloszenie = u"Zgłoszenie";
constexpr QStringView kZmiana = u"1 - zmiana, 2 - korekta";

constexpr PoleKedu kDOZUA[] = {
    rowny(1, PRACZUS("oi_zua"), u"Zgłoszenie do ubezpieczeń społecznych i zdrowotnego"),
    rowny(2, PRACZUS("oi_zua"), u"Zgłoszenie do ubezpieczeń społecznych"),
    kolejny(2, PRACZUS("oi_zua"), kZmiana),
    odstepy(8),
    odstepy(6),
};
// By oi_zua, although the document is chosen by oi_zza, and without its second line for a value that the line
// has no word for: deliberate.
constexpr PoleKedu kDOZZA[] = {
    rowny(1, PRACZUS("oi_zua"), kZgloszenie),
    gdy(znanyRodzajZZA, kolejny(1, PRACZUS("oi_zua"), kZmiana)),
    odstepy(8),
    odstepy(6),
};
constexpr PoleKedu kDOZIUA[] = {
    tekst(1, rodzajZIUA, kZmiana),
    odstepy(8),
    odstepy(6),
};
constexpr PoleKedu kDOZWUA[] = {
    rowny(1, PRACZUS("zus_zwua"), u"Wyrejestrowanie z ubezpieczeń"),
    rowny(2, PRACZUS("zus_zwua"), u"Korekta wyrejestrowania"),
    rowny(3, PRACZUS("zus_zwua"), u"Kontynuowanie ubezpieczeń"),
    rowny(4, PRACZUS("zus_zwua"), u"Korekta kontynuowania"),
    odstepy(8),
    odstepy(6),
};
constexpr PoleKedu kDOZCBA[] = {odstepy(8), odstepy(6)};
constexpr PoleKedu kDOZPF[] = {
    rowny(1, typ, u"Zgłoszenie płatnika"),
    kolejny(1, typ, kZmiana),
    odstepy(8),
    odstepy(6),
};

constexpr PoleKedu kDIPL[] = {
    cyfry(10, &S::NIP, u"NIP płatnika"),
    tekst(14, &S::Regon, u"REGON płatnika"),
    tekst(11, &S::USERPesel, u"PESEL płatnika"),
    odstepy(1, u"Rodzaj dokumentu tożsamości"),
    tekst(9, DwieStale{&S::USERSeriaDowodu, &S::USERNumerDowodu}, u"Seria i numer dokumentu"),
    tekst(31, &S::NazwaSkrocona, u"Nazwa skrócona płatnika"),
    tekst(31, &S::USERNazwisko, u"Nazwisko płatnika"),
    tekst(22, &S::USERImie1, u"Imię płatnika"),
    data(&S::USERDataUr, u"Data urodzenia płatnika"),
    zera(16),
    zera(16),
    zera(2),
};
constexpr PoleKedu kDAIP[] = {
    cyfry(10, &S::NIP, u"NIP płatnika"),
    tekst(14, &S::Regon, u"REGON płatnika"),
    tekst(31, &S::NazwaSkrocona, u"Nazwa skrócona płatnika"),
    odstepy(16),
    odstepy(16),
    odstepy(2),
};
constexpr PoleKedu kDAPL[] = {
    tekst(62, DwieStale{&S::NazwaUzCz1, &S::NazwaUzCz2, u" "}, u"Nazwa pełna"),
    krzyzyk(&S::CzyJedBud, u"Jednostka budżetowa"),
    bezKrzyzyka(&S::CzyJedBud, u"Inna jednostka"),
    tekst(31, &S::NazwaOrgZal, u"Organ założycielski"),
    krzyzyk(&S::CzyPodlWpisDoRej, u"Podlega wpisowi do rejestru"),
    data(&S::DataRejestracji, u"Data rejestracji"),
    tekst(15, &S::NumerWRej, u"Numer w rejestrze"),
    tekst(72, &S::NazOrgZal, u"Organ rejestrowy"),
    data(&S::PowstObowOplSkl, u"Obowiązek opłacania składek od"),
    data(&S::RozpWykDzial, u"Początek działalności"),
};
constexpr PoleKedu kDEPL[] = {
    tekst(22, &S::USERImie2, u"Drugie imię"),
    tekst(26, &S::USERMiejsceUr, u"Miejsce urodzenia"),
    tekst(22, &S::USERObywatelstwo, u"Obywatelstwo"),
};
constexpr PoleKedu kPPDB[] = {
    tekst(2, &S::PozarolDzialKod, u"Kod rodzaju uprawnień"), tekst(15, &S::NumerWRej, u"Numer w rejestrze"),
    tekst(72, &S::NazOrgZal, u"Organ rejestrowy"),           data(&S::DataRejestracji, u"Data rejestracji"),
    data(&S::RozpWykDzial, u"Początek działalności"),
};
constexpr PoleKedu kDORB[] = {
    tekst(36, &S::Konto, u"Numer rachunku bankowego"),
    odstepy(1),
};
constexpr PoleKedu kIDO1[] = {
    krzyzyk(&S::CzyStatusZPCHR, u"Zakład pracy chronionej"),
    data(&S::OtrzymZPCHR, u"Status od"),
    data(&S::UtrataZPCHR, u"Status do"),
    odstepy(1),
};
// The mark is the reverse of that in IDO1: deliberate.
constexpr PoleKedu kIDOP[] = {
    bezKrzyzyka(&S::CzyStatusZPCHR, u"Bez statusu zakładu pracy chronionej"),
    data(&S::OtrzymZPCHR, u"Status od"),
    data(&S::UtrataZPCHR, u"Status do"),
    data(&S::PowstObowOplSkl, u"Obowiązek opłacania składek od"),
    odstepy(1),
};

constexpr QStringView kKod = u"Kod pocztowy", kMiasto = u"Miejscowość", kGmina = u"Gmina / dzielnica";
constexpr QStringView kUlica = u"Ulica", kDom = u"Numer domu", kLokal = u"Numer lokalu";
constexpr QStringView kTelefon = u"Telefon", kFaks = u"Faks", kPocztaE = u"E-mail";

// The seat and not the residence, whose constants go into no block: deliberate. Its telephones are as typed,
// those of ASZP their digits alone.
constexpr PoleKedu kASPL[] = {
    cyfry(5, &S::UASPKod, kKod),        tekst(26, &S::UASPMiejscowosc, kMiasto),
    tekst(26, &S::UASPGmina, kGmina),   tekst(30, &S::UASPUlica, kUlica),
    tekst(7, &S::UASPNrDomu, kDom),     tekst(7, &S::UASPNrMieszkania, kLokal),
    tekst(12, &S::UASPNrTel, kTelefon), tekst(12, &S::UASPNrFaksu, kFaks),
    tekst(30, &S::UASPEmail, kPocztaE),
};
constexpr PoleKedu kASZP[] = {
    cyfry(5, &S::UASPKod, kKod),        tekst(26, &S::UASPMiejscowosc, kMiasto),
    tekst(26, &S::UASPGmina, kGmina),   tekst(30, &S::UASPUlica, kUlica),
    tekst(7, &S::UASPNrDomu, kDom),     tekst(7, &S::UASPNrMieszkania, kLokal),
    cyfry(12, &S::UASPNrTel, kTelefon), cyfry(12, &S::UASPNrFaksu, kFaks),
    tekst(30, &S::UASPEmail, kPocztaE),
};
constexpr PoleKedu kADKP[] = {
    cyfry(5, &S::UAPKKod, kKod),
    tekst(26, &S::UAPKMiejscowosc, kMiasto),
    tekst(30, &S::UAPKUlica, kUlica),
    tekst(7, &S::UAPKNrDomu, kDom),
    tekst(7, &S::UAPKNrMieszkania, kLokal),
    cyfry(12, &S::UAPKNrTelTelet, u"Telefon / teletransmisja"),
    cyfry(5, &S::UAPKNrSkrytkiPoczt, u"Skrytka pocztowa"),
    cyfry(12, &S::UAPKNrTel, kTelefon),
    cyfry(12, &S::UAPKNrFaksu, kFaks),
    tekst(30, &S::UAPKEmail, kPocztaE),
};
constexpr PoleKedu kDOBR[] = {
    tekst(10, &S::NIPBiurRach, u"NIP biura rachunkowego"),
    tekst(14, &S::REGONBiurRach, u"REGON biura rachunkowego"),
    tekst(31, &S::NazSkrBiurRach, u"Nazwa skrócona biura"),
    odstepy(16),
    odstepy(16),
    odstepy(2),
};
constexpr QStringView kSporzadzono = u"Data sporządzenia";
constexpr PoleKedu kOPL1[] = {data(dzis, kSporzadzono)};
constexpr PoleKedu kOPL2[] = {
    licznik(3, liczbaKont, u"Liczba rachunków w ZUS ZBA"),
    licznik(3, liczbaAdresow, u"Liczba adresów w ZUS ZAA"),
    data(dzis, kSporzadzono),
};

constexpr QStringView kNoweAlboZamkniete = u"1 - nowe, 2 - zamknięte";
constexpr PoleKedu kIORB[] = {
    licznik(1, KONTA("zba"), kNoweAlboZamkniete),
    tekst(36, KONTA("konto"), u"Numer rachunku bankowego"),
};
constexpr PoleKedu kAPDG[] = {
    licznik(1, M_PRACY("zza"), kNoweAlboZamkniete),
    cyfry(5, M_PRACY("Kod"), kKod),
    tekst(26, M_PRACY("miasto"), kMiasto),
    tekst(26, M_PRACY("gmina"), kGmina),
    tekst(30, M_PRACY("ulica"), kUlica),
    tekst(7, M_PRACY("nr_domu"), kDom),
    tekst(7, M_PRACY("nr_lokalu"), kLokal),
    tekst(12, M_PRACY("telefon"), kTelefon),
    tekst(12, M_PRACY("faks"), kFaks),
};

constexpr QStringView kRodzaj = u"Rodzaj dokumentu";
constexpr QStringView kPlatnik = u"Płatnik składek";

} // namespace

namespace bloki {

const BlokKedu DOZUA{u"DOZUA", kRodzaj, kDOZUA};
const BlokKedu DOZZA{u"DOZZA", kRodzaj, kDOZZA};
const BlokKedu DOZIUA{u"DOZIUA", kRodzaj, kDOZIUA};
const BlokKedu DOZWUA{u"DOZWUA", kRodzaj, kDOZWUA};
const BlokKedu DOZCBA{u"DOZCBA", kRodzaj, kDOZCBA};
const BlokKedu DOZPF{u"DOZPF", kRodzaj, kDOZPF};
const BlokKedu DIPL{u"DIPL", kPlatnik, kDIPL};
const BlokKedu DAIP{u"DAIP", kPlatnik, kDAIP};
const BlokKedu DAPL{u"DAPL", u"Dane płatnika", kDAPL};
const BlokKedu DEPL{u"DEPL", u"Dane ewidencyjne płatnika", kDEPL};
const BlokKedu PPDB{u"PPDB", u"Podstawa działalności", kPPDB};
const BlokKedu DORB{u"DORB", u"Rachunek bankowy", kDORB};
const BlokKedu IDO1{u"IDO1", u"Inne dane", kIDO1};
const BlokKedu IDOP{u"IDOP", u"Inne dane płatnika", kIDOP};
const BlokKedu ASPL{u"ASPL", u"Adres płatnika", kASPL};
const BlokKedu ASZP{u"ASZP", u"Adres siedziby", kASZP};
const BlokKedu ADKP{u"ADKP", u"Adres do korespondencji", kADKP};
const BlokKedu DOBR{u"DOBR", u"Biuro rachunkowe", kDOBR};
const BlokKedu OPL1{u"OPL1", u"Oświadczenie płatnika", kOPL1};
const BlokKedu OPL2{u"OPL2", u"Oświadczenie płatnika", kOPL2};
const BlokKedu IORB{u"IORB", u"Rachunek bankowy", kIORB};
const BlokKedu APDG{u"APDG", u"Adres działalności", kAPDG};

} // namespace bloki

} // namespace tornel::zus
