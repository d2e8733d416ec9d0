#include "wsparcie/NieobecnosciTestowe.h"
#include <map>

using namespace Qt::StringLiterals;

namespace {

class MiesiacNieobecnosciTest : public NieobecnosciTestowe {
protected:
    MiesiacNieobecnosciTest() { miesiac(); }

    std::unique_ptr<ListaPlac> lista(const QString& symbol = u" "_s) {
        return std::make_unique<ListaPlac>(otoczenie(), kLipiec.rok, kLipiec.mies, symbol, &wykazy_);
    }
    /// The month's overtime list with the amounts of some employees by group.
    void nadgodziny(const std::map<qint64, std::array<double, 7>>& kwoty) {
        const QString nazwa = Sesja::nazwaMiesiaca("NADGN", kLipiec.rok, kLipiec.mies);
        UtworzTabele(sesja().cnPlace, schemat::NADGN, nazwa);
        Recordset naglowek(schemat::NADG), rs(schemat::NADGN);
        naglowek.Open(sesja().cnPlace);
        naglowek.AddNewZero();
        naglowek.ustaw(schemat::NADG("Rok"), u"2001"_s);
        naglowek.ustaw(schemat::NADG("Mies"), u"07"_s);
        naglowek.UpdateBatch();
        rs.Open(sesja().cnPlace, nazwa);
        for (const auto& [nr, grupy] : kwoty) {
            rs.AddNewZero(nr);
            for (std::size_t g = 0; g < grupy.size(); ++g)
                rs.ustaw(schemat::NADGN.nr(schemat::NADGN.numer("SP_K" + std::to_string(g + 1))),
                         zl(grupy[g]));
        }
        rs.UpdateBatch();
        stale().AktRejNadg = true;
    }

    WykazySkrypt wykazy_;
};

TEST_F(MiesiacNieobecnosciTest, OvertimeIsAddedToItsComponentsAfreshEachTime) {
    pracownik(1, "placa_zas=1000 DOD_10=5 umowa_od=2001-07-16");
    pracownik(2, "placa_zas=1000");
    pracownik(3, "placa_zas=1000");
    nadgodziny({{1, {10, 20, 0, 40, 50, 0, 70}}, {3, {}}});
    stale().NrNGS = {10, 10, 12, 0, 3, 16, 24};
    const auto l = lista();
    for (const qint64 nr : {1, 2, 3}) dopisz(*l, nr); // adding transfers nothing
    const QString nieaktywny =
        u"Składnik nr 3 odpowiadający nadgodzinom jest nieaktywny. Kwota za nadgodziny nie "
        "została zapisana."_s;
    ASSERT_TRUE(l->Wypisz_daneP({1, u" "_s}));
    for (int raz = 0; raz < 2; ++raz) {
        rozmowa_.spodziewaj(pytania::nadgodziny, Odpowiedz::Tak);
        rozmowa_.spodziewaj(nieaktywny, Styl::Wykrzyknik);
        l->Przelicz2();
        oczekujWPliku({1, u" "_s},
                      "SP_10=35 SP_12=0 SP_3=0 SP_24=70 SOD_24=2001-07-16 SDO_24=2001-07-31 SOD_12=null");
    }
    rozmowa_.spodziewaj(pytania::nadgodziny, Odpowiedz::Nie);
    l->Przelicz2();
    oczekujWPliku({1, u" "_s}, "SP_10=5 SP_24=0 SOD_24=null");
    // Nobody is asked about those without overtime.
    for (const qint64 nr : {2, 3}) {
        ASSERT_TRUE(l->Wypisz_daneP({nr, u" "_s}));
        l->Przelicz2();
    }
    rozmowa_.spodziewaj(pytania::nadgodzinySerii, Odpowiedz::Tak);
    const RaportSerii raport =
        l->PrzeliczSerie(Obliczenie::Przepisanie, {{3, u" "_s}, {1, u" "_s}, {2, u" "_s}});
    EXPECT_EQ(raport.tekst(), nieaktywny + u" (pracownik nr 1)"_s);
    oczekujWPliku({1, u" "_s}, "SP_10=35 SP_24=70");

    sesja().cnPlace.wykonaj("DROP TABLE NADGN200107");
    ASSERT_TRUE(l->Wypisz_daneP({1, u" "_s}));
    EXPECT_THROW(l->Przelicz2(), Blad);
    stale().AktRejNadg = false;
    l->Przelicz2();
}

/// A month of one employee with everything in it. Average for sick pay 2200 gross, 1788,38 net, 59,61 a day;
/// rate of a vacation day 6600 / 60 = 110; 33 sick days before, so the employer pays 2 of 5 and the insurer
/// 3; base salary for 12 of 22 days.
class CalyMiesiacTest : public MiesiacNieobecnosciTest {
protected:
    CalyMiesiacTest() {
        skladnik(20, "B U", true);
        skladnik(25, "B  ", true);
        Stale& s = stale();
        s.AktRejPrzepDni = s.BlokujUbruttow = true;
        s.L4Prd = {20, 0, 0, 0};
        s.L4ZUS = {25, 0, 0, 0};
        s.SklSrL4 = s.SkSumDoSrURL = {1};
        s.SposobStZasL4 = 2;
        s.SklUrl = 5;
        s.PremPr = 0;
        s.NrNGS = {30, 30};
        pracownik(1, "placa_zas=2200 wsk_fe=9,76 wsk_fr=6,5 wsk_fc=2,45 wsk_ubzdr=7,75 Kup=101,82 czy_kuz=T "
                     "czy_ulga=T");
        pracownik(2, "placa_zas=1000");
        for (const int m : {4, 5, 6})
            wczesniej({2001, m}, 1, "SP_1=2200 DN_RO=20 WSK_FEPRC=9,76 WSK_FRPRC=6,5 WSK_FCPRC=2,45");
        kalendarz(0, kLipiec);
        nadgodziny({{1, {60, 40}}});
        zwolnienie(1, {2001, 2, 1}, {2001, 3, 5});
        zwolnienie(1, {2001, 7, 2}, {2001, 7, 6});
        urlop(1, {2001, 7, 9}, {2001, 7, 13});
    }

