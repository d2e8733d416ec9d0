#include "store/RaportSerii.h"
#include "common/Rozmowa.h"
#include <algorithm>

namespace tornel::store {

void RaportSerii::dodajUwagi(qint64 numer, const QStringList& teksty) {
    for (const QString& tekst : teksty) {
        const auto znana = znaneUwagi_.constFind(tekst);
        const qsizetype miejsce = znana == znaneUwagi_.cend() ? uwagi.size() : *znana;
        if (miejsce == uwagi.size()) {
            znaneUwagi_.insert(tekst, miejsce);
            uwagi.append({tekst, {}});
        }
        QList<qint64>& numery = uwagi[miejsce].numery;
        if (numery.isEmpty() || numery.last() != numer) numery.append(numer);
    }
}

QString RaportSerii::tekst() const {
    QStringList linie;
    for (const Niepowodzenie& n : niepowodzenia)
        linie.append(QStringLiteral("%1 %2: %3")
                         .arg(podmiot.left(1).toUpper() + podmiot.mid(1), QString::number(n.numer), n.powod));
    constexpr qsizetype kNajwiecejNumerow = 10;
    for (const Uwaga& u : uwagi) {
        QStringList numery;
        for (const qint64 nr : u.numery.first(std::min(u.numery.size(), kNajwiecejNumerow)))
            numery.append(QString::number(nr));
        const qsizetype reszta = u.numery.size() - numery.size();
        linie.append(QStringLiteral("%1 (%2 %3%4)")
                         .arg(u.tekst, podmiot, numery.join(QStringLiteral(", ")),
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

} // namespace tornel::store
