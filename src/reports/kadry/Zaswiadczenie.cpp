#include "common/Slownie.h"
#include "druk/Uklad.h"
#include "reports/kadry/Elementy.h"
#include "reports/kadry/Papiery.h"
#include "rules/Stale.h"
#include <array>

namespace tornel::reports {

namespace {

using Rodzaj = Element::Rodzaj;

/// The amounts of a month. Net is what was left before additions and deductions, so that it leads to the
/// amount paid.
enum KwotaZarobku : int {
    ZaBrutto,
    ZaSkladki,
    ZaZdrowotne,
    ZaZaliczka,
    ZaNetto,
    ZaDodatki,
    ZaPotracenia,
    ZaWyplata,
};
constexpr int kKwotZarobku = ZaWyplata + 1;
using KwotyZarobku = std::array<Waluta, kKwotZarobku>;
constexpr std::pair<QStringView, QStringView> kGlowkaZarobku[kKwotZarobku] = {
    {u"Brutto", u""}, {u"Składki", u"społeczne"}, {u"Ubezp.", u"zdrowotne"}, {u"Zaliczka", u"na podatek"},
    {u"Netto", u""},  {u"Dodatki", u""},          {u"Potrącenia", u""},      {u"Wypłacono", u""},
};

enum PoleZaswiadczenia : int {
    ZsMiejsceIData = kPolOsoby,
    ZsZatrudnienie, ///< the paragraph about the person and the employment
    ZsMiesiac,
    ZsSrednie, ///< the paragraph about sums and averages, in words
    ZsKwota,   ///< of the first column; the others follow
};

KwotyZarobku kwotyZarobku(const SumyPlac& s) {
    KwotyZarobku k{};
    k[ZaBrutto] = s[Brutto];
    k[ZaSkladki] = s[SkladkiPracownika];
    k[ZaZdrowotne] = s[Zdrowotna];
    k[ZaZaliczka] = s[Zaliczka];
    k[ZaNetto] = s[DoWyplaty] - s[Dodatki] + s[Potracenia];
    k[ZaDodatki] = s[Dodatki];
    k[ZaPotracenia] = s[Potracenia];
    k[ZaWyplata] = s[DoWyplaty];
    return k;
}

QString kwotaSlownie(Waluta kwota) {
    const QString slownie = SlownieKwota(kwota);
    return tekstPola(kwota, Format::Kwota) + QStringLiteral(" zł") +
           (slownie.isEmpty() ? QString() : QStringLiteral(" (słownie: %1)").arg(slownie));
}

/// Nothing where the date is not known.
QString zData(QStringView przed, QDate data) {
    return data.isValid() ? przed.toString() + FormatDaty(data) : QString();
}
QString zTekstem(QStringView przed, const QString& tekst) {
    return tekst.isEmpty() ? QString() : przed.toString() + tekst;
}

QString oZatrudnieniu(const DaneOsoby& o, const Firma& firma, QDate dzien) {
    const auto forma = [&](QStringView meska, QStringView zenska) {
        return (o.kobieta ? zenska : meska).toString();
    };
    const bool byly = o.odszedl || (o.zwolniony.isValid() && o.zwolniony < dzien);
    QString imiona = o.imie.trimmed() + QLatin1Char(' ') + o.imie2.trimmed();
    imiona = (imiona.trimmed() + QLatin1Char(' ') + o.nazwisko).trimmed();
    QString t = forma(u"Zaświadcza się, że Pan ", u"Zaświadcza się, że Pani ") + imiona;
    t += zData(forma(u", urodzony dnia ", u", urodzona dnia "), o.dataUrodzenia);
    t += zTekstem(u" w miejscowości ", o.miejsceUrodzenia);
    t += zTekstem(forma(u", zamieszkały: ", u", zamieszkała: "), o.adres);
    t +=
        zTekstem(u", PESEL ", o.pesel) + zTekstem(u", NIP ", o.nip) + zTekstem(u", dowód osobisty ", o.dowod);
    t += byly ? forma(u", był zatrudniony w: ", u", była zatrudniona w: ")
              : forma(u", jest zatrudniony w: ", u", jest zatrudniona w: ");
    t += firma.wLinii();
    t += zData(u", od dnia ", o.zatrudniony) + zData(u" do dnia ", o.zwolniony);
    t += zTekstem(u", na stanowisku: ", o.stanowisko) + zTekstem(u", w wymiarze etatu: ", o.etat);
    if (!byly && o.umowaOd.isValid())
        t += o.umowaDo.isValid()
                 ? QStringLiteral(", na podstawie umowy o pracę zawartej na czas określony do dnia ") +
                       FormatDaty(o.umowaDo)
                 : QStringLiteral(", na podstawie umowy o pracę zawartej na czas nieokreślony");
    return t + QLatin1Char('.');
}

class WierszeZaswiadczen final : public WierszeOsob {
public:
    explicit WierszeZaswiadczen(const ZrodloPapieru& zrodlo)
        : WierszeOsob(zrodlo.osoby), okres_(zrodlo.okres), firma_(FirmaNaWydruku(zrodlo.otoczenie.stale)),
          miejscowosc_(MiejscowoscPism(zrodlo.otoczenie.stale)), dzien_(zrodlo.dzien) {
        const QList<QList<PlacaOsoby>> place = PlaceOsob(zrodlo);
        for (int i = 0; i < place.size(); ++i) {
            QList<std::pair<KwotyZarobku, qint64>> miesiace;
            for (const PlacaOsoby& p : place[i]) miesiace.append({kwotyZarobku(p.sumy), p.wyplat});
            zarobki_.append(miesiace);
            dopisz(i, static_cast<int>(miesiace.size()));
        }
    }

private:
    [[nodiscard]] Wartosc poleOsoby(int osoba, int nr, int pole) const override {
        switch (pole) {
        case ZsMiejsceIData:
            return QString((miejscowosc_.isEmpty() ? QString() : miejscowosc_ + QStringLiteral(", ")) +
                           QStringLiteral("dnia ") + FormatDaty(dzien_));
        case ZsZatrudnienie:
            return oZatrudnieniu(osoby()[osoba], firma_, dzien_);
        case ZsMiesiac:
            return MiesiacSlownie(okres_.od.plus(nr));
        case ZsSrednie:
            return oZarobkach(osoba);
        default:
            return zarobki_.at(osoba).at(nr).first.at(static_cast<std::size_t>(pole - ZsKwota));
        }
    }

