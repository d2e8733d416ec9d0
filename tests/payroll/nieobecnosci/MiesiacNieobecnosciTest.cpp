#include "personnel/RejestrNieobecnosci.h"
#include "store/Struktura.h"
#include "wsparcie/NieobecnosciTestowe.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaZgoda.h"
#include "wsparcie/UszkodzeniaRejestrow.h"
#include <map>
#include <random>

namespace tornel::testy {

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
        naglowek.UpdateBatch(u"Dane testu");
        rs.Open(sesja().cnPlace, nazwa);
        for (const auto& [nr, grupy] : kwoty) {
            rs.AddNewZero(nr);
            for (std::size_t g = 0; g < grupy.size(); ++g)
                rs.ustaw(schemat::NADGN.nr(schemat::NADGN.numer("SP_K" + std::to_string(g + 1))),
                         zl(grupy[g]));
        }
        rs.UpdateBatch(u"Dane testu");
        stale().AktRejNadg = true;
    }

    WykazySkrypt wykazy_;
};

TEST_F(MiesiacNieobecnosciTest, OvertimeIsAddedToItsComponentsAfreshEachTime) {
    pracownik(1, "placa_zas=1000 DOD_10=5 umowa_od=2001-07-16");
    pracownik(2, "placa_zas=1000");
    pracownik(3, "placa_zas=1000");
    stale().AktRejNadg = true;
    stale().NrNGS = {10, 10, 12, 0, 3, 16, 24};
    const auto l = lista();
    for (const qint64 nr : {1, 2, 3}) dopisz(*l, nr); // adding transfers nothing
    const QString nieaktywny =
        u"Składnik nr 3 odpowiadający nadgodzinom jest nieaktywny. Kwota za nadgodziny nie "
        "została zapisana."_s;
    ASSERT_TRUE(l->Wypisz_daneP({1, u" "_s}));
    l->Przelicz2(); // no overtime list yet
    nadgodziny({{1, {10, 20, 0, 40, 50, 0, 70}}, {3, {}}});
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
    rozmowa_.spodziewaj(pytania::nadgodziny, Odpowiedz::Tak);
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

/// A clerk who is asked only while nothing is under way in the file.
class RozmowaPrzedAkcja : public RozmowaZgoda {
public:
    explicit RozmowaPrzedAkcja(Polaczenie& baza) : baza_(baza) {}
    [[nodiscard]] bool pytanie(const QString& tekst, const QString&) override {
        EXPECT_FALSE(baza_.wTransakcji()) << tekst.toStdString();
        ++zapytana;
        return true;
    }
    [[nodiscard]] std::optional<QList<bool>> pytania(const QString& tytul,
                                                     const QList<PytanieAkcji>& lista) override {
        if (rezygnuje) return std::nullopt;
        return Rozmowa::pytania(tytul, lista);
    }

    bool rezygnuje = true;
    int zapytana = 0;

private:
    Polaczenie& baza_;
};

TEST_F(CalyMiesiacTest, QuestionsAreSettledBeforeAnythingBegins) {
    RozmowaPrzedAkcja rozmowa(sesja().cnPlace);
    Otoczenie o{sesja(), stale(), otoczenie().skladniki, rozmowa};
    ListaPlac l(o, kLipiec.rok, kLipiec.mies, u" "_s);
    EXPECT_TRUE(l.DodajPracownikow({1, 2}).przerwana);
    EXPECT_FALSE(l.Nowy_prac(1));
    EXPECT_EQ(wierszeWPliku(), "");
    rozmowa.rezygnuje = false;
    EXPECT_EQ(l.DodajPracownikow({1}).wykonane, 1);
    EXPECT_EQ(rozmowa.zapytana, 7);
    ASSERT_TRUE(l.Wypisz_daneP({1, u" "_s}));
    l.Przelicz2();
    EXPECT_EQ(rozmowa.zapytana, 12);

    rozmowa.rezygnuje = true;
    ustawIZapisz("SP_1=7 DO_WYPLATY=5");
    EXPECT_FALSE(l.Przelicz2());
    EXPECT_FALSE(l.Przelicz1());
    EXPECT_FALSE(l.Przelicz_Dni());
    EXPECT_FALSE(l.ZmienKwote(poleListy(u"txtKosztyUz"), zl(3)));
    EXPECT_TRUE(l.PrzeliczSerie(Obliczenie::Przeliczenie, {{1, u" "_s}}).przerwana);
    EXPECT_TRUE(l.wiersz()) << "the row stays taken up";
    oczekuj("SP_1=7 DO_WYPLATY=5 KUP=101,82");
    oczekujWPliku({1, u" "_s}, "SP_1=7 DO_WYPLATY=5 KUP=101,82");
}

TEST_F(CalyMiesiacTest, WhatIsRefusedRaisesNoQuestionsOfItsOwn) {
    for (const QString& pytanie :
         {pytania::dniSerii, pytania::nadgodzinySerii, pytania::l4Serii, pytania::urlopSerii})
        rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
    EXPECT_EQ(lista()->DodajPracownikow({1, 2}).wykonane, 2);
    oczekujWPliku({1, u" "_s}, "DN_RO=0 SP_1=2200 SP_20=0 SP_5=0 BRUTTO=2200");
}

/// A clerk who says yes to everything but the questions about one matter, in a batch as for one row.
class RozmowaOdmowna : public RozmowaZgoda {
public:
    explicit RozmowaOdmowna(const QString& odmowa) : odmowa_(odmowa) {}
    [[nodiscard]] bool pytanie(const QString& tekst, const QString&) override {
        return !tekst.contains(odmowa_);
    }

private:
    QString odmowa_;
};

/// One month computed in several ways.
class DrogiTest : public MiesiacNieobecnosciTest {
protected:
    DrogiTest() {
        for (const int nr : {20, 21, 22, 23, 25, 26, 27, 28}) skladnik(nr, "   ", true);
        Stale& s = stale();
        s.AktRejPrzepDni = s.BlokujUbruttow = s.OsobHarPrac = true;
        s.L4Prd = {20, 21, 22, 23};
        s.L4ZUS = {25, 26, 27, 28};
        s.SklUrl = 5;
        kalendarz(0, kLipiec);
    }

    /// How the rows come onto the list. A batch over everybody reads the registers and the earlier months
    /// once for all, one over less than an eighth of the firm looks them up.
    enum class Droga { SeriaFirmy, MaleSerie, WierszPoWierszu };

    /// The month made from nothing, a list for each symbol. Gives those who could not be computed.
    std::map<qint64, QString> policz(Droga droga, const QList<qint64>& numery, const QString& odmowa,
                                     const QStringList& symbole = {u" "_s}) {
        for (const TabelaDef* tabela : schemat::TabeleMiesiaca)
            sesja().cnPlace.wykonaj("DELETE FROM " + std::string(tabela->nazwa) + "200107");
        RozmowaOdmowna rozmowa(odmowa);
        Otoczenie o{sesja(), stale(), otoczenie().skladniki, rozmowa};
        std::map<qint64, QString> niepowodzenia;
        for (const QString& symbol : symbole) {
            ListaPlac l(o, kLipiec.rok, kLipiec.mies, symbol);
            const auto seria = [&](const QList<qint64>& kto) {
                for (const auto& n : l.DodajPracownikow(kto).niepowodzenia) niepowodzenia[n.numer] = n.powod;
            };
            if (droga == Droga::WierszPoWierszu) {
                for (const qint64 nr : numery) {
                    EXPECT_TRUE(l.Nowy_prac(nr));
                    l.Przelicz2();
                    l.Przelicz1();
                }
                continue;
            }
            const qsizetype ile = droga == Droga::SeriaFirmy ? numery.size() : (numery.size() - 1) / 8;
            for (qsizetype i = 0; i < numery.size(); i += ile) seria(numery.mid(i, ile));
        }
        return niepowodzenia;
    }

    /// Everything that the file holds of the month: "PLA 12 A" -> "BRUTTO=1000 zł ...".
    std::map<std::string, std::string> wiersze() {
        std::map<std::string, std::string> wynik;
        for (const TabelaDef* tabela : schemat::TabeleMiesiaca) {
            Recordset rs = zPliku(*tabela);
            for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext()) {
                std::string& wiersz =
                    wynik[std::string(tabela->nazwa) + ' ' + std::to_string(rs.liczba(tabela->nr(0))) + ' ' +
                          rs.tekst(tabela->nr(1)).toStdString()];
                for (int k = 2; k < static_cast<int>(tabela->kolumny.size()); ++k)
                    wiersz += std::string(tabela->nr(k).def().nazwa) + '=' +
                              tekstWartosci(rs.wartosc(tabela->nr(k))) + ' ';
            }
        }
        return wynik;
    }
};

