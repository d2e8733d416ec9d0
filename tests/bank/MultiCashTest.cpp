// The bank's file and a program that is killed while it makes it, a disk without room, a file that cannot be
// replaced: no order is lost, and none goes out twice without the clerk knowing.
#include "bank/MultiCash.h"
#include "common/Blad.h"
#include "common/Pliki.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "store/Sesja.h"
#include "wsparcie/Proces.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include "wsparcie/RozmowaZgoda.h"
#include <csignal>
#include <gtest/gtest.h>
#include <QDir>
#include <QTemporaryDir>
#include <sqlite3.h>
#include <sys/resource.h>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using schemat::PLA;
using schemat::PLB;

constexpr RokMies kLuty{2001, 2};

/// Where the program is killed.
enum class Chwila { PrzedPlikiem, MiedzyPlikiemAZnakami, PoZnakach };

/// Ends the program when it tells the clerk that all is done.
class RozmowaSmiertelna : public RozmowaZgoda {
public:
    void komunikat(const QString&, Styl, const QString&) override { raise(SIGKILL); }
};

class MultiCashTest : public testing::Test {
protected:
    MultiCashTest() { UtworzPrzyklad(baza_, 12, 2, folder_.path()); }

    [[nodiscard]] PrzebiegMCS przebieg(int dzien) const {
        return {QDate(2001, 3, dzien),
                QDate(2001, 3, dzien),
                0,
                folder_.path(),
                u"10990001-1"_s,
                u"płaca"_s,
                QDateTime({2001, 3, dzien}, {12, 0})};
    }
    [[nodiscard]] QString plik(int dzien) const { return MultiCash::nazwaPliku(przebieg(dzien)); }
    static std::optional<int> utworz(Program& program, const PrzebiegMCS& przebieg) {
        const OtwartyMiesiac miesiac(program.sesja(), kLuty);
        return MultiCash(program.otoczenie()).utworz(przebieg, {});
    }
    /// The orders of the month: how many there are and how many are marked.
    static std::pair<int, int> zlecenia(Program& program) {
        const OtwartyMiesiac miesiac(program.sesja(), kLuty);
        int wszystkich = 0, oznaczonych = 0;
        for (const Wiersz a : program.sesja().rsPLA.wiersze()) {
            const auto b = program.sesja().rsPLB.szukaj(a.liczba(PLA("PRC_ID")), a.tekst(PLA("LISTA")));
            wszystkich += a.kwota(PLA("PRZELEWEM")) > Waluta{};
            oznaczonych += b && b->flaga(PLB("WYS_MCS"));
        }
        return {wszystkich, oznaczonych};
    }
    void zabij(Chwila chwila);

    QTemporaryDir folder_;
    QString baza_ = folder_.filePath(u"Tornel.mdb"_s);
};

void MultiCashTest::zabij(Chwila chwila) {
    Proces proces([&] {
        RozmowaSmiertelna rozmowa;
        Program program(baza_, folder_.path(), rozmowa);
        // The first thing stored says that a file was begun, the second one marks its orders.
        static int doZabicia = 0;
        doZabicia = chwila == Chwila::PrzedPlikiem ? 1 : chwila == Chwila::PoZnakach ? 99 : 2;
        sqlite3_commit_hook(
            program.sesja().cnPlace.uchwyt(),
            [](void*) {
                if (--doZabicia == 0) raise(SIGKILL);
                return 0;
            },
            nullptr);
        utworz(program, przebieg(9));
        return 0;
    });
    EXPECT_EQ(proces.wynik(), -SIGKILL);
}

const QString kDrugiRaz =
    u"Tworzenie pliku %1 dnia 09-03-2001 zostało przerwane. Plik mógł powstać, a jego przelewy nie są "
    "oznaczone jako wysłane. Jeśli ten plik trafił do banku, nowy wyśle te same przelewy drugi raz. Czy "
    "utworzyć nowy plik ?"_s;

