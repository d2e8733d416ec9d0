// Queries give exactly the rows that were asked for, and no reader takes a damaged value for a number.
#include "store/Zapytanie.h"
#include "common/Blad.h"
#include "store/Sesja.h"
#include "store/Struktura.h"
#include "wsparcie/Przestrzen.h"
#include <QTemporaryDir>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using schemat::PLA;
using schemat::PLB;

class ZapytanieTest : public testing::Test {
protected:
    ZapytanieTest() {
        UtworzBaze(plik_);
        baza_.emplace(plik_, Polaczenie::Sposob::Istniejaca);
        tabela("PLA200101", PLA);
        tabela("PLA200102", PLA);
    }
    void tabela(const char* nazwa, const TabelaDef& def) {
        UtworzTabele(*baza_, def, QString::fromLatin1(nazwa));
    }
    /// Rows as "number list gross".
    template <typename... W>
    static QStringList wiersze(PrzygotowaneZapytanie& z, const W&... wartosci) {
        QStringList wynik;
        for (auto w = z.uruchom(wartosci...); w.nastepny();)
            wynik.append(
                QStringLiteral("%1%2 %3")
                    .arg(w.liczba(PLA("PRC_ID")))
                    .arg(w.tekst(PLA("LISTA")), w.jestNull(PLA("BRUTTO"))
                                                    ? QStringLiteral("-")
                                                    : QString::number(w.kwota(PLA("BRUTTO")).surowa())));
        return wynik;
    }
    PrzygotowaneZapytanie platy(const WarunekZapytania& warunek) {
        return {*baza_, Zapytanie(PLA)
                            .kolumny(PLA("BRUTTO"), PLA("PRC_ID"), PLA("LISTA"))
                            .zTabel({QStringLiteral("PLA200101"), QStringLiteral("PLA200102")})
                            .gdzie(warunek)};
    }
    template <typename F>
    QString powod(F&& czynnosc) {
        try {
            czynnosc();
        } catch (const Blad& blad) {
            return blad.komunikat();
        }
        return {};
    }

    QTemporaryDir folder_;
    QString plik_ = folder_.filePath(QStringLiteral("Tornel.mdb"));
    std::optional<Polaczenie> baza_;
};

TEST_F(ZapytanieTest, ConditionsParametersAndSeveralTables) {
    baza_->wykonaj(
        "INSERT INTO PLA200101 (PRC_ID, LISTA, BRUTTO) VALUES (1,'A',100), (1,'''',0), (2,'A',NULL), "
        "(3,'B',300)");
    baza_->wykonaj("INSERT INTO PLA200102 (PRC_ID, LISTA, BRUTTO) VALUES (3,'C',50), (1,'B',200)");
    const Wartosc sto = Waluta::zSurowej(100);
    const struct {
        WarunekZapytania warunek;
        QStringList wynik;
    } przypadki[] = {
        {PLA("PRC_ID") == 1, {u"1' 0"_s, u"1A 100"_s, u"1B 200"_s}},
        {PLA("LISTA") == u"'"_s, {u"1' 0"_s}},
        {PLA("BRUTTO") == Null, {u"2A -"_s}},
        {PLA("BRUTTO") >= sto && PLA("BRUTTO") <= Waluta::zSurowej(200), {u"1A 100"_s, u"1B 200"_s}},
        {PLA("PRC_ID") == 2 || (PLA("PRC_ID") == 1 && PLA("LISTA") != u"A"_s),
         {u"1' 0"_s, u"1B 200"_s, u"2A -"_s}},
        {(PLA("PRC_ID") == 2 || PLA("PRC_ID") == 1) && PLA("LISTA") == u"A"_s, {u"1A 100"_s, u"2A -"_s}},
    };
    for (const auto& p : przypadki) {
        auto zapytanie = platy(p.warunek);
        QStringList wynik = wiersze(zapytanie);
        wynik.sort();
        EXPECT_EQ(wynik, p.wynik);
    }
    auto zParametrami = platy(PLA("LISTA") == Parametr{1} && PLA("PRC_ID") == Parametr{0} &&
                              PLA("BRUTTO") >= Waluta::zSurowej(100));
    EXPECT_EQ(wiersze(zParametrami, 1, u"A"_s), QStringList{u"1A 100"_s});
    EXPECT_EQ(wiersze(zParametrami, 3, u"B"_s), QStringList{u"3B 300"_s});
    EXPECT_EQ(wiersze(zParametrami, 3, u"C"_s), QStringList{});

    PrzygotowaneZapytanie listy(
        *baza_, Zapytanie(PLA).kolumny(PLA("LISTA")).zTabel({u"PLA200101"_s}).wedlug(PLA("LISTA")).rozne());
    QString symbole;
    for (auto w = listy.uruchom(); w.nastepny();) symbole += w.tekst(PLA("LISTA"));
    EXPECT_EQ(symbole, u"'AB"_s);
    PrzygotowaneZapytanie zadnej(*baza_, Zapytanie(PLA).kolumny(PLA("BRUTTO")).zTabel({}));
    EXPECT_FALSE(zadnej.uruchom().nastepny()) << "no table, no row";
}

