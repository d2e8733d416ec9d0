#include "cli/Polecenia.h"
#include "cli/WierszTabeli.h"
#include "cli/Wydruk.h"
#include "common/Daty.h"
#include "reports/deklaracje/WydrukDeklaracji.h"
#include "store/Sesja.h"
#include "tax/DeklaracjeRoczne.h"
#include "tax/Pit4.h"
#include <QDate>

namespace tornel::cli {

namespace {

const QString kNumer = QStringLiteral("numer");

tax::KluczPit4 kluczZArgumentow(const Wywolanie& w) {
    const QString numer = w.argumenty.wartosc(kNumer);
    return {miesiacZTekstu(w.argumenty.pozycje[0]),
            numer.isEmpty() ? 0 : liczbaZTekstu(numer, 0, 32767, kNumer)};
}

int pit4Nowa(Wywolanie& w) {
    const tax::KluczPit4 klucz = kluczZArgumentow(w);
    tax::Pit4 pit4(w.otoczenie());
    const auto nowa = pit4.Nowy(klucz, w.argumenty.wartosc(QStringLiteral("listy")), QDate::currentDate());
    if (!nowa) return status::Odmowa;
    w.pisz(nowa->napis());
    return status::Wykonane;
}

int pit4Pokaz(Wywolanie& w) {
    const tax::KluczPit4 klucz = kluczZArgumentow(w);
    tax::Pit4 pit4(w.otoczenie());
    if (!pit4.zaznacz(klucz)) throw Blad(QStringLiteral("Nie ma deklaracji PIT-4 %1.").arg(klucz.napis()));
    const Recordset& rs = w.otoczenie().sesja.rsPIT4;
    const tax::SumyPit4 s = tax::SumyDeklaracji(rs.biezacyWiersz());
    PiszWiersz(w, rs,
               {{QStringLiteral("SUMA1"), s.SUMA1},
                {QStringLiteral("SUMA2"), s.SUMA2},
                {QStringLiteral("SUMA3"), s.SUMA3}});
    return status::Wykonane;
}

int pit4Usun(Wywolanie& w) {
    const tax::KluczPit4 klucz = kluczZArgumentow(w);
    return tax::Pit4(w.otoczenie()).Usun(klucz) ? status::Wykonane : status::Odmowa;
}

int pit4Kontrola(Wywolanie& w) {
    const int rok = liczbaZTekstu(w.argumenty.pozycje[0], 1900, 2100, QStringLiteral("rok"));
    QList<QStringList> wiersze{{QStringLiteral("MIESIĄC"), QStringLiteral("PIT-4"),
                                QStringLiteral("ZALICZKI PIT-11"), QStringLiteral("ULGA"),
                                QStringLiteral("UB. ZDROWOTNE"), QStringLiteral("ZAOKRĄGLENIA"),
                                QStringLiteral("NIEWYJAŚNIONE")}};
    bool zgodne = true;
    for (const tax::KontrolaPit4& k : tax::KontrolaRoku(w.otoczenie(), rok)) {
        const Waluta reszta = k.niewyjasnione();
        zgodne = zgodne && reszta.zero();
        wiersze.append({k.miesiac.napis(), k.pit4 ? FormatKwoty(*k.pit4) : QStringLiteral("brak"),
                        FormatKwoty(k.place.zaliczka), FormatKwoty(k.place.ulga), FormatKwoty(k.place.ubzdr),
                        FormatKwoty(k.place.zaokraglenie), reszta.zero() ? QString() : FormatKwoty(reszta)});
    }
    w.piszTabele(wiersze, {false, true, true, true, true, true, true});
    return zgodne ? status::Wykonane : status::Odmowa;
}

tax::OkresPodatkowy okresZOpcji(const Argumenty& a) {
    const QString od = QStringLiteral("od"), dokad = QStringLiteral("do");
    if (!a.ma(od) || !a.ma(dokad)) throw ZleUzycie(QStringLiteral("Podaj --od RRRR-MM i --do RRRR-MM."));
    const tax::OkresPodatkowy okres{miesiacZTekstu(a.wartosc(od)), miesiacZTekstu(a.wartosc(dokad))};
    if (okres.od > okres.dokad) throw ZleUzycie(QStringLiteral("Zakres dat jest nieprawidłowy."));
    return okres;
}

int roczna(Wywolanie& w, tax::Deklaracja ktora) {
    const tax::OkresPodatkowy okres = okresZOpcji(w.argumenty);
    Otoczenie& o = w.otoczenie();
    tax::WypelnijDeklaracje(o, ktora, numerPracownikaZTekstu(w.argumenty.pozycje[0]), okres,
                            QDate::currentDate());
    const Recordset& rs = o.sesja.*tax::OpisDeklaracji(ktora).uchwyt;
    const tax::SumyZrodel s = tax::SumujZrodla(tax::WierszDeklaracji(ktora, rs));
    PiszWiersz(w, rs,
               {{QStringLiteral("SPRZY"), s.SPRZY},
                {QStringLiteral("SKUP"), s.SKUP},
                {QStringLiteral("SDOCHOD"), s.SDOCHOD},
                {QStringLiteral("SPOB_ZAL"), s.SPOB_ZAL}});
    return status::Wykonane;
}

int pit11(Wywolanie& w) { return roczna(w, tax::Deklaracja::Pit11); }
int pit40(Wywolanie& w) { return roczna(w, tax::Deklaracja::Pit40); }
int pit8b(Wywolanie& w) { return roczna(w, tax::Deklaracja::Pit8B); }

/// The declaration on its form; of a yearly one nothing is stored.
int wydrukRocznej(Wywolanie& w, tax::Deklaracja ktora) {
    WymagajDrogi(w.argumenty);
    const tax::OkresPodatkowy okres = okresZOpcji(w.argumenty);
    const qint64 prcId = numerPracownikaZTekstu(w.argumenty.pozycje[0]);
    const tax::DaneRoczne dane(w.otoczenie(), ktora, okres, prcId);
    const auto wiersz = [&](int) { return dane.wypelnij(prcId, QDate::currentDate()); };
    WypiszWydruk(w, *reports::UlozDeklaracje({ktora, 1, wiersz}));
    return status::Wykonane;
}

int wydrukPit4(Wywolanie& w) {
    WymagajDrogi(w.argumenty);
    const tax::KluczPit4 klucz = kluczZArgumentow(w);
    if (!tax::Pit4(w.otoczenie()).zaznacz(klucz))
        throw Blad(QStringLiteral("Nie ma deklaracji PIT-4 %1.").arg(klucz.napis()));
    const auto wiersz = [&](int) {
        return tax::WierszDeklaracji(tax::Deklaracja::Pit4, w.otoczenie().sesja.rsPIT4);
    };
    WypiszWydruk(w, *reports::UlozDeklaracje({tax::Deklaracja::Pit4, 1, wiersz}));
    return status::Wykonane;
}
int wydrukPit11(Wywolanie& w) { return wydrukRocznej(w, tax::Deklaracja::Pit11); }
int wydrukPit40(Wywolanie& w) { return wydrukRocznej(w, tax::Deklaracja::Pit40); }
int wydrukPit8b(Wywolanie& w) { return wydrukRocznej(w, tax::Deklaracja::Pit8B); }

} // namespace

QList<Polecenie> poleceniaPodatkow() {
    static const QList<OpcjaPolecenia> numer{{u"numer", u"N"}};
    static const QList<OpcjaPolecenia> okres{{u"od", u"RRRR-MM"}, {u"do", u"RRRR-MM"}};
    constexpr QStringView osoba = u"NR --od RRRR-MM --do RRRR-MM";
    constexpr QStringView osobaNaPapierze =
        u"NR --od RRRR-MM --do RRRR-MM (--pdf PLIK | --png KATALOG | --csv PLIK | --tekst)";
    return {
        {u"pit4 nowa",
         u"RRRR-MM",
         u"deklaracja PIT-4 z listy płac miesiąca",
         1,
         1,
         {{u"numer", u"N"}, {u"listy", u"SYMBOLE"}},
         pit4Nowa},
        {u"pit4 pokaz", u"RRRR-MM", u"deklaracja PIT-4 z sumami", 1, 1, numer, pit4Pokaz},
        {u"pit4 usun", u"RRRR-MM", u"usuwa deklarację PIT-4", 1, 1, numer, pit4Usun},
        {u"pit4 kontrola", u"RRRR", u"deklaracje PIT-4 roku wobec zaliczek PIT-11", 1, 1, {}, pit4Kontrola},
        {u"pit11", osoba, u"roczna informacja o dochodach i zaliczkach", 1, 1, okres, pit11},
        {u"pit40", osoba, u"roczne rozliczenie podatku pracownika", 1, 1, okres, pit40},
        {u"wydruk pit4", u"RRRR-MM (--pdf PLIK | --png KATALOG | --csv PLIK | --tekst)",
         u"deklaracja PIT-4 na formularzu", 1, 1, opcjeWydruku(numer), wydrukPit4},
        {u"wydruk pit11", osobaNaPapierze, u"informacja PIT-11 na formularzu", 1, 1, opcjeWydruku(okres),
         wydrukPit11},
        {u"wydruk pit40", osobaNaPapierze, u"rozliczenie PIT-40 na formularzu", 1, 1, opcjeWydruku(okres),
         wydrukPit40},
        {u"wydruk pit8b", osobaNaPapierze, u"informacja PIT-8B na formularzu", 1, 1, opcjeWydruku(okres),
         wydrukPit8b},
        {u"pit8b", osoba, u"informacja o podatku zryczałtowanym z umów i honorariów", 1, 1, okres, pit8b},
    };
}

} // namespace tornel::cli
