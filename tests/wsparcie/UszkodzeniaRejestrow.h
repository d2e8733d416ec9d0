// What an import may leave behind in registers, calendars and earlier months, and what becomes of the
// employee.
#pragma once
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

/// In `sql` "#" stands for the employee, "MAX" for the largest amount.
struct Uszkodzenie {
    const char* opis;
    const char* sql;
    const char* wynik;           ///< null when he cannot be computed
    const char16_t* powod = u""; ///< a part of the cause then
};

inline const Uszkodzenie kUszkodzenia[] = {
    {"a leave without an end", "INSERT INTO ZW (prc_id, Data) VALUES (#, '2001-07-02')",
     "DN_RO=22 DN_ZAS=0 SR_BR_ZUS=0"},
    {"a leave without a start", "INSERT INTO ZW (prc_id, data_do) VALUES (#, '2001-07-02')",
     "DN_RO=22 DN_ZAS=0 SR_BR_ZUS=0"},
    {"a leave that ends before it begins",
     "INSERT INTO ZW (prc_id, Data, data_do, st_proc) VALUES (#, '2001-07-10', '2001-07-05', 1000000)",
     "DN_RO=22 DN_ZAS=0 SR_BR_ZUS=0 SP_20=0"},
    {"such a leave gives no days of the limit back",
     "INSERT INTO ZW (prc_id, Data, data_do, st_proc) VALUES (#, '2001-02-01', '2001-03-06', 800000), "
     "(#, '2001-05-20', '2001-05-10', 800000), (#, '2001-07-02', '2001-07-03', 1000000)",
     "DNI_L4_PR=1 DNI_L4_ZUS=1 SP_20=100 SP_25=100"},
    {"a negative percentage",
     "INSERT INTO ZW (prc_id, Data, data_do, st_proc) VALUES (#, '2001-07-02', '2001-07-03', -800000)",
     "DNI_L4_PR=2 SP_20=-160 SP_25=0"},
    {"a vacation without an end", "INSERT INTO URL (prc_id, Data, Rodzaj) VALUES (#, '2001-07-02', 0)",
     "DN_URL=0 SR_BR_URL=0 SP_5=0"},
    {"a vacation that ends before it begins",
     "INSERT INTO URL (prc_id, Data, data_do, Rodzaj) VALUES (#, '2001-07-10', '2001-07-05', 0)",
     "DN_URL=0 SP_5=0"},
    {"kinds that nobody knows",
     "INSERT INTO URL (prc_id, Data, data_do, Rodzaj) VALUES (#, '2001-07-02', '2001-07-03', 99), "
     "(#, '2001-07-05', '2001-07-06', 2147483647), (#, '2001-07-09', '2001-07-09', -2147483648)",
     "DN_URL=5 DNI_UWYP=0 DN_PRZERWY=0 DN_RO=17 SR_BR_URL=150 SP_5=750"},
    {"a calendar month twice, the first without marks",
     "INSERT INTO KALENDARZ (PrcId, Rok, Mies) VALUES (#, 2001, 7);"
     "INSERT INTO KALENDARZ (PrcId, Rok, Mies, DZIEN_2) VALUES (#, 2001, 7, 1)",
     "DN_RO=22 DN_SO=4 DN_NI=5 DN_INN=0"},
    {"overtime without amounts", "INSERT INTO NADGN200107 (PRC_ID) VALUES (#)", "SP_10=1"},
    {"fixed amounts past the range",
     "INSERT INTO URL (prc_id, Data, data_do, Kwota) VALUES (#, '2001-07-02', '2001-07-02', MAX), "
     "(#, '2001-07-03', '2001-07-03', MAX)",
     nullptr, u"zakres liczb"},
    {"a percentage past the range",
     "INSERT INTO ZW (prc_id, Data, data_do, st_proc) VALUES (#, '2001-07-02', '2001-07-03', MAX)", nullptr,
     u"zakres liczb"},
    {"overtime past the range", "INSERT INTO NADGN200107 (PRC_ID, SP_K1) VALUES (#, MAX)", nullptr,
     u"zakres liczb"},
    {"components of an earlier month past the range",
     "INSERT INTO PLS200106 (PRC_ID, LISTA, SP_1) VALUES (#, 'Z', MAX);"
     "INSERT INTO ZW (prc_id, Data, data_do, st_proc) VALUES (#, '2001-07-02', '2001-07-03', 800000)",
     nullptr, u"Suma kwot z wcześniejszych miesięcy"},
    {"gross of an earlier month past the range",
     "INSERT INTO PLA200106 (PRC_ID, LISTA, BRUTTO) VALUES (#, 'Y', MAX), (#, 'Z', MAX)", nullptr,
     u"Suma kwot z wcześniejszych miesięcy"},
    {"damaged gross of an earlier month", "UPDATE PLA200106 SET BRUTTO = 'x' WHERE PRC_ID = #", nullptr,
     u"kolumnie BRUTTO tabeli PLA200106"},
    {"a damaged component of an earlier month",
     "UPDATE PLS200106 SET SP_1 = 0.5 WHERE PRC_ID = #;"
     "INSERT INTO ZW (prc_id, Data, data_do, st_proc) VALUES (#, '2001-07-02', '2001-07-03', 800000)",
     nullptr, u"kolumnie SP_1 tabeli PLS200106"},
    {"a damaged rate of an earlier month",
     "UPDATE PLB200106 SET WSK_FRPRC = 'x' WHERE PRC_ID = #;"
     "INSERT INTO ZW (prc_id, Data, data_do, st_proc) VALUES (#, '2001-07-02', '2001-07-03', 800000)",
     nullptr, u"kolumnie WSK_FRPRC tabeli PLB200106"},
    {"damaged days of an earlier month",
     "UPDATE PLA200106 SET DN_RO = 1.5 WHERE PRC_ID = #;"
     "INSERT INTO URL (prc_id, Data, data_do, Rodzaj) VALUES (#, '2001-07-02', '2001-07-03', 0)",
     nullptr, u"kolumnie DN_RO tabeli PLA200106"},
    {"a damaged start of a vacation", "INSERT INTO URL (prc_id, Data, data_do) VALUES (#, 5, '2001-07-02')",
     nullptr, u"kolumnie Data tabeli URL"},
    {"a damaged end of a leave", "INSERT INTO ZW (prc_id, Data, data_do) VALUES (#, '2001-07-02', 'jutro')",
     nullptr, u"kolumnie data_do tabeli ZW"},
    {"a damaged day of a calendar",
     "INSERT INTO KALENDARZ (PrcId, Rok, Mies, DZIEN_2) VALUES (#, 2001, 7, 'x')", nullptr,
     u"kolumnie DZIEN_2 tabeli KALENDARZ"},
    {"damaged overtime", "INSERT INTO NADGN200107 (PRC_ID, SP_K1) VALUES (#, 'x')", nullptr,
     u"kolumnie SP_K1 tabeli NADGN200107"},
    {"a damaged contract, which a batch does not read",
     "INSERT INTO UZL (UZLID, prc_id, data_wyp, Brutto) VALUES (#, #, '2001-03-01', 'x')",
     "DN_RO=22 BRUTTO=1001"},
    {"somebody healthy, after all of them",
     "INSERT INTO ZW (prc_id, Data, data_do, st_proc) VALUES (#, '2001-07-02', '2001-07-03', 800000)",
     "DN_RO=20 DN_ZAS=2 SP_20=160 SP_10=1"},
};

} // namespace tornel::testy
