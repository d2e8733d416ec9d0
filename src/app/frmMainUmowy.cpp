#include "app/frmMainUmowy.h"
#include "app/frmMain.h"
#include "contracts/frmUmowy.h"
#include "okna/Drukowanie.h"
#include "reports/przelewy/WydrukPrzelewow.h"
#include "reports/umowy/WydrukiUmow.h"
#include "rules/Stale.h"

namespace tornel::app {

namespace {

constexpr std::pair<Wejscie, QStringView> kUmowy[] = {
    {Wejscie::UmowyZlecenia, u"UZL"},
    {Wejscie::UmowyODzielo, u"UOD"},
    {Wejscie::Honoraria, u"HON"},
};

void pokaz(Otoczenie& o, std::shared_ptr<const Uklad> uklad, QWidget* rodzic) {
    PokazWydruk(std::move(uklad), o.stale.DrukReszta ? Podglad::Nie : Podglad::Tak, o.rozmowa, rodzic);
}

PortWydrukowUmow wydrukiUmow(Otoczenie& o, const RodzajUmowy& rodzajOkna) {
    PortWydrukowUmow port;
    if (rodzajOkna.tabela != &schemat::HON) // a fee has a bill only
        port.umowa = [&o](const RodzajUmowy& rodzaj, qint64 id, QWidget* rodzic) {
            pokaz(o, reports::UlozUmowe(o, rodzaj, id), rodzic);
        };
    port.rachunek = [&o](const RodzajUmowy& rodzaj, qint64 id, QWidget* rodzic) {
        pokaz(o, reports::UlozRachunek(o, rodzaj, id, QDate::currentDate()), rodzic);
    };
    port.zestawienie = [&o](const RodzajUmowy& rodzaj, const QString& tytul, const QList<qint64>& klucze,
                            QWidget* rodzic) {
        pokaz(o, reports::UlozZestawienieUmow(o, rodzaj, tytul, klucze, QDate::currentDate()), rodzic);
    };
    return port;
}

} // namespace

void ZarejestrujUmowy(frmMain& okno, Otoczenie& otoczenie) {
    for (const auto& [wejscie, tabela] : kUmowy) {
        const RodzajUmowy& rodzaj = *ZnajdzRodzajUmowy(tabela.toString());
        okno.rejestruj(wejscie, [&okno, &otoczenie, &rodzaj] {
            frmUmowy(otoczenie, rodzaj, &okno,
                     {.wydruki = wydrukiUmow(otoczenie, rodzaj), .przelewy = reports::UlozPrzelewy})
                .exec();
        });
    }
}

} // namespace tornel::app
