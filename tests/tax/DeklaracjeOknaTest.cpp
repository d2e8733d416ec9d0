// The screens of the declarations: making, typing over, storing, printing, many at once.
#include "common/Daty.h"
#include "common/Liczby.h"
#include "okna/PoleTekstu.h"
#include "okna/WidokListy.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "tax/frmDeklaracjaRoczna.h"
#include "tax/frmKontrolaPIT4.h"
#include "tax/frmListaPIT4.h"
#include "tax/frmListaPIT4Nowy.h"
#include "tax/frmPIT8BAnaliza.h"
#include "tax/frmSeriaDeklaracji.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include "wsparcie/Widzet.h"
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using schemat::PIT11;
using schemat::PIT4;

constexpr OkresPodatkowy kKwartal{{2001, 1}, {2001, 3}};

class DeklaracjeOkna : public testing::Test {
protected:
    DeklaracjeOkna() {
        UtworzPrzyklad(folder_.filePath(u"Tornel.mdb"_s), 12, 3, folder_.path());
        program_ = std::make_unique<Program>(folder_.filePath(u"Tornel.mdb"_s), folder_.path(), rozmowa_);
    }
    Otoczenie& o() { return program_->otoczenie(); }
    static void pokaz(QWidget& okno) {
        okno.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    }
    /// Types into a field as a clerk does: it is entered, everything replaced, and left.
    static void wpisz(QWidget& okno, const QString& nazwa, const QString& tekst) {
        auto& pole = widzet<QLineEdit>(okno, nazwa);
        pole.setFocus(Qt::TabFocusReason);
        pole.selectAll();
        QTest::keyClicks(&pole, tekst);
        QTest::keyClick(&pole, Qt::Key_Tab);
    }
    static QString tekst(const QWidget& okno, const QString& nazwa) {
        return widzet<QLineEdit>(okno, nazwa).text();
    }
    KluczPit4 pit4(RokMies miesiac) {
        const auto nowa = Pit4(o()).Nowy({miesiac, 0}, {}, {2001, 4, 20});
        EXPECT_TRUE(nowa);
        return nowa.value_or(KluczPit4{});
    }

    QTemporaryDir folder_;
    RozmowaSkrypt rozmowa_;
    std::unique_ptr<Program> program_;
};

TEST_F(DeklaracjeOkna, NowaPIT4PoprawiaKluczPrzyOpuszczaniuPol) {
    const std::array<QString, 3> pola{u"txtMies"_s, u"txtRok"_s, u"txtNr"_s};
    const struct {
        std::array<QString, 3> wpisane;
        std::array<QString, 3> zostaje;
    } przypadki[] = {
        {{u"3"_s, u"2001"_s, u"1"_s}, {u"03"_s, u"2001"_s, u"01"_s}},
        {{u"13"_s, u"x"_s, u"x"_s}, {u"11"_s, u"2002"_s, u"00"_s}},
        {{u"0"_s, u"-1"_s, u"123"_s}, {u"11"_s, u"2002"_s, u"123"_s}},
    };
    for (const auto& [wpisane, zostaje] : przypadki) {
        frmListaPIT4Nowy okno({2002, 11, 5}, frmListaPIT4Nowy::Listy::Pytaj);
        pokaz(okno);
        for (std::size_t i = 0; i < pola.size(); ++i) {
            wpisz(okno, pola[i], wpisane[i]);
            EXPECT_EQ(tekst(okno, pola[i]), zostaje[i]);
        }
        wpisz(okno, u"txtListy"_s, u"A "_s);
        EXPECT_EQ(widzet<QLabel>(okno, u"labListy"_s).text(), u"[A][ ]"_s);
        EXPECT_EQ(okno.mies(), 0) << "not before it is accepted";
        okno.accept();
        EXPECT_EQ(okno.mies(), zostaje[0].toInt());
        EXPECT_EQ(okno.rok(), zostaje[1].toInt());
        EXPECT_EQ(okno.numer(), zostaje[2].toInt());
        EXPECT_EQ(okno.listy(), u"A "_s);
    }
    frmListaPIT4Nowy okno({2002, 11, 5}, frmListaPIT4Nowy::Listy::Nie);
    pokaz(okno);
    EXPECT_FALSE(widzet<QLineEdit>(okno, u"txtListy"_s).isVisible());
    QTest::keyClick(&widzet<QLineEdit>(okno, u"txtMies"_s), Qt::Key_Return);
    EXPECT_TRUE(widzet<QLineEdit>(okno, u"txtRok"_s).hasFocus());
    QTest::keyClick(&okno, Qt::Key_Escape);
    EXPECT_EQ(okno.mies() + okno.rok() + okno.numer(), 0);
}

