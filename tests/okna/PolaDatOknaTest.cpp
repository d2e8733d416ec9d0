// Months chosen and dates entered by keys.
#include "common/Daty.h"
#include "okna/Kontrolki.h"
#include "okna/PoleMiesiaca.h"
#include "okna/PoleTekstu.h"
#include "wsparcie/Przestrzen.h"
#include <gtest/gtest.h>
#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QComboBox>
#include <QPointer>
#include <QSignalSpy>
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

/// A day taken from the calendar counts as typed, one that is not taken leaves all as it was.
TEST(PoleDatyOknaTest, KalendarzPodKlawiszem) {
    const struct {
        QString przedtem;
        QList<Qt::Key> klawisze;
        QString potem;
    } przypadki[] = {
        {u"15-08-2001"_s, {Qt::Key_Right, Qt::Key_Return}, u"16-08-2001"_s},
        {u"15-08-2001"_s, {Qt::Key_PageUp, Qt::Key_Up, Qt::Key_Return}, u"08-07-2001"_s},
        {u"31-01-2001"_s, {Qt::Key_PageDown, Qt::Key_Return}, u"28-02-2001"_s},
        {u"15-08-2001"_s, {Qt::Key_Right, Qt::Key_Escape}, u"15-08-2001"_s},
        {QString(), {Qt::Key_Return}, FormatDaty(QDate::currentDate())},
        {u"31-02"_s, {Qt::Key_Escape}, u"31-02"_s},
    };
    for (const auto& [klawisz_, modyfikator] :
         {std::pair{Qt::Key_F4, Qt::NoModifier}, std::pair{Qt::Key_Down, Qt::AltModifier}})
        for (const auto& p : przypadki) {
            PoleDaty pole;
            pole.setText(p.przedtem);
            pole.show();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&pole));
            QSignalSpy wpisano(&pole, &QLineEdit::textEdited);
            QTest::keyClick(&pole, klawisz_, modyfikator);
            const QPointer<QCalendarWidget> kalendarz = pole.findChild<QCalendarWidget*>();
            ASSERT_TRUE(kalendarz && kalendarz->isVisible());
            for (const Qt::Key k : p.klawisze)
                QTest::keyClick(kalendarz->findChild<QAbstractItemView*>(u"qt_calendar_calendarview"_s), k);
            EXPECT_EQ(pole.text(), p.potem);
            EXPECT_EQ(wpisano.isEmpty(), p.przedtem == p.potem);
            EXPECT_TRUE(QTest::qWaitFor([&] { return !kalendarz; }));
        }
}

TEST(PoleDatyOknaTest, PoleDoOdczytuNieMaKalendarzaAniPodpowiedzi) {
    for (const Dostep dostep : {Dostep::Edycja, Dostep::Odczyt}) {
        const std::unique_ptr<QWidget> pole(zbudujKontrolke(
            {.nazwa = u"dtData"_s, .podpis = {}, .kolumna = {}, .rodzaj = Rodzaj::Data, .dostep = dostep}));
        QTest::keyClick(pole.get(), Qt::Key_F4);
        const bool edycja = dostep == Dostep::Edycja;
        EXPECT_EQ(pole->findChild<QCalendarWidget*>() != nullptr, edycja);
        EXPECT_EQ(static_cast<QLineEdit&>(*pole).placeholderText().isEmpty(), !edycja);
        EXPECT_EQ(pole->toolTip().contains(u"F4"), edycja);
    }
}

} // namespace

} // namespace tornel::testy
