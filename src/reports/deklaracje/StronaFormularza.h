// A page of a form built box by box: each box is written once, with its caption and its field, and picture,
// captions and fields come from it. The picture itself lies in data/formularze and is held against the boxes
// by a test.
#pragma once
#include "druk/Formularz.h"
#include "store/Tabela.h"
#include <deque>
#include <string_view>

namespace tornel::reports {

/// One box in a row.
struct Kratka {
    double szer = 0;               ///< share of the row's width
    QStringView podpis = {};       ///< caption; the page puts its number in front
    std::string_view kolumna = {}; ///< of the declaration, or the name of a sum; empty for an empty box
    Format format = Format::Tekst;
    bool akapit = false; ///< as many lines as there is room for
};

/// A row of a table of amounts: what it is about and its columns from the left; an empty name is a box that
/// the form keeps shaded.
struct WierszTabeli {
    QStringView podpis;
    QList<std::string_view> kolumny;
    bool razem = false; ///< a sum, whose caption stands out
};

/// A column of such a table.
struct KolumnaTabeli {
    double szer = 0; ///< mm
    QStringView naglowek;
    Format format = Format::Kwota;
};

class StronaFormularza {
public:
    static constexpr double kSzer = 186, kWys = 273; ///< mm

    /// `tabela` is the declaration's; `sumy` are the fields behind its columns, in their order. Numbers of
    /// boxes go on from `pierwszy`.
    StronaFormularza(const TabelaDef& tabela, QList<std::string_view> sumy, QStringView obraz, int pierwszy);

    void tytul(QStringView symbol, QStringView nazwa, QStringView stopka);
    /// A part of the form under a bar: "A. MIEJSCE SKŁADANIA".
    void czesc(QStringView napis);
    /// The same, for a part of a part.
    void podczesc(QStringView napis);
    void rzad(const QList<Kratka>& kratki, double wys = 9.5);
    /// A box with choices, each with its own little square that holds the "x" of its column.
    void wybor(QStringView podpis, const QList<Kratka>& mozliwosci);
    /// Each amount has its number, which the form's rules could refer to.
    void tabela(QStringView naglowek, const QList<KolumnaTabeli>& kolumny, const QList<WierszTabeli>& wiersze,
                double wys = 8);

    /// The number of the next box.
    [[nodiscard]] int nastepny() const { return numer_; }
    /// Lives as long as the page.
    [[nodiscard]] const Formularz& formularz();
    /// The picture as it has to be: one unit is a tenth of a millimetre.
    [[nodiscard]] QByteArray svg() const;
    /// The places of all boxes.
    [[nodiscard]] const QList<Miejsce>& ramki() const { return ramki_; }
    [[nodiscard]] double zajete() const { return y_; }

private:
    void napis(const Miejsce& miejsce, const QString& tekst, Pismo pismo, Ulozenie ulozenie = Ulozenie::Lewo);
    void podpis(const Miejsce& ramka, const QString& tekst);
    void pole(const Miejsce& miejsce, std::string_view kolumna, Format format, Ulozenie ulozenie,
              bool akapit = false);
    [[nodiscard]] QString zNumerem(QStringView podpis);
    [[nodiscard]] int numerPola(std::string_view kolumna) const;

    const TabelaDef& tabela_;
    QList<std::string_view> sumy_;
    QStringView obraz_;
    int numer_;
    double y_ = 0;
    std::deque<QString> teksty_; // which the captions point to
    QList<NapisFormularza> napisy_;
    QList<PoleFormularza> pola_;
    QList<Miejsce> ramki_, tla_;
    Formularz formularz_;
};

} // namespace tornel::reports
