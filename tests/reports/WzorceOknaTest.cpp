// Every print of the example firm as it stands on paper, against a file; and that the sums on paper are those
// of the tables wherever the pages break.
#include "common/Csv.h"
#include "druk/PlotnoMalarza.h"
#include "druk/Wyjscie.h"
#include "payroll/lista/ListaPlac.h"
#include "payroll/miesiace/Miesiace.h"
#include "reports/kadry/WydrukiKadr.h"
#include "reports/place/WydrukiListyPlac.h"
#include "reports/place/ZbiorowkaMiesiecy.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaZgoda.h"
#include "wsparcie/TekstStrony.h"
#include <array>
#include <map>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <set>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using namespace reports;

const QDate kDzienWydruku(2001, 4, 2);

class Wzorce : public testing::Test {
protected:
    explicit Wzorce(int pracownikow = 12) {
        UtworzPrzyklad(folder_.filePath(u"Tornel.mdb"_s), pracownikow, 3, folder_.path());
        program_ = std::make_unique<Program>(folder_.filePath(u"Tornel.mdb"_s), folder_.path(), rozmowa_);
    }
    Otoczenie& o() { return program_->otoczenie(); }
    Waluta zPlace(RokMies m, Kolumna kolumna) {
        (void)Miesiace(o()).Ustaw(m);
        return o().sesja.rsPLACE.kwota(kolumna);
    }
    auto kadrowy(WydrukKadr ktory, const QList<qint64>& numery, RokMies od = {2001, 1},
                 RokMies dokad = {2001, 12}) {
        return UlozWydrukKadr(ktory, o(), {numery, od, dokad}, kDzienWydruku);
    }

    QTemporaryDir folder_;
    RozmowaZgoda rozmowa_;
    std::unique_ptr<Program> program_;
};

TEST_F(Wzorce, EveryPrintOfTheExampleFirm) {
    {
        ListaPlac lista(o(), 2001, 3, u" "_s);
        for (const OpisWydrukuListy& w : wydrukiListy())
            porownajZWzorcem(__FILE__, w.nazwa.toString(),
                             *UlozWydrukListy(w.ktory, o(), lista, kDzienWydruku));
    }
    const WarunkiZbiorowki rok{{{2000, 10}, {2001, 3}}, {}};
    const auto zbiorowka = UlozZbiorowkeMiesiecy(o(), rok, kDzienWydruku);
    EXPECT_EQ(zbiorowka->stron(), 4);
    porownajZWzorcem(__FILE__, u"zbiorowka-rok"_s, *zbiorowka);
    porownajZWzorcem(__FILE__, u"zbiorowka-rok-skladki"_s, *zbiorowka, 2);
    const WarunkiZbiorowki czesc{{{2001, 3}, {2001, 3}}, u"A"_s, QStringList{u"Zarząd"_s, u"Sprzedaż"_s}};
    porownajZWzorcem(__FILE__, u"zbiorowka-miesiac"_s, *UlozZbiorowkeMiesiecy(o(), czesc, kDzienWydruku));
    const struct {
        WydrukKadr ktory;
        QList<qint64> numery;
        RokMies od, dokad;
    } kadrowe[] = {
        {WydrukKadr::ListaPracownikow, {12, 9, 1}, {}, {}},
        {WydrukKadr::KartaEwidencji, {2}, {2001, 1}, {2001, 12}}, // ill in winter, on vacation in July
        {WydrukKadr::ListaObecnosci, {1}, {2001, 3}, {2001, 3}},
        {WydrukKadr::KartaPrzychodow, {10}, {2001, 1}, {2001, 12}}, // with an opening balance
        {WydrukKadr::Zaswiadczenie, {4}, {2000, 12}, {2001, 4}},    // a month without a list among them
    };
    for (const auto& k : kadrowe) {
        const auto uklad = kadrowy(k.ktory, k.numery, k.od, k.dokad);
        EXPECT_EQ(uklad->stron(), 1) << uklad->opis().nazwa.toStdString();
        porownajZWzorcem(__FILE__, uklad->opis().nazwa, *uklad);
    }
}

