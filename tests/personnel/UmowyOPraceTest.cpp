// Employment contracts: what they take from the personnel file and give back, changes of terms, notices by
// the calendar, the data of a certificate.
#include "personnel/UmowyOPrace.h"
#include "common/Blad.h"
#include "personnel/Swiadectwo.h"
#include "personnel/Urlopy.h"
#include "personnel/Wypowiedzenie.h"
#include "store/Sesja.h"
#include "wsparcie/BazaTestowa.h"

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using schemat::M_PRACY;
using schemat::PRACPR;
using schemat::UMOP;
using schemat::URL;
using schemat::ZW;
using enum RodzajUmowyOPrace;
using Miara = OkresWypowiedzenia::Miara;

class UmowyOPraceTest : public BazaTestowa {
protected:
    UmowyOPraceTest() {
        dodajPracownika(1, u"Nowak"_s);
        dodajPracownika(2, u"Łącki"_s, u"Adam"_s);
        Recordset& pr = sesja().rsPRACPR;
        EXPECT_TRUE(pr.Znajdz(1));
        pr.ustaw(PRACPR("data_zatr"), QDate(1999, 1, 1));
        pr.ustaw(PRACPR("umowa_od"), QDate(2000, 1, 1));
        pr.ustaw(PRACPR("umowa_do"), QDate(2001, 3, 31));
        pr.ustaw(PRACPR("stanow"), u"tokarz"_s);
        pr.ustaw(PRACPR("dzial"), u"Hala"_s);
        pr.ustaw(PRACPR("mp_id"), 5);
        pr.ustaw(PRACPR("etat"), 1);
        pr.ustaw(PRACPR("etat2"), 2);
        pr.ustaw(PRACPR("placa_zas"), zl(1200));
        pr.ustaw(PRACPR("Premia_pr"), zl(10));
        pr.UpdateBatch(u"Dane testu");
        Recordset miejsca(M_PRACY);
        miejsca.Open(sesja().cnPlace);
        miejsca.AddNewZero(5);
        miejsca.ustaw(M_PRACY("Nazwa"), u"Warsztat"_s);
        miejsca.UpdateBatch(u"Dane testu");
    }
    /// Another contract of the employee, its kind and days set.
    qint64 umowa(qint64 prcId, RodzajUmowyOPrace rodzaj, QDate od, QDate dokad = {}) {
        UmowyOPrace umowy(otoczenie());
        const qint64 id = umowy.Nowa(prcId, od);
        zmien(
            umowy, id,
            {{UMOP("rodzaj"), static_cast<qint64>(rodzaj)}, {UMOP("data_od"), od}, {UMOP("data_do"), dokad}});
        return id;
    }
    static void zmien(UmowyOPrace& umowy, qint64 id,
                      std::initializer_list<std::pair<Kolumna, Wartosc>> wartosci) {
        ASSERT_TRUE(umowy.Ustaw(id));
        for (const auto& [kolumna, wartosc] : wartosci) {
            const auto* dzien = std::get_if<QDate>(&wartosc);
            umowy.tabela().ustaw(kolumna, dzien && !dzien->isValid() ? Wartosc(std::monostate{}) : wartosc);
        }
        umowy.Wpisz();
    }
    /// Adds a row to a register.
    void nieobecnosc(const TabelaDef& tabela, QDate od, QDate dokad, RodzajUrlopu rodzaj = {},
                     qint64 dni = 0) {
        Recordset rs(tabela);
        rs.Open(sesja().cnPlace);
        rs.AddNewZero(1);
        rs.ustaw(tabela.nr(tabela.numer("Data")), od);
        rs.ustaw(tabela.nr(tabela.numer("data_do")), dokad);
        if (&tabela == &URL) {
            rs.ustaw(URL("Rodzaj"), static_cast<qint64>(rodzaj));
            rs.ustaw(URL("il_dni"), dni);
        }
        rs.UpdateBatch(u"Dane testu");
    }
};

