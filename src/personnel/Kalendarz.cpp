#include "personnel/Kalendarz.h"
#include "common/Blad.h"
#include "common/Rozmowa.h"
#include "personnel/Pracownicy.h"
#include "personnel/SwietaUstawowe.h"
#include "store/Seria.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"
#include <algorithm>

namespace tornel::personnel {

using schemat::DzienKalendarza;
using schemat::KALENDARZ;
using schemat::OpisKalendarza;

namespace {

constexpr auto kRowne = Kryterium::Operator::Rowne;

Kryterium rowne(Kolumna kolumna, qint64 liczba) { return {kolumna, kRowne, liczba}; }

Recordset otworz(Otoczenie& o, const Warunek& warunek) {
    Recordset rs(KALENDARZ);
    rs.Open(o.sesja.cnPlace, {}, warunek);
    rs.Sort({KALENDARZ("PrcId"), KALENDARZ("Rok"), KALENDARZ("Mies")});
    rs.MoveFirst();
    return rs;
}

Recordset otworzMiesiac(Otoczenie& o, const MiesiacKalendarza& m) {
    return otworz(o, {rowne(KALENDARZ("PrcId"), m.prcId), rowne(KALENDARZ("Rok"), m.rok),
                      rowne(KALENDARZ("Mies"), m.mies)});
}

MiesiacKalendarza miesiacWiersza(const Recordset& rs) {
    return {rs.liczba(KALENDARZ("PrcId")), static_cast<int>(rs.liczba(KALENDARZ("Rok"))),
            static_cast<int>(rs.liczba(KALENDARZ("Mies")))};
}

TrescMiesiaca trescWiersza(const Recordset& rs) {
    TrescMiesiaca tresc{DniKalendarza::zWiersza(rs), {}};
    for (int d = 1; d <= 31; ++d) tresc.opis(d) = rs.tekst(OpisKalendarza(d));
    return tresc;
}

void wpisz(Recordset& rs, const TrescMiesiaca& tresc) {
    for (int d = 1; d <= 31; ++d) {
        rs.ustaw(DzienKalendarza(d), static_cast<qint64>(tresc.dni[d]));
        rs.ustaw(OpisKalendarza(d), tresc.opis(d));
    }
}

void dopisz(Recordset& rs, const MiesiacKalendarza& m, const TrescMiesiaca& tresc) {
    rs.AddNewZero(m.prcId);
    rs.ustaw(KALENDARZ("Rok"), m.rok);
    rs.ustaw(KALENDARZ("Mies"), m.mies);
    wpisz(rs, tresc);
}

void wymagajPracownika(Otoczenie& o, qint64 prcId) {
    if (!Pracownicy(o).istnieje(prcId))
        throw Blad(QStringLiteral("Nie ma pracownika o numerze %1.").arg(prcId));
}

[[noreturn]] void brakMiesiaca(const MiesiacKalendarza& m) {
    throw Blad(QStringLiteral("Kalendarz nie ma miesiąca %1.").arg(NapisMiesiaca(m.rok, m.mies)));
}

} // namespace

int NajdluzszyOpisDnia() { return OpisKalendarza(1).def().rozmiar; }

void ZaznaczSwieta(TrescMiesiaca& tresc, int rok, int mies) {
    for (const Swieto& swieto : SwietaUstawowe(rok)) {
        if (swieto.data.month() != mies) continue;
        const int d = swieto.data.day();
        tresc.dni.ustaw(d, DniKalendarza::Wolny);
        if (tresc.opis(d).trimmed().isEmpty()) tresc.opis(d) = swieto.nazwa;
    }
}

// --- reading

bool Kalendarz::pusty() const {
    PrzygotowaneZapytanie ktorykolwiek(o_.sesja.cnPlace, Zapytanie(KALENDARZ).pierwszych(1));
    return !ktorykolwiek.uruchom().nastepny();
}

QList<MiesiacKalendarza> Kalendarz::miesiace(qint64 prcId) const {
    QList<MiesiacKalendarza> wynik;
    for (Recordset rs = otworz(o_, {rowne(KALENDARZ("PrcId"), prcId)}); !rs.EOF_(); rs.MoveNext())
        wynik.append(miesiacWiersza(rs));
    return wynik;
}

QList<qint64> Kalendarz::pracownicy() const {
    // The index alone answers; the days of 10,000 employees need not be read for it.
    QList<qint64> wynik;
    constexpr Kolumna prcId = KALENDARZ("PrcId");
    PrzygotowaneZapytanie numery(
        o_.sesja.cnPlace,
        Zapytanie(KALENDARZ).kolumny(prcId).gdzie(prcId != kKalendarzOgolny).wedlug(prcId).rozne());
    for (auto w = numery.uruchom(); w.nastepny();) wynik.append(w.liczba(prcId));
    return wynik;
}

std::optional<TrescMiesiaca> Kalendarz::WypiszDni(const MiesiacKalendarza& miesiac) const {
    const Recordset rs = otworzMiesiac(o_, miesiac);
    if (!rs.naWierszu()) return std::nullopt;
    return trescWiersza(rs);
}

std::optional<DniKalendarza> Kalendarz::dni(const MiesiacKalendarza& miesiac) const {
    const Recordset rs = otworzMiesiac(o_, miesiac);
    if (!rs.naWierszu()) return std::nullopt;
    return DniKalendarza::zWiersza(rs);
}

// --- changing

bool Kalendarz::Nowy_dniwolne(const MiesiacKalendarza& miesiac, Swieta swieta) {
    const auto [prcId, rok, mies] = miesiac;
    if (!PierwszyDzien(rok, mies).isValid())
        throw Blad(QStringLiteral("Nie ma miesiąca %1 roku %2.").arg(mies).arg(rok));
    if (prcId != kKalendarzOgolny) wymagajPracownika(o_, prcId);
    Recordset rs = otworzMiesiac(o_, miesiac);
    if (rs.naWierszu()) {
        o_.rozmowa.komunikat(prcId == kKalendarzOgolny
                                 ? QStringLiteral("Taki miesiąc już istnieje !")
                                 : QStringLiteral("Ten miesiąc dla wybranego pracownika już istnieje!"),
                             Styl::Wykrzyknik);
        return false;
    }
    TrescMiesiaca tresc{DniKalendarza::nowyMiesiac(rok, mies), {}};
    if (swieta == Swieta::Zaznaczone) ZaznaczSwieta(tresc, rok, mies);
    dopisz(rs, miesiac, tresc);
    rs.UpdateBatch(QStringLiteral("Nowy miesiąc dni wolnych %1").arg(NapisMiesiaca(rok, mies)));
    return true;
}

void Kalendarz::ZapiszDni(const MiesiacKalendarza& miesiac, const TrescMiesiaca& tresc) {
    Recordset rs = otworzMiesiac(o_, miesiac);
    if (!rs.naWierszu()) brakMiesiaca(miesiac);
    wpisz(rs, tresc);
    rs.UpdateBatch(QStringLiteral("Dni wolne %1").arg(NapisMiesiaca(miesiac.rok, miesiac.mies)));
}

bool Kalendarz::Usun(const MiesiacKalendarza& miesiac) {
    Recordset rs = otworzMiesiac(o_, miesiac);
    if (!rs.naWierszu()) brakMiesiaca(miesiac);
    const QString pytanie =
        miesiac.prcId == kKalendarzOgolny
            ? QStringLiteral("Czy na pewno chcesz usunąć miesiąc z listy dni wolnych ?")
            : QStringLiteral(
                  "Czy na pewno chcesz usunąć miesiąc z listy dni wolnych dla wybranego pracownika ?");
    if (!o_.rozmowa.pytanieUsuwajace(pytanie)) return false;
    rs.Delete();
    rs.UpdateBatch(QStringLiteral("Usunięcie dni wolnych %1").arg(NapisMiesiaca(miesiac.rok, miesiac.mies)));
    return true;
}

bool Kalendarz::UsunPracownika(qint64 prcId) {
    if (!o_.rozmowa.pytanieUsuwajace(
            QStringLiteral("Czy na pewno chcesz usunąć wszystkie miesiące z listy dni wolnych "
                           "dla wybranego pracownika ?")))
        return false;
    Recordset rs = otworz(o_, {rowne(KALENDARZ("PrcId"), prcId)});
    for (rs.MoveFirst(); !rs.EOF_(); rs.MoveFirst()) rs.Delete();
    rs.UpdateBatch(QStringLiteral("Usunięcie dni wolnych pracownika nr %1").arg(prcId));
    return true;
}

bool Kalendarz::SwietaRoku(qint64 prcId, int rok) {
    Recordset rs = otworz(o_, {rowne(KALENDARZ("PrcId"), prcId), rowne(KALENDARZ("Rok"), rok)});
    if (rs.RecordCount() == 0) {
        o_.rozmowa.komunikat(QStringLiteral("Kalendarz nie ma żadnego miesiąca %1 roku.").arg(rok),
                             Styl::Wykrzyknik);
        return false;
    }
    if (!o_.rozmowa.pytanie(
            QStringLiteral("Czy zaznaczyć święta ustawowe %1 roku jako dni wolne w miesiącach, "
                           "które są w kalendarzu ?")
                .arg(rok)))
        return false;
    for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext()) {
        TrescMiesiaca tresc = trescWiersza(rs);
        ZaznaczSwieta(tresc, rok, static_cast<int>(rs.liczba(KALENDARZ("Mies"))));
        wpisz(rs, tresc);
    }
    rs.UpdateBatch(QStringLiteral("Święta ustawowe %1 roku").arg(rok));
    return true;
}

