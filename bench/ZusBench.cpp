// What a collection for the insurer costs, against the raw read of the rows that it takes in and the write of
// its bytes.
#include "bench/Pomiar.h"
#include "bench/Surowe.h"
#include "common/Pliki.h"
#include "start/Rozruch.h"
#include "zus/KontrolaKedu.h"
#include <benchmark/benchmark.h>

using namespace tornel::start;
using namespace tornel::bench;
using tornel::store::schemat::PRACZUS;

namespace {

constexpr std::initializer_list<const char*> kKadry = {"PRACDP", "PRACPR", "PRACZUS", "PRACSK", "PRACINF"};
constexpr std::initializer_list<const char*> kMiesiac = {
    "PRACDP", "PRACPR", "PRACZUS", "PRACSK", "PRACINF", "PLA200101", "PLB200101", "PLS200101", "PLD200101"};

/// Everybody has to be reported.
void oznaczWszystkich(Sesja& s) {
    for (s.rsPRACZUS.MoveFirst(); !s.rsPRACZUS.EOF_(); s.rsPRACZUS.MoveNext())
        for (const Kolumna znak : {PRACZUS("oi_zua"), PRACZUS("rza")}) s.rsPRACZUS.ustaw(znak, 1);
    s.rsPRACZUS.UpdateBatch(u"Dane pomiaru");
}

void Kolekcja(benchmark::State& stan, std::initializer_list<KodKedu> kody,
              std::initializer_list<const char*> tabele) {
    const QString baza = kopiaFirmy(static_cast<int>(stan.range(0)), 1);
    RozmowaCicha rozmowa;
    Program program(baza, QDir::tempPath(), rozmowa);
    oznaczWszystkich(program.sesja());
    const QString plik =
        QDir(QDir::temp().filePath(QStringLiteral("tornel-bench"))).filePath(QStringLiteral("k.kdu"));
    double nasz = 0, surowy = 0;
    for (auto _ : stan) {
        QFile::remove(plik);
        ZamowienieKedu z{.plik = plik, .kiedy = QDateTime({2001, 2, 10}, {12, 0})};
        for (const KodKedu kod : kody) {
            z.wybor.ustaw(kod, 1);
            if (dokumentKedu(kod).petla == Petla::Raport) z.raporty[kod] = {{2001, 1}, QStringLiteral("01")};
        }
        zerujSzczytPamieci();
        const double przed = szczytPamieciMiB();
        nasz = sekundy([&] { (void)ZbiorKedu(program.otoczenie(), z).StworzPlik(); });
        stan.counters["pamiec_MiB"] = szczytPamieciMiB() - przed;
        const QByteArray bajty = CzytajPlik(plik);
        stan.counters["plik_MiB"] = static_cast<double>(bajty.size()) / 1048576.0;
        surowy = CzytajSurowo(program.sesja(), tabele) + sekundy([&] { ZapiszPlik(plik, bajty); });
        stan.counters["kontrola_ms"] = sekundy([&] { (void)SprawdzKedu(program.otoczenie(), z); }) * 1e3;
        stan.SetIterationTime(nasz);
    }
    stan.counters["surowo_ms"] = surowy * 1e3;
    stan.counters["razy"] = nasz / surowy;
}
void KolekcjaZUA(benchmark::State& stan) { Kolekcja(stan, {KodKedu::ZUA}, kKadry); }
void KolekcjaRNA(benchmark::State& stan) { Kolekcja(stan, {KodKedu::RNA}, kMiesiac); }
void KolekcjaRZA(benchmark::State& stan) { Kolekcja(stan, {KodKedu::RZA}, kMiesiac); }
void KolekcjaRSA(benchmark::State& stan) { Kolekcja(stan, {KodKedu::RSA}, kMiesiac); }

} // namespace

BENCHMARK(KolekcjaZUA)->Arg(10000)->Arg(50000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(KolekcjaRNA)->Arg(10000)->Arg(50000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(KolekcjaRZA)->Arg(10000)->Arg(50000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(KolekcjaRSA)->Arg(10000)->Arg(50000)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
