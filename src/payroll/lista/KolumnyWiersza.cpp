#include "payroll/lista/KolumnyWiersza.h"
#include "common/Blad.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::PLA;
using schemat::PLB;
using schemat::PRACDP;
using schemat::PRACPR;
using schemat::PRACZUS;

namespace kolumnyWiersza {

/// A member of a record with its column.
template <typename Rekord, typename Typ>
struct Para {
    Typ Rekord::*pole;
    Kolumna kolumna;
};
template <typename Typ>
using Wiersza = Para<WierszPlac, Typ>;
template <typename Typ>
using Pracownika = Para<DanePracownika, Typ>;
using Dni = Para<DniWiersza, qint64>;

constexpr Wiersza<Waluta> kKwotyA[] = {
    {&WierszPlac::Brutto, PLA("BRUTTO")},
    {&WierszPlac::Netto, PLA("NETTO")},
    {&WierszPlac::Kup, PLA("KUP")},
    {&WierszPlac::Ppd, PLA("PPD")},
    {&WierszPlac::pod_doch, PLA("POD_DOCH")},
    {&WierszPlac::Podatek, PLA("PODATEK")},
    {&WierszPlac::skl_fp, PLA("SKL_FP")},
    {&WierszPlac::skl_fgsp, PLA("SKL_FGSP")},
    {&WierszPlac::przelewem, PLA("PRZELEWEM")},
    {&WierszPlac::ST_SKL_FP, PLA("ST_SKL_FP")},
    {&WierszPlac::ST_SKLFGSP, PLA("ST_SKLFGSP")},
    {&WierszPlac::Dodatki, PLA("DODATKI")},
    {&WierszPlac::Potracenia, PLA("POTRACENIA")},
    {&WierszPlac::sr_br_zus, PLA("SR_BR_ZUS")},
    {&WierszPlac::do_wyplaty, PLA("DO_WYPLATY")},
};
constexpr Wiersza<Waluta> kKwotyB[] = {
    {&WierszPlac::zus_ppe, PLB("ZUS_PPE")},     {&WierszPlac::PPE, PLB("PPE")},
    {&WierszPlac::WSK_FEPRD, PLB("WSK_FEPRD")}, {&WierszPlac::WSK_FRPRD, PLB("WSK_FRPRD")},
    {&WierszPlac::WSK_FWPRD, PLB("WSK_FWPRD")}, {&WierszPlac::wsk_feprc, PLB("WSK_FEPRC")},
    {&WierszPlac::wsk_frprc, PLB("WSK_FRPRC")}, {&WierszPlac::wsk_fcprc, PLB("WSK_FCPRC")},
    {&WierszPlac::wsk_ubzdr, PLB("WSK_UBZDR")}, {&WierszPlac::Feprd, PLB("FEPRD")},
    {&WierszPlac::Frprd, PLB("FRPRD")},         {&WierszPlac::fwprd, PLB("FWPRD")},
    {&WierszPlac::Feprc, PLB("FEPRC")},         {&WierszPlac::Frprc, PLB("FRPRC")},
    {&WierszPlac::FcPrc, PLB("FCPRC")},         {&WierszPlac::Ubzdr, PLB("UBZDR")},
    {&WierszPlac::ubzdr_nal, PLB("UBZDR_NAL")}, {&WierszPlac::wsk_ubr, PLB("WSK_UBR")},
    {&WierszPlac::UBruttow, PLB("UBRUTTOW")},   {&WierszPlac::sr_br_url, PLB("SR_BR_URL")},
};
constexpr Wiersza<qint64> kLiczbyA[] = {
    {&WierszPlac::st_pd, PLA("ST_PD")},         {&WierszPlac::us_id, PLA("US_ID")},
    {&WierszPlac::etat, PLA("ETAT")},           {&WierszPlac::etat2, PLA("ETAT2")},
    {&WierszPlac::il_z_rodz, PLA("IL_Z_RODZ")}, {&WierszPlac::il_z_piel, PLA("IL_Z_PIEL")},
    {&WierszPlac::il_z_wych, PLA("IL_Z_WYCH")}, {&WierszPlac::dni_l4_zus, PLA("DNI_L4_ZUS")},
    {&WierszPlac::dni_l4_pr, PLA("DNI_L4_PR")},
};
constexpr Wiersza<QString> kTekstyA[] = {{&WierszPlac::Naz, PLA("NAZ")}, {&WierszPlac::Imie, PLA("IMIE")}};
constexpr Dni kDniA[] = {
    {&DniWiersza::dn_pr, PLA("DN_PR")},   {&DniWiersza::dn_url, PLA("DN_URL")},
    {&DniWiersza::dn_zas, PLA("DN_ZAS")}, {&DniWiersza::dn_ro, PLA("DN_RO")},
    {&DniWiersza::dn_so, PLA("DN_SO")},   {&DniWiersza::dn_ni, PLA("DN_NI")},
    {&DniWiersza::dn_inn, PLA("DN_INN")},
};
/// By the kind of vacation in the register, from 0.
constexpr Kolumna kDniRodzajow[] = {PLB("DNI_UWYP"), PLB("DN_UBEZPL"), PLB("DN_UOK"),    PLB("DN_UINNY"),
                                    PLB("DN_UWYCH"), PLB("DN_UOPDZI"), PLB("DN_PRZERWY")};

constexpr Pracownika<Waluta> kKwotyPracy[] = {
    {&DanePracownika::placa_zas, PRACPR("placa_zas")},
    {&DanePracownika::Premia_pr, PRACPR("Premia_pr")},
    {&DanePracownika::Kup, PRACPR("Kup")},
    {&DanePracownika::doch_start, PRACPR("doch_start")},
};
constexpr Pracownika<qint64> kLiczbyPracy[] = {
    {&DanePracownika::prc_id, PRACPR("prc_id")}, {&DanePracownika::gr_pod, PRACPR("gr_pod")},
    {&DanePracownika::us_id, PRACPR("us_id")},   {&DanePracownika::etat, PRACPR("etat")},
    {&DanePracownika::etat2, PRACPR("etat2")},
};
constexpr Pracownika<bool> kFlagiPracy[] = {
    {&DanePracownika::czy_kuz, PRACPR("czy_kuz")},
    {&DanePracownika::czy_ulga, PRACPR("czy_ulga")},
    {&DanePracownika::czy_2progi, PRACPR("czy_2progi")},
};
constexpr Pracownika<Waluta> kKwotyZUS[] = {
    {&DanePracownika::Fp, PRACZUS("Fp")},
    {&DanePracownika::gsp, PRACZUS("gsp")},
    {&DanePracownika::PPE, PRACZUS("PPE")},
    {&DanePracownika::wsk_fe, PRACZUS("wsk_fe")},
    {&DanePracownika::wsk_fr, PRACZUS("wsk_fr")},
    {&DanePracownika::wsk_fc, PRACZUS("wsk_fc")},
    {&DanePracownika::wsk_ubzdr, PRACZUS("wsk_ubzdr")},
};
constexpr Pracownika<qint64> kLiczbyZUS[] = {
    {&DanePracownika::il_z_rodz, PRACZUS("il_z_rodz")},
    {&DanePracownika::il_z_piel, PRACZUS("il_z_piel")},
    {&DanePracownika::il_z_wych, PRACZUS("il_z_wych")},
};

Waluta czytaj(const Wiersz& w, Kolumna k, Waluta) { return w.kwota(k); }
qint64 czytaj(const Wiersz& w, Kolumna k, qint64) { return w.liczba(k); }
bool czytaj(const Wiersz& w, Kolumna k, bool) { return w.flaga(k); }
QString czytaj(const Wiersz& w, Kolumna k, const QString&) { return w.tekst(k); }
QDate czytaj(const Wiersz& w, Kolumna k, QDate) { return w.data(k); }

template <typename Rekord, typename Typ, std::size_t N>
void wczytaj(const Wiersz& wiersz, Rekord& rekord, const Para<Rekord, Typ> (&pary)[N]) {
    for (const Para<Rekord, Typ>& p : pary) rekord.*p.pole = czytaj(wiersz, p.kolumna, Typ{});
}
/// `kolumna(i)` is the column of element i - 1.
template <typename Typ, std::size_t N>
void wczytajSerie(const Wiersz& wiersz, std::array<Typ, N>& seria, Kolumna (*kolumna)(int)) {
    for (std::size_t i = 0; i < N; ++i) seria[i] = czytaj(wiersz, kolumna(static_cast<int>(i) + 1), Typ{});
}
template <typename Rekord, typename Typ, std::size_t N>
void zapisz(Recordset& rs, const Rekord& przedtem, const Rekord& teraz, const Para<Rekord, Typ> (&pary)[N]) {
    for (const Para<Rekord, Typ>& p : pary)
        if (teraz.*p.pole != przedtem.*p.pole) rs.ustaw(p.kolumna, teraz.*p.pole);
}
template <typename Typ, std::size_t N>
void zapiszSerie(Recordset& rs, const std::array<Typ, N>& przedtem, const std::array<Typ, N>& teraz,
                 Kolumna (*kolumna)(int)) {
    for (std::size_t i = 0; i < N; ++i)
        if (teraz[i] != przedtem[i]) rs.ustaw(kolumna(static_cast<int>(i) + 1), teraz[i]);
}
Kolumna dzienRodzaju(int i) { return kDniRodzajow[i - 1]; }

} // namespace kolumnyWiersza

