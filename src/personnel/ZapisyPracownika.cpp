#include "personnel/ZapisyPracownika.h"
#include "common/Daty.h"
#include "store/Sesja.h"
#include <algorithm>

namespace tornel::personnel {

namespace {

constexpr qsizetype kNajwiecejUmow = 20; // named one by one in a question that must fit the screen

struct RodzajUmowy {
    const TabelaDef& tabela;
    Kolumna prcId, numer, id, zawarta;
    QStringView nazwa;
};

constexpr RodzajUmowy kRodzajeUmow[] = {
    {schemat::UZL, schemat::UZL("PRC_ID"), schemat::UZL("uzl_nr"), schemat::UZL("UZLID"),
     schemat::UZL("data_zaw"), u"umowy zlecenia"},
    {schemat::UOD, schemat::UOD("PRC_ID"), schemat::UOD("uod_nr"), schemat::UOD("UODID"),
     schemat::UOD("data_zaw"), u"umowy o dzieło"},
    {schemat::HON, schemat::HON("PRC_ID"), schemat::HON("hon_nr"), schemat::HON("HONID"),
     schemat::HON("data_zaw"), u"honoraria"},
    {schemat::UMOP, schemat::UMOP("PRC_ID"), schemat::UMOP("umop_nr"), schemat::UMOP("UMOPID"),
     schemat::UMOP("data_zaw"), u"umowy o pracę"},
};

Recordset wierszePracownika(Polaczenie& polaczenie, const TabelaDef& tabela, const QString& nazwa,
                            Kolumna kolumnaNumeru, qint64 prcId) {
    Recordset rs(tabela);
    rs.Open(polaczenie, nazwa, {{kolumnaNumeru, Kryterium::Operator::Rowne, prcId}});
    return rs;
}

/// The months of `naglowki` that have the employee in one of their tables.
QList<RokMies> miesiacePracownika(Sesja& sesja, const TabelaDef& naglowki,
                                  std::initializer_list<const TabelaDef*> tabele, qint64 prcId) {
    QList<RokMies> wynik;
    Recordset rs(naglowki);
    rs.Open(sesja.cnPlace);
    for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext()) {
        const RokMies miesiac{rs.tekst(naglowki.nr(0)).toInt(), rs.tekst(naglowki.nr(1)).toInt()};
        const auto jestW = [&](const TabelaDef* tabela) {
            const QString nazwa = Sesja::nazwaMiesiaca(tabela->nazwa, miesiac.rok, miesiac.mies);
            const Kolumna numer = tabela->nr(tabela->numer("PRC_ID"));
            return sesja.cnPlace.jestTabela(nazwa) &&
                   wierszePracownika(sesja.cnPlace, *tabela, nazwa, numer, prcId).RecordCount() > 0;
        };
        if (std::ranges::any_of(tabele, jestW)) wynik.append(miesiac);
    }
    std::ranges::sort(wynik);
    return wynik;
}

QStringList numeryUmow(Polaczenie& polaczenie, const RodzajUmowy& rodzaj, qint64 prcId) {
    QStringList wynik;
    Recordset rs = wierszePracownika(polaczenie, rodzaj.tabela, {}, rodzaj.prcId, prcId);
    for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext()) {
        const QString wpisany = rs.tekst(rodzaj.numer).trimmed();
        const QString data = FormatDaty(rs.data(rodzaj.zawarta));
        wynik.append((wpisany.isEmpty() ? QString::number(rs.liczba(rodzaj.id)) : wpisany) +
                     (data.isEmpty() ? QString() : QStringLiteral(" z ") + data));
    }
    return wynik;
}

/// Months that follow one another are named by the first and the last.
QString opisMiesiecy(const QList<RokMies>& miesiace) {
    QStringList wynik;
    for (qsizetype od = 0, dokad = 0; od < miesiace.size(); od = dokad + 1) {
        for (dokad = od; dokad + 1 < miesiace.size() && miesiace[dokad].plus(1) == miesiace[dokad + 1];)
            ++dokad;
        wynik.append(miesiace[od].napis() +
                     (dokad == od ? QString() : QStringLiteral(" - ") + miesiace[dokad].napis()));
    }
    return wynik.join(QStringLiteral(", "));
}

QString opisNumerow(const QStringList& numery) {
    const QString nazwane = numery.mid(0, kNajwiecejUmow).join(QStringLiteral(", "));
    const qsizetype reszta = numery.size() - kNajwiecejUmow;
    return reszta > 0 ? nazwane + QStringLiteral(" i dalsze: %1").arg(reszta) : nazwane;
}

} // namespace

QString ZapisyPracownika::opis() const {
    QStringList linie;
    if (!listyPlac.isEmpty()) linie.append(QStringLiteral("listy płac: ") + opisMiesiecy(listyPlac));
    if (!nadgodziny.isEmpty()) linie.append(QStringLiteral("nadgodziny: ") + opisMiesiecy(nadgodziny));
    for (const UmowyPracownika& u : umowy)
        linie.append(u.rodzaj + QStringLiteral(": ") + opisNumerow(u.numery));
    return linie.join(QLatin1Char('\n'));
}

ZapisyPracownika ZnajdzZapisy(Sesja& sesja, qint64 prcId) {
    ZapisyPracownika wynik;
    wynik.listyPlac = miesiacePracownika(sesja, schemat::PLACE, {&schemat::PLA}, prcId);
    wynik.nadgodziny =
        miesiacePracownika(sesja, schemat::NADG, {&schemat::NADGN, &schemat::NADGDzien}, prcId);
    for (const RodzajUmowy& rodzaj : kRodzajeUmow)
        if (QStringList numery = numeryUmow(sesja.cnPlace, rodzaj, prcId); !numery.isEmpty())
            wynik.umowy.append({rodzaj.nazwa.toString(), std::move(numery)});
    return wynik;
}

} // namespace tornel::personnel
