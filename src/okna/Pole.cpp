#include "okna/Pole.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include <algorithm>
#include <limits>
#include <utility>

namespace tornel::okna {

namespace {

constexpr int kPojemnoscLiczby = 40;
constexpr int kPojemnoscDaty = 24;

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
    return FormatKwoty(KwotaAlboZero(ogolnyTekst(wartosc), Zapis::Dane));
}

QString tekstFlagi(const QString& tekst) {
    const bool tak = tekst.compare(QLatin1String("T"), Qt::CaseInsensitive) == 0;
    return tak ? QStringLiteral("T") : QStringLiteral("N");
}

/// A number with decimals is taken at its nearest whole number; outside the type's range it is no number.
std::optional<qint64> calkowita(const Pole& pole, const QString& tekst) {
    const auto [min, max] = zakres(pole);
    if (const auto liczba = CzytajLiczbe(tekst, min, max)) return liczba;
    const auto kwota = CzytajKwote(tekst);
    if (!kwota) return {};
    const qint64 zaokraglona = Round(*kwota, 0).surowa() / Waluta::zlotych(1).surowa();
    if (zaokraglona < min || zaokraglona > max) return {};
    return zaokraglona;
}

QString opisKwoty(const QString& wpisany) {
    QString zPrzecinkiem = wpisany;
    zPrzecinkiem.replace(QLatin1Char('.'), QLatin1Char(','));
    const QString dwuznaczna = CzytajKwote(zPrzecinkiem)
                                   ? QStringLiteral("„%1” może znaczyć tysiące albo ułamek.")
                                   : QStringLiteral("„%1” nie jest kwotą.");
    return dwuznaczna.arg(wpisany) + QStringLiteral(" Przyjęto 0,00.");
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
    case Rodzaj::Liczba:
        return kPojemnoscLiczby;
    case Rodzaj::Data:
        return kPojemnoscDaty;
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
        return QString::number(calkowita(pole, wpisany).value_or(0));
    case Rodzaj::Data:
        return SprawdzDate(wpisany);
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

QString nieZrozumiano(const Pole& pole, const QString& wpisany) {
    const QString t = wpisany.trimmed();
    if (t.isEmpty()) return {};
    switch (pole.rodzaj) {
    case Rodzaj::Kwota:
        return CzytajKwote(t) ? QString() : opisKwoty(t);
    case Rodzaj::Liczba: {
        if (calkowita(pole, t)) return {};
        const QString powod = CzytajKwote(t) ? QStringLiteral("„%1” nie mieści się w polu. Przyjęto 0.")
                                             : QStringLiteral("„%1” nie jest liczbą. Przyjęto 0.");
        return powod.arg(t);
    }
    case Rodzaj::Data:
        return CzytajWpisanaDate(t) ? QString()
                                    : QStringLiteral("„%1” nie jest datą. Pole jest puste.").arg(t);
    default:
        return {};
    }
}

Wartosc wartoscTekstu(const Pole& pole, const QString& tekst) {
    switch (pole.rodzaj) {
    case Rodzaj::Kwota:
        return KwotaAlboZero(tekst);
    case Rodzaj::Liczba:
        return calkowita(pole, tekst).value_or(0);
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
