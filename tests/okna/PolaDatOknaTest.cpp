// Months chosen and dates entered by keys.
#include "okna/PoleMiesiaca.h"
#include "wsparcie/Przestrzen.h"
#include <gtest/gtest.h>
#include <QComboBox>
#include <QTest>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

TEST(PoleMiesiacaOknaTest, MiesiacPisanyNaKlawiaturze) {
    const std::pair<QString, int> przypadki[] = {
        {u"7"_s, 7},
        {u"07"_s, 7},
        {u"lip"_s, 7},
        {u"LIS"_s, 11},
        {u"1"_s, 1},
        {u"12"_s, 12},
        {u"10"_s, 10},
        {u"paz"_s, 10},
        {u"maj"_s, 5},
        {u"mar"_s, 3},
        {u"sierp"_s, 8},
        // What is no month begins anew with the last key; what is none either changes nothing.
        {u"13"_s, 3},
        {u"729"_s, 9},
        {u"7x"_s, 7},
        {u"72"_s, 2},
    };
    for (const auto& [wpisany, miesiac] : przypadki) {
        PoleMiesiaca pole(QDate(2001, 4, 1));
        pole.show();
        QTest::keyClicks(pole.findChild<QComboBox*>(), wpisany);
        EXPECT_EQ(pole.pierwszyDzien(), QDate(2001, miesiac, 1)) << wpisany.toStdString();
    }
}

} // namespace

} // namespace tornel::testy
