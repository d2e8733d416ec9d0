// The two papers made from calendars and registers: the card of a year and the list to be signed.
#include "druk/Tabela.h"
#include "personnel/KartaEwidencji.h"
#include "reports/kadry/Elementy.h"
#include "reports/kadry/Papiery.h"
#include "rules/Stale.h"
#include <algorithm>
#include <numeric>

namespace tornel::reports {

namespace {

using Rodzaj = Element::Rodzaj;

QList<KartaRoku> kartyOsob(const ZrodloPapieru& zrodlo) {
    EwidencjaCzasuPracy ewidencja(zrodlo.otoczenie, zrodlo.okres.od.rok);
    QList<KartaRoku> wynik;
    for (const DaneOsoby& o : zrodlo.osoby) wynik.append(ewidencja.karta(o.prcId));
    return wynik;
}

enum PoleKarty : int {
    KeMiesiac = kPolOsoby,
    KeUrlop, ///< what the personnel file says of his vacation
    KeDzien, ///< of day 1; the others follow, then the sums by kind
    KeSuma = KeDzien + 31,
};

/// A row a month.
class WierszeKarty final : public WierszeOsob {
public:
    WierszeKarty(QList<DaneOsoby> dane, QList<KartaRoku> karty, const Stale& stale)
        : WierszeOsob(std::move(dane)), karty_(std::move(karty)), stale_(stale) {
        for (int i = 0; i < karty_.size(); ++i) dopisz(i, 12);
    }

private:
    [[nodiscard]] Wartosc poleOsoby(int osoba, int nr, int pole) const override {
        const MiesiacEwidencji& m = karty_.at(osoba).miesiac(nr + 1);
        if (pole >= KeSuma) return qint64{m.ile(static_cast<DzienPracy>(pole - KeSuma))};
        if (pole >= KeDzien) return SymbolDnia(stale_, m.dni.at(static_cast<std::size_t>(pole - KeDzien)));
        if (pole == KeMiesiac) return NazwaMiesiaca(nr + 1);
        return QStringLiteral("Urlop wypoczynkowy według kartoteki: zaległy %1, nowy %2 dni.")
            .arg(osoby()[osoba].urlopZalegly)
            .arg(osoby()[osoba].urlopNowy);
    }

