#include "rules/frmStaleProgramu.h"
#include "rules/Konfiguracja.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

const QString kBladSkladni =
    u"BŁĄD SKŁADNI\r\nUpewnij się czy zgadza się ilość nawiasów, czy wszystkie operatory "
    "(^,#,%,*,/,+,-) znajdują się we właściwym miejscu i czy liczby ujemne są zamknięte w nawiasy."_s;
const QString kBladZmiennej =
    u"BŁĄD ZMIENNEJ\r\nWpisano nazwę nieznanej zmiennej do wzoru. We wzorze mogą wytępować tylko ściśle "
    "ogreślone nazy zmiennych."_s;

class StaleOkna : public BazaTestowa {
protected:
    void otworzEkran(PortyStalych porty = {}) {
        ekran = std::make_unique<frmStaleProgramu>(otoczenie(), std::move(porty));
        ekran->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(ekran.get()));
    }
    template <typename K = QLineEdit>
    K& pole(const QString& nazwa) {
        auto* widzet = ekran->findChild<K*>(nazwa);
        if (!widzet) throw std::runtime_error("no control " + nazwa.toStdString());
        return *widzet;
    }
    QString tekst(const QString& nazwa) { return pole(nazwa).text(); }
    /// Goes to the field, on whatever tab it is, and types over what it holds.
    void wpisz(const QString& nazwa, const QString& tekst) {
        auto& linia = pole(nazwa);
        przejdzDo(linia);
        linia.selectAll();
        if (tekst.isEmpty()) QTest::keyClick(&linia, Qt::Key_Delete);
        for (const char32_t znak : tekst.toUcs4()) {
            QKeyEvent zdarzenie(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(&znak, 1));
            QApplication::sendEvent(&linia, &zdarzenie);
        }
    }
    void wpiszIOpusc(const QString& nazwa, const QString& tekst) {
        wpisz(nazwa, tekst);
        pole<QListWidget>(u"lstKarty"_s).setFocus(Qt::TabFocusReason);
    }
    void przejdzDo(QWidget& widzet) {
        auto& karty = pole<QStackedWidget>(u"karty"_s);
        for (int i = 0; i < karty.count(); ++i)
            if (karty.widget(i)->isAncestorOf(&widzet)) ekran->pokazKarte(static_cast<KartaStalych>(i));
        widzet.setFocus(Qt::TabFocusReason);
    }
    void kliknij(const QString& nazwa) {
        auto& przycisk = pole<QAbstractButton>(nazwa);
        przejdzDo(przycisk);
        przycisk.click();
    }
    void ok() {
        QCoreApplication::processEvents(); // an act of its own, after what was typed
        QTest::mouseClick(&pole<QPushButton>(u"Command1"_s), Qt::LeftButton);
    }
    /// What lies in the file, past the program's handle.
    QString wPliku(int num) {
        Recordset rs(schemat::KON);
        rs.Open(sesja().cnPlace);
        return rs.Znajdz(num) ? rs.tekst(schemat::KON("Wart")) : u"brak rekordu"_s;
    }
    QStringList calaTabela() {
        QStringList wynik;
        for (const StalaDef& stala : tabelaStalych()) wynik += wPliku(stala.num);
        return wynik;
    }
    QString podpis(const QString& nazwa) {
        const auto etykiety = ekran->findChildren<QLabel*>();
        for (const QLabel* e : etykiety)
            if (e->buddy() == &pole<QWidget>(nazwa)) return e->text();
        return {};
    }
    void nowyUrzad(int numer, const QString& nazwa) {
        Recordset rs(schemat::US);
        rs.Open(sesja().cnPlace);
        rs.AddNewZero(numer);
        rs.ustaw(schemat::US("Nazwa"), nazwa);
        rs.UpdateBatch(u"Dane testu");
    }

    std::unique_ptr<frmStaleProgramu> ekran;
};

/// The titles of the frames around a control, from the inside.
QStringList tytulyRamek(const QWidget& widzet) {
    QStringList wynik;
    for (const QWidget* w = widzet.parentWidget(); w; w = w->parentWidget())
        if (const auto* ramka = qobject_cast<const QGroupBox*>(w)) wynik += ramka->title();
    return wynik;
}

