#include "payroll/lista/ListaPlac.h"
#include "wsparcie/PlaceTestowe.h"
#include "wsparcie/Przestrzen.h"
#include <map>
#include <set>

namespace tornel::testy {

using schemat::PLA;
using schemat::PLB;
using namespace Qt::StringLiterals;

namespace {

const QString kIlosciSerii =
    u"Czy przenosić dane o ilościach zasiłków rodzinnych, wychowawczych i pielęgnacyjnych ?"_s;
const QString kIlosci =
    u"Czy przenieść dane o ilościach zasiłków: rodzinnego, wychowawczego i pielęgnacyjnego ?"_s;
const QString kPytanieOPPE = u"Kwota odpisu w ramach PPE jest większa od średniej. Czy zwiększyć podstawę do "
                             "ZUS o różnicę między kwotą odpisu a średnią ?"_s;
const QString kSkladkaPPE = u"Czy pomniejszyć kwotę do wypłaty o składkę w ramach PPE ?"_s;
const QString kPrzelew = u"Kwota przelewu nie może być większa od kwoty wypłaty. Czy przeznaczyć całą kwotę "
                         "wypłaty na przelew ?"_s;
const QString kDwaRazy = u"Nie można wprowadzić dwa razy tej samej osoby na jedną listę!"_s;

class ListaPlacTest : public PlaceTestowe {
protected:
    ListaPlacTest() { miesiac(); }
    std::unique_ptr<ListaPlac> lista(const QString& symbol = u" "_s) {
        return std::make_unique<ListaPlac>(otoczenie(), kLipiec.rok, kLipiec.mies, symbol);
    }
    static KluczListy klucz(qint64 prcId, const QString& symbol = u" "_s) { return {prcId, symbol}; }
    /// Nothing of the row in memory waits to be written.
    void oczekujCzystych() {
        for (const TabelaDef* tabela : schemat::TabeleMiesiaca)
            EXPECT_FALSE(uchwyt(*tabela).zmieniony()) << tabela->nazwa;
    }
    /// The name of the control is that of the screen.
    static bool zmien(ListaPlac& l, QStringView pole, double kwota) {
        return l.ZmienKwote(poleListy(pole), zl(kwota));
    }
};

TEST_F(ListaPlacTest, ANewRowTakesTheEmployeesDataAndNothingElse) {
    stale().WskUbruttow = zl(112.5);
    pracownik(7,
              "Kup=101,82 czy_ulga=T czy_2progi=T us_id=4 etat=3 etat2=4 umowa_od=2001-07-16 placa_zas=1200 "
              "Premia_pr=10 Fp=2,5 gsp=0,09 wsk_fe=9 wsk_fr=6 wsk_fc=2 wsk_ubzdr=7,75 PPE=55,5 il_z_rodz=1 "
              "il_z_piel=2 il_z_wych=3 DOD_3=70 DOD_16=42,5 POT_1=25 POT_2=99",
              u"Łoś"_s);
    rozmowa_.spodziewaj(kIlosci, Odpowiedz::Tak);
    const auto l = lista();
    EXPECT_EQ(dopisz(*l, 7), klucz(7));
    // The credit is twice 436,20 / 12; the two contribution columns hold rates until the first calculation.
    const std::string wartosci =
        "PRC_ID=7 NAZ=Łoś IMIE=Anna KUP=101,82 PPD=72,7 US_ID=4 SKL_FP=2,5 ST_SKL_FP=2,5 SKL_FGSP=0,09 "
        "ST_SKLFGSP=0,09 ETAT=3 ETAT2=4 IL_Z_RODZ=1 IL_Z_PIEL=2 IL_Z_WYCH=3 PPE=55,5 WSK_FEPRD=0,2 "
        "WSK_FRPRD=1,2 WSK_FWPRD=2,2 WSK_FEPRC=9 WSK_FRPRC=6 WSK_FCPRC=2 WSK_UBZDR=7,75 WSK_UBR=112,5 "
        "SP_1=1200 SOD_1=2001-07-16 SDO_1=2001-07-31 SP_2=120 SOD_2=2001-07-16 SDO_2=2001-07-31 SP_16=42,5 "
        "SOD_16=2001-07-16 SDO_16=2001-07-31 SM_1=25";
    oczekujWPliku(klucz(7), wartosci);
    std::set<std::string_view> ustawione{"LISTA"};
    for (const auto& [k, w] : polaTestu(schemat::TabeleMiesiaca, wartosci)) ustawione.insert(k.def().nazwa);
    for (const TabelaDef* tabela : schemat::TabeleMiesiaca) {
        Recordset rs = zPliku(*tabela);
        for (int i = 0; i < static_cast<int>(tabela->kolumny.size()); ++i) {
            const Kolumna k = tabela->nr(i);
            if (ustawione.contains(k.def().nazwa)) continue;
            const Wartosc zero = k.def().typ == Typ::Currency ? Wartosc(Waluta{})
                                 : k.def().typ == Typ::Short  ? Wartosc(qint64{0})
                                 : k.def().typ == Typ::Text   ? Wartosc(QString())
                                                              : Wartosc(Null);
            EXPECT_EQ(tekstWartosci(rs.wartosc(k)), tekstWartosci(zero)) << k.def().nazwa;
        }
    }
    rozmowa_.spodziewaj(kPytanieOPPE, Odpowiedz::Tak);
    l->Przelicz1();
    oczekujWPliku(klucz(7), "PPD=36,35 SKL_FP=33 ZUS_PPE=55,5"); // undoubled; 1320 at 2,5%

    stale().BlokujUbruttow = true;
    pracownik(8, "Kup=0");
    dopisz(*l, 8);
    oczekujWPliku(klucz(8), "WSK_UBR=100 PPD=0");
}

TEST_F(ListaPlacTest, BenefitCountsAreCopiedOnlyWhenWanted) {
    const char* kadry[] = {"il_z_rodz=0", "il_z_rodz=2", "il_z_piel=3", "il_z_wych=4"};
    for (int i = 0; i < 4; ++i) pracownik(i + 1, kadry[i]);
    const auto l = lista();
    dopisz(*l, 1);
    rozmowa_.spodziewaj(kIlosci, Odpowiedz::Nie);
    dopisz(*l, 2);
    oczekujWPliku(klucz(2), "IL_Z_RODZ=0");
    rozmowa_.spodziewaj(kIlosciSerii, Odpowiedz::Tak);
    EXPECT_EQ(l->DodajPracownikow({3, 4}).wykonane, 2);
    oczekujWPliku(klucz(3), "IL_Z_RODZ=0 IL_Z_PIEL=3 IL_Z_WYCH=0");
    oczekujWPliku(klucz(4), "IL_Z_PIEL=0 IL_Z_WYCH=4");
}

TEST_F(ListaPlacTest, TheSymbolOfANewRow) {
    const struct {
        QString symbol;
        bool wieleList;
        std::string kadry;
        QString wynik;
    } przypadki[] = {
        {u" "_s, false, "Lista=B", u" "_s},  {u""_s, true, "Lista=B", u"B"_s},
        {u" "_s, true, "Lista=", u" "_s},    {u"A"_s, true, "Lista=B", u"A"_s},
        {u"CD"_s, false, "Lista=B", u"C"_s}, {u"a"_s, true, "Lista=A", u"a"_s},
    };
    qint64 nr = 0;
    for (const auto& p : przypadki) {
        pracownik(++nr, p.kadry);
        stale().AktOpWieluList = p.wieleList;
        EXPECT_EQ(dopisz(*lista(p.symbol), nr), klucz(nr, p.wynik));
    }
    EXPECT_EQ(wierszeWPliku(), "1 ,2B,3 ,4A,5C,6a");
}

TEST_F(ListaPlacTest, NobodyStandsTwiceOnOneList) {
    pracownik(1, "placa_zas=100");
    pracownik(2, "placa_zas=200");
    const auto l = lista();
    dopisz(*l, 1);
    rozmowa_.spodziewaj(kDwaRazy, Styl::Wykrzyknik);
    EXPECT_FALSE(l->Nowy_prac(1));
    const RaportSerii raport = l->DodajPracownikow({1, 2, 2, 99});
    EXPECT_EQ(raport.wykonane, 1);
    EXPECT_EQ(raport.pominiete, 2);
    EXPECT_EQ(raport.tekst(), u"Pracownik nr 99: Nie ma pracownika o numerze 99 w kadrach."_s);
    EXPECT_THROW(l->Nowy_prac(99), Blad);
    rozmowa_.spodziewaj(pytania::naInnejLiscie, Styl::Wykrzyknik);
    dopisz(*lista(u"A"_s), 1);
    EXPECT_EQ(lista(u"B"_s)->DodajPracownikow({2}).tekst(), pytania::naInnejLiscie + u" (pracownik nr 2)"_s);
    EXPECT_EQ(wierszeWPliku(), "1 ,1A,2 ,2B");
    oczekujCzystych();
}

TEST_F(ListaPlacTest, Przelicz2RefillsTheComponentsAndLeavesTheRest) {
    pracownik(1, "placa_zas=1000 DOD_5=50 POT_9=10");
    const auto l = lista();
    (void)l->DodajPracownikow({1});
    ASSERT_TRUE(l->Wypisz_daneP(klucz(1)));
    ustaw("SP_1=1 SP_3=333 SM_9=1 KUP=7");
    l->WpiszSK();
    oczekujWPliku(klucz(1), "SP_1=1 SP_3=333");
    zmienPracownika(1, "placa_zas=2000 DOD_5=0 Kup=200");
    rozmowa_.spodziewaj(u"Kwoty składników wpisane ręcznie zostaną zastąpione. Czy przepisać ?"_s,
                        Odpowiedz::Tak);
    EXPECT_TRUE(l->Przelicz2());
    oczekujWPliku(klucz(1), "SP_1=2000 SP_3=333 SP_5=0 SOD_5=null SM_9=10 BRUTTO=1040 KUP=7");
    skladnik(5, "BZU", false); // out of use since
    zmienPracownika(1, "DOD_5=77 placa_zas=3000");
    const RaportSerii raport = l->PrzeliczSerie(Obliczenie::Przepisanie, {klucz(1)});
    EXPECT_EQ(raport.wykonane, 1);
    EXPECT_FALSE(l->wiersz()) << "no row is taken up after a batch";
    oczekujWPliku(klucz(1), "SP_1=3000 SP_5=0 BRUTTO=1040");
}

TEST_F(ListaPlacTest, ABatchIsolatesFailures) {
    pracownik(1, "placa_zas=1000");
    pracownik(2, "placa_zas=900000000000000 DOD_5=900000000000000");
    pracownik(3, "placa_zas=3000");
    const auto l = lista();
    RaportSerii raport = l->DodajPracownikow({1, 2, 3});
    EXPECT_EQ(raport.wykonane, 2);
    EXPECT_EQ(raport.tekst(), u"Pracownik nr 2: Kwota przekracza zakres liczb programu."_s);
    EXPECT_EQ(wierszeWPliku(), "1 ,3 ");
    oczekujWPliku(klucz(3), "BRUTTO=3000");
    oczekujCzystych();

    // The row that fails keeps what it was.
    zmienPracownika(1, "Kup=100 czy_kuz=T");
    ASSERT_TRUE(l->Wypisz_daneP(klucz(1)));
    ustawIZapisz("SP_5=922337203685477");
    try {
        l->Przelicz1();
        ADD_FAILURE() << "computed";
    } catch (const Blad& blad) {
        EXPECT_EQ(blad.komunikat(), u"Pracownik nr 1 Nowak Anna: Kwota przekracza zakres liczb programu."_s);
    }
    raport = l->PrzeliczSerie(Obliczenie::Przeliczenie, {klucz(1), klucz(3), klucz(8)});
    EXPECT_EQ(raport.wykonane, 1);
    ASSERT_EQ(raport.niepowodzenia.size(), 2);
    EXPECT_EQ(raport.niepowodzenia[1].numer, 8);
    oczekujWPliku(klucz(1), "BRUTTO=1000 KUP=0");
    ASSERT_TRUE(l->Wypisz_daneP(klucz(1)));
    oczekuj("BRUTTO=1000 KUP=0");
    oczekujCzystych();
}

TEST_F(ListaPlacTest, AStoppedBatchKeepsWhatIsDone) {
    for (const qint64 nr : {1, 2, 3}) pracownik(nr, "placa_zas=1000");
    rozmowa_.przerwijPostep(3);
    const auto l = lista();
    const RaportSerii raport = l->DodajPracownikow({1, 2, 3});
    EXPECT_TRUE(raport.przerwana);
    EXPECT_EQ(raport.wykonane, 2);
    EXPECT_EQ(wierszeWPliku(), "1 ,2 ");
    EXPECT_EQ(rozmowa_.kroki().value(1), u"PROSZĘ CZEKAĆ ! Wyliczanie pracownika nr 2"_s);
}

TEST_F(ListaPlacTest, AFailureOfTheFileStoresNothingOfTheBatch) {
    for (const qint64 nr : {1, 2, 3}) pracownik(nr, "placa_zas=1000");
    (void)lista()->DodajPracownikow({1});
    // A record without its three partners stands in the way of employee 3.
    Recordset sierota = zPliku(PLB);
    sierota.AddNewZero(3, u" "_s);
    sierota.UpdateBatch(u"Dane testu");
    EXPECT_THROW((void)lista()->DodajPracownikow({2, 3}), BladBazy);
    sierota.Delete();
    sierota.UpdateBatch(u"Dane testu");
    EXPECT_EQ(wierszeWPliku(), "1 ");
}

TEST_F(ListaPlacTest, AQuestionWithoutAnAnswerStoresNothing) {
    pracownik(1, "placa_zas=1000");
    pracownik(2, "il_z_rodz=1");
    RozmowaBezOdpowiedzi niema;
    Otoczenie bezOdpowiedzi{sesja(), stale(), otoczenie().skladniki, niema};
    {
        ListaPlac l(bezOdpowiedzi, kLipiec.rok, kLipiec.mies, u" "_s);
        EXPECT_THROW((void)l.DodajPracownikow({1, 2}), Przerwanie);
        EXPECT_EQ(wierszeWPliku(), "");
        sesja().OdswiezUchwyty();
        EXPECT_THROW((void)l.Nowy_prac(2), Przerwanie);
        EXPECT_EQ(wierszeWPliku(), "");
        oczekujCzystych();
    }
    (void)lista()->DodajPracownikow({1});
    EXPECT_EQ(wierszeWPliku(), "1 ");
}

TEST_F(ListaPlacTest, EachFieldHasItsChain) {
    pracownik(1, "placa_zas=2000 Kup=100 czy_kuz=T czy_ulga=T");
    const auto l = lista();
    (void)l->DodajPracownikow({1});
    oczekujWPliku(klucz(1),
                  "BRUTTO=2000 FEPRC=195,2 FRPRC=130 FCPRC=49 NETTO=1525,8 UBZDR_NAL=121,94 PPD=36,35 "
                  "POD_DOCH=289,94 PODATEK=131,6 DO_WYPLATY=1372,21");
    // Every column that a step of the chain would write stands off its computed value.
    const std::string slady = "BRUTTO=5 KUP=90 FEPRC=200 FRPRC=130 FCPRC=49 NETTO=1000 PPD=40 UBZDR_NAL=70 "
                              "UBZDR=50 SKL_FP=1,11 POD_DOCH=3 PODATEK=0 PPE=0 ZUS_PPE=0 PRZELEWEM=0 "
                              "FEPRD=4 FRPRD=24 FWPRD=44 SKL_FGSP=1,6 DO_WYPLATY=100 ";
    const struct {
        QStringView pole;
        double kwota;
        std::string zmiany; // over `slady`
    } przypadki[] = {
        {u"txtKosztyUz", 110,
         "BRUTTO=2000 KUP=110 NETTO=1511 UBZDR_NAL=121,58 UBZDR=121,58 POD_DOCH=287,09 PODATEK=125,5 "
         "DO_WYPLATY=1373,91"},
        {u"txtFEPC", 210,
         "BRUTTO=2000 FEPRC=210 NETTO=1521 UBZDR_NAL=120,82 UBZDR=120,82 POD_DOCH=288,99 PODATEK=128,2 "
         "DO_WYPLATY=1362,01"},
        {u"txtFRPC", 140,
         "BRUTTO=2000 FRPRC=140 NETTO=1521 UBZDR_NAL=120,82 UBZDR=120,82 POD_DOCH=288,99 PODATEK=128,2 "
         "DO_WYPLATY=1362,01"},
        {u"txtFC", 59,
         "BRUTTO=2000 FCPRC=59 NETTO=1521 UBZDR_NAL=120,82 UBZDR=120,82 POD_DOCH=288,99 PODATEK=128,2 "
         "DO_WYPLATY=1362,01"},
        {u"txtUlgaPod", 30,
         "BRUTTO=2000 PPD=30 UBZDR_NAL=121,58 UBZDR=121,58 POD_DOCH=190 PODATEK=38,4 DO_WYPLATY=1461"},
        {u"txtUZPO", 60, "BRUTTO=2000 UBZDR=60 POD_DOCH=190 PODATEK=90 DO_WYPLATY=1471"},
        {u"txtUZNA", 80, "BRUTTO=2000 UBZDR_NAL=80 UBZDR=80 POD_DOCH=190 PODATEK=70 DO_WYPLATY=1471"},
        // Base 1950 without the raise: 1950 at 2,45% is 47,775, to the even 47,78.
        {u"txtPotrPPE", 50,
         "BRUTTO=2000 PPE=50 FEPRC=190,32 FRPRC=126,75 FCPRC=47,78 FEPRD=3,9 FRPRD=23,4 FWPRD=42,9 "
         "SKL_FP=47,78 "
         "SKL_FGSP=1,56 NETTO=1545,15 UBZDR_NAL=118,89 UBZDR=118,89 PPD=36,35 POD_DOCH=293,55 PODATEK=138,3 "
         "DO_WYPLATY=1377,95"},
        // Base 2050.
        {u"txtPPEosk", 50,
         "BRUTTO=2000 ZUS_PPE=50 FEPRC=200,08 FRPRC=133,25 FCPRC=50,22 FEPRD=4,1 FRPRD=24,6 FWPRD=45,1 "
         "SKL_FP=50,22 SKL_FGSP=1,64 NETTO=1526,45 UBZDR_NAL=124,98 UBZDR=124,98 PPD=36,35 POD_DOCH=289,94 "
         "PODATEK=128,6 DO_WYPLATY=1362,86"},
        {u"txtPodatek19", 77, "PODATEK=77"},
        {u"txtPrzelewem", 100, "PRZELEWEM=100"},
        {u"txtFP", 3.33, "SKL_FP=3,33"},
        {u"txtFGSP", 3.33, "SKL_FGSP=3,33"},
        {u"txtFEPD", 3.33, "FEPRD=3,33"},
        {u"txtFRPD", 3.33, "FRPRD=3,33"},
        {u"txtFW", 3.33, "FWPRD=3,33"},
    };
    EXPECT_EQ(polaListy().size(), std::size(przypadki));
    for (const auto& p : przypadki) {
        SCOPED_TRACE(p.pole.toString().toStdString());
        ASSERT_TRUE(l->Wypisz_daneP(klucz(1)));
        ustawIZapisz(slady);
        if (p.pole == u"txtPotrPPE"_s) rozmowa_.spodziewaj(kPytanieOPPE, Odpowiedz::Nie);
        EXPECT_TRUE(zmien(*l, p.pole, p.kwota));
        std::map<std::string_view, PoleTestu> oczekiwane; // the later value of a column wins
        for (const auto& [k, w] : polaTestu(schemat::TabeleMiesiaca, slady + p.zmiany))
            oczekiwane[k.def().nazwa] = {k, w};
        for (const auto& [nazwa, pole] : oczekiwane)
            EXPECT_EQ(tekstWartosci(uchwyt(*pole.kolumna.tabela).wartosc(pole.kolumna)),
                      tekstWartosci(pole.wartosc))
                << nazwa;
        oczekujWPliku(klucz(1), p.zmiany);
    }
    EXPECT_THROW((void)poleListy(u"txtNic"), Blad);
}

TEST_F(ListaPlacTest, TheTypedTaxMayTakeThePensionPlanOffThePay) {
    pracownik(1, "placa_zas=1000");
    const auto l = lista();
    dopisz(*l, 1);
    ustawIZapisz("PPE=25,5 DO_WYPLATY=100 PODATEK=9");
    const std::pair<Odpowiedz, const char*> kroki[] = {{Odpowiedz::Tak, "PODATEK=70 DO_WYPLATY=74,5"},
                                                       {Odpowiedz::Nie, "PODATEK=70 DO_WYPLATY=74,5"},
                                                       {Odpowiedz::Tak, "PODATEK=70 DO_WYPLATY=49"}};
    for (const auto& [odpowiedz, wynik] : kroki) {
        rozmowa_.spodziewaj(kSkladkaPPE, odpowiedz); // each time the field is confirmed
        EXPECT_TRUE(zmien(*l, u"txtPodatek19", 70));
        oczekujWPliku(klucz(1), wynik);
    }
}

TEST_F(ListaPlacTest, ATransferIsNotAboveThePay) {
    pracownik(1, "placa_zas=1000");
    const auto l = lista();
    dopisz(*l, 1);
    ustawIZapisz("DO_WYPLATY=100 PRZELEWEM=40");
    rozmowa_.spodziewaj(kPrzelew, Odpowiedz::Nie);
    EXPECT_FALSE(zmien(*l, u"txtPrzelewem", 100.01));
    oczekujWPliku(klucz(1), "PRZELEWEM=40");
    rozmowa_.spodziewaj(kPrzelew, Odpowiedz::Tak);
    EXPECT_TRUE(zmien(*l, u"txtPrzelewem", 100.01));
    oczekujWPliku(klucz(1), "PRZELEWEM=100 DO_WYPLATY=100");
}

TEST_F(ListaPlacTest, ComponentsPeriodsAndDaysAreStoredOrDropped) {
    pracownik(1, "placa_zas=1000");
    const auto l = lista();
    dopisz(*l, 1);
    ustaw("SP_5=5 SOD_5=2001-07-02 SDO_1=null DN_RO=20 DN_SO=1 DN_NI=2 DN_URL=3 DN_ZAS=4 DN_INN=1 PACZKA=9");
    EXPECT_TRUE(l->DniZgodneZMiesiacem());
    l->WpiszSK();
    l->WpiszDatyGr();
    l->WpiszDni();
    oczekujWPliku(klucz(1), "SP_5=5 SOD_5=2001-07-02 SDO_1=null DN_PR=23 DN_ZAS=4 PACZKA=9");
    ustaw("DN_INN=2 SP_5=6");
    EXPECT_FALSE(l->DniZgodneZMiesiacem());
    l->CofnijWiersz();
    oczekuj("DN_INN=1 SP_5=5");
    oczekujCzystych();
}

TEST_F(ListaPlacTest, TitlesAndLinesGoByTheSymbol) {
    for (const qint64 nr : {3, 1, 2}) pracownik(nr, "placa_zas=1", u"N%1"_s.arg(nr));
    (void)lista()->DodajPracownikow({3, 1});
    (void)lista(u"A"_s)->DodajPracownikow({2, 1});
    const auto opis = [](ListaPlac& l) {
        QStringList wynik;
        for (const LiniaListy& w : l.Wczytaj_listep())
            wynik += w.nazwisko + w.imie + QString::number(w.klucz.prcId) + w.klucz.lista;
        return wynik.join(u","_s);
    };
    EXPECT_EQ(opis(*lista()), u"N1Anna1 ,N1Anna1A,N2Anna2A,N3Anna3 "_s);
    EXPECT_EQ(lista()->tytul(), u"Lista plac za miesiąc 07.2001"_s);
    EXPECT_EQ(opis(*lista(u"A"_s)), u"N1Anna1A,N2Anna2A"_s);
    EXPECT_EQ(lista(u"A"_s)->tytul(), u"Lista plac (A) za miesiąc 07.2001"_s);

    // "a" and "A" are two lists.
    const QString pytanie = u"Lista o podanym symbolu nie istnieje.\nCzy chcesz ją utworzyć ?"_s;
    auto l = lista(u"a"_s);
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
    EXPECT_EQ(opis(*l), QString());
    EXPECT_EQ(l->tytul(), u"Lista plac (a) za miesiąc 07.2001"_s);
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
    EXPECT_EQ(opis(*l).count(u','), 3);
    EXPECT_EQ(l->tytul(), u"Lista plac za miesiąc 07.2001"_s);
    EXPECT_THROW(ListaPlac(otoczenie(), 2001, 6, u" "_s), Blad);
}

TEST_F(ListaPlacTest, RemovingARowAsksFirst) {
    const QString pytanie = u"Czy na pewno usunąć pracownika o numerze 1 z miesięcznej listy płac ?"_s;
    pracownik(1, "placa_zas=1000");
    pracownik(2, "placa_zas=1000");
    const auto l = lista();
    (void)l->DodajPracownikow({1, 2});
    EXPECT_THROW((void)l->Usun_prac(), Blad) << "no row is taken up";
    ASSERT_TRUE(l->Wypisz_daneP(klucz(1)));
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
    EXPECT_FALSE(l->Usun_prac());
    EXPECT_EQ(wierszeWPliku(), "1 ,2 ");
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
    EXPECT_TRUE(l->Usun_prac());
    EXPECT_EQ(wierszeWPliku(), "2 ");
    EXPECT_FALSE(l->wiersz());
}

TEST_F(ListaPlacTest, ABlockedMonthIsReadAndNeverWritten) {
    pracownik(1, "placa_zas=1000");
    pracownik(2, "placa_zas=1000");
    (void)lista()->DodajPracownikow({1});
    blokada(kLipiec, Odpowiedz::Nie);
    ASSERT_TRUE(sesja().ZnajdzMiesiac(kLipiec));
    sesja().rsPLACE.ustaw(schemat::PLACE("il_wyplat"), 7);
    sesja().rsPLACE.UpdateBatch(u"Próba");
    skladnik(5, "BZU", false); // since then out of use,
    skladnik(10, "   ", true); // without flags,
    skladnik(3, "BZU", true);  // and put to use
    const auto l = lista();
    EXPECT_EQ(l->tytul(), u"Lista plac za miesiąc 07.2001 - MIESIĄC ZABLOKOWANY"_s);
    const Pozycje& p = l->pozycje();
    EXPECT_TRUE(p.dodatnia(1).aktywna() && p.dodatnia(30).aktywna() && p.ujemna(15).aktywna());
    EXPECT_FALSE(p.dodatnia(5).aktywna() || p.dodatnia(3).aktywna() || p.ujemna(2).aktywna());
    EXPECT_EQ(p.dodatnia(10).flagi(), u"B U"_s) << "the flags are those of the month";
    EXPECT_EQ(p.ujemna(9).flagi(), u"BZU"_s);

    EXPECT_EQ(l->Wczytaj_listep().size(), 1);
    ASSERT_TRUE(l->Wypisz_daneP(klucz(1)));
    const std::function<void()> zmiany[] = {
        [&] { (void)l->Nowy_prac(2); },
        [&] { (void)l->DodajPracownikow({2}); },
        [&] { (void)l->Usun_prac(); },
        [&] { l->Przelicz1(); },
        [&] { l->Przelicz2(); },
        [&] { (void)l->PrzeliczSerie(Obliczenie::Przeliczenie, {klucz(1)}); },
        [&] { (void)zmien(*l, u"txtFP", 1); },
        [&] { l->WpiszSK(); },
        [&] { l->WpiszDatyGr(); },
        [&] { l->WpiszDni(); },
    };
    for (const auto& zmiana : zmiany) EXPECT_THROW(zmiana(), Blad);
    l->ZapiszSumy();
    oczekujSum(kLipiec, "il_wyplat=7 sum_brutto=1000");
    EXPECT_EQ(wierszeWPliku(), "1 ");
}

TEST_F(ListaPlacTest, DamagedRowsAreNamed) {
    pracownik(1, "placa_zas=1000");
    const auto l = lista();
    (void)l->DodajPracownikow({1});
    ASSERT_TRUE(sesja().rsPLS.Znajdz(1) && sesja().rsPLD.Znajdz(1));
    sesja().rsPLS.Delete();
    sesja().rsPLD.Delete();
    rozmowa_.spodziewaj(u"CRITICAL ERROR !!! Brak rekordu PLS"_s, Styl::Krytyczny);
    rozmowa_.spodziewaj(u"CRITICAL ERROR !!! Brak rekordu PLD"_s, Styl::Krytyczny);
    EXPECT_TRUE(l->Wypisz_daneP(klucz(1)));
    EXPECT_THROW(l->Przelicz1(), Blad);
    l->CofnijWiersz();

    usunZKadr(1);
    rozmowa_.spodziewaj(
        u"Uwaga. Pracownik o numerze 1 został usunięty z kadr. Próba liczenia płac może okazać "
        "się niemożliwa z zawieszeniem programu łącznie. Usuń pracownika z miesięcznej listy "
        "płac."_s,
        Styl::Wykrzyknik);
    EXPECT_TRUE(l->Wypisz_daneP(klucz(1)));
    oczekuj("BRUTTO=1000");
    EXPECT_THROW(l->Przelicz1(), Blad);
    EXPECT_EQ(l->PrzeliczSerie(Obliczenie::Przeliczenie, {klucz(1)}).tekst(),
              u"Pracownik nr 1: Nie ma pracownika o numerze 1 w kadrach."_s);
    oczekujWPliku(klucz(1), "BRUTTO=1000");
}

TEST_F(ListaPlacTest, TheSumsCoverAllListsOfTheMonth) {
    pracownik(1, "placa_zas=0");
    pracownik(2, "placa_zas=0");
    const auto l = lista(u"A"_s);
    const auto wiersz = [&](ListaPlac& naLiscie, qint64 nr, const char* pola) {
        dopisz(naLiscie, nr);
        ustawIZapisz(pola);
    };
    wiersz(*l, 1,
           "BRUTTO=1000,10 NETTO=800 PODATEK=70,5 KUP=100 PPD=36,35 SKL_FP=24,5 SKL_FGSP=0,8 DODATKI=50 "
           "POTRACENIA=80 DO_WYPLATY=700,01 FEPRD=2 FRPRD=12 FWPRD=22 FEPRC=97,6 FRPRC=65 FCPRC=24,5 "
           "UBZDR=60,5 UBZDR_NAL=999");
    wiersz(*lista(), 2,
           "BRUTTO=0,02 NETTO=3 PODATEK=4 KUP=5 PPD=6 SKL_FP=7 SKL_FGSP=8 DODATKI=9 POTRACENIA=1 "
           "DO_WYPLATY=-10 FEPRD=11 FRPRD=12 FWPRD=13 FEPRC=14 FRPRC=15 FCPRC=16 UBZDR=17");
    const auto otwarta = lista(u"A"_s);
    otwarta->ZapiszSumy();
    oczekujSum(kLipiec,
               "il_wyplat=2 sum_brutto=1000,12 sum_netto=803 sum_podat=74,5 sum_kup=105 sum_ppd=42,35 "
               "sum_fp=31,5 sum_fgsp=8,8 sum_inne=-22 do_wyplaty=690,01 sum_feprd=13 sum_frprd=24 "
               "sum_feprc=111,6 sum_frprc=80 sum_fc=40,5 sum_fw=35 sum_ubzdr=77,5 akc=N");
    for (const KluczListy& k : {klucz(1, u"A"_s), klucz(2)}) {
        ASSERT_TRUE(otwarta->Wypisz_daneP(k));
        rozmowa_.spodziewaj(
            u"Czy na pewno usunąć pracownika o numerze %1 z miesięcznej listy płac ?"_s.arg(k.prcId),
            Odpowiedz::Tak);
        EXPECT_TRUE(otwarta->Usun_prac());
    }
    otwarta->ZapiszSumy();
    oczekujSum(kLipiec, "il_wyplat=0 sum_brutto=0 sum_inne=0 do_wyplaty=0 sum_ubzdr=0 sum_fw=0");
}

} // namespace

} // namespace tornel::testy
