// The personnel papers one by one; `WydrukiKadr` chooses among them.
#pragma once
#include "druk/Uklad.h"
#include "reports/Firma.h"
#include "reports/kadry/DaneOsoby.h"
#include "reports/place/PlaceMiesiecy.h"

namespace tornel::reports {

/// What every paper is made from.
struct ZrodloPapieru {
    Otoczenie& otoczenie;
    QList<DaneOsoby> osoby;
    ZakresMiesiecy okres;
    QDate dzien; ///< of printing
    QStringView nazwa;
};
using Papier = std::shared_ptr<const Uklad>;

/// One line an employee.
[[nodiscard]] Papier ListaPracownikow(const ZrodloPapieru& zrodlo);
/// The year as a table of months and days with their symbols, a page an employee. Reads calendars and
/// registers.
[[nodiscard]] Papier KartaEwidencji(const ZrodloPapieru& zrodlo);
/// A month's days to be signed, a page an employee. Reads calendars and registers.
[[nodiscard]] Papier ListaObecnosci(const ZrodloPapieru& zrodlo);
/// The year's months with the amounts of the lists and what they come to from January, a page an employee.
[[nodiscard]] Papier KartaPrzychodow(const ZrodloPapieru& zrodlo);
/// Who is employed since when and as what, and what he earned in each month of the span.
[[nodiscard]] Papier Zaswiadczenie(const ZrodloPapieru& zrodlo);

/// What each of the persons got in each month of the span: by person, then by month. Months and tables are
/// read once, for one person through the index.
[[nodiscard]] QList<QList<PlacaOsoby>> PlaceOsob(const ZrodloPapieru& zrodlo);

} // namespace tornel::reports
