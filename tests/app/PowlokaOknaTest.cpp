#include "app/frmAbout.h"
#include "app/frmLogowanie.h"
#include "app/frmMain.h"
#include "app/Uprawnienia.h"
#include "okna/frmInputData.h"
#include "okna/frmPytania.h"
#include "okna/RozmowaOkien.h"
#include "start/PlanPracy.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Litery.h"
#include "wsparcie/Przestrzen.h"
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

const QString kPytanieOKoniec = u"Zakończyć pracę programu ?"_s;
const QString kPytanieOArchiwum = u"Czy utworzyć archiwum bazy danych programu ?"_s;

/// "Menu>Entry" for every entry of a menu, those of its sub-menus behind their caption.
QStringList wejsciaMenu(const QMenu& menu, const QString& sciezka) {
    QStringList wynik;
    for (const QAction* akcja : menu.actions()) {
        const QString tu = sciezka + QLatin1Char('>') + bezLitery(akcja->text());
        if (akcja->menu())
            wynik += wejsciaMenu(*akcja->menu(), tu);
        else
            wynik += tu;
    }
    return wynik;
}

class PowlokaTest : public BazaTestowa {
protected:
    void zarejestrujWszystko(frmMain& okno) {
        for (const PozycjaMenu& p : menuGlowne())
            okno.rejestruj(p.wejscie, [this, w = p.wejscie] { otwarte.push_back(w); });
        okno.wczytaj();
    }
    static QToolButton& przyciskPaska(frmMain& okno, const QString& napis) {
        for (auto* p : okno.findChild<QToolBar*>()->findChildren<QToolButton*>())
            if (p->text() == napis) return *p;
        throw std::runtime_error("no button " + napis.toStdString());
    }
    std::vector<Wejscie> otwarte;
};

TEST_F(PowlokaTest, MenuStoiWCalosciABezEkranuWejscieJestZamkniete) {
    frmMain okno(otoczenie());
    okno.wczytaj();
    EXPECT_EQ(okno.windowTitle(), u"Tornel 2001"_s);
    QStringList wejscia;
    for (const QAction* akcja : okno.menuBar()->actions())
        wejscia += wejsciaMenu(*akcja->menu(), bezLitery(akcja->text()));
    sprawdzLiteryMenu(okno.menuBar()->actions());
    const QStringList oczekiwane =
        QStringLiteral(
            "Plik>Cofnij|Plik>Ponów|Plik>Otwórz bazę|Plik>Ostatnie bazy|Plik>Koniec|Pracownicy>Wszyscy "
            "pracownicy|Pracownicy>Tylko "
            "pracujący|Pracownicy>Tylko zwolnieni|"
            "Pracownicy>Zatrudnieni na umowę zlecenie|Pracownicy>Zatrudnieni na umowę o dzieło|"
            "Pracownicy>Otrzymujący honoraria|Pracownicy>Lista umów o pracę|Płace>Lista "
            "płac|Płace>Nadgodziny|"
            "Płace>Składniki płac|Zlecenia>Umowy zlecenia|Zlecenia>Umowy o dzieło|Zlecenia>Honoraria|"
            "Dni wolne>Dni wolne ogólne|Dni wolne>Dni wolne pracownika|Dni wolne>Transport do pracownika|"
            "Nieobecności>Urlopy|Nieobecności>Zwolnienia lekarskie|Adresy>Urzędy skarbowe|"
            "Adresy>Adresy działalności|Adresy>Konta bankowe|Analizy>Lista dokumentów ZUS DRA|"
            "Analizy>Wydruki ZUS|Analizy>Zbiorówka za miesiąc|Analizy>Zbiorówka za rok|Analizy>PIT-4|"
            "Analizy>PIT-8B|Analizy>PIT-11|Analizy>PIT-40|Konfiguracja>Stałe programu|"
            "Konfiguracja>Zmiana hasła|Konfiguracja>Wygląd|Konfiguracja>Utwórz archiwum "
            "danych|Konfiguracja>Przywróć z archiwum|"
            "Konfiguracja>Dziennik zmian|"
            "Konfiguracja>Administrator>Aktualizuj bazę danych|"
            "Konfiguracja>Administrator>Pobierz strukturę bazy|Konfiguracja>Lista użytkowników|Pomoc>Pomoc|"
            "Pomoc>O programie")
            .split(QLatin1Char('|'));
    EXPECT_EQ(wejscia, oczekiwane);
    for (const PozycjaMenu& p : menuGlowne())
        EXPECT_EQ(okno.akcja(p.wejscie)->isEnabled(),
                  p.wejscie == Wejscie::Koniec || p.wejscie == Wejscie::OProgramie)
            << p.napis.toString().toStdString();
}