// --- transport

RaportSerii Kalendarz::przenies(const MiesiacKalendarza& ogolny, const TrescMiesiaca& tresc,
                                const QList<qint64>& numery, Istniejace istniejace) {
    // One reading of this month for all of them, whatever their number.
    const auto [pierwszy, ostatni] = std::ranges::minmax(numery);
    Recordset rs(KALENDARZ);
    rs.Open(o_.sesja.cnPlace, {},
            {{KALENDARZ("PrcId"), Kryterium::Operator::NieMniejsze, pierwszy},
             {KALENDARZ("PrcId"), Kryterium::Operator::NieWieksze, ostatni},
             rowne(KALENDARZ("Rok"), ogolny.rok),
             rowne(KALENDARZ("Mies"), ogolny.mies)});
    const QString tytul = QStringLiteral("Transport dni wolnych do pracowników");
    const auto przenies = [&](qsizetype i) {
        const qint64 prcId = numery[i];
        const bool jest = rs.Znajdz(prcId);
        if (jest && istniejace == Istniejace::Pomijac) return WynikKroku{WynikKroku::Los::Pominiety, {}};
        if (jest)
            wpisz(rs, tresc);
        else
            dopisz(rs, {prcId, ogolny.rok, ogolny.mies}, tresc);
        return WynikKroku{};
    };
    return WykonajSerie(o_.sesja.cnPlace, o_.rozmowa,
                        {.czynnosc = tytul + QLatin1Char(' ') + NapisMiesiaca(ogolny.rok, ogolny.mies),
                         .tytul = tytul,
                         .krok = QStringLiteral("Pracownik nr ")},
                        {.ile = numery.size(),
                         .numer = [&](qsizetype i) { return numery[i]; },
                         .krok = przenies,
                         .zapisz = [&](const Transakcja& akcja) { rs.UpdateBatch(akcja); },
                         .cofnij = [&] { rs.CancelBatch(); }});
}

