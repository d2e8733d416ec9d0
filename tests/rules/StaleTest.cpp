#include "common/Blad.h"
#include "rules/Konfiguracja.h"
#include "rules/UstawianieStalych.h"
#include "store/Sesja.h"
#include "store/Struktura.h"
#include "wsparcie/Przestrzen.h"
#include <gtest/gtest.h>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <set>

namespace tornel::testy {

namespace {

const QString kFolder = QStringLiteral("/opt/tornel");

class StaleTest : public testing::Test {
protected:
    void SetUp() override {
        UtworzBaze(plik);
        uruchom();
    }
    /// A program start: a new session over the same file, with nothing in memory.
    void uruchom() {
        sesja.reset();
        sesja = std::make_unique<Sesja>(plik);
        stale = {};
        WczytajKonfiguracje(*sesja, stale, kFolder);
    }
    /// What lies in the file, past the program's handle.
    QString wPliku(int num) {
        Recordset rs(schemat::KON);
        rs.Open(sesja->cnPlace);
        return rs.Znajdz(num) ? rs.tekst(schemat::KON("Wart")) : QStringLiteral("brak rekordu");
    }
    void wpisz(int num, const QString& tekst) {
        ASSERT_TRUE(sesja->rsKON.Znajdz(num));
        sesja->rsKON.ustaw(schemat::KON("Wart"), tekst);
        sesja->rsKON.UpdateBatch(u"Dane testu");
    }

