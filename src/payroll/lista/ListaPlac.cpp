#include "payroll/lista/ListaPlac.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "payroll/lista/KolumnyWiersza.h"
#include "payroll/lista/WpisaneKwoty.h"
#include "rules/SkladnikiPlac.h"
#include "rules/Stale.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::PLA;
using schemat::PLACE;
using schemat::PLB;
using schemat::ZASILEK;

namespace {

const QString kWszystkieListy = QStringLiteral(" ");

/// The tables of a row, with those that not every row has a record in.
std::array<Recordset*, 6> rekordyWiersza(Sesja& s) {
    return {&s.rsPLA, &s.rsPLB, &s.rsPLS, &s.rsPLD, &s.rsZASILEK, &s.rsWPISANE};
}

/// Calculations of one row: a failure names the employee.
template <typename Funkcja>
auto zNazwiskiem(const Sesja& s, const Funkcja& obliczenie) {
    try {
        return obliczenie();
    } catch (const BladBazy&) {
        throw; // the file fails, not the employee
    } catch (const Blad& blad) {
        throw Blad(QStringLiteral("Pracownik nr %1 %2 %3: %4")
                       .arg(s.rsPLA.liczba(PLA("PRC_ID")))
                       .arg(s.rsPLA.tekst(PLA("NAZ")), s.rsPLA.tekst(PLA("IMIE")), blad.komunikat()));
    }
}

} // namespace

ListaPlac::ListaPlac(Otoczenie& otoczenie, int rok, int mies, const QString& symbol, WykazyPodstaw* wykazy)
    : o_(otoczenie), rok_(rok), mies_(mies), symbol_(symbol.isEmpty() ? kWszystkieListy : symbol.left(1)),
      zrodla_(otoczenie, wykazy), sumyMiesiaca_(otoczenie.sesja, {rok, mies}) {
    int wynik = 0;
    o_.sesja.OtworzMiesiac(rok, mies, wynik);
    if (wynik != 0)
        throw Blad(QStringLiteral("Nie ma listy płac za miesiąc %1.").arg(NapisMiesiaca(rok, mies)));
    zablokowany_ = o_.sesja.rsPLACE.flaga(PLACE("akc"));
    Pobierz_Akt();
}

ListaPlac::~ListaPlac() = default;

void ListaPlac::Pobierz_Akt() {
    const Maski katalog = o_.skladniki.maski();
    // An open month goes by the catalogue, a blocked one by the masks that its header kept.
    const Maski miesiac = zablokowany_ ? Maski::zMiesiaca(o_.sesja.rsPLACE) : katalog;
    pozycje_ = PozycjeZMasek(miesiac, katalog);
}

QString ListaPlac::tytul() const {
    const QString miesiac = NapisMiesiaca(rok_, mies_);
    const QString napis = symbol_ == kWszystkieListy ? QStringLiteral("Lista plac za miesiąc ") + miesiac
                                                     : QStringLiteral("Lista plac (") + symbol_ +
                                                           QStringLiteral(") za miesiąc ") + miesiac;
    return zablokowany_ ? napis + QStringLiteral(" - MIESIĄC ZABLOKOWANY") : napis;
}

QList<LiniaListy> ListaPlac::Wczytaj_listep() {
    Recordset& a = o_.sesja.rsPLA;
    if (symbol_ != kWszystkieListy && !a.Find({PLA("LISTA"), Kryterium::Operator::Rowne, symbol_}) &&
        !o_.rozmowa.pytanie(
            QStringLiteral("Lista o podanym symbolu nie istnieje.\nCzy chcesz ją utworzyć ?")))
        symbol_ = kWszystkieListy;
    QList<LiniaListy> wynik;
    wynik.reserve(a.RecordCount());
    for (a.MoveFirst(); !a.EOF_(); a.MoveNext()) {
        const QString lista = a.tekst(PLA("LISTA"));
        if (symbol_ != kWszystkieListy && lista != symbol_) continue;
        wynik.append({{a.liczba(PLA("PRC_ID")), lista}, a.tekst(PLA("NAZ")), a.tekst(PLA("IMIE"))});
    }
    if (wiersz_) ustawNa(*wiersz_);
    return wynik;
}

