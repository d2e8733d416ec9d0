// The insurer's collection: value writers, the widths of every line, one file with every document, and a file
// that cannot be written.
#include "common/Blad.h"
#include "common/Pliki.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Proces.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include "wsparcie/RozmowaZgoda.h"
#include "zus/OdczytKedu.h"
#include "zus/PisarzeKedu.h"
#include "zus/WykonanieKedu.h"
#include "zus/ZbiorKedu.h"
#include <csignal>
#include <gtest/gtest.h>
#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <sys/resource.h>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using schemat::KONTA;
using schemat::M_PRACY;
using schemat::PRACDP;
using schemat::PRACZUS;

constexpr RokMies kMarzec{2001, 3};

TEST(PisarzeKeduTest, ValuesBecomeCharacters) {
    const struct {
        QString wynik, oczekiwany;
    } przypadki[] = {
        {KeduPole(u"Żółć"_s, 6), u"Żółć  "_s},
        {KeduPole(u"Nowakowska-Zielińska"_s, 8), u"Nowakows"_s},
        {KeduPole({}, 3), u"   "_s},
        {KeduPole(u"a\tb\r\nc"_s, 7), u"a b  c "_s},
        {KeduPole(u"a\U0001F600b"_s, 4), u"a?b "_s},
        {KeduCyfry(u"948-130-71-70"_s), u"9481307170"_s},
        {KeduCyfry(u"26-610 Radom"_s), u"26610"_s},
        {KeduCyfry(u"+48 (048) 361-20-11 w. 5"_s), u"4804836120"_s},
        {KeduData({2001, 3, 5}), u"05032001"_s},
        {KeduData({}), u"        "_s},
        {KeduDataOdwrotna({2001, 3, 5}), u"20010305"_s},
        {KeduOkres({2001, 3, 5}, {2002, 12, 31}), u"0503200131122002"_s},
        {KeduOkres({2001, 3, 5}, {}), QString(16, u' ')},
        {KeduOkres({}, {2001, 3, 5}), QString(16, u' ')},
        {KeduZnacznik(u"tak"_s), u"X"_s},
        {KeduZnacznik(u"T"_s), u"X"_s},
        {KeduZnacznik(u"N"_s), u" "_s},
        {KeduZnacznik({}), u" "_s},
        {KeduKwota(zl(1234.56), 8), u"00123456"_s},
        {KeduKwota({}, 7), u"0000000"_s},
        {KeduKwota(zl(-12.5), 7), u"00-1250"_s},
        {KeduKwota(zl(0.0099), 3), u"000"_s},
        {KeduKwota(zl(-0.0001), 4), u"00-1"_s}, // towards minus infinity
        {KeduKwota(zl(123456.78), 7), u"2345678"_s},
        {KeduLicznik(7, 3), u"007"_s},
        {KeduLicznik(1234, 3), u"1234"_s},
        {NazwaKasyChorych(u"05r"_s), u"ŁÓDZKA RKCH"_s},
        {NazwaKasyChorych(u"99R"_s), QString()},
    };
    for (const auto& p : przypadki) EXPECT_EQ(p.wynik, p.oczekiwany);
    QStringList kody;
    for (int pozycja = -1; pozycja <= 9; ++pozycja) kody += KeduWyksztalcenie(pozycja);
    EXPECT_EQ(kody.join(u','), u"  ,11,12,20,31,  ,50,  ,32,40,  "_s);
}

/// The widths of the lines of every block, typed anew.
struct SzerokosciBloku {
    const char* dokument;
    const char* blok;
    QList<int> linie;
};

QList<int> razem(std::initializer_list<QList<int>> czesci) {
    QList<int> wynik;
    for (const QList<int>& c : czesci) wynik += c;
    return wynik;
}

const QList<int> kTozsamosc{11, 10, 1, 9, 31, 22, 8, 16, 16, 2};
const QList<int> kOsobaRaportu{31, 22, 1, 11, 6};
const QList<int> kWierszRaportu{1, 6, 8, 8, 8, 7, 7, 7, 7, 7, 7, 7, 7, 8, 2, 7, 7, 2, 7, 8};
const QList<int> kZera{16, 16, 2};
const QList<int> kAdres{5, 26, 26, 30, 7, 7, 12, 12};
const QList<int> kRodzina{1, 8, 11, 10, 1, 9, 31, 22, 8, 2, 1, 1, 1};

