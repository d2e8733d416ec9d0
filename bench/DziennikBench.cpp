// What the journal costs: a batch and a typed amount with it and without, undo and redo of the batch, the
// growth of the file, and the screen of a long journal.
#include "app/frmDziennik.h"
#include "bench/Pomiar.h"
#include "common/Daty.h"
#include "payroll/lista/ListaPlac.h"
#include "payroll/miesiace/Miesiace.h"
#include "personnel/Pracownicy.h"
#include "rules/CofanieCzynnosci.h"
#include "start/Rozruch.h"
#include "store/Sesja.h"
#include <benchmark/benchmark.h>
#include <QApplication>
#include <QFileInfo>

using namespace tornel::start;
using namespace tornel::bench;

namespace {

QList<qint64> wszyscy(Program& program) {
    QList<qint64> numery;
    for (const Osoba& osoba : Pracownicy(program.otoczenie()).doWyboru(1)) numery.append(osoba.prcId);
    std::ranges::sort(numery);
    return numery;
}

double mib(qint64 bajty) { return static_cast<double>(bajty) / (1024.0 * 1024.0); }

/// The batch of `ile` employees; with a journal it is undone and made again as well.
struct Przebieg {
    double wsad = 0, cofniecie = 0, ponowienie = 0;
    qint64 przyrost = 0; ///< of the file, bytes
};

Przebieg przebieg(int ile, bool zDziennikiem) {
    const QString baza = kopiaFirmy(ile, 0);
    RozmowaCicha rozmowa;
    Przebieg wynik;
    Program program(baza, QDir::tempPath(), rozmowa);
    Otoczenie& o = program.otoczenie();
    if (!zDziennikiem) o.sesja.cnPlace.WylaczDziennik();
    (void)Miesiace(o).Nowy_miesiac([] { return RokMies{2001, 1}; });
    const QList<qint64> numery = wszyscy(program);
    const qint64 przed = QFileInfo(baza).size();
    {
        ListaPlac lista(o, 2001, 1, QStringLiteral(" "));
        wynik.wsad = sekundy([&] { (void)lista.DodajPracownikow(numery); });
    }
    wynik.przyrost = QFileInfo(baza).size() - przed;
    if (!zDziennikiem) return wynik;
    // Without the reading of handles and constants that follows it: the batch has none either.
    Cofanie cofanie(o.sesja.cnPlace);
    wynik.cofniecie = sekundy([&] { (void)cofanie.wykonaj(Kierunek::Cofnij); });
    wynik.ponowienie = sekundy([&] { (void)cofanie.wykonaj(Kierunek::Ponow); });
    return wynik;
}

void WsadZDziennikiem(benchmark::State& stan) {
    const auto ile = static_cast<int>(stan.range(0));
    Przebieg bez, z;
    for (auto _ : stan) {
        bez = przebieg(ile, false);
        z = przebieg(ile, true);
        stan.SetIterationTime(z.wsad);
    }
    stan.counters["bez_ms"] = bez.wsad * 1e3;
    stan.counters["razy"] = z.wsad / bez.wsad;
    stan.counters["cofniecie_ms"] = z.cofniecie * 1e3;
    stan.counters["ponowienie_ms"] = z.ponowienie * 1e3;
    stan.counters["wiersze_MiB"] = mib(bez.przyrost);
    stan.counters["dziennik_MiB"] = mib(z.przyrost - bez.przyrost);
}

/// One amount typed over in a row of many and saved, `dziennik` 1 with the journal.
void WpisanaKwota(benchmark::State& stan) {
    const QString baza = kopiaFirmy(static_cast<int>(stan.range(0)), 1);
    RozmowaCicha rozmowa;
    Program program(baza, QDir::tempPath(), rozmowa);
    if (stan.range(1) == 0) program.sesja().cnPlace.WylaczDziennik();
    ListaPlac lista(program.otoczenie(), 2001, 1, QStringLiteral(" "));
    const auto wiersze = lista.Wczytaj_listep();
    lista.Wypisz_daneP(wiersze[wiersze.size() / 2].klucz);
    const PoleListy& koszty = poleListy(u"txtKosztyUz");
    const qint64 przed = QFileInfo(baza).size();
    int grosze = 0;
    for (auto _ : stan) lista.ZmienKwote(koszty, Waluta::zSurowej(100 * (9000 + ++grosze % 1000)));
    stan.counters["bajtow_na_czynnosc"] = static_cast<double>(QFileInfo(baza).size() - przed) / grosze;
}

/// The journal's screen until it is painted, with `ile` entries of one typed amount each.
void EkranDziennika(benchmark::State& stan) {
    const auto ile = static_cast<int>(stan.range(0));
    const QString baza = kopiaFirmy(10, 1);
    RozmowaCicha rozmowa;
    Program program(baza, QDir::tempPath(), rozmowa);
    Polaczenie& polaczenie = program.sesja().cnPlace;
    polaczenie.wykonaj("PRAGMA synchronous=OFF");
    polaczenie.dziennik()->UstawZegar([] { return QDateTime({2001, 7, 31}, {15, 30}); });
    Recordset konta(schemat::KONTA);
    konta.Open(polaczenie);
    konta.AddNewZero(77);
    for (int i = 0; i < ile; ++i) {
        konta.ustaw(schemat::KONTA("Nazwa"), QStringLiteral("Bank %1").arg(i));
        konta.UpdateBatch(u"Konta bankowe: zmiana pozycji nr 77");
    }
    double ekran = 0;
    for (auto _ : stan) {
        std::unique_ptr<tornel::app::frmDziennik> okno;
        ekran = sekundy([&] {
            okno = std::make_unique<tornel::app::frmDziennik>(program.otoczenie());
            okno->show();
            QApplication::processEvents();
        });
        stan.SetIterationTime(ekran);
    }
    stan.counters["cofnij_ms"] = sekundy([&] { (void)Cofanie(polaczenie).wykonaj(Kierunek::Cofnij); }) * 1e3;
}

BENCHMARK(WsadZDziennikiem)
    ->Arg(1000)
    ->Arg(10000)
    ->UseManualTime()
    ->Iterations(1)
    ->Repetitions(3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(WpisanaKwota)->Args({10000, 0})->Args({10000, 1})->Iterations(300)->Unit(benchmark::kMillisecond);
BENCHMARK(EkranDziennika)->Arg(100000)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

} // namespace
