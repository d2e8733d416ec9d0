#include "app/frmMainEkrany.h"
#include "app/frmHaslo.h"
#include "app/frmLogLista.h"
#include "app/frmMain.h"
#include "app/frmMainArchiwum.h"
#include "app/frmMainDziennik.h"
#include "app/frmMainPodatki.h"
#include "app/frmMainUmowy.h"
#include "app/frmMainUmowyOPrace.h"
#include "app/frmMainWydrukiKadr.h"
#include "app/frmMainWydrukiListy.h"
#include "app/frmMainZus.h"
#include "app/frmWyglad.h"
#include "bank/frmKonta.h"
#include "payroll/miesiace/frmPlace.h"
#include "payroll/nadgodziny/frmNadg.h"
#include "personnel/frmDniWolne.h"
#include "personnel/frmDniWolnePr.h"
#include "personnel/frmMPRACY.h"
#include "personnel/frmPrac.h"
#include "personnel/frmRejUrl.h"
#include "personnel/frmRejZwoln.h"
#include "personnel/frmTrDoPr.h"
#include "personnel/frmUS.h"
#include "rules/frmSkladnikiPlac.h"
#include "rules/frmStaleProgramu.h"
#include "rules/Stale.h"

namespace tornel::app {

namespace {

/// Screens that take nothing but the surroundings open alike.
template <typename Ekran>
void zarejestruj(frmMain& okno, Otoczenie& otoczenie, Wejscie wejscie) {
    okno.rejestruj(wejscie, [&] { Ekran(otoczenie, &okno).exec(); });
}

} // namespace

void ZarejestrujEkrany(frmMain& okno, Otoczenie& otoczenie) {
    static constexpr std::pair<Wejscie, FiltrPracownikow> kadry[] = {
        {Wejscie::PracownicyWszyscy, FiltrPracownikow::Wszyscy},
        {Wejscie::PracownicyPracujacy, FiltrPracownikow::Pracujacy},
        {Wejscie::PracownicyZwolnieni, FiltrPracownikow::Zwolnieni},
        {Wejscie::PracownicyUmowaZlecenie, FiltrPracownikow::UmowaZlecenie},
        {Wejscie::PracownicyUmowaODzielo, FiltrPracownikow::UmowaODzielo},
        {Wejscie::PracownicyHonoraria, FiltrPracownikow::Honoraria},
    };
    for (const auto& [wejscie, filtr] : kadry)
        okno.rejestruj(wejscie,
                       [&, f = filtr] { frmPrac(otoczenie, f, &okno, WydrukiKartoteki(otoczenie)).exec(); });
    okno.rejestruj(Wejscie::ListaPlac,
                   [&] { frmPlace(otoczenie, &okno, wydrukiListyPlac(otoczenie)).exec(); });
    zarejestruj<frmNadg>(okno, otoczenie, Wejscie::Nadgodziny);
    zarejestruj<frmSkladnikiPlac>(okno, otoczenie, Wejscie::SkladnikiPlac);
    zarejestruj<frmDniWolne>(okno, otoczenie, Wejscie::DniWolneOgolne);
    zarejestruj<frmDniWolnePr>(okno, otoczenie, Wejscie::DniWolnePracownika);
    zarejestruj<frmTrDoPr>(okno, otoczenie, Wejscie::TransportDoPracownika);
    zarejestruj<frmRejUrl>(okno, otoczenie, Wejscie::Urlopy);
    zarejestruj<frmRejZwoln>(okno, otoczenie, Wejscie::ZwolnieniaLekarskie);
    zarejestruj<frmUS>(okno, otoczenie, Wejscie::UrzedySkarbowe);
    zarejestruj<frmMPRACY>(okno, otoczenie, Wejscie::AdresyDzialalnosci);
    zarejestruj<frmKonta>(okno, otoczenie, Wejscie::KontaBankowe);
    ZarejestrujZbiorowki(okno, otoczenie);
    ZarejestrujZus(okno, otoczenie);
    ZarejestrujUmowy(okno, otoczenie);
    ZarejestrujPodatki(okno, otoczenie);
    ZarejestrujUmowyOPrace(okno, otoczenie);
    ZarejestrujArchiwum(okno, otoczenie);
    ZarejestrujDziennik(okno, otoczenie);
    zarejestruj<frmHaslo>(okno, otoczenie, Wejscie::ZmianaHasla);
    okno.rejestruj(Wejscie::WygladOkien, [&] { frmWyglad(&okno).exec(); });
    zarejestruj<frmLogLista>(okno, otoczenie, Wejscie::ListaUzytkownikow);
    okno.rejestruj(Wejscie::StaleProgramu, [&] {
        PortyStalych porty;
        porty.otworzUrzedy = [&] { frmUS(otoczenie, &okno).exec(); };
        porty.UstawDostepnoscMenu = [&] {
            okno.UstawDostepnoscMenu();
            okno.RefreshTitle();
        };
        frmStaleProgramu(otoczenie, porty, &okno).exec();
    });
}

} // namespace tornel::app