QList<int> wpisyRNA() {
    QList<int> wynik;
    for (int i = 0; i < 10; ++i) wynik += {2, 8, 8, 8};
    return wynik;
}

const QList<SzerokosciBloku> kSzerokosci{
    {"ZUA", "DOZUA", {1, 1, 1, 8, 6}},
    {"ZIUA", "DOZIUA", {1, 8, 6}},
    {"ZWUA", "DOZWUA", {1, 1, 1, 1, 8, 6}},
    {"ZCNA", "DOZCBA", {8, 6}},
    {"ZPA", "DOZPF", {1, 1, 8, 6}},
    {"ZUA", "DIPL", {10, 14, 11, 1, 9, 31, 31, 22, 8, 16, 16, 2}},
    {"ZPA", "DAIP", {10, 14, 31, 16, 16, 2}},
    {"ZPA", "DAPL", {62, 1, 1, 31, 1, 8, 15, 72, 8, 8}},
    {"ZFA", "DEPL", {22, 26, 22}},
    {"ZFA", "PPDB", {2, 15, 72, 8, 8}},
    {"ZPA", "DORB", {36, 1}},
    {"ZPA", "IDO1", {1, 8, 8, 1}},
    {"ZFA", "IDOP", {1, 8, 8, 8, 1}},
    {"ZPA", "DOBR", {10, 14, 31, 16, 16, 2}},
    {"ZUA", "OPL1", {8}},
    {"ZPA", "OPL2", {3, 3, 8}},
    {"ZFA", "ASPL", {5, 26, 26, 30, 7, 7, 12, 12, 30}},
    {"ZPA", "ASZP", {5, 26, 26, 30, 7, 7, 12, 12, 30}},
    {"ZPA", "ADKP", {5, 26, 30, 7, 7, 12, 5, 12, 12, 30}},
    {"ZUA", "DAU", kTozsamosc},
    {"ZIUA", "DIOP", kTozsamosc},
    {"ZIUA", "ADIU", kTozsamosc},
    {"ZUA", "DEOZ", {22, 31, 22, 1, 1, 1}},
    {"ZUA", "TYUB", {6, 16}},
    {"ZZA", "TYUBZ", {6}},
    {"ZUA", "DOWP", {6, 8, 1, 1, 1, 1}},
    {"ZUA", "DOOU", {8}},
    {"ZUA", "DOBU", {1, 8, 1, 8, 1, 8}},
    {"ZUA", "DODU", {8, 9}},
    {"ZUA", "IODZ", {2, 1, 2, 16, 7, 6, 16, 2, 9, 16}},
    {"ZUA", "DOKC", {3, 23, 8}},
    {"ZUA", "AZMO", kAdres},
    {"ZUA", "ADZA", kAdres},
    {"ZUA", "ADKB", {5, 26, 30, 7, 7, 5, 12, 12, 30}},
    {"ZWUA", "WNOU", {6, 8}},
    {"ZWUA", "WUBD", {6, 1, 8, 3, 1, 8, 3, 1, 8, 3, 1, 8, 3, 1, 8, 3}},
    {"ZCNA", "DOCRA", razem({kRodzina, kAdres, kZera})},
    {"ZCZA", "DOCRBA", razem({kRodzina, kZera})},
    {"ZBA", "IORB", {1, 36}},
    {"ZAA", "APDG", {1, 5, 26, 26, 30, 7, 7, 12, 12}},
    {"RCA", "DORCA", {8, 5, 9, 9}},
    {"RNA", "DORNA", {8, 5, 10, 10}},
    {"RZA", "DORZA", {8, 4, 8, 8}},
    {"RSA", "DORSA", {8, 3, 8, 8}},
    {"RCA", "DDORCA", razem({kOsobaRaportu, kWierszRaportu, kZera})},
    {"RNA", "DDORNA", razem({kOsobaRaportu, kWierszRaportu, {2, 2}, wpisyRNA(), {9}})},
    {"RZA", "DDORZA", razem({kOsobaRaportu, {8, 7}, kZera})},
    {"RSA", "DDORSA", razem({kOsobaRaportu, {3, 8, 8, 8}, kZera})},
    {"RCA", "OPLR", {8}},
};

