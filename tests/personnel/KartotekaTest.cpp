#include "common/Blad.h"
#include "personnel/KartotekaPracownika.h"
#include "rules/SkladnikiPlac.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"

namespace tornel::testy {

using schemat::PRACDP;
using schemat::PRACINF;
using schemat::PRACPR;
using schemat::PRACSK;
using schemat::PRACZUS;

namespace {

const QString kAnulowac = QStringLiteral("Czy anulować wporwadzone zmiany ?");

class KartotekaTest : public BazaTestowa {
protected:
    void SetUp() override {
        dodajPracownika(7, QStringLiteral("Nowak"), QStringLiteral("Anna"));
        dodajPracownika(8, QStringLiteral("Kowal"), QStringLiteral("Jan"));
        wez(7);
    }
    void wez(qint64 prcId) {
        if (!kartoteka) kartoteka.emplace(otoczenie());
        kartoteka->Ustaw(prcId);
    }
    void wpisz(Kolumna kolumna, const QString& tekst) { kartoteka->ZapiszZakladke({{kolumna, tekst}}); }
    QString tekst(Kolumna kolumna) const {
        const Wartosc wartosc = kartoteka->wartosc(kolumna);
        if (const auto* data = std::get_if<QDate>(&wartosc)) return data->toString(Qt::ISODate);
        const auto* t = std::get_if<QString>(&wartosc);
        return t ? *t : QString();
    }
    /// The column as the file holds it.
    Wartosc wPliku(Kolumna kolumna, qint64 prcId = 7) {
        Recordset rs(*kolumna.tabela);
        rs.Open(sesja().cnPlace);
        return rs.Znajdz(prcId) ? rs.wartosc(kolumna) : Wartosc(QStringLiteral("no such row"));
    }
    std::optional<KartotekaPracownika> kartoteka;
};

TEST_F(KartotekaTest, PoprzedniaTozsamoscToWartoscSprzedOstatniegoZapisu) {
    struct Przypadek {
        Kolumna kolumna, poprzednia;
        Wartosc pierwsza, druga;
    };
    const auto t = [](const char16_t* tekst) { return Wartosc(QString::fromUtf16(tekst)); };
    const Przypadek przypadki[] = {
        {PRACDP("Naz"), PRACDP("snaz"), t(u"Lis"), t(u"Lis-Żak")},
        {PRACDP("Imie_1"), PRACDP("simie_1"), t(u"Ewa"), t(u"O'Hara")},
        {PRACDP("data_ur"), PRACDP("sdata_ur"), QDate(1960, 2, 29), QDate(1961, 3, 1)},
        {PRACDP("dowod_ser"), PRACDP("sdowod_ser"), t(u"AB"), t(u"CD")},
        {PRACDP("dowod_nr"), PRACDP("sdowod_nr"), t(u"1234567"), t(u"7654321")},
        {PRACDP("pesel"), PRACDP("spesel"), t(u"60022912345"), t(u"61030112345")},
        {PRACDP("Nip"), PRACDP("snip"), t(u"734-100-20-30"), t(u"734-100-20-31")},
    };
    for (const Przypadek& p : przypadki) {
        const std::string nazwa(p.kolumna.def().nazwa);
        const Wartosc przed = kartoteka->wartosc(p.kolumna);
        kartoteka->ZapiszZakladke({{p.kolumna, p.pierwsza}});
        EXPECT_EQ(kartoteka->wartosc(p.poprzednia), przed) << nazwa;
        kartoteka->ZapiszZakladke({{p.kolumna, p.druga}});
        EXPECT_EQ(kartoteka->wartosc(p.poprzednia), p.pierwsza) << nazwa << ", changed twice before storing";
        kartoteka->ZapiszZakladke({{p.kolumna, p.druga}, {PRACDP("imie_2"), QStringLiteral("Zofia")}});
        EXPECT_EQ(kartoteka->wartosc(p.poprzednia), p.pierwsza) << nazwa << " did not differ";
        kartoteka->Zapisz();
        EXPECT_EQ(wPliku(p.kolumna), p.druga) << nazwa;
        EXPECT_EQ(wPliku(p.poprzednia), p.pierwsza) << nazwa;
    }
}

TEST_F(KartotekaTest, SeriaINumerDowoduIdaRazemAReszteZostawia) {
    wpisz(PRACDP("spesel"), QStringLiteral("61030112345"));
    kartoteka->ZapiszZakladke(
        {{PRACDP("dowod_ser"), QStringLiteral("AB")}, {PRACDP("dowod_nr"), QStringLiteral("111")}});
    wpisz(PRACDP("dowod_nr"), QStringLiteral("222"));
    EXPECT_EQ(tekst(PRACDP("sdowod_ser")), QStringLiteral("AB")) << "the old card is series and number";
    EXPECT_EQ(tekst(PRACDP("sdowod_nr")), QStringLiteral("111"));
    kartoteka->ZapiszZakladke(
        {{PRACDP("dowod_ser"), QStringLiteral("CD")}, {PRACDP("dowod_nr"), QStringLiteral("333")}});
    EXPECT_EQ(tekst(PRACDP("sdowod_ser")), QStringLiteral("AB"));
    EXPECT_EQ(tekst(PRACDP("sdowod_nr")), QStringLiteral("222"));
    EXPECT_EQ(tekst(PRACDP("spesel")), QStringLiteral("61030112345"));
    EXPECT_EQ(tekst(PRACDP("snaz")), QString());

    // Null and the empty text look the same, so neither is a change of the other.
    sesja().rsPRACDP.ustaw(PRACDP("Nip"), Null);
    wpisz(PRACDP("snip"), QStringLiteral("stary"));
    wpisz(PRACDP("Nip"), QString());
    EXPECT_EQ(tekst(PRACDP("snip")), QStringLiteral("stary"));
    // What the insurer last knew is not overwritten by nothing; a card without a series is still a card.
    wpisz(PRACDP("Nip"), QStringLiteral("734-100-20-30"));
    EXPECT_EQ(tekst(PRACDP("snip")), QStringLiteral("stary"));
    wpisz(PRACDP("Nip"), QString());
    EXPECT_EQ(tekst(PRACDP("snip")), QStringLiteral("734-100-20-30"));
    kartoteka->ZapiszZakladke({{PRACDP("data_ur"), Null}, {PRACDP("sdata_ur"), QDate(1961, 3, 1)}});
    kartoteka->ZapiszZakladke({{PRACDP("data_ur"), QDate(1961, 1, 3)}});
    EXPECT_EQ(kartoteka->wartosc(PRACDP("sdata_ur")), Wartosc(QDate(1961, 3, 1)));
    wpisz(PRACDP("dowod_ser"), QString());
    wpisz(PRACDP("dowod_nr"), QString());
    EXPECT_EQ(tekst(PRACDP("sdowod_ser")), QString());
    EXPECT_EQ(tekst(PRACDP("sdowod_nr")), QStringLiteral("333"));
    wpisz(PRACDP("dowod_nr"), QStringLiteral("444"));
    EXPECT_EQ(tekst(PRACDP("sdowod_nr")), QStringLiteral("333"));
}

TEST_F(KartotekaTest, ZapisujePiecTabelIOdrzucaAlboCofaJednego) {
    const KartotekaPracownika::Zmiany zmiany{
        {PRACDP("Naz"), QStringLiteral("Lis")},     {PRACPR("placa_zas"), Waluta::zlotych(1650)},
        {PRACSK("wsk_1"), Waluta::zlotych(3)},      {PRACINF("inf_opis"), QStringLiteral("a;b'\nc")},
        {PRACZUS("pocz_ub_sp"), QDate(2001, 7, 1)},
    };
    EXPECT_FALSE(kartoteka->zmieniony());
    kartoteka->ZapiszZakladke(zmiany);
    EXPECT_EQ(wPliku(PRACDP("Naz")), Wartosc(QStringLiteral("Nowak"))) << "only in memory so far";
    wez(8);
    EXPECT_FALSE(kartoteka->zmienionyPracownik());
    wpisz(PRACDP("Naz"), QStringLiteral("Wilk"));
    EXPECT_TRUE(kartoteka->zmienionyPracownik());

    // Taking back one employee's changes leaves the other's.
    rozmowa_.spodziewaj(kAnulowac, Odpowiedz::Nie);
    EXPECT_FALSE(kartoteka->Anuluj());
    EXPECT_EQ(tekst(PRACDP("Naz")), QStringLiteral("Wilk"));
    rozmowa_.spodziewaj(kAnulowac, Odpowiedz::Tak);
    EXPECT_TRUE(kartoteka->Anuluj());
    EXPECT_EQ(tekst(PRACDP("Naz")), QStringLiteral("Kowal"));
    EXPECT_EQ(tekst(PRACDP("snaz")), QString()) << "the previous surname goes back with it";
    EXPECT_FALSE(kartoteka->zmienionyPracownik());
    EXPECT_TRUE(kartoteka->zmieniony());

    kartoteka->Zapisz();
    EXPECT_FALSE(kartoteka->zmieniony());
    for (const auto& [kolumna, wartosc] : zmiany) EXPECT_EQ(wPliku(kolumna), wartosc) << kolumna.def().nazwa;
    EXPECT_EQ(wPliku(PRACDP("Naz"), 8), Wartosc(QStringLiteral("Kowal")));

    wpisz(PRACDP("Naz"), QStringLiteral("Wilk"));
    wpisz(PRACDP("Naz"), QStringLiteral("Kowal"));
    wpisz(PRACDP("snaz"), QString());
    EXPECT_FALSE(kartoteka->zmieniony()) << "typed back, nothing waits";
    wpisz(PRACDP("Naz"), QStringLiteral("Wilk"));
    kartoteka->Porzuc();
    kartoteka->Zapisz();
    EXPECT_EQ(wPliku(PRACDP("Naz"), 8), Wartosc(QStringLiteral("Kowal")));
}

TEST_F(KartotekaTest, NieudanyZapisNiczegoNieGubi) {
    sesja().cnPlace.wykonaj(
        "CREATE TRIGGER pelny BEFORE UPDATE ON PRACZUS BEGIN SELECT RAISE(ABORT, 'x'); END");
    wpisz(PRACDP("Naz"), QStringLiteral("Lis"));
    wpisz(PRACZUS("kod_tyt_ub"), QStringLiteral("0110"));
    wez(8);
    wpisz(PRACPR("dzial"), QStringLiteral("Biuro"));
    EXPECT_THROW(kartoteka->Zapisz(), BladBazy);
    EXPECT_EQ(wPliku(PRACDP("Naz")), Wartosc(QStringLiteral("Nowak"))) << "all five tables or none";

    // What the outermost handler does, and the screen after it.
    sesja().OdswiezUchwyty();
    kartoteka->Ponow();
    EXPECT_TRUE(kartoteka->zmieniony());
    EXPECT_EQ(kartoteka->pracownik(), 8);
    sesja().cnPlace.wykonaj("DROP TRIGGER pelny");
    kartoteka->Zapisz();
    EXPECT_EQ(wPliku(PRACDP("Naz")), Wartosc(QStringLiteral("Lis")));
    EXPECT_EQ(wPliku(PRACDP("snaz")), Wartosc(QStringLiteral("Nowak")));
    EXPECT_EQ(wPliku(PRACZUS("kod_tyt_ub")), Wartosc(QStringLiteral("0110")));
    EXPECT_EQ(wPliku(PRACPR("dzial"), 8), Wartosc(QStringLiteral("Biuro")));
}

TEST_F(KartotekaTest, BrakujacyRekordDopisuje) {
    ASSERT_TRUE(sesja().rsPRACINF.Znajdz(7));
    sesja().rsPRACINF.Delete();
    sesja().rsPRACINF.UpdateBatch(u"Dane testu");
    EXPECT_EQ(kartoteka->wartosc(PRACINF("inf_opis")), Wartosc(Null));
    wpisz(PRACINF("inf_opis"), QStringLiteral("notatka"));
    kartoteka->Zapisz();
    EXPECT_EQ(wPliku(PRACINF("inf_opis")), Wartosc(QStringLiteral("notatka")));
    kartoteka->Ustaw({});
    EXPECT_EQ(kartoteka->wartosc(PRACDP("Naz")), Wartosc(Null));
    kartoteka->ZapiszZakladke({{PRACDP("Naz"), QStringLiteral("nikt")}});
    EXPECT_FALSE(kartoteka->zmieniony());
}

TEST_F(KartotekaTest, KrotkiPeselINipPustoszeja) {
    struct Przypadek {
        QString (KartotekaPracownika::*regula)(const QString&) const;
        const char16_t *tekst, *komunikat;
    };
    const auto pesel = &KartotekaPracownika::SprawdzPesel;
    const auto nip = &KartotekaPracownika::SprawdzNip;
    const Przypadek przypadki[] = {
        {pesel, u"", nullptr},
        {pesel, u"6002291234", u"Nieprawidłowa długość Pesel"},
        {pesel, u" ", u"Nieprawidłowa długość Pesel"},
        {pesel, u"60022912345", nullptr},
        {pesel, u"abcdefghijk", nullptr},  // no check digit
        {pesel, u"600229123456", nullptr}, // only a shorter one is refused
        {nip, u"", nullptr},
        {nip, u"734-100-20-3", u"Nieprawidłowa długość NIP"},
        {nip, u"7341002030", u"Nieprawidłowa długość NIP"}, // 13 counts the dashes
        {nip, u"734-100-20-30", nullptr},
    };
    for (const Przypadek& p : przypadki) {
        if (p.komunikat) rozmowa_.spodziewaj(QString::fromUtf16(p.komunikat), Styl::Wykrzyknik);
        EXPECT_EQ((*kartoteka.*p.regula)(QString::fromUtf16(p.tekst)),
                  p.komunikat ? QString() : QString::fromUtf16(p.tekst))
            << QString::fromUtf16(p.tekst).toStdString();
    }
}

TEST_F(KartotekaTest, KopiaAdresuPytaTylkoOPusty) {
    const QString pytanie = QStringLiteral("Czy skopiować dane z <Adresu zameldowania> do ");
    const QString zamieszkania = pytanie + QStringLiteral("<Adresu zamieszkania> ?");
    const QString tytul = QStringLiteral("Pytanie.");
    const std::pair<Kolumna, Kolumna> pary[] = {
        {PRACDP("miasto"), PRACDP("miasto_k")},     {PRACDP("Kod"), PRACDP("kod_k")},
        {PRACDP("ulica"), PRACDP("ulica_k")},       {PRACDP("nr_domu"), PRACDP("nr_domu_k")},
        {PRACDP("nr_miesz"), PRACDP("nr_miesz_k")}, {PRACDP("gm_dz"), PRACDP("gm_dz_k")},
        {PRACDP("powiat"), PRACDP("powiat_k")},
    };
    for (const auto& [zrodlo, cel] : pary) wpisz(zrodlo, QString::number(zrodlo.nr));
    wpisz(PRACDP("telefon"), QStringLiteral("441-20-30"));

    rozmowa_.spodziewaj(zamieszkania, Odpowiedz::Nie, tytul);
    EXPECT_FALSE(kartoteka->ZaproponujKopieAdresu(AdresKopii::Zamieszkania));
    wpisz(PRACDP("telefon_m"), QStringLiteral("1")); // no part of what is copied
    rozmowa_.spodziewaj(zamieszkania, Odpowiedz::Nie, tytul);
    EXPECT_FALSE(kartoteka->ZaproponujKopieAdresu(AdresKopii::Zamieszkania));
    wpisz(PRACDP("powiat_m"), QStringLiteral("nowosądecki"));
    EXPECT_FALSE(kartoteka->ZaproponujKopieAdresu(AdresKopii::Zamieszkania)) << "no longer empty";

    rozmowa_.spodziewaj(pytanie + QStringLiteral("<Adresu do korespondencji> ?"), Odpowiedz::Tak, tytul);
    EXPECT_TRUE(kartoteka->ZaproponujKopieAdresu(AdresKopii::Korespondencji));
    for (const auto& [zrodlo, cel] : pary) EXPECT_EQ(tekst(cel), tekst(zrodlo)) << cel.def().nazwa;
    EXPECT_EQ(tekst(PRACDP("telefon_k")), QString());
    kartoteka->Zapisz();
    EXPECT_EQ(wPliku(PRACDP("miasto_k")), wPliku(PRACDP("miasto")));
}

TEST_F(KartotekaTest, MiejscaTylkoZaznaczonychIAktywnych) {
    const SkladnikiPlac& katalog = otoczenie().skladniki;
    ASSERT_TRUE(katalog.SkAkt(1) && katalog.SkAkt(24) && !katalog.SkAkt(30));
    ASSERT_TRUE(katalog.SkUAkt(1) && !katalog.SkUAkt(15));
    kartoteka->ZapiszZakladke({{PRACSK("dod"), qint64{1} | qint64{1} << 29}, {PRACSK("pot"), qint64{0}}});
    EXPECT_TRUE(kartoteka->miejsceDodatnie(1));
    EXPECT_FALSE(kartoteka->miejsceDodatnie(24)) << "not ticked";
    EXPECT_FALSE(kartoteka->miejsceDodatnie(30)) << "ticked, but not active";
    EXPECT_FALSE(kartoteka->miejsceUjemne(1));
    kartoteka->ZapiszZakladke({{PRACSK("pot"), qint64{1} | qint64{1} << 14}});
    EXPECT_TRUE(kartoteka->miejsceUjemne(1));
    EXPECT_FALSE(kartoteka->miejsceUjemne(15));
}

TEST_F(KartotekaTest, SlownikiCzytaZPlikuWKolejnosciNumerow) {
    EXPECT_TRUE(kartoteka->urzedy().isEmpty());
    Recordset us(schemat::US);
    us.Open(sesja().cnPlace);
    for (const int nr : {12, 3}) {
        us.AddNewZero(nr);
        us.ustaw(schemat::US("Nazwa"), QStringLiteral("US %1").arg(nr));
    }
    us.UpdateBatch(u"Dane testu");
    const KartotekaPracownika::Slownik oczekiwany{{3, QStringLiteral("3. US 3")},
                                                  {12, QStringLiteral("12. US 12")}};
    EXPECT_EQ(kartoteka->urzedy(), oczekiwany);
    EXPECT_TRUE(kartoteka->miejscaPracy().isEmpty());
}

TEST_F(KartotekaTest, SzukanieIFlagaZwolnionego) {
    dodajPracownika(123, QStringLiteral("Łącki"), QStringLiteral("Piotr"));
    dodajPracownika(1234, QStringLiteral("Żak"), QStringLiteral("Nowakowa"));
    wez(8);
    wpisz(PRACPR("Zwoln"), QStringLiteral("T"));
    const auto osoby =
        Pracownicy(otoczenie()).lista(FiltrPracownikow::Wszyscy, PorzadekPracownikow::Nazwiska);
    for (const Osoba& o : osoby) EXPECT_EQ(o.zwolniony, o.prcId == 8);

    const std::pair<const char16_t*, qint64> szukane[] = {
        {u"7", 7},
        {u" 007 ", 7},
        {u"12", -1},
        {u"1234", 1234},
        {u"99999999999999999999", -1},
        {u"nowak", 7},
        {u"nowak A", 7},
        {u"nowakowa", 1234},
        {u"łĄCki", 123},
        {u"8 Kowal", -1},
        {u"'; --", -1},
        {u"", -1},
        {u"  ", -1},
        {u"kowal  jan", 8},
        {u"-7", -1},
    };
    for (const auto& [szukany, prcId] : szukane)
        EXPECT_EQ(Pracownicy::szukaj(osoby, QString::fromUtf16(szukany)), prcId)
            << QString::fromUtf16(szukany).toStdString();
}

} // namespace

} // namespace tornel::testy
