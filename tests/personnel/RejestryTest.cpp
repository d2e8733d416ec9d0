// The registers of vacations and sick leaves: what may be registered, how long it lasts, what is stored.
#include "common/Blad.h"
#include "personnel/Kalendarz.h"
#include "personnel/Urlopy.h"
#include "personnel/Zwolnienia.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

using namespace Qt::StringLiterals;
using schemat::PRACPR;
using schemat::URL;
using schemat::ZW;

namespace {

const QString kWyliczyc = u"Czy wyliczyć czas trwania urlopu ?"_s;
const QString kZKalendarzaPracownika = u"Czy wyliczyć czas trwania urlopu z dni wolnych pracownika ?"_s;
const QString kUrlopPokrywaSie = u"Zakres dat rejestrowanego urlopu dla pracownika pokrywa się z innymi już "
                                 "zarejestrowanymi urlopami. Urlop nie zostanie zarejestrowane."_s;
const QString kZwolnieniePokrywaSie =
    u"Zakres dat rejestrowanego zwolnienia dla pracownika pokrywa się z innymi już zarejestrowanymi "
    "zwolnieniami. Zwolnienie nie zostanie zarejestrowane."_s;
const QString kKoniecPrzedPoczatkiem = u"Data końcowa musi być większ od początkowej."_s;
const QString kPrzekroczone = u"Uwaga: Ilość przysługujących dni urlopu wypoczynkowego przekroczona."_s;
const QString kPustyKalendarz =
    u"Kalendarz z dniami wolnymi jest pusty. Nie można obliczyć czasu trwania urlopu. "_s;
const QString kBrakMiesiaca =
    u"Nie znaleziono jednego z miesięcy w kalendarzu. Nie można wyliczyć czasu trwania urlopu."_s;

/// Days of 2001: "26.02-06.03".
ZakresDat zakres(const QString& tekst) {
    const auto dzien = [](const QString& t) { return QDate(2001, t.mid(3, 2).toInt(), t.left(2).toInt()); };
    return {dzien(tekst.section(u'-', 0, 0)), dzien(tekst.section(u'-', 1, 1))};
}

class RejestryTest : public BazaTestowa {
protected:
    void SetUp() override {
        dodajPracownika(7, u"Nowak"_s, u"Anna"_s);
        dodajPracownika(8, u"O'Hara"_s, u"Jan"_s);
    }
    void kalendarzMiesiecy(const QList<int>& miesiace, qint64 prcId = 0) {
        for (const int m : miesiace)
            ASSERT_TRUE(Kalendarz(otoczenie()).Nowy_dniwolne({prcId, 2001, m}, Swieta::Zaznaczone));
    }
    /// Registers without working out the length.
    std::optional<qint64> bezDlugosci(RejestrUrlopow& urlopy, const NowyUrlop& urlop) {
        rozmowa_.spodziewaj(kWyliczyc, Odpowiedz::Nie, u"?"_s);
        return urlopy.Zarejestruj(urlop);
    }
    void przysluguje(qint64 prcId, int nowego, int zaleglego) {
        Recordset& pr = sesja().rsPRACPR;
        ASSERT_TRUE(pr.Znajdz(prcId));
        pr.ustaw(PRACPR("il_url"), nowego);
        pr.ustaw(PRACPR("il_zal_url"), zaleglego);
        pr.UpdateBatch(u"Dane testu");
    }
    QStringList wPliku(const TabelaDef& tabela) {
        QStringList wynik;
        Recordset rs(tabela);
        for (rs.Open(sesja().cnPlace); !rs.EOF_(); rs.MoveNext())
            wynik.append(u"%1 %2 %3-%4"_s.arg(rs.liczba(tabela.nr(0)))
                             .arg(rs.tekst(tabela.nr(1)), rs.data(tabela.nr(3)).toString(u"dd.MM"_s),
                                  rs.data(tabela.nr(4)).toString(u"dd.MM"_s)));
        wynik.sort();
        return wynik;
    }
};

TEST_F(RejestryTest, JedenWspolnyDzienToPokrycie) {
    const struct {
        qint64 prcId;
        QString zakres;
        bool przyjety;
    } przypadki[] = {
        {7, u"10.03-20.03"_s, true},  {7, u"10.03-20.03"_s, false}, {7, u"20.03-25.03"_s, false},
        {7, u"01.03-10.03"_s, false}, {7, u"12.03-13.03"_s, false}, {7, u"01.01-31.12"_s, false},
        {7, u"21.03-21.03"_s, true},  {7, u"01.03-09.03"_s, true},  {8, u"10.03-20.03"_s, true},
        {7, u"22.03-21.03"_s, false}, {7, u"22.03-22.03"_s, true},
    };
    RejestrUrlopow urlopy(otoczenie());
    RejestrZwolnien zwolnienia(otoczenie());
    for (const auto& p : przypadki) {
        const ZakresDat z = zakres(p.zakres);
        const bool naOpak = z.od > z.dokad;
        if (!p.przyjety)
            rozmowa_.spodziewaj(naOpak ? kKoniecPrzedPoczatkiem : kUrlopPokrywaSie, Styl::Wykrzyknik);
        else
            rozmowa_.spodziewaj(kWyliczyc, Odpowiedz::Nie, u"?"_s);
        EXPECT_EQ(urlopy.Zarejestruj({p.prcId, z}).has_value(), p.przyjety) << p.zakres.toStdString();
        if (!p.przyjety)
            rozmowa_.spodziewaj(naOpak ? kKoniecPrzedPoczatkiem : kZwolnieniePokrywaSie, Styl::Wykrzyknik);
        EXPECT_EQ(zwolnienia.Zarejestruj({p.prcId, z}).has_value(), p.przyjety) << p.zakres.toStdString();
        ASSERT_TRUE(rozmowa_.gotowa());
    }
    const QStringList oczekiwane{u"7 Nowak 01.03-09.03"_s, u"7 Nowak 10.03-20.03"_s, u"7 Nowak 21.03-21.03"_s,
                                 u"7 Nowak 22.03-22.03"_s, u"8 O'Hara 10.03-20.03"_s};
    EXPECT_EQ(wPliku(URL), oczekiwane);
    EXPECT_EQ(wPliku(ZW), oczekiwane);
    QStringList naLiscie;
    for (const WierszRejestru& w : urlopy.lista())
        naLiscie.append(u"%1 %2 %3-%4"_s.arg(w.prcId).arg(w.naz, w.zakres.od.toString(u"dd.MM"_s),
                                                          w.zakres.dokad.toString(u"dd.MM"_s)));
    EXPECT_EQ(naLiscie, oczekiwane) << "by employee and dates";
    EXPECT_EQ(urlopy.wiersze(7).RecordCount(), 4);
    EXPECT_THROW((void)urlopy.Zarejestruj({9, zakres(u"01.03-02.03"_s)}), Blad);
}

TEST_F(RejestryTest, DlugoscUrlopuZKalendarza) {
    enum class Czyj { Ogolny, Wlasny };
    const struct {
        QString zakres;
        bool soboty;
        Czyj czyj;
        qint64 dni;
        QString komunikat;
    } przypadki[] = {
        {u"26.02-06.03"_s, false, Czyj::Ogolny, 7, {}},            // over a month's end
        {u"26.02-06.03"_s, true, Czyj::Ogolny, 8, {}},             // with Saturday 3 March
        {u"27.04-04.05"_s, false, Czyj::Ogolny, 0, kBrakMiesiaca}, // no April
        {u"30.05-04.06"_s, false, Czyj::Ogolny, 0, kBrakMiesiaca}, // no June
        {u"01.05-06.05"_s, false, Czyj::Ogolny, 2, {}},            // 1 and 3 May are free
        {u"01.05-06.05"_s, true, Czyj::Ogolny, 3, {}},             // a free weekday does not become one
        {u"01.05-31.05"_s, false, Czyj::Ogolny, 21, {}},
        {u"01.05-06.05"_s, false, Czyj::Wlasny, 1, {}},            // his 2 May is free too
        {u"26.02-06.03"_s, false, Czyj::Wlasny, 0, kBrakMiesiaca}, // his own has May alone
        {u"05.05-05.05"_s, false, Czyj::Ogolny, 0, {}},            // a Saturday
        {u"05.05-05.05"_s, true, Czyj::Ogolny, 1, {}},
        {u"06.05-06.05"_s, true, Czyj::Ogolny, 0, {}}, // a Sunday
    };
    kalendarzMiesiecy({2, 3, 5});
    kalendarzMiesiecy({5}, 7);
    TrescMiesiaca maj = *Kalendarz(otoczenie()).WypiszDni({7, 2001, 5});
    maj.dni.ustaw(2, DniKalendarza::Wolny);
    Kalendarz(otoczenie()).ZapiszDni({7, 2001, 5}, maj);
    przysluguje(7, 26, 0);
    stale().OsobHarPrac = true;
    RejestrUrlopow urlopy(otoczenie());
    for (const auto& p : przypadki) {
        SCOPED_TRACE(p.zakres.toStdString());
        stale().WliczSobDoUrl = p.soboty;
        rozmowa_.spodziewaj(kWyliczyc, Odpowiedz::Tak, u"?"_s);
        rozmowa_.spodziewaj(kZKalendarzaPracownika, p.czyj == Czyj::Wlasny ? Odpowiedz::Tak : Odpowiedz::Nie);
        if (!p.komunikat.isEmpty()) rozmowa_.spodziewaj(p.komunikat, Styl::Wykrzyknik);
        ASSERT_TRUE(urlopy.Zarejestruj({7, zakres(p.zakres)}));
        EXPECT_EQ(urlopy.tabela().liczba(URL("il_dni")), p.dni);
        rozmowa_.spodziewaj(u"Czy na pewno usunąć wprowadzony urlop ?"_s, Odpowiedz::Tak);
        ASSERT_TRUE(urlopy.Usun());
    }
    stale().OsobHarPrac = false;
    rozmowa_.spodziewaj(kWyliczyc, Odpowiedz::Tak, u"?"_s);
    ASSERT_TRUE(urlopy.Zarejestruj({7, zakres(u"01.05-06.05"_s)})) << "nobody is asked whose calendar";
    EXPECT_EQ(urlopy.tabela().liczba(URL("il_dni")), 3) << "constant 200 is still on";
}

TEST_F(RejestryTest, PustyKalendarzZostawiaDlugoscZero) {
    RejestrUrlopow urlopy(otoczenie());
    stale().OsobHarPrac = true;
    rozmowa_.spodziewaj(kWyliczyc, Odpowiedz::Tak, u"?"_s);
    rozmowa_.spodziewaj(kPustyKalendarz, Styl::Wykrzyknik);
    ASSERT_TRUE(
        urlopy.Zarejestruj({8, zakres(u"02.07-13.07"_s), RodzajUrlopu::OpiekaNadDzieckiem, zl(12.345)}));
    const Recordset& rs = urlopy.tabela();
    EXPECT_EQ(rs.liczba(URL("il_dni")), 0);
    EXPECT_EQ(rs.liczba(URL("Rodzaj")), 5);
    EXPECT_EQ(rs.kwota(URL("Kwota")), zl(12.34));
    EXPECT_EQ(rs.tekst(URL("Naz")) + rs.tekst(URL("Imie")), u"O'HaraJan"_s);
    EXPECT_EQ(rs.wartosc(URL("KodZUS")), Wartosc(QString()));
    EXPECT_EQ(NazwaRodzaju(5), u"Opieka nad dzieckiem"_s);
}

TEST_F(RejestryTest, OstrzegaGdyUrlopPrzekroczyPrzyslugujacy) {
    kalendarzMiesiecy({3, 4});
    przysluguje(7, 5, 2);
    RejestrUrlopow urlopy(otoczenie());
    const auto zarejestruj = [&](const QString& z, RodzajUrlopu rodzaj = RodzajUrlopu::Wypoczynkowy) {
        rozmowa_.spodziewaj(kWyliczyc, Odpowiedz::Tak, u"?"_s);
        EXPECT_TRUE(urlopy.Zarejestruj({7, zakres(z), rodzaj}));
    };
    ASSERT_TRUE(Kalendarz(otoczenie()).Nowy_dniwolne({0, 2000, 3}));
    rozmowa_.spodziewaj(kWyliczyc, Odpowiedz::Tak, u"?"_s);
    ASSERT_TRUE(urlopy.Zarejestruj({7, {QDate(2000, 3, 6), QDate(2000, 3, 10)}})) << "another year's";
    zarejestruj(u"05.03-09.03"_s);
    zarejestruj(u"12.03-16.03"_s, RodzajUrlopu::Bezplatny);
    zarejestruj(u"19.03-20.03"_s); // the seventh day, and the last one due
    EXPECT_EQ(urlopy.WykorzystaneDni(7, 2001), 7);
    rozmowa_.spodziewaj(kWyliczyc, Odpowiedz::Tak, u"?"_s);
    rozmowa_.spodziewaj(kPrzekroczone, Styl::Wykrzyknik);
    ASSERT_TRUE(urlopy.Zarejestruj({7, zakres(u"21.03-21.03"_s)})) << "it stays";
    EXPECT_EQ(urlopy.WykorzystaneDni(7, 2001), 8);
    zarejestruj(u"22.03-22.03"_s, RodzajUrlopu::Okolicznosciowy); // does not warn
    ASSERT_TRUE(urlopy.Wypisz({0, 7, {}, {}, zakres(u"21.03-21.03"_s)}));

    // Typed by hand: more days warn again, a note or fewer days do not.
    urlopy.tabela().ustaw(URL("il_dni"), 2);
    rozmowa_.spodziewaj(kPrzekroczone, Styl::Wykrzyknik);
    urlopy.Wpisz();
    urlopy.tabela().ustaw(URL("inf_opis"), u"na żądanie"_s);
    urlopy.Wpisz();
    urlopy.tabela().ustaw(URL("Rodzaj"), qint64{1});
    urlopy.Wpisz();
    EXPECT_EQ(urlopy.WykorzystaneDni(7, 2001), 7);
    EXPECT_EQ(urlopy.PrzyslugujeDni(7), 7);
}

TEST_F(RejestryTest, ZwolnienieBierzeStawkeZeStalejITrwaDniKalendarzowe) {
    stale().StProcL4 = zl(80);
    RejestrZwolnien zwolnienia(otoczenie());
    ASSERT_TRUE(zwolnienia.Zarejestruj({7, zakres(u"26.02-01.03"_s)}));
    EXPECT_EQ(zwolnienia.tabela().kwota(ZW("st_proc")), zl(80));
    EXPECT_EQ(zwolnienia.CzasTrwania(), 4);
    ASSERT_TRUE(zwolnienia.Zarejestruj({7, zakres(u"05.03-05.03"_s), zl(100)}));
    EXPECT_EQ(zwolnienia.tabela().kwota(ZW("st_proc")), zl(100));
    EXPECT_EQ(zwolnienia.CzasTrwania(), 1);
}

TEST_F(RejestryTest, ZmianaUsuniecieIWierszKtoregoJuzNieMa) {
    RejestrZwolnien zwolnienia(otoczenie());
    ASSERT_TRUE(zwolnienia.Zarejestruj({7, zakres(u"10.03-20.03"_s)}));
    ASSERT_TRUE(zwolnienia.Zarejestruj({8, zakres(u"10.03-20.03"_s)}));
    const QList<WierszRejestru> lista = zwolnienia.lista();
    ASSERT_EQ(lista.size(), 2);
    ASSERT_TRUE(zwolnienia.Wypisz(lista[1]));
    zwolnienia.tabela().ustaw(ZW("l4_seria"), u"AB"_s);
    zwolnienia.tabela().ustaw(ZW("Kwota"), zl(12.355));
    zwolnienia.Wpisz();
    otworzPonownie();
    RejestrZwolnien ponownie(otoczenie());
    Recordset rs = ponownie.wiersze(8);
    EXPECT_EQ(rs.tekst(ZW("l4_seria")), u"AB"_s);
    EXPECT_EQ(rs.kwota(ZW("Kwota")), zl(12.36));
    EXPECT_EQ(ponownie.wiersze(7).tekst(ZW("l4_seria")), QString());

    const QString pytanie = u"Czy na pewno usunąć wprowadzone zwolnienie ?"_s;
    ASSERT_TRUE(ponownie.Wypisz(lista[0]));
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
    EXPECT_FALSE(ponownie.Usun());
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
    EXPECT_TRUE(ponownie.Usun());
    EXPECT_EQ(wPliku(ZW), QStringList{u"8 O'Hara 10.03-20.03"_s});
    rozmowa_.spodziewaj(u"FATAL ERROR !!! Nie znaleziono rekordu."_s, Styl::Krytyczny);
    EXPECT_FALSE(ponownie.Wypisz(lista[0]));

    // Rows imported without dates can be taken up and deleted.
    sesja().cnPlace.wykonaj("INSERT INTO ZW (prc_id, Data) VALUES (7, '2001-05-01'), (7, NULL)");
    for (const WierszRejestru& wiersz : ponownie.lista()) {
        if (wiersz.zakres.poprawny()) continue;
        ASSERT_TRUE(ponownie.Wypisz(wiersz));
        EXPECT_EQ(ponownie.CzasTrwania(), 0);
        rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
        EXPECT_TRUE(ponownie.Usun());
    }
    EXPECT_EQ(wPliku(ZW), QStringList{u"8 O'Hara 10.03-20.03"_s});
}

TEST_F(RejestryTest, NieudanyZapisNieZostawiaNiczego) {
    RejestrUrlopow urlopy(otoczenie());
    ASSERT_TRUE(bezDlugosci(urlopy, {7, zakres(u"10.03-20.03"_s)}));
    sesja().cnPlace.wykonaj(
        "CREATE TRIGGER awaria BEFORE INSERT ON URL BEGIN SELECT RAISE(ABORT, 'awaria'); END");
    rozmowa_.spodziewaj(kWyliczyc, Odpowiedz::Nie, u"?"_s);
    EXPECT_THROW((void)urlopy.Zarejestruj({7, zakres(u"01.04-02.04"_s)}), BladBazy);
    EXPECT_FALSE(urlopy.tabela().zmieniony());
    EXPECT_EQ(wPliku(URL), QStringList{u"7 Nowak 10.03-20.03"_s});
    sesja().cnPlace.wykonaj("DROP TRIGGER awaria");
    EXPECT_TRUE(bezDlugosci(urlopy, {7, zakres(u"01.04-02.04"_s)}));
}

} // namespace

} // namespace tornel::testy
