#include "payroll/lista/ZrodlaPlac.h"
#include "common/Blad.h"
#include "common/Rozmowa.h"
#include "payroll/lista/StareBrutto.h"
#include "rules/Stale.h"
#include "store/Sesja.h"

namespace tornel::payroll {

ZrodlaPlac::ZrodlaPlac(Otoczenie& otoczenie, WykazyPodstaw* wykazy)
    : o_(otoczenie), wykazy_(wykazy), nieobecnosci_(otoczenie.sesja), nadgodziny_(otoczenie.sesja) {}

ZrodlaPlac::~ZrodlaPlac() = default;

void ZrodlaPlac::przygotuj(qsizetype ile) {
    constexpr qsizetype kCzescFirmy = 8;
    odczyt_ = ile > 1 && ile * kCzescFirmy >= o_.sesja.rsPRACPR.RecordCount() ? Odczyt::Wszystkich
                                                                              : Odczyt::PoJednym;
    nieobecnosci_.zapomnij(odczyt_);
    nadgodziny_.zapomnij();
    podstawy_.reset();
    stareBrutto_.reset();
}

PodstawySrednich& ZrodlaPlac::podstawy() {
    if (!podstawy_) podstawy_ = std::make_unique<PodstawySrednich>(o_.sesja, o_.stale, odczyt_);
    return *podstawy_;
}

void ZrodlaPlac::dodajPytaniaDni(const MiesiacPlac& miesiac, qint64 prcId, Zakres zakres, ZbiorPytan& moga) {
    if (!o_.stale.AktRejPrzepDni) return;
    moga.dodaj(Pytanie::LiczycDni);
    if (!o_.stale.OsobHarPrac) return;
    moga.dodaj(Pytanie::DniZKalendarza);
    const auto [rok, mies] = miesiac.rm;
    if (zakres == Zakres::Wiersz && !nieobecnosci_.kalendarzPusty() &&
        !nieobecnosci_.kalendarz(prcId, rok, mies) &&
        !NieobecnosciPokrywajaSie(miesiac.rm, nieobecnosci_.urlopy(prcId),
                                  nieobecnosci_.zwolnieniaRoku(prcId)))
        moga.dodaj(Pytanie::SzukacOgolnych);
}

namespace {

/// A register that cannot be read for damage may hold something: were its question left out, the calculation
/// would pass the damage by instead of naming the employee.
template <typename Funkcja>
bool jestAlboUszkodzone(const Funkcja& jest) {
    try {
        return jest();
    } catch (const BladBazy&) {
        throw;
    } catch (const Blad&) {
        return true;
    }
}

} // namespace

void ZrodlaPlac::dodajPytaniaSkladnikow(const MiesiacPlac& miesiac, qint64 prcId, ZbiorPytan& moga) {
    const Stale& c = o_.stale;
    if (c.AktRejNadg && !moga.ma(Pytanie::PrzenosicNadgodziny))
        moga.dodaj(Pytanie::PrzenosicNadgodziny,
                   jestAlboUszkodzone([&] { return nadgodziny_.pracownika(prcId).has_value(); }));
    if ((!moga.ma(Pytanie::LiczycL4) || !moga.ma(Pytanie::PomniejszycZasilek)) && jestAlboUszkodzone([&] {
            return SaZwolnieniaMiesiaca(nieobecnosci_.zwolnieniaRoku(prcId), miesiac.rm);
        })) {
        moga.dodaj(Pytanie::LiczycL4);
        moga.dodaj(Pytanie::ObowiazekZKalendarza, c.OsobHarPrac);
        moga.dodaj(Pytanie::ZasadniczaPoL4, c.PlZas != 0);
        // The bonus follows the base salary of the row, and is left alone where that is out of use.
        moga.dodaj(Pytanie::PremiaPoL4, c.PremPr != 0 && (c.PlZas == 0 || miesiac.aktywny(c.PlZas)));
        if (jestAlboUszkodzone(
                [&] { return PlaciUbezpieczyciel(miesiac, nieobecnosci_.zwolnieniaRoku(prcId)); }))
            moga.dodaj(Pytanie::PomniejszycZasilek);
    }
    if ((!moga.ma(Pytanie::LiczycUrlop) || !moga.ma(Pytanie::JedenSkladnik)) &&
        jestAlboUszkodzone([&] { return !nieobecnosci_.urlopy(prcId).empty(); })) {
        moga.dodaj(Pytanie::LiczycUrlop);
        moga.dodaj(Pytanie::UrlopZKalendarza, c.OsobHarPrac);
        moga.dodaj(Pytanie::SkladnikiPoUrlopie);
        if (jestAlboUszkodzone(
                [&] { return OkresyUrlopow(miesiac.rm, nieobecnosci_.urlopy(prcId)).size() > 1; }))
            moga.dodaj(Pytanie::JedenSkladnik);
    }
}

std::optional<DaneDni> ZrodlaPlac::dni(const MiesiacPlac& miesiac, qint64 prcId,
                                       const Odpowiedzi& odpowiedzi) {
    if (!odpowiedzi.ma(Pytanie::LiczycDni)) return std::nullopt;
    const auto [rok, mies] = miesiac.rm;
    DaneDni d{nieobecnosci_.urlopy(prcId), nieobecnosci_.zwolnieniaRoku(prcId),
              nieobecnosci_.kalendarzPusty()};
    const bool wlasny = odpowiedzi.ma(Pytanie::DniZKalendarza);
    if (wlasny) d.kalendarz = nieobecnosci_.kalendarz(prcId, rok, mies);
    if (!wlasny || (!d.kalendarz && odpowiedzi.ma(Pytanie::SzukacOgolnych)))
        d.kalendarz = nieobecnosci_.kalendarz(0, rok, mies);
    return d;
}

DaneSkladnikow ZrodlaPlac::skladniki(const MiesiacPlac& miesiac, const WierszPlac& wiersz, Zakres zakres,
                                     const Odpowiedzi& odpowiedzi) {
    WykazyPodstaw* wykazy = zakres == Zakres::Wiersz ? wykazy_ : nullptr;
    DaneSkladnikow d;
    if (odpowiedzi.ma(Pytanie::PrzenosicNadgodziny))
        d.nadgodziny = nadgodziny_.pracownika(wiersz.klucz.prcId);
    if (odpowiedzi.ma(Pytanie::LiczycL4)) d.l4 = l4(miesiac, wiersz, wykazy, odpowiedzi);
    if (odpowiedzi.ma(Pytanie::LiczycUrlop)) d.urlop = urlop(miesiac, wiersz, wykazy, odpowiedzi);
    return d;
}

std::optional<DaneL4> ZrodlaPlac::l4(const MiesiacPlac& miesiac, const WierszPlac& wiersz,
                                     WykazyPodstaw* wykazy, const Odpowiedzi& odpowiedzi) {
    const qint64 prcId = wiersz.klucz.prcId;
    const auto [rok, mies] = miesiac.rm;
    const Nieobecnosci zwolnienia = nieobecnosci_.zwolnieniaRoku(prcId);
    if (!SaZwolnieniaMiesiaca(zwolnienia, miesiac.rm)) return std::nullopt;
    const auto kalendarz = odpowiedzi.ma(Pytanie::ObowiazekZKalendarza)
                               ? nieobecnosci_.kalendarzLubOgolny(prcId, rok, mies)
                               : nieobecnosci_.kalendarz(0, rok, mies);
    DaneL4 d{zwolnienia, DniObowiazkuPracy(miesiac.rm, kalendarz),
             SredniaDoL4(podstawy().doL4(prcId, std::min(o_.stale.MiesSrBr, kNajwiecejMiesiecyL4)))};
    if (wykazy)
        d.srednie = PoprawionaSrednia(d.srednie,
                                      wykazy->sredniaL4(d.srednie.miesiace, d.srednie.SredniaBrutto), wiersz);
    return d;
}

std::optional<DaneUrlopu> ZrodlaPlac::urlop(const MiesiacPlac& miesiac, const WierszPlac& wiersz,
                                            WykazyPodstaw* wykazy, const Odpowiedzi& odpowiedzi) {
    const qint64 prcId = wiersz.klucz.prcId;
    const Nieobecnosci urlopy = nieobecnosci_.urlopy(prcId);
    if (urlopy.empty()) return std::nullopt;
    DaneUrlopu d{OkresyUrlopow(miesiac.rm, urlopy), {}, {}};
    for (OkresDoWyceny& okres : d.okresy)
        okres.dni = odpowiedzi.ma(Pytanie::UrlopZKalendarza)
                        ? DniWedlugKalendarza(okres, nieobecnosci_.kalendarzLubOgolny(prcId, okres.od.year(),
                                                                                      okres.od.month()))
                        : DniWedlugTygodnia(miesiac, okres);
    const SredniaUrlopu srednia =
        SredniaDoUrlopu(podstawy().doUrlopu(prcId, std::min(o_.stale.ZIluMSrDn, kNajwiecejMiesiecyUrlopu)));
    d.StawkaDzienna =
        wykazy ? wykazy->dniowka(srednia.miesiace, srednia.dni, srednia.StawkaDzienna).value_or(Waluta{})
               : srednia.StawkaDzienna;
    if (d.okresy.size() > 1 && !odpowiedzi.ma(Pytanie::JedenSkladnik))
        d.skladniki = skladnikiOkresow(miesiac, d, wykazy);
    return d;
}

QList<std::optional<int>> ZrodlaPlac::skladnikiOkresow(const MiesiacPlac& miesiac, const DaneUrlopu& dane,
                                                       WykazyPodstaw* wykazy) {
    const QList<int> proponowane = ProponowaneSkladniki(miesiac, dane.okresy.size());
    QList<std::optional<int>> wynik;
    for (qsizetype i = 0; i < dane.okresy.size(); ++i)
        wynik.append(
            wybranySkladnik(miesiac, WycenOkres(dane.okresy[i], dane.StawkaDzienna), proponowane[i], wykazy));
    return wynik;
}

std::optional<int> ZrodlaPlac::wybranySkladnik(const MiesiacPlac& miesiac, const OkresUrlopu& okres,
                                               int proponowany, WykazyPodstaw* wykazy) {
    if (!wykazy) return miesiac.aktywny(proponowany) ? std::optional(proponowany) : std::nullopt;
    for (;;) {
        const std::optional<int> nr = wykazy->numerSkladnika(okres, proponowany);
        if (!nr || *nr < 1 || *nr > 30) return std::nullopt;
        if (miesiac.aktywny(*nr)) return nr;
        if (!o_.rozmowa.pytanie(QStringLiteral("Podany numer składnika jest nieaktywny. Ponowić próbę ?")))
            return std::nullopt;
    }
}

BruttoRoku ZrodlaPlac::OdczytajStareBrutto(const DanePracownika& p, Zakres zakres) {
    if (!stareBrutto_) {
        stareBrutto_ = std::make_unique<StareBrutto>(o_.sesja);
        if (odczyt_ == Odczyt::Wszystkich) stareBrutto_->wczytajWszystkich();
    }
    BruttoRoku rok{p.doch_start + stareBrutto_->zListPlac(p.prc_id), {}};
    if (zakres == Zakres::Wiersz) rok.kwotaUmow = stareBrutto_->zUmow(p.prc_id);
    return rok;
}

void LiczDni(const AkcjaPlac& akcja, RachunekWiersza& r) {
    if (!akcja.miesiac.stale.AktRejPrzepDni) {
        r.uwagi.append({QStringLiteral("Rejestracja przepracowanych dni jest wyłączona. Nie można obliczyć "
                                       "ilości przepracowanych dni, urlopu i L-4."),
                        Zakres::Wiersz});
        return;
    }
    const auto dane = akcja.zrodla.dni(akcja.miesiac, r.wiersz.klucz.prcId, akcja.odpowiedzi);
    if (!dane) return;
    const WynikDni wynik = Przelicz_Dni(akcja.miesiac.rm, *dane);
    if (wynik.dni) r.wiersz.dni = *wynik.dni;
    r.uwagi += wynik.uwagi;
}

void LiczSkladniki(const AkcjaPlac& akcja, const DanePracownika& p, RachunekWiersza& r) {
    const DaneSkladnikow dane =
        akcja.zrodla.skladniki(akcja.miesiac, r.wiersz, akcja.zakres, akcja.odpowiedzi);
    WynikSkladnikow wynik = Przelicz2(akcja.miesiac, r.wiersz, p, dane, akcja.odpowiedzi);
    r.wiersz = std::move(wynik.wiersz);
    r.zasilek = wynik.ZasilekChorobowy;
    r.uwagi += wynik.uwagi;
}

void LiczPlace(const AkcjaPlac& akcja, const DanePracownika& p, Kroki kroki, RachunekWiersza& r) {
    const BruttoRoku rok = GrupaStala(p) ? BruttoRoku{} : akcja.zrodla.OdczytajStareBrutto(p, akcja.zakres);
    const Waluta zasilek = ZasilekChorobowy(akcja.miesiac, r.wiersz, r.zasilek);
    WynikPlacy wynik = PoliczPlace(akcja.miesiac, {r.wiersz, p, rok, zasilek}, kroki, akcja.odpowiedzi);
    r.wiersz = std::move(wynik.wiersz);
    r.sumy = wynik.sumy;
    r.uwagi += wynik.uwagi;
}

} // namespace tornel::payroll
