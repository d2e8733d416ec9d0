// The transfers of a screen, from the choice of the account to paper or the bank's file: the same for the
// payroll list and for contracts.
#pragma once
#include "bank/UkladPrzelewu.h"
#include "bank/ZleceniaPrzelewow.h"
#include "druk/Uklad.h"
#include <functional>
#include <memory>

class QWidget;

namespace tornel::bank {

/// Lays the orders out on paper; given by the caller, which knows the prints.
using UlozeniePrzelewow =
    std::function<std::shared_ptr<const Uklad>(const QList<Przelew>& przelewy, UkladPrzelewu uklad)>;

/// Finds what is to be paid, asks for the account and, without a title of its own, for the title, fills
/// `PRZELEW` and shows all the orders as one document, or prints it as constant 650 says. Says before that
/// when they were made already; what goes to the printer or into a PDF is noted in `WYKONANE`. False, after
/// the system's message, when there is nothing to pay or the clerk gives up. Throws `Blad`.
bool DrukujPrzelewy(Otoczenie& otoczenie, KomuPrzelew komu, const ZrodloPrzelewow& zrodlo,
                    const UlozeniePrzelewow& uloz, QWidget* rodzic);

/// `frmMCS` and the file. The handles of the month, or `UZL` in the file, have the marks afterwards. True if
/// a file was written. Throws `Blad`.
bool PrzelewyDoMultiCash(Otoczenie& otoczenie, const ZrodloPrzelewow& zrodlo, QWidget* rodzic);

} // namespace tornel::bank