/// The example firm, in which every document has something to say.
class KolekcjaTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        wzor_ = std::make_unique<QTemporaryDir>();
        UtworzPrzyklad(wzor_->filePath(u"Tornel.mdb"_s), 12, 3, wzor_->path());
    }
    static void TearDownTestSuite() { wzor_.reset(); }
    KolekcjaTest() {
        EXPECT_TRUE(QFile::copy(wzor_->filePath(u"Tornel.mdb"_s), folder_.filePath(u"Tornel.mdb"_s)));
        program_ = std::make_unique<Program>(folder_.filePath(u"Tornel.mdb"_s), folder_.path(), zgoda_);
    }

    Otoczenie& o() { return program_->otoczenie(); }
    [[nodiscard]] QString plik() const { return folder_.filePath(u"a.kdu"_s); }
    /// Every document of all employees, reports for March.
    [[nodiscard]] ZamowienieKedu wszystkie() const {
        ZamowienieKedu z{.plik = plik(), .kiedy = QDateTime({2001, 4, 10}, {12, 0})};
        for (const DokumentKedu& d : DokumentyKedu()) {
            z.wybor.ustaw(d.kod, 1);
            if (d.petla == Petla::Raport) z.raporty[d.kod] = {kMarzec, DomyslnyIdentyfikator(kMarzec)};
        }
        z.zlecenia = {{2001, 3, 1}, {2001, 3, 31}};
        return z;
    }
    /// Puts a value into a column of a record.
    template <typename W>
    void zmien(Recordset& rs, qint64 klucz, Kolumna kolumna, const W& wartosc) {
        ASSERT_TRUE(rs.Znajdz(klucz));
        rs.ustaw(kolumna, wartosc);
        rs.UpdateBatch(u"Dane testu");
    }
    [[nodiscard]] QString znakAdresow() {
        Recordset rs(M_PRACY);
        rs.Open(o().sesja.cnPlace);
        QString wynik;
        for (const Wiersz w : rs.wiersze()) wynik += w.tekst(M_PRACY("zza"));
        return wynik;
    }
    /// The lines of the first block of this name within the first document of this code.
    [[nodiscard]] QStringList linieBloku(const QString& dokument, const QString& blok) const {
        const QString tresc = zWindows1250(CzytajPlik(plik()));
        const qsizetype od = tresc.indexOf(u"<ZUS%1>\r\n"_s.arg(dokument));
        const qsizetype poczatek = tresc.indexOf(u"<%1>\r\n"_s.arg(blok), od);
        const qsizetype koniec = tresc.indexOf(u"</%1>\r\n"_s.arg(blok), poczatek);
        if (od < 0 || poczatek < 0 || koniec < 0) return {};
        QStringList linie = tresc.mid(poczatek, koniec - poczatek).split(u"\r\n"_s).mid(1);
        linie.removeLast();
        return linie;
    }

    static inline std::unique_ptr<QTemporaryDir> wzor_;
    QTemporaryDir folder_;
    RozmowaZgoda zgoda_;
    std::unique_ptr<Program> program_;
};

