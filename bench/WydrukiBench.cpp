// What paper and the bank's file cost: a PDF against the bare painting of the same texts and lines with the
// same library, a preview and the bank's file against the raw read of their rows.
#include "bank/MultiCash.h"
#include "bench/Pomiar.h"
#include "bench/Surowe.h"
#include "druk/Pisma.h"
#include "druk/Plotno.h"
#include "druk/Wyjscie.h"
#include "okna/frmPodglad.h"
#include "okna/WidokStrony.h"
#include "payroll/lista/ListaPlac.h"
#include "reports/place/WydrukiListyPlac.h"
#include "reports/przelewy/WydrukPrzelewow.h"
#include "start/Rozruch.h"
#include "store/Sesja.h"
#include <algorithm>
#include <benchmark/benchmark.h>
#include <QApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <random>

using namespace tornel::start;
using namespace tornel::bench;

namespace {

constexpr int kDpi = 720;

/// What was painted, worked out to coordinates: only drawing is left.
class Nagranie final : public Plotno {
public:
    struct Napis {
        QPointF miejsce;
        QString tekst;
        Pismo pismo;
    };
    struct Linia {
        QLineF linia;
        bool przerywana;
    };
    struct Strona {
        std::vector<Napis> napisy;
        std::vector<Linia> linie;
        std::vector<QRectF> ramki;
    };

    void tekst(const Miejsce& m, const QString& tekst, Pismo rola, Ulozenie ulozenie) override {
        if (tekst.isEmpty()) return;
        const double wolne = m.szer - szerTekstu(tekst, rola);
        const double x = ulozenie == Ulozenie::Lewo ? 0 : ulozenie == Ulozenie::Srodek ? wolne / 2 : wolne;
        strony.back().napisy.push_back({{(m.x + std::max(0.0, x)) * kJednostekWMm,
                                         (m.y + m.wys / 2) * kJednostekWMm + pismo(rola).pixelSize() * 0.36},
                                        tekst,
                                        rola});
    }
    void linia(const Miejsce& m, bool przerywana) override {
        strony.back().linie.push_back({QLineF(m.x, m.y, m.x + m.szer, m.y + m.wys), przerywana});
        QLineF& l = strony.back().linie.back().linia;
        l = QLineF(l.p1() * kJednostekWMm, l.p2() * kJednostekWMm);
    }
    void ramka(const Miejsce& m) override {
        strony.back().ramki.emplace_back(m.x * kJednostekWMm, m.y * kJednostekWMm, m.szer * kJednostekWMm,
                                         m.wys * kJednostekWMm);
    }
    void obraz(const Miejsce&, const QString&) override {}