TEST_F(UmowyOPraceTest, TheFirstContractIsThatOfTheFileAndTheNextOneBeginsAnew) {
    UmowyOPrace umowy(otoczenie());
    const QDate dzis(2001, 2, 20);
    EXPECT_EQ(umowy.proponowanyDzien(1, dzis), QDate(2000, 1, 1));
    ASSERT_EQ(umowy.Nowa(1, {1999, 12, 30}), 1);
    const UmowaOPrace pierwsza = *umowy.umowa(1);
    EXPECT_EQ(pierwsza.warunki, WarunkiKartoteki(*sesja().rsPRACPR.szukaj(1)));
    EXPECT_EQ(pierwsza.zawarta, QDate(1999, 12, 30));
    EXPECT_TRUE(pierwsza.jestRodzaju(CzasOkreslony)) << "the file says until when";
    EXPECT_TRUE(umowy.roznicaOdKartoteki(pierwsza).isEmpty());

    EXPECT_EQ(umowy.proponowanyDzien(1, dzis), QDate(2001, 4, 1)) << "the day after the last one";
    ASSERT_EQ(umowy.Nowa(1, {2001, 4, 1}), 2);
    const UmowaOPrace druga = *umowy.umowa(2);
    EXPECT_EQ(druga.warunki.od, QDate(2001, 4, 1));
    EXPECT_FALSE(druga.warunki.dokad.isValid());
    EXPECT_TRUE(druga.jestRodzaju(CzasNieokreslony));
    EXPECT_EQ(druga.warunki.placa, zl(1200));

    EXPECT_EQ(umowy.proponowanyDzien(2, dzis), dzis) << "nothing in the file";
    EXPECT_THROW((void)umowy.Nowa(99, dzis), Blad);
    EXPECT_THROW((void)umowy.Nowa(1, {}), Blad);
    EXPECT_EQ(umowy.Wczytaj().size(), 2);
}

TEST_F(UmowyOPraceTest, TheFileTakesTheTermsBackOnlyOnYesAndNamesThem) {
    UmowyOPrace umowy(otoczenie());
    (void)umowy.Nowa(1, {2000, 1, 1});
    EXPECT_FALSE(umowy.PrzepiszDoKartoteki(1)) << "nothing differs, nothing is asked";
    (void)umowy.Nowa(1, {2001, 4, 1});
    zmien(umowy, 2, {{UMOP("placa_zas"), zl(1500)}, {UMOP("etat2"), qint64{1}}, {UMOP("mp_id"), qint64{0}}});
    const QString pytanie = u"Czy wpisać do kartoteki pracownika Nowak Anna warunki tej umowy ?\n"
                            "\numowa od: 01-04-2001, w kartotece 01-01-2000"
                            "\numowa do: (brak), w kartotece 31-03-2001"
                            "\nmiejsce pracy: (brak), w kartotece Warsztat"
                            "\nwymiar czasu pracy: pełny etat, w kartotece 1/2 etatu"
                            "\npłaca zasadnicza: 1500,00 zł, w kartotece 1200,00 zł"_s;
    const WarunkiPracy przedtem = WarunkiKartoteki(*sesja().rsPRACPR.szukaj(1));
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
    EXPECT_FALSE(umowy.PrzepiszDoKartoteki(2));
    EXPECT_EQ(WarunkiKartoteki(*sesja().rsPRACPR.szukaj(1)), przedtem);
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
    EXPECT_TRUE(umowy.PrzepiszDoKartoteki(2));
    otworzPonownie();
    EXPECT_EQ(WarunkiKartoteki(*sesja().rsPRACPR.szukaj(1)), UmowyOPrace(otoczenie()).umowa(2)->warunki);
    EXPECT_EQ(WarunkiKartoteki(*sesja().rsPRACPR.szukaj(2)), WarunkiPracy{}) << "nobody else";
}

