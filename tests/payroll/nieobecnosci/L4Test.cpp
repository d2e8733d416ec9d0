#include "payroll/nieobecnosci/WynagrodzenieL4.h"
#include "wsparcie/NieobecnosciTestowe.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaZgoda.h"
#include <numeric>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

const QString kObowiazek = u"Czy dni wynikające z obowiązku pracy liczyć z bazy dni wolnych pracownika ?"_s;
const QString kZaWiele = u"Zwolnień jest więcej niż 4 i brak składników do wpisania kolejnych kwot za L-4"_s;

/// The employee earned 3000 in each of the three months before: 2438,70 after contributions, 81,29 a day.
class L4Test : public NieobecnosciTestowe {
protected:
    L4Test() {
        miesiac();
        for (const int nr : {20, 21, 22, 23, 25, 26, 27, 28}) skladnik(nr, "   ", true);
        stale().L4Prd = {20, 21, 22, 23};
        stale().L4ZUS = {25, 26, 27, 28};
        stale().SklSrL4 = {1};
        pracownik(1, "placa_zas=3000 Premia_pr=10 wsk_fe=9,76 wsk_fr=6,5 wsk_fc=2,45");
        for (const int m : {4, 5, 6}) wczesniej({2001, m}, 1, kZarobek);
        lista_ = std::make_unique<ListaPlac>(otoczenie(), kLipiec.rok, kLipiec.mies, u" "_s, &wykazy_);
        dopisz(*lista_, 1);
    }

    void oczekujPytan(Odpowiedz placa = Odpowiedz::Nie, Odpowiedz premia = Odpowiedz::Nie) {
        rozmowa_.spodziewaj(pytania::l4, Odpowiedz::Tak);
        if (stale().PlZas != 0) rozmowa_.spodziewaj(pytania::placaPoL4, placa);
        if (stale().PremPr != 0) rozmowa_.spodziewaj(pytania::premiaPoL4, premia);
    }
    void przepisz(const std::string& wynik) {
        lista_->Przelicz2();
        oczekujWPliku({1, u" "_s}, wynik);
    }

    static QString bezSkladnika(const QString& od, const QString& dokad) {
        return u"Kwota za L-4 od %1 do %2 nie została zapisana: stałe programu nie podają dla niej "
               "składnika."_s.arg(od, dokad);
    }

    static constexpr const char* kZarobek = "SP_1=3000 WSK_FEPRC=9,76 WSK_FRPRC=6,5 WSK_FCPRC=2,45";
    WykazySkrypt wykazy_;
    std::unique_ptr<ListaPlac> lista_;
};

