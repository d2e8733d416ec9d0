// The way of the month's overtime from its own lists to the payroll row.
#pragma once
#include "common/Rozmowa.h"
#include "common/Waluta.h"
#include "payroll/nadgodziny/KolumnyNadgodzin.h"
#include "store/Zapytanie.h"
#include <optional>
#include <QList>

namespace tornel::payroll {

struct Warsztat;

class PrzenoszenieNadgodzin {
public:
    explicit PrzenoszenieNadgodzin(Warsztat& warsztat);
    ~PrzenoszenieNadgodzin();

    /// Forgets which overtime list is open.
    void zapomnij();

    /// Adds the employee's seven amounts to the components of constant 252 on the row where the month's
    /// handles stand, in memory, and gives the numbers of those components: their periods are due. Nothing,
    /// without a question, when he has no overtime in the month. Reads `NADG`, `NADGN` of the month; changes
    /// `PLS`. Throws `Blad` when the month's overtime table is missing.
    [[nodiscard]] QList<int> PrzeniesNadgodziny(Tryb tryb);

private:
    using Kwoty = WgGrup<Waluta>;
    [[nodiscard]] std::optional<Kwoty> kwoty(qint64 prcId);

    Warsztat& w_;
    bool sprawdzone_ = false;
    std::optional<PrzygotowaneZapytanie> lista_; // none when the month has no overtime list
};

} // namespace tornel::payroll
