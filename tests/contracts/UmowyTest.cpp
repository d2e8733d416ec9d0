// Contracts and fees: the calculation from each field, keys, offices, and what is refused.
#include "contracts/Umowy.h"
#include "common/Blad.h"
#include "store/Sesja.h"
#include "wsparcie/BazaTestowa.h"
#include <gtest/gtest.h>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using schemat::PRACPR;
using schemat::US;
using schemat::UZL;

class UmowyTest : public BazaTestowa {
protected:
    UmowyTest() {
        Sesja& s = sesja();
        for (const qint64 nr : {1, 2}) dodajPracownika(nr, nr == 1 ? u"Nowak"_s : u"Kot"_s);
        EXPECT_TRUE(s.rsPRACPR.Znajdz(1));
        for (const auto flaga : {PRACPR("umowa_zlec"), PRACPR("umowa_o_dz"), PRACPR("honorarium")})
            s.rsPRACPR.ustaw(flaga, u"T"_s);
        const std::pair<Kolumna, double> wskazniki[] = {
            {PRACPR("k_uz_uzl"), 20},   {PRACPR("st_pod_uzl"), 20}, {PRACPR("k_uz_uod"), 50},
            {PRACPR("st_pod_uod"), 19}, {PRACPR("k_uz_hon"), 20},   {PRACPR("st_pod_hon"), 20},
            {PRACPR("wuzfeprd"), 9.76}, {PRACPR("wuzfeprc"), 9.76}, {PRACPR("wuzfrprd"), 6.5},
            {PRACPR("wuzfrprc"), 6.5},  {PRACPR("wuzfcprc"), 2.45}, {PRACPR("wuzfwprd"), 1.62},
            {PRACPR("wuzfp"), 2.45},    {PRACPR("wuzfgsp"), 0.08},  {PRACPR("wuzubzdr"), 7.75},
        };
        for (const auto& [kolumna, wartosc] : wskazniki) s.rsPRACPR.ustaw(kolumna, zl(wartosc));
        s.rsPRACPR.ustaw(PRACPR("us_id"), 3);
        s.rsPRACPR.UpdateBatch(u"Dane testu");
        Recordset us(US);
        us.Open(s.cnPlace);
        us.AddNewZero(3);
        us.ustaw(US("Nazwa"), u"Drugi Urząd Skarbowy w Radomiu"_s);
        us.UpdateBatch(u"Dane testu");
    }

    /// Leaves the fields of "Brutto=1000 wskpod=30" one after the other.
    void opusc(Umowy& umowy, const RodzajUmowy& rodzaj, const QString& pola) {
        for (const QString& p : pola.split(u' ', Qt::SkipEmptyParts)) {
            const PoleUmowy* pole = ZnajdzPoleUmowy(rodzaj, p.section(u'=', 0, 0));
            ASSERT_NE(pole, nullptr) << p.toStdString();
            (void)umowy.Opusc(*pole, p.section(u'=', 1));
        }
    }
    /// What the file holds of the contract, against "Netto=840 Podatek=160".
    void oczekuj(const RodzajUmowy& rodzaj, qint64 id, const QString& pola) {
        Recordset rs(*rodzaj.tabela);
        rs.Open(sesja().cnPlace);
        ASSERT_TRUE(rs.Znajdz(id));
        for (const QString& p : pola.split(u' ', Qt::SkipEmptyParts))
            EXPECT_EQ(rs.kwota(rodzaj.kolumna(p.section(u'=', 0, 0).toStdString())),
                      zl(p.section(u'=', 1).toDouble()))
                << p.toStdString();
    }
};

