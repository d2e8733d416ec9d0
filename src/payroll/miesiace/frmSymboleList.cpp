#include "payroll/miesiace/frmSymboleList.h"

namespace tornel::payroll {

namespace {

QList<QStringList> wpisySymboli(const QList<SymbolListyPlac>& symbole) {
    QList<QStringList> wynik;
    for (const SymbolListyPlac& s : symbole)
        wynik.append({s.symbol.trimmed().isEmpty() ? QStringLiteral("(bez symbolu)") : s.symbol,
                      QString::number(s.wierszy)});
    return wynik;
}

} // namespace

frmSymboleList::frmSymboleList(const QList<SymbolListyPlac>& symbole, QWidget* rodzic)
    : WyborWielu({QStringLiteral("frmSymboleList"),
                  QStringLiteral("Symbole list"),
                  QStringLiteral("lvwSymbole"),
                  {QStringLiteral("LISTA"), QStringLiteral("WYPŁAT")},
                  QStringLiteral("Nie ma żadnej listy.")},
                 wpisySymboli(symbole), rodzic),
      symbole_(symbole) {}

QString frmSymboleList::listy() const {
    if (wszystkie()) return {};
    QString wynik;
    for (const int i : wybrane()) wynik += symbole_[i].symbol;
    return wynik;
}

} // namespace tornel::payroll