    QTemporaryDir folder;
    QString plik = folder.filePath(QStringLiteral("Tornel.mdb"));
    std::unique_ptr<Sesja> sesja;
    Stale stale;
};

std::string utf8(const QString& tekst) { return tekst.toStdString(); }

TEST(TabelaStalychTest, KazdaStalaMaWlasnyNumerNazweIMiejsce) {
    std::set<int> numery;
    std::set<QString> nazwy;
    Stale stale;
    for (const StalaDef& stala : tabelaStalych()) {
        const auto opis = utf8(stala.nazwa.toString());
        EXPECT_TRUE(numery.insert(stala.num).second) << stala.num;
        EXPECT_TRUE(nazwy.insert(stala.nazwa.toString()).second) << opis;
        // A value set through one row must be seen by no other row.
        const Stale przed = stale;
        const Warianty zmien{
            [](int& pole) { ++pole; },
            [](bool& pole) { pole = !pole; },
            [](Waluta& pole) { pole += Waluta::zlotych(1); },
            [](QDate& pole) { pole = QDate(2001, 7, 1); },
            [](QString& pole) { pole += u'x'; },
            []<std::size_t N>(std::array<int, N>& pole) { pole.fill(7); },
            []<std::size_t N>(std::array<QString, N>& pole) { pole.fill(QStringLiteral("x")); },
        };
        zPolemStalej(stala, stale, zmien);
        EXPECT_NE(stale, przed) << opis;
        for (const StalaDef& inna : tabelaStalych()) {
            if (inna.num == stala.num) continue;
            EXPECT_EQ(TekstWartosci(inna, stale), TekstWartosci(inna, przed)) << opis;
        }
    }
    EXPECT_EQ(numery.size(), 209U);
}

TEST_F(StaleTest, PustaTabelaDostajeWersjeIWartosciDomyslne) {
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^\\d+\\.\\d+ \\(\\d+\\)$")).match(wPliku(0)).hasMatch())
        << utf8(wPliku(0));
    EXPECT_EQ(sesja->rsKON.RecordCount(), static_cast<int>(tabelaStalych().size()) + 1);
    // Defaults are stored as they stand, without the money format.
    EXPECT_EQ(utf8(wPliku(63)), "436,2");
    EXPECT_EQ(utf8(wPliku(40)), "29624");
    EXPECT_EQ(utf8(wPliku(210)), "");
    EXPECT_EQ(utf8(wPliku(701)), utf8(kFolder));

    EXPECT_EQ(stale.RKwPZ, Waluta::zSurowej(4362000));
    EXPECT_EQ(stale.PFC, Waluta::zSurowej(24500));
    EXPECT_EQ(stale.L4Pracod, 35);
    EXPECT_TRUE(stale.AktRejPrzepDni);
    EXPECT_FALSE(stale.OsobHarPrac);
    EXPECT_EQ(utf8(stale.WzorPIT40G3), "14120,96+((DOCH-53248)*0,4)");
    EXPECT_EQ(utf8(stale.Symbol[9]), "?");
    EXPECT_FALSE(stale.PITOkresOd.isValid());
}

TEST_F(StaleTest, UsunietyRekordWracaAWersjaNie) {
    stale.PlZas = 9;
    ZapiszKonfiguracje(*sesja, stale);
    for (const int num : {0, 1}) {
        ASSERT_TRUE(sesja->rsKON.Znajdz(num));
        sesja->rsKON.Delete();
    }
    sesja->rsKON.UpdateBatch(u"Dane testu");
    uruchom();
    EXPECT_EQ(stale.PlZas, 1);
    EXPECT_EQ(utf8(wPliku(1)), "1");
    EXPECT_EQ(utf8(wPliku(0)), "brak rekordu") << "the stamp belongs to a table found empty";
}

TEST_F(StaleTest, KazdyRodzajWracaPoPonownymUruchomieniu) {
    stale.ZaokZal = -3;
    stale.AktRejNadg = true;
    stale.PFE = Waluta::zSurowej(97650); // 9,765
    stale.PITKuz1 = Waluta::zSurowej(-12345600);
    stale.PITOkresOd = QDate(2001, 2, 3);
    stale.NazwaUzCz1 = QStringLiteral("  Spółka \"O'Hara\" i żółć ");
    stale.Symbol[1] = QStringLiteral("ż");
    stale.L4Prd = {10, 11, 0, 13};
    for (std::size_t i = 0; i < stale.SklSrL4.size(); ++i) stale.SklSrL4[i] = static_cast<int>(i) + 11;
    stale.NGNazwaS = {QStringLiteral("dzień"), QString(), QStringLiteral(" noc ")};
    ZapiszKonfiguracje(*sesja, stale);
    const Stale zapisane = stale;
    uruchom();

    EXPECT_EQ(utf8(wPliku(20)), "9,77") << "what stands past the second decimal is lost";
    EXPECT_EQ(utf8(wPliku(529)), "-1234,56");
    EXPECT_EQ(utf8(wPliku(527)), "03-02-2001");
    EXPECT_EQ(utf8(wPliku(250)), "True");
    EXPECT_EQ(utf8(wPliku(104)), "10,11,0,13,");
    EXPECT_EQ(utf8(wPliku(253)), "dzień,,noc,,,,,");
    EXPECT_EQ(wPliku(107).size(), kDlugoscStalej) << "twenty two-digit numbers fit exactly";

    EXPECT_EQ(stale.PFE, Waluta::zSurowej(97700));
    EXPECT_EQ(utf8(stale.NazwaUzCz1), "Spółka \"O'Hara\" i żółć");
    EXPECT_EQ(utf8(stale.NGNazwaS[2]), "noc");
    EXPECT_EQ(stale.SklSrL4, zapisane.SklSrL4);
    EXPECT_EQ(stale.L4Prd, zapisane.L4Prd);
    EXPECT_EQ(stale.ZaokZal, -3);
    EXPECT_EQ(stale.PITOkresOd, zapisane.PITOkresOd);
    EXPECT_EQ(stale.Symbol, zapisane.Symbol);
}

TEST_F(StaleTest, GranicePrzechowywaniaSaZachowane) {
    stale.RowNGRob = {QStringLiteral("STC*1,5"), QStringLiteral("STC*2"), QString()};
    for (QString& rownanie : stale.RowNGGr) rownanie = QStringLiteral("STC*15/10"); // 7 * 10 characters
    stale.MiastoDok = QString(61, u'ą');
    ZapiszKonfiguracje(*sesja, stale);
    uruchom();
    EXPECT_EQ(utf8(stale.RowNGRob[0]), "STC*1");
    EXPECT_EQ(utf8(stale.RowNGRob[1]), "5");
    EXPECT_EQ(utf8(stale.RowNGRob[2]), "STC*2");
    EXPECT_EQ(utf8(stale.RowNGGr[5]), "STC*15/10");
    EXPECT_EQ(utf8(stale.RowNGGr[6]), "");
    EXPECT_EQ(stale.MiastoDok, QString(60, u'ą'));
}

TEST_F(StaleTest, UszkodzonyTekstDajeWartoscPusta) {
    const std::pair<int, QString> uszkodzone[] = {
        {1, QStringLiteral("jeden")},         {2, QStringLiteral("70000")},
        {40, QStringLiteral("12 zł")},        {41, QStringLiteral("1,2,3")},
        {527, QStringLiteral("30-02-2001")},  {67, QStringLiteral("może")},
        {68, QStringLiteral(" true ")},       {69, QStringLiteral("-1")},
        {104, QStringLiteral("5,x,7,8,9,9")},
    };
    for (const auto& [num, tekst] : uszkodzone) wpisz(num, tekst);
    uruchom();
    EXPECT_EQ(stale.PlZas, 0);
    EXPECT_EQ(stale.PremPr, 0);
    EXPECT_TRUE(stale.GranicaG12.zero());
    EXPECT_TRUE(stale.GranicaG23.zero());
    EXPECT_FALSE(stale.PITOkresOd.isValid());
    EXPECT_FALSE(stale.AktRejPrzepDni);
    EXPECT_TRUE(stale.AktSystAk);
    EXPECT_TRUE(stale.AktOpWieluList) << "a number reads as a boolean too";
    EXPECT_EQ(stale.L4Prd, (Stale::Numery<4>{5, 0, 7, 8}));
}

TEST_F(StaleTest, ElementyBezKawalkaZostajaJakByly) {
    stale.L4ZUS = {1, 2, 3, 4};
    RozbijTablice(QStringLiteral("8,9"), stale.L4ZUS);
    EXPECT_EQ(stale.L4ZUS, (Stale::Numery<4>{8, 9, 3, 4}));
}

TEST_F(StaleTest, UstawionaStalaDzialaOdRazuIPoUruchomieniu) {
    struct Przypadek {
        int num;
        QString tekst;
        std::string zapisane;
    };
    const Przypadek przypadki[] = {
        {20, QStringLiteral("9,765"), "9,77"},
        {60, QStringLiteral(" 2 "), "2"},
        {67, QStringLiteral("n"), "False"},
        {527, QStringLiteral("2001-07-31"), "31-07-2001"},
        {527, QString(), ""},
        {104, QStringLiteral("5, ,7"), "5,0,7,0,"},
        {104, QString(), "0,0,0,0,"},
        {108, QStringLiteral("ld1+5"), "LD1+5"},
        {252, QStringLiteral("6,7"), "6,7,0,0,0,0,0,"},
        {254, QStringLiteral("stc*2,,stc"), "STC*2,,STC,"},
        {503, QStringLiteral("True"), "True"},
        {662, QString(70, u'a'), std::string(60, 'a')},
    };
    for (const auto& [num, tekst, zapisane] : przypadki) {
        UstawStala(*sesja, stale, num, tekst);
        EXPECT_EQ(utf8(wPliku(num)), zapisane) << num;
        EXPECT_EQ(utf8(PodajStala(*sesja, stale, num)), zapisane) << num;
    }
    const Stale wPamieci = stale;
    uruchom();
    EXPECT_EQ(stale, wPamieci);
}

TEST_F(StaleTest, ZleWartosciSaOdrzucaneIniczegoNieZmieniaja) {
    UstawStala(*sesja, stale, 252, QStringLiteral("4"));
    const std::pair<int, QString> zle[] = {
        {0, QStringLiteral("2.0 (0)")},  {998, QStringLiteral("x")},
        {20, QStringLiteral("dużo")},    {20, QString()},
        {60, QStringLiteral("3")},       {1, QStringLiteral("31")},
        {1, QStringLiteral("-1")},       {1, QStringLiteral("1,5")},
        {101, QStringLiteral("32768")},  {106, QStringLiteral("4")},
        {67, QStringLiteral("może")},    {527, QStringLiteral("29-02-2001")},
        {104, QStringLiteral("1,2,31")}, {104, QStringLiteral("1,2,3,4,5")},
        {212, QStringLiteral("LL")},     {1, QStringLiteral("2")}, // held by the percentage bonus
        {3, QStringLiteral("4")},                                  // held by overtime
        {252, QStringLiteral("5,5")},    {254, QStringLiteral("STC*1,5,STC,STC")},
    };
    const Stale przed = stale;
    for (const auto& [num, tekst] : zle) {
        EXPECT_THROW(UstawStala(*sesja, stale, num, tekst), Blad) << num << ' ' << utf8(tekst);
        EXPECT_EQ(stale, przed) << num;
    }
    uruchom();
    EXPECT_EQ(stale, przed);
    EXPECT_THROW((void)PodajStala(*sesja, stale, 998), Blad);
    EXPECT_TRUE(TekstStalej(*sesja, 998).isEmpty());
}

TEST_F(StaleTest, NumerSkladnikaMozeStacWSwoimPolu) {
    EXPECT_TRUE(NumerSkladnikaWolny(stale, 1, 0, stale.PlZas));
    EXPECT_FALSE(NumerSkladnikaWolny(stale, 252, 0, stale.PlZas));
    EXPECT_TRUE(NumerSkladnikaWolny(stale, 252, 0, 0)) << "0 stands for none and may repeat";
    UstawStala(*sesja, stale, 104, QStringLiteral("1,1")); // the arrays of sick pay are outside the rule
    EXPECT_EQ(stale.L4Prd[1], 1);
}

} // namespace

} // namespace tornel::testy