TEST_F(L4Test, TheEmployerPaysUpToTheLimitOfTheYearAndTheInsurerTheRest) {
    struct Zwolnienie {
        QDate od, dokad;
        double procent = 80;
    };
    static const struct {
        const char* opis;
        std::vector<Zwolnienie> zwolnienia;
        const char* wynik;
    } przypadki[] = {
        {"below the limit",
         {{{2001, 7, 2}, {2001, 7, 11}}},
         "SR_BR_ZUS=2438,7 DNI_L4_PR=10 DNI_L4_ZUS=0 SP_20=650,32 SOD_20=2001-07-02 SDO_20=2001-07-11 "
         "SP_25=0"},
        {"its last day is the first of the month",
         {{{2001, 6, 29}, {2001, 7, 1}}},
         "DNI_L4_PR=1 DNI_L4_ZUS=0 SP_20=65,032 SOD_20=2001-07-01 SDO_20=2001-07-01"},
        {"exactly to the limit",
         {{{2001, 2, 1}, {2001, 2, 25}}, {{2001, 7, 2}, {2001, 7, 11}}},
         "DNI_L4_PR=10 DNI_L4_ZUS=0 SP_20=650,32"},
        {"crossed within the leave, 30 days before",
         {{{2001, 3, 1}, {2001, 3, 30}}, {{2001, 7, 2}, {2001, 7, 11}}},
         "DNI_L4_PR=5 DNI_L4_ZUS=5 SP_20=325,16 SOD_20=2001-07-02 SDO_20=2001-07-06 SP_25=325,16 "
         "SOD_25=2001-07-07 SDO_25=2001-07-11"},
        {"crossed before",
         {{{2001, 3, 1}, {2001, 4, 30}}, {{2001, 7, 30}, {2001, 8, 20}, 100}},
         "DNI_L4_PR=0 DNI_L4_ZUS=2 SP_20=0 SOD_20=null SP_25=162,58 SOD_25=2001-07-30 SDO_25=2001-07-31"},
        {"over two months: June counts to the limit, July is priced",
         {{{2001, 6, 1}, {2001, 7, 10}}},
         "DNI_L4_PR=5 DNI_L4_ZUS=5 SP_20=325,16 SOD_20=2001-07-01 SDO_20=2001-07-05 SP_25=325,16 "
         "SOD_25=2001-07-06 SDO_25=2001-07-10"},
        {"from the year before, counted whole: 6 + 28 days",
         {{{2000, 12, 26}, {2000, 12, 31}}, {{2000, 12, 20}, {2001, 1, 22}}, {{2001, 7, 2}, {2001, 7, 3}}},
         "DNI_L4_PR=1 DNI_L4_ZUS=1 SP_20=65,032 SP_25=65,032"},
        {"two leaves, the second crosses",
         {{{2001, 1, 1}, {2001, 1, 30}},
          {{2001, 7, 2}, {2001, 7, 5}, 100},
          {{2001, 7, 9}, {2001, 7, 12}, 70}},
         "DNI_L4_PR=5 DNI_L4_ZUS=3 SP_20=325,16 SP_21=56,903 SOD_21=2001-07-09 SDO_21=2001-07-09 "
         "SP_25=170,709 SOD_25=2001-07-10 SDO_25=2001-07-12 SP_26=0"},
        {"the whole month, 31 days, on a 30th of the average",
         {{{2001, 6, 30}, {2001, 8, 1}, 100}},
         "DNI_L4_PR=31 DNI_L4_ZUS=0 SP_20=2519,99"},
    };
    for (const auto& p : przypadki) {
        SCOPED_TRACE(p.opis);
        wyczyscRejestry();
        for (const Zwolnienie& z : p.zwolnienia) zwolnienie(1, z.od, z.dokad, z.procent);
        oczekujPytan();
        przepisz(p.wynik);
    }
}

TEST_F(L4Test, WithoutALeaveNothingIsAskedAndARefusalPricesNothing) {
    ustawIZapisz("SR_BR_ZUS=5 DNI_L4_PR=3");
    zwolnienie(2, {2001, 7, 2}, {2001, 7, 3});
    zwolnienie(1, {2001, 6, 2}, {2001, 6, 30});
    przepisz("SR_BR_ZUS=0 DNI_L4_PR=3 SP_1=3000");
    zwolnienie(1, {2001, 7, 2}, {2001, 7, 3});
    rozmowa_.spodziewaj(pytania::l4, Odpowiedz::Nie);
    przepisz("SR_BR_ZUS=0 DNI_L4_PR=3 SP_20=0");
}

TEST_F(L4Test, TheFifthLeaveOfAMonthIsNotPriced) {
    for (int i = 0; i < 6; ++i) zwolnienie(1, QDate(2001, 7, 1 + 3 * i), QDate(2001, 7, 2 + 3 * i));
    oczekujPytan(Odpowiedz::Tak, Odpowiedz::Tak);
    for (int i = 0; i < 2; ++i) rozmowa_.spodziewaj(kZaWiele, Styl::Wykrzyknik);
    przepisz("DNI_L4_PR=8 DNI_L4_ZUS=0 SP_23=130,064 SDO_23=2001-07-11 SP_1=2200 SP_2=220");
}