void ListaPlac::szukajWiersza(const KluczListy& klucz) {
    (void)o_.sesja.wierszListy.Znajdz(klucz.prcId, klucz.lista);
}

void ListaPlac::ustawNa(const KluczListy& klucz) {
    szukajWiersza(klucz);
    (void)o_.sesja.UstawPracownika(klucz.prcId);
    wiersz_ = klucz;
}

bool ListaPlac::Wypisz_daneP(const KluczListy& klucz) {
    ustawNa(klucz);
    if (!o_.sesja.rsPRACDP.naWierszu())
        o_.rozmowa.komunikat(
            QStringLiteral("Uwaga. Pracownik o numerze ") + QString::number(klucz.prcId) +
                QStringLiteral(" został usunięty z kadr. Próba liczenia płac może okazać się niemożliwa "
                               "z zawieszeniem programu łącznie. ") +
                QStringLiteral("Usuń pracownika z miesięcznej listy płac."),
            Styl::Wykrzyknik);
    for (Recordset* rs : o_.sesja.wierszListy)
        if (!rs->naWierszu())
            o_.rozmowa.komunikat(QStringLiteral("CRITICAL ERROR !!! Brak rekordu ") +
                                     QString::fromLatin1(rs->tabela().nazwa.data(),
                                                         static_cast<qsizetype>(rs->tabela().nazwa.size())),
                                 Styl::Krytyczny);
    if (!o_.sesja.rsPLA.naWierszu()) wiersz_.reset();
    return wiersz_.has_value();
}

void ListaPlac::wymagajOtwartego() const {
    if (zablokowany_)
        throw Blad(QStringLiteral("Miesiąc %1 jest zablokowany i nie można go zmieniać.")
                       .arg(NapisMiesiaca(rok_, mies_)));
}

void ListaPlac::wymagajWiersza() {
    wymagajOtwartego();
    if (!wiersz_) throw Blad(QStringLiteral("Nie wybrano pracownika z listy płac."));
    // Handles that were read again after a failure stand on their first rows.
    ustawNa(KluczListy(*wiersz_));
    for (const Recordset* rs : o_.sesja.wierszListy)
        if (!rs->naWierszu())
            throw Blad(QStringLiteral("Wiersz pracownika nr %1 jest niepełny: brak rekordu w tabeli %2.")
                           .arg(wiersz_->prcId)
                           .arg(rs->nazwa()));
}

void ListaPlac::CofnijWiersz() {
    for (Recordset* rs : rekordyWiersza(o_.sesja)) rs->CancelBatch();
}

void ListaPlac::zapiszRekordy(const Transakcja& akcja) {
    sumyMiesiaca_.dolicz();
    for (Recordset* rs : rekordyWiersza(o_.sesja)) rs->UpdateBatch(akcja);
}

void ListaPlac::zapiszSumyMiesiaca(const Transakcja& akcja) {
    // Sums that leave the range of amounts keep nobody from his rows: they are told when the list is closed.
    (void)sumyMiesiaca_.zapisz(akcja);
}

void ListaPlac::zSumami(const std::function<void()>& zapis) {
    try {
        zapis();
    } catch (...) {
        sumyMiesiaca_.uniewaznij();
        o_.sesja.rsPLACE.CancelBatch();
        throw;
    }
}

void ListaPlac::zapiszWiersz(const KluczListy& klucz, const std::function<void()>& zmiana) {
    try {
        zmiana();
        Transakcja transakcja(o_.sesja.cnPlace, QStringLiteral("Lista płac %1: pracownik nr %2")
                                                    .arg(NapisMiesiaca(rok_, mies_))
                                                    .arg(klucz.prcId));
        zSumami([&] {
            zapiszRekordy(transakcja);
            zapiszSumyMiesiaca(transakcja);
            transakcja.zatwierdz();
        });
    } catch (...) {
        CofnijWiersz();
        throw;
    }
}

void ListaPlac::pokazUwagi(const ListaUwag& uwagi) {
    for (const Uwaga& uwaga : uwagi)
        if (uwaga.dotyczy(Zakres::Wiersz)) o_.rozmowa.komunikat(uwaga.tekst, Styl::Wykrzyknik);
}

bool ListaPlac::naLiscie(const KluczListy& klucz) const {
    return o_.sesja.rsPLA.szukaj(klucz.prcId, klucz.lista).has_value();
}

