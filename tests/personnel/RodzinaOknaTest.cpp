// An employee's family: its own numbers, what a new member starts with, and typing on its screen.
#include "personnel/frmPrac.h"
#include "personnel/frmRodzina.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include "wsparcie/Widzet.h"
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using schemat::RODZINA;

class RodzinaOkna : public testing::Test {
protected:
    RodzinaOkna() {
        UtworzPrzyklad(plik(), 12, 1, folder_.path());
        program_ = std::make_unique<Program>(plik(), folder_.path(), rozmowa_);
    }
    [[nodiscard]] QString plik() const { return folder_.filePath(u"Tornel.mdb"_s); }
    Otoczenie& o() { return program_->otoczenie(); }
    /// What the file holds of a family: number, surname, given name, street, both marks.
    QStringList zPliku(qint64 prcId) {
        Recordset rs(RODZINA);
        rs.Open(o().sesja.cnPlace);
        QStringList wynik;
        for (const auto z : std::as_const(rs).wiersze(prcId)) {
            const Wiersz w(rs, z);
            wynik += u"%1 %2 %3 %4 %5%6"_s.arg(w.liczba(RODZINA("ROD_ID")))
                         .arg(w.tekst(RODZINA("Naz")), w.tekst(RODZINA("Imie")), w.tekst(RODZINA("ulica")))
                         .arg(w.liczba(RODZINA("zcna")))
                         .arg(w.liczba(RODZINA("zcza")));
        }
        wynik.sort();
        return wynik;
    }

    QTemporaryDir folder_;
    RozmowaSkrypt rozmowa_;
    std::unique_ptr<Program> program_;
};

TEST_F(RodzinaOkna, NumerySaWlasneKazdejRodzinyAZwolnionyWraca) {
    Rodzina rodzina(o(), 11);
    EXPECT_EQ(rodzina.numery(), (QList<qint64>{1, 2, 3}));
    rozmowa_.spodziewaj(u"Czy na pewno usunąć z rodziny pracownika osobę: Paweł Lewandowski ?"_s,
                        Odpowiedz::Nie);
    EXPECT_FALSE(rodzina.Usun(2));
    rozmowa_.spodziewaj(u"Czy na pewno usunąć z rodziny pracownika osobę: Paweł Lewandowski ?"_s,
                        Odpowiedz::Tak);
    EXPECT_TRUE(rodzina.Usun(2));
    EXPECT_EQ(rodzina.Nowy(), 2);
    EXPECT_EQ(zPliku(11).at(1), u"2 Lewandowski  Sportowa 00"_s) << "surname and address are the employee's";
    EXPECT_EQ(zPliku(2), QStringList{u"1 Bielak Halina Polna 01"_s}) << "another family is not touched";
    EXPECT_THROW((void)rodzina.Usun(9), Blad);
    EXPECT_EQ(Rodzina(o(), 5).numery(), QList<qint64>());
}

TEST_F(RodzinaOkna, WpisaneZapisujeSiePrzyZmianieOsobyIZamknieciu) {
    frmRodzina okno(o(), 5);
    okno.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    QTest::keyClick(&okno, Qt::Key_Insert);
    const auto wpisz = [&](const QString& pole, const QString& tekst) {
        auto& linia = widzet<QLineEdit>(okno, pole);
        linia.setFocus(Qt::TabFocusReason);
        linia.selectAll();
        QTest::keyClicks(&linia, tekst);
    };
    wpisz(u"txtImie"_s, u"Ewa"_s);
    widzet<QComboBox>(okno, u"cboZcna"_s).setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&widzet<QComboBox>(okno, u"cboZcna"_s), u"2"_s);
    QTest::keyClick(&okno, Qt::Key_Insert); // another person: the first is stored
    EXPECT_EQ(zPliku(5).value(0), u"1 Fiedorowicz Ewa Wiśniowa 20"_s);
    wpisz(u"txtImie"_s, u"Jan"_s);
    wpisz(u"txtDataUr"_s, u"31-02-1990"_s);
    QTest::keyClick(&okno, Qt::Key_Escape);
    EXPECT_TRUE(okno.isVisible()) << "a date that is none is told before anything closes";
    QCoreApplication::processEvents();
    wpisz(u"txtDataUr"_s, u"28-02-1990"_s);
    QTest::keyClick(&okno, Qt::Key_Escape);
    EXPECT_FALSE(okno.isVisible());
    EXPECT_EQ(zPliku(5).value(1), u"2 Fiedorowicz Jan Wiśniowa 00"_s);
}

TEST_F(RodzinaOkna, KartaPracownikaOtwieraJegoRodzine) {
    frmPrac kadry(o(), FiltrPracownikow::Wszyscy);
    kadry.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&kadry));
    kadry.pokaz(11);
    QString tytul;
    QTimer::singleShot(0, &kadry, [&] {
        auto* rodzina = qobject_cast<frmRodzina*>(QApplication::activeModalWidget());
        ASSERT_NE(rodzina, nullptr);
        tytul = rodzina->windowTitle();
        rodzina->reject();
    });
    widzet<QPushButton>(kadry, u"cmdRodzina"_s).click();
    EXPECT_EQ(tytul.remove(u"[*]"_s), u"Rodzina pracownika: Lewandowski Krzysztof, nr 11"_s);
}

} // namespace

} // namespace tornel::testy