TEST_F(DeklaracjeOkna, KazdePolePIT4TrafiaDoSwojejKolumny) {
    const KluczPit4 marzec = pit4({2001, 3});
    {
        frmListaPIT4 okno(o());
        pokaz(okno);
        for (int n = 1; n <= wierszPit4::Zrodel; ++n) {
            wpisz(okno, u"txtPrzy%1"_s.arg(n), QString::number(n));
            wpisz(okno, u"txtKup%1"_s.arg(n), u"%1,11"_s.arg(n));
            wpisz(okno, u"txtPobZal%1"_s.arg(n), u"%1,22"_s.arg(n));
            wpisz(okno, u"txtUbzdrPob%1"_s.arg(n), u"%1,33"_s.arg(n));
            wpisz(okno, u"txtUbzdrOdl%1"_s.arg(n), u"%1,44"_s.arg(n));
        }
        for (int n = wierszPit4::OdPozycji; n <= wierszPit4::DoPozycji; ++n)
            wpisz(okno, u"txtPobZal%1"_s.arg(n), u"%1,5"_s.arg(n));
        widzet<QComboBox>(okno, u"cboPrzekazano"_s).setCurrentIndex(3);
        emit widzet<QComboBox>(okno, u"cboPrzekazano"_s).activated(3);
        widzet<QPlainTextEdit>(okno, u"txtRoznica"_s).setPlainText(u"bo tak"_s);
        wpisz(okno, u"txtDataWplaty"_s, u"20-04-2001"_s);
        QTest::keyClick(&okno, Qt::Key_Escape);
    }
    Pit4 zapisane(o());
    ASSERT_TRUE(zapisane.zaznacz(marzec));
    const Recordset& rs = o().sesja.rsPIT4;
    for (int n = 1; n <= wierszPit4::Zrodel; ++n) {
        using namespace wierszPit4;
        EXPECT_EQ(rs.liczba(zrodlo(n, przy)), n);
        for (const auto& [kolumna, grosze] :
             {std::pair(kup, 11), std::pair(pob_zal, 22), std::pair(ubzdr_pob, 33), std::pair(ubzdr_odl, 44)})
            EXPECT_EQ(rs.kwota(zrodlo(n, kolumna)), Waluta::zSurowej((n * 100 + grosze) * 100LL)) << n;
    }
    for (int n = wierszPit4::OdPozycji; n <= wierszPit4::DoPozycji; ++n)
        EXPECT_EQ(rs.kwota(wierszPit4::kwotaPozycji(n)), Waluta::zSurowej(n * 10000LL + 5000)) << n;
    EXPECT_EQ(rs.liczba(PIT4("przekazano")), 3);
    EXPECT_EQ(rs.tekst(PIT4("roznica")), u"bo tak"_s);
    EXPECT_EQ(rs.data(PIT4("datawplaty")), QDate(2001, 4, 20));
}

