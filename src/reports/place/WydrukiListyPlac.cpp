#include "reports/place/WydrukiListyPlac.h"
#include "druk/Tabela.h"
#include "reports/place/WierszeListyPlac.h"
#include "reports/place/Zbiorowka.h"
#include <algorithm>

namespace tornel::reports {

namespace {

using Rodzaj = Element::Rodzaj;

constexpr double kWiersz = 4.6; // mm
constexpr double kLiniaBloku = 3.9;

QString zaMiesiac(const NaglowekListyPlac& n) {
    const QString miesiac = MiesiacSlownie(n.miesiac);
    return n.symbol.trimmed().isEmpty() ? QStringLiteral("za miesiąc ") + miesiac
                                        : QStringLiteral("(%1) za miesiąc %2").arg(n.symbol, miesiac);
}

OpisWydruku podstawa(const NaglowekListyPlac& n, QStringView nazwa, const QString& tytul, bool poziomo) {
    OpisWydruku opis = NowyOpis(nazwa, tytul + QStringLiteral(" ") + zaMiesiac(n), poziomo);
    opis.nazwyPol = nazwyPolListyPlac(n);
    opis.brakWierszy = QStringLiteral("Na liście nie ma pracowników.");
    return opis;
}

/// A table with the sums of the page and of the whole.
QList<Pasmo> pasmaTabeli(const OpisWydruku& opis, const NaglowekListyPlac& n, const QString& tytul,
                         const QList<KolumnaDruku>& kolumny, QDate dzien) {
    Pasmo naglowek = naglowekWydruku(opis.strona, n.firma.wLinii(), tytul, zaMiesiac(n));
    Pasmo stopkaZSuma = StopkaZFirma(opis, n.firma, dzien);
    for (Element& e : stopkaZSuma.elementy) e.miejsce.y += kWiersz;
    stopkaZSuma.elementy += sumyKolumn(kolumny, QStringLiteral("Razem strona"), kWiersz, Rodzaj::SumaStr);
    stopkaZSuma.wys += kWiersz;
    return {naglowek,
            {.rola = Rola::NaglowekStrony, .wys = 8, .elementy = naglowkiKolumn(kolumny, 0)},
            {.rola = Rola::Wiersz, .wys = kWiersz, .elementy = komorkiWiersza(kolumny, kWiersz)},
            {.rola = Rola::StopkaWydruku,
             .wys = kWiersz,
             .elementy = sumyKolumn(kolumny, QStringLiteral("Razem lista"), kWiersz)},
            stopkaZSuma};
}

KolumnaDruku kwota(const QString& naglowek, int pole, double szer = 20.5) {
    return {naglowek, szer, pole, Format::Kwota, true};
}

OpisWydruku wersja2(const NaglowekListyPlac& n, QDate dzien) {
    OpisWydruku opis = podstawa(n, u"lista-plac-2", QStringLiteral("Lista płac"), true);
    const QList<KolumnaDruku> kolumny{{QStringLiteral("Nr"), 10, Numer, Format::Liczba},
                                      {QStringLiteral("Nazwisko i imię"), 41, Osoba},
                                      kwota(QStringLiteral("Brutto"), Brutto),
                                      kwota(QStringLiteral("Składki\nspołeczne"), SkladkiPracownika),
                                      kwota(QStringLiteral("Koszty\nuzyskania"), Koszty),
                                      kwota(QStringLiteral("Dochód"), Dochod),
                                      kwota(QStringLiteral("Zaliczka\nna podatek"), Zaliczka),
                                      kwota(QStringLiteral("Ubezp.\nzdrowotne"), Zdrowotna),
                                      kwota(QStringLiteral("Dodatki"), Dodatki),
                                      kwota(QStringLiteral("Potrącenia"), Potracenia),
                                      kwota(QStringLiteral("Do wypłaty"), DoWyplaty),
                                      kwota(QStringLiteral("Przelewem"), Przelewem),
                                      kwota(QStringLiteral("Gotówką"), Gotowka)};
    opis.arkusze = {pasmaTabeli(opis, n, QStringLiteral("Lista płac"), kolumny, dzien)};
    return opis;
}

OpisWydruku wersja3(const WierszeListyPlac& wiersze, QDate dzien) {
    const NaglowekListyPlac& n = wiersze.naglowek();
    OpisWydruku opis = podstawa(n, u"lista-plac-3", QStringLiteral("Lista składników płac"), true);
    const QList<KolumnaDruku> stale{{QStringLiteral("Nr"), 10, Numer, Format::Liczba},
                                    {QStringLiteral("Nazwisko i imię"), 44, Osoba}};
    QList<KolumnaDruku> skladniki;
    const auto dodaj = [&](const QString& nazwa, int pole) {
        if (!wiersze.uzyty(pole)) return;
        skladniki.append({wDwochLiniach(nazwa), 24, pole, Format::KwotaBezZera, true});
    };
    for (const int i : n.uzywanePlusy) dodaj(n.plusy[i], polePlusa(i));
    for (const int i : n.uzywaneMinusy) dodaj(n.minusy[i], poleMinusa(i));
    skladniki.append(kwota(QStringLiteral("Brutto"), Brutto, 24));
    skladniki.append(kwota(QStringLiteral("Do wypłaty"), DoWyplaty, 24));
    // What does not fit goes onto sheets beside the first, each with the names again.
    const auto naArkuszu =
        static_cast<qsizetype>((opis.strona.szerTresci() - szerKolumn(stale)) / skladniki.constFirst().szer);
    for (qsizetype i = 0; i < skladniki.size(); i += naArkuszu)
        opis.arkusze.append(pasmaTabeli(opis, n, QStringLiteral("Lista składników płac"),
                                        stale + skladniki.mid(i, naArkuszu), dzien));
    return opis;
}

/// Captions with their amounts, filled downwards in columns of one width.
struct Siatka {
    double x, szer, odstep;
    int linii;
    double y;

