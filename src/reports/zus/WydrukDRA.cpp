#include "reports/zus/WydrukDRA.h"
#include "druk/Formularz.h"
#include "reports/Firma.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include "zus/RozliczenieDRA.h"

namespace tornel::reports {

using schemat::ZUS;

namespace {

enum PoleDRA {
    NumerDRA,
    MiesiacDRA,
    ListyDRA,
    DataDRA,
    NipDRA,
    RegonDRA,
    NazwaSkroconaDRA,
    PlatnikDRA,
    UbezpieczonychDRA,
    EmerytalnePlatnika,
    EmerytalneOsob,
    EmerytalneRazem,
    RentowePlatnika,
    RentoweOsob,
    RentoweRazem,
    ChoroboweOsob,
    ChoroboweRazem,
    WypadkowePlatnika,
    WypadkoweRazem,
    SpolecznePlatnika,
    SpoleczneOsob,
    SpoleczneRazem,
    SwiadczeniaChorobowe,
    SwiadczeniaWypadkowe,
    SwiadczeniaBudzetu,
    SwiadczeniaRazem,
    ZdrowotneDRA,
    FunduszPracyDRA,
    FunduszSwiadczen,
    FunduszeRazem,
    Wplata51,
    Wplata52,
    Wplata53,
    DoZaplatyDRA,
    kPolDRA,
};

// The lines are in data/formularze/dra.svg; mm from the form's corner.
constexpr double kSzerDRA = 186, kWysDRA = 260;
constexpr double kWiersz = 8, kKolumnaPlatnika = 66, kKolumnaOsob = 106, kKolumnaRazem = 146, kSzerKwoty = 40;
constexpr double kSkladki = 75, kSwiadczenia = 129, kZdrowotne = 167, kWplaty = 205; // tops of the tables

constexpr NapisFormularza czesc(double y, QStringView tekst) {
    return {{0, y, kSzerDRA, 4}, tekst, Pismo::Naglowek};
}
constexpr NapisFormularza podpis(double x, double y, QStringView tekst, double szer = 80) {
    return {{x + 1, y + 0.4, szer, 2.6}, tekst};
}
/// What a row of a table is about; `nr` counts from 0.
constexpr NapisFormularza wiersz(double y, int nr, QStringView tekst, double szer = 140) {
    return {{1.5, y + nr * kWiersz + 1.8, szer, 4.4}, tekst, Pismo::Formularz};
}
constexpr NapisFormularza kolumna(double x, QStringView tekst) {
    return {{x, kSkladki + 2.4, kSzerKwoty, 3}, tekst, Pismo::Drobne, Ulozenie::Srodek};
}

constexpr NapisFormularza kNapisyDRA[] = {
    {{0, 2, 40, 8}, u"ZUS DRA", Pismo::Tytul},
    {{40, 3, 146, 6}, u"DEKLARACJA ROZLICZENIOWA", Pismo::Tytul, Ulozenie::Srodek},
    czesc(16, u"I. DANE ORGANIZACYJNE"),
    podpis(0, 21, u"numer w miesiącu", 28),
    podpis(30, 21, u"miesiąc i rok"),
    podpis(76, 21, u"listy płac"),
    podpis(126, 21, u"data wypełnienia"),
    czesc(31, u"II. DANE PŁATNIKA SKŁADEK"),
    podpis(0, 36, u"NIP"),
    podpis(46, 36, u"REGON"),
    podpis(92, 36, u"nazwa skrócona"),
    podpis(0, 45, u"nazwa i adres"),
    czesc(55, u"III. LICZBA UBEZPIECZONYCH"),
    {{1.5, 62.4, 136, 4.4}, u"Osoby na listach płac miesiąca", Pismo::Formularz},
    czesc(70, u"IV. SKŁADKI NA UBEZPIECZENIA SPOŁECZNE"),
    {{1.5, kSkladki + 2.4, 60, 3}, u"rodzaj ubezpieczenia", Pismo::Drobne},
    kolumna(kKolumnaPlatnika, u"finansowane przez płatnika"),
    kolumna(kKolumnaOsob, u"finansowane przez ubezpieczonych"),
    kolumna(kKolumnaRazem, u"razem"),
    wiersz(kSkladki, 1, u"emerytalne", 62),
    wiersz(kSkladki, 2, u"rentowe", 62),
    wiersz(kSkladki, 3, u"chorobowe", 62),
    wiersz(kSkladki, 4, u"wypadkowe", 62),
    wiersz(kSkladki, 5, u"razem", 62),
    czesc(124, u"V. WYPŁACONE ŚWIADCZENIA"),
    wiersz(kSwiadczenia, 0, u"z ubezpieczenia chorobowego"),
    wiersz(kSwiadczenia, 1, u"z ubezpieczenia wypadkowego"),
    wiersz(kSwiadczenia, 2, u"z budżetu państwa"),
    wiersz(kSwiadczenia, 3, u"razem"),
    czesc(162, u"VI. UBEZPIECZENIE ZDROWOTNE, FUNDUSZ PRACY I FUNDUSZ GŚP"),
    wiersz(kZdrowotne, 0, u"ubezpieczenie zdrowotne"),
    wiersz(kZdrowotne, 1, u"Fundusz Pracy"),
    wiersz(kZdrowotne, 2, u"Fundusz Gwarantowanych Świadczeń Pracowniczych"),
    wiersz(kZdrowotne, 3, u"fundusze razem"),
    czesc(200, u"VII. DO ZAPŁATY"),
    wiersz(kWplaty, 0, u"51  ubezpieczenia społeczne po potrąceniu świadczeń (z minusem: do zwrotu)"),
    wiersz(kWplaty, 1, u"52  ubezpieczenie zdrowotne"),
    wiersz(kWplaty, 2, u"53  Fundusz Pracy i Fundusz GŚP"),
    wiersz(kWplaty, 3, u"RAZEM"),
    podpis(0, 242, u"pieczęć płatnika składek"),
    podpis(93, 242, u"data i podpis"),
};

constexpr PoleFormularza kwota(int pole, double x, double y, int nr, Pismo pismo = Pismo::Formularz) {
    return {pole, {x, y + nr * kWiersz + 1.4, kSzerKwoty - 2, 5.2}, Format::Kwota, Ulozenie::Prawo, pismo};
}
constexpr PoleFormularza tekstDRA(int pole, double x, double y, double szer) {
    return {pole, {x + 2, y + 3, szer - 3, 5.4}};
}

constexpr PoleFormularza kPolaDRA[] = {
    tekstDRA(NumerDRA, 0, 21, 30),
    tekstDRA(MiesiacDRA, 30, 21, 46),
    tekstDRA(ListyDRA, 76, 21, 50),
    {DataDRA, {128, 24, 56, 5.4}, Format::Data},
    tekstDRA(NipDRA, 0, 36, 46),
    tekstDRA(RegonDRA, 46, 36, 46),
    tekstDRA(NazwaSkroconaDRA, 92, 36, 94),
    tekstDRA(PlatnikDRA, 0, 45, kSzerDRA),
    {UbezpieczonychDRA, {kKolumnaRazem, 62, kSzerKwoty - 2, 5.4}, Format::Liczba, Ulozenie::Prawo},
    kwota(EmerytalnePlatnika, kKolumnaPlatnika, kSkladki, 1),
    kwota(EmerytalneOsob, kKolumnaOsob, kSkladki, 1),
    kwota(EmerytalneRazem, kKolumnaRazem, kSkladki, 1),
    kwota(RentowePlatnika, kKolumnaPlatnika, kSkladki, 2),
    kwota(RentoweOsob, kKolumnaOsob, kSkladki, 2),
    kwota(RentoweRazem, kKolumnaRazem, kSkladki, 2),
    kwota(ChoroboweOsob, kKolumnaOsob, kSkladki, 3),
    kwota(ChoroboweRazem, kKolumnaRazem, kSkladki, 3),
    kwota(WypadkowePlatnika, kKolumnaPlatnika, kSkladki, 4),
    kwota(WypadkoweRazem, kKolumnaRazem, kSkladki, 4),
    kwota(SpolecznePlatnika, kKolumnaPlatnika, kSkladki, 5),
    kwota(SpoleczneOsob, kKolumnaOsob, kSkladki, 5),
    kwota(SpoleczneRazem, kKolumnaRazem, kSkladki, 5),
    kwota(SwiadczeniaChorobowe, kKolumnaRazem, kSwiadczenia, 0),
    kwota(SwiadczeniaWypadkowe, kKolumnaRazem, kSwiadczenia, 1),
    kwota(SwiadczeniaBudzetu, kKolumnaRazem, kSwiadczenia, 2),
    kwota(SwiadczeniaRazem, kKolumnaRazem, kSwiadczenia, 3),
    kwota(ZdrowotneDRA, kKolumnaRazem, kZdrowotne, 0),
    kwota(FunduszPracyDRA, kKolumnaRazem, kZdrowotne, 1),
    kwota(FunduszSwiadczen, kKolumnaRazem, kZdrowotne, 2),
    kwota(FunduszeRazem, kKolumnaRazem, kZdrowotne, 3),
    kwota(Wplata51, kKolumnaRazem, kWplaty, 0),
    kwota(Wplata52, kKolumnaRazem, kWplaty, 1),
    kwota(Wplata53, kKolumnaRazem, kWplaty, 2),
    kwota(DoZaplatyDRA, kKolumnaRazem, kWplaty, 3, Pismo::Podtytul),
};

constexpr Formularz kFormularzDRA{u":/formularze/dra.svg", kSzerDRA, kWysDRA, kNapisyDRA, kPolaDRA};

QList<Wartosc> wartosciDRA(Otoczenie& o) {
    const Recordset& rs = o.sesja.rsZUS;
    const Wiersz w = rs.biezacyWiersz();
    const auto k = [&](std::string_view kolumna) { return w.kwota(ZUS.nr(ZUS.numer(kolumna))); };
    const Waluta platnika = k("Feprd") + k("Frprd") + k("fwprd"), osob = k("Feprc") + k("Frprc") + k("FcPrc");
    const Waluta swiadczenia = k("swiad_fc") + k("swiad_fw") + k("swiad_bp");
    const RokMies miesiac = RokMies::zId(w.tekst(ZUS("ROKMIES")).toLongLong());
    const QString listy = w.tekst(ZUS("Listy"));
    QList<Wartosc> v(kPolDRA);
    v[NumerDRA] = QString::number(w.liczba(ZUS("ID_DEKL")));
    v[MiesiacDRA] = MiesiacSlownie(miesiac);
    v[ListyDRA] = listy.isEmpty() ? QStringLiteral("wszystkie") : listy;
    v[DataDRA] = w.data(ZUS("data_wyp"));
    v[NipDRA] = o.stale.NIP;
    v[RegonDRA] = o.stale.Regon;
    v[NazwaSkroconaDRA] = o.stale.NazwaSkrocona;
    v[PlatnikDRA] = FirmaNaWydruku(o.stale).wLinii();
    v[UbezpieczonychDRA] = w.liczba(ZUS("il_ub"));
    v[EmerytalnePlatnika] = k("Feprd");
    v[EmerytalneOsob] = k("Feprc");
    v[EmerytalneRazem] = k("Feprd") + k("Feprc");
    v[RentowePlatnika] = k("Frprd");
    v[RentoweOsob] = k("Frprc");
    v[RentoweRazem] = k("Frprd") + k("Frprc");
    v[ChoroboweOsob] = v[ChoroboweRazem] = k("FcPrc");
    v[WypadkowePlatnika] = v[WypadkoweRazem] = k("fwprd");
    v[SpolecznePlatnika] = platnika;
    v[SpoleczneOsob] = osob;
    v[SpoleczneRazem] = platnika + osob;
    v[SwiadczeniaChorobowe] = k("swiad_fc");
    v[SwiadczeniaWypadkowe] = k("swiad_fw");
    v[SwiadczeniaBudzetu] = k("swiad_bp");
    v[SwiadczeniaRazem] = swiadczenia;
    v[ZdrowotneDRA] = v[Wplata52] = k("Ubzdr");
    v[FunduszPracyDRA] = k("Fp");
    v[FunduszSwiadczen] = k("Fgsp");
    v[FunduszeRazem] = v[Wplata53] = k("Fp") + k("Fgsp");
    v[Wplata51] = platnika + osob - swiadczenia;
    v[DoZaplatyDRA] = k("do_zaplaty");
    return v;
}

} // namespace

std::shared_ptr<const Uklad> UlozDRA(Otoczenie& otoczenie) {
    OpisWydruku opis{.nazwa = QStringLiteral("dra"), .tytul = QStringLiteral("Rozliczenie ZUS DRA")};
    opis.nazwyPol = QList<QString>(kPolDRA);
    for (const PoleFormularza& p : kPolaDRA)
        opis.nazwyPol[p.pole] = QStringLiteral("POLE_%1").arg(p.pole + 1);
    ulozFormularze(opis, {{{&kFormularzDRA, 12, 16}}}, Tlo::Obraz);
    return std::make_shared<Uklad>(
        std::move(opis), std::make_shared<WierszeWPamieci>(QList<QList<Wartosc>>{wartosciDRA(otoczenie)}));
}

} // namespace tornel::reports