TEST_F(DeklaracjeOkna, PIT4MowiGdyMiesiacJestDzisInnyIDrukujeWybraneStrony) {
    pit4({2001, 2});
    pit4({2001, 3});
    QStringList drukowane;
    PortWydrukowDeklaracji port;
    port.drukuj = [&](const WierszDeklaracji& d, int strona, QWidget*) {
        drukowane.append(u"%1 str. %2"_s.arg(tekstWartosci({}, d.wartosc("Mies"))).arg(strona));
        EXPECT_EQ(d.kwota("kup_1"), o().sesja.rsPIT4.kwota(PIT4("kup_1")));
    };
    frmListaPIT4 okno(o(), port);
    pokaz(okno);
    auto& lista = widzet<WidokListy>(okno, u"lvwLista"_s);
    auto& baner = widzet<QLabel>(okno, u"labNieaktualne"_s);
    ASSERT_EQ(lista.model()->rowCount(), 2);
    EXPECT_EQ(lista.model()->index(0, 0).data().toString(), u"20010200"_s);
    EXPECT_FALSE(baner.isVisible());
    wpisz(okno, u"txtPrzy1"_s, u"99"_s);
    QTest::keyClick(&lista, Qt::Key_Down); // stores, and shows the next one
    QTest::keyClick(&lista, Qt::Key_Up);
    EXPECT_TRUE(baner.isVisible());
    const int dzis = PodsumujMiesiac(o().sesja, {2001, 2})->podatnikow;
    EXPECT_TRUE(baner.text().contains(u"podatników 99"_s) &&
                baner.text().contains(u"podatników %1,"_s.arg(dzis)))
        << baner.text().toStdString();

    rozmowa_.spodziewaj(u"Czy drukować pierwszą stronę PIT-4 ?"_s, Odpowiedz::Nie);
    rozmowa_.spodziewaj(u"Czy drukować drugą stronę PIT-4 ?"_s, Odpowiedz::Tak);
    widzet<QPushButton>(okno, u"cmdDrukuj"_s).click();
    EXPECT_EQ(drukowane, QStringList{u"2 str. 2"_s});

    rozmowa_.spodziewaj(u"Czy na pewno usunąć wybraną pozycję ?"_s, Odpowiedz::Tak);
    widzet<QPushButton>(okno, u"cmdUsun"_s).click();
    EXPECT_EQ(lista.model()->rowCount(), 1);
    EXPECT_FALSE(baner.isVisible());
}

TEST_F(DeklaracjeOkna, KontrolaRokuZnaczyMiesiaceBezDeklaracji) {
    program_.reset();
    const QString rok = folder_.filePath(u"Rok.mdb"_s);
    UtworzPrzyklad(rok, 12, 12, folder_.path());
    program_ = std::make_unique<Program>(rok, folder_.path(), rozmowa_);
    for (int mies = 1; mies <= 12; ++mies) pit4({2001, mies});
    frmKontrolaPIT4 okno(o(), 2001);
    pokaz(okno);
    const auto& wynik = widzet<QLabel>(okno, u"labWynik"_s);
    EXPECT_TRUE(wynik.text().startsWith(u"Rok się zgadza"_s)) << wynik.text().toStdString();
    rozmowa_.spodziewaj(u"Czy na pewno usunąć wybraną pozycję ?"_s, Odpowiedz::Tak);
    Pit4(o()).Usun({{2001, 2}, 0});
    frmKontrolaPIT4 ponownie(o(), 2001);
    EXPECT_TRUE(widzet<QLabel>(ponownie, u"labWynik"_s).text().contains(u"różnicą: 1."_s));
}

