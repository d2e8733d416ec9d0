#include "rules/SkladnikiPlac.h"
#include "common/Blad.h"
#include "store/Sesja.h"
#include "store/Struktura.h"
#include "wsparcie/Przestrzen.h"
#include <gtest/gtest.h>
#include <QTemporaryDir>

namespace tornel::testy {

namespace {

class SkladnikiPlacTest : public testing::Test {
protected:
    void SetUp() override {
        UtworzBaze(plik);
        sesja = std::make_unique<Sesja>(plik);
        for (int nr = 1; nr <= kDodatnich + kUjemnych; ++nr) {
            sesja->rsSZ_PL.AddNew();
            sesja->rsSZ_PL.ustaw(schemat::SZ_PL("NR"), nr);
            sesja->rsSZ_PL.ustaw(schemat::SZ_PL("naz_sk"), QStringLiteral("Składnik %1").arg(nr));
        }
        // Only "T", in either case, means yes; the ends of both ranges carry a flag.
        ustaw(1, schemat::SZ_PL("Akt"), QStringLiteral("T"));
        ustaw(30, schemat::SZ_PL("Akt"), QStringLiteral("t"));
        ustaw(2, schemat::SZ_PL("Akt"), QStringLiteral("N"));
        ustaw(3, schemat::SZ_PL("Akt"), QStringLiteral("1"));
        ustaw(30, schemat::SZ_PL("Brutto"), QStringLiteral("T"));
        ustaw(5, schemat::SZ_PL("Zus"), QStringLiteral("T"));
        ustaw(6, schemat::SZ_PL("Ubzdr"), QStringLiteral("T"));
        ustaw(31, schemat::SZ_PL("Zus"), QStringLiteral("T"));
        ustaw(45, schemat::SZ_PL("Akt"), QStringLiteral("T"));
        ustaw(7, schemat::SZ_PL("KodZUS"), QStringLiteral("11"));
        ustaw(7, schemat::SZ_PL("kodswprz"), QStringLiteral("331"));
        sesja->rsSZ_PL.UpdateBatch(u"Dane testu");
        katalog.WczytajSkladnikiPlac(*sesja);

        sesja->OtworzNaglowki();
        sesja->rsPLACE.AddNewZero();
        sesja->rsPLACE.ustaw(schemat::PLACE("Rok"), QStringLiteral("2001"));
        sesja->rsPLACE.ustaw(schemat::PLACE("Mies"), QStringLiteral("07"));
    }
    void ustaw(int nr, Kolumna kolumna, const QString& tekst) {
        ASSERT_TRUE(sesja->rsSZ_PL.Znajdz(nr));
        sesja->rsSZ_PL.ustaw(kolumna, tekst);
    }

    QTemporaryDir folder;
    QString plik = folder.filePath(QStringLiteral("Tornel.mdb"));
    std::unique_ptr<Sesja> sesja;
    SkladnikiPlac katalog;
};

TEST_F(SkladnikiPlacTest, KatalogWchodziDoPamieci) {
    EXPECT_TRUE(katalog.SkAkt(1));
    EXPECT_TRUE(katalog.SkAkt(30));
    EXPECT_FALSE(katalog.SkAkt(2));
    EXPECT_FALSE(katalog.SkAkt(3));
    EXPECT_TRUE(katalog.dodatni(30).brutto);
    EXPECT_TRUE(katalog.dodatni(5).zus);
    EXPECT_TRUE(katalog.dodatni(6).ubzdr);
    EXPECT_TRUE(katalog.ujemny(1).zus);
    EXPECT_TRUE(katalog.SkUAkt(15));
    EXPECT_FALSE(katalog.ujemny(15).brutto);
    EXPECT_EQ(katalog.SkUNazwa(15), QStringLiteral("Składnik 45"));
    EXPECT_EQ(katalog.SkNazwa(7), QStringLiteral("Składnik 7"));
    EXPECT_EQ(katalog.SkKodZUS(7), QStringLiteral("11"));
    EXPECT_EQ(katalog.dodatni(7).kodSwPrz, QStringLiteral("331"));
    for (const int n : {0, 31}) EXPECT_THROW((void)katalog.SkAkt(n), Blad) << n;
    for (const int n : {0, 16}) EXPECT_THROW((void)katalog.SkUAkt(n), Blad) << n;
}

TEST_F(SkladnikiPlacTest, MaskiWracajaZMiesiaca) {
    const Maski maski = katalog.maski();
    EXPECT_EQ(maski.akt_sp, 1U | 1U << 29);
    EXPECT_EQ(maski.br_sp, 1U << 29);
    EXPECT_EQ(maski.zus_sp, 1U << 4);
    EXPECT_EQ(maski.ubzdr_sp, 1U << 5);
    EXPECT_EQ(maski.akt_sm, 1U << 14);
    EXPECT_EQ(maski.zus_sm, 1U);
    EXPECT_EQ(maski.br_sm, 0U);

    maski.naMiesiac(sesja->rsPLACE);
    sesja->rsPLACE.UpdateBatch(u"Dane testu");
    sesja->rsPLACE.Requery();
    EXPECT_EQ(Maski::zMiesiaca(sesja->rsPLACE), maski);
}

TEST_F(SkladnikiPlacTest, MiesiacTrzymaSwojeZnakiPoZmianieKatalogu) {
    katalog.maski().naMiesiac(sesja->rsPLACE);
    ustaw(1, schemat::SZ_PL("Akt"), QStringLiteral("N"));
    ustaw(2, schemat::SZ_PL("Akt"), QStringLiteral("T"));
    ustaw(30, schemat::SZ_PL("Brutto"), QStringLiteral("N"));
    ustaw(30, schemat::SZ_PL("naz_sk"), QStringLiteral("Nowa nazwa"));
    katalog.WczytajSkladnikiPlac(*sesja);

    // A print of the month: its own flags alone, the catalogue's names.
    katalog.WczytajSkladnikiMiesiaca(*sesja);
    EXPECT_TRUE(katalog.SkAkt(1));
    EXPECT_FALSE(katalog.SkAkt(2));
    EXPECT_TRUE(katalog.dodatni(30).brutto);
    EXPECT_TRUE(katalog.SkUAkt(15));
    EXPECT_EQ(katalog.SkNazwa(30), QStringLiteral("Nowa nazwa"));
}

TEST_F(SkladnikiPlacTest, BrakujacySkladnikJestNazwany) {
    ASSERT_TRUE(sesja->rsSZ_PL.Znajdz(45));
    sesja->rsSZ_PL.Delete();
    try {
        katalog.WczytajSkladnikiPlac(*sesja);
        FAIL() << "a missing record must not pass";
    } catch (const Blad& blad) {
        EXPECT_TRUE(blad.komunikat().contains(QStringLiteral("nr 45"))) << blad.what();
    }
    EXPECT_TRUE(katalog.SkAkt(1)) << "the catalogue stays as it was";
}

} // namespace

} // namespace tornel::testy
