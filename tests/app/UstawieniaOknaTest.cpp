#include "app/frmHaslo.h"
#include "app/frmLogLista.h"
#include "app/frmLogNowy.h"
#include "bank/frmKonta.h"
#include "common/Blad.h"
#include "okna/WidokListy.h"
#include "personnel/frmMPRACY.h"
#include "personnel/frmUS.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

/// Every row of a table as the file has it.
QStringList wPliku(Sesja& sesja, const TabelaDef& tabela) {
    QStringList wynik;
    Recordset rs(tabela);
    for (rs.Open(sesja.cnPlace); !rs.EOF_(); rs.MoveNext()) {
        QStringList pola;
        for (int k = 0; k < static_cast<int>(tabela.kolumny.size()); ++k) {
            const Wartosc w = rs.wartosc(tabela.nr(k));
            const auto* liczba = std::get_if<qint64>(&w);
            pola.append(liczba ? QString::number(*liczba) : rs.tekst(tabela.nr(k)));
        }
        wynik.append(pola.join(u'|'));
    }
    return wynik;
}

/// What differs between the screens of numbered tables.
struct Ekran {
    QString tytul;
    const TabelaDef& tabela;
    QString nazwa; ///< the field that the list shows
    int kolumnaListy;
    QString pytanie;
    std::function<std::unique_ptr<QDialog>(Otoczenie&)> otworz;
};

const Ekran& ekran(int i) {
    static const Ekran ekrany[] = {
        {u"Urzędy skarbowe"_s, schemat::US, u"txtNazwa"_s, 1,
         u"Czy na pewno usunąć wybrany urząd skarbowy z listy urzędów ?"_s,
         [](Otoczenie& o) { return std::make_unique<frmUS>(o); }},
        {u"Adresy działalności"_s, schemat::M_PRACY, u"txtNazwa"_s, 1,
         u"Czy na pewno usunąć wybrany adres działalności z listy adresów ?"_s,
         [](Otoczenie& o) { return std::make_unique<frmMPRACY>(o); }},
        {u"Konta bankowe użytkownika"_s, schemat::KONTA, u"txtSkrot"_s, 0,
         u"Czy na pewno usunąć wybrane konto bankowe z listy kont ?"_s,
         [](Otoczenie& o) { return std::make_unique<frmKonta>(o); }},
    };
    return ekrany[i];
}

class EkranTest : public BazaTestowa {
protected:
    void pokaz(std::unique_ptr<QDialog> nowe) {
        okno = std::move(nowe);
        okno->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(okno.get()));
    }
    template <typename K = QLineEdit>
    K& kontrolka(const QString& nazwa) {
        return *okno->findChild<K*>(nazwa);
    }
    WidokListy& lista() { return kontrolka<WidokListy>(u"lvwLista"_s); }
    QStringList naLiscie(int kolumna = 0) {
        QStringList wynik;
        const QAbstractItemModel& model = *lista().model();
        for (int i = 0; i < model.rowCount(); ++i) wynik.append(model.index(i, kolumna).data().toString());
        return wynik;
    }
    void kliknij(const QString& nazwa) { kontrolka<QPushButton>(nazwa).click(); }
    void wpisz(const QString& nazwa, const QString& tekst) {
        auto& linia = kontrolka(nazwa);
        linia.setFocus(Qt::TabFocusReason);
        linia.selectAll();
        linia.insert(tekst);
        emit linia.textEdited(linia.text());
    }
    bool jestZnak() { return kontrolka<QLabel>(u"labZmiana"_s).text().startsWith(u'●'); }
    std::unique_ptr<QDialog> okno;
};

class EkranKartoteki : public EkranTest, public testing::WithParamInterface<int> {
protected:
    const Ekran& e = ekran(GetParam());
    void otworzEkran() { pokaz(e.otworz(otoczenie())); }
    QStringList plik() { return wPliku(sesja(), e.tabela); }
    /// The screen with `nazwy` on its list, in rows 1, 2, ...
    void zWierszami(const QStringList& nazwy) {
        otworzEkran();
        for (const QString& nazwa : nazwy) {
            kliknij(u"cmdNowy"_s);
            wpisz(e.nazwa, nazwa);
        }
        lista().wybierz(1);
    }
};