    void dodaj(QList<Element>& elementy, int i, const QString& napis, int pole, Format format,
               Pismo pismo) const {
        const int kolumna = i / linii, linia = i % linii;
        const double xKolumny = x + kolumna * (szer + odstep), yLinii = y + linia * kLiniaBloku;
        constexpr double kKwota = 19;
        elementy.append({.miejsce = {xKolumny, yLinii, szer - kKwota, kLiniaBloku},
                         .tekst = napis,
                         .pismo = Pismo::Drobne});
        elementy.append({.rodzaj = Rodzaj::Pole,
                         .miejsce = {xKolumny + szer - kKwota, yLinii, kKwota, kLiniaBloku},
                         .pole = pole,
                         .format = format,
                         .pismo = pismo,
                         .ulozenie = Ulozenie::Prawo});
    }
};

using Pozycje = QList<std::pair<QString, int>>; // captions with their fields

/// What every employee's block tells of the computation.
const Pozycje& wyliczenie() {
    static const Pozycje pozycje{
        {QStringLiteral("Brutto"), Brutto},
        {QStringLiteral("Fundusz emerytalny"), Emerytalna},
        {QStringLiteral("Fundusz rentowy"), Rentowa},
        {QStringLiteral("Fundusz chorobowy"), Chorobowa},
        {QStringLiteral("Koszty uzyskania"), Koszty},
        {QStringLiteral("Dochód"), Dochod},
        {QStringLiteral("Podatek przed odlicz."), PodatekPrzed},
        {QStringLiteral("Ulga podatkowa"), Ulga},
        {QStringLiteral("Ubezp. zdrowotne"), Zdrowotna},
        {QStringLiteral("Zaliczka na podatek"), Zaliczka},
        {QStringLiteral("Dodatki"), Dodatki},
        {QStringLiteral("Potrącenia"), Potracenia},
        {QStringLiteral("Do wypłaty"), DoWyplaty},
        {QStringLiteral("Przelewem"), Przelewem},
        {QStringLiteral("Gotówką"), Gotowka},
    };
    return pozycje;
}

/// Days at the top of a block or the bottom of a slip.
void dodajDni(QList<Element>& e, double x, double y, double krok) {
    static const Pozycje dni{{QStringLiteral("Dni pracy:"), DniPracy},
                             {QStringLiteral("Dni urlopu:"), DniUrlopu},
                             {QStringLiteral("Dni L-4:"), DniChorobowe}};
    for (const auto& [napis, pole] : dni) {
        e.append({.miejsce = {x, y, 18, 4}, .tekst = napis, .pismo = Pismo::Drobne});
        e.append(
            {.rodzaj = Rodzaj::Pole, .miejsce = {x + 18, y, 8, 4}, .pole = pole, .format = Format::Liczba});
        x += krok;
    }
}

/// Only components that somebody has in the month: the block stays as small as the month allows.
Pozycje uzyteSkladniki(const WierszeListyPlac& wiersze) {
    const NaglowekListyPlac& n = wiersze.naglowek();
    Pozycje wynik;
    const auto dodaj = [&](const QString& nazwa, int pole) {
        if (wiersze.uzyty(pole)) wynik.append({nazwa, pole});
    };
    for (const int i : n.uzywanePlusy) dodaj(n.plusy[i], polePlusa(i));
    for (const int i : n.uzywaneMinusy) dodaj(n.minusy[i], poleMinusa(i));
    return wynik;
}

Pasmo blokPracownika(const Pozycje& skladniki, double szer) {
    constexpr int kKolumnySkladnikow = 3, kLiniiWyliczenia = 8;
    constexpr double kTytulBloku = 5, kKolumna = 53, kOdstep = 3, kPodpis = 52;
    // The columns are filled alike, so that none stands empty beside full ones.
    const auto liniiSkladnikow = static_cast<int>(
        std::max<qsizetype>(1, (skladniki.size() + kKolumnySkladnikow - 1) / kKolumnySkladnikow));
    const int linii = std::max(kLiniiWyliczenia, liniiSkladnikow);
    Pasmo blok{.rola = Rola::Wiersz, .wys = kTytulBloku + linii * kLiniaBloku + 3};
    QList<Element>& e = blok.elementy;
    e.append({.rodzaj = Rodzaj::Linia, .miejsce = {0, 0, szer, 0}});
    e.append({.rodzaj = Rodzaj::Pole,
              .miejsce = {0, 0.5, 9, 4.5},
              .pole = Numer,
              .format = Format::Liczba,
              .pismo = Pismo::Wazne});
    e.append({.rodzaj = Rodzaj::Pole, .miejsce = {10, 0.5, 98, 4.5}, .pole = Osoba, .pismo = Pismo::Wazne});
    dodajDni(e, 112, 0.5, 28);
    const Siatka lewa{0, kKolumna, kOdstep, liniiSkladnikow, kTytulBloku};
    for (int i = 0; i < skladniki.size(); ++i)
        lewa.dodaj(e, i, skladniki[i].first, skladniki[i].second, Format::KwotaBezZera, Pismo::Zwykle);
    const Siatka prawa{kKolumnySkladnikow * (kKolumna + kOdstep), kKolumna, kOdstep, kLiniiWyliczenia,
                       kTytulBloku};
    for (int i = 0; i < wyliczenie().size(); ++i) {
        const auto& [napis, pole] = wyliczenie()[i];
        const bool glowna = pole == DoWyplaty || pole == Brutto;
        prawa.dodaj(e, i, napis, pole, Format::Kwota, glowna ? Pismo::Wazne : Pismo::Zwykle);
    }
    e.append({.miejsce = {szer - kPodpis, blok.wys - 5, kPodpis, 4},
              .tekst = QStringLiteral("podpis ............................................."),
              .pismo = Pismo::Drobne,
              .ulozenie = Ulozenie::Prawo});
    return blok;
}

/// The sums of the page or of the list on one line.
QList<Element> sumyBlokow(const QString& podpis, Rodzaj rodzaj, double szer) {
    static const Pozycje pola{
        {QStringLiteral("Brutto"), Brutto},        {QStringLiteral("Składki"), SkladkiPracownika},
        {QStringLiteral("Zdrowotne"), Zdrowotna},  {QStringLiteral("Podatek"), Zaliczka},
        {QStringLiteral("Do wypłaty"), DoWyplaty}, {QStringLiteral("Przelewem"), Przelewem},
        {QStringLiteral("Gotówką"), Gotowka}};
    QList<Element> s{{.rodzaj = Rodzaj::Linia, .miejsce = {0, 0, szer, 0}},
                     {.miejsce = {0, 1, 36, 4}, .tekst = podpis, .pismo = Pismo::Wazne}};
    double x = 37;
    const double krok = (szer - x) / static_cast<double>(pola.size());
    for (const auto& [napis, pole] : pola) {
        s.append({.miejsce = {x, 1, 15, 4}, .tekst = napis, .pismo = Pismo::Drobne});
        s.append({.rodzaj = rodzaj,
                  .miejsce = {x + 12, 1, krok - 14, 4},
                  .pole = pole,
                  .format = Format::Kwota,
                  .pismo = Pismo::Wazne,
                  .ulozenie = Ulozenie::Prawo});
        x += krok;
    }
    return s;
}

OpisWydruku wersja1(const WierszeListyPlac& wiersze, QDate dzien) {
    const NaglowekListyPlac& n = wiersze.naglowek();
    OpisWydruku opis = podstawa(n, u"lista-plac", QStringLiteral("Lista płac"), true);
    constexpr double kSumy = 6;
    const double szer = opis.strona.szerTresci();
    Pasmo dolStrony = StopkaZFirma(opis, n.firma, dzien);
    for (Element& e : dolStrony.elementy) e.miejsce.y += kSumy;
    dolStrony.elementy += sumyBlokow(QStringLiteral("Razem strona"), Rodzaj::SumaStr, szer);
    dolStrony.wys += kSumy;
    opis.arkusze = {
        {naglowekWydruku(opis.strona, n.firma.wLinii(), QStringLiteral("Lista płac"), zaMiesiac(n)),
         blokPracownika(uzyteSkladniki(wiersze), szer),
         {.rola = Rola::StopkaWydruku,
          .wys = kSumy,
          .elementy = sumyBlokow(QStringLiteral("Razem lista"), Rodzaj::Suma, szer)},
         dolStrony}};
    return opis;
}

OpisWydruku pokwitowania(const NaglowekListyPlac& n) {
    OpisWydruku opis = podstawa(n, u"pokwitowania", QStringLiteral("Pokwitowania"), false);
    // Four slips on a page while their lines leave room, otherwise three.
    constexpr double kNaglowekSlipu = 17, kDolSlipu = 17, kLinia = 3.9;
    const auto linii = static_cast<double>(
        std::max(n.uzywanePlusy.size(), static_cast<qsizetype>(5 + n.uzywaneMinusy.size())));
    const double cztery = opis.strona.wysTresci() / 4, trzy = opis.strona.wysTresci() / 3;
    const double wys = kNaglowekSlipu + linii * kLinia + kDolSlipu <= cztery ? cztery : trzy;
    const double szer = opis.strona.szerTresci(), polowa = szer / 2 - 2;
    Pasmo p{.rola = Rola::Wiersz, .wys = wys};
    QList<Element>& e = p.elementy;
    const auto tekst = [&](Miejsce m, const QString& t, Pismo pismo, Ulozenie u = Ulozenie::Lewo) {
        e.append({.miejsce = m, .tekst = t, .pismo = pismo, .ulozenie = u});
    };
    const auto pole = [&](Miejsce m, int nr, Format f, Pismo pismo, Ulozenie u = Ulozenie::Lewo) {
        e.append(
            {.rodzaj = Rodzaj::Pole, .miejsce = m, .pole = nr, .format = f, .pismo = pismo, .ulozenie = u});
    };
    tekst({0, 2, szer, 3.5}, n.firma.wLinii(), Pismo::Drobne);
    tekst({0, 5.5, 80, 5}, QStringLiteral("Pokwitowanie ") + zaMiesiac(n), Pismo::Podtytul);
    pole({82, 5.5, 12, 5}, Numer, Format::Liczba, Pismo::Wazne, Ulozenie::Prawo);
    pole({96, 5.5, szer - 96, 5}, Osoba, Format::Tekst, Pismo::Podtytul);
    tekst({0, 12, polowa, 4}, QStringLiteral("Wynagrodzenie"), Pismo::Naglowek);
    tekst({polowa + 4, 12, polowa, 4}, QStringLiteral("Odliczenia i potrącenia"), Pismo::Naglowek);
    e.append({.rodzaj = Rodzaj::Linia, .miejsce = {0, 16, szer, 0}});
    const double yLinii = kNaglowekSlipu, wysLinii = wys - kNaglowekSlipu - kDolSlipu;
    pole({0, yLinii, polowa - 24, wysLinii}, SpisNalezne, Format::Tekst, Pismo::Zwykle);
    pole({polowa - 24, yLinii, 24, wysLinii}, SpisKwot, Format::Tekst, Pismo::Zwykle, Ulozenie::Prawo);
    pole({polowa + 4, yLinii, polowa - 24, wysLinii}, SpisPotracane, Format::Tekst, Pismo::Zwykle);
    pole({szer - 24, yLinii, 24, wysLinii}, SpisKwotPotracanych, Format::Tekst, Pismo::Zwykle,
         Ulozenie::Prawo);
    const double d = wys - kDolSlipu;
    e.append({.rodzaj = Rodzaj::Linia, .miejsce = {0, d, szer, 0}});
    tekst({0, d + 0.5, 16, 4}, QStringLiteral("Brutto:"), Pismo::Drobne);
    pole({16, d + 0.5, 24, 4}, Brutto, Format::Kwota, Pismo::Wazne, Ulozenie::Prawo);
    tekst({46, d + 0.5, 22, 4}, QStringLiteral("Przelewem:"), Pismo::Drobne);
    pole({66, d + 0.5, 24, 4}, Przelewem, Format::Kwota, Pismo::Zwykle, Ulozenie::Prawo);
    tekst({96, d + 0.5, 18, 4}, QStringLiteral("Gotówką:"), Pismo::Drobne);
    pole({112, d + 0.5, 24, 4}, Gotowka, Format::Kwota, Pismo::Zwykle, Ulozenie::Prawo);
    tekst({142, d + 0.5, 24, 4}, QStringLiteral("Do wypłaty:"), Pismo::Wazne);
    pole({szer - 28, d + 0.5, 28, 4}, DoWyplaty, Format::Kwota, Pismo::Wazne, Ulozenie::Prawo);
    tekst({0, d + 5, 16, 4}, QStringLiteral("Słownie:"), Pismo::Drobne);
    pole({16, d + 5, szer - 16, 4}, Slownie, Format::Tekst, Pismo::Zwykle);
    dodajDni(e, 0, d + 9.5, 28);
    tekst({szer - 62, d + 9.5, 62, 4},
          QStringLiteral("podpis ....................................................."), Pismo::Drobne,
          Ulozenie::Prawo);
    e.append({.rodzaj = Rodzaj::Przerywana, .miejsce = {0, wys - 0.2, szer, 0}});
    opis.arkusze = {{p}};
    return opis;
}

constexpr OpisWydrukuListy kWydruki[] = {
    {WydrukListy::ListaPlac, u"Lista płac", u"lista-plac"},
    {WydrukListy::Wersja2, u"Lista płac - wersja 2", u"lista-plac-2"},
    {WydrukListy::Wersja3, u"Lista płac - wersja 3", u"lista-plac-3"},
    {WydrukListy::Pokwitowania, u"Pokwitowania", u"pokwitowania"},
    {WydrukListy::Zbiorowka, u"Wydruk zbiorówki", u"zbiorowka"},
};

} // namespace

std::span<const OpisWydrukuListy> wydrukiListy() { return kWydruki; }

std::shared_ptr<const Uklad> UlozWydrukListy(WydrukListy ktory, Otoczenie& otoczenie, const ListaPlac& lista,
                                             QDate dzien, std::optional<qint64> prcId) {
    const auto wiersze = std::make_shared<WierszeListyPlac>(otoczenie, lista, prcId);
    const NaglowekListyPlac& n = wiersze->naglowek();
    switch (ktory) {
    case WydrukListy::ListaPlac:
        return std::make_shared<Uklad>(wersja1(*wiersze, dzien), wiersze);
    case WydrukListy::Wersja2:
        return std::make_shared<Uklad>(wersja2(n, dzien), wiersze);
    case WydrukListy::Wersja3:
        return std::make_shared<Uklad>(wersja3(*wiersze, dzien), wiersze);
    case WydrukListy::Pokwitowania:
        return std::make_shared<Uklad>(pokwitowania(n), wiersze);
    case WydrukListy::Zbiorowka:
        break;
    }
    OpisWydruku opis = podstawa(n, u"zbiorowka", QStringLiteral("Zbiorówka płac"), false);
    const Pasmo dolStrony = StopkaZFirma(opis, n.firma, dzien);
    return UlozZbiorowke(std::move(opis), otoczenie, *wiersze, zaMiesiac(n), dolStrony);
}

} // namespace tornel::reports
