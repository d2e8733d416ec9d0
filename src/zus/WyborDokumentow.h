// Which documents go into a collection, and the text under which the choice is kept.
#pragma once
#include "zus/OpisKedu.h"
#include <QString>

namespace tornel::zus {

/// The constant that keeps the choice.
inline constexpr int kStalaWyboru = 999;

class WyborDokumentow {
public:
    /// 1 for a document that is chosen; of ZPA and ZFA the type 1 to 3; 0 for none.
    [[nodiscard]] int operator[](KodKedu kod) const { return wartosci_[static_cast<std::size_t>(kod)]; }
    /// A type out of 0 to 3 counts as 0. The DRA has no blocks and cannot be chosen.
    void ustaw(KodKedu kod, int wartosc);
    [[nodiscard]] bool jest(KodKedu kod) const { return (*this)[kod] != 0; }
    /// Whether any document is chosen.
    [[nodiscard]] bool jakikolwiek() const;
    /// Whether any is written for employees, so that it has to be known for whom.
    [[nodiscard]] bool dlaPracownikow() const;

    /// Fifteen characters, in an order of their own: deliberate.
    [[nodiscard]] QString UtworzSlowo() const;
    /// Whatever is not understood is not chosen.
    [[nodiscard]] static WyborDokumentow zeSlowa(const QString& slowo);

    bool operator==(const WyborDokumentow&) const = default;

private:
    std::array<int, kDokumentow> wartosci_{};
};

} // namespace tornel::zus