TEST_P(EkranKartoteki, ZamknieciePrzechowujeZmianeIAniJednejWiecej) {
    zWierszami({u"Jeden"_s, u"Dwa"_s, u"Trzy"_s});
    const QStringList przedtem = plik();
    for (int i = 0; i < 40; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    for (const qint64 id : {3, 2}) lista().wybierz(id);
    EXPECT_TRUE(okno->close());
    EXPECT_EQ(plik(), przedtem) << "looking changes nothing";

    for (const int sposob : {0, 1, 2}) {
        otworzEkran();
        const QString nowa = u"Sposób %1"_s.arg(sposob);
        wpisz(e.nazwa, nowa);
        if (sposob == 0) kliknij(u"cmdAnuluj"_s);
        if (sposob == 1) QTest::keyClick(okno.get(), Qt::Key_Escape);
        if (sposob == 2) okno->close();
        EXPECT_FALSE(okno->isVisible());
        EXPECT_EQ(plik().at(0).section(u'|', 1, 1), nowa);
    }
}

TEST_P(EkranKartoteki, ZlosliweTekstyKazdegoPola) {
    zWierszami({u"Jeden"_s});
    const QString emoji = QString::fromUtf8("\xF0\x9F\x98\x80");
    for (const QString& tekst :
         {u"O'Hara\"; DROP TABLE US;--"_s, u"<b>Żółć</b> &amp; %1"_s, QString(300, u'9') + emoji, emoji}) {
        lista().wybierz(1);
        QHash<QString, QString> oczekiwane;
        for (QLineEdit* linia : okno->findChildren<QLineEdit*>()) {
            if (linia->isReadOnly() || linia->objectName() == u"txtSzukaj") continue;
            wpisz(linia->objectName(), tekst);
            QString pokazany = tekst.left(linia->maxLength());
            if (!pokazany.isEmpty() && pokazany.back().isHighSurrogate()) pokazany.chop(1);
            oczekiwane.insert(linia->objectName(), pokazany);
        }
        ASSERT_GE(oczekiwane.size(), 3);
        okno->reject();
        otworzEkran();
        for (auto i = oczekiwane.begin(); i != oczekiwane.end(); ++i)
            EXPECT_EQ(kontrolka(i.key()).text(), i.value()) << i.key().toStdString();
    }
}

TEST_P(EkranKartoteki, NowyZKlawiaturyPrzechowujeTenKtorySieWpisuje) {
    zWierszami({u"Jeden"_s});
    const auto nowy = [&](Qt::Key klawisz, Qt::KeyboardModifier modyfikator, int wierszy) {
        QTest::keyClick(QApplication::focusWidget(), klawisz, modyfikator);
        // A mnemonic shows its button pressed for a moment first.
        return QTest::qWaitFor([&] { return naLiscie().size() == wierszy; }, 2000);
    };
    const auto nazwa = [&](int wiersz) { return plik().value(wiersz).section(u'|', 1, 1); };
    wpisz(e.nazwa, u"Nie opuszczony"_s);
    ASSERT_TRUE(nowy(Qt::Key_N, Qt::AltModifier, 2));
    EXPECT_EQ(nazwa(0), u"Nie opuszczony"_s);
    EXPECT_EQ(lista().wybrany(), 2);
    EXPECT_TRUE(kontrolka(e.nazwa).hasFocus()) << "ready to type";
    EXPECT_EQ(kontrolka(e.nazwa).text(), QString());
    wpisz(e.nazwa, u"Drugi"_s);
    ASSERT_TRUE(nowy(Qt::Key_Insert, Qt::NoModifier, 3));
    EXPECT_EQ(nazwa(1), u"Drugi"_s);
    EXPECT_EQ(naLiscie(e.kolumnaListy), (QStringList{u"Nie opuszczony"_s, u"Drugi"_s, u"(bez nazwy)"_s}));
    EXPECT_FALSE(jestZnak());
}

TEST_P(EkranKartoteki, SzukanieZKlawiatury) {
    zWierszami({u"Kraków"_s, u"Nowy Sącz"_s, u"Ślemień"_s});
    QTest::keyClick(okno.get(), Qt::Key_F, Qt::ControlModifier);
    auto& szukaj = kontrolka(u"txtSzukaj"_s);
    ASSERT_TRUE(szukaj.hasFocus());
    szukaj.setText(u"S"_s);
    EXPECT_EQ(naLiscie(e.kolumnaListy), (QStringList{u"Nowy Sącz"_s}));
    EXPECT_EQ(szukaj.accessibleDescription(), u"1 z 3"_s);
    szukaj.setText(u"Sx"_s);
    EXPECT_EQ(szukaj.accessibleDescription(), u"nie znaleziono"_s);
    EXPECT_EQ(lista().wybrany(), 2) << "a text without a hit leaves the list alone";
    QTest::keyClick(&szukaj, Qt::Key_Escape);
    EXPECT_TRUE(okno->isVisible() && szukaj.text().isEmpty());
    EXPECT_EQ(lista().lista().rowCount(), 3);
    szukaj.setText(u"ślem"_s);
    EXPECT_EQ(lista().wybrany(), 3);
    QTest::keyClick(&szukaj, Qt::Key_Return);
    EXPECT_TRUE(kontrolka(e.nazwa).hasFocus()) << "Enter goes on to the fields";
    QTest::keyClick(&kontrolka(e.nazwa), Qt::Key_Return);
    EXPECT_FALSE(kontrolka(e.nazwa).hasFocus());
    EXPECT_TRUE(okno->isVisible());
    lista().setFocus();
    QTest::keyClicks(&lista(), u"n"_s);
    EXPECT_EQ(lista().wybrany(), 2);
}

TEST_P(EkranKartoteki, NieudanyZapisNieTraciTekstuIPozwalaWyjsc) {
    zWierszami({u"Jeden"_s, u"Dwa"_s});
    const auto zmienZaPlecami = [&](const QString& tekst) {
        Recordset obcy(e.tabela);
        obcy.Open(sesja().cnPlace);
        ASSERT_TRUE(obcy.Znajdz(1));
        obcy.ustaw(e.tabela.nr(1), tekst);
        obcy.UpdateBatch(u"Dane testu");
    };
    wpisz(e.nazwa, u"mój"_s);
    zmienZaPlecami(u"cudzy"_s);
    EXPECT_THROW(lista().wybierz(2), Konflikt);
    QApplication::processEvents();
    EXPECT_EQ(lista().wybrany(), 1) << "the list goes back to the row that is shown";
    EXPECT_EQ(kontrolka(e.nazwa).text(), u"mój"_s);
    EXPECT_TRUE(jestZnak());
    EXPECT_FALSE(sesja().rsUS.zmieniony() || sesja().rsM_PRACY.zmieniony() || sesja().rsKONTA.zmieniony());

    const QString pytanie =
        u"Wiersz tabeli %1 został tymczasem zmieniony w bazie. Zmiany nie zapisano.\r\n\r\nCzy zamknąć okno bez zapisania zmian ?"_s
            .arg(QString::fromUtf8(e.tabela.nazwa.data()));
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Nie);
    okno->reject();
    EXPECT_TRUE(okno->isVisible());
    sesja().OdswiezUchwyty(); // as the outermost handler does
    lista().wybierz(2);
    EXPECT_EQ(plik().at(0).section(u'|', 1, 1), u"mój"_s);

    lista().wybierz(1);
    wpisz(e.nazwa, u"inny"_s);
    zmienZaPlecami(u"znowu cudzy"_s);
    rozmowa_.spodziewaj(pytanie, Odpowiedz::Tak);
    okno->reject();
    EXPECT_FALSE(okno->isVisible());
    EXPECT_EQ(plik().at(0).section(u'|', 1, 1), u"znowu cudzy"_s);
}

