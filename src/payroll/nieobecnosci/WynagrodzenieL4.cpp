#include "payroll/nieobecnosci/WynagrodzenieL4.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "payroll/nieobecnosci/LiczenieDni.h"
#include "rules/Stale.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::PLA;
using schemat::PLB;
using schemat::PRACPR;

namespace {

constexpr int kDniMiesiaca = 30;      // fixed, whatever the month's length
constexpr int kNajwiecejZwolnien = 4; // components for more do not exist
constexpr int kNajwiecejMiesiecy = 12;

QString nieaktywny(int nr, const char16_t* dalej) {
    return QStringLiteral("Składnik nr ") + QString::number(nr) + QString::fromUtf16(dalej);
}

constexpr const char16_t* kPlacyNieZmieniono =
    u" odpowiadający płacy zasadniczej jest nieaktywny. Zmiana nie została dokonana.";
constexpr const char16_t* kPremiiNieZmieniono =
    u" odpowiadający premii procentowej jest nieaktywny. Zmiana nie została dokonana.";

Waluta bezSkladek(Waluta brutto, Waluta fe, Waluta fr, Waluta fc) {
    return brutto - Procent(brutto, fe) - Procent(brutto, fr) - Procent(brutto, fc);
}

} // namespace

int IleDotDniL4(Nieobecnosci zwolnienia, int rok, int mies) {
    const QDate pierwszy = PierwszyDzien(rok, mies);
    qint64 dni = 0;
    // Deliberate: the start is not cut at 1 January. An imported leave that ends before it begins has no day
    // and must not give any back.
    for (const Nieobecnosc& n : zwolnienia)
        if (n.data_do >= PierwszyDzien(rok, 1) && n.Data < pierwszy && n.Data <= n.data_do)
            dni += n.Data.daysTo(std::min(n.data_do.addDays(1), pierwszy));
    return static_cast<int>(dni);
}

SrednieL4 WynagrodzenieL4::SredniaDoL4(qint64 prcId, int ile) {
    SrednieL4 wynik;
    ile = std::min(ile, kNajwiecejMiesiecy);
    if (ile <= 0) return wynik;
    Waluta brutto, netto;
    for (const PodstawaL4& m : w_.podstawy().doL4(prcId, ile)) {
        const Waluta poSkladkach = bezSkladek(m.skladniki, m.wsk_feprc, m.wsk_frprc, m.wsk_fcprc);
        wynik.miesiace.append({m.miesiac, m.skladniki, poSkladkach});
        brutto += m.skladniki;
        netto += poSkladkach;
    }
    wynik.SredniaBrutto = Proporcja(brutto, 1, ile, 2);
    wynik.SredniaNetto = Proporcja(netto, 1, ile, 2);
    return wynik;
}

Waluta WynagrodzenieL4::poSkladkach(Waluta brutto) const {
    const Recordset& b = w_.o.sesja.rsPLB;
    return Round(
        bezSkladek(brutto, b.kwota(PLB("WSK_FEPRC")), b.kwota(PLB("WSK_FRPRC")), b.kwota(PLB("WSK_FCPRC"))),
        2);
}

SrednieL4 WynagrodzenieL4::srednie(qint64 prcId, Tryb tryb) {
    SrednieL4 wynik = SredniaDoL4(prcId, w_.o.stale.MiesSrBr);
    if (tryb == Tryb::Seria || !w_.wykazy) return wynik;
    const Waluta srednia = w_.wykazy->sredniaL4(wynik.miesiace, wynik.SredniaBrutto).value_or(Waluta{});
    if (srednia == wynik.SredniaBrutto) return wynik; // so the row comes out as in a batch
    // An average of the clerk's own is reduced by the contributions of the row in work.
    wynik.SredniaBrutto = srednia;
    wynik.SredniaNetto = poSkladkach(srednia);
    return wynik;
}

