// Settlements of contributions with the insurer: one for a month, made from its payroll lists and edited by
// hand.
#pragma once
#include "common/RokMies.h"
#include "rules/Otoczenie.h"
#include "store/Recordset.h"
#include <algorithm>
#include <array>
#include <compare>
#include <optional>
#include <QList>

namespace tornel::zus {

/// Month and the number of the settlement within it.
struct KluczDRA {
    RokMies miesiac;
    int numer = 0;

    /// By which lists find their rows.
    [[nodiscard]] qint64 id() const { return miesiac.id() * 100'000 + numer; }
    [[nodiscard]] static KluczDRA zId(qint64 id) {
        return {RokMies::zId(id / 100'000), static_cast<int>(id % 100'000)};
    }
    /// "03.2001 nr 1".
    [[nodiscard]] QString napis() const;
    friend constexpr auto operator<=>(const KluczDRA&, const KluczDRA&) = default;
};

/// What a month's lists give, zł. The names are those of table `ZUS`; prd the employer's, prc the insured's.
struct SumyDRA {
    int il_ub = 0; ///< persons on the lists
    Waluta Feprd, Feprc, Frprd, Frprc, FcPrc, fwprd;
    Waluta swiad_fc, swiad_fw, swiad_bp; ///< benefits by who bears them: sickness, accident, state budget
    Waluta Ubzdr;                        ///< health insurance that the tax was reduced by
    Waluta Fp, Fgsp;

    friend bool operator==(const SumyDRA&, const SumyDRA&) = default;
};

/// What goes to the insurer, zł, each to an account of its own. Benefits paid reduce the first; below zero it
/// is what the insurer owes, which lessens no other account.
struct WplatyDRA {
    Waluta spoleczne; ///< account 51
    Waluta zdrowotne; ///< account 52
    Waluta fundusze;  ///< account 53, Labour Fund and Guaranteed Benefits Fund
    /// What is to be paid.
    [[nodiscard]] Waluta razem() const {
        return std::max(spoleczne, Waluta{}) + std::max(zdrowotne, Waluta{}) + std::max(fundusze, Waluta{});
    }
};
[[nodiscard]] WplatyDRA Wplaty(const SumyDRA& sumy);

/// Sums the lists of a month. Contributions and benefits go by the month's components, not by those of today
/// (constants 422 to 424 number the benefits). `listy`: their symbols, a character each; empty for all.
/// Nothing for a month that does not exist or whose lists have no rows. Reads `PLACE`, the month's `PLA`,
/// `PLB`, `PLS`.
[[nodiscard]] std::optional<SumyDRA> PodsumujDRA(Otoczenie& otoczenie, RokMies miesiac, const QString& listy);

/// A line of the control: what the settlement says against the sum of the rows of RCA.
struct KontrolaDRA {
    QStringView napis;
    Waluta deklaracja, raport;
};

class RozliczeniaDRA {
public:
    /// Opens `rsZUS`, sorted by its key. Throws `BladBazy`.
    explicit RozliczeniaDRA(Otoczenie& otoczenie);

    /// In their order.
    [[nodiscard]] QList<KluczDRA> lista() const;
    /// Moves `rsZUS` to the settlement; false if there is none.
    bool zaznacz(const KluczDRA& klucz);
    /// Makes a settlement under the smallest free number of the month and moves to it; a missing or empty
    /// month is asked about. Nothing when the clerk refuses. Writes `ZUS`. Throws `BladBazy`.
    std::optional<KluczDRA> Nowe(RokMies miesiac, const QString& listy, QDate dzis);
    /// Stores what was changed in memory. The amount to pay follows the other amounts until the clerk has
    /// typed one of his own. Throws `BladBazy`, `Konflikt`.
    void Wpisz();
    /// Asks and deletes. False on No. Throws `Blad` if there is none, `BladBazy`.
    bool Usun(const KluczDRA& klucz);

    /// What the current settlement holds.
    [[nodiscard]] SumyDRA sumy() const;
    [[nodiscard]] KluczDRA klucz() const;
    /// What it would hold were it made now; nothing if the month is gone.
    [[nodiscard]] std::optional<SumyDRA> dzisiejsze() const;
    /// Against the rows of the report RCA of everybody on the month's lists; empty without the month. Reads
    /// the month's tables.
    [[nodiscard]] QList<KontrolaDRA> kontrola() const;

private:
    [[nodiscard]] Recordset& rs() const;
    /// Whether the amount to pay, as the file holds it, is the one that the other amounts give.
    [[nodiscard]] bool zapisanaPoliczona() const;
    Otoczenie& o_;
};

} // namespace tornel::zus
