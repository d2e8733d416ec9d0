// A collection of the insurer's documents on paper: each document with its blocks and filled fields.
#pragma once
#include "druk/Uklad.h"
#include "zus/OdczytKedu.h"
#include <memory>

namespace tornel::reports {

/// `plik` stands on the first page. Fields that the program leaves empty, and those without a value, are left
/// out.
[[nodiscard]] std::shared_ptr<const Uklad> UlozKedu(std::shared_ptr<const OdczytKedu> kolekcja,
                                                    const QString& plik);

} // namespace tornel::reports
