#include "payroll/nieobecnosci/frmWykazy.h"
#include "wsparcie/OknaPlacTestowe.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

namespace {

class NieobecnosciListyOknaTest : public OknaPlacTestowe {
protected:
    NieobecnosciListyOknaTest() {
        for (const int nr : {20, 21, 25}) skladnik(nr, "   ", true);
        Stale& s = stale();
        s.AktRejPrzepDni = true;
        s.L4Prd = {20, 0, 0, 0};
        s.SklSrL4 = s.SkSumDoSrURL = {1};
        s.SklUrlz = {21, 0, 0, 0};
        s.PlZas = s.PremPr = 0;
        miesiac();
        kalendarz(0, kLipiec);
        pracownik(1, "placa_zas=1000");
        for (const int m : {4, 5, 6}) wczesniej({2001, m}, 1, "SP_1=3000 DN_RO=20");
    }
};

/// Over the lists of averages, with the keys alone: the average of sick pay typed over (600, less 18,71%),
/// the rate of a vacation day left, the first period in its component, the second skipped.
TEST_F(NieobecnosciListyOknaTest, PrzepiszPrzechodziPrzezWykazy) {
    zwolnienie(1, {2001, 7, 2}, {2001, 7, 6}, 100);
    urlop(1, {2001, 7, 9}, {2001, 7, 10});
    urlop(1, {2001, 7, 16}, {2001, 7, 16});
    ListaPlac nowa(otoczenie(), 2001, 7, u" "_s);
    rozmowa_.spodziewaj(pytania::dni, Odpowiedz::Nie);
    dopisz(nowa, 1);
    frmPlaceLista okno(otoczenie(), kLipiec, u" "_s);
    pokaz(okno);

    rozmowa_.spodziewaj(pytania::dni, Odpowiedz::Tak);
    QTest::keyClick(&okno, Qt::Key_F7);
    EXPECT_EQ(widzet<QTabWidget>(okno, u"tabPlace"_s).currentIndex(), 3) << "the days";
    EXPECT_EQ(tekst(okno, u"txtDnirob"_s), u"14"_s);
    EXPECT_EQ(tekst(okno, u"txtWypocz"_s), u"3"_s);

    rozmowa_.spodziewaj(pytania::l4, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::urlop, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::jedenSkladnik, Odpowiedz::Nie);
    rozmowa_.spodziewaj(pytania::poUrlopie, Odpowiedz::Nie);
    rozmowa_.spodziewaj(u"Wynagrodzenie za okres od 16-07-2001 do 16-07-2001 nie zostało zapisane."_s,
                        Styl::Wykrzyknik);
    wOknie<frmWykazPodstawL4>([this](frmWykazPodstawL4& l4) {
        EXPECT_EQ(l4.windowTitle(), u"Wykaz miesięcznych podstaw do L-4"_s);
        EXPECT_EQ(wiersze(l4, u"lvwMiesiace"_s).first(), u"2001 Czerwiec|3000,00|3000,00"_s);
        pisz(widzet(l4, u"txtBruttoSr"_s), u"600"_s);
        wOknie<frmWykazPodstaw>([this](frmWykazPodstaw& urlop) {
            EXPECT_EQ(widzet<QLabel>(urlop, u"labDni"_s).text(),
                      u"Dni przepracowane w tych miesiącach: 60"_s);
            EXPECT_EQ(tekst(urlop, u"txtDniowka"_s), u"150,00"_s);
            wOknie<frmNrSkladnikaURL>([this](frmNrSkladnikaURL& pierwszy) {
                EXPECT_EQ(tekst(pierwszy, u"txtSkl"_s), u"21"_s);
                wOknie<frmNrSkladnikaURL>(
                    [](frmNrSkladnikaURL& drugi) { QTest::keyClick(&drugi, Qt::Key_Escape); });
                QTest::keyClick(&pierwszy, Qt::Key_Return);
            });
            QTest::keyClick(&urlop, Qt::Key_Return);
        });
        QTest::keyClick(&l4, Qt::Key_Return);
    });
    QTest::keyClick(&okno, Qt::Key_F8);
    EXPECT_EQ(otwarte_, 4);
    oczekujWPliku({1, u" "_s},
                  "SP_20=81,3 SP_21=300 SOD_21=2001-07-09 SDO_21=2001-07-10 SR_BR_ZUS=487,74 SR_BR_URL=150");
    EXPECT_EQ(tekst(okno, u"txtPlus(20)"_s), u"81,30"_s);
}

} // namespace

} // namespace tornel::testy
