// The screens of the insurer's documents: choice, remarks, view.
#include "common/Pliki.h"
#include "okna/WidokListy.h"
#include "reports/zus/WydrukDRA.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include "wsparcie/TekstStrony.h"
#include "wsparcie/Widzet.h"
#include "zus/frmKedu.h"
#include "zus/frmListaDRA.h"
#include "zus/frmUwagiKedu.h"
#include "zus/frmWydrukiZUS.h"
#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;

class ZusOkna : public testing::Test {
protected:
    ZusOkna() {
        UtworzPrzyklad(folder_.filePath(u"Tornel.mdb"_s), 12, 3, folder_.path());
        program_ = std::make_unique<Program>(folder_.filePath(u"Tornel.mdb"_s), folder_.path(), rozmowa_);
    }
    Otoczenie& o() { return program_->otoczenie(); }
    PortKedu doPliku(const QString& plik) {
        PortKedu port;
        port.wybierzPlik = [this, plik](QWidget*, const QString& folder) {
            EXPECT_EQ(folder, o().stale.PathKDU);
            return std::optional(plik);
        };
        return port;
    }

    QTemporaryDir folder_;
    RozmowaSkrypt rozmowa_;
    std::unique_ptr<Program> program_;
};

TEST_F(ZusOkna, WyborZostajeWStalejATypPozaZakresemToZero) {
    {
        frmWydrukiZUS okno(o());
        okno.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
        for (const char16_t* nazwa : {u"chkZUSZUA", u"chkZUSRSA", u"chkZUSZAA"})
            widzet<QCheckBox>(okno, QString::fromUtf16(nazwa)).setChecked(true);
        EXPECT_FALSE(widzet<QCheckBox>(okno, u"chkZUSDRA"_s).isEnabled());
        auto& zpa = widzet<QLineEdit>(okno, u"txtZUSZPA"_s);
        auto& zfa = widzet<QLineEdit>(okno, u"txtZUSZFA"_s);
        auto& podpowiedz = widzet<QFrame>(okno, u"picTips"_s);
        EXPECT_FALSE(podpowiedz.isVisible());
        for (const auto& [wpisane, zostaje] :
             {std::pair(u"4"_s, u"0"_s), {u"-"_s, u"0"_s}, {QString(), u"0"_s}, {u"3"_s, u"3"_s}}) {
            zpa.setFocus(Qt::TabFocusReason);
            EXPECT_TRUE(podpowiedz.isVisible());
            EXPECT_EQ(zpa.selectedText(), zpa.text()) << "typing replaces it";
            zpa.setText(wpisane);
            widzet<QCheckBox>(okno, u"chkZUSZUA"_s).setFocus();
            EXPECT_EQ(zpa.text(), zostaje) << wpisane.toStdString();
            EXPECT_FALSE(podpowiedz.isVisible());
        }
        zfa.setText(u"2"_s);
        QTest::keyClick(&okno, Qt::Key_Escape);
        EXPECT_FALSE(okno.isVisible());
    }
    EXPECT_EQ(o().stale.WydrukiZUS, u"100000320100010"_s);
    // Another sitting.
    program_ = nullptr;
    program_ = std::make_unique<Program>(folder_.filePath(u"Tornel.mdb"_s), folder_.path(), rozmowa_);
    frmWydrukiZUS okno(o());
    EXPECT_TRUE(widzet<QCheckBox>(okno, u"chkZUSZUA"_s).isChecked());
    EXPECT_FALSE(widzet<QCheckBox>(okno, u"chkZUSZZA"_s).isChecked());
    EXPECT_EQ(widzet<QLineEdit>(okno, u"txtZUSZPA"_s).text(), u"3"_s);
    EXPECT_EQ(widzet<QLineEdit>(okno, u"txtZUSZFA"_s).text(), u"2"_s);
    EXPECT_EQ(widzet<QLabel>(okno, u"labStanZUA"_s).text(), u"oznaczonych: 2"_s);
}

