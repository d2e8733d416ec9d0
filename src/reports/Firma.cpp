#include "reports/Firma.h"
#include "common/Daty.h"
#include "druk/Tabela.h"
#include "rules/Stale.h"

namespace tornel::reports {

namespace {

QString polacz(const QStringList& czesci, const QString& spojnik) {
    QStringList niepuste;
    for (const QString& c : czesci)
        if (const QString t = c.trimmed(); !t.isEmpty()) niepuste.append(t);
    return niepuste.join(spojnik);
}

} // namespace

Firma FirmaNaWydruku(const Stale& stale) {
    return {polacz({stale.NazwaUzCz1, stale.NazwaUzCz2}, QStringLiteral(" ")),
            polacz({stale.Ulica, stale.KodiMiasto}, QStringLiteral(", "))};
}

QString MiejscowoscPism(const Stale& stale) {
    if (!stale.MiastoDok.trimmed().isEmpty()) return stale.MiastoDok.trimmed();
    const QString miasto = stale.KodiMiasto.trimmed();
    const bool zKodem = !miasto.isEmpty() && miasto[0].isDigit();
    return zKodem ? miasto.section(QLatin1Char(' '), 1).trimmed() : miasto;
}

QString MiesiacSlownie(RokMies miesiac) {
    return NazwaMiesiaca(miesiac.mies) + QLatin1Char(' ') + FormatRoku(miesiac.rok);
}

Pasmo StopkaZFirma(const OpisWydruku& opis, const Firma& firma, QDate dzien) {
    return stopkaStrony(opis.strona,
                        polacz({firma.nazwa, opis.tytul, QStringLiteral("Wydrukowano ") + FormatDaty(dzien)},
                               QStringLiteral("      ")));
}

OpisWydruku NowyOpis(QStringView nazwa, const QString& tytul, bool poziomo) {
    OpisWydruku opis;
    opis.nazwa = nazwa.toString();
    opis.tytul = tytul;
    opis.strona = {poziomo, 10, 10, 10, 8};
    return opis;
}

} // namespace tornel::reports