QString przedrostek(const StalaDef& stala) {
    if (stala.sprawdzenie == SprawdzenieStalej::Przelacznik) return u"chk"_s;
    return stala.sprawdzenie == SprawdzenieStalej::Wybor ? u"cbo"_s : u"txt"_s;
}

TEST_F(StaleOkna, KazdaStalaMaPoleZPodpisemNaSwojejKarcie) {
    otworzEkran();
    EXPECT_EQ(ekran->windowTitle(), u"Konfiguracja stałych programu"_s);
    EXPECT_TRUE(QRect(0, 0, 1280, 800).contains(QRect(QPoint(), ekran->size())));
    const auto& lista = pole<QListWidget>(u"lstKarty"_s);
    QStringList karty;
    for (int i = 0; i < lista.count(); ++i) karty += lista.item(i)->text();
    EXPECT_EQ(karty.join(u'|'),
              u"Grupy podatkowe|Stałe systemu|Inne (1)|Inne (2)|Urlopy|L-4|Nadgodziny|Użytkownik (1)|"
              "Użytkownik (2)|Użytkownik (3)|ZUS (1)|ZUS (2)|PIT (1)|PIT (2)|PIT (3)|PIT (4)|MCS|"
              "Karta ewidencji"_s);
    for (const StalaDef& stala : tabelaStalych()) {
        if (stala.karta == KartaStalych::Brak || stala.num == 257) continue;
        SCOPED_TRACE(stala.num);
        const int ile = zPolemStalej(
            stala, stale(),
            Warianty{[]<typename T, std::size_t N>(const std::array<T, N>&) { return static_cast<int>(N); },
                     [](const auto&) { return 1; }});
        const QString nazwa = przedrostek(stala) + stala.nazwa.toString();
        for (int i = 0; i < ile; ++i) {
            const QString n = stala.num == 663 ? u"cboUS"_s
                              : ile == 1       ? nazwa
                                               : u"%1(%2)"_s.arg(nazwa).arg(i);
            ASSERT_EQ(ekran->findChildren<QWidget*>(n).size(), 1) << n.toStdString();
            auto& widzet = pole<QWidget>(n);
            EXPECT_TRUE(pole<QWidget>(karty[static_cast<int>(stala.karta)]).isAncestorOf(&widzet));
            EXPECT_FALSE(widzet.accessibleName().isEmpty());
            const QStringList tytuly = tytulyRamek(widzet);
            EXPECT_TRUE(stala.ramka.isEmpty() || tytuly.contains(stala.ramka.toString()));
            const auto* flaga = qobject_cast<QCheckBox*>(&widzet);
            // The overtime boxes start with the captions of groups.
            if (i > 0 || stala.napis.isEmpty() || (stala.num >= 254 && stala.num <= 256)) continue;
            EXPECT_TRUE((flaga ? flaga->text() : podpis(n)) == stala.napis ||
                        tytuly.contains(stala.napis.toString()))
                << n.toStdString();
        }
    }
    EXPECT_EQ(tekst(u"txtGranicaG12"_s), u"29624,00"_s);
    EXPECT_EQ(tekst(u"txtSymbol(1)"_s), u"w"_s);
    EXPECT_TRUE(pole<QCheckBox>(u"chkPytajArch"_s).isChecked());
    EXPECT_TRUE(pole<QComboBox>(u"cboSposobStZasL4"_s).toolTip().contains(u"ŚredniaBrutto"_s));
}

