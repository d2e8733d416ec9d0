// Which entries of the main window are open to the user at work, by his type and by the program constants.
#pragma once
#include "app/Menu.h"

namespace tornel::rules {
struct Stale;
} // namespace tornel::rules

namespace tornel::store {
struct Uzytkownik;
struct WpisDziennika;
} // namespace tornel::store

namespace tornel::app {

/// Whether the user's type gives the right: type 0 gives every right, otherwise bit 1 gives "Kadry", bit 2
/// "Płace".
[[nodiscard]] bool maPrawo(Prawo prawo, const Uzytkownik& uzytkownik);

/// Whether the entry, and its button on the toolbar, is open: the user has its right, and every program
/// constant that switches it is on:
/// - 67 `AktRejPrzepDni`: the menu "Dni wolne". The calendars are there to count the days worked; the
///   registers of absences stay open, since sick pay and vacation pay are priced from them in any case.
/// - 90 `AktywneUmowyZlecenia`: "Umowy zlecenia".
/// - 91 `AktywneUmowyODzielo`: "Umowy o dzieło".
/// - 92 `AktywneHonoraria`: "Honoraria".
/// - 201 `OsobHarPrac`: "Dni wolne pracownika" and "Transport do pracownika".
/// - 250 `AktRejNadg`: "Nadgodziny".
[[nodiscard]] bool dozwolone(Wejscie wejscie, const Uzytkownik& uzytkownik, const Stale& stale);

/// Whether the menu with the caption `menu` is open: the user has the right to one of its entries at least,
/// whether or not the constants have it switched on.
[[nodiscard]] bool dozwoloneMenu(QStringView menu, const Uzytkownik& uzytkownik);

/// Whether the user may see what changed in the table of this name: that of a screen which he may open.
[[nodiscard]] bool tabelaDozwolona(const QString& nazwa, const Uzytkownik& uzytkownik);
/// Whether he may see the entry: it is his own, or he may see one of its tables.
[[nodiscard]] bool wpisDozwolony(const WpisDziennika& wpis, const Uzytkownik& uzytkownik);
/// Whether he may undo it: it is his own, or he may see all of its tables.
[[nodiscard]] bool cofniecieDozwolone(const WpisDziennika& wpis, const Uzytkownik& uzytkownik);

} // namespace tornel::app
