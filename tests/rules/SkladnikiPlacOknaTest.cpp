#include "common/Blad.h"
#include "rules/frmSkladnikiPlac.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace tornel::testy {

using namespace Qt::StringLiterals;
using schemat::SZ_PL;

namespace {

const QString kZapisacSkladniki = u"Czy zapisać wprowadzone zmiany?"_s;

class SkladnikiEkranTest : public BazaTestowa {
protected:
    void pokaz() {
        okno = std::make_unique<frmSkladnikiPlac>(otoczenie());
        okno->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(okno.get()));
    }
    template <typename K>
    K& pole(const char16_t* nazwa, int nr) {
        return *okno->findChild<K*>(u"%1(%2)"_s.arg(QString::fromUtf16(nazwa)).arg(nr));
    }
    void wpisz(const char16_t* nazwa, int nr, const QString& tekst) {
        auto& linia = pole<QLineEdit>(nazwa, nr);
        linia.setFocus(Qt::TabFocusReason);
        linia.selectAll();
        linia.insert(tekst); // as a paste: no more than the field takes
        emit linia.textEdited(linia.text());
    }
    void zakladka(int nr) { okno->findChild<QTabWidget*>(u"zakladki"_s)->setCurrentIndex(nr); }
    void kliknij(const char16_t* nazwa) { okno->findChild<QPushButton*>(QString::fromUtf16(nazwa))->click(); }
    int aktywnych(int od) {
        int ile = 0;
        for (int nr = od; nr < od + 15; ++nr) ile += pole<QCheckBox>(u"chkAkt", nr).isChecked();
        return ile;
    }
    /// All records as the file has them.
    QStringList wPliku() {
        QStringList wynik;
        Recordset rs(schemat::SZ_PL);
        for (rs.Open(sesja().cnPlace); !rs.EOF_(); rs.MoveNext()) {
            QStringList pola{QString::number(rs.liczba(SZ_PL("NR")))};
            for (int k = 1; k < static_cast<int>(schemat::SZ_PL.kolumny.size()); ++k)
                pola.append(rs.tekst(schemat::SZ_PL.nr(k)));
            wynik.append(pola.join(u';'));
        }
        return wynik;
    }
    std::unique_ptr<frmSkladnikiPlac> okno;
};

TEST_F(SkladnikiEkranTest, ZmienioneZapisujeSieRazemIWchodziDoPamieci) {
    QStringList oczekiwane = wPliku();
    pokaz();
    EXPECT_EQ(pole<QLineEdit>(u"txtK2", 10).text(), u"331"_s);
    EXPECT_EQ(okno->findChild<QWidget*>(u"txtK1(31)"_s), nullptr) << "negative components have no codes";
    wpisz(u"txtNazwa", 1, u"O'Hara <b>; 1"_s);
    wpisz(u"txtNazwa", 45, QString(200, u'ż'));
    wpisz(u"txtK1", 30, u"123456"_s);
    wpisz(u"txtK2", 30, u"3x\"z"_s);
    zakladka(1);
    pole<QCheckBox>(u"chkZus", 30).click();
    pole<QCheckBox>(u"chkBrutto", 45).click();
    EXPECT_EQ(wPliku(), oczekiwane) << "nothing is stored before the question";
    rozmowa_.spodziewaj(kZapisacSkladniki, Odpowiedz::Tak);
    kliknij(u"Command1");
    EXPECT_FALSE(okno->isVisible());

    oczekiwane[0].replace(u"Płaca zasadnicza"_s, u"O'Hara <b>; 1"_s);
    oczekiwane[29] = u"30;Składnik 30;N;T;N;N;1234;3x\""_s;
    oczekiwane[44] = u"45;"_s + QString(30, u'ż') + u";T;N;N;N;;"_s;
    EXPECT_EQ(wPliku(), oczekiwane);
    const SkladnikiPlac& s = otoczenie().skladniki;
    EXPECT_EQ(s.SkNazwa(1), u"O'Hara <b>; 1"_s);
    EXPECT_TRUE(s.dodatni(30).zus);
    EXPECT_TRUE(s.ujemny(15).brutto);
}

