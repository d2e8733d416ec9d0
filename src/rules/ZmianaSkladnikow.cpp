#include "rules/ZmianaSkladnikow.h"
#include "common/Blad.h"
#include "store/Sesja.h"

namespace tornel::rules {

using schemat::SZ_PL;

namespace {

void wpisz(Recordset& rs, int nr, const Skladnik& s) {
    if (!rs.Znajdz(nr))
        throw Blad(
            QStringLiteral("Nie można zapisać składników płac: w tabeli SZ_PL brakuje składnika nr %1.")
                .arg(nr));
    rs.ustaw(SZ_PL("naz_sk"), s.nazwa);
    rs.ustawFlage(SZ_PL("Brutto"), s.brutto);
    rs.ustawFlage(SZ_PL("Zus"), s.zus);
    rs.ustawFlage(SZ_PL("Ubzdr"), s.ubzdr);
    rs.ustawFlage(SZ_PL("Akt"), s.akt);
    if (nr > kDodatnich) return;
    rs.ustaw(SZ_PL("KodZUS"), s.kodZUS);
    rs.ustaw(SZ_PL("kodswprz"), s.kodSwPrz);
}

} // namespace

KatalogSkladnikow Wczytaj_skladniki(Otoczenie& otoczenie) {
    otoczenie.skladniki.WczytajSkladnikiPlac(otoczenie.sesja);
    KatalogSkladnikow katalog;
    for (int n = 1; n <= kDodatnich + kUjemnych; ++n)
        katalog[static_cast<std::size_t>(n) - 1] =
            n <= kDodatnich ? otoczenie.skladniki.dodatni(n) : otoczenie.skladniki.ujemny(n - kDodatnich);
    return katalog;
}

void Zapisz_zmiany(Otoczenie& otoczenie, const KatalogSkladnikow& katalog) {
    Recordset& rs = otoczenie.sesja.rsSZ_PL;
    rs.Filter({});
    try {
        for (int n = 1; n <= kDodatnich + kUjemnych; ++n)
            wpisz(rs, n, katalog[static_cast<std::size_t>(n) - 1]);
        rs.UpdateBatch(u"Zmiana składników płac");
    } catch (...) {
        rs.CancelBatch();
        throw;
    }
    otoczenie.skladniki.WczytajSkladnikiPlac(otoczenie.sesja);
}

} // namespace tornel::rules
