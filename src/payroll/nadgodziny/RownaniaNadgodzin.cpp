#include "payroll/nadgodziny/RownaniaNadgodzin.h"
#include "rules/Stale.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::NADG;

namespace {

struct SeriaRownan {
    Kolumna pierwsza;
    RownaniaNadgodzin::Trojka RownaniaNadgodzin::*rownania;
};

constexpr Kolumna kGrupowe = NADG("rc1");

const SeriaRownan kDzienne[] = {
    {NADG("rrc1"), &RownaniaNadgodzin::robocze},
    {NADG("rsc1"), &RownaniaNadgodzin::soboty},
    {NADG("rnc1"), &RownaniaNadgodzin::niedziele},
};

/// Calls `czynnosc` with each column of the header that holds an equation, and the equation.
template <typename Rownania, typename Czynnosc>
void dlaKazdegoRownania(Rownania& r, const Czynnosc& czynnosc) {
    const auto seria = [&](Kolumna kolumna, auto& teksty) {
        for (auto& tekst : teksty) {
            czynnosc(kolumna, tekst);
            ++kolumna.nr;
        }
    };
    for (const SeriaRownan& s : kDzienne) seria(s.pierwsza, r.*s.rownania);
    seria(kGrupowe, r.grupowe);
}

} // namespace

RownaniaNadgodzin RownaniaNadgodzin::zeStalych(const Stale& stale) {
    return {stale.RowNGRob, stale.RowNGSob, stale.RowNGNie, stale.RowNGGr};
}

RownaniaNadgodzin RownaniaNadgodzin::zNaglowka(const Recordset& naglowek) {
    RownaniaNadgodzin r;
    dlaKazdegoRownania(r, [&](Kolumna k, QString& tekst) { tekst = naglowek.tekst(k); });
    return r;
}

void RownaniaNadgodzin::naNaglowek(Recordset& naglowek) const {
    dlaKazdegoRownania(*this, [&](Kolumna k, const QString& tekst) { naglowek.ustaw(k, tekst); });
}

const QString& RownaniaNadgodzin::dla(QDate dzien, int grupa) const {
    if (!dzien.isValid()) return grupowe.at(static_cast<std::size_t>(grupa - 1));
    const auto nr = static_cast<std::size_t>((grupa - 1) / 3);
    switch (dzien.dayOfWeek()) {
    case Qt::Saturday:
        return soboty.at(nr);
    case Qt::Sunday:
        return niedziele.at(nr);
    default:
        return robocze.at(nr);
    }
}

void StawkiNadgodzin::KomunikatyRaz::komunikat(const QString& tekst, Styl styl, const QString& tytul) {
    if (pokazane_.contains(tekst)) return;
    pokazane_.insert(tekst);
    dalej_.komunikat(tekst, styl, tytul);
}

bool StawkiNadgodzin::KomunikatyRaz::pytanie(const QString& tekst, const QString& tytul) {
    return dalej_.pytanie(tekst, tytul);
}

std::optional<QString> StawkiNadgodzin::KomunikatyRaz::wprowadz(const QString& tekst, const QString& tytul,
                                                                const QString& domyslna) {
    return dalej_.wprowadz(tekst, tytul, domyslna);
}

std::unique_ptr<Postep> StawkiNadgodzin::KomunikatyRaz::postep(const QString& tytul, int ile) {
    return dalej_.postep(tytul, ile);
}

void StawkiNadgodzin::ustawOsobe(qint64 prcId) {
    (void)sesja_.UstawPracownika(prcId);
    // The formulas' variables live on: without this check he would be paid by what another employee left.
    if (!sesja_.rsPRACPR.naWierszu() || !sesja_.rsPRACSK.naWierszu())
        throw Blad(QStringLiteral("Nie znaleziono danych pracownika w kadrach. Sprawdź dane kadrowe!"));
    policzone_.clear();
}

Waluta StawkiNadgodzin::stawka(const QString& rownanie, Waluta sgp) {
    if (const auto znana = policzone_.find({rownanie, sgp}); znana != policzone_.end()) return znana->second;
    wzory_.zmienne.SGP = sgp;
    int flags = trybWzoru::NieznaneZmienne | trybWzoru::BledyWzoru;
    const Waluta wartosc = wzory_.ObliczWzor(rownanie, flags);
    policzone_.emplace(std::pair(rownanie, sgp), wartosc);
    return wartosc;
}

WgGrup<Waluta> StawkiNadgodzin::kwoty(const RownaniaNadgodzin& rownania, QDate dzien,
                                      const WgGrup<Godziny>& godziny, Waluta sgp) {
    WgGrup<Waluta> wynik{};
    for (int g = 1; g <= kGrupNadgodzin; ++g) {
        const auto i = static_cast<std::size_t>(g - 1);
        if (!godziny[i].zero()) wynik[i] = KwotaZaGodziny(godziny[i], stawka(rownania.dla(dzien, g), sgp));
    }
    return wynik;
}

} // namespace tornel::payroll
