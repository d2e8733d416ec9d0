#include "payroll/nieobecnosci/LiczenieDni.h"
#include "wsparcie/NieobecnosciTestowe.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

const QString kPokrycie =
    u"Czas trwania urlopów pokrywa się z czasem trwania zwolnienia L4. Dni nie mogą być "
    "wyliczone."_s;
const QString kBrakKalendarza = u"Brak danych w kalendarzu."_s;
const QString kWlasnySerii = u"Czy ilość dni wyliczać z bazy dni wolnych pracowników ?"_s;
const QString kWlasny = u"Czy ilość dni wyliczyć z bazy dni wolnych pracownika ?"_s;
const QString kSzukacOgolnych =
    u"Brak dni w kalendarzu dla pracownika. Czy szukać dni w kalendarzu dni wolnych ogólnych ?"_s;

class DniTest : public NieobecnosciTestowe {
protected:
    DniTest() { stale().AktRejPrzepDni = true; }

    /// An employee on the month's list whose days were 1 each before.
    std::unique_ptr<ListaPlac> wiersz(RokMies m) {
        auto l = std::make_unique<ListaPlac>(otoczenie(), m.rok, m.mies, u" "_s);
        rozmowa_.spodziewaj(pytania::dni, Odpowiedz::Nie);
        dopisz(*l, 1);
        ustawIZapisz("DN_RO=1 DN_SO=1 DN_NI=1 DN_URL=1 DN_ZAS=1 DN_INN=1 DNI_UWYP=1");
        return l;
    }
};

struct Absencja {
    char rodzaj; ///< 'L' sick, otherwise the kind of a vacation
    const char *od, *dokad;
};

TEST_F(DniTest, EachDayOfTheMonthIsOfOneKind) {
    // July 2001: 22 days from Monday to Friday, 4 Saturdays, 5 Sundays, the first of them on the 1st.
    static const struct {
        const char* opis;
        RokMies m;
        std::vector<Absencja> absencje;
        bool wolneWeekendy;
        const char* wynik;
    } przypadki[] = {
        {"weekends free",
         {2001, 7},
         {},
         true,
         "DN_PR=22 DN_RO=22 DN_SO=0 DN_NI=0 DN_INN=9 DN_URL=0 DN_ZAS=0 DNI_UWYP=0"},
        {"no free day", {2001, 7}, {}, false, "DN_PR=31 DN_RO=22 DN_SO=4 DN_NI=5 DN_INN=0"},
        {"vacation from the month before; its Sunday is a free day",
         {2001, 7},
         {{'0', "2001-06-25", "2001-07-05"}},
         true,
         "DN_RO=18 DN_URL=4 DNI_UWYP=4 DN_INN=9"},
        {"vacation over weekends that are worked",
         {2001, 7},
         {{'4', "2001-07-30", "2001-09-05"}, {'2', "2001-07-07", "2001-07-08"}},
         false,
         "DN_RO=20 DN_SO=3 DN_NI=4 DN_URL=4 DN_UWYCH=2 DN_UOK=2 DN_INN=0"},
        {"sickness goes before free days",
         {2001, 7},
         {{'L', "2001-07-06", "2001-07-09"}},
         true,
         "DN_ZAS=4 DN_RO=20 DN_INN=7"},
        {"a later vacation overwrites an earlier one",
         {2001, 7},
         {{'1', "2001-07-02", "2001-07-06"}, {'6', "2001-07-05", "2001-07-10"}},
         true,
         "DN_URL=7 DN_UBEZPL=3 DN_PRZERWY=4 DN_RO=15"},
        {"the whole month",
         {2001, 7},
         {{'5', "2000-01-01", "2002-01-01"}},
         true,
         "DN_URL=22 DN_UOPDZI=22 DN_RO=0 DN_INN=9"},
        {"leap February",
         {2000, 2},
         {{'3', "2000-02-28", "2000-03-03"}},
         true,
         "DN_RO=19 DN_URL=2 DN_UINNY=2 DN_INN=8"},
        {"February", {2001, 2}, {{'L', "2001-02-28", "2001-03-31"}}, true, "DN_RO=19 DN_ZAS=1 DN_INN=8"},
    };
    EXPECT_EQ(DniKalendarza::zFlag(2001, 2, {}).ile(DniKalendarza::Roboczy), 28) << "an import knows no -1";
    pracownik(1, "placa_zas=1000");
    for (const auto& p : przypadki) {
        SCOPED_TRACE(p.opis);
        wyczyscRejestry();
        if (!JestMiesiac(sesja(), p.m, {})) miesiac(p.m);
        const DniKalendarza bezWolnych = DniKalendarza::zFlag(p.m.rok, p.m.mies, {});
        zapiszKalendarz(0, p.m, p.wolneWeekendy ? DniKalendarza::nowyMiesiac(p.m.rok, p.m.mies) : bezWolnych);
        for (const Absencja& a : p.absencje) {
            const QDate od = QDate::fromString(QLatin1String(a.od), Qt::ISODate);
            const QDate dokad = QDate::fromString(QLatin1String(a.dokad), Qt::ISODate);
            if (a.rodzaj == 'L')
                zwolnienie(1, od, dokad);
            else
                urlop(1, od, dokad, a.rodzaj - '0');
        }
        auto l = wiersz(p.m);
        rozmowa_.spodziewaj(pytania::dni, Odpowiedz::Tak);
        l->Przelicz_Dni();
        oczekujWPliku({1, u" "_s}, p.wynik, p.m);
        EXPECT_TRUE(l->DniZgodneZMiesiacem());
        ASSERT_TRUE(l->Wypisz_daneP({1, u" "_s}));
        rozmowa_.spodziewaj(u"Czy na pewno usunąć pracownika o numerze 1 z miesięcznej listy płac ?"_s,
                            Odpowiedz::Tak);
        l->Usun_prac();
    }
}

