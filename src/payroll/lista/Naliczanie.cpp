#include "payroll/lista/Naliczanie.h"
#include "rules/Stale.h"
#include <set>

namespace tornel::payroll {

namespace {

void dolicz(SumyWiersza& sumy, const PozycjaSkladnika& pozycja, Waluta kwota, Stawka wsk_ubr) {
    if (kwota.zero()) return;
    const Waluta ubruttowiona = Procent(kwota, wsk_ubr, 2);
    if (pozycja.brutto) {
        sumy.SumaBrutto += kwota;
        sumy.SumaBruttoUbr += pozycja.zus ? ubruttowiona : kwota;
    } else {
        sumy.SumaInne += kwota;
    }
    if (pozycja.zus) {
        sumy.RoznicaUbr += ubruttowiona - kwota;
        sumy.PodstawaZUS += kwota;
        sumy.PodstawaZUSUbr += ubruttowiona;
    }
    // Deliberate: the multiplied value enters the health base only for components outside ZUS.
    if (pozycja.ubzdr) sumy.PodstawaUbzdr += pozycja.zus ? kwota : ubruttowiona;
}

} // namespace

Podstawy WyliczPodstawy(const MiesiacPlac& miesiac, const WierszPlac& w, const Odpowiedzi& odpowiedzi) {
    Podstawy p;
    const Stawka wsk_ubr(w.wsk_ubr);
    for (std::size_t i = 0; i < w.skladniki.SP.size(); ++i) {
        const PozycjaSkladnika& pozycja = miesiac.pozycje.dodatnie[i];
        if (!pozycja.aktywna()) continue;
        if (!pozycja.brutto) p.Dodatki += w.skladniki.SP[i];
        dolicz(p.sumy, pozycja, w.skladniki.SP[i], wsk_ubr);
    }
    for (std::size_t i = 0; i < w.skladniki.SM.size(); ++i) {
        const PozycjaSkladnika& pozycja = miesiac.pozycje.ujemne[i];
        if (!pozycja.aktywna()) continue;
        if (!pozycja.brutto) p.Potracenia += w.skladniki.SM[i];
        dolicz(p.sumy, pozycja, -w.skladniki.SM[i], wsk_ubr);
    }
    p.zus_ppe = w.PPE > w.zus_ppe && odpowiedzi.ma(Pytanie::ZwiekszycPPE) ? w.PPE : w.zus_ppe;
    const Waluta doliczonePpe = p.zus_ppe - w.PPE;
    p.sumy.PodstawaZUS += doliczonePpe;
    p.sumy.PodstawaUbzdr += doliczonePpe;
    p.Brutto = Round(p.sumy.SumaBrutto, 2);
    return p;
}

Skladki Skladki::zWiersza(const WierszPlac& w) {
    return {w.skl_fp, w.skl_fgsp, w.Feprd,     w.Frprd,     w.fwprd,    w.Feprc,
            w.Frprc,  w.FcPrc,    w.WSK_FEPRD, w.WSK_FRPRD, w.WSK_FWPRD};
}

Skladki WyliczSkladki(const MiesiacPlac& miesiac, const Podstawy& podstawy, const WierszPlac& w) {
    const auto skladka = [&](Waluta procent) {
        return Procent(podstawy.sumy.PodstawaZUS, Stawka(procent), 2);
    };
    const Stale& c = miesiac.stale;
    Skladki s;
    s.skl_fp = skladka(w.ST_SKL_FP);
    s.skl_fgsp = skladka(w.ST_SKLFGSP);
    s.Feprc = skladka(w.wsk_feprc);
    s.Feprd = skladka(c.FEprd);
    s.Frprc = skladka(w.wsk_frprc);
    s.Frprd = skladka(c.FRprd);
    s.FcPrc = skladka(w.wsk_fcprc);
    s.fwprd = skladka(c.FWprd);
    s.WSK_FEPRD = c.FEprd;
    s.WSK_FRPRD = c.FRprd;
    s.WSK_FWPRD = c.FWprd;
    return s;
}

Waluta WyliczKosztyUzyskania(const DanePracownika& p) { return p.czy_kuz ? p.Kup : Waluta{}; }

Waluta WyliczNetto(Waluta Brutto, const Skladki& skladki, Waluta Kup) {
    return NieMniejNizZero(Round(Brutto - skladki.pracownika() - Kup, 2));
}

Waluta WyliczUbzdr(const Podstawy& podstawy, const Skladki& skladki, Stawka wsk_ubzdr) {
    return Procent(podstawy.sumy.PodstawaUbzdr - skladki.pracownika(), wsk_ubzdr, 2);
}

Waluta WyliczUlge(const MiesiacPlac& miesiac, const DanePracownika& p) {
    // Deliberate: not doubled here, although a new row starts with the doubled amount for doubled limits.
    return p.czy_ulga ? Proporcja(miesiac.stale.RKwPZ, 1, 12) : Waluta{};
}

bool GrupaStala(const DanePracownika& p) { return p.gr_pod >= 1 && p.gr_pod <= 3; }

StawkaPodatku UstalStawke(const MiesiacPlac& miesiac, const DanePracownika& p, const BruttoRoku& rok,
                          Waluta Brutto) {
    const Stale& c = miesiac.stale;
    const Stawka stawki[] = {Stawka(c.PodatekG1), Stawka(c.PodatekG2), Stawka(c.PodatekG3)};
    // A fixed group wins over all cumulation, without a warning.
    if (GrupaStala(p)) return {stawki[p.gr_pod - 1], {}};

    const int mnoznik = p.czy_2progi ? 2 : 1;
    const auto grupa = [&](Waluta brutto) -> std::size_t {
        if (!(brutto > Proporcja(c.GranicaG12, mnoznik, 1))) return 1;
        return brutto > Proporcja(c.GranicaG23, mnoznik, 1) ? 3 : 2;
    };
    const Waluta suma = rok.stare + Brutto;
    const std::size_t grupaPlac = grupa(suma);
    StawkaPodatku wynik{stawki[grupaPlac - 1], {}};
    const auto ostrzez = [&](const QString& tekst, std::size_t nr) {
        if (nr > 1) wynik.uwagi.append({tekst.arg(nr), Zakres::Wiersz});
    };
    ostrzez(QStringLiteral("Uwaga! Przekroczona grupa podatkowa. Wyliczenie nastąpi w grupie %1."),
            grupaPlac);
    // Deliberate: contracts never raise the rate, and the warning comes even when the rate was that high
    // already.
    if (rok.kwotaUmow)
        ostrzez(QStringLiteral("Uwaga! Po zsumowaniu kwot z umów zleceń, umów o dzieło i honorariów "
                               "następuje przekroczenie grupy podatkowej do %1."),
                grupa(suma + *rok.kwotaUmow));
    return wynik;
}

ZaliczkaPodatku WyliczPodatek(const MiesiacPlac& miesiac, Stawka stawka, Waluta Netto, Waluta Ppd,
                              Waluta Ubzdr) {
    ZaliczkaPodatku z;
    z.pod_doch = Procent(Round(Netto, miesiac.stale.ZaokPod), stawka, 2);
    // The tax is computed with the exact rate; the column is a whole number.
    z.st_pd = Round(stawka.procent(), 0).surowa() / 10000;
    const Waluta zaliczka = z.pod_doch - Ppd;
    z.Ubzdr = zaliczka < Ubzdr ? NieMniejNizZero(zaliczka) : Ubzdr;
    z.Podatek = Round(NieMniejNizZero(zaliczka - z.Ubzdr), miesiac.stale.ZaokZal);
    return z;
}

Waluta Dowyplaty(const MiesiacPlac& miesiac, const Podstawy& podstawy, const Skladki& skladki,
                 Waluta zaliczka, Waluta zasilek) {
    const Waluta kwota =
        podstawy.Brutto - skladki.pracownika() - NieMniejNizZero(zaliczka) + podstawy.sumy.SumaInne - zasilek;
    return Round(kwota, miesiac.stale.ZaokWyp);
}

Waluta ZasilekChorobowy(const MiesiacPlac& miesiac, const WierszPlac& w, std::optional<Waluta> zapisany) {
    if (zapisany) return *zapisany;
    Waluta zasilek;
    if (w.dni_l4_zus <= 0) return zasilek;
    // The four numbers may repeat a component, which still counts once.
    for (const int nr : std::set<int>(miesiac.stale.L4ZUS.begin(), miesiac.stale.L4ZUS.end()))
        if (nr >= 1 && nr <= 30) zasilek += w.skladniki.sp(nr);
    return zasilek;
}

ZbiorPytan PytaniaPlacy(const WierszPlac& w, Waluta zasilek) {
    ZbiorPytan moga;
    moga.dodaj(Pytanie::ZwiekszycPPE, w.PPE > w.zus_ppe);
    moga.dodaj(Pytanie::PomniejszycZasilek, zasilek > Waluta{});
    return moga;
}

namespace {

/// What the steps made of the row.
WierszPlac zWynikami(const WierszPlac& przedtem, const Podstawy& podstawy, const Skladki& skladki,
                     const ZaliczkaPodatku& zaliczka) {
    WierszPlac w = przedtem;
    w.Brutto = podstawy.Brutto;
    w.Dodatki = podstawy.Dodatki;
    w.Potracenia = podstawy.Potracenia;
    w.zus_ppe = podstawy.zus_ppe;
    w.UBruttow = podstawy.sumy.RoznicaUbr;
    w.skl_fp = skladki.skl_fp;
    w.skl_fgsp = skladki.skl_fgsp;
    w.Feprd = skladki.Feprd;
    w.Frprd = skladki.Frprd;
    w.fwprd = skladki.fwprd;
    w.Feprc = skladki.Feprc;
    w.Frprc = skladki.Frprc;
    w.FcPrc = skladki.FcPrc;
    w.WSK_FEPRD = skladki.WSK_FEPRD;
    w.WSK_FRPRD = skladki.WSK_FRPRD;
    w.WSK_FWPRD = skladki.WSK_FWPRD;
    w.pod_doch = zaliczka.pod_doch;
    w.st_pd = zaliczka.st_pd;
    w.Podatek = zaliczka.Podatek;
    w.Ubzdr = zaliczka.Ubzdr;
    return w;
}

} // namespace

WynikPlacy PoliczPlace(const MiesiacPlac& miesiac, const DanePlacy& dane, Kroki kroki,
                       const Odpowiedzi& odpowiedzi) {
    const WierszPlac& w = dane.wiersz;
    const DanePracownika& p = dane.pracownik;
    const Podstawy podstawy = WyliczPodstawy(miesiac, w, odpowiedzi);
    const Skladki skladki = kroki.skladki ? WyliczSkladki(miesiac, podstawy, w) : Skladki::zWiersza(w);
    const Waluta Kup = kroki.koszty ? WyliczKosztyUzyskania(p) : w.Kup;
    const Waluta Netto = kroki.netto ? WyliczNetto(podstawy.Brutto, skladki, Kup) : w.Netto;
    const Waluta ubzdr_nal = kroki.ubzdr ? WyliczUbzdr(podstawy, skladki, Stawka(w.wsk_ubzdr)) : w.ubzdr_nal;
    const Waluta Ubzdr = kroki.odliczane ? ubzdr_nal : w.Ubzdr;
    const Waluta Ppd = kroki.ulga ? WyliczUlge(miesiac, p) : w.Ppd;
    const StawkaPodatku stawka = UstalStawke(miesiac, p, dane.rok, podstawy.Brutto);
    const ZaliczkaPodatku zaliczka = WyliczPodatek(miesiac, stawka.stawka, Netto, Ppd, Ubzdr);
    const Waluta zasilek =
        odpowiedzi.ma(Pytanie::PomniejszycZasilek) ? NieMniejNizZero(dane.zasilek) : Waluta{};
    const Waluta do_wyplaty = Dowyplaty(miesiac, podstawy, skladki, zaliczka.pod_doch - Ppd, zasilek);

    WynikPlacy wynik{zWynikami(w, podstawy, skladki, zaliczka), podstawy.sumy, stawka.uwagi};
    wynik.wiersz.Kup = Kup;
    wynik.wiersz.Netto = Netto;
    wynik.wiersz.ubzdr_nal = ubzdr_nal;
    wynik.wiersz.Ppd = Ppd;
    wynik.wiersz.do_wyplaty = do_wyplaty;
    return wynik;
}

} // namespace tornel::payroll
