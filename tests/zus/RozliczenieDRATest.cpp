// Settlements of contributions: what a month gives, what typing changes, and the control against the reports.
#include "zus/RozliczenieDRA.h"
#include "common/Blad.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using schemat::PLACE;
using schemat::ZUS;

constexpr RokMies kMiesiacDRA{2001, 3};

class RozliczenieDRATest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        wzor_ = std::make_unique<QTemporaryDir>();
        UtworzPrzyklad(wzor_->filePath(u"Tornel.mdb"_s), 12, 3, wzor_->path());
    }
    static void TearDownTestSuite() { wzor_.reset(); }
    RozliczenieDRATest() {
        QFile::copy(wzor_->filePath(u"Tornel.mdb"_s), folder_.filePath(u"Tornel.mdb"_s));
        program_ = std::make_unique<Program>(folder_.filePath(u"Tornel.mdb"_s), folder_.path(), rozmowa_);
        for (auto* zasilki : {&o().stale.FC_zas, &o().stale.FW_zas, &o().stale.BP_zas}) zasilki->fill(0);
    }
    Otoczenie& o() { return program_->otoczenie(); }

    /// Moves a person's rows of March to the list `symbol` and puts an amount into a component.
    void przenies(qint64 prcId, const QString& symbol, int skladnik, double kwota) {
        const OtwartyMiesiac miesiac(o().sesja, kMiesiacDRA);
        auto& s = o().sesja;
        for (Recordset* rs : {&s.rsPLA, &s.rsPLB, &s.rsPLS, &s.rsPLD}) {
            const Kolumna lista = rs->tabela().nr(rs->tabela().numer("LISTA"));
            ASSERT_TRUE(rs->Znajdz(prcId));
            rs->ustaw(lista, symbol);
            if (rs == &s.rsPLS) rs->ustaw(schemat::SP(skladnik), zl(kwota));
            rs->UpdateBatch(u"Dane testu");
        }
    }

    static inline std::unique_ptr<QTemporaryDir> wzor_;
    QTemporaryDir folder_;
    RozmowaSkrypt rozmowa_;
    std::unique_ptr<Program> program_;
};

TEST_F(RozliczenieDRATest, AMonthGivesItsSumsByListAndSource) {
    const auto marzec = PodsumujDRA(o(), kMiesiacDRA, {});
    ASSERT_TRUE(marzec);
    EXPECT_EQ(marzec->il_ub, 11);
    // As the month's own list sums them.
    EXPECT_EQ(marzec->FcPrc, zl(979.32));
    EXPECT_EQ(marzec->fwprd, zl(647.55));
    EXPECT_EQ(marzec->Ubzdr, zl(2528.13));
    EXPECT_EQ(marzec->Fp, zl(979.32));
    EXPECT_EQ(marzec->swiad_fc, Waluta{}) << "no component is numbered as a benefit";
    const WplatyDRA wplaty = Wplaty(*marzec);
    EXPECT_EQ(wplaty.spoleczne, zl(2 * 3901.32 + 2 * 2598.21 + 979.32 + 647.55));
    EXPECT_EQ(wplaty.razem(), wplaty.spoleczne + zl(2528.13) + zl(979.32 + 31.98));

    // Benefits above the contributions are given back, and lessen no other account.
    SumyDRA nadwyzka;
    nadwyzka.Feprd = zl(10);
    nadwyzka.swiad_fc = zl(30);
    nadwyzka.Ubzdr = zl(5);
    nadwyzka.Fp = zl(2);
    const WplatyDRA zwrot = Wplaty(nadwyzka);
    EXPECT_EQ(zwrot.spoleczne, zl(-20));
    EXPECT_EQ(zwrot.razem(), zl(7));

    // One person on another list, with benefits of two sources.
    przenies(4, u"C"_s, 12, 120.5);
    o().stale.FC_zas[1] = o().stale.FC_zas[2] = 12; // twice under one source is one benefit
    o().stale.BP_zas[0] = 12;                       // a component may be told twice
    o().stale.FW_zas[0] = 31;                       // no such component
    const auto a = PodsumujDRA(o(), kMiesiacDRA, u"C"_s), reszta = PodsumujDRA(o(), kMiesiacDRA, u"AB"_s);
    ASSERT_TRUE(a && reszta);
    EXPECT_EQ(a->il_ub, 1);
    EXPECT_EQ(a->swiad_fc, zl(120.5));
    EXPECT_EQ(a->swiad_bp, zl(120.5));
    EXPECT_EQ(a->swiad_fw, Waluta{});
    EXPECT_EQ(a->Feprd + reszta->Feprd, zl(3901.32));
    EXPECT_EQ(PodsumujDRA(o(), kMiesiacDRA, u"ABC"_s)->il_ub, 11);
    przenies(5, {}, 12, 1);
    EXPECT_EQ(PodsumujDRA(o(), kMiesiacDRA, u" "_s)->il_ub, 1) << "a list without a symbol";
    EXPECT_FALSE(PodsumujDRA(o(), kMiesiacDRA, u"X"_s)) << "nobody is on that list";
    EXPECT_FALSE(PodsumujDRA(o(), {2001, 11}, {}));

    // Switched off in the month, whatever the catalogue of today says.
    auto& place = o().sesja.rsPLACE;
    ASSERT_TRUE(place.Znajdz(u"2001"_s, u"03"_s));
    place.ustaw(PLACE("akt_sp"), place.liczba(PLACE("akt_sp")) & ~(qint64{1} << 11));
    place.UpdateBatch(u"Dane testu");
    EXPECT_EQ(PodsumujDRA(o(), kMiesiacDRA, u"C"_s)->swiad_fc, Waluta{});
}

