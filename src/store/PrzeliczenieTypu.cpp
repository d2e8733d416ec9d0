#include "store/PrzeliczenieTypu.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include <array>
#include <cmath>
#include <limits>
#include <QLocale>
#include <QRegularExpression>

namespace tornel::store {

namespace {

constexpr std::array<std::pair<QStringView, Typ>, 10> kTypyPliku{{
    {u"CHAR", Typ::Char},
    {u"TEXT", Typ::Text},
    {u"MEMO", Typ::Memo},
    {u"BYTE", Typ::Byte},
    {u"SHORT", Typ::Short},
    {u"INTEGER", Typ::Integer},
    {u"SINGLE", Typ::Single},
    {u"DOUBLE", Typ::Double},
    {u"DATE", Typ::Date},
    {u"CURRENCY", Typ::Currency},
}};

constexpr qint64 kCzesciZlotego = 10'000;
constexpr double kDokladneCalkowite =
    9007199254740992.0; // 2^53: up to here a double holds every whole number

/// A number that has a whole value in 1/10000, nothing for any other or for one out of range.
std::optional<qint64> wDziesieciotysiecznych(double liczba) {
    const double razy = std::nearbyint(liczba * kCzesciZlotego);
    if (!std::isfinite(razy) || std::abs(razy) > kDokladneCalkowite) return {};
    if (razy / kCzesciZlotego != liczba) return {};
    return static_cast<qint64>(razy);
}

std::optional<qint64> jakoCalkowita(const Wartosc& w) {
    if (const auto* liczba = std::get_if<qint64>(&w)) return *liczba;
    if (const auto* kwota = std::get_if<Waluta>(&w))
        return kwota->surowa() % kCzesciZlotego == 0 ? std::optional(kwota->surowa() / kCzesciZlotego)
                                                     : std::nullopt;
    if (const auto* rzeczywista = std::get_if<double>(&w)) {
        if (std::abs(*rzeczywista) > kDokladneCalkowite || std::trunc(*rzeczywista) != *rzeczywista)
            return {};
        return static_cast<qint64>(*rzeczywista);
    }
    return {};
}

std::optional<Waluta> jakoKwota(const Wartosc& w) {
    if (const auto* kwota = std::get_if<Waluta>(&w)) return *kwota;
    if (const auto* liczba = std::get_if<qint64>(&w)) {
        constexpr qint64 granica = std::numeric_limits<qint64>::max() / kCzesciZlotego;
        return *liczba >= -granica && *liczba <= granica
                   ? std::optional(Waluta::zSurowej(*liczba * kCzesciZlotego))
                   : std::nullopt;
    }
    if (const auto* rzeczywista = std::get_if<double>(&w))
        if (const auto surowa = wDziesieciotysiecznych(*rzeczywista)) return Waluta::zSurowej(*surowa);
    return {};
}

std::optional<double> jakoRzeczywista(const Wartosc& w) {
    if (const auto* rzeczywista = std::get_if<double>(&w)) return *rzeczywista;
    if (const auto* liczba = std::get_if<qint64>(&w))
        return std::abs(static_cast<double>(*liczba)) < kDokladneCalkowite
                   ? std::optional(static_cast<double>(*liczba))
                   : std::nullopt;
    if (const auto* kwota = std::get_if<Waluta>(&w)) {
        const double liczba = static_cast<double>(kwota->surowa()) / kCzesciZlotego;
        if (wDziesieciotysiecznych(liczba) == kwota->surowa()) return liczba;
    }
    return {};
}

QString jakoTekst(const Wartosc& w) {
    if (const auto* tekst = std::get_if<QString>(&w)) return *tekst;
    if (const auto* liczba = std::get_if<qint64>(&w)) return QString::number(*liczba);
    if (const auto* kwota = std::get_if<Waluta>(&w)) return TekstKwoty(*kwota);
    if (const auto* data = std::get_if<QDate>(&w)) return FormatDaty(*data);
    if (const auto* rzeczywista = std::get_if<double>(&w))
        return QString::number(*rzeczywista, 'g', QLocale::FloatingPointShortest)
            .replace(QLatin1Char('.'), QLatin1Char(','));
    return {};
}

/// A text as the number or date that it stands for; nothing when it would not come back as it was, as an
/// account number with zeros in front.
std::optional<Wartosc> zTekstu(const QString& tekst, RodzajWartosci rodzaj) {
    if (rodzaj == RodzajWartosci::Data) {
        const std::optional<QDate> data = CzytajDate(tekst.trimmed());
        return data && FormatDaty(*data) == tekst ? std::optional<Wartosc>(*data) : std::nullopt;
    }
    static const QRegularExpression liczba(QStringLiteral("^-?(0|[1-9][0-9]*)(,[0-9]+)?$"));
    if (!liczba.match(tekst).hasMatch()) return {};
    if (!tekst.contains(u',')) {
        const auto calkowita = CzytajLiczbe(tekst, -kCzesciZlotego * kCzesciZlotego * kCzesciZlotego,
                                            kCzesciZlotego * kCzesciZlotego * kCzesciZlotego);
        return calkowita ? std::optional<Wartosc>(*calkowita) : std::nullopt;
    }
    constexpr int miejsc = 4;
    if (tekst.size() - tekst.indexOf(u',') - 1 > miejsc) return {};
    const auto kwota = CzytajKwote(tekst, Zapis::Dane);
    return kwota ? std::optional<Wartosc>(*kwota) : std::nullopt;
}

template <typename T>
std::optional<Wartosc> owin(const std::optional<T>& wartosc) {
    return wartosc ? std::optional<Wartosc>(*wartosc) : std::nullopt;
}

} // namespace

std::optional<Typ> TypZPliku(const QString& tekst, int& szerokosc) {
    static const QRegularExpression wzor(QStringLiteral("^([A-Z]+)(?: TEXT)?(?:\\(([0-9]{1,6})\\))?$"));
    const QRegularExpressionMatch czesci = wzor.match(tekst.trimmed().toUpper());
    for (const auto& [slowo, typ] : kTypyPliku)
        if (czesci.captured(1) == slowo) {
            szerokosc = typ == Typ::Char || typ == Typ::Text ? czesci.captured(2).toInt() : 0;
            return typ;
        }
    return {};
}

std::optional<Wartosc> PrzeliczWartosc(const Wartosc& wartosc, Typ typ, int szerokosc) {
    if (std::holds_alternative<std::monostate>(wartosc)) return wartosc;
    if (jestTekstem(typ)) {
        const QString tekst = jakoTekst(wartosc);
        return typ != Typ::Memo && tekst.size() > szerokosc ? std::nullopt : std::optional<Wartosc>(tekst);
    }
    const RodzajWartosci rodzaj = rodzajWartosci(typ);
    if (const auto* tekst = std::get_if<QString>(&wartosc)) {
        if (tekst->trimmed().isEmpty()) return Wartosc(Null);
        const auto z = zTekstu(*tekst, rodzaj);
        return z ? PrzeliczWartosc(*z, typ, szerokosc) : std::nullopt;
    }
    const bool data = std::holds_alternative<QDate>(wartosc);
    if (data || rodzaj == RodzajWartosci::Data)
        return data && rodzaj == RodzajWartosci::Data ? std::optional(wartosc) : std::nullopt;
    if (rodzaj == RodzajWartosci::Kwota) return owin(jakoKwota(wartosc));
    if (rodzaj == RodzajWartosci::Rzeczywista) {
        const auto liczba = jakoRzeczywista(wartosc);
        if (liczba && typ == Typ::Single && static_cast<double>(static_cast<float>(*liczba)) != *liczba)
            return {};
        return owin(liczba);
    }
    const auto liczba = jakoCalkowita(wartosc);
    const auto [min, maks] = zakresTypu(typ);
    if (!liczba || *liczba < min || *liczba > maks) return {};
    return Wartosc(*liczba);
}

} // namespace tornel::store
