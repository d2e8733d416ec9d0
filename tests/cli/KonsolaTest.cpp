// The commands: what they print where, their status, and how questions are answered.
#include "store/Sesja.h"
#include "wsparcie/KonsolaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tornel::testy {

namespace {

using KonsolaTest = KonsolaTestowa;

struct PrzypadekKonsoli {
    const char* wiersz;
    int status;
    const char* wyjscie; ///< fragment, or empty for no output at all
    const char* bledy;   ///< likewise
};

void sprawdz(const char* fragment, const QString& tekst) {
    if (*fragment)
        EXPECT_TRUE(tekst.contains(QString::fromUtf8(fragment))) << tekst.toStdString();
    else
        EXPECT_EQ(tekst, QString());
}

// Each case starts where the one before it left the database.
TEST_F(KonsolaTest, Commands) {
    const PrzypadekKonsoli przypadki[] = {
        {"pomoc", 0, "lista dodaj RRRR-MM [--lista X] (--wszyscy | --pracownik N ...)", ""},
        {"lista --help", 0, "Status: 0 wykonane", ""},
        {"wzor DOCH*0,19-394,8 --zmienna DOCH=10000", 0, "wynik: 1505,2\nbity: 0\n", ""},
        {"--json wzor --zmienna DOCH=10000 DOCH*0,19-394,8", 0, R"({"bity":0,"wynik":"1505,2"})", ""},
        {"wzor -- -5+3", 0, "wynik: -2\nbity: 0\n", ""},
        {"wzor DD1+dd2 --zmienna dd1=1,5 --zmienna DD2=2", 0, "wynik: 3,5\n", ""},
        {"wzor ABC+1 --tryb 1", 0, "wynik: 1\nbity: 16\n", "Nieznana zmienna \"ABC\"\n"},
        {"wzor (5) --tryb 2", 0, "bity: 2", "Błąd Składniowy !\n(Nie zgadza się"},
        {"wzor 5*", 1, "", "Nie można obliczyć wzoru \"5*\""},
        {"slownie 15,10", 0, "piętnaście złotych dziesięć groszy\n", ""},
        {"stale", 0, " 41  GranicaG23            59248\n", ""},
        {"stale 203", 0, "3\n", ""},
        {"--json stale 5", 0, R"({"nazwa":"FRprd","num":5,"wart":"6,50"})", ""},
        {"stale 63=493,32", 0, "", ""},
        {"stale 63", 0, "493,32\n", ""},
        {"stale 60=3", 1, "", "od 0 do 2"},
        {"stale 60", 0, "1\n", ""},
        {"stale 9999", 1, "", "Nie ma stałej programu o numerze 9999."},
        {"pracownik lista", 0, "003  Cieślik Marek\n", ""},
        {"pracownik nowy --nr 12 --nazwisko X --imie Y", 1, "", "Pracownik o numerze 12 już istnieje."},
        {"--tak pracownik usun 11", 0, "", "członkowie jego rodziny zostaną usunięci z list. "},
        {"eksport RODZINA", 0, "\n2;1;Bielak;", ""},
        {"--nie pracownik usun 12", 1, "", "Czy na pewno usunąć wybranego pracownika ? [Nie]\n"},
        {"miesiac lista", 0, "2001-01  STYCZEŃ      ZABLOKOWANY\n2001-02  LUTY\n", ""},
        {"--tak miesiac nowy 2001-02", 1, "", "[Tak]\nPodany miesiąc już istnieje!\n"},
        {"--tak miesiac nowy 2001-03", 0, "", "Czy na pewno utworzyć nową listę ? [Tak]\n"},
        {"--tak miesiac usun 2001-01", 1, "", "Miesiąc jest zablokowany i nie można go usunąć"},
        {"--tak miesiac usun 2001-03", 0, "", "miesiąc 03-2001 z listy ? [Tak]\n"},
        {"--tak miesiac usun 2001-03", 1, "", "Nie ma miesiąca 03.2001."},
        {"--tak miesiac nowy 2001-03", 0, "", "[Tak]"},
        {"--nie lista dodaj 2001-03 --pracownik 3 8 --pracownik 99", 1,
         "Wiersze wykonane: 2, pominięte: 0, nieudane: 1.", "Pracownik nr 99: Nie ma pracownika"},
        {"--tak lista dodaj 2001-03 --wszyscy", 0, "wykonane: 8, pominięte: 2, nieudane: 0.",
         "Czy wyliczać L4 dla pracowników ? [Tak]\n"},
        {"--nie lista dodaj 2001-03 --lista C --pracownik 1", 0, "wykonane: 1,",
         "Czy wyliczać urlop dla pracowników ? [Nie]\n"},
        {"lista pokaz 2001-03 --lista C", 0, "Lista plac (C) za miesiąc 03.2001\n", ""},
        {"lista pokaz 2001-03", 0, "\nPODSUMOWANIE MIESIĄCA\n", ""},
        {"lista pokaz 2001-03 --lista D", 1, "", "Lista o podanym symbolu nie istnieje.\n"},
        {"--nie lista przepisz 2001-03 --lista C", 0, "wykonane: 1, pominięte: 0, nieudane: 0.", "? [Nie]\n"},
        {"--tak lista dni 2001-03 --pracownik 12", 0, "wykonane: 1, pominięte: 0, nieudane: 0.",
         "Czy wyliczać ilość przepracowanych dni dla pracowników ? [Tak]\n"},
        {"lista przelicz 2001-03 --pracownik 12", 0, "wykonane: 1, pominięte: 0, nieudane: 0.", ""},
        {"lista przelicz 2001-03 --pracownik 11", 1, "nieudane: 1.", "Nie ma go na liście płac."},
        {"lista przelicz 2001-01", 1, "", "Miesiąc 01.2001 jest zablokowany"},
        {"lista konto 2001-03", 0, "nieudane: 0.", ""},
        {"lista pokaz 2002-01", 1, "", "Nie ma listy płac za miesiąc 01.2002."},
        {"--tak miesiac blokada 2001-03", 0, "", "do listy płac za wybrany miesiąc? [Tak]\n"},
        {"--baza brak.mdb stale 1", 1, "", "Procedura 'PStart': błąd w lini: 1"},
    };
    for (const PrzypadekKonsoli& p : przypadki) {
        SCOPED_TRACE(p.wiersz);
        const Wynik wynik = uruchom(p.wiersz);
        EXPECT_EQ(wynik.status, p.status);
        sprawdz(p.wyjscie, wynik.wyjscie);
        sprawdz(p.bledy, wynik.bledy);
    }
}

TEST_F(KonsolaTest, WrongUsageIsStatusTwoAndTouchesNothing) {
    const QString przed = tabela("PLACE") + tabela("PRACDP") + tabela("KON");
    for (const char* wiersz : {"",
                               "nic",
                               "miesiac",
                               "miesiac zamknij",
                               "slownie",
                               "slownie 1 2",
                               "slownie -1",
                               "slownie abc",
                               "slownie 1 --lista A",
                               "slownie 1 --cos",
                               "slownie 1 --json=T",
                               "slownie 1 --baza",
                               "--tak --nie miesiac lista",
                               "stale abc",
                               "stale 41,5",
                               "wzor 1 --tryb 8",
                               "wzor 1 --zmienna A1=2",
                               "wzor 1 --zmienna DOCH",
                               "wzor 1 --zmienna DOCH=x",
                               "pracownik nowy --nr 20 --nazwisko X",
                               "--tak pracownik nowy --nr 0 --nazwisko X --imie Y",
                               "--tak pracownik usun X",
                               "--tak miesiac nowy 2001-3",
                               "--tak miesiac nowy 2001-13",
                               "--tak miesiac nowy 2001-04 2001-05",
                               "wydruk zbiorowka-miesiac 2001-02",
                               "wydruk zbiorowka-miesiac 2001-02 --tekst --csv x",
                               "wydruk zbiorowka-rok --od 2001-02 --tekst",
                               "wydruk zbiorowka-rok --od 2001-02 --do 2001-01 --tekst",
                               "wydruk karta-ewidencji 01 --tekst",
                               "wydruk zaswiadczenie --od 2001-01 --do 2001-02 --pracownik X --tekst",
                               "wydruk lista-pracownikow 2001 --tekst",
                               "lista dodaj 2001-02",
                               "lista dodaj 2001-02 --wszyscy --pracownik 1",
                               "lista dodaj 2001-02 1 2",
                               "lista dodaj 2001-02 --wszyscy --lista AB",
                               "lista pokaz 2001-02 --wszyscy",
                               "import PRACDP",
                               "przyklad nowa.mdb --pracownicy 0",
                               "przyklad nowa.mdb --miesiace 13",
                               "nowa-baza"}) {
        SCOPED_TRACE(wiersz);
        const Wynik wynik = uruchom(wiersz);
        EXPECT_EQ(wynik.status, 2);
        EXPECT_EQ(wynik.wyjscie, QString());
        EXPECT_TRUE(wynik.bledy.endsWith(QStringLiteral("\nPomoc: tornel-cli pomoc\n")));
    }
    EXPECT_EQ(tabela("PLACE") + tabela("PRACDP") + tabela("KON"), przed);
}

TEST_F(KonsolaTest, QuestionsAreAnsweredAsTheCommandLineSays) {
    const QByteArray spoleczne("społecznych ?"), zdrowotne("do ubezpieczenia zdrowotnego ?");
    struct Sposob {
        QByteArray odpowiedzi; ///< content of the file; otherwise the switch
        const char* opcja;
        int status;
        int oiZua;
        const char* bledy;
    };
    const Sposob sposoby[] = {
        {{}, "--tak", 0, 1, "ubezpieczenia zdrowotnego ? [Tak]\n"},
        {{}, "--nie", 0, 0, "społecznych ? [Nie]\n"},
        {{}, nullptr, 1, -1, "społecznych ? [brak odpowiedzi]\nPolecenie przerwane na pytaniu."},
        {"\xEF\xBB\xBF" + spoleczne + "=T\r\n\r\n" + zdrowotne + "=N", nullptr, 0, 2,
         "zdrowotnego ? [Nie]\n"},
        {"Czy nastąpi=T\nzdrowotnego=N\n", nullptr, 0, 1, "zdrowotnego ? [Tak]\n"},
        {"nowy pracownik=T\n", nullptr, 1, -1, "zdrowotnego ? [brak odpowiedzi]"},
        {"nowy pracownik=X\n", nullptr, 1, -1, "wiersz 1: powinno być fragment=T albo fragment=N"},
        {"=T\n", nullptr, 1, -1, "wiersz 1:"},
        {"\xF1=T\n", nullptr, 1, -1, "nie jest zapisany w UTF-8."},
    };
    int numer = 20;
    for (const Sposob& s : sposoby) {
        SCOPED_TRACE(s.bledy);
        const QString nr = QString::number(++numer);
        QStringList argumenty;
        if (s.opcja) argumenty += QString::fromLatin1(s.opcja);
        if (!s.odpowiedzi.isEmpty())
            argumenty += {QStringLiteral("--odpowiedzi"), zapisz("odpowiedzi.txt", s.odpowiedzi)};
        const Wynik wynik = uruchom(
            argumenty + QStringList{QStringLiteral("pracownik"), QStringLiteral("nowy"),
                                    QStringLiteral("--nr"), nr, QStringLiteral("--nazwisko"),
                                    QStringLiteral("Nowy"), QStringLiteral("--imie"), QStringLiteral("Jan")});
        EXPECT_EQ(wynik.status, s.status);
        sprawdz(s.bledy, wynik.bledy);
        Sesja sesja(plik("Tornel.mdb"));
        ASSERT_EQ(sesja.rsPRACZUS.Znajdz(nr.toInt()), s.oiZua >= 0) << "stored or not at all";
        if (s.oiZua >= 0) EXPECT_EQ(sesja.rsPRACZUS.liczba(schemat::PRACZUS("oi_zua")), s.oiZua);
    }
}

TEST_F(KonsolaTest, AnUnansweredQuestionInABatchStoresNoneOfItsRows) {
    ASSERT_EQ(uruchom("--tak miesiac nowy 2001-03").status, 0);
    ASSERT_EQ(uruchom("stale 67=False").status, 0); // so that number 8 can be computed without a question
    const QString przed = tabela("PLA200103") + tabela("PLACE");
    const Wynik przerwane = uruchom("lista dodaj 2001-03 --pracownik 8 11"); // number 11 has family benefits
    EXPECT_EQ(przerwane.status, 1);
    sprawdz("Czy przenosić dane o ilościach zasiłków", przerwane.bledy);
    EXPECT_EQ(tabela("PLA200103") + tabela("PLACE"), przed);
}

TEST_F(KonsolaTest, TheListAsJsonCarriesRowsAndSums) {
    const auto lista =
        QJsonDocument::fromJson(uruchom("--json lista pokaz 2001-02").wyjscie.toUtf8()).object();
    const QJsonArray wiersze = lista.value(QStringLiteral("wiersze")).toArray();
    ASSERT_EQ(wiersze.size(), 11);
    const QJsonObject bielak = wiersze[1].toObject();
    EXPECT_EQ(bielak.value(QStringLiteral("NAZ")), QStringLiteral("Bielak"));
    EXPECT_EQ(bielak.value(QStringLiteral("DO_WYPLATY")), QStringLiteral("1254,39"));
    EXPECT_EQ(bielak.value(QStringLiteral("SP_4")), QStringLiteral("165"));
    EXPECT_EQ(bielak.value(QStringLiteral("SDO_4")), QStringLiteral("28-02-2001"));
    EXPECT_EQ(bielak.value(QStringLiteral("ST_PD")), 19);
    EXPECT_FALSE(bielak.contains(QStringLiteral("SP_5"))) << "components without an amount are left out";
    const QJsonObject sumy = lista.value(QStringLiteral("sumy")).toObject();
    EXPECT_EQ(sumy.value(QStringLiteral("il_wyplat")), 11);
    EXPECT_EQ(sumy.value(QStringLiteral("sum_inne")), QStringLiteral("-310,3"));
}

TEST_F(KonsolaTest, TheDatabaseIsLookedUpAsTheWindowsDo) {
    ASSERT_EQ(uruchom({QStringLiteral("nowa-baza"), plik("inna.mdb")}).status, 0);
    EXPECT_EQ(uruchom({QStringLiteral("nowa-baza"), plik("inna.mdb")}).status, 1)
        << "an existing file is refused";
    EXPECT_TRUE(uruchom("pracownik lista").wyjscie.contains(QStringLiteral("Adamska")));
    zapisz("Baza.ini", plik("inna.mdb").toUtf8() + "\n");
    EXPECT_EQ(uruchom("pracownik lista").wyjscie, QStringLiteral("NR  NAZWISKO\n"));
    zapisz("Baza.ini", "/nie/ma.mdb\n");
    const Wynik wynik = uruchom("pracownik lista");
    EXPECT_EQ(wynik.bledy, QStringLiteral("Nie można znaleźć bazy podadnej w pliku Baza.ini\n"));
    EXPECT_TRUE(wynik.wyjscie.contains(QStringLiteral("Adamska")));
}

} // namespace

} // namespace tornel::testy
