#include "reports/kadry/Elementy.h"
#include "reports/kadry/Papiery.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <array>

namespace tornel::reports {

using schemat::US;

namespace {

using Rodzaj = Element::Rodzaj;

/// The columns, and where the opening balance of each stands.
struct KwotaKarty {
    PoleListyPlac pole;
    QStringView gora, dol; ///< two lines of the caption
    Waluta DaneOsoby::*bilans;
};
constexpr KwotaKarty kKwotyKarty[] = {
    {Brutto, u"Przychód", u"brutto", &DaneOsoby::przychodBO},
    {SkladkiPracownika, u"Składki", u"społeczne", &DaneOsoby::skladkiBO},
    {Koszty, u"Koszty", u"uzyskania", &DaneOsoby::kosztyBO},
    {Dochod, u"Dochód", u"", nullptr},
    {PodatekPrzed, u"Podatek", u"przed odlicz.", nullptr},
    {Ulga, u"Ulga", u"podatkowa", nullptr},
    {ZdrowotnaNalezna, u"Zdrowotne", u"należne", &DaneOsoby::zdrowotneNalezneBO},
    {Zdrowotna, u"Zdrowotne", u"odliczone", &DaneOsoby::zdrowotneOdliczoneBO},
    {Zaliczka, u"Zaliczka", u"na podatek", &DaneOsoby::podatekBO},
    {Dodatki, u"Dodatki", u"", nullptr},
    {Potracenia, u"Potrącenia", u"", nullptr},
    {DoWyplaty, u"Do wypłaty", u"", nullptr},
};
constexpr int kKwotKarty = static_cast<int>(std::size(kKwotyKarty));

enum PoleKartyPrzychodow : int {
    KpMiesiac = kPolOsoby,
    KpUrzad,
    KpNapisNarastajaco,
    KpKwota,                              ///< of the first column; the others follow
    KpNarastajaco = KpKwota + kKwotKarty, ///< what they come to from January
};

/// One line of the card.
struct WierszKarty {
    QString napis;
    bool wypelniony = false; ///< somebody was paid, or the year opened with a balance
    std::array<Waluta, kKwotKarty> kwoty{}, narastajaco{};
};

/// The opening balance, if there is one, then January to December.
QList<WierszKarty> wierszeOsoby(const DaneOsoby& o, const QList<PlacaOsoby>& miesiace) {
    QList<WierszKarty> wynik;
    WierszKarty bilans{.napis = QStringLiteral("Bilans otwarcia")};
    for (std::size_t i = 0; i < bilans.kwoty.size(); ++i) {
        if (kKwotyKarty[i].bilans) bilans.kwoty[i] = o.*kKwotyKarty[i].bilans;
        if (kKwotyKarty[i].pole == Dochod) bilans.kwoty[i] = o.przychodBO - o.skladkiBO - o.kosztyBO;
        bilans.wypelniony = bilans.wypelniony || !bilans.kwoty[i].zero();
    }
    if (bilans.wypelniony) wynik.append(bilans);
    for (int m = 0; m < miesiace.size(); ++m) {
        WierszKarty w{.napis = NazwaMiesiaca(m + 1), .wypelniony = miesiace[m].wyplat > 0};
        for (std::size_t i = 0; i < w.kwoty.size(); ++i) w.kwoty[i] = miesiace[m].sumy[kKwotyKarty[i].pole];
        wynik.append(w);
    }
    for (qsizetype i = 0; i < wynik.size(); ++i)
        for (std::size_t k = 0; k < wynik[i].kwoty.size(); ++k)
            wynik[i].narastajaco[k] = wynik[i].kwoty[k] + (i > 0 ? wynik[i - 1].narastajaco[k] : Waluta{});
    return wynik;
}

class WierszePrzychodow final : public WierszeOsob {
public:
    explicit WierszePrzychodow(const ZrodloPapieru& zrodlo) : WierszeOsob(zrodlo.osoby) {
        const QList<QList<PlacaOsoby>> place = PlaceOsob(zrodlo);
        Recordset us(US);
        us.Open(zrodlo.otoczenie.sesja.cnPlace);
        for (int i = 0; i < osoby().size(); ++i) {
            karty_.append(wierszeOsoby(osoby()[i], place[i]));
            const auto urzad = us.szukaj(osoby()[i].usId);
            urzedy_.append(urzad ? urzad->tekst(US("Nazwa")) : QString());
            dopisz(i, static_cast<int>(karty_.last().size()));
        }
    }

private:
    [[nodiscard]] Wartosc poleOsoby(int osoba, int nr, int pole) const override {
        const WierszKarty& w = karty_.at(osoba).at(nr);
        if (pole == KpMiesiac) return w.napis;
        if (pole == KpUrzad) return QString(QStringLiteral("Urząd skarbowy: ") + urzedy_.at(osoba));
        if (!w.wypelniony) return Null;
        if (pole == KpNapisNarastajaco) return QStringLiteral("narastająco");
        return pole < KpNarastajaco ? w.kwoty.at(static_cast<std::size_t>(pole - KpKwota))
                                    : w.narastajaco.at(static_cast<std::size_t>(pole - KpNarastajaco));
    }

