#include "zus/RozliczenieDRA.h"
#include "common/Blad.h"
#include "common/Rozmowa.h"
#include "payroll/miesiace/Miesiace.h"
#include "rules/SkladnikiPlac.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"
#include "zus/RaportMiesieczny.h"
#include <algorithm>
#include <set>
#include <utility>
#include <vector>

namespace tornel::zus {

using schemat::PLA;
using schemat::PLACE;
using schemat::PLB;
using schemat::PLS;
using schemat::ZUS;

namespace {

constexpr int kSkladnikow = 30;

/// The amounts of a settlement by their columns.
constexpr std::pair<Waluta SumyDRA::*, Kolumna> kKwotyDRA[] = {
    {&SumyDRA::Feprd, ZUS("Feprd")},
    {&SumyDRA::Feprc, ZUS("Feprc")},
    {&SumyDRA::Frprd, ZUS("Frprd")},
    {&SumyDRA::Frprc, ZUS("Frprc")},
    {&SumyDRA::FcPrc, ZUS("FcPrc")},
    {&SumyDRA::fwprd, ZUS("fwprd")},
    {&SumyDRA::swiad_fc, ZUS("swiad_fc")},
    {&SumyDRA::swiad_fw, ZUS("swiad_fw")},
    {&SumyDRA::swiad_bp, ZUS("swiad_bp")},
    {&SumyDRA::Ubzdr, ZUS("Ubzdr")},
    {&SumyDRA::Fp, ZUS("Fp")},
    {&SumyDRA::Fgsp, ZUS("Fgsp")},
};

constexpr std::pair<Waluta SumyDRA::*, Kolumna> kZListyPlb[] = {
    {&SumyDRA::Feprd, PLB("FEPRD")}, {&SumyDRA::Feprc, PLB("FEPRC")}, {&SumyDRA::Frprd, PLB("FRPRD")},
    {&SumyDRA::Frprc, PLB("FRPRC")}, {&SumyDRA::FcPrc, PLB("FCPRC")}, {&SumyDRA::fwprd, PLB("FWPRD")},
    {&SumyDRA::Ubzdr, PLB("UBZDR")},
};

SumyDRA sumyWiersza(const Wiersz& w) {
    SumyDRA s;
    s.il_ub = static_cast<int>(w.liczba(ZUS("il_ub")));
    for (const auto& [pole, kolumna] : kKwotyDRA) s.*pole = w.kwota(kolumna);
    return s;
}

KluczDRA kluczWiersza(const Wiersz& w) {
    return {RokMies::zId(w.tekst(ZUS("ROKMIES")).toLongLong()), static_cast<int>(w.liczba(ZUS("ID_DEKL")))};
}

/// The columns of benefits in the month, by who bears them.
struct SwiadczeniaMiesiaca {
    std::vector<std::pair<Waluta SumyDRA::*, Kolumna>> kolumny;

