// The calendars on screen: days toggled and described by key, stored on leaving; employees and the transport.
#include "app/frmMain.h"
#include "app/frmMainEkrany.h"
#include "okna/Aplikacja.h"
#include "okna/frmInputData.h"
#include "okna/WidokListy.h"
#include "personnel/frmDniWolne.h"
#include "personnel/frmDniWolnePr.h"
#include "personnel/frmTrDoPr.h"
#include "personnel/frmWybPr.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

const QString kUsunacMiesiacWolny = u"Czy na pewno chcesz usunąć miesiąc z listy dni wolnych ?"_s;

class KalendarzOknaTest : public BazaTestowa {
protected:
    void SetUp() override {
        for (const qint64 prcId : {7, 8, 9}) dodajPracownika(prcId, u"Prac%1"_s.arg(prcId), u"Jan"_s);
        stale().AktRejPrzepDni = stale().OsobHarPrac = true;
    }
    void miesiace(qint64 prcId, const QList<std::pair<int, int>>& lata) {
        for (const auto& [rok, mies] : lata) ASSERT_TRUE(kalendarz().Nowy_dniwolne({prcId, rok, mies}));
    }
    Kalendarz kalendarz() { return Kalendarz(otoczenie()); }
    template <typename Ekran>
    Ekran& pokaz() {
        auto nowy = std::make_unique<Ekran>(otoczenie());
        Ekran& ekran = *nowy;
        okno = std::move(nowy);
        okno->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(okno.get()));
        return ekran;
    }
    template <typename K>
    K& k(const QString& nazwa) {
        return *okno->findChild<K*>(nazwa);
    }
    WidokListy& lista(const QString& nazwa = u"lvwMies"_s) { return k<WidokListy>(nazwa); }
    void wybierzMiesiac(int rok, int mies) { EXPECT_TRUE(lista().wybierz(rok * 100 + mies)); }
    QStringList naLiscie(const QString& nazwa = u"lvwMies"_s) {
        QStringList wynik;
        for (int i = 0; i < lista(nazwa).lista().rowCount(); ++i)
            wynik.append(lista(nazwa).lista().index(i, 0).data().toString() + u' ' +
                         lista(nazwa).lista().index(i, 1).data().toString());
        return wynik;
    }
    void kliknij(const QString& nazwa) { k<QPushButton>(nazwa).click(); }
    static void klawisz(Qt::Key klucz) { QTest::keyClick(QApplication::focusWidget(), klucz); }
    /// A mnemonic presses its button for a moment before the click. The platform of the tests gives no focus
    /// back to a window whose dialog has closed.
    static void alt(QWidget& ekran, Qt::Key k) {
        aktywuj(ekran);
        QTest::keyClick(&ekran, k, Qt::AltModifier);
        QTest::qWait(200);
        aktywuj(ekran);
    }
    static void aktywuj(QWidget& ekran) {
        ekran.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&ekran));
    }
    static QString wOgnisku() {
        return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
    }
    /// What the clerk does in the next window that opens.
    template <typename Okno>
    static void wNastepnym(std::function<void(Okno&)> czyn) {
        QTimer::singleShot(0, qApp, [czyn] {
            auto* nastepne = qobject_cast<Okno*>(QApplication::activeModalWidget());
            ASSERT_TRUE(nastepne) << "another window, or none";
            czyn(*nastepne);
        });
    }
    static void podajMiesiac(int rok, int mies) {
        wNastepnym<frmInputData>([=](frmInputData& dialog) {
            dialog.findChild<QComboBox*>(u"cboMies"_s)->setCurrentIndex(mies - 1);
            dialog.findChild<QSpinBox*>(u"spnRok"_s)->setValue(rok);
            dialog.findChild<QPushButton*>(u"cmdOK"_s)->click();
        });
    }
    std::unique_ptr<QDialog> okno;
};

