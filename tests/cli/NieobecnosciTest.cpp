// The commands of calendars and absences: output, status, questions.
#include "store/Polaczenie.h"
#include "wsparcie/KonsolaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tornel::testy {

namespace {

class NieobecnosciTest : public KonsolaTestowa {
protected:
    /// The example firm without its own calendars and absences.
    NieobecnosciTest() {
        Polaczenie baza(plik("Tornel.mdb"), Polaczenie::Sposob::Istniejaca);
        baza.wykonaj("DELETE FROM KALENDARZ; DELETE FROM URL; DELETE FROM ZW;");
    }
};

// Each case starts where the one before it left the database.
TEST_F(NieobecnosciTest, Commands) {
    const struct {
        const char* wiersz;
        int status;
        const char* wyjscie;
        const char* bledy;
    } przypadki[] = {
        {"--tak urlop dodaj --pracownik 7 --od 2001-05-01 --do 2001-05-06 --rodzaj Inny", 0, "",
         "Kalendarz z dniami wolnymi jest pusty."},
        {"kalendarz nowy 2001-05 --swieta", 0, "", ""},
        {"kalendarz nowy 2001-05", 1, "", "Taki miesiąc już istnieje !\n"},
        {"kalendarz nowy 2001-06", 0, "", ""},
        {"kalendarz lista", 0, "    2001-05   31     10\n    2001-06   30      9\n", ""},
        {"kalendarz pokaz 2001-05", 0, "\n 3  Czwartek      Wolny  Święto Narodowe Trzeciego Maja\n", ""},
        {"kalendarz pokaz 2001-05", 0, "\nDni w miesiącu: 31\nW tym wolnych: 10\n", ""},
        {"kalendarz pokaz 2001-07", 1, "", "Kalendarz nie ma miesiąca 07.2001."},
        {"kalendarz nowy 2001-05 --pracownik 2", 0, "", ""},
        {"kalendarz nowy 2001-05 --pracownik 99", 1, "", "Nie ma pracownika o numerze 99."},
        {"kalendarz pokaz 2001-05 --pracownik 2", 0, "W tym wolnych: 8\n", ""},
        {"kalendarz transport 2001-05 --wszyscy", 1, "",
         "Czy zmienić już istniejące kalendarze pracowników ?"},
        {"kalendarz lista --pracownik 3", 0, "NR  MIESIĄC  DNI  WOLNE\n", ""},
        {"--nie kalendarz transport 2001-05 --pracownik 2 3 99", 1,
         "Kalendarze zapisane: 1, pominięte: 1, nieudane: 1.\n", "Nie ma pracownika o numerze 99."},
        {"kalendarz pokaz 2001-05 --pracownik 2", 0, "W tym wolnych: 8\n", ""},
        {"--tak kalendarz transport 2001-05 --wszyscy", 0, "Kalendarze zapisane: 11, pominięte: 0,",
         "Transport dni wolnych do pracowników zakończony.\n"},
        {"kalendarz pokaz 2001-05 --pracownik 2", 0, "W tym wolnych: 10\n", ""},
        {"--tak kalendarz transport 2001-08 --wszyscy", 1, "",
         "Nie znaleziono miesiąca 08.2001 w bazie danych!"},
        {"--tak urlop dodaj --pracownik 1 --od 28-05-2001 --do 04-06-2001 --rodzaj 0", 0, "",
         "Czy wyliczyć czas trwania urlopu ? [Tak]\n"},
        {"--tak urlop dodaj --pracownik 1 --od 04-06-2001 --do 04-06-2001 --rodzaj 1", 1, "",
         "Urlop nie zostanie zarejestrowane.\n"},
        {"urlop dodaj --pracownik 2 --od 04-06-2001 --do 04-06-2001 --rodzaj 1", 1, "", "Czy wyliczyć czas"},
        {"--nie urlop dodaj --pracownik 2 --od 11-06-2001 --do 04-06-2001 --rodzaj 1", 1, "",
         "Data końcowa musi być większ od początkowej.\n"},
        {"--nie urlop dodaj --pracownik 2 --od 04-06-2001 --do 05-06-2001 --rodzaj wychowawczy --kwota "
         "12,345",
         0, "", ""},
        {"urlop lista", 0,
         "001  Adamska Barbara  28-05-2001  04-06-2001    6   0,00  Wypoczynkowy\n"
         "002  Bielak Jan       04-06-2001  05-06-2001    0  12,34  Wychowawczy\n",
         ""},
        {"urlop lista --pracownik 3", 0, "NR  NAZWISKO  OD  DO  DNI  KWOTA  RODZAJ\n", ""},
        {"stale 100=80", 0, "", ""},
        {"zwolnienie dodaj --pracownik 2 --od 08-01-2001 --do 27-01-2001", 0, "", ""},
        {"zwolnienie dodaj --pracownik 2 --od 27-01-2001 --do 28-01-2001", 1, "",
         "Zwolnienie nie zostanie zarejestrowane.\n"},
        {"zwolnienie dodaj --pracownik 2 --od 28-01-2001 --do 28-01-2001 --procent 100", 0, "", ""},
        {"zwolnienie lista --pracownik 2", 0,
         "002  Bielak Jan  08-01-2001  27-01-2001   20     80,00   0,00\n"
         "002  Bielak Jan  28-01-2001  28-01-2001    1    100,00   0,00\n",
         ""},
        {"pomoc", 0, "urlop dodaj --pracownik N --od D --do D --rodzaj K [--kwota X]", ""},
    };
    for (const auto& p : przypadki) {
        SCOPED_TRACE(p.wiersz);
        const Wynik wynik = uruchom(p.wiersz);
        EXPECT_EQ(wynik.status, p.status) << wynik.bledy.toStdString();
        EXPECT_TRUE(wynik.wyjscie.contains(QString::fromUtf8(p.wyjscie))) << wynik.wyjscie.toStdString();
        EXPECT_TRUE(wynik.bledy.contains(QString::fromUtf8(p.bledy))) << wynik.bledy.toStdString();
    }
}

TEST_F(NieobecnosciTest, WrongUsageIsStatusTwoAndTouchesNothing) {
    ASSERT_EQ(uruchom("kalendarz nowy 2001-05").status, 0);
    const auto stan = [&] { return tabela("KALENDARZ") + tabela("URL") + tabela("ZW"); };
    const QString przed = stan();
    for (const char* wiersz :
         {"kalendarz", "kalendarz nowy", "kalendarz nowy 2001-13", "kalendarz nowy 05-2001",
          "kalendarz nowy 2001-06 --wszyscy", "kalendarz transport 2001-05",
          "--tak kalendarz transport 2001-05 --wszyscy --pracownik 2", "--tak kalendarz transport 2001-05 2",
          "--tak urlop dodaj --pracownik 1 --od 01-05-2001 --do 02-05-2001",
          "--tak urlop dodaj --pracownik 1 --od 01-05-2001 --rodzaj 0",
          "--tak urlop dodaj --pracownik 1 --od 31-04-2001 --do 02-05-2001 --rodzaj 0",
          "--tak urlop dodaj --pracownik 1 --od 01-05-2001 --do 02-05-2001 --rodzaj 7",
          "--tak urlop dodaj --pracownik 0 --od 01-05-2001 --do 02-05-2001 --rodzaj 0",
          "--tak urlop dodaj --pracownik 1 --od 01-05-2001 --do 02-05-2001 --rodzaj 0 --kwota x",
          "zwolnienie dodaj --od 01-05-2001 --do 02-05-2001",
          "zwolnienie dodaj --pracownik 1 --od 01-05-2001 --do 02-05-2001 --procent 8o"})
        EXPECT_EQ(uruchom(wiersz).status, 2) << wiersz;
    EXPECT_EQ(stan(), przed);
}

TEST_F(NieobecnosciTest, Json) {
    ASSERT_EQ(uruchom("kalendarz nowy 2001-11 --swieta").status, 0);
    ASSERT_EQ(uruchom("--tak urlop dodaj --pracownik 1 --od 31-10-2001 --do 02-11-2001 --rodzaj 2").status,
              0);
    ASSERT_EQ(uruchom("--tak urlop dodaj --pracownik 1 --od 05-11-2001 --do 11-11-2001 --rodzaj 2").status,
              0);
    ASSERT_EQ(uruchom("zwolnienie dodaj --pracownik 1 --od 28-02-2000 --do 01-03-2000 --procent 80").status,
              0);
    const auto json = [&](const char* wiersz) {
        return QJsonDocument::fromJson(uruchom(wiersz).wyjscie.toUtf8());
    };
    const QJsonObject pokaz = json("--json kalendarz pokaz 2001-11").object();
    EXPECT_EQ(pokaz[QStringLiteral("wolne")].toInt(), 9);
    EXPECT_EQ(pokaz[QStringLiteral("dni")].toArray().size(), 30);
    const QJsonObject pierwszy = pokaz[QStringLiteral("dni")].toArray().first().toObject();
    EXPECT_EQ(pierwszy[QStringLiteral("opis")].toString(), QStringLiteral("Wszystkich Świętych"));
    EXPECT_TRUE(pierwszy[QStringLiteral("wolny")].toBool());
    const QJsonArray urlopy = json("--json urlop lista").array();
    ASSERT_EQ(urlopy.size(), 2);
    EXPECT_EQ(urlopy[0][QStringLiteral("dni")].toInt(-1), 0) << "no October in the calendar";
    EXPECT_EQ(urlopy[1][QStringLiteral("dni")].toInt(), 5);
    EXPECT_EQ(urlopy[1][QStringLiteral("nazwaRodzaju")].toString(), QStringLiteral("Okolicznościowy"));
    const QJsonArray zwolnienia = json("--json zwolnienie lista --pracownik 1").array();
    ASSERT_EQ(zwolnienia.size(), 1);
    EXPECT_EQ(zwolnienia[0][QStringLiteral("dni")].toInt(), 3) << "over 29 February";
    EXPECT_EQ(zwolnienia[0][QStringLiteral("procent")].toString(), QStringLiteral("80"));
    EXPECT_EQ(json("--json kalendarz lista").array().first()[QStringLiteral("miesiac")].toString(),
              QStringLiteral("2001-11"));
}

} // namespace

} // namespace tornel::testy