void WynagrodzenieL4::wpiszSkladnik(int nr, Waluta kwota, QDate od, QDate dokad, Tryb tryb) {
    // Deliberate: number 30 is left out as well, without a word.
    if (nr <= 0 || nr >= 30) return;
    if (!w_.aktywny(nr)) {
        w_.uwaga(tryb,
                 nieaktywny(nr,
                            u" odpowiadający wynagrodzeniu za L-4 jest nieaktywny. Kwota za L-4 nie została "
                            u"zaopisana."));
        return;
    }
    w_.wpisz(nr, kwota, od, dokad);
}

WynagrodzenieL4::Rozliczenie WynagrodzenieL4::rozlicz(Nieobecnosci zwolnienia, int uzyte, Waluta dzienna,
                                                      Tryb tryb) {
    const Stale& c = w_.o.stale;
    const QDate pierwszy = PierwszyDzien(w_.o.sesja.rok(), w_.o.sesja.mies());
    const QDate ostatni = OstatniDzien(w_.o.sesja.rok(), w_.o.sesja.mies());
    Rozliczenie r;
    std::size_t j = 0, k = 0;
    for (const Nieobecnosc& n : zwolnienia) {
        if (j == kNajwiecejZwolnien) {
            // Deliberate: the days of such a leave are counted nowhere.
            w_.uwaga(tryb, QStringLiteral(
                               "Zwolnień jest więcej niż 4 i brak składników do wpisania kolejnych kwot za "
                               "L-4"));
            continue;
        }
        const QDate od = std::max(n.Data, pierwszy), dokad = std::min(n.data_do, ostatni);
        const int dni = static_cast<int>(od.daysTo(dokad)) + 1;
        const auto zaDni = [&](int ile) { return Procent(Proporcja(dzienna, ile, 1), n.st_proc); };
        const int pracodawca = std::clamp(c.L4Pracod - uzyte - r.dniMies, 0, dni);
        const Waluta kwotaP = zaDni(pracodawca);
        if (pracodawca == dni || kwotaP > Waluta{})
            wpiszSkladnik(c.L4Prd[j], kwotaP, od, od.addDays(pracodawca - 1), tryb);
        if (pracodawca < dni) {
            const Waluta kwotaZ = zaDni(dni - pracodawca);
            r.dniZUS += dni - pracodawca;
            wpiszSkladnik(c.L4ZUS[k++], kwotaZ, od.addDays(pracodawca), dokad, tryb);
            r.zasilek += kwotaZ;
        }
        r.dniMies += dni;
        ++j;
    }
    return r;
}

Waluta WynagrodzenieL4::zasadniczaPoL4(const SrednieL4& srednie, int dniMies, int dniObowiazku) const {
    const Waluta placa = w_.o.sesja.rsPRACPR.kwota(PRACPR("placa_zas"));
    // By the stored value; the captions on the screen of constants tell another order.
    switch (w_.o.stale.SposobStZasL4) {
    case 0:
        return Proporcja(placa, kDniMiesiaca - dniMies, kDniMiesiaca, 2);
    case 1:
        return Proporcja(srednie.SredniaBrutto, kDniMiesiaca - dniMies, kDniMiesiaca, 2);
    case 2:
        if (dniObowiazku == 0)
            throw Blad(QStringLiteral(
                           "Nie można przeliczyć płacy zasadniczej po L-4: dzielenie przez zero, w miesiącu "
                           "%1 nie ma dnia, w którym należało pracować.")
                           .arg(NapisMiesiaca(w_.o.sesja.rok(), w_.o.sesja.mies())));
        return Proporcja(placa, w_.dniPrzepracowane(), dniObowiazku, 2);
    default:
        return Round(placa, 2);
    }
}

