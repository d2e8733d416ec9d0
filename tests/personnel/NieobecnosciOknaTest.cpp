// The registers on screen, driven from the menu through their dialogs.
#include "app/frmMain.h"
#include "app/frmMainEkrany.h"
#include "okna/UwagaPola.h"
#include "okna/WidokListy.h"
#include "personnel/frmData.h"
#include "personnel/frmRejUrl.h"
#include "personnel/frmRejZwoln.h"
#include "personnel/frmWybPr.h"
#include "personnel/Kalendarz.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace tornel::testy {

using namespace Qt::StringLiterals;
using schemat::URL;
using schemat::ZW;

namespace {

const QString kWyliczyc = u"Czy wyliczyć czas trwania urlopu ?"_s;
const QString kPokrywaSie = u"Zakres dat rejestrowanego urlopu dla pracownika pokrywa się z innymi już "
                            "zarejestrowanymi urlopami. Urlop nie zostanie zarejestrowane."_s;

class RejestryOknaTest : public BazaTestowa {
protected:
    void SetUp() override {
        dodajPracownika(7, u"Nowak"_s, u"Anna"_s);
        dodajPracownika(8, u"Łoś"_s, u"Jan"_s);
        for (const int mies : {2, 3})
            ASSERT_TRUE(Kalendarz(otoczenie()).Nowy_dniwolne({0, 2001, mies}, Swieta::Zaznaczone));
        Recordset& pr = sesja().rsPRACPR;
        ASSERT_TRUE(pr.Znajdz(7));
        pr.ustaw(schemat::PRACPR("il_url"), qint64{26});
        pr.ustaw(schemat::PRACPR("il_zal_url"), qint64{3});
        pr.UpdateBatch(u"Dane testu");
    }
    /// What the clerk does in the windows that open one after the other, as soon as each is there.
    template <typename Okno>
    void potem(std::function<void(Okno&)> czyn) {
        kolejka.push_back([czyn] {
            auto* okno = qobject_cast<Okno*>(QApplication::activeModalWidget());
            if (!okno || !okno->isActiveWindow() || !QApplication::focusWidget()) return Czyn();
            return Czyn([czyn, okno] { czyn(*okno); });
        });
    }
    void nastepny(int cierpliwosc = 1000) {
        if (kolejka.empty()) return;
        QTimer::singleShot(5, &kontekst, [this, cierpliwosc] {
            if (kolejka.empty()) return;
            if (const Czyn czyn = kolejka.front()()) {
                kolejka.pop_front();
                nastepny();
                czyn();
            } else if (cierpliwosc > 0) {
                nastepny(cierpliwosc - 1);
            } else {
                ADD_FAILURE() << "the expected window never opened";
                kolejka.clear();
                while (auto* modalne = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                    modalne->reject();
            }
        });
    }
    static void klawisz(Qt::Key k) { QTest::keyClick(QApplication::focusWidget(), k); }
    /// A mnemonic presses its button for a moment before the click. The platform of the tests gives no focus
    /// back to a window whose dialog has closed.
    static void alt(QWidget& okno, Qt::Key k) {
        aktywuj(okno);
        QTest::keyClick(&okno, k, Qt::AltModifier);
        QTest::qWait(200);
        aktywuj(okno);
    }
    static void aktywuj(QWidget& okno) {
        okno.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&okno));
    }
    static void pisz(const char* tekst) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(tekst));
    }
    static QString pole(QWidget& okno, const QString& nazwa) {
        return okno.findChild<QLineEdit*>(nazwa)->text();
    }
    static WidokListy& lista(QWidget& okno) { return *okno.findChild<WidokListy*>(u"lvwLista"_s); }

    /// An end before the start is refused in two sentences, then a good one is taken.
    static void wpiszZakres(frmData& okno) {
        EXPECT_EQ(okno.windowTitle(), u"Data"_s);
        pisz("26022001");
        EXPECT_EQ(pole(okno, u"dtDo"_s), u"26-02-2001"_s) << "one day, until the end is typed";
        klawisz(Qt::Key_Tab);
        const auto uwaga = [&] { return UwagaPola::zdanie(*okno.findChild<QLineEdit*>(u"dtDo"_s)); };
        pisz("06022001");
        EXPECT_EQ(uwaga(), u"Data końcowa musi być większa lub równa od  daty początkowej."_s);
        klawisz(Qt::Key_Return);
        EXPECT_TRUE(okno.isVisible());
        EXPECT_EQ(uwaga(), u"Data końcowa musi być większ od początkowej."_s);
        pisz("06032001");
        EXPECT_EQ(uwaga(), QString());
        klawisz(Qt::Key_Tab);
        klawisz(Qt::Key_Down);
        klawisz(Qt::Key_Down);
        klawisz(Qt::Key_Return);
    }

    QObject kontekst; ///< a doing that never came ends with the test
    using Czyn = std::function<void()>;
    std::deque<std::function<Czyn()>> kolejka; ///< each gives its doing once its window is there
};

