#include "rules/frmKartoteka.h"

namespace tornel::rules {

frmKartoteka::frmKartoteka(Otoczenie& otoczenie, const KartotekaDef& def, const OpisListyPol& opis,
                           QList<Kolumna> kolumny, QWidget* rodzic)
    : frmListaPol(
          otoczenie.rozmowa,
          std::make_unique<ZrodloWierszy>(std::initializer_list<Recordset*>{&(otoczenie.sesja.*def.uchwyt)}),
          opis, rodzic),
      kartoteka_(otoczenie, def), kolumny_(std::move(kolumny)) {}

QStringList frmKartoteka::tekstyWiersza(qint64 id) {
    QStringList teksty;
    kartoteka_.Ustaw(id);
    const Recordset& rs = kartoteka_.tabela();
    for (const Kolumna& k : kolumny_) {
        const bool liczba = k.def().typ == Typ::Short || k.def().typ == Typ::Integer;
        const QString tekst = liczba ? QString::number(rs.liczba(k)) : rs.tekst(k);
        teksty.append(tekst.trimmed().isEmpty() ? QStringLiteral("(bez nazwy)") : tekst);
    }
    return teksty;
}

bool frmKartoteka::zapisz(qint64 id) {
    Q_UNUSED(id)
    kartoteka_.Wpisz();
    return true;
}

} // namespace tornel::rules
