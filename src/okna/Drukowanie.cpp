#include "okna/Drukowanie.h"
#include "common/Rozmowa.h"
#include "druk/Wyjscie.h"
#include "okna/frmPodglad.h"
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

namespace tornel::okna {

bool Drukuj(const Uklad& uklad, Drukarka drukarka, Rozmowa& rozmowa, QWidget* rodzic) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(uklad.opis().tytul);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(uklad.opis().strona.poziomo ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setFullPage(true);
    int od = 1, dokad = uklad.stron();
    if (drukarka == Drukarka::Wybierana) {
        QPrintDialog wybor(&printer, rodzic);
        wybor.setMinMax(1, uklad.stron());
        wybor.setOption(QAbstractPrintDialog::PrintPageRange);
        if (wybor.exec() != QDialog::Accepted) return false;
        if (wybor.printRange() == QAbstractPrintDialog::PageRange) {
            od = std::max(1, wybor.fromPage());
            dokad = std::min(uklad.stron(), wybor.toPage());
        }
    }
    QPainter malarz;
    const auto niepowodzenie = [&] {
        rozmowa.komunikat(
            QStringLiteral("Nie można drukować na drukarce „%1”. Sprawdź, czy drukarka jest włączona "
                           "i gotowa.")
                .arg(printer.printerName()),
            Styl::Krytyczny);
        return false;
    };
    if (!printer.isValid() || !malarz.begin(&printer)) return niepowodzenie();
    const auto postep = rozmowa.postep(uklad.opis().tytul, dokad - od + 1);
    for (int s = od; s <= dokad; ++s) {
        if (s > od && !printer.newPage()) return niepowodzenie();
        MalujStrone(malarz, printer.resolution(), uklad, s - 1);
        if (!postep->krok(s - od + 1, QStringLiteral("Drukowanie strony %1").arg(s))) {
            printer.abort();
            return false;
        }
    }
    return malarz.end() ? true : niepowodzenie();
}

bool PokazWydruk(std::shared_ptr<const Uklad> uklad, Podglad podglad, Rozmowa& rozmowa, QWidget* rodzic) {
    if (podglad == Podglad::Nie)
        return rozmowa.pytanie(QStringLiteral("Czy na pewno drukować ?")) &&
               Drukuj(*uklad, Drukarka::Domyslna, rozmowa, rodzic);
    frmPodglad okno(std::move(uklad), rozmowa, rodzic);
    okno.exec();
    return true;
}

} // namespace tornel::okna