    QList<KartaRoku> karty_;
    const Stale& stale_;
};

/// The symbols that are in use with what they mean.
QString objasnienia(const Stale& stale) {
    QStringList czesci;
    for (int i = 0; i < kRodzajowDni; ++i) {
        const auto rodzaj = static_cast<DzienPracy>(i);
        const QString symbol = SymbolDnia(stale, rodzaj).trimmed();
        czesci.append((symbol.isEmpty() ? QStringLiteral("pole puste") : symbol) + QStringLiteral(" - ") +
                      NazwaDniaPracy(rodzaj));
    }
    return QStringLiteral("Objaśnienia: ") + czesci.join(QStringLiteral(",  ")) +
           QStringLiteral(",  myślnik - poza zatrudnieniem.");
}

constexpr double kMiesiacKarty = 21, kDzienKarty = 6, kSumaKarty = 7, kWierszKarty = 7, kGlowkaKarty = 9;

QList<double> szerokosciKarty() {
    QList<double> wynik{kMiesiacKarty};
    wynik.append(QList<double>(31, kDzienKarty));
    wynik.append(QList<double>(kRodzajowDni, kSumaKarty));
    return wynik;
}

/// Days 1 to 31, then the kinds with their symbols.
QList<Element> glowkaKarty(const Stale& stale, double y) {
    QList<Element> wynik;
    double x = 0;
    const double polowa = kGlowkaKarty / 2;
    const auto kratka = [&](double szer, const QString& napis) {
        wynik.append({.rodzaj = Rodzaj::Ramka, .miejsce = {x, y, szer, kGlowkaKarty}});
        wynik.append(napisNa({x, y, szer, kGlowkaKarty}, napis, Pismo::Naglowek, Ulozenie::Srodek));
        x += szer;
    };
    const auto kratkaSumy = [&](const QString& skrot, const QString& symbol) {
        wynik.append({.rodzaj = Rodzaj::Ramka, .miejsce = {x, y, kSumaKarty, kGlowkaKarty}});
        wynik.append(
            napisNa({x + 0.4, y + 0.3, kSumaKarty - 0.8, polowa}, skrot, Pismo::Drobne, Ulozenie::Srodek));
        wynik.append(
            napisNa({x, y + polowa - 0.3, kSumaKarty, polowa}, symbol, Pismo::Naglowek, Ulozenie::Srodek));
        x += kSumaKarty;
    };
    kratka(kMiesiacKarty, QStringLiteral("Miesiąc"));
    for (int d = 1; d <= 31; ++d) kratka(kDzienKarty, QString::number(d));
    for (int i = 0; i < kRodzajowDni; ++i) {
        const auto rodzaj = static_cast<DzienPracy>(i);
        kratkaSumy(SkrotDniaPracy(rodzaj), SymbolDnia(stale, rodzaj).trimmed());
    }
    return wynik;
}

Pasmo wierszKarty() {
    Pasmo p{.rola = Rola::Wiersz, .wys = kWierszKarty};
    p.elementy = linieKolumn(szerokosciKarty(), kWierszKarty);
    p.elementy.append(poleNa({1, 0, kMiesiacKarty - 2, kWierszKarty}, KeMiesiac));
    double x = kMiesiacKarty;
    for (int d = 0; d < 31; ++d, x += kDzienKarty)
        p.elementy.append(
            poleNa({x, 0, kDzienKarty, kWierszKarty}, KeDzien + d, Pismo::Zwykle, Ulozenie::Srodek));
    for (int i = 0; i < kRodzajowDni; ++i, x += kSumaKarty)
        p.elementy.append(poleNa({x, 0, kSumaKarty, kWierszKarty}, KeSuma + i, Pismo::Zwykle,
                                 Ulozenie::Srodek, Format::LiczbaBezZera));
    p.elementy.append({.rodzaj = Rodzaj::Linia, .miejsce = {0, kWierszKarty, x, 0}});
    return p;
}

Pasmo dolKarty(const Stale& stale, double szer) {
    Pasmo p{.rola = Rola::StopkaGrupy, .wys = kWierszKarty + 14 + kWysPodpisow};
    QList<Element>& e = p.elementy;
    e.append(napisNa({1, 0, 60, kWierszKarty}, QStringLiteral("Razem"), Pismo::Wazne));
    double x = kMiesiacKarty + 31 * kDzienKarty;
    for (int i = 0; i < kRodzajowDni; ++i, x += kSumaKarty) {
        e.append({.rodzaj = Rodzaj::Ramka, .miejsce = {x, 0, kSumaKarty, kWierszKarty}});
        e.append({.rodzaj = Rodzaj::Suma,
                  .miejsce = {x, 0, kSumaKarty, kWierszKarty},
                  .pole = KeSuma + i,
                  .format = Format::Liczba,
                  .pismo = Pismo::Wazne,
                  .ulozenie = Ulozenie::Srodek});
    }
    e.append({.rodzaj = Rodzaj::Ramka, .miejsce = {0, 0, szer, kWierszKarty}});
    e.append(napisNa({0, kWierszKarty + 2, szer, 4}, objasnienia(stale), Pismo::Drobne));
    e.append(poleNa({0, kWierszKarty + 6.5, szer, 4}, KeUrlop, Pismo::Drobne));
    e += podpisy(szer, kWierszKarty + 12, {QStringLiteral("sporządził(a)"), QStringLiteral("sprawdził(a)")});
    return p;
}

enum PoleObecnosci : int { LoDzien = kPolOsoby, LoNazwaDnia, LoSymbol, LoNieobecny, LoRazem };

/// A row a day.
class WierszeObecnosci final : public WierszeOsob {
public:
    WierszeObecnosci(QList<DaneOsoby> dane, QList<KartaRoku> karty, RokMies miesiac, const Stale& stale)
        : WierszeOsob(std::move(dane)), karty_(std::move(karty)), miesiac_(miesiac), stale_(stale) {
        for (int i = 0; i < karty_.size(); ++i) dopisz(i, miesiac_.dni());
    }

private:
    [[nodiscard]] Wartosc poleOsoby(int osoba, int nr, int pole) const override {
        const MiesiacEwidencji& m = karty_.at(osoba).miesiac(miesiac_.mies);
        const DzienPracy rodzaj = m.dni.at(static_cast<std::size_t>(nr));
        switch (pole) {
        case LoDzien:
            return qint64{nr} + 1;
        case LoNazwaDnia:
            return Nazwa_dnia(miesiac_.pierwszyDzien().addDays(nr));
        case LoSymbol:
            return SymbolDnia(stale_, rodzaj);
        case LoNieobecny:
            return rodzaj == DzienPracy::Roboczy ? QString()
                   : rodzaj == DzienPracy::Brak  ? QStringLiteral("poza zatrudnieniem")
                                                 : NazwaDniaPracy(rodzaj);
        default:
            return razem(m);
        }
    }
    [[nodiscard]] static QString razem(const MiesiacEwidencji& m) {
        QStringList czesci;
        for (int i = 0; i < kRodzajowDni; ++i) {
            const auto rodzaj = static_cast<DzienPracy>(i);
            if (const int ile = m.ile(rodzaj); ile > 0 || rodzaj == DzienPracy::Roboczy)
                czesci.append(QStringLiteral("%1: %2").arg(NazwaDniaPracy(rodzaj)).arg(ile));
        }
        return QStringLiteral("Razem dni:  ") + czesci.join(QStringLiteral(",  "));
    }

