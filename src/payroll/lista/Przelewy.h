// The command "Całość na konto": the whole amount to pay goes by transfer.
#pragma once
#include "payroll/lista/ListaPlac.h"

namespace tornel::payroll {

/// `PRZELEWEM` of the row taken up becomes its amount to pay, nothing for one below zero. False, after a
/// message, for a row that is not computed. Throws `Blad` without a row and in a blocked month. Writes `PLA`.
bool CaloscNaKonto(Otoczenie& otoczenie, ListaPlac& lista);

/// The same as a batch for those of `wiersze` whose employees have their pay sent to an account (`czy_konto`
/// of `PRACPR`); the others are passed over. A row that is not computed keeps its transfer and is named in
/// the report. The month's handles are moved: the caller takes its row up again.
RaportSerii CaloscNaKontoWszystkich(Otoczenie& otoczenie, ListaPlac& lista, const QList<KluczListy>& wiersze);

} // namespace tornel::payroll