    /// The average is that of the months in which something was paid.
    [[nodiscard]] QString oZarobkach(int osoba) const {
        KwotyZarobku razem{};
        int miesiecy = 0;
        for (const auto& [kwoty, wyplat] : zarobki_.at(osoba)) {
            if (wyplat == 0) continue;
            ++miesiecy;
            for (std::size_t i = 0; i < razem.size(); ++i) razem[i] += kwoty[i];
        }
        if (miesiecy == 0) return QStringLiteral("W podanym okresie nie wypłacono wynagrodzenia.");
        const auto srednia = [&](KwotaZarobku k) { return Proporcja(razem[k], 1, miesiecy, 2); };
        return QStringLiteral("Wynagrodzenie brutto razem: %1.\nWynagrodzenie netto razem: %2.\n"
                              "Średnie miesięczne wynagrodzenie z miesięcy, za które je wypłacono (%3): "
                              "brutto %4, netto %5.")
            .arg(kwotaSlownie(razem[ZaBrutto]), kwotaSlownie(razem[ZaNetto]), QString::number(miesiecy),
                 kwotaSlownie(srednia(ZaBrutto)), kwotaSlownie(srednia(ZaNetto)));
    }

    ZakresMiesiecy okres_;
    Firma firma_;
    QString miejscowosc_;
    QDate dzien_;
    QList<QList<std::pair<KwotyZarobku, qint64>>> zarobki_;
};

constexpr double kMiesiacZarobku = 32, kSzerZarobku = 18.5, kWysZarobku = 5;

Pasmo akapitZaswiadczenia(Rola rola, int pole, double szer) {
    constexpr double kWys = 7;
    return {.rola = rola,
            .wys = kWys,
            .elementy = {{.rodzaj = Rodzaj::Akapit,
                          .miejsce = {0, 0, szer, kWys - 3},
                          .pole = pole,
                          .pismo = Pismo::Formularz}}};
}

Pasmo glowkaZaswiadczenia(const Stale& stale, double szer) {
    const Firma firma = FirmaNaWydruku(stale);
    QStringList znaki;
    for (const auto& [napis, tekst] : {std::pair(u"NIP", &stale.NIP), std::pair(u"REGON", &stale.Regon),
                                       std::pair(u"tel.", &stale.Telefon)})
        if (!tekst->trimmed().isEmpty())
            znaki.append(QStringView(napis).toString() + QLatin1Char(' ') + tekst->trimmed());
    constexpr double kLinia = 4.4;
    Pasmo p{.rola = Rola::NaglowekGrupy, .wys = 46, .nowaStrona = true};
    p.elementy = {napisNa({0, 0, szer - 70, kLinia}, firma.nazwa, Pismo::Formularz),
                  napisNa({0, kLinia, szer - 70, kLinia}, firma.adres, Pismo::Formularz),
                  napisNa({0, 2 * kLinia, szer - 70, kLinia}, znaki.join(QStringLiteral(", "))),
                  poleNa({szer - 68, 0, 68, kLinia}, ZsMiejsceIData, Pismo::Formularz, Ulozenie::Prawo),
                  napisNa({0, 25, szer, 8}, QStringLiteral("Zaświadczenie"), Pismo::Tytul, Ulozenie::Srodek),
                  napisNa({0, 33, szer, 5}, QStringLiteral("o zatrudnieniu i zarobkach"), Pismo::Podtytul,
                          Ulozenie::Srodek)};
    return p;
}

/// The table's head on top of the months, again where they go on to another page.
Pasmo glowkaZarobkow(const QString& okres, double szer) {
    constexpr double kWys = 9, kY = 7;
    Pasmo p{.rola = Rola::NaglowekGrupy, .wys = kY + kWys, .powtarzaj = true};
    p.elementy = {napisNa({0, 0, szer - 75, 5},
                          QStringLiteral("Wynagrodzenie za okres ") + okres + QStringLiteral(", zł:"),
                          Pismo::Formularz),
                  poleNa({szer - 74, 0, 74, 5}, OsNazwisko, Pismo::Wazne, Ulozenie::Prawo),
                  {.rodzaj = Rodzaj::Ramka, .miejsce = {0, kY, kMiesiacZarobku, kWys}},
                  napisNa({0, kY, kMiesiacZarobku, kWys}, QStringLiteral("Miesiąc"), Pismo::Naglowek,
                          Ulozenie::Srodek)};
    double x = kMiesiacZarobku;
    for (const auto& [gora, dol] : kGlowkaZarobku) {
        p.elementy.append({.rodzaj = Rodzaj::Ramka, .miejsce = {x, kY, kSzerZarobku, kWys}});
        p.elementy.append(napisNa({x, kY + (dol.isEmpty() ? kWys / 4 : 0.3), kSzerZarobku, kWys / 2},
                                  gora.toString(), Pismo::Naglowek, Ulozenie::Srodek));
        if (!dol.isEmpty())
            p.elementy.append(napisNa({x, kY + kWys / 2 - 0.3, kSzerZarobku, kWys / 2}, dol.toString(),
                                      Pismo::Naglowek, Ulozenie::Srodek));
        x += kSzerZarobku;
    }
    return p;
}

/// A line of the table: the month and its amounts, or their sums.
Pasmo liniaZarobkow(Rola rola) {
    const bool sumy = rola == Rola::StopkaGrupy;
    QList<double> szerokosci{kMiesiacZarobku};
    szerokosci.append(QList<double>(kKwotZarobku, kSzerZarobku));
    Pasmo p{.rola = rola, .wys = sumy ? kWysZarobku + 6 : kWysZarobku};
    p.elementy = linieKolumn(szerokosci, kWysZarobku);
    p.elementy.append(
        sumy ? napisNa({1, 0, kMiesiacZarobku - 2, kWysZarobku}, QStringLiteral("Razem"), Pismo::Wazne)
             : poleNa({1, 0, kMiesiacZarobku - 2, kWysZarobku}, ZsMiesiac));
    double x = kMiesiacZarobku;
    for (int i = 0; i < kKwotZarobku; ++i, x += kSzerZarobku)
        p.elementy.append({.rodzaj = sumy ? Rodzaj::Suma : Rodzaj::Pole,
                           .miejsce = {x + 0.8, 0, kSzerZarobku - 1.6, kWysZarobku},
                           .pole = ZsKwota + i,
                           .format = Format::Kwota,
                           .pismo = sumy ? Pismo::Wazne : Pismo::Zwykle,
                           .ulozenie = Ulozenie::Prawo});
    p.elementy.append({.rodzaj = Rodzaj::Linia, .miejsce = {0, kWysZarobku, x, 0}});
    return p;
}

Pasmo podpisyZaswiadczenia(double szer) {
    Pasmo p{.rola = Rola::StopkaGrupy, .wys = 22 + kWysPodpisow};
    p.elementy =
        podpisy(szer, 22, {QStringLiteral("sporządził(a)"), QStringLiteral("pieczęć i podpis pracodawcy")});
    p.elementy.append(napisNa(
        {0, 4, szer, 5},
        QStringLiteral("Zaświadczenie wydaje się na prośbę osoby zainteresowanej w celu przedłożenia w:"),
        Pismo::Formularz));
    p.elementy.append(napisNa({0, 12, szer, 5}, QString(195, u'.'), Pismo::Formularz));
    return p;
}

} // namespace

Papier Zaswiadczenie(const ZrodloPapieru& zrodlo) {
    const QString okres = zrodlo.okres.napis();
    OpisWydruku opis =
        NowyOpis(zrodlo.nazwa, QStringLiteral("Zaświadczenie o zatrudnieniu i zarobkach, ") + okres, false);
    constexpr double kLewy = 15, kSzer = kMiesiacZarobku + kKwotZarobku * kSzerZarobku;
    opis.strona = {false, kLewy, opis.strona.szer() - kLewy - kSzer, 15, 8};
    opis.grupy = {OsNumer};
    opis.arkusze = {{glowkaZaswiadczenia(zrodlo.otoczenie.stale, kSzer),
                     akapitZaswiadczenia(Rola::NaglowekGrupy, ZsZatrudnienie, kSzer),
                     glowkaZarobkow(okres, kSzer), liniaZarobkow(Rola::Wiersz),
                     liniaZarobkow(Rola::StopkaGrupy),
                     akapitZaswiadczenia(Rola::StopkaGrupy, ZsSrednie, kSzer), podpisyZaswiadczenia(kSzer),
                     StopkaZFirma(opis, FirmaNaWydruku(zrodlo.otoczenie.stale), zrodlo.dzien)}};
    opis.nazwyPol = {QStringLiteral("Nr"),
                     QStringLiteral("Nazwisko i imiona"),
                     {},
                     {},
                     {},
                     {},
                     QStringLiteral("Miesiąc"),
                     {}};
    for (const auto& [gora, dol] : kGlowkaZarobku)
        opis.nazwyPol.append((gora.toString() + QLatin1Char(' ') + dol.toString()).trimmed());
    opis.brakWierszy = QStringLiteral("Nie wybrano pracowników.");
    return std::make_shared<Uklad>(std::move(opis), std::make_shared<WierszeZaswiadczen>(zrodlo));
}

} // namespace tornel::reports
