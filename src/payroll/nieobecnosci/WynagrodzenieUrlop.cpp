#include "payroll/nieobecnosci/WynagrodzenieUrlop.h"
#include "common/Blad.h"
#include "payroll/nieobecnosci/PodstawySrednich.h"
#include "rules/Stale.h"

namespace tornel::payroll {

namespace {

constexpr int kBezplatny = 1; // kind that earns nothing

/// What became of a period that has no component.
Uwaga niezapisany(const OkresUrlopu& okres) {
    return {QStringLiteral("Wynagrodzenie za okres od ") + FormatDaty(okres.od) + QStringLiteral(" do ") +
            FormatDaty(okres.dokad) + QStringLiteral(" nie zostało zapisane.")};
}

} // namespace

SredniaUrlopu SredniaDoUrlopu(const QList<PodstawaUrlopu>& podstawy) {
    SredniaUrlopu wynik;
    Waluta suma;
    for (const PodstawaUrlopu& m : podstawy) {
        wynik.miesiace.append({m.miesiac, m.skladniki, {}});
        wynik.dni += m.dniPracy;
        suma += m.skladniki;
    }
    if (wynik.dni != 0) wynik.StawkaDzienna = Proporcja(suma, 1, wynik.dni, 2);
    return wynik;
}

QList<OkresDoWyceny> OkresyUrlopow(RokMies miesiac, Nieobecnosci urlopy) {
    QList<OkresDoWyceny> wynik;
    for (const Nieobecnosc& u : urlopy)
        if (u.Rodzaj != kBezplatny)
            // Deliberate: only the numbers of the months are compared, not the years.
            wynik.append({u.Data.month() < miesiac.mies ? miesiac.pierwszyDzien() : u.Data,
                          u.data_do.month() > miesiac.mies ? miesiac.ostatniDzien() : u.data_do,
                          u.Kwota,
                          {}});
    return wynik;
}

std::optional<int> DniWedlugKalendarza(const OkresDoWyceny& okres,
                                       const std::optional<DniKalendarza>& kalendarz) {
    if (!kalendarz) return std::nullopt;
    return kalendarz->ile(DniKalendarza::Roboczy, okres.od.day(), okres.dokad.day());
}

int DniWedlugTygodnia(const MiesiacPlac& miesiac, const OkresDoWyceny& okres) {
    int dni = 0;
    for (QDate d = okres.od; d <= okres.dokad; d = d.addDays(1))
        dni += d.dayOfWeek() < Qt::Saturday || (d.dayOfWeek() == Qt::Saturday && miesiac.stale.WliczSobDoUrl);
    return dni;
}

OkresUrlopu WycenOkres(const OkresDoWyceny& okres, Waluta StawkaDzienna) {
    return {okres.od, okres.dokad,
            okres.Kwota.zero() ? Proporcja(StawkaDzienna, okres.dni.value_or(0), 1) : okres.Kwota};
}

QList<int> ProponowaneSkladniki(const MiesiacPlac& miesiac, qsizetype okresow) {
    const auto& numery = miesiac.stale.SklUrlz;
    QList<int> wynik(numery.begin(), numery.end());
    wynik.resize(okresow);
    return wynik;
}

namespace {

void wpiszUrlopyRazem(const MiesiacPlac& miesiac, const QList<OkresUrlopu>& okresy, WynikUrlopu& wynik) {
    const int nr = miesiac.stale.SklUrl;
    // Deliberate: number 30 is left out as well, without a word.
    if (okresy.isEmpty() || nr <= 0 || nr >= 30) return;
    if (!miesiac.aktywny(nr)) {
        wynik.uwagi.append({QStringLiteral("Składnik nr ") + QString::number(nr) +
                            QStringLiteral(" odpowiadający wynagrodzeniu za urlop jest nieaktywny. Kwota za "
                                           "urlop nie została zaopisana.")});
        return;
    }
    Waluta suma;
    for (const OkresUrlopu& okres : okresy) suma += okres.kwota;
    wynik.skladniki.wpisz(nr, suma, okresy.first().od, okresy.last().dokad);
}

void wpiszUrlopyOsobno(const QList<OkresUrlopu>& okresy, const QList<std::optional<int>>& numery,
                       WynikUrlopu& wynik) {
    for (qsizetype i = 0; i < okresy.size(); ++i) {
        if (const std::optional<int> nr = numery.value(i))
            wynik.skladniki.wpisz(*nr, okresy[i].kwota, okresy[i].od, okresy[i].dokad);
        else
            wynik.uwagi.append(niezapisany(okresy[i]));
    }
}

void zmniejszPoUrlopie(const MiesiacPlac& miesiac, const DniWiersza& dni, SkladnikiWiersza& skladniki) {
    const qint64 dniPracy = dni.przepracowane(), dniRazem = dniPracy + dni.dn_url;
    for (const int nr : miesiac.stale.SklPrzelURL) {
        if (!miesiac.aktywny(nr)) continue;
        if (dniRazem == 0)
            throw Blad(QStringLiteral(
                "Nie można przeliczyć składników po urlopie: dzielenie przez zero, wiersz nie ma "
                "dni pracy ani urlopu."));
        skladniki.sp(nr) = Proporcja(skladniki.sp(nr), dniPracy, dniRazem);
    }
}

} // namespace

WynikUrlopu WyliczURL(const MiesiacPlac& miesiac, const WierszPlac& w, const DaneUrlopu& dane,
                      const Odpowiedzi& odpowiedzi) {
    WynikUrlopu wynik{w.skladniki, {}};
    QList<OkresUrlopu> okresy;
    for (const OkresDoWyceny& okres : dane.okresy) {
        okresy.append(WycenOkres(okres, dane.StawkaDzienna));
        if (okres.Kwota.zero() && !okres.dni)
            wynik.uwagi.append(
                {QStringLiteral("W kalendarzu nie ma miesiąca %1.%2, urlop od %3 do %4 ma 0 dni.")
                     .arg(FormatMiesiaca(okres.od.month()), FormatRoku(okres.od.year()), FormatDaty(okres.od),
                          FormatDaty(okres.dokad))});
    }
    if (dane.skladniki.isEmpty())
        wpiszUrlopyRazem(miesiac, okresy, wynik);
    else
        wpiszUrlopyOsobno(okresy, dane.skladniki, wynik);
    if (odpowiedzi.ma(Pytanie::SkladnikiPoUrlopie)) zmniejszPoUrlopie(miesiac, w.dni, wynik.skladniki);
    return wynik;
}

} // namespace tornel::payroll
