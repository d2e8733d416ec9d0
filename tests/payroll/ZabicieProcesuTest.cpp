// The clerk's actions in a process that is killed at random moments: whatever the moment, each action is in
// the file whole or not at all.
#include "payroll/lista/ListaPlac.h"
#include "payroll/miesiace/Miesiace.h"
#include "personnel/Pracownicy.h"
#include "start/Rozruch.h"
#include "wsparcie/Proces.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaZgoda.h"
#include <chrono>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <random>
#include <sys/stat.h>
#include <thread>

namespace tornel::testy {

namespace {

constexpr int kPracownikow = 40;
constexpr int kZabic = 120;
const QString kPojedyncze = QStringLiteral("Z"); // the list of single rows; the others are filled by batches

/// What the child does for ever: random actions on three months.
class Praca {
public:
    Praca(Otoczenie& otoczenie, unsigned ziarno) : o_(otoczenie), los_(ziarno) {}

    void krok() {
        const RokMies m{2001, losowa(1, 3)};
        const QString symbol(QChar(u'A' + losowa(0, 4)));
        const int rodzaj = losowa(0, 11);
        if (!Miesiace(o_).Ustaw(m))
            Miesiace(o_).Nowy_miesiac([&] { return std::optional(m); });
        else if (rodzaj == 0)
            Miesiace(o_).Usun_miesiac(m);
        else if (rodzaj <= 4)
            dodaj(ListaPlac(o_, m.rok, m.mies, symbol));
        else if (rodzaj <= 7)
            przelicz(ListaPlac(o_, m.rok, m.mies, symbol));
        else
            pojedynczyWiersz(ListaPlac(o_, m.rok, m.mies, kPojedyncze));
    }

private:
    int losowa(int od, int dokad) { return std::uniform_int_distribution(od, dokad)(los_); }

    static void dodaj(ListaPlac&& lista) {
        QList<qint64> numery;
        for (int i = 1; i <= kPracownikow; ++i) numery += i;
        lista.DodajPracownikow(numery);
    }
    void przelicz(ListaPlac&& lista) {
        Recordset& sk = o_.sesja.rsPRACSK;
        const Waluta nowa = Waluta::zlotych(losowa(100, 999));
        for (sk.MoveFirst(); !sk.EOF_(); sk.MoveNext()) sk.ustaw(schemat::DodatniPracownika(4), nowa);
        sk.UpdateBatch(u"Dane testu");
        QList<KluczListy> wiersze;
        for (const LiniaListy& linia : lista.Wczytaj_listep()) wiersze += linia.klucz;
        lista.PrzeliczSerie(Obliczenie::Przepisanie, wiersze);
        lista.PrzeliczSerie(Obliczenie::Przeliczenie, wiersze);
        lista.ZapiszSumy();
    }
    void pojedynczyWiersz(ListaPlac&& lista) {
        const qint64 prcId = losowa(1, kPracownikow);
        if (!lista.Wypisz_daneP({prcId, kPojedyncze})) {
            lista.Nowy_prac(prcId);
            lista.Przelicz1();
        } else if (losowa(0, 2) > 0) {
            lista.ZmienKwote(poleListy(u"txtFEPC"), Waluta::zlotych(losowa(0, 300)));
        } else {
            lista.Usun_prac();
        }
    }

