// What the declarations take from months and contracts, and what they refuse.
#include "tax/DeklaracjeRoczne.h"
#include "tax/Pit4.h"
#include "wsparcie/PlaceTestowe.h"
#include <gtest/gtest.h>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using namespace tax;
using schemat::PIT11;
using schemat::PIT4;
using schemat::PLACE;
using schemat::UZL;

const QDate kDzis(2002, 1, 15);
const OkresPodatkowy kRok{{2001, 1}, {2001, 12}};
constexpr RokMies kMaj{2001, 5};

class DeklaracjeTest : public PlaceTestowe {
protected:
    /// A row of the month with its partner, or without (`bezPLB`).
    void wiersz(RokMies m, qint64 prcId, const QString& lista, const std::string& pola, bool bezPLB = false) {
        const OtwartyMiesiac otwarty(sesja(), m);
        ASSERT_TRUE(otwarty.jest());
        for (const TabelaDef* tabela : schemat::TabeleMiesiaca)
            if (!bezPLB || tabela != &schemat::PLB) uchwyt(*tabela).AddNewZero(prcId, lista);
        ustawIZapisz(pola);
    }
    /// The components that are in use in the month, by its header.
    void aktywne(RokMies m, qint64 maska) {
        ASSERT_TRUE(sesja().ZnajdzMiesiac(m));
        sesja().rsPLACE.ustaw(PLACE("akt_sp"), maska);
        sesja().rsPLACE.ustaw(PLACE("br_sp"), qint64{7});
        sesja().rsPLACE.UpdateBatch(u"Dane testu");
    }
    void zlecenie(int id, qint64 prcId, QDate zaplacone) {
        Recordset rs(UZL);
        rs.Open(sesja().cnPlace);
        rs.AddNewZero();
        rs.ustaw(UZL("UZLID"), id);
        rs.ustaw(UZL("prc_id"), prcId);
        rs.ustaw(UZL("data_wyp"), zaplacone);
        rs.ustaw(UZL("Brutto"), zl(1000));
        rs.ustaw(UZL("koszt_uz"), zl(200));
        rs.ustaw(UZL("Podatek"), zl(90.5));
        rs.ustaw(UZL("Ubzdr"), zl(60));
        rs.UpdateBatch(u"Dane testu");
    }
    std::optional<KluczPit4> pusta(Pit4& pit4, const KluczPit4& klucz) {
        rozmowa_.spodziewaj(u"Brak miesiąca na Liście Płac. Czy utworzyć pustą deklarację ?"_s,
                            Odpowiedz::Tak);
        return pit4.Nowy(klucz, {}, kDzis);
    }
    void oczekujZajetej(Pit4& pit4, const KluczPit4& klucz) {
        rozmowa_.spodziewaj(u"Podana pozycja jest już na liście !"_s, Styl::Wykrzyknik);
        EXPECT_FALSE(pit4.Nowy(klucz, {}, kDzis)) << klucz.napis().toStdString();
    }
};

TEST_F(DeklaracjeTest, PIT4LiczyOsobeRazIPomijaWierszBezSkladek) {
    miesiac(kMaj);
    wiersz(kMaj, 1, u" "_s, "BRUTTO=1000 POD_DOCH=120,5 FEPRC=97,6 FRPRC=65 FCPRC=24,5 UBZDR=60");
    wiersz(kMaj, 1, u"B"_s, "BRUTTO=500 POD_DOCH=50 UBZDR=30");
    wiersz(kMaj, 2, u" "_s, "BRUTTO=9000 POD_DOCH=900", true);
    wiersz(kMaj, 3, u" "_s, "BRUTTO=0,01");
    Pit4 pit4(otoczenie());
    ASSERT_TRUE(pit4.Nowy({kMaj, 0}, u"AB"_s, kDzis));
    EXPECT_EQ(pit4.zapisane(), (Wiersz1Pit4{2, zl(1312.91), zl(170.5), zl(90)}));
    EXPECT_EQ(pit4.dzisiejsze(), pit4.zapisane());

    // The declaration keeps what it was made with, and can tell that the month went on.
    wiersz(kMaj, 4, u" "_s, "BRUTTO=100 POD_DOCH=10");
    EXPECT_EQ(pit4.zapisane().zaliczka, zl(170.5));
    EXPECT_EQ(pit4.dzisiejsze(), (Wiersz1Pit4{3, zl(1412.91), zl(180.5), zl(90)}));
}

