// The list of what was printed and written: numbered within its month, found by what it is about, lasting.
#include "rules/Wykonane.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

namespace {

constexpr RodzajWykonania kPrzelew{u"przelew", u"wydrukowano"};
constexpr RodzajWykonania kPlik{u"multicash", u"zapisano"};

using WykonaneTest = BazaTestowa;

TEST_F(WykonaneTest, WhatWasMadeIsFoundByWhatItIsAbout) {
    const auto dnia = [](int dzien, int godzina = 12) { return QDateTime({2001, 4, dzien}, {godzina, 30}); };
    const QString przelew = kPrzelew.kod.toString(), a = QStringLiteral("A"), b = QStringLiteral("B");
    const RokMies marzec{2001, 3}, luty{2001, 2};
    sesja().uzytkownik.nazwa = QStringLiteral("Ewa");
    {
        Wykonane w(sesja());
        w.dopisz({{.rodzaj = przelew, .miesiac = marzec, .lista = a, .komu = 7, .kwota = zl(1650.5)},
                  {.rodzaj = przelew, .miesiac = marzec, .lista = b, .komu = 8},
                  {.rodzaj = przelew, .miesiac = luty, .komu = 7}},
                 dnia(10));
        w.dopisz({{.rodzaj = kPlik.kod.toString(), .miesiac = marzec, .plik = QStringLiteral("/x/ą.pli")},
                  {.rodzaj = przelew, .zrodlo = QStringLiteral("UZL"), .dokument = 3}},
                 dnia(12));
        w.dopisz({{.rodzaj = przelew, .miesiac = marzec, .lista = a, .komu = 7}}, dnia(12, 8));
        w.dopisz({}, dnia(13));
    }
    otworzPonownie();

    const Wykonane w(sesja());
    const struct {
        const RodzajWykonania& rodzaj;
        SzukaneWykonania ktore;
        qsizetype ile;
        QString napis;
    } przypadki[] = {
        {kPrzelew, {.miesiac = marzec}, 3, QStringLiteral("wydrukowano 12-04-2001")},
        {kPrzelew, {.miesiac = marzec, .lista = b}, 1, QStringLiteral("wydrukowano 10-04-2001")},
        {kPrzelew, {.miesiac = marzec, .lista = a, .komu = 7}, 2, QStringLiteral("wydrukowano 12-04-2001")},
        {kPrzelew, {.miesiac = RokMies{2001, 5}}, 0, {}},
        {kPlik, {.miesiac = marzec}, 1, QStringLiteral("zapisano 12-04-2001")},
        {kPlik, {.miesiac = luty}, 0, {}},
        // About no month: found by its document, and among those of the month in which it was made.
        {kPrzelew,
         {.zrodlo = QStringLiteral("UZL"), .dokument = 3},
         1,
         QStringLiteral("wydrukowano 12-04-2001")},
        {kPrzelew, {.miesiac = RokMies{2001, 4}}, 1, QStringLiteral("wydrukowano 12-04-2001")},
        {kPrzelew, {}, 5, QStringLiteral("wydrukowano 12-04-2001")},
    };
    for (const auto& p : przypadki) {
        SCOPED_TRACE(&p - przypadki);
        SzukaneWykonania ktore = p.ktore;
        ktore.rodzaj = p.rodzaj.kod.toString();
        EXPECT_EQ(w.szukaj(ktore).size(), p.ile);
        EXPECT_EQ(w.napis(p.rodzaj, p.ktore), p.napis);
    }
    const Wykonanie pierwsze = w.szukaj({.miesiac = marzec}).constFirst();
    EXPECT_EQ(pierwsze.kwota, zl(1650.5));
    EXPECT_EQ(pierwsze.kiedy, dnia(10));
    EXPECT_EQ(pierwsze.kto, QStringLiteral("Ewa"));
    EXPECT_EQ(w.szukaj({.rodzaj = kPlik.kod.toString()}).constFirst().plik, QStringLiteral("/x/ą.pli"));
}

TEST_F(WykonaneTest, WhatIsUndoneWithItsActionIsNotSaidToBeMade) {
    Wykonane w(sesja());
    {
        Transakcja akcja(sesja().cnPlace, u"Przerwana akcja testu");
        w.dopisz({{.rodzaj = QStringLiteral("przelew")}}, QDateTime({2001, 4, 10}, {12, 0}));
    }
    EXPECT_TRUE(w.szukaj({}).isEmpty());
}

} // namespace

} // namespace tornel::testy
