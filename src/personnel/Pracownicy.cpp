#include "personnel/Pracownicy.h"
#include "common/Blad.h"
#include "common/Liczby.h"
#include "common/Rozmowa.h"
#include "personnel/ZapisyPracownika.h"
#include "rules/SkladnikiPlac.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <algorithm>
#include <limits>
#include <QCollator>
#include <QHash>

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

struct OpisFiltru {
    FiltrPracownikow filtr;
    QStringView tytul;
    Kolumna flaga; ///< that must be "T"; without a table for none
    Zwolnieni zwolnieni;
};

constexpr OpisFiltru kFiltry[] = {
    {FiltrPracownikow::Wszyscy, u"Wszyscy pracownicy", {}, Zwolnieni::Takze},
    {FiltrPracownikow::Pracujacy, u"Pracownicy pracujący", {}, Zwolnieni::Pominieci},
    {FiltrPracownikow::Zwolnieni, u"Pracownicy zwolnieni", {}, Zwolnieni::Tylko},
    {FiltrPracownikow::UmowaZlecenie, u"Pracownicy zatrudnieni na umowę zlecenie", PRACPR("umowa_zlec"),
     Zwolnieni::Takze},
    {FiltrPracownikow::UmowaODzielo, u"Pracownicy zatrudnieni na umowę o dzieło", PRACPR("umowa_o_dz"),
     Zwolnieni::Takze},
    {FiltrPracownikow::Honoraria, u"Pracownicy otrzymujący honoraria", PRACPR("honorarium"),
     Zwolnieni::Takze},
};

const OpisFiltru& opisFiltru(FiltrPracownikow filtr) {
    return *std::ranges::find(kFiltry, filtr, &OpisFiltru::filtr);
}

/// The rates that constants 20 to 25 suggest.
constexpr struct {
    Kolumna kolumna;
    Waluta Stale::*stawka;
} kStawki[] = {
    {PRACZUS("wsk_fe"), &Stale::PFE}, {PRACZUS("wsk_fr"), &Stale::PFR}, {PRACZUS("wsk_fc"), &Stale::PFC},
    {PRACZUS("Fp"), &Stale::PFP},     {PRACZUS("gsp"), &Stale::PFGSP},  {PRACZUS("wsk_ubzdr"), &Stale::PUBZD},
};

void sortujPoNazwiskach(QList<Osoba>& osoby) {
    const QCollator porzadek(QLocale(QLocale::Polish, QLocale::Poland));
    std::vector<std::pair<QCollatorSortKey, qsizetype>> klucze;
    klucze.reserve(static_cast<std::size_t>(osoby.size()));
    for (qsizetype i = 0; i < osoby.size(); ++i)
        klucze.emplace_back(porzadek.sortKey(osoby[i].nazwisko + QLatin1Char(' ') + osoby[i].imie), i);
    std::stable_sort(klucze.begin(), klucze.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    QList<Osoba> wynik;
    wynik.reserve(osoby.size());
    for (const auto& [klucz, i] : klucze) wynik.append(std::move(osoby[i]));
    osoby = std::move(wynik);
}

} // namespace

QList<Osoba> Pracownicy::wybierz(const Warunki& warunki) const {
    QList<Osoba> wynik;
    wynik.reserve(o_.sesja.rsPRACDP.RecordCount());
    for (const Wiersz dp : o_.sesja.rsPRACDP.wiersze()) {
        const qint64 prcId = dp.liczba(PRACDP("prc_id"));
        const std::optional<Wiersz> pr = o_.sesja.rsPRACPR.szukaj(prcId);
        const bool zwolniony = pr && pr->flaga(PRACPR("Zwoln"));
        if (zwolniony && warunki.zwolnieni == Zwolnieni::Pominieci) continue;
        if (!zwolniony && warunki.zwolnieni == Zwolnieni::Tylko) continue;
        if (warunki.flaga.tabela && !(pr && pr->flaga(warunki.flaga))) continue;
        wynik.append({prcId, dp.tekst(PRACDP("Naz")), dp.tekst(PRACDP("Imie_1")),
                      pr ? pr->tekst(PRACPR("dzial")) : QString(), zwolniony});
    }
    if (warunki.porzadek == PorzadekPracownikow::Nazwiska) sortujPoNazwiskach(wynik);
    return wynik;
}

QList<Osoba> Pracownicy::lista(FiltrPracownikow filtr, PorzadekPracownikow porzadek) const {
    const OpisFiltru& opis = opisFiltru(filtr);
    return wybierz({opis.flaga, opis.zwolnieni, porzadek});
}

QString Pracownicy::tytulListy(FiltrPracownikow filtr) { return opisFiltru(filtr).tytul.toString(); }

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

