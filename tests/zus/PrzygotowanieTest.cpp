// From the choice of documents to the written collection: what is asked, what giving up leaves, and what is
// remarked before.
#include "common/Pliki.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include "zus/PrzygotowanieKedu.h"
#include <gtest/gtest.h>
#include <QFile>
#include <QTemporaryDir>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using schemat::M_PRACY;
using schemat::PRACDP;
using schemat::PRACZUS;

const QString kDlaWszystkich = u"Czy przygotować KEDU dla wszystkich pracowników ?"_s;
const QString kDniOgolne = u"Czy dni wynikające z obowiązku pracy wyliczyć z dni ogólnych ?"_s;
const QString kGotowe = u"Plik został wygenerowany."_s;

/// Answers as it was told to; what it was asked stands in `pytania`.
class Odpowiadajacy : public PytaniaKedu {
public:
    std::optional<QString> plik(const QString& folder) override {
        folderWyboru = folder;
        return sciezka;
    }
    std::optional<qint64> pracownik() override {
        pytania += u"pracownik"_s;
        return osoba;
    }
    std::optional<QDate> dzien(const QString& pytanie) override {
        pytania += pytanie;
        if (dni.isEmpty()) return std::nullopt;
        return dni.takeFirst();
    }
    std::optional<RokMies> miesiac(const QString& pytanie) override {
        pytania += pytanie;
        return miesiacRaportu;
    }
    bool mimoUwag(const std::function<QList<UwagaKedu>()>& sprawdz) override {
        for (const UwagaKedu& u : sprawdz()) uwagi += u"%1 | %2 | %3"_s.arg(u.kto, u.dokumenty, u.uwaga);
        return mimo;
    }

    std::optional<QString> sciezka;
    std::optional<qint64> osoba;
    QList<QDate> dni;
    std::optional<RokMies> miesiacRaportu = RokMies{2001, 3};
    bool mimo = true;
    QString folderWyboru;
    QStringList pytania, uwagi;
};

class PrzygotowanieTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        wzor_ = std::make_unique<QTemporaryDir>();
        UtworzPrzyklad(wzor_->filePath(u"Tornel.mdb"_s), 12, 3, wzor_->path());
    }
    static void TearDownTestSuite() { wzor_.reset(); }
    PrzygotowanieTest() {
        QFile::copy(wzor_->filePath(u"Tornel.mdb"_s), folder_.filePath(u"Tornel.mdb"_s));
        program_ = std::make_unique<Program>(folder_.filePath(u"Tornel.mdb"_s), folder_.path(), rozmowa_);
        pytania_.sciezka = plik();
    }

    Otoczenie& o() { return program_->otoczenie(); }
    [[nodiscard]] QString plik() const { return folder_.filePath(u"a.kdu"_s); }
    auto przygotuj(std::initializer_list<KodKedu> kody) {
        WyborDokumentow wybor;
        for (const KodKedu kod : kody) wybor.ustaw(kod, 1);
        return PrzygotowanieKedu(o(), pytania_).Przygotuj(wybor, QDateTime({2001, 4, 10}, {12, 0}));
    }
    [[nodiscard]] int oznaczonychAdresow() { return IleOznaczonych(o(), KodKedu::ZAA); }

    static inline std::unique_ptr<QTemporaryDir> wzor_;
    QTemporaryDir folder_;
    RozmowaSkrypt rozmowa_;
    Odpowiadajacy pytania_;
    std::unique_ptr<Program> program_;
};