TEST_F(KalendarzOknaTest, DniMiesiacaOdMenuDoPliku) {
    miesiace(0, {{2000, 2}, {2001, 5}});
    frmMain glowne(otoczenie());
    ZarejestrujEkrany(glowne, otoczenie());
    glowne.wczytaj();
    wNastepnym<frmDniWolne>([](frmDniWolne& ekran) {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ekran));
        EXPECT_EQ(ekran.windowTitle(), u"Dni Wolne (lista ogólna) Maj 2001"_s);
        QLabel& numer = *ekran.findChild<QLabel*>(u"labDzien2"_s);
        QLabel& wolne = *ekran.findChild<QLabel*>(u"labWolne"_s);
        EXPECT_EQ(ekran.findChild<QLabel*>(u"labNazwa2"_s)->text(), u"Środa"_s);
        EXPECT_EQ(wolne.text(), u"8"_s);
        EXPECT_FALSE(numer.property("wolny").toBool());
        klawisz(Qt::Key_Return); // from the list to the first day
        EXPECT_EQ(wOgnisku(), u"chkWolny1"_s);
        klawisz(Qt::Key_Up);
        klawisz(Qt::Key_Down);
        EXPECT_EQ(wOgnisku(), u"chkWolny2"_s);
        klawisz(Qt::Key_Space);
        EXPECT_TRUE(numer.property("wolny").toBool());
        EXPECT_EQ(wolne.text(), u"9"_s);
        QTest::keyClicks(QApplication::focusWidget(), u"m"_s); // a letter begins the description
        EXPECT_EQ(wOgnisku(), u"txtOpis2"_s);
        QTest::keyClicks(QApplication::focusWidget(), u"ost"_s);
        klawisz(Qt::Key_Return);
        EXPECT_EQ(wOgnisku(), u"chkWolny3"_s);
        klawisz(Qt::Key_Right);
        EXPECT_EQ(wOgnisku(), u"chkWolny19"_s);
        klawisz(Qt::Key_Space); // a Saturday worked
        klawisz(Qt::Key_Left);
        EXPECT_EQ(wOgnisku(), u"chkWolny3"_s);
        klawisz(Qt::Key_Escape);
        EXPECT_FALSE(ekran.isVisible());
    });
    glowne.akcja(Wejscie::DniWolneOgolne)->trigger();
    const TrescMiesiaca maj = *kalendarz().WypiszDni({0, 2001, 5});
    EXPECT_EQ(maj.dni[2], DniKalendarza::Wolny);
    EXPECT_EQ(maj.dni[19], DniKalendarza::Roboczy);
    EXPECT_EQ(maj.dni[20], DniKalendarza::Wolny);
    EXPECT_EQ(maj.opis(2), u"most"_s);
    EXPECT_EQ(maj.dni.ile(DniKalendarza::Wolny), 8);
}

TEST_F(KalendarzOknaTest, LutyChowaBrakujaceDniAWyborMiesiacaZapisuje) {
    miesiace(0, {{2000, 2}, {2001, 2}, {2001, 3}});
    pokaz<frmDniWolne>();
    EXPECT_EQ(naLiscie(), (QStringList{u"Luty 2000"_s, u"Luty 2001"_s, u"Marzec 2001"_s}));
    const std::tuple<int, int, int> dlugosci[] = {{2000, 2, 29}, {2001, 2, 28}, {2001, 3, 31}, {2000, 2, 29}};
    for (const auto& [rok, mies, dni] : dlugosci) {
        wybierzMiesiac(rok, mies);
        for (int d = 1; d <= 31; ++d)
            for (const auto& nazwa : {u"chkWolny%1"_s, u"txtOpis%1"_s, u"labDzien%1"_s, u"labNazwa%1"_s})
                EXPECT_EQ(k<QWidget>(nazwa.arg(d)).isVisible(), d <= dni) << rok << ' ' << mies << ' ' << d;
        EXPECT_EQ(k<QLabel>(u"labDni"_s).text(), QString::number(dni));
    }
    k<QCheckBox>(u"chkWolny29"_s).click();
    wybierzMiesiac(2001, 3);
    EXPECT_FALSE(k<QCheckBox>(u"chkWolny29"_s).isChecked());
    EXPECT_EQ(kalendarz().dni({0, 2000, 2}).value()[29], DniKalendarza::Wolny);
    EXPECT_EQ(kalendarz().dni({0, 2000, 2}).value()[30], DniKalendarza::NieMa);
    EXPECT_EQ(kalendarz().dni({0, 2001, 3}).value()[29], DniKalendarza::Roboczy);
}

