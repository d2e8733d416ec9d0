// Prints: what stands on which page, sums over page breaks, the list's prints as text, files whole or not at
// all.
#include "common/Blad.h"
#include "common/Pliki.h"
#include "druk/Pisma.h"
#include "druk/Tabela.h"
#include "druk/Wyjscie.h"
#include "okna/frmPodglad.h"
#include "payroll/lista/ListaPlac.h"
#include "reports/place/WydrukiListyPlac.h"
#include "reports/place/Zbiorowka.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include "wsparcie/Widzet.h"
#include <gtest/gtest.h>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using namespace reports;

/// A table whose page has room for exactly ten rows, the last with the sum below.
std::shared_ptr<const Uklad> tabelaWierszy(int ile) {
    QList<QList<Wartosc>> wiersze;
    for (int i = 1; i <= ile; ++i)
        wiersze.append(
            {Wartosc(qint64{i <= 12 ? 1 : 2}), Wartosc(u"wiersz %1"_s.arg(i)), Wartosc(Waluta::zlotych(i))});
    const QList<KolumnaDruku> kolumny{{u"Nazwa"_s, 50, 1}, {u"Kwota"_s, 30, 2, Format::Kwota, true}};
    OpisWydruku opis{.nazwa = u"proba"_s, .tytul = u"Próba"_s};
    const double wys = (opis.strona.wysTresci() - 10) / 10;
    opis.grupy = {0};
    opis.nazwyPol = {QString(), u"Nazwa"_s, u"Kwota"_s};
    opis.arkusze = {{{.rola = Rola::Wiersz, .wys = wys, .elementy = komorkiWiersza(kolumny, 5)},
                     {.rola = Rola::StopkaWydruku, .wys = 5, .elementy = sumyKolumn(kolumny, u"Razem"_s, 5)},
                     {.rola = Rola::StopkaStrony,
                      .wys = 10,
                      .elementy = sumyKolumn(kolumny, u"Strona"_s, 5, Element::Rodzaj::SumaStr)}}};
    return std::make_shared<Uklad>(std::move(opis), std::make_shared<WierszeWPamieci>(std::move(wiersze)));
}

QStringList linieStrony(const Uklad& uklad, int strona) {
    return TekstWydruku(uklad).split(u'\n').filter(QRegularExpression(u"^%1 "_s.arg(strona)));
}

TEST(Uklad, SumsFollowThePagesAndTheWhole) {
    const struct {
        int ile, stron;
        const char16_t *ostatniaStrona, *razem;
    } przypadki[] = {{0, 1, u"0,00", u"0,00"},    {1, 1, u"1,00", u"1,00"},     {9, 1, u"45,00", u"45,00"},
                     {10, 2, u"0,00", u"55,00"}, // ten rows fill the page, the sum goes to the next one
                     {11, 2, u"11,00", u"66,00"}, {25, 3, u"115,00", u"325,00"}};
    for (const auto& p : przypadki) {
        const auto uklad = tabelaWierszy(p.ile);
        ASSERT_EQ(uklad->stron(), p.stron) << p.ile;
        const QStringList ostatnia = linieStrony(*uklad, p.stron);
        const auto suma = [&](const QString& podpis) {
            for (qsizetype i = 0; i + 1 < ostatnia.size(); ++i)
                if (ostatnia[i].endsWith(podpis)) return ostatnia[i + 1].section(u' ', -1);
            return QString();
        };
        EXPECT_EQ(suma(u"Strona"_s), QString::fromUtf16(p.ostatniaStrona)) << p.ile;
        EXPECT_EQ(suma(u"Razem"_s), QString::fromUtf16(p.razem)) << p.ile;
    }
}

TEST(Uklad, ATextLongerThanItsLineIsBrokenOrFails) {
    EXPECT_EQ(zlam(u"ala ma kota"_s, Pismo::Zwykle, 500), QStringList{u"ala ma kota"_s});
    for (const QString& linia :
         zlam(u"nazwisko-bez-przerwy-i-bez-konca drugie"_s.repeated(5), Pismo::Zwykle, 30))
        EXPECT_LE(szerTekstu(linia, Pismo::Zwykle), 30.001) << linia.toStdString();
    OpisWydruku opis{.nazwa = u"x"_s, .tytul = u"X"_s, .arkusze = {{{.rola = Rola::Wiersz, .wys = 400}}}};
    EXPECT_THROW(Uklad(opis, std::make_shared<WierszeWPamieci>(QList<QList<Wartosc>>{{Wartosc(Null)}})),
                 Blad);
}

