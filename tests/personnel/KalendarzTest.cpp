// The calendars of days off: statutory holidays, new months, what is stored, the transport to employees.
#include "personnel/Kalendarz.h"
#include "common/Blad.h"
#include "personnel/SwietaUstawowe.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

using namespace Qt::StringLiterals;
using schemat::KALENDARZ;

namespace {

const QString kPytanieTransportu = u"Czy zmienić już istniejące kalendarze pracowników ?"_s;
const QString kTransportZakonczony = u"Transport dni wolnych do pracowników zakończony."_s;

TEST(SwietaUstawoweTest, WielkanocZnanychLat) {
    const QDate znane[] = {{1954, 4, 18}, {1981, 4, 19}, {2000, 4, 23}, {2001, 4, 15}, {2004, 4, 11},
                           {2008, 3, 23}, {2011, 4, 24}, {2038, 4, 25}, {2049, 4, 18}};
    for (const QDate& data : znane) EXPECT_EQ(Wielkanoc(data.year()), data);
}

TEST(SwietaUstawoweTest, DniWolneRoku2001) {
    QStringList daty;
    for (const Swieto& s : SwietaUstawowe(2001)) {
        daty.append(s.data.toString(u"dd.MM"_s));
        EXPECT_FALSE(s.nazwa.isEmpty());
        EXPECT_LE(s.nazwa.size(), NajdluzszyOpisDnia()) << s.nazwa.toStdString();
    }
    EXPECT_EQ(daty.join(u' '), u"01.01 15.04 16.04 01.05 03.05 03.06 14.06 15.08 01.11 11.11 25.12 26.12"_s)
        << "without 6 January";
}

class KalendarzTest : public BazaTestowa {
protected:
    Kalendarz kalendarz() { return Kalendarz(otoczenie()); }
    /// One character a day as the file has it: "W" free, "." working, "-" no such day; empty without a row.
    QString wPliku(const MiesiacKalendarza& m) {
        Recordset rs(KALENDARZ);
        QString wynik;
        for (rs.Open(sesja().cnPlace); !rs.EOF_(); rs.MoveNext()) {
            if (rs.liczba(KALENDARZ("PrcId")) != m.prcId || rs.liczba(KALENDARZ("Rok")) != m.rok ||
                rs.liczba(KALENDARZ("Mies")) != m.mies)
                continue;
            EXPECT_EQ(wynik, QString()) << "stored twice";
            for (int d = 1; d <= 31; ++d) {
                const qint64 flaga = rs.liczba(schemat::DzienKalendarza(d));
                wynik += flaga < 0 ? u'-' : flaga > 0 ? u'W' : u'.';
            }
        }
        return wynik;
    }
    int wierszy() {
        Recordset rs(KALENDARZ);
        rs.Open(sesja().cnPlace);
        return rs.RecordCount();
    }
    /// May 2001 with the 2nd free and described.
    TrescMiesiaca majZMostem() {
        EXPECT_TRUE(kalendarz().Nowy_dniwolne({0, 2001, 5}, Swieta::Zaznaczone));
        TrescMiesiaca tresc = *kalendarz().WypiszDni({0, 2001, 5});
        tresc.dni.ustaw(2, DniKalendarza::Wolny);
        tresc.opis(2) = u"most; \"O'Hara\""_s;
        kalendarz().ZapiszDni({0, 2001, 5}, tresc);
        return tresc;
    }
};

TEST_F(KalendarzTest, NowyMiesiacMaWolneSobotyINiedziele) {
    const struct {
        MiesiacKalendarza miesiac;
        Swieta swieta;
        QString dni;
    } przypadki[] = {
        {{0, 2000, 2}, Swieta::BezZaznaczania, u"....WW.....WW.....WW.....WW..--"_s},
        {{0, 2001, 2}, Swieta::BezZaznaczania, u"..WW.....WW.....WW.....WW...---"_s},
        {{0, 1900, 2}, Swieta::BezZaznaczania, u"..WW.....WW.....WW.....WW...---"_s},
        {{0, 2001, 4}, Swieta::Zaznaczone, u"W.....WW.....WWW....WW.....WW.-"_s},
        {{0, 2001, 12}, Swieta::Zaznaczone, u"WW.....WW.....WW.....WW.WW..WW."_s},
        {{7, 2001, 12}, Swieta::BezZaznaczania, u"WW.....WW.....WW.....WW.....WW."_s},
    };
    dodajPracownika(7);
    EXPECT_TRUE(kalendarz().pusty());
    for (const auto& p : przypadki) {
        EXPECT_TRUE(kalendarz().Nowy_dniwolne(p.miesiac, p.swieta));
        EXPECT_EQ(wPliku(p.miesiac), p.dni);
    }
    const QList<MiesiacKalendarza> oczekiwane{
        {0, 1900, 2}, {0, 2000, 2}, {0, 2001, 2}, {0, 2001, 4}, {0, 2001, 12}};
    EXPECT_EQ(kalendarz().miesiace(kKalendarzOgolny), oczekiwane) << "by year and month";
    EXPECT_EQ(kalendarz().pracownicy(), QList<qint64>{7});

    rozmowa_.spodziewaj(u"Taki miesiąc już istnieje !"_s, Styl::Wykrzyknik);
    EXPECT_FALSE(kalendarz().Nowy_dniwolne({0, 2001, 4}));
    rozmowa_.spodziewaj(u"Ten miesiąc dla wybranego pracownika już istnieje!"_s, Styl::Wykrzyknik);
    EXPECT_FALSE(kalendarz().Nowy_dniwolne({7, 2001, 12}));
    EXPECT_THROW((void)kalendarz().Nowy_dniwolne({8, 2001, 12}), Blad) << "nobody has this number";
    EXPECT_THROW((void)kalendarz().Nowy_dniwolne({0, 2001, 13}), Blad);
    EXPECT_EQ(wierszy(), 6);
}

TEST_F(KalendarzTest, ZapisujeWszystkieDniIOpisy) {
    const TrescMiesiaca tresc = majZMostem();
    otworzPonownie();
    EXPECT_EQ(kalendarz().WypiszDni({0, 2001, 5})->opisy, tresc.opisy);
    EXPECT_EQ(wPliku({0, 2001, 5}), u"WWW.WW.....WW.....WW.....WW...."_s);
    EXPECT_EQ(kalendarz().WypiszDni({0, 2001, 6}), std::nullopt);
    EXPECT_THROW(kalendarz().ZapiszDni({0, 2001, 6}, tresc), Blad);
}

TEST_F(KalendarzTest, SwietaRokuZostawiajaWlasneOpisyIBrakujaceMiesiace) {
    rozmowa_.spodziewaj(u"Kalendarz nie ma żadnego miesiąca 2001 roku."_s, Styl::Wykrzyknik);
    EXPECT_FALSE(kalendarz().SwietaRoku(0, 2001));
    for (const int mies : {1, 5}) ASSERT_TRUE(kalendarz().Nowy_dniwolne({0, 2001, mies}));
    ASSERT_TRUE(kalendarz().Nowy_dniwolne({0, 2002, 5}));
    TrescMiesiaca maj = *kalendarz().WypiszDni({0, 2001, 5});
    maj.opis(1) = u"festyn"_s;
    kalendarz().ZapiszDni({0, 2001, 5}, maj);
    const QString przedtem = wPliku({0, 2001, 5});

    const QString pytanie =
        u"Czy zaznaczyć święta ustawowe 2001 roku jako dni wolne w miesiącach, które są w "
        "kalendarzu ?"_s;
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
    EXPECT_FALSE(kalendarz().SwietaRoku(0, 2001));
    EXPECT_EQ(wPliku({0, 2001, 5}), przedtem);
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
    EXPECT_TRUE(kalendarz().SwietaRoku(0, 2001));
    EXPECT_EQ(wPliku({0, 2001, 5}), u"W.W.WW.....WW.....WW.....WW...."_s);
    EXPECT_EQ(wPliku({0, 2001, 1}), u"W....WW.....WW.....WW.....WW..."_s);
    EXPECT_EQ(wPliku({0, 2002, 5}), u"...WW.....WW.....WW.....WW....."_s) << "another year";
    maj = *kalendarz().WypiszDni({0, 2001, 5});
    EXPECT_EQ(maj.opis(1), u"festyn"_s);
    EXPECT_EQ(maj.opis(3), u"Święto Narodowe Trzeciego Maja"_s);
    EXPECT_EQ(wierszy(), 3);
}

TEST_F(KalendarzTest, TransportDopisujeBrakujaceAIstniejaceWedlugOdpowiedzi) {
    for (const qint64 prcId : {3, 7, 9, 40000}) dodajPracownika(prcId);
    const TrescMiesiaca ogolny = majZMostem();
    ASSERT_TRUE(kalendarz().Nowy_dniwolne({7, 2001, 5}));
    ASSERT_TRUE(kalendarz().Nowy_dniwolne({7, 2001, 4}));
    const QString wlasny = wPliku({7, 2001, 5}), zMostem = wPliku({0, 2001, 5});
    ASSERT_NE(wlasny, zMostem);

    rozmowa_.spodziewaj(kPytanieTransportu, Odpowiedz::Nie);
    rozmowa_.spodziewaj(kTransportZakonczony, Styl::Informacja);
    auto wynik = kalendarz().Transp(2001, 5, {3, 7, 40000});
    ASSERT_TRUE(wynik);
    EXPECT_EQ(wynik->wykonane, 2);
    EXPECT_EQ(wynik->pominiete, 1);
    EXPECT_EQ(wPliku({7, 2001, 5}), wlasny);
    for (const qint64 prcId : {3, 40000}) {
        EXPECT_EQ(wPliku({prcId, 2001, 5}), zMostem);
        EXPECT_EQ(kalendarz().WypiszDni({prcId, 2001, 5})->opisy, ogolny.opisy);
    }
    EXPECT_EQ(wPliku({9, 2001, 5}), QString()) << "not chosen";

    rozmowa_.spodziewaj(kPytanieTransportu, Odpowiedz::Tak);
    rozmowa_.spodziewaj(kTransportZakonczony, Styl::Informacja);
    EXPECT_EQ(kalendarz().Transp(2001, 5, {7, 9})->wykonane, 2);
    EXPECT_EQ(wPliku({7, 2001, 5}), zMostem);
    EXPECT_EQ(wPliku({9, 2001, 5}), zMostem);
    EXPECT_EQ(wPliku({7, 2001, 4}), u"W.....WW.....WW.....WW.....WW.-"_s) << "another month";
}

TEST_F(KalendarzTest, TransportBezMiesiacaBezWybranychIPrzerwany) {
    for (const qint64 prcId : {3, 7, 9}) dodajPracownika(prcId);
    (void)majZMostem();
    rozmowa_.spodziewaj(u"Nie przetransportowano dni wolnych do pracowników."_s, Styl::Wykrzyknik);
    EXPECT_FALSE(kalendarz().Transp(2001, 5, {}));
    rozmowa_.spodziewaj(kPytanieTransportu, Odpowiedz::Tak);
    rozmowa_.spodziewaj(
        u"Nie znaleziono miesiąca 06.2001 w bazie danych! Dni nie zostały przetransoprtowane!"_s,
        Styl::Wykrzyknik);
    EXPECT_FALSE(kalendarz().Transp(2001, 6, {3}));
    EXPECT_THROW((void)kalendarz().Transp(2001, 5, {3, 8}), Blad);
    EXPECT_EQ(wierszy(), 1);

    rozmowa_.przerwijPostep(3);
    rozmowa_.spodziewaj(kPytanieTransportu, Odpowiedz::Tak);
    rozmowa_.spodziewaj(u"Transport dni wolnych do pracowników przerwano. Zapisano: 2."_s, Styl::Informacja);
    EXPECT_TRUE(kalendarz().Transp(2001, 5, {3, 7, 9})->przerwana);
    EXPECT_EQ(kalendarz().pracownicy(), (QList<qint64>{3, 7})) << "what was done is kept";
}

TEST_F(KalendarzTest, TransportKtoryZawiedzieNieZapisujeNikogo) {
    for (const qint64 prcId : {3, 7}) dodajPracownika(prcId);
    (void)majZMostem();
    sesja().cnPlace.wykonaj("CREATE TRIGGER awaria BEFORE INSERT ON KALENDARZ WHEN NEW.PrcId = 7 "
                            "BEGIN SELECT RAISE(ABORT, 'awaria'); END");
    rozmowa_.spodziewaj(kPytanieTransportu, Odpowiedz::Tak);
    EXPECT_THROW((void)kalendarz().Transp(2001, 5, {3, 7}), BladBazy);
    EXPECT_EQ(wierszy(), 1);
}

TEST_F(KalendarzTest, UsuwaPoPytaniu) {
    for (const qint64 prcId : {3, 7}) dodajPracownika(prcId);
    for (const MiesiacKalendarza& m :
         QList<MiesiacKalendarza>{{0, 2001, 1}, {3, 2001, 1}, {7, 2001, 1}, {7, 2001, 2}, {7, 2002, 1}})
        ASSERT_TRUE(kalendarz().Nowy_dniwolne(m));
    const QString ogolny = u"Czy na pewno chcesz usunąć miesiąc z listy dni wolnych ?"_s;
    rozmowa_.spodziewaj(ogolny, Odpowiedz::Nie);
    EXPECT_FALSE(kalendarz().Usun({0, 2001, 1}));
    rozmowa_.spodziewaj(ogolny, Odpowiedz::Tak);
    EXPECT_TRUE(kalendarz().Usun({0, 2001, 1}));
    EXPECT_THROW((void)kalendarz().Usun({0, 2001, 1}), Blad);
    rozmowa_.spodziewaj(
        u"Czy na pewno chcesz usunąć miesiąc z listy dni wolnych dla wybranego pracownika ?"_s,
        Odpowiedz::Tak);
    EXPECT_TRUE(kalendarz().Usun({7, 2001, 2}));
    EXPECT_EQ(kalendarz().miesiace(7), (QList<MiesiacKalendarza>{{7, 2001, 1}, {7, 2002, 1}}));

    const QString wszystkie =
        u"Czy na pewno chcesz usunąć wszystkie miesiące z listy dni wolnych dla wybranego pracownika ?"_s;
    rozmowa_.spodziewaj(wszystkie, Odpowiedz::Nie);
    EXPECT_FALSE(kalendarz().UsunPracownika(7));
    rozmowa_.spodziewaj(wszystkie, Odpowiedz::Tak);
    EXPECT_TRUE(kalendarz().UsunPracownika(7));
    EXPECT_EQ(kalendarz().pracownicy(), QList<qint64>{3});
}

} // namespace

} // namespace tornel::testy
