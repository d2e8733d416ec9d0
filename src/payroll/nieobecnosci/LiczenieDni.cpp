#include "payroll/nieobecnosci/LiczenieDni.h"
#include "common/Daty.h"
#include "payroll/lista/Warsztat.h"
#include "rules/Stale.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::PLA;
using schemat::PLB;

namespace {

/// By day of the month: 0, or what holds on the day; wide enough for the number after any stored kind.
using DniWgDaty = std::array<qint64, 32>;

/// Marks the days of the absence that lie in the month. A later absence overwrites an earlier one.
void zaznacz(DniWgDaty& dni, const Nieobecnosc& n, QDate pierwszy, qint64 znak) {
    const QDate ostatni = OstatniDzien(pierwszy.year(), pierwszy.month());
    for (QDate d = std::max(n.Data, pierwszy); d <= std::min(n.data_do, ostatni); d = d.addDays(1))
        dni[static_cast<std::size_t>(d.day())] = znak;
}

LicznikiDni zliczDni(const DniKalendarza& kalendarz, QDate pierwszy, const DniWgDaty& urlop,
                     const DniWgDaty& l4) {
    LicznikiDni wynik;
    for (int d = 1; d <= pierwszy.daysInMonth(); ++d) {
        if (kalendarz[d] == DniKalendarza::NieMa) continue;
        const qint64 rodzaj = urlop[static_cast<std::size_t>(d)];
        const int dzienTygodnia = pierwszy.addDays(d - 1).dayOfWeek();
        if (l4[static_cast<std::size_t>(d)]) {
            ++wynik.Czasnl4; // whatever the calendar says
        } else if (kalendarz[d] == DniKalendarza::Wolny) {
            ++wynik.Innewolne; // a free day of a vacation included
        } else if (rodzaj == 0) {
            ++(dzienTygodnia == Qt::Sunday     ? wynik.Niedziele
               : dzienTygodnia == Qt::Saturday ? wynik.Soboty
                                               : wynik.Dnirob);
        } else {
            ++wynik.Czasnaurl;
            if (static_cast<std::size_t>(rodzaj) <= wynik.urlopy.size())
                ++wynik.urlopy[static_cast<std::size_t>(rodzaj - 1)];
        }
    }
    return wynik;
}

} // namespace

std::optional<DniKalendarza> LiczenieDni::kalendarzMiesiaca(qint64 prcId, CzyjKalendarz czyj, Tryb tryb) {
    const int rok = w_.o.sesja.rok(), mies = w_.o.sesja.mies();
    if (czyj == CzyjKalendarz::Ogolny) return w_.dane.kalendarz(0, rok, mies);
    const std::optional<DniKalendarza> wlasny = w_.dane.kalendarz(prcId, rok, mies);
    if (wlasny || (tryb == Tryb::Pojedynczy &&
                   !w_.o.rozmowa.pytanie(QStringLiteral(
                       "Brak dni w kalendarzu dla pracownika. Czy szukać dni w kalendarzu dni wolnych "
                       "ogólnych ?"))))
        return wlasny;
    return w_.dane.kalendarz(0, rok, mies);
}

