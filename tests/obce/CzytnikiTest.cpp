// Whatever stands in a file or a field that comes from outside, its reader gives a result or says why not.
// Inputs are damaged copies of good ones and plain noise, the same at each run; TORNEL_OBCE=10000000 makes
// the run long.
#include "common/Blad.h"
#include "common/Csv.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "rules/Wzory.h"
#include "start/BazaIni.h"
#include "store/OpisStruktury.h"
#include "store/PakietZmian.h"
#include "store/Schemat.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaZgoda.h"
#include "zus/OdczytKedu.h"
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <QByteArray>
#include <random>

namespace tornel::testy {

namespace {

constexpr qint64 kKrotko = 20'000;

qint64 ileWejsc() {
    const QByteArray ile = qgetenv("TORNEL_OBCE");
    return ile.isEmpty() ? kKrotko : ile.toLongLong();
}

/// What takes foreign input. `czytaj` may throw `Blad` or `Przerwanie`; anything else is a fault.
struct Czytnik {
    const char* nazwa;
    QList<QByteArray> probki; ///< good inputs, of which damaged ones are made
    QByteArray znaki;         ///< which mean something to the reader
    std::function<void(const QByteArray&)> czytaj;
};

/// Inputs from a fixed seed.
class Generator {
public:
    explicit Generator(const Czytnik& czytnik) : czytnik_(czytnik), los_(20010731) {}

    QByteArray nastepne() {
        if (losowa(0, 7) == 0) return szum();
        QByteArray wynik = czytnik_.probki[losowa(0, static_cast<int>(czytnik_.probki.size()) - 1)];
        for (int i = losowa(1, 6); i > 0; --i) zepsuj(wynik);
        return wynik;
    }

private:
    int losowa(int od, int dokad) { return std::uniform_int_distribution(od, dokad)(los_); }
    char znak() {
        if (losowa(0, 3) == 0) return static_cast<char>(losowa(0, 255));
        return czytnik_.znaki[losowa(0, static_cast<int>(czytnik_.znaki.size()) - 1)];
    }
    QByteArray szum() {
        QByteArray wynik;
        for (int i = losowa(0, 40); i > 0; --i) wynik += znak();
        return wynik;
    }
    void zepsuj(QByteArray& wejscie) {
        const int miejsce = losowa(0, static_cast<int>(wejscie.size()));
        switch (losowa(0, 5)) {
        case 0:
            wejscie.insert(miejsce, znak());
            break;
        case 1:
            wejscie.remove(miejsce, losowa(1, 4));
            break;
        case 2:
            wejscie.truncate(miejsce);
            break;
        case 3: // a piece once more, as a copying error leaves it
            wejscie.insert(miejsce, wejscie.mid(losowa(0, miejsce), losowa(1, 12)));
            break;
        default:
            if (miejsce < wejscie.size()) wejscie[miejsce] = znak();
        }
    }

