// The papers of an employment: each page as it stands, who gives notice, what has no such paper.
#include "common/Blad.h"
#include "druk/Wyjscie.h"
#include "personnel/UmowyOPrace.h"
#include "reports/umowy/PismaOPrace.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "store/Sesja.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaZgoda.h"
#include "wsparcie/TekstStrony.h"
#include <QTemporaryDir>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;
using schemat::UMOP;

/// Rows of the example firm.
constexpr qint64 kNieokreslona = 2, kZmiana = 3, kOkreslona = 7, kWypowiedziana = 12;

class PismaOPraceTest : public testing::Test {
protected:
    PismaOPraceTest() {
        const QString plik = folder_.filePath(u"Tornel.mdb"_s);
        UtworzPrzyklad(plik, 12, 3, folder_.path());
        program_ = std::make_unique<Program>(plik, folder_.path(), rozmowa_);
    }
    Otoczenie& o() { return program_->otoczenie(); }
    void zmien(qint64 id, std::initializer_list<std::pair<Kolumna, Wartosc>> wartosci) {
        UmowyOPrace umowy(o());
        ASSERT_TRUE(umowy.Ustaw(id));
        for (const auto& [kolumna, wartosc] : wartosci) umowy.tabela().ustaw(kolumna, wartosc);
        umowy.Wpisz();
    }
    /// The paper's text in one line, as it is read.
    static QString tekst(const Uklad& uklad) {
        QStringList slowa;
        for (const QStringList& strona : stronyWydruku(uklad))
            for (const QString& linia : strona) slowa += linia.mid(5).section(u' ', 1);
        return slowa.join(u' ').simplified();
    }
    template <typename Pismo>
    static QString odmowa(Pismo pismo) {
        try {
            (void)pismo();
        } catch (const Blad& blad) {
            return blad.komunikat();
        }
        return {};
    }

    QTemporaryDir folder_;
    RozmowaZgoda rozmowa_;
    std::unique_ptr<Program> program_;
};

TEST_F(PismaOPraceTest, KazdePismoMiesciSieNaStronieIBrzmiJakWzorzec) {
    const struct {
        QString nazwa;
        std::shared_ptr<const Uklad> uklad;
    } pisma[] = {
        {u"dtrUMOP"_s, reports::UlozUmoweOPrace(o(), kOkreslona)},
        {u"dtrUMOPZmiana"_s, reports::UlozZmianeWarunkow(o(), kZmiana)},
        {u"dtrUMOPWypow"_s, reports::UlozWypowiedzenie(o(), kWypowiedziana)},
        {u"dtrUMOPSwiad"_s, reports::UlozSwiadectwoPracy(o(), kWypowiedziana, {2001, 1, 31})},
    };
    for (const auto& p : pisma) {
        EXPECT_EQ(p.uklad->opis().nazwa, p.nazwa);
        EXPECT_EQ(p.uklad->stron(), 1) << p.nazwa.toStdString();
        porownajZWzorcem(__FILE__, p.nazwa, *p.uklad);
    }
}

TEST_F(PismaOPraceTest, ZmianaWypowiedzianaMowiOPrawieOdmowyAWypowiedzeniePracownikaIdzieDoFirmy) {
    zmien(kZmiana, {{UMOP("data_wyp"), QDate(2001, 1, 30)}, {UMOP("przyczyna"), u"Nowa organizacja."_s}});
    const QString zmiana = tekst(*reports::UlozZmianeWarunkow(o(), kZmiana));
    for (const QString& fragment :
         {u"Wypowiadam Panu warunki"_s, u"wynosi 3 miesiące i kończy się 30-04-2001"_s,
          u"Płaca zasadnicza, dotychczas: | 84 1650,00 zł"_s,
          u"Płaca zasadnicza, po zmianie: | 84 1850,00 zł"_s, u"Nowa organizacja."_s,
          u"(art. 42 Kodeksu pracy)"_s, u"sądu pracy"_s})
        EXPECT_TRUE(zmiana.contains(fragment)) << fragment.toStdString() << "\n" << zmiana.toStdString();

    zmien(kNieokreslona, {{UMOP("sposob"), static_cast<qint64>(SposobRozwiazania::WypowiedzeniePracownika)},
                          {UMOP("data_wyp"), QDate(2001, 2, 5)},
                          {UMOP("data_roz"), QDate(2001, 5, 31)}});
    const QString list = tekst(*reports::UlozWypowiedzenie(o(), kZmiana)); // of the contract, from its change
    EXPECT_TRUE(list.startsWith(u"Jan Bielak"_s)) << list.toStdString();
    EXPECT_TRUE(list.contains(u"wynosi 3 miesiące i kończy się 31-05-2001"_s)) << list.toStdString();
    EXPECT_FALSE(list.contains(u"Pouczenie"_s)) << list.toStdString();
    // A certificate of both posts.
    const QString swiadectwo = tekst(*reports::UlozSwiadectwoPracy(o(), kZmiana, {2001, 5, 31}));
    for (const QString& fragment :
         {u"w okresie od 15-06-1984 do 31-05-2001"_s, u"stolarz meblowy | 84 od 15-06-1984 do 30-04-2001"_s,
          u"brygadzista stolarni | 84 od 01-05-2001 do 31-05-2001"_s, u"dokonanym przez pracownika"_s,
          u"za 35 dni w roku 2001"_s})
        EXPECT_TRUE(swiadectwo.contains(fragment)) << fragment.toStdString() << "\n"
                                                   << swiadectwo.toStdString();
}

TEST_F(PismaOPraceTest, PismoKtoregoNieMaMowiDlaczego) {
    EXPECT_TRUE(odmowa([&] {
                    return reports::UlozZmianeWarunkow(o(), kNieokreslona);
                }).startsWith(u"To jest umowa, a nie zmiana"_s));
    EXPECT_TRUE(odmowa([&] {
                    return reports::UlozWypowiedzenie(o(), kNieokreslona);
                }).startsWith(u"Umowa nie jest wypowiedziana."_s));
    EXPECT_TRUE(odmowa([&] {
                    return reports::UlozSwiadectwoPracy(o(), kZmiana, {2001, 5, 31});
                }).startsWith(u"Umowa nie ma ostatniego dnia"_s));
    zmien(kOkreslona,
          {{UMOP("wyp_2tyg"), u"N"_s}, {UMOP("sposob"), qint64{1}}, {UMOP("data_wyp"), QDate(2001, 3, 1)}});
    EXPECT_TRUE(odmowa([&] {
                    return reports::UlozWypowiedzenie(o(), kOkreslona);
                }).startsWith(u"Umowy na czas określony nie można"_s));
    EXPECT_EQ(odmowa([&] { return reports::UlozUmoweOPrace(o(), 99); }), u"Nie ma umowy o numerze 99."_s);
}

} // namespace

} // namespace tornel::testy
