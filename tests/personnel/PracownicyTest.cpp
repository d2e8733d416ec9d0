#include "personnel/Pracownicy.h"
#include "common/Daty.h"
#include "store/Struktura.h"
#include "wsparcie/PlaceTestowe.h"
#include "wsparcie/Przestrzen.h"
#include <set>

namespace tornel::testy {

using schemat::PRACDP;
using schemat::RODZINA;
using namespace Qt::StringLiterals;

namespace {

const QString kSpoleczne = u"Został zarejestrowany nowy pracownik. Czy nastąpi zgłoszenie pracownika do "
                           "ubezpieczeń społecznych ?"_s;
const QString kZdrowotne = u"Czy nastąpi zgłoszenie pracownika do ubezpieczenia zdrowotnego ?"_s;
const QString kUsunac = u"Czy na pewno usunąć wybranego pracownika ?"_s;

const QString kOstrzezenie = u"Ostrzeżenie !"_s;

/// The second question before a deletion, and the third, which names what is left behind.
QString ostrzezenie(const QString& poczatek) {
    return poczatek + u"Upewnij się czy usuwany pracownik nie jest wpisany na liscie plac lub dni wolnych "
                      "itp. Czy kontynuować ?"_s;
}
QString zapisy(const QString& kto, const QString& gdzie) {
    return u"Pracownik %1 jest jeszcze w tych zapisach:\n\n%2\n\nZostaną one w bazie bez danych "
           "pracownika. Czy mimo to usunąć pracownika ?"_s.arg(kto, gdzie);
}

class PracownicyTest : public PlaceTestowe {
protected:
    Pracownicy pracownicy() { return Pracownicy(otoczenie()); }
    static QString numery(const QList<Osoba>& osoby) {
        QStringList wynik;
        for (const Osoba& o : osoby) wynik += QString::number(o.prcId);
        return wynik.join(u","_s);
    }
    /// Rows of the employee in the six tables of the file.
    QString wiersze(qint64 prcId) {
        QString wynik;
        for (const TabelaDef* t : {&schemat::PRACDP, &schemat::PRACPR, &schemat::PRACINF, &schemat::PRACSK,
                                   &schemat::PRACZUS, &RODZINA}) {
            Recordset rs(*t);
            rs.Open(sesja().cnPlace);
            wynik += QString::number(rs.wiersze(prcId).size());
        }
        return wynik;
    }
    void dziecko(qint64 prcId, int rodId) {
        Recordset rs(RODZINA);
        rs.Open(sesja().cnPlace);
        rs.AddNewZero(prcId);
        rs.ustaw(RODZINA("ROD_ID"), rodId);
        rs.UpdateBatch(u"Dane testu");
    }
};

TEST_F(PracownicyTest, ANewEmployeeHasTheDefaultsInAllFiveTables) {
    stale().PFE = zl(9);
    stale().PUBZD = zl(7.75);
    const struct {
        std::optional<Odpowiedz> zdrowotne; // none: no report at all
        QString oiZua;
    } przypadki[] = {{{}, u"0"_s}, {Odpowiedz::Tak, u"1"_s}, {Odpowiedz::Nie, u"2"_s}};
    qint64 nr = 0;
    for (const auto& p : przypadki) {
        rozmowa_.spodziewaj(kSpoleczne, p.zdrowotne ? Odpowiedz::Tak : Odpowiedz::Nie);
        if (p.zdrowotne) rozmowa_.spodziewaj(kZdrowotne, *p.zdrowotne);
        pracownicy().NowyPracownik({++nr, u"  Łoś "_s, u" Ewa"_s});
        EXPECT_TRUE(rozmowa_.gotowa());
        std::map<QString, QString> inne = {// whatever is neither empty, nor 0, nor null
                                           {u"prc_id"_s, QString::number(nr)},
                                           {u"Naz"_s, u"Łoś"_s},
                                           {u"Imie_1"_s, u"Ewa"_s},
                                           {u"plec"_s, u"M"_s},
                                           {u"wsk_fe"_s, u"9 zł"_s},
                                           {u"wsk_fr"_s, u"6,5 zł"_s},
                                           {u"wsk_fc"_s, u"2,45 zł"_s},
                                           {u"Fp"_s, u"2,45 zł"_s},
                                           {u"gsp"_s, u"0,08 zł"_s},
                                           {u"wsk_ubzdr"_s, u"7,75 zł"_s},
                                           {u"oi_zua"_s, p.oiZua},
                                           {u"dod"_s, u"545294867"_s},
                                           {u"pot"_s, u"16641"_s}};
        for (const char* flaga :
             {"czy_2progi", "czy_konto", "czy_kuz", "czy_ulga", "Zwoln", "umowa_zlec", "umowa_o_dz",
              "honorarium", "podlega_fe", "podlega_fr", "podlega_fc", "podlega_fw", "podlega_uz", "wsp_gosp",
              "zwua_e", "zwua_r", "zwua_c", "zwua_w", "zwua_z"})
            inne[QLatin1String(flaga)] = u"N"_s;
        for (const TabelaDef* t :
             {&schemat::PRACDP, &schemat::PRACPR, &schemat::PRACINF, &schemat::PRACSK, &schemat::PRACZUS}) {
            Recordset rs(*t);
            rs.Open(sesja().cnPlace);
            ASSERT_TRUE(rs.Znajdz(nr));
            for (int i = 0; i < static_cast<int>(t->kolumny.size()); ++i) {
                const KolumnaDef& def = t->kolumny[static_cast<std::size_t>(i)];
                const QString nazwa =
                    QString::fromLatin1(def.nazwa.data(), static_cast<qsizetype>(def.nazwa.size()));
                const bool tekst = def.typ == Typ::Text || def.typ == Typ::Memo;
                const QString puste = tekst                      ? QString()
                                      : def.typ == Typ::Date     ? u"null"_s
                                      : def.typ == Typ::Currency ? u"0 zł"_s
                                                                 : u"0"_s;
                const auto miejsce = std::find_if(inne.begin(), inne.end(), [&](const auto& para) {
                    return para.first.compare(nazwa, Qt::CaseInsensitive) == 0;
                });
                EXPECT_EQ(QString::fromStdString(tekstWartosci(rs.wartosc(t->nr(i)))),
                          miejsce == inne.end() ? puste : miejsce->second)
                    << def.nazwa;
            }
        }
    }
    EXPECT_EQ(sesja().rsPRACZUS.liczba(schemat::PRACZUS("prc_id")), 3) << "the handles stand on him";
}

TEST_F(PracownicyTest, WrongDataAddNobody) {
    dodajPracownika(5);
    const std::pair<qint64, QString> zle[] = {{0, u"A"_s}, {-1, u"A"_s}, {kNajwyzszyNumer + 1, u"A"_s},
                                              {5, u"A"_s}, {6, u" "_s},  {6, u""_s}};
    for (const auto& [nr, nazwisko] : zle)
        EXPECT_THROW(pracownicy().NowyPracownik({nr, nazwisko, u"B"_s}), Blad) << nr;
    EXPECT_EQ(pracownicy().proponowanyNumer(), 6);
    dodajPracownika(kNajwyzszyNumer);
    EXPECT_EQ(numery(pracownicy().lista(FiltrPracownikow::Wszyscy, PorzadekPracownikow::Numery)),
              u"5,99999"_s);
    EXPECT_EQ(pracownicy().proponowanyNumer(), kNajwyzszyNumer + 1);

    RozmowaBezOdpowiedzi niema;
    Otoczenie bezOdpowiedzi{sesja(), stale(), otoczenie().skladniki, niema};
    EXPECT_THROW(Pracownicy(bezOdpowiedzi).NowyPracownik({7, u"A"_s, u"B"_s}), Przerwanie);
    EXPECT_FALSE(sesja().rsPRACDP.zmieniony());
    EXPECT_EQ(wiersze(7), u"000000"_s);
}

TEST_F(PracownicyTest, FiltersAndThePickerGoByTheFlags) {
    pracownik(1, "");
    pracownik(2, "Zwoln=T umowa_zlec=T honorarium=T");
    pracownik(3, "umowa_zlec=T Zwoln=null");
    pracownik(4, "umowa_o_dz=t");
    pracownik(5, "honorarium=T umowa_o_dz=N");
    using enum FiltrPracownikow;
    const std::pair<FiltrPracownikow, QString> filtry[] = {
        {Wszyscy, u"1,2,3,4,5"_s}, {Pracujacy, u"1,3,4,5"_s}, {Zwolnieni, u"2"_s},
        {UmowaZlecenie, u"2,3"_s}, {UmowaODzielo, u"4"_s},    {Honoraria, u"2,5"_s},
    };
    for (const auto& [filtr, wynik] : filtry)
        EXPECT_EQ(numery(pracownicy().lista(filtr, PorzadekPracownikow::Numery)), wynik);
    const std::pair<int, QString> tryby[] = {{1, u"1,3,4,5"_s}, {2, u"3"_s}, {4, u"4"_s}, {8, u"5"_s}};
    for (const auto& [tryb, wynik] : tryby) EXPECT_EQ(numery(pracownicy().doWyboru(tryb)), wynik) << tryb;
    EXPECT_EQ(numery(pracownicy().doWyboru(1, Zwolnieni::Takze)), u"1,2,3,4,5"_s);
    EXPECT_EQ(numery(pracownicy().doWyboru(8, Zwolnieni::Takze)), u"2,5"_s);

    // The mode is taken as a plain index, deliberately.
    const std::pair<int, QString> komunikaty[] = {
        {0, u"Brak pracowników na liście."_s},
        {1, u"Brak pracowników zatrudnionych na umowę - zlecenie."_s},
        {2, u"Brak pracowników zatrudnionych na umowę o dzieło."_s},
        {3, u"Brak pracowników otrzymujących honoraria."_s},
        {4, QString()},
        {8, QString()},
    };
    for (const auto& [tryb, tekst] : komunikaty) EXPECT_EQ(Pracownicy::komunikatPustejListy(tryb), tekst);
}

TEST_F(PracownicyTest, NamesStandInPolishOrder) {
    const std::pair<const char16_t*, const char16_t*> osoby[] = {
        {u"Żak", u"Jan"},  {u"Zięba", u"Ewa"},  {u"Łoś", u"Adam"},       {u"Lis", u"Zenon"},
        {u"Ćwik", u"Iga"}, {u"Cyran", u"Iga"},  {u"Dąb", u"Żaneta"},     {u"Dąb", u"Zofia"},
        {u"Mak", u"Ola"},  {u"Źrebak", u"Ola"}, {u"Nowakowska", u"Ada"}, {u"Nowak", u"Zyta"},
    };
    qint64 nr = 0;
    for (const auto& [nazwisko, imie] : osoby)
        dodajPracownika(++nr, QString::fromUtf16(nazwisko), QString::fromUtf16(imie));
    const QString porzadek = u"6,5,8,7,4,3,9,12,11,2,10,1"_s;
    EXPECT_EQ(numery(pracownicy().lista(FiltrPracownikow::Wszyscy, PorzadekPracownikow::Nazwiska)), porzadek);
    EXPECT_EQ(numery(pracownicy().doWyboru(1)), porzadek);
    EXPECT_EQ(pracownicy().nazwisko(5), u"Ćwik Iga"_s);
    EXPECT_EQ(pracownicy().nazwisko(99), QString());
}

TEST_F(PracownicyTest, DeletionAsksTwiceAndTakesTheFamily) {
    pracownik(1, "placa_zas=1000", u"Łoś"_s);
    pracownik(2, "", u"Żak"_s);
    for (const int rodId : {1, 2}) dziecko(1, rodId);
    dziecko(2, 1);
    miesiac();
    (void)ListaPlac(otoczenie(), 2001, 7, u" "_s).DodajPracownikow({1});

    const QString zRodzina =
        ostrzezenie(u"Pracownik Łoś Anna o numerze 1 oraz zarejestrowani członkowie jego "
                    "rodziny zostaną usunięci z list. "_s);
    rozmowa_.spodziewaj(kUsunac, Odpowiedz::Nie);
    EXPECT_FALSE(pracownicy().UsunPracownika(1));
    rozmowa_.spodziewaj(kUsunac, Odpowiedz::Tak);
    rozmowa_.spodziewaj(zRodzina, Odpowiedz::Nie, kOstrzezenie);
    EXPECT_FALSE(pracownicy().UsunPracownika(1));
    EXPECT_EQ(wiersze(1), u"111112"_s);
    rozmowa_.spodziewaj(kUsunac, Odpowiedz::Tak);
    rozmowa_.spodziewaj(zRodzina, Odpowiedz::Tak, kOstrzezenie);
    rozmowa_.spodziewaj(zapisy(u"Łoś Anna o numerze 1"_s, u"listy płac: 07.2001"_s), Odpowiedz::Nie,
                        kOstrzezenie);
    EXPECT_FALSE(pracownicy().UsunPracownika(1));
    EXPECT_EQ(wiersze(1), u"111112"_s);
    rozmowa_.spodziewaj(kUsunac, Odpowiedz::Tak);
    rozmowa_.spodziewaj(zRodzina, Odpowiedz::Tak, kOstrzezenie);
    rozmowa_.spodziewaj(zapisy(u"Łoś Anna o numerze 1"_s, u"listy płac: 07.2001"_s), Odpowiedz::Tak,
                        kOstrzezenie);
    EXPECT_TRUE(pracownicy().UsunPracownika(1));
    EXPECT_EQ(wiersze(1), u"000000"_s);
    EXPECT_EQ(wiersze(2), u"111111"_s);
    EXPECT_EQ(wierszeWPliku(), "1 ") << "month tables keep their rows";
    EXPECT_THROW((void)pracownicy().UsunPracownika(1), Blad);

    dodajPracownika(3, u"Mak"_s);
    rozmowa_.spodziewaj(kUsunac, Odpowiedz::Tak);
    rozmowa_.spodziewaj(ostrzezenie(u"Pracownik Mak Anna o numerze 3 zostanie usunięty z listy. "_s),
                        Odpowiedz::Tak, kOstrzezenie);
    EXPECT_TRUE(pracownicy().UsunPracownika(3));
    EXPECT_EQ(numery(pracownicy().lista(FiltrPracownikow::Wszyscy, PorzadekPracownikow::Nazwiska)), u"2"_s);
}

TEST_F(PracownicyTest, DeletionNamesTheMonthsAndContractsLeftBehind) {
    pracownik(2, "", u"Żak"_s);
    // Months in a row are named by their ends; what belongs to others does not count.
    const auto wpisz = [this](const TabelaDef& tabela, const QString& nazwa,
                              std::initializer_list<std::pair<Kolumna, Wartosc>> wartosci) {
        Recordset rs(tabela);
        rs.Open(sesja().cnPlace, nazwa);
        rs.AddNewZero();
        for (const auto& [kolumna, wartosc] : wartosci) rs.ustaw(kolumna, wartosc);
        rs.UpdateBatch(u"Dane testu");
    };
    using namespace schemat;
    for (const int mies : {12, 2, 1, 4}) {
        const int rok = mies == 12 ? 2000 : 2001;
        const QString nazwa = Sesja::nazwaMiesiaca("NADGN", rok, mies);
        wpisz(NADG, {}, {{NADG("ROK"), QString::number(rok)}, {NADG("MIES"), FormatMiesiaca(mies)}});
        UtworzTabele(sesja().cnPlace, NADGN, nazwa);
        wpisz(NADGN, nazwa, {{NADGN("PRC_ID"), qint64{2}}});
    }
    const QDate dzien(2001, 7, 3);
    wpisz(UZL, {},
          {{UZL("UZLID"), qint64{1}},
           {UZL("PRC_ID"), qint64{2}},
           {UZL("uzl_nr"), u"1/2001"_s},
           {UZL("data_zaw"), dzien}});
    wpisz(UZL, {}, {{UZL("UZLID"), qint64{2}}, {UZL("PRC_ID"), qint64{3}}});
    wpisz(UZL, {}, {{UZL("UZLID"), qint64{3}}, {UZL("PRC_ID"), qint64{2}}});
    wpisz(UMOP, {}, {{UMOP("UMOPID"), qint64{7}}, {UMOP("PRC_ID"), qint64{2}}, {UMOP("data_zaw"), dzien}});
    rozmowa_.spodziewaj(kUsunac, Odpowiedz::Tak);
    rozmowa_.spodziewaj(ostrzezenie(u"Pracownik Żak Anna o numerze 2 zostanie usunięty z listy. "_s),
                        Odpowiedz::Tak, kOstrzezenie);
    rozmowa_.spodziewaj(
        zapisy(u"Żak Anna o numerze 2"_s,
               u"nadgodziny: 12.2000 - 02.2001, 04.2001\numowy zlecenia: 1/2001 z 03-07-2001, "
               "3\numowy o pracę: 7 z 03-07-2001"_s),
        Odpowiedz::Nie, kOstrzezenie);
    EXPECT_FALSE(pracownicy().UsunPracownika(2));
    EXPECT_EQ(wiersze(2), u"111110"_s);
}

} // namespace

} // namespace tornel::testy
