// Schema of the personnel file: the employee, his family and contracts, calendars and absence registers.
#pragma once
#include "store/SeriaKolumn.h"

namespace tornel::store {

namespace schemat {

namespace kolumny {

using enum Typ;
using namespace rozmiary;

// The formatter would pack these lists into columns and tear the comments from theirs.
// clang-format off

/// Personal data of an employee.
inline constexpr KolumnaDef PRACDP[] = {
    {"prc_id", Short, 0, true},
    {"Naz", Text, Nazwisko},
    {"Imie_1", Text, Imie},
    {"imie_2", Text, Imie},
    {"naz_rod", Text, Nazwisko},
    {"imie_oj", Text, Imie},
    {"imie_mat", Text, Imie},
    {"plec", Text, 1}, // M, K
    {"data_ur", Date},
    {"miejsce_ur", Text, Miejscowosc},
    {"dowod_ser", Text, SeriaDowodu},
    {"dowod_nr", Text, NumerDowodu},
    {"dowod_wyd", Text, Nazwa}, // issued by
    {"dowod_dn", Date}, // issued on
    {"pesel", Text, Pesel},
    {"Nip", Text, Nip},
    {"stan_cyw", Text, 20},
    {"obywatel", Text, Kraj},
    {"il_dzieci", Short}, // children
    // Identity as the insurer last knew it.
    {"snaz", Text, Nazwisko},
    {"simie_1", Text, Imie},
    {"sdata_ur", Date},
    {"sdowod_ser", Text, SeriaDowodu},
    {"sdowod_nr", Text, NumerDowodu},
    {"spesel", Text, Pesel},
    {"snip", Text, Nip},
    // Address of registration.
    {"miasto", Text, Miejscowosc},
    {"Kod", Text, KodPocztowy},
    {"ulica", Text, Ulica},
    {"nr_domu", Text, NumerDomu},
    {"nr_miesz", Text, NumerDomu},
    {"gm_dz", Text, Miejscowosc}, // commune or district
    {"powiat", Text, Miejscowosc},
    {"kraj", Text, Kraj},
    {"woj", Text, Miejscowosc},
    {"poczta", Text, Miejscowosc},
    {"skr_pocz", Text, 10}, // post box
    {"telefon", Text, Telefon},
    {"teleks", Text, Telefon},
    {"faks", Text, Telefon},
    // Address of residence.
    {"miasto_m", Text, Miejscowosc},
    {"kod_m", Text, KodPocztowy},
    {"ulica_m", Text, Ulica},
    {"nr_domu_m", Text, NumerDomu},
    {"nr_miesz_m", Text, NumerDomu},
    {"gm_dz_m", Text, Miejscowosc},
    {"powiat_m", Text, Miejscowosc},
    {"telefon_m", Text, Telefon},
    {"faks_m", Text, Telefon},
    // Address for letters.
    {"miasto_k", Text, Miejscowosc},
    {"kod_k", Text, KodPocztowy},
    {"ulica_k", Text, Ulica},
    {"nr_domu_k", Text, NumerDomu},
    {"nr_miesz_k", Text, NumerDomu},
    {"gm_dz_k", Text, Miejscowosc},
    {"powiat_k", Text, Miejscowosc},
    {"telefon_k", Text, Telefon},
    {"faks_k", Text, Telefon},
    {"e_mail", Text, 50},
};

inline constexpr SeriaNazw<30> NazwyDod{"DOD_"};
inline constexpr SeriaNazw<15> NazwyPot{"POT_"};

/// The employee's standing component amounts, zł: additive i at ordinal i, deductive i at 30 + i.
inline constexpr auto PRACSK = polacz(
    lista({{"PRC_ID", Short, 0, true}}),
    seria(NazwyDod, Currency),
    seria(NazwyPot, Currency),
    lista({
        {"dod", Integer}, // components laid out for him, bit n - 1 for component n
        {"pot", Integer},
        {"kwota_kzp", Currency}, // loan granted by the staff fund, zł
        {"kzp_odmies", Text, 7}, // month it is repaid from, mm.yyyy
        {"wsk_1", Currency}, // free indices for formulas
        {"wsk_2", Currency},
    }));

/// Free note on an employee.
inline constexpr KolumnaDef PRACINF[] = {
    {"prc_id", Short, 0, true},
    {"inf_opis", Memo},
};

/// Employment, tax and contract settings of an employee.
inline constexpr KolumnaDef PRACPR[] = {
    {"prc_id", Short, 0, true},
    {"data_zatr", Date}, // employed from
    {"data_zwoln", Date}, // dismissed on
    {"Zwoln", Text, 1}, // dismissed, T/N
    {"umowa_od", Date}, // last contract
    {"umowa_do", Date},
    {"dzial", Text, 30},
    {"stanow", Text, 50},
    {"zawod_1", Text, 50},
    {"zawod_2", Text, 50},
    {"specjaln", Text, 50},
    {"kod_zawodu", Text, 7},
    {"wyksz", Short}, // education, position in its list
    {"mp_id", Short}, // workplace, M_PRACY
    {"Lista", Text, 1}, // his payroll list
    {"etat", Short}, // fraction of a full post: numerator, denominator
    {"etat2", Short},
    {"placa_zas", Currency}, // base salary, zł
    {"Sgp", Currency}, // basic rate of an hour, zł
    {"Premia_pr", Currency}, // bonus, percent of the base salary
    {"il_zal_url", Short}, // vacation days: left over, of this year
    {"il_url", Short},
    // Tax.
    {"us_id", Short}, // tax office, US
    {"gr_pod", Short}, // 0 automatic, otherwise the fixed tax group 1 to 3
    {"Kup", Currency}, // monthly costs of obtaining income, zł
    {"czy_2progi", Text, 1}, // T/N: doubled limits, costs deducted, advance reduced
    {"czy_kuz", Text, 1},
    {"czy_ulga", Text, 1},
    {"ubr", Currency}, // own gross-up index, percent
    // Bank.
    {"bank", Text, Nazwa},
    {"konto", Text, Konto},
    {"czy_konto", Text, 1}, // paid to the account, T/N
    // Opening balances of the year, zł: income, tax, costs, health insurance, social contributions.
    {"doch_start", Currency},
    {"pod_start", Currency},
    {"kup_start", Currency},
    {"ubzp_start", Currency},
    {"ubzo_start", Currency},
    {"fepc_start", Currency},
    {"frpc_start", Currency},
    {"fcpc_start", Currency},
    {"fefr_start", Currency},
    // Civil contracts: T/N, then costs and tax, percent.
    {"umowa_zlec", Text, 1},
    {"k_uz_uzl", Currency},
    {"st_pod_uzl", Currency},
    {"umowa_o_dz", Text, 1},
    {"k_uz_uod", Currency},
    {"st_pod_uod", Currency},
    {"honorarium", Text, 1},
    {"k_uz_hon", Currency},
    {"st_pod_hon", Currency},
    // Contribution rates of civil contracts, percent.
    {"wuzfeprd", Currency},
    {"wuzfeprc", Currency},
    {"wuzfrprd", Currency},
    {"wuzfrprc", Currency},
    {"wuzfcprc", Currency},
    {"wuzfwprd", Currency},
    {"wuzfp", Currency},
    {"wuzfgsp", Currency},
    {"wuzubzdr", Currency},
};

/// Insurance data of an employee. Codes are the insurer's.
inline constexpr KolumnaDef PRACZUS[] = {
    {"prc_id", Short, 0, true},
    {"kod_tyt_ub", Text, 4}, // title of insurance, then right to a pension, degree of disability
    {"emer_rent", Text, 1},
    {"st_niespr", Text, 1},
    {"niespr_od", Date},
    {"niespr_do", Date},
    {"st_niezdpr", Text, 2}, // degree of inability to work
    {"opisniezd", Text, 50},
    {"niezdpr_od", Date},
    {"niezdpr_do", Date},
    {"niezd_prod", Date}, // an earlier pair of the same dates, only kept
    {"niezd_prdo", Date},
    {"kod_k_ch", Text, 3}, // health fund, member since
    {"dat_k_ch", Date},
    {"pocz_ub_sp", Date}, // social and health insurance since
    {"pocz_ub_zd", Date},
    {"kod_pokr", Text, 2}, // kinship
    {"wsp_gosp", Text, 1}, // one household, T/N
    {"podlega_fe", Text, 1}, // insured in the fund: pension, disability, sickness, accident, health, T/N
    {"podlega_fr", Text, 1},
    {"podlega_fc", Text, 1},
    {"podlega_fw", Text, 1},
    {"podlega_uz", Text, 1},
    {"oi_zua", Short}, // which document is due, 0 none
    {"oi_zza", Short},
    {"oi_ziua", Short},
    {"rza", Short},
    {"zus_zwua", Short},
    // The employee's rates, percent: pension, disability, sickness, health, Labour Fund, FGSP.
    {"wsk_fe", Currency},
    {"wsk_fr", Currency},
    {"wsk_fc", Currency},
    {"wsk_ubzdr", Currency},
    {"Fp", Currency},
    {"gsp", Currency},
    {"PPE", Currency}, // pension-plan contribution, zł
    // Benefits drawn: nursing, family, childcare, how many.
    {"il_z_piel", Short},
    {"il_z_rodz", Short},
    {"il_z_wych", Short},
    // End of insurance by fund: T/N, date, code of the cause.
    {"zwua_e", Text, 1},
    {"zwua_d_e", Date},
    {"zwua_k_e", Text, 3},
    {"zwua_r", Text, 1},
    {"zwua_d_r", Date},
    {"zwua_k_r", Text, 3},
    {"zwua_c", Text, 1},
    {"zwua_d_c", Date},
    {"zwua_k_c", Text, 3},
    {"zwua_w", Text, 1},
    {"zwua_d_w", Date},
    {"zwua_k_w", Text, 3},
    {"zwua_z", Text, 1},
    {"zwua_d_z", Date},
    {"zwua_k_z", Text, 3},
    // Continued insurance: since, title, right to a pension, degree of disability.
    {"dkont_ubsp", Date},
    {"k_k_tyt_ub", Text, 4},
    {"k_em_rent", Text, 1},
    {"kst_niespr", Text, 1},
};

/// Family members of employees, for the health insurance.
inline constexpr KolumnaDef RODZINA[] = {
    {"PRC_ID", Short, 0, true},
    {"ROD_ID", Short, 0, true}, // number within the family
    {"Naz", Text, Nazwisko},
    {"Imie", Text, Imie},
    {"data_ur", Date},
    {"pesel", Text, Pesel},
    {"Nip", Text, Nip},
    {"dowod_ser", Text, SeriaDowodu},
    {"dowod_nr", Text, NumerDowodu},
    {"kod_pokr", Text, 2}, // kinship
    {"st_niespr", Text, 1}, // degree of disability
    {"wyl_utrz", Text, 1}, // solely maintained by the insured, T/N
    {"wsp_gosp", Text, 1}, // one household, T/N
    {"d_ub_zdr", Date}, // health insurance since
    {"zcna", Short}, // report with another address or with the same one: 0 no, 1, 2 kind of the notice
    {"zcza", Short},
    {"Kod", Text, KodPocztowy},
    {"miasto", Text, Miejscowosc},
    {"gm_dz", Text, Miejscowosc},
    {"ulica", Text, Ulica},
    {"nr_domu", Text, NumerDomu},
    {"nr_miesz", Text, NumerDomu},
    {"telefon", Text, Telefon},
    {"faks", Text, Telefon},
};

/// Employment contracts.
inline constexpr KolumnaDef UMOP[] = {
    {"UMOPID", Short, 0, true},
    {"umop_nr", Text, 20},
    {"prc_id", Short},
    {"Naz", Text, Nazwisko},
    {"Imie", Text, Imie},
    {"rodzaj", Short}, // kind, position in its list: trial, fixed term, unlimited, for a task
    {"data_zaw", Date},
    {"data_od", Date},
    {"data_do", Date},
    {"stanow", Text, 50},
    {"dzial", Text, 30},
    {"mp_id", Short},
    {"etat", Short},
    {"etat2", Short},
    {"placa_zas", Currency}, // zł
    {"Sgp", Currency}, // zł an hour
    {"Premia_pr", Currency}, // percent
    {"inf_opis", Memo},
    {"zmienia", Short}, // the contract whose terms this row changes, 0 for a contract of its own
    {"wyp_2tyg", Text, 1}, // fixed term that notice of two weeks may end, T/N
    {"inne_war", Memo}, // other terms of work
    {"sposob", Short}, // how it ends, position in its list; 0 while it lasts
    {"data_wyp", Date}, // notice given on
    {"data_roz", Date}, // last day of the employment
    {"przyczyna", Memo}, // of the notice
};

/// Vacation register.
inline constexpr KolumnaDef URL[] = {
    {"prc_id", Short, 0, true},
    {"Naz", Text, Nazwisko},
    {"Imie", Text, Imie},
    {"Data", Date}, // first and last day
    {"data_do", Date},
    {"Rodzaj", Short}, // 0 vacation, 1 unpaid, 2 special, 3 other, 4 childcare, 5 child care, 6 break
    {"il_dni", Short}, // days
    {"KodZUS", Text, KodZUS},
    {"kodswprz", Text, KodSwiadczenia},
    {"Kwota", Currency}, // fixed pay, zł; 0 to compute it
    {"inf_opis", Memo},
};

/// Sick-leave register.
inline constexpr KolumnaDef ZW[] = {
    {"prc_id", Short, 0, true},
    {"Naz", Text, Nazwisko},
    {"Imie", Text, Imie},
    {"Data", Date}, // first and last day
    {"data_do", Date},
    {"l4_seria", Text, 5}, // the certificate
    {"l4_nr", Text, 15},
    {"st_proc", Currency}, // pay, percent of the average
    {"kodchor", Text, 5},
    {"kodswprz", Text, KodSwiadczenia},
    {"Kwota", Currency}, // zł
    {"inf_opis", Memo},
};

inline constexpr SeriaNazw<31> NazwyDni{"DZIEN_"};
inline constexpr SeriaNazw<31> NazwyOpisow{"OPIS_"};

/// Calendars of days off, a row a month: flag of day d at ordinal d + 2, its description at d + 33.
/// A flag is 1 for a free day, 0 for a working day, -1 for a day the month does not have.
inline constexpr auto KALENDARZ = polacz(
    lista({
        {"PrcId", Short, 0, true}, // 0 for the general calendar
        {"Rok", Short, 0, true},
        {"Mies", Short, 0, true},
    }),
    seria(NazwyDni, Short),
    seria(NazwyOpisow, Text, 50));

inline constexpr SeriaNazw<31> NazwyObecnosci{"D_"};

/// Work table of the attendance card: an employee's month, one symbol a day.
inline constexpr auto LSTOBEC = polacz(
    lista({
        {"PRC_ID", Short},
        {"NAZ", Text, Nazwisko},
        {"IMIE", Text, Imie},
        {"STANOW", Text, 50},
        {"ROK", Short},
        {"MIES", Short},
    }),
    seria(NazwyObecnosci, Text, 1),
    lista({
        {"DN_PR", Short}, // days: worked, free, sick, vacation, other absence
        {"DN_WOL", Short},
        {"DN_L4", Short},
        {"DN_URL", Short},
        {"DN_INN", Short},
    }));

/// Work table of the attendance list to be signed: a row an employee and day.
inline constexpr KolumnaDef LSTOBEC2[] = {
    {"PRC_ID", Short},
    {"NAZ", Text, Nazwisko},
    {"IMIE", Text, Imie},
    {"DATA", Date},
    {"DZIEN", Text, 15}, // weekday
    {"SYMBOL", Text, 1},
};

// clang-format on
} // namespace kolumny

namespace klucze {
inline constexpr std::string_view Rodzina[] = {"PRC_ID", "ROD_ID"};
inline constexpr std::string_view UmowaOPrace[] = {"UMOPID"};
inline constexpr std::string_view Kalendarz[] = {"PrcId", "Rok"};
} // namespace klucze

inline constexpr TabelaDef PRACDP{"PRACDP", kolumny::PRACDP, klucze::Pracownik};
inline constexpr TabelaDef PRACSK{"PRACSK", kolumny::PRACSK, klucze::Pracownik};
inline constexpr TabelaDef PRACINF{"PRACINF", kolumny::PRACINF, klucze::Pracownik};
inline constexpr TabelaDef PRACPR{"PRACPR", kolumny::PRACPR, klucze::Pracownik};
inline constexpr TabelaDef PRACZUS{"PRACZUS", kolumny::PRACZUS, klucze::Pracownik};
/// The record of an employee.
inline constexpr auto TabelePracownika =
    std::to_array<const TabelaDef*>({&PRACDP, &PRACSK, &PRACINF, &PRACPR, &PRACZUS});
inline constexpr TabelaDef RODZINA{"RODZINA", kolumny::RODZINA, klucze::Rodzina};
inline constexpr TabelaDef UMOP{"UMOP", kolumny::UMOP, klucze::UmowaOPrace};
inline constexpr TabelaDef URL{"URL", kolumny::URL, klucze::PracownikData};
inline constexpr TabelaDef ZW{"ZW", kolumny::ZW, klucze::PracownikData};
inline constexpr TabelaDef KALENDARZ{"KALENDARZ", kolumny::KALENDARZ, klucze::Kalendarz, Klucz::Wieloznaczny};
inline constexpr TabelaDef LSTOBEC{"LSTOBEC", kolumny::LSTOBEC, {}};
inline constexpr TabelaDef LSTOBEC2{"LSTOBEC2", kolumny::LSTOBEC2, {}};

/// Amount of the employee's additive component `i`, 1 to 30, and deductive component `i`, 1 to 15, zł.
constexpr Kolumna DodatniPracownika(int i) { return elementSerii(PRACSK, 1, 30, i); }
constexpr Kolumna UjemnyPracownika(int i) { return elementSerii(PRACSK, 31, 15, i); }

/// Flag (1 free, 0 working, -1 no such day) and description of day `d`, 1 to 31.
constexpr Kolumna DzienKalendarza(int d) { return elementSerii(KALENDARZ, 3, 31, d); }
constexpr Kolumna OpisKalendarza(int d) { return elementSerii(KALENDARZ, 34, 31, d); }

} // namespace schemat

} // namespace tornel::store
