// The attendance card: what a day is when several things are said of it, and whose calendar tells it.
#include "personnel/KartaEwidencji.h"
#include "personnel/Kalendarz.h"
#include "store/Sesja.h"
#include "wsparcie/BazaTestowa.h"

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using schemat::PRACPR;
using schemat::URL;
using schemat::ZW;

class KartaEwidencjiTest : public BazaTestowa {
protected:
    void SetUp() override {
        dodajPracownika(7);
        for (const int mies : {1, 2, 3}) (void)Kalendarz(otoczenie()).Nowy_dniwolne({0, 2001, mies});
    }
    void urlop(QDate od, QDate dokad, int rodzaj) {
        Recordset rs(URL);
        rs.Open(sesja().cnPlace);
        rs.AddNewZero(7);
        rs.ustaw(URL("Data"), od);
        rs.ustaw(URL("data_do"), dokad);
        rs.ustaw(URL("Rodzaj"), rodzaj);
        rs.UpdateBatch(u"Dane testu");
    }
    void zwolnienie(QDate od, QDate dokad) {
        Recordset rs(ZW);
        rs.Open(sesja().cnPlace);
        rs.AddNewZero(7);
        rs.ustaw(ZW("Data"), od);
        rs.ustaw(ZW("data_do"), dokad);
        rs.UpdateBatch(u"Dane testu");
    }
    /// The symbols of a month, one after the other.
    QString symbole(int mies, int rok = 2001) {
        const KartaRoku karta = EwidencjaCzasuPracy(otoczenie(), rok).karta(7);
        QString wynik;
        for (const DzienPracy d : karta.miesiac(mies).dni) wynik += SymbolDnia(stale(), d).leftJustified(1);
        return wynik;
    }
};

TEST_F(KartaEwidencjiTest, SicknessGoesBeforeAFreeDayWhichGoesBeforeAVacation) {
    // January 2001 begins on a Monday.
    EXPECT_EQ(symbole(1), u"     ww     ww     ww     ww   "_s);
    urlop({2001, 1, 4}, {2001, 1, 9}, 0);
    EXPECT_EQ(symbole(1), u"   WWwwWW   ww     ww     ww   "_s);
    zwolnienie({2001, 1, 7}, {2001, 1, 8});
    EXPECT_EQ(symbole(1), u"   WWwLLW   ww     ww     ww   "_s);
    const int dni[] = {15, 16, 17, 18, 19, 22};
    for (int rodzaj = 1; rodzaj <= 6; ++rodzaj)
        urlop({2001, 1, dni[rodzaj - 1]}, {2001, 1, dni[rodzaj - 1]}, rodzaj);
    EXPECT_EQ(symbole(1), u"   WWwLLW   wwBOICPww?    ww   "_s);
    const KartaRoku karta = EwidencjaCzasuPracy(otoczenie(), 2001).karta(7);
    EXPECT_EQ(karta.miesiac(1).ile(DzienPracy::L4), 2);
    EXPECT_EQ(karta.ile(DzienPracy::Wypoczynkowy), 3);
    int razem = 0;
    for (int i = 0; i < kRodzajowDni; ++i) razem += karta.ile(static_cast<DzienPracy>(i));
    EXPECT_EQ(razem, 365);
}

TEST_F(KartaEwidencjiTest, ALeaveOverTheTurnOfTheYearIsCutToIt) {
    zwolnienie({2000, 12, 28}, {2001, 1, 2});
    EXPECT_EQ(symbole(1).left(7), u"LL   ww"_s);
    EXPECT_EQ(symbole(12, 2000).right(4), u"LLLL"_s);
    urlop({}, {2001, 1, 5}, 0); // without a start no day belongs to it
    EXPECT_EQ(symbole(1).left(7), u"LL   ww"_s);
}

TEST_F(KartaEwidencjiTest, TheOwnCalendarCountsOnlyWhenItIsWantedAndHasTheMonth) {
    (void)Kalendarz(otoczenie()).Nowy_dniwolne({7, 2001, 2});
    TrescMiesiaca tresc = *Kalendarz(otoczenie()).WypiszDni({7, 2001, 2});
    tresc.dni.ustaw(1, DniKalendarza::Wolny);
    Kalendarz(otoczenie()).ZapiszDni({7, 2001, 2}, tresc);
    EXPECT_EQ(symbole(2).left(5), u"  ww "_s);
    stale().OsobHarPrac = true;
    EXPECT_EQ(symbole(2).left(5), u"w ww "_s);
    EXPECT_EQ(symbole(3).left(5), u"  ww "_s);    // the general one has it
    EXPECT_EQ(symbole(4).left(8), u"w     ww"_s); // nobody has it: Saturdays and Sundays
    EXPECT_EQ(symbole(2).right(4), u" ---"_s);
}

TEST_F(KartaEwidencjiTest, DaysBeforeAndAfterEmploymentAreNone) {
    ASSERT_TRUE(sesja().UstawPracownika(7));
    sesja().rsPRACPR.ustaw(PRACPR("data_zatr"), QDate(2001, 1, 3));
    sesja().rsPRACPR.ustaw(PRACPR("data_zwoln"), QDate(2001, 2, 1));
    sesja().rsPRACPR.UpdateBatch(u"Dane testu");
    zwolnienie({2001, 1, 1}, {2001, 1, 4});
    EXPECT_EQ(symbole(1).left(7), u"--LL ww"_s);
    EXPECT_EQ(symbole(2).left(3), u" --"_s);
    EXPECT_EQ(symbole(12), QString(31, u'-'));
    // Who was employed in a period: also on its first or last day alone.
    const Pracownicy p(otoczenie());
    EXPECT_EQ(p.zatrudnieni({2001, 2, 1}, {2001, 2, 28}), QList<qint64>{7});
    EXPECT_EQ(p.zatrudnieni({2001, 1, 1}, {2001, 1, 3}), QList<qint64>{7});
    EXPECT_EQ(p.zatrudnieni({2001, 2, 2}, {2001, 2, 28}), QList<qint64>());
    EXPECT_EQ(p.zatrudnieni({2001, 1, 1}, {2001, 1, 2}), QList<qint64>());
}

} // namespace

} // namespace tornel::testy
