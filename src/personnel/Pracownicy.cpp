#include "personnel/Pracownicy.h"
#include "common/Blad.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "rules/SkladnikiPlac.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <algorithm>
#include <limits>
#include <QCollator>

namespace tornel::personnel {

using schemat::PRACDP;
using schemat::PRACINF;
using schemat::PRACPR;
using schemat::PRACSK;
using schemat::PRACZUS;

namespace {

/// Columns that say yes or no; a new employee has "N" in each.
constexpr Kolumna kFlagi[] = {
    PRACPR("czy_2progi"),  PRACPR("czy_konto"),   PRACPR("czy_kuz"),     PRACPR("czy_ulga"),
    PRACPR("umowa_zlec"),  PRACPR("umowa_o_dz"),  PRACPR("honorarium"),  PRACPR("Zwoln"),
    PRACZUS("podlega_fe"), PRACZUS("podlega_fr"), PRACZUS("podlega_fc"), PRACZUS("podlega_fw"),
    PRACZUS("podlega_uz"), PRACZUS("wsp_gosp"),   PRACZUS("zwua_e"),     PRACZUS("zwua_r"),
    PRACZUS("zwua_c"),     PRACZUS("zwua_w"),     PRACZUS("zwua_z"),
};

void sortujPoNazwiskach(QList<Osoba>& osoby) {
    QCollator porzadek(QLocale(QLocale::Polish, QLocale::Poland));
    std::vector<std::pair<QCollatorSortKey, Osoba>> klucze;
    klucze.reserve(static_cast<std::size_t>(osoby.size()));
    for (Osoba& osoba : osoby)
        klucze.emplace_back(porzadek.sortKey(osoba.nazwisko + QLatin1Char(' ') + osoba.imie),
                            std::move(osoba));
    std::stable_sort(klucze.begin(), klucze.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::transform(klucze.begin(), klucze.end(), osoby.begin(), [](auto& k) { return std::move(k.second); });
}

} // namespace

QList<Osoba> Pracownicy::wybierz(const Kolumna* flaga, const QString& wartosc, bool tylkoPracujacy,
                                 PorzadekPracownikow porzadek) const {
    QList<Osoba> wynik;
    for (const Wiersz dp : o_.sesja.rsPRACDP.wiersze()) {
        const qint64 prcId = dp.liczba(PRACDP("prc_id"));
        const std::optional<Wiersz> pr = o_.sesja.rsPRACPR.szukaj(prcId);
        const auto flagaPracownika = [&](Kolumna k) { return pr && pr->flaga(k); };
        if (tylkoPracujacy && flagaPracownika(PRACPR("Zwoln"))) continue;
        if (flaga && flagaPracownika(*flaga) != (wartosc == QLatin1String("T"))) continue;
        wynik.append({prcId, dp.tekst(PRACDP("Naz")), dp.tekst(PRACDP("Imie_1")),
                      pr ? pr->tekst(PRACPR("dzial")) : QString(), flagaPracownika(PRACPR("Zwoln"))});
    }
    if (porzadek == PorzadekPracownikow::Nazwiska) sortujPoNazwiskach(wynik);
    return wynik;
}

QList<Osoba> Pracownicy::lista(FiltrPracownikow filtr, PorzadekPracownikow porzadek) const {
    const QString tak = QStringLiteral("T"), nie = QStringLiteral("N");
    static constexpr Kolumna zwolniony = PRACPR("Zwoln"), zlecenie = PRACPR("umowa_zlec"),
                             dzielo = PRACPR("umowa_o_dz"), honoraria = PRACPR("honorarium");
    switch (filtr) {
    case FiltrPracownikow::Pracujacy:
        return wybierz(&zwolniony, nie, false, porzadek);
    case FiltrPracownikow::Zwolnieni:
        return wybierz(&zwolniony, tak, false, porzadek);
    case FiltrPracownikow::UmowaZlecenie:
        return wybierz(&zlecenie, tak, false, porzadek);
    case FiltrPracownikow::UmowaODzielo:
        return wybierz(&dzielo, tak, false, porzadek);
    case FiltrPracownikow::Honoraria:
        return wybierz(&honoraria, tak, false, porzadek);
    case FiltrPracownikow::Wszyscy:
        break;
    }
    return wybierz(nullptr, {}, false, porzadek);
}

QString Pracownicy::tytulListy(FiltrPracownikow filtr) {
    switch (filtr) {
    case FiltrPracownikow::Wszyscy:
        return QStringLiteral("Wszyscy pracownicy");
    case FiltrPracownikow::Pracujacy:
        return QStringLiteral("Pracownicy pracujący");
    case FiltrPracownikow::Zwolnieni:
        return QStringLiteral("Pracownicy zwolnieni");
    case FiltrPracownikow::UmowaZlecenie:
        return QStringLiteral("Pracownicy zatrudnieni na umowę zlecenie");
    case FiltrPracownikow::UmowaODzielo:
        return QStringLiteral("Pracownicy zatrudnieni na umowę o dzieło");
    case FiltrPracownikow::Honoraria:
        return QStringLiteral("Pracownicy otrzymujący honoraria");
    }
    return {};
}

qint64 Pracownicy::szukaj(const QList<Osoba>& osoby, const QString& szukany) {
    const QString tekst = szukany.simplified();
    if (tekst.isEmpty()) return -1;
    if (const auto numer = CzytajLiczbe(tekst, 0, std::numeric_limits<qint64>::max())) {
        const auto ta = std::ranges::find(osoby, *numer, &Osoba::prcId);
        return ta == osoby.end() ? -1 : ta->prcId;
    }
    qint64 wSrodku = -1;
    for (const Osoba& o : osoby) {
        const QString nazwisko = o.nazwisko + QLatin1Char(' ') + o.imie;
        if (nazwisko.startsWith(tekst, Qt::CaseInsensitive)) return o.prcId;
        if (wSrodku < 0 && nazwisko.contains(tekst, Qt::CaseInsensitive)) wSrodku = o.prcId;
    }
    return wSrodku;
}

QList<Osoba> Pracownicy::doWyboru(int tryb) const {
    static constexpr Kolumna zlecenie = PRACPR("umowa_zlec"), dzielo = PRACPR("umowa_o_dz"),
                             honoraria = PRACPR("honorarium");
    const Kolumna* flaga = (tryb & 2) ? &zlecenie : (tryb & 4) ? &dzielo : (tryb & 8) ? &honoraria : nullptr;
    return wybierz(flaga, QStringLiteral("T"), true, PorzadekPracownikow::Nazwiska);
}

QString Pracownicy::komunikatPustejListy(int tryb) {
    // The mode is taken as a plain index although modes are bits: deliberate, so mode 1 speaks of commission
    // contracts, mode 2 of specific-work contracts, and modes 4 and 8 are silent.
    switch (tryb) {
    case 0:
        return QStringLiteral("Brak pracowników na liście.");
    case 1:
        return QStringLiteral("Brak pracowników zatrudnionych na umowę - zlecenie.");
    case 2:
        return QStringLiteral("Brak pracowników zatrudnionych na umowę o dzieło.");
    case 3:
        return QStringLiteral("Brak pracowników otrzymujących honoraria.");
    default:
        return {};
    }
}

qint64 Pracownicy::proponowanyNumer() const {
    qint64 najwyzszy = 0;
    for (const Wiersz osoba : o_.sesja.rsPRACDP.wiersze())
        najwyzszy = std::max(najwyzszy, osoba.liczba(PRACDP("prc_id")));
    return najwyzszy + 1;
}

bool Pracownicy::istnieje(qint64 prcId) const { return !o_.sesja.rsPRACDP.wiersze(prcId).isEmpty(); }

QString Pracownicy::nazwisko(qint64 prcId) const {
    const std::optional<Wiersz> osoba = o_.sesja.rsPRACDP.szukaj(prcId);
    if (!osoba) return {};
    return (osoba->tekst(PRACDP("Naz")) + QLatin1Char(' ') + osoba->tekst(PRACDP("Imie_1"))).trimmed();
}

int Pracownicy::zgloszenieDoUbezpieczen() {
    if (!o_.rozmowa.pytanie(QStringLiteral("Został zarejestrowany nowy pracownik. Czy nastąpi zgłoszenie "
                                           "pracownika do ubezpieczeń społecznych ?")))
        return 0;
    return o_.rozmowa.pytanie(
               QStringLiteral("Czy nastąpi zgłoszenie pracownika do ubezpieczenia zdrowotnego ?"))
               ? 1
               : 2;
}

void Pracownicy::NowyPracownik(const DaneNowegoPracownika& dane) {
    if (dane.nazwisko.trimmed().isEmpty()) throw Blad(QStringLiteral("Musisz podać nazwisko pracownika!"));
    if (dane.prcId < 1 || dane.prcId > kNajwyzszyNumer)
        throw Blad(QStringLiteral("Numer pracownika musi być liczbą od 1 do %1.").arg(kNajwyzszyNumer));
    if (istnieje(dane.prcId))
        throw Blad(QStringLiteral("Pracownik o numerze %1 już istnieje.").arg(dane.prcId));
    dodajRekordy(dane, zgloszenieDoUbezpieczen());
}

void Pracownicy::dodajRekordy(const DaneNowegoPracownika& dane, int oiZua) {
    Sesja& s = o_.sesja;
    s.kadry.AddNewZero(dane.prcId);
    for (const Kolumna& flaga : kFlagi)
        (flaga.tabela == &PRACPR ? s.rsPRACPR : s.rsPRACZUS).ustawFlage(flaga, false);

    s.rsPRACDP.ustaw(PRACDP("Naz"), dane.nazwisko.trimmed());
    s.rsPRACDP.ustaw(PRACDP("Imie_1"), dane.imie.trimmed());
    s.rsPRACDP.ustaw(PRACDP("plec"), QStringLiteral("M"));

    s.rsPRACZUS.ustaw(PRACZUS("wsk_fe"), o_.stale.PFE);
    s.rsPRACZUS.ustaw(PRACZUS("wsk_fr"), o_.stale.PFR);
    s.rsPRACZUS.ustaw(PRACZUS("wsk_fc"), o_.stale.PFC);
    s.rsPRACZUS.ustaw(PRACZUS("Fp"), o_.stale.PFP);
    s.rsPRACZUS.ustaw(PRACZUS("gsp"), o_.stale.PFGSP);
    s.rsPRACZUS.ustaw(PRACZUS("wsk_ubzdr"), o_.stale.PUBZD);
    s.rsPRACZUS.ustaw(PRACZUS("oi_zua"), oiZua);

    const Maski maski = o_.skladniki.maski();
    s.rsPRACSK.ustaw(PRACSK("dod"), static_cast<qint64>(maski.akt_sp));
    s.rsPRACSK.ustaw(PRACSK("pot"), static_cast<qint64>(maski.akt_sm));

    Transakcja transakcja(s.cnPlace, QStringLiteral("Nowy pracownik nr %1").arg(dane.prcId));
    s.kadry.UpdateBatch(transakcja);
    transakcja.zatwierdz();
}

bool Pracownicy::UsunPracownika(qint64 prcId) {
    if (!istnieje(prcId)) throw Blad(QStringLiteral("Nie ma pracownika o numerze %1.").arg(prcId));
    if (!o_.rozmowa.pytanieUsuwajace(QStringLiteral("Czy na pewno usunąć wybranego pracownika ?")))
        return false;

    Sesja& s = o_.sesja;
    Recordset rodzina(schemat::RODZINA);
    rodzina.Open(s.cnPlace, {}, {{schemat::RODZINA("PRC_ID"), Kryterium::Operator::Rowne, prcId}});
    rodzina.Sort({schemat::RODZINA("PRC_ID"), schemat::RODZINA("ROD_ID")});
    const QString skutek =
        rodzina.RecordCount() > 0
            ? QStringLiteral(" oraz zarejestrowani członkowie jego rodziny zostaną usunięci z list. ")
            : QStringLiteral(" zostanie usunięty z listy. ");
    const QString ostrzezenie =
        QStringLiteral("Pracownik ") + nazwisko(prcId) + QStringLiteral(" o numerze ") +
        QString::number(prcId) + skutek +
        QStringLiteral(
            "Upewnij się czy usuwany pracownik nie jest wpisany na liscie plac lub dni wolnych itp. ") +
        QStringLiteral("Czy kontynuować ?");
    if (!o_.rozmowa.pytanieUsuwajace(ostrzezenie, QStringLiteral("Ostrzeżenie !"))) return false;

    Transakcja transakcja(s.cnPlace, QStringLiteral("Usunięcie pracownika nr %1").arg(prcId));
    while (rodzina.RecordCount() > 0) {
        rodzina.MoveFirst();
        rodzina.Delete();
    }
    rodzina.UpdateBatch(transakcja);
    (void)s.kadry.Znajdz(prcId);
    s.kadry.Delete();
    s.kadry.UpdateBatch(transakcja);
    transakcja.zatwierdz();
    return true;
}

} // namespace tornel::personnel
