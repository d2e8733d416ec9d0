#include "reports/kadry/DaneOsoby.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "store/Sesja.h"

namespace tornel::reports {

using schemat::PRACDP;
using schemat::PRACPR;

namespace {

QString zlacz(const QStringList& czesci, const QString& spojnik) {
    QStringList niepuste;
    for (const QString& c : czesci)
        if (const QString t = c.simplified(); !t.isEmpty()) niepuste.append(t);
    return niepuste.join(spojnik);
}

struct KolumnyAdresu {
    Kolumna miasto, kod, ulica, dom, mieszkanie;
};

QString adresOsoby(const Wiersz& dp, const KolumnyAdresu& k) {
    const QString numer = zlacz({dp.tekst(k.dom), dp.tekst(k.mieszkanie)}, QStringLiteral("/"));
    return zlacz({zlacz({dp.tekst(k.kod), dp.tekst(k.miasto)}, QStringLiteral(" ")),
                  zlacz({dp.tekst(k.ulica), numer}, QStringLiteral(" "))},
                 QStringLiteral(", "));
}

/// "Dział: Zarząd   Stanowisko: dyrektor"; what is not known is left out.
QString zNapisami(std::initializer_list<std::pair<QStringView, QString>> czesci) {
    QStringList wynik;
    for (const auto& [napis, tekst] : czesci)
        if (!tekst.trimmed().isEmpty()) wynik.append(napis.toString() + QLatin1Char(' ') + tekst.trimmed());
    return wynik.join(QStringLiteral("     "));
}

void wypelnijZatrudnienie(DaneOsoby& o, const Wiersz& pr) {
    o.dzial = pr.tekst(PRACPR("dzial")).trimmed();
    o.stanowisko = pr.tekst(PRACPR("stanow")).trimmed();
    const qint64 licznik = pr.liczba(PRACPR("etat")), mianownik = pr.liczba(PRACPR("etat2"));
    if (licznik > 0 && mianownik > 0) o.etat = QStringLiteral("%1/%2").arg(licznik).arg(mianownik);
    o.zatrudniony = pr.data(PRACPR("data_zatr"));
    o.zwolniony = pr.data(PRACPR("data_zwoln"));
    o.umowaOd = pr.data(PRACPR("umowa_od"));
    o.umowaDo = pr.data(PRACPR("umowa_do"));
    o.odszedl = pr.flaga(PRACPR("Zwoln"));
    o.usId = pr.liczba(PRACPR("us_id"));
    o.urlopZalegly = pr.liczba(PRACPR("il_zal_url"));
    o.urlopNowy = pr.liczba(PRACPR("il_url"));
    o.przychodBO = pr.kwota(PRACPR("doch_start"));
    o.kosztyBO = pr.kwota(PRACPR("kup_start"));
    o.skladkiBO =
        pr.kwota(PRACPR("fepc_start")) + pr.kwota(PRACPR("frpc_start")) + pr.kwota(PRACPR("fcpc_start"));
    o.zdrowotneNalezneBO = pr.kwota(PRACPR("ubzp_start"));
    o.zdrowotneOdliczoneBO = pr.kwota(PRACPR("ubzo_start"));
    o.podatekBO = pr.kwota(PRACPR("pod_start"));
}

} // namespace

QString DaneOsoby::pelneNazwisko() const { return zlacz({nazwisko, imie, imie2}, QStringLiteral(" ")); }

QString DaneOsoby::okresZatrudnienia() const {
    return zlacz({zatrudniony.isValid() ? QStringLiteral("od ") + FormatDaty(zatrudniony) : QString(),
                  zwolniony.isValid() ? QStringLiteral("do ") + FormatDaty(zwolniony) : QString()},
                 QStringLiteral(" "));
}

QList<DaneOsoby> DaneOsob(Otoczenie& otoczenie, const QList<qint64>& numery) {
    static constexpr KolumnyAdresu kZamieszkania{PRACDP("miasto_m"), PRACDP("kod_m"), PRACDP("ulica_m"),
                                                 PRACDP("nr_domu_m"), PRACDP("nr_miesz_m")};
    static constexpr KolumnyAdresu kZameldowania{PRACDP("miasto"), PRACDP("Kod"), PRACDP("ulica"),
                                                 PRACDP("nr_domu"), PRACDP("nr_miesz")};
    QList<DaneOsoby> wynik;
    wynik.reserve(numery.size());
    for (const qint64 prcId : numery) {
        const auto dp = otoczenie.sesja.rsPRACDP.szukaj(prcId);
        if (!dp) throw Blad(QStringLiteral("W kadrach nie ma pracownika o numerze %1.").arg(prcId));
        DaneOsoby o;
        o.prcId = prcId;
        o.nazwisko = dp->tekst(PRACDP("Naz"));
        o.imie = dp->tekst(PRACDP("Imie_1"));
        o.imie2 = dp->tekst(PRACDP("imie_2"));
        o.kobieta = dp->tekst(PRACDP("plec")) == QLatin1String("K");
        o.dataUrodzenia = dp->data(PRACDP("data_ur"));
        o.miejsceUrodzenia = dp->tekst(PRACDP("miejsce_ur")).trimmed();
        o.pesel = dp->tekst(PRACDP("pesel")).trimmed();
        o.nip = dp->tekst(PRACDP("Nip")).trimmed();
        o.dowod = zlacz({dp->tekst(PRACDP("dowod_ser")), dp->tekst(PRACDP("dowod_nr"))}, QStringLiteral(" "));
        o.rodzice =
            zlacz({dp->tekst(PRACDP("imie_oj")), dp->tekst(PRACDP("imie_mat"))}, QStringLiteral(", "));
        o.adres = adresOsoby(*dp, kZamieszkania);
        if (o.adres.isEmpty()) o.adres = adresOsoby(*dp, kZameldowania);
        if (const auto pr = otoczenie.sesja.rsPRACPR.szukaj(prcId)) wypelnijZatrudnienie(o, *pr);
        wynik.append(o);
    }
    return wynik;
}

Wartosc WierszeOsob::pole(int wiersz, int nr) const {
    const auto& [osoba, wierszOsoby] = wiersze_.at(static_cast<std::size_t>(wiersz));
    const DaneOsoby& o = osoby_.at(osoba);
    switch (nr) {
    case OsNumer:
        return o.prcId;
    case OsNazwisko:
        return o.pelneNazwisko();
    case OsPraca:
        return zNapisami({{u"Dział:", o.dzial},
                          {u"Stanowisko:", o.stanowisko},
                          {u"Etat:", o.etat},
                          {o.kobieta ? u"Zatrudniona" : u"Zatrudniony", o.okresZatrudnienia()}});
    case OsTozsamosc:
        return zNapisami({{u"PESEL:", o.pesel}, {u"NIP:", o.nip}, {u"Adres:", o.adres}});
    default:
        return poleOsoby(osoba, wierszOsoby, nr);
    }
}

} // namespace tornel::reports
