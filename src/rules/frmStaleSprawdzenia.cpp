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

QString zaokraglenie(const QString& tekst) { return QString::number(CzytajLiczbe(tekst, 0, 2).value_or(2)); }

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
        return [](const QString& tekst, const QString&) {
            return QString::number(numerSkladnika(tekst).value_or(0));
        };
    case NumerJedyny:
        return [this, &stala, element](const QString& tekst, const QString& przyWejsciu) {
            return numerJedyny(stala, element, tekst, przyWejsciu);
        };
    case Wzor:
        return [this](const QString& tekst, const QString&) { return wzor(tekst); };
    case Nominal:
        return [&stala](const QString& tekst, const QString&) {
            const bool zlote = stala.nazwa == u"NPZl";
            return nominal(tekst, zlote ? QStringLiteral(" zł") : QStringLiteral(" gr"));
        };
    default:
        return {};
    }
}

QString SprawdzeniaStalych::numerJedyny(const StalaDef& stala, std::size_t element, const QString& tekst,
                                        const QString& przyWejsciu) const {
    const auto numer = numerSkladnika(tekst);
    if (!numer || !NumerSkladnikaWolny(zrodlo_.stale(), stala.num, element, *numer)) return przyWejsciu;
    return QString::number(*numer);
}

QString SprawdzeniaStalych::wzor(const QString& tekst) {
    try {
        int flags = trybWzoru::NieznaneZmienne;
        (void)wzory_.ObliczWzor(tekst, flags);
        ErrorWzor(flags, rozmowa_);
    } catch (const BladWzoru& blad) {
        rozmowa_.komunikat(blad.komunikat(), Styl::Krytyczny);
    }
    return tekst.toUpper();
}

QString nazwaSkladnika(const SkladnikiPlac& skladniki, const QString& tekst) {
    const int numer = numerSkladnika(tekst).value_or(0);
    return numer == 0 ? QString() : skladniki.SkNazwa(numer);
}

} // namespace tornel::rules
