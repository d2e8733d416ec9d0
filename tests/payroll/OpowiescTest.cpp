// Two months of a small firm, from an empty database to their sums.
#include "wsparcie/PlaceTestowe.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

class OpowiescTest : public PlaceTestowe {
protected:
    static constexpr RokMies kSierpien{2001, 8};
    ListaPlac lista(RokMies rm, const QString& symbol) { return {otoczenie(), rm.rok, rm.mies, symbol}; }
};

TEST_F(OpowiescTest, TwoMonthsWithTwoLists) {
    stale().AktOpWieluList = true;
    pracownik(1, "Lista=A placa_zas=2400 Premia_pr=10 Kup=100 czy_kuz=T czy_ulga=T POT_1=30", u"Kowalski"_s);
    pracownik(2, "Lista=B placa_zas=1650 Kup=101,82 czy_kuz=T czy_ulga=T DOD_16=42,50", u"Nowak"_s);
    pracownik(3, "Lista=A placa_zas=29000 Kup=200", u"Zięba"_s);
    miesiac(kLipiec);
    {
        ListaPlac lipiec = lista(kLipiec, u" "_s);
        EXPECT_EQ(lipiec.DodajPracownikow({1, 2, 3}).wykonane, 3);
        lipiec.ZapiszSumy();
    }
    EXPECT_EQ(wierszeWPliku(kLipiec), "1A,2B,3A");
    // 2640,00: contributions 493,94, tax 388,74 on 2046, health 160,95; 2146,06 - 352,39 - 30,00 to pay.
    oczekujWPliku({1, u"A"_s}, "BRUTTO=2640 NETTO=2046,06 PODATEK=191,4 UBZDR=160,95 DO_WYPLATY=1763,67");
    oczekujWPliku({2, u"B"_s}, "BRUTTO=1650 NETTO=1239,47 PODATEK=98,5 UBZDR=100,6 DO_WYPLATY=1184,73");
    // Below the limit of 29624, no costs and no credit: 4479,06 on 23574.
    oczekujWPliku({3, u"A"_s}, "BRUTTO=29000 NETTO=23574,10 PODATEK=2711 UBZDR=1768,06 DO_WYPLATY=19095,04");
    const char* sumyLipca =
        "il_wyplat=3 sum_brutto=33290 sum_netto=26859,63 sum_kup=201,82 sum_ppd=72,7 sum_podat=3000,9 "
        "sum_fp=815,6 sum_fgsp=26,63 sum_feprc=3249,1 sum_frprc=2163,85 sum_fc=815,6 sum_feprd=66,58 "
        "sum_frprd=399,48 sum_fw=732,38 sum_ubzdr=2029,61 sum_inne=12,5 do_wyplaty=22043,44";
    oczekujSum(kLipiec, sumyLipca);
    blokada(kLipiec, Odpowiedz::Tak);

    // August: Nowak earns more, Kowalski stands on both lists, Zięba passes the limit of group 1.
    zmienPracownika(2, "placa_zas=1800");
    miesiac(kSierpien);
    EXPECT_EQ(lista(kSierpien, u"A"_s).DodajPracownikow({1, 3}).wykonane, 2);
    {
        ListaPlac b = lista(kSierpien, u"B"_s);
        EXPECT_EQ(b.DodajPracownikow({2, 1, 2}).pominiete, 1);
        ASSERT_TRUE(b.Wypisz_daneP({3, u"A"_s}));
        rozmowa_.spodziewaj(u"Uwaga! Przekroczona grupa podatkowa. Wyliczenie nastąpi w grupie 2."_s,
                            Styl::Wykrzyknik);
        rozmowa_.spodziewaj(u"Uwaga! Po zsumowaniu kwot z umów zleceń, umów o dzieło i honorariów następuje "
                            "przekroczenie grupy podatkowej do 2."_s,
                            Styl::Wykrzyknik);
        EXPECT_TRUE(b.ZmienKwote(poleListy(u"txtKosztyUz"), zl(200)));
        b.ZapiszSumy();
    }
    EXPECT_EQ(wierszeWPliku(kSierpien), "1A,1B,2B,3A");
    oczekujWPliku({1, u"B"_s}, "BRUTTO=2640 ST_PD=19 DO_WYPLATY=1763,67", kSierpien);
    oczekujWPliku({2, u"B"_s}, "BRUTTO=1800 NETTO=1361,4 PODATEK=112,5 DO_WYPLATY=1283,48", kSierpien);
    // 58000 in the year: 30% of 23374 is 7012,20.
    oczekujWPliku({3, u"A"_s},
                  "KUP=200 NETTO=23374,1 ST_PD=30 POD_DOCH=7012,2 PODATEK=5244,1 DO_WYPLATY=16561,9",
                  kSierpien);
    const char* sumySierpnia =
        "il_wyplat=4 sum_brutto=36080 sum_netto=28827,62 sum_kup=501,82 sum_ppd=109,05 sum_podat=5739,4 "
        "sum_fp=883,96 sum_fgsp=28,86 sum_feprc=3521,4 sum_frprc=2345,2 sum_fc=883,96 sum_feprd=72,16 "
        "sum_frprd=432,96 sum_fw=793,76 sum_ubzdr=2199,7 sum_inne=-17,5 do_wyplaty=21372,72 akc=N";

    // The next start finds all of it; the blocked July has not moved.
    otworzPonownie();
    oczekujSum(kSierpien, sumySierpnia);
    oczekujSum(kLipiec, std::string(sumyLipca) + " akc=T");
    EXPECT_THROW((void)lista(kLipiec, u" "_s).DodajPracownikow({1}), Blad);
}

} // namespace

} // namespace tornel::testy