std::optional<LicznikiDni> LiczenieDni::policz(qint64 prcId, Tryb tryb) {
    Otoczenie& o = w_.o;
    if (!w_.odpowiedzi.liczycDni.pytaj(
            o.rozmowa, tryb, QStringLiteral("Czy wyliczać ilość przepracowanych dni dla pracowników ?"),
            QStringLiteral("Czy wyliczyć ilość przepracowanych dni dla pracownika ?")))
        return std::nullopt;
    CzyjKalendarz czyj = CzyjKalendarz::Ogolny;
    if (o.stale.OsobHarPrac &&
        w_.odpowiedzi.dniZKalendarza.pytaj(
            o.rozmowa, tryb, QStringLiteral("Czy ilość dni wyliczać z bazy dni wolnych pracowników ?"),
            QStringLiteral("Czy ilość dni wyliczyć z bazy dni wolnych pracownika ?")))
        czyj = CzyjKalendarz::Wlasny;

    const QDate pierwszy = PierwszyDzien(o.sesja.rok(), o.sesja.mies());
    DniWgDaty urlop{}, l4{};
    for (const Nieobecnosc& n : w_.dane.urlopy(prcId)) zaznacz(urlop, n, pierwszy, qint64{n.Rodzaj} + 1);
    for (const Nieobecnosc& n : w_.dane.zwolnieniaRoku(prcId)) zaznacz(l4, n, pierwszy, 1);
    for (std::size_t d = 1; d < urlop.size(); ++d)
        if (urlop[d] && l4[d]) {
            w_.uwaga(tryb, QStringLiteral(
                               "Czas trwania urlopów pokrywa się z czasem trwania zwolnienia L4. Dni nie "
                               "mogą być wyliczone."));
            return std::nullopt;
        }
    if (w_.dane.kalendarzPusty()) {
        w_.uwaga(tryb, QStringLiteral("Brak danych w kalendarzu."));
        return std::nullopt;
    }
    if (const auto kalendarz = kalendarzMiesiaca(prcId, czyj, tryb))
        return zliczDni(*kalendarz, pierwszy, urlop, l4);
    if (tryb == Tryb::Seria)
        w_.uwaga(tryb, QStringLiteral("W kalendarzu nie ma miesiąca, dni czasu pracy są równe 0."));
    return LicznikiDni{};
}

void LiczenieDni::Przelicz_Dni(Tryb tryb) {
    if (!w_.o.stale.AktRejPrzepDni) {
        if (tryb == Tryb::Pojedynczy)
            w_.o.rozmowa.komunikat(
                QStringLiteral("Rejestracja przepracowanych dni jest wyłączona. Nie można obliczyć "
                               "ilości przepracowanych dni, urlopu i L-4."),
                Styl::Wykrzyknik);
        return;
    }
    if (const auto dni = policz(w_.o.sesja.rsPLA.liczba(PLA("PRC_ID")), tryb)) WpiszDni(*dni);
}

void LiczenieDni::WpiszDni(const LicznikiDni& dni) {
    Recordset& a = w_.o.sesja.rsPLA;
    a.ustaw(PLA("DN_PR"), dni.Dnirob + dni.Soboty + dni.Niedziele);
    a.ustaw(PLA("DN_URL"), dni.Czasnaurl);
    a.ustaw(PLA("DN_ZAS"), dni.Czasnl4);
    a.ustaw(PLA("DN_RO"), dni.Dnirob);
    a.ustaw(PLA("DN_SO"), dni.Soboty);
    a.ustaw(PLA("DN_NI"), dni.Niedziele);
    a.ustaw(PLA("DN_INN"), dni.Innewolne);
    static constexpr Kolumna wgRodzaju[] = {PLB("DNI_UWYP"),  PLB("DN_UBEZPL"), PLB("DN_UOK"),
                                            PLB("DN_UINNY"),  PLB("DN_UWYCH"),  PLB("DN_UOPDZI"),
                                            PLB("DN_PRZERWY")};
    for (std::size_t i = 0; i < dni.urlopy.size(); ++i) w_.o.sesja.rsPLB.ustaw(wgRodzaju[i], dni.urlopy[i]);
}

int LiczenieDni::DniObowiazkuPracy(qint64 prcId, CzyjKalendarz czyj) {
    const int rok = w_.o.sesja.rok(), mies = w_.o.sesja.mies();
    const auto kalendarz = czyj == CzyjKalendarz::Wlasny ? w_.dane.kalendarzLubOgolny(prcId, rok, mies)
                                                         : w_.dane.kalendarz(0, rok, mies);
    return kalendarz.value_or(DniKalendarza::nowyMiesiac(rok, mies)).ile(DniKalendarza::Roboczy);
}

} // namespace tornel::payroll
