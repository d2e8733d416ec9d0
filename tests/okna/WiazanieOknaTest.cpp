#include "okna/UwagaPola.h"
#include "okna/Wiazanie.h"
#include "store/Sesja.h"
#include "store/Struktura.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

using schemat::PRACDP;
using schemat::PRACINF;
using schemat::PRACPR;

/// Types as a keyboard does, one character after the other, whatever script it is of.
void wpisz(QWidget& pole, const QString& tekst) {
    for (const char32_t znak : tekst.toUcs4()) {
        const QString jeden = QString::fromUcs4(&znak, 1);
        QKeyEvent zdarzenie(QEvent::KeyPress, 0, Qt::NoModifier, jeden);
        QApplication::sendEvent(&pole, &zdarzenie);
    }
}

class WiazanieTest : public testing::Test {
protected:
    void SetUp() override {
        UtworzBaze(plik);
        sesja = std::make_unique<Sesja>(plik);
        for (Recordset* rs : {&sesja->rsPRACDP, &sesja->rsPRACPR, &sesja->rsPRACINF}) {
            rs->AddNew();
            rs->ustaw(rs->tabela().nr(0), 7);
        }
        sesja->rsPRACPR.ustaw(PRACPR("placa_zas"), Waluta::zSurowej(16501234)); // 1650,1234
        zrodlo = std::make_unique<ZrodloWierszy>(
            std::initializer_list<Recordset*>{&sesja->rsPRACDP, &sesja->rsPRACPR, &sesja->rsPRACINF});
        wiazanie = std::make_unique<Wiazanie>(*zrodlo);
        auto* uklad = new QVBoxLayout(&okno);
        uklad->addWidget(wiazanie->grupa(u"Dane"_s, pola(), 2));
        przycisk = new QPushButton(u"&OK"_s);
        uklad->addWidget(przycisk);
        wiazanie->wczytaj();
        QObject::connect(wiazanie.get(), &Wiazanie::opuszczone, &okno,
                         [this](const QString& nazwa) { opuszczone += nazwa; });
        okno.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    }

    static QList<Pole> pola() {
        const auto pole = [](const QString& nazwa, const QString& podpis, Kolumna kolumna, Rodzaj rodzaj,
                             const QList<Pozycja>& pozycje = {}) {
            Pole p{nazwa, podpis, kolumna, rodzaj};
            p.pozycje = pozycje;
            return p;
        };
        Pole numer = pole(u"txtNumer"_s, u"Numer pracownika:"_s, PRACDP("prc_id"), Rodzaj::Liczba);
        numer.dostep = Dostep::Odczyt;
        return {
            numer,
            pole(u"txtNaz"_s, u"&Nazwisko:"_s, PRACDP("Naz"), Rodzaj::Tekst),
            pole(u"txtSeria"_s, u"Dowód osobisty:"_s, PRACDP("dowod_ser"), Rodzaj::Tekst),
            pole(u"txtNrDowodu"_s, u""_s, PRACDP("dowod_nr"), Rodzaj::Tekst),
            pole(u"txtPlaca"_s, u"Płaca:"_s, PRACPR("placa_zas"), Rodzaj::Kwota),
            pole(u"txtDzieci"_s, u"Ilość dzieci:"_s, PRACDP("il_dzieci"), Rodzaj::Liczba),
            pole(u"dtUr"_s, u"Data urodzenia:"_s, PRACDP("data_ur"), Rodzaj::Data),
            pole(u"chkZwoln"_s, u"Zwolniony"_s, PRACPR("Zwoln"), Rodzaj::Flaga),
            pole(u"cboPlec"_s, u"Płeć:"_s, PRACDP("plec"), Rodzaj::Wybor,
                 {{u"M"_s, u"mężczyzna"_s}, {u"K"_s, u"kobieta"_s}}),
            pole(u"cboGrupa"_s, u"Grupa:"_s, PRACPR("gr_pod"), Rodzaj::Wybor,
                 {{qint64{0}, u"Wyliczaj automatycznie"_s}, {qint64{2}, u"Grupa II"_s}}),
            pole(u"txtInfo"_s, u"Notatka:"_s, PRACINF("inf_opis"), Rodzaj::Notatka),
        };
    }

    template <typename K = QLineEdit>
    K& kontrolka(const QString& nazwa) {
        return *okno.findChild<K*>(nazwa);
    }
    Wartosc stored(const QString& nazwa) {
        for (const Pole& p : pola())
            if (p.nazwa == nazwa) return zrodlo->czytaj(p);
        return {};
    }
    void wpiszDo(const QString& nazwa, const QString& tekst) {
        auto& pole = kontrolka<QWidget>(nazwa);
        pole.setFocus(Qt::TabFocusReason);
        if (auto* notatka = qobject_cast<QPlainTextEdit*>(&pole)) notatka->selectAll();
        wpisz(pole, tekst);
    }
    void opusc() { przycisk->setFocus(Qt::TabFocusReason); }