TEST_F(PowlokaTest, PrawaZamykajaMenuIPasek) {
    sesja().uzytkownik = {u"Kadrowa"_s, {}, 1};
    stale().AktywneUmowyZlecenia = true;
    frmMain okno(otoczenie());
    zarejestrujWszystko(okno);
    for (const PozycjaMenu& p : menuGlowne())
        EXPECT_EQ(okno.akcja(p.wejscie)->isEnabled(), p.prawo == Prawo::Kadry || p.prawo == Prawo::Kazdy)
            << p.napis.toString().toStdString();
    for (const QAction* akcja : okno.menuBar()->actions())
        EXPECT_EQ(akcja->isEnabled(), dozwoloneMenu(bezLitery(akcja->text()), sesja().uzytkownik))
            << akcja->text().toStdString();
    EXPECT_TRUE(przyciskPaska(okno, u"Pracownicy"_s).isEnabled());
    for (const QString& zamkniety : {u"Płace"_s, u"Analizy"_s, u"Umowy zlecenia"_s, u"Stałe programu"_s})
        EXPECT_FALSE(przyciskPaska(okno, zamkniety).isEnabled()) << zamkniety.toStdString();

    // What a screen changed counts as soon as it is closed.
    okno.rejestruj(Wejscie::PracownicyWszyscy, [this] { sesja().uzytkownik.typ = 2; });
    przyciskPaska(okno, u"Pracownicy"_s).click();
    EXPECT_TRUE(przyciskPaska(okno, u"Umowy zlecenia"_s).isEnabled());
    EXPECT_FALSE(przyciskPaska(okno, u"Umowy o dzieło"_s).isEnabled()) << "constant 91 is off";
    EXPECT_FALSE(okno.akcja(Wejscie::PracownicyWszyscy)->isEnabled());
    przyciskPaska(okno, u"Umowy zlecenia"_s).click();
    EXPECT_EQ(otwarte, std::vector{Wejscie::UmowyZlecenia});
}

TEST_F(PowlokaTest, PrzyWczytaniuTytulStanIOstrzezenie) {
    stale().NazwaUzCz1 = u"Zakład <b>Dąb</b>"_s;
    stale().NazwaUzCz2 = u"spółka z o.o."_s;
    stale().Ulica = u"Leśna 12"_s;
    stale().KodiMiasto = u"33-300 Nowy Sącz"_s;
    sesja().rsKON.AddNew();
    sesja().rsKON.ustaw(schemat::KON("Num"), 998);
    sesja().rsKON.ustaw(schemat::KON("Wart"), u"Admin"_s);
    sesja().rsKON.UpdateBatch(u"Dane testu");
    frmMain okno(otoczenie());
    rozmowa_.spodziewaj(u"UWAGA !\r\nAdmin zostało usunięte hasło !"_s, Styl::Wykrzyknik);
    okno.wczytaj();
    QStringList tytul;
    for (int i = 1; i <= 4; ++i) tytul += okno.findChild<QLabel*>(u"labTitle%1"_s.arg(i))->text();
    EXPECT_EQ(tytul,
              (QStringList{stale().NazwaUzCz1, stale().NazwaUzCz2, stale().Ulica, stale().KodiMiasto}));
    okno.show();
    const auto szczegol = [&](KrokPracy krok) {
        return okno.findChild<QLabel*>(u"labZadanie(%1)"_s.arg(static_cast<int>(krok)));
    };
    EXPECT_TRUE(szczegol(KrokPracy::Pracownicy)->isVisible());
    EXPECT_EQ(szczegol(KrokPracy::Pracownicy)->text(), u"w kartotece nie ma nikogo"_s);
    dodajPracownika(1);
    okno.odswiezStan();
    EXPECT_EQ(szczegol(KrokPracy::Pracownicy)->text(), u"w kartotece: 1"_s);
}

