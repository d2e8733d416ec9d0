#include "common/Liczby.h"
#include "common/Blad.h"
#include <algorithm>
#include <limits>
#include <QStringView>

namespace tornel::common {

namespace {

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
    const QByteArray cyfry = t.left(koniec - t.begin()).toLatin1();
    t = t.mid(koniec - t.begin());
    return cyfry;
}

bool znakDziesietny(QChar znak, Zapis zapis) {
    return znak == QLatin1Char(',') || (zapis == Zapis::Pole && znak == QLatin1Char('.'));
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
    QStringView t = QStringView(tekst).trimmed();
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

std::optional<Waluta> CzytajKwote(const QString& tekst) {
    const auto liczba = RozbierzLiczbe(tekst, Zapis::Pole);
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

Waluta KwotaAlboZero(const QString& tekst) { return CzytajKwote(tekst).value_or(Waluta{}); }

qint64 LiczbaAlboZero(const QString& tekst, qint64 min, qint64 max) {
    return CzytajLiczbe(tekst, min, max).value_or(0);
}

QString FormatNumeru(qint64 numer) { return QStringLiteral("%1").arg(numer, 3, 10, QLatin1Char('0')); }

} // namespace tornel::common
