// The example firm shows what it promises, and its payroll is right to the grosz.
#include "app/Przyklad.h"
#include "app/Rozruch.h"
#include "common/Blad.h"
#include "store/TabelaCsv.h"
#include "wsparcie/RozmowaSkrypt.h"
#include <array>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using schemat::PLA;
using schemat::PLB;
using schemat::PLS;
using schemat::PRACDP;
using schemat::PRACPR;

namespace {

class PrzykladTest : public testing::Test {
protected:
    [[nodiscard]] QString plik(const char* nazwa) const {
        return folder_.filePath(QString::fromLatin1(nazwa));
    }
    /// Puts the month's handles on the employee's row of the list.
    static void ustaw(Sesja& sesja, int mies, int prcId, const char* lista) {
        int wynik = 0;
        sesja.OtworzMiesiac(2001, mies, wynik);
        ASSERT_EQ(wynik, 0);
        ASSERT_TRUE(sesja.rsPLA.Znajdz(prcId, QString::fromLatin1(lista)));
        ASSERT_TRUE(sesja.UstawPartnerow());
    }
    static QByteArray calosc(const QString& sciezka) {
        Polaczenie polaczenie(sciezka, Polaczenie::Sposob::Istniejaca);
        QByteArray wynik;
        for (const TabelaDef* t : schemat::Tabele)
            wynik += EksportujTabele(polaczenie, {t, QString::fromLatin1(t->nazwa.data())});
        return wynik + EksportujTabele(polaczenie, ZnajdzTabele(polaczenie, QStringLiteral("PLA200102")));
    }

