#include "payroll/nadgodziny/ListaNadgodzin.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Godziny.h"
#include "common/Liczby.h"
#include "personnel/Pracownicy.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <algorithm>
#include <numeric>

namespace tornel::payroll {

using schemat::NADG;
using schemat::NADGDzien;
using schemat::NADGN;
using schemat::PRACPR;

namespace {

constexpr qint64 kNikt = 0; // no employee has this number
const QString kTytul = QStringLiteral("Nadgodzinowe listy płac");

/// The two columns of each group, by a function that names them.
using KolumnaGrupy = Kolumna (*)(int grupa);

SumyNadgodzin czytajSumy(const Recordset& rs, KolumnaGrupy godziny, KolumnaGrupy kwota) {
    SumyNadgodzin s;
    for (int g = 1; g <= kGrupNadgodzin; ++g) {
        const auto i = static_cast<std::size_t>(g - 1);
        // Most groups are empty; taking a double apart into decimals costs more than all the rest.
        if (const double liczba = rs.rzeczywista(godziny(g)); liczba != 0)
            s.godziny[i] = Godziny::zLiczby(liczba);
        s.kwoty[i] = rs.kwota(kwota(g));
    }
    return s;
}

void wpiszSumy(Recordset& rs, KolumnaGrupy godziny, KolumnaGrupy kwota, const SumyNadgodzin& s) {
    for (int g = 1; g <= kGrupNadgodzin; ++g) {
        const auto i = static_cast<std::size_t>(g - 1);
        rs.ustaw(godziny(g), s.godziny[i].naLiczbe());
        rs.ustaw(kwota(g), s.kwoty[i]);
    }
}

} // namespace

Godziny SumyNadgodzin::godzinyRazem() const {
    return std::accumulate(godziny.begin(), godziny.end(), Godziny{});
}

Waluta SumyNadgodzin::kwotaRazem() const { return std::accumulate(kwoty.begin(), kwoty.end(), Waluta{}); }

SumyNadgodzin& SumyNadgodzin::operator+=(const SumyNadgodzin& inne) {
    for (std::size_t i = 0; i < godziny.size(); ++i) {
        godziny[i] += inne.godziny[i];
        kwoty[i] += inne.kwoty[i];
    }
    return *this;
}

ListaNadgodzin::ListaNadgodzin(Otoczenie& otoczenie, RokMies miesiac) : o_(otoczenie), miesiac_(miesiac) {
    Sesja& s = o_.sesja;
    if (!s.rsNADG.otwarty()) s.rsNADG.Open(s.cnPlace);
    const bool jest = s.rsNADG.Znajdz(FormatRoku(miesiac.rok), FormatMiesiaca(miesiac.mies)) &&
                      s.cnPlace.jestTabela(nazwaTabeli(NADGN)) &&
                      s.cnPlace.jestTabela(nazwaTabeli(NADGDzien));
    if (!jest)
        throw Blad(QStringLiteral("Nie ma listy nadgodzin za miesiąc %1.")
                       .arg(NapisMiesiaca(miesiac.rok, miesiac.mies)));
    rownania_ = RownaniaNadgodzin::zNaglowka(s.rsNADG);
    osoby_.Open(s.cnPlace, nazwaTabeli(NADGN));
    osoby_.Sort({NADGN("PRC_ID")});
    otworzDni(kNikt);
}

QString ListaNadgodzin::nazwaTabeli(const TabelaDef& tabela) const {
    return Sesja::nazwaMiesiaca(tabela.nazwa, miesiac_.rok, miesiac_.mies);
}

QString ListaNadgodzin::czynnosc(const QString& co) const { return co + QLatin1Char(' ') + miesiac_.napis(); }

void ListaNadgodzin::otworzDni(qint64 prcId) {
    dni_.Open(o_.sesja.cnPlace, nazwaTabeli(NADGDzien),
              {{NADGDzien("PRC_ID"), Kryterium::Operator::Rowne, prcId}});
    dni_.Sort({NADGDzien("PRC_ID"), NADGDzien("DATA")});
}

void ListaNadgodzin::odczytaj() {
    o_.sesja.rsNADG.Requery();
    osoby_.Requery();
    (void)WypiszNadgodziny(osoba_ ? osoba_->prcId : kNikt);
}

QString NazwaGrupyNadgodzin(const Stale& stale, int grupa) {
    const QString nazwa = stale.NGNazwaS.at(static_cast<std::size_t>(grupa - 1)).trimmed();
    return nazwa.isEmpty() ? QStringLiteral("Grupa %1").arg(grupa) : nazwa;
}

QList<OsobaNadgodzin> ListaNadgodzin::WczytajNazw() {
    QList<OsobaNadgodzin> wynik;
    wynik.reserve(osoby_.RecordCount());
    const Pracownicy kadry(o_);
    for (osoby_.MoveFirst(); !osoby_.EOF_(); osoby_.MoveNext()) {
        const qint64 prcId = osoby_.liczba(NADGN("PRC_ID"));
        wynik.append({prcId, kadry.nazwisko(prcId), czytajSumy(osoby_, GodzinyOsoby, KwotaOsoby)});
    }
    return wynik;
}

SumyNadgodzin ListaNadgodzin::sumyMiesiaca() const {
    Recordset& rs = o_.sesja.rsNADG;
    if (!rs.Znajdz(FormatRoku(miesiac_.rok), FormatMiesiaca(miesiac_.mies))) return {};
    return czytajSumy(rs, GodzinyMiesiaca, KwotaMiesiaca);
}

bool ListaNadgodzin::WypiszNadgodziny(qint64 prcId) {
    osoba_.reset();
    otworzDni(prcId);
    if (!osoby_.Znajdz(prcId)) return false;
    osoba_ = {prcId, Pracownicy(o_).nazwisko(prcId), czytajSumy(osoby_, GodzinyOsoby, KwotaOsoby)};
    return true;
}

WierszNadgodzin ListaNadgodzin::wierszBiezacy() const {
    if (!szczegolowa())
        return {{}, {}, czytajSumy(osoby_, GodzinyOsoby, KwotaOsoby), osoby_.kwota(NADGN("SGP")), {}};
    return {dni_.data(NADGDzien("DATA")), dni_.tekst(NADGDzien("DZIEN")),
            czytajSumy(dni_, GodzinyDnia, KwotaDnia), dni_.kwota(NADGDzien("SGP")),
            dni_.tekst(NADGDzien("uwagi"))};
}

void ListaNadgodzin::wpiszBiezacy(const WierszNadgodzin& wiersz) {
    if (!szczegolowa()) {
        wpiszSumy(osoby_, GodzinyOsoby, KwotaOsoby, wiersz.sumy);
        osoby_.ustaw(NADGN("SGP"), wiersz.stawka);
        return;
    }
    wpiszSumy(dni_, GodzinyDnia, KwotaDnia, wiersz.sumy);
    dni_.ustaw(NADGDzien("SGP"), wiersz.stawka);
    dni_.ustaw(NADGDzien("uwagi"), wiersz.uwagi);
}

void ListaNadgodzin::ustawNaWierszu(qsizetype nr) {
    wymagajOsoby();
    (void)osoby_.Znajdz(osoba_->prcId);
    dni_.MoveFirst();
    for (qsizetype i = 0; i < nr; ++i) dni_.MoveNext();
}

QList<WierszNadgodzin> ListaNadgodzin::wiersze() {
    if (!osoba_) return {};
    ustawNaWierszu(0);
    QList<WierszNadgodzin> wynik;
    do {
        wynik.append(wierszBiezacy());
        dni_.MoveNext();
    } while (!dni_.EOF_());
    return wynik;
}

void ListaNadgodzin::wymagajOsoby() const {
    if (!osoba_) throw Blad(QStringLiteral("Nie wybrano osoby z listy nadgodzin."));
}

QString ListaNadgodzin::opisOsoby(qint64 prcId) const {
    return QStringLiteral("Pracownik nr %1 %2").arg(prcId).arg(Pracownicy(o_).nazwisko(prcId)).trimmed();
}

void ListaNadgodzin::ustawNaglowek() {
    if (!o_.sesja.rsNADG.Znajdz(FormatRoku(miesiac_.rok), FormatMiesiaca(miesiac_.mies)))
        throw Blad(QStringLiteral("Nie ma listy nadgodzin za miesiąc %1.")
                       .arg(NapisMiesiaca(miesiac_.rok, miesiac_.mies)));
}

/// The sums of the person in work from his days. His own base rate is that of the month's end.
void ListaNadgodzin::sumujDni() {
    ustawNaWierszu(0);
    SumyNadgodzin suma;
    Waluta stawka;
    for (; !dni_.EOF_(); dni_.MoveNext()) {
        suma += czytajSumy(dni_, GodzinyDnia, KwotaDnia);
        stawka = dni_.kwota(NADGDzien("SGP"));
    }
    wpiszSumy(osoby_, GodzinyOsoby, KwotaOsoby, suma);
    osoby_.ustaw(NADGN("SGP"), stawka);
}

void ListaNadgodzin::sumujMiesiac() {
    SumyNadgodzin suma;
    for (osoby_.MoveFirst(); !osoby_.EOF_(); osoby_.MoveNext())
        suma += czytajSumy(osoby_, GodzinyOsoby, KwotaOsoby);
    ustawNaglowek();
    wpiszSumy(o_.sesja.rsNADG, GodzinyMiesiaca, KwotaMiesiaca, suma);
}

void ListaNadgodzin::zapisz(const std::function<void()>& zmiana) {
    try {
        zmiana();
        sumujMiesiac();
        Transakcja transakcja(o_.sesja.cnPlace, u"Zmiana listy nadgodzin");
        for (Recordset* rs : {&dni_, &osoby_, &o_.sesja.rsNADG}) rs->UpdateBatch(transakcja);
        transakcja.zatwierdz();
    } catch (...) {
        odczytaj();
        throw;
    }
}

void ListaNadgodzin::dodajWiersze(qint64 prcId) {
    const Waluta stawka = o_.sesja.rsPRACPR.kwota(PRACPR("Sgp"));
    osoby_.AddNewZero(prcId);
    osoby_.ustaw(NADGN("SGP"), stawka);
    if (!o_.stale.SzczegRejNadg) return;
    const QDate ostatni = OstatniDzien(miesiac_.rok, miesiac_.mies);
    for (QDate d = PierwszyDzien(miesiac_.rok, miesiac_.mies); d <= ostatni; d = d.addDays(1)) {
        dni_.AddNewZero(prcId);
        dni_.ustaw(NADGDzien("DATA"), d);
        dni_.ustaw(NADGDzien("DZIEN"), DzienT(d));
        dni_.ustaw(NADGDzien("SGP"), stawka);
    }
}

bool ListaNadgodzin::NowaOsoba(qint64 prcId) {
    if (osoby_.Znajdz(prcId)) {
        o_.rozmowa.komunikat(QStringLiteral("Wybrany pracownik jest już na liście."), Styl::Wykrzyknik);
        return false;
    }
    if (!o_.sesja.UstawPracownika(prcId)) {
        o_.rozmowa.komunikat(
            QStringLiteral("Nie znaleziono danych pracownika w kadrach. Wybrany pracownik nie zostanie "
                           "wprowadzony na liste. Sprawdź dane kadrowe!"),
            Styl::Wykrzyknik);
        return false;
    }
    (void)WypiszNadgodziny(kNikt);
    zapisz([&] { dodajWiersze(prcId); });
    (void)WypiszNadgodziny(kNikt);
    return true;
}

RaportSerii ListaNadgodzin::wykonajSerie(const NapisySerii& napisy, const QList<qint64>& numery,
                                         const std::function<WynikKroku(qint64)>& krok) {
    const auto tabele = {&dni_, &osoby_};
    const CzynnosciSerii czynnosci{
        .ile = numery.size(),
        .numer = [&](qsizetype i) { return numery[i]; },
        .krok = [&](qsizetype i) { return krok(numery[i]); },
        .zapisz =
            [&](const Transakcja& akcja) {
                for (Recordset* rs : tabele) rs->UpdateBatch(akcja);
            },
        .cofnij = [&] { std::ranges::for_each(tabele, &Recordset::CancelBatch); },
        .zakoncz =
            [&](const Transakcja& akcja) {
                sumujMiesiac();
                o_.sesja.rsNADG.UpdateBatch(akcja);
            },
    };
    try {
        return WykonajSerie(o_.sesja.cnPlace, o_.rozmowa, napisy, czynnosci);
    } catch (...) {
        odczytaj();
        throw;
    }
}

RaportSerii ListaNadgodzin::NoweOsoby(QList<qint64> numery) {
    // New rows go behind those before them; in any other order each would move the ones behind it.
    std::ranges::sort(numery);
    (void)WypiszNadgodziny(kNikt);
    RaportSerii raport =
        wykonajSerie({.czynnosc = czynnosc(QStringLiteral("Dodanie osób do listy nadgodzin")),
                      .tytul = kTytul,
                      .krok = QStringLiteral("Dopisywanie pracownika nr ")},
                     numery, [this](qint64 prcId) {
                         if (osoby_.Znajdz(prcId)) return WynikKroku{WynikKroku::Los::Pominiety, {}};
                         if (!o_.sesja.UstawPracownika(prcId))
                             throw Blad(QStringLiteral("Nie znaleziono danych pracownika w kadrach."));
                         dodajWiersze(prcId);
                         return WynikKroku{};
                     });
    (void)WypiszNadgodziny(kNikt);
    return raport;
}

bool ListaNadgodzin::UsunOsobe() {
    wymagajOsoby();
    if (!o_.rozmowa.pytanieUsuwajace(QStringLiteral("Czy na pewno usunąć zaznaczoną osobę ?"))) return false;
    zapisz([this] {
        ustawNaWierszu(0);
        if (osoby_.naWierszu()) osoby_.Delete();
        while (!dni_.EOF_()) dni_.Delete();
    });
    (void)WypiszNadgodziny(kNikt);
    return true;
}

bool ListaNadgodzin::zmienWiersze(qsizetype od, qsizetype ile, const Zmiana& zmiana) {
    wymagajOsoby();
    const qint64 prcId = osoba_->prcId;
    try {
        StawkiNadgodzin stawki(o_);
        stawki.ustawOsobe(prcId);
        // Everything is computed, and told, before the first row is touched.
        QList<WierszNadgodzin> nowe = wiersze().mid(od, ile);
        for (WierszNadgodzin& w : nowe) {
            zmiana(w);
            w.sumy.kwoty = stawki.kwoty(rownania_, w.data, w.sumy.godziny, w.stawka);
        }
        zapisz([&] {
            ustawNaWierszu(od);
            for (const WierszNadgodzin& w : nowe) {
                wpiszBiezacy(w);
                dni_.MoveNext();
            }
            if (szczegolowa()) sumujDni();
        });
    } catch (const BladBazy&) {
        throw;
    } catch (const Blad& blad) {
        o_.rozmowa.komunikat(opisOsoby(prcId) + QStringLiteral(": ") + blad.komunikat(), Styl::Krytyczny);
        return false;
    }
    return WypiszNadgodziny(prcId);
}

bool ListaNadgodzin::ZmienGodziny(qsizetype wiersz, int grupa, const QString& wpisane) {
    const Godziny najwiecej = szczegolowa() ? kNajwiecejGodzinDnia : kNajwiecejGodzinMiesiaca;
    const auto godziny = CzytajGodziny(wpisane, najwiecej);
    if (!godziny) {
        o_.rozmowa.komunikat(
            QStringLiteral("Godziny podaje się liczbą od -%1 do %1, najwyżej z dwoma miejscami po przecinku.")
                .arg(TekstGodzin(najwiecej)),
            Styl::Wykrzyknik);
        return false;
    }
    return zmienWiersze(wiersz, 1, [&](WierszNadgodzin& w) {
        w.sumy.godziny.at(static_cast<std::size_t>(grupa - 1)) = *godziny;
    });
}

bool ListaNadgodzin::ZmienStawke(qsizetype wiersz, const QString& wpisane) {
    const auto stawka = CzytajKwote(wpisane);
    if (!stawka || *stawka < Waluta{}) {
        o_.rozmowa.komunikat(QStringLiteral("Stawkę podaje się kwotą nie mniejszą od zera."),
                             Styl::Wykrzyknik);
        return false;
    }
    return zmienWiersze(wiersz, 1, [&](WierszNadgodzin& w) { w.stawka = *stawka; });
}

bool ListaNadgodzin::PrzeniesStawke(qsizetype wiersz) {
    wymagajOsoby();
    const Waluta stawka = wiersze().at(wiersz).stawka;
    return zmienWiersze(wiersz, -1, [&](WierszNadgodzin& w) { w.stawka = stawka; });
}

void ListaNadgodzin::ZmienUwagi(qsizetype wiersz, const QString& uwagi) {
    zapisz([&] {
        ustawNaWierszu(wiersz);
        dni_.ustaw(NADGDzien("uwagi"), uwagi);
    });
}

/// Amounts and sums of the person on whose rows `dni_` stands at the first and `osoby_` at the one.
void ListaNadgodzin::przeliczOsobe(StawkiNadgodzin& stawki) {
    const qint64 prcId = osoby_.liczba(NADGN("PRC_ID"));
    stawki.ustawOsobe(prcId);
    if (!dni_.naWierszu()) {
        SumyNadgodzin sumy = czytajSumy(osoby_, GodzinyOsoby, KwotaOsoby);
        sumy.kwoty = stawki.kwoty(rownania_, {}, sumy.godziny, osoby_.kwota(NADGN("SGP")));
        wpiszSumy(osoby_, GodzinyOsoby, KwotaOsoby, sumy);
        return;
    }
    const Zakladka pierwszy = dni_.Bookmark();
    QList<SumyNadgodzin> nowe;
    SumyNadgodzin razem;
    for (; !dni_.EOF_() && dni_.liczba(NADGDzien("PRC_ID")) == prcId; dni_.MoveNext()) {
        SumyNadgodzin sumy = czytajSumy(dni_, GodzinyDnia, KwotaDnia);
        sumy.kwoty =
            stawki.kwoty(rownania_, dni_.data(NADGDzien("DATA")), sumy.godziny, dni_.kwota(NADGDzien("SGP")));
        razem += sumy;
        nowe.append(sumy);
    }
    dni_.Bookmark(pierwszy);
    for (const SumyNadgodzin& sumy : nowe) {
        wpiszSumy(dni_, GodzinyDnia, KwotaDnia, sumy);
        dni_.MoveNext();
    }
    wpiszSumy(osoby_, GodzinyOsoby, KwotaOsoby, razem);
}

RaportSerii ListaNadgodzin::Odswiez() {
    const qint64 wybrana = osoba_ ? osoba_->prcId : kNikt;
    dni_.Open(o_.sesja.cnPlace, nazwaTabeli(NADGDzien));
    dni_.Sort({NADGDzien("PRC_ID"), NADGDzien("DATA")});
    QList<qint64> numery;
    for (osoby_.MoveFirst(); !osoby_.EOF_(); osoby_.MoveNext()) numery.append(osoby_.liczba(NADGN("PRC_ID")));
    StawkiNadgodzin stawki(o_);
    RaportSerii raport =
        wykonajSerie({.czynnosc = czynnosc(QStringLiteral("Odświeżenie listy nadgodzin")), .tytul = kTytul},
                     numery, [&](qint64 prcId) {
                         (void)osoby_.Znajdz(prcId);
                         (void)dni_.Znajdz(prcId);
                         przeliczOsobe(stawki);
                         return WynikKroku{};
                     });
    (void)WypiszNadgodziny(wybrana);
    return raport;
}

} // namespace tornel::payroll
