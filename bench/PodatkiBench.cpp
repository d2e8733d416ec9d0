// What the yearly declarations cost: of one person and of everybody, against the raw read of the months'
// rows.
#include "bench/Pomiar.h"
#include "bench/Surowe.h"
#include "payroll/miesiace/Miesiace.h"
#include "start/Rozruch.h"
#include "tax/SeriaDeklaracji.h"
#include <benchmark/benchmark.h>

using namespace tornel::bench;
using namespace tornel::start;

namespace {

constexpr OkresPodatkowy kRok{{2001, 1}, {2001, 12}};
const QDate kDzis(2002, 1, 15);

void Pit11Roku(benchmark::State& stan) {
    const auto ile = static_cast<int>(stan.range(0));
    const QString plik = kopiaFirmy(ile, 12);
    RozmowaCicha rozmowa;
    Program program(plik, QDir::tempPath(), rozmowa);
    Otoczenie& o = program.otoczenie();
    QList<qint64> osoby;
    for (qint64 nr = 1; nr <= ile; ++nr) osoby.append(nr);
    double surowo = 0, jedna = 0, wszystkie = 0, uwagi = 0;
    for (auto _ : stan) {
        surowo = 0;
        for (RokMies m = kRok.od; m <= kRok.dokad; m = m.plus(1))
            for (const char* tabela : {"PLA", "PLB", "PLS"})
                surowo += CzytajSurowo(o.sesja, {(std::string(tabela) + m.klucz().toStdString()).c_str()});
        jedna = sekundy([&] { WypelnijDeklaracje(o, Deklaracja::Pit11, ile / 2, kRok, kDzis); });
        wszystkie = sekundy([&] {
            const SeriaDeklaracji seria(o, Deklaracja::Pit11, kRok, osoby, kDzis);
            const SeriaStron strony = seria.strony();
            for (int i = 0; i < strony.ile; ++i) benchmark::DoNotOptimize(strony.wiersz(i));
        });
        uwagi = sekundy([&] {
            benchmark::DoNotOptimize(SeriaDeklaracji(o, Deklaracja::Pit11, kRok, osoby, kDzis).pozycje());
        });
        stan.SetIterationTime(wszystkie);
    }
    stan.counters["surowo_ms"] = surowo * 1e3;
    stan.counters["razy"] = wszystkie / surowo;
    stan.counters["jedna_ms"] = jedna * 1e3;
    stan.counters["z_uwagami_ms"] = uwagi * 1e3;
}

BENCHMARK(Pit11Roku)->Arg(10000)->UseManualTime()->Iterations(1)->Repetitions(3)->Unit(
    benchmark::kMillisecond);

} // namespace