QString ListaPlac::symbolNowegoWiersza(const QString& wlasna) const {
    if (symbol_ != kWszystkieListy || !o_.stale.AktOpWieluList) return symbol_;
    return wlasna.isEmpty() ? kWszystkieListy : wlasna;
}

void ListaPlac::wymagajPracownika(qint64 prcId) const {
    if (!o_.sesja.UstawPracownika(prcId))
        throw Blad(QStringLiteral("Nie ma pracownika o numerze %1 w kadrach.").arg(prcId));
}

std::optional<Waluta> ListaPlac::zapisanyZasilek(const KluczListy& klucz) const {
    const auto zasilek = o_.sesja.rsZASILEK.szukaj(klucz.prcId, klucz.lista);
    if (!zasilek) return std::nullopt;
    return zasilek->kwota(ZASILEK("KWOTA"));
}

void ListaPlac::wpiszZasilek(const RachunekWiersza& r) {
    if (!r.zasilek) return;
    Recordset& z = o_.sesja.rsZASILEK;
    const bool jest = z.Znajdz(r.wiersz.klucz.prcId, r.wiersz.klucz.lista);
    // A row without days of the insurer has no benefit, recorded or not: most rows need no record.
    if (r.zasilek->zero() && r.wiersz.dni_l4_zus <= 0) {
        if (jest) z.Delete();
        return;
    }
    if (!jest) {
        z.AddNewZero(r.wiersz.klucz.prcId, r.wiersz.klucz.lista);
        z.ustaw(ZASILEK("ROKMIES"), RokMies{rok_, mies_}.klucz());
    }
    z.ustaw(ZASILEK("KWOTA"), *r.zasilek);
}

RachunekWiersza ListaPlac::nowyRachunek(const AkcjaPlac& akcja, const KluczListy& klucz,
                                        const DanePracownika& pracownik) {
    // No leave has been priced on it, even if a row of this key was removed before.
    RachunekWiersza r{NowyWiersz(akcja.miesiac, klucz, pracownik, akcja.odpowiedzi), Waluta{}};
    if (o_.sesja.rsPLA.szukaj(klucz.prcId))
        r.uwagi.append({QStringLiteral("Pracownik jest w tym miesiącu także na innej liście: nieobecności, "
                                       "urlop, nadgodziny, koszty uzyskania i ulga liczą się na obu.")});
    LiczDni(akcja, r);
    return r;
}

std::optional<KluczListy> ListaPlac::Nowy_prac(qint64 prcId) {
    wymagajOtwartego();
    wymagajPracownika(prcId);
    const DanePracownika pracownik = WczytajPracownika(o_.sesja);
    const KluczListy klucz{prcId, symbolNowegoWiersza(pracownik.Lista)};
    if (naLiscie(klucz)) {
        o_.rozmowa.komunikat(QStringLiteral("Nie można wprowadzić dwa razy tej samej osoby na jedną listę!"),
                             Styl::Wykrzyknik);
        return std::nullopt;
    }
    Pobierz_Akt();
    zrodla_.przygotuj(1);
    ZbiorPytan moga;
    moga.dodaj(Pytanie::IloscZasilkow, MaIlosciZasilkow(o_.sesja));
    zrodla_.dodajPytaniaDni(miesiac(), prcId, Zakres::Wiersz, moga);
    const auto odpowiedzi = Zapytaj(o_.rozmowa, tytul(), moga, Zakres::Wiersz);
    if (!odpowiedzi) return std::nullopt;
    wiersz_.reset();
    const RachunekWiersza r =
        nowyRachunek({miesiac(), zrodla_, *odpowiedzi, Zakres::Wiersz}, klucz, pracownik);
    zapiszWiersz(klucz, [&] {
        DopiszWiersz(o_.sesja, r.wiersz);
        wpiszZasilek(r);
    });
    wiersz_ = klucz;
    pokazUwagi(r.uwagi);
    return wiersz_;
}