TEST_F(PowlokaTest, StronaStartowaProwadziDoEkranowKlawiatura) {
    frmMain okno(otoczenie());
    zarejestrujWszystko(okno);
    okno.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    const auto odnosnik = [&](KrokPracy krok) {
        return okno.findChild<QPushButton*>(u"cmdZadanie(%1)"_s.arg(static_cast<int>(krok)));
    };
    auto* potwierdz = okno.findChild<QPushButton*>(u"cmdPotwierdzStawki"_s);
    // From the first link the Tab key goes down the list, the confirmation behind its own.
    odnosnik(KrokPracy::DaneFirmy)->setFocus(Qt::TabFocusReason);
    for (QPushButton* dalej : {odnosnik(KrokPracy::Stawki), potwierdz, odnosnik(KrokPracy::Kalendarz),
                               odnosnik(KrokPracy::Pracownicy)}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), dalej);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    odnosnik(KrokPracy::Skladki)->click();
    odnosnik(KrokPracy::Obliczenie)->click();
    EXPECT_EQ(otwarte, (std::vector{Wejscie::PracownicyWszyscy, Wejscie::ListaDRA, Wejscie::ListaPlac}));

    rozmowa_.spodziewaj(PytanieOStawki(stale(), 0), Odpowiedz::Nie);
    potwierdz->click();
    EXPECT_TRUE(potwierdz->isVisible());
    rozmowa_.spodziewaj(PytanieOStawki(stale(), 0), Odpowiedz::Tak);
    potwierdz->click();
    EXPECT_FALSE(potwierdz->isVisible());

    sesja().uzytkownik = {u"Kadrowa"_s, {}, 1};
    okno.UstawDostepnoscMenu();
    EXPECT_FALSE(odnosnik(KrokPracy::Obliczenie)->isEnabled()) << "no right to the payroll";
    EXPECT_TRUE(odnosnik(KrokPracy::Pracownicy)->isEnabled());
}

TEST_F(PowlokaTest, PytaniePrzedKoncem) {
    frmMain okno(otoczenie());
    okno.wczytaj();
    okno.show();
    stale().PytajArch = true;

    rozmowa_.spodziewaj(kPytanieOKoniec, Odpowiedz::Nie);
    okno.akcja(Wejscie::Koniec)->trigger();
    EXPECT_TRUE(okno.isVisible());

    rozmowa_.spodziewaj(kPytanieOKoniec,
                        Odpowiedz::Tak); // nothing makes an archive yet, so nobody asks for it
    EXPECT_TRUE(okno.close());

    zarejestrujWszystko(okno);
    okno.show();
    rozmowa_.spodziewaj(kPytanieOKoniec, Odpowiedz::Tak);
    rozmowa_.spodziewaj(kPytanieOArchiwum, Odpowiedz::Nie);
    EXPECT_TRUE(okno.close());
    EXPECT_TRUE(otwarte.empty());

    // The archive routine closes the window itself.
    okno.rejestruj(Wejscie::UtworzArchiwum, [&] { okno.zamknijBezPytania(); });
    okno.show();
    rozmowa_.spodziewaj(kPytanieOKoniec, Odpowiedz::Tak);
    rozmowa_.spodziewaj(kPytanieOArchiwum, Odpowiedz::Tak);
    okno.close();
    EXPECT_FALSE(okno.isVisible());

    frmMain drugie(otoczenie());
    drugie.show();
    drugie.zamknijBezPytania();
    EXPECT_FALSE(drugie.isVisible());
    stale().PytajArch = false;
    frmMain trzecie(otoczenie());
    zarejestrujWszystko(trzecie);
    rozmowa_.spodziewaj(kPytanieOKoniec, Odpowiedz::Tak);
    EXPECT_TRUE(trzecie.close());
}

