#include "okna/UwagaPola.h"
#include "personnel/frmFind.h"
#include "rules/SkladnikiPlac.h"
#include "wsparcie/EkranPracownikow.h"
#include "wsparcie/Przestrzen.h"
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <set>

namespace tornel::testy {

using namespace ekranKartoteki;
using schemat::PRACDP;
using schemat::PRACPR;
using schemat::PRACSK;

namespace {

const QString kZapisac = QStringLiteral("Czy zapisać zmiany ?");
const QString kPytanie = QStringLiteral("Pytanie");
const QString kKopia = QStringLiteral("Czy skopiować dane z <Adresu zameldowania> do ");

using PracTest = EkranPracownikow;

TEST(PracPolaTest, KazdaKolumnaKartotekiMaSwojePole) {
    std::set<std::string> braki;
    for (const TabelaDef* t :
         {&schemat::PRACDP, &schemat::PRACPR, &schemat::PRACSK, &schemat::PRACINF, &schemat::PRACZUS})
        for (int i = 1; i < static_cast<int>(t->kolumny.size()); ++i)
            braki.insert(std::string(t->kolumny[static_cast<std::size_t>(i)].nazwa));
    std::set<QString> nazwy;
    for (const auto& [zakladka, pole] : wszystkiePola()) {
        braki.erase(std::string(pole.kolumna.def().nazwa));
        EXPECT_TRUE(nazwy.insert(pole.nazwa).second) << pole.nazwa.toStdString() << " stands twice";
    }
    // The previous identity is written by its rule; the others no screen asks for.
    EXPECT_EQ(braki, (std::set<std::string>{"snaz", "simie_1", "sdata_ur", "sdowod_ser", "sdowod_nr",
                                            "spesel", "snip", "niezd_prod", "niezd_prdo", "ubr"}));
    QStringList tytuly;
    for (const ZakladkaKartoteki& z : zakladki()) tytuly += z.tytul;
    EXPECT_EQ(tytuly.join(u'|'),
              QStringLiteral("Ogólne|Adresy|Dane pracownicze|Urząd Skarbowy|Aktywne składniki|Składniki|Inne|"
                             "Umowy zlecenia|ZUS (1)|ZUS (2)|ZUS (3)"));
}

TEST_F(PracTest, KazdaZakladkaMaNaglowekIDzialaZKlawiatury) {
    ekran(FiltrPracownikow::Wszyscy, 7);
    wpisz(QStringLiteral("txtImie_2"), QStringLiteral("Maria"));
    for (const char16_t* adres : {u"<Adresu zamieszkania> ?", u"<Adresu do korespondencji> ?"})
        rozmowa_.spodziewaj(kKopia + QString::fromUtf16(adres), Odpowiedz::Nie);
    for (int z = 0; z < karty().count(); ++z) {
        const auto klawisz = z < 9 ? static_cast<Qt::Key>(Qt::Key_1 + z) : z == 9 ? Qt::Key_0 : Qt::Key_Minus;
        QTest::keyClick(okno.get(), klawisz, Qt::AltModifier);
        ASSERT_EQ(karty().currentIndex(), z);
        const QString naglowek = k<QLabel>(QStringLiteral("labImiona(%1)").arg(z + 1)).text();
        EXPECT_EQ(naglowek, z == 0 ? QStringLiteral("Anna Nowak") : QStringLiteral("Anna Maria Nowak"));

        // From the list into the fields; there Enter goes from one to the next.
        QStringList oczekiwane, przebyte;
        for (const auto& [zakladka, pole] : wszystkiePola()) {
            auto& kontrolka = k<QWidget>(pole.nazwa);
            if (zakladka == z && pole.rodzaj != Rodzaj::Notatka && pole.dostep == Dostep::Edycja &&
                kontrolka.isVisible() && kontrolka.isEnabled())
                oczekiwane += pole.nazwa;
        }
        QTest::keyClick(okno.get(), Qt::Key_L, Qt::AltModifier);
        QTest::keyClick(&lista(), Qt::Key_Return);
        for (int i = 0; i < oczekiwane.size(); ++i) {
            QCoreApplication::processEvents();
            przebyte += QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        }
        EXPECT_EQ(przebyte.join(u' '), oczekiwane.join(u' '));
    }
    rozmowa_.spodziewaj(kZapisac, Odpowiedz::Nie, kPytanie);
    QTest::keyClick(okno.get(), Qt::Key_Escape);
    EXPECT_FALSE(okno->isVisible());
}

TEST_F(PracTest, SzukaPoNumerzeINazwiskuRazPoRaz) {
    ekran(FiltrPracownikow::Wszyscy, 7);
    struct Szukanie {
        QString wpisany;
        qint64 wybrany;
    };
    for (const auto& [wpisany, wybrany] :
         {Szukanie{QStringLiteral("ŁO"), 8}, Szukanie{QStringLiteral("1234"), 1234},
          Szukanie{QStringLiteral("007"), 7}, Szukanie{QStringLiteral("12"), -1},
          Szukanie{QStringLiteral("jan"), 8}}) {
        SCOPED_TRACE(wpisany.toStdString());
        const qint64 przedtem = lista().wybrany();
        const bool znaleziony = wybrany >= 0;
        if (!znaleziony) rozmowa_.spodziewaj(QStringLiteral("Nie znaleziono"), Styl::Informacja);
        okno->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(okno.get()));
        bool otwarte = false;
        wDialogu<frmFind>([&, tekst = wpisany](frmFind& dialog) {
            otwarte = true;
            EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Szukanie pracownika"));
            ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
            auto* pole = dialog.findChild<QLineEdit*>(QStringLiteral("txtSzukany"));
            EXPECT_TRUE(QTest::qWaitFor([&] { return pole->hasFocus(); })) << "ready to type";
            wpisz(*pole, tekst);
            QTest::keyClick(pole, Qt::Key_Return);
            EXPECT_EQ(dialog.isVisible(), !znaleziony) << "without a hit the next text may follow";
            if (!znaleziony) QTest::keyClick(pole, Qt::Key_Escape);
        });
        k<QPushButton>(QStringLiteral("cmdWyszukaj")).click();
        ASSERT_TRUE(otwarte);
        EXPECT_EQ(lista().wybrany(), znaleziony ? wybrany : przedtem);
        EXPECT_TRUE(rozmowa_.gotowa());
    }
}

TEST_F(PracTest, FiltrySortowanieIZwolnieni) {
    const std::pair<FiltrPracownikow, const char16_t*> filtry[] = {
        {FiltrPracownikow::Wszyscy, u"Wszyscy pracownicy"},
        {FiltrPracownikow::Pracujacy, u"Pracownicy pracujący"},
        {FiltrPracownikow::Zwolnieni, u"Pracownicy zwolnieni"},
        {FiltrPracownikow::UmowaZlecenie, u"Pracownicy zatrudnieni na umowę zlecenie"},
        {FiltrPracownikow::UmowaODzielo, u"Pracownicy zatrudnieni na umowę o dzieło"},
        {FiltrPracownikow::Honoraria, u"Pracownicy otrzymujący honoraria"},
    };
    for (const auto& [filtr, tytul] : filtry) {
        ekran(filtr);
        EXPECT_EQ(okno->windowTitle(), QStringLiteral("Pracownicy[*]"));
        EXPECT_EQ(k<QLabel>(QStringLiteral("labTytul")).text(), QString::fromUtf16(tytul));
        const bool ktosJest = filtr == FiltrPracownikow::Wszyscy || filtr == FiltrPracownikow::Pracujacy;
        EXPECT_EQ(wiersze().size(), ktosJest ? 3 : 0);
        EXPECT_EQ(k(QStringLiteral("txtNaz")).isEnabled(), ktosJest);
        EXPECT_EQ(k(QStringLiteral("txtNaz")).text(), ktosJest ? QStringLiteral("Lis") : QString());
    }
    ekran();
    EXPECT_EQ(wiersze().join(u'|'), QStringLiteral("1234 Lis Ewa|008 Łoś Jan|007 Nowak Anna"));
    lista().wybierz(8);
    karty().setCurrentIndex(DanePracownicze);
    k<QCheckBox>(QStringLiteral("chkZwoln")).click();
    auto& sort = k<QComboBox>(QStringLiteral("cboSort"));
    EXPECT_EQ(sort.itemText(0) + sort.itemText(1), QStringLiteral("Według nazwiskWedług numerów"));
    sort.setCurrentIndex(1);
    EXPECT_EQ(wiersze().join(u'|'), QStringLiteral("007 Nowak Anna|008 Łoś Jan|1234 Lis Ewa"));
    EXPECT_EQ(lista().wybrany(), 8);
    for (const auto& [wiersz, uwaga] : {std::pair(0, QString()), std::pair(1, QStringLiteral("Zwolniony"))})
        EXPECT_EQ(lista().lista().index(wiersz, 1).data(Qt::ToolTipRole).toString(), uwaga);
    klik(u"cmdZapisz");
    ekran(FiltrPracownikow::Zwolnieni);
    EXPECT_EQ(wiersze(), QStringList{QStringLiteral("008 Łoś Jan")});
}

TEST_F(PracTest, ZmianyCzekajaWPamieciAPytanieRozstrzyga) {
    for (const Odpowiedz odpowiedz : {Odpowiedz::Nie, Odpowiedz::Tak}) {
        ekran(FiltrPracownikow::Wszyscy, 7);
        EXPECT_FALSE(k<QPushButton>(QStringLiteral("cmdAnuluj")).isEnabled());
        wpisz(QStringLiteral("txtNaz"), QStringLiteral("Zych"));
        EXPECT_TRUE(okno->isWindowModified());
        QTest::keyClick(&k(QStringLiteral("txtNaz")), Qt::Key_Up, Qt::ControlModifier);
        EXPECT_EQ(lista().wybrany(), 8);
        EXPECT_EQ(wiersze().last(), QStringLiteral("007 Zych Anna")) << "the list follows";
        wpisz(QStringLiteral("txtInfo"), QStringLiteral("notatka"));
        lista().wybierz(7);
        EXPECT_EQ(k(QStringLiteral("txtNaz")).text(), QStringLiteral("Zych"));
        EXPECT_EQ(wPliku(PRACDP("Naz")), Wartosc(QStringLiteral("Nowak")));
        rozmowa_.spodziewaj(kZapisac, odpowiedz, kPytanie);
        okno->close();
        EXPECT_FALSE(okno->isVisible());
        const bool zapisano = odpowiedz == Odpowiedz::Tak;
        EXPECT_EQ(wPliku(PRACDP("Naz")),
                  Wartosc(zapisano ? QStringLiteral("Zych") : QStringLiteral("Nowak")));
        EXPECT_EQ(wPliku(schemat::PRACINF("inf_opis"), 8),
                  Wartosc(zapisano ? QStringLiteral("notatka") : QString()));
        okno.reset();
    }
    ekran(FiltrPracownikow::Wszyscy, 7);
    klik(u"cmdPowrot");
    EXPECT_FALSE(okno->isVisible()) << "without a change nothing is asked";
}

TEST_F(PracTest, AnulujPrzywracaPracownika) {
    ekran(FiltrPracownikow::Wszyscy, 7);
    wpisz(QStringLiteral("txtNaz"), QStringLiteral("Zych"));
    karty().setCurrentIndex(DanePracownicze);
    wpisz(QStringLiteral("txtPlaca_zas"), QStringLiteral("1650"));
    const QString pytanie = QStringLiteral("Czy anulować wporwadzone zmiany ?");
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
    klik(u"cmdAnuluj");
    EXPECT_EQ(k(QStringLiteral("txtPlaca_zas")).text(), QStringLiteral("1650"));
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
    klik(u"cmdAnuluj");
    EXPECT_EQ(k(QStringLiteral("txtPlaca_zas")).text(), QStringLiteral("0,00"));
    EXPECT_EQ(wiersze().last(), QStringLiteral("007 Nowak Anna"));
    EXPECT_FALSE(okno->isWindowModified());
    okno->close();
}

TEST_F(PracTest, ZaKrotkiPeselIKopiaAdresu) {
    ekran(FiltrPracownikow::Wszyscy, 7);
    rozmowa_.spodziewaj(QStringLiteral("Nieprawidłowa długość Pesel"), Styl::Wykrzyknik);
    wpisz(QStringLiteral("txtPesel"), QStringLiteral("123"));
    wpisz(QStringLiteral("txtMiasto"), QStringLiteral("Nowy Sącz"));
    EXPECT_EQ(k(QStringLiteral("txtPesel")).text(), QString());
    EXPECT_TRUE(rozmowa_.gotowa());
    karty().setCurrentIndex(Adresy);
    rozmowa_.spodziewaj(kKopia + QStringLiteral("<Adresu do korespondencji> ?"), Odpowiedz::Tak,
                        QStringLiteral("Pytanie."));
    lista().setFocus();
    k(QStringLiteral("txtUlica_k")).setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(k(QStringLiteral("txtMiasto_k")).text(), QStringLiteral("Nowy Sącz"));
    EXPECT_EQ(k(QStringLiteral("txtMiasto_m")).text(), QString());
    klik(u"cmdZapisz");
    EXPECT_EQ(wPliku(PRACDP("miasto_k")), Wartosc(QStringLiteral("Nowy Sącz")));
    EXPECT_EQ(wPliku(PRACDP("pesel")), Wartosc(QString()));
}

TEST_F(PracTest, SkladnikiZaznaczaUaktywniaIUklada) {
    ekran(FiltrPracownikow::Wszyscy, 7);
    karty().setCurrentIndex(AktywneSkladniki);
    const Maski katalog = otoczenie().skladniki.maski();
    const auto maski = [&] {
        klik(u"cmdUaktDod");
        const auto maska = [&](Kolumna kolumna) {
            EXPECT_TRUE(sesja().rsPRACSK.Znajdz(7));
            return static_cast<quint32>(sesja().rsPRACSK.liczba(kolumna));
        };
        return std::pair(maska(PRACSK("dod")), maska(PRACSK("pot")));
    };
    for (int n = 1; n <= kDodatnich; ++n) {
        auto& pudelko = k<QCheckBox>(poleD(n));
        EXPECT_EQ(pudelko.text(), QStringLiteral("D%1").arg(n));
        EXPECT_EQ(pudelko.isEnabled(), otoczenie().skladniki.SkAkt(n));
    }
    klik(u"cmdAktAll");
    EXPECT_EQ(maski(), std::pair(0x3FFFFFFFU, 0x7FFFU));
    klik(u"cmdDellAll");
    EXPECT_EQ(maski(), std::pair(0U, 0U));
    EXPECT_TRUE(k<QWidget>(kwotaDodatnia(1)).parentWidget()->isHidden());
    klik(u"cmdAktSys");
    EXPECT_EQ(maski(), std::pair(katalog.akt_sp, quint32{katalog.akt_sm}));
    k<QCheckBox>(poleD(1)).click();
    k<QCheckBox>(poleP(1)).click();
    EXPECT_EQ(maski(), std::pair(katalog.akt_sp & ~1U, katalog.akt_sm & ~1U));

    karty().setCurrentIndex(Skladniki);
    for (int n = 1; n <= kDodatnich; ++n)
        EXPECT_EQ(k<QWidget>(kwotaDodatnia(n)).isVisible(), n != 1 && otoczenie().skladniki.SkAkt(n)) << n;
    for (int n = 1; n <= kUjemnych; ++n)
        EXPECT_EQ(k<QWidget>(kwotaUjemna(n)).isVisible(), n != 1 && otoczenie().skladniki.SkUAkt(n)) << n;
    rozmowa_.spodziewaj(kZapisac, Odpowiedz::Nie);
    okno->close();
}

TEST_F(PracTest, RejestrujeNowegoTylkoNaPelnejLiscie) {
    ekran(FiltrPracownikow::Pracujacy);
    rozmowa_.spodziewaj(
        QStringLiteral("Nowych pracowników można rejestrować tylko w menu \"Wszyscy pracownicy\""),
        Styl::Informacja);
    klik(u"cmdnowyprac");

    ekran(FiltrPracownikow::Wszyscy, 7);
    wpisz(QStringLiteral("txtImie_2"), QStringLiteral("Maria"));
    rozmowa_.spodziewaj(kZapisac, Odpowiedz::Tak, kPytanie);
    rozmowa_.spodziewaj(
        QStringLiteral("Pracownik o takim numerze już istnieje ! Czy chcesz spróbować jeszcze raz ?"),
        Odpowiedz::Tak, QStringLiteral("Błąd !"));
    rozmowa_.spodziewaj(
        QStringLiteral("Został zarejestrowany nowy pracownik. Czy nastąpi zgłoszenie pracownika "
                       "do ubezpieczeń społecznych ?"),
        Odpowiedz::Nie);
    wDialogu<frmNowyPrc>([&](frmNowyPrc& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Rejestracja nowego pracownika"));
        EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("txtNR"))->text(), QStringLiteral("1235"));
        wypelnijNowego(dialog, QStringLiteral("1235"), QStringLiteral("  "));
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(UwagaPola::zdanie(*dialog.findChild<QLineEdit*>(QStringLiteral("txtNazwisko"))),
                  QStringLiteral("Musisz podać nazwisko pracownika!"));
        wDialogu<frmNowyPrc>([&](frmNowyPrc& drugi) {
            wypelnijNowego(drugi, QStringLiteral("21"), QStringLiteral("Mazur; DROP'"));
        });
        wypelnijNowego(dialog, QStringLiteral("8"), QStringLiteral("Mazur"));
    });
    klik(u"cmdnowyprac");
    EXPECT_TRUE(rozmowa_.gotowa());
    EXPECT_EQ(lista().wybrany(), 21);
    EXPECT_EQ(wiersze().size(), 4);
    EXPECT_EQ(k(QStringLiteral("txtNaz")).text(), QStringLiteral("Mazur; DROP'"));
    EXPECT_EQ(wPliku(PRACDP("imie_2")), Wartosc(QStringLiteral("Maria")));

    wDialogu<frmNowyPrc>([](frmNowyPrc& dialog) { dialog.reject(); });
    klik(u"cmdnowyprac");
    EXPECT_EQ(wiersze().size(), 4);
}