TEST_F(L4Test, ComponentsOutOfUseOrRangeTakeNothing) {
    zwolnienie(1, {2001, 7, 2}, {2001, 7, 3});
    skladnik(20, "   ", false);
    oczekujPytan();
    rozmowa_.spodziewaj(
        u"Składnik nr 20 odpowiadający wynagrodzeniu za L-4 jest nieaktywny. Kwota za L-4 nie została "
        "zaopisana."_s,
        Styl::Wykrzyknik);
    przepisz("SP_20=0 DNI_L4_PR=2");
    for (const int nr : {0, 30}) {
        stale().L4Prd[0] = nr;
        oczekujPytan();
        rozmowa_.spodziewaj(bezSkladnika(u"02-07-2001"_s, u"03-07-2001"_s), Styl::Wykrzyknik);
        przepisz("SP_30=0 DNI_L4_PR=2");
    }
    // An inactive base salary takes the bonus with it.
    skladnik(1, "BZU", false);
    rozmowa_.spodziewaj(pytania::l4, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::placaPoL4, Odpowiedz::Tak);
    rozmowa_.spodziewaj(bezSkladnika(u"02-07-2001"_s, u"03-07-2001"_s), Styl::Wykrzyknik);
    rozmowa_.spodziewaj(u"Składnik nr 1 odpowiadający płacy zasadniczej jest nieaktywny. Zmiana nie została "
                        "dokonana."_s,
                        Styl::Wykrzyknik);
    przepisz("SP_1=3000 SP_2=300");
}

TEST_F(L4Test, BaseSalaryAndBonusFollowTheStoredChoice) {
    zwolnienie(1, {2001, 7, 2}, {2001, 7, 11});
    for (const int m : {4, 5, 6})
        sesja().cnPlace.wykonaj("UPDATE PLS20010" + std::to_string(m) + " SET SP_1 = 36000000");
    static const struct {
        const char* opis;
        int sposob, nrPlacy;
        Odpowiedz placa;
        const char* wynik;
    } przypadki[] = {
        {"by the calendar month", 0, 1, Odpowiedz::Tak, "SP_1=2000 SP_2=200"},
        {"by the gross average", 1, 1, Odpowiedz::Tak, "SP_1=2400 SP_2=240"},
        {"by the days worked, 14 of 21", 2, 1, Odpowiedz::Tak, "SP_1=2000 SP_2=200"},
        {"by the formula, which takes no part", 3, 1, Odpowiedz::Tak, "SP_1=3000 SP_2=300"},
        {"left as it stands on the row", 0, 1, Odpowiedz::Nie, "SP_1=3000 SP_2=300"},
        {"without a base salary component", 0, 0, Odpowiedz::Nie, "SP_1=0 SP_2=300"},
    };
    kalendarz(0, kLipiec, {31});
    for (const auto& p : przypadki) {
        SCOPED_TRACE(p.opis);
        stale().SposobStZasL4 = p.sposob;
        stale().PlZas = p.nrPlacy;
        ustawIZapisz("DN_RO=12 DN_SO=1 DN_NI=1");
        oczekujPytan(p.placa, Odpowiedz::Tak);
        przepisz(p.wynik);
    }

    // Without any calendar work is due from Monday to Friday; a bonus out of use is left alone.
    wyczyscRejestry();
    zwolnienie(1, {2001, 7, 2}, {2001, 7, 11});
    stale().SposobStZasL4 = 2;
    stale().PlZas = 1;
    stale().PremPr = 3;
    ustawIZapisz("DN_RO=11 DN_SO=0 DN_NI=0");
    oczekujPytan(Odpowiedz::Tak, Odpowiedz::Tak);
    rozmowa_.spodziewaj(u"Składnik nr 3 odpowiadający premii procentowej jest nieaktywny. Zmiana nie została "
                        "dokonana."_s,
                        Styl::Wykrzyknik);
    przepisz("SP_1=1500 SP_3=0");
}