/// A firm of forty drawn by chance, the same each time: several lists of some months, own calendars, leaves
/// and vacations through the year and close together in July, overtime.
class FirmaTest : public DrogiTest {
protected:
    FirmaTest() {
        sesja().cnPlace.wykonaj("PRAGMA synchronous=OFF"); // a thousand actions, none to be outlived
        Stale& s = stale();
        s.SklSrL4 = {1, 2, 5, 5, 12};
        s.SkSumDoSrURL = {1, 10, 12};
        s.SklPrzelURL = {1, 2, 10};
        s.SklUrlz = {16, 24, 3, 12};
        s.NrNGS = {10, 12, 16, 24, 0, 1, 30};
        s.MiesSrBr = 8; // into the year before, with months that are missing
        s.ZIluMSrDn = 4;
        s.SposobStZasL4 = 2;
        std::map<qint64, std::array<double, 7>> kwotyNadgodzin;
        for (qint64 nr = 1; nr <= kIlu; ++nr) {
            numery_ += nr;
            losujPracownika(nr);
            losujNieobecnosci(nr, {2000, 12, 10 + los(0, 15)}, {2001, 6, 2}, 60, 20);
            losujNieobecnosci(nr, {2001, 6, 24 + los(0, 4)}, {2001, 8, 3}, 5, 5);
            if (los(1, 2) == 1)
                for (double& kwota : kwotyNadgodzin[nr]) kwota = los(0, 300);
            if (los(1, 3) == 1) kalendarz(nr, kLipiec, {los(2, 12), los(13, 31)});
        }
        nadgodziny(kwotyNadgodzin);
    }

