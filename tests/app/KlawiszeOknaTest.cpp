// Keys that mean the same everywhere, and Enter, which changes nothing, on every screen of the example firm.
#include "okna/frmInputData.h"
#include "okna/Klawisze.h"
#include "okna/PoleSzukania.h"
#include "okna/WidokListy.h"
#include "okna/ZnakZmiany.h"
#include "personnel/frmNowyPrc.h"
#include "personnel/frmPrac.h"
#include "wsparcie/EkranyTestowe.h"
#include "wsparcie/Widzet.h"
#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <set>

namespace tornel::testy {

namespace {

class KlawiszeTest : public EkranyTest {
protected:
    void naWszystkichEkranach(const std::function<void(QWidget&)>& czynnosc) {
        otworzOkno();
        wKazdymOknie(czynnosc);
        for (const PozycjaMenu& p : menuGlowne())
            if (!bezEkranu(p.wejscie) && okno_->akcja(p.wejscie)->isEnabled())
                okno_->akcja(p.wejscie)->trigger();
    }
};

/// The row of the table that has the key.
const Klawisz* wTabeli(const QKeySequence& klawisze_) {
    const auto wszystkie = klawisze();
    const auto ta = std::ranges::find_if(
        wszystkie, [&](const Klawisz& k) { return QKeySequence(k.klawisz) == klawisze_; });
    return ta == wszystkie.end() ? nullptr : &*ta;
}

TEST_F(KlawiszeTest, EnterNieZmieniaZadnegoPola) {
    int pol = 0;
    const auto przedtem = calaBaza();
    naWszystkichEkranach([&](QWidget& ekran) {
        // In a dialog, and on the constants, Enter is the default button. Of a contract each amount that is
        // left computes what follows from it, typed or not.
        const QStringList inaczej{u"frmStaleProgramu"_s, u"frmUZL"_s, u"frmUOD"_s, u"frmHON"_s};
        if (!ekran.inherits("tornel::okna::OknoEdycji") || inaczej.contains(nazwa(ekran))) return;
        naKazdejZakladce(ekran, [&](const QString& zakladka) {
            for (QWidget* pole : pola(ekran)) {
                auto* linia = qobject_cast<QLineEdit*>(pole);
                if (!linia || !linia->isVisible()) continue;
                const QString bylo = linia->text();
                for (int raz = 0; raz < 2; ++raz) {
                    linia->setFocus(Qt::TabFocusReason);
                    if (linia->hasFocus()) QTest::keyClick(linia, Qt::Key_Return);
                }
                EXPECT_EQ(linia->text(), bylo)
                    << nazwa(ekran).toStdString() << " / " << zakladka.toStdString() << " / "
                    << nazwa(*linia).toStdString();
                ++pol;
            }
        });
        EXPECT_TRUE(ekran.isVisible()) << nazwa(ekran).toStdString();
    });
    EXPECT_GE(pol, 500);
    EXPECT_EQ(rozmowa_.pytania, QStringList()) << "nothing was changed, so nothing is asked";
    const auto potem = calaBaza();
    for (const auto& [tabela, wiersze] : potem) {
        const auto bylo = przedtem.find(tabela);
        EXPECT_TRUE(bylo != przedtem.end() && bylo->second == wiersze)
            << tabela << ": " << wiersze.value(0).toStdString();
    }
}

TEST_F(KlawiszeTest, JedenKlawiszJednoZnaczenieADymekGoPodaje) {
    std::map<Polecenie, std::set<QString>> gdzie;
    naWszystkichEkranach([&](QWidget& ekran) {
        std::set<QKeySequence> okna;
        for (const auto* skrot : ekran.findChildren<QShortcut*>()) {
            const Klawisz* k = wTabeli(skrot->key());
            if (!k) continue;
            gdzie[k->polecenie].insert(nazwa(ekran));
            // Two of one window would take the key from each other.
            if (skrot->context() == Qt::WindowShortcut)
                EXPECT_TRUE(okna.insert(skrot->key()).second)
                    << nazwa(ekran).toStdString() << k->napis.toString().toStdString();
            if (const auto* przycisk = qobject_cast<QAbstractButton*>(skrot->parent()))
                EXPECT_TRUE(przycisk->toolTip().contains(k->napis)) << przycisk->text().toStdString();
        }
    });
    const std::pair<Polecenie, std::set<QString>> maja[] = {
        {Polecenie::Nowy,
         {u"frmPrac"_s, u"frmPlace"_s, u"frmNadg"_s, u"frmUZL"_s, u"frmDniWolne"_s, u"frmRejUrl"_s,
          u"frmUS"_s, u"frmKonta"_s, u"frmLogLista"_s}},
        {Polecenie::Usun,
         {u"frmPrac"_s, u"frmPlace"_s, u"frmNadg"_s, u"frmUZL"_s, u"frmDniWolne"_s, u"frmRejUrl"_s,
          u"frmUS"_s, u"frmKonta"_s, u"frmLogLista"_s}},
        {Polecenie::Szukaj, {u"frmPrac"_s, u"frmNadg"_s, u"frmUZL"_s, u"frmRejUrl"_s, u"frmUS"_s}},
        {Polecenie::Zapisz,
         {u"frmPrac"_s, u"frmPlace"_s, u"frmNadg"_s, u"frmUZL"_s, u"frmDniWolne"_s, u"frmStaleProgramu"_s,
          u"frmSkladnikiPlac"_s}},
        {Polecenie::Zatwierdz, {u"frmPrac"_s, u"frmStaleProgramu"_s, u"frmUZL"_s, u"frmHaslo"_s}},
        {Polecenie::Odswiez, {u"frmPrac"_s, u"frmPlace"_s, u"frmNadg"_s, u"frmUZL"_s, u"frmDziennik"_s}},
    };
    for (const auto& [polecenie, ekrany] : maja)
        for (const QString& ekran : ekrany)
            EXPECT_TRUE(gdzie[polecenie].contains(ekran))
                << ekran.toStdString() << " has no " << klawisz(polecenie).napis.toString().toStdString();
}

/// What is typed and not stored is marked at its field and in the title; every screen says which way it
/// saves.
TEST_F(KlawiszeTest, NiezapisanaZmianaJestOznaczona) {
    std::set<QString> sprawdzone;
    naWszystkichEkranach([&](QWidget& ekran) {
        if (!ekran.inherits("tornel::okna::OknoEdycji")) return;
        auto* jak = ekran.findChild<QLabel*>(u"labZmiana"_s);
        ASSERT_TRUE(jak && !jak->text().isEmpty()) << nazwa(ekran).toStdString();
        const auto linie = pola(ekran);
        const auto pole = std::ranges::find_if(linie, [](QWidget* w) {
            const auto* linia = qobject_cast<QLineEdit*>(w);
            return linia && !linia->isReadOnly() && !qobject_cast<PoleSzukania*>(w);
        });
        if (pole == linie.end() || ekran.inherits("tornel::personnel::frmKalendarz")) return;
        auto& linia = static_cast<QLineEdit&>(**pole);
        EXPECT_FALSE(ekran.isWindowModified() || ZnakZmiany::jest(linia)) << nazwa(ekran).toStdString();
        linia.setFocus(Qt::TabFocusReason);
        linia.selectAll();
        QTest::keyClick(&linia, linia.text().startsWith(u'9') ? Qt::Key_8 : Qt::Key_9);
        const QString opis = nazwa(ekran) + u' ' + nazwa(linia);
        EXPECT_TRUE(ekran.isWindowModified()) << opis.toStdString();
        EXPECT_TRUE(ZnakZmiany::jest(linia)) << opis.toStdString();
        EXPECT_TRUE(jak->text().startsWith(u'●')) << opis.toStdString();
        sprawdzone.insert(nazwa(ekran));
        linia.undo();
        if (ekran.objectName() == u"frmSkladnikiPlac") return; // it knows only that something was typed
        EXPECT_FALSE(ekran.isWindowModified() || ZnakZmiany::jest(linia)) << opis.toStdString();
        EXPECT_FALSE(jak->text().startsWith(u'●')) << opis.toStdString();
    });
    for (const QString& ekran : {u"frmPrac"_s, u"frmUZL"_s, u"frmUS"_s, u"frmKonta"_s, u"frmRejUrl"_s,
                                 u"frmStaleProgramu"_s, u"frmSkladnikiPlac"_s})
        EXPECT_TRUE(sprawdzone.contains(ekran)) << ekran.toStdString();
}

/// The mark stays while the screen itself keeps the value, until it is stored.
TEST_F(KlawiszeTest, ZnakZostajeDoZapisu) {
    frmPrac ekran(otoczenie(), FiltrPracownikow::Wszyscy);
    ekran.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ekran));
    auto& nazwisko = widzet<QLineEdit>(ekran, u"txtNaz"_s);
    auto& zakladki = *ekran.findChild<QTabWidget*>();
    nazwisko.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&nazwisko, u"Inne"_s);
    for (const int zakladka : {1, 0}) zakladki.setCurrentIndex(zakladka);
    EXPECT_TRUE(ZnakZmiany::jest(nazwisko)) << "the file has not been written";
    EXPECT_TRUE(ekran.isWindowModified());
    QTest::keyClick(&ekran, Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(ZnakZmiany::jest(nazwisko));
    EXPECT_FALSE(ekran.isWindowModified());
}

