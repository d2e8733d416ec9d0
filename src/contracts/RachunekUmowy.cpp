#include "contracts/RachunekUmowy.h"
#include <utility>

namespace tornel::contracts {

Waluta RachunekUmowy::poSkladkach() const {
    return Brutto - skladki[FEprc].kwota - skladki[FRprc].kwota - skladki[FCprc].kwota;
}

RachunekUmowy Przelicz(RachunekUmowy r, KrokUmowy krok) {
    const auto procent = [](Waluta kwota, Waluta wskaznik) { return Procent(kwota, Stawka(wskaznik), 2); };
    switch (krok) {
    case KrokUmowy::Skladki:
        for (SkladkaUmowy& s : r.skladki) s.kwota = procent(r.Brutto, s.wskaznik);
        [[fallthrough]];
    case KrokUmowy::Podstawa:
        r.Ubzdr = procent(r.poSkladkach(), r.wskubzdr);
        r.koszt_uz = procent(r.poSkladkach(), r.wskkuz);
        [[fallthrough]];
    case KrokUmowy::Podatek:
        // Deliberate: nothing keeps the tax above zero.
        r.Podatek = procent(Round(r.poSkladkach() - r.koszt_uz, 2), r.wskpod) - r.Ubzdr;
        [[fallthrough]];
    case KrokUmowy::Netto:
        r.Netto = r.poSkladkach() - r.Podatek - r.Ubzdr;
        r.przelewem = {}; // deliberate: an amount typed earlier is lost with every calculation
        break;
    case KrokUmowy::Zaden:
        break;
    }
    return r;
}

RachunekUmowy PoOpuszczeniu(RachunekUmowy r, const PoleUmowy& pole, Waluta kwota) {
    Waluta& pozycja = *PozycjaRachunku(r, pole.kolumna);
    pozycja = Round(kwota, 2);
    // Deliberate: too high a transfer becomes 0, not the net amount.
    if (pole.rodzaj == RodzajPolaUmowy::Przelew && r.Netto < pozycja) pozycja = {};
    return Przelicz(r, pole.start);
}

Waluta* PozycjaRachunku(RachunekUmowy& r, std::string_view kolumna) {
    constexpr std::pair<std::string_view, Waluta RachunekUmowy::*> pojedyncze[] = {
        {"Brutto", &RachunekUmowy::Brutto},       {"koszt_uz", &RachunekUmowy::koszt_uz},
        {"Podatek", &RachunekUmowy::Podatek},     {"Netto", &RachunekUmowy::Netto},
        {"przelewem", &RachunekUmowy::przelewem}, {"Ubzdr", &RachunekUmowy::Ubzdr},
        {"wskkuz", &RachunekUmowy::wskkuz},       {"wskpod", &RachunekUmowy::wskpod},
        {"wskubzdr", &RachunekUmowy::wskubzdr},
    };
    constexpr std::pair<std::string_view, std::string_view> fundusze[RachunekUmowy::kFunduszy] = {
        {"wskfeprd", "Feprd"}, {"wskfeprc", "Feprc"}, {"wskfrprd", "Frprd"}, {"wskfrprc", "Frprc"},
        {"wskfcprc", "FcPrc"}, {"wskfwprd", "fwprd"}, {"wskfp", "Fp"},       {"wskfgsp", "Fgsp"},
    };
    for (const auto& [nazwa, pole] : pojedyncze)
        if (store::teSameNazwy(nazwa, kolumna)) return &(r.*pole);
    for (std::size_t i = 0; i < r.skladki.size(); ++i) {
        if (store::teSameNazwy(fundusze[i].first, kolumna)) return &r.skladki[i].wskaznik;
        if (store::teSameNazwy(fundusze[i].second, kolumna)) return &r.skladki[i].kwota;
    }
    return nullptr;
}

} // namespace tornel::contracts
