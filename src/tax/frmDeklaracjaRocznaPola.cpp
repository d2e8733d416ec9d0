#include "tax/frmDeklaracjaRocznaPola.h"
#include <span>
#include <string>

namespace tornel::tax {

namespace {

constexpr int kZrodel = 10;

/// Fields that are no column, by `Pole::klucz`.
enum KluczPola {
    PoleKolumny,
    RodzajPlatnika,
    KosztyUstawy,
    ZalacznikPitR,
    SumaPrzychodu,
    SumaKosztow,
    SumaDochodu,
    SumaZaliczek,
    WzorPrzedzialu
};

/// The columns of a choice, one of which has the "x".
std::span<const std::string_view> kolumnyWyboru(int klucz) {
    static constexpr std::string_view platnik[] = {"rodzaj_pla1", "rodzaj_pla2"};
    static constexpr std::string_view koszty[] = {"kuz1", "kuz2", "kuz3"};
    static constexpr std::string_view pitR[] = {"pitrtak", "pitrnie"};
    switch (klucz) {
    case RodzajPlatnika:
        return platnik;
    case KosztyUstawy:
        return koszty;
    case ZalacznikPitR:
        return pitR;
    default:
        return {};
    }
}

Kolumna kolumnaTabeli(const TabelaDef& tabela, std::string_view nazwa) {
    const int nr = tabela.numer(nazwa);
    return nr < 0 ? Kolumna{} : tabela.nr(nr);
}

/// Makes the fields of one declaration.
class Pola {
public:
    explicit Pola(Deklaracja ktora) : ktora_(ktora), tabela_(*OpisDeklaracji(ktora).tabela) {}

    [[nodiscard]] Pole pole(std::string_view kolumna, const char16_t* podpis,
                            Rodzaj rodzaj = Rodzaj::Tekst) const {
        return {QStringLiteral("txt") +
                    QString::fromLatin1(kolumna.data(), static_cast<qsizetype>(kolumna.size())),
                QString::fromUtf16(podpis), kolumnaTabeli(tabela_, kolumna), rodzaj};
    }
    [[nodiscard]] static Pole wybor(const char16_t* nazwa, const char16_t* podpis, int klucz,
                                    const QStringList& opisy) {
        Pole p{QString::fromUtf16(nazwa), QString::fromUtf16(podpis), {}, Rodzaj::Wybor};
        p.klucz = klucz;
        for (const QString& opis : opisy) p.pozycje.append({qint64{p.pozycje.size()}, opis});
        return p;
    }

    [[nodiscard]] GrupaPol zrodla(const QString& zakladka) const {
        static constexpr const char16_t* podpisy[kZrodel] = {
            u"1. Wynagrodzenie...",
            u"2. Dniówki obrachunkowe...",
            u"3. Emerytury - renty krajowe",
            u"4. Emerytury - renty zagraniczne",
            u"5. Zasiłki pieniężne z ub. społ...",
            u"6. Należności za pracę wypłac...",
            u"7. Świadczenia wypłaconw z ...",
            u"8. Przychody z niektórych rodz...",
            u"9. Prawa autorskie i inne prawa...",
            u"10. Inne źródła",
        };
        GrupaPol g{QStringLiteral("DOCHODY I ZALICZKI"), {}, 1, zakladka};
        g.naglowki = {QStringLiteral("Przychód"), QStringLiteral("Koszty uz. przych."),
                      QStringLiteral("Dochód"), QStringLiteral("Zaliczka")};
        for (int n = 1; n <= kZrodel; ++n) {
            g.rzedy.append(rzadZrodla(podpisy[n - 1], std::to_string(n)));
            if (n == 1 && tabela_.numer("przy_1a") >= 0) g.rzedy.append(rzadZrodla(u"1a.", "1a"));
        }
        Wiazanie::Rzad razem{QStringLiteral("Razem"), {}};
        static constexpr std::pair<const char16_t*, int> sumy[] = {{u"txtSPRZY", SumaPrzychodu},
                                                                   {u"txtSKUP", SumaKosztow},
                                                                   {u"txtSDOCHOD", SumaDochodu},
                                                                   {u"txtSPOB_ZAL", SumaZaliczek}};
        for (const auto& [nazwa, klucz] : sumy) {
            Pole p{QString::fromUtf16(nazwa), {}, {}, Rodzaj::Kwota, Dostep::Odczyt};
            p.klucz = klucz;
            razem.pola.append(p);
        }
        g.rzedy.append(razem);
        return g;
    }

private:
    [[nodiscard]] Wiazanie::Rzad rzadZrodla(const char16_t* podpis, const std::string& koniec) const {
        Wiazanie::Rzad rzad{QString::fromUtf16(podpis), {}};
        for (const char* seria : {"przy_", "kup_", "dochod_", "pob_zal_"}) {
            const std::string nazwa = seria + koniec;
            // Not every line has costs.
            rzad.pola.append(tabela_.numer(nazwa) >= 0 ? pole(nazwa, u"", Rodzaj::Kwota) : Pole{});
        }
        return rzad;
    }

