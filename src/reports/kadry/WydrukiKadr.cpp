#include "reports/kadry/WydrukiKadr.h"
#include "reports/kadry/Papiery.h"
#include "store/Sesja.h"
#include <QHash>
#include <QSet>

namespace tornel::reports {

namespace {

constexpr OpisWydrukuKadr kWydrukiKadr[] = {
    {WydrukKadr::ListaPracownikow, u"Lista pracowników", u"lista-pracownikow", CzasWydruku::Zaden},
    {WydrukKadr::KartaEwidencji, u"Karta ewidencji czasu pracy", u"karta-ewidencji", CzasWydruku::Rok},
    {WydrukKadr::ListaObecnosci, u"Lista obecności do podpisu", u"lista-obecnosci", CzasWydruku::Miesiac},
    {WydrukKadr::KartaPrzychodow, u"Karta przychodów", u"karta-przychodow", CzasWydruku::Rok},
    {WydrukKadr::Zaswiadczenie, u"Zaświadczenie o zatrudnieniu i zarobkach", u"zaswiadczenie",
     CzasWydruku::Miesiace},
};

QList<qint64> bezPowtorzen(const QList<qint64>& numery) {
    QList<qint64> wynik;
    QSet<qint64> znane;
    for (const qint64 n : numery) {
        if (znane.contains(n)) continue;
        znane.insert(n);
        wynik.append(n);
    }
    return wynik;
}

} // namespace

std::span<const OpisWydrukuKadr> wydrukiKadr() { return kWydrukiKadr; }

std::shared_ptr<const Uklad> UlozWydrukKadr(WydrukKadr ktory, Otoczenie& otoczenie,
                                            const ZlecenieWydruku& zlecenie, QDate dzien) {
    const ZrodloPapieru zrodlo{otoczenie,
                               DaneOsob(otoczenie, bezPowtorzen(zlecenie.numery)),
                               {zlecenie.od, zlecenie.dokad},
                               dzien,
                               kWydrukiKadr[static_cast<std::size_t>(ktory)].nazwa};
    switch (ktory) {
    case WydrukKadr::ListaPracownikow:
        return ListaPracownikow(zrodlo);
    case WydrukKadr::KartaEwidencji:
        return KartaEwidencji(zrodlo);
    case WydrukKadr::ListaObecnosci:
        return ListaObecnosci(zrodlo);
    case WydrukKadr::KartaPrzychodow:
        return KartaPrzychodow(zrodlo);
    case WydrukKadr::Zaswiadczenie:
        break;
    }
    return Zaswiadczenie(zrodlo);
}

QList<QList<PlacaOsoby>> PlaceOsob(const ZrodloPapieru& zrodlo) {
    QList<QList<PlacaOsoby>> wynik(zrodlo.osoby.size());
    QHash<qint64, qsizetype> miejsca;
    int miesiecy = 0;
    for (RokMies m = zrodlo.okres.od; m <= zrodlo.okres.dokad; m = m.plus(1)) ++miesiecy;
    for (qsizetype i = 0; i < wynik.size(); ++i) {
        wynik[i].resize(miesiecy);
        miejsca.insert(zrodlo.osoby[i].prcId, i);
    }
    const WyborPlac wybor{{}, wynik.size() == 1 ? std::optional(zrodlo.osoby[0].prcId) : std::nullopt};
    PlacaOsoby inni; // rows of those who are not asked for
    for (const RokMies m : MiesiaceZakresu(zrodlo.otoczenie.sesja, zrodlo.okres)) {
        int nr = 0;
        for (RokMies k = zrodlo.okres.od; k < m; k = k.plus(1)) ++nr;
        inni = {};
        DoliczMiesiac(zrodlo.otoczenie.sesja, m, wybor, [&](qint64 prcId) -> PlacaOsoby& {
            const auto i = miejsca.constFind(prcId);
            return i == miejsca.cend() ? inni : wynik[*i][nr];
        });
    }
    return wynik;
}

} // namespace tornel::reports
