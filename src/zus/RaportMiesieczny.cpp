#include "zus/RaportMiesieczny.h"
#include "payroll/nieobecnosci/DaneNieobecnosci.h"
#include "payroll/nieobecnosci/LiczenieDni.h"
#include "rules/Stale.h"
#include "store/Zapytanie.h"
#include <algorithm>

namespace tornel::zus {

using schemat::PLA;
using schemat::PLB;
using schemat::SDO;
using schemat::SM;
using schemat::SOD;
using schemat::SP;
using schemat::URL;
using schemat::UZL;

RaportMiesieczny::RaportMiesieczny(Otoczenie& otoczenie, KodKedu kod, const ZamowionyRaport& raport,
                                   const OkresZlecen& zlecenia)
    : sesja_(otoczenie.sesja), stale_(otoczenie.stale), rm_(raport.miesiac),
      identyfikator_(raport.identyfikator), miesiac_(otoczenie.sesja, raport.miesiac) {
    // Today's flags, not those that the month has kept.
    katalog_.WczytajSkladnikiPlac(sesja_);
    if (kod == KodKedu::RNA) dniObowiazku_ = dniObowiazku();
    if (kod == KodKedu::RZA) czytajZlecenia(zlecenia);
    if (kod == KodKedu::RSA) czytajPrzerwy();
}

int RaportMiesieczny::dniObowiazku() const {
    // By the general calendar, whatever was answered to the question about it: deliberate.
    return DniObowiazkuPracy(rm_, DaneNieobecnosci(sesja_).kalendarz(0, rm_.rok, rm_.mies));
}

void RaportMiesieczny::czytajZlecenia(const OkresZlecen& zlecenia) {
    if (!zlecenia.od.isValid() || !zlecenia.dokad.isValid()) return;
    PrzygotowaneZapytanie umowy(
        sesja_.cnPlace,
        Zapytanie(UZL)
            .kolumny(UZL("prc_id"), UZL("Brutto"), UZL("Feprc"), UZL("Frprc"), UZL("FcPrc"), UZL("Ubzdr"))
            .gdzie(UZL("data_wyp") >= zlecenia.od && UZL("data_wyp") <= zlecenia.dokad));
    for (auto u = umowy.uruchom(); u.nastepny();) {
        SumyZlecen& suma = zlecenia_[u.liczba(UZL("prc_id"))];
        suma.podstawa +=
            u.kwota(UZL("Brutto")) - u.kwota(UZL("Feprc")) - u.kwota(UZL("Frprc")) - u.kwota(UZL("FcPrc"));
        suma.skladka += u.kwota(UZL("Ubzdr"));
    }
}

void RaportMiesieczny::czytajPrzerwy() {
    if (!jestMiesiac()) return;
    const QDate pierwszy = rm_.pierwszyDzien(), ostatni = rm_.ostatniDzien();
    PrzygotowaneZapytanie rejestr(sesja_.cnPlace,
                                  Zapytanie(URL)
                                      .kolumny(URL("prc_id"), URL("kodswprz"), URL("Data"), URL("data_do"))
                                      .gdzie(URL("Data") <= ostatni && URL("data_do") >= pierwszy)
                                      .wedlug(URL("prc_id"), URL("Data"), URL("data_do")));
    for (auto u = rejestr.uruchom(); u.nastepny();) {
        const QString kod = u.tekst(URL("kodswprz"));
        if (kod.trimmed().isEmpty()) continue;
        przerwy_[u.liczba(URL("prc_id"))].append({kod, std::max(u.data(URL("Data")), pierwszy),
                                                  std::min(u.data(URL("data_do")), ostatni), Waluta{}});
    }
}

void RaportMiesieczny::dodajSkladniki(DaneRaportu& d, Wiersz s) const {
    for (int n = 1; n <= kDodatnich; ++n) {
        const Skladnik& skladnik = katalog_.dodatni(n);
        if (!skladnik.akt) continue;
        const Waluta kwota = s.kwota(SP(n));
        if (skladnik.zus) d.BaseZus += kwota;
        if (skladnik.ubzdr) d.BaseZdr += kwota;
        if (n == stale_.Zas_rodz) d.Rodzinne += kwota;
        if (n == stale_.Zas_wych) d.Wychowawcze += kwota;
        if (n == stale_.Zas_piel) d.Pielegnacyjne += kwota;
    }
    for (int n = 1; n <= kUjemnych; ++n) {
        const Skladnik& skladnik = katalog_.ujemny(n);
        if (!skladnik.akt) continue;
        const Waluta kwota = s.kwota(SM(n));
        if (skladnik.zus) d.BaseZus -= kwota;
        if (skladnik.ubzdr) d.BaseZdr -= kwota;
    }
}

void RaportMiesieczny::dodajWpisy(DaneRaportu& d, Wiersz s, std::optional<Wiersz> daty) const {
    for (int n = 1; n <= kDodatnich && d.wpisow < static_cast<int>(kWpisowRNA); ++n) {
        const Skladnik& skladnik = katalog_.dodatni(n);
        const Waluta kwota = s.kwota(SP(n));
        if (!skladnik.akt || kwota.zero()) continue;
        d.wpisy[static_cast<std::size_t>(d.wpisow++)] = {skladnik.kodZUS, daty ? daty->data(SOD(n)) : QDate(),
                                                         daty ? daty->data(SDO(n)) : QDate(), kwota};
        d.sumaWpisow += kwota;
    }
}

namespace {

/// The rows of an employee by their list symbols.
QList<Wiersz> wierszeOsoby(const Recordset& pla, qint64 prcId) {
    QList<Wiersz> wiersze;
    for (const Zakladka z : pla.wiersze(prcId)) wiersze.append(Wiersz(pla, z));
    if (wiersze.size() > 1)
        std::ranges::stable_sort(wiersze, {}, [](const Wiersz& w) { return w.tekst(PLA("LISTA")); });
    return wiersze;
}

void dodajPLB(DaneRaportu& d, Wiersz b) {
    static constexpr std::pair<Waluta DaneRaportu::*, Kolumna> kSumy[] = {
        {&DaneRaportu::Feprd, PLB("FEPRD")}, {&DaneRaportu::Frprd, PLB("FRPRD")},
        {&DaneRaportu::fwprd, PLB("FWPRD")}, {&DaneRaportu::Feprc, PLB("FEPRC")},
        {&DaneRaportu::Frprc, PLB("FRPRC")}, {&DaneRaportu::FcPrc, PLB("FCPRC")},
        {&DaneRaportu::Ubzdr, PLB("UBZDR")},
    };
    for (const auto& [pole, kolumna] : kSumy) d.*pole += b.kwota(kolumna);
    d.BaseZdr -= b.kwota(PLB("FEPRC")) + b.kwota(PLB("FRPRC")) + b.kwota(PLB("FCPRC"));
    d.podstawaZdr -= b.kwota(PLB("FEPRC")) + b.kwota(PLB("FRPRC")) + b.kwota(PLB("FCPRC"));
    d.skladkaZdr += b.kwota(PLB("UBZDR"));
    d.Ppe += b.kwota(PLB("PPE")) - b.kwota(PLB("ZUS_PPE"));
    d.dni +=
        static_cast<int>(b.liczba(PLB("DNI_UWYP")) + b.liczba(PLB("DN_UOK")) + b.liczba(PLB("DN_UOPDZI")));
}

void dodajPLA(DaneRaportu& d, Wiersz a) {
    if (!d.jest) {
        d.jest = true;
        d.nazwisko = a.tekst(PLA("NAZ"));
        d.imie = a.tekst(PLA("IMIE"));
    }
    d.podstawaZdr += a.kwota(PLA("BRUTTO"));
    d.zRodz += static_cast<int>(a.liczba(PLA("IL_Z_RODZ")));
    d.zPiel += static_cast<int>(a.liczba(PLA("IL_Z_PIEL")));
    d.dni += static_cast<int>(a.liczba(PLA("DN_RO")) + a.liczba(PLA("DN_SO")) + a.liczba(PLA("DN_NI")));
}

} // namespace

DaneRaportu RaportMiesieczny::dane(qint64 prcId) const {
    DaneRaportu d;
    d.identyfikator = identyfikator_;
    d.dniObowiazku = dniObowiazku_;
    if (!jestMiesiac()) return d;
    for (const Wiersz a : wierszeOsoby(sesja_.rsPLA, prcId)) {
        const QString lista = a.tekst(PLA("LISTA"));
        dodajPLA(d, a);
        if (const auto b = sesja_.rsPLB.szukaj(prcId, lista)) dodajPLB(d, *b);
        if (const auto s = sesja_.rsPLS.szukaj(prcId, lista)) {
            dodajSkladniki(d, *s);
            dodajWpisy(d, *s, sesja_.rsPLD.szukaj(prcId, lista));
        }
    }
    const SumyZlecen zlecenia = zlecenia_.value(prcId);
    d.podstawaZdr += zlecenia.podstawa;
    d.skladkaZdr += zlecenia.skladka;
    d.skladki = d.Feprc + d.Frprc + d.FcPrc + d.Ubzdr + d.Feprd + d.Frprd + d.fwprd;
    d.zasilki = d.Rodzinne + d.Wychowawcze + d.Pielegnacyjne;
    return d;
}

QList<WpisSwiadczenia> RaportMiesieczny::przerwy(qint64 prcId) const {
    QList<WpisSwiadczenia> wynik;
    if (!jestMiesiac()) return wynik;
    for (const Wiersz a : wierszeOsoby(sesja_.rsPLA, prcId)) {
        const QString lista = a.tekst(PLA("LISTA"));
        const auto s = sesja_.rsPLS.szukaj(prcId, lista);
        const auto daty = sesja_.rsPLD.szukaj(prcId, lista);
        for (int n = 1; s && n <= kDodatnich; ++n) {
            const Skladnik& skladnik = katalog_.dodatni(n);
            const Waluta kwota = s->kwota(SP(n));
            if (skladnik.akt && !kwota.zero() && !skladnik.kodSwPrz.trimmed().isEmpty())
                wynik.append({skladnik.kodSwPrz, daty ? daty->data(SOD(n)) : QDate(),
                              daty ? daty->data(SDO(n)) : QDate(), kwota});
        }
    }
    return wynik + przerwy_.value(prcId);
}

} // namespace tornel::zus
