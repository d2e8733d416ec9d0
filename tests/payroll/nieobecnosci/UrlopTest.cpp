#include "payroll/nieobecnosci/WynagrodzenieUrlop.h"
#include "wsparcie/NieobecnosciTestowe.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

const QString kKalendarz = u"Czy urlop wyliczyć z dni wolnych pracownika ?"_s;
const QString kPonowic = u"Podany numer składnika jest nieaktywny. Ponowić próbę ?"_s;

/// The employee earned 2400 + 100 in 21, 4400 + 100 in 20 and 2100 in 19 days before: 151,67 a day.
class UrlopTest : public NieobecnosciTestowe {
protected:
    UrlopTest() {
        miesiac();
        for (const int nr : {20, 21, 22, 23}) skladnik(nr, "   ", true);
        stale().SklUrl = 5;
        stale().SklUrlz = {20, 21, 22, 23};
        stale().SkSumDoSrURL = {1, 12};
        stale().SklPrzelURL = {1, 2};
        pracownik(1, "placa_zas=3000 Premia_pr=10");
        wczesniej({2001, 4}, 1, "SP_1=2400 SP_12=100 DN_RO=20 DN_SO=1");
        wczesniej({2001, 5}, 1, "SP_1=4400 SP_12=100 DN_RO=18 DN_SO=1 DN_NI=1");
        wczesniej({2001, 6}, 1, "SP_1=2100 DN_RO=19");
        lista_ = std::make_unique<ListaPlac>(otoczenie(), kLipiec.rok, kLipiec.mies, u" "_s, &wykazy_);
        dopisz(*lista_, 1);
    }

    void oczekujPytan(std::optional<Odpowiedz> jeden = {}, Odpowiedz poUrlopie = Odpowiedz::Nie) {
        rozmowa_.spodziewaj(pytania::urlop, Odpowiedz::Tak);
        if (jeden) rozmowa_.spodziewaj(pytania::jedenSkladnik, *jeden);
        rozmowa_.spodziewaj(pytania::poUrlopie, poUrlopie);
    }
    void przepisz(const std::string& wynik) {
        lista_->Przelicz2();
        oczekujWPliku({1, u" "_s}, wynik);
    }
    static QString niezapisane(const QString& od, const QString& dokad) {
        return u"Wynagrodzenie za okres od "_s + od + u" do "_s + dokad + u" nie zostało zapisane."_s;
    }

    WykazySkrypt wykazy_;
    std::unique_ptr<ListaPlac> lista_;
};