TEST_F(StaleOkna, PolaPorzadkujaZapisujaIWracajaPoStarcie) {
    const QString emoji = QString::fromUtf8("\xF0\x9F\x98\x80");
    const QString a60(60, u'a'), jedynki = u"1"_s.leftJustified(25, u'1');
    struct Przypadek {
        QString pole, wpisany, pokazany;
        int num;
        QString zapisany, poStarcie = {};
    };
    const Przypadek przypadki[] = {
        {u"txtPodatekG1"_s, u"9,765"_s, u"9,77"_s, 42, u"9,77"_s},
        {u"txtPodatekG2"_s, u"12.5"_s, u"12,50"_s, 43, u"12,50"_s},
        {u"txtPodatekG3"_s, u"1,2,3"_s, u"0,00"_s, 44, u"0,00"_s},
        {u"txtGranicaG12"_s, u"1e300"_s, u"0,00"_s, 40, u"0,00"_s},
        {u"txtGranicaG23"_s, u"-0"_s, u"0,00"_s, 41, u"0,00"_s},
        {u"txtRKwPZ"_s, emoji, u"0,00"_s, 63, u"0,00"_s},
        {u"txtWskUbruttow"_s, QString(), u"0,00"_s, 64, u"0,00"_s},
        {u"txtStProcL4"_s, u"-80"_s, u"-80,00"_s, 100, u"-80,00"_s},
        {u"txtMiesSrBr"_s, u"6"_s, u"6"_s, 101, u"6"_s},
        {u"txtL4Pracod"_s, u"1e300"_s, u"0"_s, 102, u"0"_s},
        {u"txtDniKomunikatL4"_s, u"abc"_s, u"0"_s, 103, u"0"_s},
        {u"txtZaokZal"_s, u"0"_s, u"0"_s, 60, u"0"_s},
        {u"txtZaokPod"_s, u"3"_s, u"2"_s, 61, u"2"_s},
        {u"txtZaokWyp"_s, u"x"_s, u"2"_s, 62, u"2"_s},
        {u"txtL4Prd(0)"_s, u"10"_s, u"10"_s, 104, u"10,10,0,0,"_s},
        {u"txtL4Prd(1)"_s, u"10"_s, u"10"_s, 104, u"10,10,0,0,"_s}, // equal ones are allowed here
        {u"txtL4Prd(3)"_s, u"31"_s, u"0"_s, 104, u"10,10,0,0,"_s},
        {u"txtSklUrlz(0)"_s, u"-1"_s, u"0"_s, 208, u"0,30,0,0,"_s},
        {u"txtSklUrlz(1)"_s, u"30"_s, u"30"_s, 208, u"0,30,0,0,"_s},
        {u"txtZas_chor"_s, u"1,5"_s, u"0"_s, 413, u"0"_s},
        {u"txtWzorUrl"_s, u"stz/21*(2+3)"_s, u"STZ/21*(2+3)"_s, 205, u"STZ/21*(2+3)"_s},
        // A comma of an element comes back as two elements, and what is past 60 characters is lost.
        {u"txtRowAKRob(0)"_s, u"stc*1,5"_s, u"STC*1,5"_s, 152, u"STC*1,5,,,"_s, u"STC*1"_s},
        {u"txtAKNazwaS(0)"_s, jedynki, jedynki, 151, (jedynki + u',').repeated(3).left(60)},
        {u"txtAKNazwaS(1)"_s, jedynki, jedynki, 151, (jedynki + u',').repeated(3).left(60)},
        {u"txtAKNazwaS(2)"_s, jedynki, jedynki, 151, (jedynki + u',').repeated(3).left(60), jedynki.left(8)},
        {u"txtNPZl(0)"_s, u"500"_s, u"500 zł"_s, 660, u"500 zł,5 zł,,drobne,,,,,,,"_s},
        {u"txtNPZl(1)"_s, u"4,6"_s, u"5 zł"_s, 660, u"500 zł,5 zł,,drobne,,,,,,,"_s},
        {u"txtNPZl(2)"_s, QString(), QString(), 660, u"500 zł,5 zł,,drobne,,,,,,,"_s},
        {u"txtNPZl(3)"_s, u"drobne"_s, u"drobne"_s, 660, u"500 zł,5 zł,,drobne,,,,,,,"_s},
        {u"txtNPGr(9)"_s, u"1"_s, u"1 gr"_s, 661, u",,,,,,,,,1 gr,"_s},
        {u"txtNazwaUzCz1"_s, a60 + u"b"_s, a60, 300, a60},
        {u"txtNazwaUzCz2"_s, u"Żółw'; "_s + emoji, u"Żółw'; "_s + emoji, 301, u"Żółw'; "_s + emoji},
        {u"txtSymbol(2)"_s, u"zw"_s, u"z"_s, 212, u"z"_s},
        {u"txtSymbol(3)"_s, emoji, QString(), 213, QString()}, // half a character is none
        {u"txtPowstObowOplSkl"_s, u"01072001"_s, u"01-07-2001"_s, 404, u"01-07-2001"_s},
        {u"txtOtrzymZPCHR"_s, u"31-02-2001"_s, QString(), 407, QString()},
        {u"txtMCSPath"_s, u"C:\\MCS"_s, u"C:\\MCS"_s, 605, u"C:\\MCS"_s},
    };
    otworzEkran();
    for (const Przypadek& p : przypadki) {
        wpiszIOpusc(p.pole, p.wpisany);
        EXPECT_EQ(tekst(p.pole), p.pokazany) << p.pole.toStdString() << " <- " << p.wpisany.toStdString();
    }
    kliknij(u"chkAktSystAk"_s);
    for (const QString& lista : {u"cboSposobPrzelSr"_s, u"cboOsFizyczna"_s}) {
        przejdzDo(pole<QComboBox>(lista));
        QTest::keyClick(&pole<QComboBox>(lista), Qt::Key_End);
    }
    ok();
    EXPECT_FALSE(ekran->isVisible());
    EXPECT_EQ(stale().RowAKRob[0], u"STC*1,5"_s) << "whole until the next start";

    otworzPonownie();
    for (const Przypadek& p : przypadki) EXPECT_EQ(wPliku(p.num), p.zapisany) << p.num;
    EXPECT_EQ(wPliku(68), u"True"_s);
    EXPECT_EQ(wPliku(73), u"2"_s);
    EXPECT_EQ(wPliku(503), u"True"_s);
    otworzEkran();
    for (const Przypadek& p : przypadki)
        EXPECT_EQ(tekst(p.pole), p.poStarcie.isNull() ? p.pokazany : p.poStarcie) << p.pole.toStdString();
    EXPECT_EQ(tekst(u"txtRowAKRob(1)"_s), u"5"_s);
}

