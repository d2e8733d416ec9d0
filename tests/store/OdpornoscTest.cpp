// What happens to the clerk's data when the disk is full, may not be written, is damaged or is held by
// somebody else: an action that fails leaves the file as it was and says why.
#include "payroll/lista/ListaPlac.h"
#include "payroll/miesiace/Miesiace.h"
#include "personnel/Pracownicy.h"
#include "start/Rozruch.h"
#include "store/Struktura.h"
#include "wsparcie/Proces.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include "wsparcie/RozmowaZgoda.h"
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <random>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace tornel::testy {

using schemat::KONTA;
using schemat::PLA;

namespace {

QByteArray bajty(const QString& plik) {
    QFile f(plik);
    EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << plik.toStdString();
    return f.readAll();
}

/// The open file byte for byte; reading it beside the engine would drop the engine's locks.
QByteArray obraz(Polaczenie& baza) {
    sqlite3_int64 rozmiar = 0;
    const std::unique_ptr<unsigned char, void (*)(void*)> kopia(
        sqlite3_serialize(baza.uchwyt(), "main", &rozmiar, 0), sqlite3_free);
    return {reinterpret_cast<const char*>(kopia.get()), static_cast<qsizetype>(rozmiar)};
}

/// All that the handles show.
QList<Wartosc> widok(Sesja& s) {
    QList<Wartosc> wynik;
    for (Recordset* rs :
         {&s.rsPRACDP, &s.rsPRACZUS, &s.rsPLACE, &s.rsPLACEK, &s.rsPLA, &s.rsPLB, &s.rsPLS, &s.rsPLD})
        for (rs->MoveFirst(); !rs->EOF_(); rs->MoveNext())
            for (int i = 0; i < static_cast<int>(rs->tabela().kolumny.size()); ++i)
                wynik += rs->wartosc(rs->tabela().nr(i));
    return wynik;
}

/// Why `czynnosc` failed; empty when it did not.
template <typename F>
QString powod(F&& czynnosc) {
    try {
        czynnosc();
    } catch (const Blad& blad) {
        return blad.komunikat();
    }
    return {};
}

QList<qint64> numery() {
    QList<qint64> wynik;
    for (int i = 1; i <= 100; ++i) wynik += i;
    return wynik;
}

void nowyMiesiac(Otoczenie& o, int mies) {
    Miesiace(o).Nowy_miesiac([&] { return std::optional(RokMies{2001, mies}); });
}

struct Czynnosc {
    const char* nazwa;
    bool rosnie; ///< needs new pages in the file
    void (*wykonaj)(Otoczenie&);
};

const Czynnosc kCzynnosci[] = {
    {"batch", true,
     [](Otoczenie& o) { ListaPlac(o, 2001, 7, QStringLiteral("A")).DodajPracownikow(numery()); }},
    {"new month", true, [](Otoczenie& o) { nowyMiesiac(o, 8); }},
    {"new employee", false,
     [](Otoczenie& o) {
         Pracownicy(o).NowyPracownik({999, QStringLiteral("Żak"), {}});
     }},
    {"deleted employee", false, [](Otoczenie& o) { Pracownicy(o).UsunPracownika(5); }},
    {"edited amount", false,
     [](Otoczenie& o) {
         ListaPlac lista(o, 2001, 7, QStringLiteral("Z"));
         lista.Wypisz_daneP({2, QStringLiteral("Z")});
         lista.ZmienKwote(poleListy(u"txtFEPC"), Waluta::zlotych(77));
     }},
    {"deleted row", false,
     [](Otoczenie& o) {
         ListaPlac lista(o, 2001, 7, QStringLiteral("Z"));
         lista.Wypisz_daneP({2, QStringLiteral("Z")});
         lista.Usun_prac();
     }},
    {"deleted month", false,
     [](Otoczenie& o) {
         Miesiace(o).Usun_miesiac({2001, 7});
     }},
};

/// The most that a process may write into a file, in bytes. Beyond it a write fails.
void ograniczPliki(rlim_t rozmiar) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = rozmiar;
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
}

/// Something that makes writing fail for a time.
struct Awaria {
    QString przyczyna;
    bool tylkoRosnace;
    void (*wlacz)(Polaczenie&);
    void (*wylacz)(Polaczenie&);
};

const Awaria kAwarie[] = {
    {QStringLiteral("na dysku nie ma miejsca"), true,
     [](Polaczenie& b) { b.wykonaj("PRAGMA max_page_count=1"); }, // the engine takes the present size
     [](Polaczenie& b) { b.wykonaj("PRAGMA max_page_count=1000000"); }},
    {QStringLiteral("błąd odczytu lub zapisu na dysku"), false, [](Polaczenie&) { ograniczPliki(0); },
     [](Polaczenie&) { ograniczPliki(RLIM_INFINITY); }},
    // The triggers of the test break a deferred foreign key, so that COMMIT itself refuses.
    {QStringLiteral("FOREIGN KEY constraint failed"), false,
     [](Polaczenie& b) { b.wykonaj("PRAGMA foreign_keys=ON"); },
     [](Polaczenie& b) { b.wykonaj("PRAGMA foreign_keys=OFF"); }},
};
const Awaria& kOdmowaZatwierdzenia = kAwarie[2];

void przygotujWyzwalacze(Polaczenie& baza) {
    std::string sql = "BEGIN; CREATE TABLE NADRZEDNA (ID INTEGER PRIMARY KEY); CREATE TABLE KONTROLA "
                      "(ID INTEGER REFERENCES NADRZEDNA DEFERRABLE INITIALLY DEFERRED);";
    Instrukcja nazwy(baza, "SELECT name FROM sqlite_master WHERE type='table'");
    while (nazwy.wiersz())
        for (const char* kiedy : {"INSERT", "UPDATE", "DELETE"})
            sql += "CREATE TRIGGER W" + std::to_string(sql.size()) + " AFTER " + kiedy + " ON " +
                   nazwy.tekst(0).toStdString() + " BEGIN INSERT INTO KONTROLA VALUES (1); END;";
    nazwy.od_nowa();
    baza.wykonaj(sql + "COMMIT");
}

/// A month with three computed rows on the list Z.
class OdpornoscTest : public testing::Test {
protected:
    OdpornoscTest() {
        UtworzBazeZSzablonu(plik_, folder_.path(), rozmowa_);
        const auto program = otworz(plik_);
        Transakcja naraz(program->sesja().cnPlace, u"Dane testu");
        for (const qint64 nr : numery())
            Pracownicy(program->otoczenie()).NowyPracownik({nr, QStringLiteral("Nowak"), {}});
        naraz.zatwierdz();
        nowyMiesiac(program->otoczenie(), 7);
        ListaPlac(program->otoczenie(), 2001, 7, QStringLiteral("Z")).DodajPracownikow({1, 2, 3});
    }

    std::unique_ptr<Program> otworz(const QString& plik) {
        return std::make_unique<Program>(plik, folder_.path(), rozmowa_);
    }
    void sprawdz(const Awaria& awaria, const Czynnosc& czynnosc);

    QTemporaryDir folder_;
    QString plik_ = folder_.filePath(QStringLiteral("Tornel.mdb"));
    QString kopia_ = folder_.filePath(QStringLiteral("kopia.mdb"));
    RozmowaZgoda rozmowa_;
};

void OdpornoscTest::sprawdz(const Awaria& awaria, const Czynnosc& czynnosc) {
    SCOPED_TRACE(awaria.przyczyna.toStdString() + ", " + czynnosc.nazwa);
    QFile::remove(kopia_);
    ASSERT_TRUE(QFile::copy(plik_, kopia_));
    const auto program = otworz(kopia_);
    Sesja& sesja = program->sesja();
    Polaczenie& baza = sesja.cnPlace;
    przygotujWyzwalacze(baza);
    int wynik = 0;
    sesja.OtworzMiesiac(2001, 7, wynik);
    const QByteArray przed = obraz(baza);
    const QList<Wartosc> widokPrzed = widok(sesja);

    awaria.wlacz(baza);
    const QString komunikat = powod([&] { czynnosc.wykonaj(program->otoczenie()); });
    const bool otwarta = baza.wTransakcji();
    awaria.wylacz(baza);
    EXPECT_TRUE(komunikat.contains(awaria.przyczyna) && komunikat.contains(kopia_))
        << komunikat.toStdString();
    EXPECT_FALSE(otwarta) << "the transaction is still open";
    EXPECT_TRUE(obraz(baza) == przed) << "something of the action is in the file";

    sesja.OdswiezUchwyty();
    if (sesja.rok() == 0) sesja.OtworzMiesiac(2001, 7, wynik);
    EXPECT_TRUE(widok(sesja) == widokPrzed) << "the handles do not show the old rows";
    EXPECT_EQ(powod([&] { czynnosc.wykonaj(program->otoczenie()); }), QString()) << "once the fault is over";
    EXPECT_TRUE(obraz(baza) != przed);
}

TEST_F(OdpornoscTest, AFailedActionLeavesTheFileAndSucceedsLater) {
    // The limit on files would meet the test's own output too, hence the child.
    Proces potomek([&] {
        for (const Awaria& awaria : kAwarie)
            for (const Czynnosc& czynnosc : kCzynnosci)
                if (czynnosc.rosnie || !awaria.tylkoRosnace) sprawdz(awaria, czynnosc);
        return 0;
    });
    EXPECT_EQ(potomek.wynik(), 0);
}

TEST_F(OdpornoscTest, TheOpenListKeepsItsRowOverAFailure) {
    const auto program = otworz(plik_);
    Sesja& sesja = program->sesja();
    przygotujWyzwalacze(sesja.cnPlace);
    ListaPlac lista(program->otoczenie(), 2001, 7, QStringLiteral("Z"));
    ASSERT_TRUE(lista.Wypisz_daneP({3, QStringLiteral("Z")}));
    const PoleListy& koszty = poleListy(u"txtKosztyUz");
    kOdmowaZatwierdzenia.wlacz(sesja.cnPlace);
    EXPECT_THROW(lista.ZmienKwote(koszty, Waluta::zlotych(50)), BladBazy);
    kOdmowaZatwierdzenia.wylacz(sesja.cnPlace);
    sesja.OdswiezUchwyty();
    lista.ZmienKwote(koszty, Waluta::zlotych(60));

    sesja.rsPLA.Requery();
    for (const qint64 nr : {1, 2, 3}) {
        ASSERT_TRUE(sesja.rsPLA.Znajdz(nr, QStringLiteral("Z")));
        EXPECT_EQ(sesja.rsPLA.kwota(PLA("KUP")), Waluta::zlotych(nr == 3 ? 60 : 0)) << nr;
    }
}

TEST_F(OdpornoscTest, WhatCannotBeStoredStaysPendingInTheRecordset) {
    Polaczenie baza(plik_, Polaczenie::Sposob::Istniejaca);
    przygotujWyzwalacze(baza);
    Recordset rs(KONTA);
    rs.Open(baza);
    rs.AddNewZero(1);
    rs.UpdateBatch(u"Dane testu");
    rs.ustaw(KONTA("skrot"), QStringLiteral("zmiana"));
    rs.AddNewZero(2);
    kOdmowaZatwierdzenia.wlacz(baza);
    EXPECT_THROW(rs.UpdateBatch(u"Dane testu"), BladBazy);
    EXPECT_TRUE(rs.zmieniony());
    kOdmowaZatwierdzenia.wylacz(baza);
    rs.UpdateBatch(u"Dane testu");
    rs.Requery();
    EXPECT_EQ(rs.RecordCount(), 2);
    ASSERT_TRUE(rs.Znajdz(1));
    EXPECT_EQ(rs.tekst(KONTA("skrot")), QStringLiteral("zmiana"));

    // A stored row that can no longer be read stops the check for conflicts and leaves nothing behind.
    rs.ustaw(KONTA("skrot"), QStringLiteral("druga"));
    baza.wykonaj("UPDATE KONTA SET NR='x' WHERE NR=1");
    EXPECT_THROW(rs.UpdateBatch(u"Dane testu"), BladBazy);
    rs.Filter({});
    EXPECT_EQ(rs.RecordCount(), 2) << "no row of the file among those of the clerk";
    baza.wykonaj("DROP TABLE KONTA"); // refused while a statement on it is open

    baza.wykonaj("UPDATE PRACDP SET data_ur='2001-0:-01' WHERE prc_id=1");
    Recordset osoby(schemat::PRACDP);
    EXPECT_THROW(osoby.Open(baza), UszkodzonaWartosc) << "not the first of October";
}

TEST_F(OdpornoscTest, NoHalfMadeDatabaseRemains) {
    ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("nowa")));
    const QString nowa = folder_.filePath(QStringLiteral("nowa/Nowa.mdb"));
    const auto zrob = [&] { UtworzBazeZSzablonu(nowa, folder_.path(), rozmowa_); };
    zrob();
    const auto calosc = static_cast<rlim_t>(QFileInfo(nowa).size());
    QFile::remove(nowa);
    Proces potomek([&] {
        for (const rlim_t limit : {rlim_t{0}, rlim_t{600}, rlim_t{5000}, calosc / 2, calosc - 4096}) {
            ograniczPliki(limit);
            const QString komunikat = powod(zrob);
            ograniczPliki(RLIM_INFINITY);
            EXPECT_TRUE(komunikat.contains(nowa)) << limit << ": " << komunikat.toStdString();
            EXPECT_EQ(QDir(QFileInfo(nowa).path()).entryList(QDir::Files), QStringList()) << limit;
        }
        EXPECT_EQ(powod(zrob), QString());
        return 0;
    });
    EXPECT_EQ(potomek.wynik(), 0);
}

