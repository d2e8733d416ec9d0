#include "common/Daty.h"
#include "okna/Aplikacja.h"
#include "okna/frmInputData.h"
#include "okna/WidokListy.h"
#include "payroll/nadgodziny/frmNadg.h"
#include "payroll/nadgodziny/frmNadgSiatka.h"
#include "personnel/frmWybPr.h"
#include "store/Struktura.h"
#include "wsparcie/PlaceTestowe.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/Widzet.h"
#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

namespace tornel::testy {

using schemat::NADGDzien;
using schemat::NADGN;
using namespace Qt::StringLiterals;

namespace {

const QString kNowaListaOkna = u"Czy na pewno utworzyć nową listę ?"_s;

class NadgodzinyOknaTest : public PlaceTestowe {
protected:
    NadgodzinyOknaTest() {
        stale().NGNazwaS[0] = u"50%"_s;
        stale().RowNGRob = {u"SGP*15/10"_s, u"SGP*2"_s, u"SGP"_s};
        stale().RowNGSob = stale().RowNGNie = {u"SGP*2"_s, u"SGP*2"_s, u"SGP"_s};
        stale().RowNGGr = {u"SGP*15/10"_s, u"SGP*2"_s, u"5*"_s, u"1"_s, u"1"_s, u"1"_s, u"1"_s};
    }
    void TearDown() override {
        aplikacja().ustawNaprawe([](const QString& komunikat) { ADD_FAILURE() << komunikat.toStdString(); });
    }
    static Aplikacja& aplikacja() { return *qobject_cast<Aplikacja*>(qApp); }
    /// Failures in slots are shown and undone as in the program; their messages stand in `bledy_`.
    void naprawiaj() {
        aplikacja().ustawNaprawe([this](const QString& komunikat) {
            bledy_ += komunikat;
            sesja().OdswiezUchwyty();
        });
    }

    /// A list of July with employees 1 to `ile`, 10 zł an hour.
    void lista(int ile, bool szczegolowa) {
        rozmowa_.spodziewaj(kNowaListaOkna, Odpowiedz::Tak);
        ASSERT_TRUE(Nadgodziny(otoczenie()).NowaLista([] { return kLipiec; }));
        stale().SzczegRejNadg = szczegolowa;
        ListaNadgodzin nowa(otoczenie(), kLipiec);
        for (int nr = 1; nr <= ile; ++nr) {
            pracownik(nr, "Sgp=10", u"Nowak%1"_s.arg(nr));
            ASSERT_TRUE(nowa.NowaOsoba(nr));
        }
    }
    static void pokaz(QWidget& okno) {
        okno.show();
        okno.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    }
    static void klik(QWidget& okno, const QString& nazwa) {
        QTest::mouseClick(&widzet(okno, nazwa), Qt::LeftButton);
    }
    static SiatkaNadgodzin& siatka(const QWidget& okno) {
        return widzet<SiatkaNadgodzin>(okno, u"grdNadg"_s);
    }
    static QString komorka(const QWidget& okno, int wiersz, int kolumna) {
        return siatka(okno).model()->index(wiersz, kolumna).data().toString();
    }
    static std::pair<int, int> miejsce(const QWidget& okno) {
        const QModelIndex tu = siatka(okno).currentIndex();
        return {tu.row(), tu.column()};
    }
    static void ustaw(const QWidget& okno, int wiersz, int kolumna) {
        siatka(okno).setFocus();
        siatka(okno).setCurrentIndex(siatka(okno).model()->index(wiersz, kolumna));
    }
    /// Types where the focus is: into the grid, or into the cell that the first key has opened.
    static void pisz(const QString& tekst) {
        for (const QChar znak : tekst) QTest::keyClick(QApplication::focusWidget(), znak.toLatin1());
    }
    static void klawisz(Qt::Key klawisz) { QTest::keyClick(QApplication::focusWidget(), klawisz); }