TEST(NieobecnosciPokrywajaSie, OnAnyDayOfTheMonthAlone) {
    const auto okres = [](int od, int dokad) {
        Nieobecnosc n;
        n.Data = QDate(2001, 7, 1).addDays(od - 1);
        n.data_do = QDate(2001, 7, 1).addDays(dokad - 1);
        return std::vector{n};
    };
    const auto sie = [&](const auto& urlop, const auto& zwolnienie) {
        return NieobecnosciPokrywajaSie({2001, 7}, urlop, zwolnienie);
    };
    EXPECT_TRUE(sie(okres(1, 1), okres(-5, 1)));
    EXPECT_TRUE(sie(okres(31, 40), okres(31, 31)));
    EXPECT_FALSE(sie(okres(-5, 1), okres(2, 30)));
    EXPECT_FALSE(sie(okres(-5, 0), okres(-5, 0))) << "in the month before";
}

TEST_F(DniTest, WhatCannotBeCountedLeavesTheRowAndSaysWhy) {
    miesiac();
    pracownik(1, "");
    auto l = wiersz(kLipiec);
    const std::string przedtem = "DN_RO=1 DN_SO=1 DN_NI=1 DN_URL=1 DN_ZAS=1 DN_INN=1 DNI_UWYP=1";
    const auto przelicz = [&](const std::string& wynik) {
        l->Przelicz_Dni();
        oczekujWPliku({1, u" "_s}, wynik);
    };
    const auto seria = [&](const QString& raport, const std::string& wynik) {
        rozmowa_.spodziewaj(pytania::dniSerii, Odpowiedz::Tak);
        EXPECT_EQ(l->PrzeliczSerie(Obliczenie::PoliczenieDni, {{1, u" "_s}}).tekst(), raport);
        oczekujWPliku({1, u" "_s}, wynik);
        ASSERT_TRUE(l->Wypisz_daneP({1, u" "_s}));
        ustawIZapisz(przedtem);
    };
    rozmowa_.spodziewaj(pytania::dni, Odpowiedz::Tak);
    rozmowa_.spodziewaj(kBrakKalendarza, Styl::Wykrzyknik);
    przelicz(przedtem);
    seria(u"Brak danych w kalendarzu. (pracownik nr 1)"_s, przedtem);

    kalendarz(0, {2001, 6});
    seria(u"W kalendarzu nie ma miesiąca, dni czasu pracy są równe 0. (pracownik nr 1)"_s,
          "DN_RO=0 DN_INN=0 DNI_UWYP=0");
    rozmowa_.spodziewaj(pytania::dni, Odpowiedz::Tak);
    przelicz("DN_RO=0 DN_SO=0 DN_NI=0 DN_URL=0 DN_ZAS=0 DN_INN=0 DNI_UWYP=0 DN_PR=0");

    ASSERT_TRUE(l->Wypisz_daneP({1, u" "_s}));
    ustawIZapisz(przedtem);
    kalendarz(0, kLipiec);
    urlop(1, {2001, 7, 2}, {2001, 7, 6});
    zwolnienie(1, {2001, 7, 6}, {2001, 7, 9});
    rozmowa_.spodziewaj(pytania::dni, Odpowiedz::Tak);
    rozmowa_.spodziewaj(kPokrycie, Styl::Wykrzyknik);
    przelicz(przedtem);

    stale().AktRejPrzepDni = false;
    rozmowa_.spodziewaj(pytania::dniWylaczone, Styl::Wykrzyknik);
    EXPECT_EQ(l->PrzeliczSerie(Obliczenie::PoliczenieDni, {{1, u" "_s}}).wykonane, 0);
    rozmowa_.spodziewaj(pytania::dniWylaczone, Styl::Wykrzyknik);
    przelicz(przedtem);
}

TEST_F(DniTest, AnOwnCalendarGoesBeforeTheGeneralOne) {
    stale().OsobHarPrac = true;
    miesiac();
    kalendarz(0, kLipiec);
    kalendarz(1, kLipiec, {2, 3});
    for (const qint64 nr : {1, 2}) pracownik(nr, "");
    rozmowa_.spodziewaj(pytania::dniSerii, Odpowiedz::Tak);
    rozmowa_.spodziewaj(kWlasnySerii, Odpowiedz::Tak);
    ListaPlac l(otoczenie(), kLipiec.rok, kLipiec.mies, u" "_s);
    EXPECT_EQ(l.DodajPracownikow({1, 2}).tekst(), QString());
    oczekujWPliku({1, u" "_s}, "DN_RO=20 DN_INN=11");
    oczekujWPliku({2, u" "_s}, "DN_RO=22 DN_INN=9");

    ASSERT_TRUE(l.Wypisz_daneP({2, u" "_s}));
    for (const auto& [odpowiedz, dni] :
         {std::pair(Odpowiedz::Nie, "DN_RO=0 DN_INN=0"), {Odpowiedz::Tak, "DN_RO=22 DN_INN=9"}}) {
        rozmowa_.spodziewaj(pytania::dni, Odpowiedz::Tak);
        rozmowa_.spodziewaj(kWlasny, Odpowiedz::Tak);
        rozmowa_.spodziewaj(kSzukacOgolnych, odpowiedz);
        l.Przelicz_Dni();
        oczekujWPliku({2, u" "_s}, dni);
    }
}

} // namespace

} // namespace tornel::testy
