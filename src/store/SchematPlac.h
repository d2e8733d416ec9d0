// Schema of the payroll: component catalogue, months and their tables, overtime, work tables of the prints.
#pragma once
#include "store/SeriaKolumn.h"

namespace tornel::store {

namespace schemat {

namespace kolumny {

using enum Typ;
using namespace rozmiary;

// The formatter would pack these lists into columns and tear the comments from theirs.
// clang-format off

/// Component catalogue, 45 rows: 1 to 30 additive, 31 to 45 deductive.
inline constexpr KolumnaDef SZ_PL[] = {
    {"NR", Short, 0, true},
    {"naz_sk", Text, Skladnik},
    {"Brutto", Text, 1}, // T/N: part of gross pay, of the ZUS base, of the health base, in use
    {"Zus", Text, 1},
    {"Ubzdr", Text, 1},
    {"Akt", Text, 1},
    {"KodZUS", Text, KodZUS},
    {"kodswprz", Text, KodSwiadczenia},
};

/// Header of a payroll month: status, sums over all its lists (zł), the catalogue's flags as bit masks.
inline constexpr KolumnaDef PLACE[] = {
    {"Rok", Text, 4, true}, // four digits
    {"Mies", Text, 2, true}, // two digits
    {"akc", Text, 1}, // T blocked, N open
    {"il_wyplat", Short}, // payments
    {"sum_brutto", Currency},
    {"sum_kup", Currency},
    {"sum_netto", Currency},
    {"sum_podat", Currency},
    {"sum_inne", Currency},
    {"do_wyplaty", Currency},
    {"sum_fp", Currency},
    {"sum_fgsp", Currency},
    {"sum_feprd", Currency},
    {"sum_frprd", Currency},
    {"sum_feprc", Currency},
    {"sum_frprc", Currency},
    {"sum_fc", Currency},
    {"sum_fw", Currency},
    {"sum_ubzdr", Currency},
    {"sum_ppd", Currency},
    {"wsk_ppe", Currency}, // pension plan: index, percent, and average contribution, zł
    {"sredn_ppe", Currency},
    {"do_fk", Text, 1}, // handed over to the accounts, T/N
    // Additive component n at bit n - 1 of 32.
    {"br_sp", Integer},
    {"zus_sp", Integer},
    {"ubzdr_sp", Integer},
    {"akt_sp", Integer},
    // Deductive component n at bit n - 1 of 16; the highest is bit 14, so the sign stays free.
    {"br_sm", Short},
    {"zus_sm", Short},
    {"ubzdr_sm", Short},
    {"akt_sm", Short},
    {"inf_opis", Memo},
};

/// The month that a header row belongs to.
inline constexpr auto KluczMiesiaca = lista({
    {"Rok", Text, 4, true}, // four digits
    {"Mies", Text, 2, true}, // two digits
});
inline constexpr SeriaNazw<45> NazwyNaz{"NAZ_"};
inline constexpr SeriaNazw<30> NazwyKod{"KOD_"};

/// Names of the components as they stood in the month: number n at ordinal n + 1.
inline constexpr auto PLACEN = polacz(KluczMiesiaca, seria(NazwyNaz, Text, Skladnik));

/// ZUS codes of the additive components as they stood in the month: number n at ordinal n + 1.
inline constexpr auto PLACEK = polacz(KluczMiesiaca, seria(NazwyKod, Text, KodZUS));

/// Month table A: the main amounts of a list row, zł.
inline constexpr KolumnaDef PLA[] = {
    {"PRC_ID", Short, 0, true},
    {"LISTA", Text, 1},
    {"BRUTTO", Currency},
    {"NETTO", Currency}, // taxable income
    {"NAZ", Text, 20}, // name when the row was made
    {"IMIE", Text, 15},
    {"KUP", Currency}, // costs of obtaining income
    {"PPD", Currency}, // monthly reduction of the advance
    {"ST_PD", Short}, // tax rate, percent
    {"US_ID", Short},
    {"POD_DOCH", Currency}, // tax before deductions
    {"PODATEK", Currency}, // tax advance
    {"SKL_FP", Currency},
    {"SKL_FGSP", Currency},
    {"DN_PR", Short}, // days: worked, on vacation, on benefit
    {"DN_URL", Short},
    {"DN_ZAS", Short},
    {"PRZELEWEM", Currency}, // part paid by transfer
    {"ST_SKL_FP", Currency}, // percent
    {"ST_SKLFGSP", Currency}, // percent
    {"DODATKI", Currency},
    {"POTRACENIA", Currency},
    {"DN_RO", Short}, // days: working, Saturdays, Sundays, other free
    {"DN_SO", Short},
    {"DN_NI", Short},
    {"DN_INN", Short},
    // Counts of benefits.
    {"IL_S_REH", Short}, // rehabilitation, employee
    {"IL_Z_POR", Short}, // maternity
    {"IL_Z_POG", Short}, // funeral
    {"IL_Z_RODZ", Short}, // family
    {"IL_Z_PIEL", Short}, // nursing
    {"IL_Z_WYCH", Short}, // childcare
    {"IL_Z_REHCH", Short}, // rehabilitation, sick
    {"IL_S_POGCH", Short}, // funeral, second kind
    {"SR_BR_ZUS", Currency}, // average for sick pay
    {"DNI_L4_ZUS", Short}, // sick days paid by the insurer, by the employer
    {"DNI_L4_PR", Short},
    {"ETAT", Short}, // working-time fraction: numerator, denominator
    {"ETAT2", Short},
    {"DO_WYPLATY", Currency},
};

/// Month table B: insurance amounts (zł), rates (percent) and absences (days) of a list row.
inline constexpr KolumnaDef PLB[] = {
    {"PRC_ID", Short, 0, true},
    {"LISTA", Text, 1},
    {"ZUS_PPE", Currency}, // pension plan: added to the ZUS base, contribution
    {"PPE", Currency},
    {"WSK_FEPRD", Currency}, // employer's rates: pension, disability, accident
    {"WSK_FRPRD", Currency},
    {"WSK_FWPRD", Currency},
    {"WSK_FEPRC", Currency}, // employee's rates: pension, disability, sickness
    {"WSK_FRPRC", Currency},
    {"WSK_FCPRC", Currency},
    {"WSK_UBZDR", Currency},
    {"FEPRD", Currency}, // employer's contributions
    {"FRPRD", Currency},
    {"FWPRD", Currency},
    {"FEPRC", Currency}, // employee's contributions
    {"FRPRC", Currency},
    {"FCPRC", Currency},
    {"UBZDR", Currency}, // health insurance: deducted from the tax, due
    {"UBZDR_NAL", Currency},
    {"WSK_UBR", Currency}, // gross-up: index in percent, amount
    {"UBRUTTOW", Currency},
    {"SR_BR_URL", Currency}, // average for vacation pay
    {"DNI_UWYP", Short}, // days: vacation, special, unpaid, childcare, care of a child, other leave, breaks
    {"DN_UOK", Short},
    {"DN_UBEZPL", Short},
    {"DN_UWYCH", Short},
    {"DN_UOPDZI", Short},
    {"DN_UINNY", Short},
    {"DN_PRZERWY", Short},
    {"PACZKA", Short}, // bank file: package number, sent (T)
    {"WYS_MCS", Text, 1},
};

inline constexpr SeriaNazw<30> NazwySP{"SP_"};
inline constexpr SeriaNazw<15> NazwySM{"SM_"};

/// Month table S: component amounts of a list row, zł: SP_i at ordinal 1 + i, SM_i at 31 + i.
inline constexpr auto PLS = polacz(
    lista({
        {"PRC_ID", Short, 0, true},
        {"LISTA", Text, 1},
    }),
    seria(NazwySP, Currency),
    seria(NazwySM, Currency));

inline constexpr SeriaNazw<30> NazwySOD{"SOD_"};
inline constexpr SeriaNazw<30> NazwySDO{"SDO_"};

/// Month table D: periods of the additive components of a list row: SOD_i at ordinal 2i, SDO_i at 2i + 1.
/// LISTA is CHAR here and TEXT in the three other tables: deliberate.
inline constexpr auto PLD = polacz(
    lista({
        {"PRC_ID", Short, 0, true},
        {"LISTA", Char, 1},
    }),
    przeplot(seria(NazwySOD, Date), seria(NazwySDO, Date)));

/// Sick benefit of a list row, zł, which the clerk may take off the amount to pay. A row without days of the
/// insurer needs no record.
inline constexpr KolumnaDef ZASILEK[] = {
    {"ROKMIES", Text, 6, true}, // year and month, 200107
    {"PRC_ID", Short, 0, true},
    {"LISTA", Text, 1},
    {"KWOTA", Currency},
};

/// Component amounts of a list row that the clerk typed: additive component n at bit n - 1, deductive ones
/// alike. A row without one has no record.
inline constexpr KolumnaDef WPISANE[] = {
    {"ROKMIES", Text, 6, true}, // year and month, 200107
    {"PRC_ID", Short, 0, true},
    {"LISTA", Text, 1},
    {"DODATNIE", Integer},
    {"UJEMNE", Integer},
};

inline constexpr SeriaNazw<7> NazwySmC{"sm_c"};
inline constexpr SeriaNazw<7> NazwySmK{"sm_k"};
inline constexpr SeriaNazw<3> NazwyRrc{"rrc"};
inline constexpr SeriaNazw<3> NazwyRsc{"rsc"};
inline constexpr SeriaNazw<3> NazwyRnc{"rnc"};
inline constexpr SeriaNazw<7> NazwyRc{"rc"};

/// Header of an overtime month: sums of hours and of amounts (zł) by group, the month's rate equations.
inline constexpr auto NADG = polacz(
    KluczMiesiaca,
    seria(NazwySmC, Double),
    seria(NazwySmK, Currency),
    seria(NazwyRrc, Text, Stala), // working days
    seria(NazwyRsc, Text, Stala), // Saturdays
    seria(NazwyRnc, Text, Stala), // Sundays
    seria(NazwyRc, Text, Stala)); // by group

inline constexpr SeriaNazw<7> NazwySpC{"SP_C"};
inline constexpr SeriaNazw<7> NazwySpK{"SP_K"};

/// Overtime of a month, a row a person: hours and amounts (zł) by group, base rate of an hour (zł).
inline constexpr auto NADGN = polacz(
    lista({{"PRC_ID", Short, 0, true}}),
    seria(NazwySpC, Double),
    seria(NazwySpK, Currency),
    lista({
        {"SGP", Currency},
        {"TEMP", Currency}, // working value
    }));

inline constexpr SeriaNazw<7> NazwyC{"C"};
inline constexpr SeriaNazw<7> NazwyK{"K"};

/// Overtime of a month, a row a person and day: hours and amounts (zł) by group, base rate (zł), a remark.
inline constexpr auto NADGDzien = polacz(
    lista({
        {"PRC_ID", Short, 0, true},
        {"DATA", Date},
        {"DZIEN", Char, 15}, // weekday
    }),
    seria(NazwyC, Double),
    seria(NazwyK, Currency),
    lista({
        {"SGP", Currency},
        {"TEMP", Currency}, // working value
        {"uwagi", Text, 50},
    }));

/// Work table of the payroll prints: a component of an employee a row.
inline constexpr KolumnaDef DRUKLP[] = {
    {"PRC_ID", Short},
    {"LISTA", Text, 1},
    {"NAZ", Text, Nazwisko},
    {"IMIE", Text, Imie},
    {"DZIAL", Text, 30},
    {"NR", Short}, // component, 1 to 45
    {"NAZ_SK", Text, Skladnik},
    {"KWOTA", Currency}, // zł
    {"DATA_OD", Date},
    {"DATA_DO", Date},
};

/// Work table of the summary prints: a named sum a row.
inline constexpr KolumnaDef TEMP[] = {
    {"NR", Short},
    {"OPIS", Text, Nazwa},
    {"ILOSC", Double},
    {"KWOTA", Currency}, // zł
};

// clang-format on
} // namespace kolumny

namespace klucze {
inline constexpr std::string_view Skladnik[] = {"NR"};
inline constexpr std::string_view WierszMiesiaca[] = {"ROKMIES", "PRC_ID", "LISTA"};
} // namespace klucze

inline constexpr TabelaDef SZ_PL{"SZ_PL", kolumny::SZ_PL, klucze::Skladnik};
inline constexpr TabelaDef PLACE{"PLACE", kolumny::PLACE, klucze::Miesiac};
inline constexpr TabelaDef PLACEN{"PLACEN", kolumny::PLACEN, klucze::Miesiac};
inline constexpr TabelaDef PLACEK{"PLACEK", kolumny::PLACEK, klucze::Miesiac};
inline constexpr TabelaDef PLA{"PLA", kolumny::PLA, klucze::PracownikLista};
inline constexpr TabelaDef PLB{"PLB", kolumny::PLB, klucze::PracownikLista};
inline constexpr TabelaDef PLS{"PLS", kolumny::PLS, klucze::PracownikLista};
inline constexpr TabelaDef PLD{"PLD", kolumny::PLD, klucze::PracownikLista};
inline constexpr TabelaDef ZASILEK{"ZASILEK", kolumny::ZASILEK, klucze::PracownikLista, Klucz::Jednoznaczny,
                                   klucze::WierszMiesiaca};
inline constexpr TabelaDef WPISANE{"WPISANE", kolumny::WPISANE, klucze::PracownikLista, Klucz::Jednoznaczny,
                                   klucze::WierszMiesiaca};
inline constexpr TabelaDef NADG{"NADG", kolumny::NADG, klucze::Miesiac};
inline constexpr TabelaDef NADGN{"NADGN", kolumny::NADGN, klucze::Pracownik};
/// Named as the header: the month's tables are NADG<yyyymm>.
inline constexpr TabelaDef NADGDzien{"NADG", kolumny::NADGDzien, klucze::PracownikData};
inline constexpr TabelaDef DRUKLP{"DRUKLP", kolumny::DRUKLP, {}};
inline constexpr TabelaDef TEMP{"TEMP", kolumny::TEMP, {}};

/// The header of a payroll month.
inline constexpr auto TabeleNaglowka = std::to_array<const TabelaDef*>({&PLACE, &PLACEN, &PLACEK});
/// The four tables of a payroll month and the two of an overtime month, in the order in which they are made.
inline constexpr auto TabeleMiesiaca = std::to_array<const TabelaDef*>({&PLA, &PLB, &PLS, &PLD});
inline constexpr auto TabeleNadgodzin = std::to_array<const TabelaDef*>({&NADGN, &NADGDzien});

/// Amount of additive component `i`, 1 to 30, and of deductive component `i`, 1 to 15, on a list row, zł.
constexpr Kolumna SP(int i) { return elementSerii(PLS, 2, 30, i); }
constexpr Kolumna SM(int i) { return elementSerii(PLS, 32, 15, i); }

/// First and last day of additive component `i`, 1 to 30, on a list row.
constexpr Kolumna SOD(int i) { return elementSerii(PLD, 2, 60, 2 * i - 1); }
constexpr Kolumna SDO(int i) { return elementSerii(PLD, 2, 60, 2 * i); }

/// Name in the month of component `nr`, 1 to 45, and its ZUS code, `nr` 1 to 30.
constexpr Kolumna NazwaSkladnikaMiesiaca(int nr) { return elementSerii(PLACEN, 2, 45, nr); }
constexpr Kolumna KodZUSMiesiaca(int nr) { return elementSerii(PLACEK, 2, 30, nr); }

} // namespace schemat

} // namespace tornel::store
