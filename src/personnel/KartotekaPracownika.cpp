#include "personnel/KartotekaPracownika.h"
#include "common/Rozmowa.h"
#include "rules/SkladnikiPlac.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"
#include <algorithm>
#include <span>
#include <stdexcept>

namespace tornel::personnel {

using schemat::PRACDP;
using schemat::PRACSK;

namespace {

constexpr int kDlugoscPesel = 11;
constexpr int kDlugoscNip = 13; // dashes included

struct Para {
    Kolumna kolumna, druga;
};

constexpr Para kNazwisko[] = {{PRACDP("Naz"), PRACDP("snaz")}};
constexpr Para kImie[] = {{PRACDP("Imie_1"), PRACDP("simie_1")}};
constexpr Para kDataUr[] = {{PRACDP("data_ur"), PRACDP("sdata_ur")}};
constexpr Para kDowod[] = {{PRACDP("dowod_ser"), PRACDP("sdowod_ser")},
                           {PRACDP("dowod_nr"), PRACDP("sdowod_nr")}};
constexpr Para kPesel[] = {{PRACDP("pesel"), PRACDP("spesel")}};
constexpr Para kNip[] = {{PRACDP("Nip"), PRACDP("snip")}};

/// Columns with those that keep their previous values; what stands in one span changes together.
constexpr std::span<const Para> kTozsamosc[] = {kNazwisko, kImie, kDataUr, kDowod, kPesel, kNip};

/// The parts of an address that are copied.
struct CzescAdresu {
    Kolumna zameldowania, zamieszkania, korespondencji;
};

constexpr CzescAdresu kAdres[] = {
    {PRACDP("miasto"), PRACDP("miasto_m"), PRACDP("miasto_k")},
    {PRACDP("Kod"), PRACDP("kod_m"), PRACDP("kod_k")},
    {PRACDP("ulica"), PRACDP("ulica_m"), PRACDP("ulica_k")},
    {PRACDP("nr_domu"), PRACDP("nr_domu_m"), PRACDP("nr_domu_k")},
    {PRACDP("nr_miesz"), PRACDP("nr_miesz_m"), PRACDP("nr_miesz_k")},
    {PRACDP("gm_dz"), PRACDP("gm_dz_m"), PRACDP("gm_dz_k")},
    {PRACDP("powiat"), PRACDP("powiat_m"), PRACDP("powiat_k")},
};

bool pusta(const Wartosc& wartosc) {
    const auto* tekst = std::get_if<QString>(&wartosc);
    return tekst ? tekst->isEmpty() : std::holds_alternative<std::monostate>(wartosc);
}

/// A text never entered and an emptied one are the same to the clerk.
bool rozne(const Wartosc& a, const Wartosc& b) { return a != b && !(pusta(a) && pusta(b)); }

/// The value that `zmiany` give to the column; null where they leave it alone.
const Wartosc* nowa(const KartotekaPracownika::Zmiany& zmiany, Kolumna kolumna) {
    const auto ta = std::ranges::find_if(
        zmiany, [&](const auto& z) { return z.first.tabela == kolumna.tabela && z.first.nr == kolumna.nr; });
    return ta == zmiany.end() ? nullptr : &ta->second;
}

KartotekaPracownika::Slownik slownik(Sesja& sesja, Kolumna numer, Kolumna nazwa) {
    PrzygotowaneZapytanie zapytanie(sesja.cnPlace,
                                    Zapytanie(*numer.tabela).kolumny(numer, nazwa).wedlug(numer));
    KartotekaPracownika::Slownik wynik;
    for (auto w = zapytanie.uruchom(); w.nastepny();)
        wynik.append(
            {w.liczba(numer), QString::number(w.liczba(numer)) + QStringLiteral(". ") + w.tekst(nazwa)});
    return wynik;
}

} // namespace

KartotekaPracownika::KartotekaPracownika(Otoczenie& otoczenie)
    : o_(otoczenie), tabele_(otoczenie.sesja.kadry) {}

std::size_t KartotekaPracownika::ktoraTabela(Kolumna kolumna) const {
    const auto ta =
        std::ranges::find(tabele_, kolumna.tabela, [](const Recordset* rs) { return &rs->tabela(); });
    if (ta == tabele_.end()) throw std::out_of_range("not a column of the personnel file");
    return static_cast<std::size_t>(ta - tabele_.begin());
}

Wartosc KartotekaPracownika::wartosc(Kolumna kolumna) const {
    const Recordset& rs = tabele_[ktoraTabela(kolumna)];
    const std::optional<Wiersz> wiersz = prcId_ ? rs.szukaj(*prcId_) : std::nullopt;
    return wiersz ? wiersz->wartosc(kolumna) : Wartosc(Null);
}

void KartotekaPracownika::ustaw(Kolumna kolumna, const Wartosc& wartosc) {
    const std::size_t tabela = ktoraTabela(kolumna);
    Recordset& rs = tabele_[tabela];
    if (!rs.Znajdz(prcId_.value())) rs.AddNewZero(*prcId_);
    const Klucz klucz{*prcId_, tabela, kolumna.nr};
    const Wartosc przed = rs.wartosc(kolumna);
    rs.ustaw(kolumna, wartosc);
    // A text longer than its column was cut on the way in.
    const Wartosc po = rs.wartosc(kolumna);
    if (przed == po) return;
    const auto wpis = dziennik_.try_emplace(klucz, Zmiana{przed, po}).first;
    wpis->second.po = po;
    if (wpis->second.przed == po) dziennik_.erase(wpis);
}

KartotekaPracownika::Zmiany KartotekaPracownika::poprzedniaTozsamosc(const Zmiany& zmiany) const {
    Zmiany wynik;
    for (const std::span<const Para> razem : kTozsamosc) {
        const bool zmieniona = std::ranges::any_of(razem, [&](const Para& p) {
            const Wartosc* wartoscPo = nowa(zmiany, p.kolumna);
            return wartoscPo && rozne(*wartoscPo, wartosc(p.kolumna));
        });
        const bool bylaPusta =
            std::ranges::all_of(razem, [&](const Para& p) { return pusta(wartosc(p.kolumna)); });
        if (!zmieniona || bylaPusta) continue;
        for (const Para& p : razem) wynik.append({p.druga, wartosc(p.kolumna)});
    }
    return wynik;
}

void KartotekaPracownika::ZapiszZakladke(const Zmiany& zmiany) {
    if (!prcId_) return;
    // Deliberate: each write keeps the value before it, so of two changes before storing the first is lost.
    for (const auto& [kolumna, wartosc] : poprzedniaTozsamosc(zmiany)) ustaw(kolumna, wartosc);
    for (const auto& [kolumna, wartosc] : zmiany) ustaw(kolumna, wartosc);
}

bool KartotekaPracownika::zmienionyPracownik() const {
    const auto wpis = prcId_ ? dziennik_.lower_bound({*prcId_, 0, 0}) : dziennik_.end();
    return wpis != dziennik_.end() && wpis->first.prcId == *prcId_;
}

bool KartotekaPracownika::zmieniona(Kolumna kolumna) const {
    return prcId_ && dziennik_.contains({*prcId_, ktoraTabela(kolumna), kolumna.nr});
}

void KartotekaPracownika::Zapisz() {
    Transakcja transakcja(o_.sesja.cnPlace,
                          prcId_ ? QStringLiteral("Zmiana danych pracownika nr %1").arg(*prcId_)
                                 : QStringLiteral("Zmiana danych pracowników"));
    o_.sesja.kadry.UpdateBatch(transakcja);
    transakcja.zatwierdz();
    dziennik_.clear();
}

void KartotekaPracownika::Porzuc() {
    o_.sesja.kadry.CancelBatch();
    dziennik_.clear();
}

bool KartotekaPracownika::Anuluj() {
    if (!o_.rozmowa.pytanieUsuwajace(QStringLiteral("Czy anulować wporwadzone zmiany ?"))) return false;
    for (auto wpis = dziennik_.begin(); wpis != dziennik_.end();) {
        const auto& [klucz, zmiana] = *wpis;
        Recordset& rs = tabele_[klucz.tabela];
        if (klucz.prcId != prcId_) {
            ++wpis;
            continue;
        }
        if (rs.Znajdz(klucz.prcId)) rs.ustaw(rs.tabela().nr(klucz.kolumna), zmiana.przed);
        wpis = dziennik_.erase(wpis);
    }
    return true;
}

void KartotekaPracownika::Ponow() {
    const auto zmiany = std::exchange(dziennik_, {});
    const auto biezacy = prcId_;
    for (const auto& [klucz, zmiana] : zmiany) {
        if (!o_.sesja.rsPRACDP.Znajdz(klucz.prcId)) continue;
        prcId_ = klucz.prcId;
        ustaw(tabele_[klucz.tabela].tabela().nr(klucz.kolumna), zmiana.po);
    }
    prcId_ = biezacy;
}

QString KartotekaPracownika::SprawdzPesel(const QString& tekst) const {
    if (tekst.isEmpty() || tekst.size() >= kDlugoscPesel) return tekst;
    o_.rozmowa.komunikat(QStringLiteral("Nieprawidłowa długość Pesel"), Styl::Wykrzyknik);
    return {};
}

QString KartotekaPracownika::SprawdzNip(const QString& tekst) const {
    if (tekst.isEmpty() || tekst.size() >= kDlugoscNip) return tekst;
    o_.rozmowa.komunikat(QStringLiteral("Nieprawidłowa długość NIP"), Styl::Wykrzyknik);
    return {};
}

bool KartotekaPracownika::ZaproponujKopieAdresu(AdresKopii adres) {
    const bool zamieszkania = adres == AdresKopii::Zamieszkania;
    const auto kopia = zamieszkania ? &CzescAdresu::zamieszkania : &CzescAdresu::korespondencji;
    const auto jestPusta = [&](const CzescAdresu& c) { return pusta(wartosc(c.*kopia)); };
    if (!prcId_ || !std::ranges::all_of(kAdres, jestPusta)) return false;
    const QString pytanie =
        zamieszkania
            ? QStringLiteral("Czy skopiować dane z <Adresu zameldowania> do <Adresu zamieszkania> ?")
            : QStringLiteral("Czy skopiować dane z <Adresu zameldowania> do <Adresu do korespondencji> ?");
    if (!o_.rozmowa.pytanie(pytanie, QStringLiteral("Pytanie."))) return false;
    for (const CzescAdresu& c : kAdres) ustaw(c.*kopia, wartosc(c.zameldowania));
    return true;
}

quint32 KartotekaPracownika::maska(Kolumna kolumna) const {
    const Wartosc bity = wartosc(kolumna);
    const auto* liczba = std::get_if<qint64>(&bity);
    return liczba ? static_cast<quint32>(*liczba) : 0;
}

bool KartotekaPracownika::miejsceDodatnie(int n) const {
    return o_.skladniki.SkAkt(n) && maBit(maska(PRACSK("dod")), n);
}

bool KartotekaPracownika::miejsceUjemne(int n) const {
    return o_.skladniki.SkUAkt(n) && maBit(maska(PRACSK("pot")), n);
}

KartotekaPracownika::Slownik KartotekaPracownika::urzedy() const {
    return slownik(o_.sesja, schemat::US("US_ID"), schemat::US("Nazwa"));
}

KartotekaPracownika::Slownik KartotekaPracownika::miejscaPracy() const {
    return slownik(o_.sesja, schemat::M_PRACY("MP_ID"), schemat::M_PRACY("Nazwa"));
}

} // namespace tornel::personnel
