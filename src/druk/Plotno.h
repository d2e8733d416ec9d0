// What a page is drawn on: a painter, or the text of a golden file.
#pragma once
#include "druk/Opis.h"

namespace tornel::druk {

/// Places are millimetres from the corner of the sheet of paper.
class Plotno {
public:
    virtual ~Plotno() = default;
    /// One line of text within its place; a longer one is shown smaller, then cut with a mark.
    virtual void tekst(const Miejsce& m, const QString& tekst, Pismo pismo, Ulozenie ulozenie) = 0;
    /// One character in the middle of each of `ile` boxes, from the box `od` on.
    virtual void kratki(const Miejsce& m, const QString& znaki, Pismo pismo, int ile, int od);
    virtual void linia(const Miejsce& m, bool przerywana) = 0;
    virtual void ramka(const Miejsce& m) = 0;
    virtual void obraz(const Miejsce& m, const QString& zasob) = 0;
};

} // namespace tornel::druk