TEST_F(DeklaracjeTest, TrzySzukaniaOdmawiajaTakzeNumeruPozniejszegoMiesiaca) {
    Pit4 pit4(otoczenie());
    ASSERT_TRUE(pusta(pit4, {{2001, 4}, 2}));
    ASSERT_TRUE(pusta(pit4, {{2001, 5}, 1}));
    ASSERT_TRUE(pusta(pit4, {{2002, 2}, 3}));
    oczekujZajetej(pit4, {{2001, 5}, 1});
    oczekujZajetej(pit4, {{2001, 4}, 1}); // of May
    oczekujZajetej(pit4, {{2001, 2}, 3}); // February and the number of another year
    EXPECT_EQ(pit4.lista().size(), 3);
    ASSERT_TRUE(pusta(pit4, {{2002, 2}, 1})); // nothing later has it
    EXPECT_EQ(pit4.lista().first().napis(), u"20010402"_s);
}

TEST_F(DeklaracjeTest, SumyWydrukuIPorzadekKolumn) {
    Pit4 pit4(otoczenie());
    ASSERT_TRUE(pusta(pit4, {kMaj, 0}));
    Recordset& rs = sesja().rsPIT4;
    for (int n = 1; n <= 8; ++n) {
        EXPECT_EQ(rs.liczba(wierszPit4::zrodlo(n, wierszPit4::nr_p)), n);
        rs.ustaw(wierszPit4::zrodlo(n, wierszPit4::pob_zal), zl(n * 100));
    }
    for (int n = 10; n <= 17; ++n) {
        EXPECT_EQ(rs.liczba(wierszPit4::numerPozycji(n)), n);
        rs.ustaw(wierszPit4::kwotaPozycji(n), zl(1 << (n - 10)));
    }
    EXPECT_EQ(rs.kwota(PIT4("pob_zal_8")), zl(800));
    EXPECT_EQ(rs.kwota(PIT4("pob_zal_17")), zl(128));
    const SumyPit4 s = SumyDeklaracji(rs.biezacyWiersz());
    EXPECT_EQ(s.SUMA1, zl(3600));
    EXPECT_EQ(s.SUMA2, zl(3600 + 2 + 4 + 64 - 1 - 8 - 16 - 32));
    EXPECT_EQ(s.SUMA3, s.SUMA2 - zl(128));
}

TEST_F(DeklaracjeTest, KontrolaRokuZnaczyTylkoNiewyjasnione) {
    stale().ZaokZal = 1;
    miesiac(kMaj);
    wiersz(kMaj, 1, u" "_s, "POD_DOCH=200,17 PPD=41,12 UBZDR=100 PODATEK=59,1");
    wiersz(kMaj, 2, u" "_s, "POD_DOCH=30 PPD=41,12"); // the reduction takes all of it
    Pit4 pit4(otoczenie());
    ASSERT_TRUE(pit4.Nowy({kMaj, 0}, {}, kDzis));
    const auto maj = [&] { return KontrolaRoku(otoczenie(), 2001).at(4); };
    EXPECT_EQ(maj().place.ulga, zl(71.12));
    EXPECT_EQ(maj().place.ubzdr, zl(100));
    EXPECT_EQ(maj().place.zaokraglenie, zl(-0.05));
    EXPECT_EQ(maj().niewyjasnione(), Waluta{});

    // A row that does not add up, which the declaration does not know either.
    wiersz(kMaj, 3, u" "_s, "POD_DOCH=50 PODATEK=49,9");
    EXPECT_EQ(maj().place.niewyjasnione, zl(0.1));
    EXPECT_EQ(maj().niewyjasnione(), zl(0.1 - 50));
    EXPECT_FALSE(KontrolaRoku(otoczenie(), 2001).at(5).pit4);
}

