#include "payroll/lista/Naliczanie.h"
#include "payroll/lista/KolumnyWiersza.h"
#include "payroll/lista/ZrodlaPlac.h"
#include "wsparcie/PlaceTestowe.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

using schemat::PLA;
using namespace Qt::StringLiterals;

namespace {

const QString kPytaniePPE =
    u"Kwota odpisu w ramach PPE jest większa od średniej. Czy zwiększyć podstawę do ZUS "
    "o różnicę między kwotą odpisu a średnią ?"_s;
const QString kZasilek = u"Czy pomniejszyć kwotę do wypłaty pracownika o zasiłek chorobowy ?"_s;

QString grupa(int nr) {
    return u"Uwaga! Przekroczona grupa podatkowa. Wyliczenie nastąpi w grupie %1."_s.arg(nr);
}
QString umowy(int nr) {
    return u"Uwaga! Po zsumowaniu kwot z umów zleceń, umów o dzieło i honorariów następuje przekroczenie "
           "grupy podatkowej do %1."_s.arg(nr);
}

/// Employee 1 on the list " " of July 2001, his row empty but for its rates, and the arithmetic over it.
class NaliczanieTest : public PlaceTestowe {
protected:
    NaliczanieTest() {
        pracownik(1, {});
        miesiac();
        int wynik = 1;
        Sesja& s = sesja();
        s.OtworzMiesiac(kLipiec.rok, kLipiec.mies, wynik);
        for (Recordset* rs : {&s.rsPLA, &s.rsPLB, &s.rsPLS, &s.rsPLD}) rs->AddNewZero(1, u" "_s);
        ustaw("WSK_FEPRC=9,76 WSK_FRPRC=6,5 WSK_FCPRC=2,45 WSK_UBZDR=7,5 WSK_UBR=100 ST_SKL_FP=2,45 "
              "ST_SKLFGSP=0,08");
        (void)s.UstawPracownika(1);
        for (int i = 1; i <= kDodatnich; ++i)
            pozycje_.dodatnie[static_cast<std::size_t>(i - 1)] = pozycja(otoczenie().skladniki.dodatni(i));
        for (int i = 1; i <= kUjemnych; ++i)
            pozycje_.ujemne[static_cast<std::size_t>(i - 1)] = pozycja(otoczenie().skladniki.ujemny(i));
    }
    static PozycjaSkladnika pozycja(const Skladnik& s) { return {s.akt, s.akt, s.brutto, s.zus, s.ubzdr}; }
    MiesiacPlac m() { return {kLipiec, stale(), pozycje_}; }
    BruttoRoku bruttoRoku(Zakres zakres) {
        return ZrodlaPlac(otoczenie(), nullptr).OdczytajStareBrutto(WczytajPracownika(sesja()), zakres);
    }
    void przepisz() {
        policz([this](RachunekWiersza& r) {
            ZrodlaPlac zrodla(otoczenie(), nullptr);
            LiczSkladniki({m(), zrodla, {}, Zakres::Wiersz}, WczytajPracownika(sesja()), r);
        });
    }
    /// The row on which the handles stand through the steps of the chain, with its questions and warnings.
    SumyWiersza przelicz(Zakres zakres, Kroki kroki = kPrzelicz1) {
        return policz([&](RachunekWiersza& r) {
            ZrodlaPlac zrodla(otoczenie(), nullptr);
            const ZbiorPytan moga = PytaniaPlacy(r.wiersz, ZasilekChorobowy(m(), r.wiersz, {}));
            const auto odpowiedzi = Zapytaj(rozmowa_, u"Płaca"_s, moga, zakres);
            LiczPlace({m(), zrodla, odpowiedzi.value(), zakres}, WczytajPracownika(sesja()), kroki, r);
            for (const Uwaga& uwaga : r.uwagi)
                if (uwaga.dotyczy(zakres)) rozmowa_.komunikat(uwaga.tekst, Styl::Wykrzyknik);
        });
    }

