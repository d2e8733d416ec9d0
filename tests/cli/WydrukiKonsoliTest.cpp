// The console's prints: rows as CSV, and what is refused.
#include "wsparcie/KonsolaTestowa.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;

class WydrukiKonsoliTest : public KonsolaTestowa {
protected:
    /// The rows of the print, a line each behind that of the captions.
    QStringList csv(const QString& polecenie) {
        const Wynik wynik = uruchom((polecenie + u" --csv "_s + plik("wydruk.csv")).split(u' '));
        EXPECT_EQ(wynik.status, 0) << wynik.bledy.toStdString();
        return QString::fromUtf8(czytaj(plik("wydruk.csv"))).trimmed().split(u'\n').mid(1);
    }
};

TEST_F(WydrukiKonsoliTest, PeriodsListsDepartmentsAndPersonsNarrowThePrint) {
    const struct {
        const char* polecenie;
        qsizetype wierszy;
    } przypadki[] = {
        {"wydruk zbiorowka-miesiac 2001-02", 11},
        {"wydruk zbiorowka-rok --od 2001-01 --do 2001-02", 12}, // one left, one came
        {"wydruk zbiorowka-miesiac 2001-02 --listy A", 6},
        {"wydruk zbiorowka-miesiac 2001-02 --listy AB", 11},
        {"wydruk zbiorowka-miesiac 2001-02 --dzial Zarząd", 2},
        {"wydruk zbiorowka-miesiac 2001-02 --dzial Zarząd --dzial Sprzedaż", 4},
        {"wydruk lista-pracownikow", 12},
        {"wydruk karta-ewidencji 2001 --pracownik 2 3", 24},
        {"wydruk karta-ewidencji 2001 --pracownik 2 2", 12}, // each once
        {"wydruk lista-obecnosci 2001-02", 11 * 28},
        {"wydruk karta-przychodow 2000 --pracownik 1", 12},
        {"wydruk karta-przychodow 2001 --pracownik 10", 13}, // and the opening balance
    };
    for (const auto& p : przypadki)
        EXPECT_EQ(csv(QString::fromUtf8(p.polecenie)).size(), p.wierszy) << p.polecenie;
}

TEST_F(WydrukiKonsoliTest, WhatIsNotThereIsRefusedAndWritesNothing) {
    const std::pair<const char*, const char16_t*> przypadki[] = {
        {"wydruk zbiorowka-miesiac 2001-02 --dzial Nie", u"W kadrach nie ma działu „Nie”."},
        {"wydruk zbiorowka-miesiac 2001-09", u"Nie ma list płac za: Wrzesień 2001."},
        {"wydruk karta-przychodow 2001 --pracownik 99", u"nie ma pracownika o numerze 99"}};
    for (const auto& [polecenie, powod] : przypadki) {
        const Wynik wynik =
            uruchom((QString::fromUtf8(polecenie) + u" --csv "_s + plik("x.csv")).split(u' '));
        EXPECT_EQ(wynik.status, 1) << polecenie;
        EXPECT_TRUE(wynik.bledy.contains(QString::fromUtf16(powod))) << wynik.bledy.toStdString();
        EXPECT_FALSE(QFile::exists(plik("x.csv"))) << polecenie;
    }
}

} // namespace

} // namespace tornel::testy