    static constexpr const char* kWynik =
        "DN_RO=12 DN_URL=5 DN_ZAS=5 DN_INN=9 DNI_UWYP=5 SP_1=1200 SP_20=95,376 SP_25=143,064 SP_5=550 "
        "SP_30=100 "
        "DNI_L4_PR=2 DNI_L4_ZUS=3 SR_BR_ZUS=1788,38 SR_BR_URL=110 BRUTTO=2088,44 FEPRC=180,56 FRPRC=120,25 "
        "FCPRC=45,32 NETTO=1640,49 UBZDR_NAL=123,94 POD_DOCH=311,6 PPD=36,35 PODATEK=151,3 DO_WYPLATY=1324";
};

TEST_F(CalyMiesiacTest, InABatch) {
    const QString pytaniaSerii[] = {pytania::dniSerii, pytania::nadgodzinySerii, pytania::l4Serii,
                                    pytania::placaPoL4Serii, pytania::urlopSerii};
    for (const QString& pytanie : pytaniaSerii) rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::poUrlopieSerii, Odpowiedz::Nie);
    rozmowa_.spodziewaj(pytania::zasilekSerii, Odpowiedz::Tak);
    EXPECT_EQ(lista()->DodajPracownikow({2, 1}).tekst(), QString());
    oczekujWPliku({1, u" "_s}, kWynik);
    oczekujWPliku({2, u" "_s}, "DN_RO=22 SP_1=1000 BRUTTO=1000 DNI_L4_PR=0");
}

TEST_F(CalyMiesiacTest, StepByStep) {
    const auto l = lista();
    rozmowa_.spodziewaj(pytania::dni, Odpowiedz::Nie);
    l->Nowy_prac(1);
    rozmowa_.spodziewaj(pytania::dni, Odpowiedz::Tak);
    l->Przelicz_Dni();
    for (const QString& pytanie : {pytania::nadgodziny, pytania::l4, pytania::placaPoL4, pytania::urlop})
        rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::poUrlopie, Odpowiedz::Nie);
    l->Przelicz2();
    rozmowa_.spodziewaj(pytania::zasilek, Odpowiedz::Tak);
    l->Przelicz1();
    oczekujWPliku({1, u" "_s}, kWynik);
}

} // namespace