    int los(int od, int dokad) {
        return od + static_cast<int>(generator_() % static_cast<unsigned>(dokad - od + 1));
    }

    void losujPracownika(qint64 nr) {
        const auto pole = [](const char* nazwa, int ile) {
            return std::string(nazwa) + '=' + std::to_string(ile);
        };
        pracownik(nr,
                  pole("placa_zas", los(760, 9000)) + pole(" Premia_pr", los(0, 30)) +
                      pole(" DOD_10", los(0, 99)) +
                      " wsk_fe=9,76 wsk_fr=6,5 wsk_fc=2,45 wsk_ubzdr=7,75 Kup=101,82 czy_kuz=T czy_ulga=T");
        for (const RokMies m : {RokMies{2000, 12}, {2001, 1}, {2001, 2}, {2001, 4}, {2001, 5}, {2001, 6}})
            for (const QString& symbol : {u"B"_s, u" "_s, u"A"_s})
                if (los(1, 5) > 2)
                    wczesniej(m, nr,
                              pole("SP_1", los(500, 6000)) + pole(" SP_2", los(0, 500)) +
                                  pole(" SP_5", los(0, 90)) + pole(" SP_10", los(0, 90)) +
                                  pole(" SP_12", los(0, 90)) + pole(" BRUTTO", los(500, 9000)) +
                                  pole(" DN_RO", los(0, 22)) + pole(" DN_SO", los(0, 2)) +
                                  pole(" DN_NI", los(0, 2)) + pole(" WSK_FEPRC", los(0, 20)) +
                                  pole(" WSK_FRPRC", los(0, 20)) + pole(" WSK_FCPRC", los(0, 20)),
                              symbol);
    }
    /// Registered from the last to the first, so that the order of the dates has to be made.
    void losujNieobecnosci(qint64 nr, QDate dzien, QDate ostatni, int przerwa, int dlugosc) {
        QList<ZakresDat> zakresy;
        for (; dzien <= ostatni; dzien = zakresy.first().dokad.addDays(los(1, przerwa)))
            zakresy.prepend({dzien, dzien.addDays(los(0, dlugosc - 1))});
        for (const auto& [od, dokad] : zakresy)
            if (los(1, 2) == 1)
                zwolnienie(nr, od, dokad, 10 * los(7, 10));
            else
                urlop(nr, od, dokad, los(0, 6), los(1, 4) == 1 ? los(1, 400) : 0);
    }

