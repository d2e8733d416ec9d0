// A sum over rows that were read ahead for many employees at once.
#pragma once
#include "common/Blad.h"
#include "common/Waluta.h"

namespace tornel::payroll {

/// One that leaves the range of money fails only when it is asked for, so that it stops its own employee and
/// not the whole batch.
class SumaKwot {
public:
    void dodaj(Waluta kwota) {
        std::int64_t surowa = 0;
        przepelniona_ = przepelniona_ || __builtin_add_overflow(suma_.surowa(), kwota.surowa(), &surowa);
        suma_ = Waluta::zSurowej(surowa);
    }
    void dodaj(const SumaKwot& inna) {
        dodaj(inna.suma_);
        przepelniona_ = przepelniona_ || inna.przepelniona_;
    }
    /// Throws `Przepelnienie`.
    [[nodiscard]] Waluta kwota() const {
        if (przepelniona_)
            throw Przepelnienie(QStringLiteral("Suma kwot z wcześniejszych miesięcy jest zbyt duża."));
        return suma_;
    }

private:
    Waluta suma_;
    bool przepelniona_ = false;
};

} // namespace tornel::payroll
