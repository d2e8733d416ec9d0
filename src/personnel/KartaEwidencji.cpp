#include "personnel/KartaEwidencji.h"
#include "common/RokMies.h"
#include "personnel/Kalendarz.h"
#include "personnel/Urlopy.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <algorithm>

namespace tornel::personnel {

using schemat::KALENDARZ;
using schemat::PRACPR;
using schemat::URL;
using schemat::ZW;

namespace {

struct OpisDnia {
    QStringView nazwa, skrot;
};
/// By `DzienPracy`.
constexpr OpisDnia kDniPracy[kRodzajowDni] = {
    {u"dzień roboczy", u"Prac"},     {u"dzień wolny", u"Wol"},        {u"zwolnienie L4", u"L4"},
    {u"urlop wypoczynkowy", u"Wyp"}, {u"urlop bezpłatny", u"Bezp"},   {u"urlop okolicznościowy", u"Okol"},
    {u"urlop inny", u"Inny"},        {u"urlop wychowawczy", u"Wych"}, {u"opieka nad dzieckiem", u"Opie"},
    {u"inna przerwa", u"Prz"},
};

std::size_t numerDnia(DzienPracy rodzaj) { return static_cast<std::size_t>(rodzaj); }

/// The kind of a vacation as the card shows it; one that the list of kinds lacks is some break.
DzienPracy rodzajNieobecnosci(qint64 rodzaj) {
    constexpr auto kOstatni = static_cast<qint64>(RodzajUrlopu::InnaPrzerwa);
    if (rodzaj < 0 || rodzaj > kOstatni) return DzienPracy::InnaPrzerwa;
    return static_cast<DzienPracy>(static_cast<qint64>(DzienPracy::Wypoczynkowy) + rodzaj);
}

Zapytanie dniMiesiecy() {
    Zapytanie z(KALENDARZ);
    z.kolumny(KALENDARZ("Mies"));
    for (int d = 1; d <= 31; ++d) z.kolumny(schemat::DzienKalendarza(d));
    return z.gdzie(KALENDARZ("PrcId") == Parametr{0} && KALENDARZ("Rok") == Parametr{1}).wedlugZapisu();
}

/// Marks the days of the year that the absence takes, by their number in it, from 0.
void zaznaczOkres(std::array<DzienPracy, 366>& rok, QDate styczen, QDate od, QDate dokad, DzienPracy rodzaj) {
    if (!od.isValid() || !dokad.isValid()) return;
    const QDate grudzien(styczen.year(), 12, 31);
    for (QDate d = std::max(od, styczen); d <= std::min(dokad, grudzien); d = d.addDays(1))
        rok[static_cast<std::size_t>(styczen.daysTo(d))] = rodzaj;
}

} // namespace

QString NazwaDniaPracy(DzienPracy rodzaj) {
    return rodzaj == DzienPracy::Brak ? QString() : kDniPracy[numerDnia(rodzaj)].nazwa.toString();
}

QString SkrotDniaPracy(DzienPracy rodzaj) {
    return rodzaj == DzienPracy::Brak ? QString() : kDniPracy[numerDnia(rodzaj)].skrot.toString();
}

QString SymbolDnia(const Stale& stale, DzienPracy rodzaj) {
    return rodzaj == DzienPracy::Brak ? QStringLiteral("-") : stale.Symbol.at(numerDnia(rodzaj));
}

int MiesiacEwidencji::ile(DzienPracy rodzaj) const {
    return static_cast<int>(std::ranges::count(dni, rodzaj));
}

int KartaRoku::ile(DzienPracy rodzaj) const {
    int razem = 0;
    for (const MiesiacEwidencji& m : miesiace) razem += m.ile(rodzaj);
    return razem;
}

EwidencjaCzasuPracy::EwidencjaCzasuPracy(Otoczenie& otoczenie, int rok)
    : o_(otoczenie), rok_(rok), dni_(otoczenie.sesja.cnPlace, dniMiesiecy()),
      urlopy_(otoczenie.sesja.cnPlace, Zapytanie(URL)
                                           .kolumny(URL("Data"), URL("data_do"), URL("Rodzaj"))
                                           .gdzie(URL("prc_id") == Parametr{0})
                                           .wedlug(URL("Data"), URL("data_do"))),
      zwolnienia_(otoczenie.sesja.cnPlace,
                  Zapytanie(ZW).kolumny(ZW("Data"), ZW("data_do")).gdzie(ZW("prc_id") == Parametr{0})),
      ogolny_(kalendarze(kKalendarzOgolny)) {}

EwidencjaCzasuPracy::Kalendarze EwidencjaCzasuPracy::kalendarze(qint64 prcId) {
    Kalendarze wynik;
    for (auto w = dni_.uruchom(prcId, rok_); w.nastepny();) {
        std::array<qint64, 31> flagi{};
        for (int d = 1; d <= 31; ++d)
            flagi[static_cast<std::size_t>(d - 1)] = w.liczba(schemat::DzienKalendarza(d));
        const auto mies = static_cast<int>(w.liczba(KALENDARZ("Mies")));
        if (mies >= 1 && mies <= 12) wynik.try_emplace(mies, DniKalendarza::zFlag(rok_, mies, flagi));
    }
    return wynik;
}

KartaRoku EwidencjaCzasuPracy::karta(qint64 prcId) {
    const QDate styczen(rok_, 1, 1);
    std::array<DzienPracy, 366> nieobecnosci{};
    for (auto w = urlopy_.uruchom(prcId); w.nastepny();)
        zaznaczOkres(nieobecnosci, styczen, w.data(URL("Data")), w.data(URL("data_do")),
                     rodzajNieobecnosci(w.liczba(URL("Rodzaj"))));
    for (auto w = zwolnienia_.uruchom(prcId); w.nastepny();)
        zaznaczOkres(nieobecnosci, styczen, w.data(ZW("Data")), w.data(ZW("data_do")), DzienPracy::L4);
    QDate zatrudniony, zwolniony;
    if (const auto pr = o_.sesja.rsPRACPR.szukaj(prcId)) {
        zatrudniony = pr->data(PRACPR("data_zatr"));
        zwolniony = pr->data(PRACPR("data_zwoln"));
    }
    const Kalendarze wlasny = o_.stale.OsobHarPrac ? kalendarze(prcId) : Kalendarze();
    KartaRoku wynik{.prcId = prcId, .rok = rok_};
    for (int mies = 1; mies <= 12; ++mies) {
        const DniKalendarza kalendarz = wlasny.contains(mies)    ? wlasny.at(mies)
                                        : ogolny_.contains(mies) ? ogolny_.at(mies)
                                                                 : DniKalendarza::nowyMiesiac(rok_, mies);
        MiesiacEwidencji& m = wynik.miesiace[static_cast<std::size_t>(mies - 1)];
        m.dni.fill(DzienPracy::Brak);
        for (int d = 1; d <= DniWMiesiacu(rok_, mies); ++d) {
            const QDate dzien(rok_, mies, d);
            if (zatrudniony.isValid() && dzien < zatrudniony) continue;
            if (zwolniony.isValid() && dzien > zwolniony) continue;
            const DzienPracy nieobecnosc = nieobecnosci[static_cast<std::size_t>(styczen.daysTo(dzien))];
            const bool wolny = kalendarz[d] == DniKalendarza::Wolny;
            m.dni[static_cast<std::size_t>(d - 1)] =
                wolny && nieobecnosc != DzienPracy::L4 ? DzienPracy::Wolny : nieobecnosc;
        }
    }
    return wynik;
}

} // namespace tornel::personnel
