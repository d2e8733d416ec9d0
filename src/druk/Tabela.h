// Bands of an ordinary table: captions above, rows, sums below, all from one list of columns.
#pragma once
#include "druk/Opis.h"

namespace tornel::druk {

struct KolumnaDruku {
    QString naglowek; ///< breaks into two lines at "\n"
    double szer = 0;  ///< mm
    int pole = 0;
    Format format = Format::Tekst;
    bool sumowana = false;
    bool doPrawej = false; ///< numbers given as texts

    [[nodiscard]] Ulozenie ulozenie() const {
        const bool tekst = format == Format::Tekst || format == Format::Data;
        return tekst && !doPrawej ? Ulozenie::Lewo : Ulozenie::Prawo;
    }
};

/// The page header's part with the captions in frames, `y` mm below the band's top.
[[nodiscard]] QList<Element> naglowkiKolumn(const QList<KolumnaDruku>& kolumny, double y, double wys = 8);
/// A row's cells, with a thin line below.
[[nodiscard]] QList<Element> komorkiWiersza(const QList<KolumnaDruku>& kolumny, double wys);
/// Sums under the columns that are summed, behind the caption. `rodzaj`: `Suma` or `SumaStr`.
[[nodiscard]] QList<Element> sumyKolumn(const QList<KolumnaDruku>& kolumny, const QString& podpis, double wys,
                                        Element::Rodzaj rodzaj = Element::Rodzaj::Suma);
/// A caption broken after a word from its first third on, so that it stands in two lines.
[[nodiscard]] QString wDwochLiniach(QString napis);
/// Width of all columns, mm.
[[nodiscard]] double szerKolumn(const QList<KolumnaDruku>& kolumny);
/// The title, what it is about, and at the right the firm; the first lines of a report.
[[nodiscard]] Pasmo naglowekWydruku(const Strona& strona, const QString& firma, const QString& tytul,
                                    const QString& podtytul);
/// The line at the bottom of a page: what it is, when it was printed, page n of m.
[[nodiscard]] Pasmo stopkaStrony(const Strona& strona, const QString& opis);

} // namespace tornel::druk
