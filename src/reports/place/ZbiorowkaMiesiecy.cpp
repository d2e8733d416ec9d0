#include "reports/place/ZbiorowkaMiesiecy.h"
#include "common/Blad.h"
#include "druk/Tabela.h"
#include "reports/Firma.h"
#include "reports/place/WierszeListyPlac.h"
#include "store/Sesja.h"
#include <algorithm>
#include <QCollator>
#include <QHash>

namespace tornel::reports {

using schemat::PRACDP;
using schemat::PRACPR;

namespace {

/// The fields behind those of a list's row.
enum PoleOkresu : int { DzialOsoby = kPolListyPlac, WyplatOsoby, SumaDzialu };

QString napisDzialu(const QString& dzial) { return dzial.isEmpty() ? QStringLiteral("(bez działu)") : dzial; }

class WierszeOkresu final : public WierszeDruku {
public:
    explicit WierszeOkresu(QList<PozycjaZbiorowki> pozycje) : pozycje_(std::move(pozycje)) {}
    [[nodiscard]] int ile() const override { return static_cast<int>(pozycje_.size()); }
    [[nodiscard]] Wartosc pole(int wiersz, int nr) const override {
        const PozycjaZbiorowki& p = pozycje_.at(wiersz);
        switch (nr) {
        case Numer:
            return p.placa.prcId;
        case Osoba:
            return p.osoba;
        case DzialOsoby:
            return napisDzialu(p.dzial);
        case WyplatOsoby:
            return p.placa.wyplat;
        case SumaDzialu:
            return QString(QStringLiteral("Razem: ") + napisDzialu(p.dzial));
        default:
            return p.placa.sumy[nr];
        }
    }
    [[nodiscard]] bool uzyte(int nr) const {
        return std::ranges::any_of(pozycje_, [nr](const auto& p) { return !p.placa.sumy[nr].zero(); });
    }

private:
    QList<PozycjaZbiorowki> pozycje_;
};

void sortujPozycje(QList<PozycjaZbiorowki>& pozycje) {
    const QCollator polski(QLocale(QLocale::Polish, QLocale::Poland));
    struct Klucz {
        QCollatorSortKey dzial, osoba;
        qsizetype nr;
    };
    std::vector<Klucz> klucze;
    klucze.reserve(static_cast<std::size_t>(pozycje.size()));
    for (qsizetype i = 0; i < pozycje.size(); ++i)
        klucze.push_back({polski.sortKey(pozycje[i].dzial), polski.sortKey(pozycje[i].osoba), i});
    std::ranges::sort(klucze, [&](const Klucz& a, const Klucz& b) {
        if (const int c = a.dzial.compare(b.dzial)) return c < 0;
        if (const int c = a.osoba.compare(b.osoba)) return c < 0;
        return pozycje[a.nr].placa.prcId < pozycje[b.nr].placa.prcId;
    });
    QList<PozycjaZbiorowki> wynik;
    wynik.reserve(pozycje.size());
    for (const Klucz& k : klucze) wynik.append(std::move(pozycje[k.nr]));
    pozycje = std::move(wynik);
}

KolumnaDruku kwotaOkresu(const QString& naglowek, int pole, double szer) {
    return {naglowek, szer, pole, Format::Kwota, true};
}

constexpr double kKolumnaNumeru = 11, kKolumnaOsoby = 45, kKolumnaKwoty = 20.5;

QList<KolumnaDruku> kolumnyOsoby() {
    return {{QStringLiteral("Nr"), kKolumnaNumeru, Numer, Format::Liczba},
            {QStringLiteral("Nazwisko i imię"), kKolumnaOsoby, Osoba}};
}

/// The columns of each sheet, the employee's own in front.
QList<QList<KolumnaDruku>> arkuszeKolumn(const WierszeOkresu& wiersze, const QStringList& nazwy,
                                         double szer) {
    const auto kolumna = [](const char16_t* naglowek, int pole) {
        return kwotaOkresu(QString::fromUtf16(naglowek), pole, kKolumnaKwoty);
    };
    QList<KolumnaDruku> glowne = kolumnyOsoby();
    glowne.last().szer = szer - kKolumnaNumeru - 12 - 10 * kKolumnaKwoty;
    glowne.append({QStringLiteral("Wypłat"), 12, WyplatOsoby, Format::Liczba, true});
    glowne += {kolumna(u"Brutto", Brutto),
               kolumna(u"Składki\nspołeczne", SkladkiPracownika),
               kolumna(u"Koszty\nuzyskania", Koszty),
               kolumna(u"Dochód", Dochod),
               kolumna(u"Zaliczka\nna podatek", Zaliczka),
               kolumna(u"Dodatki", Dodatki),
               kolumna(u"Potrącenia", Potracenia),
               kolumna(u"Do wypłaty", DoWyplaty),
               kolumna(u"Przelewem", Przelewem),
               kolumna(u"Gotówką", Gotowka)};
    QList<KolumnaDruku> skladki = kolumnyOsoby();
    skladki += {kolumna(u"Emerytalne\npracownika", Emerytalna),
                kolumna(u"Rentowe\npracownika", Rentowa),
                kolumna(u"Chorobowe", Chorobowa),
                kolumna(u"Zdrowotne\nnależne", ZdrowotnaNalezna),
                kolumna(u"Zdrowotne\nodliczone", Zdrowotna),
                kolumna(u"Emerytalne\npracodawcy", EmerytalnaPracodawcy),
                kolumna(u"Rentowe\npracodawcy", RentowaPracodawcy),
                kolumna(u"Wypadkowe", Wypadkowa),
                kolumna(u"Fundusz\npracy", FunduszPracy),
                kolumna(u"Fundusz\nGSP", Fgsp)};
    skladki[1].szer = szer - kKolumnaNumeru - 10 * kKolumnaKwoty;
    QList<QList<KolumnaDruku>> arkusze{glowne, skladki};
    QList<KolumnaDruku> skladniki;
    for (int nr = 1; nr <= 45; ++nr) {
        const int pole = nr <= 30 ? polePlusa(nr) : poleMinusa(nr - 30);
        if (!wiersze.uzyte(pole)) continue;
        skladniki.append({wDwochLiniach(nazwy[nr]), (szer - kKolumnaNumeru - kKolumnaOsoby) / 9, pole,
                          Format::KwotaBezZera, true});
    }
    for (qsizetype i = 0; i < skladniki.size(); i += 9) arkusze.append(kolumnyOsoby() + skladniki.mid(i, 9));
    return arkusze;
}

/// The bands of one sheet; all sheets have the same roles and heights.
QList<Pasmo> pasmaArkusza(const OpisWydruku& opis, const Firma& firma, const QString& podtytul,
                          const QList<KolumnaDruku>& kolumny, QDate dzien) {
    constexpr double kWys = 4.6;
    const double szer = opis.strona.szerTresci();
    QList<Element> sumaDzialu = sumyKolumn(kolumny, {}, kWys);
    sumaDzialu.append({.rodzaj = Element::Rodzaj::Pole,
                       .miejsce = {0.8, 0, kKolumnaNumeru + kKolumnaOsoby - 6, kWys},
                       .pole = SumaDzialu,
                       .pismo = Pismo::Wazne});
    Pasmo razem{.rola = Rola::StopkaWydruku,
                .wys = kWys + 2,
                .elementy = sumyKolumn(kolumny, QStringLiteral("Razem wszystkie działy"), kWys)};
    for (Element& e : razem.elementy) e.miejsce.y += 2;
    return {naglowekWydruku(opis.strona, firma.wLinii(), QStringLiteral("Zbiorówka płac"), podtytul),
            {.rola = Rola::NaglowekStrony, .wys = 8, .elementy = naglowkiKolumn(kolumny, 0)},
            {.rola = Rola::NaglowekGrupy,
             .wys = 6.5,
             .elementy = {{.rodzaj = Element::Rodzaj::Pole,
                           .miejsce = {0.8, 1.5, szer, 5},
                           .pole = DzialOsoby,
                           .pismo = Pismo::Wazne}},
             .powtarzaj = true},
            {.rola = Rola::Wiersz, .wys = kWys, .elementy = komorkiWiersza(kolumny, kWys)},
            {.rola = Rola::StopkaGrupy, .wys = kWys, .elementy = sumaDzialu},
            razem,
            StopkaZFirma(opis, firma, dzien)};
}

QList<QString> nazwyPolOkresu(const WierszeOkresu& wiersze, const QStringList& skladniki) {
    NaglowekListyPlac naglowek;
    naglowek.plusy = naglowek.minusy = {QString()};
    naglowek.plusy += skladniki.mid(1, 30);
    naglowek.minusy += skladniki.mid(31);
    for (int i = 1; i <= 30; ++i)
        if (wiersze.uzyte(polePlusa(i))) naglowek.uzywanePlusy.append(i);
    for (int i = 1; i <= 15; ++i)
        if (wiersze.uzyte(poleMinusa(i))) naglowek.uzywaneMinusy.append(i);
    QList<QString> nazwy = nazwyPolListyPlac(naglowek);
    for (const int pole : {static_cast<int>(SymbolListy), static_cast<int>(DniPracy),
                           static_cast<int>(DniUrlopu), static_cast<int>(DniChorobowe)})
        nazwy[pole].clear();
    nazwy.append({QStringLiteral("Dział"), QStringLiteral("Wypłat"), QString()});
    return nazwy;
}

} // namespace

QList<PozycjaZbiorowki> PozycjeZbiorowki(Otoczenie& otoczenie, const WarunkiZbiorowki& warunki) {
    Sesja& sesja = otoczenie.sesja;
    const QList<RokMies> miesiace = MiesiaceZakresu(sesja, warunki.okres);
    if (miesiace.isEmpty()) throw Blad(QStringLiteral("Nie ma list płac za: %1.").arg(warunki.okres.napis()));
    QList<PozycjaZbiorowki> wynik;
    QHash<qint64, qsizetype> miejsca;
    const auto osoba = [&](qint64 prcId) -> PlacaOsoby& {
        const auto znane = miejsca.constFind(prcId);
        if (znane != miejsca.cend()) return wynik[*znane].placa;
        miejsca.insert(prcId, wynik.size());
        PozycjaZbiorowki nowa;
        nowa.placa.prcId = prcId;
        wynik.append(nowa);
        return wynik.last().placa;
    };
    for (const RokMies m : miesiace) DoliczMiesiac(sesja, m, {warunki.listy}, osoba);
    for (PozycjaZbiorowki& p : wynik) {
        const auto dp = sesja.rsPRACDP.szukaj(p.placa.prcId), pr = sesja.rsPRACPR.szukaj(p.placa.prcId);
        p.osoba = dp ? (dp->tekst(PRACDP("Naz")) + QLatin1Char(' ') + dp->tekst(PRACDP("Imie_1"))).trimmed()
                     : p.placa.nazwisko;
        if (pr) p.dzial = pr->tekst(PRACPR("dzial")).trimmed();
    }
    if (warunki.dzialy)
        wynik.removeIf([&](const PozycjaZbiorowki& p) { return !warunki.dzialy->contains(p.dzial); });
    sortujPozycje(wynik);
    return wynik;
}

std::shared_ptr<const Uklad> UlozZbiorowkeMiesiecy(Otoczenie& otoczenie, const WarunkiZbiorowki& warunki,
                                                   QDate dzien) {
    const auto wiersze = std::make_shared<WierszeOkresu>(PozycjeZbiorowki(otoczenie, warunki));
    const Firma firma = FirmaNaWydruku(otoczenie.stale);
    const QString okres = (warunki.okres.od == warunki.okres.dokad ? QStringLiteral("za miesiąc ")
                                                                   : QStringLiteral("za okres ")) +
                          warunki.okres.napis();
    QStringList podtytul{okres};
    if (!warunki.listy.isEmpty())
        podtytul.append(QStringLiteral("listy: ") +
                        warunki.listy.split(QString(), Qt::SkipEmptyParts)
                            .replaceInStrings(QStringLiteral(" "), QStringLiteral("bez symbolu"))
                            .join(QStringLiteral(", ")));
    if (warunki.dzialy) {
        QStringList dzialy;
        for (const QString& d : *warunki.dzialy) dzialy.append(napisDzialu(d));
        podtytul.append(QStringLiteral("działy: ") + dzialy.join(QStringLiteral(", ")));
    }
    OpisWydruku opis =
        NowyOpis(warunki.okres.od == warunki.okres.dokad ? u"zbiorowka-miesiac" : u"zbiorowka-rok",
                 QStringLiteral("Zbiorówka płac ") + okres, true);
    const QStringList nazwy =
        NazwySkladnikow(otoczenie, MiesiaceZakresu(otoczenie.sesja, warunki.okres).last());
    opis.grupy = {DzialOsoby};
    opis.nazwyPol = nazwyPolOkresu(*wiersze, nazwy);
    opis.brakWierszy = QStringLiteral("Nie ma wypłat, które spełniają podane warunki.");
    for (const auto& kolumny : arkuszeKolumn(*wiersze, nazwy, opis.strona.szerTresci()))
        opis.arkusze.append(pasmaArkusza(opis, firma, podtytul.join(QStringLiteral("; ")), kolumny, dzien));
    return std::make_shared<Uklad>(std::move(opis), wiersze);
}

} // namespace tornel::reports
