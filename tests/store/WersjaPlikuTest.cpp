// A file of an older program is brought up to date whole or not at all, after a copy of it; one of a newer
// program is left alone.
#include "store/WersjaPliku.h"
#include "common/Blad.h"
#include "store/Sesja.h"
#include "store/Struktura.h"
#include "wsparcie/DawnaBaza.h"
#include "wsparcie/Proces.h"
#include "wsparcie/Przestrzen.h"
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <sqlite3.h>

namespace tornel::testy {

namespace {

using schemat::KONTA;

class WersjaPlikuTest : public testing::Test {
protected:
    /// A file as the program made it before it knew versions, with one bank account.
    WersjaPlikuTest() {
        UtworzBaze(plik_);
        {
            Sesja sesja(plik_);
            sesja.rsKONTA.Open(sesja.cnPlace);
            sesja.rsKONTA.AddNewZero(1);
            sesja.rsKONTA.UpdateBatch(u"Dane testu");
            nowa_ = budowa(sesja.cnPlace);
            dawnaBaza(sesja.cnPlace);
            sesja.cnPlace.wykonaj("VACUUM"); // what stood in a free page is not brought back
        }
        QFile plik(plik_);
        EXPECT_TRUE(plik.open(QIODevice::ReadWrite) &&
                    plik.setFileTime(QDateTime({2001, 7, 31}, {15, 30}), QFileDevice::FileModificationTime));
        dawna_ = bajty(plik_);
    }

    static QByteArray bajty(const QString& sciezka) {
        QFile f(sciezka);
        EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << sciezka.toStdString();
        return f.readAll();
    }
    /// The statements by which tables and indexes were made.
    static QStringList budowa(Polaczenie& baza) {
        QStringList wynik;
        Instrukcja i(baza, "SELECT sql FROM sqlite_master ORDER BY name");
        while (i.wiersz()) wynik.append(i.tekst(0));
        return wynik;
    }
    [[nodiscard]] QString wFolderze(const char* nazwa) const {
        return folder_.filePath(QString::fromLatin1(nazwa));
    }
    QString powod(std::span<const KrokWersji> kroki) {
        Polaczenie baza(plik_, Polaczenie::Sposob::Istniejaca);
        try {
            DoprowadzDoWersji(baza, kroki);
        } catch (const BladBazy& blad) {
            return blad.komunikat();
        }
        return {};
    }
    /// Kills the program in a long step, when a part of it stands in the file already.
    void zabijWKroku(Sygnal& zapisane);