bool ListaPlac::Usun_prac() {
    wymagajOtwartego();
    if (!wiersz_) throw Blad(QStringLiteral("Nie wybrano pracownika z listy płac."));
    if (!o_.rozmowa.pytanieUsuwajace(QStringLiteral("Czy na pewno usunąć pracownika o numerze ") +
                                     QString::number(wiersz_->prcId) +
                                     QStringLiteral(" z miesięcznej listy płac ?")))
        return false;
    CofnijWiersz();
    zapiszWiersz(*wiersz_, [this] {
        for (Recordset* rs : rekordyWiersza(o_.sesja))
            if (rs->Znajdz(wiersz_->prcId, wiersz_->lista)) rs->Delete();
    });
    wiersz_.reset();
    return true;
}

ZbiorPytan ListaPlac::pytaniaWiersza(Obliczenie obliczenie, const WierszPlac& wiersz) {
    ZbiorPytan moga;
    switch (obliczenie) {
    case Obliczenie::PoliczenieDni:
        zrodla_.dodajPytaniaDni(miesiac(), wiersz.klucz.prcId, Zakres::Wiersz, moga);
        break;
    case Obliczenie::Przepisanie:
        zrodla_.dodajPytaniaSkladnikow(miesiac(), wiersz.klucz.prcId, moga);
        moga.dodaj(Pytanie::PomniejszycZasilek, false);
        moga.dodaj(Pytanie::ZastapicWpisane, saWpisane(wiersz.klucz));
        break;
    case Obliczenie::Przeliczenie:
        moga = PytaniaPlacy(wiersz, ZasilekChorobowy(miesiac(), wiersz, zapisanyZasilek(wiersz.klucz)));
        break;
    }
    return moga;
}

void ListaPlac::wykonajObliczenie(Obliczenie obliczenie, const AkcjaPlac& akcja, RachunekWiersza& r) {
    switch (obliczenie) {
    case Obliczenie::PoliczenieDni:
        LiczDni(akcja, r);
        break;
    case Obliczenie::Przepisanie:
        LiczSkladniki(akcja, WczytajPracownika(o_.sesja), r);
        break;
    case Obliczenie::Przeliczenie:
        LiczPlace(akcja, WczytajPracownika(o_.sesja), kPrzelicz1, r);
        break;
    }
}

void ListaPlac::wpiszObliczenia(const QList<Obliczenie>& wykonane, const WierszPlac& przedtem,
                                const RachunekWiersza& r) {
    if (wykonane.contains(Obliczenie::Przepisanie))
        PrzepisanoSkladniki(o_.sesja, pozycje_, przedtem.klucz.prcId, przedtem.klucz.lista);
    ZapiszZmiany(o_.sesja, przedtem, r.wiersz);
    wpiszZasilek(r);
}

bool ListaPlac::saWpisane(const KluczListy& klucz) {
    return SaWpisane(o_.sesja, pozycje_, klucz.prcId, klucz.lista);
}

bool ListaPlac::przelicz(Obliczenie obliczenie) {
    wymagajWiersza();
    if (obliczenie != Obliczenie::PoliczenieDni) wymagajPracownika(wiersz_->prcId);
    if (obliczenie == Obliczenie::Przepisanie) Pobierz_Akt();
    zrodla_.przygotuj(1);
    return zNazwiskiem(o_.sesja, [&] { return przeliczWiersz(obliczenie); });
}

bool ListaPlac::przeliczWiersz(Obliczenie obliczenie) {
    const WierszPlac przedtem = WczytajWiersz(o_.sesja);
    const ZbiorPytan moga = pytaniaWiersza(obliczenie, przedtem);
    const auto odpowiedzi = Zapytaj(o_.rozmowa, tytul(), moga, Zakres::Wiersz);
    if (!odpowiedzi) return false;
    if (moga.ma(Pytanie::ZastapicWpisane) && !odpowiedzi->ma(Pytanie::ZastapicWpisane)) return false;
    RachunekWiersza r{przedtem, zapisanyZasilek(przedtem.klucz)};
    wykonajObliczenie(obliczenie, {miesiac(), zrodla_, *odpowiedzi, Zakres::Wiersz}, r);
    zapiszWiersz(przedtem.klucz, [&] { wpiszObliczenia({obliczenie}, przedtem, r); });
    if (obliczenie == Obliczenie::Przeliczenie) sumy_ = r.sumy;
    pokazUwagi(r.uwagi);
    return true;
}

