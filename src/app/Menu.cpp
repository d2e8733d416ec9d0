#include "app/Menu.h"
#include <iterator>

namespace tornel::app {

namespace {

using enum Prawo;
using enum Pasek;

constexpr QStringView kPlik = u"Plik";
constexpr QStringView kPracownicy = u"Pracownicy";
constexpr QStringView kMenuPlace = u"Płace";
constexpr QStringView kZlecenia = u"Zlecenia";
constexpr QStringView kDniWolne = u"Dni wolne";
constexpr QStringView kNieobecnosci = u"Nieobecności";
constexpr QStringView kAdresy = u"Adresy";
constexpr QStringView kAnalizy = u"Analizy";
constexpr QStringView kKonfiguracja = u"Konfiguracja";
constexpr QStringView kMenuAdministrator = u"Administrator";
constexpr QStringView kPomoc = u"Pomoc";

// The list of users shows every password in clear, so it is the administrator's alone, as is his sub-menu.
constexpr PozycjaMenu kMenu[] = {
    {kPlik, {}, u"Cofnij", Wejscie::Cofnij, Kazdy},
    {kPlik, {}, u"Ponów", Wejscie::Ponow, Kazdy},
    {kPlik, {}, u"Otwórz bazę", Wejscie::OtworzBaze, Kazdy},
    {kPlik, {}, u"Ostatnie bazy", Wejscie::OstatnieBazy, Kazdy},
    {kPlik, {}, u"Koniec", Wejscie::Koniec, Kazdy, Przycisk, u"koniec"},
    {kPracownicy, {}, u"Wszyscy pracownicy", Wejscie::PracownicyWszyscy, Kadry, ZLista, u"pracownicy"},
    {kPracownicy, {}, u"Tylko pracujący", Wejscie::PracownicyPracujacy, Kadry},
    {kPracownicy, {}, u"Tylko zwolnieni", Wejscie::PracownicyZwolnieni, Kadry},
    {kPracownicy, {}, u"Zatrudnieni na umowę zlecenie", Wejscie::PracownicyUmowaZlecenie, Kadry},
    {kPracownicy, {}, u"Zatrudnieni na umowę o dzieło", Wejscie::PracownicyUmowaODzielo, Kadry},
    {kPracownicy, {}, u"Otrzymujący honoraria", Wejscie::PracownicyHonoraria, Kadry},
    {kPracownicy, {}, u"Lista umów o pracę", Wejscie::UmowyOPrace, Kadry},
    {kMenuPlace, {}, u"Lista płac", Wejscie::ListaPlac, Place, ZLista, u"place"},
    {kMenuPlace, {}, u"Nadgodziny", Wejscie::Nadgodziny, Place, Nie, u"nadgodziny"},
    {kMenuPlace, {}, u"Składniki płac", Wejscie::SkladnikiPlac, Place, Nie, u"skladniki"},
    {kZlecenia, {}, u"Umowy zlecenia", Wejscie::UmowyZlecenia, Place, Przycisk, u"zlecenia"},
    {kZlecenia, {}, u"Umowy o dzieło", Wejscie::UmowyODzielo, Place, Przycisk, u"dziela"},
    {kZlecenia, {}, u"Honoraria", Wejscie::Honoraria, Place, Przycisk, u"honoraria"},
    {kDniWolne, {}, u"Dni wolne ogólne", Wejscie::DniWolneOgolne, Place, ZLista, u"dniwolne"},
    {kDniWolne, {}, u"Dni wolne pracownika", Wejscie::DniWolnePracownika, Place},
    {kDniWolne, {}, u"Transport do pracownika", Wejscie::TransportDoPracownika, Place},
    {kNieobecnosci, {}, u"Urlopy", Wejscie::Urlopy, Place, ZLista, u"urlopy"},
    {kNieobecnosci, {}, u"Zwolnienia lekarskie", Wejscie::ZwolnieniaLekarskie, Place, Nie, u"zwolnienia"},
    {kAdresy, {}, u"Urzędy skarbowe", Wejscie::UrzedySkarbowe, Place, ZLista, u"urzedy"},
    {kAdresy, {}, u"Adresy działalności", Wejscie::AdresyDzialalnosci, Place},
    {kAdresy, {}, u"Konta bankowe", Wejscie::KontaBankowe, Place, Nie, u"konta"},
    {kAnalizy, {}, u"Lista dokumentów ZUS DRA", Wejscie::ListaDRA, Place},
    {kAnalizy, {}, u"Wydruki ZUS", Wejscie::WydrukiZUS, Place},
    {kAnalizy, {}, u"Zbiorówka za miesiąc", Wejscie::ZbiorowkaMiesiac, Place},
    {kAnalizy, {}, u"Zbiorówka za rok", Wejscie::ZbiorowkaRok, Place},
    {kAnalizy, {}, u"PIT-4", Wejscie::PIT4, Place, ZLista, u"analizy"},
    {kAnalizy, {}, u"PIT-8B", Wejscie::PIT8B, Place},
    {kAnalizy, {}, u"PIT-11", Wejscie::PIT11, Place},
    {kAnalizy, {}, u"PIT-40", Wejscie::PIT40, Place},
    {kKonfiguracja, {}, u"Stałe programu", Wejscie::StaleProgramu, Place, Przycisk, u"stale"},
    {kKonfiguracja, {}, u"Zmiana hasła", Wejscie::ZmianaHasla, Kazdy, Nie, u"haslo"},
    {kKonfiguracja, {}, u"Wygląd", Wejscie::WygladOkien, Kazdy, Nie, u"wyglad"},
    {kKonfiguracja, {}, u"Utwórz archiwum danych", Wejscie::UtworzArchiwum, Kazdy, Nie, u"archiwum"},
    {kKonfiguracja, {}, u"Przywróć z archiwum", Wejscie::PrzywrocArchiwum, Administrator},
    {kKonfiguracja, {}, u"Dziennik zmian", Wejscie::DziennikZmian, Kazdy},
    {kKonfiguracja, kMenuAdministrator, u"Aktualizuj bazę danych", Wejscie::AktualizujBaze, Administrator},
    {kKonfiguracja, kMenuAdministrator, u"Pobierz strukturę bazy", Wejscie::PobierzStrukture, Administrator},
    {kKonfiguracja,
     {},
     u"Lista użytkowników",
     Wejscie::ListaUzytkownikow,
     Administrator,
     Nie,
     u"uzytkownicy"},
    {kPomoc, {}, u"Pomoc", Wejscie::Pomoc, Kazdy, Przycisk, u"pomoc"},
    {kPomoc, {}, u"O programie", Wejscie::OProgramie, Kazdy, Nie, u"oprogramie"},
};

constexpr bool wKolejnosciWejsc() {
    for (std::size_t i = 0; i < std::size(kMenu); ++i)
        if (static_cast<std::size_t>(kMenu[i].wejscie) != i) return false;
    return std::size(kMenu) == static_cast<std::size_t>(Wejscie::OProgramie) + 1;
}
static_assert(wKolejnosciWejsc(), "the table follows the order of Wejscie");

} // namespace

std::span<const PozycjaMenu> menuGlowne() { return kMenu; }

const PozycjaMenu& pozycjaMenu(Wejscie wejscie) { return kMenu[static_cast<std::size_t>(wejscie)]; }

} // namespace tornel::app
