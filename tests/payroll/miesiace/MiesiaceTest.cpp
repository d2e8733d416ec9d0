#include "payroll/miesiace/Miesiace.h"
#include "store/Struktura.h"
#include "wsparcie/PlaceTestowe.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

using schemat::PLACE;
using schemat::PLACEN;
using namespace Qt::StringLiterals;

namespace {

const QString kNowyMiesiac = u"Czy na pewno utworzyć nową listę ?"_s;

class MiesiaceTest : public PlaceTestowe {
protected:
    Miesiace miesiace() { return Miesiace(otoczenie()); }
    bool saTabele(RokMies rm) {
        int ile = 0;
        for (const TabelaDef* t : schemat::TabeleMiesiaca)
            ile += sesja().cnPlace.jestTabela(Sesja::nazwaMiesiaca(t->nazwa, rm.rok, rm.mies));
        EXPECT_TRUE(ile == 0 || ile == 4) << "tables of a month come and go together";
        return ile == 4;
    }
    int naglowki() {
        sesja().OtworzNaglowki();
        EXPECT_EQ(sesja().rsPLACE.RecordCount(), sesja().rsPLACEN.RecordCount());
        EXPECT_EQ(sesja().rsPLACE.RecordCount(), sesja().rsPLACEK.RecordCount());
        return sesja().rsPLACE.RecordCount();
    }
    QString nazwa(int nr) { return sesja().rsPLACEN.tekst(schemat::NazwaSkladnikaMiesiaca(nr)); }
    QString kod(int nr) { return sesja().rsPLACEK.tekst(schemat::KodZUSMiesiaca(nr)); }

