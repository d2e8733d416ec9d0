#include "app/frmMainUmowy.h"
#include "app/frmMain.h"
#include "contracts/frmUmowy.h"
#include "reports/przelewy/WydrukPrzelewow.h"

namespace tornel::app {

namespace {

constexpr std::pair<Wejscie, QStringView> kUmowy[] = {
    {Wejscie::UmowyZlecenia, u"UZL"},
    {Wejscie::UmowyODzielo, u"UOD"},
    {Wejscie::Honoraria, u"HON"},
};

} // namespace

void ZarejestrujUmowy(frmMain& okno, Otoczenie& otoczenie) {
    for (const auto& [wejscie, tabela] : kUmowy) {
        const RodzajUmowy& rodzaj = *ZnajdzRodzajUmowy(tabela.toString());
        okno.rejestruj(wejscie, [&okno, &otoczenie, &rodzaj] {
            frmUmowy(otoczenie, rodzaj, &okno, {.wydruki = {}, .przelewy = reports::UlozPrzelewy}).exec();
        });
    }
}

} // namespace tornel::app