// Each case goes on from the one before it, as a clerk does on one contract.
TEST_F(UmowyTest, EachFieldStartsItsPartOfTheCalculation) {
    const struct {
        QString rodzaj, pola, oczekiwane;
    } przypadki[] = {
        {u"UZL"_s, u"Brutto=1000"_s,
         u"Feprc=97.6 Frprc=65 FcPrc=24.5 fwprd=16.2 Fp=24.5 Fgsp=0.8 Ubzdr=63 koszt_uz=162.58 Podatek=67.06 "
         u"Netto=682.84 przelewem=0"_s},
        {u"UZL"_s, u"przelewem=682,84"_s, u"przelewem=682.84"_s},
        {u"UZL"_s, u"przelewem=682,85"_s, u"przelewem=0 Netto=682.84"_s}, // above the net amount
        {u"UZL"_s, u"przelewem=10 Feprd=1 fwprd=2 Netto=500"_s,
         u"Feprd=1 fwprd=2 Netto=500 przelewem=10 Podatek=67.06"_s}, // they lead nowhere
        {u"UZL"_s, u"Podatek=0"_s, u"Podatek=0 Netto=749.9 przelewem=0 koszt_uz=162.58"_s},
        {u"UZL"_s, u"koszt_uz=0"_s, u"koszt_uz=0 Podatek=99.58 Feprd=1"_s},
        {u"UZL"_s, u"FcPrc=0"_s, u"FcPrc=0 Feprc=97.6 koszt_uz=167.48 Ubzdr=64.9"_s},
        {u"UZL"_s, u"wskpod=0"_s, u"Podatek=-64.9 Netto=837.4"_s}, // below zero, deliberately
        {u"UZL"_s, u"Brutto=1650"_s, u"FcPrc=40.42"_s},            // 40,425: half to even
        {u"UZL"_s, u"wskfcprc=2,4549"_s, u"wskfcprc=2.45"_s},      // two places, as the field shows
        {u"UZL"_s, u"Brutto=abc"_s, u"Brutto=0 Netto=0 Ubzdr=0"_s},
        {u"UOD"_s, u"Brutto=1000"_s, u"Feprc=97.6 koszt_uz=406.45 Ubzdr=63"_s},
        {u"HON"_s, u"Brutto=1000"_s, u"koszt_uz=200 Podatek=160 Netto=840"_s},
        {u"HON"_s, u"przelewem=840 wskpod=19"_s, u"koszt_uz=200 Podatek=152 Netto=848 przelewem=0"_s},
        {u"HON"_s, u"Podatek=100"_s, u"Netto=900 koszt_uz=200"_s},
    };
    for (const auto& p : przypadki) {
        SCOPED_TRACE((p.rodzaj + u' ' + p.pola).toStdString());
        const RodzajUmowy* rodzaj = ZnajdzRodzajUmowy(p.rodzaj);
        ASSERT_NE(rodzaj, nullptr);
        Umowy umowy(otoczenie(), *rodzaj);
        if (umowy.Wczytaj().isEmpty()) EXPECT_EQ(umowy.Nowy(1, {2001, 5, 7}), 1);
        ASSERT_TRUE(umowy.Wypisz(1));
        opusc(umowy, *rodzaj, p.pola);
        umowy.Wpisz();
        oczekuj(*rodzaj, 1, p.oczekiwane);
    }
}

