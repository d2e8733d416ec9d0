// Which paper a transfer order is printed on.
#pragma once
#include "common/Przestrzenie.h"
#include <array>
#include <QStringView>

namespace tornel::bank {

enum class UkladPrzelewu {
    Przelew,  ///< copies 1 and 2 of 4, two on a sheet
    Przelew2, ///< copies 3 and 4
    Oryginal, ///< the fields alone, onto a printed form
};

struct OpisUkladuPrzelewu {
    UkladPrzelewu uklad;
    QStringView nazwa; ///< of the layout; the console takes it too
    QStringView opis;  ///< as the clerk chooses it, and the title of the print
};
inline constexpr auto UkladyPrzelewu = std::to_array<OpisUkladuPrzelewu>({
    {UkladPrzelewu::Przelew, u"dtrPrzelew", u"Przelew 1,2 z 4"},
    {UkladPrzelewu::Przelew2, u"dtrPrzelew2", u"Przelew 3,4 z 4"},
    {UkladPrzelewu::Oryginal, u"dtrPrzelewOrg", u"Przelew 1,2 z 4 - na oryginalnym druku"},
});

} // namespace tornel::bank
