#include "app/frmMainPodatki.h"
#include "app/frmMain.h"
#include "common/Rozmowa.h"
#include "druk/Wyjscie.h"
#include "okna/Drukowanie.h"
#include "okna/frmInputData.h"
#include "personnel/frmWybPr.h"
#include "reports/deklaracje/WydrukDeklaracji.h"
#include "rules/Stale.h"
#include "tax/frmDeklaracjaRoczna.h"
#include "tax/frmListaPIT4.h"
#include "tax/frmPIT8BAnaliza.h"
#include "tax/frmSeriaDeklaracji.h"
#include <optional>

namespace tornel::app {

namespace {

PortWydrukowDeklaracji wydrukiDeklaracji(Otoczenie& o) {
    const auto pokaz = [&o](const SeriaStron& seria, std::optional<int> strona, QWidget* rodzic) {
        PokazWydruk(reports::UlozDeklaracje(seria, strona), o.stale.DrukPIT ? Podglad::Nie : Podglad::Tak,
                    o.rozmowa, rodzic);
    };
    PortWydrukowDeklaracji port;
    port.drukuj = [pokaz](const WierszDeklaracji& deklaracja, int strona, QWidget* rodzic) {
        pokaz({deklaracja.ktora(), 1, [deklaracja](int) { return deklaracja; }}, strona, rodzic);
    };
    port.drukujSerie = [pokaz](const SeriaStron& seria, QWidget* rodzic) { pokaz(seria, {}, rodzic); };
    port.doPdf = [](const SeriaStron& seria, const QString& plik) {
        ZapiszPdf(*reports::UlozDeklaracje(seria), plik);
    };
    return port;
}

/// "Analiza danych od", "Analiza danych do"; nothing when given up, or when the range is the wrong way round.
std::optional<OkresPodatkowy> zakresAnalizy(Rozmowa& rozmowa, QWidget* rodzic) {
    const int rok = QDate::currentDate().year();
    QList<RokMies> granice;
    for (const auto& [tytul, mies] : {std::pair(QStringLiteral("Analiza danych od"), 1),
                                      std::pair(QStringLiteral("Analiza danych do"), 12)}) {
        frmInputData okno(frmInputData::Tryb::Miesiac, tytul, QDate(rok, mies, 1), rodzic);
        if (okno.exec() != QDialog::Accepted) return std::nullopt;
        granice.append({okno.rok(), okno.mies()});
    }
    if (granice[0] <= granice[1]) return OkresPodatkowy{granice[0], granice[1]};
    rozmowa.komunikat(QStringLiteral("Zakres dat jest nieprawidłowy."), Styl::Wykrzyknik);
    return std::nullopt;
}

void otworzJedna(Otoczenie& o, Deklaracja ktora, qint64 prcId, const OkresPodatkowy& okres, QWidget* rodzic) {
    frmDeklaracjaRoczna(o, ktora, prcId, okres, wydrukiDeklaracji(o), rodzic).exec();
}

/// One person's screen, or the series of those who were chosen together.
void otworzWybranych(Otoczenie& o, Deklaracja ktora, const QList<qint64>& osoby, const OkresPodatkowy& okres,
                     QWidget* rodzic) {
    if (osoby.size() == 1) return otworzJedna(o, ktora, osoby.first(), okres, rodzic);
    const auto otworz = [&o, ktora, okres](qint64 prcId, QWidget* nad) {
        otworzJedna(o, ktora, prcId, okres, nad);
    };
    frmSeriaDeklaracji(o, ktora, okres, osoby, wydrukiDeklaracji(o), otworz, rodzic).exec();
}

void pit11Lub40(Otoczenie& o, Deklaracja ktora, QWidget* rodzic) {
    const QList<qint64> osoby = frmWybPr::wybierz(o, kTrybPracujacy, frmWybPr::Ilu::Wielu, rodzic);
    if (osoby.isEmpty()) return;
    if (const auto okres = zakresAnalizy(o.rozmowa, rodzic)) otworzWybranych(o, ktora, osoby, *okres, rodzic);
}

void pit8b(Otoczenie& o, QWidget* rodzic) {
    const QList<qint64> osoby = frmWybPr::wybierz(o, kTrybPracujacy, frmWybPr::Ilu::Jeden, rodzic);
    if (osoby.isEmpty()) return;
    frmPIT8BAnaliza analiza(o, osoby.first(), QDate::currentDate().year(), rodzic);
    if (analiza.exec() == QDialog::Accepted)
        otworzJedna(o, Deklaracja::Pit8B, osoby.first(), analiza.okres(), rodzic);
}

} // namespace

void ZarejestrujPodatki(frmMain& okno, Otoczenie& otoczenie) {
    okno.rejestruj(Wejscie::PIT4,
                   [&] { frmListaPIT4(otoczenie, wydrukiDeklaracji(otoczenie), &okno).exec(); });
    okno.rejestruj(Wejscie::PIT11, [&] { pit11Lub40(otoczenie, Deklaracja::Pit11, &okno); });
    okno.rejestruj(Wejscie::PIT40, [&] { pit11Lub40(otoczenie, Deklaracja::Pit40, &okno); });
    okno.rejestruj(Wejscie::PIT8B, [&] { pit8b(otoczenie, &okno); });
}

} // namespace tornel::app
