// The journal: what actions leave in it, and what never enters it.
#include "store/Dziennik.h"
#include "wsparcie/DziennikTestowy.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

namespace {

class DziennikTest : public DziennikTestowy {};

TEST_F(DziennikTest, PasswordsNeverEnterItAndChangesOfUsersAreShownOnly) {
    const QString haslo = QStringLiteral("TajneHasło123");
    Recordset& rs = o().sesja.rsUZYTKOWNICY;
    rs.AddNew();
    rs.ustaw(schemat::UZYTKOWNICY("Nazwa"), QStringLiteral("Zofia"));
    rs.ustaw(schemat::UZYTKOWNICY("haslo"), haslo);
    rs.ustaw(schemat::UZYTKOWNICY("Typ"), 1);
    rs.UpdateBatch(u"Zmiana listy użytkowników");
    rs.ustaw(schemat::UZYTKOWNICY("haslo"), haslo + haslo);
    rs.UpdateBatch(u"Zmiana hasła");
    rs.Delete();
    rs.UpdateBatch(u"Zmiana listy użytkowników");
    const QList<WpisDziennika> wpisy = WpisyDziennika(baza(), {.tabela = QStringLiteral("UZYTKOWNICY")});
    ASSERT_EQ(wpisy.size(), 3);
    for (const WpisDziennika& w : wpisy) EXPECT_EQ(w.stan, StanWpisu::Zdarzenie);
    const QList<PakietZmian> zmiana = ZmianyWpisu(baza(), wpisy[1].id, 100);
    ASSERT_EQ(zmiana.size(), 1);
    EXPECT_TRUE(std::holds_alternative<WartoscTajna>(zmiana[0].zmiany.at(0).kolumny.at(0).nowa));
    Instrukcja bajty(baza(), "SELECT count(*) FROM DZIENNIK_ZMIANY WHERE instr(DANE, ?)>0");
    ASSERT_TRUE(bajty.wiazBajty(0, haslo.toUtf8()).wiersz());
    EXPECT_EQ(bajty.liczba(0), 0);
    bajty.od_nowa();
    ASSERT_TRUE(bajty.wiazBajty(0, "Zofia").wiersz());
    EXPECT_EQ(bajty.liczba(0), 3) << "the search itself finds texts";
}

TEST_F(DziennikTest, EntriesAreFoundByDayUserPersonTableAndText) {
    QDateTime teraz({2001, 7, 30}, {15, 30});
    baza().dziennik()->UstawZegar([&] { return teraz; });
    o().sesja.uzytkownik.nazwa = QStringLiteral("Zofia");
    (void)ListaPlac(o(), 2001, 7, QStringLiteral("A")).DodajPracownikow({3, 4});
    teraz = teraz.addDays(1);
    o().sesja.uzytkownik.nazwa = QStringLiteral("Adam");
    konto(1, QStringLiteral("Bank Żuławski"));
    baza().dziennik()->dopiszZdarzenie(QStringLiteral("Logowanie"));
    const auto znalezione = [&](const SzukaneWpisy& szukane) {
        std::string wynik;
        for (const WpisDziennika& w : WpisyDziennika(baza(), szukane))
            if (w.dzien.isValid())
                wynik += (wynik.empty() ? "" : "; ") + w.kto.toStdString() + ": " + w.czynnosc.toStdString();
        return wynik;
    };
    const std::string lista = "Zofia: Nowi pracownicy na liście płac 07.2001", konta = "Adam: Konto bankowe";
    EXPECT_EQ(znalezione({}), "Adam: Logowanie; " + konta + "; " + lista);
    EXPECT_EQ(znalezione({.od = {2001, 7, 31}}), "Adam: Logowanie; " + konta);
    EXPECT_EQ(znalezione({.do_ = {2001, 7, 30}}), lista);
    EXPECT_EQ(znalezione({.kto = QStringLiteral("Adam")}), "Adam: Logowanie; " + konta);
    EXPECT_EQ(znalezione({.osoba = 3}), lista);
    EXPECT_EQ(znalezione({.osoba = 5}), "");
    EXPECT_EQ(znalezione({.tabela = QStringLiteral("pla")}), lista);
    EXPECT_EQ(znalezione({.tekst = QStringLiteral("Żuław")}), konta);
    EXPECT_EQ(znalezione({.tekst = QStringLiteral("LOGOW")}), "Adam: Logowanie");

    EXPECT_EQ(PrzytnijDziennik(baza(), {2001, 7, 31}), 1);
    EXPECT_EQ(znalezione({.osoba = 3}), "");
    ASSERT_TRUE(cofnij()) << "what stays can still be undone";
    Instrukcja sieroty(baza(),
                       "SELECT count(*) FROM DZIENNIK_ZMIANY WHERE WPIS NOT IN (SELECT ID FROM DZIENNIK)");
    ASSERT_TRUE(sieroty.wiersz());
    EXPECT_EQ(sieroty.liczba(0), 0);
}

TEST_F(DziennikTest, ABigActionIsPackedInPiecesAndOneOfManyPersonsIsFoundByThem) {
    Recordset rs(schemat::KONTA);
    rs.Open(baza());
    Transakcja akcja(baza(), u"Wiele kont");
    for (int i = 1; i <= 9000; ++i) {
        rs.AddNewZero(i);
        rs.ustaw(schemat::KONTA("Nazwa"), QStringLiteral("Bank spółdzielczy numer %1").arg(i));
    }
    rs.UpdateBatch(akcja);
    Recordset urlopy(schemat::URL);
    urlopy.Open(baza());
    for (int i = 1; i <= 100; ++i) {
        urlopy.AddNewZero();
        urlopy.ustaw(schemat::URL("PRC_ID"), i);
    }
    urlopy.UpdateBatch(akcja);
    akcja.zatwierdz();
    Instrukcja pakiety(baza(), "SELECT max(NR) FROM DZIENNIK_ZMIANY");
    ASSERT_TRUE(pakiety.wiersz());
    EXPECT_GT(pakiety.liczba(0), 2);
    EXPECT_EQ(WpisyDziennika(baza(), {.osoba = 77}).size(), 1);
    EXPECT_EQ(WpisyDziennika(baza(), {.osoba = 777}).size(), 0);
    pakiety.od_nowa();
    ASSERT_TRUE(cofnij());
    rs.Requery();
    EXPECT_EQ(rs.RecordCount(), 0);
    ASSERT_TRUE(ponow());
    rs.Requery();
    ASSERT_TRUE(rs.Znajdz(qint64{9000}));
    EXPECT_EQ(rs.tekst(schemat::KONTA("Nazwa")), QStringLiteral("Bank spółdzielczy numer 9000"));
}

TEST_F(DziennikTest, ADamagedEntryIsAFailureAndNothingElse) {
    konto(1, QStringLiteral("Bank"));
    Instrukcja i(baza(), "SELECT DANE FROM DZIENNIK_ZMIANY ORDER BY WPIS DESC, NR DESC LIMIT 1");
    ASSERT_TRUE(i.wiersz());
    const QByteArray caly(i.utf8(0).data(), static_cast<qsizetype>(i.utf8(0).size()));
    i.od_nowa();
    EXPECT_EQ(CzytajPakiet(caly).zmiany.size(), 1U);
    Los l(2001);
    int czytelne = 0;
    for (int n = 0; n < 20'000; ++n) {
        QByteArray zly = caly.left(n % 3 == 0 ? los(l, 0, static_cast<int>(caly.size())) : caly.size());
        for (int b = los(l, n % 3 == 0 ? 0 : 1, 4); b > 0 && !zly.isEmpty(); --b)
            zly[los(l, 0, static_cast<int>(zly.size()) - 1)] = static_cast<char>(los(l, 0, 255));
        try {
            czytelne += CzytajPakiet(zly).zmiany.empty() ? 0 : 1;
        } catch (const Blad&) {
        }
    }
    EXPECT_GT(czytelne, 0);
    baza().wykonaj("UPDATE DZIENNIK_ZMIANY SET DANE=x'01ff'");
    const QStringList przed = obrazTabel(baza());
    EXPECT_THROW((void)cofnij(), Blad);
    EXPECT_EQ(roznice(przed, obrazTabel(baza())), "");
}

} // namespace

} // namespace tornel::testy
