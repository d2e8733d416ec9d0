// What keeps wrong money from being paid: sums as the rows are, rows that need attention, typed amounts.
#include "payroll/lista/KontrolaWierszy.h"
#include "payroll/lista/Przelewy.h"
#include "wsparcie/PlaceTestowe.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

using schemat::PLA;
using schemat::PLB;
using namespace Qt::StringLiterals;

namespace {

class KontrolaListyTest : public PlaceTestowe {
protected:
    KontrolaListyTest() { miesiac(); }
    std::unique_ptr<ListaPlac> lista() {
        return std::make_unique<ListaPlac>(otoczenie(), kLipiec.rok, kLipiec.mies, u" "_s);
    }
    static KluczListy klucz(qint64 prcId) { return {prcId, u" "_s}; }
    static bool zmien(ListaPlac& l, QStringView pole, double kwota) {
        return l.ZmienKwote(poleListy(pole), zl(kwota));
    }
};

TEST_F(KontrolaListyTest, TheSumsAreThoseOfTheRowsAfterEachAction) {
    for (const int nr : {1, 2, 3}) pracownik(nr, "placa_zas=1000 gr_pod=1 wsk_fe=9,76");
    zmienPracownika(3, "placa_zas=900000000000000 Premia_pr=100");
    const auto l = lista();
    std::unique_ptr<ListaPlac> druga;
    const auto usun = [&](ListaPlac& naLiscie) {
        rozmowa_.spodziewaj(u"Czy na pewno usunąć pracownika o numerze 1 z miesięcznej listy płac ?"_s,
                            Odpowiedz::Tak);
        EXPECT_TRUE(naLiscie.Wypisz_daneP(klucz(1)) && naLiscie.Usun_prac());
    };
    const std::pair<const char*, std::function<void()>> czynnosci[] = {
        {"one added", [&] { dopisz(*l, 1); }},
        {"computed", [&] { l->Przelicz1(); }},
        {"a batch with a failure",
         [&] {
             EXPECT_EQ(l->DodajPracownikow({1, 2, 3}).wykonane, 1);
         }},
        {"an amount typed", [&] { l->Wypisz_daneP(klucz(2)), zmien(*l, u"txtKosztyUz", 55); }},
        {"an edit that fails",
         [&] {
             zmien(*l, u"txtFEPC", 900'000'000'000'000.0);
             EXPECT_THROW(zmien(*l, u"txtFRPC", 900'000'000'000'000.0), Przepelnienie);
             zmien(*l, u"txtFEPC", 10);
         }},
        {"a stopped batch",
         [&] {
             ustawIZapisz("SP_1=3000");
             rozmowa_.przerwijPostep(2);
             (void)l->PrzeliczSerie(Obliczenie::Przeliczenie, {klucz(2), klucz(1)});
             rozmowa_.przerwijPostep(100);
         }},
        {"the list opened again",
         [&] { druga = lista(), druga->Wypisz_daneP(klucz(2)), druga->Przelicz1(); }},
        {"one deleted", [&] { usun(*druga); }},
        {"a commit that fails",
         [&] {
             sesja().cnPlace.wykonaj("CREATE TRIGGER awaria BEFORE UPDATE ON PLACE "
                                     "BEGIN SELECT RAISE(ABORT, 'awaria'); END");
             EXPECT_THROW(zmien(*druga, u"txtFP", 7), Blad) << "nobody is taken up";
             druga->Wypisz_daneP(klucz(2));
             EXPECT_THROW(zmien(*druga, u"txtFP", 7), BladBazy);
             sesja().cnPlace.wykonaj("DROP TRIGGER awaria");
             sesja().OdswiezUchwyty();
         }},
        {"after it", [&] { zmien(*druga, u"txtFP", 8); }},
    };
    for (const auto& [nazwa, czynnosc] : czynnosci) {
        SCOPED_TRACE(nazwa);
        czynnosc();
        Recordset a = zPliku(PLA), b = zPliku(PLB);
        Waluta brutto, netto, fp, feprc;
        for (a.MoveFirst(); !a.EOF_(); a.MoveNext()) {
            brutto += a.kwota(PLA("BRUTTO"));
            netto += a.kwota(PLA("NETTO"));
            fp += a.kwota(PLA("SKL_FP"));
        }
        for (b.MoveFirst(); !b.EOF_(); b.MoveNext()) feprc += b.kwota(PLB("FEPRC"));
        oczekujSum(kLipiec,
                   u"il_wyplat=%1 sum_brutto=%2 sum_netto=%3 sum_fp=%4 sum_feprc=%5"_s.arg(a.RecordCount())
                       .arg(TekstKwoty(brutto), TekstKwoty(netto), TekstKwoty(fp), TekstKwoty(feprc))
                       .toStdString());
    }
}

TEST_F(KontrolaListyTest, RowsThatNeedAttentionAreFoundByWhatIsStored) {
    const struct {
        const char* wiersz;
        bool niePoliczony, przelew;
    } przypadki[] = {
        {"SP_1=1000 BRUTTO=1000", false, false},
        {"SP_1=1000,01 BRUTTO=1000", true, false},
        {"SP_1=1000,005 BRUTTO=1000", false, false},     // gross is rounded to grosze
        {"SP_1=1000 SP_3=77 BRUTTO=1000", false, false}, // a component out of use
        {"SP_1=1000 SM_9=100 BRUTTO=900", false, false},
        {"SP_1=1000 SM_9=100 BRUTTO=1000", true, false},
        {"SP_16=50 DODATKI=50", false, false},
        {"SP_16=50", true, false},
        {"SM_1=20 SM_15=3 POTRACENIA=23", false, false},
        {"SM_1=20 POTRACENIA=-20", true, false},
        {"SP_1=900000000000000 SP_2=900000000000000 BRUTTO=5", true, false}, // a sum beyond all amounts
        {"DO_WYPLATY=100 PRZELEWEM=100", false, false},
        {"DO_WYPLATY=100 PRZELEWEM=100,01", false, true},
        {"DO_WYPLATY=-5", false, false}, // nothing to pay, nothing sent
        {"SP_5=1 DO_WYPLATY=-5 PRZELEWEM=1", true, true},
    };
    const auto l = lista();
    qint64 nr = 0;
    QList<qint64> niepoliczone, przelewy;
    for (const auto& p : przypadki) {
        pracownik(++nr, "");
        dopisz(*l, nr);
        ustawIZapisz(p.wiersz);
        if (p.niePoliczony) niepoliczone += nr;
        if (p.przelew) przelewy += nr;
    }
    sesja().ZamknijMiesiac();
    QList<qint64> znalezione[2];
    const auto uwagi = PrzejrzyjMiesiac(otoczenie(), kLipiec);
    for (const WierszDoUwagi& u : uwagi) {
        if (u.stan.niePoliczony) znalezione[0] += u.prcId;
        if (u.stan.przelewPonadWyplate) znalezione[1] += u.prcId;
    }
    EXPECT_EQ(znalezione[0], niepoliczone);
    EXPECT_EQ(znalezione[1], przelewy);
    const QString opis = u"Wiersze niepoliczone: 6 (nr 002, 006, 008, 010, 011, 015)\n"
                         u"Przelew większy od kwoty do wypłaty: 2 (nr 013, 015)"_s;
    EXPECT_EQ(OpisDoUwagi(uwagi), opis);
    EXPECT_EQ((StanWiersza{false, true}.opis() + StanWiersza{true, true}.opis())
                  .count(u"Kwota przelewu jest większa"_s),
              2);

    // Blocking such a month needs a Yes of its own.
    Miesiace miesiace(otoczenie());
    const QString pytanie =
        u"Lista płac miesiąca 07.2001 wymaga uwagi.\n"_s + opis + u"\nCzy mimo to zablokować miesiąc?"_s;
    rozmowa_.spodziewaj(u"Czy napewno zablokować wybrany miesiąc?"_s, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
    EXPECT_FALSE(miesiace.BlokadaMies(kLipiec));
    oczekujSum(kLipiec, "akc=N");
}

TEST_F(KontrolaListyTest, TypedComponentsAreWrittenOverOnlyWhenTheClerkAgrees) {
    for (const int nr : {1, 2}) pracownik(nr, "placa_zas=1000 gr_pod=1");
    auto l = lista();
    (void)l->DodajPracownikow({1, 2});
    const auto wpisz = [&](qint64 nr, const char* pola) {
        ASSERT_TRUE(l->Wypisz_daneP(klucz(nr)));
        ustaw(pola);
        l->WpiszSK();
    };
    zmienPracownika(2, "placa_zas=1100"); // a raise is no reason to ask
    ASSERT_TRUE(l->Wypisz_daneP(klucz(2)));
    EXPECT_TRUE(l->Przelicz2());
    oczekujWPliku(klucz(2), "SP_1=1100");

    wpisz(2, "SM_9=3"); // a deduction alone is a typed amount too
    l = lista();
    ASSERT_TRUE(l->Wypisz_daneP(klucz(2)));
    rozmowa_.spodziewaj(u"Kwoty składników wpisane ręcznie zostaną zastąpione. Czy przepisać ?"_s,
                        Odpowiedz::Tak);
    EXPECT_TRUE(l->Przelicz2());
    oczekujWPliku(klucz(2), "SM_9=0");

    wpisz(1, "SP_5=350 SM_9=7 SP_3=1"); // component 3 is out of use: nothing refills it
    l = lista();                        // the marks are in the file
    ASSERT_TRUE(l->Wypisz_daneP(klucz(1)));
    const QString pytanie = u"Kwoty składników wpisane ręcznie zostaną zastąpione. Czy przepisać ?"_s;
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
    EXPECT_FALSE(l->Przelicz2());
    oczekujWPliku(klucz(1), "SP_5=350 SM_9=7");

    const QString seria =
        u"Na liście są kwoty składników wpisane ręcznie. Czy zastąpić je przy przepisywaniu ?"_s;
    for (const int nr : {1, 2}) zmienPracownika(nr, "placa_zas=1200");
    rozmowa_.spodziewaj(seria, Odpowiedz::Nie);
    EXPECT_EQ(l->PrzeliczSerie(Obliczenie::Przepisanie, {klucz(1), klucz(2)}).wykonane, 1);
    oczekujWPliku(klucz(1), "SP_1=1000 SP_5=350");
    oczekujWPliku(klucz(2), "SP_1=1200");
    rozmowa_.spodziewaj(seria, Odpowiedz::Tak);
    EXPECT_EQ(l->PrzeliczSerie(Obliczenie::Przepisanie, {klucz(1), klucz(2)}).wykonane, 2);
    oczekujWPliku(klucz(1), "SP_1=1200 SP_5=0 SP_3=1");
    EXPECT_EQ(l->PrzeliczSerie(Obliczenie::Przepisanie, {klucz(1)}).wykonane, 1) << "asked once";

    // Both calculations as one action: one question, and what the clerk keeps is computed all the same.
    wpisz(1, "SP_5=350");
    zmienPracownika(2, "placa_zas=1300");
    rozmowa_.spodziewaj(seria, Odpowiedz::Nie);
    const QList obie{Obliczenie::Przepisanie, Obliczenie::Przeliczenie};
    EXPECT_EQ(l->PrzeliczSerie(obie, {klucz(1), klucz(2)}).wykonane, 2);
    oczekujWPliku(klucz(1), "SP_5=350 BRUTTO=1550");
    oczekujWPliku(klucz(2), "SP_1=1300 BRUTTO=1300");

    // The marks go with the row.
    wpisz(1, "SP_5=10");
    rozmowa_.spodziewaj(u"Czy na pewno usunąć pracownika o numerze 1 z miesięcznej listy płac ?"_s,
                        Odpowiedz::Tak);
    EXPECT_TRUE(l->Usun_prac());
    (void)l->DodajPracownikow({1});
    ASSERT_TRUE(l->Wypisz_daneP(klucz(1)));
    EXPECT_TRUE(l->Przelicz2());
}

TEST_F(KontrolaListyTest, TheWholeAmountGoesToTheAccount) {
    for (const int nr : {1, 2, 3, 4}) pracownik(nr, nr == 3 ? "czy_konto=N" : "czy_konto=T");
    const auto l = lista();
    QList<KluczListy> klucze;
    for (const int nr : {1, 2, 3, 4}) {
        dopisz(*l, nr);
        ustawIZapisz(nr == 2 ? "DO_WYPLATY=700 PRZELEWEM=900 SP_1=5" : "DO_WYPLATY=812,34 PRZELEWEM=900");
        klucze += klucz(nr);
    }
    ustawIZapisz("DO_WYPLATY=-1");
    const RaportSerii raport = CaloscNaKontoWszystkich(otoczenie(), *l, klucze);
    EXPECT_EQ(raport.wykonane, 2);
    EXPECT_EQ(raport.pominiete, 1);
    EXPECT_EQ(raport.tekst(),
              u"Pracownik nr 2: Wiersz nie jest policzony, kwota przelewu nie została zmieniona."_s);
    const std::pair<qint64, const char*> przelewy[] = {
        {1, "PRZELEWEM=812,34"}, {2, "PRZELEWEM=900"}, {3, "PRZELEWEM=900"}, {4, "PRZELEWEM=0"}};
    for (const auto& [nr, pola] : przelewy) oczekujWPliku(klucz(nr), pola);

    ASSERT_TRUE(l->Wypisz_daneP(klucz(3)));
    EXPECT_TRUE(CaloscNaKonto(otoczenie(), *l)) << "the clerk may send what the file does not";
    oczekujWPliku(klucz(3), "PRZELEWEM=812,34");
    ASSERT_TRUE(l->Wypisz_daneP(klucz(2)));
    rozmowa_.spodziewaj(u"Wiersz nie jest policzony, kwota przelewu nie została zmieniona."_s,
                        Styl::Wykrzyknik);
    EXPECT_FALSE(CaloscNaKonto(otoczenie(), *l));
}

} // namespace

} // namespace tornel::testy
