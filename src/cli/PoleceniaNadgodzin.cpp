#include "cli/Polecenia.h"
#include "common/Daty.h"
#include "common/Godziny.h"
#include "common/Liczby.h"
#include "payroll/nadgodziny/ListaNadgodzin.h"
#include "payroll/nadgodziny/Nadgodziny.h"
#include "personnel/Pracownicy.h"
#include <QJsonArray>

namespace tornel::cli {

namespace {

const QString kPracownik = QStringLiteral("pracownik");
const QString kWszyscy = QStringLiteral("wszyscy");
const QString kDzien = QStringLiteral("dzien");
const QString kGrupa = QStringLiteral("grupa");
const QString kIlosc = QStringLiteral("ilosc");

int wynik(bool wykonane) { return wykonane ? status::Wykonane : status::Odmowa; }

RokMies podanyMiesiac(const Wywolanie& w) { return miesiacZTekstu(w.argumenty.pozycje.first()); }

QString wymaganaOpcja(const Wywolanie& w, const QString& nazwa) {
    if (!w.argumenty.ma(nazwa)) throw ZleUzycie(QStringLiteral("Brakuje opcji --%1.").arg(nazwa));
    return w.argumenty.wartosc(nazwa);
}

/// Takes up the person of `--pracownik`.
void ustawPodanego(const Wywolanie& w, ListaNadgodzin& lista) {
    const qint64 prcId = numerPracownikaZTekstu(wymaganaOpcja(w, kPracownik));
    if (!lista.WypiszNadgodziny(prcId))
        throw Blad(QStringLiteral("Pracownika nr %1 nie ma na liście nadgodzin.").arg(prcId));
}

int raport(Wywolanie& w, const RaportSerii& r) {
    QJsonArray niepowodzenia;
    for (const RaportSerii::Niepowodzenie& n : r.niepowodzenia)
        niepowodzenia.append(
            QJsonObject{{QStringLiteral("pracownik"), n.numer}, {QStringLiteral("powod"), n.powod}});
    if (w.json())
        w.pisz(QJsonObject{{QStringLiteral("wykonane"), r.wykonane},
                           {QStringLiteral("pominiete"), r.pominiete},
                           {QStringLiteral("niepowodzenia"), niepowodzenia}});
    else
        w.pisz(QStringLiteral("Osoby wykonane: %1, pominięte: %2, nieudane: %3.")
                   .arg(r.wykonane)
                   .arg(r.pominiete)
                   .arg(r.niepowodzenia.size()));
    if (r.niepowodzenia.isEmpty()) return status::Wykonane;
    w.rozmowa.komunikat(r.tekst(), Styl::Wykrzyknik);
    return status::Odmowa;
}

int lista(Wywolanie& w) {
    QJsonArray json;
    QList<QStringList> wiersze{{QStringLiteral("MIESIĄC"), QString()}};
    for (const RokMies m : Nadgodziny(w.otoczenie()).WczytajListe()) {
        json.append(QJsonObject{{QStringLiteral("miesiac"), tekstMiesiaca(m)},
                                {QStringLiteral("rok"), m.rok},
                                {QStringLiteral("mies"), m.mies}});
        wiersze.append({tekstMiesiaca(m), NazwaMiesiaca(m.mies).toUpper()});
    }
    if (w.json())
        w.pisz(json);
    else
        w.piszTabele(wiersze, {false, false});
    return status::Wykonane;
}

int nowy(Wywolanie& w) {
    const RokMies miesiac = podanyMiesiac(w);
    return wynik(Nadgodziny(w.otoczenie()).NowaLista([&] { return miesiac; }).has_value());
}

int usun(Wywolanie& w) {
    const RokMies miesiac = podanyMiesiac(w);
    return wynik(Nadgodziny(w.otoczenie()).UsunListe(miesiac));
}

int dodaj(Wywolanie& w) {
    QList<qint64> numery = podaniPracownicy(w);
    if (w.argumenty.ma(kWszyscy) == !numery.isEmpty())
        throw ZleUzycie(QStringLiteral("Podaje się --wszyscy albo --pracownik N."));
    const RokMies miesiac = podanyMiesiac(w);
    ListaNadgodzin otwarta(w.otoczenie(), miesiac);
    if (w.argumenty.ma(kWszyscy))
        for (const Osoba& osoba :
             Pracownicy(w.otoczenie()).lista(FiltrPracownikow::Pracujacy, PorzadekPracownikow::Numery))
            numery.append(osoba.prcId);
    return raport(w, otwarta.NoweOsoby(numery));
}

int godziny(Wywolanie& w) {
    const RokMies miesiac = podanyMiesiac(w);
    const int grupa =
        liczbaZTekstu(wymaganaOpcja(w, kGrupa), 1, kGrupNadgodzin, QStringLiteral("Grupa czasowa"));
    const QString ilosc = wymaganaOpcja(w, kIlosc);
    const bool podanoDzien = w.argumenty.ma(kDzien);
    const int dzien =
        podanoDzien ? liczbaZTekstu(w.argumenty.wartosc(kDzien), 1, DniWMiesiacu(miesiac.rok, miesiac.mies),
                                    QStringLiteral("Dzień miesiąca"))
                    : 1;
    ListaNadgodzin otwarta(w.otoczenie(), miesiac);
    ustawPodanego(w, otwarta);
    if (podanoDzien != otwarta.szczegolowa())
        throw Blad(podanoDzien
                       ? QStringLiteral("Godziny tej osoby podaje się za cały miesiąc, bez opcji --dzien.")
                       : QStringLiteral("Godziny tej osoby podaje się za każdy dzień: opcją --dzien."));
    return wynik(otwarta.ZmienGodziny(dzien - 1, grupa, ilosc));
}

int odswiez(Wywolanie& w) {
    const RokMies miesiac = podanyMiesiac(w);
    return raport(w, ListaNadgodzin(w.otoczenie(), miesiac).Odswiez());
}

template <typename T>
QJsonArray tekstyJson(const WgGrup<T>& wartosci, QString (*tekst)(T)) {
    QJsonArray json;
    for (const T wartosc : wartosci) json.append(tekst(wartosc));
    return json;
}

void dopiszSumy(QJsonObject& cel, const SumyNadgodzin& sumy) {
    cel.insert(QStringLiteral("godziny"), tekstyJson(sumy.godziny, TekstGodzin));
    cel.insert(QStringLiteral("kwoty"), tekstyJson(sumy.kwoty, TekstKwoty));
}

void dopiszGodziny(QStringList& wiersz, const SumyNadgodzin& sumy) {
    for (const Godziny ile : sumy.godziny) wiersz.append(FormatGodzin(ile));
}

void dopiszNazwyGrup(QStringList& wiersz, const ListaNadgodzin& otwarta) {
    for (int g = 1; g <= kGrupNadgodzin; ++g) wiersz.append(otwarta.nazwaGrupy(g));
}

void pokazOsoby(Wywolanie& w, ListaNadgodzin& otwarta) {
    const QList<OsobaNadgodzin> osoby = otwarta.WczytajNazw();
    const SumyNadgodzin razem = otwarta.sumyMiesiaca();
    if (w.json()) {
        QJsonArray json;
        for (const OsobaNadgodzin& o : osoby) {
            QJsonObject osoba{{QStringLiteral("nr"), o.prcId}, {QStringLiteral("nazwisko"), o.nazwisko}};
            dopiszSumy(osoba, o.sumy);
            json.append(osoba);
        }
        QJsonObject sumy;
        dopiszSumy(sumy, razem);
        w.pisz(QJsonObject{{QStringLiteral("miesiac"), tekstMiesiaca(otwarta.miesiac())},
                           {QStringLiteral("osoby"), json},
                           {QStringLiteral("sumy"), sumy}});
        return;
    }
    QStringList naglowek{QStringLiteral("NR"), QStringLiteral("NAZWISKO")};
    dopiszNazwyGrup(naglowek, otwarta);
    QList<QStringList> wiersze{naglowek + QStringList{QStringLiteral("GODZINY"), QStringLiteral("KWOTA")}};
    const auto dopisz = [&wiersze](QStringList wiersz, const SumyNadgodzin& sumy) {
        dopiszGodziny(wiersz, sumy);
        wiersze.append(wiersz +
                       QStringList{FormatGodzin(sumy.godzinyRazem()), FormatKwoty(sumy.kwotaRazem())});
    };
    for (const OsobaNadgodzin& o : osoby) dopisz({FormatNumeru(o.prcId), o.nazwisko}, o.sumy);
    dopisz({QString(), QStringLiteral("RAZEM")}, razem);
    QList<bool> doPrawej(wiersze.first().size(), true);
    doPrawej[1] = false;
    w.piszTabele(wiersze, doPrawej);
}

void pokazWiersze(Wywolanie& w, ListaNadgodzin& otwarta) {
    ustawPodanego(w, otwarta);
    const QList<WierszNadgodzin> wiersze = otwarta.wiersze();
    if (w.json()) {
        QJsonArray json;
        for (const WierszNadgodzin& wiersz : wiersze) {
            QJsonObject o{{QStringLiteral("data"), FormatDaty(wiersz.data)},
                          {QStringLiteral("dzien"), wiersz.dzien},
                          {QStringLiteral("stawka"), TekstKwoty(wiersz.stawka)},
                          {QStringLiteral("uwagi"), wiersz.uwagi}};
            dopiszSumy(o, wiersz.sumy);
            json.append(o);
        }
        QJsonObject osoba{{QStringLiteral("nr"), otwarta.osoba()->prcId},
                          {QStringLiteral("nazwisko"), otwarta.osoba()->nazwisko},
                          {QStringLiteral("wiersze"), json}};
        dopiszSumy(osoba, otwarta.osoba()->sumy);
        w.pisz(osoba);
        return;
    }
    QStringList naglowek{QStringLiteral("DATA"), QStringLiteral("DZIEN TYG")};
    dopiszNazwyGrup(naglowek, otwarta);
    naglowek += {QStringLiteral("STAWKA"), QStringLiteral("KWOTA"), QStringLiteral("UWAGI")};
    QList<QStringList> tabela{naglowek};
    for (const WierszNadgodzin& wiersz : wiersze) {
        QStringList linia{FormatDaty(wiersz.data), wiersz.dzien};
        dopiszGodziny(linia, wiersz.sumy);
        tabela.append(linia + QStringList{FormatKwoty(wiersz.stawka), FormatKwoty(wiersz.sumy.kwotaRazem()),
                                          wiersz.uwagi});
    }
    QList<bool> doPrawej(naglowek.size(), true);
    doPrawej[0] = doPrawej[1] = doPrawej.last() = false;
    w.piszTabele(tabela, doPrawej);
}

int pokaz(Wywolanie& w) {
    const RokMies miesiac = podanyMiesiac(w);
    ListaNadgodzin otwarta(w.otoczenie(), miesiac);
    if (w.argumenty.ma(kPracownik))
        pokazWiersze(w, otwarta);
    else
        pokazOsoby(w, otwarta);
    return status::Wykonane;
}

} // namespace

QList<Polecenie> poleceniaNadgodzin() {
    const OpcjaPolecenia pracownik{u"pracownik", u"N"};
    return {
        {u"nadgodziny lista", {}, u"wypisuje miesiące nadgodzinowych list płac", 0, 0, {}, lista},
        {u"nadgodziny nowy", u"RRRR-MM", u"zakłada nadgodzinową listę płac", 1, 1, {}, nowy},
        {u"nadgodziny usun", u"RRRR-MM", u"usuwa nadgodzinową listę płac", 1, 1, {}, usun},
        {u"nadgodziny dodaj",
         u"RRRR-MM (--wszyscy | --pracownik N ...)",
         u"wpisuje pracowników na nadgodzinową listę płac",
         1,
         kDowolnieWiele,
         {pracownik, {u"wszyscy", {}}},
         dodaj},
        {u"nadgodziny godziny",
         u"RRRR-MM --pracownik N [--dzien D] --grupa G --ilosc X",
         u"wpisuje godziny grupy czasowej (1-7) i wylicza ich kwotę",
         1,
         1,
         {pracownik, {u"dzien", u"D"}, {u"grupa", u"G"}, {u"ilosc", u"X"}},
         godziny},
        {u"nadgodziny odswiez", u"RRRR-MM", u"wylicza wszystkie kwoty miesiąca od nowa", 1, 1, {}, odswiez},
        {u"nadgodziny pokaz",
         u"RRRR-MM [--pracownik N]",
         u"wypisuje osoby z sumami albo wiersze jednej osoby",
         1,
         1,
         {pracownik},
         pokaz},
    };
}

} // namespace tornel::cli
