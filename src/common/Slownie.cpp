#include "common/Slownie.h"
#include <array>
#include <QStringList>

namespace tornel::common {

namespace {

using Cyfry = std::array<QString, 9>;

/// The word at 1 to 9, empty for anything else.
QString slowo(const Cyfry& slowa, int cyfra) {
    return cyfra >= 1 && cyfra <= 9 ? slowa[static_cast<std::size_t>(cyfra - 1)] : QString();
}

void dodaj(QStringList& slowa, const QString& dalsze) {
    if (!dalsze.isEmpty()) slowa += dalsze;
}

/// Tens and units: below twenty they are one word.
void dodajDziesiatkiIJednosci(QStringList& slowa, int dziesiatki, int jednosci) {
    if (dziesiatki == 1 && jednosci != 0) {
        slowa += SlownieNascie(jednosci);
        return;
    }
    dodaj(slowa, SlownieCyfra(dziesiatki, 2));
    dodaj(slowa, SlownieCyfra(jednosci, 1));
}

void dodajGrupe(QStringList& slowa, int nrGrupy, int wartosc) {
    if (wartosc == 0) return;
    dodaj(slowa, SlownieCyfra(wartosc / 100, 3));
    dodajDziesiatkiIJednosci(slowa, wartosc / 10 % 10, wartosc % 10);
    dodaj(slowa, SlownieGrupa(nrGrupy, wartosc));
}

/// Deliberate: the last digit alone decides, so 12 reads "dwanaście złote", and digits 10 to 12 are not
/// looked at, so 1 000 000 001 ends in "złoty".
QString slowoZlotych(std::int64_t zlote) {
    switch (zlote % 10) {
    case 1:
        return zlote % 1'000'000'000 == 1 ? QStringLiteral("złoty") : QStringLiteral("złotych");
    case 2:
    case 3:
    case 4:
        return QStringLiteral("złote");
    default:
        return QStringLiteral("złotych");
    }
}

/// Deliberate: "grosze" follows "dwanaście" too.
QString slowoGroszy(int dziesiatki, int jednosci) {
    if (jednosci == 1) return dziesiatki == 0 ? QStringLiteral("grosz") : QStringLiteral("groszy");
    if (jednosci >= 2 && jednosci <= 4) return QStringLiteral("grosze");
    if (dziesiatki == 0 && jednosci == 0) return QStringLiteral("zero groszy");
    return QStringLiteral("groszy");
}

} // namespace

QString SlownieCyfra(int cyfra, int rzad) {
    static const Cyfry jednosci = {
        QStringLiteral("jeden"),  QStringLiteral("dwa"),   QStringLiteral("trzy"),
        QStringLiteral("cztery"), QStringLiteral("pięć"),  QStringLiteral("sześć"),
        QStringLiteral("siedem"), QStringLiteral("osiem"), QStringLiteral("dziewięć")};
    // Deliberate: "dwadzeiścia" is the stored text and goes on the documents as it stands.
    static const Cyfry dziesiatki = {QStringLiteral("dziesięć"),        QStringLiteral("dwadzeiścia"),
                                     QStringLiteral("trzydzieści"),     QStringLiteral("czterdzieści"),
                                     QStringLiteral("pięćdziesiąt"),    QStringLiteral("sześćdziesiąt"),
                                     QStringLiteral("siedemdziesiąt"),  QStringLiteral("osiemdziesiąt"),
                                     QStringLiteral("dziewięćdziesiąt")};
    static const Cyfry setki = {
        QStringLiteral("sto"),       QStringLiteral("dwieście"), QStringLiteral("trzysta"),
        QStringLiteral("czterysta"), QStringLiteral("pięćset"),  QStringLiteral("sześćset"),
        QStringLiteral("siedemset"), QStringLiteral("osiemset"), QStringLiteral("dziewięćset")};
    switch (rzad) {
    case 1:
        return slowo(jednosci, cyfra);
    case 2:
        return slowo(dziesiatki, cyfra);
    case 3:
        return slowo(setki, cyfra);
    default:
        return {};
    }
}

QString SlownieNascie(int cyfra) {
    static const Cyfry nascie = {
        QStringLiteral("jedenaście"),   QStringLiteral("dwanaście"),   QStringLiteral("trzynaście"),
        QStringLiteral("czternaście"),  QStringLiteral("piętnaście"),  QStringLiteral("szesnaście"),
        QStringLiteral("siedemnaście"), QStringLiteral("osiemnaście"), QStringLiteral("dziewiętnaście")};
    return slowo(nascie, cyfra);
}

QString SlownieGrupa(int nrGrupy, int wartosc) {
    static const std::array<std::array<QString, 3>, 3> grupy = {
        {{QStringLiteral("tysiąc"), QStringLiteral("tysiące"), QStringLiteral("tysięcy")},
         {QStringLiteral("milion"), QStringLiteral("miliony"), QStringLiteral("milionów")},
         {QStringLiteral("miliard"), QStringLiteral("miliardy"), QStringLiteral("miliardów")}}};
    if (nrGrupy < 2 || nrGrupy > 4) return {};
    const auto& formy = grupy[static_cast<std::size_t>(nrGrupy - 2)];
    // Deliberate: the whole value decides, not its last digit, so 22 000 reads "dwadzeiścia dwa tysięcy".
    if (wartosc == 1) return formy[0];
    return wartosc >= 2 && wartosc <= 4 ? formy[1] : formy[2];
}

QString SlownieKwota(Waluta kwota) {
    if (kwota <= Waluta{}) return {};
    const std::int64_t zlote = kwota.surowa() / 10000;
    const auto grosze = static_cast<int>(kwota.surowa() % 10000 / 100);

    QStringList slowa;
    std::int64_t dzielnik = 1'000'000'000;
    for (int grupa = 4; grupa >= 1; --grupa, dzielnik /= 1000)
        dodajGrupe(slowa, grupa, static_cast<int>(zlote / dzielnik % 1000));
    if (zlote == 0) slowa += QStringLiteral("zero");
    slowa += slowoZlotych(zlote);
    dodajDziesiatkiIJednosci(slowa, grosze / 10, grosze % 10);
    slowa += slowoGroszy(grosze / 10, grosze % 10);
    return slowa.join(QLatin1Char(' '));
}

} // namespace tornel::common