TEST_F(UmowyTest, KeysOfficesAndWords) {
    const RodzajUmowy& uzl = *ZnajdzRodzajUmowy(u"uzl"_s);
    Umowy umowy(otoczenie(), uzl);
    for (qint64 id = 1; id <= 3; ++id)
        EXPECT_EQ(umowy.Nowy(1, QDate(2001, 5, 10 - static_cast<int>(id))), id);
    EXPECT_EQ(umowy.Wczytaj().first().id, 3) << "by the date of conclusion";

    ASSERT_TRUE(umowy.Wypisz(2));
    rozmowa_.spodziewaj(u"Czy na pewno usunąć zaznaczoną umowę - zlecenie ?"_s, Odpowiedz::Nie);
    EXPECT_FALSE(umowy.Usun());
    rozmowa_.spodziewaj(u"Czy na pewno usunąć zaznaczoną umowę - zlecenie ?"_s, Odpowiedz::Tak);
    EXPECT_TRUE(umowy.Usun());
    EXPECT_EQ(umowy.Nowy(1, {2001, 6, 1}), 2) << "a freed key is used again";

    ASSERT_TRUE(umowy.Wypisz(1));
    const auto& rs = sesja().rsUZL;
    EXPECT_EQ(rs.tekst(UZL("us_nazwa")), QString()) << "until the first saving";
    opusc(umowy, uzl, u"Brutto=12,34 data_wyp=31-05-2001 wys_mcs=t paczka=7"_s);
    EXPECT_EQ(rs.tekst(UZL("Slownie2")), QString()) << "words follow the saving, not the calculation";
    umowy.Wpisz();
    EXPECT_EQ(rs.tekst(UZL("us_nazwa")), u"3. Drugi Urząd Skarb"_s);
    EXPECT_EQ(rs.tekst(UZL("Slownie2")), u"dwanaście złote trzydzieści cztery grosze"_s);
    EXPECT_EQ(rs.data(UZL("data_wyp")), QDate(2001, 5, 31));
    EXPECT_EQ(rs.tekst(UZL("wys_mcs")), u"T"_s);
    EXPECT_EQ(rs.liczba(UZL("paczka")), 7);
    opusc(umowy, uzl, u"data_wyp=jutro wys_mcs=x paczka=abc us_id=0"_s);
    umowy.Wpisz();
    EXPECT_TRUE(rs.jestNull(UZL("data_wyp")));
    EXPECT_EQ(rs.tekst(UZL("wys_mcs")) + QString::number(rs.liczba(UZL("paczka"))), u"N0"_s);
    EXPECT_EQ(rs.tekst(UZL("us_nazwa")) + QString::number(rs.liczba(UZL("us_id"))), u"0"_s);
    // The other kinds keep the office of the personnel file without its name.
    EXPECT_EQ(ZnajdzPoleUmowy(*ZnajdzRodzajUmowy(u"UOD"_s), u"us_id"_s), nullptr);
}

TEST_F(UmowyTest, RefusalsLeaveTheContractAsItWas) {
    const RodzajUmowy& uzl = *ZnajdzRodzajUmowy(u"UZL"_s);
    Umowy umowy(otoczenie(), uzl);
    EXPECT_THROW((void)umowy.Nowy(2, {2001, 5, 7}), Blad) << "no contracts of this kind";
    EXPECT_THROW((void)umowy.Nowy(99, {2001, 5, 7}), Blad);
    EXPECT_THROW((void)umowy.Nowy(1, {}), Blad);
    EXPECT_TRUE(umowy.Wczytaj().isEmpty());
    EXPECT_FALSE(umowy.Wypisz(1));
    EXPECT_THROW(umowy.Wpisz(), Blad);

    (void)umowy.Nowy(1, {2001, 5, 7});
    ASSERT_TRUE(umowy.Wypisz(1));
    opusc(umowy, uzl, u"Brutto=1000"_s);
    const std::pair<const char*, QString> odmowy[] = {{"us_id", u"8"_s},
                                                      {"us_id", u"x"_s},
                                                      {"uzl_nr", u"9"_s.repeated(21)},
                                                      {"wskfp", u"900000000000000"_s}};
    for (const auto& [pole, tekst] : odmowy)
        EXPECT_THROW((void)umowy.Opusc(*ZnajdzPoleUmowy(uzl, QString::fromLatin1(pole)), tekst), Blad)
            << pole;
    umowy.Wpisz();
    oczekuj(uzl, 1, u"Brutto=1000 Netto=682.84 Fp=24.5 wskfp=2.45"_s);
    EXPECT_EQ(sesja().rsUZL.liczba(UZL("us_id")), 3);
}

} // namespace

} // namespace tornel::testy