TEST_F(KlawiszeTest, ZapisOdczytISzukanieWKartotece) {
    {
        frmPrac ekran(otoczenie(), FiltrPracownikow::Wszyscy);
        ekran.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ekran));
        auto& lista = widzet<WidokListy>(ekran, u"lvwPrac"_s);
        auto& nazwisko = widzet<QLineEdit>(ekran, u"txtNaz"_s);
        const auto ctrl = [&](Qt::Key litera) { QTest::keyClick(&ekran, litera, Qt::ControlModifier); };
        QTest::keyClick(&lista, Qt::Key_F2);
        EXPECT_TRUE(ekran.focusWidget() != &lista) << "F2 goes to the fields";
        nazwisko.setFocus(Qt::TabFocusReason);
        QTest::keyClicks(&nazwisko, u"Zmieniony"_s);
        ctrl(Qt::Key_S);
        EXPECT_TRUE(ekran.isVisible());
        EXPECT_FALSE(ekran.isWindowModified());
        EXPECT_TRUE(lista.lista().wszystkie().at(0).teksty.join(u' ').contains(u"Zmieniony"));
        ctrl(Qt::Key_F);
        EXPECT_TRUE(widzet<PoleSzukania>(ekran, u"txtSzukaj"_s).hasFocus());
        QTest::keyClick(&ekran, Qt::Key_F5);
        EXPECT_EQ(nazwisko.text(), u"Zmieniony"_s);
        nazwisko.setFocus(Qt::TabFocusReason);
        QTest::keyClicks(&nazwisko, u"Drugi"_s);
        ctrl(Qt::Key_Enter);
        EXPECT_FALSE(ekran.isVisible()) << "stored and closed";
    }
    EXPECT_EQ(rozmowa_.pytania, QStringList());
    frmPrac potem(otoczenie(), FiltrPracownikow::Wszyscy);
    EXPECT_TRUE(
        std::ranges::any_of(widzet<WidokListy>(potem, u"lvwPrac"_s).lista().wszystkie(),
                            [](const WierszListy& w) { return w.teksty.join(u' ').contains(u"Drugi"); }));
}

TEST_F(KlawiszeTest, CtrlEnterWOkienkuNaciskaWyroznionyPrzycisk) {
    frmNowyPrc dialog(otoczenie());
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto& nazwisko = widzet<QLineEdit>(dialog, u"txtNazwisko"_s);
    nazwisko.setFocus();
    QTest::keyClicks(&nazwisko, u"Nowicki"_s);
    QTest::keyClicks(&widzet<QLineEdit>(dialog, u"txtImie"_s), u"Adam"_s);
    QTest::keyClick(&dialog, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.isVisible());
}

} // namespace

} // namespace tornel::testy
