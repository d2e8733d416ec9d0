// The schema of every table, once: new databases, month tables, CSV import and tests are made from it.
#pragma once
#include "store/SchematDokumentow.h"
#include "store/SchematKadr.h"
#include "store/SchematPlac.h"

namespace tornel::store {

namespace schemat {

namespace kolumny {

/// Program constants.
inline constexpr KolumnaDef KON[] = {
    {"Num", Short, 0, true},
    {"Wart", Text, Stala},
};

/// Users of the program. The password is clear text: deliberate.
inline constexpr KolumnaDef UZYTKOWNICY[] = {
    {"Nazwa", Text, 30, true},
    {"haslo", Text, 30},
    {"Typ", Short}, // 0 administrator, otherwise bits: 1 "Kadry", 2 "Płace"
};

} // namespace kolumny

namespace klucze {
inline constexpr std::string_view Num[] = {"Num"};
inline constexpr std::string_view Uzytkownik[] = {"Nazwa"};
} // namespace klucze

inline constexpr TabelaDef KON{"KON", kolumny::KON, klucze::Num};
inline constexpr TabelaDef UZYTKOWNICY{"UZYTKOWNICY", kolumny::UZYTKOWNICY, klucze::Uzytkownik};

/// Every standing table, in the order in which a new database gets them.
inline constexpr auto Tabele = std::to_array<const TabelaDef*>({
    &KON,   &UZYTKOWNICY, &PRACDP, &PRACSK,  &PRACINF, &PRACPR,   &PRACZUS, &RODZINA,   &UMOP,
    &SZ_PL, &PLACE,       &PLACEN, &PLACEK,  &NADG,    &URL,      &ZW,      &KALENDARZ, &UZL,
    &UOD,   &HON,         &US,     &M_PRACY, &KONTA,   &PRZELEW,  &ZUS,     &PIT4,      &PIT11,
    &PIT40, &PIT8B,       &DRUKLP, &TEMP,    &LSTOBEC, &LSTOBEC2, &ZASILEK,
});

/// The four tables of a payroll month, in the order in which they are made. Those of an overtime month,
/// `NADGN` and `NADGDzien`, are made by the overtime lists.
inline constexpr auto TabeleMiesiaca = std::to_array<const TabelaDef*>({&PLA, &PLB, &PLS, &PLD});

} // namespace schemat

} // namespace tornel::store