TEST_F(KolekcjaTest, EveryDocumentToTheByte) {
    const auto wynik = ZbiorKedu(o(), wszystkie()).StworzPlik();
    ASSERT_TRUE(wynik);
    for (const DokumentKedu& d : DokumentyKedu())
        EXPECT_EQ(wynik->dokumenty.contains(d.kod), d.kod != KodKedu::DRA)
            << d.nazwa.toString().toStdString();
    const QByteArray tresc = CzytajPlik(plik());
    const QString wzorzec =
        QFileInfo(QString::fromUtf8(__FILE__)).path() + u"/wzorce/kolekcja.kdu.txt"_s; // as UTF-8, to be read
    QByteArray doPorownania = zWindows1250(tresc).toUtf8();
    EXPECT_EQ(doPorownania.count("\r\n"), doPorownania.count('\n'));
    doPorownania.replace("\r\n", "\n");
    if (qEnvironmentVariableIsSet("TORNEL_WZORCE")) return ZapiszPlik(wzorzec, doPorownania);
    const QList<QByteArray> linie = doPorownania.split('\n'), oczekiwane = CzytajPlik(wzorzec).split('\n');
    for (qsizetype i = 0; i < std::max(linie.size(), oczekiwane.size()); ++i)
        ASSERT_EQ(linie.value(i).toStdString(), oczekiwane.value(i).toStdString()) << "line " << i + 1;
    // A single-byte file: as many bytes as characters.
    EXPECT_EQ(tresc.size(), zWindows1250(tresc).size());
    EXPECT_TRUE(tresc.contains("D\xb9"
                               "bek"))
        << "Windows-1250";
}

TEST_F(KolekcjaTest, EveryLineHasItsWidthWhateverTheRecordsHold) {
    // A pass over records as they are, one over empty ones, one over texts that are longer than their fields.
    for (const QString& tekst : {QString(), QString(40, u'Ż'), u"-99999999999"_s}) {
        SCOPED_TRACE(tekst.toStdString());
        for (const Kolumna k : {PRACDP("miasto"), PRACDP("ulica"), PRACDP("gm_dz"), PRACDP("imie_2")})
            for (const qint64 nr : {4, 6, 8, 11, 12})
                zmien(o().sesja.rsPRACDP, nr, k, tekst.left(k.def().rozmiar));
        (void)ZbiorKedu(o(), wszystkie()).StworzPlik();
        zmien(o().sesja.rsPRACZUS, 4, PRACZUS("oi_zua"), 2);
        {
            Recordset adresy(M_PRACY);
            adresy.Open(o().sesja.cnPlace);
            zmien(adresy, 1, M_PRACY("zza"), u"1"_s); // the run has taken it off
        }
        for (const SzerokosciBloku& s : kSzerokosci) {
            QList<int> dlugosci;
            // The all-employees RCA has no rows of people with data.
            const bool bezWiersza = QLatin1String(s.blok) == QLatin1String("DDORCA");
            for (const QString& l : linieBloku(QString::fromLatin1(s.dokument), QString::fromLatin1(s.blok)))
                dlugosci += static_cast<int>(l.size());
            if (!bezWiersza) EXPECT_EQ(dlugosci, s.linie) << s.dokument << ' ' << s.blok;
        }
        ZamowienieKedu jeden = wszystkie();
        jeden.prcId = 5;
        jeden.wybor = {};
        jeden.wybor.ustaw(KodKedu::RCA, 1);
        ASSERT_TRUE(ZbiorKedu(o(), jeden).StworzPlik());
        QList<int> dlugosci;
        for (const QString& l : linieBloku(u"RCA"_s, u"DDORCA"_s)) dlugosci += static_cast<int>(l.size());
        const auto oczekiwane = std::ranges::find_if(
            kSzerokosci, [](const auto& s) { return QLatin1String(s.blok) == QLatin1String("DDORCA"); });
        EXPECT_EQ(dlugosci, oczekiwane->linie);
    }
}