bool ListaPlac::policzLancuch(Kroki kroki, RachunekWiersza& r) {
    zrodla_.przygotuj(1);
    const auto odpowiedzi =
        Zapytaj(o_.rozmowa, tytul(), pytaniaWiersza(Obliczenie::Przeliczenie, r.wiersz), Zakres::Wiersz);
    if (!odpowiedzi) return false;
    LiczPlace({miesiac(), zrodla_, *odpowiedzi, Zakres::Wiersz}, WczytajPracownika(o_.sesja), kroki, r);
    return true;
}

void ListaPlac::pytajOSkladkePPE(WierszPlac& w) {
    // Deliberate: taken off each time the field is confirmed.
    if (w.PPE > Waluta{} &&
        o_.rozmowa.pytanie(QStringLiteral("Czy pomniejszyć kwotę do wypłaty o składkę w ramach PPE ?")))
        w.do_wyplaty -= w.PPE;
}

bool ListaPlac::przyjmijPrzelew(WierszPlac& w) {
    if (!(w.przelewem > w.do_wyplaty)) return true;
    if (!o_.rozmowa.pytanie(
            QStringLiteral("Kwota przelewu nie może być większa od kwoty wypłaty. Czy przeznaczyć całą "
                           "kwotę wypłaty na przelew ?")))
        return false;
    w.przelewem = w.do_wyplaty;
    return true;
}

bool ListaPlac::ZmienKwote(const PoleListy& pole, Waluta kwota) {
    wymagajWiersza();
    const WierszPlac przedtem = WczytajWiersz(o_.sesja);
    RachunekWiersza r{przedtem, zapisanyZasilek(przedtem.klucz)};
    KwotaKolumny(r.wiersz, pole.kolumna) = kwota;
    const std::optional<Kroki> kroki = KrokiLancucha(pole.lancuch);
    if (kroki && !policzLancuch(*kroki, r)) return false;
    if (pole.lancuch == Lancuch::Przelew && !przyjmijPrzelew(r.wiersz)) return false;
    if (pole.lancuch == Lancuch::ZmianaPodatku) pytajOSkladkePPE(r.wiersz);
    zapiszWiersz(przedtem.klucz, [&] { ZapiszZmiany(o_.sesja, przedtem, r.wiersz); });
    if (kroki) sumy_ = r.sumy;
    pokazUwagi(r.uwagi);
    return true;
}

void ListaPlac::WpiszSK() {
    wymagajWiersza();
    zapiszWiersz(*wiersz_, [this] {
        ZaznaczWpisane(o_.sesja, wiersz_->prcId, wiersz_->lista, o_.sesja.rsPLS.zmienioneKolumny());
    });
}

void ListaPlac::WpiszDatyGr() {
    wymagajWiersza();
    o_.sesja.rsPLD.UpdateBatch(u"Okresy składników wiersza listy płac");
}

void ListaPlac::WpiszDni() {
    wymagajWiersza();
    zapiszWiersz(*wiersz_, [&a = o_.sesja.rsPLA] {
        a.ustaw(PLA("DN_PR"), a.liczba(PLA("DN_RO")) + a.liczba(PLA("DN_SO")) + a.liczba(PLA("DN_NI")));
    });
}

bool ListaPlac::DniZgodneZMiesiacem() const {
    const Recordset& a = o_.sesja.rsPLA;
    qint64 dni = 0;
    for (const Kolumna k :
         {PLA("DN_RO"), PLA("DN_SO"), PLA("DN_NI"), PLA("DN_URL"), PLA("DN_ZAS"), PLA("DN_INN")})
        dni += a.liczba(k);
    return dni == DniWMiesiacu(rok_, mies_);
}

void ListaPlac::ZapiszSumy() {
    if (zablokowany_) return; // a blocked month is never written
    const QString czynnosc = QStringLiteral("Sumy listy płac %1").arg(NapisMiesiaca(rok_, mies_));
    zSumami([&] {
        Transakcja transakcja(o_.sesja.cnPlace, czynnosc);
        if (!sumyMiesiaca_.zapisz(transakcja))
            throw Przepelnienie(czynnosc + QStringLiteral(": kwota przekracza zakres liczb programu."));
        transakcja.zatwierdz();
    });
}

} // namespace tornel::payroll