    QTemporaryDir folder;
    QString plik = folder.filePath(u"Tornel.mdb"_s);
    std::unique_ptr<Sesja> sesja;
    std::unique_ptr<ZrodloWierszy> zrodlo;
    std::unique_ptr<Wiazanie> wiazanie;
    QDialog okno;
    QPushButton* przycisk = nullptr;
    QStringList opuszczone;
};

TEST_F(WiazanieTest, KazdyRodzajPorzadkujeIZapisuje) {
    const auto zl = [](qint64 grosze) { return Waluta::zSurowej(grosze * 100); };
    const QString dlugi(200, QLatin1Char('9'));
    const QString emoji = QString::fromUtf8("\xF0\x9F\x98\x80");
    const int nazwisko = PRACDP("Naz").def().rozmiar;
    const QString doPary = QString(nazwisko - 1, QLatin1Char('a'));
    struct Przypadek {
        QString nazwa;
        QString wpisany, pokazany;
        Wartosc zapisany;
    };
    const Przypadek przypadki[] = {
        {u"txtPlaca"_s, u"1500"_s, u"1500,00"_s, zl(150000)},
        {u"txtPlaca"_s, u"12.5"_s, u"12,50"_s, zl(1250)},
        {u"txtPlaca"_s, u"9,765"_s, u"9,77"_s, zl(977)},
        {u"txtPlaca"_s, u" 7 "_s, u"7,00"_s, zl(700)},
        {u"txtPlaca"_s, u"-3,5"_s, u"-3,50"_s, zl(-350)},
        {u"txtPlaca"_s, u"abc"_s, u"0,00"_s, zl(0)},
        {u"txtPlaca"_s, u"1,2,3"_s, u"0,00"_s, zl(0)},
        {u"txtPlaca"_s, u"1 234,00 zł"_s, u"1234,00"_s, zl(123400)},
        {u"txtPlaca"_s, u"1.234"_s, u"0,00"_s, zl(0)},
        {u"txtPlaca"_s, u"1e300"_s, u"0,00"_s, zl(0)},
        {u"txtPlaca"_s, u"-0"_s, u"0,00"_s, zl(0)},
        {u"txtPlaca"_s, dlugi, u"0,00"_s, zl(0)},
        {u"txtPlaca"_s, u"922337203685477,579"_s, u"922337203685477,58"_s,
         Waluta::zSurowej(9223372036854775800)},
        {u"txtPlaca"_s, emoji, u"0,00"_s, zl(0)},
        {u"txtPlaca"_s, u"';--"_s, u"0,00"_s, zl(0)},
        {u"txtDzieci"_s, u"3"_s, u"3"_s, qint64{3}},
        {u"txtDzieci"_s, u"2,7"_s, u"3"_s, qint64{3}},
        {u"txtDzieci"_s, u"99999"_s, u"99999"_s, qint64{99999}}, // SHORT goes beyond 16 bits
        {u"txtDzieci"_s, u"-2147483648"_s, u"-2147483648"_s, qint64{-2147483648}},
        {u"txtDzieci"_s, u"2147483648"_s, u"0"_s, qint64{0}},
        {u"txtDzieci"_s, u"-0"_s, u"0"_s, qint64{0}},
        {u"txtDzieci"_s, u"1e3"_s, u"0"_s, qint64{0}},
        {u"txtDzieci"_s, u"1 200"_s, u"1200"_s, qint64{1200}},
        {u"txtDzieci"_s, dlugi, u"0"_s, qint64{0}},
        {u"dtUr"_s, u"01072001"_s, u"01-07-2001"_s, QDate(2001, 7, 1)},
        {u"dtUr"_s, u"1/7/2001"_s, u"01-07-2001"_s, QDate(2001, 7, 1)},
        {u"dtUr"_s, u"29.02.2000"_s, u"29-02-2000"_s, QDate(2000, 2, 29)},
        {u"dtUr"_s, u"2001-07-01"_s, u"01-07-2001"_s, QDate(2001, 7, 1)},
        {u"dtUr"_s, u"20-07-2001"_s, u"20-07-2001"_s, QDate(2001, 7, 20)},
        {u"dtUr"_s, u"19072001"_s, u"19-07-2001"_s, QDate(2001, 7, 19)},
        {u"dtUr"_s, u"21/7/2001"_s, u"21-07-2001"_s, QDate(2001, 7, 21)},
        {u"dtUr"_s, u"01-07-1850"_s, QString(), Null},
        {u"dtUr"_s, u"31-02-2001"_s, QString(), Null},
        {u"dtUr"_s, u"1-7-01"_s, QString(), Null},
        {u"dtUr"_s, u"ala ma"_s + emoji, QString(), Null},
        {u"dtUr"_s, dlugi, QString(), Null},
        {u"txtNaz"_s, u"O'Hara; DROP"_s, u"O'Hara; DROP"_s, u"O'Hara; DROP"_s},
        {u"txtNaz"_s, u"  Żółć"_s, u"  Żółć"_s, u"  Żółć"_s},
        {u"txtNaz"_s, dlugi, dlugi.left(nazwisko), dlugi.left(nazwisko)},
        {u"txtNaz"_s, doPary + emoji, doPary, doPary}, // half a character is none
        {u"txtInfo"_s, u"a;b'"_s + emoji, u"a;b'"_s + emoji, u"a;b'"_s + emoji},
    };
    for (const Przypadek& p : przypadki) {
        // From another text each time, so that every case is a change.
        wiazanie->ustawTekst(p.nazwa, u"8"_s);
        wpiszDo(p.nazwa, p.wpisany);
        opusc();
        EXPECT_EQ(wiazanie->tekst(p.nazwa), p.pokazany) << p.wpisany.toStdString();
        wiazanie->zbierz();
        EXPECT_EQ(stored(p.nazwa), p.zapisany) << p.wpisany.toStdString();
    }
}

