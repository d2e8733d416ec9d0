// The list of employment contracts driven as a clerk drives it: a new contract, new terms and the question of
// the personnel file, a change, a notice, filters, prints.
#include "common/Daty.h"
#include "okna/WidokListy.h"
#include "personnel/frmUmoP.h"
#include "personnel/frmWybPr.h"
#include "store/Sesja.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Widzet.h"
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using schemat::PRACPR;
using schemat::UMOP;

class UmowyOPraceOkna : public BazaTestowa {
protected:
    UmowyOPraceOkna() {
        for (const qint64 nr : {1, 2}) dodajPracownika(nr, nr == 1 ? u"Nowak"_s : u"Kot"_s);
        Recordset& pr = sesja().rsPRACPR;
        for (const qint64 nr : {1, 2}) {
            EXPECT_TRUE(pr.Znajdz(nr));
            pr.ustaw(PRACPR("data_zatr"), QDate(1990, 1, 1));
            pr.ustaw(PRACPR("umowa_od"), QDate(1990, 1, 1));
            pr.ustaw(PRACPR("etat"), 1);
            pr.ustaw(PRACPR("etat2"), 1);
            pr.ustaw(PRACPR("placa_zas"), zl(1000));
        }
        pr.UpdateBatch(u"Dane testu");
    }
    void ekran() {
        okno_ =
            std::make_unique<frmUmoP>(otoczenie(), nullptr, [this](PismoOPrace pismo, qint64 id, QWidget*) {
                wydane_ += QString::number(static_cast<int>(pismo)) + u':' + QString::number(id);
            });
        okno_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(okno_.get()));
    }
    template <typename T = QLineEdit>
    T& k(const QString& nazwa) {
        return widzet<T>(*okno_, nazwa);
    }
    /// Goes to the field, types over it and leaves it by Tab.
    void wpisz(const QString& nazwa, const QString& tekst) {
        auto& pole = k<QWidget>(nazwa);
        auto& karty = k<QTabWidget>(u"tabUmoP"_s);
        for (int i = 0; i < karty.count(); ++i)
            if (karty.widget(i)->isAncestorOf(&pole)) karty.setCurrentIndex(i);
        okno_->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(okno_.get()));
        pole.setFocus(Qt::TabFocusReason);
        if (auto* linia = qobject_cast<QLineEdit*>(&pole)) linia->selectAll();
        QTest::keyClicks(&pole, tekst);
        if (tekst.isEmpty()) QTest::keyClick(&pole, Qt::Key_Delete);
        QTest::keyClick(&pole, Qt::Key_Tab);
    }
    void klik(const QString& nazwa) { QTest::mouseClick(&k<QPushButton>(nazwa), Qt::LeftButton); }
    void nowaDla(qint64 prcId) {
        QTimer::singleShot(0, qApp, [prcId] {
            const QPointer<frmWybPr> wybor = qobject_cast<frmWybPr*>(QApplication::activeModalWidget());
            ASSERT_TRUE(wybor) << "another screen is open, or none";
            EXPECT_TRUE(widzet<WidokListy>(*wybor, u"lvwWybPr"_s).wybierz(prcId));
            QTest::mouseClick(&widzet(*wybor, u"cmdWybierz"_s), Qt::LeftButton);
        });
        klik(u"cmdNowy"_s);
    }
    QStringList naLiscie(int kolumna) {
        QStringList wynik;
        const QAbstractItemModel& model = *k<WidokListy>(u"lvwLista"_s).model();
        for (int i = 0; i < model.rowCount(); ++i) wynik += model.index(i, kolumna).data().toString();
        return wynik;
    }
    void filtr(const QString& nazwa, int pozycja) {
        auto& wybor = k<QComboBox>(nazwa);
        wybor.setCurrentIndex(pozycja);
        emit wybor.activated(pozycja);
    }
    QString baner() { return k<QLabel>(u"labUwagi"_s).text(); }
    std::optional<UmowaOPrace> zPliku(qint64 id) {
        Recordset rs(UMOP);
        rs.Open(sesja().cnPlace);
        return rs.Znajdz(id) ? std::optional(UmowaZWiersza(rs.biezacyWiersz())) : std::nullopt;
    }

    std::unique_ptr<frmUmoP> okno_;
    QStringList wydane_;
};

const QString kPytanieOKartoteke = u"Czy wpisać do kartoteki pracownika Nowak Anna warunki tej umowy ?\n"
                                   "\npłaca zasadnicza: 1200,00 zł, w kartotece 1000,00 zł"_s;