TEST_F(StaleOkna, NumerSkladnikaJestJedenWCalejGrupieINazwanyObok) {
    otworzEkran();
    // Held at first: PlZas 1, PremPr 2, SklUrl 3, on three tabs.
    wpiszIOpusc(u"txtNrNGS(0)"_s, u"6"_s);
    struct Przypadek {
        QString pole, wpisany, zostaje;
    };
    const Przypadek przypadki[] = {
        {u"txtNrNGS(0)"_s, u"1"_s, u"6"_s},   {u"txtNrNGS(1)"_s, u"6"_s, u"0"_s},
        {u"txtNrAKS(2)"_s, u"3"_s, u"0"_s},   {u"txtSklUrl"_s, u"6"_s, u"3"_s},
        {u"txtNr13"_s, u"2"_s, u"0"_s},       {u"txtPremPr"_s, u"31"_s, u"2"_s},
        {u"txtPremPr"_s, u"abc"_s, u"2"_s},   {u"txtPremPr"_s, u"-1"_s, u"2"_s},
        {u"txtPremPr"_s, QString(), u"2"_s},  {u"txtPremPr"_s, u"2,0"_s, u"2"_s},
        {u"txtPremPr"_s, u" 0"_s, u"0"_s},    {u"txtNrAKS(0)"_s, u"2"_s, u"2"_s},
        {u"txtNrNGS(0)"_s, u"0"_s, u"0"_s},   {u"txtPlZas"_s, u"06"_s, u"6"_s},
        {u"txtL4Prd(0)"_s, u"6"_s, u"6"_s}, // stands outside the group
        {u"txtNrNGS(6)"_s, u"30"_s, u"30"_s},
    };
    for (const Przypadek& p : przypadki) {
        wpiszIOpusc(p.pole, p.wpisany);
        EXPECT_EQ(tekst(p.pole), p.zostaje) << p.pole.toStdString() << " <- " << p.wpisany.toStdString();
        const int numer = p.zostaje.toInt();
        EXPECT_EQ(pole<QLabel>(u"lab"_s + p.pole.mid(3)).text(),
                  numer ? otoczenie().skladniki.SkNazwa(numer) : QString());
    }
    ok();
    EXPECT_EQ(wPliku(1) + u'|' + wPliku(2) + u'|' + wPliku(150) + u'|' + wPliku(252),
              u"6|0|2,0,0,|0,0,0,0,0,0,30,"_s);
}