TEST(LogowanieOknaTest, Klawiatura) {
    frmLogowanie okno;
    EXPECT_EQ(okno.windowTitle(), u"Logowanie"_s);
    auto* user = okno.findChild<QLineEdit*>(u"txtUser"_s);
    auto* pass = okno.findChild<QLineEdit*>(u"txtPass"_s);
    pass->setText(u"dawne"_s);
    okno.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    EXPECT_TRUE(user->hasFocus());
    QTest::keyClicks(user, u"Admin"_s);
    QTest::keyClick(user, Qt::Key_Return);
    EXPECT_TRUE(okno.isVisible()) << "Enter in the name only moves on";
    ASSERT_TRUE(pass->hasFocus());
    EXPECT_EQ(pass->selectedText().size(), 5) << "entering selects";
    QTest::keyClicks(pass, u" tajne "_s);
    QTest::keyClick(pass, Qt::Key_Enter);
    EXPECT_EQ(okno.result(), QDialog::Accepted);
    EXPECT_FALSE(okno.isVisible());
    EXPECT_EQ(okno.nazwa(), u"Admin"_s);
    EXPECT_EQ(okno.haslo(), u" tajne "_s) << "handed over as typed";

    for (const int sposob : {0, 1, 2}) {
        frmLogowanie inne;
        inne.setResult(QDialog::Accepted);
        inne.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&inne));
        if (sposob == 0) QTest::keyClick(&inne, Qt::Key_Escape);
        if (sposob == 1) inne.findChild<QPushButton*>(u"cmdAnuluj"_s)->click();
        if (sposob == 2) inne.close();
        EXPECT_EQ(inne.result(), QDialog::Rejected) << sposob;
    }
}

TEST(OProgramieOknaTest, WersjaZTrzechLiczb) {
    const frmAbout okno;
    const QString wersja = okno.findChild<QLabel*>(u"labWersja"_s)->text();
    EXPECT_TRUE(QRegularExpression(u"^wersja \\d+\\.\\d+\\.\\d+$"_s).match(wersja).hasMatch())
        << wersja.toStdString();
}

TEST(InputDataOknaTest, MiesiacIRokMajaGranice) {
    frmInputData okno(frmInputData::Tryb::Miesiac, u"Analiza danych do"_s, QDate(2001, 12, 5));
    auto* rok = okno.findChild<QSpinBox*>(u"spnRok"_s);
    auto* mies = okno.findChild<QComboBox*>(u"cboMies"_s);
    EXPECT_EQ(okno.data(), QDate(2001, 12, 1));
    okno.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    mies->setFocus();
    QTest::keyClick(mies, Qt::Key_Home);
    rok->setFocus();
    for (const auto& [wpisany, wynik] : {std::pair{u"2004"_s, 2004}, {u"1990"_s, 1990}, {u"2099"_s, 2099}}) {
        rok->selectAll();
        QTest::keyClicks(rok, wpisany);
        EXPECT_EQ(okno.rok(), wynik);
    }
    for (const QString& zly : {u"1989"_s, u"2100"_s, u"rok"_s}) {
        rok->setValue(2001);
        rok->selectAll();
        QTest::keyClicks(rok, zly);
        rok->interpretText();
        EXPECT_GE(okno.rok(), 1990) << zly.toStdString();
        EXPECT_LE(okno.rok(), 2099) << zly.toStdString();
    }
    rok->setValue(2001);
    QTest::keyClick(rok, Qt::Key_Return);
    EXPECT_EQ(okno.result(), QDialog::Accepted);
    EXPECT_EQ(okno.data(), QDate(2001, 1, 1));
}

TEST(InputDataOknaTest, DzienMusiIstniec) {
    frmInputData okno(frmInputData::Tryb::Data, u"Umowy zlecenia od:"_s, QDate(2001, 7, 1));
    auto* data = okno.findChild<QLineEdit*>(u"dtData"_s);
    okno.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    EXPECT_EQ(data->selectedText(), u"01-07-2001"_s);
    QTest::keyClicks(data, u"31022001"_s);
    QTest::keyClick(data, Qt::Key_Return);
    EXPECT_TRUE(okno.isVisible());
    EXPECT_EQ(data->text(), QString());
    QTest::keyClicks(data, u"28022001"_s);
    QTest::keyClick(data, Qt::Key_Return);
    EXPECT_FALSE(okno.isVisible());
    EXPECT_EQ(okno.data(), QDate(2001, 2, 28));
}