    QList<QList<WierszKarty>> karty_;
    QStringList urzedy_;
};

constexpr double kSzerMiesiaca = 25, kSzerKwotyKarty = 21, kGornaLinia = 4.6, kDolnaLinia = 3.8;

QList<double> szerokosciPrzychodow() {
    QList<double> wynik{kSzerMiesiaca};
    wynik.append(QList<double>(kKwotKarty, kSzerKwotyKarty));
    return wynik;
}

QList<Element> glowkaPrzychodow(double y) {
    constexpr double kWys = 9;
    QList<Element> wynik{
        {.rodzaj = Rodzaj::Ramka, .miejsce = {0, y, kSzerMiesiaca, kWys}},
        napisNa({0, y, kSzerMiesiaca, kWys}, QStringLiteral("Miesiąc"), Pismo::Naglowek, Ulozenie::Srodek)};
    double x = kSzerMiesiaca;
    for (const KwotaKarty& k : kKwotyKarty) {
        wynik.append({.rodzaj = Rodzaj::Ramka, .miejsce = {x, y, kSzerKwotyKarty, kWys}});
        const double obok = k.dol.isEmpty() ? kWys / 4 : 0.3;
        wynik.append(napisNa({x + 0.5, y + obok, kSzerKwotyKarty - 1, kWys / 2}, k.gora.toString(),
                             Pismo::Naglowek, Ulozenie::Srodek));
        if (!k.dol.isEmpty())
            wynik.append(napisNa({x + 0.5, y + kWys / 2 - 0.3, kSzerKwotyKarty - 1, kWys / 2},
                                 k.dol.toString(), Pismo::Naglowek, Ulozenie::Srodek));
        x += kSzerKwotyKarty;
    }
    return wynik;
}

/// The month's amounts, and below them, small, what they come to from January.
Pasmo wierszPrzychodow() {
    constexpr double kWys = kGornaLinia + kDolnaLinia;
    Pasmo p{.rola = Rola::Wiersz, .wys = kWys};
    p.elementy = linieKolumn(szerokosciPrzychodow(), kWys);
    p.elementy.append(poleNa({1, 0, kSzerMiesiaca - 2, kGornaLinia}, KpMiesiac));
    p.elementy.append(
        poleNa({1, kGornaLinia, kSzerMiesiaca - 2, kDolnaLinia - 0.4}, KpNapisNarastajaco, Pismo::Drobne));
    double x = kSzerMiesiaca;
    for (int i = 0; i < kKwotKarty; ++i, x += kSzerKwotyKarty) {
        p.elementy.append(poleNa({x + 0.8, 0, kSzerKwotyKarty - 1.6, kGornaLinia}, KpKwota + i, Pismo::Zwykle,
                                 Ulozenie::Prawo, Format::Kwota));
        p.elementy.append(poleNa({x + 0.8, kGornaLinia, kSzerKwotyKarty - 1.6, kDolnaLinia - 0.4},
                                 KpNarastajaco + i, Pismo::Drobne, Ulozenie::Prawo, Format::Kwota));
    }
    p.elementy.append({.rodzaj = Rodzaj::Linia, .miejsce = {0, kWys, x, 0}});
    return p;
}

Pasmo dolPrzychodow(double szer) {
    constexpr double kWys = 6;
    Pasmo p{.rola = Rola::StopkaGrupy, .wys = kWys + kWysPodpisow};
    p.elementy = linieKolumn(szerokosciPrzychodow(), kWys);
    p.elementy.append(napisNa({1, 0, kSzerMiesiaca - 2, kWys}, QStringLiteral("Razem rok"), Pismo::Wazne));
    double x = kSzerMiesiaca;
    for (int i = 0; i < kKwotKarty; ++i, x += kSzerKwotyKarty)
        p.elementy.append({.rodzaj = Rodzaj::Suma,
                           .miejsce = {x + 0.8, 0, kSzerKwotyKarty - 1.6, kWys},
                           .pole = KpKwota + i,
                           .format = Format::Kwota,
                           .pismo = Pismo::Wazne,
                           .ulozenie = Ulozenie::Prawo});
    p.elementy.append({.rodzaj = Rodzaj::Ramka, .miejsce = {0, 0, szer, kWys}});
    p.elementy += podpisy(szer, kWys, {QStringLiteral("sporządził(a)"), QStringLiteral("sprawdził(a)")});
    return p;
}

} // namespace

Papier KartaPrzychodow(const ZrodloPapieru& zrodlo) {
    const QString tytul = QStringLiteral("Karta przychodów"),
                  okres = QStringLiteral("za rok ") + FormatRoku(zrodlo.okres.od.rok);
    OpisWydruku opis = NowyOpis(zrodlo.nazwa, tytul + QLatin1Char(' ') + okres, true);
    const Firma firma = FirmaNaWydruku(zrodlo.otoczenie.stale);
    const double szer = opis.strona.szerTresci();
    Pasmo naglowek = naglowekOsoby(opis.strona, tytul, okres);
    naglowek.elementy.append(poleNa({0, 28.5, szer, 4}, KpUrzad));
    naglowek.wys += 3;
    naglowek.elementy += glowkaPrzychodow(naglowek.wys);
    naglowek.wys += 9;
    opis.grupy = {OsNumer};
    opis.arkusze = {{liniaFirmy(opis.strona, firma), naglowek, wierszPrzychodow(), dolPrzychodow(szer),
                     StopkaZFirma(opis, firma, zrodlo.dzien)}};
    opis.nazwyPol = {
        QStringLiteral("Nr"), QStringLiteral("Nazwisko i imiona"), {}, {}, QStringLiteral("Miesiąc"), {}, {}};
    for (const KwotaKarty& k : kKwotyKarty)
        opis.nazwyPol.append((k.gora.toString() + QLatin1Char(' ') + k.dol.toString()).trimmed());
    for (int i = 0; i < kKwotKarty; ++i)
        opis.nazwyPol.append(opis.nazwyPol[KpKwota + i] + QStringLiteral(" narastająco"));
    opis.brakWierszy = QStringLiteral("Nie wybrano pracowników.");
    return std::make_shared<Uklad>(std::move(opis), std::make_shared<WierszePrzychodow>(zrodlo));
}

} // namespace tornel::reports
