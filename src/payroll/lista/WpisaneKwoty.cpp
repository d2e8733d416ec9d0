#include "payroll/lista/WpisaneKwoty.h"
#include "payroll/lista/Pozycje.h"
#include "rules/SkladnikiPlac.h"
#include "store/Sesja.h"

namespace tornel::payroll {

using schemat::WPISANE;

namespace {

/// Bit n - 1 stands for component n, as in the masks of a month.
struct WpisaneWiersza {
    quint32 dodatnie = 0, ujemne = 0;
};

WpisaneWiersza wpisaneWiersza(const Sesja& s, qint64 prcId, const QString& lista) {
    const auto wiersz = s.rsWPISANE.szukaj(prcId, lista);
    if (!wiersz) return {};
    return {static_cast<quint32>(wiersz->liczba(WPISANE("DODATNIE"))),
            static_cast<quint32>(wiersz->liczba(WPISANE("UJEMNE")))};
}

void ustawWpisane(Sesja& s, qint64 prcId, const QString& lista, WpisaneWiersza nowe) {
    Recordset& rs = s.rsWPISANE;
    const bool jest = rs.Znajdz(prcId, lista);
    if (nowe.dodatnie == 0 && nowe.ujemne == 0) {
        if (jest) rs.Delete();
        return;
    }
    if (!jest) {
        rs.AddNewZero(prcId, lista);
        rs.ustaw(WPISANE("ROKMIES"), s.miesiac().klucz());
    }
    rs.ustaw(WPISANE("DODATNIE"), static_cast<qint64>(nowe.dodatnie));
    rs.ustaw(WPISANE("UJEMNE"), static_cast<qint64>(nowe.ujemne));
}

WpisaneWiersza uzywane(const Pozycje& pozycje) {
    WpisaneWiersza w;
    for (int i = 1; i <= kDodatnich; ++i)
        if (pozycje.dodatnia(i).aktywna()) w.dodatnie |= 1U << (i - 1);
    for (int j = 1; j <= kUjemnych; ++j)
        if (pozycje.ujemna(j).aktywna()) w.ujemne |= 1U << (j - 1);
    return w;
}

} // namespace

void ZaznaczWpisane(Sesja& sesja, qint64 prcId, const QString& lista, const QList<Kolumna>& kolumny) {
    WpisaneWiersza w = wpisaneWiersza(sesja, prcId, lista);
    for (const Kolumna k : kolumny) {
        for (int i = 1; i <= kDodatnich; ++i)
            if (schemat::SP(i).nr == k.nr) w.dodatnie |= 1U << (i - 1);
        for (int j = 1; j <= kUjemnych; ++j)
            if (schemat::SM(j).nr == k.nr) w.ujemne |= 1U << (j - 1);
    }
    ustawWpisane(sesja, prcId, lista, w);
}

void PrzepisanoSkladniki(Sesja& sesja, const Pozycje& pozycje, qint64 prcId, const QString& lista) {
    const WpisaneWiersza w = wpisaneWiersza(sesja, prcId, lista), maska = uzywane(pozycje);
    ustawWpisane(sesja, prcId, lista, {w.dodatnie & ~maska.dodatnie, w.ujemne & ~maska.ujemne});
}

bool SaWpisane(const Sesja& sesja, const Pozycje& pozycje, qint64 prcId, const QString& lista) {
    const WpisaneWiersza w = wpisaneWiersza(sesja, prcId, lista), maska = uzywane(pozycje);
    return (w.dodatnie & maska.dodatnie) != 0 || (w.ujemne & maska.ujemne) != 0;
}

} // namespace tornel::payroll
