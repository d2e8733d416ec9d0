#include "app/frmMainZus.h"
#include "app/frmMain.h"
#include "app/frmMainWydrukiKadr.h"
#include "bank/frmKonta.h"
#include "okna/Drukowanie.h"
#include "personnel/frmMPRACY.h"
#include "personnel/frmPrac.h"
#include "personnel/frmRodzina.h"
#include "reports/zus/WydrukDRA.h"
#include "reports/zus/WydrukKedu.h"
#include "rules/frmStaleProgramu.h"
#include "rules/Stale.h"
#include "zus/frmKedu.h"
#include "zus/frmListaDRA.h"
#include "zus/frmWydrukiZUS.h"

namespace tornel::app {

namespace {

void popraw(Otoczenie& o, const UwagaKedu& uwaga, QWidget* rodzic) {
    switch (uwaga.gdzie) {
    case MiejscePoprawki::Rodzina:
        frmRodzina(o, uwaga.prcId, rodzic).exec();
        return;
    case MiejscePoprawki::Pracownik: {
        frmPrac kadry(o, FiltrPracownikow::Wszyscy, rodzic, WydrukiKartoteki(o));
        kadry.pokaz(uwaga.prcId);
        kadry.exec();
        return;
    }
    case MiejscePoprawki::Stale:
        frmStaleProgramu(o, {}, rodzic).exec();
        return;
    case MiejscePoprawki::Konta:
        frmKonta(o, rodzic).exec();
        return;
    case MiejscePoprawki::Adresy:
        frmMPRACY(o, rodzic).exec();
        return;
    case MiejscePoprawki::Brak:
        return;
    }
}

void pokazKolekcje(Otoczenie& o, const QString& plik, QWidget* rodzic) {
    const auto wydrukuj = [&o](std::shared_ptr<const OdczytKedu> kolekcja, const QString& nazwa,
                               QWidget* nad) {
        PokazWydruk(reports::UlozKedu(std::move(kolekcja), nazwa),
                    o.stale.DrukReszta ? Podglad::Nie : Podglad::Tak, o.rozmowa, nad);
    };
    frmKedu(o.rozmowa, o.stale.PathKDU, plik, wydrukuj, rodzic).exec();
}

} // namespace

void ZarejestrujZus(frmMain& okno, Otoczenie& otoczenie) {
    okno.rejestruj(Wejscie::ListaDRA, [&] {
        const auto wydrukuj = [&](QWidget* rodzic) {
            PokazWydruk(reports::UlozDRA(otoczenie), otoczenie.stale.DrukReszta ? Podglad::Nie : Podglad::Tak,
                        otoczenie.rozmowa, rodzic);
        };
        frmListaDRA(otoczenie, wydrukuj, &okno).exec();
    });
    okno.rejestruj(Wejscie::WydrukiZUS, [&] {
        PortKedu port;
        port.popraw = [&](const UwagaKedu& uwaga, QWidget* rodzic) { popraw(otoczenie, uwaga, rodzic); };
        port.pokaz = [&](const QString& plik, QWidget* rodzic) { pokazKolekcje(otoczenie, plik, rodzic); };
        frmWydrukiZUS(otoczenie, port, &okno).exec();
    });
}

} // namespace tornel::app
