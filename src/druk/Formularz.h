// Forms: a picture of lines and boxes, drawn by us as SVG, and over it a table of captions and one of fields.
//
//     constexpr PoleFormularza pola[] = {{Nazwa, {3, 12, 170, 6}}, wKratkach(Konto, {3, 22, 96, 6}, 24)};
//     const Formularz formularz{u":/formularze/przelew.svg", 186, 128, napisy, pola};
//     OpisWydruku opis{.nazwa = ..., .tytul = ...};
//     ulozFormularze(opis, {{{&formularz, 12, 10}, {&formularz, 12, 158.5}}}, Tlo::Obraz);
#pragma once
#include "druk/Opis.h"
#include <span>

namespace tornel::druk {

/// One field over the picture. A text longer than its place is shown smaller, then cut with a mark.
struct PoleFormularza {
    int pole = 0;    ///< of the row
    Miejsce miejsce; ///< mm from the form's upper left corner
    Format format = Format::Tekst;
    Ulozenie ulozenie = Ulozenie::Lewo;
    Pismo pismo = Pismo::Formularz;
    int kratek = 0;      ///< boxes of one character each; 0 for an ordinary line
    bool akapit = false; ///< broken into as many lines as there is room for
};
/// A field whose place is divided into boxes.
constexpr PoleFormularza wKratkach(int pole, Miejsce miejsce, int ile, Format format = Format::Tekst,
                                   Ulozenie ulozenie = Ulozenie::Lewo) {
    return {pole, miejsce, format, ulozenie, Pismo::Formularz, ile};
}
/// A field of several lines.
constexpr PoleFormularza wLiniach(int pole, Miejsce miejsce, Pismo pismo = Pismo::Formularz) {
    return {pole, miejsce, Format::Tekst, Ulozenie::Lewo, pismo, 0, true};
}

/// A caption. Not in the picture, where letters would become thousands of lines that nobody can search.
struct NapisFormularza {
    Miejsce miejsce; ///< mm from the form's upper left corner
    QStringView tekst;
    Pismo pismo = Pismo::Drobne;
    Ulozenie ulozenie = Ulozenie::Lewo;
};

struct Formularz {
    QStringView obraz; ///< resource of the SVG in data/formularze, whose own size does not matter
    double szer = 0;   ///< mm that it takes
    double wys = 0;
    std::span<const NapisFormularza> napisy;
    std::span<const PoleFormularza> pola;
};

/// A form at its place on the paper.
struct FormularzNaStronie {
    const Formularz* formularz = nullptr; ///< read while the description is made
    double x = 0;                         ///< mm from the paper's corner
    double y = 0;
    QList<NapisFormularza> dopiski = {}; ///< captions of this copy only
};

/// What the fields are written on.
enum class Tlo {
    Obraz,    ///< clean paper: picture and captions are printed too
    Oryginal, ///< a printed form lies in the printer: the fields only
};

/// Gives the description one page of the paper after the other for each row, as `strony` lists them. The
/// margins become those of the paper's edge.
void ulozFormularze(OpisWydruku& opis, const QList<QList<FormularzNaStronie>>& strony, Tlo tlo);

} // namespace tornel::druk