/// Runs `reakcja` on the modal window that the next box opens; a box that stays open fails and is closed.
template <typename Okno>
void gdyOtworzy(std::function<void(Okno&)> reakcja) {
    QTimer::singleShot(0, qApp, [reakcja = std::move(reakcja)] {
        const QPointer<QWidget> modalne = QApplication::activeModalWidget();
        auto* okno = qobject_cast<Okno*>(modalne.data());
        EXPECT_NE(okno, nullptr);
        EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "no hourglass while the clerk answers";
        if (okno && QTest::qWaitForWindowActive(okno)) reakcja(*okno);
        // A mnemonic shows its button pressed for a moment first.
        if (QTest::qWaitFor([&] { return !modalne || !modalne->isVisible(); }, 2000)) return;
        ADD_FAILURE() << "still open";
        modalne->close();
    });
}

TEST(RozmowaOkienTest, PytaniaIKomunikaty) {
    RozmowaOkien rozmowa;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    enum Rodzaj { Zwykle, Usuwajace, ZAnulowaniem };
    const QString tekst = u"Usunąć <Kowalski> ?\r\nTeraz ?"_s;
    const auto zapytaj = [&](Rodzaj rodzaj) -> std::optional<bool> {
        if (rodzaj == ZAnulowaniem) return rozmowa.pytanieZAnulowaniem(tekst);
        return rodzaj == Zwykle ? rozmowa.pytanie(tekst) : rozmowa.pytanieUsuwajace(tekst);
    };
    const struct {
        Rodzaj rodzaj;
        Qt::Key klawisz;
        std::optional<bool> wynik;
    } przypadki[] = {{Zwykle, Qt::Key_Return, true},
                     {Zwykle, Qt::Key_Escape, false},
                     {Zwykle, Qt::Key_T, true},
                     {Zwykle, Qt::Key_N, false},
                     {Usuwajace, Qt::Key_Return, false},
                     {Usuwajace, Qt::Key_Escape, false},
                     {Usuwajace, Qt::Key_T, true},
                     {ZAnulowaniem, Qt::Key_Escape, std::nullopt},
                     {ZAnulowaniem, Qt::Key_Return, true},
                     {ZAnulowaniem, Qt::Key_N, false},
                     {ZAnulowaniem, Qt::Key_A, std::nullopt}};
    for (const auto& p : przypadki) {
        gdyOtworzy<QMessageBox>([k = p.klawisz](QMessageBox& okno) {
            EXPECT_EQ(okno.text(), u"Usunąć <Kowalski> ?\nTeraz ?"_s);
            EXPECT_EQ(okno.textFormat(), Qt::PlainText);
            const bool mnemonik = k != Qt::Key_Return && k != Qt::Key_Escape;
            QTest::keyClick(&okno, k, mnemonik ? Qt::AltModifier : Qt::NoModifier);
        });
        EXPECT_EQ(zapytaj(p.rodzaj), p.wynik) << p.rodzaj << ' ' << p.klawisz;
    }
    ASSERT_NE(QApplication::overrideCursor(), nullptr) << "the hourglass comes back";
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QApplication::restoreOverrideCursor();

    const std::pair<Styl, QMessageBox::Icon> style[] = {{Styl::Informacja, QMessageBox::Information},
                                                        {Styl::Wykrzyknik, QMessageBox::Warning},
                                                        {Styl::Krytyczny, QMessageBox::Critical}};
    for (const auto& [styl, ikona] : style) {
        gdyOtworzy<QMessageBox>([i = ikona](QMessageBox& okno) {
            EXPECT_EQ(okno.icon(), i);
            EXPECT_EQ(okno.windowTitle(), u"Tytuł"_s);
            QTest::keyClick(&okno, Qt::Key_Escape);
        });
        rozmowa.komunikat(u"Tekst"_s, styl, u"Tytuł"_s);
    }
}

