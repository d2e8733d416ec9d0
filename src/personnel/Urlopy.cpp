#include "personnel/Urlopy.h"
#include "common/Rozmowa.h"
#include "personnel/Kalendarz.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <algorithm>

namespace tornel::personnel {

using schemat::PRACPR;
using schemat::URL;

namespace {

constexpr QStringView kRodzaje[] = {u"Wypoczynkowy", u"Bezpłatny",   u"Okolicznościowy",
                                    u"Inny",         u"Wychowawczy", u"Opieka nad dzieckiem",
                                    u"Inna przerwa!"};

/// Constant 200: whether a Saturday counts although the calendar marks it free.
enum class Soboty { Pomijane, Liczone };

/// Days of the month from `od` to `dokad` that count as vacation.
int dniUrlopu(const DniKalendarza& dni, QDate od, QDate dokad, Soboty soboty) {
    int wynik = dni.ile(DniKalendarza::Roboczy, od.day(), dokad.day());
    for (QDate d = od; soboty == Soboty::Liczone && d <= dokad; d = d.addDays(1))
        wynik += d.dayOfWeek() == Qt::Saturday && dni[d.day()] == DniKalendarza::Wolny;
    return wynik;
}

} // namespace

std::span<const QStringView> RodzajeUrlopu() { return kRodzaje; }

QString NazwaRodzaju(qint64 rodzaj) {
    return rodzaj >= 0 && rodzaj < std::ssize(kRodzaje) ? kRodzaje[rodzaj].toString() : QString();
}

RejestrUrlopow::RejestrUrlopow(Otoczenie& otoczenie)
    : RejestrNieobecnosci(
          otoczenie, otoczenie.sesja.rsURL,
          {u"Zakres dat rejestrowanego urlopu dla pracownika pokrywa się z innymi już zarejestrowanymi "
           u"urlopami. Urlop nie zostanie zarejestrowane.",
           u"Czy na pewno usunąć wprowadzony urlop ?"}) {}

qint64 RejestrUrlopow::wyliczDlugosc(qint64 prcId, const ZakresDat& zakres) const {
    if (!o_.rozmowa.pytanie(QStringLiteral("Czy wyliczyć czas trwania urlopu ?"), QStringLiteral("?")))
        return 0;
    const Kalendarz kalendarz(o_);
    if (kalendarz.pusty()) {
        o_.rozmowa.komunikat(QStringLiteral("Kalendarz z dniami wolnymi jest pusty. Nie można obliczyć czasu "
                                            "trwania urlopu. "),
                             Styl::Wykrzyknik);
        return 0;
    }
    const bool wlasny =
        o_.stale.OsobHarPrac &&
        o_.rozmowa.pytanie(QStringLiteral("Czy wyliczyć czas trwania urlopu z dni wolnych pracownika ?"));
    const Soboty soboty = o_.stale.WliczSobDoUrl ? Soboty::Liczone : Soboty::Pomijane;
    qint64 dni = 0;
    for (QDate od = zakres.od; od <= zakres.dokad; od = OstatniDzien(od.year(), od.month()).addDays(1)) {
        const auto miesiac = kalendarz.dni({wlasny ? prcId : kKalendarzOgolny, od.year(), od.month()});
        if (!miesiac) {
            o_.rozmowa.komunikat(QStringLiteral("Nie znaleziono jednego z miesięcy w kalendarzu. Nie można "
                                                "wyliczyć czasu trwania urlopu."),
                                 Styl::Wykrzyknik);
            return 0;
        }
        dni += dniUrlopu(*miesiac, od, std::min(zakres.dokad, OstatniDzien(od.year(), od.month())), soboty);
    }
    return dni;
}

std::optional<qint64> RejestrUrlopow::Zarejestruj(const NowyUrlop& urlop) {
    if (!moznaZarejestrowac(urlop.prcId, urlop.zakres)) return std::nullopt;
    const qint64 dni = wyliczDlugosc(urlop.prcId, urlop.zakres);
    const qint64 id = dopisz(urlop.prcId, urlop.zakres,
                             {{URL("Rodzaj"), static_cast<qint64>(urlop.rodzaj)},
                              {URL("il_dni"), dni},
                              {URL("Kwota"), Round(urlop.kwota, 2)}});
    if (urlop.rodzaj == RodzajUrlopu::Wypoczynkowy)
        ostrzezOPrzekroczeniu(urlop.prcId, urlop.zakres.od.year());
    return id;
}

void RejestrUrlopow::Wpisz() {
    const Recordset& rs = tabela();
    const qint64 prcId = rs.liczba(URL("prc_id"));
    const int rok = rs.data(URL("Data")).year();
    const qint64 przedtem = WykorzystaneDni(prcId, rok);
    RejestrNieobecnosci::Wpisz();
    // The length is often typed by hand after the registration; a change that adds no days warns of nothing.
    if (WykorzystaneDni(prcId, rok) > przedtem) ostrzezOPrzekroczeniu(prcId, rok);
}

qint64 RejestrUrlopow::PrzyslugujeDni(qint64 prcId) const {
    const std::optional<Wiersz> pr = o_.sesja.rsPRACPR.szukaj(prcId);
    return pr ? pr->liczba(PRACPR("il_url")) + pr->liczba(PRACPR("il_zal_url")) : 0;
}

qint64 RejestrUrlopow::WykorzystaneDni(qint64 prcId, int rok) const {
    qint64 dni = 0;
    const Recordset swoje = wiersze(prcId);
    for (const Wiersz w : swoje.wiersze())
        if (w.liczba(URL("Rodzaj")) == static_cast<qint64>(RodzajUrlopu::Wypoczynkowy) &&
            w.data(URL("Data")).year() == rok)
            dni += w.liczba(URL("il_dni"));
    return dni;
}

void RejestrUrlopow::ostrzezOPrzekroczeniu(qint64 prcId, int rok) const {
    if (WykorzystaneDni(prcId, rok) <= PrzyslugujeDni(prcId)) return;
    o_.rozmowa.komunikat(
        QStringLiteral("Uwaga: Ilość przysługujących dni urlopu wypoczynkowego przekroczona."),
        Styl::Wykrzyknik);
}

} // namespace tornel::personnel
