// The structure update: what is told and reported, that nothing is lost, and that a second run has nothing to
// do.
#include "start/AktualizacjaBazy.h"
#include "common/Blad.h"
#include "common/PolaKedu.h"
#include "store/OpisStruktury.h"
#include "store/PrzeliczenieTypu.h"
#include "store/ZmianaStruktury.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <QDir>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

const QString kPytanieRaportu = u"Czy pokazać plik z raportem aktualizacji bazy danych ?"_s;
const QString kNaglowek = u"RAPORT Z AKTUALIZACJI BAZY DANYCH\r\nData aktualizacji:    31-07-2001\r\nGodzina "
                          "aktualizacji: 15-04-05\r\n\r\n"_s;
const QString kKoniec = u"\r\nKONIEC PLIKU"_s;

class AktualizacjaBazyTest : public BazaTestowa {
protected:
    void zapiszPlik(const QString& nazwa, const QByteArray& tresc) {
        QFile plik(folder_.filePath(nazwa));
        ASSERT_TRUE(plik.open(QIODevice::WriteOnly) && plik.write(tresc) == tresc.size());
    }
    Polaczenie& baza() { return sesja().cnPlace; }
    /// Runs the update and gives the report between its heading and its end.
    QString raport(const QByteArray& tabele, const QByteArray& pola) {
        zapiszPlik(u"Tabele.rec"_s, "ID;NAZWA\n" + tabele);
        zapiszPlik(u"Pola.rec"_s, "ID;POLE;TYP;ROZMIAR\n" + pola);
        return raport();
    }
    QString raport() {
        rozmowa_.spodziewaj(kPytanieRaportu, Odpowiedz::Nie);
        sesja().PrzyZamknietychUchwytach([&] {
            wynik_ = AktualizujBaze(baza(), {folder_.path(), QDateTime({2001, 7, 31}, {15, 4, 5}), {}, {}},
                                    rozmowa_);
        });
        EXPECT_TRUE(rozmowa_.gotowa());
        QFile plik(folder_.filePath(u"Aktua.log"_s));
        EXPECT_TRUE(plik.open(QIODevice::ReadOnly));
        const QByteArray tresc = plik.readAll();
        EXPECT_TRUE(tresc.startsWith(windows1250(kNaglowek)) && tresc.endsWith(windows1250(kKoniec)))
            << tresc.toStdString();
        return QString::fromLatin1(
            tresc.mid(kNaglowek.size(), tresc.size() - kNaglowek.size() - kKoniec.size()));
    }
    WynikAktualizacji wynik_;
};

TEST_F(AktualizacjaBazyTest, WhatWasExportedNeedsNoChange) {
    baza().wykonaj("CREATE TABLE INNE200107 (A SHORT)");
    rozmowa_.spodziewaj(u"Czy na pewno pobrać strukturę z obecnej bazy danych i zapisać ją do plików ?"_s,
                        Odpowiedz::Tak);
    rozmowa_.spodziewaj(u"Pliki: Tabele.rec i Pola.rec zostały zapisane."_s, Styl::Informacja);
    ASSERT_TRUE(ZapiszStrukture(baza(), folder_.path(), rozmowa_));
    QFile tabele(folder_.filePath(u"Tabele.rec"_s));
    ASSERT_TRUE(tabele.open(QIODevice::ReadOnly));
    const QByteArray tresc = tabele.readAll();
    EXPECT_TRUE(tresc.startsWith("ID;NAZWA\n1;")) << tresc.toStdString();
    EXPECT_FALSE(tresc.contains("200107"));
    EXPECT_EQ(raport(), QString());
    EXPECT_EQ(wynik_.kopia, QString()) << "no copy for no change";
    EXPECT_TRUE(sesja().rsPRACDP.otwarty() && sesja().rsSZ_PL.otwarty());
}