TEST_F(KalendarzOknaTest, NowyMiesiacSwietaIUsuniecie) {
    pokaz<frmDniWolne>();
    EXPECT_EQ(okno->windowTitle(), u"Dni Wolne (lista ogólna)"_s);
    for (const QString& zamkniety : {u"cmdUsun"_s, u"cmdSwieta"_s})
        EXPECT_FALSE(k<QPushButton>(zamkniety).isEnabled());
    podajMiesiac(2001, 12);
    kliknij(u"cmdNowy"_s);
    // The next month is proposed.
    wNastepnym<frmInputData>([](frmInputData& dialog) {
        EXPECT_EQ(dialog.data(), QDate(2002, 1, 1));
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    kliknij(u"cmdNowy"_s);
    podajMiesiac(2001, 12);
    rozmowa_.spodziewaj(u"Taki miesiąc już istnieje !"_s, Styl::Wykrzyknik);
    kliknij(u"cmdNowy"_s);
    EXPECT_EQ(naLiscie(), (QStringList{u"Grudzień 2001"_s, u"Styczeń 2002"_s}));
    EXPECT_EQ(okno->windowTitle(), u"Dni Wolne (lista ogólna) Styczeń 2002"_s);

    wybierzMiesiac(2001, 12);
    k<QCheckBox>(u"chkWolny24"_s).click(); // unsaved when the holidays are marked
    rozmowa_.spodziewaj(u"Czy zaznaczyć święta ustawowe 2001 roku jako dni wolne w miesiącach, które są w "
                        "kalendarzu ?"_s,
                        Odpowiedz::Tak);
    alt(*okno, Qt::Key_T);
    for (const int d : {24, 25, 26}) EXPECT_TRUE(k<QCheckBox>(u"chkWolny%1"_s.arg(d)).isChecked()) << d;
    EXPECT_EQ(k<QLabel>(u"labWolne"_s).text(), u"13"_s);
    k<QCheckBox>(u"chkWolny27"_s).click();
    rozmowa_.spodziewaj(kUsunacMiesiacWolny, Odpowiedz::Tak);
    kliknij(u"cmdUsun"_s);
    EXPECT_EQ(naLiscie(), QStringList{u"Styczeń 2002"_s});
    rozmowa_.spodziewaj(kUsunacMiesiacWolny, Odpowiedz::Tak);
    kliknij(u"cmdUsun"_s);
    EXPECT_EQ(naLiscie(), QStringList());
    EXPECT_FALSE(k<QWidget>(u"chkWolny1"_s).isVisible());
    EXPECT_TRUE(okno->close());
    EXPECT_TRUE(kalendarz().pusty());
}

TEST_F(KalendarzOknaTest, NieudanyZapisZostawiaMiesiacIWpisaneDni) {
    miesiace(0, {{2001, 4}, {2001, 5}});
    pokaz<frmDniWolne>();
    k<QCheckBox>(u"chkWolny2"_s).click();
    sesja().cnPlace.wykonaj(
        "CREATE TRIGGER awaria BEFORE UPDATE ON KALENDARZ BEGIN SELECT RAISE(ABORT, 'awaria'); END");
    auto* program = qobject_cast<Aplikacja*>(qApp);
    const auto dawna = qScopeGuard([&] {
        program->ustawNaprawe([](const QString& komunikat) { ADD_FAILURE() << komunikat.toStdString(); });
    });
    QStringList bledy;
    program->ustawNaprawe([&](const QString& komunikat) {
        bledy.append(komunikat);
        sesja().OdswiezUchwyty();
    });
    QTimer::singleShot(0, &lista(), [this] { wybierzMiesiac(2001, 4); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return bledy.size() == 1; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return lista().wybrany() == 200105; })) << "the list goes back";
    EXPECT_TRUE(k<QCheckBox>(u"chkWolny2"_s).isChecked()) << "what was typed is not lost";
    EXPECT_EQ(okno->windowTitle().remove(u"[*]"_s), u"Dni Wolne (lista ogólna) Maj 2001"_s);
    sesja().cnPlace.wykonaj("DROP TRIGGER awaria");
    wybierzMiesiac(2001, 4);
    EXPECT_EQ(kalendarz().dni({0, 2001, 5}).value()[2], DniKalendarza::Wolny);
}

TEST_F(KalendarzOknaTest, KalendarzePracownikow) {
    miesiace(7, {{2001, 4}, {2001, 5}});
    miesiace(9, {{2001, 4}, {2001, 5}, {2001, 6}});
    pokaz<frmDniWolnePr>();
    const QString prac = u"lvwPrac"_s;
    EXPECT_EQ(naLiscie(prac), (QStringList{u"007 Prac7 Jan"_s, u"009 Prac9 Jan"_s}));
    wybierzMiesiac(2001, 4);
    k<QCheckBox>(u"chkWolny2"_s).click();
    lista(prac).wybierz(9);
    EXPECT_EQ(lista().wybrany(), 200104) << "the same month of the next one";
    EXPECT_FALSE(k<QCheckBox>(u"chkWolny2"_s).isChecked());
    EXPECT_EQ(kalendarz().dni({7, 2001, 4}).value()[2], DniKalendarza::Wolny);

    podajMiesiac(2001, 5);
    rozmowa_.spodziewaj(u"Ten miesiąc dla wybranego pracownika już istnieje!"_s, Styl::Wykrzyknik);
    kliknij(u"cmdNowy"_s);
    podajMiesiac(2001, 7);
    kliknij(u"cmdNowy"_s);
    EXPECT_EQ(kalendarz().miesiace(9).size(), 4);
    wNastepnym<frmWybPr>([](frmWybPr& wybor) {
        wybor.findChild<WidokListy*>(u"lvwWybPr"_s)->wybierz(8);
        podajMiesiac(2001, 1);
        wybor.findChild<QPushButton*>(u"cmdWybierz"_s)->click();
    });
    kliknij(u"cmdNowyPrac"_s);
    EXPECT_EQ(naLiscie(prac).size(), 3);
    EXPECT_EQ(lista(prac).wybrany(), 8);
    EXPECT_EQ(naLiscie(), QStringList{u"Styczeń 2001"_s});
    rozmowa_.spodziewaj(
        u"Czy na pewno chcesz usunąć miesiąc z listy dni wolnych dla wybranego pracownika ?"_s,
        Odpowiedz::Tak);
    kliknij(u"cmdUsun"_s);
    EXPECT_EQ(naLiscie(prac), (QStringList{u"007 Prac7 Jan"_s, u"009 Prac9 Jan"_s}))
        << "gone with his last month";

    lista(prac).wybierz(9);
    k<QCheckBox>(u"chkWolny3"_s).click();
    rozmowa_.spodziewaj(
        u"Czy na pewno chcesz usunąć wszystkie miesiące z listy dni wolnych dla wybranego pracownika ?"_s,
        Odpowiedz::Tak);
    kliknij(u"cmdUsunPrac"_s);
    EXPECT_EQ(kalendarz().pracownicy(), QList<qint64>{7});
    EXPECT_EQ(lista(prac).wybrany(), 7);
    EXPECT_TRUE(okno->close());
}

TEST_F(KalendarzOknaTest, TransportDoWybranychIDoWszystkich) {
    miesiace(0, {{2001, 5}});
    pokaz<frmTrDoPr>();
    EXPECT_EQ(k<QComboBox>(u"cboMies"_s).currentIndex(), 4) << "the calendar's last month is proposed";
    EXPECT_EQ(k<QSpinBox>(u"spnRok"_s).value(), 2001);
    rozmowa_.spodziewaj(u"Nie przetransportowano dni wolnych do pracowników."_s, Styl::Wykrzyknik);
    kliknij(u"cmdWybrani"_s);
    const auto odpowiedz = [this](Odpowiedz o) {
        rozmowa_.spodziewaj(u"Czy zmienić już istniejące kalendarze pracowników ?"_s, o);
        rozmowa_.spodziewaj(u"Transport dni wolnych do pracowników zakończony."_s, Styl::Informacja);
    };
    lista(u"lvwPrac"_s).wybierz(8);
    odpowiedz(Odpowiedz::Nie);
    alt(*okno, Qt::Key_W);
    EXPECT_EQ(kalendarz().pracownicy(), QList<qint64>{8});
    odpowiedz(Odpowiedz::Nie);
    alt(*okno, Qt::Key_S);
    EXPECT_EQ(kalendarz().pracownicy(), (QList<qint64>{7, 8, 9}));
    EXPECT_TRUE(okno->isVisible()) << "another month may follow";
}

TEST_F(KalendarzOknaTest, TransportBezPracownikowNieOtwieraEkranu) {
    for (const qint64 prcId : {7, 8, 9}) {
        ASSERT_TRUE(sesja().rsPRACPR.Znajdz(prcId));
        sesja().rsPRACPR.ustawFlage(schemat::PRACPR("Zwoln"), true);
    }
    sesja().rsPRACPR.UpdateBatch(u"Dane testu");
    rozmowa_.spodziewaj(u"Brak pracowników na liście."_s, Styl::Informacja);
    EXPECT_EQ(frmTrDoPr(otoczenie()).exec(), QDialog::Rejected);
}

} // namespace

} // namespace tornel::testy
