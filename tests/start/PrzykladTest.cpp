// The example firm shows what it promises, and its payroll is right to the grosz.
#include "start/Przyklad.h"
#include "common/Blad.h"
#include "personnel/Kalendarz.h"
#include "personnel/Urlopy.h"
#include "personnel/Zwolnienia.h"
#include "rules/Stale.h"
#include "start/Rozruch.h"
#include "store/TabelaCsv.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include <array>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace tornel::testy {

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
// off. 2, sick on 27 days of February at 55,89 and 80% and on 18 of March at 40,46, of which the insurer pays
// the last 10. 12: 5 days of vacation at 36,77, for which the base salary shrinks from 760,00 to 570,00.
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
     2,
     "B",
     {"1561,97", "34,62", "23,06", "8,69", "121,54", "1374,06", "115,91", "261,06", "36,35", "115,91",
      "108,80", "1254,39", "8,69", "0,28", "34,62", "5,75"}},
    {3,
     2,
     "B",
     {"1506,62", "90,18", "60,06", "22,64", "121,54", "1212,20", "78,28", "230,28", "36,35", "78,28",
      "115,60", "799,63", "22,64", "0,74", "90,18", "14,97"}},
    {2,
     12,
     "B",
     {"753,85", "73,58", "49,00", "18,47", "97,23", "515,57", "47,49", "98,04", "36,35", "47,49", "14,20",
      "401,11", "18,47", "0,60", "73,58", "12,21"}},
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
    EXPECT_EQ(miesiace.join(QLatin1Char(' ')), QStringLiteral("10T11 11T11 12T11 01T11 02T11 03N11"));

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
    ustaw(s, 3, 2, "B");
    EXPECT_EQ(s.rsPLA.liczba(PLA("DNI_L4_PR")), 8) << "the rest of 35";
    EXPECT_EQ(s.rsPLA.liczba(PLA("DNI_L4_ZUS")), 10);
    EXPECT_EQ(s.rsPLD.data(schemat::SOD(12)), QDate(2001, 3, 9));
    ustaw(s, 3, 6, "B");
    EXPECT_EQ(FormatKwoty(s.rsPLS.kwota(schemat::SP(6))), QStringLiteral("78,54"))
        << "5,5 h at 9,52 and a half";
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
        if (dp.tekst(PRACDP("obywatel")) != u"polskie") {
            EXPECT_EQ(pesel, QString());
            continue;
        }
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

TEST_F(PrzykladTest, CalendarAndAbsencesAgree) {
    using schemat::URL;
    using schemat::ZW;
    UtworzPrzyklad(plik("a.mdb"), 200, 0);
    RozmowaSkrypt rozmowa;
    Program program(plik("a.mdb"), folder_.path(), rozmowa);
    const Kalendarz kalendarz(program.otoczenie());
    ASSERT_EQ(kalendarz.miesiace(kKalendarzOgolny).size(), 15) << "2001 and the quarter before";
    EXPECT_EQ(kalendarz.dni({0, 2001, 6}).value()[14], DniKalendarza::Wolny) << "Corpus Christi";

    RejestrUrlopow urlopy(program.otoczenie());
    RejestrZwolnien zwolnienia(program.otoczenie());
    QHash<qint64, QList<ZakresDat>> zajete;
    const auto sprawdz = [&](Recordset& rs, const TabelaDef& t) {
        const qint64 prcId = rs.liczba(t.nr(0));
        const ZakresDat zakres{rs.data(t.nr(t.numer("Data"))), rs.data(t.nr(t.numer("data_do")))};
        EXPECT_TRUE(zakres.poprawny()) << prcId;
        for (const ZakresDat& inny : zajete[prcId]) EXPECT_FALSE(zakres.maWspolnyDzien(inny)) << prcId;
        zajete[prcId].append(zakres);
        EXPECT_EQ(rs.tekst(t.nr(1)) + u' ' + rs.tekst(t.nr(2)),
                  Pracownicy(program.otoczenie()).nazwisko(prcId));
        return zakres;
    };
    bool przezMiesiac = false;
    for (Recordset rs = urlopy.wiersze({}); !rs.EOF_(); rs.MoveNext()) {
        const ZakresDat z = sprawdz(rs, URL);
        przezMiesiac |= z.od.month() != z.dokad.month();
        qint64 dni = 0;
        for (QDate d = z.od; d <= z.dokad; d = d.addDays(1))
            dni += kalendarz.dni({0, d.year(), d.month()}).value()[d.day()] == DniKalendarza::Roboczy;
        EXPECT_EQ(rs.liczba(URL("il_dni")), dni) << rs.liczba(URL("prc_id"));
    }
    EXPECT_TRUE(przezMiesiac);
    QHash<qint64, qint64> chorobowe;
    for (Recordset rs = zwolnienia.wiersze({}); !rs.EOF_(); rs.MoveNext())
        chorobowe[rs.liczba(ZW("prc_id"))] += sprawdz(rs, ZW).dni();
    EXPECT_GT(chorobowe[2], program.otoczenie().stale.L4Pracod) << "past what the employer pays";
    int wygenerowani = 0;
    for (auto i = zajete.keyBegin(); i != zajete.keyEnd(); ++i) wygenerowani += *i > kPracownikowPrzykladu;
    EXPECT_NEAR(wygenerowani, 19, 3) << "about one in ten";
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

} // namespace tornel::testy