    const Czytnik& czytnik_;
    std::mt19937 los_;
};

class CzytnikiTest : public testing::Test {
protected:
    static void sprawdz(const Czytnik& czytnik) {
        Generator generator(czytnik);
        qint64 przyjetych = 0;
        const qint64 ile = ileWejsc();
        for (qint64 i = 0; i < ile; ++i) {
            const QByteArray wejscie = generator.nastepne();
            try {
                czytnik.czytaj(wejscie);
                ++przyjetych;
            } catch (const Blad& blad) {
                ASSERT_FALSE(blad.komunikat().isEmpty()) << wejscie.toHex().toStdString();
            } catch (const std::exception& wyjatek) {
                FAIL() << czytnik.nazwa << ", input " << i << ": " << wyjatek.what() << "\n"
                       << wejscie.toHex().toStdString();
            }
            ASSERT_FALSE(HasFailure()) << wejscie.toHex().toStdString();
        }
        EXPECT_GT(przyjetych, 0) << "no input came through";
        RecordProperty("przyjetych", std::to_string(przyjetych));
    }
};

TEST_F(CzytnikiTest, Formula) {
    RozmowaZgoda rozmowa;
    Wzory wzory(rozmowa);
    sprawdz({"formula",
             {"DOCH*0,19-394,8", "(STZ+DD1)*2^3/(LD4-1)", "MAX(1;2)+MIN(STC,SGP)", "SQR(16)-1E3",
              "-(2,5+,5)*LU15"},
             "0123456789,.+-*/^()EDOCHSTZLU;[]<>= ",
             [&](const QByteArray& tekst) {
                 int flags = 0;
                 (void)wzory.ObliczWzor(QString::fromUtf8(tekst), flags);
             }});
}

TEST_F(CzytnikiTest, Csv) {
    sprawdz({"csv",
             {"ID;NAZWA\n1;\"Urząd; \"\"mały\"\"\"\n2;b\n",
              "\xEF\xBB\xBF"
              "A;B\r\n1;\"x\r\ny\"\r\n",
              ";;\n\n\"\"\n"},
             ";\"\n\r a1\xC5\xBB",
             [](const QByteArray& csv) {
                 QByteArray zapis;
                 const QList<WierszCsv> wiersze = CzytajCsv(csv);
                 for (const WierszCsv& w : wiersze) {
                     QStringList pola;
                     for (const QString& pole : w.pola) pola += PoleCsv(pole);
                     zapis += pola.join(u';').toUtf8() + '\n';
                 }
                 // What was read is written so that it is read again as it was; a lone empty field is an
                 // empty line.
                 const QList<WierszCsv> drugie = CzytajCsv(zapis);
                 qsizetype nr = 0;
                 for (const WierszCsv& w : wiersze) {
                     if (w.pola == QStringList{QString()}) continue;
                     if (nr >= drugie.size()) return ADD_FAILURE() << "a row is gone";
                     EXPECT_EQ(drugie[nr++].pola, w.pola);
                 }
             }});
}

TEST_F(CzytnikiTest, NumbersAndDatesOfFiles) {
    sprawdz({"numbers and dates",
             {"1500,50", "-1 500,50 zł", "1.500,50", "31-07-2001", "2001-07-31", "01072001",
              "922337203685477,5807"},
             "0123456789,.-/ zł\xC2\xA0",
             [](const QByteArray& tekst) {
                 const QString t = QString::fromUtf8(tekst);
                 for (const Zapis zapis : {Zapis::Pole, Zapis::Dane, Zapis::Wzor})
                     (void)CzytajKwote(t, zapis);
                 (void)CzytajLiczbe(t, -32768, 32767);
                 if (const auto data = CzytajDate(t)) EXPECT_EQ(CzytajDate(FormatDaty(*data)), data);
                 if (const auto data = CzytajWpisanaDate(t))
                     EXPECT_EQ(CzytajWpisanaDate(FormatDaty(*data)), data);
                 (void)MaskaDaty(t);
             }});
}

TEST_F(CzytnikiTest, BazaIni) {
    sprawdz(
        {"Baza.ini",
         {"/home/place/Tornel.mdb\n/home/place/Filia.mdb\n", "C:\\Tornel\\Tornel.mdb\r\n\r\n", "  /a.mdb "},
         "/\\:.\n\r mdb",
         [](const QByteArray& tresc) {
             const BazaIni ini = RozbierzBazeIni(tresc);
             EXPECT_LE(ini.dawniejsze.size(), 9);
             EXPECT_FALSE(ini.dawniejsze.contains(QString()));
             EXPECT_EQ(ini.dawniejsze.contains(ini.baza), false);
         }});
}

TEST_F(CzytnikiTest, Rec) {
    sprawdz({".rec",
             {"ID;NAZWA\n1;US\n2;KONTA\n", "ID;POLE;TYP;ROZMIAR\n1;US_ID;SHORT;2\n1;Nazwa;TEXT;20\n"},
             "ID;NAZWPOLETYROZMI\n\r\"0123456789-",
             [](const QByteArray& csv) {
                 StrukturaBazy struktura;
                 try {
                     struktura.tabele = TabeleZPliku(csv);
                 } catch (const Blad&) {
                     struktura.pola = PolaZPliku(csv);
                 }
                 for (const PoleStruktury& pole : struktura.pola) (void)TypSQL(pole.typ, pole.rozmiar);
                 EXPECT_EQ(TabeleZPliku(TabeleDoPliku(struktura)).size(), struktura.tabele.size());
                 EXPECT_EQ(PolaZPliku(PolaDoPliku(struktura)).size(), struktura.pola.size());
             }});
}

TEST_F(CzytnikiTest, Collection) {
    sprawdz(
        {"collection",
         {"<KEDU>\r\n<ZUSZBA.DP>\r\n<ZUSZBA>\r\n<DOZCBA>\r\n        \r\n      "
          "\r\n</DOZCBA>\r\n<IORB>\r\n1\r\n"
          "10990001-445566-27006-01            \r\n</IORB>\r\n<OPL1>\r\n10042001\r\n</OPL1>\r\n</ZUSZBA>\r\n"
          "</ZUSZBA.DP>\r\n</KEDU>\r\n",
          "<KEDU>\n<ZUSZUA>\n<TYUB>\n011000\n0101200131122001\n</TYUB>\n<DOWP>\n001001\n01012001\nX\n "
          "\nX\nX\n"
          "</DOWP>\n</ZUSZUA>\n</KEDU>\n"},
         "<>/ZUSRCADPLX01 \r\n\xB9",
         [](const QByteArray& tresc) {
             const OdczytKedu kolekcja(tresc);
             for (const DokumentOdczytany& d : kolekcja.dokumenty()) {
                 (void)kolekcja.osoba(d);
                 for (const BlokOdczytany& b : d.bloki) {
                     EXPECT_LE(b.poczatek, b.koniec);
                     for (const PoleOdczytane& p : kolekcja.pola(b)) EXPECT_LE(p.wartosc.size(), 400);
                 }
             }
         }});
}

/// A packet of each kind of change, as an action would leave it.
QByteArray pakietDziennika() {
    PisarzPakietu p(QStringLiteral("US"), &schemat::US);
    p.zmiana(RodzajZmiany::Nowy, 7);
    for (std::size_t i = 0; i < schemat::US.kolumny.size(); ++i) {
        if (i % 3 == 0) p.liczba(static_cast<qint64>(i) * 1000 - 5);
        if (i % 3 == 1) p.tekst("Urząd");
        if (i % 3 == 2) p.null();
    }
    p.zmiana(RodzajZmiany::Zmieniony, 8);
    for (const int ile : {2, 1}) { // changed columns with both values, then the key
        p.ile(static_cast<std::uint64_t>(ile));
        for (int i = 0; i < ile; ++i) {
            p.ile(static_cast<std::uint64_t>(i));
            if (ile == 2) p.dzien(2'452'122);
            p.rzeczywista(2.5);
        }
    }
    p.zmiana(RodzajZmiany::UsunietaTabela, 0);
    p.polecenia({"CREATE TABLE US (X)"});
    return p.wydaj();
}

TEST_F(CzytnikiTest, JournalEntries) {
    const QByteArray pakiet = pakietDziennika();
    ASSERT_EQ(CzytajPakiet(pakiet).zmiany.size(), 3U);
    sprawdz({"journal",
             {pakiet, pakiet.left(pakiet.size() / 2)},
             QByteArray("\x00\x01\x02\x03\x04\x05\x06\x7f\x80\xff", 10),
             [](const QByteArray& bajty) {
                 for (const ZmianaWiersza& z : CzytajPakiet(bajty).zmiany) {
                     EXPECT_LE(z.kolumny.size(), 2000U);
                     EXPECT_LE(z.klucz.size(), 2000U);
                 }
             }});
}

} // namespace

} // namespace tornel::testy