TEST_F(UmowyOPraceTest, AChangeOfTermsStandsBesideItsContract) {
    UmowyOPrace umowy(otoczenie());
    (void)umowy.Nowa(1, {2000, 1, 1});
    EXPECT_THROW((void)umowy.Zmiana(1, {2000, 1, 1}), Blad) << "not before the contract has begun";
    ASSERT_EQ(umowy.Zmiana(1, {2000, 7, 1}), 2);
    EXPECT_TRUE(umowy.roznicaOdPoprzednich(*umowy.umowa(2)).isEmpty());
    EXPECT_FALSE(umowy.odmowaPisma(*umowy.umowa(2), PismoOPrace::Zmiana).isEmpty()) << "nothing to sign yet";
    zmien(umowy, 2, {{UMOP("placa_zas"), zl(1300)}});
    // A change of the change belongs to the contract and starts from the terms of its day.
    ASSERT_EQ(umowy.Zmiana(2, {2001, 1, 1}), 3);
    zmien(umowy, 3, {{UMOP("placa_zas"), zl(1400)}, {UMOP("data_do"), QDate(2001, 12, 31)}});
    EXPECT_EQ(umowy.umowa(3)->zmienia, 1);
    EXPECT_EQ(umowy.roznicaOdPoprzednich(*umowy.umowa(3)),
              (QList<RoznicaWarunku>{{u"umowa do"_s, u"31-03-2001"_s, u"31-12-2001"_s},
                                     {u"płaca zasadnicza"_s, u"1300,00 zł"_s, u"1400,00 zł"_s}}));
    QList<bool> zastapione;
    for (const UmowaOPrace& u : umowy.pracownika(1)) zastapione += u.zastapiona;
    EXPECT_EQ(zastapione, (QList{true, true, false}));
    EXPECT_EQ(umowy.koniecZatrudnienia(*umowy.umowa(1)), QDate(2001, 12, 31));
    // The file goes on naming the day of the contract.
    rozmowa_.spodziewaj(u"Czy wpisać do kartoteki pracownika Nowak Anna warunki tej umowy ?\n"
                        "\numowa do: 31-12-2001, w kartotece 31-03-2001"
                        "\npłaca zasadnicza: 1400,00 zł, w kartotece 1200,00 zł"_s,
                        Odpowiedz::Tak);
    EXPECT_TRUE(umowy.PrzepiszDoKartoteki(3));
    EXPECT_EQ(sesja().rsPRACPR.szukaj(1)->data(PRACPR("umowa_od")), QDate(2000, 1, 1));

    EXPECT_THROW(zmien(umowy, 3, {{UMOP("sposob"), qint64{3}}}), Blad) << "a contract ends, not a change";
    umowy.Porzuc();
    rozmowa_.spodziewaj(u"Nie można usunąć umowy, której warunki były zmieniane. Najpierw usuń zmiany."_s,
                        Styl::Wykrzyknik);
    EXPECT_FALSE(umowy.Usun(1));
    rozmowa_.spodziewaj(u"Czy na pewno usunąć zaznaczoną umowę o pracę ?"_s, Odpowiedz::Tak);
    EXPECT_TRUE(umowy.Usun(2));
    EXPECT_EQ(umowy.Zmiana(1, {2000, 8, 1}), 2) << "the smallest free key";
}