TEST_F(AktualizacjaBazyTest, TheFilesAreCheckedInTheirOrder) {
    const auto pada = [&](const QString& tekst) {
        rozmowa_.spodziewaj(tekst, Styl::Krytyczny);
        EXPECT_EQ(raport(), QString::fromLatin1(windows1250(u"ERROR> "_s + tekst + u"\r\n"_s)));
        EXPECT_EQ(wynik_.bledow, 1);
    };
    pada(u"Brak pliku Tabele.rec ze strukturą bazy danych! Nie można przeprowadzić aktualizacji!"_s);
    zapiszPlik(u"Tabele.rec"_s, "ID;NAZWA\n");
    pada(u"Brak pliku Pola.rec ze strukturą bazy danych! Nie można przeprowadzić aktualizacji!"_s);
    zapiszPlik(u"Pola.rec"_s, {});
    pada(u"Brak danych w pliku Tabele.rec Nie można przeprowadzić aktualizacji!"_s);
    zapiszPlik(u"Tabele.rec"_s, "ID;NAZWA\n1;US\n");
    pada(u"Brak danych w pliku Pola.rec Nie można przeprowadzić aktualizacji!"_s);
}

TEST_F(AktualizacjaBazyTest, MissingTablesAndColumnsAreAddedAndNothingIsDropped) {
    baza().wykonaj("DROP TABLE URL; ALTER TABLE KONTA DROP COLUMN skrot; CREATE TABLE WLASNA (A SHORT)");
    const StrukturaBazy przed = PobierzStrukture(baza());
    rozmowa_.spodziewaj(
        u"Nastąpił błąd podczas dodawania pola ZLE do nowej tabeli NOWA\n\nNieznany typ pola."_s,
        Styl::Krytyczny);
    const QString tekst = raport("1;NOWA\n2;KONTA\n3;PUSTA\n4;PLA200107\n",
                                 "1;A;short;2\n1;ZLE;BLOB;0\n1;B;CHAR;3\n2;SKROT;TEXT;20\n4;X;SHORT;2\n");
    EXPECT_EQ(tekst.toLatin1(),
              windows1250(u"EXECUTE> CREATE TABLE NOWA;\r\n"
                          "EXECUTE> ALTER TABLE NOWA ADD A SHORT;\r\n"
                          "EXECUTE> ALTER TABLE NOWA ADD ZLE ;\r\n"
                          "ERROR> Nastąpił błąd podczas dodawania pola ZLE do nowej tabeli NOWA\r\n"
                          "EXECUTE> ALTER TABLE NOWA ADD B CHAR(3);\r\n"
                          "EXECUTE> ALTER TABLE KONTA ADD SKROT TEXT(20);\r\n"
                          "ERROR> Nie znaleziono danych dla tabeli PUSTA\r\n"_s));
    EXPECT_TRUE(QFileInfo::exists(wynik_.kopia));
    EXPECT_TRUE(baza().jestTabela(u"WLASNA"_s));
    EXPECT_FALSE(baza().jestTabela(u"PLA200107"_s));
    EXPECT_EQ(PobierzStrukture(baza()).tabele.size(), przed.tabele.size() + 1);
}

