// Blocks of the monthly reports and the documents that all blocks make.
#include "store/Schemat.h"
#include "zus/BlokiKedu.h"
#include "zus/DaneRaportu.h"
#include "zus/PisarzeKedu.h"
#include "zus/PolaKedu.h"
#include <utility>

namespace tornel::zus {

using namespace pola;
using schemat::PRACDP;
using schemat::PRACPR;
using schemat::PRACZUS;
using R = DaneRaportu;

namespace {

bool jestOsoba(const KontekstKedu& k) { return k.raport->jest; }

QString tekstOsoby(const KontekstKedu& k, Kolumna kolumna) {
    const Wartosc w = k.wartosc(kolumna);
    const auto* tekst = std::get_if<QString>(&w);
    return tekst ? *tekst : QString();
}

/// The person's identifier by the first of the three that is known.
std::pair<QString, QString> identyfikatorOsoby(const KontekstKedu& k) {
    const QString pesel = tekstOsoby(k, PRACDP("pesel"));
    if (!pesel.trimmed().isEmpty()) return {QStringLiteral("P"), pesel};
    const QString nip = tekstOsoby(k, PRACDP("Nip"));
    if (!nip.trimmed().isEmpty()) return {QStringLiteral("N"), KeduCyfry(nip)};
    const QString dowod =
        tekstOsoby(k, PRACDP("dowod_ser")).trimmed() + tekstOsoby(k, PRACDP("dowod_nr")).trimmed();
    return {dowod.isEmpty() ? QString() : QStringLiteral("1"), dowod};
}
Wartosc rodzajIdentyfikatora(const KontekstKedu& k) { return identyfikatorOsoby(k).first; }
Wartosc numerIdentyfikatora(const KontekstKedu& k) { return identyfikatorOsoby(k).second; }

Wartosc dzisRaportu(const KontekstKedu& k) { return k.dzis; }

template <std::size_t... N>
constexpr auto zlaczone(const std::array<PoleKedu, N>&... czesci) {
    std::array<PoleKedu, (N + ...)> wynik{};
    std::size_t i = 0;
    ((std::ranges::copy(czesci, wynik.begin() + static_cast<std::ptrdiff_t>(i)), i += N), ...);
    return wynik;
}

/// The same fields, written only about a person whom the month has a row of.
template <std::size_t N>
constexpr auto oOsobie(std::array<PoleKedu, N> pola) {
    for (PoleKedu& p : pola) p.warunek = jestOsoba;
    return pola;
}

constexpr auto kOsobaRaportu = oOsobie(std::array{
    tekst(31, &R::nazwisko, kNapisNazwiska),
    tekst(22, &R::imie, kNapisImienia),
    tekst(1, rodzajIdentyfikatora, u"Typ identyfikatora: P - PESEL, N - NIP, 1 - dowód osobisty"),
    tekst(11, numerIdentyfikatora, u"Identyfikator"),
    tekst(4, PRACZUS("kod_tyt_ub"), u"Kod tytułu ubezpieczenia"),
    dalej(tekst(1, PRACZUS("emer_rent"), u"Prawo do emerytury lub renty")),
    dalej(tekst(1, PRACZUS("st_niespr"), u"Stopień niepełnosprawności")),
});

constexpr auto kWierszRaportu = oOsobie(std::array{
    odstepy(1),
    licznik(3, PRACPR("etat"), u"Wymiar czasu pracy: licznik"),
    dalej(licznik(3, PRACPR("etat2"), u"mianownik")),
    kwota(8, &R::BaseZus, u"Podstawa składek emerytalnej i rentowych"),
    kwota(8, &R::BaseZus, u"Podstawa składek chorobowej i wypadkowej"),
    kwota(8, &R::BaseZdr, u"Podstawa składki zdrowotnej"),
    kwota(7, &R::Feprc, u"Składka emerytalna ubezpieczonego"),
    kwota(7, &R::Frprc, u"Składka rentowa ubezpieczonego"),
    kwota(7, &R::FcPrc, u"Składka chorobowa"),
    kwota(7, &R::Ubzdr, u"Składka zdrowotna"),
    kwota(7, &R::Feprd, u"Składka emerytalna płatnika"),
    kwota(7, &R::Frprd, u"Składka rentowa płatnika"),
    kwota(7, &R::fwprd, u"Składka wypadkowa"),
    kwota(7, &R::Ppe, u"Obniżenie podstawy z tytułu PPE"),
    kwota(8, &R::skladki, u"Razem składki"),
    licznik(2, &R::zRodz, u"Zasiłki rodzinne: liczba osób"),
    kwota(7, &R::Rodzinne, u"Zasiłki rodzinne"),
    kwota(7, &R::Wychowawcze, u"Zasiłki wychowawcze"),
    licznik(2, &R::zPiel, u"Zasiłki pielęgnacyjne: liczba osób"),
    kwota(7, &R::Pielegnacyjne, u"Zasiłki pielęgnacyjne"),
    kwota(8, &R::zasilki, u"Razem zasiłki"),
});

constexpr std::array kKoniecWiersza{zera(16), zera(16), zera(2)};

template <std::size_t nr>
Wartosc kodWpisu(const KontekstKedu& k) {
    return k.raport->wpisy[nr].kod;
}
template <std::size_t nr>
Wartosc odWpisu(const KontekstKedu& k) {
    return k.raport->wpisy[nr].od;
}
template <std::size_t nr>
Wartosc doWpisu(const KontekstKedu& k) {
    return k.raport->wpisy[nr].dokad;
}
template <std::size_t nr>
Wartosc kwotaWpisu(const KontekstKedu& k) {
    return k.raport->wpisy[nr].kwota;
}
template <std::size_t nr>
constexpr std::array<PoleKedu, 4> wpisRNA() {
    return {tekst(2, kodWpisu<nr>, u"Świadczenie: kod"), data(odWpisu<nr>, u"od"), data(doWpisu<nr>, u"do"),
            kwota(8, kwotaWpisu<nr>, u"kwota")};
}
template <std::size_t... nr>
constexpr auto wpisyRNA(std::index_sequence<nr...>) {
    return zlaczone(wpisRNA<nr>()...);
}

constexpr std::array kDniRNA{licznik(2, &R::dni, u"Dni przepracowane i inne"),
                             licznik(2, &R::dniObowiazku, u"Dni obowiązku pracy")};
constexpr std::array kSumaRNA{kwota(9, &R::sumaWpisow, u"Razem świadczenia")};
constexpr auto kKwotyRZA = oOsobie(std::array{
    kwota(8, &R::podstawaZdr, u"Podstawa składki zdrowotnej"),
    kwota(7, &R::skladkaZdr, u"Składka zdrowotna"),
});

Wartosc kodPrzerwy(const KontekstKedu& k) { return k.raport->przerwa.kod; }
Wartosc odPrzerwy(const KontekstKedu& k) { return k.raport->przerwa.od; }
Wartosc doPrzerwy(const KontekstKedu& k) { return k.raport->przerwa.dokad; }
Wartosc kwotaPrzerwy(const KontekstKedu& k) { return k.raport->przerwa.kwota; }
constexpr std::array kPrzerwa{
    tekst(3, kodPrzerwy, u"Kod świadczenia lub przerwy"),
    data(odPrzerwy, u"od"),
    data(doPrzerwy, u"do"),
    kwota(8, kwotaPrzerwy, u"Kwota"),
};

constexpr auto kDDORCA = zlaczone(kOsobaRaportu, kWierszRaportu, kKoniecWiersza);
constexpr auto kDDORNA = zlaczone(kOsobaRaportu, kWierszRaportu, kDniRNA,
                                  wpisyRNA(std::make_index_sequence<kWpisowRNA>()), kSumaRNA);
constexpr auto kDDORZA = zlaczone(kOsobaRaportu, kKwotyRZA, kKoniecWiersza);
constexpr auto kDDORSA = zlaczone(kOsobaRaportu, kPrzerwa, kKoniecWiersza);

constexpr PoleKedu kIdentyfikator = tekst(8, &R::identyfikator, u"Identyfikator raportu");
constexpr PoleKedu kDORCA[] = {kIdentyfikator, stale(u"00001", u"Strona"), stale(u"000000000", {}),
                               odstepy(9)};
constexpr PoleKedu kDORNA[] = {kIdentyfikator, stale(u"00001", u"Strona"), stale(u"0000000000", {}),
                               odstepy(10)};
constexpr PoleKedu kDORZA[] = {kIdentyfikator, stale(u"0001", u"Strona"), zera(8), zera(8)};
constexpr PoleKedu kDORSA[] = {kIdentyfikator, stale(u"001", u"Strona"), zera(8), zera(8)};
constexpr PoleKedu kOPLR[] = {data(dzisRaportu, u"Data sporządzenia")};

constexpr QStringView kNaglowek = u"Raport", kWierszOsoby = u"Ubezpieczony";

} // namespace

namespace bloki {

const BlokKedu DORCA{u"DORCA", kNaglowek, kDORCA};
const BlokKedu DORNA{u"DORNA", kNaglowek, kDORNA};
const BlokKedu DORZA{u"DORZA", kNaglowek, kDORZA};
const BlokKedu DORSA{u"DORSA", kNaglowek, kDORSA};
const BlokKedu DDORCA{u"DDORCA", kWierszOsoby, kDDORCA};
const BlokKedu DDORNA{u"DDORNA", kWierszOsoby, kDDORNA};
const BlokKedu DDORZA{u"DDORZA", kWierszOsoby, kDDORZA};
const BlokKedu DDORSA{u"DDORSA", kWierszOsoby, kDDORSA};
const BlokKedu OPLR{u"OPLR", u"Oświadczenie płatnika", kOPLR};

} // namespace bloki

} // namespace tornel::zus
