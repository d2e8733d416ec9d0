// Undo by key and menu while screens are open, and the screen of the journal.
#include "app/frmDziennik.h"
#include "app/frmMain.h"
#include "app/frmMainDziennik.h"
#include "bank/frmKonta.h"
#include "okna/Aplikacja.h"
#include "okna/PoleTekstu.h"
#include "okna/WidokListy.h"
#include "payroll/miesiace/frmPlace.h"
#include "rules/frmStaleProgramu.h"
#include "wsparcie/PlaceTestowe.h"
#include "wsparcie/Przestrzen.h"
#include <QFile>
#include <QPushButton>
#include <QTest>

namespace tornel::testy {

using namespace Qt::StringLiterals;
using namespace tornel::app;

namespace {

class DziennikOkna : public PlaceTestowe {
protected:
    DziennikOkna() : okno_(otoczenie()) {
        ZarejestrujDziennik(okno_, otoczenie());
        okno_.wczytaj();
    }
    void konto(int nr, const QString& nazwa) {
        Recordset& rs = sesja().rsKONTA;
        rs.Open(sesja().cnPlace);
        if (!rs.Znajdz(qint64{nr})) rs.AddNewZero(nr);
        rs.ustaw(schemat::KONTA("Nazwa"), nazwa);
        rs.UpdateBatch(u"Konto nr %1"_s.arg(nr));
    }
    QString napis(Wejscie wejscie) {
        okno_.UstawDostepnoscMenu();
        const QAction* akcja = okno_.akcja(wejscie);
        return akcja->isEnabled() ? akcja->text().remove(u'&') : QString();
    }
    template <typename T>
    static T& pole(QWidget& ekran, const char16_t* nazwa) {
        return *ekran.findChild<T*>(QString::fromUtf16(nazwa));
    }
    static QStringList kolumna(const WidokListy& lista, int nr) {
        QStringList wynik;
        for (const WierszListy& w : lista.lista().wszystkie()) wynik += w.teksty.value(nr);
        return wynik;
    }
    frmMain okno_;
};

TEST_F(DziennikOkna, MenuNazywaCzynnoscICofaJaZOknaGlownego) {
    ZakonczLancuch(sesja().cnPlace, u"Początek"_s);
    EXPECT_EQ(napis(Wejscie::Cofnij), QString());
    konto(1, u"Bank & Syn"_s);
    miesiac();
    EXPECT_EQ(napis(Wejscie::Cofnij), u"Cofnij: Nowy miesiąc 07.2001"_s);
    okno_.akcja(Wejscie::Cofnij)->trigger();
    EXPECT_FALSE(sesja().cnPlace.jestTabela(u"PLA200107"_s));
    EXPECT_EQ(napis(Wejscie::Cofnij), u"Cofnij: Konto nr 1"_s);
    EXPECT_EQ(napis(Wejscie::Ponow), u"Ponów: Nowy miesiąc 07.2001"_s);
    okno_.akcja(Wejscie::Ponow)->trigger();
    EXPECT_TRUE(sesja().cnPlace.jestTabela(u"PLA200107"_s));

    // Somebody else's action of another field is not his to undo.
    sesja().uzytkownik = {u"Kadrowa"_s, {}, 1};
    EXPECT_EQ(napis(Wejscie::Cofnij), QString());
}

TEST_F(DziennikOkna, KlawiszeCofajaNaEkraniePozaPolem) {
    konto(1, u"Bank"_s);
    konto(2, u"Kasa"_s);
    frmKonta ekran(otoczenie());
    ekran.show();
    auto& lista = *ekran.findChild<WidokListy*>();
    ASSERT_EQ(lista.lista().rowCount(), 2);
    lista.setFocus();
    QTest::keyClick(&lista, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(lista.lista().rowCount(), 1) << "the list is filled anew";
    QTest::keyClick(&lista, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(lista.lista().rowCount(), 2);

    // In a field the keys are the field's; what it holds is stored before an action is undone.
    auto& nazwa = pole<QLineEdit>(ekran, u"txtNazwa");
    nazwa.setFocus();
    nazwa.selectAll();
    QTest::keyClicks(&nazwa, u"Nowa"_s);
    QTest::keyClick(&nazwa, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(lista.lista().rowCount(), 2);
    nazwa.selectAll();
    QTest::keyClicks(&nazwa, u"Inna"_s);
    lista.setFocus();
    QTest::keyClick(&lista, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(lista.lista().rowCount(), 2) << "the change of the name was the last action";
    EXPECT_FALSE(kolumna(lista, 1).join(u' ').contains(u"Inna"_s))
        << kolumna(lista, 1).join(u' ').toStdString();

    // A screen with its own copy of the data is left alone.
    frmStaleProgramu stale(otoczenie());
    stale.show();
    QTest::keyClick(&stale, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(lista.lista().rowCount(), 2);
}

TEST_F(DziennikOkna, OdmowaMowiKtoryWiersz) {
    konto(7, u"Bank"_s);
    sesja().cnPlace.wykonaj("UPDATE KONTA SET Nazwa='Obcy'");
    rozmowa_.spodziewaj(u"Nie można cofnąć czynności „Konto nr 7”: wiersz tabeli KONTA (NR 7) został potem "
                        "zmieniony. Nic nie zostało zmienione."_s,
                        Styl::Wykrzyknik);
    okno_.akcja(Wejscie::Cofnij)->trigger();
}

TEST_F(DziennikOkna, DziennikPokazujeFiltrujeIZapisuje) {
    sesja().uzytkownik = {u"Zofia"_s, {}, 0};
    sesja().cnPlace.dziennik()->UstawZegar([] { return QDateTime({2001, 7, 31}, {15, 30}); });
    konto(1, u"Bank"_s);
    konto(1, u"Bank; „Żółw”"_s);
    pracownik(5, "placa_zas=1500");
    const QString plik = folder_.filePath(u"dziennik.csv"_s);
    frmDziennik ekran(otoczenie(), nullptr, [&](QWidget*) { return plik; });
    auto& wpisy = pole<WidokListy>(ekran, u"lvwWpisy");
    auto& zmiany = pole<WidokListy>(ekran, u"lvwZmiany");
    const auto szukaj = [&] { pole<QPushButton>(ekran, u"cmdSzukaj").click(); };
    EXPECT_EQ(kolumna(wpisy, 3).first(), u"Dane testu"_s);
    EXPECT_EQ(kolumna(zmiany, 2), QStringList{u"płaca zasadnicza"_s});
    EXPECT_EQ(kolumna(zmiany, 4), QStringList{u"1500,00"_s});

    pole<QLineEdit>(ekran, u"txtTekst").setText(u"Żółw"_s);
    szukaj();
    EXPECT_EQ(kolumna(wpisy, 3), QStringList{u"Konto nr 1"_s});
    EXPECT_EQ(kolumna(zmiany, 3), QStringList{u"Bank"_s});
    rozmowa_.spodziewaj(u"Plik "_s + plik + u" został utworzony."_s, Styl::Informacja);
    pole<QPushButton>(ekran, u"cmdCSV").click();
    QFile csv(plik);
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(csv.readAll()),
              u"DZIEN;CZAS;KTO;CZYNNOSC;TABELA;WIERSZ;POLE;BYLO;JEST\n"
              "31-07-2001;15:30:00;Zofia;Konto nr 1;KONTA;NR 1;nazwa;Bank;\"Bank; „Żółw”\"\n"_s);

    pole<QPushButton>(ekran, u"cmdWyczysc").click();
    pole<QLineEdit>(ekran, u"txtOsoba").setText(u"5"_s);
    szukaj();
    EXPECT_GE(wpisy.lista().rowCount(), 2);
    EXPECT_FALSE(kolumna(wpisy, 3).contains(u"Konto nr 1"_s));
    pole<QLineEdit>(ekran, u"dtOd").setText(u"31-02-2001"_s);
    const int przedtem = wpisy.lista().rowCount();
    szukaj();
    EXPECT_EQ(wpisy.lista().rowCount(), przedtem) << "what is no date finds nothing";
    EXPECT_FALSE(pole<QPushButton>(ekran, u"cmdPrzytnij").isHidden());
}

TEST_F(DziennikOkna, KazdyWidziSwojeDane) {
    sesja().uzytkownik = {u"Szefowa"_s, {}, 0};
    konto(1, u"Bank"_s);
    pracownik(5, "placa_zas=1500");
    sesja().cnPlace.dziennik()->dopiszZdarzenie(u"Odmowa logowania"_s);
    const auto widziane = [&](int typ) {
        sesja().uzytkownik = {u"Ktoś"_s, {}, typ};
        frmDziennik ekran(otoczenie());
        EXPECT_TRUE(pole<QPushButton>(ekran, u"cmdPrzytnij").isHidden() || typ == 0);
        const QStringList wpisy = kolumna(pole<WidokListy>(ekran, u"lvwWpisy"), 3);
        QString wynik;
        for (const auto& nazwa : {u"Konto nr 1"_s, u"Nowy pracownik nr 5"_s, u"Odmowa logowania"_s})
            wynik += wpisy.contains(nazwa) ? u'T' : u'N';
        return wynik;
    };
    EXPECT_EQ(widziane(0), u"TTT"_s);
    EXPECT_EQ(widziane(1), u"NTN"_s);
    EXPECT_EQ(widziane(2), u"TNN"_s);
    EXPECT_EQ(widziane(4), u"NNN"_s);
}

TEST_F(DziennikOkna, MiesiacKtoryZnikaZamykaSieNaLiscieMiesiecy) {
    miesiac();
    frmPlace ekran(otoczenie());
    ekran.show();
    auto& lista = *ekran.findChild<WidokListy*>();
    ASSERT_EQ(lista.lista().rowCount(), 1);
    lista.setFocus();
    QTest::keyClick(&lista, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(lista.lista().rowCount(), 0);
    QTest::keyClick(&lista, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(lista.lista().rowCount(), 1);
}

} // namespace

} // namespace tornel::testy
