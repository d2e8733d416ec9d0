#include "payroll/lista/PolaListy.h"
#include "common/Blad.h"
#include "store/SchematPlac.h"
#include <algorithm>

namespace tornel::payroll {

using schemat::PLA;
using schemat::PLB;

std::span<const PoleListy> polaListy() {
    static constexpr PoleListy pola[] = {
        {u"txtKosztyUz", PLA("KUP"), Lancuch::OdKosztow},
        {u"txtFEPC", PLB("FEPRC"), Lancuch::OdKosztow},
        {u"txtFRPC", PLB("FRPRC"), Lancuch::OdKosztow},
        {u"txtFC", PLB("FCPRC"), Lancuch::OdKosztow},
        {u"txtUlgaPod", PLA("PPD"), Lancuch::OdUlgi},
        {u"txtUZPO", PLB("UBZDR"), Lancuch::OdUbzdr},
        {u"txtUZNA", PLB("UBZDR_NAL"), Lancuch::OdUbzdrNal},
        {u"txtPotrPPE", PLB("PPE"), Lancuch::OdPPE},
        {u"txtPPEosk", PLB("ZUS_PPE"), Lancuch::OdPPE},
        {u"txtPodatek19", PLA("PODATEK"), Lancuch::ZmianaPodatku},
        {u"txtPrzelewem", PLA("PRZELEWEM"), Lancuch::Przelew},
        {u"txtFP", PLA("SKL_FP"), Lancuch::Zaden},
        {u"txtFGSP", PLA("SKL_FGSP"), Lancuch::Zaden},
        {u"txtFEPD", PLB("FEPRD"), Lancuch::Zaden},
        {u"txtFRPD", PLB("FRPRD"), Lancuch::Zaden},
        {u"txtFW", PLB("FWPRD"), Lancuch::Zaden},
    };
    return pola;
}

std::optional<Kroki> KrokiLancucha(Lancuch lancuch) {
    switch (lancuch) {
    case Lancuch::OdKosztow:
        return Kroki{.netto = true, .ubzdr = true, .odliczane = true};
    case Lancuch::OdUlgi:
        return Kroki{.ubzdr = true, .odliczane = true};
    case Lancuch::OdUbzdr:
        return Kroki{};
    case Lancuch::OdUbzdrNal:
        return Kroki{.odliczane = true};
    case Lancuch::OdPPE:
        return Kroki{.skladki = true, .netto = true, .ubzdr = true, .odliczane = true, .ulga = true};
    default:
        return std::nullopt;
    }
}

const PoleListy& poleListy(QStringView nazwa) {
    const auto pola = polaListy();
    const auto miejsce =
        std::find_if(pola.begin(), pola.end(), [&](const PoleListy& p) { return p.nazwa == nazwa; });
    if (miejsce == pola.end()) throw Blad(QStringLiteral("Nieznane pole listy płac: %1.").arg(nazwa));
    return *miejsce;
}

} // namespace tornel::payroll