TEST_F(KolekcjaTest, KindsOfDocumentsFollowTheMarks) {
    const struct {
        const char* dokument;
        Kolumna znak;
        int wartosc;
        QStringList rodzaj; ///< of the kind block, its first lines; empty for no document
    } przypadki[] = {
        {"ZUA", PRACZUS("oi_zua"), 0, {}},
        {"ZUA", PRACZUS("oi_zua"), 1, {u"X"_s, u" "_s, u" "_s}},
        {"ZUA", PRACZUS("oi_zua"), 3, {u" "_s, u" "_s, u"1"_s}},
        {"ZUA", PRACZUS("oi_zua"), 4, {u" "_s, u" "_s, u"2"_s}},
        {"ZUA", PRACZUS("oi_zua"), 5, {}},
        {"ZIUA", PRACZUS("oi_ziua"), 1, {u"1"_s}},
        {"ZIUA", PRACZUS("oi_ziua"), 2, {u"2"_s}},
        {"ZIUA", PRACZUS("oi_ziua"), 3, {}},
        {"ZWUA", PRACZUS("zus_zwua"), 3, {u" "_s, u" "_s, u"X"_s, u" "_s}},
        {"ZWUA", PRACZUS("zus_zwua"), 5, {}},
    };
    for (const auto& p : przypadki) {
        zmien(o().sesja.rsPRACZUS, 5, p.znak, p.wartosc);
        ZamowienieKedu z{.plik = plik(), .prcId = 5, .kiedy = QDateTime({2001, 4, 10}, {12, 0})};
        z.wybor.ustaw(znajdzDokument(QString::fromLatin1(p.dokument))->kod, 1);
        ASSERT_TRUE(ZbiorKedu(o(), z).StworzPlik());
        EXPECT_EQ(linieBloku(QString::fromLatin1(p.dokument), u"DO"_s + QString::fromLatin1(p.dokument))
                      .mid(0, p.rodzaj.size()),
                  p.rodzaj)
            << p.dokument << ' ' << p.wartosc;
    }
    // The kind of a ZZA comes from the mark of the ZUA, so without one a line is missing.
    zmien(o().sesja.rsPRACZUS, 5, PRACZUS("oi_zza"), 2);
    ZamowienieKedu z{.plik = plik(), .prcId = 5, .kiedy = QDateTime({2001, 4, 10}, {12, 0})};
    z.wybor.ustaw(KodKedu::ZZA, 1);
    for (const auto& [zua, linie] :
         {std::pair(0, QStringList{u" "_s}), {1, {u"X"_s, u" "_s}}, {3, {u" "_s, u"2"_s}}}) {
        zmien(o().sesja.rsPRACZUS, 5, PRACZUS("oi_zua"), zua);
        ASSERT_TRUE(ZbiorKedu(o(), z).StworzPlik());
        EXPECT_EQ(linieBloku(u"ZZA"_s, u"DOZZA"_s),
                  linie + (QStringList{QString(8, u' '), QString(6, u' ')}));
    }
}

TEST_F(KolekcjaTest, WorkplacesAreReportedOnceAndCountedInTheSameRun) {
    ASSERT_EQ(znakAdresow(), u"11"_s);
    ASSERT_TRUE(ZbiorKedu(o(), wszystkie()).StworzPlik());
    EXPECT_EQ(znakAdresow(), u"00"_s);
    EXPECT_EQ(linieBloku(u"ZPA"_s, u"OPL2"_s).mid(0, 2), (QStringList{u"002"_s, u"002"_s}));
    const QString kiedys = ZapisanoKedu(o().sesja, KodKedu::ZAA);
    EXPECT_EQ(kiedys, u"zapisano 10-04-2001"_s);

    ZamowienieKedu drugi = wszystkie();
    drugi.wybor = {};
    drugi.wybor.ustaw(KodKedu::ZAA, 1);
    const auto wynik = ZbiorKedu(o(), drugi).StworzPlik();
    ASSERT_TRUE(wynik);
    EXPECT_EQ(wynik->razem(), 0) << "nothing is left to be told";
    EXPECT_TRUE(CzytajPlik(plik()).endsWith("<stopka.KEDU>\r\n</stopka.KEDU>\r\n</KEDU>\r\n"));
    drugi.wybor.ustaw(KodKedu::ZPA, 2);
    ASSERT_TRUE(ZbiorKedu(o(), drugi).StworzPlik());
    EXPECT_EQ(linieBloku(u"ZPA"_s, u"OPL2"_s).mid(0, 2), (QStringList{u"000"_s, u"000"_s}));
    EXPECT_EQ(linieBloku(u"ZPA"_s, u"DOZPF"_s).mid(0, 2), (QStringList{u" "_s, u"1"_s}));
}

