#include "common/Waluta.h"
#include "common/Blad.h"
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace tornel::common {

namespace {

__extension__ using Szeroka = __int128;

constexpr std::int64_t kPotegi[] = {10000, 1000, 100, 10, 1};

[[noreturn]] void pozaZakresem() {
    throw Przepelnienie(QStringLiteral("Kwota przekracza zakres liczb programu."));
}

Waluta zSzerokiej(Szeroka w) {
    if (w > std::numeric_limits<std::int64_t>::max() || w < std::numeric_limits<std::int64_t>::min())
        pozaZakresem();
    return Waluta::zSurowej(static_cast<std::int64_t>(w));
}

/// licznik / mianownik to a whole number, half to even.
Szeroka dzielDoParzystej(Szeroka licznik, Szeroka mianownik) {
    if (mianownik < 0) {
        licznik = -licznik;
        mianownik = -mianownik;
    }
    Szeroka iloraz = licznik / mianownik;
    const Szeroka reszta = licznik % mianownik;
    const Szeroka podwojona = 2 * (reszta < 0 ? -reszta : reszta);
    if (podwojona > mianownik || (podwojona == mianownik && iloraz % 2 != 0)) iloraz += licznik < 0 ? -1 : 1;
    return iloraz;
}

std::int64_t jednostka(int miejsca) {
    if (miejsca < 0) throw Blad(QStringLiteral("Ujemna liczba miejsc zaokrąglenia."));
    return kPotegi[std::min(miejsca, 4)];
}

/// licznik / mianownik, given in 1/10000 zł, rounded once to `miejsca` places.
Waluta ulamek(Szeroka licznik, Szeroka mianownik, int miejsca) {
    const Szeroka krok = jednostka(miejsca);
    return zSzerokiej(dzielDoParzystej(licznik, mianownik * krok) * krok);
}

} // namespace

Waluta Waluta::zlotych(std::int64_t zl) { return zSzerokiej(static_cast<Szeroka>(zl) * 10000); }

Waluta Waluta::zLiczby(double liczba) {
    if (!std::isfinite(liczba) || std::fabs(liczba) > 9.3e14) pozaZakresem();
    // The 15 significant digits as decimal text, so that 0,00005 is a half and not what a binary double
    // holds.
    char cyfry[32];
    std::snprintf(cyfry, sizeof cyfry, "%.14e", liczba);
    const char* e = cyfry;
    while (*e != 'e') ++e;
    const int wykladnik = std::atoi(e + 1);
    Szeroka mantysa = 0;
    for (const char* c = cyfry; c != e; ++c)
        if (*c >= '0' && *c <= '9') mantysa = mantysa * 10 + (*c - '0');
    if (cyfry[0] == '-') mantysa = -mantysa;
    int przesuniecie = wykladnik - 14 + 4;
    for (; przesuniecie > 0; --przesuniecie) mantysa *= 10;
    if (przesuniecie < -20) return {};
    Szeroka dzielnik = 1;
    for (; przesuniecie < 0; ++przesuniecie) dzielnik *= 10;
    return zSzerokiej(dzielDoParzystej(mantysa, dzielnik));
}

Waluta& Waluta::operator+=(Waluta b) {
    std::int64_t suma = 0;
    if (__builtin_add_overflow(surowa_, b.surowa_, &suma)) pozaZakresem();
    surowa_ = suma;
    return *this;
}

Waluta& Waluta::operator-=(Waluta b) {
    std::int64_t roznica = 0;
    if (__builtin_sub_overflow(surowa_, b.surowa_, &roznica)) pozaZakresem();
    surowa_ = roznica;
    return *this;
}

Waluta Round(Waluta kwota, int miejsca) { return ulamek(kwota.surowa(), 1, miejsca); }

Waluta Procent(Waluta kwota, Stawka stawka, int miejsca) {
    return ulamek(static_cast<Szeroka>(kwota.surowa()) * stawka.procent().surowa(), Szeroka{10000} * 100,
                  miejsca);
}

Waluta Proporcja(Waluta kwota, std::int64_t licznik, std::int64_t mianownik, int miejsca) {
    if (mianownik == 0) throw Blad(QStringLiteral("Dzielenie przez zero."));
    return ulamek(static_cast<Szeroka>(kwota.surowa()) * licznik, mianownik, miejsca);
}

Waluta Iloczyn(Waluta a, Waluta b) { return ulamek(static_cast<Szeroka>(a.surowa()) * b.surowa(), 10000, 4); }

QString FormatKwoty(Waluta kwota) {
    const bool ujemna = kwota.surowa() < 0;
    const auto bezwzgledna =
        ujemna ? -static_cast<Szeroka>(kwota.surowa()) : static_cast<Szeroka>(kwota.surowa());
    const auto grosze = static_cast<std::int64_t>((bezwzgledna + 50) / 100);
    const QString tekst = QString::number(grosze / 100) + QLatin1Char(',') +
                          QString::number(grosze % 100).rightJustified(2, QLatin1Char('0'));
    return ujemna && grosze != 0 ? QLatin1Char('-') + tekst : tekst;
}

QString NapisKwoty(Waluta kwota) {
    constexpr qsizetype kGrosze = 3; // the comma and two digits
    constexpr int kCyfr = 3;
    constexpr QChar kTwardyOdstep(0x00a0);
    QString tekst = FormatKwoty(kwota);
    const qsizetype pierwsza = tekst.startsWith(QLatin1Char('-')) ? 1 : 0;
    for (qsizetype i = tekst.size() - kGrosze - kCyfr; i > pierwsza; i -= kCyfr)
        tekst.insert(i, kTwardyOdstep);
    return tekst;
}

QString TekstKwoty(Waluta kwota) {
    const bool ujemna = kwota.surowa() < 0;
    const auto bezwzgledna =
        ujemna ? -static_cast<Szeroka>(kwota.surowa()) : static_cast<Szeroka>(kwota.surowa());
    QString tekst = QString::number(static_cast<qint64>(bezwzgledna / 10000));
    if (const auto reszta = static_cast<int>(bezwzgledna % 10000); reszta != 0) {
        QString ulamkowa = QString::number(reszta).rightJustified(4, QLatin1Char('0'));
        while (ulamkowa.endsWith(QLatin1Char('0'))) ulamkowa.chop(1);
        tekst += QLatin1Char(',') + ulamkowa;
    }
    return ujemna ? QLatin1Char('-') + tekst : tekst;
}

} // namespace tornel::common