    static constexpr qint64 kIlu = 40;
    std::mt19937 generator_{2001};
    QList<qint64> numery_;
};

TEST_F(FirmaTest, ABatchOverAllASmallOneAndTheClerkComeToTheSameRows) {
    for (const QString& odmowa : {u"w jednym składniku"_s, u"dni wolnych"_s}) {
        SCOPED_TRACE(odmowa.toStdString());
        EXPECT_TRUE(policz(Droga::SeriaFirmy, numery_, odmowa, {u" "_s, u"A"_s}).empty());
        const auto wzor = wiersze();
        ASSERT_EQ(wzor.size(), 4 * 2 * numery_.size());
        // What is compared is not a firm of zeros.
        const auto niezerowych = [this](Kolumna k) {
            int ile = 0;
            Recordset rs = zPliku(*k.tabela);
            for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext())
                ile += k.def().typ == Typ::Currency ? !rs.kwota(k).zero() : rs.liczba(k) != 0;
            return ile;
        };
        using schemat::PLA, schemat::PLB, schemat::SP;
        for (const Kolumna k : {PLA("DNI_L4_PR"), PLA("DNI_L4_ZUS"), PLA("SR_BR_ZUS"), PLB("SR_BR_URL"),
                                PLB("DNI_UWYP"), SP(21), SP(26), SP(30)})
            EXPECT_GE(niezerowych(k), 8) << k.def().nazwa;
        for (const Droga droga : {Droga::MaleSerie, Droga::WierszPoWierszu}) {
            EXPECT_TRUE(policz(droga, numery_, odmowa, {u" "_s, u"A"_s}).empty());
            const auto wynik = wiersze();
            ASSERT_EQ(wynik.size(), wzor.size());
            for (const auto& [klucz, wiersz] : wzor) {
                const auto ten = wynik.find(klucz);
                ASSERT_NE(ten, wynik.end()) << klucz;
                EXPECT_EQ(ten->second, wiersz) << klucz << ", way " << static_cast<int>(droga);
            }
        }
    }
}

