// The schema: column order that code relies on by ordinal, names that are found without regard to case, sound
// keys.
#include "store/Schemat.h"
#include "wsparcie/Przestrzen.h"
#include <cctype>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace tornel::testy {

namespace {

using namespace schemat;

// Both ends of every series that is addressed by ordinal.
static_assert(SP(1).nr == 2 && SP(30).nr == 31 && SP(30).def().nazwa == "SP_30");
static_assert(SM(1).nr == 32 && SM(15).nr == 46 && SM(15).def().nazwa == "SM_15");
static_assert(SOD(1).nr == 2 && SOD(30).nr == 60 && SOD(30).def().nazwa == "SOD_30");
static_assert(SDO(1).nr == 3 && SDO(30).nr == 61 && SDO(30).def().nazwa == "SDO_30");
static_assert(DodatniPracownika(1).nr == 1 && DodatniPracownika(30).def().nazwa == "DOD_30");
static_assert(UjemnyPracownika(1).nr == 31 && UjemnyPracownika(15).def().nazwa == "POT_15");
static_assert(NazwaSkladnikaMiesiaca(1).nr == 2 && NazwaSkladnikaMiesiaca(45).nr == 46);
static_assert(KodZUSMiesiaca(1).nr == 2 && KodZUSMiesiaca(30).nr == 31);
static_assert(DzienKalendarza(1).nr == 3 && DzienKalendarza(31).def().nazwa == "DZIEN_31");
static_assert(OpisKalendarza(1).nr == 34 && OpisKalendarza(31).def().nazwa == "OPIS_31");

static_assert(PLS.kolumny.size() == 47 && PLD.kolumny.size() == 62 && PLACEN.kolumny.size() == 47);
static_assert(PLACEK.kolumny.size() == 32 && KALENDARZ.kolumny.size() == 65 && PRACSK("dod").nr == 46);

// The PIT-4 screen walks its two blocks by position.
static_assert(PIT4("ubzdr_odl1").nr == PIT4("nr_p_1").nr + 5 && PIT4("nr_p_2").nr == PIT4("nr_p_1").nr + 6);
static_assert(PIT4("nr_p_10").nr == PIT4("nr_p_1").nr + 48 &&
              PIT4("pob_zal_17").nr == PIT4("nr_p_10").nr + 15);

// CHAR in one month table only, deliberately.
static_assert(PLD("LISTA").def().typ == Typ::Char && PLS("LISTA").def().typ == Typ::Text);
static_assert(PLA("LISTA").def().typ == Typ::Text && PLB("LISTA").def().typ == Typ::Text);

std::string typ(const KolumnaDef& kolumna) {
    static constexpr const char* slowa[] = {"BYTE",   "SHORT", "INTEGER", "CURRENCY", "SINGLE",
                                            "DOUBLE", "TEXT",  "CHAR",    "MEMO",     "DATE"};
    std::string wynik = slowa[static_cast<int>(kolumna.typ)];
    if (kolumna.rozmiar > 0) wynik += "(" + std::to_string(kolumna.rozmiar) + ")";
    return wynik + (kolumna.wymagana ? " NOT NULL" : "");
}

std::string opis(const TabelaDef& tabela) {
    std::string wynik;
    for (const KolumnaDef& kolumna : tabela.kolumny)
        wynik += (wynik.empty() ? "" : ", ") + std::string(kolumna.nazwa) + " " + typ(kolumna);
    return wynik;
}

std::vector<const TabelaDef*> wszystkie() {
    std::vector<const TabelaDef*> wynik(Tabele.begin(), Tabele.end());
    wynik.insert(wynik.end(), TabeleMiesiaca.begin(), TabeleMiesiaca.end());
    wynik.insert(wynik.end(), {&NADGN, &NADGDzien});
    return wynik;
}

TEST(Schemat, MonthTablesAAndBHaveTheirColumnsInOrder) {
    EXPECT_EQ(
        opis(PLA),
        "PRC_ID SHORT NOT NULL, LISTA TEXT(1), BRUTTO CURRENCY, NETTO CURRENCY, NAZ TEXT(20), "
        "IMIE TEXT(15), KUP CURRENCY, PPD CURRENCY, ST_PD SHORT, US_ID SHORT, POD_DOCH CURRENCY, "
        "PODATEK CURRENCY, SKL_FP CURRENCY, SKL_FGSP CURRENCY, DN_PR SHORT, DN_URL SHORT, DN_ZAS SHORT, "
        "PRZELEWEM CURRENCY, ST_SKL_FP CURRENCY, ST_SKLFGSP CURRENCY, DODATKI CURRENCY, "
        "POTRACENIA CURRENCY, DN_RO SHORT, DN_SO SHORT, DN_NI SHORT, DN_INN SHORT, IL_S_REH SHORT, "
        "IL_Z_POR SHORT, IL_Z_POG SHORT, IL_Z_RODZ SHORT, IL_Z_PIEL SHORT, IL_Z_WYCH SHORT, "
        "IL_Z_REHCH SHORT, IL_S_POGCH SHORT, SR_BR_ZUS CURRENCY, DNI_L4_ZUS SHORT, DNI_L4_PR SHORT, "
        "ETAT SHORT, ETAT2 SHORT, DO_WYPLATY CURRENCY");
    EXPECT_EQ(opis(PLB),
              "PRC_ID SHORT NOT NULL, LISTA TEXT(1), ZUS_PPE CURRENCY, PPE CURRENCY, WSK_FEPRD CURRENCY, "
              "WSK_FRPRD CURRENCY, WSK_FWPRD CURRENCY, WSK_FEPRC CURRENCY, WSK_FRPRC CURRENCY, "
              "WSK_FCPRC CURRENCY, WSK_UBZDR CURRENCY, FEPRD CURRENCY, FRPRD CURRENCY, FWPRD CURRENCY, "
              "FEPRC CURRENCY, FRPRC CURRENCY, FCPRC CURRENCY, UBZDR CURRENCY, UBZDR_NAL CURRENCY, "
              "WSK_UBR CURRENCY, UBRUTTOW CURRENCY, SR_BR_URL CURRENCY, DNI_UWYP SHORT, DN_UOK SHORT, "
              "DN_UBEZPL SHORT, DN_UWYCH SHORT, DN_UOPDZI SHORT, DN_UINNY SHORT, DN_PRZERWY SHORT, "
              "PACZKA SHORT, WYS_MCS TEXT(1)");
}

TEST(Schemat, EveryTableIsSound) {
    std::set<std::string> nazwyTabel;
    for (const TabelaDef* tabela : wszystkie()) {
        SCOPED_TRACE(tabela->nazwa);
        // The overtime header and its days share their name: the second one is always followed by the month.
        EXPECT_NE(nazwyTabel.insert(std::string(tabela->nazwa)).second, tabela == &NADGDzien);
        std::set<std::string> nazwy;
        for (const KolumnaDef& kolumna : tabela->kolumny) {
            SCOPED_TRACE(kolumna.nazwa);
            std::string mala(kolumna.nazwa);
            for (char& c : mala) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            EXPECT_TRUE(nazwy.insert(mala).second);
            const bool tekst = kolumna.typ == Typ::Text || kolumna.typ == Typ::Char;
            EXPECT_EQ(tekst, kolumna.rozmiar > 0);
            EXPECT_LE(kolumna.rozmiar, 255);
        }
        for (const std::string_view kolumna : tabela->klucz) EXPECT_GE(tabela->numer(kolumna), 0) << kolumna;
        EXPECT_LE(tabela->klucz.size(), 2U);
    }
    for (const char* nazwa :
         {"KON",      "UZYTKOWNICY", "PRACDP",  "PRACSK",  "PRACINF", "PRACPR", "PRACZUS",   "SZ_PL",
          "PLACE",    "PLACEN",      "PLACEK",  "NADG",    "URL",     "ZW",     "KALENDARZ", "UZL",
          "UOD",      "HON",         "UMOP",    "RODZINA", "M_PRACY", "US",     "KONTA",     "PRZELEW",
          "ZUS",      "PIT4",        "PIT11",   "PIT40",   "PIT8B",   "DRUKLP", "TEMP",      "LSTOBEC",
          "LSTOBEC2", "ZASILEK",     "WPISANE", "WYKONANE"})
        EXPECT_TRUE(nazwyTabel.contains(nazwa)) << nazwa;
}

TEST(Schemat, NumberOutsideASeriesIsAFault) {
    EXPECT_THROW(SP(0), std::out_of_range);
    EXPECT_THROW(SP(31), std::out_of_range); // would be SM_1
    EXPECT_THROW(SM(16), std::out_of_range);
    EXPECT_THROW(SOD(0), std::out_of_range);
    EXPECT_THROW(SDO(31), std::out_of_range);
    EXPECT_THROW(DodatniPracownika(31), std::out_of_range);
    EXPECT_THROW(DzienKalendarza(32), std::out_of_range); // would be OPIS_1
}

} // namespace

} // namespace tornel::testy