TEST_F(WiazanieTest, FlagaIWyborZapisujaSwojeWartosci) {
    EXPECT_FALSE(wiazanie->jestZmiana());
    kontrolka<QCheckBox>(u"chkZwoln"_s).click();
    EXPECT_TRUE(wiazanie->jestZmiana());
    auto& plec = kontrolka<QComboBox>(u"cboPlec"_s);
    plec.setFocus();
    QTest::keyClick(&plec, Qt::Key_End);
    QTest::keyClick(&kontrolka<QComboBox>(u"cboGrupa"_s), Qt::Key_End);
    EXPECT_EQ(opuszczone, (QStringList{u"chkZwoln"_s, u"cboPlec"_s, u"cboGrupa"_s}));
    wiazanie->zbierz();
    EXPECT_FALSE(wiazanie->jestZmiana());
    EXPECT_EQ(stored(u"chkZwoln"_s), Wartosc(u"T"_s));
    EXPECT_EQ(stored(u"cboPlec"_s), Wartosc(u"K"_s));
    EXPECT_EQ(stored(u"cboGrupa"_s), Wartosc(qint64{2}));
    kontrolka<QCheckBox>(u"chkZwoln"_s).click();
    wiazanie->zbierz();
    EXPECT_EQ(stored(u"chkZwoln"_s), Wartosc(u"N"_s));
}

TEST_F(WiazanieTest, CzegoNieZmienionoTegoNieZapisuje) {
    sesja->rsPRACDP.ustaw(PRACDP("plec"), u"?"_s); // no choice of the list
    wiazanie->wczytaj();
    EXPECT_EQ(wiazanie->tekst(u"txtPlaca"_s), u"1650,12"_s);
    for (const Pole& p : pola()) kontrolka<QWidget>(p.nazwa).setFocus();
    wpiszDo(u"txtPlaca"_s, u"1650.12"_s);
    opusc();
    wiazanie->zbierz();
    EXPECT_TRUE(opuszczone.isEmpty()) << opuszczone.join(u' ').toStdString();
    EXPECT_EQ(stored(u"txtPlaca"_s), Wartosc(Waluta::zSurowej(16501234)))
        << "the third and fourth decimals stay";
    EXPECT_EQ(stored(u"cboPlec"_s), Wartosc(u"?"_s));
    for (const QString& nazwa :
         {u"txtNaz"_s, u"txtDzieci"_s, u"dtUr"_s, u"chkZwoln"_s, u"cboGrupa"_s, u"txtInfo"_s})
        EXPECT_EQ(stored(nazwa), Wartosc(Null)) << nazwa.toStdString();

    QWheelEvent kolko({2, 2}, {2, 2}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&kontrolka<QComboBox>(u"cboGrupa"_s), &kolko);
    EXPECT_FALSE(wiazanie->jestZmiana()) << "scrolling past a choice does not change it";
}

