#include "contracts/Umowy.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "common/Slownie.h"
#include "personnel/Pracownicy.h"
#include "store/Sesja.h"
#include <algorithm>
#include <limits>
#include <utility>

namespace tornel::contracts {

using schemat::PRACDP;
using schemat::PRACPR;
using schemat::US;

namespace {

constexpr int kZnakowUrzedu = 20; ///< of the office's entry that a contract keeps

Recordset& uchwyt(Sesja& sesja, const RodzajUmowy& rodzaj) {
    for (Recordset* rs : {&sesja.rsUZL, &sesja.rsUOD, &sesja.rsHON})
        if (&rs->tabela() == rodzaj.tabela) return *rs;
    throw Blad(QStringLiteral("Nie ma tabeli umów."));
}

QString napisUrzedu(const Wiersz& urzad) {
    return QString::number(urzad.liczba(US("US_ID"))) + QStringLiteral(". ") + urzad.tekst(US("Nazwa"));
}

/// The number that the entry begins with; 0 without one.
qint64 numerUrzedu(const QString& napis) {
    return LiczbaAlboZero(napis.section(QLatin1Char('.'), 0, 0), 0, std::numeric_limits<qint16>::max());
}

} // namespace

bool FiltrUmow::pasuje(const LiniaUmowy& linia) const {
    return (!rok || linia.zawarta.year() == *rok) && (!prcId || linia.prcId == *prcId) &&
           (!niewyplacone || !linia.wyplacona.isValid());
}

void SumaUmow::dodaj(const LiniaUmowy& linia) {
    ++ile;
    brutto += linia.brutto;
    netto += linia.netto;
}

Umowy::Umowy(Otoczenie& otoczenie, const RodzajUmowy& rodzaj)
    : o_(otoczenie), rodzaj_(rodzaj),
      rs_(uchwyt(otoczenie.sesja, rodzaj)), kolumny_{rodzaj.kolumna("data_zaw"), rodzaj.kolumna("Naz"),
                                                     rodzaj.kolumna("prc_id"),   rodzaj.kolumna("Imie"),
                                                     rodzaj.kolumna("Brutto"),   rodzaj.kolumna("Netto"),
                                                     rodzaj.kolumna("data_wyp"), rodzaj.kolumna("wys_mcs")} {
    Odswiez();
    if (!o_.sesja.rsUS.otwarty()) o_.sesja.rsUS.Open(o_.sesja.cnPlace);
}

void Umowy::Odswiez() {
    biezaca_.reset();
    rachunek_ = {};
    rs_.Open(o_.sesja.cnPlace);
}

QList<LiniaUmowy> Umowy::Wczytaj() const {
    rs_.Sort({kolumny_.zawarta, rodzaj_.numer, rodzaj_.id});
    QList<LiniaUmowy> wynik;
    wynik.reserve(rs_.RecordCount());
    for (const Wiersz w : rs_.wiersze()) wynik.append(linia(w));
    return wynik;
}

std::optional<LiniaUmowy> Umowy::linia(qint64 id) const {
    const auto wiersz = rs_.szukaj(id);
    return wiersz ? std::optional(linia(*wiersz)) : std::nullopt;
}

LiniaUmowy Umowy::linia(const Wiersz& w) const {
    const KolumnyListy& k = kolumny_;
    return {w.liczba(rodzaj_.id),     w.data(k.zawarta),
            w.tekst(k.naz).toUpper(), w.liczba(k.osoba),
            w.tekst(rodzaj_.numer),   w.tekst(k.imie),
            w.kwota(k.brutto),        w.kwota(k.netto),
            w.data(k.wyplacona),      k.wyslana.tabela && w.flaga(k.wyslana)};
}

bool Umowy::Wypisz(qint64 id) {
    biezaca_.reset();
    rachunek_ = {};
    if (!rs_.Znajdz(id)) return false;
    biezaca_ = id;
    // The fields show two places, and what they show is computed with and stored.
    for (const PoleUmowy& pole : PolaUmow())
        if (const Kolumna k = rodzaj_.kolumna(pole.kolumna); k.tabela)
            if (Waluta* pozycja = PozycjaRachunku(rachunek_, pole.kolumna)) *pozycja = Round(rs_.kwota(k), 2);
    return true;
}

void Umowy::wymagajWybranej() const {
    if (!biezaca_ || !rs_.naWierszu()) throw Blad(QStringLiteral("Nie wybrano umowy."));
}

Umowy::Zrozumienie Umowy::wpiszKwote(const PoleUmowy& pole, const QString& tekst) {
    const std::optional<Waluta> kwota = CzytajKwote(tekst);
    rachunek_ = PoOpuszczeniu(rachunek_, pole, kwota.value_or(Waluta{}));
    return kwota ? Zrozumienie::Pelne : Zrozumienie::Zadne;
}

void Umowy::ustawKwote(const PoleUmowy& pole, Waluta kwota) {
    wymagajWybranej();
    *PozycjaRachunku(rachunek_, pole.kolumna) = kwota;
}

void Umowy::Porzuc() {
    rs_.CancelBatch();
    biezaca_.reset();
}

void Umowy::wpiszTekst(Kolumna kolumna, const QString& tekst) {
    const int rozmiar = kolumna.def().rozmiar;
    if (rozmiar > 0 && tekst.size() > rozmiar)
        throw Blad(QStringLiteral("Tekst jest za długi, pole mieści znaków: %1.").arg(rozmiar));
    rs_.ustaw(kolumna, tekst);
}

Umowy::Zrozumienie Umowy::Opusc(const PoleUmowy& pole, const QString& tekst) {
    wymagajWybranej();
    const Kolumna kolumna = rodzaj_.kolumna(pole.kolumna);
    switch (pole.rodzaj) {
    case RodzajPolaUmowy::Kwota:
    case RodzajPolaUmowy::Przelew:
        return wpiszKwote(pole, tekst);
    case RodzajPolaUmowy::Tekst:
        wpiszTekst(kolumna, tekst);
        return Zrozumienie::Pelne;
    case RodzajPolaUmowy::Data: {
        const std::optional<QDate> data = CzytajWpisanaDate(tekst);
        rs_.ustaw(kolumna, data.value_or(QDate()));
        return data || tekst.trimmed().isEmpty() ? Zrozumienie::Pelne : Zrozumienie::Zadne;
    }
    case RodzajPolaUmowy::Urzad: {
        const auto numer = CzytajLiczbe(tekst, 0, std::numeric_limits<qint16>::max());
        if (!numer || (*numer != 0 && !o_.sesja.rsUS.szukaj(*numer)))
            throw Blad(QStringLiteral("Nie ma urzędu skarbowego o numerze %1.").arg(tekst.trimmed()));
        rs_.ustaw(kolumna, *numer);
        rs_.ustaw(rodzaj_.kolumna("us_nazwa"), QString()); // the entry with nothing in it
        return Zrozumienie::Pelne;
    }
    case RodzajPolaUmowy::Paczka: {
        const auto numer = CzytajLiczbe(tekst, 0, std::numeric_limits<qint16>::max());
        rs_.ustaw(kolumna, numer.value_or(0));
        return numer ? Zrozumienie::Pelne : Zrozumienie::Zadne;
    }
    case RodzajPolaUmowy::Wyslane: {
        const QString znak = tekst.trimmed().toUpper();
        rs_.ustaw(kolumna, znak == QLatin1String("T") ? znak : QStringLiteral("N"));
        break;
    }
    }
    return Zrozumienie::Pelne;
}

void Umowy::wpiszUrzad() {
    if (!rodzaj_.wybierzUrzad) return;
    const Kolumna usId = rodzaj_.kolumna("us_id"), usNazwa = rodzaj_.kolumna("us_nazwa");
    const auto urzad = o_.sesja.rsUS.szukaj(rs_.liczba(usId));
    // An office that is not on the list leaves the text as it stands, and the number follows the text.
    const QString napis = urzad ? napisUrzedu(*urzad) : rs_.tekst(usNazwa);
    rs_.ustaw(usId, numerUrzedu(napis));
    rs_.ustaw(usNazwa, napis.left(kZnakowUrzedu));
}

void Umowy::Wpisz() {
    wymagajWybranej();
    for (const PoleUmowy& pole : PolaUmow())
        if (const Kolumna k = rodzaj_.kolumna(pole.kolumna); k.tabela)
            if (const Waluta* pozycja = PozycjaRachunku(rachunek_, pole.kolumna)) rs_.ustaw(k, *pozycja);
    // The words are those of the amounts at the last saving: the calculation does not touch them.
    rs_.ustaw(rodzaj_.kolumna("Slownie2"), SlownieKwota(rachunek_.Brutto));
    rs_.ustaw(rodzaj_.kolumna("Slownie"), SlownieKwota(rachunek_.Netto));
    wpiszUrzad();
    rs_.UpdateBatch(rodzaj_.zmiana);
}

qint64 Umowy::WolnyNumer() const {
    QList<qint64> zajete;
    for (const Wiersz w : rs_.wiersze()) zajete.append(w.liczba(rodzaj_.id));
    std::sort(zajete.begin(), zajete.end());
    qint64 wolny = 1;
    for (const qint64 id : zajete) wolny += id == wolny ? 1 : 0;
    return wolny;
}

void Umowy::wymagajOsoby(qint64 prcId, QDate data) const {
    const QList<Osoba> osoby = Pracownicy(o_).doWyboru(rodzaj_.trybWyboru);
    if (std::ranges::find(osoby, prcId, &Osoba::prcId) == osoby.end())
        throw Blad(QStringLiteral("Pracownik nr %1 nie pracuje albo nie zawiera takich umów.").arg(prcId));
    if (!data.isValid()) throw Blad(QStringLiteral("Nie podano daty zawarcia umowy."));
}

qint64 Umowy::dodaj(QDate data) {
    const qint64 id = WolnyNumer();
    rs_.AddNewZero(id);
    rs_.ustaw(rodzaj_.kolumna("data_zaw"), data);
    if (const Kolumna wyslane = rodzaj_.kolumna("wys_mcs"); wyslane.tabela)
        rs_.ustaw(wyslane, QStringLiteral("N"));
    return id;
}

void Umowy::zapiszNowa() {
    try {
        rs_.UpdateBatch(rodzaj_.nowa);
    } catch (...) {
        rs_.CancelBatch();
        throw;
    }
}

qint64 Umowy::Nowy(qint64 prcId, QDate data) {
    wymagajOsoby(prcId, data);
    Sesja& s = o_.sesja;
    const auto osoba = s.rsPRACDP.szukaj(prcId), ustawienia = s.rsPRACPR.szukaj(prcId);
    if (!osoba || !ustawienia) throw Blad(QStringLiteral("Nie ma pracownika o numerze %1.").arg(prcId));

    const qint64 id = dodaj(data);
    rs_.ustaw(rodzaj_.kolumna("prc_id"), prcId);
    rs_.ustaw(rodzaj_.kolumna("Naz"), osoba->tekst(PRACDP("Naz")));
    rs_.ustaw(rodzaj_.kolumna("Imie"), osoba->tekst(PRACDP("Imie_1")));
    for (const ZKartoteki& z : rodzaj_.zKartoteki)
        rs_.ustaw(rodzaj_.kolumna(z.kolumna), ustawienia->wartosc(z.zrodlo));
    zapiszNowa();
    return id;
}

qint64 Umowy::Kopia(qint64 wzorId, QDate data) {
    const auto wzor = rs_.szukaj(wzorId);
    if (!wzor) throw Blad(QStringLiteral("Nie ma umowy o numerze %1.").arg(wzorId));
    wymagajOsoby(wzor->liczba(rodzaj_.kolumna("prc_id")), data);
    // What a new contract has not yet: its own number and days, and its place in a file for the bank.
    constexpr std::string_view wlasne[] = {"data_zaw", "data_od", "data_do", "data_wyp", "paczka", "wys_mcs"};
    QList<std::pair<Kolumna, Wartosc>> wspolne;
    for (int i = 0; i < static_cast<int>(rodzaj_.tabela->kolumny.size()); ++i) {
        const Kolumna k = rodzaj_.tabela->nr(i);
        const bool wlasna =
            i == rodzaj_.id.nr || i == rodzaj_.numer.nr ||
            std::ranges::any_of(wlasne, [&](auto n) { return rodzaj_.tabela->numer(n) == i; });
        if (!wlasna) wspolne.append({k, wzor->wartosc(k)});
    }
    const qint64 id = dodaj(data);
    for (const auto& [kolumna, wartosc] : std::as_const(wspolne)) rs_.ustaw(kolumna, wartosc);
    zapiszNowa();
    return id;
}

bool Umowy::Usun() {
    wymagajWybranej();
    if (!o_.rozmowa.pytanieUsuwajace(rodzaj_.pytanieUsuniecia.toString())) return false;
    rs_.Delete();
    try {
        rs_.UpdateBatch(rodzaj_.usuniecie);
    } catch (...) {
        rs_.CancelBatch();
        throw;
    }
    biezaca_.reset();
    return true;
}

} // namespace tornel::contracts
