#include "start/PlanPracy.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "payroll/lista/KontrolaWierszy.h"
#include "personnel/Kalendarz.h"
#include "personnel/SwietaUstawowe.h"
#include "reports/place/WydrukiListyPlac.h"
#include "rules/Konfiguracja.h"
#include "rules/Stale.h"
#include "start/Archiwum.h"
#include "start/ZaplatyMiesiaca.h"
#include "store/Sesja.h"
#include "store/Zapytanie.h"
#include <algorithm>
#include <array>

namespace tornel::start {

using schemat::PLACE;

namespace {

constexpr int kDzienPodatku = 20;
constexpr int kDzienSkladek = 15;
constexpr int kDzienSkladekBudzetu = 5;
/// After as many days an archive is due again.
constexpr int kDniArchiwum = 31;

struct SumaMiesiaca {
    QStringView napis;
    std::array<Kolumna, 5> kolumny; // those not needed have no table
};

constexpr SumaMiesiaca kSumy[] = {
    {u"Brutto", {PLACE("sum_brutto")}},
    {u"Składki ubezpieczonych", {PLACE("sum_feprc"), PLACE("sum_frprc"), PLACE("sum_fc")}},
    {u"Podatek", {PLACE("sum_podat")}},
    {u"Do wypłaty", {PLACE("do_wyplaty")}},
    {u"Składki pracodawcy",
     {PLACE("sum_feprd"), PLACE("sum_frprd"), PLACE("sum_fw"), PLACE("sum_fp"), PLACE("sum_fgsp")}},
};

/// A header, as far as the plan looks at it.
struct Naglowek {
    RokMies miesiac;
    bool zablokowany = false;
    std::array<Waluta, std::size(kSumy)> sumy;
};

QList<Naglowek> czytajNaglowki(Sesja& sesja) {
    Zapytanie z(PLACE);
    z.kolumny(PLACE("Rok"), PLACE("Mies"), PLACE("akc")).wedlug(PLACE("Rok"), PLACE("Mies"));
    for (const SumaMiesiaca& s : kSumy)
        for (const Kolumna k : s.kolumny)
            if (k.tabela) z.kolumny(k);
    PrzygotowaneZapytanie zapytanie(sesja.cnPlace, z);
    QList<Naglowek> wynik;
    for (auto w = zapytanie.uruchom(); w.nastepny();) {
        Naglowek n{{w.tekst(PLACE("Rok")).toInt(), w.tekst(PLACE("Mies")).toInt()},
                   w.tekst(PLACE("akc")).compare(QLatin1String("T"), Qt::CaseInsensitive) == 0,
                   {}};
        for (std::size_t i = 0; i < n.sumy.size(); ++i)
            for (const Kolumna k : kSumy[i].kolumny)
                if (k.tabela) n.sumy[i] += w.kwota(k);
        wynik.append(n);
    }
    return wynik;
}

/// What the tasks are told from.
struct Obraz {
    Otoczenie& o;
    QDate dzis;
    QString folderProgramu;
    QList<Naglowek> miesiace = {};
    LicznikWierszy wiersze = {};
    QString bladWierszy = {};

