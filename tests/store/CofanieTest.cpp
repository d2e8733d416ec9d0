// Undoing actions brings the file back as it was, making them again as it became, whatever stops the program
// on the way.
#include "store/Cofanie.h"
#include "wsparcie/DziennikTestowy.h"
#include "wsparcie/Proces.h"
#include "wsparcie/Przestrzen.h"
#include <QFileInfo>
#include <sqlite3.h>
#include <thread>

namespace tornel::testy {

namespace {

class CofanieTest : public DziennikTestowy {};

TEST_F(CofanieTest, AnySequenceOfActionsIsUndoneToItsStartAndMadeAgain) {
    wszystko(o(), folder_.path(), Kierunek::Cofnij); // the pattern's own
    const QStringList start = obrazTabel(baza());
    for (unsigned ziarno = 1; ziarno <= 8; ++ziarno) {
        SCOPED_TRACE(ziarno);
        Los l(ziarno);
        // From an undone pattern, too: then the first action of the round cuts it off.
        if (ziarno % 3 == 0) {
            for (int i = 1; i <= 12; ++i)
                (void)Pracownicy(o()).NowyPracownik({i, QStringLiteral("Nowak"), QStringLiteral("Jan")});
        }
        for (int i = 0; i < 25; ++i) {
            losowaCzynnosc(o(), l);
            if (i % 9 == 8) otworz(); // across sittings
        }
        QList<QStringList> wstecz;
        while (mozna(Kierunek::Cofnij)) {
            wstecz += obrazTabel(baza());
            ASSERT_TRUE(cofnij());
        }
        EXPECT_GT(wstecz.size(), 5);
        EXPECT_EQ(roznice(start, obrazTabel(baza())), "");
        while (mozna(Kierunek::Ponow)) {
            ASSERT_TRUE(ponow());
            EXPECT_EQ(roznice(wstecz.takeLast(), obrazTabel(baza())), "");
        }
        EXPECT_TRUE(wstecz.isEmpty());
        wszystko(o(), folder_.path(), Kierunek::Cofnij);
    }
}

TEST_F(CofanieTest, AKilledProgramLeavesEveryActionWholeOrUndoneAndTheJournalAgrees) {
    const int razy = std::max(60, qEnvironmentVariableIntValue("TORNEL_ZABICIA"));
    const QStringList start = [&] {
        ZakonczLancuch(baza(), QStringLiteral("Początek próby"));
        return obrazTabel(baza());
    }();
    program_.reset();
    const QString proba = folder_.filePath(QStringLiteral("Proba.mdb"));
    int czynnosci = 0, wSrodku = 0;
    for (int i = 0; i < razy; ++i) {
        SCOPED_TRACE(i);
        QFile::remove(proba);
        QFile::remove(proba + QStringLiteral("-journal"));
        ASSERT_TRUE(QFile::copy(plik_, proba));
        Sygnal gotowy;
        Proces potomek([&] {
            Program program(proba, folder_.path(), zgoda_);
            program.sesja().cnPlace.wykonaj(
                "PRAGMA synchronous=OFF; PRAGMA cache_size=5"); // so that open actions reach the file
            gotowy.daj();
            for (Los l(static_cast<unsigned>(i));;) {
                const int rzut = los(l, 0, 4);
                const Kierunek kierunek = rzut == 0 ? Kierunek::Cofnij : Kierunek::Ponow;
                if (rzut > 1)
                    losowaCzynnosc(program.otoczenie(), l);
                else if (Cofanie(program.sesja().cnPlace).nastepna(kierunek))
                    (void)CofnijLubPonow(program.otoczenie(), folder_.path(), kierunek);
            }
            return 0;
        });
        ASSERT_TRUE(gotowy.czekaj());
        std::this_thread::sleep_for(std::chrono::microseconds(997 * (i % 60) * (i % 7 + 1) / 4));
        ASSERT_TRUE(potomek.zabij());
        wSrodku += QFileInfo(proba + QStringLiteral("-journal")).size() > 0 ? 1 : 0;
        Program program(proba, folder_.path(), zgoda_);
        const QStringList zastane = obrazTabel(program.sesja().cnPlace);
        const int cofniete = wszystko(program.otoczenie(), folder_.path(), Kierunek::Cofnij);
        czynnosci += cofniete;
        EXPECT_EQ(roznice(start, obrazTabel(program.sesja().cnPlace)), "");
        for (int n = 0; n < cofniete; ++n)
            (void)CofnijLubPonow(program.otoczenie(), folder_.path(), Kierunek::Ponow);
        EXPECT_EQ(roznice(zastane, obrazTabel(program.sesja().cnPlace)), "");
    }
    EXPECT_GT(czynnosci, razy) << "nothing was done before the kills";
    EXPECT_GT(wSrodku, razy / 20) << "no kill met an open action";
}

TEST_F(CofanieTest, RowsChangedSinceAreNamedAndNothingIsUndone) {
    konto(7, QStringLiteral("Stary"));
    konto(7, QStringLiteral("Nowy"));
    struct Przypadek {
        const char* zmiana;
        const char* odwrotna;
        QString powod;
    };
    const Przypadek przypadki[] = {
        {"UPDATE KONTA SET Nazwa='Obcy' WHERE NR=7", "UPDATE KONTA SET Nazwa='Nowy' WHERE NR=7",
         QStringLiteral("wiersz tabeli KONTA (NR 7) został potem zmieniony")},
        {"CREATE TABLE SCHOWEK AS SELECT * FROM KONTA; DELETE FROM KONTA",
         "INSERT INTO KONTA (rowid, NR, skrot, Nazwa, konto, zba) SELECT 1, * FROM SCHOWEK; DROP TABLE "
         "SCHOWEK",
         QStringLiteral("wiersz tabeli KONTA (NR 7) został potem usunięty")},
        {"ALTER TABLE KONTA RENAME TO INNA", "ALTER TABLE INNA RENAME TO KONTA",
         QStringLiteral("nie ma już tabeli KONTA")},
    };
    for (const Przypadek& p : przypadki) {
        SCOPED_TRACE(p.zmiana);
        baza().wykonaj(p.zmiana);
        const QStringList przed = obrazTabel(baza());
        const QString powod = odmowa(Kierunek::Cofnij);
        EXPECT_TRUE(powod.contains(p.powod)) << powod.toStdString();
        EXPECT_TRUE(powod.contains(QStringLiteral("„Konto bankowe”"))) << powod.toStdString();
        EXPECT_EQ(roznice(przed, obrazTabel(baza())), "");
        baza().wykonaj(p.odwrotna);
    }
    EXPECT_EQ(odmowa(Kierunek::Cofnij), QString());

    // What came into a month from elsewhere keeps its table; a key that is taken keeps its row out.
    (void)Miesiace(o()).Nowy_miesiac([] { return std::optional(RokMies{2001, 8}); });
    o().sesja.ZamknijMiesiac();
    baza().wykonaj("INSERT INTO PLA200108 (PRC_ID, LISTA) VALUES (1, 'A')");
    EXPECT_TRUE(odmowa(Kierunek::Cofnij).contains(QStringLiteral("w tabeli PLA200108 są wiersze")));
    baza().wykonaj("DELETE FROM PLA200108");
    EXPECT_EQ(odmowa(Kierunek::Cofnij), QString());
    baza().wykonaj("INSERT INTO PLACE (Rok, Mies) VALUES ('2001', '08')");
    const QString zajete = odmowa(Kierunek::Ponow);
    EXPECT_TRUE(zajete.contains(QStringLiteral("zajął potem inny wiersz"))) << zajete.toStdString();
}

TEST_F(CofanieTest, ANewActionCutsOffWhatWasUndoneAndAnEndedChainIsLeftAlone) {
    konto(1, QStringLiteral("Raz"));
    konto(1, QStringLiteral("Dwa"));
    ASSERT_TRUE(cofnij());
    // Papers and passwords stand beside the chain.
    Wykonane(o().sesja).dopisz({{.rodzaj = QStringLiteral("proba")}}, {});
    EXPECT_TRUE(mozna(Kierunek::Ponow));
    konto(2, QStringLiteral("Trzy"));
    EXPECT_EQ(odmowa(Kierunek::Ponow), QStringLiteral("Nie ma czynności do ponowienia."));
    ASSERT_TRUE(cofnij());
    ZakonczLancuch(baza(), QStringLiteral("Aktualizacja struktury bazy danych"));
    EXPECT_EQ(odmowa(Kierunek::Cofnij), QStringLiteral("Nie ma czynności do cofnięcia."));
    EXPECT_FALSE(mozna(Kierunek::Ponow));
    konto(3, QStringLiteral("Cztery"));
    EXPECT_TRUE(mozna(Kierunek::Cofnij)) << "a new chain begins";
}

TEST_F(CofanieTest, MarksOfAWrittenFileAreUndoneOnlyAfterAQuestionThatNamesIt) {
    (void)ListaPlac(o(), 2001, 7, QStringLiteral("A")).DodajPracownikow({1});
    {
        Transakcja akcja(baza(), u"Plik przelewów dla banku");
        Recordset plb(schemat::PLB);
        plb.Open(baza(), QStringLiteral("PLB200107"));
        ASSERT_TRUE(plb.naWierszu());
        plb.ustawFlage(schemat::PLB("WYS_MCS"), true);
        plb.UpdateBatch(akcja);
        Wykonane(o().sesja).dopisz(
            {{.rodzaj = QStringLiteral("MCS"), .plik = QStringLiteral("/b/01073101.pli")}}, {});
        akcja.zatwierdz();
    }
    struct Pytany : RozmowaZgoda {
        [[nodiscard]] bool pytanieUsuwajace(const QString& tekst, const QString&) override {
            pytania += tekst;
            return zgoda;
        }
        QStringList pytania;
        bool zgoda = false;
    } pytany;
    Otoczenie zPytaniem{o().sesja, o().stale, o().skladniki, pytany};
    EXPECT_FALSE(CofnijLubPonow(zPytaniem, folder_.path(), Kierunek::Cofnij));
    EXPECT_TRUE(mozna(Kierunek::Cofnij)) << "a No changes nothing";
    pytany.zgoda = true;
    ASSERT_TRUE(CofnijLubPonow(zPytaniem, folder_.path(), Kierunek::Cofnij));
    ASSERT_EQ(pytany.pytania.size(), 2);
    EXPECT_TRUE(pytany.pytania[0].contains(QStringLiteral("01073101.pli")))
        << pytany.pytania[0].toStdString();
    Recordset plb(schemat::PLB);
    plb.Open(baza(), QStringLiteral("PLB200107"));
    EXPECT_FALSE(plb.flaga(schemat::PLB("WYS_MCS")));
    EXPECT_EQ(Wykonane(o().sesja).szukaj({}).size(), 1) << "the file was written all the same";
    ASSERT_TRUE(CofnijLubPonow(zPytaniem, folder_.path(), Kierunek::Cofnij)); // the batch before
    EXPECT_EQ(pytany.pytania.size(), 2) << "an action without a file asks nothing";
}

TEST_F(CofanieTest, ATableOfAnotherBuildComesBackAsItWas) {
    baza().wykonaj("ALTER TABLE PLA200107 ADD COLUMN NOWA DOUBLE; CREATE INDEX MOJ ON PLA200107 (NOWA)");
    baza().wykonaj(
        "INSERT INTO PLA200107 (rowid, PRC_ID, LISTA, BRUTTO, NOWA) VALUES (5, 1, 'A', 'zła', 0.25)");
    const QStringList przed = obrazTabel(baza());
    ASSERT_TRUE(Miesiace(o()).Usun_miesiac({2001, 7}));
    const QStringList po = obrazTabel(baza());
    ASSERT_TRUE(cofnij());
    EXPECT_EQ(roznice(przed, obrazTabel(baza())), "");
    ASSERT_TRUE(ponow());
    EXPECT_EQ(roznice(po, obrazTabel(baza())), "");
}

/// Fills the free pages of the file until so many are left, and lets it grow no further.
void bezMiejsca(Polaczenie& baza, int wolnych) {
    baza.wykonaj("CREATE TABLE ZAPCHANE (X)");
    const auto wolne = [&] {
        Instrukcja i(baza, "PRAGMA freelist_count");
        return i.wiersz() ? i.liczba(0) : 0;
    };
    while (wolne() > wolnych) baza.wykonaj("INSERT INTO ZAPCHANE VALUES (zeroblob(4000))");
    baza.wykonaj("PRAGMA max_page_count=1"); // the engine takes the present size
}

TEST_F(CofanieTest, AFullDiskOrARefusedCommitLeavesTheActionAsItWas) {
    QList<qint64> osoby;
    for (qint64 i = 1; i <= 12; ++i) osoby += i;
    for (const QChar lista : QStringLiteral("ABCDEFGH"))
        (void)ListaPlac(o(), 2001, 7, lista).DodajPracownikow(osoby);
    const QStringList zListami = obrazTabel(baza());
    ASSERT_TRUE(Miesiace(o()).Usun_miesiac({2001, 7}));
    bezMiejsca(baza(), 12);
    const QStringList usuniety = obrazTabel(baza());
    const qint64 wpis = Cofanie(baza()).nastepna(Kierunek::Cofnij)->id;
    const auto niezmienione = [&](const QString& przyczyna) {
        try {
            (void)cofnij();
            ADD_FAILURE() << "undone";
        } catch (const BladBazy& blad) {
            EXPECT_TRUE(blad.komunikat().contains(przyczyna)) << blad.what();
        }
        EXPECT_EQ(roznice(usuniety, obrazTabel(baza())), "");
        EXPECT_EQ(Cofanie(baza()).nastepna(Kierunek::Cofnij)->id, wpis);
        EXPECT_FALSE(mozna(Kierunek::Ponow));
    };
    niezmienione(QStringLiteral("na dysku nie ma miejsca"));
    baza().wykonaj("PRAGMA max_page_count=1000000");
    sqlite3_commit_hook(
        baza().uchwyt(), [](void*) { return 1; }, nullptr);
    niezmienione(QStringLiteral("Cofnięcie: Usunięcie miesiąca 07.2001"));
    // A clerk's own action neither: no entry without its rows.
    const qsizetype wpisow = WpisyDziennika(baza()).size();
    EXPECT_THROW(konto(1, QStringLiteral("Nie")), BladBazy);
    EXPECT_EQ(WpisyDziennika(baza()).size(), wpisow);
    sqlite3_commit_hook(baza().uchwyt(), nullptr, nullptr);
    ASSERT_TRUE(cofnij());
    baza().wykonaj("DROP TABLE ZAPCHANE");
    EXPECT_EQ(roznice(zListami, obrazTabel(baza())), "");
}

} // namespace

} // namespace tornel::testy