TEST(RozmowaOkienTest, PytaniaAkcjiWJednymOknie) {
    RozmowaOkien rozmowa;
    // The third depends on the second, the fourth on the third.
    const QList<PytanieAkcji> pytania{
        {u"Czy przepisać ?"_s}, {u"Czy liczyć <dni> ?"_s}, {u"Z soboty ?"_s, 1}, {u"Z każdej ?"_s, 2}};
    const struct {
        const char* klawisze; ///< as pressed: an answer goes on to the next question that is open
        std::optional<QList<bool>> wynik;
    } przypadki[] = {
        {"TTTT\r", QList<bool>{true, true, true, true}},
        {"NTTN\r", QList<bool>{false, true, true, false}},
        {"TTN\r", QList<bool>{true, true, false, false}},
        {"TN\r", QList<bool>{true, false, false, false}},
        {"TT\r\x1b", std::nullopt},
        {"TTTT\x1b", std::nullopt},
    };
    for (const auto& p : przypadki) {
        gdyOtworzy<frmPytania>([klawisze = p.klawisze](frmPytania& okno) {
            EXPECT_EQ(okno.windowTitle(), u"Przelicz wszystkich"_s);
            EXPECT_FALSE(okno.findChild<QPushButton*>(u"cmdDalej"_s)->isEnabled()) << "no answer in advance";
            for (const char* k = klawisze; *k; ++k) {
                QWidget* tu = QApplication::focusWidget();
                ASSERT_NE(tu, nullptr);
                const auto klawisz = *k == '\r'     ? Qt::Key_Return
                                     : *k == '\x1b' ? Qt::Key_Escape
                                                    : Qt::Key(*k);
                QTest::keyClick(tu, klawisz);
            }
        });
        EXPECT_EQ(rozmowa.pytania(u"Przelicz wszystkich"_s, pytania), p.wynik) << p.klawisze;
    }
    EXPECT_EQ(rozmowa.pytania(u"Nic"_s, {}), QList<bool>()) << "without questions no window";
}

TEST(RozmowaOkienTest, WprowadzonyTekstAlboNic) {
    RozmowaOkien rozmowa;
    const auto zapytaj = [&](Qt::Key klawisz, const QString& wpisany) {
        gdyOtworzy<QInputDialog>([=](QInputDialog& okno) {
            EXPECT_EQ(okno.textValue(), u"ARCH2001_07_31"_s);
            okno.setTextValue(wpisany);
            QTest::keyClick(&okno, klawisz);
        });
        return rozmowa.wprowadz(u"Podaj nazwę katalogu dla archiwum:"_s, u"Tworzenie archiwum"_s,
                                u"ARCH2001_07_31"_s);
    };
    EXPECT_EQ(zapytaj(Qt::Key_Return, u"Lipiec"_s), u"Lipiec"_s);
    EXPECT_EQ(zapytaj(Qt::Key_Return, QString()), std::optional(QString())) << "empty is an answer";
    EXPECT_EQ(zapytaj(Qt::Key_Escape, u"Lipiec"_s), std::nullopt);
}

TEST(RozmowaOkienTest, PostepPokazujeSieDopieroPrzyDlugiejPracy) {
    RozmowaOkien rozmowa;
    const auto okno = [] { return qobject_cast<QProgressDialog*>(QApplication::activeModalWidget()); };
    int klikniecia = 0;
    QPushButton obcy;
    QObject::connect(&obcy, &QPushButton::clicked, [&] { ++klikniecia; });
    QTimer::singleShot(0, &obcy, &QPushButton::click);

    const auto postep = rozmowa.postep(u"Wyliczanie"_s, 100'000);
    QElapsedTimer zegar;
    zegar.start();
    int krok = 0;
    while (!okno() && zegar.elapsed() < 5000) {
        ASSERT_TRUE(postep->krok(++krok, u"krok"_s));
        if (!okno()) {
            EXPECT_EQ(klikniecia, 0) << "before the window is there nothing else gets its turn";
        }
    }
    ASSERT_NE(okno(), nullptr);
    EXPECT_GE(zegar.elapsed(), 350);
    EXPECT_GT(krok, 10'000) << "a step costs next to nothing";
    okno()->findChild<QPushButton*>()->click();
    bool dalej = true;
    while (dalej && zegar.elapsed() < 5000) dalej = postep->krok(++krok, u"krok"_s);
    EXPECT_FALSE(dalej);
    EXPECT_FALSE(postep->krok(++krok, u"krok"_s)) << "stopped stays stopped";
}

} // namespace

} // namespace tornel::testy
