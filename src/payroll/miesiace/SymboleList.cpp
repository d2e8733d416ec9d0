#include "payroll/miesiace/SymboleList.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"
#include <map>

namespace tornel::payroll {

using schemat::PLA;

QList<SymbolListyPlac> SymboleList(Sesja& sesja, const QList<RokMies>& miesiace) {
    QStringList tabele;
    for (const RokMies m : miesiace) tabele.append(Sesja::nazwaMiesiaca("PLA", m));
    PrzygotowaneZapytanie zapytanie(sesja.cnPlace, Zapytanie(PLA).kolumny(PLA("LISTA")).zTabel(tabele));
    std::map<QString, qint64> wierszy;
    for (auto w = zapytanie.uruchom(); w.nastepny();) {
        const QString symbol = w.tekst(PLA("LISTA"));
        ++wierszy[symbol.isEmpty() ? QStringLiteral(" ") : symbol];
    }
    QList<SymbolListyPlac> wynik;
    for (const auto& [symbol, ile] : wierszy) wynik.append({symbol, ile});
    return wynik;
}

} // namespace tornel::payroll
