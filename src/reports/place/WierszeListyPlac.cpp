#include "reports/place/WierszeListyPlac.h"
#include "common/Slownie.h"
#include "druk/Uklad.h"
#include "payroll/lista/ListaPlac.h"
#include "store/Sesja.h"

namespace tornel::reports {

using schemat::PLA;
using schemat::PLB;

namespace {

/// What a payslip takes off the pay besides the components.
constexpr std::pair<PoleListyPlac, QStringView> kPotracane[] = {
    {Emerytalna, u"Fundusz emerytalny"}, {Rentowa, u"Fundusz rentowy"},
    {Chorobowa, u"Fundusz chorobowy"},   {Zdrowotna, u"Ubezpieczenie zdrowotne"},
    {Zaliczka, u"Zaliczka na podatek"},
};

} // namespace

WierszeListyPlac::WierszeListyPlac(Otoczenie& otoczenie, const ListaPlac& lista, std::optional<qint64> prcId)
    : sesja_(otoczenie.sesja) {
    naglowek_.firma = FirmaNaWydruku(otoczenie.stale);
    naglowek_.miesiac = {sesja_.rok(), sesja_.mies()};
    naglowek_.symbol = lista.symbol();
    const QStringList nazwy = NazwySkladnikow(otoczenie, naglowek_.miesiac);
    naglowek_.plusy = naglowek_.minusy = {QString()};
    for (int i = 1; i <= 30; ++i) {
        naglowek_.plusy.append(nazwy[i]);
        if (lista.pozycje().dodatnia(i).aktywna()) naglowek_.uzywanePlusy.append(i);
    }
    for (int i = 1; i <= 15; ++i) {
        naglowek_.minusy.append(nazwy[30 + i]);
        if (lista.pozycje().ujemna(i).aktywna()) naglowek_.uzywaneMinusy.append(i);
    }
    const bool wszystkie = naglowek_.symbol.trimmed().isEmpty();
    for (const Wiersz a : sesja_.rsPLA.wiersze()) {
        const qint64 numer = a.liczba(PLA("PRC_ID"));
        const QString symbol = a.tekst(PLA("LISTA"));
        if ((!wszystkie && symbol != naglowek_.symbol) || (prcId && *prcId != numer)) continue;
        const auto b = sesja_.rsPLB.szukaj(numer, symbol), s = sesja_.rsPLS.szukaj(numer, symbol);
        wiersze_.push_back({a.zakladka(), b ? b->zakladka() : -1, s ? s->zakladka() : -1});
    }
}

Wartosc WierszeListyPlac::pole(int wiersz, int nr) const {
    const Rekordy& r = wiersze_.at(static_cast<std::size_t>(wiersz));
    const Wiersz a(sesja_.rsPLA, r.a);
    if (nr >= OstatniePole) {
        if (r.s < 0) return Waluta{};
        const int skladnik = nr - OstatniePole;
        return Wiersz(sesja_.rsPLS, r.s)
            .kwota(skladnik < 30 ? schemat::SP(skladnik + 1) : schemat::SM(skladnik - 29));
    }
    for (const PoleKolumna& p : kolumnyListyPlac()) {
        if (p.pole != nr) continue;
        if (p.kolumna.tabela == &PLA) return a.wartosc(p.kolumna);
        return r.b < 0 ? Wartosc(Waluta{}) : Wiersz(sesja_.rsPLB, r.b).wartosc(p.kolumna);
    }
    const auto kwota = [&](PoleListyPlac p) { return std::get<Waluta>(pole(wiersz, p)); };
    switch (nr) {
    case Osoba:
        return QString(a.tekst(PLA("NAZ")) + QLatin1Char(' ') + a.tekst(PLA("IMIE"))).trimmed();
    case SkladkiPracownika:
        return kwota(Emerytalna) + kwota(Rentowa) + kwota(Chorobowa);
    case Gotowka:
        return NieMniejNizZero(kwota(DoWyplaty) - kwota(Przelewem));
    case Slownie:
        return SlownieKwota(kwota(DoWyplaty));
    default:
        return spis(wiersz, nr);
    }
}

/// The lines of a payslip: only what has an amount.
QString WierszeListyPlac::spis(int wiersz, int nr) const {
    QStringList linie;
    const bool nazwy = nr == SpisNalezne || nr == SpisPotracane;
    const auto dopisz = [&](const QString& nazwa, int poleKwoty) {
        const Waluta k = std::get<Waluta>(pole(wiersz, poleKwoty));
        if (!k.zero()) linie.append(nazwy ? nazwa : tekstPola(k, Format::Kwota));
    };
    if (nr == SpisNalezne || nr == SpisKwot) {
        for (const int i : naglowek_.uzywanePlusy) dopisz(naglowek_.plusy[i], polePlusa(i));
    } else {
        for (const auto& [p, nazwa] : kPotracane) dopisz(nazwa.toString(), p);
        for (const int i : naglowek_.uzywaneMinusy) dopisz(naglowek_.minusy[i], poleMinusa(i));
    }
    return linie.join(QLatin1Char('\n'));
}

bool WierszeListyPlac::uzyty(int pole) const {
    for (int w = 0; w < ile(); ++w)
        if (!std::get<Waluta>(this->pole(w, pole)).zero()) return true;
    return false;
}

QList<QString> nazwyPolListyPlac(const NaglowekListyPlac& naglowek) {
    QList<QString> nazwy(kPolListyPlac);
    nazwy[Osoba] = QStringLiteral("Nazwisko i imię");
    nazwy[SkladkiPracownika] = QStringLiteral("Składki pracownika");
    nazwy[Gotowka] = QStringLiteral("Gotówką");
    for (const PoleKolumna& p : kolumnyListyPlac()) nazwy[p.pole] = p.nazwa.toString();
    for (const int i : naglowek.uzywanePlusy) nazwy[polePlusa(i)] = naglowek.plusy[i];
    for (const int i : naglowek.uzywaneMinusy) nazwy[poleMinusa(i)] = naglowek.minusy[i];
    return nazwy;
}

} // namespace tornel::reports