TEST_F(KolekcjaTest, ADiskWithoutRoomLeavesTheOldFileAndTheMarks) {
    ZapiszPlik(plik(), "stara");
    program_.reset();
    const ZamowienieKedu z = wszystkie();
    Proces proces([&] {
        Program program(folder_.filePath(u"Tornel.mdb"_s), folder_.path(), zgoda_);
        const rlimit limit{8192, 8192};
        signal(SIGXFSZ, SIG_IGN);
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
        EXPECT_THROW((void)ZbiorKedu(program.otoczenie(), z).StworzPlik(), Blad);
        return testing::Test::HasFailure() ? 1 : 0;
    });
    EXPECT_EQ(proces.wynik(), 0);
    EXPECT_EQ(CzytajPlik(plik()), "stara");
    program_ = std::make_unique<Program>(folder_.filePath(u"Tornel.mdb"_s), folder_.path(), zgoda_);
    EXPECT_EQ(znakAdresow(), u"11"_s);
    EXPECT_EQ(ZapisanoKedu(o().sesja, KodKedu::ZAA), QString());
}

TEST_F(KolekcjaTest, TheViewNamesEveryLineAndSurvivesAnyBytes) {
    ZamowienieKedu z = wszystkie();
    z.prcId = 11;
    ASSERT_TRUE(ZbiorKedu(o(), z).StworzPlik());
    const QByteArray tresc = CzytajPlik(plik());
    const OdczytKedu odczyt(tresc);
    EXPECT_EQ(odczyt.uwagi(), QStringList());
    QStringList kody;
    for (const DokumentOdczytany& d : odczyt.dokumenty()) {
        kody += d.kod;
        for (const BlokOdczytany& b : d.bloki) {
            EXPECT_NE(b.znany, nullptr) << d.kod.toStdString() << b.nazwa.toStdString();
            for (const PoleOdczytane& p : odczyt.pola(b)) EXPECT_TRUE(p.puste != !p.napis.isEmpty());
        }
    }
    EXPECT_EQ(kody.join(u' '), u"ZCNA ZCZA ZCZA ZBA ZAA ZPA ZFA RCA RNA RZA RSA"_s);
    const BlokOdczytany& rodzina = odczyt.dokumenty().at(0).bloki.at(3);
    EXPECT_EQ(odczyt.osoba(odczyt.dokumenty().at(0)), u"Lewandowski Krzysztof"_s);
    EXPECT_EQ(odczyt.osoba(rodzina), u"Lewandowska Julia"_s);
    const auto pola = odczyt.pola(rodzina);
    EXPECT_EQ(pola.at(1).wartosc, u"01-01-1999"_s);
    const auto rca = std::ranges::find(odczyt.dokumenty(), u"RCA"_s, &DokumentOdczytany::kod);
    const auto kwoty = odczyt.pola(rca->bloki.at(2));
    EXPECT_TRUE(std::ranges::any_of(kwoty, [](const auto& p) { return p.wartosc.contains(u','); }));

    // Cut, shuffled, changed: it never does more than remark.
    QRandomGenerator los(5);
    for (int i = 0; i < 300; ++i) {
        QByteArray zly = tresc;
        switch (i % 4) {
        case 0:
            zly.truncate(los.bounded(zly.size()));
            break;
        case 1:
            for (int k = 0; k < 20; ++k) zly[los.bounded(zly.size())] = static_cast<char>(los.bounded(256));
            break;
        case 2:
            zly.remove(los.bounded(zly.size()), los.bounded(2000));
            break;
        default:
            zly.insert(los.bounded(zly.size()), zly.mid(los.bounded(zly.size()), 500));
        }
        const OdczytKedu zOdczytu(zly);
        for (const DokumentOdczytany& d : zOdczytu.dokumenty())
            for (const BlokOdczytany& b : d.bloki) {
                (void)zOdczytu.osoba(b);
                for (const PoleOdczytane& p : zOdczytu.pola(b)) EXPECT_LE(p.wartosc.size(), 400);
            }
    }
    EXPECT_EQ(OdczytKedu(QByteArray("nic")).uwagi(),
              QStringList{u"Plik nie jest kolekcją dokumentów ubezpieczeniowych."_s});
    EXPECT_EQ(OdczytKedu(tresc.left(3000)).uwagi(), QStringList{u"Kolekcja urywa się przed końcem."_s});
    EXPECT_THROW((void)OdczytKedu::zPliku(folder_.filePath(u"brak.kdu"_s)), Blad);
}

} // namespace

} // namespace tornel::testy
