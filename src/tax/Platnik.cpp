#include "tax/Platnik.h"
#include "common/Blad.h"
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

/// Runs a query for one employee, or over the table.
template <typename Przyjmij>
void czytajOsoby(Sesja& sesja, Zapytanie zapytanie, Kolumna numer, std::optional<qint64> jeden,
                 Przyjmij przyjmij) {
    if (jeden) zapytanie.gdzie(numer == Parametr{0});
    PrzygotowaneZapytanie gotowe(sesja.cnPlace, zapytanie);
    if (jeden)
        for (auto w = gotowe.uruchom(*jeden); w.nastepny();) przyjmij(w);
    else
        for (auto w = gotowe.uruchom(); w.nastepny();) przyjmij(w);
}

QHash<qint64, QString> nazwyUrzedow(Sesja& sesja) {
    QHash<qint64, QString> wynik;
    czytajOsoby(
        sesja, Zapytanie(US).kolumny(US("US_ID"), US("Nazwa")), US("US_ID"), {},
        [&](const WierszeZapytania& w) { wynik.insert(w.liczba(US("US_ID")), w.tekst(US("Nazwa"))); });
    return wynik;
}

} // namespace

void WpiszPlatnika(WierszDeklaracji& deklaracja, const Stale& stale) {
    for (const auto& [pole, stala] : kZeStalych) deklaracja.ustaw(pole, stale.*stala);
}

void WpiszPlatnikaRocznej(WierszDeklaracji& deklaracja, const Stale& stale, QDate dzis) {
    WpiszPlatnika(deklaracja, stale);
    deklaracja.ustaw("skrot", stale.NazwaSkroc);
    deklaracja.ustaw("reg_pes", stale.REGON_PESEL);
    deklaracja.ustaw("od_d", stale.PITOkresOd);
    deklaracja.ustaw("do_d", stale.PITOkresDo);
    deklaracja.ustaw("rodzaj_pla1", QString(stale.OsFizyczna ? u' ' : u'x'));
    deklaracja.ustaw("rodzaj_pla2", QString(stale.OsFizyczna ? u'x' : u' '));
    deklaracja.ustaw("data_wyp", dzis);
}

Podatnicy::Podatnicy(Sesja& sesja, std::optional<qint64> jeden) {
    Zapytanie dane(PRACDP);
    dane.kolumny(PRACDP("PRC_ID"), PRACDP("data_ur"), PRACDP("Pesel"));
    for (const auto& [pole, zrodlo] : kZKadr) dane.kolumny(zrodlo);
    czytajOsoby(sesja, dane, PRACDP("PRC_ID"), jeden, [&](const WierszeZapytania& w) {
        Podatnik& osoba = osoby_[w.liczba(PRACDP("PRC_ID"))];
        for (const auto& [pole, zrodlo] : kZKadr) osoba.teksty.append(w.tekst(zrodlo));
        osoba.urodzony = w.data(PRACDP("data_ur"));
        osoba.pesel = w.tekst(PRACDP("Pesel"));
    });
    const QHash<qint64, QString> urzedy = nazwyUrzedow(sesja);
    czytajOsoby(sesja, Zapytanie(PRACPR).kolumny(PRACPR("PRC_ID"), PRACPR("us_id")), PRACPR("PRC_ID"), jeden,
                [&](const WierszeZapytania& w) {
                    const auto osoba = osoby_.find(w.liczba(PRACPR("PRC_ID")));
                    if (osoba != osoby_.end()) osoba->urzad = urzedy.value(w.liczba(PRACPR("us_id")));
                });
}

void Podatnicy::wpisz(WierszDeklaracji& deklaracja, qint64 prcId) const {
    const auto osoba = osoby_.constFind(prcId);
    if (osoba == osoby_.constEnd()) throw Blad(QStringLiteral("Nie ma pracownika o numerze %1.").arg(prcId));
    qsizetype nr = 0;
    for (const auto& [pole, zrodlo] : kZKadr) deklaracja.ustaw(pole, osoba->teksty.at(nr++));
    deklaracja.ustaw("data_ur", osoba->urodzony);
    deklaracja.ustaw("us", osoba->urzad);
}

QString Podatnicy::nazwa(qint64 prcId) const {
    const auto osoba = osoby_.constFind(prcId);
    if (osoba == osoby_.constEnd()) return {};
    QString wynik;
    qsizetype nr = 0;
    for (const auto& [pole, zrodlo] : kZKadr) {
        if (pole == "Nazwisko" || pole == "imie1") wynik += u' ' + osoba->teksty.at(nr);
        ++nr;
    }
    return wynik.trimmed();
}

QString Podatnicy::pesel(qint64 prcId) const { return osoby_.value(prcId).pesel; }

} // namespace tornel::tax