using namespace kolumnyWiersza;

WierszPlac WczytajWiersz(const Sesja& s) {
    const Wiersz pla = s.rsPLA.biezacyWiersz(), plb = s.rsPLB.biezacyWiersz();
    const Wiersz pls = s.rsPLS.biezacyWiersz(), pld = s.rsPLD.biezacyWiersz();
    WierszPlac w;
    w.klucz = {pla.liczba(PLA("PRC_ID")), pla.tekst(PLA("LISTA"))};
    wczytaj(pla, w, kTekstyA);
    wczytaj(pla, w, kLiczbyA);
    wczytaj(pla, w, kKwotyA);
    wczytaj(pla, w.dni, kDniA);
    wczytaj(plb, w, kKwotyB);
    wczytajSerie(plb, w.dni.wgRodzaju, dzienRodzaju);
    wczytajSerie(pls, w.skladniki.SP, schemat::SP);
    wczytajSerie(pls, w.skladniki.SM, schemat::SM);
    wczytajSerie(pld, w.skladniki.SOD, schemat::SOD);
    wczytajSerie(pld, w.skladniki.SDO, schemat::SDO);
    return w;
}

DanePracownika WczytajPracownika(const Sesja& s) {
    const Wiersz pr = s.rsPRACPR.biezacyWiersz();
    DanePracownika p;
    wczytaj(pr, p, kKwotyPracy);
    wczytaj(pr, p, kLiczbyPracy);
    wczytaj(pr, p, kFlagiPracy);
    p.Lista = pr.tekst(PRACPR("Lista"));
    p.umowa_od = pr.data(PRACPR("umowa_od"));
    if (s.rsPRACDP.naWierszu()) {
        p.Naz = s.rsPRACDP.tekst(PRACDP("Naz"));
        p.Imie_1 = s.rsPRACDP.tekst(PRACDP("Imie_1"));
    }
    if (s.rsPRACZUS.naWierszu()) {
        const Wiersz zus = s.rsPRACZUS.biezacyWiersz();
        wczytaj(zus, p, kKwotyZUS);
        wczytaj(zus, p, kLiczbyZUS);
    }
    if (s.rsPRACSK.naWierszu()) {
        const Wiersz sk = s.rsPRACSK.biezacyWiersz();
        wczytajSerie(sk, p.dodatnie, schemat::DodatniPracownika);
        wczytajSerie(sk, p.ujemne, schemat::UjemnyPracownika);
    }
    return p;
}

