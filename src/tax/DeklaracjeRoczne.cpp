#include "tax/DeklaracjeRoczne.h"
#include "common/Blad.h"
#include "rules/Wzory.h"
#include <string>
#include <string_view>

namespace tornel::tax {

using schemat::HON;
using schemat::UOD;
using schemat::UZL;

namespace {

constexpr int kZrodel = 10;
constexpr int kZPlac = 1;
constexpr int kZUmow = 8;
constexpr int kZPraw = 9;

/// The columns of amounts; not every line of PIT-11 has costs.
constexpr std::string_view kPrzychod = "przy_", kKoszt = "kup_", kDochod = "dochod_", kZaliczka = "pob_zal_";

Waluta sumaKolumny(const WierszDeklaracji& d, std::string_view kolumna) {
    Waluta suma;
    const auto dodaj = [&](const std::string& nazwa) {
        if (d.ma(nazwa)) suma += d.kwota(nazwa);
    };
    for (int n = 1; n <= kZrodel; ++n) dodaj(std::string(kolumna) + std::to_string(n));
    dodaj(std::string(kolumna) + "1a");
    return suma;
}

void wpiszZrodlo(WierszDeklaracji& d, int n, Waluta przychod, Waluta koszty, Waluta zaliczka) {
    d.ustaw(kPrzychod, n, przychod);
    d.ustaw(kKoszt, n, koszty);
    d.ustaw(kDochod, n, przychod - koszty);
    d.ustaw(kZaliczka, n, zaliczka);
}

void wpiszSkladki(WierszDeklaracji& d, Waluta spoleczne, Waluta pobrane, Waluta odliczone) {
    d.ustaw("Skladki", spoleczne);
    d.ustaw("skl_pob", pobrane);
    d.ustaw("skl_odl", odliczone);
}

template <typename Suma>
QHash<qint64, Suma> jednego(qint64 prcId, const Suma& suma) {
    return {{prcId, suma}};
}

} // namespace

SumyZrodel SumujZrodla(const WierszDeklaracji& deklaracja) {
    return {sumaKolumny(deklaracja, kPrzychod), sumaKolumny(deklaracja, kKoszt),
            sumaKolumny(deklaracja, kDochod), sumaKolumny(deklaracja, kZaliczka)};
}

DaneRoczne::DaneRoczne(Otoczenie& o, Deklaracja ktora, const OkresPodatkowy& okres,
                       std::optional<qint64> jeden)
    : o_(o), ktora_(ktora), podatnicy_(o.sesja, jeden) {
    const auto umowy = [&](const TabelaDef& tabela) {
        return jeden ? jednego(*jeden, SumujUmowy(o.sesja, tabela, okres, *jeden))
                     : SumujUmowyWszystkich(o.sesja, tabela, okres);
    };
    zlecenia_ = umowy(UZL);
    if (ktora == Deklaracja::Pit8B) {
        const auto dziela = umowy(UOD);
        for (auto i = dziela.begin(); i != dziela.end(); ++i) zlecenia_[i.key()] += i.value();
        prawa_ = umowy(HON);
    } else {
        place_ =
            jeden ? jednego(*jeden, SumyPracownika(o.sesja, okres, *jeden)) : SumyWszystkich(o.sesja, okres);
    }
}

WierszDeklaracji DaneRoczne::wypelnij(qint64 prcId, QDate dzis) const {
    WierszDeklaracji d(ktora_);
    WpiszPlatnikaRocznej(d, o_.stale, dzis);
    podatnicy_.wpisz(d, prcId);
    const SumyPlac place = place_.value(prcId);
    const SumyUmow umowy = zlecenia_.value(prcId);
    wpiszZrodlo(d, kZUmow, umowy.brutto, umowy.koszty, umowy.podatek);
    if (ktora_ == Deklaracja::Pit8B) {
        const SumyUmow prawa = prawa_.value(prcId);
        wpiszZrodlo(d, kZPraw, prawa.brutto, prawa.koszty, prawa.podatek);
    } else {
        wpiszZrodlo(d, kZPlac, place.przychod, place.koszty, place.zaliczka);
    }
    // `UBZDR` is entered as withheld and `UBZDR_NAL` as deducted, against what the captions say: deliberate.
    wpiszSkladki(d, place.skladki + umowy.skladki, place.ubzdr + umowy.ubzdr, place.ubzdr_nal + umowy.ubzdr);
    if (ktora_ == Deklaracja::Pit11) {
        d.ustaw("kuz1", QStringLiteral("x"));
        d.ustaw("kuz2", QStringLiteral(" "));
        d.ustaw("kuz3", QStringLiteral(" "));
        d.ustaw("pitrtak", QString(o_.stale.PITCzyPITr ? u'x' : u' '));
        d.ustaw("pitrnie", QString(o_.stale.PITCzyPITr ? u' ' : u'x'));
    }
    if (ktora_ == Deklaracja::Pit40) RozliczPit40(SkalaPodatku(o_.stale), d, o_.rozmowa);
    return d;
}

void WypelnijDeklaracje(Otoczenie& o, Deklaracja ktora, qint64 prcId, const OkresPodatkowy& okres,
                        QDate dzis) {
    const RodzajDeklaracji& rodzaj = OpisDeklaracji(ktora);
    const WierszDeklaracji wypelniona = DaneRoczne(o, ktora, okres, prcId).wypelnij(prcId, dzis);
    Recordset& rs = o.sesja.*rodzaj.uchwyt;
    if (!rs.otwarty()) rs.Open(o.sesja.cnPlace);
    try {
        if (rs.RecordCount() == 0)
            rs.AddNewZero();
        else
            rs.MoveFirst();
        wypelniona.przepisz(rs);
        rs.UpdateBatch(QStringLiteral("Deklaracja %1, pracownik nr %2").arg(rodzaj.nazwa).arg(prcId));
    } catch (...) {
        rs.CancelBatch();
        throw;
    }
}

SkalaPodatku::SkalaPodatku(const Stale& s)
    : wzory{s.WzorPIT40G1, s.WzorPIT40G2, s.WzorPIT40G3}, granica12(s.GranicaG12), granica23(s.GranicaG23) {}

Waluta PodatekWedlugSkali(const SkalaPodatku& skala, Waluta podst, Rozmowa& rozmowa) {
    const QString& wzor = skala.wzory[podst <= skala.granica12 ? 0 : podst <= skala.granica23 ? 1 : 2];
    Wzory wzory(rozmowa); // without a session: the scale knows the income alone
    wzory.zmienne.DOCH = podst;
    int flags = 0;
    const Waluta podatek = wzory.ObliczWzor(wzor, flags);
    // A tax of zero out of a broken formula would look like a result.
    if ((flags & (bityWzoru::Przerywajace | bityWzoru::NieznanaZmienna)) != 0)
        throw Blad(QStringLiteral("Nie można obliczyć podatku: błędny wzór „%1”.").arg(wzor));
    return NieMniejNizZero(Round(podatek, 2));
}

RozliczenieRoku Rozlicz(const SkalaPodatku& skala, Waluta dochod, Waluta skladki, Waluta ubzdr,
                        Waluta zaliczki, Rozmowa& rozmowa) {
    RozliczenieRoku r;
    r.doch_odl = dochod - skladki;
    r.podst = NieMniejNizZero(Round(r.doch_odl, 0));
    r.pod_obl = PodatekWedlugSkali(skala, r.podst, rozmowa);
    r.podatek = Round(NieMniejNizZero(r.pod_obl - ubzdr), 1);
    r.nadplata = NieMniejNizZero(zaliczki - r.podatek);
    r.doplata = NieMniejNizZero(r.podatek - zaliczki);
    return r;
}

void RozliczPit40(const SkalaPodatku& skala, WierszDeklaracji& d, Rozmowa& rozmowa) {
    const SumyZrodel sumy = SumujZrodla(d);
    const RozliczenieRoku r =
        Rozlicz(skala, sumy.SDOCHOD, d.kwota("Skladki"), d.kwota("skl_odl"), sumy.SPOB_ZAL, rozmowa);
    d.ustaw("doch_odl", r.doch_odl);
    d.ustaw("podst", r.podst);
    d.ustaw("pod_obl", r.pod_obl);
    d.ustaw("podatek", r.podatek);
    d.ustaw("nadplata", r.nadplata);
    d.ustaw("doplata", r.doplata);
}

QString UwagiDoKwot(const WierszDeklaracji& d, const SkalaPodatku& skala, Rozmowa& rozmowa) {
    QStringList uwagi, wiersze;
    for (int n = 1; n <= kZrodel; ++n) {
        const std::string nr = std::to_string(n);
        const Waluta koszty = d.ma("kup_" + nr) ? d.kwota("kup_" + nr) : Waluta{};
        // Line 1a has no income of its own: line 1 may hold it.
        const Waluta dodatkowe =
            n == 1 && d.ma("przy_1a") ? d.kwota("przy_1a") - d.kwota("kup_1a") : Waluta{};
        const Waluta dochod = d.kwota("przy_" + nr) - koszty;
        if (d.kwota("dochod_" + nr) != dochod && d.kwota("dochod_" + nr) != dochod + dodatkowe)
            wiersze.append(QString::number(n));
    }
    if (!wiersze.isEmpty())
        uwagi.append(QStringLiteral("Dochód nie jest różnicą przychodu i kosztów w wierszach: %1.")
                         .arg(wiersze.join(QStringLiteral(", "))));
    if (d.ktora() == Deklaracja::Pit40) {
        try {
            WierszDeklaracji rozliczona = d;
            RozliczPit40(skala, rozliczona, rozmowa);
            for (const char* kolumna : {"doch_odl", "podst", "pod_obl", "podatek", "nadplata", "doplata"}) {
                if (rozliczona.kwota(kolumna) == d.kwota(kolumna)) continue;
                uwagi.append(QStringLiteral(
                    "Rozliczenie nie odpowiada kwotom deklaracji. Przycisk „Rozlicz” liczy je od nowa."));
                break;
            }
        } catch (const Blad& blad) {
            uwagi.append(blad.komunikat());
        }
    }
    return uwagi.join(u'\n');
}

} // namespace tornel::tax
