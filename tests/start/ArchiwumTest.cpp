// The archive and the way back from it: what is refused, what is left behind, what a kill or a full disk
// does.
#include "start/Archiwum.h"
#include "common/Blad.h"
#include "personnel/Pracownicy.h"
#include "start/BazaIni.h"
#include "store/Cofanie.h"
#include "store/Polaczenie.h"
#include "store/Struktura.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Proces.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaZgoda.h"
#include <chrono>
#include <QDir>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <random>
#include <sqlite3.h>
#include <sys/resource.h>
#include <thread>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

const QString kPytanieArchiwum =
    u"Utworzenie archiwum wiąże się z koniecznością zamknięcia programu. Kontynuować ?"_s;
const QString kPytanieNazwy = u"Podaj nazwę katalogu dla archiwum:"_s;
const QDate kDzien(2001, 7, 31);

class ArchiwumTest : public BazaTestowa {
protected:
    [[nodiscard]] QString bazowy() const { return folder_.filePath(u"kopie/roczne"_s); }
    [[nodiscard]] QStringList pliki(const QString& folder) const {
        return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    static QByteArray bajty(const QString& plik) {
        QFile f(plik);
        EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << plik.toStdString();
        return f.readAll();
    }
    /// An archive of the closed database.
    OpisArchiwum archiwum(const QString& nazwa) {
        rozmowa_.spodziewaj(kPytanieArchiwum, Odpowiedz::Tak);
        const auto zlecenie = TworzArchiwum(rozmowa_, sciezka(), bazowy(), kDzien, nazwa);
        program_.reset();
        return SkopiujDoArchiwum(zlecenie.value());
    }
    template <typename F>
    static QString powod(F&& czynnosc) {
        try {
            czynnosc();
        } catch (const Blad& blad) {
            return blad.komunikat();
        }
        return {};
    }
};

TEST_F(ArchiwumTest, TheSecondArchiveOfADayIsRefusedAndTheFirstStays) {
    dodajPracownika(7);
    rozmowa_.spodziewaj(kPytanieNazwy, std::optional(u"ARCH2001_07_31"_s), u"Tworzenie archiwum"_s);
    rozmowa_.spodziewaj(kPytanieArchiwum, Odpowiedz::Tak);
    const auto zlecenie = TworzArchiwum(rozmowa_, sciezka(), bazowy(), kDzien);
    ASSERT_TRUE(zlecenie) << "the missing parents of the folder are made";
    program_.reset();
    const OpisArchiwum opis = SkopiujDoArchiwum(*zlecenie);
    EXPECT_EQ(opis.plik, bazowy() + u"/ARCH2001_07_31/Tornel.mdb"_s);
    EXPECT_EQ(opis.tresc.pracownikow, 1);
    const QByteArray kopia = bajty(opis.plik);
    EXPECT_TRUE(kopia == bajty(sciezka())) << "a plain copy";
    EXPECT_EQ(pliki(zlecenie->katalog), QStringList{u"Tornel.mdb"_s});

    rozmowa_.spodziewaj(u"Plik Tornel.mdb w katalogu %1/ARCH2001_07_31 już istnieje. Nie można utworzyć "
                        "archiwum. Podaj inną nazwę katalogu."_s.arg(bazowy()),
                        Styl::Wykrzyknik);
    EXPECT_FALSE(TworzArchiwum(rozmowa_, sciezka(), bazowy(), kDzien, u"ARCH2001_07_31"_s));
    EXPECT_TRUE(bajty(opis.plik) == kopia);
}

TEST_F(ArchiwumTest, ABadNameOrANoLeavesNothing) {
    for (const QString& nazwa : {u""_s, u"  "_s, u"a/b"_s, u"a\\b"_s, u".."_s, u"x..y"_s, u"."_s}) {
        rozmowa_.spodziewaj(u"Nazwa katalogu dla archiwum nie może być pusta ani zawierać znaków „/”, „\\” i "
                            "„..”. Archiwum nie zostało utworzone."_s,
                            Styl::Wykrzyknik);
        EXPECT_FALSE(TworzArchiwum(rozmowa_, sciezka(), bazowy(), kDzien, nazwa)) << nazwa.toStdString();
    }
    rozmowa_.spodziewaj(kPytanieNazwy, std::optional<QString>());
    EXPECT_FALSE(TworzArchiwum(rozmowa_, sciezka(), bazowy(), kDzien));
    rozmowa_.spodziewaj(kPytanieArchiwum, Odpowiedz::Nie);
    EXPECT_FALSE(TworzArchiwum(rozmowa_, sciezka(), bazowy(), kDzien, u"Maj 2001"_s));
    EXPECT_EQ(QDir(bazowy()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    QFile plik(folder_.filePath(u"zajete"_s));
    ASSERT_TRUE(plik.open(QIODevice::WriteOnly));
    EXPECT_THROW((void)TworzArchiwum(rozmowa_, sciezka(), plik.fileName(), kDzien, u"X"_s), Blad);
}

void ograniczZapis(rlim_t rozmiar) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = rozmiar;
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
}

TEST_F(ArchiwumTest, AFullDiskLeavesNoCopyAndNoChange) {
    const OpisArchiwum dobre = archiwum(u"dobre"_s);
    const QByteArray przed = bajty(sciezka());
    const ZlecenieArchiwum zlecenie{sciezka(), bazowy() + u"/pelny"_s};
    // The limit on files would meet the test's own output too, hence the child.
    Proces potomek([&] {
        for (const rlim_t limit : {rlim_t{0}, rlim_t{5000}, static_cast<rlim_t>(przed.size() - 1)}) {
            QDir().mkpath(zlecenie.katalog);
            ograniczZapis(limit);
            const QString odmowa = powod([&] { (void)SkopiujDoArchiwum(zlecenie); });
            const QString niePrzywrocone = powod([&] {
                PrzywrocArchiwum(sciezka(), dobre.plik, QDateTime(kDzien, {12, 0}));
            });
            ograniczZapis(RLIM_INFINITY);
            EXPECT_TRUE(odmowa.startsWith(u"Archiwum nie zostało utworzone."_s) &&
                        odmowa.contains(u"na dysku nie ma miejsca"_s))
                << odmowa.toStdString();
            EXPECT_FALSE(QFileInfo::exists(zlecenie.katalog)) << limit;
            EXPECT_TRUE(niePrzywrocone.contains(u"baza danych jest bez zmian"_s))
                << niePrzywrocone.toStdString();
            EXPECT_TRUE(bajty(sciezka()) == przed) << limit;
            EXPECT_EQ(pliki(folder_.path()).filter(u".mdb"_s).filter(QRegularExpression(u"mdb$"_s)),
                      QStringList{u"Tornel.mdb"_s});
        }
        return 0;
    });
    EXPECT_EQ(potomek.wynik(), 0);
}

TEST_F(ArchiwumTest, ADamagedDatabaseIsNamedTableByTableAndNotArchived) {
    dodajPracownika(1);
    int strona = 0, rozmiar = 0;
    {
        Instrukcja i(sesja().cnPlace, "SELECT rootpage FROM sqlite_master WHERE name='PRACINF'");
        ASSERT_TRUE(i.wiersz());
        strona = static_cast<int>(i.liczba(0));
        Instrukcja r(sesja().cnPlace, "PRAGMA page_size");
        ASSERT_TRUE(r.wiersz());
        rozmiar = static_cast<int>(r.liczba(0));
    }
    program_.reset();
    QFile plik(sciezka());
    ASSERT_TRUE(plik.open(QIODevice::ReadWrite) && plik.seek(qint64{strona - 1} * rozmiar));
    plik.write(QByteArray(64, '\x7f'));
    plik.close();
    const QString start = powod([&] { otworz(); });
    EXPECT_TRUE(start.startsWith(u"Procedura 'PStart': błąd w lini: 1\n"_s)) << start.toStdString();
    EXPECT_TRUE(start.contains(sciezka()) && start.contains(u"\nPRACINF: "_s) &&
                start.contains(u"Przywróć ostatnie archiwum"_s))
        << start.toStdString();
    EXPECT_FALSE(start.contains(u"PRACDP: "_s)) << "a sound table is not named";
    const ZlecenieArchiwum zlecenie{sciezka(), bazowy() + u"/zla"_s};
    QDir().mkpath(zlecenie.katalog);
    const QString odmowa = powod([&] { (void)SkopiujDoArchiwum(zlecenie); });
    EXPECT_TRUE(odmowa.contains(u"PRACINF: "_s)) << odmowa.toStdString();
    EXPECT_FALSE(QFileInfo::exists(zlecenie.katalog));
}

TEST_F(ArchiwumTest, AMissingTableOrColumnIsNamedAtTheStart) {
    sesja().cnPlace.wykonaj("DROP TABLE HON; ALTER TABLE US DROP COLUMN Nazwa");
    program_.reset();
    const QString start = powod([&] { otworz(); });
    EXPECT_TRUE(start.contains(u"HON: brak tabeli"_s) && start.contains(u"US: brak kolumn Nazwa"_s))
        << start.toStdString();
    // What mends the tables at a start comes before they are looked at.
    EXPECT_NO_THROW(Program(sciezka(), folder_.path(), rozmowa_, [](Polaczenie& baza) {
        UtworzTabele(baza, schemat::HON, u"HON"_s);
        baza.wykonaj("ALTER TABLE US ADD COLUMN Nazwa TEXT(20)");
    }));
}

TEST_F(ArchiwumTest, ARestoredDatabaseIsTheArchiveAndTheOldOneStandsAside) {
    dodajPracownika(1);
    const OpisArchiwum opis = archiwum(u"pierwsze"_s);
    otworz();
    dodajPracownika(2);
    const QString zajety = powod([&] {
        Proces drugi([&] {
            const QString odmowa = powod([&] {
                PrzywrocArchiwum(sciezka(), opis.plik, QDateTime(kDzien, {12, 0}));
            });
            return odmowa.contains(u"otwarty w innym programie"_s) ? 0 : 1;
        });
        EXPECT_EQ(drugi.wynik(), 0) << "a database in work is left alone";
    });
    program_.reset();
    const QByteArray przed = bajty(sciezka());
    const QString kopia = PrzywrocArchiwum(sciezka(), opis.plik, QDateTime(kDzien, {12, 0}));
    EXPECT_EQ(kopia, folder_.filePath(u"Tornel-przed-przywroceniem-20010731-120000.mdb"_s));
    EXPECT_TRUE(bajty(kopia) == przed);
    otworz();
    EXPECT_EQ(sesja().rsPRACDP.RecordCount(), 1);
    EXPECT_FALSE(Cofanie(sesja().cnPlace).nastepna(Kierunek::Cofnij)) << "its actions belong to the archive";
    EXPECT_EQ(WpisyDziennika(sesja().cnPlace).first().czynnosc,
              u"Przywrócenie archiwum z pliku "_s + opis.plik);
    const auto lista = ListaArchiwow(bazowy());
    ASSERT_EQ(lista.size(), 1);
    EXPECT_EQ(lista.first().katalog, u"pierwsze"_s);
    EXPECT_EQ(lista.first().tresc.pracownikow, 1);
    EXPECT_EQ(ZnajdzArchiwum(bazowy(), u"pierwsze"_s).plik, opis.plik);
    EXPECT_THROW((void)ZnajdzArchiwum(bazowy(), u"nie ma"_s), Blad);
}

TEST_F(ArchiwumTest, ARestoreKilledAtAnyMomentLeavesTheOldFileOrTheArchive) {
    dodajPracownika(1);
    const OpisArchiwum opis = archiwum(u"a"_s);
    otworz();
    dodajPracownika(2);
    program_.reset();
    const QByteArray dawna = bajty(sciezka());
    RozmowaZgoda zgoda;
    std::mt19937 los(20010731);
    int przywroconych = 0;
    constexpr int zabic = 60;
    // The moments fall within the time that a whole restore takes on this machine, and shortly after.
    QElapsedTimer zegar;
    zegar.start();
    EXPECT_EQ(Proces([&] {
                  PrzywrocArchiwum(sciezka(), opis.plik, QDateTime(kDzien, {11, 0}));
                  return 0;
              }).wynik(),
              0);
    const auto najpozniej = static_cast<int>(zegar.nsecsElapsed() / 1000 * 5 / 4);
    for (int i = 0; i < zabic; ++i) {
        const int opoznienie = std::uniform_int_distribution(0, najpozniej)(los);
        SCOPED_TRACE("kill " + std::to_string(i) + " after " + std::to_string(opoznienie) + " us");
        {
            QFile plik(sciezka());
            ASSERT_TRUE(plik.open(QIODevice::WriteOnly) && plik.write(dawna) == dawna.size());
        }
        Sygnal zaczete;
        Proces potomek([&] {
            zaczete.daj();
            PrzywrocArchiwum(sciezka(), opis.plik, QDateTime(kDzien, {12, 0}).addSecs(i));
            return 0;
        });
        ASSERT_TRUE(zaczete.czekaj());
        std::this_thread::sleep_for(std::chrono::microseconds(opoznienie));
        potomek.zabij();
        const Program program(sciezka(), folder_.path(), zgoda);
        Polaczenie& baza = const_cast<Program&>(program).sesja().cnPlace;
        Instrukcja stan(baza, "SELECT (SELECT count(*) FROM PRACDP), (SELECT integrity_check FROM "
                              "pragma_integrity_check)");
        ASSERT_TRUE(stan.wiersz());
        EXPECT_EQ(stan.tekst(1), u"ok"_s);
        ASSERT_TRUE(stan.liczba(0) == 1 || stan.liczba(0) == 2);
        przywroconych += stan.liczba(0) == 1;
        EXPECT_FALSE(QFile::exists(sciezka() + u".przywracana"_s));
    }
    EXPECT_GT(przywroconych, 2);
    EXPECT_LT(przywroconych, zabic - 2);
}

TEST_F(ArchiwumTest, ACutOffRestoreIsFinishedBeforeTheOldJournalCouldSpoilIt) {
    const OpisArchiwum opis = archiwum(u"a"_s);
    // As a kill between the two last steps leaves it: the old file with an open journal, the archive beside.
    ASSERT_TRUE(QFile::copy(opis.plik, sciezka() + u".przywracana"_s));
    QFile dziennik(sciezka() + u"-journal"_s);
    ASSERT_TRUE(dziennik.open(QIODevice::WriteOnly) && dziennik.write(QByteArray(4096, 'j')) == 4096);
    dziennik.close();
    otworz();
    EXPECT_TRUE(program_->znalezione().contains(u"przywracanie archiwum zostało dokończone"_s));
    program_.reset();
    EXPECT_TRUE(bajty(sciezka()) == bajty(opis.plik));
}

TEST_F(ArchiwumTest, AKilledProgramIsToldOfAtTheNextStart) {
    EXPECT_EQ(program_->znalezione(), QString());
    otworzPonownie();
    EXPECT_EQ(program_->znalezione(), QString()) << "an ordinary end";
    program_.reset();
    for (const bool wCzynnosci : {false, true}) {
        Sygnal gotowe;
        Proces potomek([&] {
            otworz();
            sesja().cnPlace.wykonaj("PRAGMA cache_size=5"); // so that an open action reaches the file
            if (wCzynnosci) {
                sesja().cnPlace.wykonaj("BEGIN; CREATE TABLE DUZA (A)");
                for (int i = 0; i < 100; ++i)
                    sesja().cnPlace.wykonaj("INSERT INTO DUZA VALUES (randomblob(4000))");
            }
            gotowe.daj();
            return pause();
        });
        ASSERT_TRUE(gotowe.czekaj());
        EXPECT_TRUE(potomek.zabij());
        otworz();
        EXPECT_TRUE(program_->znalezione().contains(wCzynnosci ? u"Niedokończona czynność została cofnięta"_s
                                                               : u"nic nie zginęło"_s))
            << program_->znalezione().toStdString();
        program_.reset();
    }
}

TEST(BazaIniTest, TheEarlierDatabasesStandBelowTheOneOfTheNextStart) {
    const QTemporaryDir folder;
    WskazBaze(folder.path(), u"/a.mdb"_s, u"/b.mdb"_s);
    WskazBaze(folder.path(), u"/b.mdb"_s, u"/c.mdb"_s);
    WskazBaze(folder.path(), u"/c.mdb"_s, u"/a.mdb"_s);
    const auto ini = CzytajBazeIni(folder.path());
    ASSERT_TRUE(ini);
    EXPECT_EQ(ini->baza, u"/a.mdb"_s);
    EXPECT_EQ(ini->dawniejsze, (QStringList{u"/c.mdb"_s, u"/b.mdb"_s}));
    for (int i = 0; i < 20; ++i) WskazBaze(folder.path(), u"/x%1"_s.arg(i), u"/y%1"_s.arg(i));
    EXPECT_EQ(CzytajBazeIni(folder.path())->dawniejsze.size(), 9);
}

} // namespace

} // namespace tornel::testy