TEST_F(WiazanieTest, OpuszczenieZmienionegoPolaMowiSieRaz) {
    // A recalculation as screens do it: store, compute, show.
    QObject::connect(wiazanie.get(), &Wiazanie::opuszczone, &okno, [this](const QString&) {
        wiazanie->zbierz();
        sesja->rsPRACDP.ustaw(PRACDP("il_dzieci"), 5);
        wiazanie->wczytaj();
    });
    wpiszDo(u"txtPlaca"_s, u"100"_s);
    EXPECT_TRUE(opuszczone.isEmpty());
    QTest::keyClick(&kontrolka(u"txtPlaca"_s), Qt::Key_Return);
    EXPECT_EQ(opuszczone, QStringList{u"txtPlaca"_s});
    EXPECT_EQ(kontrolka(u"txtPlaca"_s).selectedText(), u"100,00"_s);
    opusc();
    EXPECT_EQ(opuszczone.size(), 1);
    EXPECT_EQ(wiazanie->tekst(u"txtDzieci"_s), u"5"_s);

    // A mnemonic acts while the focus stays; what it starts collects first.
    wpiszDo(u"txtPlaca"_s, u"200"_s);
    wiazanie->zbierz();
    EXPECT_EQ(opuszczone.size(), 2);
    EXPECT_EQ(stored(u"txtPlaca"_s), Wartosc(Waluta::zlotych(200)));

    // Closing the window is no leaving: Escape means what it says.
    wpiszDo(u"txtPlaca"_s, u"300"_s);
    QTest::keyClick(&okno, Qt::Key_Escape);
    EXPECT_FALSE(okno.isVisible());
    EXPECT_EQ(opuszczone.size(), 2);
}

