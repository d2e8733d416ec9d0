#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include <gtest/gtest.h>

namespace tornel::testy {

namespace {

QString u(const char* tekst) { return QString::fromUtf8(tekst); }

TEST(Daty, MonthsAndWeekdays) {
    EXPECT_EQ(DniWMiesiacu(2000, 2), 29);
    EXPECT_EQ(DniWMiesiacu(1900, 2), 28);
    EXPECT_EQ(DniWMiesiacu(2001, 4), 30);
    EXPECT_EQ(DniWMiesiacu(2001, 13), 0);
    EXPECT_EQ(OstatniDzien(2001, 2), QDate(2001, 2, 28));
    EXPECT_EQ(PierwszyDzien(2001, 12), QDate(2001, 12, 1));
    EXPECT_EQ(NazwaMiesiaca(1) + NazwaMiesiaca(10) + NazwaMiesiaca(12), u("StyczeńPaździernikGrudzień"));
    EXPECT_EQ(NazwaMiesiaca(0) + NazwaMiesiaca(13), QString());
    EXPECT_EQ(Nazwa_dnia(QDate(2001, 7, 1)), u("Niedziela"));
    EXPECT_EQ(DzienT(QDate(2001, 7, 2)), u("Poniedziałek"));
    EXPECT_EQ(Nazwa_dnia({}), QString());
    EXPECT_EQ(FormatDaty(QDate(2001, 7, 2)), u("02-07-2001"));
    EXPECT_EQ(FormatDaty({}), QString());
    EXPECT_EQ(FormatMiesiaca(7) + FormatRoku(987), u("070987"));
}

TEST(Daty, AMonthIsReadByNumberAndByName) {
    const std::pair<const char*, int> dobre[] = {
        {"7", 7},      {"07", 7},     {" 12 ", 12},    {"1", 1},        {"01", 1},
        {"lip", 7},    {"LIPIEC", 7}, {"lipca", 7},    {"lis", 11},     {"maj", 5},
        {"mar", 3},    {"paź", 10},   {"pazdz", 10},   {"Września", 9}, {"s", 0},
        {"li", 0},     {"0", 0},      {"13", 0},       {"007", 0},      {"", 0},
        {"lipton", 0}, {"7.", 0},     {"lipiec 7", 0}, {"kwietnia", 4}, {"g", 12},
    };
    for (const auto& [tekst, miesiac] : dobre)
        EXPECT_EQ(CzytajMiesiac(u(tekst)).value_or(0), miesiac) << tekst;
    EXPECT_EQ(PasujaceMiesiace(u("1")), (QList<int>{1, 10, 11, 12}));
    EXPECT_EQ(PasujaceMiesiace(u("m")), (QList<int>{3, 5}));
}

TEST(Daty, ReadingIsStrict) {
    for (const char* dobra : {"05-07-2001", "05/07/2001", "05.07.2001", "2001-07-05"})
        EXPECT_EQ(CzytajDate(u(dobra)), QDate(2001, 7, 5)) << dobra;
    EXPECT_EQ(CzytajDate(u("29-02-2000")), QDate(2000, 2, 29));
    for (const char* zla :
         {"", "31-02-2001", "29-02-2001", "00-07-2001", "05-13-2001", "5-7-2001", "05-07-01", "05-07/2001",
          "05-07-2001 ", " 05-07-2001", "05-07-20011", "2001/07/05", "2001-02-30", "05-07-0001", "05 07 2001",
          "+5-07-2001", "05-07-200x", "٠٥-07-2001"})
        EXPECT_EQ(CzytajDate(u(zla)), std::nullopt) << zla;
}

TEST(Daty, FieldTexts) {
    const struct {
        const char *wpisany, *poMasce;
    } maski[] = {
        {"", ""},
        {"1", "1"},
        {"12/", "12/"},
        {"12/05/20", "12/05/20"},
        {"12/ab/2001", "12//2001"},
        {"x", ""},
        {"12/05/2001/9", "12/05/2001"},
        {"12-05-2001", "12-05-2001"},
    };
    for (const auto& m : maski) EXPECT_EQ(MaskaDaty(u(m.wpisany)), u(m.poMasce)) << m.wpisany;

    const struct {
        const char *wpisany, *poWyjsciu;
    } pola[] = {
        {"12/05/2001", "12-05-2001"},
        {"12-05-2001", "12-05-2001"},
        {"12.05.2001", "12-05-2001"},
        {" 12052001 ", "12-05-2001"},
        {"2001-05-12", "12-05-2001"},
        {"1/7/2001", "01-07-2001"},
        {"12/05/2001 x", "12-05-2001"},
        {"01-01-1900", "01-01-1900"},
        {"31-12-2100", "31-12-2100"},
        {"31-12-1899", ""},
        {"01-01-2101", ""},
        {"20010701", ""},
        {"31/02/2001", ""},
        {"12/05/201", ""},
        {"", ""},
        {"12/05/0001", ""},
        {"1a/05/2001", ""},
        {"12-05/2001", ""},
        {"2001/05/12", ""},
        {"2001-5-12", ""},
        {"12-05-20011", ""},
        {"12-05", ""},
        {"12-05-01", ""},
        {"12-05-2001-1", ""},
        {"120501", ""},
        {"--2001", ""},
    };
    for (const auto& p : pola) EXPECT_EQ(SprawdzDate(u(p.wpisany)), u(p.poWyjsciu)) << p.wpisany;
}

TEST(Liczby, StoredAmountsAreReadStrictlyFromTheirDigits) {
    const struct {
        const char* tekst;
        std::int64_t kwota;
    } dobre[] = {
        {"1650", 1650'0000},
        {" 1650,5 ", 1650'5000},
        {"1650.50", 1650'5000},
        {"-3", -3'0000},
        {"+3,25", 3'2500},
        {",5", 5000},
        {"5,", 5'0000},
        {"-0", 0},
        {"1.500", 1'5000},
        {"-0,00004", 0},
        {"0,00005", 0},
        {"0,00015", 2},
        {"0,000050000000000000001", 1},
        {"-0,00015", -2},
        {"1,99995", 2'0000},
        {"0,000049999999999999999999", 0},
        {"00000000000000000000000000000007", 7'0000},
        {"922337203685477,5807", std::numeric_limits<std::int64_t>::max()},
        {"-922337203685477,5808", std::numeric_limits<std::int64_t>::min()},
    };
    for (const auto& d : dobre) {
        const auto kwota = CzytajKwote(u(d.tekst), Zapis::Dane);
        ASSERT_TRUE(kwota) << d.tekst;
        EXPECT_EQ(kwota->surowa(), d.kwota) << d.tekst;
    }
    for (const char* zly : {"",
                            " ",
                            "-",
                            "+",
                            ",",
                            "1,2,3",
                            "1.2,3",
                            "1 650",
                            "1\u00a0650",
                            "--1",
                            "1-",
                            "1e3",
                            "1E300",
                            "12zł",
                            "0x10",
                            "(5)",
                            "inf",
                            "nan",
                            "😀",
                            "١",
                            "922337203685477,5808",
                            "922337203685477,58075",
                            "999999999999999999999999999999"}) {
        EXPECT_EQ(CzytajKwote(u(zly), Zapis::Dane), std::nullopt) << zly;
        EXPECT_EQ(KwotaAlboZero(u(zly), Zapis::Dane), Waluta{}) << zly;
    }
}

TEST(Liczby, AmountsAsTheClerkTypesThem) {
    const struct {
        const char* tekst;
        std::int64_t kwota; ///< -1 for a text that is not understood
    } wpisane[] = {
        {"3 200,00", 3200'0000},
        {"3\u00a0200,00", 3200'0000},
        {"3\u202f200.00", 3200'0000},
        {"1 500,50 zł", 1500'5000},
        {"1.500,50", 1500'5000},
        {"12zł", 12'0000},
        {"12 ZŁ", 12'0000},
        {"5-", -5'0000},
        {"- 5", -5'0000},
        {"1 234,5- zł", -1234'5000},
        {"\u22125", -5'0000},
        {"1.234.567,8", 1234567'8000},
        {"1 234 567", 1234567'0000},
        {"0.500", 5000},
        {"1650.500", 1650'5000},
        {"1.50", 1'5000},
        {"1.5000", 1'5000},
        {"1.500", -1},
        {"-12.500 zł", -1},
        {"1.500.000", -1},
        {"1 500.000", -1},
        {"1 50,00", -1},
        {"1500 500", -1},
        {"1 500 50", -1},
        {" ,5 0", -1},
        {"1 500.500,00", -1},
        {"1..500,00", -1},
        {".500,00", -1},
        {"1,500.00", -1},
        {"1,2,3", -1},
        {"-5-", -1},
        {"zł", -1},
        {"5 zł zł", -1},
    };
    for (const auto& w : wpisane) {
        const auto kwota = CzytajKwote(u(w.tekst));
        EXPECT_EQ(kwota ? kwota->surowa() : -1, w.kwota) << w.tekst;
    }
}

TEST(Liczby, WholeNumbers) {
    EXPECT_EQ(CzytajLiczbe(u(" 30 "), 0, 30), 30);
    EXPECT_EQ(CzytajLiczbe(u("-5"), -5, 5), -5);
    EXPECT_EQ(CzytajLiczbe(u("-9223372036854775808"), std::numeric_limits<qint64>::min(), 0),
              std::numeric_limits<qint64>::min());
    for (const char* zla : {"", "-", "31", "-1", "1,0", "1.", "1e1", "1 2", "99999999999999999999", "x"}) {
        EXPECT_EQ(CzytajLiczbe(u(zla), 0, 30), std::nullopt) << zla;
        EXPECT_EQ(LiczbaAlboZero(u(zla), 0, 30), 0) << zla;
    }
    EXPECT_EQ(LiczbaAlboZero(u("7"), 0, 30), 7);
    EXPECT_EQ(FormatNumeru(7) + FormatNumeru(1234), u("0071234"));
}

TEST(Liczby, TheFormulaFormTakesACommaAndAnExponent) {
    const struct {
        const char* tekst;
        std::int64_t kwota;
    } dobre[] = {{"1E3", 1000'0000}, {"1,5E-04", 2}, {"2e+2", 200'0000},
                 {" 7 ", 7'0000},    {"1E-400", 0},  {"0E99999999999999999999", 0}};
    for (const auto& d : dobre) {
        const auto liczba = RozbierzLiczbe(u(d.tekst), Zapis::Wzor);
        ASSERT_TRUE(liczba) << d.tekst;
        EXPECT_EQ(liczba->naKwote().surowa(), d.kwota) << d.tekst;
    }
    EXPECT_THROW((void)RozbierzLiczbe(u("1E99999999999999999999"), Zapis::Wzor)->naKwote(), Przepelnienie);
    for (const char* zly : {"1.5", "1E", "1E+", "E5", "1E1,5", "1,5,"})
        EXPECT_FALSE(RozbierzLiczbe(u(zly), Zapis::Wzor)) << zly;
}

} // namespace

} // namespace tornel::testy