TEST_F(PrzygotowanieTest, GivingUpAnywhereLeavesNoFileAndNoMark) {
    rozmowa_.spodziewaj(
        u"Nie wybrano jakie formularze mają zostać przygotowane! Proszę zaznaczyć formularze do "
        "przygotowania."_s,
        Styl::Wykrzyknik);
    EXPECT_FALSE(przygotuj({}));

    pytania_.sciezka = std::nullopt; // at the save dialog, without a word
    EXPECT_FALSE(przygotuj({KodKedu::ZAA}));
    pytania_.sciezka = plik();

    ZapiszPlik(plik(), "stara");
    rozmowa_.spodziewaj(u"Podany plik już istnieje. Czy zmienić istniejący plik ?"_s, Odpowiedz::Nie);
    EXPECT_FALSE(przygotuj({KodKedu::ZAA}));
    EXPECT_EQ(CzytajPlik(plik()), "stara");
    QFile::remove(plik());

    rozmowa_.spodziewaj(kDlaWszystkich, Odpowiedz::Anuluj);
    EXPECT_FALSE(przygotuj({KodKedu::ZUA, KodKedu::ZAA}));
    rozmowa_.spodziewaj(kDlaWszystkich, Odpowiedz::Nie); // then at the picker
    EXPECT_FALSE(przygotuj({KodKedu::ZUA, KodKedu::ZAA}));
    EXPECT_EQ(pytania_.pytania, QStringList{u"pracownik"_s});

    pytania_.mimo = false; // at the check list
    rozmowa_.spodziewaj(kDlaWszystkich, Odpowiedz::Tak);
    EXPECT_FALSE(przygotuj({KodKedu::ZZA, KodKedu::ZAA}));
    EXPECT_FALSE(pytania_.uwagi.isEmpty());

    EXPECT_FALSE(QFile::exists(plik()));
    EXPECT_EQ(oznaczonychAdresow(), 2);
}

TEST_F(PrzygotowanieTest, ReportsAskForMonthsContractsForDates) {
    rozmowa_.spodziewaj(kDlaWszystkich, Odpowiedz::Tak);
    rozmowa_.spodziewaj(u"Proszę podać identyfikator raportu ZUS RNA"_s, u"77"_s);
    rozmowa_.spodziewaj(kDniOgolne, Odpowiedz::Nie);
    rozmowa_.spodziewaj(u"Proszę podać identyfikator raportu ZUS RZA"_s, u"01032001"_s);
    rozmowa_.spodziewaj(u"Proszę podać identyfikator raportu ZUS RZA"_s,
                        std::optional<QString>()); // of the RSA
    rozmowa_.spodziewaj(kGotowe, Styl::Informacja);
    pytania_.dni = {QDate(2001, 3, 1), QDate(2001, 3, 31)};
    const auto wykonane = przygotuj({KodKedu::RSA, KodKedu::RZA, KodKedu::RNA});
    ASSERT_TRUE(wykonane);
    EXPECT_EQ(pytania_.pytania,
              (QStringList{u"Umowy zlecenia od:"_s, u"Umowy zlecenia do:"_s, u"Formularz ZUS RNA na:"_s,
                           u"Formularz ZUS RZA na:"_s, u"Formularz ZUS RSA na:"_s}));
    const QByteArray tresc = CzytajPlik(plik());
    EXPECT_TRUE(tresc.contains("<DORNA>\r\n77      \r\n"));
    EXPECT_TRUE(tresc.contains("<DORSA>\r\n        \r\n")) << "an empty answer is one";
    EXPECT_EQ(wykonane->zamowienie.zlecenia.dokad, QDate(2001, 3, 31));
}

TEST_F(PrzygotowanieTest, CancelledDatesMeanNoContractsACancelledMonthNoReport) {
    pytania_.miesiacRaportu = std::nullopt;
    rozmowa_.spodziewaj(kDlaWszystkich, Odpowiedz::Tak);
    rozmowa_.spodziewaj(
        u"Nie znaleziono danych do wygenerowania wybranych deklaracji. Wygenerowany został pusty "
        "plik."_s,
        Styl::Wykrzyknik);
    const auto wykonane = przygotuj({KodKedu::RZA});
    ASSERT_TRUE(wykonane);
    EXPECT_EQ(pytania_.pytania, (QStringList{u"Umowy zlecenia od:"_s, u"Formularz ZUS RZA na:"_s}));
    EXPECT_FALSE(wykonane->zamowienie.zlecenia.od.isValid());
    EXPECT_EQ(wykonane->wynik.razem(), 0);
    EXPECT_TRUE(CzytajPlik(plik()).endsWith("</KEDU>\r\n"));
}

