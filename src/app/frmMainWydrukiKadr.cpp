#include "app/frmMainWydrukiKadr.h"
#include "app/frmMain.h"
#include "common/Rozmowa.h"
#include "okna/Drukowanie.h"
#include "okna/frmInputData.h"
#include "okna/frmZakresMies.h"
#include "okna/Klepsydra.h"
#include "payroll/miesiace/frmSymboleList.h"
#include "payroll/miesiace/Miesiace.h"
#include "personnel/frmDzial.h"
#include "reports/kadry/WydrukiKadr.h"
#include "reports/place/ZbiorowkaMiesiecy.h"
#include "rules/Stale.h"

namespace tornel::app {

namespace {

using reports::ZakresMiesiecy;

/// The last month on the list of months; none on an empty list.
std::optional<RokMies> ostatniMiesiacPlac(Otoczenie& otoczenie) {
    const QList<WierszMiesiaca> miesiace = Miesiace(otoczenie).Wczytaj_liste();
    return miesiace.isEmpty() ? std::nullopt : std::optional(miesiace.last().miesiac);
}

void ulozIPokaz(Otoczenie& otoczenie, const std::function<std::shared_ptr<const Uklad>()>& uloz,
                QWidget* rodzic) {
    std::shared_ptr<const Uklad> uklad;
    {
        const Klepsydra klepsydra;
        uklad = uloz();
    }
    PokazWydruk(std::move(uklad), otoczenie.stale.DrukReszta ? Podglad::Nie : Podglad::Tak, otoczenie.rozmowa,
                rodzic);
}

std::optional<ZakresMiesiecy> jedenMiesiac(Otoczenie&, RokMies wstepny, QWidget* rodzic) {
    frmInputData okno(frmInputData::Tryb::Miesiac, QStringLiteral("Zbiorówka za miesiąc"),
                      wstepny.pierwszyDzien(), rodzic);
    if (okno.exec() != QDialog::Accepted) return std::nullopt;
    const RokMies miesiac{okno.rok(), okno.mies()};
    return ZakresMiesiecy{miesiac, miesiac};
}

std::optional<ZakresMiesiecy> zakresMiesiecy(Otoczenie& otoczenie, RokMies wstepny, QWidget* rodzic) {
    frmZakresMies okno(otoczenie.rozmowa, QStringLiteral("Zbiorówka za rok"), {wstepny.rok, 1}, wstepny,
                       rodzic);
    if (okno.exec() != QDialog::Accepted) return std::nullopt;
    return ZakresMiesiecy{okno.od(), okno.dokad()};
}

using PytanieOOkres = std::optional<ZakresMiesiecy> (*)(Otoczenie&, RokMies, QWidget*);

void zbiorowka(Otoczenie& o, PytanieOOkres zapytaj, QWidget* rodzic) {
    const auto wstepny = ostatniMiesiacPlac(o);
    const auto okres = zapytaj(o, wstepny.value_or(RokMies::dnia(QDate::currentDate())), rodzic);
    if (!okres) return;
    const QList<RokMies> miesiace = reports::MiesiaceZakresu(o.sesja, *okres);
    if (miesiace.isEmpty())
        return o.rozmowa.komunikat(QStringLiteral("Nie ma list płac za: %1.").arg(okres->napis()),
                                   Styl::Wykrzyknik);
    reports::WarunkiZbiorowki warunki{*okres, {}};
    if (o.stale.AktOpWieluList) {
        frmSymboleList okno(SymboleList(o.sesja, miesiace), rodzic);
        if (okno.exec() != QDialog::Accepted) return;
        warunki.listy = okno.listy();
    }
    frmDzial dzialy(Pracownicy(o).dzialy(), rodzic);
    if (dzialy.exec() != QDialog::Accepted) return;
    warunki.dzialy = dzialy.dzialy();
    ulozIPokaz(
        o, [&] { return reports::UlozZbiorowkeMiesiecy(o, warunki, QDate::currentDate()); }, rodzic);
}

} // namespace

PortWydrukowKadr WydrukiKartoteki(Otoczenie& otoczenie) {
    PortWydrukowKadr port;
    for (const reports::OpisWydrukuKadr& w : reports::wydrukiKadr()) {
        port.dostepne.append({w.napis.toString(), w.okres});
        if (w.ktory == reports::WydrukKadr::KartaEwidencji) port.kartaEwidencji = w.napis.toString();
    }
    port.ostatniMiesiac = [&otoczenie] {
        return ostatniMiesiacPlac(otoczenie).value_or(RokMies::dnia(QDate::currentDate()));
    };
    port.drukuj = [&otoczenie](const QString& napis, const ZlecenieWydruku& zlecenie, QWidget* rodzic) {
        for (const reports::OpisWydrukuKadr& w : reports::wydrukiKadr())
            if (w.napis == napis)
                ulozIPokaz(
                    otoczenie,
                    [&] {
                        return reports::UlozWydrukKadr(w.ktory, otoczenie, zlecenie, QDate::currentDate());
                    },
                    rodzic);
    };
    return port;
}

void ZarejestrujZbiorowki(frmMain& okno, Otoczenie& otoczenie) {
    okno.rejestruj(Wejscie::ZbiorowkaMiesiac, [&] { zbiorowka(otoczenie, jedenMiesiac, &okno); });
    okno.rejestruj(Wejscie::ZbiorowkaRok, [&] { zbiorowka(otoczenie, zakresMiesiecy, &okno); });
}

} // namespace tornel::app
