#include "rules/CofanieCzynnosci.h"
#include "common/Rozmowa.h"
#include "rules/Konfiguracja.h"
#include "rules/SkladnikiPlac.h"
#include "store/Sesja.h"
#include <QDir>

namespace tornel::rules {

std::optional<WpisDziennika> CofnijLubPonow(Otoczenie& otoczenie, const QString& folderProgramu,
                                            Kierunek kierunek) {
    Sesja& sesja = otoczenie.sesja;
    Cofanie cofanie(sesja.cnPlace);
    if (const auto wpis = cofanie.nastepna(kierunek)) {
        const QString plik = QDir::toNativeSeparators(cofanie.plikCzynnosci(*wpis));
        const QString pytanie =
            kierunek == Kierunek::Cofnij
                ? QStringLiteral(
                      "Czynność „%1” zapisała plik „%2”. Cofnięcie zdejmie znaki wysłania, a plik "
                      "pozostanie: te same dane mogą zostać wysłane drugi raz. Czy mimo to cofnąć ?")
                : QStringLiteral("Czynność „%1” zapisała plik „%2”. Ponowienie przywróci znaki wysłania, ale "
                                 "pliku nie zapisze. Czy mimo to ponowić ?");
        if (!plik.isEmpty() && !otoczenie.rozmowa.pytanieUsuwajace(pytanie.arg(wpis->czynnosc, plik)))
            return std::nullopt;
    }
    const WpisDziennika wynik = cofanie.wykonaj(kierunek);
    sesja.OdswiezUchwyty();
    otoczenie.skladniki.WczytajSkladnikiPlac(sesja);
    WczytajKonfiguracje(sesja, otoczenie.stale, folderProgramu);
    return wynik;
}

} // namespace tornel::rules
