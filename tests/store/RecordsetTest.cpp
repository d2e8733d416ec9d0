#include "common/Blad.h"
#include "store/Sesja.h"
#include "store/Struktura.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include <QFile>
#include <QTemporaryDir>

namespace tornel::testy {

using schemat::KONTA;
using schemat::PLA;
using schemat::PLD;
using schemat::PRACDP;
using schemat::UZYTKOWNICY;

namespace {

class RecordsetTest : public testing::Test {
protected:
    RecordsetTest() { UtworzBaze(sciezka()); }
    [[nodiscard]] QString sciezka() const { return folder_.filePath(QStringLiteral("Tornel.mdb")); }
    Polaczenie& baza() {
        if (!baza_) baza_ = std::make_unique<Polaczenie>(sciezka(), Polaczenie::Sposob::Istniejaca);
        return *baza_;
    }
    Recordset pracownicy(std::initializer_list<std::pair<int, const char16_t*>> wiersze) {
        Recordset rs(PRACDP);
        rs.Open(baza());
        for (const auto& [nr, nazwisko] : wiersze) {
            rs.AddNewZero(nr);
            rs.ustaw(PRACDP("Naz"), QString::fromUtf16(nazwisko));
        }
        rs.UpdateBatch(u"Dane testu");
        return rs;
    }
    static QStringList nazwiska(Recordset& rs) {
        QStringList wynik;
        for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext()) wynik += rs.tekst(PRACDP("Naz"));
        return wynik;
    }

