#include "reports/place/PlaceMiesiecy.h"
#include "payroll/miesiace/Miesiace.h"
#include "reports/Firma.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"

namespace tornel::reports {

using schemat::PLA;
using schemat::PLB;
using schemat::PLS;

namespace {

/// The amounts among the columns of the tables A, B and S, and their fields.
QList<std::pair<int, Kolumna>> kwotyTabeli(const TabelaDef& tabela) {
    QList<std::pair<int, Kolumna>> wynik;
    if (&tabela == &PLS) {
        for (int i = 1; i <= 30; ++i) wynik.append({polePlusa(i), schemat::SP(i)});
        for (int i = 1; i <= 15; ++i) wynik.append({poleMinusa(i), schemat::SM(i)});
        return wynik;
    }
    for (const PoleKolumna& p : kolumnyListyPlac())
        if (p.kolumna.tabela == &tabela && rodzajWartosci(p.kolumna.def().typ) == RodzajWartosci::Kwota)
            wynik.append({p.pole, p.kolumna});
    return wynik;
}

/// The fields that no column holds.
void doliczWyliczane(const TabelaDef& tabela, const WierszeZapytania& w, SumyPlac& sumy) {
    if (&tabela == &PLA)
        sumy.dodaj(Gotowka, NieMniejNizZero(w.kwota(PLA("DO_WYPLATY")) - w.kwota(PLA("PRZELEWEM"))));
    if (&tabela == &PLB)
        sumy.dodaj(SkladkiPracownika, w.kwota(PLB("FEPRC")) + w.kwota(PLB("FRPRC")) + w.kwota(PLB("FCPRC")));
}

void doliczTabele(Sesja& sesja, const TabelaDef& tabela, RokMies miesiac, const WyborPlac& wybor,
                  const std::function<PlacaOsoby&(qint64)>& osoba) {
    const Kolumna prcId = tabela.nr(0), lista = tabela.nr(1); // alike in the tables of a month
    const auto kwoty = kwotyTabeli(tabela);
    Zapytanie zapytanie(tabela);
    zapytanie.zTabel({Sesja::nazwaMiesiaca(tabela.nazwa, miesiac)}).kolumny(prcId, lista);
    for (const auto& [pole, kolumna] : kwoty) zapytanie.kolumny(kolumna);
    if (&tabela == &PLA) zapytanie.kolumny(PLA("NAZ"), PLA("IMIE"));
    if (wybor.prcId) zapytanie.gdzie(prcId == Parametr{0});
    PrzygotowaneZapytanie gotowe(sesja.cnPlace, zapytanie);
    for (auto w = wybor.prcId ? gotowe.uruchom(*wybor.prcId) : gotowe.uruchom(); w.nastepny();) {
        if (!wybor.listy.isEmpty()) {
            const QString symbol = w.tekst(lista);
            if (!wybor.listy.contains(symbol.isEmpty() ? QStringLiteral(" ") : symbol)) continue;
        }
        PlacaOsoby& ta = osoba(w.liczba(prcId));
        for (const auto& [pole, kolumna] : kwoty) ta.sumy.dodaj(pole, w.kwota(kolumna));
        doliczWyliczane(tabela, w, ta.sumy);
        if (&tabela != &PLA) continue;
        ++ta.wyplat;
        ta.nazwisko = (w.tekst(PLA("NAZ")) + QLatin1Char(' ') + w.tekst(PLA("IMIE"))).trimmed();
    }
}

} // namespace

QString ZakresMiesiecy::napis() const {
    return od == dokad ? MiesiacSlownie(od)
                       : MiesiacSlownie(od) + QStringLiteral(" - ") + MiesiacSlownie(dokad);
}

QList<RokMies> MiesiaceZakresu(Sesja& sesja, const ZakresMiesiecy& okres) {
    QList<RokMies> wynik;
    for (RokMies m = okres.od; m <= okres.dokad; m = m.plus(1))
        if (JestMiesiac(sesja, m, {"PLA", "PLB", "PLS"})) wynik.append(m);
    return wynik;
}

void DoliczMiesiac(Sesja& sesja, RokMies miesiac, const WyborPlac& wybor,
                   const std::function<PlacaOsoby&(qint64)>& osoba) {
    for (const TabelaDef* tabela : {&PLA, &PLB, &PLS}) doliczTabele(sesja, *tabela, miesiac, wybor, osoba);
}

} // namespace tornel::reports
