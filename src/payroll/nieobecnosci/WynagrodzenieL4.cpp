#include "payroll/nieobecnosci/WynagrodzenieL4.h"
#include "common/Blad.h"
#include "payroll/nieobecnosci/PodstawySrednich.h"
#include "rules/Stale.h"
#include <set>

namespace tornel::payroll {

namespace {

constexpr int kDniMiesiaca = 30;      // fixed, whatever the month's length
constexpr int kNajwiecejZwolnien = 4; // components for more do not exist

constexpr const char16_t* kPlacyNieZmieniono =
    u" odpowiadający płacy zasadniczej jest nieaktywny. Zmiana nie została dokonana.";
constexpr const char16_t* kPremiiNieZmieniono =
    u" odpowiadający premii procentowej jest nieaktywny. Zmiana nie została dokonana.";
constexpr const char16_t* kL4NieZapisano =
    u" odpowiadający wynagrodzeniu za L-4 jest nieaktywny. Kwota za L-4 nie została zaopisana.";

Uwaga nieaktywny(int nr, const char16_t* dalej) {
    return {QStringLiteral("Składnik nr ") + QString::number(nr) + QString::fromUtf16(dalej)};
}

Waluta bezSkladek(Waluta brutto, Stawka fe, Stawka fr, Stawka fc) {
    return brutto - Procent(brutto, fe) - Procent(brutto, fr) - Procent(brutto, fc);
}

bool maDzien(const Nieobecnosc& n, RokMies miesiac) {
    return n.data_do >= miesiac.pierwszyDzien() && n.Data <= std::min(n.data_do, miesiac.ostatniDzien());
}

} // namespace

int IleDotDniL4(Nieobecnosci zwolnieniaRoku, RokMies miesiac) {
    const QDate pierwszy = miesiac.pierwszyDzien();
    qint64 dni = 0;
    // Deliberate: the start is not cut at 1 January. An imported leave that ends before it begins has no day
    // and must not give any back.
    for (const Nieobecnosc& n : zwolnieniaRoku)
        if (n.data_do >= PierwszyDzien(miesiac.rok, 1) && n.Data < pierwszy && n.Data <= n.data_do)
            dni += n.Data.daysTo(std::min(n.data_do.addDays(1), pierwszy));
    return static_cast<int>(dni);
}

bool SaZwolnieniaMiesiaca(Nieobecnosci zwolnieniaRoku, RokMies miesiac) {
    return std::ranges::any_of(zwolnieniaRoku, [&](const Nieobecnosc& n) { return maDzien(n, miesiac); });
}

SrednieL4 SredniaDoL4(const QList<PodstawaL4>& podstawy) {
    SrednieL4 wynik;
    if (podstawy.isEmpty()) return wynik;
    Waluta brutto, netto;
    for (const PodstawaL4& m : podstawy) {
        const Waluta poSkladkach = bezSkladek(m.skladniki, m.wsk_feprc, m.wsk_frprc, m.wsk_fcprc);
        wynik.miesiace.append({m.miesiac, m.skladniki, poSkladkach});
        brutto += m.skladniki;
        netto += poSkladkach;
    }
    wynik.SredniaBrutto = Proporcja(brutto, 1, podstawy.size(), 2);
    wynik.SredniaNetto = Proporcja(netto, 1, podstawy.size(), 2);
    return wynik;
}

SrednieL4 PoprawionaSrednia(SrednieL4 srednie, std::optional<Waluta> zostawiona, const WierszPlac& w) {
    const Waluta srednia = zostawiona.value_or(Waluta{});
    if (srednia == srednie.SredniaBrutto) return srednie; // so the row comes out as in a batch
    srednie.SredniaBrutto = srednia;
    srednie.SredniaNetto =
        Round(bezSkladek(srednia, Stawka(w.wsk_feprc), Stawka(w.wsk_frprc), Stawka(w.wsk_fcprc)), 2);
    return srednie;
}

namespace {

/// A leave's days in the month, with its part of each payer.
struct CzescZwolnienia {
    QDate od, dokad;
    Stawka st_proc;
    int dniPracodawcy = 0;
    int dniZUS = 0;
};

struct PodzialL4 {
    std::vector<CzescZwolnienia> zwolnienia; ///< those that have components
    int dniMies = 0;
    int dniZUS = 0;
    int zaWiele = 0; ///< leaves beyond them; their days are counted nowhere, deliberately
};

PodzialL4 podzielL4(const MiesiacPlac& miesiac, Nieobecnosci zwolnieniaRoku) {
    PodzialL4 p;
    const int uzyte = IleDotDniL4(zwolnieniaRoku, miesiac.rm);
    for (const Nieobecnosc& n : zwolnieniaRoku) {
        if (!maDzien(n, miesiac.rm)) continue;
        if (p.zwolnienia.size() == kNajwiecejZwolnien) {
            ++p.zaWiele;
            continue;
        }
        CzescZwolnienia z{std::max(n.Data, miesiac.rm.pierwszyDzien()),
                          std::min(n.data_do, miesiac.rm.ostatniDzien()), n.st_proc};
        const int dni = static_cast<int>(z.od.daysTo(z.dokad)) + 1;
        z.dniPracodawcy = std::clamp(miesiac.stale.L4Pracod - uzyte - p.dniMies, 0, dni);
        z.dniZUS = dni - z.dniPracodawcy;
        p.dniMies += dni;
        p.dniZUS += z.dniZUS;
        p.zwolnienia.push_back(z);
    }
    return p;
}

/// Writes the amounts of the leaves to their components.
class ZapisL4 {
public:
    ZapisL4(const MiesiacPlac& miesiac, WynikL4& wynik) : m_(miesiac), wynik_(wynik) {}

