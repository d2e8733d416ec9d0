#include "rules/Wzory.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "store/Sesja.h"
#include <algorithm>
#include <cmath>
#include <QStringView>
#include <utility>

namespace tornel::rules {

namespace {

using Pojedyncza = std::pair<QStringView, Waluta ZmienneWzoru::*>;
constexpr Pojedyncza kPojedyncze[] = {
    {u"DOCH", &ZmienneWzoru::DOCH}, {u"STZ", &ZmienneWzoru::STZ}, {u"STC", &ZmienneWzoru::STC},
    {u"SGP", &ZmienneWzoru::SGP},   {u"WS1", &ZmienneWzoru::WS1}, {u"WS2", &ZmienneWzoru::WS2},
};

bool cyfra(QChar znak) { return znak >= QLatin1Char('0') && znak <= QLatin1Char('9'); }

/// The number with which `tekst` begins, whatever stands behind it, as a whole number; 0 without one. A tie
/// goes to the even neighbour.
double liczbaNaPoczatku(QStringView tekst) {
    const QStringView t = tekst.trimmed();
    QByteArray liczba;
    for (const QChar znak : t) {
        if (!cyfra(znak) && (znak != QLatin1Char('.') || liczba.contains('.'))) break;
        liczba += znak.toLatin1();
    }
    return std::nearbyint(liczba.toDouble());
}

template <std::size_t N>
const Waluta* element(const std::array<Waluta, N>& skladniki, double nr) {
    return nr >= 1 && nr <= static_cast<double>(N) ? &skladniki[static_cast<std::size_t>(nr) - 1] : nullptr;
}

/// Variable `nr` of a group, counted from 1.
template <std::size_t N>
Waluta& na(std::array<Waluta, N>& skladniki, int nr) {
    return skladniki[static_cast<std::size_t>(nr) - 1];
}

bool operatorem(const QString& token, QStringView operatory) {
    return token.size() == 1 && operatory.contains(token[0]);
}

/// A double as token text, with up to 15 significant digits and a decimal comma.
QString tekstLiczby(double liczba) {
    if (!std::isfinite(liczba))
        throw BladWzoru(QStringLiteral("Potęga nie ma wartości albo przekracza zakres liczb."));
    if (liczba == 0) return QStringLiteral("0");
    return QString::number(liczba, 'G', 15).replace(QLatin1Char('.'), QLatin1Char(','));
}

/// Cuts the text at the nine operator characters; whatever stands between them is one token as it stands.
Wzory::Tokeny podziel(const QString& wzor) {
    Wzory::Tokeny tokeny(1);
    bool operand = false;
    for (const QChar znak : wzor) {
        if (QStringView(u"()^#*/+-%").contains(znak)) {
            tokeny.emplace_back(znak);
            operand = false;
            continue;
        }
        if (!operand) tokeny.emplace_back();
        tokeny.back() += znak;
        operand = true;
    }
    return tokeny;
}

QString& tokenNa(Wzory::Tokeny& tokeny, int pozycja) {
    if (pozycja >= static_cast<int>(tokeny.size()))
        throw BladWzoru(QStringLiteral("Operator na końcu wzoru nie ma argumentu."));
    return tokeny[static_cast<std::size_t>(pozycja)];
}

/// The text of `a` `znak` `b` for an operator with two operands.
QString wynikDzialania(QChar znak, Waluta a, Waluta b, int& flags) {
    switch (znak.unicode()) {
    case u'^':
        return tekstLiczby(std::pow(a.naLiczbe(), b.naLiczbe()));
    case u'*':
        return TekstKwoty(Iloczyn(a, b));
    case u'+':
        return TekstKwoty(a + b);
    case u'-':
        return TekstKwoty(a - b);
    default:
        break;
    }
    if (!b.zero()) return tekstLiczby(a.naLiczbe() / b.naLiczbe());
    flags |= bityWzoru::DzieleniePrzezZero;
    return QStringLiteral("0");
}

} // namespace

bool ZmienneWzoru::ustaw(const QString& nazwa, Waluta wartosc) {
    for (const auto& [znana, pole] : kPojedyncze)
        if (nazwa == znana) {
            this->*pole = wartosc;
            return true;
        }
    const auto wGrupie = [&](const QString& grupa, auto& skladniki) {
        for (std::size_t i = 0; i < skladniki.size(); ++i)
            if (nazwa == grupa + QString::number(i + 1)) {
                skladniki[i] = wartosc;
                return true;
            }
        return false;
    };
    return wGrupie(QStringLiteral("DD"), DD) || wGrupie(QStringLiteral("DU"), DU) ||
           wGrupie(QStringLiteral("LD"), LD) || wGrupie(QStringLiteral("LU"), LU);
}

std::optional<Waluta> ZmienneWzoru::odczytaj(const QString& token) const {
    for (const auto& [znana, pole] : kPojedyncze)
        if (token == znana) return this->*pole;

    const QStringView grupa = QStringView(token).left(2);
    const double nr = liczbaNaPoczatku(QStringView(token).mid(2));
    const Waluta* znaleziona = nullptr;
    if (grupa == QStringView(u"DD")) {
        znaleziona = element(DD, nr);
    } else if (grupa == QStringView(u"LD")) {
        znaleziona = element(LD, nr);
    } else if (grupa == QStringView(u"DU")) {
        znaleziona = element(DU, nr);
    } else if (grupa == QStringView(u"LU")) {
        // Deliberate: LU reads the negative components of the personnel file, never those of the list; and
        // its name runs to 30 where only 15 are kept.
        znaleziona = element(DU, nr);
        if (!znaleziona && nr >= 1 && nr <= 30)
            throw BladWzoru(QStringLiteral("Zmienne od LU16 do LU30 nie mają wartości."));
    }
    if (!znaleziona) return {};
    return *znaleziona;
}

Waluta Wzory::ObliczWzor(const QString& wzor, int& flags) {
    const auto przerwany = [&](const Blad& przyczyna) {
        return BladWzoru(
            QStringLiteral("Nie można obliczyć wzoru \"%1\". %2").arg(wzor, przyczyna.komunikat()));
    };
    tryb_ = flags;
    flags = 0;
    try {
        WczytajZmienne(flags);
        const Waluta wynik = obliczTekst(wzor.trimmed().toUpper(), flags);
        RaportujBladWzoru(flags);
        return wynik;
    } catch (const BladWzoru& blad) {
        throw przerwany(blad);
    } catch (const Przepelnienie& blad) {
        throw przerwany(blad);
    }
}

Waluta Wzory::obliczTekst(const QString& wzor, int& flags) {
    if (wzor.isEmpty()) {
        flags |= bityWzoru::PustyWzor;
        return {};
    }
    Tokeny tokeny = podziel(wzor);
    if (tokeny.size() == 2) return WartoscTokenu(tokeny[1], flags);
    return obliczTokeny(tokeny, flags);
}

Waluta Wzory::obliczTokeny(Tokeny& tokeny, int& flags) {
    int ile = static_cast<int>(tokeny.size()) - 1;
    rozwiazNawiasy(tokeny, ile, flags);
    if (flags & bityWzoru::Przerywajace) return {};
    if (ile > 1) RedukujZakres(1, ile, tokeny, ile, flags);
    if (flags & bityWzoru::Przerywajace) return {};
    if (ile == 1)
        if (const auto liczba = RozbierzLiczbe(tokeny[1], Zapis::Wzor)) return liczba->naKwote();
    flags |= bityWzoru::Skladnia;
    return {};
}

void Wzory::rozwiazNawiasy(Tokeny& tokeny, int& ile, int& flags) {
    int otwarty = 0;
    for (int i = 1; i <= ile; ++i) {
        const QString& token = tokenNa(tokeny, i);
        if (token == QStringView(u"(")) otwarty = i;
        if (otwarty == 0 || token != QStringView(u")")) continue;
        // Deliberate: the emptied positions close up only when an operator is applied, so a bracket around a
        // lone operand, as "(5)", stays a syntax error.
        tokenNa(tokeny, otwarty).clear();
        tokenNa(tokeny, i).clear();
        RedukujZakres(otwarty, i, tokeny, ile, flags);
        if (flags & bityWzoru::Przerywajace) return;
        otwarty = 0;
        i = 0;
    }
}

void Wzory::RedukujZakres(int pierwszy, int ostatni, Tokeny& tokeny, int& ile, int& flags) {
    // Deliberate: two levels only, so 2^3^2 is 64 and 2*3^2 is 36.
    for (const QStringView operatory : {QStringView(u"%^#*/"), QStringView(u"+-")}) {
        int i = pierwszy;
        while (i <= ostatni) {
            if (!operatorem(tokenNa(tokeny, i), operatory)) {
                ++i;
                continue;
            }
            zastosujOperator(tokeny, i, flags);
            ScalTokeny(tokeny, ile, ostatni);
            i = pierwszy;
        }
    }
}

void Wzory::zastosujOperator(Tokeny& tokeny, int pozycja, int& flags) {
    QString& wynik = tokenNa(tokeny, pozycja);
    QString& lewy = tokenNa(tokeny, pozycja - 1);
    const QChar znak = wynik[0];
    if (znak == QLatin1Char('%')) {
        wynik = tekstLiczby(WartoscTokenu(lewy, flags).naLiczbe() / 100);
        lewy.clear();
        return;
    }
    QString& prawy = tokenNa(tokeny, pozycja + 1);
    if (znak == QLatin1Char('#')) {
        const Waluta argument = WartoscTokenu(prawy, flags);
        if (argument < Waluta{}) flags |= bityWzoru::UjemnyPierwiastek;
        wynik = argument < Waluta{} ? QStringLiteral("0") : tekstLiczby(std::sqrt(argument.naLiczbe()));
        prawy.clear();
        return;
    }
    // Deliberate: only at position 1 of the whole array is a minus unary. One that opens an inner bracket is
    // binary, reads the emptied bracket as 0 and sets bit 16.
    if (znak == QLatin1Char('-') && pozycja == 1) {
        wynik = TekstKwoty(-WartoscTokenu(prawy, flags));
        prawy.clear();
        return;
    }
    const Waluta a = WartoscTokenu(lewy, flags);
    const Waluta b = WartoscTokenu(prawy, flags);
    wynik = wynikDzialania(znak, a, b, flags);
    lewy.clear();
    prawy.clear();
}

void Wzory::ScalTokeny(Tokeny& tokeny, int& ile, int& ostatni) {
    if (ile < 2) return;
    const auto poczatek = tokeny.begin() + 1;
    const auto koniec = poczatek + ile;
    const auto pierwszyPusty =
        std::stable_partition(poczatek, koniec, [](const QString& t) { return !t.isEmpty(); });
    ostatni -= static_cast<int>(koniec - pierwszyPusty);
    if (pierwszyPusty != poczatek) ile = static_cast<int>(pierwszyPusty - poczatek);
}

Waluta Wzory::WartoscTokenu(const QString& token, int& flags) {
    if (const auto liczba = RozbierzLiczbe(token, Zapis::Wzor)) return liczba->naKwote();
    if (const auto zmienna = zmienne.odczytaj(token)) return *zmienna;
    flags |= bityWzoru::NieznanaZmienna;
    if (!token.isEmpty() && (tryb_ & trybWzoru::NieznaneZmienne))
        rozmowa_.komunikat(QStringLiteral("Nieznana zmienna \"%1\"").arg(token), Styl::Wykrzyknik);
    return {};
}

void Wzory::WczytajZmienne(int& flags) {
    if (!sesja_) return;
    const Recordset& pr = sesja_->rsPRACPR;
    const Recordset& sk = sesja_->rsPRACSK;
    const Recordset& pls = sesja_->rsPLS;
    if (pr.naWierszu()) {
        zmienne.STZ = pr.kwota(schemat::PRACPR("placa_zas"));
        zmienne.STC = pr.kwota(schemat::PRACPR("Sgp"));
    } else {
        brakRekordu(QStringLiteral("PRACPR"), flags);
    }
    if (sk.naWierszu()) {
        for (int i = 1; i <= 30; ++i) na(zmienne.DD, i) = sk.kwota(schemat::DodatniPracownika(i));
        for (int i = 1; i <= 15; ++i) na(zmienne.DU, i) = sk.kwota(schemat::UjemnyPracownika(i));
        zmienne.WS1 = sk.kwota(schemat::PRACSK("wsk_1"));
        zmienne.WS2 = sk.kwota(schemat::PRACSK("wsk_2"));
    } else {
        brakRekordu(QStringLiteral("PRACSK"), flags);
    }
    if (pls.naWierszu()) {
        for (int i = 1; i <= 30; ++i) na(zmienne.LD, i) = pls.kwota(schemat::SP(i));
        for (int i = 1; i <= 15; ++i) na(zmienne.LU, i) = pls.kwota(schemat::SM(i));
    } else if (pls.otwarty()) {
        // Deliberate: the message does not fill in the year and month.
        brakRekordu(QStringLiteral("PLSrrrrmm"), flags);
    } else {
        flags |= bityWzoru::BrakRekordu;
        if (tryb_ & trybWzoru::BrakiRekordow)
            rozmowa_.komunikat(QStringLiteral("ERROR: Tabela: \"PLSrrrrmm\" nie jest otwarta."),
                               Styl::Krytyczny);
    }
}

void Wzory::brakRekordu(const QString& tabela, int& flags) {
    flags |= bityWzoru::BrakRekordu;
    if (tryb_ & trybWzoru::BrakiRekordow)
        rozmowa_.komunikat(QStringLiteral("ERROR: Nie można odnaleźć rekordu w tabeli: \"%1\"").arg(tabela),
                           Styl::Krytyczny);
}

void Wzory::RaportujBladWzoru(int flags) {
    if (!(tryb_ & trybWzoru::BledyWzoru)) return;
    if (flags & bityWzoru::PustyWzor)
        rozmowa_.komunikat(QStringLiteral("Pusty Wzór !\r(Wzór podany do obliczenia jest pusty.)"),
                           Styl::Informacja);
    if (flags & bityWzoru::Skladnia)
        rozmowa_.komunikat(
            QStringLiteral("Błąd Składniowy !\r(Nie zgadza się ilość nawiasów lub postawiono operatory "
                           "w niewłaściwych miejscach.)"),
            Styl::Krytyczny);
    if (flags & bityWzoru::DzieleniePrzezZero)
        rozmowa_.komunikat(QStringLiteral("Dzielenie Przez Zero !\r(Próbowano podzielić liczbę przez zero.)"),
                           Styl::Krytyczny);
    if (flags & bityWzoru::UjemnyPierwiastek)
        rozmowa_.komunikat(
            QStringLiteral("Niedozwolony Argument Pierwiastka !\r(Próbowano obliczyć pierwiastek "
                           "kwadratowy z liczby mniejszej od zera.)"),
            Styl::Krytyczny);
}

void ErrorWzor(int flags, Rozmowa& rozmowa) {
    if (flags & bityWzoru::Skladnia)
        rozmowa.komunikat(
            QStringLiteral(
                "BŁĄD SKŁADNI\r\nUpewnij się czy zgadza się ilość nawiasów, czy wszystkie operatory "
                "(^,#,%,*,/,+,-) znajdują się we właściwym miejscu i czy liczby ujemne są zamknięte w "
                "nawiasy."),
            Styl::Wykrzyknik);
    if (flags & bityWzoru::NieznanaZmienna)
        rozmowa.komunikat(
            QStringLiteral("BŁĄD ZMIENNEJ\r\nWpisano nazwę nieznanej zmiennej do wzoru. We wzorze mogą "
                           "wytępować tylko ściśle ogreślone nazy zmiennych."),
            Styl::Wykrzyknik);
}

QString SprawdzPoleWzoru(Wzory& wzory, const QString& tekst, Rozmowa& rozmowa) {
    try {
        int flags = trybWzoru::NieznaneZmienne;
        (void)wzory.ObliczWzor(tekst, flags);
        ErrorWzor(flags, rozmowa);
    } catch (const BladWzoru& blad) {
        rozmowa.komunikat(blad.komunikat(), Styl::Krytyczny);
    }
    return tekst.toUpper();
}

} // namespace tornel::rules