TEST(Zbiorowka, CashIsBrokenDownPersonByPerson) {
    const auto zl = [](qint64 n) { return Waluta::zlotych(n); };
    const auto nominaly = RozmienKwoty({zl(170), zl(170)}, {zl(20), zl(100), zl(50)});
    QList<std::pair<qint64, qint64>> wynik;
    for (const Nominal& n : nominaly) wynik.append({n.nominal.surowa() / 10000, n.sztuk});
    EXPECT_EQ(wynik, (QList<std::pair<qint64, qint64>>{{100, 2}, {50, 2}, {20, 2}}));
}

class WydrukiListyTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder_ = std::make_unique<QTemporaryDir>();
        UtworzPrzyklad(folder_->filePath(u"Tornel.mdb"_s), 12, 3, folder_->path());
    }
    static void TearDownTestSuite() { folder_.reset(); }

    inline static std::unique_ptr<QTemporaryDir> folder_;
    RozmowaSkrypt rozmowa_;
    Program program_{folder_->filePath(u"Tornel.mdb"_s), folder_->path(), rozmowa_};
};

// The sums on paper are those that the month's header holds.
TEST_F(WydrukiListyTest, EachPrintTellsTheMonthAsItIsStored) {
    Otoczenie& o = program_.otoczenie();
    ListaPlac lista(o, 2001, 3, u" "_s);
    const auto tekst = [&](WydrukListy w, std::optional<qint64> prcId = {}) {
        return TekstWydruku(*UlozWydrukListy(w, o, lista, QDate(2001, 4, 2), prcId));
    };
    for (const WydrukListy w :
         {WydrukListy::ListaPlac, WydrukListy::Wersja2, WydrukListy::Wersja3, WydrukListy::Zbiorowka}) {
        const QString t = tekst(w);
        for (const QString& fragment :
             {u"za miesiąc Marzec 2001"_s, u"40 670,77"_s, u"25 432,85"_s, u"Wydrukowano 02-04-2001"_s})
            EXPECT_TRUE(t.contains(fragment)) << static_cast<int>(w) << " " << fragment.toStdString();
    }
    const QString pokwitowanie = tekst(WydrukListy::Pokwitowania, 2);
    EXPECT_TRUE(
        pokwitowanie.contains(u"siedemset dziewięćdziesiąt dziewięć złotych sześćdziesiąt trzy grosze"_s));
    EXPECT_FALSE(pokwitowanie.contains(u"Adamska"_s));
}

TEST_F(WydrukiListyTest, AFileIsWrittenWholeOrNotAtAll) {
    const auto uklad = tabelaWierszy(25);
    const QString pdf = folder_->filePath(u"proba.pdf"_s);
    ZapiszPlik(pdf, "stary");
    EXPECT_FALSE(ZapiszPdf(*uklad, pdf, [](int) { return false; }));
    QFile plik(pdf);
    ASSERT_TRUE(plik.open(QIODevice::ReadOnly));
    EXPECT_EQ(plik.readAll(), "stary");
    plik.close();
    EXPECT_TRUE(ZapiszPdf(*uklad, pdf));
    ASSERT_TRUE(plik.open(QIODevice::ReadOnly));
    EXPECT_TRUE(plik.readAll().startsWith("%PDF"));
    EXPECT_THROW(ZapiszPdf(*uklad, folder_->filePath(u"nie/ma/x.pdf"_s)), Blad);
    EXPECT_THROW(ZapiszPlik(folder_->filePath(u"nie/ma/x.csv"_s), "x"), Blad);
    EXPECT_EQ(CsvWydruku(*tabelaWierszy(1)), "Nazwa;Kwota\nwiersz 1;1\n");
}

TEST_F(WydrukiListyTest, ThePreviewTurnsPagesAndFinds) {
    frmPodglad okno(tabelaWierszy(25), rozmowa_);
    okno.show();
    auto& strona = widzet<QSpinBox>(okno, u"numStrona"_s);
    QTest::keyClick(&widzet<QWidget>(okno, u"widokStrony"_s), Qt::Key_End);
    EXPECT_EQ(strona.value(), 3);
    auto& szukaj = widzet<QLineEdit>(okno, u"txtSzukaj"_s);
    QTest::keyClicks(&szukaj, u"wiersz 7"_s);
    szukaj.setFocus();
    QTest::keyClick(&szukaj, Qt::Key_Return);
    EXPECT_EQ(strona.value(), 1);
}

} // namespace

} // namespace tornel::testy
