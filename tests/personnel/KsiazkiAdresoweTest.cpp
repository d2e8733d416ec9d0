#include "personnel/KsiazkiAdresowe.h"
#include "bank/Konta.h"
#include "common/Blad.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

const QString kUsunacUrzad = u"Czy na pewno usunąć wybrany urząd skarbowy z listy urzędów ?"_s;
const QString kUrzadUzywany = u"Nie można usunąć wybranego urzędu skarbowego, ponieważ jest używany."_s;

class KsiazkiAdresoweTest : public BazaTestowa {
protected:
    QList<qint64> wPliku(const TabelaDef& tabela) {
        QList<qint64> wynik;
        Recordset rs(tabela);
        rs.Open(sesja().cnPlace);
        rs.Sort({tabela.nr(0)});
        for (; !rs.EOF_(); rs.MoveNext()) wynik.append(rs.liczba(tabela.nr(0)));
        return wynik;
    }
    void pracownikW(qint64 prcId, Kolumna kolumna, qint64 numer, const QString& nazwisko) {
        dodajPracownika(prcId, nazwisko);
        ASSERT_TRUE(sesja().rsPRACPR.Znajdz(prcId));
        sesja().rsPRACPR.ustaw(kolumna, numer);
        sesja().rsPRACPR.UpdateBatch(u"Dane testu");
    }
    /// A contract or fee of the person with the number in `kolumna`.
    void umowa(qint64 id, Kolumna kolumna, qint64 numer, qint64 prcId) {
        Recordset rs(*kolumna.tabela);
        rs.Open(sesja().cnPlace);
        rs.AddNewZero(id);
        rs.ustaw(kolumna.tabela->nr(kolumna.tabela->numer("PRC_ID")), prcId);
        rs.ustaw(kolumna, numer);
        rs.UpdateBatch(u"Dane testu");
    }
};

TEST_F(KsiazkiAdresoweTest, NowyBierzeNajmniejszyWolnyNumerAUsunietyWraca) {
    const std::pair<const KartotekaDef&, QString> kartoteki[] = {
        {UrzedySkarbowe(), kUsunacUrzad},
        {MiejscaPracy(), u"Czy na pewno usunąć wybrany adres działalności z listy adresów ?"_s},
        {KontaBankowe(), u"Czy na pewno usunąć wybrane konto bankowe z listy kont ?"_s},
    };
    for (const auto& [def, pytanie] : kartoteki) {
        Kartoteka k(otoczenie(), def);
        const TabelaDef& tabela = k.tabela().tabela();
        for (const qint64 numer : {1, 2, 3, 4}) EXPECT_EQ(k.Nowy(), numer);
        rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
        EXPECT_TRUE(k.Usun(2));
        rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
        EXPECT_FALSE(k.Usun(3));
        EXPECT_EQ(wPliku(tabela), (QList<qint64>{1, 3, 4})) << tabela.nazwa;

        // A filter that another screen left on the handle hides no number.
        k.tabela().Filter({{tabela.nr(0), Kryterium::Operator::Wieksze, qint64{3}}});
        EXPECT_EQ(WolnyNumer(k.tabela()), 2);
        Kartoteka ponownie(otoczenie(), def);
        EXPECT_EQ(ponownie.Nowy(), 2);
        EXPECT_EQ(ponownie.numery(), (QList<qint64>{1, 2, 3, 4})) << "sorted by the number";
        EXPECT_THROW((void)ponownie.Usun(9), Blad);
    }
    sesja().rsM_PRACY.MoveFirst();
    sesja().rsKONTA.MoveFirst();
    EXPECT_EQ(sesja().rsM_PRACY.tekst(schemat::M_PRACY("zza")), u"0"_s);
    EXPECT_EQ(sesja().rsKONTA.wartosc(schemat::KONTA("zba")), Wartosc(qint64{0}));
}

TEST_F(KsiazkiAdresoweTest, UzywanyUrzadZostajeIMowiKtoGoUzywa) {
    Kartoteka k(otoczenie(), UrzedySkarbowe());
    for (int i = 0; i < 3; ++i) (void)k.Nowy();
    pracownikW(5, schemat::PRACPR("us_id"), 2, u"Nowak"_s);
    pracownikW(7, schemat::PRACPR("us_id"), 2, u"O'Hara"_s);
    pracownikW(8, schemat::PRACPR("us_id"), 3, u"Lis"_s);
    umowa(1, schemat::UZL("us_id"), 2, 5);
    umowa(2, schemat::UZL("us_id"), 2, 5);
    umowa(1, schemat::UOD("us_id"), 1, 7);
    umowa(1, schemat::HON("us_id"), 2, 99); // of somebody deleted since
    stale().USUzytk = 2;
    ASSERT_TRUE(sesja().rsPRACDP.Znajdz(8));

    const QString uzycia = u"pracownicy: 2 (Nowak Anna, O'Hara Anna)\r\numowy zlecenia: 2 (Nowak Anna)\r\n"
                           u"honoraria: 1 (nr 99)\r\nstałe programu: Urząd skarbowy pracodawcy"_s;
    rozmowa_.spodziewaj(kUrzadUzywany + u"\r\n\r\n"_s + uzycia, Styl::Wykrzyknik);
    EXPECT_FALSE(k.Usun(2));
    rozmowa_.spodziewaj(kUrzadUzywany + u"\r\n\r\numowy o dzieło: 1 (O'Hara Anna)"_s, Styl::Wykrzyknik);
    EXPECT_FALSE(k.Usun(1));
    rozmowa_.spodziewaj(kUrzadUzywany + u"\r\n\r\npracownicy: 1 (Lis Anna)"_s, Styl::Wykrzyknik);
    EXPECT_FALSE(k.Usun(3));
    EXPECT_EQ(wPliku(schemat::US), (QList<qint64>{1, 2, 3}));
    EXPECT_EQ(sesja().rsPRACDP.liczba(schemat::PRACDP("prc_id")), 8) << "the personnel handle stays";

    ASSERT_TRUE(sesja().rsPRACPR.Znajdz(8));
    sesja().rsPRACPR.ustaw(schemat::PRACPR("us_id"), 0);
    sesja().rsPRACPR.UpdateBatch(u"Dane testu");
    rozmowa_.spodziewaj(kUsunacUrzad, Odpowiedz::Tak);
    EXPECT_TRUE(k.Usun(3));
}

TEST_F(KsiazkiAdresoweTest, MiejscePracyZWielomaPracownikami) {
    Kartoteka k(otoczenie(), MiejscaPracy());
    (void)k.Nowy();
    for (int i = 1; i <= 8; ++i) pracownikW(i, schemat::PRACPR("mp_id"), 1, u"P%1"_s.arg(i));
    umowa(1, schemat::UMOP("mp_id"), 1, 3);
    EXPECT_EQ(k.uzytkownicy(1),
              (QStringList{u"pracownicy: 8 (P1 Anna, P2 Anna, P3 Anna, P4 Anna, P5 Anna, i inni)"_s,
                           u"umowy o pracę: 1 (P3 Anna)"_s}));
    rozmowa_.spodziewaj(u"Nie można usunąć wybranego adresu działalności, ponieważ jest używany.\r\n\r\n"_s +
                            k.uzytkownicy(1).join(u"\r\n"_s),
                        Styl::Wykrzyknik);
    EXPECT_FALSE(k.Usun(1));
}

} // namespace

} // namespace tornel::testy
