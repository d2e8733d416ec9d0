// Where a print of the console goes: PDF, pictures, CSV or text.
#pragma once
#include "cli/Polecenia.h"
#include "druk/Uklad.h"

namespace tornel::cli {

/// The options of every print behind those of its own.
[[nodiscard]] QList<OpcjaPolecenia> opcjeWydruku(const QList<OpcjaPolecenia>& wlasne);
/// Throws `ZleUzycie` unless exactly one way out is given; to be asked before anything is read.
void WymagajDrogi(const Argumenty& argumenty);
/// Writes the print there. Throws `Blad` that names a file.
void WypiszWydruk(Wywolanie& w, const druk::Uklad& uklad);

} // namespace tornel::cli
