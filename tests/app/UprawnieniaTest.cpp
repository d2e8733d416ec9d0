#include "app/Uprawnienia.h"
#include "rules/Stale.h"
#include "start/Uzytkownicy.h"
#include "store/Sesja.h"
#include "store/Struktura.h"
#include "wsparcie/Przestrzen.h"
#include <gtest/gtest.h>
#include <QTemporaryDir>
#include <set>

namespace tornel::testy {

namespace {

using enum Wejscie;

const std::set<Wejscie> kDlaKazdego{Cofnij,        Ponow,       OtworzBaze,  OstatnieBazy,
                                    Koniec,        ZmianaHasla, WygladOkien, UtworzArchiwum,
                                    DziennikZmian, Pomoc,       OProgramie};
const std::set<Wejscie> kKadry{
    PracownicyWszyscy,      PracownicyPracujacy, PracownicyZwolnieni, PracownicyUmowaZlecenie,
    PracownicyUmowaODzielo, PracownicyHonoraria, UmowyOPrace};
const std::set<Wejscie> kPlace{ListaPlac,
                               SkladnikiPlac,
                               Urlopy,
                               ZwolnieniaLekarskie,
                               UrzedySkarbowe,
                               ListaDRA,
                               AdresyDzialalnosci,
                               KontaBankowe,
                               WydrukiZUS,
                               ZbiorowkaMiesiac,
                               PIT4,
                               ZbiorowkaRok,
                               PIT8B,
                               PIT11,
                               PIT40,
                               StaleProgramu};
const std::set<Wejscie> kAdministrator{PrzywrocArchiwum, AktualizujBaze, PobierzStrukture, ListaUzytkownikow};

std::set<Wejscie> otwarte(int typ, const Stale& stale) {
    std::set<Wejscie> wynik;
    const Uzytkownik uzytkownik{.nazwa = {}, .haslo = {}, .typ = typ};
    for (const PozycjaMenu& pozycja : menuGlowne())
        if (dozwolone(pozycja.wejscie, uzytkownik, stale)) wynik.insert(pozycja.wejscie);
    return wynik;
}

std::set<Wejscie> suma(std::initializer_list<std::set<Wejscie>> zbiory) {
    std::set<Wejscie> wynik;
    for (const auto& zbior : zbiory) wynik.insert(zbior.begin(), zbior.end());
    return wynik;
}

TEST(UprawnieniaTest, TypUzytkownikaOtwieraGrupy) {
    const Stale wylaczone; // every switch off
    EXPECT_EQ(otwarte(0, wylaczone), suma({kDlaKazdego, kKadry, kPlace, kAdministrator}));
    EXPECT_EQ(otwarte(1, wylaczone), suma({kDlaKazdego, kKadry}));
    EXPECT_EQ(otwarte(2, wylaczone), suma({kDlaKazdego, kPlace}));
    EXPECT_EQ(otwarte(3, wylaczone), suma({kDlaKazdego, kKadry, kPlace}));
    EXPECT_EQ(otwarte(4, wylaczone), kDlaKazdego) << "a bit without a meaning gives no right";
}

TEST(UprawnieniaTest, StaleOtwierajaSwojeWejscia) {
    const auto zWlaczonymi = [](std::initializer_list<bool Stale::*> przelaczniki) {
        Stale stale;
        for (const auto przelacznik : przelaczniki) stale.*przelacznik = true;
        return stale;
    };
    const std::pair<Stale, std::set<Wejscie>> przypadki[] = {
        {zWlaczonymi({&Stale::AktRejPrzepDni}), {DniWolneOgolne}},
        {zWlaczonymi({&Stale::OsobHarPrac}), {}},
        {zWlaczonymi({&Stale::AktRejPrzepDni, &Stale::OsobHarPrac}),
         {DniWolneOgolne, DniWolnePracownika, TransportDoPracownika}},
        {zWlaczonymi({&Stale::AktywneUmowyZlecenia}), {UmowyZlecenia}},
        {zWlaczonymi({&Stale::AktywneUmowyODzielo}), {UmowyODzielo}},
        {zWlaczonymi({&Stale::AktywneHonoraria}), {Honoraria}},
        {zWlaczonymi({&Stale::AktRejNadg}), {Nadgodziny}},
    };
    for (const auto& [stale, dodatkowe] : przypadki) {
        EXPECT_EQ(otwarte(2, stale), suma({kDlaKazdego, kPlace, dodatkowe}));
        EXPECT_EQ(otwarte(1, stale), suma({kDlaKazdego, kKadry})) << "no switch gives a right";
    }
}

TEST(UprawnieniaTest, CaleMenuIdzieZaPrawem) {
    const auto otwarteMenu = [](int typ) {
        QStringList wynik;
        for (const PozycjaMenu& p : menuGlowne())
            if (dozwoloneMenu(p.menu, {.nazwa = {}, .haslo = {}, .typ = typ}) &&
                !wynik.contains(p.menu.toString()))
                wynik << p.menu.toString();
        return wynik.join(u' ');
    };
    EXPECT_EQ(otwarteMenu(1), QStringLiteral("Plik Pracownicy Konfiguracja Pomoc"));
    EXPECT_EQ(otwarteMenu(2), QStringLiteral("Plik Płace Zlecenia Dni wolne Nieobecności Adresy Analizy "
                                             "Konfiguracja Pomoc"));
}

class LogowanieTest : public testing::Test {
protected:
    void SetUp() override {
        UtworzBaze(plik);
        sesja = std::make_unique<Sesja>(plik);
        InitUzytkownicy(*sesja);
    }
    QTemporaryDir folder;
    QString plik = folder.filePath(QStringLiteral("Tornel.mdb"));
    std::unique_ptr<Sesja> sesja;
};

TEST_F(LogowanieTest, PustaTabelaDostajeJednegoAdministratora) {
    sesja = nullptr;
    sesja = std::make_unique<Sesja>(plik);
    InitUzytkownicy(*sesja);
    EXPECT_EQ(sesja->rsUZYTKOWNICY.RecordCount(), 1);
    EXPECT_TRUE(SprawdzLogin(*sesja, QStringLiteral("Admin"), QString()));
    EXPECT_EQ(sesja->uzytkownik.typ, 0);
}

TEST_F(LogowanieTest, NazwaIHasloDecyduja) {
    Recordset& rs = sesja->rsUZYTKOWNICY;
    const auto dodaj = [&](const QString& nazwa, const QString& haslo, int typ) {
        rs.AddNew();
        rs.ustaw(schemat::UZYTKOWNICY("Nazwa"), nazwa);
        rs.ustaw(schemat::UZYTKOWNICY("haslo"), haslo);
        rs.ustaw(schemat::UZYTKOWNICY("Typ"), typ);
        rs.UpdateBatch(u"Dane testu");
    };
    dodaj(QStringLiteral("O'Hara"), QStringLiteral("Tajne"), 2);
    dodaj(QStringLiteral("Kadrowa"), QStringLiteral(" spacje "), 1);

    struct Przypadek {
        QString nazwa, haslo;
        bool wynik;
        int typ;
    };
    const Przypadek przypadki[] = {
        {QStringLiteral(" O'Hara "), QStringLiteral("  Tajne "), true, 2},
        {QStringLiteral("O'Hara"), QStringLiteral("tajne"), false, 2},
        {QStringLiteral("O'Hara"), QString(), false, 2},
        {QStringLiteral("Kadrowa"), QStringLiteral("spacje"), true, 1},
        {QStringLiteral("Kadrowa"), QStringLiteral(" spacje "), true, 1},
        {QStringLiteral("Kadrowa"), QStringLiteral("spa cje"), false, 1},
        {QStringLiteral("x' OR '1'='1"), QStringLiteral("Tajne"), false, 0},
        {QString(), QString(), false, 0},
    };
    for (const auto& [nazwa, haslo, wynik, typ] : przypadki) {
        EXPECT_EQ(SprawdzLogin(*sesja, nazwa, haslo), wynik) << nazwa.toStdString();
        EXPECT_EQ(sesja->uzytkownik.typ, typ) << nazwa.toStdString();
        EXPECT_EQ(sesja->uzytkownik.haslo, haslo) << "the session keeps it as typed";
    }
}

} // namespace

} // namespace tornel::testy
