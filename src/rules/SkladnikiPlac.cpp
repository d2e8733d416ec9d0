#include "rules/SkladnikiPlac.h"
#include "common/Blad.h"
#include "store/Sesja.h"
#include <span>

namespace tornel::rules {

namespace {

/// A flag of a component with the masks that hold it.
struct Flaga {
    bool Skladnik::*flaga;
    quint32 Maski::*sp;
    quint16 Maski::*sm;
    Kolumna kolumnaSp;
    Kolumna kolumnaSm;
};

constexpr Flaga kFlagi[] = {
    {&Skladnik::akt, &Maski::akt_sp, &Maski::akt_sm, schemat::PLACE("akt_sp"), schemat::PLACE("akt_sm")},
    {&Skladnik::brutto, &Maski::br_sp, &Maski::br_sm, schemat::PLACE("br_sp"), schemat::PLACE("br_sm")},
    {&Skladnik::zus, &Maski::zus_sp, &Maski::zus_sm, schemat::PLACE("zus_sp"), schemat::PLACE("zus_sm")},
    {&Skladnik::ubzdr, &Maski::ubzdr_sp, &Maski::ubzdr_sm, schemat::PLACE("ubzdr_sp"),
     schemat::PLACE("ubzdr_sm")},
};

constexpr quint32 kMaskaDodatnich = (1U << kDodatnich) - 1;
constexpr quint32 kMaskaUjemnych = (1U << kUjemnych) - 1;

Skladnik czytajSkladnik(Recordset& rs, int nr) {
    if (!rs.Znajdz(nr))
        throw Blad(
            QStringLiteral("Nie można wczytać składników płac: w tabeli SZ_PL brakuje składnika nr %1.")
                .arg(nr));
    return {
        .akt = rs.flaga(schemat::SZ_PL("Akt")),
        .brutto = rs.flaga(schemat::SZ_PL("Brutto")),
        .zus = rs.flaga(schemat::SZ_PL("Zus")),
        .ubzdr = rs.flaga(schemat::SZ_PL("Ubzdr")),
        .nazwa = rs.tekst(schemat::SZ_PL("naz_sk")),
        .kodZUS = rs.tekst(schemat::SZ_PL("KodZUS")),
        .kodSwPrz = rs.tekst(schemat::SZ_PL("kodswprz")),
    };
}

quint32 maskaFlagi(std::span<const Skladnik> skladniki, bool Skladnik::*flaga) {
    quint32 maska = 0;
    for (std::size_t i = 0; i < skladniki.size(); ++i)
        if (skladniki[i].*flaga) maska |= 1U << i;
    return maska;
}

const Skladnik& wybrany(std::span<const Skladnik> skladniki, int n, const QString& rodzaj) {
    if (n < 1 || static_cast<std::size_t>(n) > skladniki.size())
        throw Blad(QStringLiteral("Nie ma %1 składnika płac o numerze %2.").arg(rodzaj).arg(n));
    return skladniki[static_cast<std::size_t>(n) - 1];
}

} // namespace

Maski Maski::zMiesiaca(const Recordset& rsPLACE) {
    Maski maski;
    for (const Flaga& f : kFlagi) {
        maski.*f.sp = static_cast<quint32>(rsPLACE.liczba(f.kolumnaSp)) & kMaskaDodatnich;
        maski.*f.sm =
            static_cast<quint16>(static_cast<quint32>(rsPLACE.liczba(f.kolumnaSm)) & kMaskaUjemnych);
    }
    return maski;
}

void Maski::naMiesiac(Recordset& rsPLACE) const {
    for (const Flaga& f : kFlagi) {
        rsPLACE.ustaw(f.kolumnaSp, static_cast<qint64>(this->*f.sp));
        rsPLACE.ustaw(f.kolumnaSm, static_cast<qint64>(this->*f.sm));
    }
}

void SkladnikiPlac::WczytajSkladnikiPlac(Sesja& sesja) {
    sesja.rsSZ_PL.Filter({});
    SkladnikiPlac wczytane;
    int nr = 0;
    for (Skladnik& skladnik : wczytane.dodatnie_) skladnik = czytajSkladnik(sesja.rsSZ_PL, ++nr);
    for (Skladnik& skladnik : wczytane.ujemne_) {
        skladnik = czytajSkladnik(sesja.rsSZ_PL, ++nr);
        skladnik.kodZUS.clear();
        skladnik.kodSwPrz.clear();
    }
    *this = std::move(wczytane);
}

void SkladnikiPlac::WczytajSkladnikiMiesiaca(Sesja& sesja) {
    const auto maski = Maski::zMiesiaca(sesja.rsPLACE);
    for (const Flaga& f : kFlagi) {
        for (int n = 1; n <= kDodatnich; ++n)
            dodatnie_[static_cast<std::size_t>(n) - 1].*f.flaga = maBit(maski.*f.sp, n);
        for (int n = 1; n <= kUjemnych; ++n)
            ujemne_[static_cast<std::size_t>(n) - 1].*f.flaga = maBit(maski.*f.sm, n);
    }
}

Maski SkladnikiPlac::maski() const {
    Maski maski;
    for (const Flaga& f : kFlagi) {
        maski.*f.sp = maskaFlagi(dodatnie_, f.flaga);
        maski.*f.sm = static_cast<quint16>(maskaFlagi(ujemne_, f.flaga));
    }
    return maski;
}

const Skladnik& SkladnikiPlac::dodatni(int n) const {
    return wybrany(dodatnie_, n, QStringLiteral("dodatniego"));
}

const Skladnik& SkladnikiPlac::ujemny(int n) const { return wybrany(ujemne_, n, QStringLiteral("ujemnego")); }

} // namespace tornel::rules