std::optional<RaportSerii> Kalendarz::Transp(int rok, int mies, const QList<qint64>& numery) {
    for (const qint64 prcId : numery) wymagajPracownika(o_, prcId);
    if (numery.isEmpty()) {
        o_.rozmowa.komunikat(QStringLiteral("Nie przetransportowano dni wolnych do pracowników."),
                             Styl::Wykrzyknik);
        return std::nullopt;
    }
    const auto istniejace =
        o_.rozmowa.pytanie(QStringLiteral("Czy zmienić już istniejące kalendarze pracowników ?"))
            ? Istniejace::Zmieniac
            : Istniejace::Pomijac;
    const MiesiacKalendarza ogolny{kKalendarzOgolny, rok, mies};
    const auto tresc = WypiszDni(ogolny);
    if (!tresc) {
        o_.rozmowa.komunikat(QStringLiteral("Nie znaleziono miesiąca ") + NapisMiesiaca(rok, mies) +
                                 QStringLiteral(" w bazie danych! Dni nie zostały przetransoprtowane!"),
                             Styl::Wykrzyknik);
        return std::nullopt;
    }
    const RaportSerii raport = przenies(ogolny, *tresc, numery, istniejace);
    o_.rozmowa.komunikat(raport.przerwana
                             ? QStringLiteral("Transport dni wolnych do pracowników przerwano. Zapisano: %1.")
                                   .arg(raport.wykonane)
                             : QStringLiteral("Transport dni wolnych do pracowników zakończony."),
                         Styl::Informacja);
    return raport;
}

} // namespace tornel::personnel
