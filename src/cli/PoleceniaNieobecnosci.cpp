#include "cli/Polecenia.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "personnel/Kalendarz.h"
#include "personnel/Pracownicy.h"
#include "personnel/Urlopy.h"
#include "personnel/Zwolnienia.h"
#include "store/Sesja.h"
#include <algorithm>
#include <QJsonArray>

namespace tornel::cli {

using schemat::URL;
using schemat::ZW;

namespace {

const QString kPracownik = QStringLiteral("pracownik");

int wynik(bool wykonane) { return wykonane ? status::Wykonane : status::Odmowa; }

/// The value of an option that the command needs.
QString wymagana(const Wywolanie& w, const QString& opcja) {
    if (!w.argumenty.ma(opcja)) throw ZleUzycie(QStringLiteral("Brakuje opcji --%1.").arg(opcja));
    return w.argumenty.wartosc(opcja);
}

/// The one employee of `--pracownik`; nothing without the option.
std::optional<qint64> pracownik(const Wywolanie& w) {
    if (!w.argumenty.ma(kPracownik)) return std::nullopt;
    return numerPracownikaZTekstu(w.argumenty.wartosc(kPracownik));
}

QDate data(const Wywolanie& w, const QString& opcja) {
    const QString tekst = wymagana(w, opcja);
    const auto wartosc = CzytajDate(tekst);
    if (!wartosc) throw ZleUzycie(QStringLiteral("--%1: \"%2\" nie jest datą.").arg(opcja, tekst));
    return *wartosc;
}

std::optional<Waluta> kwota(const Wywolanie& w, const QString& opcja) {
    if (!w.argumenty.ma(opcja)) return std::nullopt;
    const auto wartosc = CzytajKwote(w.argumenty.wartosc(opcja), Zapis::Dane);
    if (!wartosc || *wartosc < Waluta{})
        throw ZleUzycie(
            QStringLiteral("--%1: \"%2\" nie jest kwotą.").arg(opcja, w.argumenty.wartosc(opcja)));
    return wartosc;
}

// --- calendars

MiesiacKalendarza miesiac(const Wywolanie& w) {
    const RokMies podany = miesiacZTekstu(w.argumenty.pozycje.first());
    return {pracownik(w).value_or(kKalendarzOgolny), podany.rok, podany.mies};
}

int nowyKalendarz(Wywolanie& w) {
    const auto swieta =
        w.argumenty.ma(QStringLiteral("swieta")) ? Swieta::Zaznaczone : Swieta::BezZaznaczania;
    return wynik(Kalendarz(w.otoczenie()).Nowy_dniwolne(miesiac(w), swieta));
}

int listaKalendarzy(Wywolanie& w) {
    const Kalendarz kalendarz(w.otoczenie());
    const qint64 prcId = pracownik(w).value_or(kKalendarzOgolny);
    QJsonArray json;
    QList<QStringList> wiersze{
        {QStringLiteral("NR"), QStringLiteral("MIESIĄC"), QStringLiteral("DNI"), QStringLiteral("WOLNE")}};
    for (const MiesiacKalendarza& m : kalendarz.miesiace(prcId)) {
        const int dni = DniWMiesiacu(m.rok, m.mies);
        const int wolne = kalendarz.dni(m).value_or(DniKalendarza()).ile(DniKalendarza::Wolny, 1, dni);
        const QString nazwa = tekstMiesiaca({m.rok, m.mies});
        json.append(QJsonObject{{QStringLiteral("pracownik"), prcId},
                                {QStringLiteral("miesiac"), nazwa},
                                {QStringLiteral("dni"), dni},
                                {QStringLiteral("wolne"), wolne}});
        wiersze.append({prcId == kKalendarzOgolny ? QString() : FormatNumeru(prcId), nazwa,
                        QString::number(dni), QString::number(wolne)});
    }
    if (w.json())
        w.pisz(json);
    else
        w.piszTabele(wiersze, {true, false, true, true});
    return status::Wykonane;
}

int pokazKalendarz(Wywolanie& w) {
    const MiesiacKalendarza m = miesiac(w);
    const auto tresc = Kalendarz(w.otoczenie()).WypiszDni(m);
    if (!tresc)
        throw Blad(QStringLiteral("Kalendarz nie ma miesiąca %1.%2.")
                       .arg(FormatMiesiaca(m.mies), FormatRoku(m.rok)));
    QJsonArray json;
    QList<QStringList> wiersze;
    const int dni = DniWMiesiacu(m.rok, m.mies);
    for (int d = 1; d <= dni; ++d) {
        const QString nazwa = Nazwa_dnia({m.rok, m.mies, d});
        const bool wolny = tresc->dni[d] == DniKalendarza::Wolny;
        json.append(QJsonObject{{QStringLiteral("dzien"), d},
                                {QStringLiteral("nazwa"), nazwa},
                                {QStringLiteral("wolny"), wolny},
                                {QStringLiteral("opis"), tresc->opis(d)}});
        wiersze.append(
            {QString::number(d), nazwa, wolny ? QStringLiteral("Wolny") : QString(), tresc->opis(d)});
    }
    const int wolne = tresc->dni.ile(DniKalendarza::Wolny, 1, dni);
    if (w.json()) {
        w.pisz(QJsonObject{{QStringLiteral("miesiac"), tekstMiesiaca({m.rok, m.mies})},
                           {QStringLiteral("pracownik"), m.prcId},
                           {QStringLiteral("wolne"), wolne},
                           {QStringLiteral("dni"), json}});
        return status::Wykonane;
    }
    w.piszTabele(wiersze, {true, false, false, false});
    w.pisz(QString());
    w.pisz(QStringLiteral("Dni w miesiącu: %1").arg(dni));
    w.pisz(QStringLiteral("W tym wolnych: %1").arg(wolne));
    return status::Wykonane;
}

int transport(Wywolanie& w) {
    QList<qint64> numery = podaniPracownicy(w);
    if (w.argumenty.ma(QStringLiteral("wszyscy")) == !numery.isEmpty())
        throw ZleUzycie(QStringLiteral("Podaje się --wszyscy albo --pracownik N."));
    const RokMies m = miesiacZTekstu(w.argumenty.pozycje.first());
    const Pracownicy pracownicy(w.otoczenie());
    if (numery.isEmpty())
        for (const Osoba& osoba : pracownicy.lista(FiltrPracownikow::Pracujacy, PorzadekPracownikow::Numery))
            numery.append(osoba.prcId);
    // The batch does those it can and names the others.
    const auto nieznani =
        std::ranges::stable_partition(numery, [&](qint64 prcId) { return pracownicy.istnieje(prcId); });
    const QList<qint64> bezKarty(nieznani.begin(), nieznani.end());
    numery.erase(nieznani.begin(), nieznani.end());
    const auto przeniesione = Kalendarz(w.otoczenie()).Transp(m.rok, m.mies, numery);
    for (const qint64 prcId : bezKarty)
        w.rozmowa.komunikat(QStringLiteral("Pracownik nr %1: Nie ma pracownika o numerze %1.").arg(prcId),
                            Styl::Wykrzyknik);
    if (przeniesione && w.json())
        w.pisz(QJsonObject{{QStringLiteral("zapisane"), przeniesione->wykonane},
                           {QStringLiteral("pominiete"), przeniesione->pominiete},
                           {QStringLiteral("nieudane"), static_cast<qint64>(bezKarty.size())}});
    else if (przeniesione)
        w.pisz(QStringLiteral("Kalendarze zapisane: %1, pominięte: %2, nieudane: %3.")
                   .arg(przeniesione->wykonane)
                   .arg(przeniesione->pominiete)
                   .arg(bezKarty.size()));
    return wynik(przeniesione && bezKarty.isEmpty());
}

// --- registers

ZakresDat zakres(const Wywolanie& w) {
    return {data(w, QStringLiteral("od")), data(w, QStringLiteral("do"))};
}

qint64 jedenPracownik(const Wywolanie& w) { return numerPracownikaZTekstu(wymagana(w, kPracownik)); }

/// The kind by its number from 0 or by its words, in any case.
RodzajUrlopu rodzaj(const Wywolanie& w) {
    const QString tekst = wymagana(w, QStringLiteral("rodzaj"));
    const auto rodzaje = RodzajeUrlopu();
    const auto ostatni = static_cast<qint64>(rodzaje.size()) - 1;
    if (const auto numer = CzytajLiczbe(tekst, 0, ostatni)) return static_cast<RodzajUrlopu>(*numer);
    for (std::size_t i = 0; i < rodzaje.size(); ++i)
        if (rodzaje[i].compare(tekst, Qt::CaseInsensitive) == 0) return static_cast<RodzajUrlopu>(i);
    throw ZleUzycie(QStringLiteral("Rodzaj: \"%1\" nie jest liczbą od 0 do %2 ani nazwą rodzaju urlopu.")
                        .arg(tekst)
                        .arg(ostatni));
}

int dodajUrlop(Wywolanie& w) {
    const NowyUrlop urlop{jedenPracownik(w), zakres(w), rodzaj(w),
                          kwota(w, QStringLiteral("kwota")).value_or(Waluta{})};
    return wynik(RejestrUrlopow(w.otoczenie()).Zarejestruj(urlop).has_value());
}

int dodajZwolnienie(Wywolanie& w) {
    const NoweZwolnienie zwolnienie{jedenPracownik(w), zakres(w), kwota(w, QStringLiteral("procent"))};
    return wynik(RejestrZwolnien(w.otoczenie()).Zarejestruj(zwolnienie).has_value());
}

/// What every line of both lists begins with.
QStringList poczatekLinii(const Recordset& rs, const TabelaDef& t) {
    const auto k = [&](std::string_view nazwa) { return t.nr(t.numer(nazwa)); };
    return {FormatNumeru(rs.liczba(k("prc_id"))),
            (rs.tekst(k("Naz")) + QLatin1Char(' ') + rs.tekst(k("Imie"))).trimmed(),
            FormatDaty(rs.data(k("Data"))), FormatDaty(rs.data(k("data_do")))};
}

QJsonObject poczatekJson(const Recordset& rs, const TabelaDef& t) {
    const QStringList linia = poczatekLinii(rs, t);
    return {{QStringLiteral("pracownik"), rs.liczba(t.nr(t.numer("prc_id")))},
            {QStringLiteral("nazwisko"), linia[1]},
            {QStringLiteral("od"), linia[2]},
            {QStringLiteral("do"), linia[3]},
            {QStringLiteral("kwota"), TekstKwoty(rs.kwota(t.nr(t.numer("Kwota"))))}};
}

QStringList naglowekListy(const QStringList& dalsze) {
    return QStringList{QStringLiteral("NR"), QStringLiteral("NAZWISKO"), QStringLiteral("OD"),
                       QStringLiteral("DO")} +
           dalsze;
}

int listaUrlopow(Wywolanie& w) {
    QJsonArray json;
    QList<QStringList> wiersze{
        naglowekListy({QStringLiteral("DNI"), QStringLiteral("KWOTA"), QStringLiteral("RODZAJ")})};
    const RejestrUrlopow rejestr(w.otoczenie());
    for (Recordset rs = rejestr.wiersze(pracownik(w)); !rs.EOF_(); rs.MoveNext()) {
        const qint64 dni = rs.liczba(URL("il_dni"));
        const QString nazwa = NazwaRodzaju(rs.liczba(URL("Rodzaj")));
        QJsonObject wiersz = poczatekJson(rs, URL);
        wiersz.insert(QStringLiteral("dni"), dni);
        wiersz.insert(QStringLiteral("rodzaj"), rs.liczba(URL("Rodzaj")));
        wiersz.insert(QStringLiteral("nazwaRodzaju"), nazwa);
        json.append(wiersz);
        wiersze.append(poczatekLinii(rs, URL) +
                       QStringList{QString::number(dni), FormatKwoty(rs.kwota(URL("Kwota"))), nazwa});
    }
    if (w.json())
        w.pisz(json);
    else
        w.piszTabele(wiersze, {true, false, false, false, true, true, false});
    return status::Wykonane;
}

int listaZwolnien(Wywolanie& w) {
    QJsonArray json;
    QList<QStringList> wiersze{
        naglowekListy({QStringLiteral("DNI"), QStringLiteral("STAWKA %"), QStringLiteral("KWOTA")})};
    const RejestrZwolnien rejestr(w.otoczenie());
    for (Recordset rs = rejestr.wiersze(pracownik(w)); !rs.EOF_(); rs.MoveNext()) {
        const qint64 dni = ZakresDat{rs.data(ZW("Data")), rs.data(ZW("data_do"))}.dni();
        const Waluta procent = rs.kwota(ZW("st_proc"));
        QJsonObject wiersz = poczatekJson(rs, ZW);
        wiersz.insert(QStringLiteral("dni"), dni);
        wiersz.insert(QStringLiteral("procent"), TekstKwoty(procent));
        json.append(wiersz);
        wiersze.append(poczatekLinii(rs, ZW) + QStringList{QString::number(dni), FormatKwoty(procent),
                                                           FormatKwoty(rs.kwota(ZW("Kwota")))});
    }
    if (w.json())
        w.pisz(json);
    else
        w.piszTabele(wiersze, {true, false, false, false, true, true, true});
    return status::Wykonane;
}

} // namespace

QList<Polecenie> poleceniaNieobecnosci() {
    const OpcjaPolecenia prc{u"pracownik", u"N"}, od{u"od", u"D"}, dokad{u"do", u"D"};
    return {
        {u"kalendarz nowy",
         u"RRRR-MM [--swieta] [--pracownik N]",
         u"zakłada miesiąc dni wolnych, ogólny albo pracownika; ze świętami ustawowymi albo bez nich",
         1,
         1,
         {prc, {u"swieta", {}}},
         nowyKalendarz},
        {u"kalendarz lista",
         u"[--pracownik N]",
         u"wypisuje miesiące kalendarza ogólnego albo pracownika",
         0,
         0,
         {prc},
         listaKalendarzy},
        {u"kalendarz pokaz",
         u"RRRR-MM [--pracownik N]",
         u"wypisuje dni miesiąca",
         1,
         1,
         {prc},
         pokazKalendarz},
        {u"kalendarz transport",
         u"RRRR-MM (--wszyscy | --pracownik N ...)",
         u"przepisuje miesiąc kalendarza ogólnego do pracowników",
         1,
         kDowolnieWiele,
         {prc, {u"wszyscy", {}}},
         transport},
        {u"urlop dodaj",
         u"--pracownik N --od D --do D --rodzaj K [--kwota X]",
         u"rejestruje urlop; K to numer rodzaju od 0 albo jego nazwa, daty dd-mm-rrrr albo rrrr-mm-dd",
         0,
         0,
         {prc, od, dokad, {u"rodzaj", u"K"}, {u"kwota", u"X"}},
         dodajUrlop},
        {u"urlop lista", u"[--pracownik N]", u"wypisuje urlopy", 0, 0, {prc}, listaUrlopow},
        {u"zwolnienie dodaj",
         u"--pracownik N --od D --do D [--procent P]",
         u"rejestruje zwolnienie lekarskie; bez stawki obowiązuje stała 100",
         0,
         0,
         {prc, od, dokad, {u"procent", u"P"}},
         dodajZwolnienie},
        {u"zwolnienie lista",
         u"[--pracownik N]",
         u"wypisuje zwolnienia lekarskie",
         0,
         0,
         {prc},
         listaZwolnien},
    };
}

} // namespace tornel::cli