TEST_F(RozliczenieDRATest, WhatIsTypedStaysAndTheAmountToPayFollows) {
    RozliczeniaDRA dra(o());
    const auto pierwsze = dra.Nowe(kMiesiacDRA, {}, {2001, 4, 5});
    ASSERT_TRUE(pierwsze);
    EXPECT_EQ(pierwsze->napis(), u"03.2001 nr 1"_s);
    EXPECT_EQ(dra.Nowe(kMiesiacDRA, {}, {2001, 4, 5})->numer, 2);
    rozmowa_.spodziewaj(u"Nie ma list płac za 11.2001. Czy utworzyć puste rozliczenie ?"_s, Odpowiedz::Nie);
    EXPECT_FALSE(dra.Nowe({2001, 11}, {}, {2001, 4, 5}));

    auto& rs = o().sesja.rsZUS;
    ASSERT_TRUE(dra.zaznacz(*pierwsze));
    const Waluta przed = rs.kwota(ZUS("do_zaplaty"));
    rs.ustaw(ZUS("Fp"), rs.kwota(ZUS("Fp")) + zl(10));
    rs.ustaw(ZUS("swiad_fw"), zl(3));
    dra.Wpisz();
    EXPECT_EQ(rs.kwota(ZUS("do_zaplaty")), przed + zl(7));
    rs.ustaw(ZUS("Fp"), Waluta{});
    rs.ustaw(ZUS("do_zaplaty"), zl(5)); // the clerk knows better
    dra.Wpisz();
    rs.ustaw(ZUS("inf_opis"), u"korekta"_s);
    rs.ustaw(ZUS("Fgsp"), zl(1)); // his amount stays when another one changes later
    dra.Wpisz();
    EXPECT_NE(*dra.dzisiejsze(), dra.sumy()) << "the month says something else";

    RozliczeniaDRA znowu(o());
    EXPECT_EQ(znowu.lista(), (QList<KluczDRA>{{kMiesiacDRA, 1}, {kMiesiacDRA, 2}}));
    ASSERT_TRUE(znowu.zaznacz(*pierwsze));
    EXPECT_EQ(rs.kwota(ZUS("do_zaplaty")), zl(5));
    EXPECT_EQ(KluczDRA::zId(pierwsze->id()), *pierwsze);

    const QString pytanie = u"Czy na pewno usunąć rozliczenie ZUS DRA 03.2001 nr 1 ?"_s;
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
    EXPECT_FALSE(znowu.Usun(*pierwsze));
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
    EXPECT_TRUE(znowu.Usun(*pierwsze));
    EXPECT_THROW((void)znowu.Usun(*pierwsze), Blad);
    EXPECT_EQ(znowu.Nowe(kMiesiacDRA, {}, {2001, 4, 5})->numer, 1) << "the number is free again";
}

TEST_F(RozliczenieDRATest, TheControlFindsWhatDoesNotAgreeWithTheReports) {
    RozliczeniaDRA dra(o());
    (void)dra.Nowe(kMiesiacDRA, {}, {2001, 4, 5});
    const auto niezgodne = [&] {
        QStringList wynik;
        for (const KontrolaDRA& k : dra.kontrola())
            if (k.deklaracja != k.raport) wynik += k.napis.toString();
        return wynik;
    };
    EXPECT_EQ(dra.kontrola().size(), 7);
    EXPECT_EQ(niezgodne(), QStringList());
    o().sesja.rsZUS.ustaw(ZUS("fwprd"), zl(1));
    dra.Wpisz();
    EXPECT_EQ(niezgodne(), QStringList{u"Wypadkowe płatnika"_s});
    {
        const OtwartyMiesiac miesiac(o().sesja, kMiesiacDRA);
        auto& plb = o().sesja.rsPLB;
        ASSERT_TRUE(plb.Znajdz(5));
        plb.ustaw(schemat::PLB("UBZDR"), zl(0.01));
        plb.UpdateBatch(u"Dane testu");
    }
    EXPECT_EQ(niezgodne(), (QStringList{u"Wypadkowe płatnika"_s, u"Zdrowotne"_s}));
}

} // namespace

} // namespace tornel::testy