    void wpisz(int nr, Waluta kwota, QDate od, QDate dokad) {
        // Deliberate: number 30 takes nothing either.
        if (nr <= 0 || nr >= 30) {
            if (!kwota.zero())
                wynik_.uwagi.append({QStringLiteral("Kwota za L-4 od %1 do %2 nie została zapisana: stałe "
                                                    "programu nie podają dla niej składnika.")
                                         .arg(FormatDaty(od), FormatDaty(dokad))});
        } else if (!m_.aktywny(nr)) {
            wynik_.uwagi.append(nieaktywny(nr, kL4NieZapisano));
        } else {
            if (!zapisane_.insert(nr).second && !wynik_.skladniki.sp(nr).zero())
                wynik_.uwagi.append({QStringLiteral("Składnik nr %1 jest podany dla kilku zwolnień: zapisana "
                                                    "jest w nim tylko kwota za L-4 od %2 do %3.")
                                         .arg(nr)
                                         .arg(FormatDaty(od), FormatDaty(dokad))});
            wynik_.skladniki.wpisz(nr, kwota, od, dokad);
        }
    }

private:
    const MiesiacPlac& m_;
    WynikL4& wynik_;
    std::set<int> zapisane_;
};

void wycenL4(const MiesiacPlac& miesiac, const PodzialL4& podzial, Waluta dzienna, WynikL4& wynik) {
    ZapisL4 zapis(miesiac, wynik);
    std::size_t k = 0;
    for (std::size_t j = 0; j < podzial.zwolnienia.size(); ++j) {
        const CzescZwolnienia& z = podzial.zwolnienia[j];
        const auto zaDni = [&](int ile) { return Procent(Proporcja(dzienna, ile, 1), z.st_proc); };
        const Waluta kwotaP = zaDni(z.dniPracodawcy);
        if (z.dniZUS == 0 || kwotaP > Waluta{})
            zapis.wpisz(miesiac.stale.L4Prd[j], kwotaP, z.od, z.od.addDays(z.dniPracodawcy - 1));
        if (z.dniZUS > 0) {
            const Waluta kwotaZ = zaDni(z.dniZUS);
            zapis.wpisz(miesiac.stale.L4ZUS[k++], kwotaZ, z.od.addDays(z.dniPracodawcy), z.dokad);
            wynik.ZasilekChorobowy += kwotaZ;
        }
    }
    for (int i = 0; i < podzial.zaWiele; ++i)
        wynik.uwagi.append({QStringLiteral(
            "Zwolnień jest więcej niż 4 i brak składników do wpisania kolejnych kwot za L-4")});
}

Waluta zasadniczaPoL4(const MiesiacPlac& miesiac, const DniWiersza& dni, Waluta placa, const DaneL4& dane,
                      int dniMies) {
    // By the stored value; the captions on the screen of constants tell another order.
    switch (miesiac.stale.SposobStZasL4) {
    case 0:
        return Proporcja(placa, kDniMiesiaca - dniMies, kDniMiesiaca, 2);
    case 1:
        return Proporcja(dane.srednie.SredniaBrutto, kDniMiesiaca - dniMies, kDniMiesiaca, 2);
    case 2:
        if (dane.dniObowiazku == 0)
            throw Blad(QStringLiteral(
                           "Nie można przeliczyć płacy zasadniczej po L-4: dzielenie przez zero, w miesiącu "
                           "%1 nie ma dnia, w którym należało pracować.")
                           .arg(miesiac.rm.napis()));
        return Proporcja(placa, dni.przepracowane(), dane.dniObowiazku, 2);
    default:
        return Round(placa, 2);
    }
}

void przeliczPlacePoL4(const MiesiacPlac& miesiac, const WierszPlac& w, const DanePracownika& p,
                       const DaneL4& dane, const Odpowiedzi& odpowiedzi, WynikL4& wynik) {
    const int nrPlacy = miesiac.stale.PlZas, nrPremii = miesiac.stale.PremPr;
    if (nrPlacy != 0 && odpowiedzi.ma(Pytanie::ZasadniczaPoL4)) {
        if (!miesiac.aktywny(nrPlacy))
            wynik.uwagi.append(nieaktywny(nrPlacy, kPlacyNieZmieniono));
        else
            wynik.skladniki.sp(nrPlacy) = zasadniczaPoL4(miesiac, w.dni, p.placa_zas, dane, wynik.dniMies);
    }
    // The bonus follows the base salary of the row, and is left alone where that is out of use.
    if (nrPremii == 0 || (nrPlacy != 0 && !miesiac.aktywny(nrPlacy)) || !odpowiedzi.ma(Pytanie::PremiaPoL4))
        return;
    if (!miesiac.aktywny(nrPremii)) {
        wynik.uwagi.append(nieaktywny(nrPremii, kPremiiNieZmieniono));
        return;
    }
    const Waluta placa = nrPlacy == 0 ? p.placa_zas : wynik.skladniki.sp(nrPlacy);
    wynik.skladniki.sp(nrPremii) = Procent(placa, Stawka(p.Premia_pr));
}

} // namespace

bool PlaciUbezpieczyciel(const MiesiacPlac& miesiac, Nieobecnosci zwolnieniaRoku) {
    return podzielL4(miesiac, zwolnieniaRoku).dniZUS > 0;
}

WynikL4 WyliczL4(const MiesiacPlac& miesiac, const WierszPlac& w, const DanePracownika& p, const DaneL4& dane,
                 const Odpowiedzi& odpowiedzi) {
    const PodzialL4 podzial = podzielL4(miesiac, dane.zwolnieniaRoku);
    WynikL4 wynik{w.skladniki, podzial.dniMies, podzial.dniZUS, {}, {}};
    wycenL4(miesiac, podzial, Proporcja(dane.srednie.SredniaNetto, 1, kDniMiesiaca, 2), wynik);
    przeliczPlacePoL4(miesiac, w, p, dane, odpowiedzi, wynik);
    return wynik;
}

} // namespace tornel::payroll
