// Printing from the personnel file: what is asked, who is printed, the attendance card on screen.
#include "okna/frmZakresMies.h"
#include "payroll/miesiace/frmSymboleList.h"
#include "personnel/frmDzial.h"
#include "personnel/frmKartaEw.h"
#include "personnel/frmWydrukKadr.h"
#include "wsparcie/EkranPracownikow.h"
#include "wsparcie/Litery.h"
#include "wsparcie/Widzet.h"
#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableView>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;

class WydrukiKadrOkna : public EkranPracownikow {
protected:
    /// A port that keeps what was printed in place of paper.
    PortWydrukowKadr port() {
        PortWydrukowKadr wynik;
        wynik.dostepne = {{u"Lista"_s, CzasWydruku::Zaden},
                          {u"Karta"_s, CzasWydruku::Rok},
                          {u"Obecność"_s, CzasWydruku::Miesiac},
                          {u"Zaświadczenie"_s, CzasWydruku::Miesiace}};
        wynik.kartaEwidencji = u"Karta"_s;
        wynik.ostatniMiesiac = [] { return RokMies{2001, 3}; };
        wynik.drukuj = [this](const QString& napis, const ZlecenieWydruku& z, QWidget*) {
            QStringList numery;
            for (const qint64 n : z.numery) numery.append(QString::number(n));
            wydruki_.append(u"%1 %2-%3: %4"_s.arg(napis, z.od.klucz(), z.dokad.klucz(), numery.join(u',')));
        };
        return wynik;
    }
    QStringList wydrukowane() { return std::exchange(wydruki_, {}); }

    QStringList wydruki_;
};

void wybierzZMenu(frmPrac& ekran, const QString& napis) {
    for (QAction* a : widzet<QPushButton>(ekran, u"cmdDrukuj"_s).menu()->actions())
        if (bezLitery(a->text()) == napis) return a->trigger();
    FAIL() << napis.toStdString();
}

/// Runs `reakcja` on the dialog that opens next and closes it by the button.
template <typename Dialog>
void naDialogu(const QString& przycisk, const std::function<void(Dialog&)>& reakcja = {}) {
    QTimer::singleShot(0, qApp, [=] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr) << "nothing opened";
        if (reakcja) reakcja(*dialog);
        widzet<QPushButton>(*dialog, przycisk).click();
    });
}

TEST_F(WydrukiKadrOkna, ThePersonnelFileAsksForTimeAndPersonsAndPrintsThose) {
    for (const auto& [prcId, data] : {std::pair(8, QDate(2001, 3, 1)), std::pair(1234, QDate(2001, 4, 1))}) {
        ASSERT_TRUE(sesja().rsPRACPR.Znajdz(prcId));
        sesja().rsPRACPR.ustaw(schemat::PRACPR("data_zatr"), data);
    }
    sesja().rsPRACPR.UpdateBatch(u"Dane testu");
    frmPrac ekran(otoczenie(), FiltrPracownikow::Wszyscy, nullptr, port());
    ekran.show();
    ASSERT_TRUE(widzet<WidokListy>(ekran, u"lvwPrac"_s).wybierz(7));
    wybierzZMenu(ekran, u"Lista"_s);
    EXPECT_EQ(wydrukowane().value(0).section(u' ', -1), u"1234,8,7"_s); // in the order of the list
    naDialogu<frmWydrukKadr>(u"cmdOK"_s);
    wybierzZMenu(ekran, u"Zaświadczenie"_s);
    EXPECT_EQ(wydrukowane(), QStringList{u"Zaświadczenie 200101-200103: 7"_s});
    // All of the list, but only those who were employed; 8 began in March, 1234 in April.
    naDialogu<frmWydrukKadr>(u"cmdOK"_s, [](frmWydrukKadr& d) {
        widzet<QRadioButton>(d, u"optWszyscy"_s).click();
        widzet<QComboBox>(d, u"cboMies"_s).setCurrentIndex(2);
    });
    wybierzZMenu(ekran, u"Obecność"_s);
    EXPECT_EQ(wydrukowane(), QStringList{u"Obecność 200103-200103: 8,7"_s});
    naDialogu<frmWydrukKadr>(u"cmdAnuluj"_s);
    wybierzZMenu(ekran, u"Obecność"_s);
    EXPECT_EQ(wydrukowane(), QStringList());
    // A range the wrong way round stays in the dialog.
    rozmowa_.spodziewaj(u"Zakres dat jest nieprawidłowy."_s, Styl::Wykrzyknik);
    naDialogu<frmWydrukKadr>(u"cmdAnuluj"_s, [](frmWydrukKadr& d) {
        widzet<QSpinBox>(d, u"spnRokDo"_s).setValue(2000);
        widzet<QPushButton>(d, u"cmdOK"_s).click();
        EXPECT_TRUE(d.isVisible());
    });
    wybierzZMenu(ekran, u"Zaświadczenie"_s);
    EXPECT_EQ(wydrukowane(), QStringList());
}