TEST_F(DeklaracjeOkna, WpisaneKwotyPIT11ZostajaWWierszuIWSumach) {
    QList<WierszDeklaracji> drukowane;
    PortWydrukowDeklaracji port;
    port.drukuj = [&](const WierszDeklaracji& d, int, QWidget*) { drukowane.append(d); };
    frmDeklaracjaRoczna okno(o(), Deklaracja::Pit11, 3, kKwartal, port);
    pokaz(okno);
    EXPECT_EQ(okno.windowTitle(), u"Wydruk PIT-11"_s);
    const auto razem = [&](const QString& nazwa) { return *CzytajKwote(tekst(okno, nazwa), Zapis::Pole); };
    const Waluta przychod = razem(u"txtSPRZY"_s), koszty = razem(u"txtSKUP"_s);
    EXPECT_GT(przychod, Waluta{});
    EXPECT_EQ(razem(u"txtSDOCHOD"_s), przychod - koszty);
    EXPECT_FALSE(widzet<QLabel>(okno, u"labUwagi"_s).isVisible());
    wpisz(okno, u"txtprzy_1a"_s, u"100"_s);
    wpisz(okno, u"txtprzy_9"_s, u"1 000,50"_s);
    EXPECT_EQ(razem(u"txtSPRZY"_s), przychod + zl(1100.50));
    EXPECT_TRUE(widzet<QLabel>(okno, u"labUwagi"_s).text().contains(u"wierszach: 9."_s));
    wpisz(okno, u"txtdochod_9"_s, u"1000,50"_s);
    EXPECT_FALSE(widzet<QLabel>(okno, u"labUwagi"_s).isVisible());
    widzet<QComboBox>(okno, u"cboKuz"_s).setCurrentIndex(2);
    emit widzet<QComboBox>(okno, u"cboKuz"_s).activated(2);
    wpisz(okno, u"txtNazwisko"_s, u"Inna"_s);
    rozmowa_.spodziewaj(u"Czy drukować pierwszą stronę PIT-11 ?"_s, Odpowiedz::Tak);
    rozmowa_.spodziewaj(u"Czy drukować drugą stronę PIT-11 ?"_s, Odpowiedz::Nie);
    widzet<QPushButton>(okno, u"cmdDrukuj"_s).click();
    ASSERT_EQ(drukowane.size(), 1);
    const Recordset& rs = o().sesja.rsPIT11;
    EXPECT_FALSE(rs.zmieniony()) << "stored before it prints";
    EXPECT_EQ(drukowane[0].kwota("przy_1a"), zl(100));
    EXPECT_EQ(rs.kwota(PIT11("przy_9")), zl(1000.50));
    EXPECT_EQ(rs.tekst(PIT11("Nazwisko")), u"Inna"_s);
    EXPECT_EQ(rs.tekst(PIT11("kuz1")) + rs.tekst(PIT11("kuz2")) + rs.tekst(PIT11("kuz3")), u"  x"_s);
    // The next opening fills the row anew.
    const frmDeklaracjaRoczna druga(o(), Deklaracja::Pit11, 4, kKwartal);
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(rs.kwota(PIT11("przy_9")), Waluta{});
}

TEST_F(DeklaracjeOkna, KazdePoleRocznejTrafiaDoSwojejKolumny) {
    for (const Deklaracja ktora : {Deklaracja::Pit11, Deklaracja::Pit40, Deklaracja::Pit8B}) {
        const RodzajDeklaracji& rodzaj = OpisDeklaracji(ktora);
        SCOPED_TRACE(rodzaj.nazwa.toString().toStdString());
        QHash<QString, Wartosc> wpisane;
        {
            frmDeklaracjaRoczna okno(o(), ktora, 3, kKwartal);
            pokaz(okno);
            for (const KolumnaDef& k : rodzaj.tabela->kolumny) {
                const QString kolumna =
                    QString::fromLatin1(k.nazwa.data(), static_cast<qsizetype>(k.nazwa.size()));
                auto* pole = okno.findChild<QLineEdit*>(u"txt"_s + kolumna);
                if (!pole) continue; // a choice has its own test
                const auto nr = wpisane.size() + 1;
                Wartosc wartosc = QString::number(nr % 10);
                QString tekst = QString::number(nr % 10);
                if (k.typ == Typ::Currency) {
                    wartosc = Waluta::zSurowej(nr * 10000 + 1200);
                    tekst = u"%1,12"_s.arg(nr);
                } else if (k.typ == Typ::Date) {
                    wartosc = QDate(2001, 1, 1).addDays(nr);
                    tekst = FormatDaty(QDate(2001, 1, 1).addDays(nr));
                }
                pole->setFocus(Qt::TabFocusReason);
                pole->setText(tekst);
                emit pole->textEdited(tekst);
                wpisane.insert(kolumna, wartosc);
            }
            QTest::keyClick(&okno, Qt::Key_Escape);
            EXPECT_FALSE(okno.isVisible());
        }
        EXPECT_GT(wpisane.size(), 60);
        const Recordset& rs = o().sesja.*rodzaj.uchwyt;
        for (auto i = wpisane.begin(); i != wpisane.end(); ++i)
            EXPECT_TRUE(rs.wartosc(rodzaj.tabela->nr(rodzaj.tabela->numer(i.key().toStdString()))) ==
                        i.value())
                << i.key().toStdString();
    }
}

