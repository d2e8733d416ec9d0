#include "rules/frmStaleSprawdzenia.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "rules/SkladnikiPlac.h"
#include "rules/UstawianieStalych.h"

namespace tornel::rules {

namespace {

std::optional<int> numerSkladnika(const QString& tekst) {
    const auto numer = CzytajLiczbe(tekst, 0, kNajwyzszySkladnik);
    return numer ? std::optional(static_cast<int>(*numer)) : std::nullopt;
}

/// The text in place of one that was not taken, and what the field says of that; an emptied field says
/// nothing.
Wiazanie::Sprawdzony zamiast(const QString& tekst, const QString& nowy, const QString& wymaganie) {
    if (tekst.trimmed().isEmpty()) return nowy;
    return {nowy, QStringLiteral("„%1” to nie %2. Przyjęto %3.").arg(tekst.trimmed(), wymaganie, nowy)};
}

Wiazanie::Sprawdzony zaokraglenie(const QString& tekst) {
    if (const auto miejsca = CzytajLiczbe(tekst, 0, 2)) return QString::number(*miejsca);
    return zamiast(tekst, QStringLiteral("2"), QStringLiteral("0, 1 ani 2"));
}

Wiazanie::Sprawdzony numer(const QString& tekst) {
    if (const auto skladnik = numerSkladnika(tekst)) return QString::number(*skladnik);
    return zamiast(tekst, QStringLiteral("0"), QStringLiteral("numer składnika od 0 do 30"));
}

/// A number becomes the whole number with its unit. What is no number, "5 zł" among it, stays, and so does
/// one that is no denomination of any money.
QString nominal(const QString& tekst, const QString& jednostka) {
    const auto kwota = CzytajKwote(tekst);
    if (!kwota) return tekst;
    const auto calych = Round(*kwota, 0).surowa() / Waluta::zlotych(1).surowa();
    if (calych < kNajmniejszaKrotka || calych > kNajwiekszaKrotka) return tekst;
    return QString::number(calych) + jednostka;
}

} // namespace

SprawdzeniaStalych::SprawdzeniaStalych(Otoczenie& otoczenie, const ZrodloStalych& zrodlo)
    : zrodlo_(zrodlo), rozmowa_(otoczenie.rozmowa), wzory_(otoczenie.sesja, otoczenie.rozmowa) {}

Wiazanie::Sprawdzenie SprawdzeniaStalych::dla(const StalaDef& stala, std::size_t element) {
    using enum SprawdzenieStalej;
    switch (stala.sprawdzenie) {
    case Zaokraglenie:
        return [](const QString& tekst, const QString&) { return zaokraglenie(tekst); };
    case Numer:
        return [](const QString& tekst, const QString&) { return numer(tekst); };
    case NumerJedyny:
        return [this, &stala, element](const QString& tekst, const QString& przyWejsciu) {
            return numerJedyny(stala, element, tekst, przyWejsciu);
        };
    case Wzor:
        return [this](const QString& tekst, const QString&) {
            return SprawdzPoleWzoru(wzory_, tekst, rozmowa_);
        };
    case Nominal:
        return [&stala](const QString& tekst, const QString&) {
            const bool zlote = stala.nazwa == u"NPZl";
            return nominal(tekst, zlote ? QStringLiteral(" zł") : QStringLiteral(" gr"));
        };
    default:
        return {};
    }
}

Wiazanie::Sprawdzony SprawdzeniaStalych::numerJedyny(const StalaDef& stala, std::size_t element,
                                                     const QString& tekst, const QString& przyWejsciu) const {
    const auto skladnik = numerSkladnika(tekst);
    if (!skladnik) return zamiast(tekst, przyWejsciu, QStringLiteral("numer składnika od 0 do 30"));
    if (!NumerSkladnikaWolny(zrodlo_.stale(), stala.num, element, *skladnik))
        return zamiast(tekst, przyWejsciu, QStringLiteral("wolny numer: inna stała już go ma"));
    return QString::number(*skladnik);
}

QString nazwaSkladnika(const SkladnikiPlac& skladniki, const QString& tekst) {
    const int numer = numerSkladnika(tekst).value_or(0);
    return numer == 0 ? QString() : skladniki.SkNazwa(numer);
}

} // namespace tornel::rules
