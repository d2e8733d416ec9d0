// What the start page says: the way to the first payment step by step, then the month in work.
#include "start/PlanPracy.h"
#include "bank/ZleceniaPrzelewow.h"
#include "personnel/Kalendarz.h"
#include "reports/place/WydrukiListyPlac.h"
#include "start/Przyklad.h"
#include "tax/Pit4.h"
#include "wsparcie/PlaceTestowe.h"
#include "zus/RozliczenieDRA.h"
#include "zus/WykonanieKedu.h"
#include <algorithm>
#include <QDir>
#include <QFile>

namespace tornel::testy {

using namespace Qt::StringLiterals;
using schemat::PLA;
using schemat::PLACE;

namespace {

const QDateTime kChwila(QDate(2001, 8, 9), QTime(10, 0));

const Zadanie& zadanie(const PlanPracy& plan, KrokPracy krok) {
    const auto z = std::ranges::find(plan.zadania, krok, &Zadanie::krok);
    if (z == plan.zadania.end()) throw std::runtime_error("no such task");
    return *z;
}
bool jest(const PlanPracy& plan, KrokPracy krok) {
    return std::ranges::find(plan.zadania, krok, &Zadanie::krok) != plan.zadania.end();
}

class PlanPracyTest : public PlaceTestowe {
protected:
    PlanPracy plan(QDate dzis = kChwila.date()) {
        return UlozPlan(otoczenie(), dzis, folder_.filePath(u"archiwa"_s));
    }
    /// The first step that is still missing.
    KrokPracy nastepny() {
        const PlanPracy p = plan();
        const auto z = std::ranges::find(p.zadania, false, &Zadanie::zrobione);
        EXPECT_NE(z, p.zadania.end());
        return z == p.zadania.end() ? KrokPracy::DaneFirmy : z->krok;
    }
    void zapamietaj(const Wykonanie& wykonanie) { Wykonane(sesja()).dopisz({wykonanie}, kChwila); }
    void wpiszFirme() {
        stale().NazwaUzCz1 = u"Dąb"_s;
        stale().Ulica = u"Leśna 12"_s;
        stale().KodiMiasto = u"33-300 Nowy Sącz"_s;
        stale().NIP = u"734-10-20-304"_s;
        stale().Regon = u"490123456"_s;
    }
    void listaZJednym() {
        ListaPlac lista(otoczenie(), kLipiec.rok, kLipiec.mies, u" "_s);
        (void)lista.Wczytaj_listep();
        ASSERT_TRUE(dopisz(lista, 1));
        EXPECT_EQ(nastepny(), KrokPracy::Obliczenie);
        EXPECT_EQ(zadanie(plan(), KrokPracy::Obliczenie).szczegol, u"policzone: 0 z 1"_s);
        ASSERT_TRUE(lista.Przelicz1());
        ustawIZapisz("PRZELEWEM=500");
    }
    /// July is paid in full.
    void oczekujMiesiacaWPracy() {
        EXPECT_EQ(plan().etap, EtapPracy::MiesiacWPracy);
        EXPECT_FALSE(jest(plan(), KrokPracy::DaneFirmy)) << "done steps of the beginning are gone";
        EXPECT_EQ(zadanie(plan(), KrokPracy::NastepnyMiesiac).szczegol, u"08.2001"_s);
        stale().ArchPath.clear();
        EXPECT_EQ(zadanie(plan(), KrokPracy::Archiwum).szczegol, u"nie ma żadnego"_s);
        ASSERT_TRUE(QDir(folder_.path()).mkpath(u"archiwa/LIPIEC"_s));
        ASSERT_TRUE(QFile::copy(sciezka(), folder_.filePath(u"archiwa/LIPIEC/Tornel.mdb"_s)));
        EXPECT_TRUE(zadanie(plan(QDate::currentDate()), KrokPracy::Archiwum).zrobione);
        EXPECT_FALSE(zadanie(plan(QDate::currentDate().addDays(40)), KrokPracy::Archiwum).zrobione)
            << "too old";

        // A new year wants a look at its rates.
        blokada(kLipiec, Odpowiedz::Nie);
        miesiac({2002, 1});
        EXPECT_EQ(plan().niepotwierdzoneStawki, 2002);
        PotwierdzStawki(otoczenie(), 2002, kChwila);
        EXPECT_FALSE(plan().niepotwierdzoneStawki);
    }
};

TEST_F(PlanPracyTest, OdPustejBazyDoPierwszejWyplaty) {
    stale().AktRejPrzepDni = true;
    EXPECT_EQ(plan().etap, EtapPracy::PierwszaWyplata);
    EXPECT_EQ(zadanie(plan(), KrokPracy::DaneFirmy).szczegol,
              u"brakuje: nazwa, ulica, kod i miasto, NIP, REGON"_s);
    EXPECT_FALSE(zadanie(plan(), KrokPracy::Podatek).termin.isValid());
    EXPECT_TRUE(plan().kwoty.isEmpty());
    wpiszFirme();
    EXPECT_EQ(nastepny(), KrokPracy::Stawki);
    EXPECT_EQ(plan().niepotwierdzoneStawki, 0) << "no month, no year";
    EXPECT_TRUE(PytanieOStawki(stale(), 0).contains(u"Fundusz rentowy: 1,20"_s))
        << PytanieOStawki(stale(), 0).toStdString();
    PotwierdzStawki(otoczenie(), 0, kChwila);
    EXPECT_EQ(zadanie(plan(), KrokPracy::Stawki).szczegol, u"potwierdzono 09-08-2001"_s);
    EXPECT_EQ(nastepny(), KrokPracy::Kalendarz);
    ASSERT_TRUE(Kalendarz(otoczenie()).Nowy_dniwolne({0, 2001, 6}));
    EXPECT_EQ(nastepny(), KrokPracy::Pracownicy);
    pracownik(1, "placa_zas=1000");
    EXPECT_EQ(nastepny(), KrokPracy::Miesiac);
    miesiac();
    EXPECT_EQ(nastepny(), KrokPracy::Kalendarz) << "the calendar lacks the month";
    stale().AktRejPrzepDni = false;
    EXPECT_FALSE(plan().niepotwierdzoneStawki)
        << "what was confirmed before the first month holds in its year";
    EXPECT_EQ(nastepny(), KrokPracy::Lista);
    listaZJednym();

    EXPECT_EQ(nastepny(), KrokPracy::Wydruk);
    zapamietaj({.rodzaj = reports::kWydrukListy.kod.toString(), .miesiac = kLipiec, .lista = u"A"_s});
    EXPECT_EQ(nastepny(), KrokPracy::Wydruk) << "another list";
    zapamietaj({.rodzaj = reports::kWydrukListy.kod.toString(), .miesiac = kLipiec});
    EXPECT_EQ(nastepny(), KrokPracy::Przelewy);
    zapamietaj({.rodzaj = u"przelew"_s, .miesiac = kLipiec, .zrodlo = u"UZL"_s, .komu = 1});
    EXPECT_EQ(zadanie(plan(), KrokPracy::Przelewy).szczegol, u"zrobione: 0 z 1"_s) << "a contract's";
    Recordset pla = zPliku(PLA);
    zapamietaj({.rodzaj = u"przelew"_s, .miesiac = kLipiec, .lista = pla.tekst(PLA("LISTA")), .komu = 1});
    EXPECT_EQ(nastepny(), KrokPracy::Podatek);

    const QString zaliczki = u"z list płac "_s + NapisKwoty(pla.kwota(PLA("PODATEK")));
    EXPECT_EQ(zadanie(plan(), KrokPracy::Podatek).szczegol, zaliczki + u", brak deklaracji"_s);
    ASSERT_TRUE(Pit4(otoczenie()).Nowy({kLipiec, 1}, {}, kChwila.date()));
    EXPECT_EQ(zadanie(plan(), KrokPracy::Podatek).szczegol, zaliczki + u", deklaracja jest"_s);
    EXPECT_EQ(nastepny(), KrokPracy::Skladki);
    ASSERT_TRUE(RozliczeniaDRA(otoczenie()).Nowe(kLipiec, {}, kChwila.date()));
    EXPECT_EQ(nastepny(), KrokPracy::Dokumenty);
    zapamietaj({.rodzaj = kWykonanieKedu.kod.toString(), .miesiac = kLipiec, .zrodlo = u"ZUA"_s});
    EXPECT_EQ(nastepny(), KrokPracy::Dokumenty) << "a registration is no report of the month";
    EXPECT_EQ(plan().etap, EtapPracy::PierwszaWyplata);
    zapamietaj({.rodzaj = kWykonanieKedu.kod.toString(), .miesiac = kLipiec, .zrodlo = u"RCA"_s});

    oczekujMiesiacaWPracy();
}

TEST_F(PlanPracyTest, TerminySkladekIPodatku) {
    const struct {
        RokMies miesiac;
        bool budzet;
        const char *skladki, *podatek;
    } przypadki[] = {
        {{2001, 7}, false, "do 15-08-2001 (Wniebowzięcie Najświętszej Maryi Panny)", "do 20-08-2001"},
        {{2001, 8}, false, "do 15-09-2001 (sobota)", "do 20-09-2001"},
        {{2001, 9}, true, "do 05-10-2001", "do 20-10-2001 (sobota)"},
        {{2001, 12}, false, "do 15-01-2002", "do 20-01-2002 (niedziela)"},
    };
    for (const auto& p : przypadki) {
        miesiac(p.miesiac);
        stale().CzyJedBud = p.budzet;
        const Zadanie skladki = zadanie(plan({2001, 8, 1}), KrokPracy::Skladki);
        EXPECT_EQ(skladki.napisTerminu().toStdString(), p.skladki);
        EXPECT_EQ(zadanie(plan(), KrokPracy::Dokumenty).termin, skladki.termin);
        EXPECT_EQ(zadanie(plan({2001, 8, 1}), KrokPracy::Podatek).napisTerminu().toStdString(), p.podatek);
        EXPECT_FALSE(zadanie(plan(skladki.termin), KrokPracy::Skladki).poTerminie) << "its last day";
        EXPECT_TRUE(zadanie(plan(skladki.termin.addDays(1)), KrokPracy::Skladki).poTerminie);
    }
}

TEST_F(PlanPracyTest, UszkodzonyMiesiacNieZaslaniaReszty) {
    pracownik(1, "placa_zas=1000");
    miesiac();
    {
        ListaPlac lista(otoczenie(), kLipiec.rok, kLipiec.mies, u" "_s);
        (void)lista.Wczytaj_listep();
        ASSERT_TRUE(dopisz(lista, 1));
    }
    UsunTabele(sesja().cnPlace, u"PLS200107"_s);
    const PlanPracy p = plan();
    EXPECT_TRUE(zadanie(p, KrokPracy::Lista).szczegol.contains(u"PLS200107"_s));
    EXPECT_FALSE(zadanie(p, KrokPracy::Obliczenie).zrobione);
    EXPECT_TRUE(zadanie(p, KrokPracy::Pracownicy).zrobione);
    EXPECT_EQ(p.kwoty.size(), 5);
}

TEST(PlanPracyPrzykladTest, KwotyObokPoprzedniegoMiesiaca) {
    const QTemporaryDir folder;
    const QString plik = folder.filePath(u"Tornel.mdb"_s);
    UtworzPrzyklad(plik);
    RozmowaSkrypt rozmowa;
    Program program(plik, folder.path(), rozmowa);
    const PlanPracy plan = UlozPlan(program.otoczenie(), QDate(2001, 4, 10), folder.path());
    EXPECT_EQ(plan.etap, EtapPracy::MiesiacWPracy);
    EXPECT_EQ(plan.miesiac, (RokMies{2001, 3}));
    EXPECT_EQ(plan.poprzedni, (RokMies{2001, 2}));
    Sesja& s = program.sesja();
    s.OtworzNaglowki();
    ASSERT_TRUE(s.ZnajdzMiesiac({2001, 2}));
    EXPECT_EQ(plan.kwoty.first().przedtem, s.rsPLACE.kwota(PLACE("sum_brutto")));
    ASSERT_TRUE(s.ZnajdzMiesiac({2001, 3}));
    EXPECT_EQ(plan.kwoty.first().teraz, s.rsPLACE.kwota(PLACE("sum_brutto")));
    EXPECT_EQ(plan.kwoty[2].teraz, s.rsPLACE.kwota(PLACE("sum_podat")));
    EXPECT_EQ(zadanie(plan, KrokPracy::Obliczenie).szczegol, u"policzone: 11 z 11"_s);
    EXPECT_FALSE(jest(plan, KrokPracy::NastepnyMiesiac)) << "this one is not finished";
}

} // namespace

} // namespace tornel::testy
