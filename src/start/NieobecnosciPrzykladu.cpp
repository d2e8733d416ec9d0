#include "start/NieobecnosciPrzykladu.h"
#include "common/Waluta.h"
#include "personnel/Kalendarz.h"
#include "store/Sesja.h"

namespace tornel::start {

using schemat::PRACDP;
using schemat::URL;
using schemat::ZW;

namespace {

constexpr int kRokNieobecnosci = 2001;
/// One vacation and one sick leave in so many employees.
constexpr int kCoKtory = 20;
constexpr int kResztaUrlopu = 13;
constexpr int kResztaZwolnienia = 3;
constexpr int kMiesiecy = 12;

/// The months take turns; a week begins on the first Monday after the 7th and stays within its month.
QDate poniedzialek(int prcId) {
    const QDate osmy(kRokNieobecnosci, prcId / kCoKtory % kMiesiecy + 1, 8);
    return osmy.addDays((Qt::Monday - osmy.dayOfWeek() + 7) % 7);
}

void wspolne(Recordset& rs, Recordset& dp, int prcId, QDate od, QDate dokad) {
    const TabelaDef& t = rs.tabela();
    const auto kolumna = [&](std::string_view nazwa) { return t.nr(t.numer(nazwa)); };
    (void)dp.Znajdz(prcId);
    rs.AddNewZero(prcId);
    rs.ustaw(kolumna("Naz"), dp.tekst(PRACDP("Naz")));
    rs.ustaw(kolumna("Imie"), dp.tekst(PRACDP("Imie_1")));
    rs.ustaw(kolumna("Data"), od);
    rs.ustaw(kolumna("data_do"), dokad);
}

} // namespace

void DodajNieobecnosciPrzykladu(Otoczenie& otoczenie, int od, int dokad) {
    Sesja& sesja = otoczenie.sesja;
    const Kalendarz kalendarz(otoczenie);
    Recordset urlopy(URL), zwolnienia(ZW);
    urlopy.Open(sesja.cnPlace);
    zwolnienia.Open(sesja.cnPlace);
    for (int prcId = od; prcId <= dokad; ++prcId) {
        const QDate pierwszy = poniedzialek(prcId);
        if (prcId % kCoKtory == kResztaUrlopu) {
            const QDate piatek = pierwszy.addDays(4);
            wspolne(urlopy, sesja.rsPRACDP, prcId, pierwszy, piatek);
            const auto dni = kalendarz.dni({kKalendarzOgolny, kRokNieobecnosci, pierwszy.month()});
            urlopy.ustaw(URL("il_dni"),
                         dni ? dni->ile(DniKalendarza::Roboczy, pierwszy.day(), piatek.day()) : 0);
        } else if (prcId % kCoKtory == kResztaZwolnienia) {
            wspolne(zwolnienia, sesja.rsPRACDP, prcId, pierwszy, pierwszy.addDays(6));
            zwolnienia.ustaw(ZW("st_proc"), Waluta::zlotych(80));
            zwolnienia.ustaw(ZW("kodswprz"), QStringLiteral("331"));
        }
    }
    Transakcja transakcja(sesja.cnPlace, u"Nieobecności firmy przykładowej");
    urlopy.UpdateBatch(transakcja);
    zwolnienia.UpdateBatch(transakcja);
    transakcja.zatwierdz();
}

} // namespace tornel::start
