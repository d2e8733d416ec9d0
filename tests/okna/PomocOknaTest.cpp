#include "app/frmAbout.h"
#include "okna/Klawisze.h"
#include "payroll/lista/frmPlaceLista.h"
#include "personnel/frmFind.h"
#include "personnel/frmPrac.h"
#include "personnel/frmWybPr.h"
#include "rules/frmSkladnikiPlac.h"
#include "rules/frmStaleProgramu.h"
#include "wsparcie/PomocTestowa.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/WejsciaBezEkranu.h"
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcut>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTreeWidget>

namespace tornel::testy {

namespace {

TEST_F(PomocOkna, KazdeWejscieMenuMaStroneIStoiWPodreczniku) {
    Podrecznik podrecznik;
    const QString tekst = podrecznik.tekst().toPlainText();
    const auto okno = glowne();
    EXPECT_EQ(tematPoF1(*okno), u"frmMain"_s);
    int ekrany = 0;
    for (const PozycjaMenu& p : menuGlowne()) {
        if (!okno->akcja(p.wejscie)->isEnabled()) continue;
        const std::string napis = p.napis.toString().toStdString();
        EXPECT_TRUE(tekst.contains(u"„%1”"_s.arg(p.napis))) << napis;
        if (bezEkranu(p.wejscie) || p.wejscie == Wejscie::Pomoc) continue;
        if (p.wejscie == Wejscie::ZmianaHasla)
            rozmowa_.spodziewaj(u"Hasło nie zostało zmienione"_s, Styl::Informacja);
        naEkranie([&](QWidget& ekran) {
            const QString temat = tematPoF1(ekran);
            EXPECT_TRUE(stronaEkranu(temat, ekran)) << napis << ": " << temat.toStdString();
            ++ekrany;
        });
        okno->akcja(p.wejscie)->trigger();
    }
    EXPECT_GE(ekrany, 14);
    okno->akcja(Wejscie::Pomoc)->trigger();
    ASSERT_NE(oknoPomocy(), nullptr);
    EXPECT_EQ(oknoPomocy()->temat(), u"spis"_s);
}

TEST_F(PomocOkna, KazdaZakladkaMaSwojRozdzialAKazdaStalaOpis) {
    Podrecznik podrecznik;
    const auto sprawdz = [&](QWidget& ekran, const QString& zakladka) {
        const QString temat = tematPoF1(ekran);
        EXPECT_TRUE(temat.startsWith(ekran.objectName() + u'-')) << zakladka.toStdString();
        EXPECT_TRUE(podrecznik.tytul(temat).contains(zakladka))
            << zakladka.toStdString() << ": " << podrecznik.tytul(temat).toStdString();
        return temat;
    };
    frmPrac kadry(o(), FiltrPracownikow::Wszyscy);
    frmPlaceLista lista(o(), {2001, 3}, u" "_s);
    frmSkladnikiPlac skladniki(o());
    for (QDialog* ekran :
         {static_cast<QDialog*>(&kadry), static_cast<QDialog*>(&lista), static_cast<QDialog*>(&skladniki)}) {
        pokaz(*ekran);
        auto& karty = *ekran->findChild<QTabWidget*>();
        for (int i = 0; i < karty.count(); ++i) {
            karty.setCurrentIndex(i);
            sprawdz(*ekran, karty.tabText(i));
        }
        ekran->close();
    }

    frmStaleProgramu stale(o());
    pokaz(stale);
    auto& lstKarty = *stale.findChild<QListWidget*>(u"lstKarty"_s);
    static const QRegularExpression zakres(u"^(\\d+)(?: do (\\d+))?$"_s);
    for (int i = 0; i < lstKarty.count(); ++i) {
        lstKarty.setCurrentRow(i);
        std::set<int> opisane;
        for (const QString& komorka : podrecznik.pierwszeKolumny(sprawdz(stale, lstKarty.item(i)->text()))) {
            const auto liczby = zakres.match(komorka);
            const int od = liczby.captured(1).toInt();
            const int dokad = liczby.hasCaptured(2) ? liczby.captured(2).toInt() : od;
            for (int nr = od; nr <= dokad; ++nr) opisane.insert(nr);
        }
        for (const StalaDef& stala : tabelaStalych())
            if (stala.karta == static_cast<KartaStalych>(i)) {
                EXPECT_TRUE(opisane.contains(stala.num)) << stala.num;
            }
    }
}

TEST(PodrecznikOknaTest, OdsylaczeProwadzaDoJednegoMiejsca) {
    Podrecznik podrecznik;
    QStringList kotwice, odsylacze;
    for (QTextBlock blok = podrecznik.tekst().begin(); blok.isValid(); blok = blok.next())
        for (auto i = blok.begin(); !i.atEnd(); ++i) {
            const QTextCharFormat format = i.fragment().charFormat();
            kotwice += format.anchorNames();
            if (!format.anchorHref().isEmpty()) odsylacze += format.anchorHref();
        }
    ASSERT_GT(odsylacze.size(), 50);
    for (const QString& odsylacz : odsylacze)
        EXPECT_EQ(kotwice.count(odsylacz.mid(1)), 1) << odsylacz.toStdString();
    for (const QString& kotwica : kotwice) EXPECT_EQ(kotwice.count(kotwica), 1) << kotwica.toStdString();
}

TEST(PodrecznikOknaTest, ObrazyDajaSieWczytac) {
    Podrecznik podrecznik;
    int obrazow = 0;
    for (QTextBlock blok = podrecznik.tekst().begin(); blok.isValid(); blok = blok.next())
        for (auto i = blok.begin(); !i.atEnd(); ++i) {
            const QTextImageFormat obraz = i.fragment().charFormat().toImageFormat();
            if (!obraz.isValid()) continue;
            ++obrazow;
            EXPECT_FALSE(QImage(QUrl(obraz.name()).path().prepend(u':')).isNull())
                << obraz.name().toStdString();
        }
    EXPECT_GT(obrazow, 0);
}

/// What opens by a key on the screen: shortcuts, actions, mnemonics of buttons.
std::set<QKeySequence> klawiszeEkranu(const QWidget& ekran) {
    std::set<QKeySequence> wynik;
    for (const auto* skrot : ekran.findChildren<QShortcut*>()) wynik.insert(skrot->key());
    for (const auto* akcja : ekran.findChildren<QAction*>()) wynik.insert(akcja->shortcut());
    for (const auto* przycisk : ekran.findChildren<QAbstractButton*>())
        if (przycisk->objectName() != u"cmdPomoc") wynik.insert(przycisk->shortcut()); // F1 is told
    wynik.erase(QKeySequence());
    for (const Klawisz& k : klawisze()) wynik.erase(QKeySequence(k.klawisz)); // told once for all
    // Shift+Tab reaches a program as one of two keys.
    wynik.erase(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab));
    return wynik;
}

QKeySequence klawisz(QString zapis) {
    static const std::pair<QString, QString> nazwy[] = {
        {u"strzałka w dół"_s, u"Down"_s},  {u"strzałka w górę"_s, u"Up"_s},
        {u"strzałka w lewo"_s, u"Left"_s}, {u"strzałka w prawo"_s, u"Right"_s},
        {u"Insert"_s, u"Ins"_s},           {u"Delete"_s, u"Del"_s}};
    for (const auto& [polska, wspolna] : nazwy) zapis.replace(polska, wspolna);
    return QKeySequence::fromString(zapis, QKeySequence::PortableText);
}

TEST_F(PomocOkna, SciagaKlawiszyZgadzaSieZEkranami) {
    Podrecznik podrecznik;
    QStringList wspolne;
    for (const Klawisz& k : klawisze()) wspolne += k.napis.toString();
    EXPECT_EQ(podrecznik.pierwszeKolumny(u"klawisze-wspolne"_s).join(u' '), wspolne.join(u' '));
    std::set<QString> sprawdzone;
    const auto porownaj = [&](const QWidget& ekran) {
        std::set<QKeySequence> opisane;
        for (const QString& komorka : podrecznik.pierwszeKolumny(u"klawisze-"_s + ekran.objectName()))
            for (const QString& zapis : komorka.split(u", "_s)) opisane.insert(klawisz(zapis));
        if (opisane.empty()) return;
        sprawdzone.insert(ekran.objectName());
        const std::string nazwa = ekran.objectName().toStdString();
        for (const QKeySequence& k : klawiszeEkranu(ekran))
            EXPECT_TRUE(opisane.erase(k)) << nazwa << ": not told of " << k.toString().toStdString();
        for (const QKeySequence& k : opisane)
            ADD_FAILURE() << nazwa << ": does not have " << k.toString().toStdString();
    };
    const auto okno = glowne();
    frmPlaceLista lista(o(), {2001, 3}, u" "_s);
    frmWybPr wybor(o(), 1);
    for (QWidget* ekran : std::initializer_list<QWidget*>{okno.get(), &lista, &wybor, &podrecznik.okno()}) {
        ekran->show(); // buttons get their letters by then
        porownaj(*ekran);
        ekran->hide();
    }
    for (const PozycjaMenu& p : menuGlowne()) {
        if (bezEkranu(p.wejscie) || p.menu == u"Pomoc" || p.wejscie == Wejscie::ZmianaHasla) continue;
        if (!okno->akcja(p.wejscie)->isEnabled()) continue;
        naEkranie(porownaj);
        okno->akcja(p.wejscie)->trigger();
    }
    for (const QString& ekran : {u"frmMain"_s, u"frmPrac"_s, u"frmPlace"_s, u"frmPlaceLista"_s, u"frmWybPr"_s,
                                 u"frmStaleProgramu"_s, u"frmSkladnikiPlac"_s, u"frmUS"_s, u"frmPomoc"_s})
        EXPECT_TRUE(sprawdzone.contains(ekran)) << ekran.toStdString();
}

TEST_F(PomocOkna, OknoDzialaObokEkranuModalnegoIPozostajePoNim) {
    const auto okno = glowne();
    naEkranie([&](QWidget& ekran) {
        ekran.findChild<QPushButton*>(u"cmdPomoc"_s)->click();
        frmPomoc* pomoc = oknoPomocy();
        ASSERT_NE(pomoc, nullptr);
        EXPECT_EQ(pomoc->temat(), u"frmUS"_s);
        ASSERT_TRUE(QTest::qWaitForWindowActive(pomoc));
        pomoc->resize(900, 500);
        // A click that comes through the window system: a modal screen would keep it from other windows.
        auto& spis = *pomoc->findChild<QTreeWidget*>();
        spis.scrollToTop();
        const QPoint pierwsza = spis.visualItemRect(spis.topLevelItem(0)).center();
        QTest::mouseClick(pomoc->windowHandle(), Qt::LeftButton, {}, spis.viewport()->mapTo(pomoc, pierwsza));
        EXPECT_EQ(pomoc->temat(), u"spis"_s);
        EXPECT_TRUE(ekran.isVisible());
    });
    okno->akcja(Wejscie::UrzedySkarbowe)->trigger();
    frmPomoc* pomoc = oknoPomocy();
    ASSERT_NE(pomoc, nullptr) << "it outlives the screen";
    EXPECT_EQ(pomoc->parentWidget(), okno.get());
    EXPECT_EQ(pomoc->temat(), u"spis"_s);
    pomoc->close();
    {
        frmFind szukanie([](const QString&) { return true; });
        pokaz(szukanie);
        QTest::keyClick(&szukanie, Qt::Key_F1);
        ASSERT_NE(oknoPomocy(), nullptr);
        EXPECT_EQ(oknoPomocy()->size(), QSize(900, 500));
        EXPECT_EQ(oknoPomocy()->parentWidget(), &szukanie);
    }
    EXPECT_EQ(oknoPomocy(), nullptr) << "nothing below it could keep it";
}

TEST(PodrecznikOknaTest, SzukanieIdzieWKolkoAPowrotProwadziWstecz) {
    Podrecznik podrecznik;
    frmPomoc& okno = podrecznik.okno();
    auto& tekst = *okno.findChild<QTextBrowser*>();
    auto& szukaj = *okno.findChild<QLineEdit*>(u"txtSzukaj"_s);
    okno.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    ASSERT_TRUE(okno.pokazTemat(u"klawisze"_s));
    EXPECT_FALSE(okno.pokazTemat(u"nie ma takiej"_s));
    QTest::keyClick(&okno, Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(szukaj.hasFocus());
    QTest::keyClicks(&szukaj, u"trzynastk"_s);
    std::vector<int> miejsca;
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(tekst.textCursor().selectedText().toLower(), u"trzynastk"_s);
        const int miejsce = tekst.textCursor().selectionStart();
        if (!miejsca.empty() && miejsce == miejsca.front()) break;
        miejsca.push_back(miejsce);
        QTest::keyClick(&szukaj, i % 2 ? Qt::Key_F3 : Qt::Key_Return);
    }
    ASSERT_GE(miejsca.size(), 2U);
    ASSERT_LT(miejsca.size(), 20U);
    EXPECT_EQ(tekst.textCursor().selectionStart(), miejsca.front());
    QTest::keyClick(&szukaj, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(tekst.textCursor().selectionStart(), miejsca.back());

    QTest::keyClicks(&szukaj, u"xyz"_s);
    EXPECT_FALSE(okno.findChild<QLabel*>(u"labSzukaj"_s)->text().isEmpty());
    szukaj.clear();
    EXPECT_TRUE(okno.findChild<QLabel*>(u"labSzukaj"_s)->text().isEmpty());

    okno.pokazTemat(u"frmPrac"_s);
    QTest::keyClick(&okno, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(okno.temat(), u"klawisze"_s);
    QTest::keyClick(&okno, Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(okno.temat(), u"frmPrac"_s);
}

TEST(PodrecznikOknaTest, TekstNieUciekaPrzyZmianieSzerokosciASpisIdzieZNim) {
    Podrecznik podrecznik;
    frmPomoc& okno = podrecznik.okno();
    auto& tekst = *okno.findChild<QTextBrowser*>();
    auto& spis = *okno.findChild<QTreeWidget*>();
    okno.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    okno.pokazTemat(u"lancuch"_s);
    for (const int szerokosc : {700, 1200, 900}) {
        okno.resize(szerokosc, 700);
        QApplication::processEvents();
        EXPECT_EQ(tekst.cursorForPosition({20, 8}).block().text(), podrecznik.tytul(u"lancuch"_s))
            << szerokosc;
    }
    okno.findChild<QLineEdit*>(u"txtSzukaj"_s)->setText(u"Nadgodzinowe listy płac"_s);
    EXPECT_EQ(spis.currentItem()->text(0), podrecznik.tytul(u"frmNadg"_s));
    spis.setCurrentItem(spis.topLevelItem(1));
    EXPECT_EQ(okno.temat(), u"pierwszy-miesiac"_s);
}

TEST(BrakPomocyOknaTest, KomunikatNazywaPlik) {
    const QTemporaryDir folder;
    const auto plik = [&](const QString& nazwa, const QByteArray& tresc) {
        QFile nowy(folder.filePath(nazwa));
        EXPECT_TRUE(nowy.open(QIODevice::WriteOnly) && nowy.write(tresc) == tresc.size());
        return nowy.fileName();
    };
    const QString kNieTo = u"plik nie jest podręcznikiem programu albo jest uszkodzony"_s;
    const std::pair<QString, QString> przypadki[] = {
        {folder.filePath(u"Help.hlp"_s), u"nie ma takiego pliku"_s},
        {folder.path(), u"pliku nie wolno odczytać"_s},
        {plik(u"pusty"_s, {}), kNieTo},
        {plik(u"obcy"_s, "<h1 id=\"spis\">\xff\xfe\x80</h1>"), kNieTo},
    };
    for (const auto& [sciezka, powod] : przypadki) {
        RozmowaSkrypt rozmowa;
        Pomoc pomoc(sciezka, rozmowa);
        frmAbout okno;
        okno.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
        for (int raz = 0; raz < 2; ++raz) {
            rozmowa.spodziewaj(u"Nie można otworzyć pliku pomocy „%1”: %2."_s.arg(sciezka, powod),
                               Styl::Wykrzyknik);
            QTest::keyClick(&okno, Qt::Key_F1);
            EXPECT_EQ(oknoPomocy(), nullptr);
        }
    }
}

} // namespace

} // namespace tornel::testy
