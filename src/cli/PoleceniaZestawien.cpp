#include "cli/Polecenia.h"
#include "cli/Wydruk.h"
#include "personnel/Pracownicy.h"
#include "reports/place/ZbiorowkaOkresu.h"
#include <QDate>

namespace tornel::cli {

namespace {

const QString kDzial = QStringLiteral("dzial");

reports::OkresMiesiecy okresZOpcji(const Argumenty& a) {
    const QString od = QStringLiteral("od"), dokad = QStringLiteral("do");
    if (!a.ma(od) || !a.ma(dokad)) throw ZleUzycie(QStringLiteral("Podaj --od RRRR-MM i --do RRRR-MM."));
    const reports::OkresMiesiecy okres{miesiacZTekstu(a.wartosc(od)), miesiacZTekstu(a.wartosc(dokad))};
    if (okres.od > okres.dokad) throw ZleUzycie(QStringLiteral("Zakres dat jest nieprawidłowy."));
    return okres;
}

int zbiorowka(Wywolanie& w, const reports::OkresMiesiecy& okres) {
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
    WypiszWydruk(w, *reports::UlozZbiorowkeOkresu(w.otoczenie(), warunki, QDate::currentDate()));
    return status::Wykonane;
}

int zbiorowkaMiesiac(Wywolanie& w) {
    const RokMies miesiac = miesiacZTekstu(w.argumenty.pozycje[0]);
    return zbiorowka(w, {miesiac, miesiac});
}

int zbiorowkaRok(Wywolanie& w) { return zbiorowka(w, okresZOpcji(w.argumenty)); }

} // namespace

QList<Polecenie> poleceniaZestawien() {
    const QList<OpcjaPolecenia> warunki{{u"listy", u"SYMBOLE"}, {kDzial, u"DZIAŁ"}};
    const QList<OpcjaPolecenia> okres{{u"od", u"RRRR-MM"}, {u"do", u"RRRR-MM"}};
    return {{u"wydruk zbiorowka-miesiac",
             u"RRRR-MM [--listy SYMBOLE] [--dzial X ...] (--pdf PLIK | --png KATALOG | --csv PLIK | --tekst)",
             u"zbiorówka miesiąca: pracownicy, działy i całość", 1, 1, opcjeWydruku(warunki),
             zbiorowkaMiesiac},
            {u"wydruk zbiorowka-rok",
             u"--od RRRR-MM --do RRRR-MM [--listy SYMBOLE] [--dzial X ...] (--pdf ... | ... | --tekst)",
             u"zbiorówka za kilka miesięcy", 0, 0, opcjeWydruku(okres + warunki), zbiorowkaRok}};
}

} // namespace tornel::cli