    [[nodiscard]] bool jestMiesiac() const { return !miesiace.isEmpty(); }
    [[nodiscard]] RokMies miesiac() const { return jestMiesiac() ? miesiace.last().miesiac : RokMies{}; }
    [[nodiscard]] bool policzony() const {
        return bladWierszy.isEmpty() && wiersze.wierszy > 0 && wiersze.niePoliczonych == 0;
    }
    /// The day `dzien` of the month after the one in work.
    [[nodiscard]] QDate termin(int dzien) const {
        return jestMiesiac() ? miesiac().plus(1).pierwszyDzien().addDays(dzien - 1) : QDate();
    }
};

QString zDwukropkiem(const QString& co, const QStringList& czego) {
    return co + QStringLiteral(": ") + czego.join(QStringLiteral(", "));
}

// Each tells how far one task is.

void opiszFirme(const Obraz& obraz, Zadanie& z) {
    const Stale& s = obraz.o.stale;
    const std::pair<QStringView, const QString*> dane[] = {
        {u"nazwa", &s.NazwaUzCz1}, {u"ulica", &s.Ulica}, {u"kod i miasto", &s.KodiMiasto},
        {u"NIP", &s.NIP},          {u"REGON", &s.Regon},
    };
    QStringList braki;
    for (const auto& [co, wartosc] : dane)
        if (wartosc->trimmed().isEmpty()) braki.append(co.toString());
    z.zrobione = braki.isEmpty();
    z.szczegol = z.zrobione ? s.NazwaUzCz1.trimmed() : zDwukropkiem(QStringLiteral("brakuje"), braki);
}

/// A look into January of the year, under which confirmations are noted; while the first year lasts, also
/// under none.
QList<Wykonanie> potwierdzenia(const Obraz& obraz) {
    const Wykonane wykonane(obraz.o.sesja);
    const QString rodzaj = kPotwierdzenieStawek.kod.toString();
    const bool pierwszyRok =
        !obraz.jestMiesiac() || obraz.miesiace.first().miesiac.rok == obraz.miesiac().rok;
    QList<Wykonanie> wynik;
    if (pierwszyRok) wynik += wykonane.szukaj({.rodzaj = rodzaj, .miesiac = RokMies{0, 1}});
    if (obraz.jestMiesiac())
        wynik += wykonane.szukaj({.rodzaj = rodzaj, .miesiac = RokMies{obraz.miesiac().rok, 1}});
    return wynik;
}

void opiszStawki(const Obraz& obraz, Zadanie& z) {
    if (obraz.jestMiesiac()) z.napis = QStringLiteral("Stawki roku %1").arg(obraz.miesiac().rok);
    z.szczegol = NapisWykonania(kPotwierdzenieStawek, potwierdzenia(obraz));
    z.zrobione = !z.szczegol.isEmpty();
    if (!z.zrobione) z.szczegol = QStringLiteral("z szablonu programu, niepotwierdzone");
}

void opiszKalendarz(const Obraz& obraz, Zadanie& z) {
    if (!obraz.o.stale.AktRejPrzepDni) {
        z.zrobione = true;
        z.szczegol = QStringLiteral("niepotrzebny, wyłączony w stałych programu");
        return;
    }
    const Kalendarz kalendarz(obraz.o);
    const RokMies m = obraz.miesiac();
    z.zrobione = obraz.jestMiesiac() ? kalendarz.dni({kKalendarzOgolny, m.rok, m.mies}).has_value()
                                     : !kalendarz.miesiace(kKalendarzOgolny).isEmpty();
    if (!z.zrobione)
        z.szczegol = obraz.jestMiesiac() ? QStringLiteral("nie ma miesiąca %1").arg(m.napis())
                                         : QStringLiteral("nie ma jeszcze żadnego miesiąca");
}

void opiszPracownikow(const Obraz& obraz, Zadanie& z) {
    const int ilu = obraz.o.sesja.rsPRACDP.RecordCount();
    z.zrobione = ilu > 0;
    z.szczegol =
        z.zrobione ? QStringLiteral("w kartotece: %1").arg(ilu) : QStringLiteral("w kartotece nie ma nikogo");
}

void opiszMiesiac(const Obraz& obraz, Zadanie& z) {
    z.zrobione = obraz.jestMiesiac();
    z.szczegol = z.zrobione ? obraz.miesiac().napis() : QStringLiteral("nie ma jeszcze żadnego");
}

void opiszListe(const Obraz& obraz, Zadanie& z) {
    z.zrobione = obraz.wiersze.wierszy > 0;
    if (!obraz.bladWierszy.isEmpty())
        z.szczegol = obraz.bladWierszy;
    else if (obraz.jestMiesiac())
        z.szczegol = z.zrobione ? QStringLiteral("na liście: %1").arg(obraz.wiersze.wierszy)
                                : QStringLiteral("lista jest pusta");
}

void opiszObliczenie(const Obraz& obraz, Zadanie& z) {
    const LicznikWierszy& w = obraz.wiersze;
    z.zrobione = obraz.policzony() && w.przelewPonadWyplate == 0;
    if (w.wierszy == 0) return;
    z.szczegol = QStringLiteral("policzone: %1 z %2").arg(w.wierszy - w.niePoliczonych).arg(w.wierszy);
    if (w.przelewPonadWyplate > 0)
        z.szczegol += QStringLiteral(", przelew większy od wypłaty: %1").arg(w.przelewPonadWyplate);
}

void opiszWydruk(const Obraz& obraz, Zadanie& z) {
    if (!obraz.jestMiesiac()) return;
    const auto wydruki =
        Wykonane(obraz.o.sesja)
            .szukaj({.rodzaj = reports::kWydrukListy.kod.toString(), .miesiac = obraz.miesiac()});
    z.szczegol = NapisWykonania(reports::kWydrukListy, wydruki);
    QSet<QString> brakuje = obraz.wiersze.listy;
    for (const Wykonanie& w : wydruki) {
        if (w.lista.trimmed().isEmpty()) brakuje.clear(); // all lists on one print
        brakuje.remove(w.lista.trimmed().toUpper());
    }
    z.zrobione = !wydruki.isEmpty() && brakuje.isEmpty();
    if (wydruki.isEmpty()) z.szczegol = QStringLiteral("nie wydrukowano");
    if (z.zrobione || wydruki.isEmpty()) return;
    QStringList symbole(brakuje.begin(), brakuje.end());
    symbole.sort();
    z.szczegol += QStringLiteral(", bez list: ") + symbole.join(QStringLiteral(", "));
}

void opiszPrzelewy(const Obraz& obraz, Zadanie& z) {
    const qsizetype wszystkich = obraz.wiersze.przelewem.size();
    if (wszystkich == 0) {
        z.zrobione = obraz.policzony();
        if (z.zrobione) z.szczegol = QStringLiteral("żadnej wypłaty na konto");
        return;
    }
    const qsizetype zrobionych = PrzelewyZrobione(obraz.o.sesja, obraz.miesiac(), obraz.wiersze.przelewem);
    z.zrobione = zrobionych == wszystkich;
    z.szczegol = QStringLiteral("zrobione: %1 z %2").arg(zrobionych).arg(wszystkich);
}

void opiszPodatek(const Obraz& obraz, Zadanie& z) {
    if (!obraz.jestMiesiac()) return;
    z.termin = obraz.termin(kDzienPodatku);
    const Zaplata podatek = PodatekMiesiaca(obraz.o.sesja, obraz.miesiac());
    z.zrobione = podatek.zgloszona;
    z.szczegol = (z.zrobione ? QStringLiteral("z list płac %1, deklaracja jest")
                             : QStringLiteral("z list płac %1, brak deklaracji"))
                     .arg(NapisKwoty(podatek.kwota));
}

int dzienSkladek(const Stale& stale) { return stale.CzyJedBud ? kDzienSkladekBudzetu : kDzienSkladek; }

void opiszSkladki(const Obraz& obraz, Zadanie& z) {
    if (!obraz.jestMiesiac()) return;
    z.termin = obraz.termin(dzienSkladek(obraz.o.stale));
    const Zaplata skladki = SkladkiMiesiaca(obraz.o.sesja, obraz.miesiac());
    z.zrobione = skladki.zgloszona;
    z.szczegol =
        (z.zrobione ? QStringLiteral("do zapłaty %1") : QStringLiteral("z list płac %1, brak rozliczenia"))
            .arg(NapisKwoty(skladki.kwota));
}

void opiszDokumenty(const Obraz& obraz, Zadanie& z) {
    if (!obraz.jestMiesiac()) return;
    z.termin = obraz.termin(dzienSkladek(obraz.o.stale));
    z.szczegol = RaportyZapisane(obraz.o.sesja, obraz.miesiac());
    z.zrobione = !z.szczegol.isEmpty();
    if (!z.zrobione) z.szczegol = QStringLiteral("nie zapisano raportów");
}

void opiszNastepny(const Obraz& obraz, Zadanie& z) { z.szczegol = obraz.miesiac().plus(1).napis(); }

void opiszArchiwum(const Obraz& obraz, Zadanie& z) {
    const auto ostatnie = OstatnieArchiwum(FolderArchiwow(obraz.o.stale.ArchPath, obraz.folderProgramu));
    z.zrobione = ostatnie && ostatnie->date().daysTo(obraz.dzis) <= kDniArchiwum;
    z.szczegol = ostatnie ? QStringLiteral("ostatnie z dnia ") + FormatDaty(ostatnie->date())
                          : QStringLiteral("nie ma żadnego");
}

/// When a task stands in the plan.
enum class Kiedy { Zawsze, PokiBrak, PrzedPierwsza, PoPierwszej };

struct OpisZadania {
    KrokPracy krok;
    QStringView napis;
    void (*opisz)(const Obraz&, Zadanie&);
    /// In the months after the first.
    Kiedy kiedy;
};

constexpr OpisZadania kZadania[] = {
    {KrokPracy::DaneFirmy, u"Dane firmy", opiszFirme, Kiedy::PokiBrak},
    {KrokPracy::Stawki, u"Stawki podatku i składek", opiszStawki, Kiedy::PokiBrak},
    {KrokPracy::Kalendarz, u"Kalendarz dni wolnych", opiszKalendarz, Kiedy::PokiBrak},
    {KrokPracy::Pracownicy, u"Pracownicy", opiszPracownikow, Kiedy::PrzedPierwsza},
    {KrokPracy::Miesiac, u"Miesiąc płac", opiszMiesiac, Kiedy::PrzedPierwsza},
    {KrokPracy::Lista, u"Pracownicy na liście płac", opiszListe, Kiedy::Zawsze},
    {KrokPracy::Obliczenie, u"Obliczenie płac", opiszObliczenie, Kiedy::Zawsze},
    {KrokPracy::Wydruk, u"Wydruk listy płac", opiszWydruk, Kiedy::Zawsze},
    {KrokPracy::Przelewy, u"Przelewy wypłat", opiszPrzelewy, Kiedy::Zawsze},
    {KrokPracy::Podatek, u"Podatek i deklaracja PIT-4", opiszPodatek, Kiedy::Zawsze},
    {KrokPracy::Skladki, u"Składki i rozliczenie ZUS DRA", opiszSkladki, Kiedy::Zawsze},
    {KrokPracy::Dokumenty, u"Dokumenty dla ZUS", opiszDokumenty, Kiedy::Zawsze},
    {KrokPracy::NastepnyMiesiac, u"Następny miesiąc", opiszNastepny, Kiedy::PoPierwszej},
    {KrokPracy::Archiwum, u"Archiwum danych", opiszArchiwum, Kiedy::PoPierwszej},
};

Zadanie opisz(const OpisZadania& opis, const Obraz& obraz) {
    Zadanie z{opis.krok, opis.napis.toString(), {}};
    try {
        opis.opisz(obraz, z);
    } catch (const Blad& blad) {
        z.zrobione = false;
        z.szczegol = blad.komunikat();
    }
    z.poTerminie = !z.zrobione && z.termin.isValid() && z.termin < obraz.dzis;
    return z;
}

QList<PorownanieKwot> porownaj(const QList<Naglowek>& miesiace) {
    QList<PorownanieKwot> wynik;
    const qsizetype ile = miesiace.size();
    for (std::size_t i = 0; ile > 0 && i < std::size(kSumy); ++i)
        wynik.append({kSumy[i].napis, miesiace.last().sumy[i],
                      ile > 1 ? std::optional(miesiace[ile - 2].sumy[i]) : std::nullopt});
    return wynik;
}

bool widoczne(const OpisZadania& opis, const Zadanie& z, EtapPracy etap) {
    if (etap == EtapPracy::PierwszaWyplata) return opis.kiedy != Kiedy::PoPierwszej;
    return opis.kiedy == Kiedy::Zawsze || opis.kiedy == Kiedy::PoPierwszej ||
           (opis.kiedy == Kiedy::PokiBrak && !z.zrobione);
}

/// Reads the months and the rows of the last one; gives what keeps the months from being read.
QString czytaj(Obraz& obraz) {
    try {
        obraz.miesiace = czytajNaglowki(obraz.o.sesja);
    } catch (const Blad& blad) {
        return blad.komunikat();
    }
    try {
        if (obraz.jestMiesiac()) obraz.wiersze = PoliczWiersze(obraz.o, obraz.miesiac());
    } catch (const Blad& blad) {
        obraz.bladWierszy = blad.komunikat();
    }
    return {};
}

} // namespace

QString Zadanie::napisTerminu() const {
    if (!termin.isValid()) return {};
    QString tekst =
        (poTerminie ? QStringLiteral("po terminie: ") : QStringLiteral("do ")) + FormatDaty(termin);
    const auto swieta = SwietaUstawowe(termin.year());
    const auto swieto = std::ranges::find(swieta, termin, &Swieto::data);
    if (swieto != swieta.end())
        tekst += QStringLiteral(" (%1)").arg(swieto->nazwa);
    else if (termin.dayOfWeek() >= Qt::Saturday)
        tekst += QStringLiteral(" (%1)").arg(Nazwa_dnia(termin).toLower());
    return tekst;
}

PlanPracy UlozPlan(Otoczenie& otoczenie, QDate dzis, const QString& folderProgramu) {
    Obraz obraz{otoczenie, dzis, folderProgramu};
    PlanPracy plan;
    plan.uwaga = czytaj(obraz);
    QList<Zadanie> wszystkie;
    for (const OpisZadania& opis : kZadania) wszystkie.append(opisz(opis, obraz));
    const auto wPierwszym = [&](const OpisZadania& opis) { return opis.kiedy != Kiedy::PoPierwszej; };
    bool gotowe = plan.uwaga.isEmpty();
    for (std::size_t i = 0; i < std::size(kZadania); ++i)
        gotowe = gotowe && (!wPierwszym(kZadania[i]) || wszystkie[static_cast<qsizetype>(i)].zrobione);
    const bool dawniejsze =
        obraz.miesiace.size() > 1 || (obraz.jestMiesiac() && obraz.miesiace.last().zablokowany);
    if (gotowe || dawniejsze) plan.etap = EtapPracy::MiesiacWPracy;

    if (obraz.jestMiesiac()) plan.miesiac = obraz.miesiac();
    if (obraz.miesiace.size() > 1) plan.poprzedni = obraz.miesiace[obraz.miesiace.size() - 2].miesiac;
    plan.kwoty = porownaj(obraz.miesiace);
    const bool wolnyNastepny = gotowe || (obraz.jestMiesiac() && obraz.miesiace.last().zablokowany);
    for (std::size_t i = 0; i < std::size(kZadania); ++i) {
        const Zadanie& z = wszystkie[static_cast<qsizetype>(i)];
        if (z.krok == KrokPracy::Stawki && !z.zrobione)
            plan.niepotwierdzoneStawki = obraz.jestMiesiac() ? obraz.miesiac().rok : 0;
        if (z.krok == KrokPracy::NastepnyMiesiac && !wolnyNastepny) continue;
        if (widoczne(kZadania[i], z, plan.etap)) plan.zadania.append(z);
    }
    return plan;
}

QString PytanieOStawki(const Stale& stale, int rok) {
    constexpr int kStawki[] = {40, 41, 42, 43, 44, 63, 4, 5, 6, 7, 20, 21, 22, 23, 24, 25};
    QString tekst = rok > 0 ? QStringLiteral("Czy w roku %1 obowiązują te stawki ?\n").arg(rok)
                            : QStringLiteral("Czy obowiązują te stawki ?\n");
    for (const int numer : kStawki) {
        const StalaDef& stala = *znajdzStala(numer);
        tekst += QStringLiteral("\n%1 %2").arg(stala.napis, TekstWartosci(stala, stale));
    }
    return tekst + QStringLiteral("\n\nJeśli nie, popraw je w menu Konfiguracja, Stałe programu.");
}

void PotwierdzStawki(Otoczenie& otoczenie, int rok, const QDateTime& kiedy) {
    Wykonane(otoczenie.sesja)
        .dopisz({{.rodzaj = kPotwierdzenieStawek.kod.toString(),
                  .miesiac = {rok, 1},
                  .dokument = rok,
                  .opis = QStringLiteral("Stawki podatku i składek")}},
                kiedy);
}

} // namespace tornel::start
