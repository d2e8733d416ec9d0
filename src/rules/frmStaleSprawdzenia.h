// What the fields of the constants do with their text when they are left, beyond the forms of money, whole
// numbers and dates.
#pragma once
#include "rules/frmStalePola.h"
#include "rules/Otoczenie.h"
#include "rules/Wzory.h"

namespace tornel::rules {

class SprawdzeniaStalych {
public:
    /// `zrodlo` holds the values of the fields that were left before.
    SprawdzeniaStalych(Otoczenie& otoczenie, const ZrodloStalych& zrodlo);
    SprawdzeniaStalych(const SprawdzeniaStalych&) = delete;
    SprawdzeniaStalych& operator=(const SprawdzeniaStalych&) = delete;

    /// The check of one field of the constant; empty where its kind does all. It is valid as long as this
    /// object.
    [[nodiscard]] Wiazanie::Sprawdzenie dla(const StalaDef& stala, std::size_t element);

private:
    [[nodiscard]] Wiazanie::Sprawdzony numerJedyny(const StalaDef& stala, std::size_t element,
                                                   const QString& tekst, const QString& przyWejsciu) const;

    const ZrodloStalych& zrodlo_;
    Rozmowa& rozmowa_;
    Wzory wzory_;
};

/// The name of component `tekst`, empty for 0 and for a text that is no component number.
[[nodiscard]] QString nazwaSkladnika(const SkladnikiPlac& skladniki, const QString& tekst);

} // namespace tornel::rules
