#include "payroll/lista/StareBrutto.h"
#include "common/Daty.h"
#include "payroll/miesiace/Miesiace.h"
#include "store/Sesja.h"
#include <QByteArrayList>

namespace tornel::payroll {

namespace {

/// All first columns, added one by one: the engine would quietly turn a sum out of range into a fraction.
Waluta sumaKwot(Instrukcja& instrukcja) {
    SumaKwot suma;
    while (instrukcja.wiersz()) suma.dodaj(Waluta::zSurowej(instrukcja.liczba(0)));
    instrukcja.od_nowa();
    return suma.kwota();
}

} // namespace

StareBrutto::StareBrutto(Sesja& sesja) : sesja_(sesja) {
    QByteArrayList miesiace;
    for (int m = 1; m < sesja.mies(); ++m) {
        if (!JestMiesiac(sesja, {sesja.rok(), m}, {"PLA"})) continue;
        const QString tabela = Sesja::nazwaMiesiaca("PLA", sesja.rok(), m);
        tabele_.append(tabela);
        miesiace.append("SELECT BRUTTO FROM " + nazwaSql(tabela.toStdString()) + " WHERE PRC_ID = ?1");
    }
    if (!miesiace.isEmpty())
        listy_ = std::make_unique<Instrukcja>(sesja.cnPlace, miesiace.join(" UNION ALL ").toStdString());
}

StareBrutto::~StareBrutto() = default;

void StareBrutto::wczytajWszystkich() {
    wszystkie_.emplace();
    for (const QString& tabela : tabele_) {
        Instrukcja wiersze(sesja_.cnPlace,
                           ("SELECT PRC_ID, BRUTTO FROM " + nazwaSql(tabela.toStdString())).toStdString());
        while (wiersze.wiersz())
            wszystkie_->dopisz(wiersze.liczba(0)).brutto = Waluta::zSurowej(wiersze.liczba(1));
    }
    wszystkie_->uloz();
}

Waluta StareBrutto::zListPlac(qint64 prcId) {
    if (wszystkie_) {
        SumaKwot suma;
        for (const Wiersz& w : wszystkie_->pracownika(prcId)) suma.dodaj(w.brutto);
        return suma.kwota();
    }
    if (!listy_) return {};
    listy_->wiaz(0, prcId);
    return sumaKwot(*listy_);
}

Waluta StareBrutto::zUmow(qint64 prcId) {
    if (!umowy_) {
        QByteArrayList tabele;
        for (const char* tabela : {"UZL", "UOD", "HON"})
            tabele.append(QByteArray("SELECT BRUTTO FROM ") + tabela +
                          " WHERE PRC_ID = ?1 AND DATA_WYP >= ?2 AND DATA_WYP <= ?3");
        umowy_ = std::make_unique<Instrukcja>(sesja_.cnPlace, tabele.join(" UNION ALL ").toStdString());
    }
    umowy_->wiaz(0, prcId)
        .wiaz(1, PierwszyDzien(sesja_.rok(), 1).toString(Qt::ISODate))
        .wiaz(2, OstatniDzien(sesja_.rok(), sesja_.mies()).toString(Qt::ISODate));
    return sumaKwot(*umowy_);
}

} // namespace tornel::payroll
