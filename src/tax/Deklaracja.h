// The declarations that there are, and one of them as values: as it is computed, before it is stored, and as
// its form prints it.
#pragma once
#include "store/Recordset.h"
#include "store/Sesja.h"
#include <QList>
#include <string_view>

namespace tornel::tax {

enum class Deklaracja { Pit4, Pit11, Pit40, Pit8B };

struct RodzajDeklaracji {
    Deklaracja ktora;
    QStringView nazwa; ///< "PIT-11"
    QStringView ekran; ///< objectName of its screen
    const TabelaDef* tabela = nullptr;
    Recordset Sesja::*uchwyt = nullptr;
};
[[nodiscard]] const RodzajDeklaracji& OpisDeklaracji(Deklaracja ktora);

/// One row of a declaration's table, apart from the table. Columns go by their names, which several
/// declarations share; an unknown one throws `std::logic_error`.
class WierszDeklaracji {
public:
    /// Zeros, empty texts, no dates.
    explicit WierszDeklaracji(Deklaracja ktora);
    /// The handle's current row.
    WierszDeklaracji(Deklaracja ktora, const Recordset& deklaracja);

    [[nodiscard]] Deklaracja ktora() const { return ktora_; }
    [[nodiscard]] const TabelaDef& tabela() const { return *OpisDeklaracji(ktora_).tabela; }
    [[nodiscard]] bool ma(std::string_view nazwa) const { return tabela().numer(nazwa) >= 0; }
    [[nodiscard]] const Wartosc& wartosc(std::string_view nazwa) const;
    [[nodiscard]] const Wartosc& wartosc(int nr) const {
        return wartosci_.at(nr);
    } ///< by the column's ordinal
    [[nodiscard]] Waluta kwota(std::string_view nazwa) const;
    [[nodiscard]] Waluta kwota(Kolumna kolumna) const;
    [[nodiscard]] QString tekst(std::string_view nazwa) const;
    void ustaw(std::string_view nazwa, const Wartosc& wartosc);
    /// Of a series: `ustaw("przy_", 8, ...)` is `przy_8`.
    void ustaw(std::string_view seria, int nr, const Wartosc& wartosc);

    /// Puts the values into the handle's current row; nothing is stored.
    void przepisz(Recordset& deklaracja) const;

private:
    Deklaracja ktora_;
    QList<Wartosc> wartosci_; // by the ordinal of the column
};

} // namespace tornel::tax
