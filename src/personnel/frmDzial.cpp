#include "personnel/frmDzial.h"

namespace tornel::personnel {

namespace {

QList<QStringList> wpisyDzialow(const QList<DzialFirmy>& dzialy) {
    QList<QStringList> wynik;
    for (const DzialFirmy& d : dzialy)
        wynik.append(
            {d.nazwa.isEmpty() ? QStringLiteral("(bez działu)") : d.nazwa, QString::number(d.pracownikow)});
    return wynik;
}

} // namespace

frmDzial::frmDzial(const QList<DzialFirmy>& dzialy, QWidget* rodzic)
    : WyborWielu({QStringLiteral("frmDzial"),
                  QStringLiteral("Działy"),
                  QStringLiteral("lvwDzial"),
                  {QStringLiteral("DZIAŁ"), QStringLiteral("OSÓB")},
                  QStringLiteral("Nie ma pracowników.")},
                 wpisyDzialow(dzialy), rodzic),
      dzialy_(dzialy) {}

std::optional<QStringList> frmDzial::dzialy() const {
    if (wszystkie()) return std::nullopt;
    QStringList wynik;
    for (const int i : wybrane()) wynik.append(dzialy_[i].nazwa);
    return wynik;
}

} // namespace tornel::personnel