TEST_F(UrlopTest, APeriodIsItsDaysTimesTheAverageRate) {
    struct Urlop {
        QDate od, dokad;
        int rodzaj = 0;
        double kwota = 0;
    };
    static const struct {
        const char* opis;
        std::vector<Urlop> urlopy;
        bool soboty;
        const char* wynik;
    } przypadki[] = {
        {"Friday to Monday",
         {{{2001, 7, 6}, {2001, 7, 9}}},
         false,
         "SR_BR_URL=151,67 SP_5=303,34 SOD_5=2001-07-06 SDO_5=2001-07-09"},
        {"with its Saturday", {{{2001, 7, 6}, {2001, 7, 9}}}, true, "SP_5=455,01"},
        {"from the month before",
         {{{2001, 6, 25}, {2001, 7, 3}}},
         false,
         "SP_5=303,34 SOD_5=2001-07-01 SDO_5=2001-07-03"},
        {"to the month after",
         {{{2001, 7, 31}, {2001, 8, 10}}},
         false,
         "SP_5=151,67 SOD_5=2001-07-31 SDO_5=2001-07-31"},
        {"a fixed amount, whatever the days",
         {{{2001, 7, 1}, {2001, 7, 31}, 4, 77.5}},
         false,
         "SP_5=77,5 SOD_5=2001-07-01 SDO_5=2001-07-31"},
        {"months compared without their years: nothing is cut at the start",
         {{{2000, 8, 1}, {2001, 7, 3}}},
         false,
         "SOD_5=2000-08-01 SDO_5=2001-07-03 SP_5=36552,47"},
        {"nor at the end", {{{2001, 7, 30}, {2002, 1, 2}}}, false, "SDO_5=2002-01-02 SP_5=17138,71"},
        {"unpaid leave alone earns nothing",
         {{{2001, 7, 2}, {2001, 7, 6}, 1}},
         false,
         "SP_5=0 SOD_5=null SR_BR_URL=151,67"},
        {"unpaid leave beside another is no second period",
         {{{2001, 7, 2}, {2001, 7, 6}, 1}, {{2001, 7, 9}, {2001, 7, 9}}},
         false,
         "SP_5=151,67 SOD_5=2001-07-09"},
    };
    for (const auto& p : przypadki) {
        SCOPED_TRACE(p.opis);
        wyczyscRejestry();
        for (const Urlop& u : p.urlopy) urlop(1, u.od, u.dokad, u.rodzaj, u.kwota);
        stale().WliczSobDoUrl = p.soboty;
        oczekujPytan();
        przepisz(p.wynik);
    }
    EXPECT_EQ(wykazy_.dni, 60);
    EXPECT_EQ(wykazy_.linie[1].kwota, zl(4500));

    // A second list of a month adds its amounts and not its days; at most nine months are taken.
    wczesniej({2001, 6}, 1, "SP_1=900 DN_RO=5", u"A"_s);
    wczesniej({2000, 9}, 1, "SP_1=6000 DN_RO=20");
    stale().ZIluMSrDn = 12;
    wyczyscRejestry();
    urlop(1, {2001, 7, 2}, {2001, 7, 2});
    oczekujPytan();
    przepisz("SR_BR_URL=166,67 SP_5=166,67");
    EXPECT_EQ(wykazy_.linie.size(), 9);

    stale().SklUrl = 30; // left out without a word
    oczekujPytan();
    przepisz("SP_30=0 SOD_30=null SR_BR_URL=166,67");
    stale().SklUrl = 3;
    oczekujPytan();
    rozmowa_.spodziewaj(u"Składnik nr 3 odpowiadający wynagrodzeniu za urlop jest nieaktywny. Kwota za urlop "
                        "nie została zaopisana."_s,
                        Styl::Wykrzyknik);
    przepisz("SP_3=0");

    // Nobody is asked about a month without a vacation; only the average is cleared.
    wyczyscRejestry();
    przepisz("SP_5=0 SR_BR_URL=0");
    urlop(1, {2001, 7, 2}, {2001, 7, 3});
    rozmowa_.spodziewaj(pytania::urlop, Odpowiedz::Nie);
    przepisz("SP_5=0 SR_BR_URL=0");
}

TEST_F(UrlopTest, CalendarsCountTheDaysOfTheFirstDaysMonth) {
    stale().OsobHarPrac = true;
    urlop(1, {2001, 7, 2}, {2001, 7, 15});
    const auto licz = [&](const std::string& wynik, Odpowiedz zKalendarza = Odpowiedz::Tak) {
        rozmowa_.spodziewaj(pytania::urlop, Odpowiedz::Tak);
        rozmowa_.spodziewaj(kKalendarz, zKalendarza);
        rozmowa_.spodziewaj(pytania::poUrlopie, Odpowiedz::Nie);
        if (wynik.starts_with("SP_5=0"))
            rozmowa_.spodziewaj(
                u"W kalendarzu nie ma miesiąca 07.2001, urlop od 02-07-2001 do 15-07-2001 ma 0 dni."_s,
                Styl::Wykrzyknik);
        przepisz(wynik);
    };
    licz("SP_5=0 SOD_5=2001-07-02");
    kalendarz(0, kLipiec, {3});
    licz("SP_5=1365,03");
    kalendarz(1, kLipiec, {3, 4, 5});
    licz("SP_5=1061,69");
    licz("SP_5=1516,7", Odpowiedz::Nie);
}

TEST_F(UrlopTest, SeveralPeriodsGoToOneComponentOrToTheirOwn) {
    urlop(1, {2001, 7, 2}, {2001, 7, 3});
    urlop(1, {2001, 7, 12}, {2001, 7, 13}, 2, 50);
    urlop(1, {2001, 7, 30}, {2001, 8, 3}, 3);
    oczekujPytan(Odpowiedz::Tak);
    przepisz("SP_5=656,68 SOD_5=2001-07-02 SDO_5=2001-07-31 SP_20=0");

    // The second goes elsewhere after an inactive try, the third is skipped.
    wykazy_.numery = {20, 11, 24, std::nullopt};
    oczekujPytan(Odpowiedz::Nie);
    rozmowa_.spodziewaj(kPonowic, Odpowiedz::Tak);
    rozmowa_.spodziewaj(niezapisane(u"30-07-2001"_s, u"31-07-2001"_s), Styl::Wykrzyknik);
    przepisz("SP_5=0 SP_20=303,34 SP_21=0 SP_24=50 SOD_24=2001-07-12 SDO_24=2001-07-13 SP_22=0");
    EXPECT_EQ(wykazy_.proponowane, (QList<int>{20, 21, 21, 22}));

    wykazy_.numery = {11, 0, 31};
    oczekujPytan(Odpowiedz::Nie);
    rozmowa_.spodziewaj(kPonowic, Odpowiedz::Nie);
    rozmowa_.spodziewaj(niezapisane(u"02-07-2001"_s, u"03-07-2001"_s), Styl::Wykrzyknik);
    rozmowa_.spodziewaj(niezapisane(u"12-07-2001"_s, u"13-07-2001"_s), Styl::Wykrzyknik);
    rozmowa_.spodziewaj(niezapisane(u"30-07-2001"_s, u"31-07-2001"_s), Styl::Wykrzyknik);
    przepisz("SP_5=0 SP_20=0");
}