TEST_F(UmowyOPraceOkna, NewTermsAreStoredOnLeavingAndTheFileIsAskedAbout) {
    ekran();
    EXPECT_EQ(okno_->windowTitle(), u"Lista umów o pracę"_s);
    EXPECT_FALSE(k<QPushButton>(u"cmdDrukuj"_s).isEnabled());
    nowaDla(1);
    EXPECT_EQ(k(u"dtpdata_od"_s).text(), u"01-01-1990"_s);
    EXPECT_EQ(k(u"txtplaca_zas"_s).text(), u"1000,00"_s);
    EXPECT_EQ(k<QComboBox>(u"cborodzaj"_s).currentText(), u"na czas nieokreślony"_s);
    EXPECT_EQ(baner(), QString());
    EXPECT_FALSE(k<QPushButton>(u"cmdKartoteka"_s).isEnabled());

    wpisz(u"txtumop_nr"_s, u"1/90"_s);
    wpisz(u"txtplaca_zas"_s, u"1 200"_s);
    rozmowa_.spodziewaj(kPytanieOKartoteke, Odpowiedz::Nie);
    okno_->drukuj(PismoOPrace::Umowa);
    EXPECT_EQ(wydane_, QStringList{u"0:1"_s});
    EXPECT_EQ(zPliku(1)->warunki.placa, zl(1200));
    EXPECT_EQ(baner(), u"Kartoteka pracownika mówi inaczej: płaca zasadnicza 1000,00 zł."_s);
    EXPECT_EQ(naLiscie(9), QStringList{u"1200,00"_s});
    rozmowa_.spodziewaj(kPytanieOKartoteke, Odpowiedz::Tak);
    klik(u"cmdKartoteka"_s);
    EXPECT_EQ(sesja().rsPRACPR.szukaj(1)->kwota(PRACPR("placa_zas")), zl(1200));
    EXPECT_EQ(baner(), QString());

    // Days that cannot be are refused, and what was typed stays.
    wpisz(u"dtpdata_do"_s, u"31-12-1989"_s);
    rozmowa_.spodziewaj(u"Umowa kończy się 31-12-1989, przed dniem 01-01-1990, od którego trwa."_s,
                        Styl::Wykrzyknik);
    okno_->drukuj(PismoOPrace::Umowa);
    EXPECT_EQ(k(u"dtpdata_do"_s).text(), u"31-12-1989"_s);
    EXPECT_EQ(wydane_.size(), 1);
    wpisz(u"dtpdata_do"_s, {});
    QTest::keyClick(okno_.get(), Qt::Key_Escape);
    EXPECT_FALSE(okno_->isVisible());
    EXPECT_EQ(zPliku(1)->numer, u"1/90"_s);
}

TEST_F(UmowyOPraceOkna, AChangeIsARowBelowItsContract) {
    ekran();
    nowaDla(1);
    const QString pytanie = u"Od którego dnia zmieniają się warunki umowy ?"_s;
    rozmowa_.spodziewaj(pytanie, std::optional<QString>());
    klik(u"cmdZmiana"_s);
    EXPECT_EQ(naLiscie(2).size(), 1) << "cancelled";
    rozmowa_.spodziewaj(pytanie, std::optional(u"kiedyś"_s));
    rozmowa_.spodziewaj(u"„kiedyś” nie jest datą."_s, Styl::Wykrzyknik);
    rozmowa_.spodziewaj(pytanie, std::optional(u"01-01-1990"_s));
    rozmowa_.spodziewaj(u"Umowa trwa od 01-01-1990. Zmiana może być tylko późniejsza."_s, Styl::Wykrzyknik);
    rozmowa_.spodziewaj(pytanie, std::optional(u"1-5-2001"_s));
    klik(u"cmdZmiana"_s);
    EXPECT_EQ(naLiscie(2), (QStringList{u"nieokreślony"_s, u"zmiana"_s}));
    EXPECT_EQ(k(u"dtpdata_od"_s).text(), u"01-05-2001"_s);
    EXPECT_FALSE(k<QComboBox>(u"cborodzaj"_s).isEnabled());
    rozmowa_.spodziewaj(u"Ta zmiana niczego nie zmienia. Wpisz w niej nowe warunki."_s, Styl::Wykrzyknik);
    okno_->drukuj(PismoOPrace::Zmiana);
    wpisz(u"txtplaca_zas"_s, u"1200"_s);
    rozmowa_.spodziewaj(kPytanieOKartoteke, Odpowiedz::Nie);
    okno_->drukuj(PismoOPrace::Zmiana);
    EXPECT_EQ(wydane_, QStringList{u"1:2"_s});
    // The contract below it is no longer the last word, so the file is not compared with it.
    EXPECT_TRUE(k<WidokListy>(u"lvwLista"_s).wybierz(1));
    EXPECT_EQ(baner(), QString());
    EXPECT_TRUE(k<QComboBox>(u"cborodzaj"_s).isEnabled());
}