TEST_F(WydrukiKadrOkna, TheCardFollowsPersonAndYearAndPrintsOneOrAll) {
    ASSERT_TRUE(sesja().rsPRACPR.Znajdz(8));
    sesja().rsPRACPR.ustaw(schemat::PRACPR("data_zatr"), QDate(2001, 7, 2));
    sesja().rsPRACPR.UpdateBatch(u"Dane testu");
    frmKartaEw karta(otoczenie(),
                     Pracownicy(otoczenie()).lista(FiltrPracownikow::Wszyscy, PorzadekPracownikow::Numery), 8,
                     2001, port());
    karta.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&karta));
    const QAbstractItemModel& tabela = *widzet<QTableView>(karta, u"tblKarta"_s).model();
    const auto pole = [&](int mies, int dzien) {
        return tabela.index(mies - 1, dzien - 1).data().toString();
    };
    EXPECT_EQ(pole(7, 1), u"-"_s);
    EXPECT_EQ(pole(7, 2).trimmed(), QString());
    EXPECT_EQ(pole(7, 7), u"w"_s);
    EXPECT_EQ(tabela.index(12, 31).data().toString(),
              u"131"_s); // days of work from July on, Monday to Friday
    widzet<QPushButton>(karta, u"cmdDrukuj"_s).click();
    widzet<QSpinBox>(karta, u"spnRok"_s).setValue(2000);
    EXPECT_EQ(pole(7, 7), u"-"_s);
    widzet<QPushButton>(karta, u"cmdDrukujWszystkich"_s).click();
    QTest::keyClick(&karta, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(widzet<QComboBox>(karta, u"cboPracownik"_s).currentData().toInt(), 7);
    EXPECT_EQ(wydrukowane(), (QStringList{u"Karta 200101-200112: 8"_s, u"Karta 200001-200012: 7,1234"_s}));
}

TEST_F(WydrukiKadrOkna, AllAreChosenAtFirstAndNoneIsNotAccepted) {
    frmDzial dzialy({{u"Biuro"_s, 2}, {u"Magazyn"_s, 1}, {QString(), 1}});
    dzialy.show();
    auto& lista = widzet<WidokListy>(dzialy, u"lvwDzial"_s);
    EXPECT_EQ(dzialy.dzialy(), std::nullopt);
    lista.clearSelection();
    EXPECT_FALSE(widzet<QPushButton>(dzialy, u"cmdOK"_s).isEnabled());
    lista.wybierz(2);
    EXPECT_EQ(dzialy.dzialy(), QStringList{QString()});
    widzet<QPushButton>(dzialy, u"cmdWszystkie"_s).click();
    EXPECT_EQ(dzialy.dzialy(), std::nullopt);
    frmSymboleList symbole({{u" "_s, 3}, {u"A"_s, 2}, {u"B"_s, 1}});
    symbole.show();
    EXPECT_EQ(symbole.listy(), QString());
    auto& listy = widzet<WidokListy>(symbole, u"lvwSymbole"_s);
    listy.clearSelection();
    listy.wybierz(0);
    EXPECT_EQ(symbole.listy(), u" "_s);
}

} // namespace

} // namespace tornel::testy