INSTANTIATE_TEST_SUITE_P(Ekrany, EkranKartoteki, testing::Range(0, 3));

TEST_F(EkranTest, ZnaczeniaDlaZusSaTekstemILiczba) {
    const auto wybierz = [&](const QString& nazwa, const QString& opis) {
        auto& wybor = kontrolka<QComboBox>(nazwa);
        EXPECT_EQ(wybor.currentText(), wybor.itemText(0)) << "a new row is not reported";
        wybor.setCurrentIndex(wybor.findText(opis));
        emit wybor.activated(wybor.currentIndex());
    };
    pokaz(std::make_unique<frmKonta>(otoczenie()));
    kliknij(u"cmdNowy"_s);
    wybierz(u"cboZba"_s, u"2 - zamknięcie rachunku"_s);
    okno->reject();
    EXPECT_EQ(wPliku(sesja(), schemat::KONTA), QStringList{u"1||||2"_s});
    pokaz(std::make_unique<frmMPRACY>(otoczenie()));
    kliknij(u"cmdNowy"_s);
    wybierz(u"cboZza"_s, u"1 - nowy adres"_s);
    okno->reject();
    EXPECT_EQ(wPliku(sesja(), schemat::M_PRACY), QStringList{u"1||||||||||1"_s});
}

/// What the clerk does in the dialog "Nowy użytkownik", which must be closed behind him.
void wNowymUzytkowniku(std::function<void(frmLogNowy&, QList<QLineEdit*>)> czynnosc) {
    QTimer::singleShot(0, qApp, [czynnosc = std::move(czynnosc)] {
        const QPointer<frmLogNowy> okno = qobject_cast<frmLogNowy*>(QApplication::activeModalWidget());
        ASSERT_TRUE(okno) << "another dialog, or none";
        auto* nazwa = okno->findChild<QLineEdit*>(u"txtNazwa"_s);
        EXPECT_TRUE(QTest::qWaitFor([&] { return nazwa->hasFocus(); })) << "ready to type";
        czynnosc(*okno,
                 {okno->findChild<QLineEdit*>(u"txtNazwa"_s), okno->findChild<QLineEdit*>(u"txtHaslo"_s),
                  okno->findChild<QLineEdit*>(u"txtPowtorzenie"_s)});
        if (!okno || !okno->isVisible()) return;
        ADD_FAILURE() << "still open";
        okno->reject();
    });
}