TEST_F(UmowyOPraceTest, TheFilterFindsWhatRunsOut) {
    const qint64 okreslona = umowa(1, CzasOkreslony, {2000, 1, 1}, {2001, 3, 31});
    const qint64 bezKonca = umowa(2, CzasNieokreslony, {1998, 1, 1});
    UmowyOPrace umowy(otoczenie());
    const auto pasuja = [&](const FiltrUmowOPrace& filtr) {
        QList<qint64> wynik;
        for (const UmowaOPrace& u : umowy.Wczytaj())
            if (filtr.pasuje(u)) wynik += u.id;
        return wynik;
    };
    const QDate od(2001, 3, 1);
    EXPECT_EQ(pasuja({}), (QList{bezKonca, okreslona})) << "Ł before N";
    EXPECT_EQ(pasuja({.prcId = 1}), QList{okreslona});
    EXPECT_EQ(pasuja({.rodzaj = static_cast<qint64>(CzasNieokreslony)}), QList{bezKonca});
    EXPECT_EQ(pasuja({.konczaceOd = od, .konczaceDo = {2001, 3, 31}}), QList{okreslona});
    EXPECT_EQ(pasuja({.konczaceOd = od, .konczaceDo = {2001, 3, 30}}), QList<qint64>());
    EXPECT_EQ(pasuja({.konczaceOd = {2001, 4, 1}, .konczaceDo = {2001, 5, 1}}), QList<qint64>()) << "over";
    // A notice brings an end, a change of the term moves it.
    zmien(umowy, bezKonca,
          {{UMOP("sposob"), qint64{1}},
           {UMOP("data_wyp"), QDate(2000, 12, 5)},
           {UMOP("data_roz"), QDate(2001, 3, 31)}});
    const qint64 przedluzenie = umowy.Zmiana(okreslona, {2001, 3, 1});
    EXPECT_EQ(pasuja({.konczaceOd = od, .konczaceDo = {2001, 3, 31}}), (QList{bezKonca, przedluzenie}));
    zmien(umowy, przedluzenie, {{UMOP("data_do"), QDate(2001, 9, 30)}});
    EXPECT_EQ(pasuja({.konczaceOd = od, .konczaceDo = {2001, 3, 31}}), QList{bezKonca});
}

TEST_F(UmowyOPraceTest, ImpossibleValuesAreRefusedAndTheRowStays) {
    UmowyOPrace umowy(otoczenie());
    const qint64 id = umowa(1, CzasOkreslony, {2001, 1, 1}, {2001, 6, 30});
    const std::initializer_list<std::pair<Kolumna, Wartosc>> niemozliwe[] = {
        {{UMOP("data_od"), std::monostate{}}},
        {{UMOP("rodzaj"), qint64{4}}},
        {{UMOP("sposob"), qint64{9}}},
        {{UMOP("data_do"), QDate(2000, 12, 31)}},
        {{UMOP("data_roz"), QDate(2000, 12, 31)}},
        {{UMOP("data_wyp"), QDate(2001, 3, 2)}, {UMOP("data_roz"), QDate(2001, 3, 1)}},
    };
    for (const auto& wartosci : niemozliwe) {
        EXPECT_THROW(zmien(umowy, id, wartosci), Blad);
        umowy.Porzuc();
    }
    EXPECT_EQ(umowy.umowa(id)->warunki.dokad, QDate(2001, 6, 30));
}

TEST_F(UmowyOPraceTest, WhatTheLawSaysIsTold) {
    UmowyOPrace umowy(otoczenie());
    const auto uwagi = [&](qint64 id) { return umowy.uwagi(*umowy.umowa(id)).join(u'|'); };
    // Two fixed terms with a gap of a month, and a third one.
    const qint64 pierwsza = umowa(2, CzasOkreslony, {2000, 1, 1}, {2000, 3, 31});
    const qint64 druga = umowa(2, CzasOkreslony, {2000, 5, 1}, {2000, 9, 30});
    const qint64 trzecia = umowa(2, CzasOkreslony, {2000, 10, 1}, {2000, 12, 31});
    EXPECT_EQ(uwagi(pierwsza) + uwagi(druga), QString());
    EXPECT_TRUE(uwagi(trzecia).contains(u"trzecia z rzędu"_s));
    zmien(umowy, druga, {{UMOP("data_od"), QDate(2000, 5, 2)}}); // the gap is longer than a month
    EXPECT_EQ(uwagi(trzecia), QString());

    const struct {
        RodzajUmowyOPrace rodzaj;
        QDate dokad;
        qint64 sposob;
        QString uwaga;
    } przypadki[] = {
        {OkresProbny, {2001, 3, 31}, 0, {}},
        {OkresProbny, {2001, 4, 1}, 0, u"nie może przekraczać 3 miesięcy"_s},
        {OkresProbny, {}, 0, u"potrzebuje dnia"_s},
        {CzasNieokreslony, {2001, 3, 31}, 0, u"nie ma dnia, do którego"_s},
        {CzasPracy, {}, 0, {}},
        {CzasPracy, {}, 1, u"Umowy na czas wykonania określonej pracy nie można rozwiązać"_s},
        {CzasOkreslony, {2001, 12, 31}, 2, u"jeżeli tego nie przewidziano"_s},
        {CzasNieokreslony, {}, 1, {}},
    };
    for (const auto& p : przypadki) {
        const qint64 id = umowa(1, p.rodzaj, {2001, 1, 1}, p.dokad);
        if (p.sposob > 0)
            zmien(umowy, id,
                  {{UMOP("sposob"), p.sposob},
                   {UMOP("data_wyp"), QDate(2001, 2, 5)},
                   {UMOP("data_roz"), QDate(2001, 2, 28)}});
        if (p.uwaga.isEmpty())
            EXPECT_EQ(uwagi(id), QString());
        else
            EXPECT_TRUE(uwagi(id).contains(p.uwaga)) << uwagi(id).toStdString();
        rozmowa_.spodziewaj(u"Czy na pewno usunąć zaznaczoną umowę o pracę ?"_s, Odpowiedz::Tak);
        EXPECT_TRUE(umowy.Usun(id));
    }
}