bool MaIlosciZasilkow(const Sesja& s) {
    return std::ranges::any_of(kLiczbyZUS, [&](const auto& p) { return s.rsPRACZUS.liczba(p.kolumna) > 0; });
}

void ZapiszZmiany(Sesja& s, const WierszPlac& przedtem, const WierszPlac& w) {
    zapisz(s.rsPLA, przedtem, w, kTekstyA);
    zapisz(s.rsPLA, przedtem, w, kLiczbyA);
    zapisz(s.rsPLA, przedtem, w, kKwotyA);
    zapisz(s.rsPLA, przedtem.dni, w.dni, kDniA);
    zapisz(s.rsPLB, przedtem, w, kKwotyB);
    zapiszSerie(s.rsPLB, przedtem.dni.wgRodzaju, w.dni.wgRodzaju, dzienRodzaju);
    zapiszSerie(s.rsPLS, przedtem.skladniki.SP, w.skladniki.SP, schemat::SP);
    zapiszSerie(s.rsPLS, przedtem.skladniki.SM, w.skladniki.SM, schemat::SM);
    zapiszSerie(s.rsPLD, przedtem.skladniki.SOD, w.skladniki.SOD, schemat::SOD);
    zapiszSerie(s.rsPLD, przedtem.skladniki.SDO, w.skladniki.SDO, schemat::SDO);
}

void DopiszWiersz(Sesja& s, const WierszPlac& wiersz) {
    s.wierszListy.AddNewZero(wiersz.klucz.prcId, wiersz.klucz.lista);
    static const WierszPlac kPusty;
    ZapiszZmiany(s, kPusty, wiersz);
}

Waluta& KwotaKolumny(WierszPlac& wiersz, Kolumna kolumna) {
    const auto szukaj = [&](const auto& pary) -> Waluta* {
        for (const Wiersza<Waluta>& p : pary)
            if (p.kolumna.tabela == kolumna.tabela && p.kolumna.nr == kolumna.nr) return &(wiersz.*p.pole);
        return nullptr;
    };
    Waluta* kwota = szukaj(kKwotyA);
    if (!kwota) kwota = szukaj(kKwotyB);
    if (!kwota) throw Blad(QStringLiteral("Kolumna nie jest kwotą wiersza listy płac."));
    return *kwota;
}

} // namespace tornel::payroll
