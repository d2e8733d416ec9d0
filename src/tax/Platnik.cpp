#include "tax/Platnik.h"
#include "common/Blad.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"

namespace tornel::tax {

using schemat::PRACDP;
using schemat::PRACPR;
using schemat::US;

namespace {

constexpr std::pair<std::string_view, QString Stale::*> kZeStalych[] = {
    {"Nip", &Stale::NIPPlatnika},
    {"Nazwa", &Stale::NazwaPelna},
    {"kraj", &Stale::PITKraj},
    {"woj", &Stale::PITWoj},
    {"powiat", &Stale::PITPowiat},
    {"gmina", &Stale::PITGmina},
    {"ulica", &Stale::PITUlica},
    {"nr_dom", &Stale::PITNrDomu},
    {"nr_lok", &Stale::PITNrLok},
    {"miejsc", &Stale::PITMiejsc},
    {"kod_pocz", &Stale::PITKodPocztowy},
    {"poczta", &Stale::PITPoczta},
    {"Imie", &Stale::PITImie},
    {"Nazw", &Stale::PITNazw},
};

constexpr std::pair<std::string_view, Kolumna> kZKadr[] = {
    {"numer_id", PRACDP("Nip")},    {"Nazwisko", PRACDP("Naz")},    {"imie1", PRACDP("Imie_1")},
    {"p_kraj", PRACDP("kraj")},     {"p_woj", PRACDP("woj")},       {"p_gmina", PRACDP("gm_dz")},
    {"p_powiat", PRACDP("powiat")}, {"p_ul", PRACDP("ulica")},      {"p_nr_d", PRACDP("nr_domu")},
    {"p_nr_l", PRACDP("nr_miesz")}, {"p_miejsc", PRACDP("miasto")}, {"p_kod", PRACDP("Kod")},
    {"p_poczta", PRACDP("poczta")},
};

/// The name of the employee's tax office, empty without one.
QString urzad(Sesja& sesja, qint64 prcId) {
    PrzygotowaneZapytanie numer(
        sesja.cnPlace, Zapytanie(PRACPR).kolumny(PRACPR("us_id")).gdzie(PRACPR("PRC_ID") == Parametr{0}));
    auto pr = numer.uruchom(prcId);
    if (!pr.nastepny()) return {};
    PrzygotowaneZapytanie nazwa(sesja.cnPlace,
                                Zapytanie(US).kolumny(US("Nazwa")).gdzie(US("US_ID") == Parametr{0}));
    auto us = nazwa.uruchom(pr.liczba(PRACPR("us_id")));
    return us.nastepny() ? us.tekst(US("Nazwa")) : QString();
}

void wpiszPodatnika(Sesja& sesja, Recordset& deklaracja, qint64 prcId) {
    Zapytanie pytanie(PRACDP);
    pytanie.kolumny(PRACDP("data_ur")).gdzie(PRACDP("PRC_ID") == Parametr{0});
    for (const auto& [pole, zrodlo] : kZKadr) pytanie.kolumny(zrodlo);
    PrzygotowaneZapytanie gotowe(sesja.cnPlace, pytanie);
    auto osoba = gotowe.uruchom(prcId);
    if (!osoba.nastepny()) throw Blad(QStringLiteral("Nie ma pracownika o numerze %1.").arg(prcId));
    for (const auto& [pole, zrodlo] : kZKadr)
        deklaracja.ustaw(KolumnaDeklaracji(deklaracja, pole), osoba.tekst(zrodlo));
    deklaracja.ustaw(KolumnaDeklaracji(deklaracja, "data_ur"), osoba.data(PRACDP("data_ur")));
}

} // namespace

Kolumna KolumnaDeklaracji(const Recordset& deklaracja, std::string_view nazwa) {
    const int nr = deklaracja.tabela().numer(nazwa);
    if (nr < 0) throw std::logic_error("no such column in the declaration");
    return deklaracja.tabela().nr(nr);
}

void WpiszPlatnika(Recordset& deklaracja, const Stale& stale) {
    for (const auto& [pole, stala] : kZeStalych)
        deklaracja.ustaw(KolumnaDeklaracji(deklaracja, pole), stale.*stala);
}

void WpiszNaglowekRoczny(Sesja& sesja, Recordset& deklaracja, const Stale& stale, qint64 prcId, QDate dzis) {
    if (!deklaracja.otwarty()) deklaracja.Open(sesja.cnPlace);
    if (deklaracja.RecordCount() == 0)
        deklaracja.AddNewZero();
    else
        deklaracja.MoveFirst();
    wpiszPodatnika(sesja, deklaracja, prcId);
    WpiszPlatnika(deklaracja, stale);
    const auto pole = [&](std::string_view nazwa) { return KolumnaDeklaracji(deklaracja, nazwa); };
    deklaracja.ustaw(pole("us"), urzad(sesja, prcId));
    deklaracja.ustaw(pole("skrot"), stale.NazwaSkroc);
    deklaracja.ustaw(pole("reg_pes"), stale.REGON_PESEL);
    deklaracja.ustaw(pole("od_d"), stale.PITOkresOd);
    deklaracja.ustaw(pole("do_d"), stale.PITOkresDo);
    deklaracja.ustaw(pole("rodzaj_pla1"), QString(stale.OsFizyczna ? u' ' : u'x'));
    deklaracja.ustaw(pole("rodzaj_pla2"), QString(stale.OsFizyczna ? u'x' : u' '));
    deklaracja.ustaw(pole("data_wyp"), dzis);
}

} // namespace tornel::tax