TEST_F(ZusOkna, ZapisanaKolekcjeWidacNaEkranieIWPodgladzie) {
    const QString plik = folder_.filePath(u"kwiecień.kdu"_s);
    QString pokazany;
    PortKedu port = doPliku(plik);
    port.pokaz = [&](const QString& nazwa, QWidget*) { pokazany = nazwa; };
    frmWydrukiZUS okno(o(), port);
    okno.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    widzet<QCheckBox>(okno, u"chkZUSZBA"_s).setChecked(true);
    widzet<QLineEdit>(okno, u"txtZUSZPA"_s).setText(u"1"_s);
    rozmowa_.spodziewaj(u"Plik został wygenerowany."_s, Styl::Informacja);
    QTest::keyClick(&okno, Qt::Key_F9);
    EXPECT_TRUE(widzet<QLabel>(okno, u"labZapisano"_s).text().contains(u"kwiecień.kdu"_s));
    EXPECT_TRUE(widzet<QLabel>(okno, u"labStanZBA"_s).text().startsWith(u"oznaczonych: 2, zapisano "_s));
    widzet<QPushButton>(okno, u"cmdPodglad"_s).click();
    EXPECT_EQ(pokazany, plik);

    std::shared_ptr<const OdczytKedu> drukowana;
    frmKedu podglad(
        o().rozmowa, folder_.path(), plik,
        [&](std::shared_ptr<const OdczytKedu> k, const QString&, QWidget*) { drukowana = std::move(k); });
    podglad.show();
    auto& drzewo = widzet<QTreeView>(podglad, u"tvwKolekcja"_s);
    EXPECT_EQ(drzewo.model()->rowCount(), 2);
    auto& szukaj = widzet<QLineEdit>(podglad, u"txtSzukaj"_s);
    const auto znajdz = [&](const QString& tekst) {
        szukaj.setText(tekst);
        QTest::keyClick(&szukaj, Qt::Key_Return);
        const QModelIndex tu = drzewo.currentIndex();
        return tu.siblingAtColumn(ModelKedu::Wartosc).data().toString();
    };
    EXPECT_EQ(znajdz(u"91420009"_s), u"91420009-000021-27001-60"_s);
    EXPECT_EQ(znajdz(u"liczba rachun"_s), u"002"_s);
    EXPECT_EQ(widzet<QLabel>(podglad, u"labWynik"_s).text(), QString());
    (void)znajdz(u"nie ma takiego"_s);
    EXPECT_EQ(widzet<QLabel>(podglad, u"labWynik"_s).text(), u"nie znaleziono"_s);
    widzet<QPushButton>(podglad, u"cmdDrukuj"_s).click();
    EXPECT_TRUE(drukowana);

    ZapiszPlik(plik, "to nie kolekcja");
    EXPECT_TRUE(podglad.otworz(plik));
    EXPECT_TRUE(widzet<QLabel>(podglad, u"labUwagi"_s).isVisible());
    EXPECT_FALSE(widzet<QPushButton>(podglad, u"cmdDrukuj"_s).isEnabled());
    const QString brak = folder_.filePath(u"brak.kdu"_s);
    rozmowa_.spodziewaj(u"Nie można odczytać pliku „%1”: No such file or directory."_s.arg(brak),
                        Styl::Krytyczny);
    EXPECT_FALSE(podglad.otworz(brak));
}