    Otoczenie& o_;
    std::mt19937 los_;
};

/// The number that a query gives; "$" in it stands for the month, as 200107.
qint64 policz(Polaczenie& baza, const char* sql, const QString& miesiac = {}) {
    Instrukcja instrukcja(baza, QString::fromLatin1(sql).replace(u'$', miesiac).toStdString());
    return instrukcja.wiersz() ? instrukcja.liczba(0) : -1;
}

void sprawdzMiesiac(Polaczenie& baza, const QString& m) {
    SCOPED_TRACE(m.toStdString());
    const qint64 jest = policz(baza, "SELECT count(*) FROM PLACE WHERE Rok||Mies='$'", m);
    EXPECT_EQ(policz(baza, "SELECT count(*) FROM PLACEN WHERE Rok||Mies='$'", m), jest);
    EXPECT_EQ(policz(baza, "SELECT count(*) FROM PLACEK WHERE Rok||Mies='$'", m), jest);
    ASSERT_EQ(policz(baza, "SELECT count(*) FROM sqlite_master WHERE type='table' AND name LIKE 'PL_$'", m),
              4 * jest);
    if (jest == 0) return;
    EXPECT_EQ(policz(baza,
                     "SELECT count(*) FROM (SELECT 1 FROM (SELECT PRC_ID p, LISTA l FROM PLA$ "
                     "UNION ALL SELECT PRC_ID, LISTA FROM PLB$ UNION ALL SELECT PRC_ID, LISTA FROM PLS$ "
                     "UNION ALL SELECT PRC_ID, LISTA FROM PLD$) GROUP BY p, l HAVING count(*) <> 4)",
                     m),
              0)
        << "a row in part";
    EXPECT_EQ(policz(baza,
                     "SELECT count(*) FROM (SELECT 1 FROM PLS$ WHERE LISTA <> 'Z' GROUP BY LISTA "
                     "HAVING count(*) <> 40 OR count(DISTINCT SP_4) <> 1)",
                     m),
              0)
        << "a batch in part";
    EXPECT_EQ(policz(baza,
                     "SELECT count(*) FROM PLA$ JOIN PLB$ USING (PRC_ID, LISTA) "
                     "WHERE NETTO <> max(0, BRUTTO - FEPRC - FRPRC - FCPRC - KUP)",
                     m),
              0)
        << "an edit in part";
}

/// Waits until the child writes into the file itself, at most 2 s: a kill then meets a commit half done.
void czekajNaZapis(const QByteArray& plik) {
    const auto chwila = [&] {
        struct stat stan {};
        stat(plik.constData(), &stan);
        return std::pair(stan.st_mtim.tv_sec, stan.st_mtim.tv_nsec);
    };
    const auto koniec = std::chrono::steady_clock::now() + std::chrono::seconds(2);
    for (const auto przed = chwila(); chwila() == przed && std::chrono::steady_clock::now() < koniec;) {
    }
}

TEST(ZabicieProcesuTest, EveryActionIsInTheFileWholeOrNotAtAll) {
    const QTemporaryDir folder;
    const QString plik = folder.filePath(QStringLiteral("Tornel.mdb"));
    RozmowaZgoda rozmowa;
    UtworzBazeZSzablonu(plik, folder.path(), rozmowa);
    {
        Program program(plik, folder.path(), rozmowa);
        Transakcja naraz(program.sesja().cnPlace, u"Dane testu");
        for (int i = 1; i <= kPracownikow; ++i)
            Pracownicy(program.otoczenie()).NowyPracownik({i, QStringLiteral("Nowak"), {}});
        naraz.zatwierdz();
    }
    std::mt19937 los(20010731);
    int wZapisie = 0;
    for (int i = 0; i < kZabic; ++i) {
        const auto ziarno = static_cast<unsigned>(los());
        const int opoznienie = std::uniform_int_distribution(0, 120)(los);
        SCOPED_TRACE("kill " + std::to_string(i) + " after " + std::to_string(opoznienie) + " ms, seed " +
                     std::to_string(ziarno));
        Sygnal otwarty;
        Proces potomek([&]() -> int {
            Program program(plik, folder.path(), rozmowa);
            otwarty.daj();
            for (Praca praca(program.otoczenie(), ziarno);;) praca.krok();
        });
        if (i % 6) ASSERT_TRUE(otwarty.czekaj()); // every sixth is killed at its start
        std::this_thread::sleep_for(std::chrono::milliseconds(opoznienie));
        if (i % 2) czekajNaZapis(QFile::encodeName(plik));
        ASSERT_TRUE(potomek.zabij()) << "the child ended by itself";
        wZapisie += QFileInfo(plik + QStringLiteral("-journal")).size() > 0;

        Program program(plik, folder.path(), rozmowa);
        Polaczenie& baza = program.sesja().cnPlace;
        ASSERT_EQ(policz(baza, "SELECT count(*) FROM pragma_integrity_check WHERE integrity_check='ok'"), 1);
        EXPECT_EQ(policz(baza, "SELECT count(DISTINCT DOD_4) FROM PRACSK"), 1) << "a batch in part";
        for (const char* miesiac : {"200101", "200102", "200103"})
            sprawdzMiesiac(baza, QLatin1String(miesiac));
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_GT(wZapisie, kZabic / 10) << "hardly a kill met an open transaction";
}

} // namespace

} // namespace tornel::testy