TEST_F(PrzygotowanieTest, AMissingMonthIsToldOnceAndTheRunGoesOn) {
    pytania_.miesiacRaportu = RokMies{2001, 11};
    rozmowa_.spodziewaj(kDlaWszystkich, Odpowiedz::Tak);
    rozmowa_.spodziewaj(u"Proszę podać identyfikator raportu ZUS RNA"_s, u"1"_s);
    rozmowa_.spodziewaj(kDniOgolne, Odpowiedz::Tak);
    rozmowa_.spodziewaj(u"Nie odnaleziono miesiąca 11.2001"_s, Styl::Wykrzyknik);
    rozmowa_.spodziewaj(kGotowe, Styl::Informacja);
    const auto wykonane = przygotuj({KodKedu::RNA, KodKedu::ZBA});
    ASSERT_TRUE(wykonane);
    EXPECT_EQ(wykonane->wynik.dokumenty.at(KodKedu::ZBA), 1);
    EXPECT_TRUE(pytania_.uwagi.join(u'\n').contains(u"nie ma listy płac za 11.2001"_s));
}

TEST_F(PrzygotowanieTest, RemarksNameWhoseDocumentIsInDanger) {
    auto& s = o().sesja;
    const auto zmien = [](Recordset& rs, qint64 nr, Kolumna k, const QString& tekst) {
        ASSERT_TRUE(rs.Znajdz(nr));
        rs.ustaw(k, tekst);
        rs.UpdateBatch(u"Dane testu");
    };
    const auto sprawdz = [&](KodKedu kod, qint64 prcId) {
        ZamowienieKedu z{.plik = plik(), .prcId = prcId, .kiedy = QDateTime({2001, 4, 10}, {12, 0})};
        z.wybor.ustaw(kod, 1);
        if (dokumentKedu(kod).petla == Petla::Raport) z.raporty[kod] = {{2001, 3}, {}};
        QStringList wynik;
        for (const UwagaKedu& u : SprawdzKedu(o(), z)) wynik += u.uwaga;
        return wynik;
    };
    EXPECT_EQ(sprawdz(KodKedu::ZUA, 10), QStringList()) << "a person in order";
    EXPECT_EQ(sprawdz(KodKedu::ZUA, 5), QStringList{u"nie jest oznaczony do tego dokumentu"_s});
    zmien(s.rsPRACZUS, 10, PRACZUS("kod_tyt_ub"), u" "_s);
    EXPECT_EQ(sprawdz(KodKedu::ZUA, 10), QStringList{u"kod tytułu ubezpieczenia jest pusty"_s});
    for (const Kolumna k : {PRACDP("pesel"), PRACDP("Nip"), PRACDP("dowod_ser"), PRACDP("dowod_nr")})
        zmien(s.rsPRACDP, 10, k, QString());
    EXPECT_TRUE(sprawdz(KodKedu::RCA, 10).contains(u"nie ma numeru PESEL, NIP ani dowodu osobistego"_s));
    // A foreigner without PESEL has another number.
    EXPECT_EQ(sprawdz(KodKedu::RCA, 9), QStringList());
    ASSERT_TRUE(s.rsPRACZUS.Znajdz(12));
    s.rsPRACZUS.ustaw(PRACZUS("zwua_d_e"), QDate(1990, 1, 1));
    s.rsPRACZUS.UpdateBatch(u"Dane testu");
    EXPECT_EQ(sprawdz(KodKedu::ZWUA, 12), QStringList{u"ubezpieczenie ustało przed swoim początkiem"_s});

    o().stale.NIP.clear();
    o().stale.Regon = u" "_s;
    const QStringList platnika = sprawdz(KodKedu::ZPA, 0);
    EXPECT_TRUE(platnika.contains(u"nie ma numeru NIP"_s) && platnika.contains(u"nie ma numeru REGON"_s));
}

} // namespace

} // namespace tornel::testy
