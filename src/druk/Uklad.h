// The layout of a print: which band with which row stands where on which page.
#pragma once
#include "druk/Opis.h"
#include "druk/Wiersze.h"
#include <memory>
#include <vector>

namespace tornel::druk {

class Plotno;

/// Made once for a print; then any page can be drawn when somebody looks. Rows are read while it is made only
/// as far as groups, sums and paragraphs need it.
class Uklad {
public:
    /// Throws `Blad` for a description whose bands do not fit on a page.
    Uklad(OpisWydruku opis, std::shared_ptr<const WierszeDruku> wiersze);

    [[nodiscard]] const OpisWydruku& opis() const { return opis_; }
    [[nodiscard]] const WierszeDruku& wiersze() const { return *wiersze_; }
    [[nodiscard]] int stron() const;
    /// Draws a page, counted from 0. Throws whatever the rows throw.
    void rysuj(int strona, Plotno& plotno) const;
    /// Whether a text stands on the page, whatever its case.
    [[nodiscard]] bool zawiera(int strona, const QString& tekst) const;

private:
    class Skladanie;
    using Sumy = std::vector<Waluta>;

    /// A band at its place, mm below the page's upper margin.
    struct Polozenie {
        int pasmo = 0;
        int wiersz = -1;
        int sumy = -1; ///< which of `sumy_` it shows
        float y = 0;
        float wys = 0;
    };

    void rysujPasmo(const Pasmo& pasmo, const Polozenie& p, int strona, Plotno& plotno) const;
    void rysujElement(const Pasmo& pasmo, const Element& e, const Miejsce& m, const Polozenie& p, int strona,
                      Plotno& plotno) const;
    /// What a field of the row says.
    void rysujPole(const Pasmo& pasmo, const Element& e, const Miejsce& m, int wiersz, Plotno& plotno) const;
    [[nodiscard]] Waluta suma(const Polozenie& p, const Element& e) const;

    OpisWydruku opis_;
    std::shared_ptr<const WierszeDruku> wiersze_;
    std::vector<Polozenie> polozenia_;
    std::vector<std::size_t> poczatki_; ///< of each page's stretch in `polozenia_`
    std::vector<int> sumowane_;         ///< the fields that some band sums
    std::vector<Sumy> sumy_;
    std::vector<int> sumyStron_; ///< of each page, in `sumy_`
};

/// The text of a value, as an element shows it.
[[nodiscard]] QString tekstPola(const Wartosc& wartosc, Format format);

} // namespace tornel::druk