    QTemporaryDir folder_;
    std::unique_ptr<Polaczenie> baza_;
};

TEST_F(RecordsetTest, ValuesOfEveryKindComeBackFromTheFile) {
    UtworzTabele(baza(), schemat::PLA, QStringLiteral("PLA200107"));
    UtworzTabele(baza(), schemat::NADGN, QStringLiteral("NADGN200107"));
    Recordset pla(PLA);
    pla.Open(baza(), QStringLiteral("PLA200107"));
    pla.AddNew();
    EXPECT_TRUE(pla.jestNull(PLA("BRUTTO")));
    pla.ustaw(PLA("PRC_ID"), 7);
    pla.ustaw(PLA("LISTA"), QStringLiteral("AB"));
    pla.ustaw(PLA("BRUTTO"), Waluta::zSurowej(-12345));
    pla.ustaw(PLA("NAZ"), QStringLiteral("O'Zażółć; DROP TABLE PRACDP; 😀 i jeszcze"));
    pla.UpdateBatch(u"Dane testu");
    Recordset nadgodziny(schemat::NADGN);
    nadgodziny.Open(baza(), QStringLiteral("NADGN200107"));
    nadgodziny.AddNewZero(7);
    nadgodziny.ustaw(schemat::NADGN("SP_C1"), 2.5);
    nadgodziny.UpdateBatch(u"Dane testu");
    Recordset notatki(schemat::PRACINF);
    notatki.Open(baza());
    notatki.AddNewZero(7);
    // A note of digits must not become a number on its way through the file.
    notatki.ustaw(schemat::PRACINF("inf_opis"), QStringLiteral("007"));
    notatki.UpdateBatch(u"Dane testu");

    pla.Requery();
    EXPECT_EQ(pla.tekst(PLA("LISTA")), QStringLiteral("A")) << "cut to the column";
    EXPECT_EQ(pla.kwota(PLA("BRUTTO")), Waluta::zSurowej(-12345));
    EXPECT_EQ(pla.tekst(PLA("NAZ")), QStringLiteral("O'Zażółć; DROP TABLE PRACDP; 😀 i jeszcze").left(20));
    EXPECT_TRUE(pla.jestNull(PLA("NETTO")));
    EXPECT_EQ(pla.kwota(PLA("NETTO")), Waluta{});
    nadgodziny.Requery();
    EXPECT_EQ(nadgodziny.rzeczywista(schemat::NADGN("SP_C1")), 2.5);
    notatki.Requery();
    EXPECT_EQ(notatki.tekst(schemat::PRACINF("inf_opis")), QStringLiteral("007"));
    EXPECT_TRUE(baza().jestTabela(QStringLiteral("PRACDP")));
}

TEST_F(RecordsetTest, DatesKeepTheirDayAndRefuseDamage) {
    UtworzTabele(baza(), schemat::PLD, QStringLiteral("PLD200102"));
    Recordset pld(PLD);
    pld.Open(baza(), QStringLiteral("PLD200102"));
    pld.AddNewZero(1, QStringLiteral(" "));
    pld.ustaw(schemat::SOD(1), QDate(2001, 2, 28));
    pld.ustaw(schemat::SDO(30), QDate(1999, 12, 31));
    pld.UpdateBatch(u"Dane testu");
    pld.Requery();
    EXPECT_EQ(pld.data(schemat::SOD(1)), QDate(2001, 2, 28));
    EXPECT_EQ(pld.data(schemat::SDO(30)), QDate(1999, 12, 31));
    EXPECT_FALSE(pld.data(schemat::SDO(1)).isValid());
    for (const char* uszkodzona : {"'2001-02-30'", "'wczoraj'", "5", "'2001-2-3'"}) {
        baza().wykonaj(std::string("UPDATE PLD200102 SET SOD_1 = ") + uszkodzona);
        EXPECT_THROW(pld.Requery(), UszkodzonaWartosc) << uszkodzona;
        EXPECT_EQ(pld.data(schemat::SOD(1)), QDate(2001, 2, 28)) << "the handle stays as it was";
    }
}

TEST_F(RecordsetTest, SortFilterFindAndBookmark) {
    Recordset rs = pracownicy({{3, u"Żak"}, {1, u"Adamska"}, {2, u"Mazur"}, {9, u"Adamska"}});
    rs.Sort({PRACDP("prc_id")});
    EXPECT_EQ(nazwiska(rs), QStringList({QStringLiteral("Adamska"), QStringLiteral("Mazur"),
                                         QStringLiteral("Żak"), QStringLiteral("Adamska")}));
    ASSERT_TRUE(rs.Znajdz(2));
    const Zakladka mazur = rs.Bookmark();
    rs.Sort({PRACDP("Naz"), PRACDP("prc_id")});
    EXPECT_EQ(rs.tekst(PRACDP("Naz")), QStringLiteral("Mazur")) << "the position stays on its row";

    rs.Filter({{PRACDP("Naz"), Kryterium::Operator::Rowne, QStringLiteral("Adamska")}});
    EXPECT_EQ(rs.RecordCount(), 2);
    EXPECT_FALSE(rs.Znajdz(3)) << "filtered out";
    EXPECT_TRUE(rs.EOF_());
    rs.Filter({{PRACDP("prc_id"), Kryterium::Operator::NieMniejsze, qint64{2}},
               {PRACDP("prc_id"), Kryterium::Operator::Mniejsze, qint64{9}}});
    EXPECT_EQ(rs.RecordCount(), 2);
    rs.Filter({});
    rs.Bookmark(mazur);
    EXPECT_EQ(rs.liczba(PRACDP("prc_id")), 2);

    const Kryterium adamska{PRACDP("Naz"), Kryterium::Operator::Rowne, QStringLiteral("Adamska")};
    EXPECT_TRUE(rs.Find(adamska));
    EXPECT_EQ(rs.liczba(PRACDP("prc_id")), 1);
    rs.MoveNext();
    EXPECT_TRUE(rs.Find(adamska, Skad::Biezacy));
    EXPECT_EQ(rs.liczba(PRACDP("prc_id")), 9);
    rs.MoveNext();
    EXPECT_FALSE(rs.Find(adamska, Skad::Biezacy));
    EXPECT_THROW((void)rs.tekst(PRACDP("Naz")), Blad) << "no current row";
}

TEST_F(RecordsetTest, EditsMoveRowsAndIndexes) {
    Recordset rs = pracownicy({{1, u"A"}, {2, u"B"}, {3, u"C"}});
    rs.Sort({PRACDP("prc_id")});
    ASSERT_TRUE(rs.Znajdz(1));
    rs.ustaw(PRACDP("prc_id"), 7);
    EXPECT_FALSE(rs.Znajdz(1));
    ASSERT_TRUE(rs.Znajdz(7));
    EXPECT_EQ(nazwiska(rs), QStringList({QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("A")}));
    rs.CancelBatch();
    EXPECT_TRUE(rs.Znajdz(1));
    EXPECT_EQ(nazwiska(rs), QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));