TEST_F(UmowyOPraceOkna, TheLastDayFollowsFromTheNotice) {
    ekran();
    nowaDla(1);
    rozmowa_.spodziewaj(
        u"Umowa nie jest wypowiedziana. Sposób i datę wypowiedzenia wpisuje się na zakładce „Rozwiązanie”."_s,
        Styl::Wykrzyknik);
    okno_->drukuj(PismoOPrace::Wypowiedzenie);
    wpisz(u"cbosposob"_s, u"wypowiedzenie przez pracod"_s);
    EXPECT_EQ(k(u"dtpdata_roz"_s).text(), QString());
    wpisz(u"dtpdata_wyp"_s, u"5-3-2001"_s);
    EXPECT_EQ(k(u"dtpdata_roz"_s).text(), u"30-06-2001"_s);
    EXPECT_EQ(k<QLabel>(u"labOkres"_s).text(), u"3 miesiące, do 30-06-2001"_s);
    // What the clerk typed there stays.
    wpisz(u"dtpdata_roz"_s, u"31-05-2001"_s);
    wpisz(u"dtpdata_wyp"_s, u"6-3-2001"_s);
    EXPECT_EQ(k(u"dtpdata_roz"_s).text(), u"31-05-2001"_s);
    rozmowa_.spodziewaj(u"Czy wpisać do kartoteki pracownika Nowak Anna warunki tej umowy ?\n"
                        "\numowa do: 31-05-2001, w kartotece (brak)"_s,
                        Odpowiedz::Tak);
    okno_->drukuj(PismoOPrace::Wypowiedzenie);
    EXPECT_EQ(sesja().rsPRACPR.szukaj(1)->data(PRACPR("umowa_do")), QDate(2001, 5, 31));
    okno_->drukuj(PismoOPrace::Swiadectwo);
    EXPECT_EQ(wydane_, (QStringList{u"2:1"_s, u"3:1"_s}));
    EXPECT_EQ(naLiscie(4), QStringList{u"31-05-2001"_s});
    EXPECT_EQ(zPliku(1)->sposob, SposobRozwiazania::WypowiedzenieFirmy);
}

TEST_F(UmowyOPraceOkna, FiltersAndDeletion) {
    ekran();
    nowaDla(2);
    nowaDla(1);
    EXPECT_EQ(naLiscie(1), (QStringList{u"Kot Anna"_s, u"Nowak Anna"_s}));
    filtr(u"cboOsoba"_s, 1);
    EXPECT_EQ(naLiscie(1), QStringList{u"Kot Anna"_s});
    filtr(u"cboRodzaj"_s, 1);
    EXPECT_EQ(naLiscie(1), QStringList());
    EXPECT_EQ(k<QLabel>(u"labIle"_s).text(), u"Na liście: 0 z 2"_s);
    filtr(u"cboRodzaj"_s, 0);
    filtr(u"cboOsoba"_s, 0);
    // One that runs out in five weeks: not within a month, within two.
    wpisz(u"dtpdata_do"_s, FormatDaty(QDate::currentDate().addDays(35)));
    wpisz(u"cborodzaj"_s, u"na czas okre"_s);
    rozmowa_.spodziewaj(u"Czy wpisać do kartoteki pracownika Kot Anna warunki tej umowy ?\n\numowa do: %1, "
                        u"w kartotece (brak)"_s.arg(FormatDaty(QDate::currentDate().addDays(35))),
                        Odpowiedz::Nie);
    filtr(u"cboKoncza"_s, 1);
    EXPECT_EQ(naLiscie(1), QStringList());
    filtr(u"cboKoncza"_s, 2);
    EXPECT_EQ(naLiscie(1), QStringList{u"Kot Anna"_s});
    // A new contract that the filter would hide takes it off.
    nowaDla(1);
    EXPECT_EQ(naLiscie(1), (QStringList{u"Kot Anna"_s, u"Nowak Anna"_s, u"Nowak Anna"_s}));
    rozmowa_.spodziewaj(u"Czy na pewno usunąć zaznaczoną umowę o pracę ?"_s, Odpowiedz::Tak);
    klik(u"cmdUsun"_s);
    EXPECT_EQ(naLiscie(1).size(), 2);
    EXPECT_FALSE(zPliku(3));
}

} // namespace

} // namespace tornel::testy