TEST_F(L4Test, AnAverageOverTheTurnOfTheYearCountsMonthsThatAreMissing) {
    miesiac({2001, 1});
    wczesniej({2000, 12}, 1, "SP_1=3000 SP_30=100 WSK_FEPRC=9,76 WSK_FRPRC=6,5 WSK_FCPRC=2,45");
    // Two lists of a month: amounts of both, rates of the last.
    wczesniej({2000, 10}, 1, "SP_1=1000 SP_30=50 WSK_FEPRC=50", u"A"_s);
    wczesniej({2000, 10}, 1, "SP_1=2000 WSK_FEPRC=10", u"B"_s);
    lista_ = std::make_unique<ListaPlac>(otoczenie(), 2001, 1, u" "_s, &wykazy_);
    dopisz(*lista_, 1);
    zwolnienie(1, {2000, 12, 30}, {2001, 1, 3}, 100);
    stale().SklSrL4 = {1, 30, 30};
    oczekujPytan();
    lista_->Przelicz2();
    // Gross 3200 + 0 + 3100; net 3200 * 81,29% + 3100 * 90%.
    oczekujWPliku({1, u" "_s}, "SR_BR_ZUS=1797,09 SP_20=179,7 DNI_L4_PR=3", {2001, 1});
    ASSERT_EQ(wykazy_.linie.size(), 3);
    EXPECT_EQ(wykazy_.linie[0].miesiac, u"2000 Grudzień"_s);
    EXPECT_EQ(wykazy_.linie[1].kwota, Waluta{});
    EXPECT_EQ(wykazy_.linie[2].kwota, zl(3100));
    EXPECT_EQ(wykazy_.linie[2].netto, zl(2790));

    stale().MiesSrBr = 13; // at most twelve are taken
    oczekujPytan();
    lista_->Przelicz2();
    oczekujWPliku({1, u" "_s}, "SR_BR_ZUS=449,27", {2001, 1});
}

TEST(SredniaDoL4, IsInGrosze) {
    PodstawaL4 zarobil;
    zarobil.skladniki = zl(100);
    const SrednieL4 srednie = SredniaDoL4({zarobil, {}, {}});
    EXPECT_EQ(srednie.SredniaBrutto, zl(33.33));
    EXPECT_EQ(srednie.SredniaNetto, zl(33.33));
}

TEST_F(L4Test, TheClerksOwnAverageIsReducedByTheRowsContributions) {
    zwolnienie(1, {2001, 7, 2}, {2001, 7, 2}, 100);
    static const struct {
        std::optional<Waluta> zostawila;
        const char* wynik;
    } przypadki[] = {
        {zl(6000), "SR_BR_ZUS=4877,4 SP_20=162,58"},
        {zl(3000), "SR_BR_ZUS=2438,7 SP_20=81,29"},
        {std::nullopt, "SR_BR_ZUS=0 SP_20=0"},
    };
    for (const auto& p : przypadki) {
        wykazy_.poprawka = p.zostawila;
        oczekujPytan();
        przepisz(p.wynik);
    }
}

