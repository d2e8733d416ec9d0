#include "app/frmMainUmowyOPrace.h"
#include "app/frmMain.h"
#include "okna/Drukowanie.h"
#include "personnel/frmUmoP.h"
#include "reports/umowy/PismaOPrace.h"
#include "rules/Stale.h"

namespace tornel::app {

namespace {

std::shared_ptr<const Uklad> ulozPismo(Otoczenie& o, PismoOPrace pismo, qint64 id) {
    switch (pismo) {
    case PismoOPrace::Umowa:
        return reports::UlozUmoweOPrace(o, id);
    case PismoOPrace::Zmiana:
        return reports::UlozZmianeWarunkow(o, id);
    case PismoOPrace::Wypowiedzenie:
        return reports::UlozWypowiedzenie(o, id);
    case PismoOPrace::Swiadectwo:
        break;
    }
    return reports::UlozSwiadectwoPracy(o, id, QDate::currentDate());
}

} // namespace

DrukUmowyOPrace DrukiUmowOPrace(Otoczenie& otoczenie) {
    return [&otoczenie](PismoOPrace pismo, qint64 id, QWidget* rodzic) {
        PokazWydruk(ulozPismo(otoczenie, pismo, id), otoczenie.stale.DrukReszta ? Podglad::Nie : Podglad::Tak,
                    otoczenie.rozmowa, rodzic);
    };
}

void ZarejestrujUmowyOPrace(frmMain& okno, Otoczenie& otoczenie) {
    okno.rejestruj(Wejscie::UmowyOPrace,
                   [&okno, &otoczenie] { frmUmoP(otoczenie, &okno, DrukiUmowOPrace(otoczenie)).exec(); });
}

} // namespace tornel::app
