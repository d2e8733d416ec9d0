#include "tax/DeklaracjeRoczne.h"
#include "common/Blad.h"
#include "rules/Wzory.h"
#include "store/Sesja.h"
#include "tax/Platnik.h"
#include <string>
#include <string_view>

namespace tornel::tax {

using schemat::HON;
using schemat::PIT11;
using schemat::PIT40;
using schemat::PIT8B;
using schemat::UOD;
using schemat::UZL;

namespace {

constexpr int kZrodel = 10;
constexpr int kZPlac = 1;
constexpr int kZUmow = 8;
constexpr int kZPraw = 9;

/// The columns of amounts; not every line of PIT-11 has costs.
constexpr std::string_view kPrzychod = "przy_", kKoszt = "kup_", kDochod = "dochod_", kZaliczka = "pob_zal_";

std::string nazwaKwoty(std::string_view kolumna, int zrodlo) {
    return std::string(kolumna) + std::to_string(zrodlo);
}

Waluta sumaKolumny(const Recordset& rs, std::string_view kolumna) {
    Waluta suma;
    const auto dodaj = [&](const std::string& nazwa) {
        const int nr = rs.tabela().numer(nazwa);
        if (nr >= 0) suma += rs.kwota(rs.tabela().nr(nr));
    };
    for (int n = 1; n <= kZrodel; ++n) dodaj(nazwaKwoty(kolumna, n));
    dodaj(std::string(kolumna) + "1a");
    return suma;
}

/// All amounts that the declaration has, back to zero.
void wyzerujKwoty(Recordset& rs) {
    for (int nr = 0; nr < static_cast<int>(rs.tabela().kolumny.size()); ++nr)
        if (const Kolumna k = rs.tabela().nr(nr); k.def().typ == Typ::Currency) rs.ustaw(k, Waluta{});
}

void wpiszZrodlo(Recordset& rs, int n, Waluta przychod, Waluta koszty, Waluta zaliczka) {
    const auto pole = [&](std::string_view nazwa) { return KolumnaDeklaracji(rs, nazwaKwoty(nazwa, n)); };
    rs.ustaw(pole(kPrzychod), przychod);
    rs.ustaw(pole(kKoszt), koszty);
    rs.ustaw(pole(kDochod), przychod - koszty);
    rs.ustaw(pole(kZaliczka), zaliczka);
}

void wpiszSkladki(Recordset& rs, Waluta spoleczne, Waluta pobrane, Waluta odliczone) {
    rs.ustaw(KolumnaDeklaracji(rs, "Skladki"), spoleczne);
    rs.ustaw(KolumnaDeklaracji(rs, "skl_pob"), pobrane);
    rs.ustaw(KolumnaDeklaracji(rs, "skl_odl"), odliczone);
}

/// Income of PIT-11 and PIT-40. `UBZDR` is entered as withheld and `UBZDR_NAL` as deducted, against what the
/// captions say: deliberate.
void wpiszDochody(Otoczenie& o, Recordset& rs, qint64 prcId, const OkresPodatkowy& okres) {
    const SumyPlac place = SumyPracownika(o.sesja, okres, prcId);
    const SumyUmow umowy = SumujUmowy(o.sesja, UZL, okres, prcId);
    wyzerujKwoty(rs);
    wpiszZrodlo(rs, kZPlac, place.przychod, place.koszty, place.zaliczka);
    wpiszZrodlo(rs, kZUmow, umowy.brutto, umowy.koszty, umowy.podatek);
    wpiszSkladki(rs, place.skladki + umowy.skladki, place.ubzdr + umowy.ubzdr, place.ubzdr_nal + umowy.ubzdr);
}

/// Fills the working row and stores it; a failure leaves the row as it was.
template <typename Wypelnij>
void wypelnij(Otoczenie& o, Recordset& rs, QStringView czynnosc, qint64 prcId, QDate dzis, Wypelnij kwoty) {
    try {
        WpiszNaglowekRoczny(o.sesja, rs, o.stale, prcId, dzis);
        kwoty();
        rs.UpdateBatch(czynnosc);
    } catch (...) {
        if (rs.otwarty()) rs.CancelBatch();
        throw;
    }
}

} // namespace

SumyZrodel SumujZrodla(const Recordset& deklaracja) {
    return {sumaKolumny(deklaracja, kPrzychod), sumaKolumny(deklaracja, kKoszt),
            sumaKolumny(deklaracja, kDochod), sumaKolumny(deklaracja, kZaliczka)};
}

void WypelnijPit11(Otoczenie& o, qint64 prcId, const OkresPodatkowy& okres, QDate dzis) {
    Recordset& rs = o.sesja.rsPIT11;
    wypelnij(o, rs, u"Informacja PIT-11", prcId, dzis, [&] {
        wpiszDochody(o, rs, prcId, okres);
        rs.ustaw(PIT11("kuz1"), QStringLiteral("x"));
        rs.ustaw(PIT11("kuz2"), QStringLiteral(" "));
        rs.ustaw(PIT11("kuz3"), QStringLiteral(" "));
        rs.ustaw(PIT11("pitrtak"), QString(o.stale.PITCzyPITr ? u'x' : u' '));
        rs.ustaw(PIT11("pitrnie"), QString(o.stale.PITCzyPITr ? u' ' : u'x'));
    });
}

void WypelnijPit8B(Otoczenie& o, qint64 prcId, const OkresPodatkowy& okres, QDate dzis) {
    Recordset& rs = o.sesja.rsPIT8B;
    wypelnij(o, rs, u"Informacja PIT-8B", prcId, dzis, [&] {
        SumyUmow umowy = SumujUmowy(o.sesja, UZL, okres, prcId);
        umowy += SumujUmowy(o.sesja, UOD, okres, prcId);
        const SumyUmow prawa = SumujUmowy(o.sesja, HON, okres, prcId);
        wyzerujKwoty(rs);
        wpiszZrodlo(rs, kZUmow, umowy.brutto, umowy.koszty, umowy.podatek);
        wpiszZrodlo(rs, kZPraw, prawa.brutto, prawa.koszty, prawa.podatek);
        wpiszSkladki(rs, umowy.skladki, umowy.ubzdr, umowy.ubzdr);
    });
}

Waluta PodatekWedlugSkali(Otoczenie& o, Waluta podst) {
    const Stale& s = o.stale;
    const QString& wzor = podst <= s.GranicaG12   ? s.WzorPIT40G1
                          : podst <= s.GranicaG23 ? s.WzorPIT40G2
                                                  : s.WzorPIT40G3;
    Wzory wzory(o.rozmowa); // without a session: the scale knows the income alone
    wzory.zmienne.DOCH = podst;
    int flags = 0;
    const Waluta podatek = wzory.ObliczWzor(wzor, flags);
    // A tax of zero out of a broken formula would look like a result.
    if ((flags & (bityWzoru::Przerywajace | bityWzoru::NieznanaZmienna)) != 0)
        throw Blad(QStringLiteral("Nie można obliczyć podatku: błędny wzór „%1”.").arg(wzor));
    return NieMniejNizZero(Round(podatek, 2));
}

RozliczenieRoku Rozlicz(Otoczenie& o, Waluta dochod, Waluta skladki, Waluta ubzdr, Waluta zaliczki) {
    RozliczenieRoku r;
    r.doch_odl = dochod - skladki;
    r.podst = NieMniejNizZero(Round(r.doch_odl, 0));
    r.pod_obl = PodatekWedlugSkali(o, r.podst);
    r.podatek = Round(NieMniejNizZero(r.pod_obl - ubzdr), 1);
    r.nadplata = NieMniejNizZero(zaliczki - r.podatek);
    r.doplata = NieMniejNizZero(r.podatek - zaliczki);
    return r;
}

void WypelnijPit40(Otoczenie& o, qint64 prcId, const OkresPodatkowy& okres, QDate dzis) {
    Recordset& rs = o.sesja.rsPIT40;
    wypelnij(o, rs, u"Rozliczenie PIT-40", prcId, dzis, [&] {
        wpiszDochody(o, rs, prcId, okres);
        const SumyZrodel sumy = SumujZrodla(rs);
        const RozliczenieRoku r =
            Rozlicz(o, sumy.SDOCHOD, rs.kwota(PIT40("Skladki")), rs.kwota(PIT40("skl_odl")), sumy.SPOB_ZAL);
        rs.ustaw(PIT40("doch_odl"), r.doch_odl);
        rs.ustaw(PIT40("podst"), r.podst);
        rs.ustaw(PIT40("pod_obl"), r.pod_obl);
        rs.ustaw(PIT40("podatek"), r.podatek);
        rs.ustaw(PIT40("nadplata"), r.nadplata);
        rs.ustaw(PIT40("doplata"), r.doplata);
    });
}

} // namespace tornel::tax