TEST_F(L4Test, ADivisionByZeroLeavesTheRowAndNamesTheEmployee) {
    zwolnienie(1, {2001, 7, 2}, {2001, 7, 11});
    zwolnienie(2, {2001, 7, 2}, {2001, 7, 2});
    stale().SposobStZasL4 = 2;
    stale().OsobHarPrac = true;
    DniKalendarza wolny = DniKalendarza::nowyMiesiac(2001, 7);
    for (int d = 1; d <= 31; ++d) wolny.ustaw(d, DniKalendarza::Wolny);
    zapiszKalendarz(1, kLipiec, wolny);
    pracownik(2, "placa_zas=2200", u"Kowal"_s);
    pracownik(3, "placa_zas=1000");
    ustawIZapisz("SP_1=7");
    const QString powod =
        u"Nie można przeliczyć płacy zasadniczej po L-4: dzielenie przez zero, w miesiącu 07.2001 nie "
        "ma dnia, w którym należało pracować."_s;
    rozmowa_.spodziewaj(pytania::l4, Odpowiedz::Tak);
    rozmowa_.spodziewaj(kObowiazek, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::placaPoL4, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::premiaPoL4, Odpowiedz::Tak);
    try {
        lista_->Przelicz2();
        ADD_FAILURE() << "computed";
    } catch (const Blad& blad) {
        EXPECT_EQ(blad.komunikat(), u"Pracownik nr 1 Nowak Anna: "_s + powod);
    }
    oczekujWPliku({1, u" "_s}, "SP_1=7 SP_20=0");
    oczekuj("SP_1=7 SP_20=0");

    for (const QString& pytanie :
         {pytania::l4Serii,
          u"Czy dni wynikające z obowiązku pracy wyliczać z bazy dni wolnych pracowników ?"_s,
          pytania::placaPoL4Serii, pytania::premiaPoL4Serii})
        rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
    stale().OsobHarPrac = true;
    const RaportSerii raport = lista_->DodajPracownikow({2, 3});
    EXPECT_EQ(raport.wykonane, 2);
    rozmowa_.spodziewaj(pytania::l4Serii, Odpowiedz::Tak);
    rozmowa_.spodziewaj(u"Czy dni wynikające z obowiązku pracy wyliczać z bazy dni wolnych pracowników ?"_s,
                        Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::placaPoL4Serii, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::premiaPoL4Serii, Odpowiedz::Nie);
    skladnik(20, "   ", false);
    const RaportSerii drugi =
        lista_->PrzeliczSerie(Obliczenie::Przepisanie, {{2, u" "_s}, {1, u" "_s}, {3, u" "_s}});
    // What was remarked about somebody who failed is not said of the next.
    EXPECT_EQ(drugi.tekst(),
              u"Pracownik nr 1: "_s + powod +
                  u"\nSkładnik nr 20 odpowiadający wynagrodzeniu za L-4 jest nieaktywny. Kwota "
                  u"za L-4 nie została zaopisana. (pracownik nr 2)"_s);
    EXPECT_EQ(drugi.wykonane, 2);
    oczekujWPliku({1, u" "_s}, "SP_1=7 SP_20=0");
    oczekujWPliku({2, u" "_s}, "DNI_L4_PR=1");
}

/// Employees alike, with two leaves of five days beyond the employer's: 650,32 of benefit, outside gross.
/// Gross 2200 leaves 1448,66; on top comes what the components took, off it the whole benefit.
TEST_F(L4Test, EveryWayPaysTheSameBenefit) {
    static const struct {
        const char* opis;
        std::array<int, 4> numery; ///< constant 105
        bool aktywny25;
        const char* doWyplaty;
        const char16_t* uwaga;
    } przypadki[] = {
        {"in use", {25, 26, 27, 28}, true, "DO_WYPLATY=1448,66", u""},
        {"empty", {}, true, "DO_WYPLATY=798,34", u"od 02-07-2001 do 06-07-2001 nie została zapisana"},
        {"twice the same number",
         {25, 25, 0, 0},
         true,
         "DO_WYPLATY=1123,5",
         u"Składnik nr 25 jest podany dla kilku zwolnień: zapisana jest w nim tylko kwota za L-4 od "
         u"07-07-2001"},
        {"position out of use",
         {25, 26, 27, 28},
         false,
         "DO_WYPLATY=1123,5",
         u"Składnik nr 25 odpowiadający"},
    };
    lista_.reset();
    for (qint64 nr = 2; nr <= 5; ++nr) {
        pracownik(nr, "placa_zas=3000 Premia_pr=10 wsk_fe=9,76 wsk_fr=6,5 wsk_fc=2,45 gr_pod=1 czy_kuz=N "
                      "czy_ulga=N");
        for (const int m : {4, 5, 6}) wczesniej({2001, m}, nr, kZarobek);
        zwolnienie(nr, {2001, 3, 1}, {2001, 4, 30});
        zwolnienie(nr, {2001, 7, 2}, {2001, 7, 6});
        zwolnienie(nr, {2001, 7, 7}, {2001, 7, 11});
    }
    RozmowaZgoda zgoda;
    for (const auto& p : przypadki) {
        SCOPED_TRACE(p.opis);
        for (const char* tabela : {"PLA200107", "PLB200107", "PLS200107", "PLD200107", "ZASILEK"})
            sesja().cnPlace.wykonaj(std::string("DELETE FROM ") + tabela);
        skladnik(25, "   ", p.aktywny25);
        const Stale stalePrzypadku = [&] {
            Stale s = stale();
            s.L4ZUS = p.numery;
            return s;
        }();
        std::optional<Otoczenie> o;
        std::optional<ListaPlac> l;
        const auto otworzListe = [&] {
            stale() = stalePrzypadku;
            o.emplace(Otoczenie{sesja(), stale(), otoczenie().skladniki, zgoda});
            l.emplace(*o, kLipiec.rok, kLipiec.mies, u" "_s);
        };
        otworzListe();
        const QString raport = l->DodajPracownikow({2}).tekst();
        EXPECT_TRUE(raport.contains(QString::fromUtf16(p.uwaga))) << raport.toStdString();
        EXPECT_EQ(raport.isEmpty(), *p.uwaga == 0);
        for (const qint64 nr : {3, 4, 5}) ASSERT_TRUE(l->Nowy_prac(nr));
        EXPECT_EQ(l->PrzeliczSerie(Obliczenie::Przepisanie, {{3, u" "_s}, {4, u" "_s}}).wykonane, 2);
        EXPECT_EQ(l->PrzeliczSerie(Obliczenie::Przeliczenie, {{3, u" "_s}}).wykonane, 1);
        ASSERT_TRUE(l->Wypisz_daneP({5, u" "_s}));
        l->Przelicz2();
        l->Przelicz1();
        EXPECT_TRUE(l->ZmienKwote(poleListy(u"txtKosztyUz"), {}));
        l.reset();
        otworzPonownie(); // another sitting
        otworzListe();
        ASSERT_TRUE(l->Wypisz_daneP({4, u" "_s}));
        l->Przelicz1();
        for (qint64 nr = 2; nr <= 5; ++nr) oczekujWPliku({nr, u" "_s}, p.doWyplaty);
    }
}