TEST_F(PracTest, UsuwaPoDwochPytaniachAzPoOstatniego) {
    ekran(FiltrPracownikow::Wszyscy, 8);
    const QString pierwsze = QStringLiteral("Czy na pewno usunąć wybranego pracownika ?");
    rozmowa_.spodziewaj(pierwsze, Odpowiedz::Nie);
    klik(u"cmdusunprac");
    EXPECT_EQ(wiersze().size(), 3);
    for (const auto& [prcId, nazwisko] :
         {std::pair(8, QStringLiteral("Łoś Jan")), std::pair(7, QStringLiteral("Nowak Anna")),
          std::pair(1234, QStringLiteral("Lis Ewa"))}) {
        EXPECT_EQ(lista().wybrany(), prcId);
        rozmowa_.spodziewaj(pierwsze, Odpowiedz::Tak);
        rozmowa_.spodziewaj(
            QStringLiteral(
                "Pracownik %1 o numerze %2 zostanie usunięty z listy. Upewnij się czy usuwany pracownik "
                "nie jest wpisany na liscie plac lub dni wolnych itp. Czy kontynuować ?")
                .arg(nazwisko)
                .arg(prcId),
            Odpowiedz::Tak, QStringLiteral("Ostrzeżenie !"));
        klik(u"cmdusunprac");
    }
    EXPECT_EQ(wiersze().size(), 0);
    EXPECT_FALSE(k(QStringLiteral("txtNaz")).isEnabled());
    EXPECT_EQ(k(QStringLiteral("txtNaz")).text(), QString());
    EXPECT_FALSE(k<QPushButton>(QStringLiteral("cmdusunprac")).isEnabled());
    klik(u"cmdPowrot");
    EXPECT_FALSE(okno->isVisible());
}

} // namespace

} // namespace tornel::testy
