// The menu of the main window as a table: what it says, what it opens, who may open it, what the toolbar
// repeats.
#pragma once
#include "common/Przestrzenie.h"
#include <QStringView>
#include <span>

namespace tornel::app {

/// Everything that the main window can open, one value for each entry of the menu.
enum class Wejscie {
    Cofnij,
    Ponow,
    OtworzBaze,
    OstatnieBazy,
    Koniec,
    PracownicyWszyscy,
    PracownicyPracujacy,
    PracownicyZwolnieni,
    PracownicyUmowaZlecenie,
    PracownicyUmowaODzielo,
    PracownicyHonoraria,
    UmowyOPrace,
    ListaPlac,
    Nadgodziny,
    SkladnikiPlac,
    UmowyZlecenia,
    UmowyODzielo,
    Honoraria,
    DniWolneOgolne,
    DniWolnePracownika,
    TransportDoPracownika,
    Urlopy,
    ZwolnieniaLekarskie,
    UrzedySkarbowe,
    AdresyDzialalnosci,
    KontaBankowe,
    ListaDRA,
    WydrukiZUS,
    ZbiorowkaMiesiac,
    ZbiorowkaRok,
    PIT4,
    PIT8B,
    PIT11,
    PIT40,
    StaleProgramu,
    ZmianaHasla,
    WygladOkien,
    UtworzArchiwum,
    PrzywrocArchiwum,
    DziennikZmian,
    AktualizujBaze,
    PobierzStrukture,
    ListaUzytkownikow,
    Pomoc,
    OProgramie,
};

/// What a user needs for an entry. `Administrator` is a user of type 0, who also has the two other rights.
enum class Prawo { Kazdy, Kadry, Place, Administrator };

/// Whether the toolbar repeats an entry: not at all, as a button, or as a button with a drop-down list of all
/// entries of the same menu.
enum class Pasek { Nie, Przycisk, ZLista };

struct PozycjaMenu {
    QStringView menu;    ///< caption of the menu
    QStringView podmenu; ///< caption of the sub-menu; empty for an entry that stands in the menu itself
    QStringView napis;   ///< caption of the entry
    Wejscie wejscie;
    Prawo prawo;
    Pasek pasek = Pasek::Nie;
    QStringView ikona = {}; ///< name of the picture, without folder and extension; empty for none
};

/// All entries in the order of the menu; those of one menu, and of one sub-menu, stand together.
[[nodiscard]] std::span<const PozycjaMenu> menuGlowne();

/// The row of `wejscie`; each value of `Wejscie` has one.
[[nodiscard]] const PozycjaMenu& pozycjaMenu(Wejscie wejscie);

} // namespace tornel::app