TEST_F(SkladnikiEkranTest, BezZmianNieMaPytaniaAOdmowaJePorzuca) {
    const QStringList przedtem = wPliku();
    pokaz();
    for (int i = 0; i < 130; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(okno.get(), Qt::Key_Escape);
    EXPECT_FALSE(okno->isVisible());

    for (const bool zamkniecie : {false, true}) {
        pokaz();
        wpisz(u"txtNazwa", 2, u"inna"_s);
        rozmowa_.spodziewaj(kZapisacSkladniki, Odpowiedz::Anuluj);
        okno->close();
        EXPECT_TRUE(okno->isVisible());
        EXPECT_EQ(pole<QLineEdit>(u"txtNazwa", 2).text(), u"inna"_s);
        rozmowa_.spodziewaj(kZapisacSkladniki, Odpowiedz::Nie);
        if (zamkniecie)
            EXPECT_TRUE(okno->close());
        else
            QTest::keyClick(okno.get(), Qt::Key_Escape);
        EXPECT_FALSE(okno->isVisible());
        EXPECT_EQ(wPliku(), przedtem);
        EXPECT_EQ(otoczenie().skladniki.SkNazwa(2), u"Premia %"_s);
    }
}

TEST_F(SkladnikiEkranTest, UaktywnijDzialaNaPokazanejZakladce) {
    pokaz();
    zakladka(1);
    ASSERT_EQ(aktywnych(16), 9);
    const int innych = aktywnych(1) + aktywnych(31);
    for (const int ile : {15, 0, 15}) {
        kliknij(u"Command2");
        EXPECT_EQ(aktywnych(16), ile);
        EXPECT_EQ(aktywnych(1) + aktywnych(31), innych);
    }
    rozmowa_.spodziewaj(kZapisacSkladniki, Odpowiedz::Tak);
    okno->reject();
    EXPECT_TRUE(otoczenie().skladniki.SkAkt(25));
}

TEST_F(SkladnikiEkranTest, KlawiszeProwadzaJakPoTabeli) {
    pokaz();
    const auto gdzie = [] { return QApplication::focusWidget()->objectName(); };
    EXPECT_EQ(gdzie(), u"txtNazwa(1)"_s);
    const std::pair<Qt::Key, QString> kroki[] = {
        {Qt::Key_Up, u"txtNazwa(1)"_s}, {Qt::Key_Down, u"txtNazwa(2)"_s}, {Qt::Key_Return, u"chkBrutto(2)"_s},
        {Qt::Key_Tab, u"chkZus(2)"_s},  {Qt::Key_Up, u"chkZus(1)"_s},
    };
    for (const auto& [klawisz, cel] : kroki) {
        QTest::keyClick(QApplication::focusWidget(), klawisz);
        EXPECT_EQ(gdzie(), cel) << klawisz;
    }
    pole<QLineEdit>(u"txtNazwa", 15).setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_EQ(gdzie(), u"txtNazwa(15)"_s) << "the arrows stay on their tab";
}

TEST_F(SkladnikiEkranTest, NieudanyZapisZostawiaEkranZTekstem) {
    pokaz();
    wpisz(u"txtNazwa", 2, u"inna"_s);
    // Another hand changes a record behind the screen.
    Recordset obcy(schemat::SZ_PL);
    obcy.Open(sesja().cnPlace);
    ASSERT_TRUE(obcy.Znajdz(2));
    obcy.ustaw(SZ_PL("naz_sk"), u"cudza"_s);
    obcy.UpdateBatch(u"Dane testu");
    rozmowa_.spodziewaj(kZapisacSkladniki, Odpowiedz::Tak);
    rozmowa_.spodziewaj(
        u"Wiersz tabeli SZ_PL został tymczasem zmieniony w bazie. Zmiany nie zapisano.\r\n\r\n"
        u"Czy zamknąć okno bez zapisania zmian ?"_s,
        Odpowiedz::Nie);
    okno->reject();
    EXPECT_TRUE(okno->isVisible());
    EXPECT_EQ(pole<QLineEdit>(u"txtNazwa", 2).text(), u"inna"_s);
    EXPECT_EQ(otoczenie().skladniki.SkNazwa(2), u"Premia %"_s);
    sesja().OdswiezUchwyty();
    rozmowa_.spodziewaj(kZapisacSkladniki, Odpowiedz::Tak);
    okno->reject();
    EXPECT_EQ(otoczenie().skladniki.SkNazwa(2), u"inna"_s);
}

TEST_F(SkladnikiEkranTest, BezJednegoZRekordowEkranSieNieOtwiera) {
    ASSERT_TRUE(sesja().rsSZ_PL.Znajdz(17));
    sesja().rsSZ_PL.Delete();
    sesja().rsSZ_PL.UpdateBatch(u"Dane testu");
    EXPECT_THROW(frmSkladnikiPlac{otoczenie()}, Blad);
}

} // namespace

} // namespace tornel::testy