void WynagrodzenieL4::przeliczPlace(const SrednieL4& srednie, int dniMies, int dniObowiazku, Tryb tryb) {
    Otoczenie& o = w_.o;
    const int nrPlacy = o.stale.PlZas, nrPremii = o.stale.PremPr;
    const auto pytaj = [&](PytanieRaz& pytanie, const QString& seryjne, const QString& pojedyncze) {
        return pytanie.pytaj(o.rozmowa, tryb, seryjne, pojedyncze);
    };
    if (nrPlacy != 0 && pytaj(w_.odpowiedzi.zasadniczaPoL4,
                              QStringLiteral("Czy przeliczać płacę zasadniczą dla pracowników po L-4 ?"),
                              QStringLiteral("Czy przeliczyć płacę zasadniczą dla pracownika po L-4 ?"))) {
        if (!w_.aktywny(nrPlacy))
            w_.uwaga(tryb, nieaktywny(nrPlacy, kPlacyNieZmieniono));
        else
            o.sesja.rsPLS.ustaw(schemat::SP(nrPlacy), zasadniczaPoL4(srednie, dniMies, dniObowiazku));
    }
    // The bonus follows the base salary of the row, and is left alone where that is out of use.
    if (nrPremii == 0 || (nrPlacy != 0 && !w_.aktywny(nrPlacy)) ||
        !pytaj(w_.odpowiedzi.premiaPoL4,
               QStringLiteral("Czy przeliczać premię procentową dla pracowników po L-4 ?"),
               QStringLiteral("Czy przeliczyć premię procentową dla pracownika po L-4 ?")))
        return;
    if (!w_.aktywny(nrPremii)) {
        w_.uwaga(tryb, nieaktywny(nrPremii, kPremiiNieZmieniono));
        return;
    }
    const Recordset& pr = o.sesja.rsPRACPR;
    const Waluta placa =
        nrPlacy == 0 ? pr.kwota(PRACPR("placa_zas")) : o.sesja.rsPLS.kwota(schemat::SP(nrPlacy));
    o.sesja.rsPLS.ustaw(schemat::SP(nrPremii), Procent(placa, pr.kwota(PRACPR("Premia_pr"))));
}

Waluta WynagrodzenieL4::WyliczL4(Tryb tryb) {
    Otoczenie& o = w_.o;
    Recordset& a = o.sesja.rsPLA;
    a.ustaw(PLA("SR_BR_ZUS"), Waluta{});
    const qint64 prcId = a.liczba(PLA("PRC_ID"));
    const Nieobecnosci roku = w_.dane.zwolnieniaRoku(prcId);
    const QDate pierwszy = PierwszyDzien(o.sesja.rok(), o.sesja.mies());
    std::vector<Nieobecnosc> miesiaca;
    for (const Nieobecnosc& n : roku)
        if (n.data_do >= pierwszy && n.Data <= n.data_do) miesiaca.push_back(n);
    if (miesiaca.empty() ||
        !w_.odpowiedzi.liczycL4.pytaj(o.rozmowa, tryb, QStringLiteral("Czy wyliczać L4 dla pracowników ?"),
                                      QStringLiteral("Czy wyliczyć L4 dla pracownika ?")))
        return {};

    const int uzyte = IleDotDniL4(roku, o.sesja.rok(), o.sesja.mies());
    auto czyj = LiczenieDni::CzyjKalendarz::Ogolny;
    if (o.stale.OsobHarPrac &&
        w_.odpowiedzi.obowiazekZKalendarza.pytaj(
            o.rozmowa, tryb,
            QStringLiteral("Czy dni wynikające z obowiązku pracy wyliczać z bazy dni wolnych pracowników ?"),
            QStringLiteral("Czy dni wynikające z obowiązku pracy liczyć z bazy dni wolnych pracownika ?")))
        czyj = LiczenieDni::CzyjKalendarz::Wlasny;
    const int dniObowiazku = LiczenieDni(w_).DniObowiazkuPracy(prcId, czyj);

    const SrednieL4 s = srednie(prcId, tryb);
    const Rozliczenie r = rozlicz(miesiaca, uzyte, Proporcja(s.SredniaNetto, 1, kDniMiesiaca, 2), tryb);
    przeliczPlace(s, r.dniMies, dniObowiazku, tryb);
    a.ustaw(PLA("SR_BR_ZUS"), s.SredniaNetto);
    a.ustaw(PLA("DNI_L4_ZUS"), r.dniZUS);
    a.ustaw(PLA("DNI_L4_PR"), r.dniMies - r.dniZUS);
    return r.zasilek;
}

} // namespace tornel::payroll
