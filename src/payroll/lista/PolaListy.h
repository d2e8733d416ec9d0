// The amounts of a payroll row that the clerk may type over, each with its column and what is computed after
// it.
#pragma once
#include "payroll/lista/Naliczanie.h"
#include "store/SchematPlac.h"
#include <QStringView>
#include <span>

namespace tornel::payroll {

/// What runs after a hand edit of an amount. Every chain ends at the amount to pay but the last three.
enum class Lancuch {
    OdKosztow,     ///< bases, income, health insurance, tax
    OdUlgi,        ///< bases, health insurance, tax
    OdUbzdr,       ///< bases, tax; the typed deducted health insurance stands
    OdUbzdrNal,    ///< bases, the due health insurance becomes the deducted one, tax
    OdPPE,         ///< bases, contributions, income, health insurance, tax credit, tax
    ZmianaPodatku, ///< the tax stands; the pension-plan contribution may leave the amount to pay
    Przelew,       ///< checked against the amount to pay
    Zaden,         ///< the column only
};

struct PoleListy {
    QStringView nazwa; ///< of the control
    Kolumna kolumna;
    Lancuch lancuch;
};

/// The steps of a chain; nothing for one that computes no bases and no tax.
[[nodiscard]] std::optional<Kroki> KrokiLancucha(Lancuch lancuch);

/// All editable amounts of `PLA` and `PLB`.
[[nodiscard]] std::span<const PoleListy> polaListy();
/// The field by its control's name; throws `Blad` for an unknown one.
[[nodiscard]] const PoleListy& poleListy(QStringView nazwa);

} // namespace tornel::payroll
