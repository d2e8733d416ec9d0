#include "cli/Polecenia.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "payroll/lista/KontrolaWierszy.h"
#include "payroll/lista/ListaPlac.h"
#include "payroll/lista/Przelewy.h"
#include "personnel/Pracownicy.h"
#include "rules/Otoczenie.h"
#include "store/Sesja.h"
#include <algorithm>
#include <QJsonArray>

namespace tornel::cli {

using schemat::PLA;
using schemat::PLACE;
using schemat::PLB;

namespace {

const QString kLista = QStringLiteral("lista");
const QString kPracownik = QStringLiteral("pracownik");
const QString kWszyscy = QStringLiteral("wszyscy");

ListaPlac otworzListe(Wywolanie& w) {
    const RokMies miesiac = miesiacZTekstu(w.argumenty.pozycje.first());
    const QString symbol = w.argumenty.wartosc(kLista);
    if (symbol.size() > 1)
        throw ZleUzycie(QStringLiteral("Symbol listy \"%1\" ma więcej niż jeden znak.").arg(symbol));
    return ListaPlac(w.otoczenie(), miesiac.rok, miesiac.mies, symbol);
}

/// The rows of the open list. A symbol was typed for a purpose: a list without a row is refused here, where
/// the windows ask whether to make it.
QList<LiniaListy> wierszeListy(const Wywolanie& w, Sesja& sesja, ListaPlac& lista) {
    if (w.argumenty.ma(kLista) && !lista.symbol().trimmed().isEmpty() &&
        !sesja.rsPLA.Find({PLA("LISTA"), Kryterium::Operator::Rowne, lista.symbol()}))
        throw Blad(QStringLiteral("Lista o podanym symbolu nie istnieje."));
    return lista.Wczytaj_listep();
}

/// Tells how a batch ended.
int zakoncz(Wywolanie& w, const RaportSerii& raport) {
    QJsonArray niepowodzenia;
    for (const RaportSerii::Niepowodzenie& n : raport.niepowodzenia)
        niepowodzenia.append(
            QJsonObject{{QStringLiteral("pracownik"), n.numer}, {QStringLiteral("powod"), n.powod}});
    QJsonArray uwagi;
    for (const RaportSerii::Uwaga& u : raport.uwagi) {
        QJsonArray pracownicy;
        for (const qint64 prcId : u.numery) pracownicy.append(prcId);
        uwagi.append(
            QJsonObject{{QStringLiteral("tekst"), u.tekst}, {QStringLiteral("pracownicy"), pracownicy}});
    }
    if (w.json())
        w.pisz(QJsonObject{{QStringLiteral("wykonane"), raport.wykonane},
                           {QStringLiteral("pominiete"), raport.pominiete},
                           {QStringLiteral("niepowodzenia"), niepowodzenia},
                           {QStringLiteral("uwagi"), uwagi}});
    else
        w.pisz(QStringLiteral("Wiersze wykonane: %1, pominięte: %2, nieudane: %3.")
                   .arg(raport.wykonane)
                   .arg(raport.pominiete)
                   .arg(raport.niepowodzenia.size()));
    if (!raport.tekst().isEmpty()) w.rozmowa.komunikat(raport.tekst(), Styl::Wykrzyknik);
    return raport.niepowodzenia.isEmpty() ? status::Wykonane : status::Odmowa;
}

int dodaj(Wywolanie& w) {
    QList<qint64> numery = podaniPracownicy(w);
    if (w.argumenty.ma(kWszyscy) == !numery.isEmpty())
        throw ZleUzycie(QStringLiteral("Podaje się --wszyscy albo --pracownik N."));
    ListaPlac lista = otworzListe(w);
    if (w.argumenty.ma(kWszyscy))
        for (const Osoba& osoba :
             Pracownicy(w.otoczenie()).lista(FiltrPracownikow::Pracujacy, PorzadekPracownikow::Numery))
            numery.append(osoba.prcId);
    return zakoncz(w, lista.DodajPracownikow(numery));
}

int przelicz(Wywolanie& w, Obliczenie obliczenie) {
    QList<qint64> bezWiersza = podaniPracownicy(w);
    ListaPlac lista = otworzListe(w);
    QList<KluczListy> klucze;
    for (const LiniaListy& linia : wierszeListy(w, w.otoczenie().sesja, lista)) klucze.append(linia.klucz);
    if (w.argumenty.ma(kPracownik)) {
        const QList<qint64> podani = bezWiersza;
        klucze.removeIf([&](const KluczListy& k) { return !podani.contains(k.prcId); });
        for (const KluczListy& k : klucze) bezWiersza.removeAll(k.prcId);
    }
    RaportSerii raport = lista.PrzeliczSerie(obliczenie, klucze);
    for (const qint64 prcId : bezWiersza)
        raport.niepowodzenia.append({prcId, QStringLiteral("Nie ma go na liście płac.")});
    return zakoncz(w, raport);
}

int przeliczDni(Wywolanie& w) { return przelicz(w, Obliczenie::PoliczenieDni); }
int przepisz(Wywolanie& w) { return przelicz(w, Obliczenie::Przepisanie); }
int przeliczWiersze(Wywolanie& w) { return przelicz(w, Obliczenie::Przeliczenie); }

int naKonto(Wywolanie& w) {
    ListaPlac lista = otworzListe(w);
    QList<KluczListy> klucze;
    for (const LiniaListy& linia : wierszeListy(w, w.otoczenie().sesja, lista)) klucze.append(linia.klucz);
    return zakoncz(w, CaloscNaKontoWszystkich(w.otoczenie(), lista, klucze));
}

struct KolumnaSumy {
    QStringView napis;
    Kolumna kolumna;
};

/// The frame "PODSUMOWANIE MIESIĄCA" of the list of months.
constexpr KolumnaSumy kPodsumowanie[] = {
    {u"Brutto:", PLACE("sum_brutto")},
    {u"Koszty uzysk. przych.:", PLACE("sum_kup")},
    {u"Netto:", PLACE("sum_netto")},
    {u"Podatek dochodowy:", PLACE("sum_podat")},
    {u"Dodatki i potrącenia:", PLACE("sum_inne")},
    {u"Do wypłaty:", PLACE("do_wyplaty")},
    {u"Fundusz pracy:", PLACE("sum_fp")},
    {u"Fundusz GSP:", PLACE("sum_fgsp")},
    {u"Fundusz emerytalny:", PLACE("sum_feprd")},
    {u"Fundusz rentowy:", PLACE("sum_frprd")},
    {u"Fundusz chorobowy:", PLACE("sum_fc")},
    {u"Fundusz wypadkowy:", PLACE("sum_fw")},
    {u"Ubezp. zdrowotne:", PLACE("sum_ubzdr")},
};

/// The amounts of a row as the table shows them: gross, contributions, costs, tax base, advance, health
/// insurance, amount to pay.
QList<Waluta> kwotyWiersza(const Sesja& s) {
    const auto b = [&s](Kolumna k) { return s.rsPLB.naWierszu() ? s.rsPLB.kwota(k) : Waluta{}; };
    return {s.rsPLA.kwota(PLA("BRUTTO")),    b(PLB("FEPRC")) + b(PLB("FRPRC")) + b(PLB("FCPRC")),
            s.rsPLA.kwota(PLA("KUP")),       s.rsPLA.kwota(PLA("NETTO")),
            s.rsPLA.kwota(PLA("PODATEK")),   b(PLB("UBZDR_NAL")),
            s.rsPLA.kwota(PLA("DO_WYPLATY"))};
}

void wypiszWiersze(Wywolanie& w, ListaPlac& lista, const QList<LiniaListy>& linie) {
    Sesja& s = w.otoczenie().sesja;
    QList<QStringList> wiersze{QStringLiteral("NAZWISKO;NR;LISTA;BRUTTO;ZUS;KOSZTY;PODSTAWA;PODATEK;"
                                              "ZDROWOTNE;DO WYPŁATY")
                                   .split(QLatin1Char(';'))};
    const auto dopisz = [&wiersze](QStringList poczatek, const QList<Waluta>& kwoty) {
        for (const Waluta kwota : kwoty) poczatek.append(FormatKwoty(kwota));
        wiersze.append(poczatek);
    };
    QList<Waluta> razem(7);
    for (const LiniaListy& linia : linie) {
        (void)lista.Wypisz_daneP(linia.klucz);
        const QList<Waluta> kwoty = kwotyWiersza(s);
        for (qsizetype i = 0; i < razem.size(); ++i) razem[i] += kwoty[i];
        dopisz({linia.nazwisko + QLatin1Char(' ') + linia.imie, FormatNumeru(linia.klucz.prcId),
                linia.klucz.lista.toUpper()},
               kwoty);
    }
    dopisz({QStringLiteral("RAZEM"), QString(), QString()}, razem);
    w.piszTabele(wiersze, {false, true, false, true, true, true, true, true, true, true});
}

void wypiszPodsumowanie(Wywolanie& w) {
    const Recordset& place = w.otoczenie().sesja.rsPLACE;
    QList<QStringList> wiersze{
        {QStringLiteral("PODSUMOWANIE MIESIĄCA"), QString()},
        {QStringLiteral("Ilość wypłat:"), QString::number(place.liczba(PLACE("il_wyplat")))}};
    for (const KolumnaSumy& suma : kPodsumowanie)
        wiersze.append({suma.napis.toString(), FormatKwoty(place.kwota(suma.kolumna))});
    w.piszTabele(wiersze, {false, true});
}

QJsonValue wartoscJson(const Wartosc& wartosc) {
    if (const auto* liczba = std::get_if<qint64>(&wartosc)) return *liczba;
    if (const auto* kwota = std::get_if<Waluta>(&wartosc)) return TekstKwoty(*kwota);
    if (const auto* tekst = std::get_if<QString>(&wartosc)) return *tekst;
    if (const auto* data = std::get_if<QDate>(&wartosc)) return FormatDaty(*data);
    return QJsonValue::Null;
}

void dopiszKolumny(QJsonObject& cel, const Recordset& rs) {
    const auto& kolumny = rs.tabela().kolumny;
    for (int i = 0; rs.naWierszu() && i < static_cast<int>(kolumny.size()); ++i) {
        const std::string_view nazwa = kolumny[static_cast<std::size_t>(i)].nazwa;
        cel.insert(QLatin1String(nazwa.data(), static_cast<qsizetype>(nazwa.size())),
                   wartoscJson(rs.wartosc(rs.tabela().nr(i))));
    }
}

/// Every column of the four month tables, but for components and periods that are empty.
QJsonObject wierszJson(const Sesja& s) {
    QJsonObject wynik, skladniki;
    dopiszKolumny(wynik, s.rsPLA);
    dopiszKolumny(wynik, s.rsPLB);
    dopiszKolumny(skladniki, s.rsPLS);
    dopiszKolumny(skladniki, s.rsPLD);
    for (auto i = skladniki.constBegin(); i != skladniki.constEnd(); ++i)
        if (!i->isNull() && *i != QStringLiteral("0")) wynik.insert(i.key(), *i);
    return wynik;
}

void wypiszJson(Wywolanie& w, ListaPlac& lista, const QList<LiniaListy>& linie) {
    const Sesja& s = w.otoczenie().sesja;
    const KontrolaWierszy kontrola(lista.pozycje());
    QJsonArray wiersze;
    for (const LiniaListy& linia : linie) {
        (void)lista.Wypisz_daneP(linia.klucz);
        QJsonObject wiersz = wierszJson(s);
        if (const StanWiersza stan = kontrola.sprawdz(s.rsPLA.biezacyWiersz(),
                                                      s.rsPLS.szukaj(linia.klucz.prcId, linia.klucz.lista));
            stan.wymagaUwagi())
            wiersz.insert(QStringLiteral("uwaga"), stan.opis());
        wiersze.append(wiersz);
    }
    QJsonObject sumy;
    dopiszKolumny(sumy, s.rsPLACE);
    w.pisz(QJsonObject{{QStringLiteral("miesiac"), w.argumenty.pozycje.first()},
                       {QStringLiteral("zablokowany"), lista.zablokowany()},
                       {QStringLiteral("wiersze"), wiersze},
                       {QStringLiteral("sumy"), sumy}});
}

/// What needs attention on the rows shown.
QString doUwagi(Sesja& s, const ListaPlac& lista) {
    QList<WierszDoUwagi> wiersze = PrzejrzyjWiersze(lista.pozycje(), s.rsPLA, s.rsPLS);
    wiersze.removeIf([&](const WierszDoUwagi& u) {
        return lista.symbol() != QLatin1String(" ") && u.lista != lista.symbol();
    });
    return OpisDoUwagi(wiersze);
}

int pokaz(Wywolanie& w) {
    ListaPlac lista = otworzListe(w);
    const QList<LiniaListy> linie = wierszeListy(w, w.otoczenie().sesja, lista);
    if (w.json()) {
        wypiszJson(w, lista, linie);
        return status::Wykonane;
    }
    w.pisz(lista.tytul());
    w.pisz(QString());
    wypiszWiersze(w, lista, linie);
    w.pisz(QString());
    if (const QString uwagi = doUwagi(w.otoczenie().sesja, lista); !uwagi.isEmpty())
        w.pisz(uwagi + QLatin1Char('\n'));
    wypiszPodsumowanie(w);
    return status::Wykonane;
}

} // namespace

QList<Polecenie> poleceniaListy() {
    const OpcjaPolecenia symbol{u"lista", u"X"}, pracownik{u"pracownik", u"N"};
    return {
        {u"lista dodaj",
         u"RRRR-MM [--lista X] (--wszyscy | --pracownik N ...)",
         u"wpisuje pracowników na listę płac i wylicza ich",
         1,
         kDowolnieWiele,
         {symbol, pracownik, {u"wszyscy", {}}},
         dodaj},
        {u"lista dni",
         u"RRRR-MM [--lista X] [--pracownik N ...]",
         u"liczy dni wierszy z kalendarza i rejestrów nieobecności",
         1,
         kDowolnieWiele,
         {symbol, pracownik},
         przeliczDni},
        {u"lista przepisz",
         u"RRRR-MM [--lista X] [--pracownik N ...]",
         u"przepisuje składniki wierszy z kadr, dolicza nadgodziny, L-4 i urlopy",
         1,
         kDowolnieWiele,
         {symbol, pracownik},
         przepisz},
        {u"lista przelicz",
         u"RRRR-MM [--lista X] [--pracownik N ...]",
         u"przelicza wiersze do kwoty do wypłaty",
         1,
         kDowolnieWiele,
         {symbol, pracownik},
         przeliczWiersze},
        {u"lista konto",
         u"RRRR-MM [--lista X]",
         u"przeznacza całą wypłatę na przelew wierszom pracowników, którzy mają konto",
         1,
         1,
         {symbol},
         naKonto},
        {u"lista pokaz", u"RRRR-MM [--lista X]", u"wypisuje wiersze i sumy miesiąca", 1, 1, {symbol}, pokaz},
    };
}

} // namespace tornel::cli