    Deklaracja ktora_;
    const TabelaDef& tabela_;
};

QList<GrupaPol> grupyOsob(const Pola& p) {
    const QString podatnik = QStringLiteral("Podatnik"), platnik = QStringLiteral("Płatnik");
    return {
        {QStringLiteral("PODATNIK"),
         {p.pole("numer_id", u"NIP:"), p.pole("Nazwisko", u"Nazwisko:"), p.pole("imie1", u"Imię:"),
          p.pole("data_ur", u"Data urodzenia:", Rodzaj::Data), p.pole("us", u"Urząd skarbowy:"),
          p.pole("od_d", u"Okres pracy od:", Rodzaj::Data), p.pole("do_d", u"do:", Rodzaj::Data)},
         2,
         podatnik},
        {QStringLiteral("ADRES PODATNIKA"),
         {p.pole("p_kraj", u"Kraj:"), p.pole("p_woj", u"Województwo:"), p.pole("p_powiat", u"Powiat:"),
          p.pole("p_gmina", u"Gmina:"), p.pole("p_ul", u"Ulica:"), p.pole("p_nr_d", u"Nr domu:"),
          p.pole("p_nr_l", u"Nr lokalu:"), p.pole("p_miejsc", u"Miejscowość:"),
          p.pole("p_kod", u"Kod pocztowy:"), p.pole("p_poczta", u"Poczta:")},
         2,
         podatnik},
        {QStringLiteral("PŁATNIK"),
         {p.pole("Nip", u"NIP:"), p.pole("reg_pes", u"REGON lub PESEL:"), p.pole("Nazwa", u"Nazwa pełna:"),
          p.pole("skrot", u"Nazwa skrócona:"),
          Pola::wybor(u"cboRodzajPla", u"Rodzaj płatnika:", RodzajPlatnika,
                      {QStringLiteral("niebędący osobą fizyczną"), QStringLiteral("osoba fizyczna")})},
         1,
         platnik},
        {QStringLiteral("ADRES PŁATNIKA"),
         {p.pole("kraj", u"Kraj:"), p.pole("woj", u"Województwo:"), p.pole("powiat", u"Powiat:"),
          p.pole("gmina", u"Gmina:"), p.pole("ulica", u"Ulica:"), p.pole("nr_dom", u"Nr domu:"),
          p.pole("nr_lok", u"Nr lokalu:"), p.pole("miejsc", u"Miejscowość:"),
          p.pole("kod_pocz", u"Kod pocztowy:"), p.pole("poczta", u"Poczta:")},
         2,
         platnik},
    };
}

QList<GrupaPol> grupySkladek(const Pola& p, Deklaracja ktora, const QString& zakladka) {
    QList<GrupaPol> wynik{
        {QStringLiteral("SKŁADKI"),
         {p.pole("Skladki", u"Składki na ubezpieczenia społeczne:", Rodzaj::Kwota),
          p.pole("skl_pob", u"Ubezpieczenie zdrowotne - Pobrane:", Rodzaj::Kwota),
          p.pole("skl_odl", u"Ubezpieczenie zdrowotne - Odliczone:", Rodzaj::Kwota)},
         1,
         zakladka},
    };
    GrupaPol wypelnia{QStringLiteral("WYPEŁNIAJĄCY"),
                      {p.pole("Imie", u"Osoba wypełniająca PIT:"), p.pole("Nazw", u""),
                       p.pole("data_wyp", u"Data wypełnienia PIT:", Rodzaj::Data)},
                      1,
                      zakladka};
    if (ktora == Deklaracja::Pit11) {
        wynik.append(
            {QStringLiteral("ZAŁĄCZNIK I KOSZTY"),
             {Pola::wybor(u"cboKuz", u"Koszty uzyskania przychodów:", KosztyUstawy,
                          {QStringLiteral("art. 22 ust. 2 ustawy"), QStringLiteral("art. 22 ust. 2a ustawy"),
                           QStringLiteral("art. 22 ust. 2 i 2a ustawy")}),
              Pola::wybor(u"cboPitR", u"Dołączono załącznik PIT-R:", ZalacznikPitR,
                          {QStringLiteral("tak"), QStringLiteral("nie")})},
             1,
             zakladka});
    }
    wynik.append(wypelnia);
    return wynik;
}

QList<GrupaPol> grupyRozliczenia(const Pola& p) {
    const QString zakladka = QStringLiteral("Rozliczenie");
    QList<Pole> wzory;
    static constexpr const char16_t* podpisy[] = {u"Podatek w przedziale 1:", u"Podatek w przedziale 2:",
                                                  u"Podatek w przedziale 3:"};
    for (int i = 0; i < 3; ++i) {
        Pole wzor{QStringLiteral("txtWzor%1").arg(i + 1), QString::fromUtf16(podpisy[i]), {}};
        wzor.klucz = WzorPrzedzialu + i;
        wzor.opis =
            QStringLiteral("Wzór z dochodem DOCH. Zmiana dotyczy tylko tego rozliczenia, wzory na stałe są "
                           "w stałych programu.");
        wzory.append(wzor);
    }
    return {
        {QStringLiteral("ROZLICZENIE ROKU"),
         {p.pole("doch_odl", u"Dochód po odliczeniu składek:", Rodzaj::Kwota),
          p.pole("podst", u"Podstawa opodatkowania:", Rodzaj::Kwota),
          p.pole("pod_obl", u"Podatek według skali:", Rodzaj::Kwota),
          p.pole("podatek", u"Podatek należny:", Rodzaj::Kwota),
          p.pole("nadplata", u"Nadpłata:", Rodzaj::Kwota), p.pole("doplata", u"Do zapłaty:", Rodzaj::Kwota)},
         1,
         zakladka},
        {QStringLiteral("SKALA PODATKU"), wzory, 1, zakladka},
    };
}

} // namespace

QList<GrupaPol> GrupyDeklaracji(Deklaracja ktora) {
    const Pola p(ktora);
    QList<GrupaPol> wynik{p.zrodla(QStringLiteral("Dochody"))};
    wynik += grupySkladek(p, ktora, QStringLiteral("Składki i podpis"));
    if (ktora == Deklaracja::Pit40) wynik += grupyRozliczenia(p);
    return wynik + grupyOsob(p);
}

Wartosc ZrodloDeklaracji::czytaj(const Pole& pole) const {
    if (!wiersz_.naWierszu()) return Null;
    if (pole.klucz == PoleKolumny) return wiersz_.wartosc(pole.kolumna);
    if (pole.klucz >= WzorPrzedzialu)
        return skala_.wzory.at(static_cast<std::size_t>(pole.klucz - WzorPrzedzialu));
    const WierszDeklaracji d(ktora_, wiersz_);
    if (const auto kolumny = kolumnyWyboru(pole.klucz); !kolumny.empty()) {
        for (std::size_t i = 0; i < kolumny.size(); ++i)
            if (d.tekst(kolumny[i]) == QLatin1String("x")) return static_cast<qint64>(i);
        return Null;
    }
    const SumyZrodel sumy = SumujZrodla(d);
    switch (pole.klucz) {
    case SumaPrzychodu:
        return sumy.SPRZY;
    case SumaKosztow:
        return sumy.SKUP;
    case SumaDochodu:
        return sumy.SDOCHOD;
    default:
        return sumy.SPOB_ZAL;
    }
}

void ZrodloDeklaracji::zapisz(const Pole& pole, const Wartosc& wartosc) {
    if (pole.klucz == PoleKolumny) return wiersz_.ustaw(pole.kolumna, wartosc);
    if (pole.klucz >= WzorPrzedzialu) {
        skala_.wzory.at(static_cast<std::size_t>(pole.klucz - WzorPrzedzialu)) = std::get<QString>(wartosc);
        return;
    }
    const auto* wybrana = std::get_if<qint64>(&wartosc);
    const auto kolumny = kolumnyWyboru(pole.klucz);
    for (std::size_t i = 0; i < kolumny.size(); ++i)
        wiersz_.ustaw(kolumnaTabeli(wiersz_.tabela(), kolumny[i]),
                      QString(wybrana && static_cast<std::size_t>(*wybrana) == i ? u'x' : u' '));
}

} // namespace tornel::tax
