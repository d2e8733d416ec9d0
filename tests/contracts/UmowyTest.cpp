// Contracts and fees: the calculation from each field, keys, offices, and what is refused.
#include "bank/ZleceniaPrzelewow.h"
#include "common/Blad.h"
#include "contracts/PrzypomnieniePodatku.h"
#include "contracts/SumyUmow.h"
#include "wsparcie/UmowyTestowe.h"
#include <gtest/gtest.h>

namespace tornel::testy {

namespace {

class UmowyTest : public UmowyTestowe {};

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
        const RodzajUmowy& kind = rodzaj(p.rodzaj);
        Umowy umowy(otoczenie(), kind);
        if (umowy.Wczytaj().isEmpty()) EXPECT_EQ(umowy.Nowy(1, {2001, 5, 7}), 1);
        ASSERT_TRUE(umowy.Wypisz(1));
        opusc(umowy, kind, p.pola);
        umowy.Wpisz();
        oczekuj(kind, 1, p.oczekiwane);
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

// Days of payment around the bounds of March, none, and another person.
TEST_F(UmowyTest, SumsTakeThePeriodWithBothItsBoundsAndOnlyCommissionContracts) {
    sesja().rsPRACPR.Znajdz(2);
    sesja().rsPRACPR.ustaw(PRACPR("umowa_zlec"), u"T"_s);
    sesja().rsPRACPR.UpdateBatch(u"Dane testu");
    const struct {
        QString tabela;
        qint64 prcId;
        QString pola;
    } umowyTestu[] = {
        {u"UZL"_s, 1, u"Brutto=100 data_wyp=28-02-2001"_s},
        {u"UZL"_s, 1, u"Brutto=1000 data_wyp=01-03-2001"_s},
        {u"UZL"_s, 1, u"Brutto=2000 data_wyp=31-03-2001"_s},
        {u"UZL"_s, 1, u"Brutto=400 data_wyp=01-04-2001"_s},
        {u"UZL"_s, 1, u"Brutto=800"_s},
        {u"UZL"_s, 2, u"Brutto=50 data_wyp=15-03-2001"_s},
        {u"UOD"_s, 1, u"Brutto=700 data_wyp=15-03-2001"_s},
        {u"HON"_s, 1, u"Brutto=70 data_wyp=15-03-2001"_s},
    };
    for (const auto& u : umowyTestu) {
        Umowy umowy(otoczenie(), rodzaj(u.tabela));
        ASSERT_TRUE(umowy.Wypisz(umowy.Nowy(u.prcId, {2001, 3, 1})));
        opusc(umowy, rodzaj(u.tabela), u.pola);
        umowy.Wpisz();
    }
    const QDate od(2001, 3, 1), dokad(2001, 3, 31);
    const SumyKwot sumy = SumyUZL(sesja(), 1, od, dokad);
    const SumyKwot oczekiwane{zl(3000), zl(487.74), zl(201.19), zl(292.8), zl(195), zl(73.5), zl(189)};
    EXPECT_EQ(sumy.brutto, oczekiwane.brutto);
    EXPECT_EQ(sumy, oczekiwane);
    EXPECT_EQ(SumyUZL(sesja(), 1, {2001, 5, 1}, {2001, 5, 31}), SumyKwot{});
    EXPECT_EQ(SumyUZL(sesja(), 99, od, dokad), SumyKwot{});
    const auto wszystkich = SumujUmowy(sesja(), rodzaj(u"UZL"_s), od, dokad);
    EXPECT_EQ(wszystkich.size(), 2);
    EXPECT_EQ(wszystkich.value(2).brutto, zl(50));
    EXPECT_EQ(SumujUmowy(sesja(), rodzaj(u"HON"_s), od, dokad).value(1).brutto, zl(70));
}

TEST_F(UmowyTest, ACopyIsANewContractWithTheSameAmounts) {
    const RodzajUmowy& uzl = rodzaj(u"UZL"_s);
    Umowy umowy(otoczenie(), uzl);
    ASSERT_TRUE(umowy.Wypisz(umowy.Nowy(1, {2001, 3, 1})));
    opusc(umowy, uzl,
          u"Brutto=1000 uzl_nr=7 przedm=Spis data_od=01-03-2001 data_do=02-03-2001 data_wyp=05-03-2001 "
          u"przelewem=500 paczka=3 wys_mcs=T"_s);
    umowy.Wpisz();
    EXPECT_EQ(umowy.Kopia(1, {2001, 4, 2}), 2);
    const auto kopia = sesja().rsUZL.szukaj(2);
    ASSERT_TRUE(kopia);
    oczekuj(uzl, 2, u"Brutto=1000 Netto=682.84 przelewem=500 wskpod=20"_s);
    EXPECT_EQ(kopia->tekst(UZL("przedm")), u"Spis"_s);
    EXPECT_EQ(kopia->data(UZL("data_zaw")), QDate(2001, 4, 2));
    EXPECT_EQ(kopia->tekst(UZL("uzl_nr")) + kopia->tekst(UZL("wys_mcs")) +
                  QString::number(kopia->liczba(UZL("paczka"))),
              u"N0"_s);
    for (const Kolumna dzien : {UZL("data_od"), UZL("data_do"), UZL("data_wyp")})
        EXPECT_TRUE(kopia->jestNull(dzien));
    // Somebody who makes no contracts any more gets no copy either.
    sesja().rsPRACPR.Znajdz(1);
    sesja().rsPRACPR.ustaw(PRACPR("umowa_zlec"), u"N"_s);
    sesja().rsPRACPR.UpdateBatch(u"Dane testu");
    EXPECT_THROW((void)umowy.Kopia(1, {2001, 4, 2}), Blad);
    EXPECT_THROW((void)umowy.Kopia(9, {2001, 4, 2}), Blad);
    EXPECT_EQ(umowy.Wczytaj().size(), 2);
}

TEST_F(UmowyTest, ATaxTransferThatNoLongerHoldsIsTold) {
    const RodzajUmowy& uzl = rodzaj(u"UZL"_s);
    Umowy umowy(otoczenie(), uzl);
    ASSERT_TRUE(umowy.Wypisz(umowy.Nowy(1, {2001, 3, 1})));
    opusc(umowy, uzl, u"Brutto=1000 przelewem=500 data_wyp=15-03-2001"_s);
    umowy.Wpisz();
    const auto przypomnienie = [&](QDate wyplacona, double podatek, double przelewem, qint64 usId = 3) {
        return PrzypomnieniePodatku(otoczenie(), uzl, umowy.tabela(),
                                    {9, usId, wyplacona, zl(podatek), zl(przelewem)});
    };
    const QDate marzec(2001, 3, 20);
    EXPECT_EQ(przypomnienie(marzec, 100, 50), QString()) << "nothing was printed";
    Wykonane(sesja()).dopisz({{.rodzaj = wykonanie::PrzelewPodatku.kod.toString(),
                               .miesiac = {2001, 3},
                               .zrodlo = u"UZL"_s,
                               .komu = 3,
                               .kwota = zl(67.06)}},
                             QDateTime({2001, 4, 10}, {12, 0}));
    EXPECT_EQ(przypomnienie(marzec, 100, 50),
              u"Przelew podatku za 03.2001 wydrukowano 10-04-2001 na 67,06 zł, a podatek umów tego urzędu "
              u"wynosi teraz 167,06 zł."_s);
    EXPECT_EQ(
        przypomnienie(marzec, 5, 50, 4),
        u"Przelew podatku za 03.2001 wydrukowano 10-04-2001 bez tego urzędu, a podatek umów tego urzędu "
        u"wynosi teraz 5,00 zł."_s);
    EXPECT_EQ(przypomnienie(marzec, 0, 50), QString()) << "the sum is the one that was printed";
    EXPECT_EQ(przypomnienie(marzec, 100, 0), QString()) << "cash does not count";
    EXPECT_EQ(przypomnienie({2001, 4, 1}, 100, 50), QString()) << "another month";
    EXPECT_EQ(przypomnienie({}, 100, 50), QString());
}

} // namespace

} // namespace tornel::testy