TEST_F(DeklaracjeTest, PIT11IdzieMaskamiMiesiecyPrzezPrzerwe) {
    pracownik(1, "");
    pracownik(2, "Zwoln=T");
    for (const RokMies m : {RokMies{2001, 1}, RokMies{2001, 3}}) {
        miesiac(m);
        wiersz(m, 1, u" "_s,
               "SP_1=1000 SP_2=500 SP_4=77 KUP=102,25 PODATEK=120,3 FEPRC=97,6 UBZDR=50 "
               "UBZDR_NAL=60");
        wiersz(m, 1, u"B"_s, "SP_1=10 SP_2=5 KUP=1 PODATEK=2");
    }
    aktywne({2001, 1}, 3); // SP_1 and SP_2
    aktywne({2001, 3}, 1); // SP_2 was switched off
    zlecenie(1, 2, {2001, 12, 31});
    zlecenie(2, 2, {2002, 1, 1});
    zlecenie(3, 2, {});

    WypelnijDeklaracje(otoczenie(), Deklaracja::Pit11, 1, kRok, kDzis);
    const Recordset& rs = sesja().rsPIT11;
    EXPECT_EQ(rs.kwota(PIT11("przy_1")), zl(1515 + 1010));
    EXPECT_EQ(rs.kwota(PIT11("kup_1")), zl(206.5));
    EXPECT_EQ(rs.kwota(PIT11("pob_zal_1")), zl(244.6));
    EXPECT_EQ(rs.kwota(PIT11("Skladki")), zl(195.2));
    EXPECT_EQ(rs.kwota(PIT11("skl_pob")), zl(100));
    EXPECT_EQ(rs.kwota(PIT11("skl_odl")), zl(120));
    const auto wszyscy = SumyWszystkich(sesja(), kRok);
    EXPECT_EQ(wszyscy.size(), 1);
    EXPECT_EQ(wszyscy.value(1).przychod, zl(2525));
    EXPECT_EQ(wszyscy.value(1).zaliczka, zl(244.6));

    // Somebody without a payroll row, dismissed, with a contract: the same working row, filled anew.
    WypelnijDeklaracje(otoczenie(), Deklaracja::Pit11, 2, kRok, kDzis);
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(rs.kwota(PIT11("przy_1")), Waluta{});
    EXPECT_EQ(rs.kwota(PIT11("dochod_8")), zl(800));
    EXPECT_EQ(rs.kwota(PIT11("pob_zal_8")), zl(90.5));
    EXPECT_EQ(rs.kwota(PIT11("skl_odl")), zl(60));
    EXPECT_EQ(SumujZrodla(WierszDeklaracji(Deklaracja::Pit11, rs)).SPRZY, zl(1000));

    EXPECT_THROW(WypelnijDeklaracje(otoczenie(), Deklaracja::Pit11, 99, kRok, kDzis), Blad);
    EXPECT_FALSE(rs.zmieniony());
}

TEST_F(DeklaracjeTest, PodatekRokuWedlugSkali) {
    stale().GranicaG12 = zl(29624);
    stale().GranicaG23 = zl(59248);
    const std::pair<double, double> skala[] = {{0, 0},           {1000, 0},        {10000, 1505.2},
                                               {29624, 5233.76}, {40000, 8346.56}, {59248, 14120.96},
                                               {70000, 20821.76}};
    for (const auto& [podstawa, podatek] : skala)
        EXPECT_EQ(PodatekWedlugSkali(SkalaPodatku(stale()), zl(podstawa), rozmowa_), zl(podatek)) << podstawa;

    // 12 345,67 less 2 345,17: the base is whole złoty, the tax tens of grosze.
    const RozliczenieRoku doplata =
        Rozlicz(SkalaPodatku(stale()), zl(12345.67), zl(2345.17), zl(700.13), zl(800), rozmowa_);
    EXPECT_EQ(doplata.podst, zl(10000));
    EXPECT_EQ(doplata.pod_obl, zl(1505.2));
    EXPECT_EQ(doplata.podatek, zl(805.1));
    EXPECT_EQ(doplata.doplata, zl(5.1));
    const RozliczenieRoku nadplata =
        Rozlicz(SkalaPodatku(stale()), zl(500), zl(900), zl(0), zl(12.3), rozmowa_);
    EXPECT_EQ(nadplata.podst, Waluta{});
    EXPECT_EQ(nadplata.nadplata, zl(12.3));

    stale().WzorPIT40G1 = u"DOCH*"_s;
    EXPECT_THROW((void)PodatekWedlugSkali(SkalaPodatku(stale()), zl(100), rozmowa_), Blad);
    stale().WzorPIT40G1 = u"DOHC*0,19"_s;
    EXPECT_THROW((void)PodatekWedlugSkali(SkalaPodatku(stale()), zl(100), rozmowa_), Blad);
}

} // namespace

} // namespace tornel::testy
