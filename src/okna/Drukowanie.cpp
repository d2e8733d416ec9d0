#include "okna/Drukowanie.h"
#include "common/Rozmowa.h"
#include "okna/frmPodglad.h"
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace tornel::okna {

WynikStron RysujStrony(QPagedPaintDevice& urzadzenie, double rozdzielczosc, const Uklad& uklad, int od,
                       int dokad, const PostepStron& postep) {
    QPainter malarz;
    if (!malarz.begin(&urzadzenie)) return WynikStron::Niepowodzenie;
    for (int s = od; s <= dokad; ++s) {
        if (s > od && !urzadzenie.newPage()) return WynikStron::Niepowodzenie;
        MalujStrone(malarz, rozdzielczosc, uklad, s - 1);
        if (postep && !postep(s)) return WynikStron::Zatrzymane;
    }
    return malarz.end() ? WynikStron::Gotowe : WynikStron::Niepowodzenie;
}

std::optional<Wydanie> Drukuj(const Uklad& uklad, Drukarka drukarka, Rozmowa& rozmowa, QWidget* rodzic) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(uklad.opis().tytul);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(uklad.opis().strona.poziomo ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setFullPage(true);
    Wydanie wydane{1, uklad.stron()};
    if (drukarka == Drukarka::Wybierana) {
        QPrintDialog wybor(&printer, rodzic);
        wybor.setMinMax(1, uklad.stron());
        wybor.setOption(QAbstractPrintDialog::PrintPageRange);
        if (wybor.exec() != QDialog::Accepted) return std::nullopt;
        if (wybor.printRange() == QAbstractPrintDialog::PageRange) {
            wydane.od = std::max(1, wybor.fromPage());
            wydane.dokad = std::min(uklad.stron(), wybor.toPage());
        }
    } else if (printer.printerName().isEmpty()) {
        // Without a printer the toolkit would write a file of its own somewhere.
        rozmowa.komunikat(
            QStringLiteral("Nie ma żadnej drukarki. Wydruk można obejrzeć i zapisać jako PDF, gdy stała "
                           "programu nie każe drukować bez podglądu."),
            Styl::Krytyczny);
        return std::nullopt;
    }
    const auto postep = rozmowa.postep(uklad.opis().tytul, wydane.dokad - wydane.od + 1);
    const WynikStron wynik =
        RysujStrony(printer, printer.resolution(), uklad, wydane.od, wydane.dokad, [&](int s) {
            return postep->krok(s - wydane.od + 1, QStringLiteral("Drukowanie strony %1").arg(s));
        });
    if (wynik == WynikStron::Gotowe) {
        if (printer.outputFormat() == QPrinter::PdfFormat) wydane.plik = printer.outputFileName();
        return wydane;
    }
    printer.abort();
    if (wynik == WynikStron::Niepowodzenie)
        rozmowa.komunikat(
            QStringLiteral("Nie można drukować na drukarce „%1”. Sprawdź, czy drukarka jest włączona "
                           "i gotowa.")
                .arg(printer.printerName()),
            Styl::Krytyczny);
    return std::nullopt;
}

bool PokazWydruk(std::shared_ptr<const Uklad> uklad, Podglad podglad, Rozmowa& rozmowa, QWidget* rodzic,
                 const PoWydaniu& poWydaniu) {
    if (podglad == Podglad::Nie) {
        if (!rozmowa.pytanie(QStringLiteral("Czy na pewno drukować ?"))) return false;
        const auto wydane = Drukuj(*uklad, Drukarka::Domyslna, rozmowa, rodzic);
        if (wydane && poWydaniu) poWydaniu(*wydane);
        return wydane.has_value();
    }
    frmPodglad(std::move(uklad), rozmowa, rodzic, poWydaniu).exec();
    return true;
}

} // namespace tornel::okna
