#include "reports/umowy/CzesciPism.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Slownie.h"
#include "rules/Stale.h"
#include "store/Sesja.h"

namespace tornel::reports {

namespace {

UmowaOPrace znajdzUmowe(const UmowyOPrace& umowy, qint64 id) {
    const auto umowa = umowy.umowa(id);
    if (!umowa) throw Blad(QStringLiteral("Nie ma umowy o numerze %1.").arg(id));
    return *umowa;
}

} // namespace

StronyUmowy::StronyUmowy(Otoczenie& otoczenie, qint64 id)
    : o(otoczenie), umowy(otoczenie), wybrana(znajdzUmowe(umowy, id)), umowa(umowy.glowna(wybrana)),
      osoba(DaneOsob(otoczenie, {umowa.prcId}).first()) {}

void StronyUmowy::wymagajPisma(PismoOPrace pismo) const {
    if (const QString odmowa = umowy.odmowaPisma(wybrana, pismo); !odmowa.isEmpty()) throw Blad(odmowa);
}

QString StronyUmowy::imieNazwisko() const {
    QString wynik = osoba.imie.trimmed() + QLatin1Char(' ') + osoba.imie2.trimmed();
    return (wynik.trimmed() + QLatin1Char(' ') + osoba.nazwisko.trimmed()).trimmed();
}

QString StronyUmowy::opisUmowy() const {
    QString wynik = QStringLiteral("umowę o pracę ") + NazwaRodzajuUmowy(umowa.rodzaj);
    if (!umowa.numer.isEmpty()) wynik += QStringLiteral(" nr ") + umowa.numer;
    if (umowa.zawarta.isValid()) wynik += QStringLiteral(", zawartą w dniu ") + FormatDaty(umowa.zawarta);
    return wynik;
}

QString StronyUmowy::miejscePracy() const {
    using schemat::M_PRACY;
    const auto m = o.sesja.rsM_PRACY.szukaj(umowa.warunki.miejsce);
    if (!m) return FirmaNaWydruku(o.stale).wLinii();
    QStringList numer{m->tekst(M_PRACY("nr_domu")).trimmed(), m->tekst(M_PRACY("nr_lokalu")).trimmed()};
    numer.removeAll(QString());
    QStringList czesci{
        m->tekst(M_PRACY("Nazwa")).trimmed(),
        (m->tekst(M_PRACY("ulica")).trimmed() + QLatin1Char(' ') + numer.join(QLatin1Char('/'))).trimmed(),
        (m->tekst(M_PRACY("Kod")).trimmed() + QLatin1Char(' ') + m->tekst(M_PRACY("miasto")).trimmed())
            .trimmed()};
    czesci.removeAll(QString());
    return czesci.join(QStringLiteral(", "));
}

void StronyUmowy::pracodawca(PismoDoPodpisu& p) const {
    const Stale& s = o.stale;
    for (const QString& linia : {s.NazwaUzCz1, s.NazwaUzCz2, s.Ulica, s.KodiMiasto})
        if (!linia.trimmed().isEmpty()) p.srodtytul(linia.trimmed());
    QStringList znaki;
    if (!s.NIP.trimmed().isEmpty()) znaki += QStringLiteral("NIP ") + s.NIP.trimmed();
    if (!s.Regon.trimmed().isEmpty()) znaki += QStringLiteral("REGON ") + s.Regon.trimmed();
    if (!znaki.isEmpty()) p.akapit(znaki.join(QStringLiteral(", ")));
}

void StronyUmowy::adresat(PismoDoPodpisu& p) const {
    p.odstep();
    p.doPrawej(forma(u"Pan", u"Pani"));
    p.doPrawej(imieNazwisko());
    if (!osoba.adres.isEmpty()) p.doPrawej(osoba.adres);
    p.odstep();
}

void StronyUmowy::miejsceIData(PismoDoPodpisu& p, QDate dzien) const {
    const QString miejsce = MiejscowoscPism(o.stale);
    p.doPrawej((miejsce.isEmpty() ? QString() : miejsce + QStringLiteral(", ")) + QStringLiteral("dnia ") +
               (dzien.isValid() ? FormatDaty(dzien) : QString(24, u'.')));
}

QString KwotaZeSlowami(Waluta kwota) {
    const QString slownie = SlownieKwota(kwota);
    return zlote(kwota) + (slownie.isEmpty() ? QString() : QStringLiteral(" (słownie: %1)").arg(slownie));
}

QString MiejsceNaWpis(int kropek) { return QString(kropek, u'.'); }

} // namespace tornel::reports