TEST_F(StaleOkna, AnulujPorzucaZmianyAEscapePytaONie) {
    const QStringList przed = calaTabela();
    const Stale staleprzed = stale();
    bool prawa = false;
    const QString pytanie = u"Czy zapisać zmiany ?"_s;
    const auto zmien = [&] {
        otworzEkran({{}, [&] { prawa = true; }, {}});
        wpiszIOpusc(u"txtGranicaG12"_s, u"1"_s);
        kliknij(u"chkAktSystAk"_s);
        wpisz(u"txtWzorUrl"_s, u"2++"_s); // a wrong formula still being typed
    };
    zmien();
    QTest::mouseClick(&pole<QPushButton>(u"Command2"_s), Qt::LeftButton);
    EXPECT_FALSE(ekran->isVisible());
    zmien();
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Anuluj, u"Pytanie"_s);
    QTest::keyClick(&pole(u"txtWzorUrl"_s), Qt::Key_Escape);
    EXPECT_TRUE(ekran->isVisible());
    EXPECT_EQ(tekst(u"txtWzorUrl"_s), u"2++"_s);
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
    EXPECT_TRUE(ekran->close());
    otworzEkran();
    QTest::keyClick(ekran.get(), Qt::Key_Escape);
    EXPECT_FALSE(ekran->isVisible()) << "nothing was changed, nothing is asked";
    EXPECT_EQ(calaTabela(), przed);
    EXPECT_EQ(stale(), staleprzed);
    EXPECT_FALSE(prawa);
}

TEST_F(StaleOkna, OkienkaNadgodzinMajaDwaUklady) {
    const auto okienko = [](int nr) {
        return u"txtRowNG%1(%2)"_s.arg(QStringList{u"Rob"_s, u"Sob"_s, u"Nie"_s}[nr / 3]).arg(nr % 3);
    };
    const auto podpisy = [&] { return podpis(okienko(0)) + podpis(okienko(3)) + podpis(okienko(6)); };
    const auto widoczne = [&](int nr) { return !pole(okienko(nr)).isHidden(); };
    const QString grupy = u"Grupy 1-3:Grupy 4-6:Grupa 7:"_s, dni = u"Dni robocze:Soboty:Niedziele:"_s;

    otworzEkran();
    EXPECT_EQ(podpisy(), grupy);
    EXPECT_TRUE(widoczne(6) && !widoczne(7) && !widoczne(8));
    kliknij(u"chkSzczegRejNadg"_s);
    EXPECT_EQ(podpisy(), dni);
    EXPECT_TRUE(widoczne(7) && widoczne(8));
    for (int i = 0; i < 9; ++i) wpiszIOpusc(okienko(i), u"stc*%1"_s.arg(i + 1));
    ok();
    EXPECT_EQ(wPliku(254) + wPliku(255) + wPliku(256),
              u"STC*1,STC*2,STC*3,STC*4,STC*5,STC*6,STC*7,STC*8,STC*9,"_s);
    EXPECT_EQ(wPliku(257), u",,,,,,,"_s);

    // Each layout keeps its own equations, typed or stored.
    otworzPonownie();
    otworzEkran();
    EXPECT_EQ(podpisy(), dni);
    wpiszIOpusc(okienko(6), u"7"_s);
    kliknij(u"chkSzczegRejNadg"_s);
    EXPECT_EQ(podpisy(), grupy);
    EXPECT_EQ(tekst(okienko(0)) + tekst(okienko(6)), QString());
    wpiszIOpusc(okienko(6), u"5"_s);
    kliknij(u"chkSzczegRejNadg"_s);
    EXPECT_EQ(tekst(okienko(6)) + u' ' + tekst(okienko(7)), u"7 STC*8"_s);
    kliknij(u"chkSzczegRejNadg"_s);
    ok();
    EXPECT_EQ(wPliku(257), u",,,,,,5,"_s);
    EXPECT_EQ(wPliku(256), u"7,STC*8,STC*9,"_s);
    otworzEkran();
    EXPECT_EQ(tekst(okienko(6)), u"5"_s);
    EXPECT_EQ(tekst(okienko(0)), QString());
}