TEST_F(OdpornoscTest, WhatMayNotBeWrittenIsNamedAndLeftAlone) {
    const QByteArray przed = bajty(plik_);
    const QString dziennik = plik_ + QStringLiteral("-journal");
    const auto ustaw = [](const QString& sciezka, mode_t tryb) { chmod(sciezka.toUtf8().constData(), tryb); };
    for (const auto& [trybPliku, trybFolderu] : {std::pair{0444, 0777}, {0666, 0555}, {0000, 0777}}) {
        SCOPED_TRACE(trybPliku);
        QFile::remove(dziennik);
        ustaw(plik_, static_cast<mode_t>(trybPliku));
        ustaw(folder_.path(), static_cast<mode_t>(trybFolderu));
        Proces potomek([&, folder = trybFolderu] {
            // Root may write everything, so the clerk is somebody else.
            if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0)) return 2;
            const QString odmowa = powod([&] { otworz(plik_); });
            EXPECT_TRUE(odmowa.contains(plik_)) << odmowa.toStdString();
            const QString niezrobiona = powod([&] { UtworzBaze(kopia_); });
            EXPECT_EQ(niezrobiona.contains(kopia_), folder == 0555) << niezrobiona.toStdString();
            QFile::remove(kopia_);
            return 0;
        });
        EXPECT_EQ(potomek.wynik(), 0);
        ustaw(folder_.path(), 0777);
        ustaw(plik_, 0666);
        EXPECT_TRUE(bajty(plik_) == przed);
        EXPECT_FALSE(QFile::exists(dziennik));
    }
}

