#include "payroll/StareBrutto.h"
#include "common/Daty.h"
#include "store/Sesja.h"

namespace {

/// Adds up one sub-query a table, so that an employee costs one step whatever the number of months.
QByteArray suma(const QList<QByteArray>& podzapytania) {
    QByteArray sql("SELECT 0");
    for (const QByteArray& p : podzapytania) sql += " + COALESCE((" + p + "), 0)";
    return sql;
}

Waluta jednaKwota(Instrukcja& instrukcja) {
    const Waluta kwota = instrukcja.wiersz() ? Waluta::zSurowej(instrukcja.liczba(0)) : Waluta{};
    instrukcja.od_nowa();
    return kwota;
}

} // namespace

StareBrutto::StareBrutto(Sesja& sesja) : sesja_(sesja) {
    const Zakladka tu = sesja.rsPLACE.Bookmark();
    QList<QByteArray> miesiace;
    for (int m = 1; m < sesja.mies(); ++m) {
        const QString tabela = Sesja::nazwaMiesiaca("PLA", sesja.rok(), m);
        if (!sesja.rsPLACE.Znajdz(FormatRoku(sesja.rok()), FormatMiesiaca(m)) ||
            !sesja.cnPlace.jestTabela(tabela))
            continue;
        tabele_.append(tabela);
        miesiace.append("SELECT SUM(BRUTTO) FROM " + nazwaSql(tabela.toStdString()) + " WHERE PRC_ID = ?1");
    }
    sesja.rsPLACE.Bookmark(tu);
    if (!miesiace.isEmpty())
        listy_ = std::make_unique<Instrukcja>(sesja.cnPlace, suma(miesiace).toStdString());
}

StareBrutto::~StareBrutto() = default;

void StareBrutto::wczytajWszystkich() {
    wszyscy_.emplace();
    for (const QString& tabela : tabele_) {
        Instrukcja wiersze(sesja_.cnPlace,
                           ("SELECT PRC_ID, BRUTTO FROM " + nazwaSql(tabela.toStdString())).toStdString());
        while (wiersze.wiersz()) (*wszyscy_)[wiersze.liczba(0)] += Waluta::zSurowej(wiersze.liczba(1));
    }
}

Waluta StareBrutto::zListPlac(qint64 prcId) {
    if (wszyscy_) return wszyscy_->value(prcId);
    if (!listy_) return {};
    listy_->wiaz(0, prcId);
    return jednaKwota(*listy_);
}

Waluta StareBrutto::zUmow(qint64 prcId) {
    if (!umowy_) {
        QList<QByteArray> tabele;
        for (const char* tabela : {"UZL", "UOD", "HON"})
            tabele.append(QByteArray("SELECT SUM(BRUTTO) FROM ") + tabela +
                          " WHERE PRC_ID = ?1 AND DATA_WYP >= ?2 AND DATA_WYP <= ?3");
        umowy_ = std::make_unique<Instrukcja>(sesja_.cnPlace, suma(tabele).toStdString());
    }
    umowy_->wiaz(0, prcId)
        .wiaz(1, PierwszyDzien(sesja_.rok(), 1).toString(Qt::ISODate))
        .wiaz(2, OstatniDzien(sesja_.rok(), sesja_.mies()).toString(Qt::ISODate));
    return jednaKwota(*umowy_);
}
