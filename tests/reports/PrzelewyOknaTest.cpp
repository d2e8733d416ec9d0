// Transfer orders on paper: what stands where on each copy, and which copies a layout has.
#include "bank/Przelewy.h"
#include "bank/UkladPrzelewu.h"
#include "druk/Wyjscie.h"
#include "reports/przelewy/WydrukPrzelewow.h"
#include "wsparcie/Przestrzen.h"
#include <gtest/gtest.h>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;

/// A transfer whose receiver has a name of 95 letters.
Przelew dlugiPrzelew() {
    return UlozPrzelew({u"Ż"_s.repeated(40) + u" "_s + u"ó"_s.repeated(54), u"10990001-120045-27006-11"_s,
                        Waluta::zSurowej(16505000), u"Wytwórnia \"Jarzębina\""_s, u"10990001-445566"_s,
                        u"płaca za marzec"_s});
}

constexpr const char* kPoleNaOryginale = R"(1 015,023 ŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻŻ ÓÓÓÓ
1 015,033 ÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓÓ
1 014,043 PŁ
1 026,043 10990001
1 065,043 120045-27006-11
1 125,054 PLN
1 145,054 1 650,50
1 015,065 jeden tysiąc sześćset pięćdziesiąt złotych pięćdziesiąt groszy
1 015,075 10990001-445566
1 015,085 WYTWÓRNIA "JARZĘBINA"
1 015,105 PŁACA ZA MARZEC
)";

TEST(WydrukPrzelewow, AnOriginalGetsTheFieldsOfBothCopies) {
    const auto uklad = reports::UlozPrzelewy({dlugiPrzelew()}, UkladPrzelewu::Oryginal);
    EXPECT_EQ(uklad->stron(), 1);
    const QString tekst = TekstWydruku(*uklad);
    EXPECT_EQ(tekst.first(tekst.size() / 2).count(u'\n'), 11);
    EXPECT_TRUE(tekst.startsWith(QString::fromUtf8(kPoleNaOryginale))) << tekst.toStdString();
}

TEST(WydrukPrzelewow, EachLayoutHasItsCopiesAndEachOrderItsPage) {
    const struct {
        UkladPrzelewu uklad;
        QString tytul;
        QStringList odcinki;
    } przypadki[] = {
        {UkladPrzelewu::Przelew, u"Przelew 1,2 z 4"_s, {u"1 z 4"_s, u"2 z 4"_s}},
        {UkladPrzelewu::Przelew2, u"Przelew 3,4 z 4"_s, {u"3 z 4"_s, u"4 z 4"_s}},
        {UkladPrzelewu::Oryginal, u"Przelew 1,2 z 4 - na oryginalnym druku"_s, {}},
    };
    for (const auto& p : przypadki) {
        const auto uklad = reports::UlozPrzelewy(QList<Przelew>(3, dlugiPrzelew()), p.uklad);
        EXPECT_EQ(uklad->opis().tytul, p.tytul);
        EXPECT_EQ(uklad->stron(), 3);
        QStringList odcinki;
        for (const QString& linia : TekstWydruku(*uklad).split(u'\n'))
            if (linia.startsWith(u"2 "_s) && linia.contains(u" z 4 "_s)) odcinki.append(linia.mid(10, 5));
        EXPECT_EQ(odcinki, p.odcinki);
    }
    EXPECT_TRUE(CsvWydruku(*reports::UlozPrzelewy({dlugiPrzelew()}, UkladPrzelewu::Przelew))
                    .startsWith("nazodb;nazodbcd;LK;nrrachodb1;"));
}

} // namespace

} // namespace tornel::testy
