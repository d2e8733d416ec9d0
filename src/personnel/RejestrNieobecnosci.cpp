#include "personnel/RejestrNieobecnosci.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "personnel/Pracownicy.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"

namespace tornel::personnel {

using schemat::PRACDP;

QString odmowaZakresu() { return QStringLiteral("Data końcowa musi być większ od początkowej."); }

bool ZakresPrzyjety(Rozmowa& rozmowa, const ZakresDat& zakres) {
    if (zakres.poprawny()) return true;
    rozmowa.komunikat(odmowaZakresu(), Styl::Wykrzyknik);
    return false;
}

RejestrNieobecnosci::RejestrNieobecnosci(Otoczenie& otoczenie, Recordset& uchwyt, const Teksty& teksty)
    : o_(otoczenie), uchwyt_(uchwyt), teksty_(teksty) {
    uchwyt_.Close(); // whatever an earlier screen had taken up
}

Kolumna RejestrNieobecnosci::kolumna(std::string_view nazwa) const {
    return uchwyt_.tabela().nr(uchwyt_.tabela().numer(nazwa));
}

QList<WierszRejestru> RejestrNieobecnosci::lista() const {
    const Kolumna prcId = kolumna("prc_id"), naz = kolumna("Naz"), imie = kolumna("Imie"),
                  od = kolumna("Data"), dokad = kolumna("data_do");
    PrzygotowaneZapytanie zapytanie(
        o_.sesja.cnPlace,
        Zapytanie(uchwyt_.tabela()).kolumny(prcId, naz, imie, od, dokad).wedlug(prcId, od, dokad));
    QList<WierszRejestru> wynik;
    for (auto w = zapytanie.uruchom(); w.nastepny();)
        wynik.append(
            {w.nrWiersza(), w.liczba(prcId), w.tekst(naz), w.tekst(imie), {w.data(od), w.data(dokad)}});
    return wynik;
}

Recordset RejestrNieobecnosci::wiersze(std::optional<qint64> prcId) const {
    Recordset rs(uchwyt_.tabela());
    Warunek warunek;
    if (prcId) warunek.append({kolumna("prc_id"), Kryterium::Operator::Rowne, *prcId});
    rs.Open(o_.sesja.cnPlace, {}, warunek);
    rs.Sort({kolumna("prc_id"), kolumna("Data"), kolumna("data_do")});
    rs.MoveFirst();
    return rs;
}

bool RejestrNieobecnosci::Wypisz(const WierszRejestru& wiersz) {
    // A row imported without a date must be found as well, or nobody could delete it.
    const auto rowna = [this](std::string_view nazwa, QDate data) -> Kryterium {
        return {kolumna(nazwa), Kryterium::Operator::Rowne, data.isValid() ? Wartosc(data) : Wartosc(Null)};
    };
    uchwyt_.Open(o_.sesja.cnPlace, {},
                 {{kolumna("prc_id"), Kryterium::Operator::Rowne, wiersz.prcId},
                  rowna("Data", wiersz.zakres.od),
                  rowna("data_do", wiersz.zakres.dokad)});
    if (uchwyt_.naWierszu()) return true;
    o_.rozmowa.komunikat(QStringLiteral("FATAL ERROR !!! Nie znaleziono rekordu."), Styl::Krytyczny);
    return false;
}

void RejestrNieobecnosci::Wpisz() {
    uchwyt_.ustaw(kolumna("Kwota"), Round(uchwyt_.kwota(kolumna("Kwota")), 2));
    uchwyt_.UpdateBatch(u"Zmiana w rejestrze nieobecności");
}

bool RejestrNieobecnosci::Usun() {
    if (!o_.rozmowa.pytanieUsuwajace(teksty_.usunac.toString())) return false;
    try {
        uchwyt_.Delete();
        uchwyt_.UpdateBatch(u"Usunięcie z rejestru nieobecności");
    } catch (...) {
        uchwyt_.CancelBatch();
        throw;
    }
    return true;
}

bool RejestrNieobecnosci::moznaZarejestrowac(qint64 prcId, const ZakresDat& zakres) const {
    if (!Pracownicy(o_).istnieje(prcId))
        throw Blad(QStringLiteral("Nie ma pracownika o numerze %1.").arg(prcId));
    if (!ZakresPrzyjety(o_.rozmowa, zakres)) return false;
    const Recordset rs = wiersze(prcId);
    for (const Wiersz w : rs.wiersze()) {
        if (!zakres.maWspolnyDzien({w.data(kolumna("Data")), w.data(kolumna("data_do"))})) continue;
        o_.rozmowa.komunikat(teksty_.pokrywaSie.toString(), Styl::Wykrzyknik);
        return false;
    }
    return true;
}

qint64 RejestrNieobecnosci::dopisz(qint64 prcId, const ZakresDat& zakres,
                                   std::initializer_list<std::pair<Kolumna, Wartosc>> wartosci) {
    // Nothing is read: the condition holds for no row, and the new one stands alone in the handle.
    uchwyt_.Open(o_.sesja.cnPlace, {},
                 {{kolumna("prc_id"), Kryterium::Operator::Rowne, prcId},
                  {kolumna("Data"), Kryterium::Operator::Rowne, zakres.od},
                  {kolumna("data_do"), Kryterium::Operator::Rowne, zakres.dokad}});
    const std::optional<Wiersz> osoba = o_.sesja.rsPRACDP.szukaj(prcId);
    if (!osoba) throw Blad(QStringLiteral("Nie ma pracownika o numerze %1.").arg(prcId));
    try {
        uchwyt_.AddNewZero(prcId);
        uchwyt_.ustaw(kolumna("Naz"), osoba->tekst(PRACDP("Naz")));
        uchwyt_.ustaw(kolumna("Imie"), osoba->tekst(PRACDP("Imie_1")));
        uchwyt_.ustaw(kolumna("Data"), zakres.od);
        uchwyt_.ustaw(kolumna("data_do"), zakres.dokad);
        for (const auto& [kolumnaRejestru, wartosc] : wartosci) uchwyt_.ustaw(kolumnaRejestru, wartosc);
        uchwyt_.UpdateBatch(QStringLiteral("Nowa nieobecność pracownika nr %1").arg(prcId));
    } catch (...) {
        uchwyt_.CancelBatch();
        throw;
    }
    return o_.sesja.cnPlace.ostatniWiersz();
}

} // namespace tornel::personnel
