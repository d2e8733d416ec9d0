#include "cli/Polecenia.h"
#include "cli/Wydruk.h"
#include "personnel/Pracownicy.h"
#include "reports/kadry/WydrukiKadr.h"
#include "reports/place/ZbiorowkaMiesiecy.h"
#include <QDate>

namespace tornel::cli {

namespace {

const QString kDzial = QStringLiteral("dzial");

reports::ZakresMiesiecy okresZOpcji(const Argumenty& a) {
    const QString od = QStringLiteral("od"), dokad = QStringLiteral("do");
    if (!a.ma(od) || !a.ma(dokad)) throw ZleUzycie(QStringLiteral("Podaj --od RRRR-MM i --do RRRR-MM."));
    const reports::ZakresMiesiecy okres{miesiacZTekstu(a.wartosc(od)), miesiacZTekstu(a.wartosc(dokad))};
    if (okres.od > okres.dokad) throw ZleUzycie(QStringLiteral("Zakres dat jest nieprawidłowy."));
    return okres;
}

int zbiorowka(Wywolanie& w, const reports::ZakresMiesiecy& okres) {
    const Argumenty& a = w.argumenty;
    WymagajDrogi(a);
    reports::WarunkiZbiorowki warunki{okres, a.wartosc(QStringLiteral("listy"))};
    if (a.ma(kDzial)) {
        warunki.dzialy = a.opcje.value(kDzial);
        const QList<DzialFirmy> znane = Pracownicy(w.otoczenie()).dzialy();
        for (const QString& podany : std::as_const(*warunki.dzialy))
            if (std::none_of(znane.begin(), znane.end(), [&](const auto& d) { return d.nazwa == podany; }))
                throw Blad(QStringLiteral("W kadrach nie ma działu „%1”.").arg(podany));
    }
    WypiszWydruk(w, *reports::UlozZbiorowkeMiesiecy(w.otoczenie(), warunki, QDate::currentDate()));
    return status::Wykonane;
}

int zbiorowkaMiesiac(Wywolanie& w) {
    const RokMies miesiac = miesiacZTekstu(w.argumenty.pozycje[0]);
    return zbiorowka(w, {miesiac, miesiac});
}

int zbiorowkaRok(Wywolanie& w) { return zbiorowka(w, okresZOpcji(w.argumenty)); }

int wydrukKadr(Wywolanie& w, reports::WydrukKadr ktory, const reports::ZakresMiesiecy& okres) {
    WymagajDrogi(w.argumenty);
    ZlecenieWydruku zlecenie{podaniPracownicy(w), okres.od, okres.dokad};
    Otoczenie& o = w.otoczenie();
    if (zlecenie.numery.isEmpty() && ktory == reports::WydrukKadr::ListaPracownikow) {
        for (const auto& osoba :
             Pracownicy(o).lista(FiltrPracownikow::Wszyscy, PorzadekPracownikow::Nazwiska))
            zlecenie.numery.append(osoba.prcId);
    } else if (zlecenie.numery.isEmpty()) {
        zlecenie.numery = Pracownicy(o).zatrudnieni(okres.od.pierwszyDzien(), okres.dokad.ostatniDzien());
    }
    WypiszWydruk(w, *reports::UlozWydrukKadr(ktory, o, zlecenie, QDate::currentDate()));
    return status::Wykonane;
}

int rokWydruku(const Wywolanie& w) {
    return liczbaZTekstu(w.argumenty.pozycje[0], 1900, 2100, QStringLiteral("Rok"));
}

int listaPracownikow(Wywolanie& w) { return wydrukKadr(w, reports::WydrukKadr::ListaPracownikow, {}); }

int kartaEwidencji(Wywolanie& w) {
    const int rok = rokWydruku(w);
    return wydrukKadr(w, reports::WydrukKadr::KartaEwidencji, {{rok, 1}, {rok, 12}});
}

int listaObecnosci(Wywolanie& w) {
    const RokMies miesiac = miesiacZTekstu(w.argumenty.pozycje[0]);
    return wydrukKadr(w, reports::WydrukKadr::ListaObecnosci, {miesiac, miesiac});
}

int kartaPrzychodow(Wywolanie& w) {
    const int rok = rokWydruku(w);
    return wydrukKadr(w, reports::WydrukKadr::KartaPrzychodow, {{rok, 1}, {rok, 12}});
}

int zaswiadczenie(Wywolanie& w) {
    return wydrukKadr(w, reports::WydrukKadr::Zaswiadczenie, okresZOpcji(w.argumenty));
}

} // namespace

QList<Polecenie> poleceniaZestawien() {
    const QList<OpcjaPolecenia> warunki{{u"listy", u"SYMBOLE"}, {u"dzial", u"DZIAŁ"}};
    const QList<OpcjaPolecenia> okres{{u"od", u"RRRR-MM"}, {u"do", u"RRRR-MM"}};
    const QList<OpcjaPolecenia> kto{{u"pracownik", u"NR"}};
    const auto wydruk = [](QStringView nazwa, QStringView argumenty, QStringView opis, int pozycji,
                           const QList<OpcjaPolecenia>& opcje, int (*wykonaj)(Wywolanie&)) {
        // Numbers of employees may follow the first argument.
        const bool wielu = pozycji > 0 && opcje.constFirst().nazwa == u"pracownik";
        return Polecenie{
            nazwa, argumenty, opis, pozycji, wielu ? kDowolnieWiele : pozycji, opcjeWydruku(opcje), wykonaj};
    };
    return {
        wydruk(u"wydruk zbiorowka-miesiac",
               u"RRRR-MM [--listy SYMBOLE] [--dzial DZIAŁ ...] (--pdf ... | --tekst)",
               u"zbiorówka miesiąca: pracownicy, działy i całość", 1, warunki, zbiorowkaMiesiac),
        wydruk(u"wydruk zbiorowka-rok",
               u"--od RRRR-MM --do RRRR-MM [--listy SYMBOLE] [--dzial DZIAŁ ...] (--pdf ... | --tekst)",
               u"zbiorówka kilku miesięcy", 0, okres + warunki, zbiorowkaRok),
        wydruk(u"wydruk lista-pracownikow", u"[--pracownik N ...] (--pdf ... | --tekst)",
               u"lista pracowników; bez numerów wszystkich", 0, kto, listaPracownikow),
        wydruk(u"wydruk karta-ewidencji", u"ROK [--pracownik N ...] (--pdf ... | --tekst)",
               u"karta ewidencji czasu pracy; bez numerów zatrudnionych w roku", 1, kto, kartaEwidencji),
        wydruk(u"wydruk lista-obecnosci", u"RRRR-MM [--pracownik N ...] (--pdf ... | --tekst)",
               u"lista obecności do podpisu; bez numerów zatrudnionych w miesiącu", 1, kto, listaObecnosci),
        wydruk(u"wydruk karta-przychodow", u"ROK [--pracownik N ...] (--pdf ... | --tekst)",
               u"karta przychodów; bez numerów zatrudnionych w roku", 1, kto, kartaPrzychodow),
        wydruk(u"wydruk zaswiadczenie",
               u"--od RRRR-MM --do RRRR-MM [--pracownik N ...] (--pdf ... | --tekst)",
               u"zaświadczenie o zatrudnieniu i zarobkach; bez numerów zatrudnionych w okresie", 0,
               okres + kto, zaswiadczenie),
    };
}

} // namespace tornel::cli
