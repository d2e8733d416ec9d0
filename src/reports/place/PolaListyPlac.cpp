#include "reports/place/PolaListyPlac.h"
#include "rules/SkladnikiPlac.h"
#include "store/Sesja.h"

namespace tornel::reports {

using schemat::PLA;
using schemat::PLB;

namespace {

constexpr PoleKolumna kKolumny[] = {
    {Numer, PLA("PRC_ID"), u"Nr"},
    {SymbolListy, PLA("LISTA"), u"Lista"},
    {Brutto, PLA("BRUTTO"), u"Brutto"},
    {Koszty, PLA("KUP"), u"Koszty uzyskania"},
    {Dochod, PLA("NETTO"), u"Dochód"},
    {PodatekPrzed, PLA("POD_DOCH"), u"Podatek przed odliczeniami"},
    {Ulga, PLA("PPD"), u"Ulga podatkowa"},
    {Zdrowotna, PLB("UBZDR"), u"Ubezp. zdrowotne odliczone"},
    {ZdrowotnaNalezna, PLB("UBZDR_NAL"), u"Ubezp. zdrowotne należne"},
    {Zaliczka, PLA("PODATEK"), u"Podatek"},
    {Dodatki, PLA("DODATKI"), u"Dodatki"},
    {Potracenia, PLA("POTRACENIA"), u"Potrącenia"},
    {DoWyplaty, PLA("DO_WYPLATY"), u"Do wypłaty"},
    {Przelewem, PLA("PRZELEWEM"), u"Przelewem"},
    {Emerytalna, PLB("FEPRC"), u"Fundusz emerytalny"},
    {Rentowa, PLB("FRPRC"), u"Fundusz rentowy"},
    {Chorobowa, PLB("FCPRC"), u"Fundusz chorobowy"},
    {EmerytalnaPracodawcy, PLB("FEPRD"), u"Fundusz emerytalny pracodawcy"},
    {RentowaPracodawcy, PLB("FRPRD"), u"Fundusz rentowy pracodawcy"},
    {Wypadkowa, PLB("FWPRD"), u"Fundusz wypadkowy"},
    {FunduszPracy, PLA("SKL_FP"), u"Fundusz pracy"},
    {Fgsp, PLA("SKL_FGSP"), u"Fundusz GSP"},
    {DniPracy, PLA("DN_PR"), u"Dni przepracowane"},
    {DniUrlopu, PLA("DN_URL"), u"Dni urlopu"},
    {DniChorobowe, PLA("DN_ZAS"), u"Dni L-4"},
};

} // namespace

std::span<const PoleKolumna> kolumnyListyPlac() { return kKolumny; }

QStringList NazwySkladnikow(Otoczenie& otoczenie, RokMies miesiac) {
    const Sesja& sesja = otoczenie.sesja;
    const QString rok = FormatRoku(miesiac.rok), mies = FormatMiesiaca(miesiac.mies);
    const auto naglowek = sesja.rsPLACE.otwarty() ? sesja.rsPLACE.szukaj(rok, mies) : std::nullopt;
    const bool zablokowany = naglowek && naglowek->flaga(schemat::PLACE("akc"));
    const auto zMiesiaca =
        zablokowany && sesja.rsPLACEN.otwarty() ? sesja.rsPLACEN.szukaj(rok, mies) : std::nullopt;
    QStringList nazwy{QString()};
    for (int nr = 1; nr <= 45; ++nr) {
        const QString nazwa = zMiesiaca  ? zMiesiaca->tekst(schemat::NazwaSkladnikaMiesiaca(nr))
                              : nr <= 30 ? otoczenie.skladniki.SkNazwa(nr)
                                         : otoczenie.skladniki.SkUNazwa(nr - 30);
        nazwy.append(nazwa.trimmed().isEmpty() ? QStringLiteral("Składnik %1").arg(nr) : nazwa.trimmed());
    }
    return nazwy;
}

} // namespace tornel::reports
