#include "zus/PisarzeKedu.h"
#include <algorithm>
#include <array>
#include <utility>

namespace tornel::zus {

namespace {

constexpr QLatin1Char kOdstep(' ');
constexpr qsizetype kNajwiecejCyfr = 10;
constexpr int kSzerDaty = 8;

constexpr std::pair<QStringView, QStringView> kKasyChorych[] = {
    {u"01R", u"DOLNOŚLĄSKA RKCH"},
    {u"02R", u"KUJAWSKO-POMORSKA RKCH"},
    {u"03R", u"LUBELSKA RKCH"},
    {u"04R", u"LUBUSKA RKCH"},
    {u"05R", u"ŁÓDZKA RKCH"},
    {u"06R", u"MAŁOPOLSKA RKCH"},
    {u"07R", u"MAZOWIECKA RKCH"},
    {u"08R", u"OPOLSKA RKCH"},
    {u"09R", u"PODKARPACKA RKCH"},
    {u"10R", u"PODLASKA RKCH"},
    {u"11R", u"POMORSKA RKCH"},
    {u"12R", u"ŚLĄSKA RKCH"},
    {u"13R", u"ŚWIĘTOKRZYSKA RKCH"},
    {u"14R", u"WARMIŃSKO-MAZURSKA RKCH"},
    {u"15R", u"WIELKOPOLSKA RKCH"},
    {u"16R", u"ZACHODNIOPOMORSKA RKCH"},
    {u"17B", u"BKCH SŁUŻB MUNDUROWYCH"},
};

/// By the position in the list of educations. 4 and 6 have no code, and the order is the insurer's:
/// deliberate.
constexpr std::array<QStringView, 9> kKodyWyksztalcenia{u"11", u"12", u"20", u"31", u"  ",
                                                        u"50", u"  ", u"32", u"40"};

/// What a field cannot hold: control characters would break its line, and what needs two code units is one
/// character without a byte.
bool zwyczajny(QChar znak) { return znak >= kOdstep && !znak.isSurrogate() && znak != QChar(0x7F); }

QString oczyszczony(const QString& tekst) {
    QString wynik;
    wynik.reserve(tekst.size());
    for (const QChar znak : tekst) {
        if (znak.isLowSurrogate()) continue;
        wynik += zwyczajny(znak) ? znak : znak.isHighSurrogate() ? QLatin1Char('?') : kOdstep;
    }
    return wynik;
}

} // namespace

QString KeduPole(const QString& tekst, int szer) {
    if (!std::ranges::all_of(tekst, zwyczajny)) return KeduPole(oczyszczony(tekst), szer);
    return tekst.leftJustified(szer, kOdstep, true);
}

QString KeduCyfry(const QString& tekst) {
    QString cyfry;
    for (const QChar znak : tekst)
        if (znak >= QLatin1Char('0') && znak <= QLatin1Char('9') && cyfry.size() < kNajwiecejCyfr)
            cyfry += znak;
    return cyfry;
}

QString KeduData(QDate data) {
    if (!data.isValid()) return QString(kSzerDaty, kOdstep);
    return KeduLicznik(data.day(), 2) + KeduLicznik(data.month(), 2) + KeduLicznik(data.year(), 4);
}

QString KeduOkres(QDate od, QDate dokad) {
    if (!od.isValid() || !dokad.isValid()) return QString(qsizetype{2} * kSzerDaty, kOdstep);
    return KeduData(od) + KeduData(dokad);
}

QString KeduZnacznik(const QString& tekst) {
    return tekst.startsWith(QLatin1Char('T'), Qt::CaseInsensitive) ? QStringLiteral("X")
                                                                   : QStringLiteral(" ");
}

QString KeduWyksztalcenie(qint64 pozycja) {
    const bool jest = pozycja >= 0 && pozycja < static_cast<qint64>(kKodyWyksztalcenia.size());
    return jest ? kKodyWyksztalcenia.at(static_cast<std::size_t>(pozycja)).toString() : QString(2, kOdstep);
}

QString KeduLicznik(qint64 liczba, int szer) {
    const QString cyfry =
        QString::number(liczba < 0 ? -liczba : liczba).rightJustified(szer, QLatin1Char('0'));
    return liczba < 0 ? QLatin1Char('-') + cyfry : cyfry;
}

QString NazwaKasyChorych(const QString& kod) {
    const QString duzy = kod.toUpper();
    const auto* kasa =
        std::ranges::find(kKasyChorych, QStringView(duzy), &std::pair<QStringView, QStringView>::first);
    return kasa == std::end(kKasyChorych) ? QString() : kasa->second.toString();
}

} // namespace tornel::zus