TEST_F(L4Test, TheBenefitIsThatOfItsRowAlone) {
    zwolnienie(1, {2001, 3, 1}, {2001, 4, 30});
    zwolnienie(1, {2001, 7, 2}, {2001, 7, 11});
    // Another list's row of the employee has none of it, nor has another employee.
    pracownik(2, "placa_zas=100");
    dopisz(*lista_, 2);
    rozmowa_.spodziewaj(pytania::naInnejLiscie, Styl::Wykrzyknik);
    dopisz(*std::make_unique<ListaPlac>(otoczenie(), kLipiec.rok, kLipiec.mies, u"A"_s), 1);
    lista_ = std::make_unique<ListaPlac>(otoczenie(), kLipiec.rok, kLipiec.mies, u" "_s);
    ASSERT_TRUE(lista_->Wypisz_daneP({1, u" "_s}));
    oczekujPytan();
    lista_->Przelicz2();
    ASSERT_TRUE(lista_->Wypisz_daneP({1, u"A"_s}));
    lista_->Przelicz1();
    oczekujWPliku({1, u"A"_s}, "BRUTTO=3300 SP_25=0");
    ASSERT_TRUE(lista_->Wypisz_daneP({2, u" "_s}));
    lista_->Przelicz1();
    ASSERT_TRUE(lista_->Wypisz_daneP({1, u" "_s}));
    rozmowa_.spodziewaj(pytania::zasilek, Odpowiedz::Nie);
    lista_->Przelicz1();

    // Removed and added again, the row has no benefit until its leaves are priced.
    rozmowa_.spodziewaj(u"Czy na pewno usunąć pracownika o numerze 1 z miesięcznej listy płac ?"_s,
                        Odpowiedz::Tak);
    ASSERT_TRUE(lista_->Usun_prac());
    rozmowa_.spodziewaj(pytania::naInnejLiscie, Styl::Wykrzyknik);
    dopisz(*lista_, 1);
    lista_->Przelicz1();
    oczekujWPliku({1, u" "_s}, "BRUTTO=3300 SP_25=0 DNI_L4_ZUS=0");
}

} // namespace

} // namespace tornel::testy
