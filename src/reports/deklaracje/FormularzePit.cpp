#include "reports/deklaracje/FormularzePit.h"

namespace tornel::reports {

using tax::Deklaracja;

namespace {

/// The same address stands on every form twice; only the columns differ.
struct KolumnyAdresu {
    std::string_view kraj, woj, powiat, gmina, ulica, dom, lokal, miejscowosc, kod, poczta;
};
constexpr KolumnyAdresu kAdresPlatnika{"kraj",   "woj",    "powiat", "gmina",    "ulica",
                                       "nr_dom", "nr_lok", "miejsc", "kod_pocz", "poczta"};
constexpr KolumnyAdresu kAdresPodatnika{"p_kraj", "p_woj",  "p_powiat", "p_gmina", "p_ul",
                                        "p_nr_d", "p_nr_l", "p_miejsc", "p_kod",   "p_poczta"};

void adres(StronaFormularza& s, const KolumnyAdresu& k) {
    s.rzad({{1, u"Kraj", k.kraj}, {1.4, u"Województwo", k.woj}, {1.4, u"Powiat", k.powiat}});
    s.rzad({{1.4, u"Gmina", k.gmina},
            {1.8, u"Ulica", k.ulica},
            {0.6, u"Nr domu", k.dom},
            {0.6, u"Nr lokalu", k.lokal}});
    s.rzad({{1.6, u"Miejscowość", k.miejscowosc}, {0.8, u"Kod pocztowy", k.kod}, {1.6, u"Poczta", k.poczta}});
}

constexpr QStringView kZrodla[] = {
    u"1. Wynagrodzenie ze stosunku pracy, służbowego, spółdzielczego i z pracy nakładczej",
    u"2. Dniówki obrachunkowe i udział w dochodzie spółdzielni",
    u"3. Emerytury i renty krajowe",
    u"4. Emerytury i renty zagraniczne",
    u"5. Zasiłki pieniężne z ubezpieczenia społecznego wypłacane przez zakład pracy",
    u"6. Należności za pracę wypłacane osobom tymczasowo aresztowanym i skazanym",
    u"7. Świadczenia wypłacone z Funduszu Pracy i z Funduszu Gwarantowanych Świadczeń Pracowniczych",
    u"8. Przychody z działalności wykonywanej osobiście, umowy zlecenia i o dzieło",
    u"9. Prawa autorskie i inne prawa majątkowe",
    u"10. Inne źródła",
};

// --- PIT-4
// -------------------------------------------------------------------------------------------------------

void pit4Strona1(StronaFormularza& s) {
    // The words of line 17 name box 66 as the tax to be paid over, so the head has no box for a status.
    s.rzad({{2, u"Numer Identyfikacji Podatkowej płatnika", "Nip"}, {1.4, u"Nr dokumentu"}});
    s.tytul(u"PIT-4", u"DEKLARACJA NA ZALICZKĘ MIESIĘCZNĄ",
            u"na podatek dochodowy od osób fizycznych, pobraną przez płatnika");
    s.rzad({{3}, {1, u"Miesiąc", "mies_tyt", Format::Liczba}, {1, u"Rok", "rok_tyt", Format::Liczba}, {3}});
    s.czesc(u"A. MIEJSCE SKŁADANIA DEKLARACJI");
    s.rzad({{1, u"Urząd skarbowy, do którego adresowana jest deklaracja", "us"}});
    s.czesc(u"B. DANE PŁATNIKA");
    s.podczesc(u"B.1. DANE IDENTYFIKACYJNE");
    s.wybor(u"Rodzaj płatnika",
            {{1, u"płatnik niebędący osobą fizyczną", "pla_niefiz"}, {1, u"osoba fizyczna", "pla_fiz"}});
    s.rzad({{1, u"Nazwa pełna albo nazwisko i imię", "Nazwa"}});
    s.podczesc(u"B.2. ADRES SIEDZIBY ALBO ZAMIESZKANIA");
    adres(s, kAdresPlatnika);
    s.czesc(u"C. OBLICZENIE NALEŻNYCH ZALICZEK");
    QList<WierszTabeli> wiersze;
    static constexpr std::array<std::array<std::string_view, 5>, 8> kolumny{{
        {"przy_1", "kup_1", "ubzdr_pob1", "ubzdr_odl1", "pob_zal_1"},
        {"przy_2", "kup_2", "ubzdr_pob2", "ubzdr_odl2", "pob_zal_2"},
        {"przy_3", "kup_3", "ubzdr_pob3", "ubzdr_odl3", "pob_zal_3"},
        {"przy_4", "kup_4", "ubzdr_pob4", "ubzdr_odl4", "pob_zal_4"},
        {"przy_5", "kup_5", "ubzdr_pob5", "ubzdr_odl5", "pob_zal_5"},
        {"przy_6", "kup_6", "ubzdr_pob6", "ubzdr_odl6", "pob_zal_6"},
        {"przy_7", "kup_7", "ubzdr_pob7", "ubzdr_odl7", "pob_zal_7"},
        {"przy_8", "kup_8", "ubzdr_pob8", "ubzdr_odl8", "pob_zal_8"},
    }};
    for (std::size_t n = 0; n < kolumny.size(); ++n)
        wiersze.append({kZrodla[n], {kolumny[n].begin(), kolumny[n].end()}});
    wiersze.append({u"9. Razem zaliczki: suma wierszy 1 do 8", {{}, {}, {}, {}, "SUMA1"}, true});
    s.tabela(u"Źródła przychodów",
             {{16, u"Liczba podatników", Format::Liczba},
              {32, u"Suma wypłat podlegających opodatkowaniu"},
              {27, u"Ubezpieczenie zdrowotne pobrane"},
              {27, u"Ubezpieczenie zdrowotne odliczone"},
              {29, u"Należne zaliczki"}},
             wiersze, 10);
}

void pit4Strona2(StronaFormularza& s) {
    s.tytul(u"PIT-4", u"DEKLARACJA NA ZALICZKĘ MIESIĘCZNĄ", u"strona 2");
    s.czesc(u"D. OBLICZENIE KWOTY DO WPŁATY");
    s.tabela(
        u"Treść", {{42, u"Kwota"}},
        {{u"10. Kwota zaliczek, których pobór został ograniczony na podstawie art. 32 ust. 2 ustawy "
          u"(odejmuje się)",
          {"pob_zal_10"}},
         {u"11. Kwota przypadająca do pobrania w związku z ograniczeniem poboru zaliczek w poprzednich "
          u"miesiącach, dokonanym na podstawie art. 32 ust. 2 ustawy",
          {"pob_zal_11"}},
         {u"12. Kwota dodatkowo pobranego podatku z rozliczenia za rok ubiegły", {"pob_zal_12"}},
         {u"13. Zaliczenie nadpłaty wynikającej z rozliczenia za rok ubiegły (odejmuje się)", {"pob_zal_13"}},
         {u"14. Zwrot nadpłaty w gotówce z rozliczenia za rok ubiegły (odejmuje się)", {"pob_zal_14"}},
         {u"15. Kwota pobranego podatku, przekazana na PFRON oraz zakładowy fundusz rehabilitacji osób "
          u"niepełnosprawnych (odejmuje się)",
          {"pob_zal_15"}},
         {u"16. Kwota pobranych zaliczek od wypłat należności z tytułu działalności określonej w art. 13 pkt "
          u"2 i 5-9 ustawy, z praw autorskich i praw pokrewnych",
          {"pob_zal_16"}},
         {u"Podatek po rozliczeniu wierszy 9 do 16", {"SUMA2"}, true},
         {u"17. Wynagrodzenie z tytułu terminowego wpłacania podatku, potrącone na podstawie art. 28 "
          u"Ordynacji podatkowej",
          {"pob_zal_17"}},
         {u"KWOTA DO WPŁATY", {"SUMA3"}, true}},
        11);
    s.czesc(u"E. WYJAŚNIENIE RÓŻNICY MIĘDZY PODATKIEM POBRANYM A WPŁACONYM");
    s.rzad({{1, u"Wyjaśnienie", "roznica", Format::Tekst, true}}, 34);
    s.czesc(u"F. OŚWIADCZENIE I PODPIS OSOBY WYPEŁNIAJĄCEJ");
    s.rzad({{1, u"Imię", "Imie"},
            {1.4, u"Nazwisko", "Nazw"},
            {1, u"Data wypełnienia", "data_wyp", Format::Data}});
    s.rzad({{1.4, u"Podpis osoby wypełniającej"}, {2, u"Pieczęć i podpis płatnika"}}, 24);
    s.czesc(u"G. ADNOTACJE URZĘDU SKARBOWEGO");
    s.rzad({{1, u"Uwagi urzędu"}}, 22);
    s.rzad({{1, u"Identyfikator przyjmującego"}, {1, u"Podpis przyjmującego"}}, 14);
}

// --- yearly declarations
// -----------------------------------------------------------------------------------------

struct OpisRocznej {
    QStringView symbol, nazwa, podstawa;
};

void rocznaStrona1(StronaFormularza& s, const OpisRocznej& opis, bool koszty) {
    s.rzad({{2, u"Numer Identyfikacji Podatkowej płatnika", "Nip"}, {1, u"Nr dokumentu"}, {1, u"Status"}});
    s.tytul(opis.symbol, opis.nazwa, opis.podstawa);
    s.rzad({{2}, {1.2, u"Okres pracy od", "od_d", Format::Data}, {1.2, u"do", "do_d", Format::Data}, {2}});
    s.czesc(u"A. MIEJSCE SKŁADANIA");
    s.rzad({{1, u"Urząd skarbowy podatnika", "us"}});
    s.czesc(u"B. DANE PŁATNIKA");
    s.podczesc(u"B.1. DANE IDENTYFIKACYJNE");
    s.wybor(u"Rodzaj płatnika",
            {{1, u"płatnik niebędący osobą fizyczną", "rodzaj_pla1"}, {1, u"osoba fizyczna", "rodzaj_pla2"}});
    s.rzad({{1, u"Nazwa pełna albo nazwisko i imię", "Nazwa"}});
    s.rzad({{2, u"Nazwa skrócona", "skrot"}, {1, u"REGON albo PESEL", "reg_pes"}});
    s.podczesc(u"B.2. ADRES SIEDZIBY ALBO ZAMIESZKANIA");
    adres(s, kAdresPlatnika);
    s.czesc(u"C. DANE PODATNIKA");
    s.podczesc(u"C.1. DANE IDENTYFIKACYJNE");
    s.rzad({{1, u"Numer Identyfikacji Podatkowej podatnika", "numer_id"},
            {1, u"Data urodzenia", "data_ur", Format::Data}});
    s.rzad({{1.4, u"Nazwisko", "Nazwisko"}, {1, u"Pierwsze imię", "imie1"}});
    s.podczesc(u"C.2. ADRES ZAMIESZKANIA");
    adres(s, kAdresPodatnika);
    if (!koszty) return;
    s.czesc(u"D. KOSZTY UZYSKANIA PRZYCHODÓW Z WIERSZA 1");
    s.wybor(u"Podstawa kosztów", {{1, u"art. 22 ust. 2 ustawy", "kuz1"},
                                  {1, u"art. 22 ust. 2a ustawy", "kuz2"},
                                  {1, u"art. 22 ust. 2 i 2a ustawy", "kuz3"}});
}

/// Sources with their columns; where the table has no costs for a line, its box stays shaded.
void zrodla(StronaFormularza& s, const TabelaDef& tabela, QStringView czesc) {
    static constexpr std::array<std::array<std::string_view, 4>, 10> kolumny{{
        {"przy_1", "kup_1", "dochod_1", "pob_zal_1"},
        {"przy_2", "kup_2", "dochod_2", "pob_zal_2"},
        {"przy_3", "kup_3", "dochod_3", "pob_zal_3"},
        {"przy_4", "kup_4", "dochod_4", "pob_zal_4"},
        {"przy_5", "kup_5", "dochod_5", "pob_zal_5"},
        {"przy_6", "kup_6", "dochod_6", "pob_zal_6"},
        {"przy_7", "kup_7", "dochod_7", "pob_zal_7"},
        {"przy_8", "kup_8", "dochod_8", "pob_zal_8"},
        {"przy_9", "kup_9", "dochod_9", "pob_zal_9"},
        {"przy_10", "kup_10", "dochod_10", "pob_zal_10"},
    }};
    QList<WierszTabeli> wiersze;
    for (std::size_t n = 0; n < kolumny.size(); ++n) {
        WierszTabeli w{kZrodla[n], {}};
        for (const std::string_view k : kolumny[n])
            w.kolumny.append(tabela.numer(k) >= 0 ? k : std::string_view());
        wiersze.append(w);
        if (n == 0 && tabela.numer("przy_1a") >= 0)
            wiersze.append({u"1a. W tym z zastosowaniem kosztów z art. 22 ust. 2a ustawy",
                            {"przy_1a", "kup_1a", {}, {}}});
    }
    wiersze.append({u"RAZEM", {"SPRZY", "SKUP", "SDOCHOD", "SPOB_ZAL"}, true});
    s.czesc(czesc);
    s.tabela(u"Źródła przychodów",
             {{31, u"Przychód"},
              {29, u"Koszty uzyskania przychodów"},
              {31, u"Dochód"},
              {29, u"Zaliczka pobrana przez płatnika"}},
             wiersze, 9.2);
}

void skladki(StronaFormularza& s, QStringView czesc) {
    s.czesc(czesc);
    s.rzad({{1, u"Składki na ubezpieczenia społeczne pobrane", "Skladki", Format::Kwota},
            {1, u"Ubezpieczenie zdrowotne pobrane", "skl_pob", Format::Kwota},
            {1, u"Ubezpieczenie zdrowotne odliczone", "skl_odl", Format::Kwota}});
}

void podpisy(StronaFormularza& s, QStringView czesc) {
    s.czesc(czesc);
    s.rzad({{1, u"Imię", "Imie"},
            {1.4, u"Nazwisko", "Nazw"},
            {1, u"Data wypełnienia", "data_wyp", Format::Data}});
    s.rzad({{1.4, u"Podpis osoby wypełniającej"}, {2, u"Pieczęć i podpis płatnika"}}, 22);
}

constexpr OpisRocznej kPit11{u"PIT-11", u"INFORMACJA O DOCHODACH I POBRANYCH ZALICZKACH",
                             u"na podatek dochodowy od osób fizycznych"};
constexpr OpisRocznej kPit40{u"PIT-40", u"ROCZNE OBLICZENIE PODATKU",
                             u"od dochodu uzyskanego przez podatnika, sporządzone przez płatnika"};
constexpr OpisRocznej kPit8B{u"PIT-8B", u"INFORMACJA O WYPŁACONYCH NALEŻNOŚCIACH I POBRANYM PODATKU",
                             u"z działalności wykonywanej osobiście i z praw majątkowych"};

void pit11Strona2(StronaFormularza& s) {
    s.tytul(kPit11.symbol, kPit11.nazwa, u"strona 2");
    zrodla(s, schemat::PIT11, u"E. DOCHODY I POBRANE ZALICZKI");
    skladki(s, u"F. SKŁADKI");
    s.czesc(u"G. ZAŁĄCZNIK");
    s.wybor(u"Dołączono PIT-R", {{1, u"tak", "pitrtak"}, {1, u"nie", "pitrnie"}});
    podpisy(s, u"H. OŚWIADCZENIE I PODPIS OSOBY WYPEŁNIAJĄCEJ");
}

void pit40Strona2(StronaFormularza& s) {
    s.tytul(kPit40.symbol, kPit40.nazwa, u"strona 2");
    zrodla(s, schemat::PIT40, u"D. DOCHODY I POBRANE ZALICZKI");
    skladki(s, u"E. SKŁADKI");
    s.czesc(u"F. OBLICZENIE PODATKU");
    s.tabela(u"Treść", {{42, u"Kwota"}},
             {{u"Dochód po odliczeniu składek na ubezpieczenia społeczne", {"doch_odl"}},
              {u"Podstawa obliczenia podatku, w pełnych złotych", {"podst"}},
              {u"Podatek obliczony według skali", {"pod_obl"}},
              {u"Podatek należny po odliczeniu ubezpieczenia zdrowotnego", {"podatek"}, true},
              {u"Suma pobranych zaliczek", {"SPOB_ZAL"}},
              {u"NADPŁATA", {"nadplata"}, true},
              {u"DO ZAPŁATY", {"doplata"}, true}},
             7.6);
    podpisy(s, u"G. OŚWIADCZENIE I PODPIS OSOBY WYPEŁNIAJĄCEJ");
}

void pit8BStrona2(StronaFormularza& s) {
    s.tytul(kPit8B.symbol, kPit8B.nazwa, u"strona 2");
    zrodla(s, schemat::PIT8B, u"D. NALEŻNOŚCI I POBRANY PODATEK");
    skladki(s, u"E. SKŁADKI");
    podpisy(s, u"F. OŚWIADCZENIE I PODPIS OSOBY WYPEŁNIAJĄCEJ");
}

struct OpisFormularza {
    std::array<QStringView, 2> obrazy;
    void (*pierwsza)(StronaFormularza&);
    void (*druga)(StronaFormularza&);
};

OpisFormularza opisFormularza(Deklaracja ktora) {
    switch (ktora) {
    case Deklaracja::Pit4:
        return {{u":/formularze/pit4-1.svg", u":/formularze/pit4-2.svg"}, pit4Strona1, pit4Strona2};
    case Deklaracja::Pit11:
        return {{u":/formularze/pit11-1.svg", u":/formularze/pit11-2.svg"},
                [](StronaFormularza& s) { rocznaStrona1(s, kPit11, true); },
                pit11Strona2};
    case Deklaracja::Pit40:
        return {{u":/formularze/pit40-1.svg", u":/formularze/pit40-2.svg"},
                [](StronaFormularza& s) { rocznaStrona1(s, kPit40, false); },
                pit40Strona2};
    case Deklaracja::Pit8B:
        break;
    }
    return {{u":/formularze/pit8b-1.svg", u":/formularze/pit8b-2.svg"},
            [](StronaFormularza& s) { rocznaStrona1(s, kPit8B, false); },
            pit8BStrona2};
}

std::array<StronaFormularza, 2> zbuduj(Deklaracja ktora) {
    const TabelaDef& tabela = *tax::OpisDeklaracji(ktora).tabela;
    const OpisFormularza opis = opisFormularza(ktora);
    StronaFormularza pierwsza(tabela, SumyFormularza(ktora), opis.obrazy[0], 1);
    opis.pierwsza(pierwsza);
    StronaFormularza druga(tabela, SumyFormularza(ktora), opis.obrazy[1], pierwsza.nastepny());
    opis.druga(druga);
    return {std::move(pierwsza), std::move(druga)};
}

} // namespace

std::array<StronaFormularza, 2>& StronyFormularza(Deklaracja ktora) {
    static std::array<std::array<StronaFormularza, 2>, 4> strony{
        zbuduj(Deklaracja::Pit4), zbuduj(Deklaracja::Pit11), zbuduj(Deklaracja::Pit40),
        zbuduj(Deklaracja::Pit8B)};
    return strony.at(static_cast<std::size_t>(ktora));
}

QList<std::string_view> SumyFormularza(Deklaracja ktora) {
    if (ktora == Deklaracja::Pit4) return {"SUMA1", "SUMA2", "SUMA3"};
    return {"SPRZY", "SKUP", "SDOCHOD", "SPOB_ZAL"};
}

} // namespace tornel::reports
