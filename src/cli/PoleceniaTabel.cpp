#include "cli/Polecenia.h"
#include "common/Blad.h"
#include "common/Pliki.h"
#include "common/Rozmowa.h"
#include "payroll/lista/SumyMiesiaca.h"
#include "personnel/Pracownicy.h"
#include "store/Sesja.h"
#include "store/TabelaCsv.h"
#include <QFileInfo>

namespace tornel::cli {

namespace {

bool jestTabelaMiesiaca(const TabelaPliku& tabela) {
    return std::ranges::find(schemat::TabeleMiesiaca, tabela.def) != schemat::TabeleMiesiaca.end();
}

void wymagajOtwartegoMiesiaca(Sesja& sesja, const TabelaPliku& tabela) {
    if (jestTabelaMiesiaca(tabela) && sesja.ZnajdzMiesiac(tabela.rok, tabela.mies) &&
        sesja.rsPLACE.flaga(schemat::PLACE("akc")))
        throw Blad(QStringLiteral("Miesiąc %1 jest zablokowany i nie można go zmieniać.")
                       .arg(tekstMiesiaca({tabela.rok, tabela.mies})));
}

/// The header's sums of rows that were read from a file. Rows without their partners in the other tables,
/// which may still come, add what they have.
void przeliczSumy(Wywolanie& w, RokMies miesiac, const Transakcja& transakcja) {
    Sesja& sesja = w.otoczenie().sesja;
    const OtwartyMiesiac otwarty(sesja, miesiac);
    if (otwarty.jest() && !SumyMiesiaca(sesja, miesiac).zapisz(transakcja))
        w.rozmowa.komunikat(
            QStringLiteral("Sumy miesiąca %1 wychodzą poza zakres kwot i nie zostały przeliczone.")
                .arg(miesiac.napis()),
            Styl::Wykrzyknik);
}

int importuj(Wywolanie& w) {
    const QString& plik = w.argumenty.pozycje[1];
    Sesja& sesja = w.otoczenie().sesja;
    const TabelaPliku tabela = ZnajdzTabele(sesja.cnPlace, w.argumenty.pozycje[0]);
    wymagajOtwartegoMiesiaca(sesja, tabela);
    const QByteArray csv = CzytajPlik(plik);
    WynikImportu wynik;
    try {
        Transakcja transakcja(sesja.cnPlace, u"Wczytanie tabeli z pliku");
        wynik = ImportujTabele(sesja.cnPlace, tabela, csv,
                               [&](Recordset& nowy) { Pracownicy(w.otoczenie()).WpiszDomyslne(nowy); });
        if (jestTabelaMiesiaca(tabela)) przeliczSumy(w, {tabela.rok, tabela.mies}, transakcja);
        transakcja.zatwierdz();
    } catch (const BladBazy&) {
        throw;
    } catch (const Blad& blad) {
        throw Blad(QStringLiteral("Plik „%1” nie został wczytany do tabeli %2.\n%3")
                       .arg(plik, tabela.nazwa, blad.komunikat()));
    }
    if (w.json())
        w.pisz(QJsonObject{{QStringLiteral("dodane"), wynik.dodane},
                           {QStringLiteral("zmienione"), wynik.zmienione}});
    else
        w.pisz(QStringLiteral("Tabela %1: wiersze dodane %2, zmienione %3.")
                   .arg(tabela.nazwa)
                   .arg(wynik.dodane)
                   .arg(wynik.zmienione));
    return status::Wykonane;
}

int eksportuj(Wywolanie& w) {
    Polaczenie& polaczenie = w.otoczenie().sesja.cnPlace;
    const QByteArray csv = EksportujTabele(polaczenie, ZnajdzTabele(polaczenie, w.argumenty.pozycje.first()));
    if (w.argumenty.pozycje.size() == 1) {
        w.piszSurowo(csv);
        return status::Wykonane;
    }
    const QString& plik = w.argumenty.pozycje[1];
    if (QFileInfo(plik) == QFileInfo(polaczenie.sciezka()))
        throw Blad(QStringLiteral("Plik „%1” to otwarta baza danych.").arg(plik));
    ZapiszPlik(plik, csv);
    return status::Wykonane;
}

} // namespace

QList<Polecenie> poleceniaTabel() {
    return {
        {u"import",
         u"TABELA PLIK.csv",
         u"zmienia w tabeli wiersze o kluczach z pliku i dodaje pozostałe, wszystko albo nic",
         2,
         2,
         {},
         importuj},
        {u"eksport",
         u"TABELA [PLIK.csv]",
         u"zapisuje tabelę w pliku (istniejący zastępuje) albo na wyjściu",
         1,
         2,
         {},
         eksportuj},
    };
}

} // namespace tornel::cli