TEST_F(DeklaracjeOkna, PIT40SprawdzaWzorIRozliczaNaZadanie) {
    frmDeklaracjaRoczna okno(o(), Deklaracja::Pit40, 3, kKwartal);
    pokaz(okno);
    const auto& uwagi = widzet<QLabel>(okno, u"labUwagi"_s);
    EXPECT_FALSE(uwagi.isVisible()) << uwagi.text().toStdString();
    const QString dawny = tekst(okno, u"txtpod_obl"_s);
    wpisz(okno, u"txtprzy_10"_s, u"300"_s);
    wpisz(okno, u"txtdochod_10"_s, u"300"_s);
    EXPECT_TRUE(uwagi.text().contains(u"Rozliczenie nie odpowiada"_s)) << uwagi.text().toStdString();
    EXPECT_EQ(tekst(okno, u"txtpod_obl"_s), dawny) << "not before it is asked for";
    rozmowa_.spodziewaj(u"Nieznana zmienna \"DOH\""_s, Styl::Wykrzyknik);
    rozmowa_.spodziewaj(u"BŁĄD ZMIENNEJ\r\nWpisano nazwę nieznanej zmiennej do wzoru. We wzorze mogą "
                        "wytępować tylko ściśle ogreślone nazy zmiennych."_s,
                        Styl::Wykrzyknik);
    wpisz(okno, u"txtWzor1"_s, u"doh*0,1"_s);
    EXPECT_EQ(tekst(okno, u"txtWzor1"_s), u"DOH*0,1"_s);
    for (int i = 1; i <= 3; ++i) wpisz(okno, u"txtWzor%1"_s.arg(i), u"doch*0,1"_s);
    widzet<QPushButton>(okno, u"cmdRozlicz"_s).click();
    EXPECT_FALSE(uwagi.isVisible());
    const Recordset& rs = o().sesja.rsPIT40;
    EXPECT_EQ(rs.kwota(schemat::PIT40("pod_obl")), zl(rs.kwota(schemat::PIT40("podst")).naLiczbe() * 0.1));
    EXPECT_NE(o().stale.WzorPIT40G1, u"DOCH*0,1"_s) << "the constants keep theirs";
}

