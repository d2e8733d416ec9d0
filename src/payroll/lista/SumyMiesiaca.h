// The sums of an open month over all its lists, kept equal to the rows with every action that writes them.
#pragma once
#include "common/RokMies.h"
#include "common/Waluta.h"
#include <array>
#include <optional>

namespace tornel::store {
class Sesja;
class Transakcja;
} // namespace tornel::store

namespace tornel::payroll {

/// Works on the month open on `rsPLA`, `rsPLB`. The rows are walked once; from then on each action adds what
/// it changes, so that an edit costs the same in a month of ten rows and of fifty thousand.
class SumyMiesiaca {
public:
    SumyMiesiaca(Sesja& sesja, RokMies miesiac) : sesja_(sesja), miesiac_(miesiac) {}

    /// Takes in the changes that wait on `rsPLA` and `rsPLB`: called before they are written.
    void dolicz();
    /// Writes the sums to `PLACE` as a part of `akcja`, unless they stand there or the month has no header
    /// row. False when a sum leaves the range of amounts: nothing is written then, since no row is at fault.
    [[nodiscard]] bool zapisz(const Transakcja& akcja);
    /// The rows may no longer be those that were added up: an action failed.
    void uniewaznij() { sumy_.reset(); }

private:
    static constexpr std::size_t kKwot = 16;
    struct Sumy {
        std::array<Waluta, kKwot> kwoty{};
        int wierszy = 0;
    };
    void policz();
    [[nodiscard]] Sumy sumaWierszy() const;
    [[nodiscard]] Sumy zeZmianami(Sumy sumy) const;

    Sesja& sesja_;
    RokMies miesiac_;
    std::optional<Sumy> sumy_;
};

} // namespace tornel::payroll
