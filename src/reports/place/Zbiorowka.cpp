#include "reports/place/Zbiorowka.h"
#include "common/Liczby.h"
#include "druk/Tabela.h"
#include "reports/place/WierszeListyPlac.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <algorithm>
#include <map>

namespace tornel::reports {

using schemat::PLA;
using schemat::US;

namespace {

enum PoleZbiorowki : int { PoleDzialu, PolePozycji, PoleSztuk, PoleKwoty };

/// The rows of the summary, chapter by chapter.
class Zestawienie {
public:
    void rozdzial(const QString& nazwa) { rozdzial_ = nazwa; }
    void dodaj(const QString& pozycja, Waluta kwota, const Wartosc& sztuk = Null) {
        wiersze_.append({Wartosc(rozdzial_), Wartosc(pozycja), sztuk, Wartosc(kwota)});
    }
    void dodajNiezerowa(const QString& pozycja, Waluta kwota) {
        if (!kwota.zero()) dodaj(pozycja, kwota);
    }
    [[nodiscard]] std::shared_ptr<const WierszeDruku> wiersze() && {
        return std::make_shared<WierszeWPamieci>(std::move(wiersze_));
    }

private:
    QString rozdzial_;
    QList<QList<Wartosc>> wiersze_;
};

Waluta suma(const WierszeListyPlac& w, int pole) {
    Waluta razem;
    for (int i = 0; i < w.ile(); ++i) razem += std::get<Waluta>(w.pole(i, pole));
    return razem;
}

/// The employer's contributions and the funds.
void dodajPracodawce(Zestawienie& z, const WierszeListyPlac& wiersze) {
    for (const int pole : {EmerytalnaPracodawcy, RentowaPracodawcy, Wypadkowa, FunduszPracy, Fgsp})
        for (const PoleKolumna& p : kolumnyListyPlac())
            if (p.pole == pole) z.dodaj(p.nazwa.toString(), suma(wiersze, pole));
}

/// What is owed to the social insurer with everything that is paid through it.
void dodajNalezneZus(Zestawienie& z, const WierszeListyPlac& w) {
    const auto razem = [&](std::initializer_list<int> pola) {
        Waluta wynik;
        for (const int pole : pola) wynik += suma(w, pole);
        return wynik;
    };
    const Waluta spoleczne =
        razem({Emerytalna, Rentowa, Chorobowa, EmerytalnaPracodawcy, RentowaPracodawcy, Wypadkowa});
    const Waluta zdrowotne = razem({ZdrowotnaNalezna}), fundusze = razem({FunduszPracy, Fgsp});
    z.dodaj(QStringLiteral("Ubezpieczenia społeczne"), spoleczne);
    z.dodaj(QStringLiteral("Ubezpieczenie zdrowotne"), zdrowotne);
    z.dodaj(QStringLiteral("Fundusz pracy i Fundusz GSP"), fundusze);
    z.dodaj(QStringLiteral("Razem"), spoleczne + zdrowotne + fundusze);
}

/// The lists of the month one by one, when there is more than one.
void dodajListy(Zestawienie& z, const WierszeListyPlac& wiersze) {
    struct Lista {
        Waluta brutto, doWyplaty;
        qint64 wyplat = 0;
    };
    std::map<QString, Lista> wgSymbolu;
    for (int i = 0; i < wiersze.ile(); ++i) {
        Lista& l = wgSymbolu[std::get<QString>(wiersze.pole(i, SymbolListy))];
        l.brutto += std::get<Waluta>(wiersze.pole(i, Brutto));
        l.doWyplaty += std::get<Waluta>(wiersze.pole(i, DoWyplaty));
        ++l.wyplat;
    }
    if (wgSymbolu.size() < 2) return;
    for (const auto& [symbol, l] : wgSymbolu) {
        const QString nazwa = symbol.trimmed().isEmpty() ? QStringLiteral("Lista bez symbolu")
                                                         : QStringLiteral("Lista ") + symbol.toUpper();
        z.dodaj(QStringLiteral("%1 (wypłat: %2): brutto").arg(nazwa).arg(l.wyplat), l.brutto);
        z.dodaj(QStringLiteral("%1 (wypłat: %2): do wypłaty").arg(nazwa).arg(l.wyplat), l.doWyplaty);
    }
}

/// The tax advances by office, in the order of their numbers.
void dodajPodatek(Zestawienie& z, Otoczenie& o, const QString& symbol) {
    std::map<qint64, Waluta> wgUrzedu;
    for (const Wiersz w : o.sesja.rsPLA.wiersze())
        if (symbol.trimmed().isEmpty() || w.tekst(PLA("LISTA")) == symbol)
            wgUrzedu[w.liczba(PLA("US_ID"))] += w.kwota(PLA("PODATEK"));
    Recordset us(US);
    us.Open(o.sesja.cnPlace);
    for (const auto& [numer, kwota] : wgUrzedu) {
        const auto urzad = us.szukaj(numer);
        z.dodajNiezerowa(
            urzad ? urzad->tekst(US("Nazwa")) : QStringLiteral("Urząd skarbowy nr %1").arg(numer), kwota);
    }
}

/// The denominations of constants 660 (zł) and 661 (gr) that are numbers.
QList<Waluta> nominaly(const Stale& stale) {
    QList<Waluta> wynik;
    const auto dodaj = [&](const QString& tekst, int dzielnik) {
        const auto kwota = CzytajKwote(tekst.trimmed());
        if (kwota && *kwota > Waluta{}) wynik.append(Proporcja(*kwota, 1, dzielnik));
    };
    for (const QString& t : stale.NPZl) dodaj(t, 1);
    for (const QString& t : stale.NPGr) dodaj(t, 100);
    return wynik;
}

void dodajNominaly(Zestawienie& z, const Stale& stale, const WierszeListyPlac& wiersze) {
    QList<Waluta> wyplaty;
    for (int i = 0; i < wiersze.ile(); ++i) wyplaty.append(std::get<Waluta>(wiersze.pole(i, Gotowka)));
    for (const Nominal& n : RozmienKwoty(wyplaty, nominaly(stale)))
        if (n.sztuk > 0)
            z.dodaj(QStringLiteral("Nominał %1 zł").arg(FormatKwoty(n.nominal)),
                    Proporcja(n.nominal, n.sztuk, 1), n.sztuk);
}

void dodajWyliczenie(Zestawienie& z, const WierszeListyPlac& wiersze) {
    static constexpr std::pair<QStringView, PoleListyPlac> kWyliczenie[] = {
        {u"Brutto", Brutto},
        {u"Koszty uzyskania przychodu", Koszty},
        {u"Dochód", Dochod},
        {u"Podatek przed odliczeniami", PodatekPrzed},
        {u"Ulga podatkowa", Ulga},
        {u"Ubezpieczenie zdrowotne należne", ZdrowotnaNalezna},
        {u"Ubezpieczenie zdrowotne odliczone", Zdrowotna},
        {u"Składki pracowników: fundusz emerytalny", Emerytalna},
        {u"Składki pracowników: fundusz rentowy", Rentowa},
        {u"Składki pracowników: fundusz chorobowy", Chorobowa},
    };
    for (const auto& [nazwa, pole] : kWyliczenie) z.dodaj(nazwa.toString(), suma(wiersze, pole));
}

QList<Pasmo> pasma(const Strona& strona, const QString& firma, const QString& zaMiesiac,
                   const Pasmo& stopka) {
    constexpr double kWysokosc = 4.2, kSzerKwoty = 40, kSzerSztuk = 20;
    const double szer = strona.szerTresci();
    const QList<KolumnaDruku> kolumny{
        {QStringLiteral("Pozycja"), szer - kSzerKwoty - kSzerSztuk, PolePozycji},
        {QStringLiteral("Sztuk"), kSzerSztuk, PoleSztuk, Format::LiczbaBezZera},
        {QStringLiteral("Kwota"), kSzerKwoty, PoleKwoty, Format::Kwota}};
    return {naglowekWydruku(strona, firma, QStringLiteral("Zbiorówka płac"), zaMiesiac),
            {.rola = Rola::NaglowekGrupy,
             .wys = 7,
             .elementy = {{.rodzaj = Element::Rodzaj::Pole,
                           .miejsce = {0, 2, szer, 5},
                           .pole = PoleDzialu,
                           .pismo = Pismo::Wazne}},
             .powtarzaj = true},
            {.rola = Rola::Wiersz, .wys = kWysokosc, .elementy = komorkiWiersza(kolumny, kWysokosc)},
            stopka};
}

} // namespace

QList<Nominal> RozmienKwoty(const QList<Waluta>& kwoty, QList<Waluta> nominaly) {
    std::ranges::sort(nominaly, std::greater{});
    nominaly.erase(std::unique(nominaly.begin(), nominaly.end()), nominaly.end());
    QList<Nominal> wynik;
    for (const Waluta n : nominaly) wynik.append({n, 0});
    for (const Waluta kwota : kwoty) {
        std::int64_t reszta = kwota.surowa();
        for (Nominal& n : wynik) {
            n.sztuk += reszta / n.nominal.surowa();
            reszta %= n.nominal.surowa();
        }
    }
    return wynik;
}

std::shared_ptr<const Uklad> UlozZbiorowke(OpisWydruku opis, Otoczenie& otoczenie,
                                           const WierszeListyPlac& wiersze, const QString& zaMiesiac,
                                           const Pasmo& stopka) {
    const NaglowekListyPlac& n = wiersze.naglowek();
    Zestawienie z;
    z.rozdzial(QStringLiteral("Składniki wynagrodzenia"));
    for (const int i : n.uzywanePlusy) z.dodajNiezerowa(n.plusy[i], suma(wiersze, polePlusa(i)));
    z.rozdzial(QStringLiteral("Potrącenia"));
    for (const int i : n.uzywaneMinusy) z.dodajNiezerowa(n.minusy[i], suma(wiersze, poleMinusa(i)));
    z.rozdzial(QStringLiteral("Wyliczenie"));
    dodajWyliczenie(z, wiersze);
    z.rozdzial(QStringLiteral("Składki pracodawcy"));
    dodajPracodawce(z, wiersze);
    z.rozdzial(QStringLiteral("Należne składki razem"));
    dodajNalezneZus(z, wiersze);
    z.rozdzial(QStringLiteral("Zaliczki na podatek według urzędów"));
    dodajPodatek(z, otoczenie, n.symbol);
    z.rozdzial(QStringLiteral("Do wypłaty"));
    z.dodaj(QStringLiteral("Przelewem"), suma(wiersze, Przelewem));
    z.dodaj(QStringLiteral("Gotówką"), suma(wiersze, Gotowka));
    z.dodaj(QStringLiteral("Razem"), suma(wiersze, DoWyplaty));
    z.rozdzial(QStringLiteral("Według list"));
    dodajListy(z, wiersze);
    z.rozdzial(QStringLiteral("Gotówka według nominałów"));
    dodajNominaly(z, otoczenie.stale, wiersze);

    opis.nazwyPol = {QStringLiteral("Dział"), QStringLiteral("Pozycja"), QStringLiteral("Sztuk"),
                     QStringLiteral("Kwota")};
    opis.grupy = {PoleDzialu};
    opis.arkusze = {pasma(opis.strona, n.firma.wLinii(), zaMiesiac, stopka)};
    return std::make_shared<Uklad>(std::move(opis), std::move(z).wiersze());
}

} // namespace tornel::reports
