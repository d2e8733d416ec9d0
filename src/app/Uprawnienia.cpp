#include "app/Uprawnienia.h"
#include "rules/Stale.h"
#include "store/Dziennik.h"
#include "store/Sesja.h"
#include <algorithm>
#include <array>

namespace tornel::app {

namespace {

constexpr int kBitKadry = 1;
constexpr int kBitPlace = 2;

struct Przelacznik {
    Wejscie wejscie;
    bool Stale::*stala;
};

constexpr std::array kPrzelaczniki{
    Przelacznik{Wejscie::Nadgodziny, &Stale::AktRejNadg},
    Przelacznik{Wejscie::UmowyZlecenia, &Stale::AktywneUmowyZlecenia},
    Przelacznik{Wejscie::UmowyODzielo, &Stale::AktywneUmowyODzielo},
    Przelacznik{Wejscie::Honoraria, &Stale::AktywneHonoraria},
    Przelacznik{Wejscie::DniWolneOgolne, &Stale::AktRejPrzepDni},
    Przelacznik{Wejscie::DniWolnePracownika, &Stale::AktRejPrzepDni},
    Przelacznik{Wejscie::DniWolnePracownika, &Stale::OsobHarPrac},
    Przelacznik{Wejscie::TransportDoPracownika, &Stale::AktRejPrzepDni},
    Przelacznik{Wejscie::TransportDoPracownika, &Stale::OsobHarPrac},
};

} // namespace

bool maPrawo(Prawo prawo, const Uzytkownik& uzytkownik) {
    if (uzytkownik.typ == 0) return true;
    switch (prawo) {
    case Prawo::Kazdy:
        return true;
    case Prawo::Kadry:
        return (uzytkownik.typ & kBitKadry) != 0;
    case Prawo::Place:
        return (uzytkownik.typ & kBitPlace) != 0;
    case Prawo::Administrator:
        return false;
    }
    return false;
}

bool dozwolone(Wejscie wejscie, const Uzytkownik& uzytkownik, const Stale& stale) {
    if (!maPrawo(pozycjaMenu(wejscie).prawo, uzytkownik)) return false;
    return std::ranges::all_of(kPrzelaczniki,
                               [&](const Przelacznik& p) { return p.wejscie != wejscie || stale.*p.stala; });
}

bool dozwoloneMenu(QStringView menu, const Uzytkownik& uzytkownik) {
    return std::ranges::any_of(
        menuGlowne(), [&](const PozycjaMenu& p) { return p.menu == menu && maPrawo(p.prawo, uzytkownik); });
}

bool tabelaDozwolona(const QString& nazwa, const Uzytkownik& uzytkownik) {
    const TabelaDef* tabela = schemat::szablonTabeli(nazwa.toStdString());
    Prawo prawo = Prawo::Place;
    if (!tabela || tabela == &schemat::UZYTKOWNICY)
        prawo = Prawo::Administrator;
    else if (std::ranges::find(schemat::TabelePracownika, tabela) != schemat::TabelePracownika.end() ||
             tabela == &schemat::RODZINA || tabela == &schemat::UMOP)
        prawo = Prawo::Kadry;
    return maPrawo(prawo, uzytkownik);
}

bool wpisDozwolony(const WpisDziennika& wpis, const Uzytkownik& uzytkownik) {
    if (uzytkownik.typ == 0 || wpis.kto == uzytkownik.nazwa) return true;
    return std::ranges::any_of(wpis.tabele, [&](const QString& t) { return tabelaDozwolona(t, uzytkownik); });
}

bool cofniecieDozwolone(const WpisDziennika& wpis, const Uzytkownik& uzytkownik) {
    if (uzytkownik.typ == 0 || wpis.kto == uzytkownik.nazwa) return true;
    return std::ranges::all_of(wpis.tabele, [&](const QString& t) { return tabelaDozwolona(t, uzytkownik); });
}

} // namespace tornel::app