TEST_F(RejestryOknaTest, UrlopOdMenuDoWiersza) {
    frmMain glowne(otoczenie());
    ZarejestrujEkrany(glowne, otoczenie());
    glowne.wczytaj();
    rozmowa_.spodziewaj(kWyliczyc, Odpowiedz::Tak, u"?"_s);

    potem<frmRejUrl>([](frmRejUrl& ekran) {
        EXPECT_EQ(ekran.windowTitle(), u"Urlopy i inne przerwy"_s);
        EXPECT_EQ(lista(ekran).lista().rowCount(), 0);
        alt(ekran, Qt::Key_N);
        EXPECT_EQ(lista(ekran).lista().rowCount(), 1);
        EXPECT_EQ(lista(ekran).lista().index(0, 0).data(), u"26/02/2001"_s);
        EXPECT_EQ(lista(ekran).lista().index(0, 1).data(), u"06/03/2001"_s);
        EXPECT_EQ(lista(ekran).lista().index(0, 3).data(), u"Nowak Anna"_s);
        EXPECT_EQ(pole(ekran, u"txtIlDni"_s), u"7"_s);
        EXPECT_EQ(pole(ekran, u"txtPrzysluguje"_s), u"29"_s);
        EXPECT_EQ(pole(ekran, u"txtWykorzystano"_s), u"0"_s) << "special leave is no vacation proper";
        // The new row is ready to be typed into: kind, days, amount.
        EXPECT_EQ(QApplication::focusWidget()->objectName(), u"cboRodzaj"_s);
        klawisz(Qt::Key_Home);
        klawisz(Qt::Key_Tab);
        pisz("6");
        klawisz(Qt::Key_Tab);
        pisz("12,345");
        klawisz(Qt::Key_Tab);
        EXPECT_EQ(pole(ekran, u"txtKwota"_s), u"12,34"_s);
        pisz("331");
        klawisz(Qt::Key_Escape);
    });
    potem<frmWybPr>([](frmWybPr&) {
        pisz("now");
        klawisz(Qt::Key_Return);
    });
    potem<frmData>(wpiszZakres);
    nastepny();
    glowne.akcja(Wejscie::Urlopy)->trigger();
    EXPECT_TRUE(kolejka.empty());

    Recordset rs(URL);
    rs.Open(sesja().cnPlace);
    ASSERT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(rs.liczba(URL("prc_id")), 7);
    EXPECT_EQ(rs.data(URL("data_do")), QDate(2001, 3, 6));
    EXPECT_EQ(rs.liczba(URL("Rodzaj")), 0);
    EXPECT_EQ(rs.liczba(URL("il_dni")), 6);
    EXPECT_EQ(rs.kwota(URL("Kwota")), zl(12.34));
    EXPECT_EQ(rs.tekst(URL("KodZUS")), u"331"_s);
}