TEST_F(DrogiTest, WhatOneActionReadDoesNotServeTheNext) {
    Stale& s = stale();
    s.OsobHarPrac = false;
    s.SklSrL4 = s.SkSumDoSrURL = {1};
    s.MiesSrBr = s.ZIluMSrDn = 1;
    s.PremPr = 0;
    pracownik(1, "placa_zas=1000");
    wczesniej({2001, 6}, 1, "SP_1=3000 DN_RO=20 BRUTTO=3000");
    zwolnienie(1, {2001, 7, 2}, {2001, 7, 3}, 100);
    urlop(1, {2001, 7, 5}, {2001, 7, 5});
    const auto l = lista();
    for (const QString& pytanie : {pytania::dniSerii, pytania::l4Serii})
        rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::placaPoL4Serii, Odpowiedz::Nie);
    rozmowa_.spodziewaj(pytania::urlopSerii, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::poUrlopieSerii, Odpowiedz::Nie);
    EXPECT_EQ(l->DodajPracownikow({1}).wykonane, 1);
    oczekujWPliku({1, u" "_s}, "DN_ZAS=2 DN_URL=1 DN_RO=19 SP_20=200 SP_5=150 ST_PD=19");

    sesja().cnPlace.wykonaj("UPDATE PLS200106 SET SP_1 = 60000000; UPDATE PLA200106 SET BRUTTO = 400000000;"
                            "UPDATE ZW SET data_do = '2001-07-04'; UPDATE URL SET data_do = '2001-07-06';"
                            "UPDATE KALENDARZ SET DZIEN_9 = 1");
    ASSERT_TRUE(l->Wypisz_daneP({1, u" "_s}));
    rozmowa_.spodziewaj(pytania::dni, Odpowiedz::Tak);
    l->Przelicz_Dni();
    rozmowa_.spodziewaj(pytania::l4, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::placaPoL4, Odpowiedz::Nie);
    rozmowa_.spodziewaj(pytania::urlop, Odpowiedz::Tak);
    rozmowa_.spodziewaj(pytania::poUrlopie, Odpowiedz::Nie);
    l->Przelicz2();
    rozmowa_.spodziewaj(u"Uwaga! Przekroczona grupa podatkowa. Wyliczenie nastąpi w grupie 2."_s,
                        Styl::Wykrzyknik);
    rozmowa_.spodziewaj(u"Uwaga! Po zsumowaniu kwot z umów zleceń, umów o dzieło i honorariów następuje "
                        "przekroczenie grupy podatkowej do 2."_s,
                        Styl::Wykrzyknik);
    l->Przelicz1();
    oczekujWPliku({1, u" "_s}, "DN_ZAS=3 DN_URL=2 DN_RO=16 SP_20=600 SP_5=600 ST_PD=30");
}

TEST_F(DrogiTest, DamagedRegistersHarmNobodyElse) {
    Stale& s = stale();
    s.SklSrL4 = s.SkSumDoSrURL = {1};
    s.MiesSrBr = s.ZIluMSrDn = 1;
    s.NrNGS = {10};
    nadgodziny({});
    QList<qint64> numery;
    QStringList szkody;
    for (const auto& p : kUszkodzenia) {
        const qint64 nr = numery.size() + 1;
        numery += nr;
        pracownik(nr, "placa_zas=1000 DOD_10=1");
        wczesniej({2001, 6}, nr, "SP_1=3000 DN_RO=20");
        szkody.append(QString::fromLatin1(p.sql)
                          .replace(u"#"_s, QString::number(nr))
                          .replace(u"MAX"_s, u"9223372036854775807"_s));
    }
    // A handle refuses a damaged table, so the damage is done when all rows are there.
    sesja().cnPlace.wykonaj(szkody.join(u';').toStdString());
    for (const Droga droga : {Droga::SeriaFirmy, Droga::MaleSerie}) {
        const auto niepowodzenia = policz(droga, numery, u"po L-4"_s);
        const auto stan = wiersze();
        qint64 nr = 0;
        for (const auto& p : kUszkodzenia) {
            SCOPED_TRACE(p.opis);
            ++nr;
            const auto powod = niepowodzenia.contains(nr) ? niepowodzenia.at(nr) : QString();
            if (p.wynik) {
                EXPECT_EQ(powod, QString());
                oczekujWPliku({nr, u" "_s}, p.wynik);
            } else {
                EXPECT_TRUE(powod.contains(QString::fromUtf16(p.powod))) << powod.toStdString();
                EXPECT_FALSE(stan.contains("PLA " + std::to_string(nr) + "  ")) << "stored all the same";
            }
        }
    }
}

} // namespace

} // namespace tornel::testy