TEST_F(ZapytanieTest, AnyReaderNamesTheTableRowAndColumnOfADamagedValue) {
    for (const auto& [nazwa, def] : {std::pair("PLS200101", &schemat::PLS),
                                     {"PLD200101", &schemat::PLD},
                                     {"NADGN200101", &schemat::NADGN}})
        tabela(nazwa, *def);
    static constexpr struct {
        const char* tabela;
        Kolumna kolumna;
        const char* wartosc;
    } przypadki[] = {
        {"PLA200101", PLA("BRUTTO"), "'sto'"},
        {"PLA200101", PLA("BRUTTO"), "10.5"},
        {"PLA200101", PLA("BRUTTO"), "x'31'"},
        {"PLA200101", PLA("BRUTTO"), "-9223372036854775807-1"}, // stands for null in memory
        {"PLA200101", PLA("DN_PR"), "0.5"},
        {"PLA200101", PLA("DN_PR"), "3000000000"},
        {"PLA200101", PLA("NAZ"), "x'41'"},
        {"PLD200101", schemat::SDO(30), "'2001-02-30'"},
        {"PLD200101", schemat::SDO(30), "20010228"},
        {"NADGN200101", schemat::NADGN("SP_C1"), "'dwie'"},
    };
    for (const auto& p : przypadki) {
        const QString nazwa = QString::fromLatin1(p.tabela);
        const std::string tu = p.tabela, kolumna(p.kolumna.def().nazwa);
        SCOPED_TRACE(tu + "." + kolumna + "=" + p.wartosc);
        baza_->wykonaj("DELETE FROM " + tu + "; INSERT INTO " + tu +
                       " (PRC_ID) VALUES (6), (7), (8); UPDATE " + tu + " SET " + kolumna + " = " +
                       p.wartosc + " WHERE PRC_ID = 7");
        const TabelaDef& def = *p.kolumna.tabela;
        const Kolumna prcId = def.nr(0);
        PrzygotowaneZapytanie zapytanie(*baza_, Zapytanie(def).kolumny(prcId, p.kolumna).zTabel({nazwa}));
        QString zapytania;
        for (auto w = zapytanie.uruchom(); w.nastepny();) {
            const QString szkoda = powod([&] {
                switch (rodzajWartosci(p.kolumna.def().typ)) {
                case RodzajWartosci::Kwota:
                    return (void)w.kwota(p.kolumna);
                case RodzajWartosci::Calkowita:
                    return (void)w.liczba(p.kolumna);
                case RodzajWartosci::Rzeczywista:
                    return (void)w.rzeczywista(p.kolumna);
                case RodzajWartosci::Tekst:
                    return (void)w.tekst(p.kolumna);
                case RodzajWartosci::Data:
                    return (void)w.data(p.kolumna);
                }
            });
            EXPECT_EQ(szkoda.isEmpty(), w.liczba(prcId) != 7);
            if (!szkoda.isEmpty()) zapytania = szkoda;
        }
        Recordset rs(def);
        const QString uchwytu = powod([&] { rs.Open(*baza_, nazwa); });
        EXPECT_EQ(uchwytu, zapytania) << "the same by every reader";
        for (const QString& czesc : {nazwa, QString::fromStdString(kolumna), u"wiersz 2, PRC_ID 7"_s, plik_})
            EXPECT_TRUE(uchwytu.contains(czesc)) << czesc.toStdString() << " in " << uchwytu.toStdString();
    }
}

TEST_F(ZapytanieTest, WhatDoesNotFitIsRefusedAndARunThatFailedLeavesNothingOpen) {
    baza_->wykonaj("INSERT INTO PLA200101 (PRC_ID, BRUTTO) VALUES (1, 'x'), (2, 5)");
    auto zapytanie = platy(PLA("PRC_ID") >= Parametr{0});
    EXPECT_THROW(wiersze(zapytanie, 1), UszkodzonaWartosc);
    EXPECT_THROW(wiersze(zapytanie), Blad) << "a value is missing";
    EXPECT_THROW(wiersze(zapytanie, u"1"_s), Blad) << "a text for a number";
    EXPECT_THROW((void)(PLA("BRUTTO") == 5), Blad) << "a plain number for money";
    EXPECT_THROW(platy(PLB("PRC_ID") == 1), Blad) << "another table";
    EXPECT_THROW(PrzygotowaneZapytanie(*baza_, Zapytanie(PLA).kolumny(PLA.nr(PLA.numer("NIEMA")))), Blad);
    EXPECT_THROW(PrzygotowaneZapytanie(*baza_, Zapytanie(PLA).kolumny(PLA("BRUTTO")).oraz(schemat::KON)),
                 Blad);
    {
        auto w = zapytanie.uruchom(2);
        ASSERT_TRUE(w.nastepny());
        EXPECT_THROW((void)w.liczba(PLA("DN_PR")), Blad) << "not among the columns read";
        EXPECT_THROW((void)w.liczba(PLB("PRC_ID")), Blad);
    }
    UsunTabele(*baza_, u"PLA200101"_s); // refused while a statement on it is open

    Instrukcja instrukcja(*baza_, "SELECT ?");
    EXPECT_THROW(instrukcja.wiaz(1, Q_INT64_C(1)), BladBazy) << "no such parameter";

    Recordset pla(PLA);
    pla.Open(*baza_, u"PLA200102"_s);
    pla.AddNewZero(1);
    EXPECT_THROW((void)pla.kwota(PLB("PPE")), Blad);
    EXPECT_THROW((void)pla.kwota(PLA("DN_PR")), Blad) << "days are no money";
    EXPECT_THROW((void)pla.tekst(PLA.nr(-1)), Blad);
    EXPECT_THROW(pla.ustaw(PLB("PPE"), Waluta{}), Blad);
    EXPECT_THROW(pla.ustaw(PLA("DN_PR"), Waluta::zlotych(1)), Blad);
}

