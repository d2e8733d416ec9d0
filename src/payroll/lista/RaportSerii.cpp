#include "payroll/lista/RaportSerii.h"
#include "common/Rozmowa.h"
#include <QStringList>

namespace tornel::payroll {

QString RaportSerii::tekst() const {
    QStringList linie;
    for (const Niepowodzenie& n : niepowodzenia)
        linie.append(QStringLiteral("Pracownik nr %1: %2").arg(n.prcId).arg(n.powod));
    constexpr qsizetype kNajwiecejNumerow = 10;
    for (const Uwaga& u : uwagi) {
        QStringList numery;
        for (const qint64 nr : u.pracownicy.first(std::min(u.pracownicy.size(), kNajwiecejNumerow)))
            numery.append(QString::number(nr));
        const qsizetype reszta = u.pracownicy.size() - numery.size();
        linie.append(QStringLiteral("%1 (pracownik nr %2%3)")
                         .arg(u.tekst, numery.join(QStringLiteral(", ")),
                              reszta > 0 ? QStringLiteral(" i jeszcze %1").arg(reszta) : QString()));
    }
    return linie.join(QLatin1Char('\n'));
}

void RaportSerii::pokaz(Rozmowa& rozmowa) const {
    constexpr qsizetype kNajwiecejLinii = 20;
    QStringList linie = tekst().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (linie.isEmpty()) return;
    if (const qsizetype reszta = linie.size() - kNajwiecejLinii; reszta > 0) {
        linie.resize(kNajwiecejLinii);
        linie.append(QStringLiteral("... i jeszcze: %1").arg(reszta));
    }
    rozmowa.komunikat(linie.join(QLatin1Char('\n')), Styl::Wykrzyknik);
}

} // namespace tornel::payroll