TEST_F(StaleOkna, ZlyWzorMowiSwojeINiczegoNieTrzyma) {
    otworzEkran();
    rozmowa_.spodziewaj(kBladSkladni, Styl::Wykrzyknik);
    wpiszIOpusc(u"txtWzorStZasL4"_s, u"(2+3"_s);
    rozmowa_.spodziewaj(u"Nieznana zmienna \"XYZ\""_s, Styl::Wykrzyknik);
    rozmowa_.spodziewaj(kBladZmiennej, Styl::Wykrzyknik);
    wpiszIOpusc(u"txtRownSrL4"_s, u"xyz+1"_s);
    // A negative number in brackets is right, and answered so deliberately.
    rozmowa_.spodziewaj(kBladZmiennej, Styl::Wykrzyknik);
    wpiszIOpusc(u"txtRowAKNie(2)"_s, u"2*(-3)"_s);
    rozmowa_.spodziewaj(u"Nie można obliczyć wzoru \"5*\". Operator na końcu wzoru nie ma argumentu."_s,
                        Styl::Krytyczny);
    wpiszIOpusc(u"txtWzorSposPrzelSr"_s, u"5*"_s);
    wpiszIOpusc(u"txtRowNGRob(0)"_s, u"sgp*2"_s);
    EXPECT_TRUE(rozmowa_.gotowa());
    EXPECT_TRUE(pole<QListWidget>(u"lstKarty"_s).hasFocus());

    // Enter in the field is OK: it checks and stores.
    rozmowa_.spodziewaj(kBladSkladni, Styl::Wykrzyknik);
    wpisz(u"txtWzorUrl"_s, u"(5)"_s);
    QTest::keyClick(&pole(u"txtWzorUrl"_s), Qt::Key_Return);
    EXPECT_FALSE(ekran->isVisible());
    EXPECT_TRUE(rozmowa_.gotowa());
    EXPECT_EQ((QStringList{wPliku(109), wPliku(108), wPliku(154), wPliku(74), wPliku(257), wPliku(205)}),
              (QStringList{u"(2+3"_s, u"XYZ+1"_s, u",,2*(-3),"_s, u"5*"_s, u"SGP*2,,,,,,,"_s, u"(5)"_s}));
}

TEST_F(StaleOkna, PomocStoiNaKazdejKarcieZWzorami) {
    otworzEkran();
    const auto& karty = pole<QStackedWidget>(u"karty"_s);
    QStringList zPomoca;
    for (int i = 0; i < karty.count(); ++i) {
        const auto* pomoc = karty.widget(i)->findChild<QGroupBox*>(u"fraPomoc"_s);
        if (!pomoc) continue;
        zPomoca += karty.widget(i)->objectName();
        QStringList teksty;
        for (const QLabel* e : pomoc->findChildren<QLabel*>()) teksty += e->text();
        for (const QString& t :
             {u"Nawiasy"_s, u"Operator potęgowania (np. 2^3 = 8)"_s, u"Pierwiastek kwadratowy (np. #9 = 3)"_s,
              u"Operator procenta (20% = 0,2)"_s, u"STZ"_s, u"DU1..DU30"_s, u"LU1..LU30"_s,
              u"Ujemne składniki płac zapisane na liście"_s})
            EXPECT_TRUE(teksty.contains(t)) << t.toStdString();
    }
    EXPECT_EQ(zPomoca.join(u'|'), u"Stałe systemu|Inne (1)|Urlopy|L-4|Nadgodziny"_s);
}