TEST_F(UrlopTest, ABatchFillsTheComponentsOfThePeriodsAndReportsTheRest) {
    pracownik(2, "");
    for (int i = 0; i < 5; ++i) urlop(1, QDate(2001, 7, 2 + 3 * i), QDate(2001, 7, 2 + 3 * i), 0, 10 + i);
    urlop(2, {2001, 7, 2}, {2001, 7, 2}, 0, 9);
    urlop(2, {2001, 7, 9}, {2001, 7, 9}, 0, 8);
    skladnik(21, "   ", false);
    rozmowa_.spodziewaj(pytania::urlopSerii, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::jedenSkladnikSerii, Odpowiedz::Nie);
    rozmowa_.spodziewaj(pytania::poUrlopieSerii, Odpowiedz::Nie);
    EXPECT_EQ(lista_->DodajPracownikow({2}).tekst(),
              niezapisane(u"09-07-2001"_s, u"09-07-2001"_s) + u" (pracownik nr 2)"_s);
    rozmowa_.spodziewaj(pytania::urlopSerii, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::jedenSkladnikSerii, Odpowiedz::Nie);
    rozmowa_.spodziewaj(pytania::poUrlopieSerii, Odpowiedz::Nie);
    const RaportSerii raport = lista_->PrzeliczSerie(Obliczenie::Przepisanie, {{1, u" "_s}, {2, u" "_s}});
    EXPECT_EQ(raport.wykonane, 2);
    ASSERT_EQ(raport.uwagi.size(), 3); // the second and fifth period of 1, the second of 2
    EXPECT_EQ(raport.uwagi[1].tekst, niezapisane(u"14-07-2001"_s, u"14-07-2001"_s));
    EXPECT_EQ(raport.uwagi[2].numery, QList<qint64>{2});
    oczekujWPliku({1, u" "_s}, "SP_20=10 SP_21=0 SP_22=12 SP_23=13 SP_5=0");
    oczekujWPliku({2, u" "_s}, "SP_20=9");
}

TEST_F(UrlopTest, ComponentsShrinkByTheDaysOfVacation) {
    urlop(1, {2001, 7, 2}, {2001, 7, 6});
    ustawIZapisz("DN_RO=14 DN_SO=1 DN_NI=0 DN_URL=7");
    oczekujPytan({}, Odpowiedz::Tak);
    przepisz("SP_1=2045,4545 SP_2=204,5455 SP_5=758,35");

    ustawIZapisz("DN_RO=0 DN_SO=0 DN_NI=0 DN_URL=0");
    oczekujPytan({}, Odpowiedz::Tak);
    try {
        lista_->Przelicz2();
        ADD_FAILURE() << "computed";
    } catch (const Blad& blad) {
        EXPECT_EQ(blad.komunikat(),
                  u"Pracownik nr 1 Nowak Anna: Nie można przeliczyć składników po urlopie: dzielenie "
                  "przez zero, wiersz nie ma dni pracy ani urlopu."_s);
    }
    oczekujWPliku({1, u" "_s}, "SP_1=2045,4545 SP_5=758,35");
    // Without a component in use there is nothing to divide.
    stale().SklPrzelURL = {3};
    oczekujPytan({}, Odpowiedz::Tak);
    przepisz("SP_1=3000");
}

TEST_F(UrlopTest, AMissingMonthTableIsNamed) {
    urlop(1, {2001, 7, 2}, {2001, 7, 6});
    sesja().cnPlace.wykonaj("DROP TABLE PLA200105");
    oczekujPytan();
    try {
        lista_->Przelicz2();
        ADD_FAILURE() << "computed";
    } catch (const Blad& blad) {
        EXPECT_TRUE(blad.komunikat().contains(u"PLA200105"_s)) << blad.what();
    }
    oczekujWPliku({1, u" "_s}, "SP_1=3000 SP_5=0");
}

} // namespace

} // namespace tornel::testy