TEST_F(Wzorce, TheSummaryAddsUpToTheHeadersOfItsMonths) {
    const auto wKolumnie = [&](const WarunkiZbiorowki& warunki, int pole) {
        Waluta razem;
        for (const PozycjaZbiorowki& p : PozycjeZbiorowki(o(), warunki)) razem += p.placa.sumy[pole];
        return razem;
    };
    static constexpr std::pair<int, Kolumna> kSumy[] = {{Brutto, schemat::PLACE("sum_brutto")},
                                                        {Koszty, schemat::PLACE("sum_kup")},
                                                        {Dochod, schemat::PLACE("sum_netto")},
                                                        {Zaliczka, schemat::PLACE("sum_podat")},
                                                        {DoWyplaty, schemat::PLACE("do_wyplaty")},
                                                        {Emerytalna, schemat::PLACE("sum_feprc")},
                                                        {Chorobowa, schemat::PLACE("sum_fc")},
                                                        {Zdrowotna, schemat::PLACE("sum_ubzdr")},
                                                        {EmerytalnaPracodawcy, schemat::PLACE("sum_feprd")},
                                                        {Wypadkowa, schemat::PLACE("sum_fw")},
                                                        {FunduszPracy, schemat::PLACE("sum_fp")},
                                                        {Fgsp, schemat::PLACE("sum_fgsp")}};
    const ZakresMiesiecy okres{{2000, 11}, {2001, 2}}, marzec{{2001, 3}, {2001, 3}};
    for (const auto& [pole, kolumna] : kSumy) {
        Waluta naglowki;
        for (const RokMies m : MiesiaceZakresu(o().sesja, okres)) naglowki += zPlace(m, kolumna);
        EXPECT_EQ(wKolumnie({okres, {}}, pole), naglowki) << kolumna.def().nazwa;
        // Lists and departments part the whole without a rest.
        EXPECT_EQ(wKolumnie({marzec, u"A"_s}, pole) + wKolumnie({marzec, u"B"_s}, pole),
                  zPlace({2001, 3}, kolumna))
            << kolumna.def().nazwa;
        Waluta dzialy;
        for (const DzialFirmy& d : Pracownicy(o()).dzialy())
            dzialy += wKolumnie({marzec, {}, QStringList{d.nazwa}}, pole);
        EXPECT_EQ(dzialy, zPlace({2001, 3}, kolumna)) << kolumna.def().nazwa;
    }
    std::array<Waluta, 45> skladniki{};
    {
        const OtwartyMiesiac otwarty(o().sesja, {2001, 3});
        for (const Wiersz w : o().sesja.rsPLS.wiersze())
            for (int nr = 1; nr <= 45; ++nr)
                skladniki[nr - 1] += w.kwota(nr <= 30 ? schemat::SP(nr) : schemat::SM(nr - 30));
    }
    for (int nr = 1; nr <= 45; ++nr)
        EXPECT_EQ(wKolumnie({marzec, {}}, nr <= 30 ? polePlusa(nr) : poleMinusa(nr - 30)), skladniki[nr - 1])
            << nr;
}

TEST_F(Wzorce, AMonthWithoutRowsSaysSoAndOneThatIsMissingRefuses) {
    (void)Miesiace(o()).Nowy_miesiac([] { return RokMies{2001, 4}; });
    const ZakresMiesiecy kwiecien{{2001, 4}, {2001, 4}}, maj{{2001, 5}, {2001, 6}};
    const auto pusta = UlozZbiorowkeMiesiecy(o(), {kwiecien, {}}, kDzienWydruku);
    EXPECT_TRUE(pusta->zawiera(0, u"Nie ma wypłat"_s));
    EXPECT_EQ(kwotaZa(stronyWydruku(*pusta).first(), u"Razem wszystkie działy"_s), Waluta());
    EXPECT_THROW((void)PozycjeZbiorowki(o(), {maj, {}}), Blad);
    ListaPlac lista(o(), 2001, 4, u" "_s);
    for (const OpisWydrukuListy& w : wydrukiListy()) {
        const auto uklad = UlozWydrukListy(w.ktory, o(), lista, kDzienWydruku);
        EXPECT_EQ(uklad->stron(), 1) << w.nazwa.toString().toStdString();
        if (w.ktory != WydrukListy::Zbiorowka) {
            EXPECT_TRUE(uklad->zawiera(0, u"Na liście nie ma pracowników."_s))
                << w.nazwa.toString().toStdString();
        }
    }
    const auto zaswiadczenie = kadrowy(WydrukKadr::Zaswiadczenie, {1}, {2001, 4}, {2001, 5});
    EXPECT_TRUE(zaswiadczenie->zawiera(0, u"nie wypłacono wynagrodzenia"_s));
    EXPECT_THROW((void)kadrowy(WydrukKadr::KartaPrzychodow, {1, 99}), Blad);
}

/// The sums by employee of a column in the print's CSV.
std::map<QString, Waluta> sumyZCsv(const Uklad& uklad, const QString& kolumna) {
    const QList<WierszCsv> wiersze = CzytajCsv(CsvWydruku(uklad));
    const qsizetype nr = wiersze.first().pola.indexOf(kolumna);
    std::map<QString, Waluta> wynik;
    for (const WierszCsv& w : wiersze.mid(1))
        wynik[w.pola[0]] += KwotaAlboZero(w.pola.value(nr), Zapis::Dane);
    return wynik;
}