    QTemporaryDir folder_;
};

/// One row of the payroll, every amount in zł as worked out with pencil and paper.
struct Wiersz {
    int mies;
    int prcId;
    const char* lista;
    std::array<const char*, 16> kwoty;
};

constexpr std::array kKolumny{
    PLA("BRUTTO"),    PLB("FEPRC"),    PLB("FRPRC"), PLB("FCPRC"), PLA("KUP"),     PLA("NETTO"),
    PLB("UBZDR_NAL"), PLA("POD_DOCH"), PLA("PPD"),   PLB("UBZDR"), PLA("PODATEK"), PLA("DO_WYPLATY"),
    PLA("SKL_FP"),    PLA("SKL_FGSP"), PLB("FEPRD"), PLB("FWPRD"),
};

// 2: 1650,00 and 15% and 165,00 for seniority, 16,50 to the union. 4: the tax is less than the health
// insurance. 3: 12800,00 a month, past 29624,00 in March. 7: group 2 from the first zloty, no tax credit.
// 8: 100,00 to the pension plan, which leaves the base as it is. 11: 85,20 of family benefit, 169,00 taken
// off.
constexpr Wiersz kWiersze[] = {
    {1,
     2,
     "B",
     {"2062,50", "201,30", "134,06", "50,53", "121,54", "1555,07", "129,94", "295,45", "36,35", "129,94",
      "129,20", "1401,01", "50,53", "1,65", "201,30", "33,41"}},
    {1,
     4,
     "B",
     {"400,00", "39,04", "26,00", "9,80", "97,23", "227,93", "25,20", "43,32", "36,35", "6,97", "0,00",
      "318,19", "9,80", "0,32", "39,04", "6,48"}},
    {2,
     3,
     "A",
     {"12800,00", "1249,28", "832,00", "313,60", "97,23", "10307,89", "806,40", "1958,52", "36,35", "806,40",
      "1115,80", "8482,95", "313,60", "10,24", "1249,28", "207,36"}},
    {3,
     3,
     "A",
     {"12800,00", "1249,28", "832,00", "313,60", "97,23", "10307,89", "806,40", "3092,40", "36,35", "806,40",
      "2249,60", "7349,07", "313,60", "10,24", "1249,28", "207,36"}},
    {1,
     7,
     "A",
     {"3200,00", "312,32", "208,00", "78,40", "97,23", "2504,05", "201,60", "751,20", "0,00", "201,60",
      "549,60", "1850,08", "78,40", "2,56", "312,32", "51,84"}},
    {3,
     8,
     "A",
     {"3220,00", "314,27", "209,30", "78,89", "121,54", "2496,00", "202,86", "474,24", "36,35", "202,86",
      "235,00", "2149,65", "78,89", "2,58", "314,27", "52,16"}},
    {3,
     11,
     "B",
     {"2280,00", "222,53", "148,20", "55,86", "121,54", "1731,87", "143,64", "329,08", "36,35", "143,64",
      "149,10", "1476,88", "55,86", "1,82", "222,53", "36,94"}},
};

TEST_F(PrzykladTest, RowsAgreeWithTheCalculationByHand) {
    UtworzPrzyklad(plik("firma.mdb"));
    Sesja sesja(plik("firma.mdb"));
    for (const Wiersz& w : kWiersze) {
        SCOPED_TRACE(testing::Message() << "employee " << w.prcId << ", month " << w.mies);
        ustaw(sesja, w.mies, w.prcId, w.lista);
        for (std::size_t i = 0; i < kKolumny.size(); ++i)
            EXPECT_EQ(
                FormatKwoty((kKolumny[i].tabela == &PLA ? sesja.rsPLA : sesja.rsPLB).kwota(kKolumny[i])),
                QString::fromLatin1(w.kwoty[i]))
                << kKolumny[i].def().nazwa;
    }
}

TEST_F(PrzykladTest, ShowsWhatItPromises) {
    UtworzPrzyklad(plik("firma.mdb"));
    RozmowaSkrypt rozmowa;
    Program program(plik("firma.mdb"), folder_.path(), rozmowa);
    Sesja& s = program.sesja();
    EXPECT_TRUE(program.otoczenie().stale.AktOpWieluList);
    EXPECT_EQ(s.rsPRACDP.RecordCount(), 12);
    EXPECT_EQ(Pracownicy(program.otoczenie()).doWyboru(1).size(), 11) << "number 9 is dismissed";

    QStringList miesiace;
    s.OtworzNaglowki();
    for (s.rsPLACE.MoveFirst(); !s.rsPLACE.EOF_(); s.rsPLACE.MoveNext())
        miesiace += s.rsPLACE.tekst(schemat::PLACE("Mies")) + s.rsPLACE.tekst(schemat::PLACE("akc")) +
                    QString::number(s.rsPLACE.liczba(schemat::PLACE("il_wyplat")));
    EXPECT_EQ(miesiace.join(QLatin1Char(' ')), QStringLiteral("01T11 02T11 03N11"));

    const auto stawka = [&](int mies, int prcId) {
        ustaw(s, mies, prcId, prcId % 2 == 1 ? "A" : "B");
        return s.rsPLA.liczba(PLA("ST_PD"));
    };
    EXPECT_EQ(stawka(2, 3), 19);
    EXPECT_EQ(stawka(3, 3), 30);
    EXPECT_EQ(stawka(3, 5), 19) << "34500,00, but with doubled limits";
    EXPECT_EQ(s.rsPLA.kwota(PLA("PRZELEWEM")), s.rsPLA.kwota(PLA("DO_WYPLATY")));
    ustaw(s, 3, 8, "A");
    EXPECT_EQ(FormatKwoty(s.rsPLB.kwota(PLB("PPE"))), QStringLiteral("100,00"));
    ustaw(s, 3, 6, "B");
    EXPECT_TRUE(s.rsPLA.kwota(PLA("KUP")).zero() && s.rsPLA.kwota(PLA("PPD")).zero());
    EXPECT_TRUE(s.rsPLA.kwota(PLA("PRZELEWEM")).zero());
    EXPECT_EQ(s.rsPLA.liczba(PLA("ETAT2")), 4);
    ustaw(s, 2, 10, "A");
    EXPECT_EQ(s.rsPLD.data(schemat::SOD(1)), QDate(2001, 2, 1)) << "hired in February";
    EXPECT_FALSE(s.rsPLA.Znajdz(9)) << "gone since January";
    ustaw(s, 3, 11, "B");
    EXPECT_EQ(s.rsPLA.liczba(PLA("IL_Z_RODZ")), 2);
}

TEST_F(PrzykladTest, MoreEmployeesFollowTheSamePatternsAlwaysAlike) {
    UtworzPrzyklad(plik("a.mdb"), 200, 2);
    UtworzPrzyklad(plik("b.mdb"), 200, 2);
    UtworzPrzyklad(plik("mala.mdb"), 3, 0);
    EXPECT_EQ(calosc(plik("a.mdb")), calosc(plik("b.mdb")));
    EXPECT_EQ(QDir(folder_.path()).entryList({QStringLiteral("*.nowa*")}), QStringList())
        << "nothing left over";
    EXPECT_EQ(Sesja(plik("mala.mdb")).rsPRACDP.RecordCount(), 3);

    Sesja s(plik("a.mdb"));
    Recordset& dp = s.rsPRACDP;
    ASSERT_EQ(dp.RecordCount(), 200);
    for (dp.MoveFirst(); !dp.EOF_(); dp.MoveNext()) {
        SCOPED_TRACE(testing::Message() << "employee " << dp.liczba(PRACDP("prc_id")));
        ASSERT_TRUE(s.UstawPracownika(dp.liczba(PRACDP("prc_id"))));
        const QString pesel = dp.tekst(PRACDP("pesel"));
        ASSERT_EQ(pesel.size(), 11);
        EXPECT_EQ(pesel.left(6), dp.data(PRACDP("data_ur")).toString(QStringLiteral("yyMMdd")));
        EXPECT_EQ(pesel[9].digitValue() % 2 == 1, dp.tekst(PRACDP("plec")) == QStringLiteral("M"));
        int suma = pesel[10].digitValue();
        for (int i = 0; i < 10; ++i)
            suma += pesel[i].digitValue() * std::array{1, 3, 7, 9}[static_cast<std::size_t>(i % 4)];
        EXPECT_EQ(suma % 10, 0);
        EXPECT_GT(s.rsPRACPR.kwota(PRACPR("placa_zas")), Waluta{});
        EXPECT_FALSE(dp.tekst(PRACDP("Naz")).isEmpty() || dp.tekst(PRACDP("Imie_1")).isEmpty());
    }
}

TEST_F(PrzykladTest, RefusesNumbersOutOfRangeAndAnExistingFile) {
    for (const auto& [pracownikow, miesiecy] :
         {std::pair{0, 3}, {kNajwiecejPracownikow + 1, 0}, {12, 13}, {12, -1}}) {
        EXPECT_THROW(UtworzPrzyklad(plik("x.mdb"), pracownikow, miesiecy), Blad);
        EXPECT_FALSE(QFile::exists(plik("x.mdb")));
    }
    QFile zajety(plik("x.mdb"));
    ASSERT_TRUE(zajety.open(QIODevice::WriteOnly) && zajety.write("cudze") == 5 && zajety.flush());
    EXPECT_THROW(UtworzPrzyklad(plik("x.mdb")), Blad);
    EXPECT_EQ(zajety.size(), 5);
    EXPECT_THROW(UtworzPrzyklad(plik("brak/x.mdb")), Blad);
}

} // namespace
