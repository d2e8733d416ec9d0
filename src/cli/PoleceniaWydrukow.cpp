#include "cli/Polecenia.h"
#include "cli/Wydruk.h"
#include "common/Pliki.h"
#include "druk/Wyjscie.h"
#include "payroll/lista/ListaPlac.h"
#include "reports/place/WydrukiListyPlac.h"
#include <QDate>

namespace tornel::cli {

namespace {

reports::WydrukListy ktory(const QString& nazwa) {
    QStringList znane;
    for (const reports::OpisWydrukuListy& o : reports::wydrukiListy()) {
        if (o.nazwa == nazwa) return o.ktory;
        znane.append(o.nazwa.toString());
    }
    for (const Polecenie& p : poleceniaZestawien()) znane.append(p.nazwa.toString().section(u' ', 1));
    throw ZleUzycie(
        QStringLiteral("Nie ma wydruku \"%1\". Wydruki: %2.").arg(nazwa, znane.join(QStringLiteral(", "))));
}

int wydruk(Wywolanie& w) {
    const Argumenty& a = w.argumenty;
    WymagajDrogi(a);
    const auto rodzaj = ktory(a.pozycje[0]);
    const RokMies miesiac = miesiacZTekstu(a.pozycje[1]);
    ListaPlac lista(w.otoczenie(), miesiac.rok, miesiac.mies, a.wartosc(QStringLiteral("lista")));
    std::optional<qint64> prcId;
    if (a.ma(QStringLiteral("pracownik")))
        prcId = numerPracownikaZTekstu(a.wartosc(QStringLiteral("pracownik")));
    const auto uklad = reports::UlozWydrukListy(rodzaj, w.otoczenie(), lista, QDate::currentDate(), prcId);
    WypiszWydruk(w, *uklad);
    return status::Wykonane;
}

const QString kPdf = QStringLiteral("pdf");
const QString kPng = QStringLiteral("png");
const QString kCsv = QStringLiteral("csv");
const QString kTekst = QStringLiteral("tekst");

} // namespace

QList<OpcjaPolecenia> opcjeWydruku(const QList<OpcjaPolecenia>& wlasne) {
    return wlasne +
           QList<OpcjaPolecenia>{{u"pdf", u"PLIK"}, {u"png", u"KATALOG"}, {u"csv", u"PLIK"}, {u"tekst", {}}};
}

void WymagajDrogi(const Argumenty& a) {
    if (a.ma(kPdf) + a.ma(kPng) + a.ma(kCsv) + a.ma(kTekst) != 1)
        throw ZleUzycie(QStringLiteral("Podaj jedno z: --pdf PLIK, --png KATALOG, --csv PLIK, --tekst."));
}

void WypiszWydruk(Wywolanie& w, const druk::Uklad& uklad) {
    const Argumenty& a = w.argumenty;
    if (a.ma(kPdf)) (void)druk::ZapiszPdf(uklad, a.wartosc(kPdf));
    if (a.ma(kPng))
        for (const QString& plik : druk::ZapiszPng(uklad, a.wartosc(kPng))) w.pisz(plik);
    if (a.ma(kCsv)) ZapiszPlik(a.wartosc(kCsv), druk::CsvWydruku(uklad));
    if (a.ma(kTekst)) w.piszSurowo(druk::TekstWydruku(uklad).toUtf8());
}

QList<Polecenie> poleceniaWydrukow() {
    return {{u"wydruk", u"NAZWA RRRR-MM (--pdf PLIK | --png KATALOG | --csv PLIK | --tekst)",
             u"wydruk listy płac: lista-plac, lista-plac-2, lista-plac-3, pokwitowania, zbiorowka", 2, 2,
             opcjeWydruku({{u"lista", u"SYMBOL"}, {u"pracownik", u"NR"}}), wydruk}};
}

} // namespace tornel::cli
