#include "cli/Polecenia.h"
#include "cli/WierszTabeli.h"
#include "cli/Wydruk.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "reports/zus/WydrukDRA.h"
#include "reports/zus/WydrukKedu.h"
#include "store/Sesja.h"
#include "zus/OdczytKedu.h"
#include "zus/RozliczenieDRA.h"
#include "zus/ZbiorKedu.h"
#include <QFileInfo>

namespace tornel::cli {

namespace {

QString opcjaZus(const Wywolanie& w, const char16_t* nazwa) {
    return w.argumenty.wartosc(QString::fromUtf16(nazwa));
}
bool jestOpcja(const Wywolanie& w, const char16_t* nazwa) {
    return w.argumenty.ma(QString::fromUtf16(nazwa));
}

QDate dzienOpcji(const Wywolanie& w, const char16_t* nazwa) {
    const auto data = CzytajDate(opcjaZus(w, nazwa));
    if (!data)
        throw ZleUzycie(QStringLiteral("Brak daty dd-mm-rrrr po --%1.").arg(QString::fromUtf16(nazwa)));
    return *data;
}

/// "RCA", "ZPA=2".
void wybierzDokument(WyborDokumentow& wybor, const QString& tekst) {
    const QString nazwa = tekst.section(QLatin1Char('='), 0, 0);
    const DokumentKedu* dokument = znajdzDokument(nazwa);
    if (!dokument || dokument->petla == Petla::Brak)
        throw ZleUzycie(QStringLiteral("Nie ma dokumentu „%1”.").arg(nazwa));
    const bool zTypem = dokument->petla == Petla::Platnik;
    if (zTypem != tekst.contains(QLatin1Char('=')))
        throw ZleUzycie(QStringLiteral("Typ od 0 do 3 podaje się przy ZPA i ZFA, na przykład ZPA=1."));
    wybor.ustaw(dokument->kod, zTypem ? liczbaZTekstu(tekst.section(QLatin1Char('='), 1), 0, 3,
                                                      QStringLiteral("typ dokumentu"))
                                      : 1);
}

void wybierzRaporty(const Wywolanie& w, ZamowienieKedu& zamowienie) {
    for (const DokumentKedu& d : DokumentyKedu()) {
        if (d.petla != Petla::Raport || !zamowienie.wybor.jest(d.kod)) continue;
        if (!jestOpcja(w, u"miesiac"))
            throw ZleUzycie(QStringLiteral("Raport ZUS %1 wymaga --miesiac RRRR-MM.").arg(d.nazwa));
        const RokMies miesiac = miesiacZTekstu(opcjaZus(w, u"miesiac"));
        zamowienie.raporty[d.kod] = {miesiac, jestOpcja(w, u"identyfikator")
                                                  ? opcjaZus(w, u"identyfikator")
                                                  : DomyslnyIdentyfikator(miesiac)};
    }
}

int keduZapisz(Wywolanie& w) {
    ZamowienieKedu zamowienie{.plik = w.argumenty.pozycje.first(), .kiedy = QDateTime::currentDateTime()};
    const QStringList dokumenty = w.argumenty.opcje.value(QStringLiteral("dokument"));
    if (dokumenty.isEmpty()) throw ZleUzycie(QStringLiteral("Brak dokumentów po --dokument."));
    for (const QString& d : dokumenty) wybierzDokument(zamowienie.wybor, d);
    if (jestOpcja(w, u"pracownik") == jestOpcja(w, u"wszyscy"))
        throw ZleUzycie(QStringLiteral("Podaje się --wszyscy albo --pracownik N."));
    if (jestOpcja(w, u"pracownik")) zamowienie.prcId = numerPracownikaZTekstu(opcjaZus(w, u"pracownik"));
    if (jestOpcja(w, u"zlecenia-od") || jestOpcja(w, u"zlecenia-do"))
        zamowienie.zlecenia = {dzienOpcji(w, u"zlecenia-od"), dzienOpcji(w, u"zlecenia-do")};
    wybierzRaporty(w, zamowienie);
    Otoczenie& o = w.otoczenie();
    if (QFileInfo::exists(zamowienie.plik) && !o.rozmowa.pytanie(kPytanieOPlik.toString()))
        return status::Odmowa;
    return ZbiorKedu(o, zamowienie).StworzPlik() ? status::Wykonane : status::Odmowa;
}

int keduPokaz(Wywolanie& w) {
    const OdczytKedu kolekcja = OdczytKedu::zPliku(w.argumenty.pozycje.first());
    for (const DokumentOdczytany& d : kolekcja.dokumenty()) {
        w.pisz(QStringLiteral("ZUS %1 %2").arg(d.kod, kolekcja.osoba(d)).trimmed());
        for (const BlokOdczytany& b : d.bloki) {
            w.pisz(QStringLiteral("  %1 %2").arg(b.nazwa, b.opis));
            for (const PoleOdczytane& p : kolekcja.pola(b))
                if (!p.puste) w.pisz(QStringLiteral("    %1: %2").arg(p.napis, p.wartosc));
        }
    }
    for (const QString& uwaga : kolekcja.uwagi()) w.otoczenie().rozmowa.komunikat(uwaga, Styl::Wykrzyknik);
    return status::Wykonane;
}

int wydrukKedu(Wywolanie& w) {
    WymagajDrogi(w.argumenty);
    const QString& plik = w.argumenty.pozycje.first();
    WypiszWydruk(w, *reports::UlozKedu(std::make_shared<OdczytKedu>(OdczytKedu::zPliku(plik)), plik));
    return status::Wykonane;
}

KluczDRA kluczDra(const Wywolanie& w) {
    return {miesiacZTekstu(w.argumenty.pozycje.first()),
            jestOpcja(w, u"numer") ? liczbaZTekstu(opcjaZus(w, u"numer"), 1, 32767, QStringLiteral("numer"))
                                   : 1};
}

RozliczeniaDRA wybraneDra(Wywolanie& w) {
    RozliczeniaDRA dra(w.otoczenie());
    const KluczDRA klucz = kluczDra(w);
    if (!dra.zaznacz(klucz)) throw Blad(QStringLiteral("Nie ma rozliczenia ZUS DRA %1.").arg(klucz.napis()));
    return dra;
}

int draNowa(Wywolanie& w) {
    const auto nowe =
        RozliczeniaDRA(w.otoczenie())
            .Nowe(miesiacZTekstu(w.argumenty.pozycje.first()), opcjaZus(w, u"listy"), QDate::currentDate());
    if (!nowe) return status::Odmowa;
    w.pisz(QString::number(nowe->numer));
    return status::Wykonane;
}

int draPokaz(Wywolanie& w) {
    const RozliczeniaDRA dra = wybraneDra(w);
    const WplatyDRA wplaty = Wplaty(dra.sumy());
    PiszWiersz(w, w.otoczenie().sesja.rsZUS,
               {{QStringLiteral("wpłata 51"), wplaty.spoleczne},
                {QStringLiteral("wpłata 52"), wplaty.zdrowotne},
                {QStringLiteral("wpłata 53"), wplaty.fundusze}});
    if (w.json()) return status::Wykonane;
    for (const KontrolaDRA& k : dra.kontrola())
        if (k.deklaracja != k.raport)
            w.pisz(
                QStringLiteral("różnica z RCA, %1: %2").arg(k.napis, FormatKwoty(k.deklaracja - k.raport)));
    return status::Wykonane;
}

int draUsun(Wywolanie& w) {
    return RozliczeniaDRA(w.otoczenie()).Usun(kluczDra(w)) ? status::Wykonane : status::Odmowa;
}

int wydrukDra(Wywolanie& w) {
    WymagajDrogi(w.argumenty);
    (void)wybraneDra(w);
    WypiszWydruk(w, *reports::UlozDRA(w.otoczenie()));
    return status::Wykonane;
}

} // namespace

QList<Polecenie> poleceniaZus() {
    const QList<OpcjaPolecenia> numer{{u"numer", u"N"}};
    return {
        {u"dra nowa",
         u"RRRR-MM",
         u"rozliczenie ZUS DRA z list płac miesiąca",
         1,
         1,
         {{u"listy", u"SYMBOLE"}},
         draNowa},
        {u"dra pokaz", u"RRRR-MM", u"rozliczenie z wpłatami i różnicami wobec RCA", 1, 1, numer, draPokaz},
        {u"dra usun", u"RRRR-MM", u"usuwa rozliczenie ZUS DRA", 1, 1, numer, draUsun},
        {u"wydruk dra", u"RRRR-MM (--pdf PLIK | --png KATALOG | --csv PLIK | --tekst)",
         u"rozliczenie ZUS DRA na formularzu", 1, 1, opcjeWydruku(numer), wydrukDra},
        {u"kedu pokaz", u"PLIK", u"dokumenty kolekcji z nazwami pól", 1, 1, {}, keduPokaz},
        {u"wydruk kedu", u"PLIK (--pdf PLIK | --png KATALOG | --csv PLIK | --tekst)",
         u"kolekcja z nazwami pól", 1, 1, opcjeWydruku({}), wydrukKedu},
        {u"kedu zapisz",
         u"PLIK --dokument KOD[=TYP] ... (--wszyscy | --pracownik N) [--miesiac RRRR-MM]",
         u"kolekcja dokumentów dla ZUS",
         1,
         1,
         {{u"dokument", u"KOD"},
          {u"wszyscy", {}},
          {u"pracownik", u"N"},
          {u"miesiac", u"RRRR-MM"},
          {u"identyfikator", u"TEKST"},
          {u"zlecenia-od", u"DATA"},
          {u"zlecenia-do", u"DATA"}},
         keduZapisz},
    };
}

} // namespace tornel::cli