    QList<KartaRoku> karty_;
    RokMies miesiac_;
    const Stale& stale_;
};

struct KolumnaObecnosci {
    QStringView naglowek;
    double szer;
    int pole; ///< -1 for one that is filled by hand
};
constexpr KolumnaObecnosci kObecnosc[] = {
    {u"Dzień", 13, LoDzien},      {u"Dzień tygodnia", 28, LoNazwaDnia},
    {u"Symbol", 15, LoSymbol},    {u"Godzina przyjścia", 27, -1},
    {u"Podpis", 50, LoNieobecny}, {u"Godzina wyjścia", 27, -1},
    {u"Uwagi", 30, -1},
};

} // namespace

Papier KartaEwidencji(const ZrodloPapieru& zrodlo) {
    const Stale& stale = zrodlo.otoczenie.stale;
    const QString tytul = QStringLiteral("Karta ewidencji czasu pracy"),
                  okres = QStringLiteral("za rok ") + FormatRoku(zrodlo.okres.od.rok);
    OpisWydruku opis = NowyOpis(zrodlo.nazwa, tytul + QLatin1Char(' ') + okres, true);
    const Firma firma = FirmaNaWydruku(stale);
    Pasmo naglowek = naglowekOsoby(opis.strona, tytul, okres);
    naglowek.elementy += glowkaKarty(stale, naglowek.wys);
    naglowek.wys += kGlowkaKarty;
    opis.grupy = {OsNumer};
    opis.arkusze = {{liniaFirmy(opis.strona, firma), naglowek, wierszKarty(),
                     dolKarty(stale, kMiesiacKarty + 31 * kDzienKarty + kRodzajowDni * kSumaKarty),
                     StopkaZFirma(opis, firma, zrodlo.dzien)}};
    opis.nazwyPol = {
        QStringLiteral("Nr"), QStringLiteral("Nazwisko i imiona"), {}, {}, QStringLiteral("Miesiąc"), {}};
    for (int d = 1; d <= 31; ++d) opis.nazwyPol.append(QString::number(d));
    for (int i = 0; i < kRodzajowDni; ++i) opis.nazwyPol.append(NazwaDniaPracy(static_cast<DzienPracy>(i)));
    opis.brakWierszy = QStringLiteral("Nie wybrano pracowników.");
    return std::make_shared<Uklad>(std::move(opis),
                                   std::make_shared<WierszeKarty>(zrodlo.osoby, kartyOsob(zrodlo), stale));
}

Papier ListaObecnosci(const ZrodloPapieru& zrodlo) {
    constexpr double kWys = 6.4, kGlowka = 7;
    const QString tytul = QStringLiteral("Lista obecności"),
                  okres = QStringLiteral("za miesiąc ") + MiesiacSlownie(zrodlo.okres.od);
    OpisWydruku opis = NowyOpis(zrodlo.nazwa, tytul + QLatin1Char(' ') + okres, false);
    const Firma firma = FirmaNaWydruku(zrodlo.otoczenie.stale);
    const double szer = opis.strona.szerTresci();
    Pasmo naglowek = naglowekOsoby(opis.strona, tytul, okres), wiersz{.rola = Rola::Wiersz, .wys = kWys};
    QList<double> szerokosci;
    double x = 0;
    for (const KolumnaObecnosci& k : kObecnosc) {
        naglowek.elementy.append({.rodzaj = Rodzaj::Ramka, .miejsce = {x, naglowek.wys, k.szer, kGlowka}});
        naglowek.elementy.append(napisNa({x, naglowek.wys, k.szer, kGlowka}, k.naglowek.toString(),
                                         Pismo::Naglowek, Ulozenie::Srodek));
        if (k.pole >= 0)
            wiersz.elementy.append(poleNa({x + 1, 0, k.szer - 2, kWys}, k.pole,
                                          k.pole == LoNieobecny ? Pismo::Drobne : Pismo::Zwykle,
                                          k.pole == LoNazwaDnia ? Ulozenie::Lewo : Ulozenie::Srodek));
        szerokosci.append(k.szer);
        x += k.szer;
    }
    naglowek.wys += kGlowka;
    wiersz.elementy += linieKolumn(szerokosci, kWys);
    wiersz.elementy.append({.rodzaj = Rodzaj::Linia, .miejsce = {0, kWys, x, 0}});
    Pasmo dol{.rola = Rola::StopkaGrupy, .wys = 8 + kWysPodpisow};
    dol.elementy = podpisy(szer, 6, {QStringLiteral("sporządził(a)"), QStringLiteral("przełożony")});
    dol.elementy.append(poleNa({0, 2, szer, 4}, LoRazem, Pismo::Drobne));
    opis.grupy = {OsNumer};
    opis.arkusze = {
        {liniaFirmy(opis.strona, firma), naglowek, wiersz, dol, StopkaZFirma(opis, firma, zrodlo.dzien)}};
    opis.nazwyPol = {QStringLiteral("Nr"),
                     QStringLiteral("Nazwisko i imiona"),
                     {},
                     {},
                     QStringLiteral("Dzień"),
                     QStringLiteral("Dzień tygodnia"),
                     QStringLiteral("Symbol"),
                     QStringLiteral("Rodzaj")};
    opis.brakWierszy = QStringLiteral("Nie wybrano pracowników.");
    return std::make_shared<Uklad>(
        std::move(opis), std::make_shared<WierszeObecnosci>(zrodlo.osoby, kartyOsob(zrodlo), zrodlo.okres.od,
                                                            zrodlo.otoczenie.stale));
}

} // namespace tornel::reports
