#include "okna/Pole.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include <algorithm>
#include <limits>
#include <utility>

namespace tornel::okna {

namespace {

/// Enough for every amount in the range of money, sign and decimals included.
constexpr int kCyfryKwoty = 19;
constexpr int kCyfryDaty = 10;

std::pair<qint64, qint64> zakres(const Pole& pole) {
    if (pole.kolumna.nr < 0) return {std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()};
    const Typ typ = pole.kolumna.def().typ;
    return zakresTypu(typ == Typ::Byte || typ == Typ::Short ? typ : Typ::Integer);
}

QString ogolnyTekst(const Wartosc& wartosc) {
    if (const auto* tekst = std::get_if<QString>(&wartosc)) return *tekst;
    if (const auto* liczba = std::get_if<qint64>(&wartosc)) return QString::number(*liczba);
    if (const auto* kwota = std::get_if<Waluta>(&wartosc)) return TekstKwoty(*kwota);
    if (const auto* data = std::get_if<QDate>(&wartosc)) return FormatDaty(*data);
    if (const auto* rzeczywista = std::get_if<double>(&wartosc))
        return TekstKwoty(Waluta::zLiczby(*rzeczywista));
    return {};
}

QString tekstKwoty(const Wartosc& wartosc) {
    if (const auto* kwota = std::get_if<Waluta>(&wartosc)) return FormatKwoty(*kwota);
    if (const auto* rzeczywista = std::get_if<double>(&wartosc))
        return FormatKwoty(Waluta::zLiczby(*rzeczywista));
    return FormatKwoty(KwotaAlboZero(ogolnyTekst(wartosc)));
}

QString tekstFlagi(const QString& tekst) {
    const bool tak = tekst.compare(QLatin1String("T"), Qt::CaseInsensitive) == 0;
    return tak ? QStringLiteral("T") : QStringLiteral("N");
}

/// A number with decimals is taken at its nearest whole number; outside the type's range it is no number.
qint64 calkowita(const Pole& pole, const QString& tekst) {
    const auto [min, max] = zakres(pole);
    if (const auto liczba = CzytajLiczbe(tekst, min, max)) return *liczba;
    const auto kwota = CzytajKwote(tekst);
    if (!kwota) return 0;
    const qint64 zaokraglona = Round(*kwota, 0).surowa() / Waluta::zlotych(1).surowa();
    return zaokraglona < min || zaokraglona > max ? 0 : zaokraglona;
}

/// The text cut to the column, never in the middle of a character of two code units.
QString przytnij(const QString& tekst, int rozmiar) {
    QString wynik = rozmiar > 0 ? tekst.left(rozmiar) : tekst;
    if (!wynik.isEmpty() && wynik.back().isHighSurrogate()) wynik.chop(1);
    return wynik;
}

} // namespace

int najdluzszy(const Pole& pole) {
    switch (pole.rodzaj) {
    case Rodzaj::Kwota:
        return kCyfryKwoty;
    case Rodzaj::Liczba:
        return static_cast<int>(QString::number(zakres(pole).second).size()) + 1;
    case Rodzaj::Data:
        return kCyfryDaty;
    default:
        return pole.kolumna.nr < 0 ? pole.rozmiar : pole.kolumna.def().rozmiar;
    }
}

QString tekstWartosci(const Pole& pole, const Wartosc& wartosc) {
    switch (pole.rodzaj) {
    case Rodzaj::Kwota:
        return tekstKwoty(wartosc);
    case Rodzaj::Liczba: {
        const QString tekst = ogolnyTekst(wartosc);
        return tekst.isEmpty() ? QStringLiteral("0") : tekst;
    }
    case Rodzaj::Flaga:
        return tekstFlagi(ogolnyTekst(wartosc));
    default:
        return ogolnyTekst(wartosc);
    }
}

QString uporzadkuj(const Pole& pole, const QString& wpisany) {
    switch (pole.rodzaj) {
    case Rodzaj::Kwota:
        return FormatKwoty(pole.grosze == Grosze::Round ? Round(KwotaAlboZero(wpisany), 2)
                                                        : KwotaAlboZero(wpisany));
    case Rodzaj::Liczba:
        return QString::number(calkowita(pole, wpisany));
    case Rodzaj::Data:
        return FormatDaty(CzytajDate(SprawdzDate(wpisany)).value_or(QDate()));
    case Rodzaj::Flaga:
        return tekstFlagi(wpisany);
    case Rodzaj::Wybor:
        return wpisany;
    case Rodzaj::Tekst:
    case Rodzaj::Notatka:
        return przytnij(wpisany, najdluzszy(pole));
    }
    return wpisany;
}

Wartosc wartoscTekstu(const Pole& pole, const QString& tekst) {
    switch (pole.rodzaj) {
    case Rodzaj::Kwota:
        return KwotaAlboZero(tekst);
    case Rodzaj::Liczba:
        return calkowita(pole, tekst);
    case Rodzaj::Data: {
        const auto data = CzytajDate(tekst);
        return data ? Wartosc(*data) : Wartosc(Null);
    }
    case Rodzaj::Wybor: {
        const auto ta = std::ranges::find_if(
            pole.pozycje, [&](const Pozycja& p) { return tekstWartosci(pole, p.wartosc) == tekst; });
        return ta == pole.pozycje.end() ? Wartosc(Null) : ta->wartosc;
    }
    default:
        return tekst;
    }
}

QString nazwaDostepna(const QString& podpis) {
    QString nazwa = podpis;
    nazwa.remove(QLatin1Char('&'));
    if (nazwa.endsWith(QLatin1Char(':'))) nazwa.chop(1);
    return nazwa.trimmed();
}

} // namespace tornel::okna
