// What the payroll costs as it grows: the batch against the raw write of the same rows, the start and the
// month's screen against the raw read of the rows shown. Prints a Markdown table with the ratios.
#include "bench/Pomiar.h"
#include "bench/Surowe.h"
#include "common/Daty.h"
#include "okna/Wyglad.h"
#include "payroll/lista/frmPlaceLista.h"
#include "payroll/lista/ListaPlac.h"
#include "payroll/miesiace/Miesiace.h"
#include "personnel/DniKalendarza.h"
#include "personnel/frmPrac.h"
#include "personnel/Pracownicy.h"
#include "rules/Stale.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "store/Sesja.h"
#include <benchmark/benchmark.h>
#include <cstdio>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>

using namespace tornel::start;
using namespace tornel::bench;

namespace {

/// Registers and calendars: nothing, or a general calendar of the year and, for each employee and month, a
/// vacation of a week and a sick leave of three days.
enum class Absencje { Brak, Sa };

void zapelnijRejestry(Program& program, Absencje absencje, int miesiac) {
    Polaczenie& baza = program.sesja().cnPlace;
    Transakcja transakcja(baza, u"Dane pomiaru");
    baza.wykonaj("DELETE FROM URL; DELETE FROM ZW; DELETE FROM KALENDARZ");
    for (int m = 1; absencje == Absencje::Sa && m <= miesiac; ++m) {
        const std::string rm = "2001-" + FormatMiesiaca(m).toStdString() + "-";
        baza.wykonaj("INSERT INTO URL (PRC_ID, DATA, DATA_DO, RODZAJ, KWOTA) SELECT PRC_ID, '" + rm +
                     "02', '" + rm + "06', 0, 0 FROM PRACPR");
        baza.wykonaj("INSERT INTO ZW (PRC_ID, DATA, DATA_DO, ST_PROC) SELECT PRC_ID, '" + rm + "12', '" + rm +
                     "14', 800000 FROM PRACPR");
        const DniKalendarza dni = DniKalendarza::nowyMiesiac(2001, m);
        std::string nazwy, znaki;
        for (int d = 1; d <= 31; ++d) {
            nazwy += ", DZIEN_" + std::to_string(d);
            znaki += ", " + std::to_string(dni[d]);
        }
        baza.wykonaj("INSERT INTO KALENDARZ (PRCID, ROK, MIES" + nazwy + ") VALUES (0, 2001, " +
                     std::to_string(m) + znaki + ")");
    }
    transakcja.zatwierdz();
    Stale& s = program.otoczenie().stale;
    s.AktRejPrzepDni = absencje == Absencje::Sa;
    s.MiesSrBr = s.ZIluMSrDn = 3;
    s.L4Prd = {20, 21, 22, 23};
    s.L4ZUS = {25, 26, 27, 28};
    s.SklSrL4 = s.SkSumDoSrURL = {1, 2, 4, 5};
    s.SklPrzelURL = {1, 2};
}

void Wsad(benchmark::State& stan, int miesiac, Absencje absencje) {
    const auto ile = static_cast<int>(stan.range(0));
    const QString baza = kopiaFirmy(ile, miesiac - 1);
    RozmowaCicha rozmowa;
    double wsad = 0, surowy = 0, rejestry = 0;
    int wierszy = 0;
    for (auto _ : stan) {
        zerujSzczytPamieci();
        Program program(baza, QDir::tempPath(), rozmowa);
        zapelnijRejestry(program, absencje, miesiac);
        Miesiace miesiace(program.otoczenie());
        miesiace.Nowy_miesiac([&] { return RokMies{2001, miesiac}; });
        QList<qint64> numery;
        for (const Osoba& osoba : Pracownicy(program.otoczenie()).doWyboru(1)) numery.append(osoba.prcId);
        std::sort(numery.begin(), numery.end());
        ListaPlac lista(program.otoczenie(), 2001, miesiac, QStringLiteral(" "));
        wsad = sekundy([&] { wierszy = lista.DodajPracownikow(numery).wykonane; });
        stan.counters["pamiec_MiB"] = szczytPamieciMiB();
        surowy = ZapiszSurowo(program.sesja(), miesiac);
        if (absencje == Absencje::Sa) rejestry = CzytajSurowo(program.sesja(), {"URL", "ZW"});
        stan.SetIterationTime(wsad);
    }
    stan.counters["wierszy"] = wierszy;
    stan.counters["rejestry_ms"] = rejestry * 1e3;
    stan.counters["us_na_wiersz"] = wsad * 1e6 / wierszy;
    stan.counters["surowo_ms"] = surowy * 1e3;
    stan.counters["razy"] = wsad / surowy;
}

void WsadStyczen(benchmark::State& stan) { Wsad(stan, 1, Absencje::Brak); }
void WsadGrudzien(benchmark::State& stan) { Wsad(stan, 12, Absencje::Brak); }
void NieobecnosciStyczen(benchmark::State& stan) { Wsad(stan, 1, Absencje::Sa); }
void NieobecnosciGrudzien(benchmark::State& stan) { Wsad(stan, 12, Absencje::Sa); }

/// Opening the program against the raw read of the personnel rows that it takes in.
void StartProgramu(benchmark::State& stan) {
    const QString baza = kopiaFirmy(static_cast<int>(stan.range(0)), 1);
    RozmowaCicha rozmowa;
    double start = 0, surowy = 0;
    for (auto _ : stan) {
        std::unique_ptr<Program> program;
        start = sekundy([&] { program = std::make_unique<Program>(baza, QDir::tempPath(), rozmowa); });
        surowy = CzytajSurowo(program->sesja(),
                              {"PRACDP", "PRACSK", "PRACINF", "PRACPR", "PRACZUS", "SZ_PL", "KON"});
        stan.SetIterationTime(start);
    }
    stan.counters["surowo_ms"] = surowy * 1e3;
    stan.counters["razy"] = start / surowy;
}

/// Opening the month's screen until it is painted, against the raw read of its four tables.
void EkranMiesiaca(benchmark::State& stan) {
    const QString baza = kopiaFirmy(static_cast<int>(stan.range(0)), 1);
    RozmowaCicha rozmowa;
    Program program(baza, QDir::tempPath(), rozmowa);
    double ekran = 0, surowy = 0;
    for (auto _ : stan) {
        std::unique_ptr<frmPlaceLista> okno;
        ekran = sekundy([&] {
            okno =
                std::make_unique<frmPlaceLista>(program.otoczenie(), RokMies{2001, 1}, QStringLiteral(" "));
            okno->show();
            QApplication::processEvents();
        });
        surowy = CzytajSurowo(program.sesja(), {"PLA200101", "PLB200101", "PLS200101", "PLD200101"});
        stan.SetIterationTime(ekran);
    }
    stan.counters["surowo_ms"] = surowy * 1e3;
    stan.counters["razy"] = ekran / surowy;
}

/// Opening the personnel file until it is painted, against the raw read of its five tables; then a name typed
/// into its quick find.
void EkranKadr(benchmark::State& stan) {
    const QString baza = kopiaFirmy(static_cast<int>(stan.range(0)), 0);
    RozmowaCicha rozmowa;
    Program program(baza, QDir::tempPath(), rozmowa);
    double ekran = 0, szukanie = 0, surowy = 0;
    for (auto _ : stan) {
        std::unique_ptr<frmPrac> okno;
        ekran = sekundy([&] {
            okno = std::make_unique<frmPrac>(program.otoczenie(), FiltrPracownikow::Wszyscy);
            okno->show();
            QApplication::processEvents();
        });
        auto* pole = okno->findChild<QLineEdit*>(QStringLiteral("txtSzukaj"));
        szukanie = sekundy([&] {
            for (const QChar znak : QStringLiteral("wróbel")) pole->insert(znak);
            QApplication::processEvents();
        });
        surowy = CzytajSurowo(program.sesja(), {"PRACDP", "PRACSK", "PRACINF", "PRACPR", "PRACZUS"});
        stan.SetIterationTime(ekran);
    }
    stan.counters["szukanie_ms"] = szukanie * 1e3;
    stan.counters["surowo_ms"] = surowy * 1e3;
    stan.counters["razy"] = ekran / surowy;
}

/// One amount typed over in a row of many: its chain computed and the row saved.
void JedenPracownik(benchmark::State& stan) {
    const QString baza = kopiaFirmy(static_cast<int>(stan.range(0)), 1);
    RozmowaCicha rozmowa;
    Program program(baza, QDir::tempPath(), rozmowa);
    ListaPlac lista(program.otoczenie(), 2001, 1, QStringLiteral(" "));
    const auto wiersze = lista.Wczytaj_listep();
    lista.Wypisz_daneP(wiersze[wiersze.size() / 2].klucz);
    const PoleListy& koszty = poleListy(u"txtKosztyUz");
    int grosze = 0;
    for (auto _ : stan) {
        // Another amount each time, so that the row is really written.
        lista.ZmienKwote(koszty, Waluta::zSurowej(100 * (9000 + ++grosze % 1000)));
    }
}

void rozmiaryFirmy(benchmark::internal::Benchmark* pomiar) {
    for (const int ile : {100, 1000, 10000, 50000}) pomiar->Arg(ile);
    pomiar->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
}

BENCHMARK(WsadStyczen)->Apply(rozmiaryFirmy);
BENCHMARK(WsadGrudzien)->Apply(rozmiaryFirmy);
BENCHMARK(NieobecnosciStyczen)->Apply(rozmiaryFirmy);
BENCHMARK(NieobecnosciGrudzien)->Apply(rozmiaryFirmy);
BENCHMARK(StartProgramu)->Arg(10000)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(EkranMiesiaca)
    ->Arg(10000)
    ->Arg(50000)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(EkranKadr)->Arg(10000)->Arg(50000)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(JedenPracownik)->Arg(10000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication program(argc, argv);
    Wyglad::zastosuj(program);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
