// The schema of every table, once: new databases, month tables, CSV import and tests are made from it.
#pragma once
#include "store/SchematDokumentow.h"
#include "store/SchematKadr.h"
#include "store/SchematPlac.h"
#include "store/SchematProgramu.h"

namespace tornel::store {

namespace schemat {

/// Every standing table, in the order in which a new database gets them.
inline constexpr auto Tabele = std::to_array<const TabelaDef*>({
    &KON,       &UZYTKOWNICY,
    &PRACDP,    &PRACSK,
    &PRACINF,   &PRACPR,
    &PRACZUS,   &RODZINA,
    &UMOP,      &SZ_PL,
    &PLACE,     &PLACEN,
    &PLACEK,    &NADG,
    &URL,       &ZW,
    &KALENDARZ, &UZL,
    &UOD,       &HON,
    &US,        &M_PRACY,
    &KONTA,     &PRZELEW,
    &ZUS,       &PIT4,
    &PIT11,     &PIT40,
    &PIT8B,     &DRUKLP,
    &TEMP,      &LSTOBEC,
    &LSTOBEC2,  &ZASILEK,
    &WPISANE,   &WYKONANE,
    &DZIENNIK,  &DZIENNIK_ZMIANY,
});

/// The tables whose rows correspond one to one, in groups.
inline constexpr auto Grupy =
    std::to_array<std::span<const TabelaDef* const>>({TabelePracownika, TabeleNaglowka, TabeleMiesiaca});

/// The table of the schema that a table of the file is made by, whatever the case of its name; that of a
/// month table, as PLA200107, by the prefix. Null for a stranger.
[[nodiscard]] const TabelaDef* szablonTabeli(std::string_view nazwa);

} // namespace schemat

} // namespace tornel::store