    static QString wiersz(const QWidget& okno, const QString& nazwa, int nr) {
        const QAbstractItemModel& model = *widzet<WidokListy>(okno, nazwa).model();
        QStringList komorki;
        for (int k = 0; k < model.columnCount(); ++k) komorki += model.index(nr, k).data().toString();
        return komorki.join(u'|');
    }
    /// What the clerk does in the next modal screen of this kind, which is closed behind him.
    template <typename T>
    void wOknie(std::function<void(T&)> czynnosc) {
        QTimer::singleShot(0, qApp, [czynnosc] {
            auto* okno = qobject_cast<T*>(QApplication::activeModalWidget());
            if (!okno) {
                ADD_FAILURE() << "another screen is open, or none";
                return;
            }
            const QPointer<T> zyje(okno);
            czynnosc(*okno);
            if (zyje && zyje->isVisible()) zyje->reject();
        });
    }
    Waluta kwotaOsoby(qint64 prcId, int grupa) {
        Recordset rs = zPliku(NADGN);
        EXPECT_TRUE(rs.Znajdz(prcId));
        return rs.kwota(KwotaOsoby(grupa));
    }

    QStringList bledy_;
};

TEST_F(NadgodzinyOknaTest, OdNowejListyDoSum) {
    stale().SzczegRejNadg = true;
    pracownik(7, "Sgp=10", u"Żak"_s);
    frmNadg okno(otoczenie());
    pokaz(okno);
    for (const QString& nazwa : {u"cmdUsunListe"_s, u"cmdNowaOsoba"_s, u"cmdUsunOsobe"_s, u"cmdOdswiez"_s})
        EXPECT_FALSE(widzet(okno, nazwa).isEnabled()) << nazwa.toStdString();

    rozmowa_.spodziewaj(kNowaListaOkna, Odpowiedz::Tak);
    wOknie<frmInputData>([](frmInputData& wybor) {
        widzet<QComboBox>(wybor, u"cboMies"_s).setCurrentIndex(6);
        widzet<QSpinBox>(wybor, u"spnRok"_s).setValue(2001);
        klik(wybor, u"cmdOK"_s);
    });
    klik(okno, u"cmdNowaLista"_s);
    EXPECT_EQ(wiersz(okno, u"lvwLista"_s, 0), u"07.2001|LIPIEC"_s);
    EXPECT_EQ(wiersz(okno, u"lvwRownania"_s, 0), u"Dni robocze:|SGP*15/10|SGP*2|SGP"_s);
    wOknie<frmWybPr>([](frmWybPr& wybor) { klik(wybor, u"cmdWybierz"_s); });
    klik(okno, u"cmdNowaOsoba"_s);
    EXPECT_EQ(wiersz(okno, u"lvwOsoby"_s, 0), u"007|Żak Anna|0,0|0,00"_s);

    pokaz(okno); // it is in front again
    // From the list of persons into the grid, and there by keys alone: July begins on a Sunday.
    klawisz(Qt::Key_Return);
    EXPECT_EQ(miejsce(okno), std::pair(0, 2));
    pisz(u"1,5"_s);
    klawisz(Qt::Key_Return);
    EXPECT_EQ(miejsce(okno), std::pair(0, 3));
    klawisz(Qt::Key_Left);
    klawisz(Qt::Key_Down);
    pisz(u"2.5"_s);
    klawisz(Qt::Key_Down);
    EXPECT_EQ(miejsce(okno), std::pair(2, 2));
    EXPECT_EQ(komorka(okno, 0, 0) + komorka(okno, 0, 1), u"01-07-2001Niedziela"_s);
    EXPECT_EQ(komorka(okno, 0, 2) + u' ' + komorka(okno, 0, 10), u"1,5 30,00"_s);
    EXPECT_EQ(komorka(okno, 1, 2) + u' ' + komorka(okno, 1, 10), u"2,5 37,50"_s);
    EXPECT_EQ(siatka(okno).model()->headerData(2, Qt::Horizontal).toString(), u"50%"_s);
    EXPECT_EQ(siatka(okno).model()->headerData(3, Qt::Horizontal).toString(), u"Grupa 2"_s);
    EXPECT_EQ(wiersz(okno, u"lvwOsoby"_s, 0), u"007|Żak Anna|4,0|67,50"_s);
    EXPECT_EQ(wiersz(okno, u"lvwSumy"_s, 0), u"Godziny osoby|4,0|0,0|0,0|0,0|0,0|0,0|0,0|4,0"_s);
    EXPECT_EQ(wiersz(okno, u"lvwSumy"_s, 3), u"Kwoty miesiąca|67,50|0,00|0,00|0,00|0,00|0,00|0,00|67,50"_s);
    EXPECT_EQ(kwotaOsoby(7, 1), zl(67.5));

    // An entry that was not finished is stored when the screen is closed.
    ustaw(okno, 1, 2);
    pisz(u"3"_s);
    okno.close();
    EXPECT_FALSE(okno.isVisible());
    EXPECT_EQ(kwotaOsoby(7, 1), zl(75));
}

TEST_F(NadgodzinyOknaTest, BezDniWierszNaGrupeIDalejNastepnaOsoba) {
    lista(2, false);
    frmNadg okno(otoczenie());
    pokaz(okno);
    klawisz(Qt::Key_Return);
    EXPECT_EQ(komorka(okno, 0, 0) + u' ' + komorka(okno, 0, 2), u"50% SGP*15/10"_s);
    for (const QString& ile : {u"10"_s, u"4"_s, QString(), u"744"_s, u"1"_s, u"1"_s, u"0,5"_s}) {
        pisz(ile);
        klawisz(Qt::Key_Return);
    }
    EXPECT_EQ(QApplication::focusWidget(), &widzet(okno, u"lvwOsoby"_s)) << "past the last group";
    EXPECT_EQ(wiersz(okno, u"lvwSumy"_s, 1), u"Kwoty osoby|150,00|80,00|0,00|744,00|1,00|1,00|0,50|976,50"_s);
    klawisz(Qt::Key_Down);
    klawisz(Qt::Key_Return);
    EXPECT_EQ(widzet<QLabel>(okno, u"labOsoba"_s).text(), u"002  Nowak2 Anna"_s);
    EXPECT_EQ(miejsce(okno), std::pair(0, 1));
    EXPECT_EQ(komorka(okno, 0, 1), u"0,0"_s);

    // The third equation fails: it is told with the employee, and the cell shows what is stored.
    ustaw(okno, 2, 1);
    rozmowa_.spodziewaj(u"Pracownik nr 2 Nowak2 Anna: Nie można obliczyć wzoru \"5*\". Operator na końcu "
                        u"wzoru nie ma argumentu."_s,
                        Styl::Krytyczny);
    pisz(u"8"_s);
    klawisz(Qt::Key_Return);
    EXPECT_EQ(komorka(okno, 2, 1), u"0,0"_s);
    EXPECT_EQ(miejsce(okno), std::pair(2, 1)) << "a refused entry goes nowhere";
    EXPECT_EQ(QApplication::focusWidget(), &siatka(okno));
    // The rate of the person, in whatever row it is typed.
    ustaw(okno, 0, 1);
    pisz(u"2"_s);
    klawisz(Qt::Key_Tab);
    ustaw(okno, 5, 3);
    pisz(u"20"_s);
    klawisz(Qt::Key_Return);
    EXPECT_EQ(komorka(okno, 0, 3) + u' ' + komorka(okno, 0, 4), u"20,00 60,00"_s);
    EXPECT_EQ(wiersz(okno, u"lvwOsoby"_s, 1), u"002|Nowak2 Anna|2,0|60,00"_s);
}

TEST_F(NadgodzinyOknaTest, WpisyZleUsuwaneICofane) {
    lista(1, true);
    frmNadg okno(otoczenie());
    pokaz(okno);
    const QAbstractItemModelTester tester(siatka(okno).model());
    const QString odmowa =
        u"Godziny podaje się liczbą od -24 do 24, najwyżej z dwoma miejscami po przecinku."_s;
    ustaw(okno, 4, 3);
    pisz(u"8"_s);
    klawisz(Qt::Key_Tab);
    EXPECT_EQ(miejsce(okno), std::pair(4, 4));
    for (const QString& zle : {u"25"_s, u"-25"_s, u"abc"_s, u"1:30"_s, u"1,234"_s}) {
        SCOPED_TRACE(zle.toStdString());
        ustaw(okno, 4, 3);
        rozmowa_.spodziewaj(odmowa, Styl::Wykrzyknik);
        pisz(zle);
        klawisz(Qt::Key_Return);
        EXPECT_TRUE(rozmowa_.gotowa());
        EXPECT_EQ(komorka(okno, 4, 3), u"8,0"_s);
    }
    pisz(u"5"_s);
    klawisz(Qt::Key_Escape);
    EXPECT_TRUE(okno.isVisible());
    EXPECT_EQ(komorka(okno, 4, 3), u"8,0"_s);
    EXPECT_EQ(kwotaOsoby(1, 2), zl(120));
    klawisz(Qt::Key_Delete);
    EXPECT_EQ(komorka(okno, 4, 3), u"0,0"_s);
    EXPECT_EQ(kwotaOsoby(1, 2), Waluta{});

    // A rate that was typed is carried on by a command, which takes the entry in work with it.
    ustaw(okno, 4, 9);
    pisz(u"30"_s);
    QTest::keyClick(&okno, Qt::Key_K, Qt::AltModifier);
    QTRY_COMPARE(komorka(okno, 30, 9), u"30,00"_s); // a mnemonic presses its button for a moment
    EXPECT_EQ(komorka(okno, 3, 9) + u' ' + komorka(okno, 4, 9), u"10,00 30,00"_s);
    EXPECT_EQ(miejsce(okno), std::pair(4, 9));

    // Computed cells take nothing, a remark takes any text up to its length.
    ustaw(okno, 4, 10);
    pisz(u"7"_s);
    EXPECT_EQ(QApplication::focusWidget(), &siatka(okno));
    ustaw(okno, 4, 11);
    pisz(QString(60, u'x'));
    klawisz(Qt::Key_Up);
    EXPECT_EQ(miejsce(okno), std::pair(3, 11));
    EXPECT_EQ(komorka(okno, 4, 11), QString(50, u'x'));
    // A click elsewhere stores the entry as leaving the cell does.
    ustaw(okno, 0, 4);
    pisz(u"2"_s);
    klik(okno, u"cmdOdswiez"_s);
    EXPECT_EQ(kwotaOsoby(1, 3), zl(40));
    EXPECT_EQ(komorka(okno, 0, 4), u"2,0"_s);
}

TEST_F(NadgodzinyOknaTest, AwariaPlikuCofaWpisIPozwalaPracowacDalej) {
    lista(2, true);
    frmNadg okno(otoczenie());
    pokaz(okno);
    naprawiaj();
    ASSERT_TRUE(widzet<WidokListy>(okno, u"lvwOsoby"_s).wybierz(2));
    sesja().cnPlace.wykonaj("UPDATE NADGN200107 SET TEMP=1");
    ustaw(okno, 1, 2);
    pisz(u"8"_s);
    klawisz(Qt::Key_Return);
    ASSERT_EQ(bledy_.size(), 1);
    EXPECT_TRUE(bledy_.first().contains(u"NADGN200107"_s)) << bledy_.first().toStdString();
    EXPECT_EQ(widzet<QLabel>(okno, u"labOsoba"_s).text(), u"002  Nowak2 Anna"_s);
    EXPECT_EQ(komorka(okno, 1, 2), u"0,0"_s);
    ustaw(okno, 1, 2);
    pisz(u"8"_s);
    klawisz(Qt::Key_Return);
    EXPECT_EQ(bledy_.size(), 1);
    EXPECT_EQ(kwotaOsoby(2, 1), zl(120));

    // A month whose table is gone is told and shown empty; the others are at hand, and it can be deleted.
    rozmowa_.spodziewaj(kNowaListaOkna, Odpowiedz::Tak);
    ASSERT_TRUE(Nadgodziny(otoczenie()).NowaLista([] { return RokMies{2001, 8}; }));
    UsunTabele(sesja().cnPlace, u"NADG200108"_s);
    rozmowa_.spodziewaj(u"Nie ma listy nadgodzin za miesiąc 08.2001."_s, Styl::Krytyczny);
    frmNadg drugie(otoczenie());
    pokaz(drugie);
    EXPECT_FALSE(widzet(drugie, u"cmdNowaOsoba"_s).isEnabled());
    rozmowa_.spodziewaj(u"Czy na pewno usunąć zaznaczony miesiąc ?"_s, Odpowiedz::Tak);
    klik(drugie, u"cmdUsunListe"_s);
    EXPECT_EQ(widzet<QLabel>(drugie, u"labIleOsob"_s).text(), u"Osób na liście: 2"_s);
    EXPECT_EQ(bledy_.size(), 1);
}

TEST_F(NadgodzinyOknaTest, OsobyIListySieUsuwa) {
    lista(3, false);
    rozmowa_.spodziewaj(kNowaListaOkna, Odpowiedz::Tak);
    ASSERT_TRUE(Nadgodziny(otoczenie()).NowaLista([] { return RokMies{2001, 8}; }));
    frmNadg okno(otoczenie());
    pokaz(okno);
    EXPECT_EQ(widzet<QLabel>(okno, u"labIleOsob"_s).text(), u"Osób na liście: 0"_s);
    ASSERT_TRUE(widzet<WidokListy>(okno, u"lvwLista"_s).wybierz(200107));
    EXPECT_EQ(widzet<QLabel>(okno, u"labIleOsob"_s).text(), u"Osób na liście: 3"_s);

    // All at once: those already there are passed over without a word; one alone is told.
    wOknie<frmWybPr>([](frmWybPr& wybor) {
        klik(wybor, u"cmdWszyscy"_s);
        klik(wybor, u"cmdWybierz"_s);
    });
    klik(okno, u"cmdNowaOsoba"_s);
    rozmowa_.spodziewaj(u"Wybrany pracownik jest już na liście."_s, Styl::Wykrzyknik);
    wOknie<frmWybPr>([](frmWybPr& wybor) { klik(wybor, u"cmdWybierz"_s); });
    klik(okno, u"cmdNowaOsoba"_s);
    EXPECT_EQ(widzet<WidokListy>(okno, u"lvwOsoby"_s).wybrany(), 1);

    ASSERT_TRUE(widzet<WidokListy>(okno, u"lvwOsoby"_s).wybierz(2));
    rozmowa_.spodziewaj(u"Czy na pewno usunąć zaznaczoną osobę ?"_s, Odpowiedz::Nie);
    klik(okno, u"cmdUsunOsobe"_s);
    rozmowa_.spodziewaj(u"Czy na pewno usunąć zaznaczoną osobę ?"_s, Odpowiedz::Tak);
    klik(okno, u"cmdUsunOsobe"_s);
    EXPECT_EQ(zPliku(NADGN).RecordCount(), 2);
    EXPECT_EQ(widzet<WidokListy>(okno, u"lvwOsoby"_s).wybrany(), 3) << "the neighbour";

    rozmowa_.spodziewaj(u"Czy na pewno usunąć zaznaczony miesiąc ?"_s, Odpowiedz::Nie);
    klik(okno, u"cmdUsunListe"_s);
    for (int i = 0; i < 2; ++i) {
        rozmowa_.spodziewaj(u"Czy na pewno usunąć zaznaczony miesiąc ?"_s, Odpowiedz::Tak);
        klik(okno, u"cmdUsunListe"_s);
    }
    EXPECT_FALSE(sesja().cnPlace.jestTabela(u"NADGN200107"_s));
    EXPECT_FALSE(widzet(okno, u"cmdUsunListe"_s).isEnabled());
    EXPECT_EQ(siatka(okno).model()->rowCount(), 0);
    const QSize ekran(1280, 800);
    EXPECT_EQ(okno.minimumSize().expandedTo(okno.minimumSizeHint()).boundedTo(ekran),
              okno.minimumSize().expandedTo(okno.minimumSizeHint()));
}

} // namespace

} // namespace tornel::testy
