// Transfer orders on paper: the form "Przelew 1,2 z 4", two copies of an order on one sheet.
#pragma once
#include "bank/Przelewy.h"
#include "bank/UkladPrzelewu.h"
#include "druk/Uklad.h"
#include <memory>

namespace tornel::reports {

/// All the orders as one document, a page each in their order.
[[nodiscard]] std::shared_ptr<const Uklad> UlozPrzelewy(const QList<Przelew>& przelewy, UkladPrzelewu uklad);

} // namespace tornel::reports