TEST_F(AktualizacjaBazyTest, AnAlterKeepsRowsKeysAndIndexesOrRefuses) {
    baza().wykonaj(
        "INSERT INTO US (rowid, US_ID, Nazwa) VALUES (5, 1, 'Urząd w Nowym Sączu'), (9, 2, 'Mały')");
    const auto opis = [&] {
        QStringList wynik;
        Instrukcja i(baza(), "SELECT rowid || ':' || US_ID || ':' || Nazwa FROM US ORDER BY rowid");
        while (i.wiersz()) wynik += i.tekst(0);
        return wynik;
    };
    const auto indeksy = [&] {
        Instrukcja i(baza(),
                     "SELECT group_concat(sql) FROM sqlite_master WHERE type='index' AND tbl_name='US'");
        return i.wiersz() ? i.tekst(0) : QString();
    };
    const QStringList przed = opis();
    const QString indeksyPrzed = indeksy();
    EXPECT_FALSE(indeksyPrzed.isEmpty());
    const QString blad = u"Nastąpił błąd podczas zmiany parametrów pola Nazwa w tabeli US"_s;
    rozmowa_.spodziewaj(
        blad + u"\n\nWartość pola Nazwa w wierszu nr 5 tabeli US nie mieści się w typie TEXT(6)."_s,
        Styl::Krytyczny);
    EXPECT_EQ(
        raport("1;US\n", "1;Nazwa;TEXT;6\n").toLatin1(),
        windows1250(u"EXECUTE> ALTER TABLE US ALTER COLUMN Nazwa TEXT(6);\r\nERROR> "_s + blad + u"\r\n"_s));
    EXPECT_EQ(opis(), przed);
    for (const char* typ : {"TEXT;99", "MEMO;0"}) {
        EXPECT_FALSE(raport("1;US\n", QByteArray("1;Nazwa;") + typ + '\n').contains(u"ERROR"_s)) << typ;
        EXPECT_EQ(raport("1;US\n", QByteArray("1;Nazwa;") + typ + '\n'), QString()) << "the second time";
        EXPECT_EQ(opis(), przed);
        EXPECT_EQ(indeksy(), indeksyPrzed);
    }
}

TEST(PrzeliczenieTypuTest, AValueIsCarriedOverWholeOrNotAtAll) {
    const auto zl = [](qint64 surowa) { return Wartosc(Waluta::zSurowej(surowa)); };
    const QDate dzien(2001, 7, 31);
    const struct {
        Wartosc z;
        Typ typ;
        int szerokosc;
        std::optional<Wartosc> na;
    } przypadki[] = {
        {Null, Typ::Short, 0, Null},
        {qint64{7}, Typ::Currency, 0, zl(70000)},
        {qint64{256}, Typ::Byte, 0, {}},
        {qint64{-1}, Typ::Byte, 0, {}},
        {qint64{1} << 40, Typ::Integer, 0, {}},
        {std::numeric_limits<qint64>::max(), Typ::Currency, 0, {}},
        {(qint64{1} << 53) + 1, Typ::Double, 0, {}},
        {zl(15000), Typ::Double, 0, 1.5},
        {zl(15000), Typ::Short, 0, {}},
        {zl(20000), Typ::Short, 0, qint64{2}},
        {zl(15005), Typ::Text, 6, u"1,5005"_s},
        {zl(15005), Typ::Text, 5, {}},
        {0.1, Typ::Currency, 0, zl(1000)},
        {0.00001, Typ::Currency, 0, {}},
        {0.1, Typ::Single, 0, {}},
        {0.5, Typ::Single, 0, 0.5},
        {u"00-950"_s, Typ::Integer, 0, {}},
        {u"007"_s, Typ::Integer, 0, {}},
        {u"7"_s, Typ::Integer, 0, qint64{7}},
        {u"7,25"_s, Typ::Currency, 0, zl(72500)},
        {u"7,25"_s, Typ::Integer, 0, {}},
        {u""_s, Typ::Integer, 0, Null},
        {u"31-07-2001"_s, Typ::Date, 0, dzien},
        {u"31.07.2001"_s, Typ::Date, 0, {}},
        {dzien, Typ::Text, 10, u"31-07-2001"_s},
        {dzien, Typ::Text, 9, {}},
        {dzien, Typ::Integer, 0, {}},
        {u"żółw"_s, Typ::Char, 4, u"żółw"_s},
        {u"żółwie"_s, Typ::Char, 4, {}},
    };
    int nr = 0;
    for (const auto& p : przypadki) {
        EXPECT_EQ(PrzeliczWartosc(p.z, p.typ, p.szerokosc), p.na) << nr;
        ++nr;
    }
}

} // namespace

} // namespace tornel::testy
