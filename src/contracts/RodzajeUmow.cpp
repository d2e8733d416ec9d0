#include "contracts/RodzajeUmow.h"
#include "store/Schemat.h"
#include <algorithm>

namespace tornel::contracts {

using schemat::HON;
using schemat::PRACPR;
using schemat::UOD;
using schemat::UZL;

namespace {

using enum RodzajPolaUmowy;
using enum KrokUmowy;

constexpr PoleUmowy kPola[] = {
    {"uzl_nr", Tekst},
    {"uod_nr", Tekst},
    {"hon_nr", Tekst},
    {"us_id", Urzad},
    {"inf_opis", Tekst},
    {"przedm", Tekst},
    {"os1", Tekst},
    {"os2", Tekst},
    {"powierzono", Tekst},
    {"data_zaw", Data},
    {"data_od", Data},
    {"data_do", Data},
    {"data_wyp", Data},
    {"Brutto", Kwota, Skladki},
    {"wskfeprd", Kwota, Skladki},
    {"wskfeprc", Kwota, Skladki},
    {"wskfrprd", Kwota, Skladki},
    {"wskfrprc", Kwota, Skladki},
    {"wskfcprc", Kwota, Skladki},
    {"wskfwprd", Kwota, Skladki},
    {"wskfp", Kwota, Skladki},
    {"wskfgsp", Kwota, Skladki},
    {"wskkuz", Kwota, Podstawa},
    {"wskubzdr", Kwota, Podstawa},
    {"Feprc", Kwota, Podstawa},
    {"Frprc", Kwota, Podstawa},
    {"FcPrc", Kwota, Podstawa},
    {"wskpod", Kwota, KrokUmowy::Podatek},
    {"koszt_uz", Kwota, KrokUmowy::Podatek},
    {"Ubzdr", Kwota, KrokUmowy::Podatek},
    {"Podatek", Kwota, Netto},
    // What the employer pays leads nowhere, deliberately.
    {"Feprd", Kwota},
    {"Frprd", Kwota},
    {"fwprd", Kwota},
    {"Fp", Kwota},
    {"Fgsp", Kwota},
    {"Netto", Kwota},
    {"przelewem", Przelew},
    {"paczka", Paczka},
    {"wys_mcs", Wyslane},
};

// Both kinds of contract share the contribution rates of the person's record.
constexpr ZKartoteki kSkladki[] = {
    {"wskkuz", PRACPR("k_uz_uzl")},   {"wskpod", PRACPR("st_pod_uzl")}, {"wskfeprd", PRACPR("wuzfeprd")},
    {"wskfeprc", PRACPR("wuzfeprc")}, {"wskfrprd", PRACPR("wuzfrprd")}, {"wskfrprc", PRACPR("wuzfrprc")},
    {"wskfcprc", PRACPR("wuzfcprc")}, {"wskfwprd", PRACPR("wuzfwprd")}, {"wskfp", PRACPR("wuzfp")},
    {"wskfgsp", PRACPR("wuzfgsp")},   {"wskubzdr", PRACPR("wuzubzdr")}, {"us_id", PRACPR("us_id")},
};
constexpr ZKartoteki kDzielo[] = {
    {"wskkuz", PRACPR("k_uz_uod")},   {"wskpod", PRACPR("st_pod_uod")}, {"wskfeprd", PRACPR("wuzfeprd")},
    {"wskfeprc", PRACPR("wuzfeprc")}, {"wskfrprd", PRACPR("wuzfrprd")}, {"wskfrprc", PRACPR("wuzfrprc")},
    {"wskfcprc", PRACPR("wuzfcprc")}, {"wskfwprd", PRACPR("wuzfwprd")}, {"wskfp", PRACPR("wuzfp")},
    {"wskfgsp", PRACPR("wuzfgsp")},   {"wskubzdr", PRACPR("wuzubzdr")}, {"us_id", PRACPR("us_id")},
};
constexpr ZKartoteki kHonoraria[] = {
    {"wskkuz", PRACPR("k_uz_hon")}, {"wskpod", PRACPR("st_pod_hon")}, {"us_id", PRACPR("us_id")}};

constexpr RodzajUmowy kRodzaje[] = {
    {&UZL, UZL("UZLID"), UZL("uzl_nr"), 2, kSkladki, u"ZLECENIOBIORCA", u"Nowa umowa - zlecenie",
     u"Zmiana umowy - zlecenia", u"Usunięcie umowy - zlecenia",
     u"Czy na pewno usunąć zaznaczoną umowę - zlecenie ?", true},
    {&UOD, UOD("UODID"), UOD("uod_nr"), 4, kDzielo, u"WYKONAWCA", u"Nowa umowa o dzieło",
     u"Zmiana umowy o dzieło", u"Usunięcie umowy o dzieło",
     u"Czy na pewno usunąć zaznaczoną umowę o dzieło ?"},
    {&HON, HON("honid"), HON("hon_nr"), 8, kHonoraria, u"WYKONAWCA", u"Nowe honorarium", u"Zmiana honorarium",
     u"Usunięcie honorarium", u"Czy na pewno usunąć zaznaczone honorarium ?"},
};

} // namespace

Kolumna RodzajUmowy::kolumna(std::string_view nazwa) const {
    const int nr = tabela->numer(nazwa);
    return nr < 0 ? Kolumna{} : tabela->nr(nr);
}

std::span<const RodzajUmowy> RodzajeUmow() { return kRodzaje; }
std::span<const PoleUmowy> PolaUmow() { return kPola; }

const RodzajUmowy* ZnajdzRodzajUmowy(const QString& tabela) {
    const std::string nazwa = tabela.toStdString();
    const auto znany = std::ranges::find_if(
        kRodzaje, [&](const RodzajUmowy& r) { return teSameNazwy(r.tabela->nazwa, nazwa); });
    return znany == std::end(kRodzaje) ? nullptr : &*znany;
}

const PoleUmowy* ZnajdzPoleUmowy(const RodzajUmowy& rodzaj, const QString& kolumna) {
    const std::string nazwa = kolumna.toStdString();
    for (const PoleUmowy& pole : kPola) {
        const bool zmienne = pole.rodzaj != Urzad || rodzaj.wybierzUrzad;
        if (zmienne && teSameNazwy(pole.kolumna, nazwa) && rodzaj.kolumna(pole.kolumna).tabela) return &pole;
    }
    return nullptr;
}

} // namespace tornel::contracts
