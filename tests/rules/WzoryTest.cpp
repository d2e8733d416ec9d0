#include "rules/Wzory.h"
#include "store/Sesja.h"
#include "store/Struktura.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include <gtest/gtest.h>
#include <QTemporaryDir>

namespace tornel::testy {

namespace {

using namespace bityWzoru;

QString u(const char* tekst) { return QString::fromUtf8(tekst); }

void ustawZmienne(Wzory& wzory) {
    ZmienneWzoru& z = wzory.zmienne;
    const struct {
        const char* nazwa;
        std::int64_t zlotych;
    } wartosci[] = {{"DOCH", 10000}, {"STZ", 1650}, {"STC", 9},    {"SGP", 12},   {"WS1", 3},
                    {"WS2", 4},      {"DD1", 101},  {"DD2", 102},  {"DD30", 130}, {"DU1", 201},
                    {"DU15", 215},   {"LD1", 301},  {"LD16", 316}, {"LD30", 330}, {"LU1", 401}};
    for (const auto& w : wartosci) EXPECT_TRUE(z.ustaw(u(w.nazwa), Waluta::zlotych(w.zlotych))) << w.nazwa;
}

struct PrzypadekWzoru {
    const char* wzor;
    const char* wynik;
    int bity;
};

void sprawdz(std::initializer_list<PrzypadekWzoru> przypadki) {
    RozmowaSkrypt rozmowa;
    Wzory wzory(rozmowa);
    ustawZmienne(wzory);
    for (const PrzypadekWzoru& p : przypadki) {
        int flags = 0;
        EXPECT_EQ(TekstKwoty(wzory.ObliczWzor(u(p.wzor), flags)), u(p.wynik)) << p.wzor;
        EXPECT_EQ(flags, p.bity) << p.wzor;
    }
}

TEST(Wzory, ArithmeticAndPrecedence) {
    sprawdz({
        {"2+3*4", "14", 0},
        {"2^3^2", "64", 0},
        {"2*3^2", "36", 0}, // deliberate: one level for ^ and *
        {"100+20%", "100,2", 0},
        {"20%", "0,2", 0},
        {"#9", "3", 0},
        {"2*(#9)", "6", 0},
        {"10-2-3", "5", 0},
        {"-5+3", "-2", 0},
        {"-(2+3)", "-5", 0},
        {"(2+3)", "5", 0},
        {"(2+3)*(4+5)", "45", 0},
        {"(2+3)%", "0,05", 0},
        {"2*(3+(4-1))", "12", 0},
        {"DOCH*0,19-394,8", "1505,2", 0},
        {"5233,76+((DOCH-29624)*0,3)", "-653,44", 0},
        {" 2 + 3 ", "5", 0},
        {",5+5,", "5,5", 0},
        {"1E3+1", "1001", 0},
        {"stz*2", "3300", 0},
        {"2^0,5", "1,4142", 0},
        {"(0-8)^3", "-512", 0},
        {"0^0", "1", 0},
        {"0/(0-5)", "0", 0},
    });
}

TEST(Wzory, IntermediateTextsAreReadAtFourPlaces) {
    sprawdz({
        {"1/3*3", "0,9999", 0},
        {"1/3", "0,3333", 0},
        {"0,00005*1", "0", 0},
        {"0,00015", "0,0002", 0},
        {"0,00025", "0,0002", 0},
        {"1/0,00005", "0", DzieleniePrzezZero}, // the divisor is judged as money
        {"1/0,00006", "10000", 0},
        {"1/100000", "0", 0}, // the text is 1E-05
        {"1/100000*10000000", "0", 0},
        {"20000000000000/20000000000000", "1", 0},
        {"99999999999999,9999+0,0001", "100000000000000", 0},
        {"#(0,0001*0,4)", "0", 0},
        {"1,005*100", "100,5", 0},
    });
}

TEST(Wzory, DeliberateOddities) {
    sprawdz({
        // A bracket without an operator is never closed up.
        {"(5)", "0", Skladnia},
        {"(5)*2", "0", Skladnia | NieznanaZmienna},
        {"3-(2)", "0", Skladnia | NieznanaZmienna},
        {"(2)+(3)", "0", Skladnia | NieznanaZmienna},
        {"((2+3))", "0", Skladnia},
        {"()", "0", Skladnia},
        // The emptied positions before a range throw its start off: what is left over is taken from the left.
        {"(5)*(2+3)", "25", 0},
        {"(5)*(2+3*4)", "22", 0},
        // A minus that opens an inner bracket is binary and reads the emptied bracket.
        {"2*(-3)", "-6", NieznanaZmienna},
        {"(-5)*2", "-10", NieznanaZmienna},
        {"(-5)", "-5", NieznanaZmienna},
        // An operator read as an operand.
        {"2*-3", "0", Skladnia | NieznanaZmienna},
        {"2*#9", "0", Skladnia | NieznanaZmienna},
        {"+5", "5", NieznanaZmienna},
        {"*5", "0", NieznanaZmienna},
        {"2*3+", "6", NieznanaZmienna},
        {"+", "0", NieznanaZmienna},
        {"(", "0", NieznanaZmienna},
        // Blanks inside are part of tokens.
        {"(2+3) *4", "0", Skladnia | NieznanaZmienna},
        {"DOCH +1", "1", NieznanaZmienna},
        {"2 3", "0", NieznanaZmienna},
    });
}

TEST(Wzory, Failures) {
    sprawdz({
        {"", "0", PustyWzor},
        {"   ", "0", PustyWzor},
        {"(2+3", "0", Skladnia},
        {"2+3)", "0", Skladnia},
        {"((2+3)*2", "0", Skladnia},
        {")2+3(", "0", Skladnia},
        {"2(3+4)", "0", Skladnia},
        {"5/0", "0", DzieleniePrzezZero},
        {"5/0+3", "0", DzieleniePrzezZero},
        {"(5/0)+(2", "0", DzieleniePrzezZero}, // the first fatal bit ends the evaluation
        {"#(0-4)", "0", UjemnyPierwiastek},
        {"5/0+#(0-4)", "0", DzieleniePrzezZero | UjemnyPierwiastek},
        {"(5/0+(#(0-4)))", "0", UjemnyPierwiastek},
        {"5/(0*1)", "0", DzieleniePrzezZero},
        {"ABC+1", "1", NieznanaZmienna},
        {"ABC/0", "0", NieznanaZmienna | DzieleniePrzezZero},
        {"1.5", "0", NieznanaZmienna}, // no decimal mark
        {"1,2,3", "0", NieznanaZmienna},
        {"1E", "0", NieznanaZmienna},
    });
}

TEST(Wzory, Variables) {
    sprawdz({
        {"doch", "10000", 0},
        {"WS1+WS2", "7", 0},
        {"STC*SGP", "108", 0},
        {"dd1", "101", 0},
        {"DD30", "130", 0},
        {"DD1X", "101", 0},
        {"DD1,5", "101", 0},
        {"DD1.5", "102", 0},
        {"DD2.5", "102", 0},
        {"DD01", "101", 0},
        {"DD 1", "101", 0},
        {"DD1 +1", "102", 0},
        {"DU15", "215", 0},
        {"LD1", "301", 0},
        {"LD16", "316", 0},
        {"LD30", "330", 0},
        {"LU1", "201", 0}, // deliberate: the personnel file's value, never the list's
        {"LU15", "215", 0},
    });
    for (const char* nieznana : {"DD31", "DD0", "DD", "DU16", "LD31", "LU0", "LU31", "DOCH2", "DX1", "D", "Ó",
                                 "DD9999999999999999999999"})
        sprawdz({{nieznana, "0", NieznanaZmienna}});

    ZmienneWzoru z;
    for (const char* zla : {"DD31", "DU16", "LU16", "LD0", "DD01", "dd1", "DOCH ", "X", ""})
        EXPECT_FALSE(z.ustaw(u(zla), Waluta{})) << zla;
}

TEST(Wzory, RunTimeFailuresAreThrown) {
    RozmowaSkrypt rozmowa;
    Wzory wzory(rozmowa);
    for (const char* wzor :
         {"5*", "2+3*", "5#", "5-", "2+(3*", "LU16", "1+LU30", "0^(0-1)", "(0-8)^0,5", "10^400", "10^20",
          "10^20+1", "900000000000000+900000000000000", "900000000000000*2", "900000000000000/0,0001",
          "999999999999999999999999999999", "1E400"}) {
        int flags = trybWzoru::BledyWzoru;
        EXPECT_THROW((void)wzory.ObliczWzor(u(wzor), flags), BladWzoru) << wzor;
    }
    int flags = 0;
    try {
        (void)wzory.ObliczWzor(u("5*%2"), flags);
        EXPECT_EQ(flags, Skladnia | NieznanaZmienna);
        (void)wzory.ObliczWzor(u("%1*"), flags);
        FAIL();
    } catch (const BladWzoru& blad) {
        EXPECT_EQ(blad.komunikat(),
                  u("Nie można obliczyć wzoru \"%1*\". Operator na końcu wzoru nie ma argumentu."));
    }
}

TEST(Wzory, EachModeBitShowsItsMessages) {
    using namespace trybWzoru;
    const auto licz = [](int tryb, const char* wzor,
                         std::initializer_list<std::pair<const char*, Styl>> komunikaty) {
        RozmowaSkrypt rozmowa;
        for (const auto& [tekst, styl] : komunikaty) rozmowa.spodziewaj(u(tekst), styl);
        Wzory wzory(rozmowa);
        int flags = tryb;
        SCOPED_TRACE(wzor);
        (void)wzory.ObliczWzor(u(wzor), flags);
        EXPECT_TRUE(rozmowa.gotowa());
    };
    licz(NieznaneZmienne, "abc+x y",
         {{"Nieznana zmienna \"ABC\"", Styl::Wykrzyknik}, {"Nieznana zmienna \"X Y\"", Styl::Wykrzyknik}});
    licz(NieznaneZmienne, "2*(-3)", {}); // the empty token is silent
    licz(NieznaneZmienne, "2*-3", {{"Nieznana zmienna \"-\"", Styl::Wykrzyknik}});
    licz(BledyWzoru, "", {{"Pusty Wzór !\r(Wzór podany do obliczenia jest pusty.)", Styl::Informacja}});
    licz(BledyWzoru, "(5)*2",
         {{"Błąd Składniowy !\r(Nie zgadza się ilość nawiasów lub postawiono operatory w niewłaściwych "
           "miejscach.)",
           Styl::Krytyczny}});
    licz(BledyWzoru, "5/0+#(0-4)",
         {{"Dzielenie Przez Zero !\r(Próbowano podzielić liczbę przez zero.)", Styl::Krytyczny},
          {"Niedozwolony Argument Pierwiastka !\r(Próbowano obliczyć pierwiastek kwadratowy z liczby "
           "mniejszej od "
           "zera.)",
           Styl::Krytyczny}});
    licz(NieznaneZmienne | BledyWzoru, "ABC/0",
         {{"Nieznana zmienna \"ABC\"", Styl::Wykrzyknik},
          {"Dzielenie Przez Zero !\r(Próbowano podzielić liczbę przez zero.)", Styl::Krytyczny}});
    licz(0, "ABC/0", {});
}

TEST(Wzory, VariablesComeFromTheRowsOfTheSession) {
    const QTemporaryDir folder;
    const QString plik = folder.filePath(u("Tornel.mdb"));
    UtworzBaze(plik);
    Sesja sesja(plik);
    RozmowaSkrypt rozmowa;
    Wzory wzory(sesja, rozmowa);
    const auto licz = [&](const char* wzor, int tryb, int bity) {
        int flags = tryb;
        const Waluta wynik = wzory.ObliczWzor(u(wzor), flags);
        EXPECT_EQ(flags, bity) << wzor;
        return TekstKwoty(wynik);
    };

    EXPECT_TRUE(wzory.zmienne.ustaw(u("STZ"), Waluta::zlotych(7)));
    rozmowa.spodziewaj(u("ERROR: Nie można odnaleźć rekordu w tabeli: \"PRACPR\""), Styl::Krytyczny);
    rozmowa.spodziewaj(u("ERROR: Nie można odnaleźć rekordu w tabeli: \"PRACSK\""), Styl::Krytyczny);
    rozmowa.spodziewaj(u("ERROR: Tabela: \"PLSrrrrmm\" nie jest otwarta."), Styl::Krytyczny);
    EXPECT_EQ(licz("STZ", trybWzoru::BrakiRekordow, BrakRekordu), u("7"))
        << "a variable not loaded keeps its value";

    sesja.rsPRACPR.AddNew();
    sesja.rsPRACPR.ustaw(schemat::PRACPR("placa_zas"), Waluta::zlotych(1650));
    sesja.rsPRACPR.ustaw(schemat::PRACPR("Sgp"), Waluta::zlotych(9));
    sesja.rsPRACSK.AddNew();
    for (int i = 1; i <= 30; ++i)
        sesja.rsPRACSK.ustaw(schemat::DodatniPracownika(i), Waluta::zlotych(100 + i));
    for (int i = 1; i <= 15; ++i)
        sesja.rsPRACSK.ustaw(schemat::UjemnyPracownika(i), Waluta::zlotych(200 + i));
    sesja.rsPRACSK.ustaw(schemat::PRACSK("wsk_1"), Waluta::zlotych(3));
    sesja.rsPRACSK.ustaw(schemat::PRACSK("wsk_2"), Waluta::zlotych(4));
    EXPECT_EQ(licz("STZ+STC", 0, BrakRekordu), u("1659")) << "a closed month sets only bit 32";

    UtworzTabele(sesja.cnPlace, schemat::PLS, u("PLS200107"));
    sesja.rsPLS.Open(sesja.cnPlace, u("PLS200107"));
    rozmowa.spodziewaj(u("ERROR: Nie można odnaleźć rekordu w tabeli: \"PLSrrrrmm\""), Styl::Krytyczny);
    EXPECT_EQ(licz("", trybWzoru::BrakiRekordow, BrakRekordu | PustyWzor), u("0"));

    sesja.rsPLS.AddNew();
    for (int i = 1; i <= 30; ++i) sesja.rsPLS.ustaw(schemat::SP(i), Waluta::zlotych(300 + i));
    for (int i = 1; i <= 15; ++i) sesja.rsPLS.ustaw(schemat::SM(i), Waluta::zlotych(400 + i));
    const PrzypadekWzoru przypadki[] = {
        {"DD1", "101", 0},  {"DD15", "115", 0}, {"DD16", "116", 0}, {"DD30", "130", 0},
        {"DU1", "201", 0},  {"DU15", "215", 0}, {"LD1", "301", 0},  {"LD15", "315", 0},
        {"LD16", "316", 0}, {"LD30", "330", 0}, {"LU1", "201", 0},  {"WS1*WS2", "12", 0},
    };
    for (const PrzypadekWzoru& p : przypadki) EXPECT_EQ(licz(p.wzor, 7, p.bity), u(p.wynik)) << p.wzor;
}

TEST(Wzory, ErrorWzorReportsSyntaxAndVariablesOnly) {
    RozmowaSkrypt rozmowa;
    rozmowa.spodziewaj(
        u("BŁĄD SKŁADNI\r\nUpewnij się czy zgadza się ilość nawiasów, czy wszystkie operatory "
          "(^,#,%,*,/,+,-) znajdują się we właściwym miejscu i czy liczby ujemne są zamknięte w nawiasy."),
        Styl::Wykrzyknik);
    rozmowa.spodziewaj(
        u("BŁĄD ZMIENNEJ\r\nWpisano nazwę nieznanej zmiennej do wzoru. We wzorze mogą wytępować tylko "
          "ściśle ogreślone nazy zmiennych."),
        Styl::Wykrzyknik);
    ErrorWzor(PustyWzor | DzieleniePrzezZero | UjemnyPierwiastek | BrakRekordu, rozmowa);
    ErrorWzor(Skladnia | NieznanaZmienna, rozmowa);
    EXPECT_TRUE(rozmowa.gotowa());
}

} // namespace

} // namespace tornel::testy
