// A print as data: its page, its bands and what stands on them. Places are millimetres.
#pragma once
#include "common/Przestrzenie.h"
#include <QList>
#include <QString>

namespace tornel::druk {

/// Fonts by what they are for; family and size stand in one table.
enum class Pismo { Tytul, Podtytul, Naglowek, Zwykle, Wazne, Drobne, Formularz };
enum class Ulozenie { Lewo, Srodek, Prawo };

/// How a value becomes text.
enum class Format {
    Tekst,
    Kwota,        ///< "1 234,56"
    KwotaBezZera, ///< the same; empty for 0
    Liczba,       ///< whole number
    LiczbaBezZera,
    Data, ///< dd-mm-yyyy
    // Of forms, whose boxes hold the parts apart.
    Zlote,     ///< "1234" of 1234,56
    Grosze,    ///< "56" of it
    CyfryDaty, ///< ddmmyyyy
};

/// A place on a band, from its left edge at the margin and from its top.
struct Miejsce {
    double x = 0;
    double y = 0;
    double szer = 0;
    double wys = 0;
};

/// One thing on a band.
struct Element {
    enum class Rodzaj {
        Tekst,      ///< `tekst` as it stands
        Pole,       ///< field `pole` of the row; lines that the value holds stand below one another
        Akapit,     ///< the same, broken into lines; the band grows with it unless it is a form
        Suma,       ///< sum of field `pole`: on a group's footer over the group, on the report's over all
        SumaStr,    ///< sum of field `pole` over the rows of the page
        Strona,     ///< `tekst` with %1, the number of the page, and %2, that of the last one
        Linia,      ///< from the upper left to the lower right corner of the place
        Przerywana, ///< the same, dashed: to cut along
        Ramka,
        Kratki, ///< field `pole`, one character in each of `ile` boxes; a longer one as `Pole`
        Obraz,  ///< the picture (SVG) whose resource `tekst` names
    };
    Rodzaj rodzaj = Rodzaj::Tekst;
    Miejsce miejsce;
    QString tekst = {};
    int pole = -1;
    Format format = Format::Tekst;
    Pismo pismo = Pismo::Zwykle;
    Ulozenie ulozenie = Ulozenie::Lewo;
    int ile = 0;
};

/// Where a band stands.
enum class Rola {
    NaglowekWydruku,
    NaglowekStrony,
    NaglowekGrupy, ///< on top of the rows that share the group's field
    Wiersz,
    StopkaGrupy,
    StopkaStrony, ///< at the bottom of every page
    StopkaWydruku,
};

struct Pasmo {
    Rola rola = Rola::Wiersz;
    double wys = 0;
    QList<Element> elementy = {};
    int grupa = 0;           ///< of a group's header and footer: 0 is the outermost
    bool powtarzaj = false;  ///< a group's header: again on top of each page that the group goes on to
    bool nowaStrona = false; ///< begins a page
    bool formularz = false;  ///< keeps its height: paragraphs get smaller, then are cut with a mark
};

/// A4, in millimetres.
struct Strona {
    bool poziomo = false;
    double lewy = 12, prawy = 12, gorny = 12, dolny = 12; ///< margins

    [[nodiscard]] double szer() const { return poziomo ? 297 : 210; }
    [[nodiscard]] double wys() const { return poziomo ? 210 : 297; }
    [[nodiscard]] double szerTresci() const { return szer() - lewy - prawy; }
    [[nodiscard]] double wysTresci() const { return wys() - gorny - dolny; }
};

struct OpisWydruku {
    QString nazwa; ///< by which the console calls it, and the proposed name of its files
    QString tytul; ///< of the window and of the PDF
    Strona strona = {};
    /// The bands. A list wider than the page has several sheets side by side, each with bands of the same
    /// roles and heights; they follow one another for each stretch of rows.
    QList<QList<Pasmo>> arkusze = {};
    QList<int> grupy = {};        ///< fields whose change ends a group, the outermost first
    QList<QString> nazwyPol = {}; ///< of the fields in a CSV; a field without a name is left out there
    QString brakWierszy = {};     ///< what stands on the page of a print without rows
};

} // namespace tornel::druk
