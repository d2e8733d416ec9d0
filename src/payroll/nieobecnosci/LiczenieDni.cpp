#include "payroll/nieobecnosci/LiczenieDni.h"

namespace tornel::payroll {

namespace {

/// By day of the month: 0, or what holds on the day; wide enough for the number after any stored kind.
using DniWgDaty = std::array<qint64, 32>;

/// Marks the days of the absence that lie in the month. A later absence overwrites an earlier one.
void zaznacz(DniWgDaty& dni, const Nieobecnosc& n, RokMies miesiac, qint64 znak) {
    for (QDate d = std::max(n.Data, miesiac.pierwszyDzien());
         d <= std::min(n.data_do, miesiac.ostatniDzien()); d = d.addDays(1))
        dni[static_cast<std::size_t>(d.day())] = znak;
}

struct Zaznaczone {
    DniWgDaty urlop{}, l4{};

    Zaznaczone(RokMies miesiac, Nieobecnosci urlopy, Nieobecnosci zwolnienia) {
        for (const Nieobecnosc& n : urlopy) zaznacz(urlop, n, miesiac, qint64{n.Rodzaj} + 1);
        for (const Nieobecnosc& n : zwolnienia) zaznacz(l4, n, miesiac, 1);
    }
    [[nodiscard]] bool pokrywajaSie() const {
        for (std::size_t d = 1; d < urlop.size(); ++d)
            if (urlop[d] && l4[d]) return true;
        return false;
    }
};

DniWiersza zliczDni(const DniKalendarza& kalendarz, RokMies miesiac, const Zaznaczone& zaznaczone) {
    DniWiersza wynik;
    const QDate pierwszy = miesiac.pierwszyDzien();
    for (int d = 1; d <= miesiac.dni(); ++d) {
        if (kalendarz[d] == DniKalendarza::NieMa) continue;
        const qint64 rodzaj = zaznaczone.urlop[static_cast<std::size_t>(d)];
        const int dzienTygodnia = pierwszy.addDays(d - 1).dayOfWeek();
        if (zaznaczone.l4[static_cast<std::size_t>(d)]) {
            ++wynik.dn_zas; // whatever the calendar says
        } else if (kalendarz[d] == DniKalendarza::Wolny) {
            ++wynik.dn_inn; // a free day of a vacation included
        } else if (rodzaj == 0) {
            ++(dzienTygodnia == Qt::Sunday     ? wynik.dn_ni
               : dzienTygodnia == Qt::Saturday ? wynik.dn_so
                                               : wynik.dn_ro);
        } else {
            ++wynik.dn_url;
            if (static_cast<std::size_t>(rodzaj) <= wynik.wgRodzaju.size())
                ++wynik.wgRodzaju[static_cast<std::size_t>(rodzaj - 1)];
        }
    }
    wynik.dn_pr = wynik.przepracowane();
    return wynik;
}

} // namespace

bool NieobecnosciPokrywajaSie(RokMies miesiac, Nieobecnosci urlopy, Nieobecnosci zwolnienia) {
    return Zaznaczone(miesiac, urlopy, zwolnienia).pokrywajaSie();
}

WynikDni Przelicz_Dni(RokMies miesiac, const DaneDni& dane) {
    const Zaznaczone zaznaczone(miesiac, dane.urlopy, dane.zwolnienia);
    if (zaznaczone.pokrywajaSie())
        return {{},
                {{QStringLiteral("Czas trwania urlopów pokrywa się z czasem trwania zwolnienia L4. Dni nie "
                                 "mogą być wyliczone.")}}};
    if (dane.kalendarzPusty) return {{}, {{QStringLiteral("Brak danych w kalendarzu.")}}};
    if (!dane.kalendarz)
        return {
            DniWiersza{},
            {{QStringLiteral("W kalendarzu nie ma miesiąca, dni czasu pracy są równe 0."), Zakres::Seria}}};
    return {zliczDni(*dane.kalendarz, miesiac, zaznaczone), {}};
}

int DniObowiazkuPracy(RokMies miesiac, const std::optional<DniKalendarza>& kalendarz) {
    const auto dni = kalendarz ? *kalendarz : DniKalendarza::nowyMiesiac(miesiac.rok, miesiac.mies);
    return dni.ile(DniKalendarza::Roboczy);
}

} // namespace tornel::payroll
