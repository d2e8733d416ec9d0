#include "rules/UstawianieStalych.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include <algorithm>
#include <vector>

namespace tornel::rules {

namespace {

struct Zakres {
    int od;
    int doWartosci;
};

Zakres zakres(const StalaDef& stala) {
    switch (stala.sprawdzenie) {
    case SprawdzenieStalej::Zaokraglenie:
        return {0, 2};
    case SprawdzenieStalej::Numer:
    case SprawdzenieStalej::NumerJedyny:
        return {0, kNajwyzszySkladnik};
    case SprawdzenieStalej::Wybor:
        return {0, static_cast<int>(stala.opcje.size()) - 1};
    case SprawdzenieStalej::Urzad:
        return {0, kNajwiekszaKrotka};
    default:
        return {kNajmniejszaKrotka, kNajwiekszaKrotka};
    }
}

[[noreturn]] void odmow(const StalaDef& stala, const QString& powod) {
    throw Blad(QStringLiteral("Nie można ustawić stałej %1 (%2): %3").arg(stala.num).arg(stala.nazwa, powod));
}

int liczba(const StalaDef& stala, const QString& tekst) {
    const auto [od, doWartosci] = zakres(stala);
    const auto wynik = CzytajLiczbe(tekst, od, doWartosci);
    if (!wynik)
        odmow(stala, QStringLiteral("tekst \"%1\" nie jest liczbą całkowitą od %2 do %3.")
                         .arg(tekst)
                         .arg(od)
                         .arg(doWartosci));
    return static_cast<int>(*wynik);
}

Waluta kwota(const StalaDef& stala, const QString& tekst) {
    const auto wynik = CzytajKwote(tekst, Zapis::Dane);
    if (!wynik) odmow(stala, QStringLiteral("tekst \"%1\" nie jest liczbą.").arg(tekst));
    return *wynik;
}

bool logiczna(const StalaDef& stala, const QString& tekst) {
    const QString t = tekst.trimmed().toUpper();
    if (t == u"TRUE" || t == u"T" || t == u"1") return true;
    if (t == u"FALSE" || t == u"N" || t == u"0") return false;
    odmow(stala, QStringLiteral("tekst \"%1\" nie jest ani \"True\", ani \"False\".").arg(tekst));
}

QDate data(const StalaDef& stala, const QString& tekst) {
    if (tekst.trimmed().isEmpty()) return {};
    const auto wynik = CzytajDate(tekst.trimmed());
    if (!wynik) odmow(stala, QStringLiteral("tekst \"%1\" nie jest datą dd-mm-rrrr.").arg(tekst));
    return *wynik;
}

QString napis(const StalaDef& stala, const QString& tekst) {
    const QString t = tekst.trimmed();
    if (stala.sprawdzenie == SprawdzenieStalej::Znak && t.size() > 1)
        odmow(stala, QStringLiteral("tekst \"%1\" jest dłuższy niż jeden znak.").arg(tekst));
    return stala.sprawdzenie == SprawdzenieStalej::Wzor ? t.toUpper() : t;
}

/// The pieces of an array's text without the empty ones at its end.
QStringList kawalki(const StalaDef& stala, const QString& tekst, std::size_t pojemnosc) {
    QStringList wynik = tekst.split(u',');
    while (!wynik.isEmpty() && wynik.last().trimmed().isEmpty()) wynik.removeLast();
    if (static_cast<std::size_t>(wynik.size()) > pojemnosc)
        odmow(stala,
              QStringLiteral("podano %1 wartości, a stała ma ich %2.").arg(wynik.size()).arg(pojemnosc));
    return wynik;
}

void przyjmijTablice(const StalaDef& stala, const QString& tekst, std::span<int> tablica) {
    std::ranges::fill(tablica, 0);
    auto element = tablica.begin();
    for (const QString& kawalek : kawalki(stala, tekst, tablica.size()))
        *element++ = kawalek.trimmed().isEmpty() ? 0 : liczba(stala, kawalek);
}

void przyjmijTablice(const StalaDef& stala, const QString& tekst, std::span<QString> tablica) {
    std::ranges::fill(tablica, QString());
    auto element = tablica.begin();
    for (const QString& kawalek : kawalki(stala, tekst, tablica.size())) *element++ = napis(stala, kawalek);
}

/// The component numbers that a constant holds: one, or those of its array.
std::vector<int> numerySkladnikow(const StalaDef& stala, const Stale& stale) {
    return zPolemStalej(stala, stale,
                        Warianty{
                            [](int numer) { return std::vector{numer}; },
                            []<std::size_t N>(const std::array<int, N>& tablica) {
                                return std::vector(tablica.begin(), tablica.end());
                            },
                            [](const auto&) { return std::vector<int>{}; },
                        });
}

void sprawdzJedynosc(const StalaDef& stala, const Stale& stale) {
    const auto numery = numerySkladnikow(stala, stale);
    for (std::size_t i = 0; i < numery.size(); ++i)
        if (!NumerSkladnikaWolny(stale, stala.num, i, numery[i]))
            odmow(stala, QStringLiteral("składnik nr %1 jest już podany w innej stałej lub na innym miejscu.")
                             .arg(numery[i]));
}

} // namespace

const StalaDef& wymaganaStala(int num) {
    const StalaDef* stala = znajdzStala(num);
    if (!stala) throw Blad(QStringLiteral("Nie ma stałej programu o numerze %1.").arg(num));
    return *stala;
}

bool NumerSkladnikaWolny(const Stale& stale, int num, std::size_t element, int numer) {
    if (numer == 0) return true;
    for (const StalaDef& stala : tabelaStalych()) {
        if (stala.sprawdzenie != SprawdzenieStalej::NumerJedyny) continue;
        const auto numery = numerySkladnikow(stala, stale);
        for (std::size_t i = 0; i < numery.size(); ++i)
            if (numery[i] == numer && !(stala.num == num && i == element)) return false;
    }
    return true;
}

void przyjmijTekst(const StalaDef& stala, const QString& tekst, Stale& stale) {
    zPolemStalej(stala, stale,
                 Warianty{
                     [&](int& pole) { pole = liczba(stala, tekst); },
                     [&](bool& pole) { pole = logiczna(stala, tekst); },
                     [&](Waluta& pole) { pole = kwota(stala, tekst); },
                     [&](QDate& pole) { pole = data(stala, tekst); },
                     [&](QString& pole) { pole = napis(stala, tekst); },
                     [&]<typename T, std::size_t N>(std::array<T, N>& pole) {
                         przyjmijTablice(stala, tekst, std::span<T>(pole));
                     },
                 });
    if (stala.sprawdzenie == SprawdzenieStalej::NumerJedyny) sprawdzJedynosc(stala, stale);
}

} // namespace tornel::rules
