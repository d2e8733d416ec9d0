#include "cli/WierszTabeli.h"
#include "common/Daty.h"

namespace tornel::cli {

namespace {

/// One value of a row as JSON and the text output show it.
QString wartoscPola(const Wiersz& w, Kolumna k) {
    switch (rodzajWartosci(k.def().typ)) {
    case RodzajWartosci::Kwota:
        return TekstKwoty(w.kwota(k));
    case RodzajWartosci::Data:
        return FormatDaty(w.data(k));
    case RodzajWartosci::Calkowita:
        return QString::number(w.liczba(k));
    default:
        return w.tekst(k);
    }
}

} // namespace

void PiszWiersz(Wywolanie& w, const Recordset& rs, const SumyPodWierszem& sumy) {
    QJsonObject json;
    QList<QStringList> wiersze{{QStringLiteral("POLE"), QStringLiteral("WARTOŚĆ")}};
    const auto dodaj = [&](const QString& nazwa, const QString& wartosc) {
        json.insert(nazwa, wartosc);
        wiersze.append({nazwa, wartosc});
    };
    for (int nr = 0; nr < static_cast<int>(rs.tabela().kolumny.size()); ++nr) {
        const Kolumna k = rs.tabela().nr(nr);
        dodaj(QString::fromLatin1(k.def().nazwa.data(), static_cast<qsizetype>(k.def().nazwa.size())),
              wartoscPola(rs.biezacyWiersz(), k));
    }
    for (const auto& [nazwa, kwota] : sumy) dodaj(nazwa, TekstKwoty(kwota));
    if (w.json())
        w.pisz(json);
    else
        w.piszTabele(wiersze, {false, false});
}

} // namespace tornel::cli