TEST_F(OdpornoscTest, ASecondProgramIsRefusedAndAKilledOneLeavesNoTrace) {
    Sygnal zapisane;
    const QByteArray przed = bajty(plik_);
    Proces pierwszy([&] {
        const auto program = otworz(plik_);
        Sesja& sesja = program->sesja();
        sesja.cnPlace.wykonaj("PRAGMA cache_size=5"); // so that the open transaction reaches the file
        const Transakcja akcja(sesja.cnPlace, u"Dane testu");
        sesja.rsKONTA.Open(sesja.cnPlace);
        for (int i = 1; i <= 3000; ++i) sesja.rsKONTA.AddNewZero(i);
        sesja.rsKONTA.UpdateBatch(u"Dane testu");
        zapisane.daj();
        return pause();
    });
    ASSERT_TRUE(zapisane.czekaj());
    try {
        otworz(plik_);
        ADD_FAILURE() << "two programs on one file";
    } catch (const BladStartu& blad) {
        EXPECT_TRUE(blad.komunikat().startsWith(QStringLiteral("Procedura 'PStart': błąd w lini: ")));
        EXPECT_TRUE(blad.komunikat().contains(QStringLiteral("plik jest otwarty w innym programie")))
            << blad.what();
    }
    EXPECT_TRUE(pierwszy.zabij());
    EXPECT_GT(QFileInfo(plik_).size(), przed.size()) << "nothing to undo";
    otworz(plik_);
    EXPECT_TRUE(bajty(plik_) == przed);
}