TEST_F(RejestryOknaTest, PokrycieIRezygnacjaNiczegoNieDopisuja) {
    RejestrUrlopow urlopy(otoczenie());
    for (const qint64 prcId : {7, 8}) {
        rozmowa_.spodziewaj(kWyliczyc, Odpowiedz::Nie);
        ASSERT_TRUE(urlopy.Zarejestruj({prcId, {QDate(2001, 3, 5), QDate(2001, 3, 9)}}));
    }
    frmRejUrl ekran(otoczenie());
    ekran.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ekran));
    const auto nowy = [&] {
        aktywuj(ekran);
        nastepny();
        QTest::keyClick(&ekran, Qt::Key_Insert);
        EXPECT_TRUE(kolejka.empty());
        EXPECT_EQ(lista(ekran).lista().rowCount(), 2);
    };
    lista(ekran).wybierz(lista(ekran).lista().id(1));
    potem<frmWybPr>([](frmWybPr& okno) {
        EXPECT_EQ(okno.wybrani(), QList<qint64>{8}) << "the employee of the row shown is offered first";
        klawisz(Qt::Key_Return);
    });
    potem<frmData>([](frmData&) {
        pisz("09032001");
        klawisz(Qt::Key_Return);
    });
    rozmowa_.spodziewaj(kPokrywaSie, Styl::Wykrzyknik);
    nowy();
    potem<frmWybPr>([](frmWybPr&) { klawisz(Qt::Key_Return); });
    potem<frmData>([](frmData&) {
        pisz("31022001"); // no such day
        klawisz(Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), u"dtOd"_s);
        klawisz(Qt::Key_Escape);
    });
    nowy();
    // A dismissed employee is offered only once the clerk asks for the dismissed.
    ASSERT_TRUE(sesja().rsPRACPR.Znajdz(7));
    sesja().rsPRACPR.ustawFlage(schemat::PRACPR("Zwoln"), true);
    sesja().rsPRACPR.UpdateBatch(u"Dane testu");
    potem<frmWybPr>([](frmWybPr& okno) {
        EXPECT_EQ(okno.findChild<WidokListy*>()->lista().wiersz(7), -1);
        okno.findChild<QCheckBox*>(u"chkZwolnieni"_s)->click();
        EXPECT_EQ(okno.wybrani(), QList<qint64>{8}) << "still chosen";
        EXPECT_TRUE(okno.findChild<WidokListy*>()->wybierz(7));
        EXPECT_EQ(okno.wybrani(), QList<qint64>{7});
        klawisz(Qt::Key_Escape);
    });
    nowy();
}

TEST_F(RejestryOknaTest, ZmianaZwolnieniaUsuniecieIPrzejscie) {
    stale().StProcL4 = zl(80);
    RejestrZwolnien zwolnienia(otoczenie());
    for (const int d : {1, 11, 21})
        ASSERT_TRUE(zwolnienia.Zarejestruj({8, {QDate(2001, 3, d), QDate(2001, 3, d + 3)}}));
    frmRejZwoln ekran(otoczenie());
    ekran.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ekran));
    EXPECT_EQ(pole(ekran, u"txtCzasTrwania"_s), u"4"_s);
    EXPECT_EQ(pole(ekran, u"txtStProc"_s), u"80,00"_s);
    klawisz(Qt::Key_Return); // from the list to the first field
    pisz("AB");
    klawisz(Qt::Key_Return);
    pisz("1234567");
    lista(ekran).wybierz(lista(ekran).lista().id(1));
    EXPECT_EQ(pole(ekran, u"txtSeria"_s), QString());
    lista(ekran).setFocus();
    rozmowa_.spodziewaj(u"Czy na pewno usunąć wprowadzone zwolnienie ?"_s, Odpowiedz::Tak);
    klawisz(Qt::Key_Delete);
    EXPECT_EQ(pole(ekran, u"dtOd"_s), u"21-03-2001"_s) << "the next one";
    EXPECT_TRUE(ekran.close());

    Recordset rs = zwolnienia.wiersze(8);
    ASSERT_EQ(rs.RecordCount(), 2);
    EXPECT_EQ(rs.tekst(ZW("l4_seria")) + rs.tekst(ZW("l4_nr")), u"AB1234567"_s);
    rs.MoveNext();
    EXPECT_EQ(rs.data(ZW("Data")), QDate(2001, 3, 21));
    EXPECT_EQ(rs.tekst(ZW("l4_seria")), QString());
}

TEST_F(RejestryOknaTest, DziesiecTysiecyUrlopowOtwieraSieOdRazu) {
    {
        Recordset rs(URL);
        rs.Open(sesja().cnPlace);
        for (int i = 0; i < 10'000; ++i) {
            rs.AddNewZero(1 + i / 10);
            rs.ustaw(URL("Naz"), u"Nazwisko%1"_s.arg(i / 10));
            rs.ustaw(URL("Data"), QDate(1991 + i % 10, 7, 1));
            rs.ustaw(URL("data_do"), QDate(1991 + i % 10, 7, 14));
        }
        rs.UpdateBatch(u"Dane testu");
    }
    QElapsedTimer zegar;
    zegar.start();
    frmRejUrl ekran(otoczenie());
    ekran.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ekran));
    const qint64 otwarcie = zegar.restart();
    for (int i = 0; i < 50; ++i) klawisz(Qt::Key_Down);
    const qint64 kroki = zegar.elapsed();
    EXPECT_EQ(pole(ekran, u"txtNr"_s), u"6"_s);
    // With the sanitizers; without them it is a tenth of that.
    EXPECT_LT(otwarcie, 3000);
    EXPECT_LT(kroki, 3000) << "a step reads one row, not the register";
}

} // namespace

} // namespace tornel::testy