// Days of the calendar of 2001: 24 February and 3 March are Saturdays, 16 April is Easter Monday.
TEST(Wypowiedzenie, LastsByKindAndLengthOfEmploymentAndEndsWithWeekOrMonth) {
    const QDate od(2001, 1, 1);
    const struct {
        RodzajUmowyOPrace rodzaj;
        QDate dokad, zatrudniony, dzien;
        std::optional<OkresWypowiedzenia> okres;
        QDate koniec;
    } przypadki[] = {
        {OkresProbny, {2001, 1, 14}, od, {2001, 1, 5}, {{3, Miara::DniRobocze}}, {2001, 1, 9}},
        {OkresProbny, {2001, 1, 15}, od, {2001, 1, 5}, {{1, Miara::Tygodnie}}, {2001, 1, 13}},
        {OkresProbny, {2001, 3, 31}, od, {2001, 2, 12}, {{2, Miara::Tygodnie}}, {2001, 3, 3}},
        {CzasOkreslony, {2001, 6, 30}, od, {2001, 2, 12}, {}, {}}, // no longer than six months
        {CzasOkreslony, {2001, 7, 1}, od, {2001, 2, 10}, {{2, Miara::Tygodnie}}, {2001, 2, 24}},
        {CzasNieokreslony, {}, {2000, 9, 5}, {2001, 2, 12}, {{2, Miara::Tygodnie}}, {2001, 3, 3}},
        // Six months and three years are reached within the notice itself.
        {CzasNieokreslony, {}, {2000, 9, 4}, {2001, 2, 12}, {{1, Miara::Miesiace}}, {2001, 3, 31}},
        {CzasNieokreslony, {}, {1998, 4, 2}, {2001, 2, 12}, {{1, Miara::Miesiace}}, {2001, 3, 31}},
        {CzasNieokreslony, {}, {1998, 4, 1}, {2001, 2, 28}, {{3, Miara::Miesiace}}, {2001, 5, 31}},
        {CzasNieokreslony, {}, {1990, 1, 1}, {2001, 3, 1}, {{3, Miara::Miesiace}}, {2001, 6, 30}},
        {CzasPracy, {}, od, {2001, 2, 12}, {}, {}},
    };
    for (const auto& p : przypadki) {
        UmowaOPrace u;
        u.rodzaj = static_cast<qint64>(p.rodzaj);
        u.warunki.od = od;
        u.warunki.dokad = p.dokad;
        u.wypowiadalna = true;
        const auto okres = OkresDlaUmowy(u, p.zatrudniony, p.dzien);
        const std::string tu =
            u.warunki.dokad.toString().toStdString() + " from " + p.zatrudniony.toString().toStdString();
        ASSERT_EQ(okres.has_value(), p.okres.has_value()) << tu;
        if (!okres) continue;
        EXPECT_EQ(*okres, *p.okres) << tu << ": " << okres->napis().toStdString();
        EXPECT_EQ(okres->koniec(p.dzien), p.koniec) << tu;
        u.wypowiadalna = false;
        EXPECT_EQ(OkresDlaUmowy(u, p.zatrudniony, p.dzien).has_value(), p.rodzaj != CzasOkreslony) << tu;
    }
    EXPECT_EQ((OkresWypowiedzenia{3, Miara::DniRobocze}.koniec({2001, 4, 13})), QDate(2001, 4, 18))
        << "Easter Sunday and Monday do not count";
}

