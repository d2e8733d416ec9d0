// The bank's file of commission contracts and a program that is killed while it makes it: every contract goes
// out once, or the clerk is asked before it could go out twice.
#include "bank/MultiCash.h"
#include "wsparcie/Proces.h"
#include "wsparcie/RozmowaZgoda.h"
#include "wsparcie/UmowyTestowe.h"
#include <csignal>
#include <QFile>
#include <sqlite3.h>

namespace tornel::testy {

namespace {

/// Which of the run's actions the kill falls into; after them the file is made and its contracts are marked.
enum class Akcja { Rozpoczecie, Znaki, Zadna };

class MultiCashUmowTest : public UmowyTestowe {
protected:
    /// Three contracts of the package and the day of payment, and three that differ in one of its conditions.
    MultiCashUmowTest() {
        dodaj(u"Brutto=1000 przelewem=500 paczka=4 data_wyp=15-03-2001"_s);
        dodaj(u"Brutto=2000 przelewem=700,25 paczka=4 data_wyp=15-03-2001"_s);
        dodaj(u"Brutto=900 przelewem=100 paczka=4 data_wyp=15-03-2001"_s);
        dodaj(u"Brutto=900 przelewem=100 paczka=5 data_wyp=15-03-2001"_s);
        dodaj(u"Brutto=900 przelewem=100 paczka=4 data_wyp=16-03-2001"_s);
        dodaj(u"Brutto=900 paczka=4 data_wyp=15-03-2001"_s);
        program_.reset(); // each run is a program of its own
    }
    void dodaj(const QString& pola) {
        Umowy umowy(otoczenie(), rodzaj(u"UZL"_s));
        ASSERT_TRUE(umowy.Wypisz(umowy.Nowy(1, {2001, 3, 1})));
        opusc(umowy, rodzaj(u"UZL"_s), pola);
        umowy.Wpisz();
    }
    [[nodiscard]] PrzebiegMCS przebieg(int dzien) const {
        return {{2001, 3, dzien},
                {2001, 3, 15},
                4,
                folder_.path(),
                u"10990001-1"_s,
                u"zlecenie"_s,
                QDateTime({2001, 3, dzien}, {12, 0})};
    }
    [[nodiscard]] QString plik(int dzien) const { return MultiCash::nazwaPliku(przebieg(dzien)); }
    std::optional<int> utworz(Program& program, int dzien) {
        return MultiCash(program.otoczenie()).utworz(przebieg(dzien), {.umowy = rodzajWyplat(u"UZL"_s)});
    }
    void zabij(Akcja akcja);
    /// The keys of the contracts that are marked as sent.
    static QList<qint64> oznaczone(Program& program) {
        Recordset uzl(UZL);
        uzl.Open(program.sesja().cnPlace);
        QList<qint64> wynik;
        for (const Wiersz w : uzl.wiersze())
            if (w.flaga(UZL("wys_mcs"))) wynik.append(w.liczba(UZL("UZLID")));
        return wynik;
    }
    static qsizetype linii(const QString& plik) {
        QFile f(plik);
        EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << plik.toStdString();
        return f.readAll().count('\n');
    }
};

void MultiCashUmowTest::zabij(Akcja akcja) {
    Proces proces([&] {
        RozmowaZgoda rozmowa;
        Program program(sciezka(), folder_.path(), rozmowa);
        static int doZabicia = 0;
        doZabicia = static_cast<int>(akcja) + 1;
        sqlite3_commit_hook(
            program.sesja().cnPlace.uchwyt(),
            [](void*) {
                if (--doZabicia == 0) raise(SIGKILL);
                return 0;
            },
            nullptr);
        EXPECT_EQ(utworz(program, 9), 3);
        return raise(SIGKILL);
    });
    EXPECT_EQ(proces.wynik(), -SIGKILL);
}

TEST_F(MultiCashUmowTest, AfterAKillTheNextRunSendsEachContractOnceOrAsks) {
    const struct {
        Akcja akcja;
        bool jestPlik, oznaczone, pyta;
    } przypadki[] = {{Akcja::Rozpoczecie, false, false, false},
                     {Akcja::Znaki, true, false, true},
                     {Akcja::Zadna, true, true, false}};
    const QList<qint64> paczka{1, 2, 3};
    for (const auto& p : przypadki) {
        SCOPED_TRACE(static_cast<int>(p.akcja));
        zabij(p.akcja);
        ASSERT_EQ(QFile::exists(plik(9)), p.jestPlik);
        if (p.jestPlik) EXPECT_EQ(linii(plik(9)), 3) << "the file is whole";
        RozmowaSkrypt rozmowa;
        Program program(sciezka(), folder_.path(), rozmowa);
        EXPECT_EQ(oznaczone(program), p.oznaczone ? paczka : QList<qint64>());
        if (p.pyta) {
            const QString pytanie =
                u"Tworzenie pliku %1 dnia 09-03-2001 zostało przerwane. Plik mógł powstać, a jego przelewy "
                u"nie są oznaczone jako wysłane. Jeśli ten plik trafił do banku, nowy wyśle te same przelewy "
                u"drugi raz. Czy utworzyć nowy plik ?"_s.arg(plik(9));
            rozmowa.spodziewaj(pytanie, Odpowiedz::Nie);
            EXPECT_FALSE(utworz(program, 12));
            EXPECT_FALSE(QFile::exists(plik(12)));
            EXPECT_EQ(oznaczone(program), QList<qint64>());
            rozmowa.spodziewaj(pytanie, Odpowiedz::Tak);
        }
        if (p.oznaczone)
            rozmowa.spodziewaj(u"Brak danych spełniających podane kryteria"_s, Styl::Wykrzyknik);
        else
            rozmowa.spodziewaj(u"Plik "_s + plik(12) + u" został utworzony."_s, Styl::Informacja);
        EXPECT_EQ(utworz(program, 12), p.oznaczone ? 0 : 3);
        EXPECT_EQ(oznaczone(program), paczka);
        EXPECT_TRUE(Wykonane(program.sesja())
                        .szukaj({.rodzaj = bank::wykonanie::MultiCashWToku.kod.toString()})
                        .isEmpty());
        // As at the beginning, for the next case.
        for (const int dzien : {9, 12}) QFile::remove(plik(dzien));
        Recordset uzl(UZL);
        uzl.Open(program.sesja().cnPlace);
        for (uzl.MoveFirst(); !uzl.EOF_(); uzl.MoveNext()) uzl.ustawFlage(UZL("wys_mcs"), false);
        uzl.UpdateBatch(u"Dane testu");
    }
}

} // namespace

} // namespace tornel::testy
