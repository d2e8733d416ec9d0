#include "common/Liczby.h"
#include "common/Blad.h"
#include <algorithm>
#include <limits>
#include <QStringView>

namespace tornel::common {

namespace {

constexpr int kCyfrWGrupie = 3;

bool jestCyfra(QChar znak) { return znak >= QLatin1Char('0') && znak <= QLatin1Char('9'); }

/// Takes an optional sign off the front; true for a minus.
bool zdejmijZnak(QStringView& t) {
    if (t.isEmpty() || (t[0] != QLatin1Char('-') && t[0] != QLatin1Char('+'))) return false;
    const bool minus = t[0] == QLatin1Char('-');
    t = t.mid(1);
    return minus;
}

/// Takes the leading digits off the front.
QByteArray zdejmijCyfry(QStringView& t) {
    const auto koniec = std::find_if_not(t.begin(), t.end(), jestCyfra);
    QByteArray cyfry = t.left(koniec - t.begin()).toLatin1();
    t = t.mid(koniec - t.begin());
    return cyfry;
}

bool znakDziesietny(QChar znak, Zapis zapis) {
    return znak == QLatin1Char(',') || (zapis != Zapis::Wzor && znak == QLatin1Char('.'));
}

/// The whole part without the marks between its thousands: one to three digits, then threes. Empty where the
/// marks stand anywhere else.
QString bezGrup(const QString& calosc, QChar znak) {
    const QStringList grupy = calosc.split(znak);
    QString wynik;
    for (qsizetype i = 0; i < grupy.size(); ++i) {
        const QString& g = grupy.at(i);
        const bool pelna = g.size() == kCyfrWGrupie;
        if (!std::all_of(g.begin(), g.end(), jestCyfra) ||
            !(pelna || (i == 0 && !g.isEmpty() && g.size() < 3)))
            return {};
        wynik += g;
    }
    return wynik;
}

/// Brings what the clerk typed into the strict form: sign, digits, one comma. Empty for a text that is no
/// number.
QString doScislego(const QString& wpisany) {
    QString t = wpisany;
    for (const QChar odstep : {QChar(0x00A0), QChar(0x202F), QChar(0x2009)})
        t.replace(odstep, QLatin1Char(' '));
    t.replace(QChar(0x2212), QLatin1Char('-'));
    t = t.trimmed();
    if (t.endsWith(QStringLiteral("zł"), Qt::CaseInsensitive)) t = t.chopped(2).trimmed();
    QString znak;
    const auto jestZnakiem = [](QChar c) { return c == QLatin1Char('-') || c == QLatin1Char('+'); };
    if (!t.isEmpty() && jestZnakiem(t.front())) {
        znak = t.front();
        t = t.mid(1).trimmed();
    } else if (!t.isEmpty() && jestZnakiem(t.back())) {
        znak = t.back();
        t = t.chopped(1).trimmed();
    }
    const auto przecinek = t.indexOf(QLatin1Char(','));
    const auto kropek = t.count(QLatin1Char('.'));
    // Without a comma a single dot is the decimal mark, unless it may as well stand between thousands.
    const bool dziesietna = przecinek < 0 && kropek == 1;
    const auto koniec = dziesietna ? t.indexOf(QLatin1Char('.')) : przecinek;
    QString calosc = koniec < 0 ? t : t.left(koniec);
    const QString ulamek = koniec < 0 ? QString() : t.mid(koniec + 1);
    const bool moznaGrupowac =
        calosc.contains(QLatin1Char(' ')) ||
        (calosc.size() <= kCyfrWGrupie && !calosc.isEmpty() && calosc != QLatin1String("0"));
    if (dziesietna && ulamek.size() == kCyfrWGrupie && moznaGrupowac) return {};
    if (przecinek < 0 && kropek > 1) return {};
    for (const QChar grupujacy : {QLatin1Char(' '), QLatin1Char('.')})
        if (calosc.contains(grupujacy)) {
            calosc = bezGrup(calosc, grupujacy);
            if (calosc.isEmpty()) return {};
        }
    return znak + calosc + (koniec < 0 ? QString() : QLatin1Char(',') + ulamek);
}

/// Digits after a sign as a number, held at a bound far outside any type's range.
qint64 wykladnikZ(const QByteArray& cyfry, bool ujemny) {
    constexpr qint64 granica = 1'000'000'000;
    qint64 w = 0;
    for (const char c : cyfry) w = std::min(granica, w * 10 + (c - '0'));
    return ujemny ? -w : w;
}

/// Whether the digits from `od` on, read as a fraction, take the whole number before them up: half to even.
bool zaokraglaWGore(const QByteArray& cyfry, qsizetype od, bool nieparzysta) {
    if (od >= cyfry.size() || cyfry[od] < '5') return false;
    if (cyfry[od] > '5' || nieparzysta) return true;
    return std::any_of(cyfry.begin() + od + 1, cyfry.end(), [](char c) { return c != '0'; });
}

[[noreturn]] void liczbaPozaZakresem() {
    throw Przepelnienie(QStringLiteral("Liczba przekracza zakres kwot programu."));
}

} // namespace

Waluta LiczbaDziesietna::naKwote() const {
    const auto pierwsza = std::find_if(cyfry.begin(), cyfry.end(), [](char c) { return c != '0'; });
    const QByteArray znaczace = cyfry.mid(pierwsza - cyfry.begin());
    // How many of the digits stand at or before the fourth decimal place.
    const qint64 zostaje = znaczace.size() + wykladnik + 4;
    if (znaczace.isEmpty() || zostaje < 0) return {};
    constexpr qint64 najwiecejCyfr = std::numeric_limits<qint64>::digits10 + 1;
    if (zostaje > najwiecejCyfr) liczbaPozaZakresem();

    quint64 surowa = 0;
    for (qsizetype i = 0; i < zostaje; ++i)
        surowa = surowa * 10 + (i < znaczace.size() ? static_cast<quint64>(znaczace[i] - '0') : 0);
    if (zaokraglaWGore(znaczace, static_cast<qsizetype>(zostaje), surowa % 2 != 0)) ++surowa;

    constexpr quint64 najwieksza = std::numeric_limits<qint64>::max();
    if (surowa > najwieksza + (ujemna ? 1 : 0)) liczbaPozaZakresem();
    return Waluta::zSurowej(static_cast<qint64>(ujemna ? quint64{0} - surowa : surowa));
}

std::optional<LiczbaDziesietna> RozbierzLiczbe(const QString& tekst, Zapis zapis) {
    const QString scisly = zapis == Zapis::Pole ? doScislego(tekst) : tekst;
    QStringView t = QStringView(scisly).trimmed();
    LiczbaDziesietna liczba;
    liczba.ujemna = zdejmijZnak(t);
    liczba.cyfry = zdejmijCyfry(t);
    if (!t.isEmpty() && znakDziesietny(t[0], zapis)) {
        t = t.mid(1);
        const QByteArray ulamek = zdejmijCyfry(t);
        liczba.cyfry += ulamek;
        liczba.wykladnik = -ulamek.size();
    }
    if (liczba.cyfry.isEmpty()) return {};
    if (zapis == Zapis::Wzor && !t.isEmpty() && t[0].toUpper() == QLatin1Char('E')) {
        t = t.mid(1);
        const bool ujemny = zdejmijZnak(t);
        const QByteArray wykladnik = zdejmijCyfry(t);
        if (wykladnik.isEmpty()) return {};
        liczba.wykladnik += wykladnikZ(wykladnik, ujemny);
    }
    if (!t.isEmpty()) return {};
    return liczba;
}

std::optional<Waluta> CzytajKwote(const QString& tekst, Zapis zapis) {
    const auto liczba = RozbierzLiczbe(tekst, zapis);
    if (!liczba) return {};
    try {
        return liczba->naKwote();
    } catch (const Przepelnienie&) {
        return {};
    }
}

std::optional<qint64> CzytajLiczbe(const QString& tekst, qint64 min, qint64 max) {
    QStringView t = QStringView(tekst).trimmed();
    const bool ujemna = zdejmijZnak(t);
    const QByteArray cyfry = zdejmijCyfry(t);
    if (cyfry.isEmpty() || !t.isEmpty()) return {};
    bool wZakresie = false;
    const qint64 liczba = (ujemna ? '-' + cyfry : cyfry).toLongLong(&wZakresie);
    if (!wZakresie || liczba < min || liczba > max) return {};
    return liczba;
}

Waluta KwotaAlboZero(const QString& tekst, Zapis zapis) {
    return CzytajKwote(tekst, zapis).value_or(Waluta{});
}

qint64 LiczbaAlboZero(const QString& tekst, qint64 min, qint64 max) {
    return CzytajLiczbe(tekst, min, max).value_or(0);
}

QString FormatNumeru(qint64 numer) { return QStringLiteral("%1").arg(numer, 3, 10, QLatin1Char('0')); }

} // namespace tornel::common