    ASSERT_TRUE(rs.Znajdz(2));
    rs.Delete();
    EXPECT_EQ(rs.tekst(PRACDP("Naz")), QStringLiteral("C")) << "moves to the next row";
    rs.AddNewZero(5);
    rs.ustaw(PRACDP("Naz"), QStringLiteral("D"));
    EXPECT_TRUE(rs.zmieniony());
    rs.CancelBatch();
    EXPECT_FALSE(rs.zmieniony());
    EXPECT_EQ(nazwiska(rs), QStringList({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")}));

    ASSERT_TRUE(rs.Znajdz(2));
    rs.Delete();
    rs.AddNewZero(5);
    rs.Delete();
    rs.UpdateBatch(u"Dane testu");
    rs.Requery();
    EXPECT_EQ(rs.RecordCount(), 2);
}

TEST_F(RecordsetTest, AStoredRowThatChangedMeanwhileIsAConflict) {
    Recordset moj = pracownicy({{1, u"Stara"}, {2, u"Inna"}});
    Recordset drugi(PRACDP);
    drugi.Open(baza());
    ASSERT_TRUE(drugi.Znajdz(1));
    drugi.ustaw(PRACDP("miasto"), QStringLiteral("Radom"));
    drugi.UpdateBatch(u"Dane testu");

    ASSERT_TRUE(moj.Znajdz(2));
    moj.ustaw(PRACDP("Naz"), QStringLiteral("Zmieniona"));
    ASSERT_TRUE(moj.Znajdz(1));
    moj.ustaw(PRACDP("Naz"), QStringLiteral("Nowa"));
    EXPECT_THROW(moj.UpdateBatch(u"Dane testu"), Konflikt);
    EXPECT_EQ(moj.tekst(PRACDP("Naz")), QStringLiteral("Nowa")) << "the typed version is kept";
    drugi.Requery();
    ASSERT_TRUE(drugi.Znajdz(1));
    EXPECT_EQ(drugi.tekst(PRACDP("miasto")), QStringLiteral("Radom")) << "the stored version is kept";
    ASSERT_TRUE(drugi.Znajdz(2));
    EXPECT_EQ(drugi.tekst(PRACDP("Naz")), QStringLiteral("Inna"))
        << "the batch is written whole or not at all";

    ASSERT_TRUE(drugi.Znajdz(1));
    drugi.Delete();
    drugi.UpdateBatch(u"Dane testu");
    EXPECT_THROW(moj.UpdateBatch(u"Dane testu"), Konflikt) << "a row that has gone is a conflict too";
}

TEST_F(RecordsetTest, ARolledBackActionLeavesTheFileAsItWas) {
    Recordset rs = pracownicy({{1, u"Stara"}});
    ASSERT_TRUE(rs.Znajdz(1));
    {
        Transakcja akcja(baza(), u"Dane testu");
        rs.ustaw(PRACDP("Naz"), QStringLiteral("Nowa"));
        rs.UpdateBatch(u"Dane testu");
        Transakcja wewnetrzna(baza(), u"Dane testu");
        wewnetrzna.zatwierdz();
    }
    rs.Requery();
    EXPECT_EQ(rs.tekst(PRACDP("Naz")), QStringLiteral("Stara"));
}

TEST_F(RecordsetTest, KeysAreUniqueWhereTheTableSaysSo) {
    Recordset rs = pracownicy({{1, u"A"}});
    rs.AddNewZero(1);
    EXPECT_THROW(rs.UpdateBatch(u"Dane testu"), BladBazy);
    EXPECT_TRUE(rs.zmieniony()) << "the row stays pending";
    Recordset uzytkownicy(UZYTKOWNICY);
    uzytkownicy.Open(baza());
    uzytkownicy.AddNewZero();
    uzytkownicy.ustaw(UZYTKOWNICY("Nazwa"), QStringLiteral("Ewa"));
    EXPECT_TRUE(uzytkownicy.Znajdz(QStringLiteral("Ewa")));
    EXPECT_FALSE(uzytkownicy.Znajdz(QStringLiteral("ewa")));
}

TEST_F(RecordsetTest, NumbersOutsideTheColumnAreRefusedAndChangeNothing) {
    UtworzTabele(baza(), schemat::PLA, QStringLiteral("PLA200101"));
    Recordset rs(PLA);
    rs.Open(baza(), QStringLiteral("PLA200101"));
    rs.AddNewZero(1, QStringLiteral(" "));
    rs.ustaw(PLA("DN_PR"), 20);
    EXPECT_THROW(rs.ustaw(PLA("DN_PR"), qint64{1} << 40), Przepelnienie);
    EXPECT_EQ(rs.liczba(PLA("DN_PR")), 20);
    EXPECT_THROW(rs.AddNewZero(qint64{1} << 40, QStringLiteral(" ")), Przepelnienie);
    EXPECT_EQ(rs.RecordCount(), 1);
}

TEST_F(RecordsetTest, OpeningWithAConditionReadsOnlyThoseRows) {
    Recordset konta(KONTA);
    konta.Open(baza());
    for (int i = 1; i <= 5; ++i) {
        konta.AddNewZero(i);
        konta.ustaw(KONTA("skrot"), i % 2 ? QStringLiteral("o'a") : QStringLiteral("b"));
    }
    konta.UpdateBatch(u"Dane testu");
    konta.Open(baza(), {},
               {{KONTA("skrot"), Kryterium::Operator::Rowne, QStringLiteral("o'a")},
                {KONTA("NR"), Kryterium::Operator::Wieksze, qint64{1}}});
    EXPECT_EQ(konta.RecordCount(), 2);
}

TEST_F(RecordsetTest, FilesThatCannotServeAreRefusedByName) {
    const auto komunikat = [&](const QString& plik) {
        try {
            const Sesja sesja(plik);
        } catch (const BladBazy& blad) {
            return blad.komunikat();
        }
        return QString();
    };
    const QString brak = folder_.filePath(QStringLiteral("nie ma.mdb"));
    EXPECT_TRUE(komunikat(brak).contains(brak));
    EXPECT_TRUE(komunikat(brak).contains(QStringLiteral("nie ma takiego pliku")));
    EXPECT_FALSE(QFile::exists(brak)) << "opening must not make a file";

    const auto zapisz = [&](const char* nazwa, const QByteArray& tresc) {
        QFile plik(folder_.filePath(QLatin1String(nazwa)));
        EXPECT_TRUE(plik.open(QIODevice::WriteOnly) && plik.write(tresc) == tresc.size());
        return plik.fileName();
    };
    EXPECT_TRUE(komunikat(zapisz("tekst.mdb", QByteArray(5000, 'x')))
                    .contains(QStringLiteral("nie jest bazą danych")));
    EXPECT_TRUE(komunikat(zapisz("pusty.mdb", {})).contains(QStringLiteral("nie jest bazą danych")));

    QFile dobra(sciezka());
    ASSERT_TRUE(dobra.open(QIODevice::ReadOnly));
    QByteArray ucieta = dobra.readAll();
    ucieta.truncate(ucieta.size() / 3);
    EXPECT_FALSE(komunikat(zapisz("ucieta.mdb", ucieta)).isEmpty());
    EXPECT_EQ(QFile(folder_.filePath(QStringLiteral("ucieta.mdb"))).size(), ucieta.size())
        << "damage is not touched";

    EXPECT_THROW(UtworzBaze(sciezka()), BladBazy) << "an existing file is never overwritten";
    const Sesja pierwsza(sciezka());
    EXPECT_TRUE(komunikat(sciezka()).contains(QStringLiteral("otwarty w innym programie")));
}

} // namespace

} // namespace tornel::testy