    static constexpr RokMies kSierpien{2001, 8};
};

/// Bits of components 1, 2, 5, 10, 12, 16, 24, 30 in use; 3 has its flags although it is out of use.
constexpr const char* kMaski =
    "akc=N akt_sp=545294867 br_sp=536873495 zus_sp=536870935 ubzdr_sp=536871447 akt_sm=16641 br_sm=256 "
    "zus_sm=256 ubzdr_sm=256";

TEST_F(MiesiaceTest, ANewMonthKeepsTheCatalogue) {
    miesiac();
    EXPECT_TRUE(saTabele(kLipiec));
    oczekujSum(kLipiec, std::string(kMaski) +
                            " il_wyplat=0 sum_brutto=0 do_wyplaty=0 wsk_ppe=0 sredn_ppe=0 inf_opis=");
    ASSERT_TRUE(miesiace().Ustaw(kLipiec));
    EXPECT_EQ(nazwa(1) + nazwa(31) + nazwa(45), u"S1S31S45"_s);
    EXPECT_EQ(kod(1) + kod(30), u"K1K30"_s);
    EXPECT_EQ(wierszeWPliku(), "");

    // The list is in the order of the months, and a blocked one says so.
    for (const RokMies rm : {RokMies{2002, 1}, {2001, 10}, {2000, 12}}) miesiac(rm);
    blokada({2001, 10}, Odpowiedz::Nie);
    QString lista;
    for (const WierszMiesiaca& w : miesiace().Wczytaj_liste())
        lista += u"%1.%2%3 "_s.arg(w.miesiac.mies).arg(w.miesiac.rok).arg(w.zablokowany ? u"Z"_s : QString());
    EXPECT_EQ(lista, u"12.2000 7.2001 10.2001Z 1.2002 "_s);
}

TEST_F(MiesiaceTest, ARefusedOrDoubleMonthIsNotMade) {
    Miesiace m = miesiace();
    rozmowa_.spodziewaj(kNowyMiesiac, Odpowiedz::Nie);
    EXPECT_FALSE(m.Nowy_miesiac([]() -> std::optional<RokMies> { throw Blad(u"zapytano o miesiąc"_s); }));
    rozmowa_.spodziewaj(kNowyMiesiac, Odpowiedz::Tak);
    EXPECT_FALSE(m.Nowy_miesiac([] { return std::nullopt; }));
    for (const RokMies zly : {RokMies{1989, 12}, {2100, 1}, {2001, 0}, {2001, 13}}) {
        rozmowa_.spodziewaj(kNowyMiesiac, Odpowiedz::Tak);
        EXPECT_THROW((void)m.Nowy_miesiac([&] { return zly; }), Blad) << zly.rok << ' ' << zly.mies;
    }
    EXPECT_EQ(naglowki(), 0);
    miesiac();
    miesiac(kSierpien);
    ASSERT_TRUE(m.Ustaw(kSierpien));
    rozmowa_.spodziewaj(kNowyMiesiac, Odpowiedz::Tak);
    rozmowa_.spodziewaj(u"Podany miesiąc już istnieje!"_s, Styl::Wykrzyknik);
    EXPECT_FALSE(m.Nowy_miesiac([] { return kLipiec; }));
    EXPECT_EQ(sesja().rsPLACE.tekst(PLACE("Mies")), u"08"_s) << "the position is kept";
    EXPECT_EQ(naglowki(), 2);
    for (const RokMies zly : {RokMies{2001, 0}, {2001, 13}, {0, 1}}) {
        rozmowa_.spodziewaj(kNowyMiesiac, Odpowiedz::Tak);
        EXPECT_THROW((void)m.Nowy_miesiac([&] { return zly; }), Blad);
    }
    EXPECT_EQ(naglowki(), 2);
}

TEST_F(MiesiaceTest, AFailureInTheMiddleLeavesNothingBehind) {
    for (const TabelaDef* zawada : {&schemat::PLA, &schemat::PLD}) {
        const QString nazwaZawady = Sesja::nazwaMiesiaca(zawada->nazwa, kLipiec.rok, kLipiec.mies);
        UtworzTabele(sesja().cnPlace, *zawada, nazwaZawady);
        Miesiace m = miesiace();
        rozmowa_.spodziewaj(kNowyMiesiac, Odpowiedz::Tak);
        EXPECT_THROW((void)m.Nowy_miesiac([] { return kLipiec; }), BladBazy);
        EXPECT_TRUE(m.Wczytaj_liste().isEmpty());
        EXPECT_EQ(naglowki(), 0);
        UsunTabele(sesja().cnPlace, nazwaZawady);
        EXPECT_FALSE(saTabele(kLipiec));
    }
    miesiac();
    EXPECT_TRUE(saTabele(kLipiec));
}

TEST_F(MiesiaceTest, DeletingTakesTheTablesAndTheHeaders) {
    const QString pytanie = u"Czy na pewno chcesz usunąć miesiąc 07-2001 z listy ?"_s;
    miesiac();
    miesiac(kSierpien);
    Miesiace m = miesiace();
    int wynik = 1;
    sesja().OtworzMiesiac(2001, 7, wynik);
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
    EXPECT_FALSE(m.Usun_miesiac(kLipiec));
    EXPECT_TRUE(saTabele(kLipiec));
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
    EXPECT_TRUE(m.Usun_miesiac(kLipiec));
    EXPECT_FALSE(saTabele(kLipiec));
    EXPECT_TRUE(saTabele(kSierpien));
    EXPECT_FALSE(sesja().rsPLA.otwarty());
    EXPECT_EQ(naglowki(), 1);
    EXPECT_THROW((void)m.Usun_miesiac(kLipiec), Blad);

    blokada(kSierpien, Odpowiedz::Nie);
    rozmowa_.spodziewaj(u"Miesiąc jest zablokowany i nie można go usunąć"_s, Styl::Wykrzyknik);
    EXPECT_FALSE(m.Usun_miesiac(kSierpien));
    EXPECT_TRUE(saTabele(kSierpien));
}

TEST_F(MiesiaceTest, BlockingKeepsTheCatalogueOnlyWhenWanted) {
    miesiac();
    skladnik(4, "BZU", true);
    Miesiace m = miesiace();
    rozmowa_.spodziewaj(u"Czy napewno zablokować wybrany miesiąc?"_s, Odpowiedz::Nie);
    EXPECT_FALSE(m.BlokadaMies(kLipiec));
    oczekujSum(kLipiec, kMaski);
    blokada(kLipiec, Odpowiedz::Nie);
    oczekujSum(kLipiec, "akc=T akt_sp=545294867");
    for (const auto& [odpowiedz, akc] : {std::pair(Odpowiedz::Nie, "akc=T"), {Odpowiedz::Tak, "akc=N"}}) {
        rozmowa_.spodziewaj(u"Czy napewno odblokować wybrany miesiąc?"_s, odpowiedz);
        EXPECT_EQ(m.BlokadaMies(kLipiec), odpowiedz == Odpowiedz::Tak);
        oczekujSum(kLipiec, akc);
    }
    blokada(kLipiec, Odpowiedz::Tak); // 8 more in each mask of the additive components
    oczekujSum(kLipiec,
               "akc=T akt_sp=545294875 br_sp=536873503 zus_sp=536870943 ubzdr_sp=536871455 akt_sm=16641");
    m.ZapiszOpis(kLipiec, u"Wypłata 10 sierpnia; O'Brien"_s);
    otworzPonownie();
    ASSERT_TRUE(miesiace().Ustaw(kLipiec));
    EXPECT_EQ(sesja().rsPLACE.tekst(PLACE("inf_opis")), u"Wypłata 10 sierpnia; O'Brien"_s);
    EXPECT_THROW((void)miesiace().BlokadaMies(kSierpien), Blad);
}

TEST_F(MiesiaceTest, OpeningAndWalkingAMonth) {
    miesiac();
    miesiac(kSierpien);
    const auto wiersze = [&](RokMies rm, std::initializer_list<std::pair<qint64, QString>> klucze) {
        for (const TabelaDef* t : schemat::TabeleMiesiaca) {
            Recordset rs = zPliku(*t, rm);
            for (const auto& [prcId, lista] : klucze) rs.AddNewZero(prcId, lista);
            rs.UpdateBatch(u"Dane testu");
        }
    };
    wiersze(kLipiec, {{2, u" "_s}, {1, u"B"_s}, {1, u"A"_s}});
    wiersze(kSierpien, {{9, u" "_s}});
    Sesja& s = sesja();
    int wynik = -1;
    s.OtworzMiesiac(2001, 8, wynik);
    EXPECT_EQ(wynik, 0);
    s.OtworzMiesiac(2001, 9, wynik);
    EXPECT_EQ(wynik, 1);
    EXPECT_EQ(s.rsPLA.nazwa(), u"PLA200108"_s) << "the open month stays";
    EXPECT_EQ(s.mies(), 8);

    // The open month is another one: it is opened and its first row taken.
    QString przebieg;
    while (s.PrzesunWierszMiesiaca(2001, 7, true)) {
        przebieg +=
            QString::number(s.rsPLA.liczba(schemat::PLA("PRC_ID"))) + s.rsPLA.tekst(schemat::PLA("LISTA"));
        for (const Recordset* rs : {&s.rsPLB, &s.rsPLD, &s.rsPLS}) {
            EXPECT_EQ(rs->liczba(rs->tabela().nr(0)), s.rsPLA.liczba(schemat::PLA("PRC_ID")));
            EXPECT_EQ(rs->tekst(rs->tabela().nr(1)), s.rsPLA.tekst(schemat::PLA("LISTA")));
        }
    }
    EXPECT_EQ(przebieg, u"1A1B2 "_s);
    EXPECT_FALSE(s.PrzesunWierszMiesiaca(2001, 9, true));
    EXPECT_EQ(s.rsPLA.nazwa(), u"PLA200107"_s);
}

} // namespace

} // namespace tornel::testy