TEST_F(Wzorce, CardsAndCertificatesHoldWhatTheListsPaid) {
    const QList<qint64> wszyscy = Pracownicy(o()).zatrudnieni({2001, 1, 1}, {2001, 12, 31});
    ASSERT_EQ(wszyscy.size(), 12);
    const auto karty = kadrowy(WydrukKadr::KartaPrzychodow, wszyscy);
    const auto zaswiadczenia = kadrowy(WydrukKadr::Zaswiadczenie, wszyscy, {2001, 1}, {2001, 3});
    EXPECT_EQ(karty->stron(), 12);
    EXPECT_EQ(zaswiadczenia->stron(), 12);
    std::map<QString, Waluta> brutto;
    for (const PozycjaZbiorowki& p : PozycjeZbiorowki(o(), {{{2001, 1}, {2001, 3}}, {}}))
        brutto[QString::number(p.placa.prcId)] = p.placa.sumy[Brutto];
    EXPECT_EQ(sumyZCsv(*zaswiadczenia, u"Brutto"_s), brutto);
    brutto[u"10"_s] += Waluta::zlotych(2500); // the opening balance
    EXPECT_EQ(sumyZCsv(*karty, u"Przychód brutto"_s), brutto);
    // One employee is read through the index, all of them month by month: alike.
    const auto jedna = kadrowy(WydrukKadr::KartaPrzychodow, {5});
    EXPECT_EQ(sumyZCsv(*jedna, u"Do wypłaty"_s).at(u"5"_s), sumyZCsv(*karty, u"Do wypłaty"_s).at(u"5"_s));
}

/// Enough employees for several pages of each version of the list.
class WzorceWieluStron : public Wzorce {
protected:
    WzorceWieluStron() : Wzorce(45) {}
};

TEST_F(WzorceWieluStron, SumsOfThePagesAreThoseOfTheRowsHoweverManyThereAre) {
    ListaPlac lista(o(), 2001, 3, u" "_s);
    Recordset& pla = o().sesja.rsPLA;
    std::set<int> liczbyStron;
    for (int ile = pla.RecordCount(); ile >= 0; --ile) {
        Waluta wiersze;
        for (const Wiersz w : pla.wiersze()) wiersze += w.kwota(schemat::PLA("BRUTTO"));
        for (const WydrukListy ktory : {WydrukListy::ListaPlac, WydrukListy::Wersja2}) {
            const auto uklad = UlozWydrukListy(ktory, o(), lista, kDzienWydruku);
            liczbyStron.insert(uklad->stron());
            const QList<QStringList> strony = stronyWydruku(*uklad);
            Waluta razem;
            for (const QStringList& strona : strony)
                razem += kwotaZa(strona, u"Razem strona"_s).value_or(Waluta());
            ASSERT_EQ(razem, wiersze) << ile << " rows, print " << static_cast<int>(ktory);
            ASSERT_EQ(kwotaZa(strony.last(), u"Razem lista"_s), wiersze) << ile;
        }
        if (ile == 0) break;
        pla.MoveFirst();
        pla.Delete(); // in memory alone
    }
    pla.CancelBatch();
    EXPECT_TRUE(liczbyStron.contains(1) && liczbyStron.contains(2) && liczbyStron.contains(3));
}

TEST(WzorceOknaTest, ANameOfNinetyLettersStaysInItsPlaceAndIsWholeInParagraphs) {
    const QString nazwisko =
        u"Konstantynopolitańczykowianeczkówna-Brzęczyszczykiewicz"_s.leftJustified(90, u'w');
    constexpr int kPunktowNaMm = 8;
    QImage obraz(100 * kPunktowNaMm, 20 * kPunktowNaMm, QImage::Format_RGB32);
    obraz.fill(Qt::white);
    QPainter malarz(&obraz);
    ustawSkale(malarz, kPunktowNaMm * 25.4);
    PlotnoMalarza(malarz).tekst({10, 5, 41, 5}, nazwisko, Pismo::Zwykle, Ulozenie::Lewo);
    malarz.end();
    int najdalej = 0;
    for (int x = 0; x < obraz.width(); ++x)
        for (int y = 0; y < obraz.height(); ++y)
            if (qGray(obraz.pixel(x, y)) < 128) najdalej = x;
    EXPECT_GT(najdalej, 45 * kPunktowNaMm) << "the place is filled";
    EXPECT_LE(najdalej, 51 * kPunktowNaMm);
    EXPECT_EQ(zlam(nazwisko, Pismo::Formularz, 40).join(QString()), nazwisko);
}

} // namespace

} // namespace tornel::testy