/// Starts on the file, reads all of it and works on it. 1 when the program refuses to start, otherwise 0.
int uzyjUszkodzonej(const QString& plik, const QString& folder) {
    const rlimit sekundy{20, 20}; // of the processor; ends a child that hangs
    setrlimit(RLIMIT_CPU, &sekundy);
    RozmowaZgoda rozmowa;
    std::unique_ptr<Program> program;
    const QString odmowa = powod([&] { program = std::make_unique<Program>(plik, folder, rozmowa); });
    EXPECT_TRUE(program || odmowa.contains(plik)) << odmowa.toStdString();
    if (!program) return 1;
    // From here on each step may be refused; a crash or a hang shows in the child's result.
    powod([&] { program->sesja().cnPlace.wykonaj("PRAGMA synchronous=OFF"); }); // no power cut here
    for (const TabelaDef* tabela : schemat::Tabele)
        powod([&] { Recordset(*tabela).Open(program->sesja().cnPlace); });
    for (const Czynnosc& czynnosc : kCzynnosci) {
        powod([&] { czynnosc.wykonaj(program->otoczenie()); });
        powod([&] { program->sesja().OdswiezUchwyty(); });
    }
    return 0;
}

TEST_F(OdpornoscTest, ADamagedFileIsReadOrRefusedAndNeverMadeWorse) {
    const QByteArray zdrowa = bajty(plik_);
    std::mt19937 los(20010801);
    int wyniki[2] = {};
    for (int i = 0; i < 60; ++i) {
        SCOPED_TRACE("copy " + std::to_string(i));
        QByteArray uszkodzona = zdrowa;
        // A third of the copies is hurt in the header and the schema, where a single byte does most.
        const qsizetype zasieg = i % 3 == 0 ? 4096 : zdrowa.size();
        for (int n = 1 << (i % 8); n > 0; --n)
            uszkodzona[std::uniform_int_distribution<qsizetype>(0, zasieg - 1)(los)] ^=
                static_cast<char>(std::uniform_int_distribution(1, 255)(los));
        QFile f(kopia_);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(uszkodzona) == uszkodzona.size());
        f.close();
        QFile::remove(kopia_ + QStringLiteral("-journal"));
        const int wynik = Proces([&] { return uzyjUszkodzonej(kopia_, folder_.path()); }).wynik();
        ASSERT_TRUE(wynik == 0 || wynik == 1) << wynik;
        ++wyniki[wynik];
        if (wynik == 1) EXPECT_TRUE(bajty(kopia_) == uszkodzona) << "a refused file was changed";
    }
    EXPECT_GT(wyniki[0], 5);
    EXPECT_GT(wyniki[1], 5);
}

} // namespace

} // namespace tornel::testy