/// Two months with a row each.
class MiesiaceSesjiTest : public ZapytanieTest {
protected:
    MiesiaceSesjiTest() {
        baza_.reset();
        sesja_.emplace(plik_);
        sesja_->OtworzNaglowki();
        for (const int mies : {7, 8}) {
            sesja_->naglowki.AddNewZero();
            for (Recordset* rs : sesja_->naglowki) {
                rs->ustaw(rs->tabela().nr(0), u"2001"_s);
                rs->ustaw(rs->tabela().nr(1), u"0%1"_s.arg(mies));
            }
            for (const TabelaDef* t : schemat::TabeleMiesiaca)
                UtworzTabele(sesja_->cnPlace, *t, Sesja::nazwaMiesiaca(t->nazwa, {2001, mies}));
            sesja_->naglowki.UpdateBatch(sesja_->cnPlace, u"Dane testu");
            const OtwartyMiesiac miesiac(*sesja_, {2001, mies});
            sesja_->wierszListy.AddNewZero(mies, u"A"_s);
            sesja_->wierszListy.UpdateBatch(sesja_->cnPlace, u"Dane testu");
        }
    }
    std::optional<Sesja> sesja_;
};

TEST_F(MiesiaceSesjiTest, AnEarlierMonthIsReadAndTheMonthInWorkIsBack) {
    EXPECT_EQ(sesja_->miesiac(), RokMies{}) << "nothing stays open behind the object";
    EXPECT_FALSE(sesja_->rsPLA.otwarty());
    const OtwartyMiesiac wPracy(*sesja_, {2001, 8});
    ASSERT_TRUE(wPracy.jest());
    {
        const OtwartyMiesiac wczesniejszy(*sesja_, {2001, 7});
        EXPECT_TRUE(sesja_->wierszListy.Znajdz(7, u"A"_s));
        EXPECT_FALSE(OtwartyMiesiac(*sesja_, {2001, 6}).jest());
        EXPECT_EQ(sesja_->rsPLS.nazwa(), u"PLS200107"_s) << "a month that is missing closes nothing";
    }
    EXPECT_EQ(sesja_->miesiac(), (RokMies{2001, 8}));
    EXPECT_TRUE(sesja_->wierszListy.Znajdz(8, u"A"_s));
    EXPECT_FALSE(sesja_->wierszListy.Znajdz(7, u"A"_s));
}

TEST_F(MiesiaceSesjiTest, AGroupIsStoredOrDroppedAsOne) {
    const OtwartyMiesiac miesiac(*sesja_, {2001, 7});
    sesja_->cnPlace.wykonaj(
        "CREATE TRIGGER awaria BEFORE INSERT ON PLD200107 BEGIN SELECT RAISE(ABORT, 'x'); END");
    sesja_->wierszListy.AddNewZero(9, u"A"_s);
    const QString odmowa =
        powod([&] { sesja_->wierszListy.UpdateBatch(sesja_->cnPlace, u"Wiersz pracownika 9"); });
    EXPECT_TRUE(odmowa.contains(u"„Wiersz pracownika 9”"_s)) << odmowa.toStdString();
    sesja_->OdswiezUchwyty();
    EXPECT_EQ(sesja_->rsPLA.RecordCount(), 1) << "not stored in part";
    sesja_->wierszListy.AddNewZero(9, u"A"_s);
    sesja_->wierszListy.CancelBatch();
    EXPECT_FALSE(sesja_->wierszListy.zmieniona());

    // Rows are read without moving the handle, in its order, past its filter.
    Recordset& pla = sesja_->rsPLA;
    pla.AddNewZero(3, u"B"_s);
    pla.AddNewZero(1, u"B"_s);
    ASSERT_TRUE(pla.Znajdz(3, u"B"_s));
    QList<qint64> numery;
    for (const Wiersz w : pla.wiersze()) numery.append(w.liczba(PLA("PRC_ID")));
    EXPECT_EQ(numery, (QList<qint64>{1, 3, 7}));
    EXPECT_EQ(pla.szukaj(7)->tekst(PLA("LISTA")), u"A"_s);
    EXPECT_FALSE(pla.szukaj(7, u"B"_s));
    EXPECT_EQ(pla.liczba(PLA("PRC_ID")), 3);
}

} // namespace

} // namespace tornel::testy
