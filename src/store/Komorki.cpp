#include "store/Komorki.h"
#include "common/Blad.h"
#include <algorithm>
#include <bit>
#include <chrono>

namespace tornel::store {

namespace {

/// The Julian day number of 1 January 1970. Dates of whole tables go through here, so the days are counted by
/// the standard library, several times faster than a QDate.
constexpr qint64 kDzien1970 = 2'440'588;

} // namespace

bool pasuje(const Wartosc& wartosc, Typ typ) {
    switch (rodzajWartosci(typ)) {
    case RodzajWartosci::Kwota:
        return wartosc.index() == 0 || std::holds_alternative<Waluta>(wartosc);
    case RodzajWartosci::Rzeczywista:
        return wartosc.index() == 0 || std::holds_alternative<double>(wartosc);
    case RodzajWartosci::Tekst:
        return wartosc.index() == 0 || std::holds_alternative<QString>(wartosc);
    case RodzajWartosci::Data:
        return wartosc.index() == 0 || std::holds_alternative<QDate>(wartosc);
    case RodzajWartosci::Calkowita:
        break;
    }
    return wartosc.index() == 0 || std::holds_alternative<qint64>(wartosc);
}

std::optional<qint64> dzienZTekstu(std::string_view t) {
    constexpr std::string_view wzor = "0000-00-00";
    const auto zgodny = [](char c, char z) { return z == '-' ? c == '-' : c >= '0' && c <= '9'; };
    if (!std::equal(t.begin(), t.end(), wzor.begin(), wzor.end(), zgodny)) return std::nullopt;
    const auto cyfra = [&](std::size_t i) { return t[i] - '0'; };
    const std::chrono::year_month_day d(
        std::chrono::year(cyfra(0) * 1000 + cyfra(1) * 100 + cyfra(2) * 10 + cyfra(3)),
        std::chrono::month(static_cast<unsigned>(cyfra(5) * 10 + cyfra(6))),
        std::chrono::day(static_cast<unsigned>(cyfra(8) * 10 + cyfra(9))));
    if (!d.ok() || d.year() < std::chrono::year(1)) return std::nullopt;
    return std::chrono::sys_days(d).time_since_epoch().count() + kDzien1970;
}

TekstDnia::TekstDnia(qint64 dzien) {
    const std::chrono::year_month_day d(std::chrono::sys_days(std::chrono::days(dzien - kDzien1970)));
    const auto pisz = [&](int od, int ile, int liczba) {
        for (int i = od + ile - 1; i >= od; --i, liczba /= 10)
            znaki_[i] = static_cast<char>('0' + liczba % 10);
    };
    pisz(0, 4, static_cast<int>(d.year()));
    znaki_[4] = znaki_[7] = '-';
    pisz(5, 2, static_cast<int>(static_cast<unsigned>(d.month())));
    pisz(8, 2, static_cast<int>(static_cast<unsigned>(d.day())));
}

std::optional<qint64> slowo(const Instrukcja& instrukcja, int kolumna, Typ typ, int jest) {
    switch (rodzajWartosci(typ)) {
    case RodzajWartosci::Calkowita:
    case RodzajWartosci::Kwota: {
        if (jest != SQLITE_INTEGER) return std::nullopt;
        const qint64 liczba = instrukcja.liczba(kolumna);
        const auto [min, maks] = zakresTypu(typ);
        return liczba < min || liczba > maks ? std::nullopt : std::optional(liczba);
    }
    case RodzajWartosci::Rzeczywista: // a whole number is kept as one
        if (jest != SQLITE_FLOAT && jest != SQLITE_INTEGER) return std::nullopt;
        return std::bit_cast<qint64>(instrukcja.rzeczywista(kolumna));
    case RodzajWartosci::Data:
        return jest == SQLITE_TEXT ? dzienZTekstu(instrukcja.utf8(kolumna)) : std::nullopt;
    case RodzajWartosci::Tekst:
        break;
    }
    return std::nullopt;
}

void zglosUszkodzenie(Polaczenie& polaczenie, const TabelaDef& tabela, const QString& nazwa, qint64 nrWiersza,
                      const KolumnaDef& kolumna) {
    QString wiersz;
    if (nrWiersza > 0) wiersz = QStringLiteral(", wiersz %1").arg(nrWiersza);
    for (const std::string_view k : tabela.kluczPliku()) {
        Instrukcja pytanie(polaczenie, ("SELECT " + nazwaSql(k) + " FROM " + nazwaSql(nazwa.toStdString()) +
                                        " WHERE rowid=?")
                                           .toStdString());
        if (pytanie.wiaz(0, nrWiersza).wiersz())
            wiersz += QStringLiteral(", %1 %2").arg(napis(k), pytanie.tekst(0));
    }
    QString rzecz = QStringLiteral("liczba");
    if (kolumna.typ == Typ::Date) rzecz = QStringLiteral("data");
    if (kolumna.typ == Typ::Currency) rzecz = QStringLiteral("kwota");
    if (jestTekstem(kolumna.typ)) rzecz = QStringLiteral("wartość");
    throw UszkodzonaWartosc(QStringLiteral("Uszkodzona %1 w kolumnie %2 tabeli %3%4 (plik „%5”).")
                                .arg(rzecz, napis(kolumna.nazwa), nazwa, wiersz, polaczenie.sciezka()));
}

void wiazWartosc(Instrukcja& instrukcja, int nr, const Wartosc& wartosc) {
    if (const auto* n = std::get_if<qint64>(&wartosc))
        instrukcja.wiaz(nr, *n);
    else if (const auto* r = std::get_if<double>(&wartosc))
        instrukcja.wiaz(nr, *r);
    else if (const auto* w = std::get_if<Waluta>(&wartosc))
        instrukcja.wiaz(nr, static_cast<qint64>(w->surowa()));
    else if (const auto* t = std::get_if<QString>(&wartosc))
        instrukcja.wiaz(nr, *t);
    else if (const auto* d = std::get_if<QDate>(&wartosc); d && d->isValid())
        instrukcja.wiaz(nr, std::string_view(TekstDnia(d->toJulianDay())));
    else
        instrukcja.wiazNull(nr);
}

const char* znakOperatora(Kryterium::Operator op) {
    switch (op) {
    case Kryterium::Operator::Rowne:
        return " IS ";
    case Kryterium::Operator::Rozne:
        return " IS NOT ";
    case Kryterium::Operator::NieMniejsze:
        return " >= ";
    case Kryterium::Operator::NieWieksze:
        return " <= ";
    case Kryterium::Operator::Wieksze:
        return " > ";
    case Kryterium::Operator::Mniejsze:
        return " < ";
    }
    return " IS ";
}

QByteArray listaKolumn(const TabelaDef& tabela) {
    QByteArray wynik;
    for (const KolumnaDef& k : tabela.kolumny) wynik += (wynik.isEmpty() ? "" : ", ") + nazwaSql(k.nazwa);
    return wynik;
}

QString napis(std::string_view nazwa) {
    return QString::fromLatin1(nazwa.data(), static_cast<qsizetype>(nazwa.size()));
}

} // namespace tornel::store
