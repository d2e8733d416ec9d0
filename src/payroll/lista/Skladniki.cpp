#include "payroll/lista/Skladniki.h"
#include "rules/Stale.h"

namespace tornel::payroll {

void WypelnijOkres(const MiesiacPlac& miesiac, SkladnikiWiersza& s, int i, const DanePracownika& p) {
    if (s.sp(i) > Waluta{}) {
        const QDate pierwszy = miesiac.rm.pierwszyDzien();
        s.okres(i, !p.umowa_od.isValid() || p.umowa_od < pierwszy ? pierwszy : p.umowa_od,
                miesiac.rm.ostatniDzien());
    } else {
        s.okres(i, {}, {});
    }
}

SkladnikiWiersza WypelnijSkladniki(const MiesiacPlac& miesiac, SkladnikiWiersza s, const DanePracownika& p) {
    for (int i = 1; i <= static_cast<int>(s.SP.size()); ++i) {
        if (!miesiac.aktywny(i)) continue;
        if (i == miesiac.stale.PlZas)
            s.sp(i) = p.placa_zas;
        else if (i == miesiac.stale.PremPr)
            s.sp(i) = Procent(p.placa_zas, Stawka(p.Premia_pr));
        else
            s.sp(i) = p.dodatnie[static_cast<std::size_t>(i - 1)];
        WypelnijOkres(miesiac, s, i, p);
    }
    for (std::size_t j = 0; j < s.SM.size(); ++j)
        if (miesiac.pozycje.ujemne[j].aktywna()) s.SM[j] = p.ujemne[j];
    return s;
}

WynikSkladnikow Przelicz2(const MiesiacPlac& miesiac, const WierszPlac& wiersz, const DanePracownika& p,
                          const DaneSkladnikow& dane, const Odpowiedzi& odpowiedzi) {
    WynikSkladnikow wynik{wiersz, {}, {}};
    WierszPlac& w = wynik.wiersz;
    w.skladniki = WypelnijSkladniki(miesiac, w.skladniki, p);
    if (dane.nadgodziny) {
        ZNadgodzinami z = PrzeniesNadgodziny(miesiac, w.skladniki, *dane.nadgodziny);
        w.skladniki = z.skladniki;
        for (const int nr : z.zmienione) WypelnijOkres(miesiac, w.skladniki, nr, p);
        wynik.uwagi += z.uwagi;
    }
    w.sr_br_zus = {};
    if (dane.l4) {
        WynikL4 l4 = WyliczL4(miesiac, w, p, *dane.l4, odpowiedzi);
        w.skladniki = l4.skladniki;
        w.sr_br_zus = dane.l4->srednie.SredniaNetto;
        w.dni_l4_zus = l4.dniZUS;
        w.dni_l4_pr = l4.dniMies - l4.dniZUS;
        wynik.ZasilekChorobowy = l4.ZasilekChorobowy;
        wynik.uwagi += l4.uwagi;
    }
    w.sr_br_url = {};
    if (dane.urlop) {
        WynikUrlopu urlop = WyliczURL(miesiac, w, *dane.urlop, odpowiedzi);
        w.skladniki = urlop.skladniki;
        w.sr_br_url = dane.urlop->StawkaDzienna;
        wynik.uwagi += urlop.uwagi;
    }
    return wynik;
}

WierszPlac NowyWiersz(const MiesiacPlac& miesiac, const KluczListy& klucz, const DanePracownika& p,
                      const Odpowiedzi& odpowiedzi) {
    const Stale& c = miesiac.stale;
    WierszPlac w;
    w.klucz = klucz;
    w.Naz = p.Naz;
    w.Imie = p.Imie_1;
    w.Kup = p.Kup;
    // Deliberate: the credit is doubled here for doubled limits; the first calculation overwrites it
    // undoubled.
    if (p.czy_ulga) w.Ppd = Proporcja(c.RKwPZ, p.czy_2progi ? 2 : 1, 12);
    w.us_id = p.us_id;
    // The contribution columns start with the rates; the calculation overwrites them with the amounts.
    w.skl_fp = w.ST_SKL_FP = p.Fp;
    w.skl_fgsp = w.ST_SKLFGSP = p.gsp;
    w.etat = p.etat;
    w.etat2 = p.etat2;
    if (odpowiedzi.ma(Pytanie::IloscZasilkow)) {
        w.il_z_rodz = p.il_z_rodz;
        w.il_z_piel = p.il_z_piel;
        w.il_z_wych = p.il_z_wych;
    }
    w.PPE = p.PPE;
    w.WSK_FEPRD = c.FEprd;
    w.WSK_FRPRD = c.FRprd;
    w.WSK_FWPRD = c.FWprd;
    w.wsk_feprc = p.wsk_fe;
    w.wsk_frprc = p.wsk_fr;
    w.wsk_fcprc = p.wsk_fc;
    w.wsk_ubzdr = p.wsk_ubzdr;
    w.wsk_ubr = c.BlokujUbruttow ? Waluta::zlotych(100) : c.WskUbruttow;
    w.skladniki = WypelnijSkladniki(miesiac, {}, p);
    return w;
}

} // namespace tornel::payroll
