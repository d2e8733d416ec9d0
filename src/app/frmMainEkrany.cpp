#include "app/frmMainEkrany.h"
#include "app/frmMain.h"
#include "payroll/frmPlace.h"

void ZarejestrujEkrany(frmMain& okno, Otoczenie& otoczenie) {
    okno.rejestruj(Wejscie::ListaPlac, [&] { frmPlace(otoczenie, &okno).exec(); });
}