    SwiadczeniaMiesiaca(const Stale& stale, quint32 aktywne) {
        dodaj(&SumyDRA::swiad_fc, stale.FC_zas, aktywne);
        dodaj(&SumyDRA::swiad_fw, stale.FW_zas, aktywne);
        dodaj(&SumyDRA::swiad_bp, stale.BP_zas, aktywne);
    }

private:
    void dodaj(Waluta SumyDRA::*pole, const Stale::Numery<5>& numery, quint32 aktywne) {
        for (const int n : numery)
            if (n >= 1 && n <= kSkladnikow && maBit(aktywne, n)) dodajRaz({pole, schemat::SP(n)});
    }
    /// A number that the constant names twice is one benefit.
    void dodajRaz(const std::pair<Waluta SumyDRA::*, Kolumna>& nowa) {
        for (const auto& [pole, kolumna] : kolumny)
            if (pole == nowa.first && kolumna.nr == nowa.second.nr) return;
        kolumny.push_back(nowa);
    }
};

void wpiszSumy(Recordset& rs, const SumyDRA& s) {
    rs.ustaw(ZUS("il_ub"), s.il_ub);
    for (const auto& [pole, kolumna] : kKwotyDRA) rs.ustaw(kolumna, s.*pole);
    rs.ustaw(ZUS("do_zaplaty"), Wplaty(s).razem());
}

} // namespace

QString KluczDRA::napis() const { return QStringLiteral("%1 nr %2").arg(miesiac.napis()).arg(numer); }

WplatyDRA Wplaty(const SumyDRA& s) {
    return {s.Feprd + s.Feprc + s.Frprd + s.Frprc + s.FcPrc + s.fwprd - s.swiad_fc - s.swiad_fw - s.swiad_bp,
            s.Ubzdr, s.Fp + s.Fgsp};
}

std::optional<SumyDRA> PodsumujDRA(Otoczenie& o, RokMies miesiac, const QString& listy) {
    Sesja& s = o.sesja;
    if (!JestMiesiac(s, miesiac, {"PLA", "PLB", "PLS"})) return std::nullopt;
    const auto liczySie = [&](const QString& lista) {
        // A list without a symbol is chosen as a blank.
        return listy.isEmpty() || listy.contains(lista.isEmpty() ? QStringLiteral(" ") : lista);
    };
    const auto zapytanie = [&](const TabelaDef& tabela, const char* nazwa) {
        return Zapytanie(tabela).zTabel({Sesja::nazwaMiesiaca(nazwa, miesiac)});
    };
    SumyDRA wynik;
    std::set<qint64> osoby;
    PrzygotowaneZapytanie pla(
        s.cnPlace,
        zapytanie(PLA, "PLA").kolumny(PLA("PRC_ID"), PLA("LISTA"), PLA("SKL_FP"), PLA("SKL_FGSP")));
    for (auto w = pla.uruchom(); w.nastepny();) {
        if (!liczySie(w.tekst(PLA("LISTA")))) continue;
        osoby.insert(w.liczba(PLA("PRC_ID")));
        wynik.Fp += w.kwota(PLA("SKL_FP"));
        wynik.Fgsp += w.kwota(PLA("SKL_FGSP"));
    }
    if (osoby.empty()) return std::nullopt;
    wynik.il_ub = static_cast<int>(osoby.size());

    Zapytanie skladki = zapytanie(PLB, "PLB").kolumny(PLB("LISTA"));
    for (const auto& [pole, kolumna] : kZListyPlb) skladki.kolumny(kolumna);
    PrzygotowaneZapytanie plb(s.cnPlace, skladki);
    for (auto w = plb.uruchom(); w.nastepny();)
        if (liczySie(w.tekst(PLB("LISTA"))))
            for (const auto& [pole, kolumna] : kZListyPlb) wynik.*pole += w.kwota(kolumna);

    const auto place = s.rsPLACE.szukaj(FormatRoku(miesiac.rok), FormatMiesiaca(miesiac.mies));
    const SwiadczeniaMiesiaca swiadczenia(
        o.stale, place ? static_cast<quint32>(place->liczba(PLACE("akt_sp"))) : quint32{0});
    if (swiadczenia.kolumny.empty()) return wynik;
    Zapytanie kwoty = zapytanie(PLS, "PLS").kolumny(PLS("LISTA"));
    for (const auto& [pole, kolumna] : swiadczenia.kolumny) kwoty.kolumny(kolumna);
    PrzygotowaneZapytanie pls(s.cnPlace, kwoty);
    for (auto w = pls.uruchom(); w.nastepny();)
        if (liczySie(w.tekst(PLS("LISTA"))))
            for (const auto& [pole, kolumna] : swiadczenia.kolumny) wynik.*pole += w.kwota(kolumna);
    return wynik;
}

RozliczeniaDRA::RozliczeniaDRA(Otoczenie& otoczenie) : o_(otoczenie) {
    rs().Open(o_.sesja.cnPlace);
    rs().Sort({ZUS("ROKMIES"), ZUS("ID_DEKL")});
}

Recordset& RozliczeniaDRA::rs() const { return o_.sesja.rsZUS; }

QList<KluczDRA> RozliczeniaDRA::lista() const {
    QList<KluczDRA> wynik;
    for (const Wiersz w : std::as_const(rs()).wiersze()) wynik.append(kluczWiersza(w));
    return wynik;
}

bool RozliczeniaDRA::zaznacz(const KluczDRA& szukany) {
    for (const Wiersz w : std::as_const(rs()).wiersze()) {
        if (kluczWiersza(w) != szukany) continue;
        rs().Bookmark(w.zakladka());
        return true;
    }
    return false;
}

std::optional<KluczDRA> RozliczeniaDRA::Nowe(RokMies miesiac, const QString& listy, QDate dzis) {
    auto sumy = PodsumujDRA(o_, miesiac, listy);
    if (!sumy) {
        if (!o_.rozmowa.pytanie(QStringLiteral("Nie ma list płac za %1. Czy utworzyć puste rozliczenie ?")
                                    .arg(miesiac.napis())))
            return std::nullopt;
        sumy = SumyDRA{};
    }
    KluczDRA nowy{miesiac, 1};
    const QList<KluczDRA> zajete = lista();
    while (zajete.contains(nowy)) ++nowy.numer;
    try {
        rs().AddNewZero();
        rs().ustaw(ZUS("ROKMIES"), miesiac.klucz());
        rs().ustaw(ZUS("ID_DEKL"), nowy.numer);
        rs().ustawFlage(ZUS("kedu"), false);
        rs().ustaw(ZUS("Listy"), listy);
        rs().ustaw(ZUS("data_wyp"), dzis);
        wpiszSumy(rs(), *sumy);
        rs().UpdateBatch(QStringLiteral("Nowe rozliczenie ZUS DRA za %1").arg(miesiac.napis()));
    } catch (...) {
        rs().CancelBatch();
        throw;
    }
    (void)zaznacz(nowy);
    return nowy;
}

bool RozliczeniaDRA::zapisanaPoliczona() const {
    Recordset plik(ZUS);
    plik.Open(o_.sesja.cnPlace, {},
              {{ZUS("ROKMIES"), Kryterium::Operator::Rowne, rs().tekst(ZUS("ROKMIES"))},
               {ZUS("ID_DEKL"), Kryterium::Operator::Rowne, rs().liczba(ZUS("ID_DEKL"))}});
    return plik.naWierszu() &&
           plik.kwota(ZUS("do_zaplaty")) == Wplaty(sumyWiersza(plik.biezacyWiersz())).razem();
}

void RozliczeniaDRA::Wpisz() {
    const QList<Kolumna> zmienione = rs().zmienioneKolumny();
    const auto jest = [&](Kolumna k) {
        return std::ranges::any_of(zmienione, [k](const Kolumna& z) { return z.nr == k.nr; });
    };
    const bool kwoty = std::ranges::any_of(kKwotyDRA, [&](const auto& k) { return jest(k.second); });
    if (kwoty && !jest(ZUS("do_zaplaty")) && zapisanaPoliczona())
        rs().ustaw(ZUS("do_zaplaty"), Wplaty(sumy()).razem());
    rs().UpdateBatch(QStringLiteral("Zmiana rozliczenia ZUS DRA %1").arg(klucz().napis()));
}

bool RozliczeniaDRA::Usun(const KluczDRA& usuwany) {
    if (!zaznacz(usuwany)) throw Blad(QStringLiteral("Nie ma rozliczenia ZUS DRA %1.").arg(usuwany.napis()));
    if (!o_.rozmowa.pytanieUsuwajace(
            QStringLiteral("Czy na pewno usunąć rozliczenie ZUS DRA %1 ?").arg(usuwany.napis())))
        return false;
    (void)zaznacz(usuwany);
    rs().Delete();
    try {
        rs().UpdateBatch(QStringLiteral("Usunięcie rozliczenia ZUS DRA %1").arg(usuwany.napis()));
    } catch (...) {
        rs().CancelBatch();
        throw;
    }
    return true;
}

SumyDRA RozliczeniaDRA::sumy() const { return sumyWiersza(rs().biezacyWiersz()); }

KluczDRA RozliczeniaDRA::klucz() const { return kluczWiersza(rs().biezacyWiersz()); }

std::optional<SumyDRA> RozliczeniaDRA::dzisiejsze() const {
    return PodsumujDRA(o_, klucz().miesiac, rs().tekst(ZUS("Listy")));
}

QList<KontrolaDRA> RozliczeniaDRA::kontrola() const {
    const RokMies miesiac = klucz().miesiac;
    const RaportMiesieczny raport(o_, KodKedu::RCA, {miesiac, {}}, {});
    if (!raport.jestMiesiac()) return {};
    std::set<qint64> osoby;
    for (const Wiersz w : std::as_const(o_.sesja.rsPLA).wiersze()) osoby.insert(w.liczba(PLA("PRC_ID")));
    DaneRaportu r;
    for (const qint64 prcId : osoby) {
        const DaneRaportu d = raport.dane(prcId);
        for (const auto pole :
             {&DaneRaportu::Feprd, &DaneRaportu::Feprc, &DaneRaportu::Frprd, &DaneRaportu::Frprc,
              &DaneRaportu::FcPrc, &DaneRaportu::fwprd, &DaneRaportu::Ubzdr})
            r.*pole += d.*pole;
    }
    const SumyDRA s = sumy();
    return {
        {u"Emerytalne płatnika", s.Feprd, r.Feprd},
        {u"Emerytalne ubezpieczonych", s.Feprc, r.Feprc},
        {u"Rentowe płatnika", s.Frprd, r.Frprd},
        {u"Rentowe ubezpieczonych", s.Frprc, r.Frprc},
        {u"Chorobowe ubezpieczonych", s.FcPrc, r.FcPrc},
        {u"Wypadkowe płatnika", s.fwprd, r.fwprd},
        {u"Zdrowotne", s.Ubzdr, r.Ubzdr},
    };
}

} // namespace tornel::zus
