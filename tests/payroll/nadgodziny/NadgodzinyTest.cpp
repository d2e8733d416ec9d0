#include "payroll/nadgodziny/Nadgodziny.h"
#include "common/Godziny.h"
#include "payroll/nadgodziny/ListaNadgodzin.h"
#include "store/Struktura.h"
#include "wsparcie/PlaceTestowe.h"
#include "wsparcie/Przestrzen.h"
#include <type_traits>

namespace tornel::testy {

using schemat::NADG;
using schemat::NADGDzien;
using schemat::NADGN;
using namespace Qt::StringLiterals;

namespace {

const QString kNowa = u"Czy na pewno utworzyć nową listę ?"_s;
const QString kUsunacListe = u"Czy na pewno usunąć zaznaczony miesiąc ?"_s;
const QString kUsunacOsobe = u"Czy na pewno usunąć zaznaczoną osobę ?"_s;
const QString kPusty = u"Pusty Wzór !\r(Wzór podany do obliczenia jest pusty.)"_s;
const QString kBrakDanych = u"Nie znaleziono danych pracownika w kadrach. Wybrany pracownik nie zostanie "
                            u"wprowadzony na liste. Sprawdź dane kadrowe!"_s;

using KolumnaGrupy = Kolumna (*)(int);

/// The groups that are not empty, as "1:2,5=37,5 7:1=20".
std::string grupy(const Recordset& rs, KolumnaGrupy godziny, KolumnaGrupy kwota) {
    QStringList wynik;
    for (int g = 1; g <= kGrupNadgodzin; ++g) {
        const Waluta ile = zl(rs.rzeczywista(godziny(g)));
        if (!ile.zero() || !rs.kwota(kwota(g)).zero())
            wynik += u"%1:%2=%3"_s.arg(g).arg(TekstKwoty(ile), TekstKwoty(rs.kwota(kwota(g))));
    }
    return wynik.join(u' ').toStdString();
}

class NadgodzinyTest : public PlaceTestowe {
protected:
    void nowaLista(RokMies rm = kLipiec) {
        rozmowa_.spodziewaj(kNowa, Odpowiedz::Tak);
        ASSERT_TRUE(Nadgodziny(otoczenie()).NowaLista([&] { return rm; }));
    }
    bool saTabele(RokMies rm = kLipiec) {
        const bool osoby = sesja().cnPlace.jestTabela(Sesja::nazwaMiesiaca("NADGN", rm.rok, rm.mies));
        EXPECT_EQ(sesja().cnPlace.jestTabela(Sesja::nazwaMiesiaca("NADG", rm.rok, rm.mies)), osoby);
        return osoby;
    }
    /// What the file holds of a person: his row, or that of one of his days.
    std::string osoba(qint64 prcId, RokMies rm = kLipiec) {
        const Recordset rs = wiersz(NADGN, {{NADGN("PRC_ID"), {}, prcId}}, rm);
        return grupy(rs, GodzinyOsoby, KwotaOsoby);
    }
    std::string dzien(qint64 prcId, int nr, RokMies rm = kLipiec) {
        const Recordset rs = wierszDnia(prcId, nr, rm);
        return grupy(rs, GodzinyDnia, KwotaDnia);
    }
    Recordset wierszDnia(qint64 prcId, int nr, RokMies rm = kLipiec) {
        return wiersz(NADGDzien,
                      {{NADGDzien("PRC_ID"), {}, prcId}, {NADGDzien("DATA"), {}, QDate(rm.rok, rm.mies, nr)}},
                      rm);
    }
    std::string sumaMiesiaca(RokMies rm = kLipiec) {
        Recordset rs(NADG);
        rs.Open(sesja().cnPlace);
        EXPECT_TRUE(
            rs.Znajdz(QString::number(rm.rok), QString::number(rm.mies).rightJustified(2, QLatin1Char('0'))));
        return grupy(rs, GodzinyMiesiaca, KwotaMiesiaca);
    }

private:
    Recordset wiersz(const TabelaDef& tabela, const Warunek& warunek, RokMies rm) {
        Recordset rs(tabela);
        rs.Open(sesja().cnPlace, Sesja::nazwaMiesiaca(tabela.nazwa, rm.rok, rm.mies), warunek);
        EXPECT_EQ(rs.RecordCount(), 1);
        rs.MoveFirst();
        return rs;
    }
};

TEST(GodzinyTest, HoursAreReadAndShown) {
    struct Przypadek {
        QString wpisane;
        const char* wynik; ///< empty for a refusal
        const char* pokazane;
    };
    const Przypadek przypadki[] = {
        {u"8"_s, "8", "8,0"},        {u"2,5"_s, "2,5", "2,5"},
        {u"2.5"_s, "2,5", "2,5"},    {u" 1,25 "_s, "1,25", "1,3"},
        {u"0,04"_s, "0,04", "0,0"},  {u"24"_s, "24", "24,0"},
        {QString(), "0", "0,0"},     {u"24,01"_s, "", ""},
        {u"-1,5"_s, "-1,5", "-1,5"}, {u"-24"_s, "-24", "-24,0"},
        {u"-24,01"_s, "", ""},       {u"1,255"_s, "", ""},
        {u"1:30"_s, "", ""},         {u"8h"_s, "", ""},
        {u"1e1"_s, "", ""},          {u"99999999999999999999"_s, "", ""},
    };
    for (const Przypadek& p : przypadki) {
        SCOPED_TRACE(p.wpisane.toStdString());
        const auto godziny = CzytajGodziny(p.wpisane, kNajwiecejGodzinDnia);
        ASSERT_EQ(godziny.has_value(), *p.wynik != '\0');
        if (!godziny) continue;
        EXPECT_EQ(TekstGodzin(*godziny).toStdString(), p.wynik);
        EXPECT_EQ(FormatGodzin(*godziny).toStdString(), p.pokazane);
    }
    static_assert(!std::is_convertible_v<Waluta, Godziny>);
    EXPECT_EQ(FormatGodzin(Godziny(zl(-1.25))), u"-1,3"_s);
}

TEST_F(NadgodzinyTest, MonthsComeAndGoWhole) {
    stale().RowNGRob = {u"SGP*15/10"_s, u"SGP*2"_s, u"SGP"_s};
    stale().RowNGGr[6] = u"STC"_s;
    Nadgodziny n(otoczenie());
    rozmowa_.spodziewaj(kNowa, Odpowiedz::Nie);
    EXPECT_FALSE(n.NowaLista([]() -> std::optional<RokMies> { throw Blad(u"zapytano o miesiąc"_s); }));
    rozmowa_.spodziewaj(kNowa, Odpowiedz::Tak);
    EXPECT_FALSE(n.NowaLista([] { return std::nullopt; }));
    rozmowa_.spodziewaj(kNowa, Odpowiedz::Tak);
    EXPECT_THROW((void)n.NowaLista([] { return RokMies{2001, 13}; }), Blad);

    // A table in the way: nothing of the month is left.
    UtworzTabele(sesja().cnPlace, NADGDzien, u"NADG200107"_s);
    rozmowa_.spodziewaj(kNowa, Odpowiedz::Tak);
    EXPECT_THROW((void)n.NowaLista([] { return kLipiec; }), BladBazy);
    EXPECT_TRUE(n.WczytajListe().isEmpty());
    UsunTabele(sesja().cnPlace, u"NADG200107"_s);
    EXPECT_FALSE(saTabele());

    for (const RokMies rm : {RokMies{2001, 10}, kLipiec, {2000, 12}}) nowaLista(rm);
    EXPECT_EQ(n.WczytajListe(), (QList<RokMies>{{2000, 12}, kLipiec, {2001, 10}}));
    rozmowa_.spodziewaj(kNowa, Odpowiedz::Tak);
    rozmowa_.spodziewaj(u"Podany miesiąc już istnieje!"_s, Styl::Wykrzyknik);
    EXPECT_FALSE(n.NowaLista([] { return kLipiec; }));

    // The month keeps its equations when the constants change.
    stale().RowNGRob[0] = u"0"_s;
    stale().RowNGGr[6].clear();
    otworzPonownie();
    const ListaNadgodzin lista(otoczenie(), kLipiec);
    EXPECT_EQ(lista.rownania().robocze, (RownaniaNadgodzin::Trojka{u"SGP*15/10"_s, u"SGP*2"_s, u"SGP"_s}));
    EXPECT_EQ(lista.rownania().grupowe[6], u"STC"_s);

    Nadgodziny potem(otoczenie());
    rozmowa_.spodziewaj(kUsunacListe, Odpowiedz::Nie);
    EXPECT_FALSE(potem.UsunListe(kLipiec));
    EXPECT_TRUE(saTabele());
    rozmowa_.spodziewaj(kUsunacListe, Odpowiedz::Tak);
    EXPECT_TRUE(potem.UsunListe(kLipiec));
    EXPECT_FALSE(saTabele());
    EXPECT_EQ(potem.WczytajListe().size(), 2);
    EXPECT_THROW((void)potem.UsunListe(kLipiec), Blad);
    EXPECT_THROW(ListaNadgodzin(otoczenie(), kLipiec), Blad);
}

TEST_F(NadgodzinyTest, TheWeekdayAndTheGroupChooseTheEquation) {
    stale().RowNGRob = {u"1"_s, u"2"_s, u"3"_s};
    stale().RowNGSob = {u"4"_s, u"5"_s, u"6"_s};
    stale().RowNGNie = {u"7"_s, u"8"_s, u"9"_s};
    stale().RowNGGr = {u"11"_s, u"12"_s, u"13"_s, u"14"_s, u"15"_s, u"16"_s, u"17"_s};
    constexpr RokMies sierpien{2001, 8};
    nowaLista(sierpien);
    pracownik(1, "Sgp=10");
    pracownik(2, "Sgp=10");
    stale().SzczegRejNadg = true;
    ListaNadgodzin lista(otoczenie(), sierpien);
    ASSERT_TRUE(lista.NowaOsoba(1));
    stale().SzczegRejNadg = false;
    ASSERT_TRUE(lista.NowaOsoba(2));

    const auto wszystkie = [&](int wiersz) {
        for (int g = 1; g <= kGrupNadgodzin; ++g) ASSERT_TRUE(lista.ZmienGodziny(wiersz, g, u"1"_s));
    };
    const std::string robocze = "1:1=1 2:1=1 3:1=1 4:1=2 5:1=2 6:1=2 7:1=3";
    struct Przypadek {
        int dzien;
        std::string kwoty;
    };
    const Przypadek przypadki[] = {
        {6, robocze},  // Monday
        {15, robocze}, // Wednesday, a public holiday: it is the weekday that counts
        {31, robocze}, // Friday
        {4, "1:1=4 2:1=4 3:1=4 4:1=5 5:1=5 6:1=5 7:1=6"},
        {5, "1:1=7 2:1=7 3:1=7 4:1=8 5:1=8 6:1=8 7:1=9"},
    };
    ASSERT_TRUE(lista.WypiszNadgodziny(1));
    EXPECT_TRUE(lista.szczegolowa());
    for (const Przypadek& p : przypadki) {
        wszystkie(p.dzien - 1);
        EXPECT_EQ(dzien(1, p.dzien, sierpien), p.kwoty) << p.dzien;
    }
    EXPECT_EQ(osoba(1, sierpien), "1:5=14 2:5=14 3:5=14 4:5=19 5:5=19 6:5=19 7:5=24");
    ASSERT_TRUE(lista.WypiszNadgodziny(2));
    EXPECT_FALSE(lista.szczegolowa());
    wszystkie(0);
    EXPECT_EQ(osoba(2, sierpien), "1:1=11 2:1=12 3:1=13 4:1=14 5:1=15 6:1=16 7:1=17");
    EXPECT_EQ(sumaMiesiaca(sierpien), "1:6=25 2:6=26 3:6=27 4:6=33 5:6=34 6:6=35 7:6=41");
}

TEST_F(NadgodzinyTest, AnEquationGivesTheAmountOrSaysWhyNot) {
    const QString skladnia = u"Błąd Składniowy !\r(Nie zgadza się ilość nawiasów lub postawiono operatory w "
                             u"niewłaściwych miejscach.)"_s;
    const QString kto = u"Pracownik nr 1 Nowak Anna: Nie można obliczyć wzoru "_s;
    struct Przypadek {
        const char* rownanie;
        const char* kwota; ///< for 2,5 hours; empty where nothing changes
        QString komunikat;
        Styl styl = Styl::Krytyczny;
    };
    const Przypadek przypadki[] = {
        {"SGP*15/10", "37,5", {}},
        {" sgp+stc ", "50", {}},
        {"SGP/3", "8,3332", {}}, // 3,3333 an hour; half to even at the fourth place
        {"STZ/160", "25", {}},
        {"DD5", "2,5", {}},
        {"LD1+1", "2,5", {}}, // no payroll list is open: the variable is 0 and nothing is said
        {"", "0", kPusty, Styl::Informacja},
        {"(5)", "0", skladnia},
        {"5/0", "0", u"Dzielenie Przez Zero !\r(Próbowano podzielić liczbę przez zero.)"_s},
        {"#(0-4)", "0",
         u"Niedozwolony Argument Pierwiastka !\r(Próbowano obliczyć pierwiastek kwadratowy z liczby "
         u"mniejszej od zera.)"_s},
        {"ABC+1", "2,5", u"Nieznana zmienna \"ABC\""_s, Styl::Wykrzyknik},
        {"5*", "", kto + u"\"5*\". Operator na końcu wzoru nie ma argumentu."_s},
        {"LU16", "", kto + u"\"LU16\". Zmienne od LU16 do LU30 nie mają wartości."_s},
        {"1E14*100", "", kto + u"\"1E14*100\". Kwota przekracza zakres liczb programu."_s},
    };
    pracownik(1, "Sgp=10 placa_zas=1600 DOD_5=1");
    RokMies rm{2001, 0};
    for (const Przypadek& p : przypadki) {
        SCOPED_TRACE(p.rownanie);
        rm = rm.mies < 12 ? RokMies{rm.rok, rm.mies + 1} : RokMies{rm.rok + 1, 1};
        stale().RowNGGr[1] = QString::fromUtf8(p.rownanie);
        nowaLista(rm);
        ListaNadgodzin lista(otoczenie(), rm);
        ASSERT_TRUE(lista.NowaOsoba(1) && lista.WypiszNadgodziny(1));
        if (!p.komunikat.isEmpty()) rozmowa_.spodziewaj(p.komunikat, p.styl);
        EXPECT_EQ(lista.ZmienGodziny(0, 2, u"2,5"_s), *p.kwota != '\0');
        const std::string suma = *p.kwota ? "2:2,5=" + std::string(p.kwota) : "";
        EXPECT_EQ(osoba(1, rm), suma);
        EXPECT_EQ(sumaMiesiaca(rm), suma);
        EXPECT_EQ(lista.osoba()->sumy.kwotaRazem(),
                  CzytajKwote(QString::fromUtf8(p.kwota)).value_or(Waluta{}));
    }
}

TEST_F(NadgodzinyTest, SumsFollowEveryChange) {
    stale().RowNGRob = {u"SGP*15/10"_s, u"SGP*2"_s, u"SGP*2"_s};
    stale().RowNGSob = stale().RowNGNie = {u"SGP*2"_s, u"SGP*2"_s, u"SGP*2"_s};
    stale().RowNGGr[0] = u"SGP*15/10"_s;
    nowaLista();
    pracownik(3, "Sgp=10");
    pracownik(5, "Sgp=8");
    ListaNadgodzin lista(otoczenie(), kLipiec);
    ASSERT_TRUE(lista.NowaOsoba(5));
    stale().SzczegRejNadg = true;
    ASSERT_TRUE(lista.NowaOsoba(3));

    ASSERT_TRUE(lista.WypiszNadgodziny(3));
    ASSERT_TRUE(lista.ZmienGodziny(1, 1, u"0,1"_s)); // Monday the 2nd
    ASSERT_TRUE(lista.ZmienGodziny(2, 1, u"0.2"_s));
    ASSERT_TRUE(lista.ZmienGodziny(0, 4, u"3"_s)); // Sunday the 1st
    EXPECT_EQ(osoba(3), "1:0,3=4,5 4:3=60");
    EXPECT_EQ(dzien(3, 2), "1:0,1=1,5");
    ASSERT_TRUE(lista.WypiszNadgodziny(5));
    ASSERT_TRUE(lista.ZmienGodziny(0, 1, u"744"_s));
    EXPECT_EQ(sumaMiesiaca(), "1:744,3=8932,5 4:3=60");

    // A refusal changes nothing; the limits are those of a day and of a month.
    rozmowa_.spodziewaj(
        u"Godziny podaje się liczbą od -744 do 744, najwyżej z dwoma miejscami po przecinku."_s,
        Styl::Wykrzyknik);
    EXPECT_FALSE(lista.ZmienGodziny(0, 1, u"744,5"_s));
    ASSERT_TRUE(lista.ZmienGodziny(0, 1, u"10"_s));
    ASSERT_TRUE(lista.WypiszNadgodziny(3));
    rozmowa_.spodziewaj(u"Godziny podaje się liczbą od -24 do 24, najwyżej z dwoma miejscami po przecinku."_s,
                        Styl::Wykrzyknik);
    EXPECT_FALSE(lista.ZmienGodziny(0, 1, u"25"_s));
    rozmowa_.spodziewaj(u"Stawkę podaje się kwotą nie mniejszą od zera."_s, Styl::Wykrzyknik);
    EXPECT_FALSE(lista.ZmienStawke(0, u"-1"_s));

    // A rate holds for its day, until it is carried on to the days behind it.
    ASSERT_TRUE(lista.ZmienGodziny(3, 1, u"-0,2"_s)); // a correction
    ASSERT_TRUE(lista.ZmienStawke(2, u"20"_s));
    EXPECT_EQ(dzien(3, 2), "1:0,1=1,5");
    EXPECT_EQ(dzien(3, 3), "1:0,2=6");
    EXPECT_EQ(dzien(3, 4), "1:-0,2=-3");
    ASSERT_TRUE(lista.PrzeniesStawke(2));
    EXPECT_EQ(dzien(3, 2), "1:0,1=1,5");
    EXPECT_EQ(dzien(3, 4), "1:-0,2=-6");
    EXPECT_EQ(wierszDnia(3, 31).kwota(NADGDzien("SGP")), zl(20));
    ASSERT_TRUE(lista.ZmienGodziny(3, 1, QString()));
    lista.ZmienUwagi(2, u"remont pieca"_s);
    EXPECT_EQ(wierszDnia(3, 3).tekst(NADGDzien("uwagi")), u"remont pieca"_s);
    ASSERT_TRUE(lista.ZmienGodziny(0, 4, QString()));
    EXPECT_EQ(osoba(3), "1:0,3=7,5");
    EXPECT_EQ(sumaMiesiaca(), "1:10,3=127,5");

    // The next start sees the same; constant 251 no longer matters to persons already there.
    stale().SzczegRejNadg = false;
    {
        ListaNadgodzin druga(otoczenie(), kLipiec);
        const auto osoby = druga.WczytajNazw();
        ASSERT_EQ(osoby.size(), 2);
        EXPECT_EQ(osoby[0].prcId, 3);
        EXPECT_EQ(osoby[1].sumy.kwotaRazem(), zl(120));
        ASSERT_TRUE(druga.WypiszNadgodziny(3));
        EXPECT_EQ(druga.wiersze().size(), 31);
        EXPECT_EQ(druga.wiersze()[2].uwagi, u"remont pieca"_s);
        ASSERT_TRUE(druga.ZmienGodziny(30, 7, u"1"_s));
    }
    ListaNadgodzin trzecia(otoczenie(), kLipiec);
    EXPECT_EQ(sumaMiesiaca(), "1:10,3=127,5 7:1=40");
    ASSERT_TRUE(trzecia.WypiszNadgodziny(3));
    rozmowa_.spodziewaj(kUsunacOsobe, Odpowiedz::Nie);
    EXPECT_FALSE(trzecia.UsunOsobe());
    rozmowa_.spodziewaj(kUsunacOsobe, Odpowiedz::Tak);
    EXPECT_TRUE(trzecia.UsunOsobe());
    EXPECT_EQ(sumaMiesiaca(), "1:10=120");
    EXPECT_EQ(zPliku(NADGDzien).RecordCount(), 0) << "the days went with the person";
    EXPECT_FALSE(trzecia.WypiszNadgodziny(3));
    EXPECT_THROW((void)trzecia.UsunOsobe(), Blad);
}

TEST_F(NadgodzinyTest, PersonsAreAddedOneByOneAndMany) {
    constexpr RokMies luty{2000, 2};
    nowaLista(luty);
    for (const qint64 nr : {9, 2, 4, 7}) pracownik(nr, "Sgp=" + std::to_string(nr));
    usunZKadr(7);
    stale().SzczegRejNadg = true;
    ListaNadgodzin lista(otoczenie(), luty);
    ASSERT_TRUE(lista.NowaOsoba(9));
    EXPECT_EQ(wierszDnia(9, 29, luty).tekst(NADGDzien("DZIEN")), u"Wtorek"_s);
    EXPECT_EQ(wierszDnia(9, 1, luty).kwota(NADGDzien("SGP")), zl(9));
    rozmowa_.spodziewaj(u"Wybrany pracownik jest już na liście."_s, Styl::Wykrzyknik);
    EXPECT_FALSE(lista.NowaOsoba(9));
    for (const qint64 nr : {7, 12345}) {
        rozmowa_.spodziewaj(kBrakDanych, Styl::Wykrzyknik);
        EXPECT_FALSE(lista.NowaOsoba(nr));
    }
    rozmowa_.przerwijPostep(3);
    const RaportSerii przerwany = lista.NoweOsoby({9, 7, 4, 2});
    EXPECT_TRUE(przerwany.przerwana);
    EXPECT_EQ(przerwany.wykonane, 2) << "2 and 4, in the order of the numbers";
    rozmowa_.przerwijPostep(100);
    const RaportSerii raport = lista.NoweOsoby({9, 7, 4, 2});
    EXPECT_EQ(raport.wykonane, 0);
    EXPECT_EQ(raport.pominiete, 3);
    EXPECT_EQ(raport.tekst(), u"Pracownik nr 7: Nie znaleziono danych pracownika w kadrach."_s);
    EXPECT_EQ(zPliku(NADGN, luty).RecordCount(), 3);
    EXPECT_EQ(zPliku(NADGDzien, luty).RecordCount(), 3 * 29);
    ASSERT_TRUE(lista.WypiszNadgodziny(4));
    EXPECT_EQ(lista.wiersze().first().stawka, zl(4));
}

TEST_F(NadgodzinyTest, RefreshingUsesTheMonthsEquationsAndIsolatesFailures) {
    stale().RowNGRob[0] = u"SGP"_s;
    stale().RowNGGr[0] = stale().RowNGGr[1] = u"SGP"_s;
    nowaLista();
    for (const qint64 nr : {1, 2, 3, 4, 5}) pracownik(nr, "Sgp=10");
    ListaNadgodzin lista(otoczenie(), kLipiec);
    ASSERT_EQ(lista.NoweOsoby({1, 2, 4, 5}).wykonane, 4);
    stale().SzczegRejNadg = true;
    ASSERT_TRUE(lista.NowaOsoba(3));
    for (const qint64 nr : {1, 2, 3, 4, 5}) {
        ASSERT_TRUE(lista.WypiszNadgodziny(nr));
        ASSERT_TRUE(lista.ZmienGodziny(nr == 3 ? 1 : 0, nr == 2 ? 2 : 1, u"2"_s));
    }
    EXPECT_EQ(sumaMiesiaca(), "1:8=80 2:2=20");
    // The header's equations as an import leaves them: one that fails, one that is empty, one that is new.
    sesja().cnPlace.wykonaj("UPDATE NADG SET rc1='', rc2='5*', rrc1='SGP*3'");
    usunZKadr(4);
    ListaNadgodzin nowa(otoczenie(), kLipiec);
    EXPECT_EQ(nowa.rownania().grupowe[1], u"SGP"_s) << "the handle still has what it read";
    sesja().rsNADG.Requery();
    ListaNadgodzin odswiezana(otoczenie(), kLipiec);
    ASSERT_TRUE(odswiezana.WypiszNadgodziny(3));
    rozmowa_.spodziewaj(kPusty, Styl::Informacja); // once for both whom it concerns
    const RaportSerii raport = odswiezana.Odswiez();
    EXPECT_EQ(raport.wykonane, 3);
    EXPECT_EQ(raport.tekst(),
              u"Pracownik nr 2: Nie można obliczyć wzoru \"5*\". Operator na końcu wzoru nie ma argumentu.\n"
              u"Pracownik nr 4: Nie znaleziono danych pracownika w kadrach. Sprawdź dane kadrowe!"_s);
    for (const qint64 nr : {1, 5}) EXPECT_EQ(osoba(nr), "1:2=0");
    EXPECT_EQ(osoba(2), "2:2=20");
    EXPECT_EQ(osoba(3), "1:2=60");
    EXPECT_EQ(dzien(3, 2), "1:2=60");
    EXPECT_EQ(osoba(4), "1:2=20");
    EXPECT_EQ(sumaMiesiaca(), "1:8=80 2:2=20");
    ASSERT_TRUE(odswiezana.osoba()) << "the person in work stays";
    EXPECT_EQ(odswiezana.osoba()->sumy.kwotaRazem(), zl(60));
    rozmowa_.spodziewaj(
        u"Pracownik nr 4: Nie znaleziono danych pracownika w kadrach. Sprawdź dane kadrowe!"_s,
        Styl::Krytyczny);
    ASSERT_TRUE(odswiezana.WypiszNadgodziny(4));
    EXPECT_FALSE(odswiezana.ZmienGodziny(0, 1, u"3"_s));
    EXPECT_EQ(osoba(4), "1:2=20");
}

TEST_F(NadgodzinyTest, AFailureOfTheFileLeavesTheTablesAsTheyWere) {
    stale().SzczegRejNadg = true;
    stale().RowNGRob[0] = u"SGP"_s;
    nowaLista();
    pracownik(1, "Sgp=10");
    pracownik(2, "Sgp=10");
    ListaNadgodzin lista(otoczenie(), kLipiec);
    ASSERT_TRUE(lista.NowaOsoba(1) && lista.WypiszNadgodziny(1));
    ASSERT_TRUE(lista.ZmienGodziny(1, 1, u"1"_s));
    // Somebody else has changed the person's row: the day, written before it, must not stay either.
    sesja().cnPlace.wykonaj("UPDATE NADGN200107 SET TEMP=1");
    EXPECT_THROW((void)lista.ZmienGodziny(1, 1, u"8"_s), Konflikt);
    EXPECT_EQ(dzien(1, 2), "1:1=10");
    EXPECT_EQ(osoba(1), "1:1=10");
    EXPECT_EQ(sumaMiesiaca(), "1:1=10");
    ASSERT_TRUE(lista.ZmienGodziny(1, 1, u"8"_s)) << "the list has been read again";
    EXPECT_EQ(sumaMiesiaca(), "1:8=80");

    sesja().cnPlace.wykonaj("ALTER TABLE NADG200107 RENAME TO schowek");
    EXPECT_THROW((void)lista.NowaOsoba(2), BladBazy);
    sesja().cnPlace.wykonaj("ALTER TABLE schowek RENAME TO NADG200107");
    EXPECT_EQ(zPliku(NADGN).RecordCount(), 1);
}

} // namespace

} // namespace tornel::testy
