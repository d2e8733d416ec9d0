// The commands of the overtime lists.
#include "wsparcie/KonsolaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tornel::testy {

namespace {

using NadgodzinyKonsoliTest = KonsolaTestowa;

// Each case starts where the one before it left the database. Employee 2 has 9,82 zł an hour.
TEST_F(NadgodzinyKonsoliTest, Commands) {
    struct Przypadek {
        const char* wiersz;
        int status;
        const char* wyjscie; ///< fragment
        const char* bledy;   ///< likewise
    };
    const Przypadek przypadki[] = {
        {"pomoc", 0, "nadgodziny godziny RRRR-MM --pracownik N [--dzien D] --grupa G --ilosc X", ""},
        {"stale 253=50%,100%", 0, "", ""},
        {"stale 254=SGP*15/10,SGP*2", 0, "", ""},
        {"stale 257=SGP*15/10,SGP*2,5*", 0, "", ""},
        {"nadgodziny nowy 2001-07", 1, "", "Czy na pewno utworzyć nową listę ? [brak odpowiedzi]"},
        {"--nie nadgodziny nowy 2001-07", 1, "", ""},
        {"--tak nadgodziny nowy 2001-07", 0, "", ""},
        {"--tak nadgodziny nowy 2001-07", 1, "", "Podany miesiąc już istnieje!"},
        {"nadgodziny lista", 0, "2001-07  LIPIEC\n", ""},
        {"--json nadgodziny lista", 0, R"({"mies":7,"miesiac":"2001-07","rok":2001}])", ""},
        {"nadgodziny dodaj 2001-07 --pracownik 2 3 99", 1, "wykonane: 2, pominięte: 0, nieudane: 1.",
         "Pracownik nr 99: Nie znaleziono danych pracownika w kadrach."},
        {"stale 251=True", 0, "", ""},
        {"nadgodziny dodaj 2001-07 --wszyscy", 0, "pominięte: 2, nieudane: 0.", ""},
        {"nadgodziny godziny 2001-07 --pracownik 2 --grupa 1 --ilosc 10", 0, "", ""},
        {"nadgodziny godziny 2001-07 --pracownik 2 --grupa 2 --ilosc 2.5", 0, "", ""},
        {"nadgodziny godziny 2001-07 --pracownik 2 --grupa 3 --ilosc 1", 1, "",
         "Pracownik nr 2 Bielak Jan: Nie można obliczyć wzoru \"5*\"."},
        {"nadgodziny godziny 2001-07 --pracownik 2 --grupa 1 --ilosc 745", 1, "", "od -744 do 744"},
        {"nadgodziny godziny 2001-07 --pracownik 2 --dzien 3 --grupa 1 --ilosc 1", 1, "",
         "bez opcji --dzien."},
        {"nadgodziny godziny 2001-07 --pracownik 1 --grupa 1 --ilosc 1", 1, "", "opcją --dzien."},
        {"nadgodziny godziny 2001-07 --pracownik 1 --dzien 31 --grupa 4 --ilosc 2", 0, "", ""},
        {"nadgodziny godziny 2001-07 --pracownik 98 --grupa 1 --ilosc 1", 1, "", "nr 98 nie ma na liście"},
        // 10 hours at 14,73 and 2,5 at 19,64
        {"nadgodziny pokaz 2001-07", 0, " 10,0   2,5 ", ""},
        {"nadgodziny pokaz 2001-07", 0, "12,5  196,40\n", ""},
        {"nadgodziny pokaz 2001-07 --pracownik 1", 0, "31-07-2001  Wtorek", ""},
        {"nadgodziny odswiez 2001-07", 0, "nieudane: 0.", ""},
        {"nadgodziny pokaz 2001-08", 1, "", "Nie ma listy nadgodzin za miesiąc 08.2001."},
        {"nadgodziny godziny 2001-07 --pracownik 1 --dzien 32 --grupa 4 --ilosc 2", 2, "", "od 1 do 31"},
        {"nadgodziny godziny 2001-07 --pracownik 1 --dzien 1 --grupa 8 --ilosc 2", 2, "", "od 1 do 7"},
        {"nadgodziny godziny 2001-07 --pracownik 1 --dzien 1 --grupa 1", 2, "", "Brakuje opcji --ilosc."},
        {"nadgodziny dodaj 2001-07", 2, "", "Podaje się --wszyscy albo --pracownik N."},
        {"nadgodziny pokaz 2001-7", 2, "", "RRRR-MM"},
    };
    for (const Przypadek& p : przypadki) {
        SCOPED_TRACE(p.wiersz);
        const Wynik wynik = uruchom(p.wiersz);
        EXPECT_EQ(wynik.status, p.status);
        EXPECT_TRUE(wynik.wyjscie.contains(QString::fromUtf8(p.wyjscie))) << wynik.wyjscie.toStdString();
        EXPECT_TRUE(wynik.bledy.contains(QString::fromUtf8(p.bledy))) << wynik.bledy.toStdString();
        if (p.status != 0 && p.status != 1) EXPECT_EQ(wynik.wyjscie, QString());
    }

    const auto miesiac =
        QJsonDocument::fromJson(uruchom("--json nadgodziny pokaz 2001-07").wyjscie.toUtf8()).object();
    const QJsonObject sumy = miesiac.value(QStringLiteral("sumy")).toObject();
    EXPECT_EQ(sumy.value(QStringLiteral("godziny")).toArray(),
              QJsonArray::fromStringList(QStringLiteral("10 2,5 0 2 0 0 0").split(u' ')));
    const auto osoba =
        QJsonDocument::fromJson(uruchom("--json nadgodziny pokaz 2001-07 --pracownik 2").wyjscie.toUtf8())
            .object();
    EXPECT_EQ(osoba.value(QStringLiteral("kwoty")).toArray(),
              QJsonArray::fromStringList(QStringLiteral("147,3 49,1 0 0 0 0 0").split(u' ')));
    EXPECT_EQ(osoba.value(QStringLiteral("wiersze")).toArray().size(), 1);

    EXPECT_EQ(uruchom("--tak nadgodziny usun 2001-07").status, 0);
    EXPECT_EQ(uruchom("nadgodziny lista").wyjscie, QStringLiteral("MIESIĄC\n2001-02  LUTY\n"));
}

} // namespace

} // namespace tornel::testy