TEST_F(MultiCashTest, AfterAKillTheNextRunSendsEachOrderOnceOrAsks) {
    const struct {
        Chwila chwila;
        bool jestPlik, oznaczone, pyta;
    } przypadki[] = {{Chwila::PrzedPlikiem, false, false, false},
                     {Chwila::MiedzyPlikiemAZnakami, true, false, true},
                     {Chwila::PoZnakach, true, true, false}};
    for (const auto& p : przypadki) {
        SCOPED_TRACE(static_cast<int>(p.chwila));
        zabij(p.chwila);
        EXPECT_EQ(QFile::exists(plik(9)), p.jestPlik);
        RozmowaSkrypt rozmowa;
        Program program(baza_, folder_.path(), rozmowa);
        const auto [wszystkich, oznaczonych] = zlecenia(program);
        EXPECT_EQ(oznaczonych, p.oznaczone ? wszystkich : 0);
        if (p.pyta) {
            // On No nothing changes, and it asks again.
            rozmowa.spodziewaj(kDrugiRaz.arg(plik(9)), Odpowiedz::Nie);
            EXPECT_FALSE(utworz(program, przebieg(12)));
            EXPECT_FALSE(QFile::exists(plik(12)));
            // The same file again: its own question tells enough.
            rozmowa.spodziewaj(u"Plik "_s + plik(9) + u" już istnieje. Czy zastąpić podany plik ?"_s,
                               Odpowiedz::Nie);
            EXPECT_FALSE(utworz(program, przebieg(9)));
            rozmowa.spodziewaj(kDrugiRaz.arg(plik(9)), Odpowiedz::Tak);
        }
        if (p.oznaczone)
            rozmowa.spodziewaj(u"Brak danych spełniających podane kryteria"_s, Styl::Wykrzyknik);
        else
            rozmowa.spodziewaj(u"Plik "_s + plik(12) + u" został utworzony."_s, Styl::Informacja);
        EXPECT_EQ(utworz(program, przebieg(12)), p.oznaczone ? 0 : wszystkich);
        EXPECT_EQ(zlecenia(program).second, wszystkich);
        EXPECT_TRUE(
            Wykonane(program.sesja()).szukaj({.rodzaj = wykonanie::MultiCashWToku.kod.toString()}).isEmpty());
        // As at the beginning, for the next case.
        for (const int dzien : {9, 12}) QFile::remove(plik(dzien));
        const OtwartyMiesiac miesiac(program.sesja(), kLuty);
        Recordset& plb = program.sesja().rsPLB;
        for (plb.MoveFirst(); !plb.EOF_(); plb.MoveNext()) plb.ustawFlage(PLB("WYS_MCS"), false);
        plb.UpdateBatch(u"Dane testu");
    }
}

TEST_F(MultiCashTest, AFileThatCannotBeReplacedMarksNothingAndLeavesNoTrace) {
    RozmowaSkrypt rozmowa;
    Program program(baza_, folder_.path(), rozmowa);
    ASSERT_TRUE(QDir(folder_.path()).mkdir(QFileInfo(plik(9)).fileName())); // takes the file's place
    rozmowa.spodziewaj(u"Plik "_s + plik(9) + u" już istnieje. Czy zastąpić podany plik ?"_s, Odpowiedz::Tak);
    try {
        utworz(program, przebieg(9));
        ADD_FAILURE() << "written over a folder";
    } catch (const Blad& blad) {
        EXPECT_TRUE(blad.komunikat().contains(plik(9))) << blad.komunikat().toStdString();
        EXPECT_TRUE(blad.komunikat().endsWith(u"Żaden przelew nie został oznaczony jako wysłany."_s));
    }
    EXPECT_EQ(zlecenia(program).second, 0);
    EXPECT_TRUE(Wykonane(program.sesja()).szukaj({}).isEmpty());
}

TEST(Pliki, ADiskWithoutRoomLeavesTheOldFile) {
    QTemporaryDir folder;
    const QString sciezka = folder.filePath(u"plik.pli"_s);
    ZapiszPlik(sciezka, "stary");
    Proces proces([&] {
        const rlimit limit{4096, 4096};
        signal(SIGXFSZ, SIG_IGN);
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
        EXPECT_THROW(ZapiszPlik(sciezka, QByteArray(100000, 'x')), Blad);
        return 0;
    });
    EXPECT_EQ(proces.wynik(), 0);
    EXPECT_EQ(CzytajPlik(sciezka), "stary");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{u"plik.pli"_s});
}

} // namespace

} // namespace tornel::testy
