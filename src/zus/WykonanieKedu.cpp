#include "zus/WykonanieKedu.h"
#include <QFileInfo>

namespace tornel::zus {

void ZapamietajKedu(Sesja& sesja, const ZamowienieKedu& zamowienie, const WynikKedu& wynik) {
    QList<Wykonanie> wykonania;
    for (const auto& [kod, ile] : wynik.dokumenty) {
        const DokumentKedu& dokument = dokumentKedu(kod);
        const auto raport = zamowienie.raporty.find(kod);
        wykonania.append(
            {.rodzaj = kWykonanieKedu.kod.toString(),
             .miesiac = raport == zamowienie.raporty.end() ? RokMies{} : raport->second.miesiac,
             .zrodlo = dokument.nazwa.toString(),
             .komu = zamowienie.prcId,
             .dokument = ile,
             .plik = QFileInfo(zamowienie.plik).absoluteFilePath(),
             .opis = QStringLiteral("Kolekcja dla ZUS: ZUS %1, dokumentów %2").arg(dokument.nazwa).arg(ile)});
    }
    Wykonane(sesja).dopisz(wykonania, zamowienie.kiedy);
}

QString ZapisanoKedu(Sesja& sesja, KodKedu kod, std::optional<RokMies> miesiac) {
    return Wykonane(sesja).napis(kWykonanieKedu,
                                 {.miesiac = miesiac, .zrodlo = dokumentKedu(kod).nazwa.toString()});
}

} // namespace tornel::zus
