// The letters of captions: taken from the table, never twice in one menu or window.
#include "okna/MenuListy.h"
#include "okna/Mnemoniki.h"
#include "okna/WidokListy.h"
#include "wsparcie/Litery.h"
#include "wsparcie/Przestrzen.h"
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QTest>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

TEST(MnemonikiOknaTest, WejsciaMenu) {
    const struct {
        QStringList napisy, oznaczone;
    } przypadki[] = {
        // The word's beginning goes before the same letter within a word.
        {{u"Tylko zwolnieni"_s, u"Zatrudnieni na umowę zlecenie"_s},
         {u"Tylko &zwolnieni"_s, u"Zatrudnieni na &umowę zlecenie"_s}},
        {{u"Stałe programu"_s, u"Stałe programu"_s}, {u"&Stałe programu"_s, u"Stałe programu"_s}},
        // Letters of the program's own entries come before those of unknown ones, wherever they stand.
        {{u"Konto"_s, u"Kwota"_s, u"Koniec"_s}, {u"K&onto"_s, u"K&wota"_s, u"&Koniec"_s}},
        {{u"Środki własne"_s, u"ŻŻ"_s, u"3 dni"_s}, {u"Środki &własne"_s, u"ŻŻ"_s, u"&3 dni"_s}},
        {{u"Cofnij: wpis A&&C"_s, u"&Ponów"_s}, {u"&Cofnij: wpis A&&C"_s, u"&Ponów"_s}},
    };
    for (const auto& p : przypadki) {
        QMenu menu;
        for (const QString& napis : p.napisy) menu.addAction(napis);
        for (int raz = 0; raz < 2; ++raz) {
            mnemoniki::nadaj(menu);
            QStringList jest;
            for (const QAction* wejscie : menu.actions()) jest.append(wejscie->text());
            EXPECT_EQ(jest, p.oznaczone) << raz;
        }
    }
}

TEST(MnemonikiOknaTest, PrzyciskiOknaOmijajaZajete) {
    QDialog okno;
    QPushButton pomoc(u"Pomoc"_s, &okno), zwykly(u"Czynność"_s, &okno), ok(u"OK"_s, &okno);
    QLabel podpis(u"&Miesiąc:"_s, &okno);
    QLineEdit pole(&okno);
    podpis.setBuddy(&pole);
    new QShortcut(QKeySequence(Qt::ALT | Qt::Key_C), &okno);
    auto* menu = new QMenu(&okno);
    menu->addAction(u"Pokwitowania"_s);
    zwykly.setMenu(menu);
    mnemoniki::nadajPrzyciskom(okno);
    EXPECT_EQ(pomoc.text(), u"P&omoc"_s) << "M and C are taken";
    EXPECT_EQ(zwykly.text(), u"Czynność"_s) << "the table does not know it";
    EXPECT_EQ(ok.text(), u"O&K"_s) << "O is taken by then";
    EXPECT_EQ(menu->actions().constFirst()->text(), u"&Pokwitowania"_s);
}

TEST(MnemonikiOknaTest, MenuListyZPrzyciskamiEkranu) {
    QDialog okno;
    auto* lista =
        new WidokListy(QList<KolumnaListy>{{u"Nazwisko"_s}, {u"Numer"_s}, {u"Nazwa działu"_s}}, {2, 1, 2});
    lista->setParent(&okno);
    int i = 0;
    for (const QString& napis : {u"&Nowy prac."_s, u"&Usuń prac."_s, u"Prze&licz"_s, u"&Zapisz"_s,
                                 u"&Rodzina"_s, u"&Drukuj"_s, u"&Powrót"_s})
        (new QPushButton(napis, &okno))->setObjectName(u"cmd%1"_s.arg(++i));
    lista->ustaw({{1, {u"Nowak"_s, u"1"_s, u"Biuro"_s}}});
    okno.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&okno));
    MenuListy menu(*lista);
    EXPECT_GE(menu.actions().size(), 10);
    sprawdzLiteryMenu(menu.actions());
}

} // namespace

} // namespace tornel::testy