QList<Osoba> Pracownicy::doWyboru(int tryb, Zwolnieni zwolnieni) const {
    const Kolumna flaga = (tryb & 2)   ? PRACPR("umowa_zlec")
                          : (tryb & 4) ? PRACPR("umowa_o_dz")
                          : (tryb & 8) ? PRACPR("honorarium")
                                       : Kolumna{};
    return wybierz({flaga, zwolnieni, PorzadekPracownikow::Nazwiska});
}

QList<DzialFirmy> Pracownicy::dzialy() const {
    QHash<QString, qint64> ilu;
    for (const Wiersz pr : o_.sesja.rsPRACPR.wiersze()) ++ilu[pr.tekst(PRACPR("dzial")).trimmed()];
    QList<DzialFirmy> wynik;
    for (auto i = ilu.cbegin(); i != ilu.cend(); ++i) wynik.append({i.key(), i.value()});
    const QCollator porzadek(QLocale(QLocale::Polish, QLocale::Poland));
    std::ranges::sort(wynik, [&](const auto& a, const auto& b) {
        const int c = porzadek.compare(a.nazwa, b.nazwa);
        return c != 0 ? c < 0 : a.nazwa < b.nazwa;
    });
    return wynik;
}

QList<qint64> Pracownicy::zatrudnieni(QDate od, QDate dokad) const {
    QList<qint64> numery;
    for (const Osoba& o : lista(FiltrPracownikow::Wszyscy, PorzadekPracownikow::Nazwiska))
        numery.append(o.prcId);
    return zatrudnieniSposrod(numery, od, dokad);
}

QList<qint64> Pracownicy::zatrudnieniSposrod(const QList<qint64>& numery, QDate od, QDate dokad) const {
    QList<qint64> wynik;
    for (const qint64 prcId : numery) {
        const std::optional<Wiersz> pr = o_.sesja.rsPRACPR.szukaj(prcId);
        if (!pr) continue;
        const QDate zatrudniony = pr->data(PRACPR("data_zatr")), zwolniony = pr->data(PRACPR("data_zwoln"));
        const bool odszedl = zwolniony.isValid() ? zwolniony < od : pr->flaga(PRACPR("Zwoln"));
        if (!odszedl && !(zatrudniony.isValid() && zatrudniony > dokad)) wynik.append(prcId);
    }
    return wynik;
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

void Pracownicy::WpiszDomyslne(Recordset& nowy) const {
    const TabelaDef* tabela = &nowy.tabela();
    for (const Kolumna& flaga : kFlagi)
        if (flaga.tabela == tabela) nowy.ustawFlage(flaga, false);
    for (const auto& [kolumna, stawka] : kStawki)
        if (kolumna.tabela == tabela) nowy.ustaw(kolumna, o_.stale.*stawka);
    if (tabela == &schemat::PRACDP) nowy.ustaw(PRACDP("plec"), QStringLiteral("M"));
    if (tabela == &schemat::PRACSK) {
        const Maski maski = o_.skladniki.maski();
        nowy.ustaw(PRACSK("dod"), static_cast<qint64>(maski.akt_sp));
        nowy.ustaw(PRACSK("pot"), static_cast<qint64>(maski.akt_sm));
    }
}

void Pracownicy::dodajRekordy(const DaneNowegoPracownika& dane, int oiZua) {
    Sesja& s = o_.sesja;
    s.kadry.AddNewZero(dane.prcId);
    for (Recordset* rs : s.kadry) WpiszDomyslne(*rs);
    s.rsPRACDP.ustaw(PRACDP("Naz"), dane.nazwisko.trimmed());
    s.rsPRACDP.ustaw(PRACDP("Imie_1"), dane.imie.trimmed());
    s.rsPRACZUS.ustaw(PRACZUS("oi_zua"), oiZua);

    Transakcja transakcja(s.cnPlace, QStringLiteral("Nowy pracownik nr %1").arg(dane.prcId));
    s.kadry.UpdateBatch(transakcja);
    transakcja.zatwierdz();
}

bool Pracownicy::mimoZapisow(qint64 prcId) const {
    const ZapisyPracownika zapisy = ZnajdzZapisy(o_.sesja, prcId);
    if (zapisy.puste()) return true;
    return o_.rozmowa.pytanieUsuwajace(
        QStringLiteral("Pracownik %1 o numerze %2 jest jeszcze w tych zapisach:\n\n%3\n\nZostaną one w bazie "
                       "bez danych pracownika. Czy mimo to usunąć pracownika ?")
            .arg(nazwisko(prcId))
            .arg(prcId)
            .arg(zapisy.opis()),
        QStringLiteral("Ostrzeżenie !"));
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
    if (!mimoZapisow(prcId)) return false;

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
