// What contracts cost when there are many: the screen against the raw read of its table, a typed amount until
// it is stored, the tax transfers of a month against the raw read.
#include "bank/Wyplaty.h"
#include "bench/Pomiar.h"
#include "bench/Surowe.h"
#include "contracts/frmUmowy.h"
#include "start/Rozruch.h"
#include "store/Sesja.h"
#include <benchmark/benchmark.h>

using namespace tornel::start;
using namespace tornel::bench;

namespace {

constexpr int kUmowMiesiecznie = 1000;

/// So many commission contracts of one employee, a thousand in each month up to December 2001, all computed
/// and paid by transfer.
void zapelnijUmowy(Program& program, int ile) {
    Umowy umowy(program.otoczenie(), RodzajeUmow().front());
    for (const LiniaUmowy& l : umowy.Wczytaj()) {
        (void)umowy.Wypisz(l.id);
        (void)umowy.Usun();
    }
    const qint64 wzor = umowy.Nowy(2, {2001, 12, 1});
    (void)umowy.Wypisz(wzor);
    for (const auto& [pole, tekst] : {std::pair{"Brutto", u"800"}, {"przelewem", u"500"}})
        (void)umowy.Opusc(*ZnajdzPoleUmowy(RodzajeUmow().front(), QString::fromLatin1(pole)),
                          QString::fromUtf16(tekst));
    umowy.Wpisz();
    Polaczenie& baza = program.sesja().cnPlace;
    Transakcja transakcja(baza, u"Dane pomiaru");
    std::string kolumny, wartosci;
    for (const KolumnaDef& k : schemat::UZL.kolumny) {
        const std::string nazwa(k.nazwa);
        kolumny += (kolumny.empty() ? "" : ", ") + nazwa;
        if (nazwa == "UZLID")
            wartosci += "n";
        else if (nazwa == "data_wyp" || nazwa == "data_zaw")
            wartosci +=
                ", date('2001-12-15', '-' || (n / " + std::to_string(kUmowMiesiecznie) + ") || ' months')";
        else
            wartosci += ", " + nazwa;
    }
    baza.wykonaj("WITH RECURSIVE licz(n) AS (SELECT 2 UNION ALL SELECT n + 1 FROM licz WHERE n < " +
                 std::to_string(ile) + ") INSERT INTO UZL (" + kolumny + ") SELECT " + wartosci +
                 " FROM licz, UZL WHERE UZLID = 1");
    transakcja.zatwierdz();
}

void UmowyEkran(benchmark::State& stan) {
    const auto ile = static_cast<int>(stan.range(0));
    RozmowaCicha rozmowa;
    Program program(kopiaFirmy(12, 1), QDir::tempPath(), rozmowa);
    zapelnijUmowy(program, ile);
    Otoczenie& o = program.otoczenie();
    const RodzajUmowy& uzl = RodzajeUmow().front();
    int zlotych = 1000;
    double surowo = 0, dane = 0, ekran = 0, wpis = 0, podatek = 0;
    for (auto _ : stan) {
        surowo = CzytajSurowo(program.sesja(), {"UZL"});
        dane = sekundy([&] { benchmark::DoNotOptimize(Umowy(o, uzl).Wczytaj().size()); });
        ekran = sekundy([&] {
            frmUmowy okno(o, uzl);
            okno.show();
            QCoreApplication::processEvents();
        });
        Umowy umowy(o, uzl);
        (void)umowy.Wypisz(ile / 2);
        // Another amount each time, so that the row is really written.
        const QString kwota = QString::number(++zlotych);
        wpis = sekundy([&] {
            (void)umowy.Opusc(*ZnajdzPoleUmowy(uzl, QStringLiteral("Brutto")), kwota);
            umowy.Wpisz();
        });
        podatek = sekundy([&] {
            benchmark::DoNotOptimize(
                Wyplaty(o).podatekUmow(*rodzajWyplat(QStringLiteral("UZL")), {2001, 12, 1}, {2001, 12, 31}));
        });
        stan.SetIterationTime(dane);
    }
    stan.counters["umow"] = ile;
    stan.counters["surowo_ms"] = surowo * 1e3;
    stan.counters["dane_ms"] = dane * 1e3;
    stan.counters["dane_razy"] = dane / surowo;
    stan.counters["ekran_ms"] = ekran * 1e3;
    stan.counters["ekran_razy"] = ekran / surowo;
    stan.counters["wpis_ms"] = wpis * 1e3;
    stan.counters["podatek_ms"] = podatek * 1e3;
    stan.counters["podatek_razy"] = podatek / surowo;
}
BENCHMARK(UmowyEkran)->Arg(5000)->Arg(50000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
