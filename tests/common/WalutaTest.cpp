#include "common/Waluta.h"
#include "common/Blad.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <type_traits>

namespace tornel::testy {

namespace {

constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

Waluta w(std::int64_t surowa) { return Waluta::zSurowej(surowa); }

TEST(Waluta, RoundTakesATieToTheEvenNeighbour) {
    const struct {
        std::int64_t kwota;
        int miejsca;
        std::int64_t wynik;
    } przypadki[] = {
        {2'4999, 0, 2'0000},   {2'5000, 0, 2'0000},   {2'5001, 0, 3'0000},   {3'4999, 0, 3'0000},
        {3'5000, 0, 4'0000},   {-2'5000, 0, -2'0000}, {-2'5001, 0, -3'0000}, {-3'5000, 0, -4'0000},
        {1'0499, 1, 1'0000},   {1'0500, 1, 1'0000},   {1'1500, 1, 1'2000},   {1'1249, 2, 1'1200},
        {1'1250, 2, 1'1200},   {1'1251, 2, 1'1300},   {1'1350, 2, 1'1400},   {-1'1250, 2, -1'1200},
        {-1'1350, 2, -1'1400}, {-50, 2, 0},           {51, 2, 100},          {1'0005, 3, 1'0000},
        {1'0015, 3, 1'0020},   {1'0001, 4, 1'0001},   {1'0001, 7, 1'0001},   {kMax, 4, kMax},
        {kMax, 2, kMax - 7},   {kMin, 4, kMin},       {kMin, 2, kMin + 8},
    };
    for (const auto& p : przypadki)
        EXPECT_EQ(Round(w(p.kwota), p.miejsca).surowa(), p.wynik) << p.kwota << " at " << p.miejsca;
    EXPECT_THROW((void)Round(w(kMax), 0), Przepelnienie);
    EXPECT_THROW((void)Round(w(kMin), 3), Przepelnienie);
    EXPECT_THROW((void)Round(w(1), -1), Blad);
}

TEST(Waluta, OverflowThrowsAndLeavesTheOperand) {
    Waluta duza = w(kMax);
    EXPECT_THROW(duza += w(1), Przepelnienie);
    EXPECT_EQ(duza.surowa(), kMax);
    Waluta mala = w(kMin);
    EXPECT_THROW(mala -= w(1), Przepelnienie);
    EXPECT_EQ(mala.surowa(), kMin);
    EXPECT_THROW((void)-w(kMin), Przepelnienie);
    EXPECT_THROW((void)Iloczyn(w(kMax), w(1'0001)), Przepelnienie);
    EXPECT_THROW((void)Procent(w(kMax), Stawka(w(100'0001))), Przepelnienie);
    EXPECT_THROW((void)Waluta::zlotych(922'337'203'685'478), Przepelnienie);
    EXPECT_EQ(Waluta::zlotych(-922'337'203'685'477).surowa(), -922'337'203'685'477'0000);
    EXPECT_EQ((w(kMax) - w(kMax)).surowa(), 0);
}

TEST(Waluta, PercentAndProportionAreFormedExactlyAndRoundedOnce) {
    const struct {
        std::int64_t kwota, stawka;
        int miejsca;
        std::int64_t wynik;
    } procenty[] = {
        {1650'0000, 2'4500, 2, 40'4200}, // exactly 40,425: no binary double may push it up
        {1650'0000, 9'7600, 2, 161'0400},
        {1630'0000, 2'4500, 2, 39'9400},
        {-1650'0000, 2'4500, 2, -40'4200},
        {1, 50'0000, 4, 0},
        {3, 50'0000, 4, 2},
        {149, 100'0000, 2, 100},
        {kMax, 100'0000, 4, kMax},
        {kMin, 100'0000, 4, kMin},
    };
    static_assert(!std::is_convertible_v<Waluta, Stawka> && !std::is_convertible_v<Stawka, Waluta>);
    for (const auto& p : procenty)
        EXPECT_EQ(Procent(w(p.kwota), Stawka(w(p.stawka)), p.miejsca).surowa(), p.wynik)
            << p.kwota << " at " << p.stawka;

    const struct {
        std::int64_t kwota, licznik, mianownik;
        int miejsca;
        std::int64_t wynik;
    } proporcje[] = {
        {436'2000, 1, 12, 4, 36'3500},
        {1'0000, 1, 3, 4, 3333},
        {2'0000, 1, 3, 4, 6667},
        {1, 1, 2, 4, 0},
        {3, 1, 2, 4, 2},
        {1'0000, 1, -8, 2, -1200},
        {-1'0000, 3, 8, 2, -3800},
        {kMax, 7, 7, 4, kMax},
    };
    for (const auto& p : proporcje)
        EXPECT_EQ(Proporcja(w(p.kwota), p.licznik, p.mianownik, p.miejsca).surowa(), p.wynik)
            << p.kwota << " * " << p.licznik << " / " << p.mianownik;
    EXPECT_THROW((void)Proporcja(w(1), 1, 0), Blad);
    EXPECT_EQ(Iloczyn(w(1'5000), w(1)).surowa(), 2) << "0,00015 goes to the even 0,0002";
}

TEST(Waluta, ADoubleIsTakenAtItsFifteenDecimalDigits) {
    const struct {
        double liczba;
        std::int64_t wynik;
    } przypadki[] = {
        {0.00005, 0},
        {0.00015, 2},
        {1.00005, 1'0000},
        {1.00015, 1'0002},
        {-1.00015, -1'0002},
        {1.000050001, 1'0001},
        {1.1499999999, 1'1500},
        {0.1 + 0.2, 3000},
        {1e-300, 0},
        {-0.0, 0},
        {5e-5, 0},
        {123456789012.345, 123456789012'3450},
        {9.22337203685477e14, 922337203685477'0000},
    };
    for (const auto& p : przypadki) EXPECT_EQ(Waluta::zLiczby(p.liczba).surowa(), p.wynik) << p.liczba;
    for (const double zla : {1e300, -1e300, 9.23e14, std::nan(""), std::numeric_limits<double>::infinity()})
        EXPECT_THROW((void)Waluta::zLiczby(zla), Przepelnienie) << zla;
}

TEST(Waluta, Texts) {
    const struct {
        std::int64_t kwota;
        QString pole, tekst;
    } przypadki[] = {
        {0, QStringLiteral("0,00"), QStringLiteral("0")},
        {9'7650, QStringLiteral("9,77"), QStringLiteral("9,765")},
        {-9'7650, QStringLiteral("-9,77"), QStringLiteral("-9,765")},
        {-40, QStringLiteral("0,00"), QStringLiteral("-0,004")},
        {1, QStringLiteral("0,00"), QStringLiteral("0,0001")},
        {9950, QStringLiteral("1,00"), QStringLiteral("0,995")},
        {1505'2000, QStringLiteral("1505,20"), QStringLiteral("1505,2")},
        {-3'0000, QStringLiteral("-3,00"), QStringLiteral("-3")},
        {kMax, QStringLiteral("922337203685477,58"), QStringLiteral("922337203685477,5807")},
        {kMin, QStringLiteral("-922337203685477,58"), QStringLiteral("-922337203685477,5808")},
    };
    for (const auto& p : przypadki) {
        EXPECT_EQ(FormatKwoty(w(p.kwota)), p.pole) << p.kwota;
        EXPECT_EQ(TekstKwoty(w(p.kwota)), p.tekst) << p.kwota;
    }
}

} // namespace

} // namespace tornel::testy
