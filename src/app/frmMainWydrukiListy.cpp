#include "app/frmMainWydrukiListy.h"
#include "bank/frmDrukPrzelewow.h"
#include "okna/Drukowanie.h"
#include "payroll/lista/ListaPlac.h"
#include "reports/place/WydrukiListyPlac.h"
#include "reports/przelewy/WydrukPrzelewow.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <algorithm>
#include <QDate>

namespace tornel::app {

namespace {

enum class CzynnoscPrzelewu { DlaPracownika, Wszystkie, DlaPodatku, MultiCash };

constexpr std::pair<QStringView, CzynnoscPrzelewu> kPrzelewy[] = {
    {u"Wydruk przelewu dla pracownika", CzynnoscPrzelewu::DlaPracownika},
    {u"Wydruk wszystkich przelewów", CzynnoscPrzelewu::Wszystkie},
    {u"Wydruk przelewu dla podatku", CzynnoscPrzelewu::DlaPodatku},
    {u"Przelewy do MultiCash", CzynnoscPrzelewu::MultiCash},
};

const QString kPokwitowanieDlaWybranego = QStringLiteral("Pokwitowanie dla wybranego");

void przelej(CzynnoscPrzelewu czynnosc, Otoczenie& otoczenie, const ListaPlac& lista, QWidget* rodzic) {
    ZrodloPrzelewow zrodlo{.symbol = lista.symbol()};
    if (czynnosc == CzynnoscPrzelewu::MultiCash) {
        PrzelewyDoMultiCash(otoczenie, zrodlo, rodzic);
        return;
    }
    if (czynnosc == CzynnoscPrzelewu::DlaPracownika) {
        if (!lista.wiersz()) return;
        zrodlo.numery = {lista.wiersz()->prcId};
        zrodlo.lista = lista.wiersz()->lista;
    }
    const auto komu = czynnosc == CzynnoscPrzelewu::DlaPodatku ? KomuPrzelew::Urzedy : KomuPrzelew::Osoby;
    DrukujPrzelewy(otoczenie, komu, zrodlo, reports::UlozPrzelewy, rodzic);
}

bool czyListaPlac(reports::WydrukListy ktory) {
    using enum reports::WydrukListy;
    return ktory == ListaPlac || ktory == Wersja2 || ktory == Wersja3;
}

/// Notes a list that left the program.
PoWydaniu zapamietanie(Otoczenie& otoczenie, const QString& napis, const QString& symbol) {
    return [&otoczenie, napis, symbol](const Wydanie& wydanie) {
        Wykonane(otoczenie.sesja)
            .dopisz({{.rodzaj = reports::kWydrukListy.kod.toString(),
                      .miesiac = otoczenie.sesja.miesiac(),
                      .lista = symbol.trimmed(),
                      .plik = wydanie.plik,
                      .opis = napis}},
                    QDateTime::currentDateTime());
    };
}

void drukujListe(const QString& napis, Otoczenie& otoczenie, const ListaPlac& lista,
                 std::optional<qint64> prcId, QWidget* rodzic) {
    const bool wybrany = napis == kPokwitowanieDlaWybranego;
    auto ktory = reports::WydrukListy::Pokwitowania;
    for (const reports::OpisWydrukuListy& w : reports::wydrukiListy())
        if (w.napis == napis) ktory = w.ktory;
    PokazWydruk(reports::UlozWydrukListy(ktory, otoczenie, lista, QDate::currentDate(),
                                         wybrany ? prcId : std::nullopt),
                otoczenie.stale.DrukReszta ? Podglad::Nie : Podglad::Tak, otoczenie.rozmowa, rodzic,
                czyListaPlac(ktory) ? zapamietanie(otoczenie, napis, lista.symbol()) : PoWydaniu());
}

} // namespace

PortWydrukow wydrukiListyPlac(Otoczenie& otoczenie) {
    PortWydrukow port;
    for (const reports::OpisWydrukuListy& w : reports::wydrukiListy())
        port.dostepne.append(w.napis.toString());
    port.dostepne.append(kPokwitowanieDlaWybranego);
    for (const auto& [napis, czynnosc] : kPrzelewy) {
        if (czynnosc != CzynnoscPrzelewu::MultiCash || otoczenie.stale.MCSAkt)
            port.dostepne.append(napis.toString());
        else
            port.niedostepne.insert(
                napis.toString(),
                QStringLiteral("Współpraca z programem MultiCash jest wyłączona w stałych programu."));
    }
    port.drukuj = [&otoczenie](const QString& napis, const ListaPlac& lista, std::optional<qint64> prcId,
                               QWidget* rodzic) {
        const auto* przelew =
            std::ranges::find(kPrzelewy, napis, [](const auto& p) { return p.first.toString(); });
        if (przelew != std::end(kPrzelewy))
            przelej(przelew->second, otoczenie, lista, rodzic);
        else
            drukujListe(napis, otoczenie, lista, prcId, rodzic);
    };
    return port;
}

} // namespace tornel::app
