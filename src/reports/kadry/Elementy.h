// Elements and bands that the personnel papers share.
#pragma once
#include "druk/Opis.h"
#include "reports/Firma.h"
#include "reports/kadry/DaneOsoby.h"

namespace tornel::reports {

[[nodiscard]] Element napisNa(Miejsce m, const QString& tekst, Pismo pismo = Pismo::Zwykle,
                              Ulozenie ulozenie = Ulozenie::Lewo);
[[nodiscard]] Element poleNa(Miejsce m, int pole, Pismo pismo = Pismo::Zwykle,
                             Ulozenie ulozenie = Ulozenie::Lewo, Format format = Format::Tekst);

/// The firm's line on top of every page.
[[nodiscard]] Pasmo liniaFirmy(const Strona& strona, const Firma& firma);
/// The head of a person's pages: title, what it is about, who he is and two lines about him; 31 mm. Each
/// person begins a page.
[[nodiscard]] Pasmo naglowekOsoby(const Strona& strona, const QString& tytul, const QString& podtytul);
inline constexpr double kWysNaglowkaOsoby = 31;

/// Dotted places for signatures, side by side over the whole width, below a free space of 12 mm.
[[nodiscard]] QList<Element> podpisy(double szer, double y, const QStringList& kto);
inline constexpr double kWysPodpisow = 21;

/// Vertical lines at the borders of columns of these widths, from the top to `wys`.
[[nodiscard]] QList<Element> linieKolumn(const QList<double>& szerokosci, double wys);

} // namespace tornel::reports