TEST_F(ZusOkna, ModelKolekcjiJestPrawidlowyISzukaDookola) {
    const QString plik = folder_.filePath(u"a.kdu"_s);
    rozmowa_.spodziewaj(u"Plik został wygenerowany."_s, Styl::Informacja);
    ZamowienieKedu z{.plik = plik, .kiedy = QDateTime({2001, 4, 10}, {12, 0})};
    z.wybor.ustaw(KodKedu::ZUA, 1);
    ASSERT_TRUE(ZbiorKedu(o(), z).StworzPlik());
    ModelKedu model;
    const QAbstractItemModelTester sprawdzian(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_FALSE(model.szukaj(u"x"_s, {}).isValid());
    model.ustaw(std::make_shared<const OdczytKedu>(OdczytKedu::zPliku(plik)));
    ASSERT_EQ(model.rowCount(), 2);
    QStringList dokumenty;
    QModelIndex tu;
    for (int i = 0; i < 3; ++i) {
        tu = model.szukaj(u"Nazwisko rodowe"_s, tu);
        ASSERT_TRUE(tu.isValid());
        dokumenty += tu.parent().parent().siblingAtColumn(ModelKedu::Wartosc).data().toString();
    }
    EXPECT_EQ(dokumenty, (QStringList{u"Dąbek Ewa"_s, u"Kłos Monika"_s, u"Dąbek Ewa"_s}));
}

TEST_F(ZusOkna, UwagaProwadziDoMiejscaAPoprawionaZnika) {
    QList<UwagaKedu> uwagi{{MiejscePoprawki::Pracownik, 4, u"Dąbek Ewa"_s, u"ZUA"_s, u"pierwsza"_s},
                           {MiejscePoprawki::Brak, 0, {}, u"RCA"_s, u"druga"_s}};
    QList<qint64> poprawiane;
    frmUwagiKedu okno([&] { return uwagi; },
                      [&](const UwagaKedu& u, QWidget*) {
                          poprawiane += u.prcId;
                          uwagi.removeFirst();
                      });
    okno.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    QTest::keyClick(okno.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(poprawiane, QList<qint64>{4});
    EXPECT_TRUE(widzet<QLabel>(okno, u"labIle"_s).text().startsWith(u"Uwag: 1."_s));
    EXPECT_FALSE(widzet<QPushButton>(okno, u"cmdOtworz"_s).isEnabled()) << "it leads nowhere";
    uwagi.clear();
    QTest::keyClick(&okno, Qt::Key_F5);
    EXPECT_EQ(widzet<QLabel>(okno, u"labIle"_s).text(), u"Nie ma już uwag."_s);
    widzet<QPushButton>(okno, u"cmdMimo"_s).click();
    EXPECT_EQ(okno.result(), QDialog::Accepted);
}

TEST_F(ZusOkna, RozliczeniePokazujeWplatyIZmianeMiesiaca) {
    (void)RozliczeniaDRA(o()).Nowe({2001, 3}, {}, {2001, 4, 5});
    int wydrukow = 0;
    frmListaDRA okno(o(), [&](QWidget*) { ++wydrukow; });
    okno.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    EXPECT_TRUE(widzet<QLabel>(okno, u"labWplaty"_s).text().contains(u"społeczne (51) 14217,05 zł"_s))
        << widzet<QLabel>(okno, u"labWplaty"_s).text().toStdString();
    auto& baner = widzet<QLabel>(okno, u"labNieaktualne"_s);
    EXPECT_FALSE(baner.isVisible());
    auto& fp = widzet<QLineEdit>(okno, u"txtFp"_s);
    fp.setFocus(Qt::TabFocusReason);
    fp.selectAll();
    QTest::keyClicks(&fp, u"1 000,5"_s);
    widzet<QPushButton>(okno, u"cmdKontrola"_s).click(); // stores first
    EXPECT_EQ(o().sesja.rsZUS.kwota(schemat::ZUS("Fp")), Waluta::zLiczby(1000.5));
    EXPECT_EQ(widzet<QLineEdit>(okno, u"txtDoZaplaty"_s).text(), u"17777,66"_s);
    EXPECT_TRUE(baner.isVisible()) << "the month gives another amount";
    EXPECT_EQ(widzet<WidokListy>(okno, u"lvwKontrola"_s).model()->rowCount(), 7);
    widzet<QPushButton>(okno, u"cmdDrukuj"_s).click();
    EXPECT_EQ(wydrukow, 1);
    porownajZWzorcem(__FILE__, u"dra"_s, *reports::UlozDRA(o()));
    QTest::keyClick(&okno, Qt::Key_Escape);
    EXPECT_FALSE(okno.isVisible());
}

} // namespace

} // namespace tornel::testy
