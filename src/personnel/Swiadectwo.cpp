#include "personnel/Swiadectwo.h"
#include "common/Blad.h"
#include "personnel/Urlopy.h"
#include "personnel/Zwolnienia.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <algorithm>

namespace tornel::personnel {

using schemat::URL;
using schemat::ZW;

namespace {

ZakresDat czescWspolna(const ZakresDat& a, const ZakresDat& b) {
    return {std::max(a.od, b.od), std::min(a.dokad, b.dokad)};
}

/// The posts that the contracts and changes up to the end name, from the first day on.
QList<OkresNaStanowisku> stanowiska(const QList<UmowaOPrace>& umowy, const ZakresDat& zatrudnienie) {
    QList<OkresNaStanowisku> wynik;
    for (const UmowaOPrace& u : umowy) {
        if (u.warunki.od > zatrudnienie.dokad) continue;
        const QString etat = NapisEtatu(u.warunki.etat, u.warunki.etat2);
        if (!wynik.isEmpty()) {
            OkresNaStanowisku& dotad = wynik.last();
            if (dotad.stanowisko == u.warunki.stanowisko && dotad.etat == etat) continue;
            dotad.zakres.dokad = u.warunki.od.addDays(-1);
        }
        wynik.append({u.warunki.stanowisko, etat, {u.warunki.od, zatrudnienie.dokad}});
    }
    if (!wynik.isEmpty()) wynik.first().zakres.od = zatrudnienie.od;
    // A contract that another one replaced on its first day was never worked under.
    wynik.removeIf([](const OkresNaStanowisku& o) { return !o.zakres.poprawny(); });
    return wynik;
}

void wpiszUrlopy(DaneSwiadectwa& d, Otoczenie& o, const ZakresDat& rok) {
    const RejestrUrlopow rejestr(o);
    d.urlop = rejestr.WykorzystaneDni(d.umowa.prcId, rok.od.year());
    d.urlopNalezny = rejestr.PrzyslugujeDni(d.umowa.prcId);
    const Recordset urlopy = rejestr.wiersze(d.umowa.prcId);
    for (const Wiersz w : urlopy.wiersze()) {
        const ZakresDat caly{w.data(URL("Data")), w.data(URL("data_do"))};
        const ZakresDat zakres = czescWspolna(caly, d.zatrudnienie);
        if (!zakres.poprawny()) continue;
        switch (static_cast<RodzajUrlopu>(w.liczba(URL("Rodzaj")))) {
        case RodzajUrlopu::Bezplatny:
            d.bezplatne.append(zakres);
            break;
        case RodzajUrlopu::Wychowawczy:
            d.wychowawcze.append(zakres);
            break;
        case RodzajUrlopu::OpiekaNadDzieckiem:
            if (caly.od >= rok.od) d.opieka += w.liczba(URL("il_dni"));
            break;
        default:
            break;
        }
    }
}

void wpiszZwolnienia(DaneSwiadectwa& d, Otoczenie& o, const ZakresDat& rok) {
    const Recordset zwolnienia = RejestrZwolnien(o).wiersze(d.umowa.prcId);
    for (const Wiersz w : zwolnienia.wiersze()) {
        const ZakresDat caly{w.data(ZW("Data")), w.data(ZW("data_do"))};
        if (const ZakresDat zakres = czescWspolna(caly, d.zatrudnienie); zakres.poprawny())
            d.zwolnienia.append(zakres);
        d.chorobowe += czescWspolna(caly, rok).dni();
    }
    d.chorobowe = std::min<qint64>(d.chorobowe, o.stale.L4Pracod);
}

} // namespace

DaneSwiadectwa ZbierzSwiadectwo(Otoczenie& otoczenie, qint64 id) {
    const UmowyOPrace umowy(otoczenie);
    const auto wybrana = umowy.umowa(id);
    if (!wybrana) throw Blad(QStringLiteral("Nie ma umowy o numerze %1.").arg(id));
    DaneSwiadectwa d;
    d.umowa = umowy.glowna(*wybrana);
    if (const QString odmowa = umowy.odmowaPisma(d.umowa, PismoOPrace::Swiadectwo); !odmowa.isEmpty())
        throw Blad(odmowa);
    const QDate koniec = umowy.koniecZatrudnienia(d.umowa);
    const QList<UmowaOPrace> wszystkie = umowy.pracownika(d.umowa.prcId);
    if (d.umowa.sposob == SposobRozwiazania::Trwa) d.umowa.sposob = SposobRozwiazania::UplywCzasu;
    d.zatrudnienie = {umowy.zatrudnionyOd(d.umowa), koniec};
    d.stanowiska = stanowiska(wszystkie, d.zatrudnienie);
    const ZakresDat rok = czescWspolna({QDate(koniec.year(), 1, 1), koniec}, d.zatrudnienie);
    wpiszUrlopy(d, otoczenie, rok);
    wpiszZwolnienia(d, otoczenie, rok);
    return d;
}

} // namespace tornel::personnel
