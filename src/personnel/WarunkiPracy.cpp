#include "personnel/WarunkiPracy.h"

namespace tornel::personnel {

using schemat::PRACPR;
using schemat::UMOP;

namespace {

constexpr QStringView kRodzajeOPrace[] = {u"na okres próbny", u"na czas określony", u"na czas nieokreślony",
                                          u"na czas wykonania określonej pracy"};

constexpr OpisSposobu kSposobyOPrace[] = {
    {u"trwa", {}, {}},
    {u"wypowiedzenie przez pracodawcę", u"rozwiązania za wypowiedzeniem dokonanym przez pracodawcę",
     u"art. 30 § 1 pkt 2 Kodeksu pracy"},
    {u"wypowiedzenie przez pracownika", u"rozwiązania za wypowiedzeniem dokonanym przez pracownika",
     u"art. 30 § 1 pkt 2 Kodeksu pracy"},
    {u"porozumienie stron", u"rozwiązania na mocy porozumienia stron", u"art. 30 § 1 pkt 1 Kodeksu pracy"},
    {u"upływ czasu", u"rozwiązania z upływem czasu, na który umowa była zawarta",
     u"art. 30 § 1 pkt 4 Kodeksu pracy"},
    {u"ukończenie pracy", u"rozwiązania z dniem ukończenia pracy, dla której wykonania umowa była zawarta",
     u"art. 30 § 1 pkt 5 Kodeksu pracy"},
    {u"bez wypowiedzenia przez pracodawcę", u"rozwiązania bez wypowiedzenia przez pracodawcę",
     u"art. 30 § 1 pkt 3 Kodeksu pracy"},
    {u"bez wypowiedzenia przez pracownika", u"rozwiązania bez wypowiedzenia przez pracownika",
     u"art. 30 § 1 pkt 3 Kodeksu pracy"},
    {u"wygaśnięcie", u"wygaśnięcia", u"art. 63 Kodeksu pracy"},
};

/// The same terms in a record of a contract and in one of the personnel file.
struct KolumnyWarunkow {
    Kolumna od, dokad, stanowisko, dzial, miejsce, etat, etat2, placa, stawka, premia;
};
constexpr KolumnyWarunkow kUmowy{UMOP("data_od"), UMOP("data_do"),  UMOP("stanow"), UMOP("dzial"),
                                 UMOP("mp_id"),   UMOP("etat"),     UMOP("etat2"),  UMOP("placa_zas"),
                                 UMOP("Sgp"),     UMOP("Premia_pr")};
constexpr KolumnyWarunkow kKartoteki{
    PRACPR("umowa_od"), PRACPR("umowa_do"), PRACPR("stanow"),    PRACPR("dzial"), PRACPR("mp_id"),
    PRACPR("etat"),     PRACPR("etat2"),    PRACPR("placa_zas"), PRACPR("Sgp"),   PRACPR("Premia_pr")};

WarunkiPracy czytajWarunki(const Wiersz& w, const KolumnyWarunkow& k) {
    return {w.data(k.od),
            w.data(k.dokad),
            w.tekst(k.stanowisko).trimmed(),
            w.tekst(k.dzial).trimmed(),
            w.liczba(k.miejsce),
            w.liczba(k.etat),
            w.liczba(k.etat2),
            w.kwota(k.placa),
            w.kwota(k.stawka),
            w.kwota(k.premia)};
}

void wpiszWarunki(Recordset& rs, const KolumnyWarunkow& k, const WarunkiPracy& w) {
    rs.ustaw(k.od, w.od);
    rs.ustaw(k.dokad, w.dokad);
    rs.ustaw(k.stanowisko, w.stanowisko);
    rs.ustaw(k.dzial, w.dzial);
    rs.ustaw(k.miejsce, w.miejsce);
    rs.ustaw(k.etat, w.etat);
    rs.ustaw(k.etat2, w.etat2);
    rs.ustaw(k.placa, w.placa);
    rs.ustaw(k.stawka, w.stawka);
    rs.ustaw(k.premia, w.premia);
}

SposobRozwiazania sposobZNumeru(qint64 numer) {
    return numer > 0 && numer < std::ssize(kSposobyOPrace) ? static_cast<SposobRozwiazania>(numer)
                                                           : SposobRozwiazania::Trwa;
}

} // namespace

std::span<const QStringView> RodzajeUmowOPrace() { return kRodzajeOPrace; }

QString NazwaRodzajuUmowy(qint64 rodzaj) {
    return rodzaj >= 0 && rodzaj < std::ssize(kRodzajeOPrace) ? kRodzajeOPrace[rodzaj].toString() : QString();
}

std::span<const OpisSposobu> SposobyRozwiazania() { return kSposobyOPrace; }

const OpisSposobu& OpisRozwiazania(SposobRozwiazania sposob) {
    return kSposobyOPrace[static_cast<std::size_t>(sposob)];
}

WarunkiPracy WarunkiUmowy(const Wiersz& umowa) { return czytajWarunki(umowa, kUmowy); }
WarunkiPracy WarunkiKartoteki(const Wiersz& ustawienia) { return czytajWarunki(ustawienia, kKartoteki); }
void WpiszWarunkiUmowy(Recordset& umowy, const WarunkiPracy& warunki) {
    wpiszWarunki(umowy, kUmowy, warunki);
}
void WpiszWarunkiKartoteki(Recordset& ustawienia, const WarunkiPracy& warunki) {
    wpiszWarunki(ustawienia, kKartoteki, warunki);
}

QString NapisEtatu(qint64 licznik, qint64 mianownik) {
    if (licznik <= 0 || mianownik <= 0) return {};
    return licznik == mianownik ? QStringLiteral("pełny etat")
                                : QStringLiteral("%1/%2 etatu").arg(licznik).arg(mianownik);
}

UmowaOPrace UmowaZWiersza(const Wiersz& w) {
    UmowaOPrace u;
    u.id = w.liczba(UMOP("UMOPID"));
    u.numer = w.tekst(UMOP("umop_nr")).trimmed();
    u.prcId = w.liczba(UMOP("prc_id"));
    u.nazwisko = w.tekst(UMOP("Naz"));
    u.imie = w.tekst(UMOP("Imie"));
    u.rodzaj = w.liczba(UMOP("rodzaj"));
    u.zawarta = w.data(UMOP("data_zaw"));
    u.warunki = WarunkiUmowy(w);
    u.zmienia = w.liczba(UMOP("zmienia"));
    u.wypowiadalna = w.flaga(UMOP("wyp_2tyg"));
    u.inneWarunki = w.tekst(UMOP("inne_war")).trimmed();
    u.sposob = sposobZNumeru(w.liczba(UMOP("sposob")));
    u.wypowiedziana = w.data(UMOP("data_wyp"));
    u.rozwiazana = w.data(UMOP("data_roz"));
    u.przyczyna = w.tekst(UMOP("przyczyna")).trimmed();
    return u;
}

} // namespace tornel::personnel