TEST_F(EkranTest, NowyUzytkownikZKlawiatury) {
    pokaz(std::make_unique<frmLogLista>(otoczenie()));
    EXPECT_EQ(naLiscie(), QStringList{u"Admin"_s});
    rozmowa_.spodziewaj(u"Nazwa użytkownika jest pusta. Musisz podać nazwę użytkownika"_s, Styl::Wykrzyknik);
    rozmowa_.spodziewaj(u"Nowe hasło oraz hasło powtórzone są różne. Wpisz hasło jeszcze raz."_s,
                        Styl::Wykrzyknik);
    rozmowa_.spodziewaj(u"Użytkownik Admin jest już zarejestrowany w programie. Podaj inną nazę dla nowego "
                        "użutkownika."_s,
                        Styl::Wykrzyknik);
    wNowymUzytkowniku([](frmLogNowy& dialog, const QList<QLineEdit*>& pola) {
        EXPECT_EQ(dialog.windowTitle(), u"Nowy użytkownik"_s);
        const auto wypelnij = [&](const QStringList& teksty) {
            pola[0]->setFocus(Qt::TabFocusReason);
            for (int i = 0; i < 3; ++i) {
                ASSERT_TRUE(pola[i]->hasFocus()) << i << ": Enter moves on";
                pola[i]->setText(teksty.at(i));
                EXPECT_TRUE(dialog.isVisible());
                QTest::keyClick(pola[i], Qt::Key_Return);
            }
        };
        wypelnij({QString(), u"tajne"_s, u"tajne"_s});
        EXPECT_TRUE(dialog.isVisible() && pola[0]->hasFocus());
        wypelnij({u"Kadrowa"_s, u"tajne"_s, u"inne"_s});
        EXPECT_TRUE(dialog.isVisible() && pola[1]->hasFocus());
        wypelnij({u"Admin"_s, u"tajne"_s, u"tajne"_s});
        EXPECT_TRUE(dialog.isVisible() && pola[0]->hasFocus());
        wypelnij({u" Kadrowa"_s, u"tajne"_s, u"tajne"_s});
    });
    kliknij(u"cmdNowy"_s);
    EXPECT_TRUE(rozmowa_.gotowa());
    EXPECT_EQ(naLiscie(), (QStringList{u"Admin"_s, u"Kadrowa"_s}));
    EXPECT_EQ(kontrolka(u"Text2"_s).text(), u"Kadrowa"_s);
    EXPECT_EQ(kontrolka(u"Text3"_s).text(), u"tajne"_s) << "in clear";
    EXPECT_EQ(okno->focusWidget(), &kontrolka(u"Text2"_s));

    // His rights, then another row: he is stored. The administrator stays as he is.
    kontrolka<QCheckBox>(u"chkPlace"_s).click();
    lista().wybierz(0);
    EXPECT_EQ(wPliku(sesja(), schemat::UZYTKOWNICY), (QStringList{u"Admin||0"_s, u"Kadrowa|tajne|1"_s}));
    EXPECT_TRUE(kontrolka<QLabel>(u"labAdm"_s).isVisible());
    for (const QString& nazwa : {u"Text2"_s, u"Text3"_s, u"chkKadry"_s, u"chkPlace"_s})
        EXPECT_FALSE(kontrolka<QWidget>(nazwa).isEnabled()) << nazwa.toStdString();
    rozmowa_.spodziewaj(u"Użytkownik Admin nie może zostać usunięty z listy."_s, Styl::Wykrzyknik);
    kliknij(u"cmdUsun"_s);

    wNowymUzytkowniku([](frmLogNowy& dialog, const QList<QLineEdit*>& pola) {
        pola[0]->setText(u"Nikt"_s);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    kliknij(u"cmdNowy"_s);
    EXPECT_EQ(naLiscie().size(), 2);
}

TEST_F(EkranTest, ZmianaHasla) {
    sesja().uzytkownik = {u"Admin"_s, {}, 0};
    const auto haslo = [&] { return wPliku(sesja(), schemat::UZYTKOWNICY).first(); };
    pokaz(std::make_unique<frmHaslo>(otoczenie()));
    EXPECT_EQ(okno->windowTitle(), u"Hasło"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QTest::keyClicks(QApplication::focusWidget(), u"nowe"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_TRUE(kontrolka(u"txtHaslo3"_s).hasFocus());
    rozmowa_.spodziewaj(u"Nowe hasło i hasło potwierdzone są różne! Nie można zmienić hasła."_s,
                        Styl::Wykrzyknik);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(okno->isVisible());
    kontrolka(u"txtHaslo3"_s).setText(u"nowe"_s);
    rozmowa_.spodziewaj(u"Hasło zostało zmienione."_s, Styl::Informacja);
    kliknij(u"cmdOK"_s);
    EXPECT_FALSE(okno->isVisible());
    EXPECT_EQ(haslo(), u"Admin|nowe|0"_s);

    for (const int sposob : {0, 1, 2}) {
        pokaz(std::make_unique<frmHaslo>(otoczenie()));
        for (const QString& nazwa : {u"txtHaslo1"_s, u"txtHaslo2"_s, u"txtHaslo3"_s})
            kontrolka(nazwa).setText(u"nowe"_s);
        rozmowa_.spodziewaj(u"Hasło nie zostało zmienione"_s, Styl::Informacja, u"Hasło"_s);
        if (sposob == 0) kliknij(u"cmdAnuluj"_s);
        if (sposob == 1) QTest::keyClick(okno.get(), Qt::Key_Escape);
        if (sposob == 2) okno->close();
        EXPECT_FALSE(okno->isVisible());
    }
    EXPECT_EQ(haslo(), u"Admin|nowe|0"_s);
}

} // namespace

} // namespace tornel::testy
