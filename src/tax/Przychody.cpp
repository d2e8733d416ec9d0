#include "tax/Przychody.h"
#include "common/Blad.h"
#include "contracts/SumyUmow.h"
#include "payroll/miesiace/Miesiace.h"
#include "rules/SkladnikiPlac.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"
#include <algorithm>
#include <vector>

namespace tornel::tax {

using schemat::PLA;
using schemat::PLACE;
using schemat::PLB;
using schemat::PLS;

namespace {

constexpr int kDodatnich = 30;
constexpr int kUjemnych = 15;

using KluczWiersza = std::pair<qint64, QString>;

/// Runs a query over a table, for one employee if `prcId` names him.
template <typename Wiersz>
void czytaj(Sesja& sesja, Zapytanie zapytanie, Kolumna numer, std::optional<qint64> prcId, Wiersz wiersz) {
    if (prcId) zapytanie.gdzie(numer == Parametr{0});
    PrzygotowaneZapytanie gotowe(sesja.cnPlace, zapytanie);
    if (prcId)
        for (auto w = gotowe.uruchom(*prcId); w.nastepny();) wiersz(w);
    else
        for (auto w = gotowe.uruchom(); w.nastepny();) wiersz(w);
}

struct SkladkiWiersza {
    Waluta spoleczne, ubzdr, ubzdr_nal;
};

/// The insurance of the month's rows by employee and list.
QHash<KluczWiersza, SkladkiWiersza> skladkiMiesiaca(Sesja& sesja, RokMies miesiac,
                                                    std::optional<qint64> prcId) {
    QHash<KluczWiersza, SkladkiWiersza> wynik;
    const auto pytanie = Zapytanie(PLB)
                             .kolumny(PLB("PRC_ID"), PLB("LISTA"), PLB("FEPRC"), PLB("FRPRC"), PLB("FCPRC"),
                                      PLB("UBZDR"), PLB("UBZDR_NAL"))
                             .zTabel({Sesja::nazwaMiesiaca("PLB", miesiac)});
    czytaj(sesja, pytanie, PLB("PRC_ID"), prcId, [&](const WierszeZapytania& w) {
        wynik.insert({w.liczba(PLB("PRC_ID")), w.tekst(PLB("LISTA"))},
                     {w.kwota(PLB("FEPRC")) + w.kwota(PLB("FRPRC")) + w.kwota(PLB("FCPRC")),
                      w.kwota(PLB("UBZDR")), w.kwota(PLB("UBZDR_NAL"))});
    });
    return wynik;
}

/// The components that make the income of a month: its masks, not those of today's catalogue.
struct SkladnikiPrzychodu {
    std::vector<Kolumna> dodatnie, ujemne;
};

SkladnikiPrzychodu skladnikiMiesiaca(Sesja& sesja, RokMies miesiac) {
    const auto place = sesja.rsPLACE.szukaj(FormatRoku(miesiac.rok), FormatMiesiaca(miesiac.mies));
    const auto maska = [&](Kolumna aktywne, Kolumna brutto) {
        return static_cast<quint32>(place->liczba(aktywne) & place->liczba(brutto));
    };
    const quint32 sp = maska(PLACE("akt_sp"), PLACE("br_sp"));
    const quint32 sm = maska(PLACE("akt_sm"), PLACE("br_sm"));
    SkladnikiPrzychodu wynik;
    for (int i = 1; i <= kDodatnich; ++i)
        if (maBit(sp, i)) wynik.dodatnie.push_back(schemat::SP(i));
    for (int i = 1; i <= kUjemnych; ++i)
        if (maBit(sm, i)) wynik.ujemne.push_back(schemat::SM(i));
    return wynik;
}

void dodajPrzychod(Sesja& sesja, RokMies miesiac, std::optional<qint64> prcId,
                   QHash<qint64, SumyPlac>& sumy) {
    const SkladnikiPrzychodu skladniki = skladnikiMiesiaca(sesja, miesiac);
    Zapytanie pytanie(PLS);
    pytanie.kolumny(PLS("PRC_ID")).zTabel({Sesja::nazwaMiesiaca("PLS", miesiac)});
    for (const Kolumna k : skladniki.dodatnie) pytanie.kolumny(k);
    for (const Kolumna k : skladniki.ujemne) pytanie.kolumny(k);
    czytaj(sesja, pytanie, PLS("PRC_ID"), prcId, [&](const WierszeZapytania& w) {
        Waluta& przychod = sumy[w.liczba(PLS("PRC_ID"))].przychod;
        for (const Kolumna k : skladniki.dodatnie) przychod += w.kwota(k);
        for (const Kolumna k : skladniki.ujemne) przychod -= w.kwota(k);
    });
}

void dodajPodatek(Sesja& sesja, RokMies miesiac, std::optional<qint64> prcId, QHash<qint64, SumyPlac>& sumy) {
    const auto skladki = skladkiMiesiaca(sesja, miesiac, prcId);
    const auto pytanie = Zapytanie(PLA)
                             .kolumny(PLA("PRC_ID"), PLA("LISTA"), PLA("KUP"), PLA("PODATEK"))
                             .zTabel({Sesja::nazwaMiesiaca("PLA", miesiac)});
    czytaj(sesja, pytanie, PLA("PRC_ID"), prcId, [&](const WierszeZapytania& w) {
        const qint64 numer = w.liczba(PLA("PRC_ID"));
        const auto partner = skladki.constFind({numer, w.tekst(PLA("LISTA"))});
        if (partner == skladki.constEnd()) return;
        SumyPlac& s = sumy[numer];
        s.koszty += w.kwota(PLA("KUP"));
        s.zaliczka += w.kwota(PLA("PODATEK"));
        s.skladki += partner->spoleczne;
        s.ubzdr += partner->ubzdr;
        s.ubzdr_nal += partner->ubzdr_nal;
    });
}

QHash<qint64, SumyPlac> sumyPlac(Sesja& sesja, const OkresPodatkowy& okres, std::optional<qint64> prcId) {
    QHash<qint64, SumyPlac> sumy;
    for (RokMies m = okres.od; m <= okres.dokad; m = m.plus(1)) {
        if (!JestMiesiac(sesja, m, {"PLA", "PLB", "PLS"})) continue;
        dodajPrzychod(sesja, m, prcId, sumy);
        dodajPodatek(sesja, m, prcId, sumy);
    }
    return sumy;
}

SumyUmow zKwot(const SumyKwot& k) {
    return {k.brutto, k.koszty, k.podatek, k.feprc + k.frprc + k.fcprc, k.ubzdr};
}

const RodzajUmowy& rodzajTabeli(const TabelaDef& tabela) {
    const auto rodzaj = std::ranges::find(RodzajeUmow(), &tabela, &RodzajUmowy::tabela);
    if (rodzaj == RodzajeUmow().end()) throw Blad(QStringLiteral("Deklaracje nie czytają tej tabeli umów."));
    return *rodzaj;
}

} // namespace

SumyPlac SumyPracownika(Sesja& sesja, const OkresPodatkowy& okres, qint64 prcId) {
    return sumyPlac(sesja, okres, prcId).value(prcId);
}

QHash<qint64, SumyPlac> SumyWszystkich(Sesja& sesja, const OkresPodatkowy& okres) {
    return sumyPlac(sesja, okres, {});
}

std::optional<Wiersz1Pit4> PodsumujMiesiac(Sesja& sesja, RokMies miesiac) {
    const auto skladki = skladkiMiesiaca(sesja, miesiac, {});
    const auto pytanie = Zapytanie(PLA)
                             .kolumny(PLA("PRC_ID"), PLA("LISTA"), PLA("BRUTTO"), PLA("POD_DOCH"))
                             .zTabel({Sesja::nazwaMiesiaca("PLA", miesiac)})
                             .wedlug(PLA("PRC_ID"), PLA("LISTA"));
    std::optional<Wiersz1Pit4> sumy;
    qint64 poprzedni = -1;
    czytaj(sesja, pytanie, PLA("PRC_ID"), {}, [&](const WierszeZapytania& w) {
        if (!sumy) sumy.emplace();
        const qint64 numer = w.liczba(PLA("PRC_ID"));
        const auto partner = skladki.constFind({numer, w.tekst(PLA("LISTA"))});
        if (partner == skladki.constEnd()) return;
        // The lists of one person stand together: he is one taxpayer.
        sumy->podatnikow += numer != poprzedni;
        poprzedni = numer;
        sumy->przychod += w.kwota(PLA("BRUTTO")) - partner->spoleczne;
        sumy->zaliczka += w.kwota(PLA("POD_DOCH"));
        sumy->ubzdr += partner->ubzdr;
    });
    return sumy;
}

KontrolaMiesiaca SprawdzMiesiac(Sesja& sesja, RokMies miesiac, int zaokragl) {
    // Half of the last place that is kept.
    Waluta prog = Waluta::zSurowej(5000);
    for (int i = 0; i < zaokragl; ++i) prog = Waluta::zSurowej(prog.surowa() / 10);
    const auto skladki = skladkiMiesiaca(sesja, miesiac, {});
    const auto pytanie =
        Zapytanie(PLA)
            .kolumny(PLA("PRC_ID"), PLA("LISTA"), PLA("PPD"), PLA("POD_DOCH"), PLA("PODATEK"))
            .zTabel({Sesja::nazwaMiesiaca("PLA", miesiac)});
    KontrolaMiesiaca k;
    czytaj(sesja, pytanie, PLA("PRC_ID"), {}, [&](const WierszeZapytania& w) {
        const auto partner = skladki.constFind({w.liczba(PLA("PRC_ID")), w.tekst(PLA("LISTA"))});
        if (partner == skladki.constEnd()) return;
        const Waluta naliczony = w.kwota(PLA("POD_DOCH")), zaliczka = w.kwota(PLA("PODATEK"));
        const Waluta ulga = std::min(w.kwota(PLA("PPD")), naliczony);
        const Waluta reszta = naliczony - ulga - partner->ubzdr - zaliczka;
        k.naliczony += naliczony;
        k.zaliczka += zaliczka;
        k.ulga += ulga;
        k.ubzdr += partner->ubzdr;
        (reszta <= prog && -reszta <= prog ? k.zaokraglenie : k.niewyjasnione) += reszta;
    });
    return k;
}

SumyUmow& SumyUmow::operator+=(const SumyUmow& b) {
    brutto += b.brutto;
    koszty += b.koszty;
    podatek += b.podatek;
    skladki += b.skladki;
    ubzdr += b.ubzdr;
    return *this;
}

SumyUmow SumujUmowy(Sesja& sesja, const TabelaDef& tabela, const OkresPodatkowy& okres, qint64 prcId) {
    const RodzajUmowy& rodzaj = rodzajTabeli(tabela);
    return zKwot(
        contracts::SumujUmowy(sesja, rodzaj, okres.od.pierwszyDzien(), okres.dokad.ostatniDzien(), prcId)
            .value(prcId));
}

QHash<qint64, SumyUmow> SumujUmowyWszystkich(Sesja& sesja, const TabelaDef& tabela,
                                             const OkresPodatkowy& okres) {
    const auto kwoty = contracts::SumujUmowy(sesja, rodzajTabeli(tabela), okres.od.pierwszyDzien(),
                                             okres.dokad.ostatniDzien());
    QHash<qint64, SumyUmow> sumy;
    for (auto k = kwoty.begin(); k != kwoty.end(); ++k) sumy.insert(k.key(), zKwot(k.value()));
    return sumy;
}

} // namespace tornel::tax
