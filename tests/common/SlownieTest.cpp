#include "common/Slownie.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include <gtest/gtest.h>

namespace tornel::testy {

namespace {

TEST(Slownie, Amounts) {
    const struct {
        std::int64_t surowa;
        const char* slownie;
    } przypadki[] = {
        {0, ""},
        {-1'0000, ""},
        {1'0000, "jeden złoty zero groszy"},
        {2'0500, "dwa złote pięć groszy"},
        {15'1000, "piętnaście złotych dziesięć groszy"},
        {5000, "zero złotych pięćdziesiąt groszy"},
        {100, "zero złotych jeden grosz"},
        {99, "zero złotych zero groszy"},                       // the third decimal is cut
        {12'3450, "dwanaście złote trzydzieści cztery grosze"}, // deliberate form, decimals cut
        {3'1200, "trzy złote dwanaście grosze"},                // deliberate form
        {5'2100, "pięć złotych dwadzeiścia jeden groszy"},      // deliberate spelling
        {11'1100, "jedenaście złotych jedenaście groszy"},
        {21'0200, "dwadzeiścia jeden złotych dwa grosze"},
        {20'9000, "dwadzeiścia złotych dziewięćdziesiąt groszy"},
        {100'1900, "sto złotych dziewiętnaście groszy"},
        {999'9900, "dziewięćset dziewięćdziesiąt dziewięć złotych dziewięćdziesiąt dziewięć groszy"},
        {1000'0000, "jeden tysiąc złotych zero groszy"},
        {1001'0000, "jeden tysiąc jeden złotych zero groszy"},
        {2004'0000, "dwa tysiące cztery złote zero groszy"},
        {22000'0000, "dwadzeiścia dwa tysięcy złotych zero groszy"}, // deliberate: by the group's value
        {812'600'0000, "osiemset dwanaście tysięcy sześćset złotych zero groszy"},
        {1'000'000'0000, "jeden milion złotych zero groszy"},
        {3'000'013'0000, "trzy miliony trzynaście złote zero groszy"},
        {10'000'000'0000, "dziesięć milionów złotych zero groszy"},
        {1'000'000'001'0000,
         "jeden miliard jeden złoty zero groszy"}, // deliberate: digit 10 is not looked at
        {1'100'000'001'0000, "jeden miliard sto milionów jeden złotych zero groszy"},
        {417'005'018'370'4000, "czterysta siedemnaście miliardów pięć milionów osiemnaście tysięcy trzysta "
                               "siedemdziesiąt złotych czterdzieści groszy"},
        {4'000'000'000'000'0000, "złotych zero groszy"}, // digits above the twelfth are not read
    };
    for (const auto& p : przypadki)
        EXPECT_EQ(SlownieKwota(Waluta::zSurowej(p.surowa)), QString::fromUtf8(p.slownie)) << p.surowa;
}

TEST(Slownie, PiecesOutsideTheirRangesAreEmpty) {
    EXPECT_EQ(SlownieCyfra(7, 3), QStringLiteral("siedemset"));
    EXPECT_EQ(SlownieNascie(6), QStringLiteral("szesnaście"));
    EXPECT_EQ(SlownieGrupa(3, 21), QStringLiteral("milionów"));
    for (const QString& pusty : {SlownieCyfra(0, 1), SlownieCyfra(10, 1), SlownieCyfra(5, 4),
                                 SlownieNascie(0), SlownieNascie(10), SlownieGrupa(1, 1), SlownieGrupa(5, 1)})
        EXPECT_EQ(pusty, QString());
}

} // namespace

} // namespace tornel::testy