    QTemporaryDir folder_;
    QString plik_ = wFolderze("Tornel.mdb");
    QStringList nowa_;
    QByteArray dawna_;
};

TEST_F(WersjaPlikuTest, AnOlderFileBecomesLikeANewOneAndItsCopyStaysAsItWas) {
    const QString zajeta = wFolderze("Tornel-wersja-0-20010731-153000.mdb");
    QFile inny(zajeta);
    ASSERT_TRUE(inny.open(QIODevice::WriteOnly) && inny.write("x") == 1);
    inny.close();
    {
        Sesja sesja(plik_);
        ASSERT_TRUE(sesja.zmianaWersji());
        EXPECT_EQ(sesja.zmianaWersji()->z, 0);
        EXPECT_EQ(sesja.zmianaWersji()->na, static_cast<int>(KrokiWersji().size()));
        EXPECT_EQ(sesja.zmianaWersji()->kopia, wFolderze("Tornel-wersja-0-20010731-153000-2.mdb"));
        EXPECT_EQ(budowa(sesja.cnPlace), nowa_);
        sesja.rsKONTA.Open(sesja.cnPlace);
        EXPECT_EQ(sesja.rsKONTA.RecordCount(), 1);
    }
    EXPECT_EQ(bajty(zajeta), "x") << "an existing file is never overwritten";
    EXPECT_FALSE(Sesja(plik_).zmianaWersji()) << "a file of today's version needs nothing";
    EXPECT_EQ(QDir(folder_.path()).entryList({QStringLiteral("*.mdb*")}, QDir::Files).size(), 4)
        << "the database, its journal, the stranger and one copy";

    Polaczenie kopia(wFolderze("Tornel-wersja-0-20010731-153000-2.mdb"), Polaczenie::Sposob::Istniejaca);
    EXPECT_EQ(WersjaPliku(kopia), 0);
    EXPECT_FALSE(kopia.jestTabela(QStringLiteral("ZASILEK")));
    Recordset konta(KONTA);
    konta.Open(kopia);
    EXPECT_EQ(konta.RecordCount(), 1);
}

TEST_F(WersjaPlikuTest, AFailedStepOrCopyAndANewerFileChangeNothing) {
    static constexpr KrokWersji wSrodku[] = {
        {u"krok udany", [](Polaczenie& p) { p.wykonaj("CREATE TABLE NOWA (A); DELETE FROM KONTA"); }},
        {u"krok nieudany", [](Polaczenie& p) { p.wykonaj("CREATE TABLE INNA (A); CREATE TABLE NOWA (A)"); }},
    };
    const QString przerwany = powod(wSrodku);
    EXPECT_TRUE(przerwany.contains(QStringLiteral("krok nieudany"))) << przerwany.toStdString();
    EXPECT_TRUE(przerwany.contains(wFolderze("Tornel-wersja-0-20010731-153000.mdb")))
        << przerwany.toStdString();
    EXPECT_TRUE(bajty(plik_) == dawna_);

    // The folder takes the place of the copy that is being written.
    const QString czas = QFileInfo(plik_).lastModified().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    for (const char* nazwa : {"", "-2"})
        QDir(folder_.path())
            .mkdir(QStringLiteral("Tornel-wersja-0-%1%2.mdb.czesc").arg(czas, QLatin1String(nazwa)));
    EXPECT_TRUE(powod(KrokiWersji()).startsWith(QStringLiteral("Nie można zrobić kopii")));
    EXPECT_TRUE(bajty(plik_) == dawna_);

    {
        Polaczenie baza(plik_, Polaczenie::Sposob::Istniejaca);
        UstawWersje(baza, 7);
    }
    dawna_ = bajty(plik_);
    const QString nowsza = powod(KrokiWersji());
    EXPECT_TRUE(nowsza.contains(plik_)) << nowsza.toStdString();
    EXPECT_TRUE(nowsza.contains(QStringLiteral("wersję danych 7"))) << nowsza.toStdString();
    EXPECT_TRUE(nowsza.contains(QStringLiteral("do %1").arg(KrokiWersji().size()))) << nowsza.toStdString();
    EXPECT_TRUE(bajty(plik_) == dawna_);
}

void WersjaPlikuTest::zabijWKroku(Sygnal& zapisane) {
    static Sygnal* sygnal = nullptr;
    sygnal = &zapisane;
    static constexpr KrokWersji dlugi[] = {{u"długi krok", [](Polaczenie& p) {
                                                p.wykonaj("CREATE TABLE DUZA (A)");
                                                for (int i = 0; i < 200; ++i)
                                                    p.wykonaj("INSERT INTO DUZA VALUES (randomblob(4000))");
                                                sygnal->daj();
                                                pause();
                                            }}};
    Proces pierwszy([&] {
        Polaczenie baza(plik_, Polaczenie::Sposob::Istniejaca);
        baza.wykonaj("PRAGMA cache_size=5"); // so that the open step reaches the file
        DoprowadzDoWersji(baza, dlugi);
        return 0;
    });
    ASSERT_TRUE(zapisane.czekaj());
    EXPECT_TRUE(pierwszy.zabij());
}

TEST_F(WersjaPlikuTest, AProgramKilledInAStepLeavesTheOlderFileAndTheNextStartFinishesIt) {
    Sygnal zapisane;
    zabijWKroku(zapisane);
    ASSERT_GT(bajty(plik_).size(), dawna_.size()) << "nothing to undo";
    {
        Polaczenie baza(plik_, Polaczenie::Sposob::Istniejaca);
        EXPECT_EQ(WersjaPliku(baza), 0);
    }
    EXPECT_TRUE(bajty(plik_) == dawna_);
    Sesja sesja(plik_);
    EXPECT_TRUE(sesja.zmianaWersji());
    EXPECT_EQ(budowa(sesja.cnPlace), nowa_);
}

} // namespace

} // namespace tornel::testy