    std::vector<Strona> strony;
};

/// Paints the recording into a PDF with nothing but the library.
void malujSurowo(const Nagranie& nagranie, const QString& plik, bool poziomo) {
    QSaveFile cel(plik);
    if (!cel.open(QIODevice::WriteOnly)) qFatal("cannot write %s", qPrintable(plik));
    {
        QPdfWriter pdf(&cel);
        pdf.setResolution(kDpi);
        pdf.setPageLayout(
            {QPageSize(QPageSize::A4), poziomo ? QPageLayout::Landscape : QPageLayout::Portrait, {}});
        QPainter malarz(&pdf);
        ustawSkale(malarz, kDpi);
        malarz.setPen(QPen(Qt::black, 0.2 * kJednostekWMm));
        bool pierwsza = true;
        for (const Nagranie::Strona& strona : nagranie.strony) {
            if (!std::exchange(pierwsza, false)) pdf.newPage();
            for (const Nagranie::Napis& n : strona.napisy) {
                malarz.setFont(pismo(n.pismo));
                malarz.drawText(n.miejsce, n.tekst);
            }
            for (const QRectF& r : strona.ramki) malarz.drawRect(r);
            for (const Nagranie::Linia& l : strona.linie) {
                if (l.przerywana) {
                    QPen pioro = malarz.pen();
                    pioro.setStyle(Qt::DashLine);
                    malarz.setPen(pioro);
                }
                malarz.drawLine(l.linia);
                if (l.przerywana) malarz.setPen(QPen(Qt::black, 0.2 * kJednostekWMm));
            }
        }
    }
    cel.commit();
}

std::shared_ptr<const Uklad> wydrukListy(Program& program, ListaPlac& lista,
                                         tornel::reports::WydrukListy ktory) {
    return tornel::reports::UlozWydrukListy(ktory, program.otoczenie(), lista, QDate(2001, 2, 1));
}

/// Layout and PDF of the print, against the bare painting; and how much the writing added to the memory.
void Pdf(benchmark::State& stan, tornel::reports::WydrukListy ktory) {
    const QString baza = kopiaFirmy(static_cast<int>(stan.range(0)), 1);
    const QString plik =
        QDir(QDir::temp().filePath(QStringLiteral("tornel-bench"))).filePath(QStringLiteral("w.pdf"));
    RozmowaCicha rozmowa;
    Program program(baza, QDir::tempPath(), rozmowa);
    ListaPlac lista(program.otoczenie(), 2001, 1, QStringLiteral(" "));
    double nasz = 0, surowy = 0;
    for (auto _ : stan) {
        std::shared_ptr<const Uklad> uklad;
        const double ukladanie = sekundy([&] { uklad = wydrukListy(program, lista, ktory); });
        zerujSzczytPamieci();
        const double przed = szczytPamieciMiB();
        const double zapis = sekundy([&] { (void)ZapiszPdf(*uklad, plik); });
        stan.counters["pamiec_MiB"] = szczytPamieciMiB() - przed;
        nasz = ukladanie + zapis;
        stan.counters["ukladanie_ms"] = ukladanie * 1e3;
        stan.counters["stron"] = uklad->stron();
        Nagranie nagranie;
        for (int s = 0; s < uklad->stron(); ++s) {
            nagranie.strony.emplace_back();
            uklad->rysuj(s, nagranie);
        }
        surowy = sekundy([&] { malujSurowo(nagranie, plik, uklad->opis().strona.poziomo); });
        stan.SetIterationTime(nasz);
    }
    stan.counters["surowo_ms"] = surowy * 1e3;
    stan.counters["razy"] = nasz / surowy;
}
void PdfPokwitowan(benchmark::State& stan) { Pdf(stan, tornel::reports::WydrukListy::Pokwitowania); }

/// Transfers on their form, two copies a page: layout and PDF, with the memory that it takes.
void PdfPrzelewow(benchmark::State& stan) {
    const Przelew wzor = UlozPrzelew(
        {QStringLiteral("Barbara Adamska Szkolna 14/7"), QStringLiteral("10990001-120045-27006-11"),
         Waluta::zlotych(1992), QStringLiteral("Wytwórnia Mebli Garbarska 12 26-610 Radom"),
         QStringLiteral("10990001-445566-27006-01"), QStringLiteral("Wynagrodzenie 01.2001")});
    const QString plik =
        QDir(QDir::temp().filePath(QStringLiteral("tornel-bench"))).filePath(QStringLiteral("w.pdf"));
    for (auto _ : stan) {
        zerujSzczytPamieci();
        const double przed = szczytPamieciMiB();
        stan.SetIterationTime(sekundy([&] {
            (void)ZapiszPdf(
                *tornel::reports::UlozPrzelewy(QList<Przelew>(stan.range(0), wzor), UkladPrzelewu::Przelew),
                plik);
        }));
        stan.counters["pamiec_MiB"] = szczytPamieciMiB() - przed;
        stan.counters["plik_MiB"] = static_cast<double>(QFile(plik).size()) / 1048576.0;
    }
}

/// A print until its first page is painted, against the raw read of the month; then the slowest of pages
/// turned at random.
void Podglad(benchmark::State& stan, tornel::reports::WydrukListy ktory) {
    const QString baza = kopiaFirmy(static_cast<int>(stan.range(0)), 1);
    RozmowaCicha rozmowa;
    Program program(baza, QDir::tempPath(), rozmowa);
    ListaPlac lista(program.otoczenie(), 2001, 1, QStringLiteral(" "));
    double pierwsza = 0, surowy = 0, najwolniejsza = 0;
    for (auto _ : stan) {
        std::unique_ptr<frmPodglad> okno;
        pierwsza = sekundy([&] {
            okno = std::make_unique<frmPodglad>(wydrukListy(program, lista, ktory), rozmowa);
            okno->show();
            QApplication::processEvents();
        });
        auto* widok = okno->findChild<WidokStrony*>(QStringLiteral("widokStrony"));
        auto* papier = widok->findChild<QWidget*>(QStringLiteral("papier"));
        const int stron = wydrukListy(program, lista, ktory)->stron();
        std::mt19937 los(1);
        for (int i = 0; i < 100; ++i) {
            const int strona = std::uniform_int_distribution(0, stron - 1)(los);
            najwolniejsza = std::max(najwolniejsza, sekundy([&] {
                                         widok->pokazStrone(strona);
                                         papier->repaint();
                                         QApplication::processEvents();
                                     }));
        }
        surowy = CzytajSurowo(program.sesja(), {"PLA200101", "PLB200101", "PLS200101", "PLD200101"});
        stan.counters["stron"] = stron;
        stan.SetIterationTime(pierwsza);
    }
    stan.counters["strona_ms"] = najwolniejsza * 1e3;
    stan.counters["surowo_ms"] = surowy * 1e3;
    stan.counters["razy"] = pierwsza / surowy;
}
void PodgladListy(benchmark::State& stan) { Podglad(stan, tornel::reports::WydrukListy::ListaPlac); }
void PodgladWersji2(benchmark::State& stan) { Podglad(stan, tornel::reports::WydrukListy::Wersja2); }
void PodgladWersji3(benchmark::State& stan) { Podglad(stan, tornel::reports::WydrukListy::Wersja3); }
void PodgladPokwitowan(benchmark::State& stan) { Podglad(stan, tornel::reports::WydrukListy::Pokwitowania); }

/// Everybody paid by transfer in package 1, nobody sent yet.
void wszystkichPrzelewem(Program& program) {
    Polaczenie& baza = program.sesja().cnPlace;
    Transakcja transakcja(baza, u"Dane pomiaru");
    baza.wykonaj("UPDATE PLA200101 SET PRZELEWEM = 1000000; UPDATE PLB200101 SET PACZKA = 1, WYS_MCS = ''");
    transakcja.zatwierdz();
}

/// The bank's file from the closed month to its marks, against the raw read of the rows and the raw write of
/// the bytes; beside it the file alone, without marks, and the raw update of the marks.
void PlikMultiCash(benchmark::State& stan) {
    const QString baza = kopiaFirmy(static_cast<int>(stan.range(0)), 1);
    RozmowaCicha rozmowa;
    Program program(baza, QDir::tempPath(), rozmowa);
    const PrzebiegMCS przebieg{QDate(2001, 2, 1),
                               QDate(2001, 2, 2),
                               1,
                               QDir::temp().filePath(QStringLiteral("tornel-bench")),
                               QStringLiteral("10990001-445566-27006-01"),
                               QStringLiteral("Wynagrodzenie za styczeń"),
                               QDateTime({2001, 2, 1}, {12, 0})};
    const QString plik = MultiCash::nazwaPliku(przebieg);
    double nasz = 0, surowy = 0, znaki = 0;
    for (auto _ : stan) {
        wszystkichPrzelewem(program);
        QFile::remove(plik);
        int zlecen = 0;
        double otwarcie = 0;
        nasz = sekundy([&] {
            std::optional<OtwartyMiesiac> miesiac;
            otwarcie = sekundy([&] { miesiac.emplace(program.sesja(), RokMies{2001, 1}); });
            zlecen = MultiCash(program.otoczenie()).utworz(przebieg, {}).value_or(0);
        });
        stan.counters["otwarcie_ms"] = otwarcie * 1e3;
        if (zlecen == 0) qFatal("no orders");
        QFile gotowy(plik);
        if (!gotowy.open(QIODevice::ReadOnly)) qFatal("no file");
        const QByteArray bajty = gotowy.readAll();
        surowy = CzytajSurowo(program.sesja(), {"PLA200101", "PLB200101", "PRACDP", "PRACPR"}) + sekundy([&] {
                     QSaveFile cel(plik);
                     if (cel.open(QIODevice::WriteOnly)) cel.write(bajty);
                     cel.commit();
                 });
        znaki = sekundy([&] {
            Transakcja transakcja(program.sesja().cnPlace, u"Dane pomiaru");
            Instrukcja zmien(program.sesja().cnPlace, "UPDATE PLB200101 SET WYS_MCS = 'X' WHERE rowid = ?");
            for (qint64 w = 1; w <= zlecen; ++w) zmien.wiaz(0, w).wykonaj();
            transakcja.zatwierdz();
        });
        stan.SetIterationTime(nasz);
    }
    stan.counters["surowo_ms"] = surowy * 1e3;
    stan.counters["znaki_ms"] = znaki * 1e3;
    stan.counters["razy"] = nasz / surowy;
    stan.counters["razy_ze_znakami"] = nasz / (surowy + znaki);
}

void pomiar(benchmark::internal::Benchmark* b) {
    b->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
}

BENCHMARK(PdfPokwitowan)->Arg(1000)->Arg(10000)->Apply(pomiar);
BENCHMARK(PdfPrzelewow)->Arg(1000)->Arg(10000)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(PodgladListy)->Arg(50000)->Apply(pomiar);
BENCHMARK(PodgladWersji2)->Arg(50000)->Apply(pomiar);
BENCHMARK(PodgladWersji3)->Arg(50000)->Apply(pomiar);
BENCHMARK(PodgladPokwitowan)->Arg(50000)->Apply(pomiar);
BENCHMARK(PlikMultiCash)->Arg(1000)->Arg(10000)->Apply(pomiar);

} // namespace