TEST_F(WiazanieTest, CzegoPoleNieZrozumialoMowiObokAzDoDobrejWartosci) {
    // As the payroll list does it: a left field is stored at once, and the row shown anew.
    QObject::connect(wiazanie.get(), &Wiazanie::opuszczone, &okno, [this](const QString&) {
        wiazanie->zbierz();
        wiazanie->wczytaj();
    });
    auto& placa = kontrolka(u"txtPlaca"_s);
    const QRect dzieci = kontrolka(u"txtDzieci"_s).geometry();
    wpiszDo(u"txtPlaca"_s, u"1.500"_s);
    EXPECT_FALSE(wiazanie->wlasnieNieZrozumiano());
    kontrolka(u"txtDzieci"_s).setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(wiazanie->wlasnieNieZrozumiano());
    QCoreApplication::processEvents();
    EXPECT_FALSE(wiazanie->wlasnieNieZrozumiano()) << "only in the act that left the field";
    const QString zdanie =
        u"„1.500” może znaczyć tysiące albo ułamek. Przyjęto 0,00. Ctrl+Z przywraca 1650,12."_s;
    EXPECT_EQ(UwagaPola::zdanie(placa), zdanie);
    EXPECT_EQ(placa.accessibleDescription(), zdanie);
    EXPECT_EQ(stored(u"txtPlaca"_s), Wartosc(Waluta{}));
    EXPECT_EQ(kontrolka(u"txtDzieci"_s).geometry(), dzieci) << "nothing moves";
    const auto* uwaga = okno.findChild<UwagaPola*>();
    ASSERT_TRUE(uwaga && uwaga->isVisible());
    const QWidget* wPracy = QApplication::focusWidget();
    EXPECT_FALSE(uwaga->geometry().intersects(QRect(wPracy->mapTo(&okno, QPoint()), wPracy->size())));

    placa.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&placa, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(placa.text(), u"1650,12"_s);
    EXPECT_EQ(UwagaPola::zdanie(placa), QString());
    opusc();
    EXPECT_EQ(stored(u"txtPlaca"_s), Wartosc(Waluta::zSurowej(16501200)))
        << "what undo brings back is stored too";

    const struct {
        QString pole, wpisany, zdanie;
    } przypadki[] = {
        {u"txtPlaca"_s, u"abc"_s, u"„abc” nie jest kwotą. Przyjęto 0,00. Ctrl+Z przywraca 1650,12."_s},
        {u"txtPlaca"_s, u"7"_s, {}},
        {u"txtDzieci"_s, u"dwoje"_s, u"„dwoje” nie jest liczbą. Przyjęto 0."_s},
        {u"txtDzieci"_s, u"99999999999"_s, u"„99999999999” nie mieści się w polu. Przyjęto 0."_s},
        {u"txtDzieci"_s, u" "_s, {}},
        {u"dtUr"_s, u"31-02-2001"_s, u"„31-02-2001” nie jest datą. Pole jest puste."_s},
        {u"dtUr"_s, u"28-02-2001"_s, {}},
        {u"dtUr"_s, u"28-02-201"_s,
         u"„28-02-201” nie jest datą. Pole jest puste. Ctrl+Z przywraca 28-02-2001."_s},
    };
    for (const auto& p : przypadki) {
        wpiszDo(p.pole, p.wpisany);
        opusc();
        EXPECT_EQ(UwagaPola::zdanie(kontrolka(p.pole)), p.zdanie) << p.wpisany.toStdString();
    }
    wiazanie->odswiez();
    EXPECT_FALSE(UwagaPola::zdanie(kontrolka(u"dtUr"_s)).isEmpty()) << "the same row, computed anew";
    wiazanie->wczytaj();
    EXPECT_TRUE(UwagaPola::zdanie(kontrolka(u"dtUr"_s)).isEmpty()) << "another row";
    auto& data = kontrolka(u"dtUr"_s);
    data.setFocus();
    QTest::keyClick(&data, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(data.text(), QString()) << "undo does not reach into the row before";
}

TEST_F(WiazanieTest, WlasneSprawdzenieBiegniePrzyKazdymOpuszczeniu) {
    QStringList sprawdzone;
    wiazanie->sprawdzaj(u"txtDzieci"_s,
                        [&](const QString& tekst, const QString& przyWejsciu) -> Wiazanie::Sprawdzony {
                            sprawdzone += tekst;
                            if (tekst.toInt() <= 10) return tekst;
                            return {przyWejsciu, u"za dużo"_s};
                        });
    wpiszDo(u"txtDzieci"_s, u"4"_s);
    opusc();
    wpiszDo(u"txtDzieci"_s, u"44"_s);
    QTest::keyClick(&kontrolka(u"txtDzieci"_s), Qt::Key_Return);
    opusc();
    EXPECT_EQ(wiazanie->tekst(u"txtDzieci"_s), u"4"_s);
    EXPECT_EQ(opuszczone.size(), 1) << "put back is not changed";
    EXPECT_EQ(UwagaPola::zdanie(kontrolka(u"txtDzieci"_s)), u"za dużo"_s);
    EXPECT_EQ(sprawdzone, (QStringList{u"4"_s, u"44"_s})) << "Enter and the way out are one leaving";

    // What an import left is checked though nobody typed, and an odd date that nobody touched stays.
    sesja->rsPRACDP.ustaw(PRACDP("il_dzieci"), 99);
    sesja->rsPRACDP.ustaw(PRACDP("data_ur"), QDate(1850, 1, 1));
    wiazanie->wczytaj();
    for (const QString& nazwa : {u"txtDzieci"_s, u"dtUr"_s}) kontrolka(nazwa).setFocus(Qt::TabFocusReason);
    opusc();
    EXPECT_EQ(sprawdzone.last(), u"99"_s);
    EXPECT_EQ(wiazanie->tekst(u"dtUr"_s), u"01-01-1850"_s);
    EXPECT_FALSE(wiazanie->jestZmiana());
}

TEST_F(WiazanieTest, KlawiaturaBlokadaINazwy) {
    EXPECT_EQ(kontrolka(u"txtNaz"_s).accessibleName(), u"Nazwisko"_s);
    EXPECT_EQ(kontrolka(u"txtNrDowodu"_s).accessibleName(), u"Dowód osobisty"_s);
    kontrolka(u"txtSeria"_s).setText(u"ABC"_s);
    kontrolka(u"txtNaz"_s).setFocus();
    QStringList kolejnosc;
    for (int i = 0; i < 9; ++i) {
        kolejnosc += QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (i == 0) {
            EXPECT_EQ(kontrolka(u"txtSeria"_s).selectedText(), u"ABC"_s);
        }
    }
    EXPECT_EQ(kolejnosc.join(u' '),
              QStringLiteral("txtNaz txtSeria txtNrDowodu txtPlaca txtDzieci dtUr chkZwoln "
                             "cboPlec cboGrupa"))
        << "the computed number is passed over";
    wiazanie->blokuj(true);
    EXPECT_FALSE(kontrolka(u"txtNaz"_s).isEnabled());
    EXPECT_TRUE(kontrolka(u"txtNumer"_s).isEnabled()) << "computed fields stay to be read and copied";
    wiazanie->blokuj(false);
    wiazanie->pokaz({{u"txtSeria"_s, false}});
    EXPECT_FALSE(kontrolka(u"txtNrDowodu"_s).isVisible()) << "goes with the caption it shares";
    EXPECT_THROW((void)wiazanie->tekst(u"brak"_s), std::out_of_range);
}

} // namespace

} // namespace tornel::testy