TEST_F(DeklaracjeOkna, SeriaSprawdzaSumujeIZapisujeWszystkich) {
    Recordset& pr = o().sesja.rsPRACPR;
    ASSERT_TRUE(pr.Znajdz(qint64{2}));
    pr.ustaw(schemat::PRACPR("us_id"), 0);
    pr.UpdateBatch(u"Dane testu");
    const QList<qint64> osoby{1, 2, 3};
    int stron = 0;
    PortWydrukowDeklaracji port;
    port.doPdf = [&](const SeriaStron& seria, const QString& plik) {
        for (int i = 0; i < seria.ile; ++i) stron += seria.wiersz(i).tekst("Nazwisko").isEmpty() ? 0 : 2;
        EXPECT_TRUE(plik.endsWith(u"PIT-11 200101-200103.pdf"_s)) << plik.toStdString();
    };
    qint64 otwarta = 0;
    frmSeriaDeklaracji okno(
        o(), Deklaracja::Pit11, kKwartal, osoby, port, [&](qint64 prcId, QWidget*) { otwarta = prcId; },
        nullptr, [&](QWidget*, const QString& nazwa, const QString&) { return folder_.filePath(nazwa); });
    pokaz(okno);
    auto& lista = widzet<WidokListy>(okno, u"lvwOsoby"_s);
    ASSERT_EQ(lista.model()->rowCount(), 3);
    EXPECT_TRUE(lista.model()->index(1, 5).data().toString().contains(u"Nie ma urzędu skarbowego."_s));
    // Each line is what the declaration of that person alone has.
    Waluta przychod, wGroszach;
    for (const qint64 prcId : osoby) {
        WypelnijDeklaracje(o(), Deklaracja::Pit11, prcId, kKwartal, {2002, 1, 15});
        const Waluta jego = SumujZrodla(WierszDeklaracji(Deklaracja::Pit11, o().sesja.rsPIT11)).SPRZY;
        przychod += jego;
        wGroszach += *CzytajKwote(FormatKwoty(jego), Zapis::Dane);
    }
    EXPECT_TRUE(widzet<QLabel>(okno, u"labSumy"_s).text().contains(u"przychód "_s + FormatKwoty(przychod)));
    emit lista.wejscie(3);
    EXPECT_EQ(otwarta, 3);
    for (const QString& koncowka : {u"pdf"_s, u"csv"_s})
        rozmowa_.spodziewaj(u"Plik "_s + folder_.filePath(u"PIT-11 200101-200103."_s + koncowka) +
                                u" został utworzony."_s,
                            Styl::Informacja);
    widzet<QPushButton>(okno, u"cmdPdf"_s).click();
    EXPECT_EQ(stron, 6);
    widzet<QPushButton>(okno, u"cmdCSV"_s).click();
    QFile csv(folder_.filePath(u"PIT-11 200101-200103.csv"_s));
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    const QList<QByteArray> linie = csv.readAll().trimmed().split('\n');
    ASSERT_EQ(linie.size(), 4);
    const auto kolumna = linie[0].split(';').indexOf("SPRZY");
    Waluta zPliku;
    for (int i = 1; i < 4; ++i)
        zPliku += *CzytajKwote(QString::fromUtf8(linie[i].split(';')[kolumna]), Zapis::Dane);
    EXPECT_EQ(zPliku, wGroszach);
}

TEST_F(DeklaracjeOkna, AnalizaPIT8BPokazujeWyplaconeIPilnujeZakresu) {
    frmPIT8BAnaliza okno(o(), 1, 2001);
    pokaz(okno);
    Waluta brutto;
    qint64 komu = 0;
    for (const TabelaDef* tabela : {&schemat::UZL, &schemat::UOD, &schemat::HON}) {
        const auto sumy = SumujUmowyWszystkich(o().sesja, *tabela, {{2001, 1}, {2001, 12}});
        for (auto i = sumy.begin(); i != sumy.end(); ++i) {
            if (komu == 0) komu = i.key();
            if (i.key() == komu) brutto += i->brutto;
        }
    }
    ASSERT_GT(komu, 0);
    frmPIT8BAnaliza jego(o(), komu, 2001);
    EXPECT_TRUE(widzet<QLabel>(jego, u"labSumy"_s).text().contains(u"brutto "_s + FormatKwoty(brutto)));
    rozmowa_.spodziewaj(u"Zakres dat jest nieprawidłowy."_s, Styl::Wykrzyknik);
    pokaz(jego);
    widzet<QComboBox>(jego, u"cboMiesDo"_s).setCurrentIndex(0);
    widzet<QComboBox>(jego, u"cboMiesOd"_s).setCurrentIndex(5);
    jego.accept();
    EXPECT_TRUE(jego.isVisible());
    frmDeklaracjaRoczna deklaracja(o(), Deklaracja::Pit8B, komu, {{2001, 1}, {2001, 12}});
    EXPECT_EQ(SumujZrodla(WierszDeklaracji(Deklaracja::Pit8B, o().sesja.rsPIT8B)).SPRZY, brutto);
}

} // namespace

} // namespace tornel::testy