TEST_F(StaleOkna, NieudanyZapisZostawiaEkranIWpisaneWartosci) {
    const QStringList przed = calaTabela();
    const Stale staleprzed = stale();
    int prawa = 0;
    otworzEkran({{}, [&] { ++prawa; }, {}});
    wpiszIOpusc(u"txtGranicaG12"_s, u"30000"_s);
    wpisz(u"txtNIP"_s, u"525-000-11-22"_s); // not left yet
    sesja().cnPlace.wykonaj("CREATE TRIGGER pelny BEFORE UPDATE ON KON WHEN NEW.Num = 306 "
                            "BEGIN SELECT RAISE(ABORT, 'x'); END");
    EXPECT_THROW(ekran->accept(), BladBazy);
    EXPECT_TRUE(ekran->isVisible());
    EXPECT_EQ(calaTabela(), przed) << "all constants or none";
    EXPECT_EQ(stale(), staleprzed);
    EXPECT_EQ(prawa, 0);

    // What the outermost handler does; then the cause is gone and the clerk tries again.
    sesja().OdswiezUchwyty();
    sesja().cnPlace.wykonaj("DROP TRIGGER pelny");
    EXPECT_EQ(tekst(u"txtNIP"_s), u"525-000-11-22"_s);
    ok();
    EXPECT_FALSE(ekran->isVisible());
    EXPECT_EQ(wPliku(40) + wPliku(306), u"30000,00525-000-11-22"_s);
    EXPECT_EQ(stale().GranicaG12, zl(30000));
    EXPECT_EQ(prawa, 1);
}

TEST_F(StaleOkna, UrzedyIFolderyWybieraSiePrzezPorty) {
    nowyUrzad(2, u"Drugi US"_s);
    nowyUrzad(1, u"Pierwszy US"_s);
    otworzEkran();
    EXPECT_FALSE(pole<QPushButton>(u"cmdNowy"_s).isEnabled());

    PortyStalych porty;
    porty.otworzUrzedy = [this] { nowyUrzad(3, u"Trzeci US"_s); };
    QStringList pytania;
    QString odpowiedz;
    porty.wybierzFolder = [&](QWidget*, const QString& wstepny) {
        pytania += wstepny;
        return odpowiedz;
    };
    otworzEkran(porty);
    auto& urzad = pole<QComboBox>(u"cboUS"_s);
    const auto pozycje = [&] {
        QStringList wynik;
        for (int i = 0; i < urzad.count(); ++i) wynik += urzad.itemText(i);
        return wynik.join(u'|');
    };
    EXPECT_EQ(pozycje(), u"|1. Pierwszy US|2. Drugi US"_s);
    przejdzDo(urzad);
    QTest::keyClick(&urzad, Qt::Key_End);
    kliknij(u"cmdNowy"_s);
    EXPECT_EQ(pozycje(), u"|1. Pierwszy US|2. Drugi US|3. Trzeci US"_s);
    EXPECT_EQ(urzad.currentText(), u"2. Drugi US"_s) << "the choice stays";

    kliknij(u"cmdPath"_s); // cancelled
    odpowiedz = u"/zbiory/arch"_s;
    kliknij(u"cmdArch"_s);
    kliknij(u"cmdMCS"_s);
    EXPECT_EQ(pytania, QStringList(3, folder_.path().left(60)));
    ok();
    EXPECT_EQ((QStringList{wPliku(663), wPliku(425), wPliku(701), wPliku(605)}),
              (QStringList{u"2"_s, folder_.path().left(60), odpowiedz, odpowiedz}));
}

TEST_F(StaleOkna, KartyPrzechodziSieKlawiatura) {
    otworzEkran();
    const auto& karty = pole<QStackedWidget>(u"karty"_s);
    EXPECT_EQ(karty.currentIndex(), 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    EXPECT_EQ(karty.currentIndex(), 1);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(pole(u"txtPlZas"_s).hasFocus());
    EXPECT_EQ(pole(u"txtPlZas"_s).selectedText(), u"1"_s);

    // The tab changes under the field in work: it is left, and the next tab's first field waits.
    wpisz(u"txtPlZas"_s, u"2"_s);
    QTest::keyClick(&pole(u"txtPlZas"_s), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(karty.currentIndex(), 2);
    EXPECT_EQ(tekst(u"txtPlZas"_s), u"1"_s);
    EXPECT_TRUE(pole(u"txtStawkaPomPPE"_s).hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp, Qt::ControlModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(karty.currentIndex(), 17) << "round and round";

    ekran->pokazKarte(KartaStalych::MCS);
    pole(u"txtMCSKod"_s).setFocus(Qt::TabFocusReason);
    QStringList kolejnosc;
    for (int i = 0; i < 7; ++i) {
        kolejnosc += QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(kolejnosc.join(u' '),
              u"txtMCSKod txtMCSPath cmdMCS chkPytajArch txtArchPath cmdArch Command1"_s);
}

} // namespace

} // namespace tornel::testy