    /// Bases, tax and pay over the contributions, the income and the credit that stand on the row.
    static constexpr Kroki kOdPodatku{};
    Pozycje pozycje_;

private:
    SumyWiersza policz(const std::function<void(RachunekWiersza&)>& obliczenie) {
        const WierszPlac przedtem = WczytajWiersz(sesja());
        RachunekWiersza r{przedtem};
        obliczenie(r);
        ZapiszZmiany(sesja(), przedtem, r.wiersz);
        return r.sumy;
    }
};

TEST_F(NaliczanieTest, ComponentsComeFromThePersonnelFile) {
    zmienPracownika(1, "placa_zas=1001,05 Premia_pr=7,25 DOD_1=5 DOD_3=70 DOD_5=null DOD_30=-30,5 POT_1=11 "
                       "POT_2=22 POT_15=0,0001");
    ustaw("SP_3=333 SP_5=555 SOD_5=2001-07-02 SP_24=24 SM_2=222");
    pozycje_.dodatnie[23].aktKatalogu = false; // component 24 has only one of the two marks
    przepisz();
    // 1001,05 * 7,25% = 72,576125: a percentage bonus keeps four places.
    oczekuj(
        "SP_1=1001,05 SP_2=72,5761 SP_3=333 SP_5=0 SOD_5=null SDO_5=null SP_24=24 SP_30=-30,5 SOD_30=null "
        "SDO_1=2001-07-31 SOD_3=null SM_1=11 SM_2=222 SM_15=0,0001");
    stale().PlZas = 0;
    stale().PremPr = 30;
    przepisz();
    oczekuj("SP_1=5 SP_2=0 SP_30=72,5761");
}

TEST_F(NaliczanieTest, PeriodsBeginWithTheMonthOrTheContract) {
    const std::pair<std::string, std::string> przypadki[] = {
        {"null", "2001-07-01"},       {"2001-06-30", "2001-07-01"}, {"2001-07-01", "2001-07-01"},
        {"2001-07-16", "2001-07-16"}, {"2001-08-05", "2001-08-05"},
    };
    for (const auto& [umowaOd, poczatek] : przypadki) {
        SCOPED_TRACE(umowaOd);
        zmienPracownika(1, "placa_zas=100 umowa_od=" + umowaOd);
        przepisz();
        oczekuj("SDO_1=2001-07-31 SOD_1=" + poczatek);
    }
}

TEST_F(NaliczanieTest, FlagsDecideWhichBasesAComponentEnters) {
    // 33,35 at the index 150% is 50,025, a tie that goes down to 50,02.
    const Waluta v = zl(33.35), u = zl(50.02), r = zl(16.67), zero;
    const struct {
        const char* flagi;
        Waluta brutto, inne, bruttoUbr, zus, zusUbr, ubzdr, roznica;
    } przypadki[] = {
        {"   ", zero, v, zero, zero, zero, zero, zero},
        {"B  ", v, zero, v, zero, zero, zero, zero},
        {" Z ", zero, v, zero, v, u, zero, r},
        {"  U", zero, v, zero, zero, zero, u, zero}, // multiplied, for it lies outside ZUS
        {"BZ ", v, zero, u, v, u, zero, r},
        {"B U", v, zero, v, zero, zero, u, zero},
        {" ZU", zero, v, zero, v, u, v, r}, // not multiplied
        {"BZU", v, zero, u, v, u, v, r},
    };
    for (const auto& p : przypadki) {
        for (const bool dodatni : {true, false}) {
            SCOPED_TRACE(std::string(p.flagi) + (dodatni ? " additive" : " deductive"));
            pozycje_ = {};
            (dodatni ? pozycje_.dodatnie[29] : pozycje_.ujemne[14]) = {true, true, p.flagi[0] == 'B',
                                                                       p.flagi[1] == 'Z', p.flagi[2] == 'U'};
            ustaw(dodatni ? "WSK_UBR=150 SP_30=33,35 SM_15=7" : "WSK_UBR=150 SP_30=7 SM_15=33,35");
            const Podstawy wynik = WyliczPodstawy(m(), WczytajWiersz(sesja()), {});
            const auto znak = [&](Waluta w) { return dodatni ? w : -w; };
            EXPECT_EQ(wynik.sumy.SumaBrutto, znak(p.brutto));
            EXPECT_EQ(wynik.sumy.SumaInne, znak(p.inne));
            EXPECT_EQ(wynik.sumy.SumaBruttoUbr, znak(p.bruttoUbr));
            EXPECT_EQ(wynik.sumy.PodstawaZUS, znak(p.zus));
            EXPECT_EQ(wynik.sumy.PodstawaZUSUbr, znak(p.zusUbr));
            EXPECT_EQ(wynik.sumy.PodstawaUbzdr, znak(p.ubzdr));
            EXPECT_EQ(wynik.sumy.RoznicaUbr, znak(p.roznica));
            EXPECT_EQ(wynik.Brutto, znak(p.brutto));
            EXPECT_EQ(wynik.Dodatki, dodatni ? p.inne : zero);
            EXPECT_EQ(wynik.Potracenia, dodatni ? zero : p.inne);
        }
    }
    pozycje_.dodatnie[29] = {.aktKatalogu = true};
    pozycje_.ujemne[14] = {.aktMiesiaca = true};
    EXPECT_EQ(WyliczPodstawy(m(), WczytajWiersz(sesja()), {}).sumy.SumaInne, zero)
        << "a position counts only with both marks";
}

TEST_F(NaliczanieTest, GrossIsRoundedToGroszeAndTheBasesAreNot) {
    ustaw("SP_1=1000 SP_2=72,5650");
    EXPECT_EQ(przelicz(Zakres::Seria).PodstawaZUS, zl(1072.565));
    oczekuj("BRUTTO=1072,56");
}

TEST_F(NaliczanieTest, ThePensionPlanMovesTheBases) {
    using enum Odpowiedz;
    const struct {
        Zakres zakres;
        std::optional<Odpowiedz> odpowiedz;
        std::string przed, po;
        double podstawa;
    } przypadki[] = {
        {Zakres::Wiersz, Tak, "PPE=50 ZUS_PPE=20", "PPE=50 ZUS_PPE=50", 1000},
        {Zakres::Wiersz, Nie, "PPE=50 ZUS_PPE=20", "PPE=50 ZUS_PPE=20", 970},
        {Zakres::Seria, {}, "PPE=50 ZUS_PPE=20", "PPE=50 ZUS_PPE=50", 1000}, // without a word
        {Zakres::Wiersz, {}, "PPE=20 ZUS_PPE=20", "PPE=20 ZUS_PPE=20", 1000},
        {Zakres::Wiersz, {}, "PPE=10 ZUS_PPE=25", "PPE=10 ZUS_PPE=25", 1015},
    };
    for (const auto& p : przypadki) {
        SCOPED_TRACE(p.przed);
        ustaw("SP_1=1000 " + p.przed);
        if (p.odpowiedz) rozmowa_.spodziewaj(kPytaniePPE, *p.odpowiedz);
        const SumyWiersza sumy = przelicz(p.zakres);
        EXPECT_TRUE(rozmowa_.gotowa());
        oczekuj("BRUTTO=1000 " + p.po);
        EXPECT_EQ(sumy.PodstawaZUS, zl(p.podstawa));
        EXPECT_EQ(sumy.PodstawaUbzdr, zl(p.podstawa));
    }
}

TEST_F(NaliczanieTest, WholeRowsFromGrossToPay) {
    const struct {
        std::string kadry, wiersz, wynik;
    } przypadki[] = {
        // 1650,00 at 2,45% is 40,425: to the even 40,42. 1341,29 at 7,5% is 100,59675; 1239 at 19% is 235,41.
        {"czy_kuz=T Kup=101,82 czy_ulga=T gr_pod=0", "SP_1=1650",
         "BRUTTO=1650 FEPRC=161,04 FRPRC=107,25 FCPRC=40,42 SKL_FP=40,42 SKL_FGSP=1,32 FEPRD=3,3 FRPRD=19,8 "
         "FWPRD=36,3 KUP=101,82 NETTO=1239,47 UBZDR_NAL=100,6 PPD=36,35 POD_DOCH=235,41 ST_PD=19 UBZDR=100,6 "
         "PODATEK=98,5 DODATKI=0 POTRACENIA=0 UBRUTTOW=0 DO_WYPLATY=1142,23"},
        // The advance 58,71 - 36,35 does not cover the health insurance, 308,90 at 7,5%.
        {"czy_kuz=N Kup=101,82 czy_ulga=t", "SP_1=380",
         "BRUTTO=380 FEPRC=37,09 FRPRC=24,7 FCPRC=9,31 SKL_FP=9,31 SKL_FGSP=0,3 FEPRD=0,76 FRPRD=4,56 "
         "FWPRD=8,36 KUP=0 NETTO=308,9 UBZDR_NAL=23,17 PPD=36,35 POD_DOCH=58,71 ST_PD=19 UBZDR=22,36 "
         "PODATEK=0 DODATKI=0 POTRACENIA=0 UBRUTTOW=0 DO_WYPLATY=286,54"},
        // Gross 5000 + 625 + 321,40 - 100,05, ZUS base 5524,95, fixed group 2; the benefit 321,40 is taken
        // off.
        {"czy_kuz=t Kup=108,39 czy_ulga=N gr_pod=2",
         "SP_1=5000 SP_2=625 SP_12=321,4 SP_24=150,5 SM_1=25 SM_9=100,05 DNI_L4_ZUS=5",
         "BRUTTO=5846,35 FEPRC=539,24 FRPRC=359,12 FCPRC=135,36 SKL_FP=135,36 SKL_FGSP=4,42 FEPRD=11,05 "
         "FRPRD=66,3 FWPRD=121,55 KUP=108,39 NETTO=4704,24 UBZDR_NAL=336,84 PPD=0 POD_DOCH=1411,2 ST_PD=30 "
         "UBZDR=336,84 PODATEK=1074,4 DODATKI=150,5 POTRACENIA=25 UBRUTTOW=0 DO_WYPLATY=3205,53"},
        // Index 123%: 230 more in the base, which no contribution uses; 10 enters the health base as 246,00.
        {"czy_kuz=N czy_ulga=T gr_pod=0", "SP_1=1000 SP_10=200 SP_16=42,5 WSK_UBR=123",
         "BRUTTO=1200 FEPRC=97,6 FRPRC=65 FCPRC=24,5 SKL_FP=24,5 SKL_FGSP=0,8 FEPRD=2 FRPRD=12 FWPRD=22 "
         "KUP=0 "
         "NETTO=1012,9 UBZDR_NAL=79,42 PPD=36,35 POD_DOCH=192,47 ST_PD=19 UBZDR=79,42 PODATEK=76,7 "
         "DODATKI=42,5 POTRACENIA=0 UBRUTTOW=230 DO_WYPLATY=899,28"},
        // A ZUS base outside gross: the income is floored at 0, the negative health insurance is kept.
        {"czy_ulga=N", "SP_29=1000",
         "BRUTTO=0 FEPRC=97,6 FRPRC=65 FCPRC=24,5 SKL_FP=24,5 SKL_FGSP=0,8 FEPRD=2 FRPRD=12 FWPRD=22 KUP=0 "
         "NETTO=0 UBZDR_NAL=-14,03 PPD=0 POD_DOCH=0 ST_PD=19 UBZDR=-14,03 PODATEK=14 DODATKI=1000 "
         "POTRACENIA=0 UBRUTTOW=0 DO_WYPLATY=812,9"},
    };
    stale().L4ZUS = {12, 0, 0, 0};
    pozycje_.dodatnie[28] = {.aktMiesiaca = true, .aktKatalogu = true, .zus = true};
    for (const auto& p : przypadki) {
        SCOPED_TRACE(p.wiersz);
        zmienPracownika(1, p.kadry);
        ustaw("SP_1=0 SP_2=0 SP_10=0 SP_12=0 SP_16=0 SP_24=0 SM_1=0 SM_9=0 DNI_L4_ZUS=0 WSK_UBR=100 " +
              p.wiersz);
        if (p.kadry.ends_with("gr_pod=2")) rozmowa_.spodziewaj(kZasilek, Odpowiedz::Tak);
        przelicz(Zakres::Wiersz);
        oczekuj(p.wynik);
    }
}

TEST_F(NaliczanieTest, EmployersRatesComeFromTheConstantsAndTheOthersFromTheRow) {
    stale().FEprd = zl(9.76);
    stale().FRprd = zl(6.5);
    stale().FWprd = zl(1.62);
    stale().KwotaFEFR = zl(500); // no limit of the base is applied, deliberately
    stale().RKwPZ = zl(100);
    zmienPracownika(1, "wsk_fe=1 Fp=1 czy_ulga=T czy_2progi=T");
    ustaw("SP_1=1000 WSK_FEPRD=1 WSK_FEPRC=4 WSK_FRPRC=3 WSK_FCPRC=0 ST_SKL_FP=2,5 ST_SKLFGSP=0,15");
    przelicz(Zakres::Seria);
    oczekuj("WSK_FEPRD=9,76 WSK_FRPRD=6,5 WSK_FWPRD=1,62 FEPRD=97,6 FRPRD=65 FWPRD=16,2 FEPRC=40 FRPRC=30 "
            "FCPRC=0 SKL_FP=25 SKL_FGSP=1,5");
    oczekuj("PPD=8,3333"); // a twelfth of 100 at four places, not doubled
}

TEST_F(NaliczanieTest, TheYearsGrossDecidesTheTaxGroup) {
    const struct {
        std::string kadry; // the row's gross is 1000
        int stawka;
        int ostrzezenie; // the group that both warnings name, 0 for none
    } przypadki[] = {
        {"gr_pod=1 czy_2progi=N doch_start=900000", 19, 0},
        {"gr_pod=2 czy_2progi=N doch_start=0", 30, 0},
        {"gr_pod=3 czy_2progi=T doch_start=0", 40, 0},
        {"gr_pod=0 czy_2progi=N doch_start=28624", 19, 0},
        {"gr_pod=0 czy_2progi=N doch_start=28624,01", 30, 2},
        {"gr_pod=0 czy_2progi=N doch_start=58248", 30, 2},
        {"gr_pod=0 czy_2progi=N doch_start=58248,01", 40, 3},
        {"gr_pod=0 czy_2progi=T doch_start=39000", 19, 0},
        {"gr_pod=0 czy_2progi=t doch_start=58248", 19, 0},
        {"gr_pod=0 czy_2progi=T doch_start=58248,01", 30, 2},
        {"gr_pod=0 czy_2progi=T doch_start=117496", 30, 2},
        {"gr_pod=0 czy_2progi=T doch_start=117496,01", 40, 3},
    };
    for (const auto& p : przypadki) {
        SCOPED_TRACE(p.kadry);
        zmienPracownika(1, p.kadry);
        for (const Zakres zakres : {Zakres::Wiersz, Zakres::Seria}) {
            // Gross is compared with the limits; the income that is taxed lies far below them.
            ustaw("SP_12=1000 NETTO=100");
            if (p.ostrzezenie && zakres == Zakres::Wiersz) {
                rozmowa_.spodziewaj(grupa(p.ostrzezenie), Styl::Wykrzyknik);
                rozmowa_.spodziewaj(umowy(p.ostrzezenie), Styl::Wykrzyknik);
            }
            przelicz(zakres, kOdPodatku);
            EXPECT_TRUE(rozmowa_.gotowa());
            const std::string stawka = std::to_string(p.stawka);
            oczekuj("ST_PD=" + stawka + " POD_DOCH=" + stawka);
        }
    }
}

TEST_F(NaliczanieTest, EarlierMonthsCountWithAllTheirLists) {
    const struct {
        RokMies rm;
        qint64 prcId;
        QString lista;
        double brutto;
    } wiersze[] = {
        {{2001, 1}, 1, u" "_s, 1000},  {{2001, 1}, 1, u"A"_s, 200},   {{2001, 1}, 2, u" "_s, 70000},
        {{2001, 4}, 1, u"B"_s, 3000},  {{2001, 6}, 1, u"a"_s, 0.01},  {{2001, 7}, 1, u"A"_s, 777},
        {{2001, 8}, 1, u" "_s, 60000}, {{2000, 6}, 1, u" "_s, 50000},
    };
    // 3 and 5 are missing.
    for (const RokMies rm : {RokMies{2001, 1}, {2001, 2}, {2001, 4}, {2001, 6}, {2001, 8}, {2000, 6}})
        miesiac(rm);
    for (const auto& w : wiersze) {
        Recordset rs = zPliku(PLA, w.rm);
        rs.AddNewZero(w.prcId, w.lista);
        rs.ustaw(PLA("BRUTTO"), zl(w.brutto));
        rs.UpdateBatch(u"Dane testu");
    }
    zmienPracownika(1, "doch_start=25000");
    ASSERT_TRUE(sesja().ZnajdzMiesiac(2001, 8));
    EXPECT_EQ(bruttoRoku(Zakres::Seria).stare, zl(29200.01));
    EXPECT_EQ(sesja().rsPLACE.tekst(schemat::PLACE("Mies")), u"08"_s) << "the position is kept";
    for (const auto& [brutto, stawka] : {std::pair("SP_12=423,99", "ST_PD=19"), {"SP_12=424", "ST_PD=30"}}) {
        ustaw(brutto);
        przelicz(Zakres::Seria, kOdPodatku);
        oczekuj(stawka);
    }
    // The month's own header decides; that of the names may be damaged.
    ASSERT_TRUE(sesja().rsPLACEN.Znajdz(u"2001"_s, u"04"_s));
    sesja().rsPLACEN.Delete();
    EXPECT_EQ(bruttoRoku(Zakres::Seria).stare, zl(29200.01));
}

TEST_F(NaliczanieTest, ContractsWarnAndNeverRaiseTheRate) {
    const struct {
        const TabelaDef& tabela;
        int nr;
        qint64 prcId;
        QDate wyplata;
        double brutto;
    } przypadkiUmow[] = {
        {schemat::UZL, 1, 1, {2001, 1, 1}, 100},   {schemat::UOD, 1, 1, {2001, 7, 31}, 20},
        {schemat::HON, 1, 1, {2001, 5, 5}, 3},     {schemat::HON, 2, 1, {2001, 5, 6}, 0.5},
        {schemat::UZL, 2, 1, {2000, 12, 31}, 9e4}, {schemat::UOD, 2, 1, {2001, 8, 1}, 9e4},
        {schemat::UZL, 3, 2, {2001, 3, 3}, 9e4},   {schemat::HON, 3, 1, {}, 9e4},
    };
    for (const auto& u : przypadkiUmow) {
        Recordset rs(u.tabela);
        rs.Open(sesja().cnPlace);
        rs.AddNewZero(u.nr);
        rs.ustaw(u.tabela.nr(u.tabela.numer("prc_id")), u.prcId);
        rs.ustaw(u.tabela.nr(u.tabela.numer("data_wyp")), u.wyplata);
        rs.ustaw(u.tabela.nr(u.tabela.numer("Brutto")), zl(u.brutto));
        rs.UpdateBatch(u"Dane testu");
    }
    EXPECT_EQ(bruttoRoku(Zakres::Wiersz).kwotaUmow, zl(123.5));

    const struct {
        std::string brutto, stawka;
        QStringList ostrzezenia;
    } przypadki[] = {
        {"SP_12=29500,50", "ST_PD=19", {}}, // 29624,00 with the contracts
        {"SP_12=29500,51", "ST_PD=19", {umowy(2)}},
        {"SP_12=59124,50", "ST_PD=30", {grupa(2), umowy(2)}}, // 59248,00
        {"SP_12=59124,51", "ST_PD=30", {grupa(2), umowy(3)}},
    };
    for (const auto& p : przypadki) {
        SCOPED_TRACE(p.brutto);
        ustaw(p.brutto);
        for (const QString& tekst : p.ostrzezenia) rozmowa_.spodziewaj(tekst, Styl::Wykrzyknik);
        for (const Zakres zakres : {Zakres::Wiersz, Zakres::Seria}) {
            przelicz(zakres, kOdPodatku);
            EXPECT_TRUE(rozmowa_.gotowa());
            oczekuj(p.stawka);
        }
    }
}

TEST_F(NaliczanieTest, HealthInsuranceIsDeductedOnlyUpToTheTax) {
    const std::pair<std::string, std::string> przypadki[] = {
        {"PPD=0 UBZDR=150", "PODATEK=0 UBZDR=100 DO_WYPLATY=400"},
        {"PPD=30 UBZDR=70", "PODATEK=0 UBZDR=70 DO_WYPLATY=430"},
        {"PPD=30 UBZDR=70,01", "PODATEK=0 UBZDR=70 DO_WYPLATY=430"},
        {"PPD=0 UBZDR=40", "PODATEK=60 UBZDR=40 DO_WYPLATY=400"},
        // A negative advance takes nothing off the amount to pay and adds nothing to it.
        {"PPD=130 UBZDR=20", "PODATEK=0 UBZDR=0 DO_WYPLATY=500"},
        {"PPD=100,01 UBZDR=0", "PODATEK=0 UBZDR=0 DO_WYPLATY=500"},
    };
    stale().PodatekG1 = zl(100); // the tax is the income
    for (const auto& [wiersz, wynik] : przypadki) {
        SCOPED_TRACE(wiersz);
        ustaw("SP_12=500 NETTO=100 UBZDR_NAL=150 " + wiersz);
        przelicz(Zakres::Seria, kOdPodatku);
        oczekuj("UBZDR_NAL=150 " + wynik);
    }
}

TEST_F(NaliczanieTest, ConstantsSetTheRoundingOfBaseTaxAndPay) {
    const struct {
        int podstawa, zaliczka, wyplata; // constants 61, 60, 62
        std::string wiersz, wynik;
    } przypadki[] = {
        {0, 2, 2, "NETTO=1002,55 PPD=0", "POD_DOCH=190,57 PODATEK=190,57"},
        {1, 2, 2, "NETTO=1002,55 PPD=0", "POD_DOCH=190,49 PODATEK=190,49"},
        {2, 2, 2, "NETTO=1002,55 PPD=0", "POD_DOCH=190,48 PODATEK=190,48"},
        {0, 2, 2, "NETTO=1002,50 PPD=0", "POD_DOCH=190,38 PODATEK=190,38"},
        {0, 2, 2, "NETTO=1003,50 PPD=0", "POD_DOCH=190,76 PODATEK=190,76"},
        {0, 1, 2, "NETTO=1003 PPD=0", "PODATEK=190,6"},
        {0, 1, 2, "NETTO=1003 PPD=0,12", "PODATEK=190,4"},
        {0, 0, 2, "NETTO=1003 PPD=0", "PODATEK=191"},
        {0, 0, 2, "NETTO=1003 PPD=0,07", "PODATEK=190"},
        {0, 0, 2, "NETTO=0 SP_24=1234,565", "DO_WYPLATY=1234,56"},
        {0, 0, 1, "NETTO=0 SP_24=1234,565", "DO_WYPLATY=1234,6"},
        {0, 0, 0, "NETTO=0 SP_24=1234,565", "DO_WYPLATY=1235"},
        {0, 0, 0, "NETTO=0 SP_24=1234,5", "DO_WYPLATY=1234"},
        {0, 0, 2, "NETTO=0 SP_24=-0,125", "DO_WYPLATY=-0,12"},
    };
    for (const auto& p : przypadki) {
        SCOPED_TRACE(p.wiersz);
        stale().ZaokPod = p.podstawa;
        stale().ZaokZal = p.zaliczka;
        stale().ZaokWyp = p.wyplata;
        ustaw(p.wiersz);
        przelicz(Zakres::Seria, kOdPodatku);
        oczekuj(p.wynik);
    }
}

TEST_F(NaliczanieTest, ARateWithAFractionIsStoredRoundedAndUsedExactly) {
    ustaw("NETTO=1000");
    for (const auto& [stawka, wynik] :
         {std::pair(18.5, "ST_PD=18 POD_DOCH=185"), {19.5, "ST_PD=20 POD_DOCH=195"}}) {
        stale().PodatekG1 = zl(stawka);
        przelicz(Zakres::Seria, kOdPodatku);
        oczekuj(wynik);
    }
}

TEST_F(NaliczanieTest, SickBenefitLeavesTheAmountToPayWhenTheClerkWantsIt) {
    stale().L4ZUS = {12, 30, 0, 0};
    ustaw("SP_1=872,5 SP_12=100 SP_30=20,5 SP_10=7");
    przelicz(Zakres::Wiersz, kOdPodatku); // no day paid by the insurer: nothing is asked
    oczekuj("DO_WYPLATY=1000");
    ustaw("DNI_L4_ZUS=3");
    for (const auto& [odpowiedz, wynik] :
         {std::pair(Odpowiedz::Tak, "DO_WYPLATY=879,5"), {Odpowiedz::Nie, "DO_WYPLATY=1000"}}) {
        rozmowa_.spodziewaj(kZasilek, odpowiedz);
        przelicz(Zakres::Wiersz, kOdPodatku);
        oczekuj(wynik);
    }
    stale().L4ZUS = {12, 12, 0, 12};
    EXPECT_EQ(ZasilekChorobowy(m(), WczytajWiersz(sesja()), {}), zl(100))
        << "a component named twice is still one component";
    EXPECT_EQ(ZasilekChorobowy(m(), WczytajWiersz(sesja()), zl(5)), zl(5)) << "what was recorded stands";
    ustaw("SP_1=972,5 SP_12=0");
    przelicz(Zakres::Wiersz, kOdPodatku);
    oczekuj("DO_WYPLATY=1000");
}

TEST_F(NaliczanieTest, SumsPastTheRangeOfMoneyAreRefused) {
    for (const char* wiersz : {"SP_1=922337203685477,5807 SP_5=0,0001", "SP_5=0 WSK_UBR=100,01"}) {
        ustaw(wiersz);
        EXPECT_THROW(przelicz(Zakres::Seria), Przepelnienie) << wiersz;
    }
    // What lies inside is exact.
    ustaw("SP_1=900000000000000 WSK_UBR=100 WSK_FEPRC=20 WSK_FRPRC=0 WSK_FCPRC=0");
    przelicz(Zakres::Seria);
    oczekuj("NETTO=720000000000000 ST_PD=40");
}

} // namespace

} // namespace tornel::testy
