// The papers of contracts: each page as it stands, bills without a tax office, and the list with its sums.
#include "common/Blad.h"
#include "druk/Wyjscie.h"
#include "reports/umowy/WydrukiUmow.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaZgoda.h"
#include "wsparcie/TekstStrony.h"
#include <QTemporaryDir>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;

class PismaUmowTest : public testing::Test {
protected:
    PismaUmowTest() {
        const QString plik = folder_.filePath(u"Tornel.mdb"_s);
        UtworzPrzyklad(plik, 12, 3, folder_.path());
        program_ = std::make_unique<Program>(plik, folder_.path(), rozmowa_);
    }
    Otoczenie& o() { return program_->otoczenie(); }
    static const RodzajUmowy& rodzaj(const QString& tabela) { return *ZnajdzRodzajUmowy(tabela); }
    auto rachunek(const QString& tabela, qint64 id) {
        return reports::UlozRachunek(o(), rodzaj(tabela), id, {2001, 4, 2});
    }

    QTemporaryDir folder_;
    RozmowaZgoda rozmowa_;
    std::unique_ptr<Program> program_;
};

TEST_F(PismaUmowTest, KazdePismoMiesciSieNaStronieIBrzmiJakWzorzec) {
    const struct {
        QString nazwa;
        std::shared_ptr<const Uklad> uklad;
    } pisma[] = {
        {u"dtrUZL"_s, reports::UlozUmowe(o(), rodzaj(u"UZL"_s), 1)},
        {u"dtrUZLRach"_s, rachunek(u"UZL"_s, 1)},
        {u"dtrUOD"_s, reports::UlozUmowe(o(), rodzaj(u"UOD"_s), 1)},
        {u"dtrUODRach"_s, rachunek(u"UOD"_s, 1)},
        {u"dtrHONRach"_s, rachunek(u"HON"_s, 1)},
    };
    for (const auto& p : pisma) {
        EXPECT_EQ(p.uklad->opis().nazwa, p.nazwa);
        EXPECT_EQ(p.uklad->stron(), 1) << p.nazwa.toStdString();
        porownajZWzorcem(__FILE__, p.nazwa, *p.uklad);
    }
    EXPECT_THROW((void)reports::UlozUmowe(o(), rodzaj(u"HON"_s), 1), Blad);
}

TEST_F(PismaUmowTest, BezUrzeduSkarbowegoRachunekJestPusty) {
    const auto kwoty = [](const Uklad& uklad) { return TekstWydruku(uklad); };
    for (const auto& [tabela, id] : {std::pair(u"UZL"_s, 1), {u"UOD"_s, 1}, {u"HON"_s, 1}}) {
        Recordset rs(*rodzaj(tabela).tabela);
        rs.Open(o().sesja.cnPlace);
        ASSERT_TRUE(rs.Znajdz(id));
        const Kolumna urzad = rodzaj(tabela).kolumna("us_id");
        rs.ustaw(urzad, 99); // an office that was deleted since
        rs.UpdateBatch(u"Dane testu");
        EXPECT_EQ(kwoty(*rachunek(tabela, id)), QString()) << tabela.toStdString();
    }
    EXPECT_FALSE(kwoty(*reports::UlozUmowe(o(), rodzaj(u"UZL"_s), 1)).isEmpty())
        << "the contract needs no office";
    EXPECT_EQ(kwoty(*rachunek(u"UZL"_s, 777)), QString());
}

TEST_F(PismaUmowTest, ZestawienieSumujeToCoWidac) {
    const auto uklad =
        reports::UlozZestawienieUmow(o(), rodzaj(u"UZL"_s), u"Umowy marca"_s, {3, 1, 55}, QDate(2001, 4, 2));
    EXPECT_EQ(QString::fromUtf8(CsvWydruku(*uklad)),
              u"NUMER;ZAWARTA;OSOBA;BRUTTO;KOSZTY;PODATEK;NETTO;WYPLATA\n"
              "3/2001;05-02-2001;Gawron Zofia;400;80;-31;400;16-02-2001\n"
              "1/2001;08-01-2001;Bielak Jan;800;130,06;53,65;546,27;19-01-2001\n"_s);
    const QString papier = TekstWydruku(*uklad);
    for (const QString& suma : {u"1 200,00"_s, u"210,06"_s, u"22,65"_s, u"946,27"_s})
        EXPECT_TRUE(papier.contains(suma)) << suma.toStdString();
}

} // namespace

} // namespace tornel::testy