TEST_F(UmowyOPraceTest, ACertificateCountsWhatFallsIntoTheEmployment) {
    UmowyOPrace umowy(otoczenie());
    const qint64 id = umowa(1, CzasNieokreslony, {1999, 1, 1});
    EXPECT_THROW((void)ZbierzSwiadectwo(otoczenie(), id), Blad) << "it has no end";
    const qint64 zmiana = umowy.Zmiana(id, {2000, 4, 1});
    zmien(umowy, zmiana, {{UMOP("stanow"), u"frezer"_s}, {UMOP("etat2"), qint64{1}}});
    zmien(umowy, id, {{UMOP("sposob"), qint64{3}}, {UMOP("data_roz"), QDate(2001, 3, 15)}});
    using enum RodzajUrlopu;
    nieobecnosc(URL, {2000, 7, 3}, {2000, 7, 14}, Wypoczynkowy, 10); // another year
    nieobecnosc(URL, {2001, 1, 8}, {2001, 1, 12}, Wypoczynkowy, 5);
    nieobecnosc(URL, {2000, 5, 1}, {2000, 5, 31}, Bezplatny, 21);
    nieobecnosc(URL, {2000, 3, 1}, {2000, 3, 2}, OpiekaNadDzieckiem, 2); // another year
    nieobecnosc(URL, {2001, 2, 1}, {2001, 2, 1}, OpiekaNadDzieckiem, 1);
    nieobecnosc(ZW, {1998, 12, 20}, {1999, 1, 3}); // begun before he came
    nieobecnosc(ZW, {2000, 12, 27}, {2001, 1, 5}); // five days of the last year
    nieobecnosc(ZW, {2001, 3, 10}, {2001, 3, 20}); // six days until the end

    const DaneSwiadectwa d = ZbierzSwiadectwo(otoczenie(), zmiana);
    EXPECT_EQ(d.umowa.id, id);
    EXPECT_EQ(d.zatrudnienie.od, QDate(1999, 1, 1));
    EXPECT_EQ(d.zatrudnienie.dokad, QDate(2001, 3, 15));
    ASSERT_EQ(d.stanowiska.size(), 2);
    EXPECT_EQ(d.stanowiska[0].stanowisko + d.stanowiska[0].etat, u"tokarz1/2 etatu"_s);
    EXPECT_EQ(d.stanowiska[0].zakres.dokad, QDate(2000, 3, 31));
    EXPECT_EQ(d.stanowiska[1].stanowisko + d.stanowiska[1].etat, u"frezerpełny etat"_s);
    EXPECT_EQ(d.stanowiska[1].zakres.dokad, QDate(2001, 3, 15));
    EXPECT_EQ(d.urlop, 5);
    EXPECT_EQ(d.opieka, 1);
    EXPECT_EQ(d.chorobowe, 11);
    EXPECT_EQ(d.bezplatne.size(), 1);
    ASSERT_EQ(d.zwolnienia.size(), 3);
    EXPECT_EQ(d.zwolnienia[0].od, QDate(1999, 1, 1));
    EXPECT_EQ(d.zwolnienia[2].dokad, QDate(2001, 3, 15));
    nieobecnosc(ZW, {2001, 1, 20}, {2001, 2, 28});
    EXPECT_EQ(ZbierzSwiadectwo(otoczenie(), id).chorobowe, 35) << "what goes beyond is the insurer's";
}

} // namespace

} // namespace tornel::testy
