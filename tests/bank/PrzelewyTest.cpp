// Payments: transfer orders cut to their form, taxes by office, the bank's file and its marks.
#include "bank/MultiCash.h"
#include "bank/ZleceniaPrzelewow.h"
#include "common/PolaKedu.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/KonsolaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <gtest/gtest.h>

namespace tornel::testy {

namespace {

using namespace Qt::StringLiterals;

TEST(Przelewy, TheFormCutsNamesAndAccounts) {
    const struct {
        QString konto, b1, b2, b3;
    } konta[] = {
        {u"10101010-222-333"_s, u"10101010"_s, u"222-333"_s, {}},
        {u"10101010222-333"_s, u"10101010"_s, u"222-333"_s, {}},
        {u"20202020"_s + u"4"_s.repeated(30), u"20202020"_s, u"4"_s.repeated(24), u"4"_s.repeated(6)},
        {u"2020"_s, u"2020"_s, {}, {}}};
    for (const auto& k : konta) {
        const Przelew p = UlozPrzelew({{}, k.konto, {}, {}, {}, {}});
        EXPECT_EQ((QStringList{p.nrrachodb1, p.nrrachodb2, p.nrrachodb3}), (QStringList{k.b1, k.b2, k.b3}));
    }
    const Przelew p = UlozPrzelew({u"ą"_s.repeated(91), {}, {}, {}, {}, u"płaca"_s});
    EXPECT_EQ(p.nazodb + p.nazodbcd, u"Ą"_s.repeated(90)) << "what is longer is lost";
    EXPECT_EQ(p.LK, u"PŁ"_s);
    EXPECT_EQ(PoMyslniku(u"1-2-3"_s), u"2-3"_s);
    EXPECT_EQ(PoMyslniku(u"123"_s), QString());
}

using PrzelewyKonsoli = KonsolaTestowa;

// Each step starts where the one before it left the database and the folder.
TEST_F(PrzelewyKonsoli, OrdersAndTheBanksFile) {
    const QString katalog = folder_.path();
    const auto multicash = [&](const char* reszta) {
        return uruchom(QStringList{u"--tak"_s, u"multicash"_s, u"2001-02"_s, u"--wystawienie"_s,
                                   u"09-07-2001"_s, u"--platnosc"_s, u"10-07-2001"_s, u"--konto"_s, u"1"_s,
                                   u"--szczegoly"_s, u"Płaca|\"raz\""_s, u"--katalog"_s} +
                       QString::fromUtf8(reszta).split(u' '));
    };
    const auto przelewy = uruchom("--json przelew pracownicy 2001-02 --konto 1 --tytul Płaca");
    EXPECT_EQ(przelewy.status, 0) << przelewy.bledy.toStdString();
    EXPECT_EQ(przelewy.wyjscie.count(u"\"LK\":\"PŁ\""_s), przelewy.wyjscie.count(u"\"nazodb\""_s));
    EXPECT_EQ(uruchom("przelew pracownicy 2001-02 --konto 99 --tytul x").status, 1);
    EXPECT_EQ(uruchom("przelew podatek 2001-02 --konto 1").status, 0);
    EXPECT_EQ(
        uruchom("przelew podatek UZL --konto 1 --od 01-01-2002 --do 31-12-2002").bledy.section(u'\n', 0, 0),
        u"Brak umów - zleceń spełniających podane kryteria. Sprawdź czy podany okres jest prawidłowy oraz "
        u"czy "
        u"ustalono kwoty do przelewów."_s);

    // A folder that is not there: no file, no mark.
    const QString przed = tabela("PLB200102");
    const auto bezKatalogu = multicash((katalog + u"/nie --paczka 0"_s).toUtf8().constData());
    EXPECT_EQ(bezKatalogu.status, 1);
    EXPECT_TRUE(bezKatalogu.bledy.contains(u"Żaden przelew nie został oznaczony"_s));
    EXPECT_EQ(tabela("PLB200102"), przed);

    EXPECT_EQ(multicash((katalog + u" --paczka 0"_s).toUtf8().constData()).status, 0);
    const QByteArray plikBanku = czytaj(plik("01070900.pli"));
    EXPECT_EQ(plikBanku.count("\r\n"), tabela("PLB200102").count(u";T\n"_s));
    EXPECT_TRUE(plikBanku.startsWith("110,20010710,"));
    EXPECT_TRUE(plikBanku.contains(windows1250(u"\"PŁACA 'RAZ'|||\""_s))) << "no mark of the form's own";
    EXPECT_TRUE(tabela("WYKONANE").contains(u"\n200102;1;multicash;"_s));
    // All are marked now: nothing to write leaves the file as it is.
    const auto drugi = multicash((katalog + u" --paczka 0"_s).toUtf8().constData());
    EXPECT_EQ(drugi.status, 1);
    EXPECT_TRUE(drugi.bledy.contains(u"Brak danych spełniających podane kryteria"_s));
    EXPECT_EQ(czytaj(plik("01070900.pli")), plikBanku);
}

/// Two commission contracts of July, the second one sent in a file for the bank.
class PrzelewyUmow : public BazaTestowa {
protected:
    PrzelewyUmow() {
        Recordset uzl(schemat::UZL);
        uzl.Open(sesja().cnPlace);
        for (const int nr : {1, 2}) {
            uzl.AddNewZero(nr);
            uzl.ustaw(schemat::UZL("prc_id"), nr);
            uzl.ustaw(schemat::UZL("us_id"), 5);
            uzl.ustaw(schemat::UZL("data_zaw"), QDate(2001, 7, 10 * nr));
            uzl.ustaw(schemat::UZL("data_wyp"), QDate(2001, 7, 31));
            uzl.ustaw(schemat::UZL("przelewem"), zl(100 * nr));
            uzl.ustaw(schemat::UZL("Podatek"), zl(10));
            uzl.ustawFlage(schemat::UZL("wys_mcs"), nr == 2);
        }
        uzl.UpdateBatch(u"Dane testu");
    }
    QString napis(KomuPrzelew komu, const ZrodloPrzelewow& zrodlo) {
        const DoPrzelania co = ZnajdzDoPrzelania(otoczenie(), komu, zrodlo);
        return SprawdzWydrukowane(otoczenie(), komu, zrodlo, co.wyplaty).napis;
    }
    void zapamietaj(KomuPrzelew komu, const ZrodloPrzelewow& zrodlo) {
        Przelew p;
        for (const Wyplata& w : ZnajdzDoPrzelania(otoczenie(), komu, zrodlo).wyplaty) {
            p.za = w;
            p.Kwota = w.kwota;
            ZapamietajWydrukowane(otoczenie(), komu, zrodlo, {p}, QDateTime({2001, 8, 1}, {12, 0}));
        }
    }
};

TEST_F(PrzelewyUmow, AContractKnowsItsTransferInWhateverPeriodItIsAskedFor) {
    const RodzajWyplat* uzl = rodzajWyplat(u"uzl"_s);
    const ZrodloPrzelewow pierwsza{.umowy = uzl, .umowa = 1};
    const ZrodloPrzelewow lipiec{.umowy = uzl, .od = QDate(2001, 7, 1), .dokad = QDate(2001, 7, 31)};
    const ZrodloPrzelewow sierpien{.umowy = uzl, .od = QDate(2001, 8, 1), .dokad = QDate(2001, 8, 31)};
    EXPECT_EQ(napis(KomuPrzelew::Osoby, pierwsza), QString());
    EXPECT_EQ(napis(KomuPrzelew::Osoby, lipiec), u"wysłano do banku w pliku 1 z 2"_s);
    zapamietaj(KomuPrzelew::Osoby, pierwsza);
    EXPECT_EQ(napis(KomuPrzelew::Osoby, pierwsza), u"wydrukowano 01-08-2001"_s);
    EXPECT_EQ(napis(KomuPrzelew::Osoby, lipiec),
              u"wydrukowano 1 z 2, ostatnio 01-08-2001; wysłano do banku w pliku 1 z 2"_s);

    zapamietaj(KomuPrzelew::Urzedy, lipiec);
    EXPECT_EQ(napis(KomuPrzelew::Urzedy, lipiec), u"wydrukowano 01-08-2001"_s);
    EXPECT_EQ(napis(KomuPrzelew::Urzedy, sierpien), QString());
    EXPECT_EQ(ZnajdzDoPrzelania(otoczenie(), KomuPrzelew::Urzedy, lipiec).wyplaty.first().kwota, zl(20));
    EXPECT_EQ(ZnajdzDoPrzelania(otoczenie(), KomuPrzelew::Osoby, pierwsza).tytul,
              u"Przelew z umowy - zlecenia"_s);
    EXPECT_FALSE(ZnajdzDoPrzelania(otoczenie(), KomuPrzelew::Osoby, sierpien).odmowa.isEmpty());
}

// What can go to the bank is noted, what is looked at is not.
TEST_F(PrzelewyKonsoli, PrintsOfTransfers) {
    const QString przelewy = u"wydruk przelewy 2001-02 --konto 1 --tytul Płaca "_s;
    const auto drukuj = [&](const QString& reszta) {
        return uruchom((przelewy + reszta).split(u' ', Qt::SkipEmptyParts));
    };
    const auto wydruk = drukuj(u"--uklad dtrPrzelewOrg --tekst"_s);
    EXPECT_EQ(wydruk.status, 0) << wydruk.bledy.toStdString();
    EXPECT_TRUE(wydruk.wyjscie.contains(u"1 065,043 120045-27006-11"_s)) << wydruk.wyjscie.toStdString();
    const auto json = uruchom("--json przelew pracownicy 2001-02 --konto 1 --tytul x");
    EXPECT_EQ(wydruk.wyjscie.count(u"PŁACA"_s), 2 * json.wyjscie.count(u"\"LK\""_s));
    EXPECT_EQ(drukuj(u"--csv "_s + plik("przelewy.csv")).status, 0);
    EXPECT_TRUE(czytaj(plik("przelewy.csv")).startsWith("nazodb;"));
    EXPECT_EQ(tabela("WYKONANE").count(u'\n'), 1);
    EXPECT_EQ(uruchom("wydruk przelewy-podatku 2001-02 --konto 1 --tekst").status, 0);
    EXPECT_EQ(drukuj(u"--tekst --pracownik 9999"_s).status, 1);
    for (const QString& zle : {u"--uklad dtrInny --tekst"_s, u"--tekst --csv x"_s, QString()})
        EXPECT_EQ(drukuj(zle).status, 2) << zle.toStdString();
}

} // namespace

} // namespace tornel::testy
