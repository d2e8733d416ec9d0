#include "reports/umowy/DaneUmowy.h"
#include "reports/umowy/Pismo.h"
#include "rules/Stale.h"
#include "store/Sesja.h"

namespace tornel::reports {

using schemat::PRACDP;
using schemat::US;

namespace {

QString zlaczone(std::initializer_list<QString> czesci, QStringView lacznik) {
    QStringList niepuste;
    for (const QString& c : czesci)
        if (!c.trimmed().isEmpty()) niepuste.append(c.trimmed());
    return niepuste.join(lacznik);
}

} // namespace

DaneUmowy::DaneUmowy(Otoczenie& otoczenie, const RodzajUmowy& rodzaj, qint64 id)
    : o_(otoczenie), rodzaj_(rodzaj), umowa_(*rodzaj.tabela) {
    umowa_.Open(o_.sesja.cnPlace, {}, {{rodzaj.id, Kryterium::Operator::Rowne, id}});
    if (!umowa_.naWierszu()) return;
    dp_ = o_.sesja.rsPRACDP.szukaj(umowa_.liczba(kolumna("prc_id")));
    jest_ = dp_.has_value();
    urzad_.Open(o_.sesja.cnPlace, {},
                {{US("US_ID"), Kryterium::Operator::Rowne, umowa_.liczba(kolumna("us_id"))}});
    maUrzad_ = urzad_.naWierszu();
}

QString DaneUmowy::tekst(std::string_view nazwa) const { return umowa_.tekst(kolumna(nazwa)).trimmed(); }
Waluta DaneUmowy::kwota(std::string_view nazwa) const { return umowa_.kwota(kolumna(nazwa)); }
QString DaneUmowy::data(std::string_view nazwa) const { return dataPisma(umowa_.data(kolumna(nazwa))); }
QString DaneUmowy::osoba(std::string_view nazwa) const {
    return dp_->tekst(PRACDP.nr(PRACDP.numer(nazwa))).trimmed();
}
QString DaneUmowy::osobaData(std::string_view nazwa) const {
    return dataPisma(dp_->data(PRACDP.nr(PRACDP.numer(nazwa))));
}
QString DaneUmowy::urzad(std::string_view nazwa) const {
    return urzad_.tekst(US.nr(US.numer(nazwa))).trimmed();
}

Waluta DaneUmowy::skladki() const { return kwota("Feprc") + kwota("Frprc") + kwota("FcPrc"); }
Waluta DaneUmowy::przychod() const { return kwota("Brutto") - skladki(); }

QString DaneUmowy::imieNazwisko() const { return zlaczone({osoba("Imie_1"), osoba("Naz")}, u" "); }
QString DaneUmowy::rodzice() const { return zlaczone({osoba("imie_oj"), osoba("imie_mat")}, u" / "); }
QString DaneUmowy::ulica() const {
    return zlaczone({osoba("ulica"), zlaczone({osoba("nr_domu"), osoba("nr_miesz")}, u" / ")}, u" ");
}
QString DaneUmowy::kodMiasto() const { return zlaczone({osoba("Kod"), osoba("miasto")}, u" "); }
QString DaneUmowy::dowod() const { return zlaczone({osoba("dowod_ser"), osoba("dowod_nr")}, u" "); }
QString DaneUmowy::adresUrzedu() const {
    return zlaczone({urzad("ulica"), urzad("nr_domu"), urzad("Kod"), urzad("miasto")}, u" ");
}

QStringList DaneUmowy::pracodawca() const {
    const Stale& s = o_.stale;
    QStringList wynik;
    for (const QString& linia : {s.NazwaUzCz1, s.NazwaUzCz2, s.Ulica, s.KodiMiasto})
        if (!linia.trimmed().isEmpty()) wynik.append(linia.trimmed());
    return wynik;
}

QString DaneUmowy::miastoDnia() const { return o_.stale.MiastoDok.trimmed() + QStringLiteral(", dnia"); }

} // namespace tornel::reports
