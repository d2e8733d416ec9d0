// Every screen that the main window opens, on the example firm.
#include "app/frmLogNowy.h"
#include "app/frmLogowanie.h"
#include "app/frmMain.h"
#include "app/frmMainEkrany.h"
#include "app/ListaUzytkownikow.h"
#include "bank/frmMCS.h"
#include "bank/frmWybKonta.h"
#include "okna/frmInputData.h"
#include "okna/MenuListy.h"
#include "okna/WidokListy.h"
#include "payroll/lista/frmPlaceLista.h"
#include "payroll/miesiace/frmPlace.h"
#include "payroll/nieobecnosci/frmWykazy.h"
#include "personnel/frmData.h"
#include "personnel/frmFind.h"
#include "personnel/frmNowyPrc.h"
#include "personnel/frmPrac.h"
#include "personnel/frmWybPr.h"
#include "personnel/Urlopy.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "wsparcie/EkranyTestowe.h"
#include "wsparcie/Litery.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaSkrypt.h"
#include "wsparcie/RozmowaZgoda.h"
#include "wsparcie/WejsciaBezEkranu.h"
#include "wsparcie/Widzet.h"
#include <functional>
#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <set>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

void sprawdzMnemoniki(const QWidget& ekran) {
    std::map<QString, QString> czyje;
    const auto sprawdz = [&](const QString& tekst, const QWidget& widzet) {
        const QString mnemonik = QKeySequence::mnemonic(tekst).toString();
        if (mnemonik.isEmpty() || !widzet.isVisible() || !widzet.isEnabled()) return;
        const auto [inny, nowy] = czyje.emplace(mnemonik, tekst);
        EXPECT_TRUE(nowy) << mnemonik.toStdString() << ": " << tekst.toStdString() << " and "
                          << inny->second.toStdString();
    };
    for (const auto* p : ekran.findChildren<QAbstractButton*>()) sprawdz(p->text(), *p);
    for (const auto* napis : ekran.findChildren<QLabel*>())
        if (napis->buddy()) sprawdz(napis->text(), *napis);
    for (const auto* p : ekran.findChildren<QPushButton*>()) {
        const bool czynnosc = p->isVisible() && p->text().size() > 1 && p->text()[0].isLetter();
        EXPECT_TRUE(!czynnosc || !mnemonik(p->text()).isEmpty())
            << p->text().toStdString() << " has no letter";
        if (p->menu()) sprawdzLiteryMenu(p->menu()->actions());
    }
    for (auto* lista : ekran.findChildren<WidokListy*>())
        if (lista->isVisible()) sprawdzLiteryMenu(MenuListy(*lista).actions());
}

void sprawdzNazwyDostepne(QWidget& ekran) {
    const auto podpisy = ekran.findChildren<QLabel*>();
    for (const QWidget* pole : pola(ekran)) {
        const auto* flaga = qobject_cast<const QCheckBox*>(pole);
        const bool podpisane = std::ranges::any_of(
            podpisy, [&](const QLabel* l) { return l->buddy() == pole && !l->text().isEmpty(); });
        EXPECT_TRUE(podpisane || !pole->accessibleName().isEmpty() || (flaga && !flaga->text().isEmpty()))
            << nazwa(*pole).toStdString() << " has no name";
    }
}

/// The frame in which a field stands, or its screen.
const QWidget* ramka(const QWidget& pole) {
    const QWidget* w = pole.parentWidget();
    while (!w->isWindow() && !qobject_cast<const QGroupBox*>(w)) w = w->parentWidget();
    return w;
}

/// The Tab key goes down each column of fields, and never back up but into a column further right.
void sprawdzKolejnosc(QWidget& ekran) {
    const QList<QWidget*> wszystkie = pola(ekran);
    const auto miejsce = [&](const QWidget* w) { return QRect(w->mapTo(&ekran, QPoint()), w->size()); };
    std::map<const QWidget*, std::map<int, std::pair<int, QString>>> najnizej;
    const QWidget* poprzednie = nullptr;
    std::set<const QWidget*> opuszczone;
    for (const QWidget* pole : wszystkie) {
        const QWidget* grupa = ramka(*pole);
        const QRect tu = miejsce(pole);
        auto& wKolumnie = najnizej[grupa];
        const auto ta = wKolumnie.find(tu.left());
        if (ta != wKolumnie.end())
            EXPECT_GT(tu.top(), ta->second.first)
                << nazwa(*pole).toStdString() << " comes after " << ta->second.second.toStdString();
        wKolumnie[tu.left()] = {tu.top(), nazwa(*pole)};
        if (poprzednie && ramka(*poprzednie) == grupa) {
            const QRect tam = miejsce(poprzednie);
            EXPECT_TRUE(tu.top() > tam.center().y() || tu.left() > tam.left())
                << nazwa(*poprzednie).toStdString() << " -> " << nazwa(*pole).toStdString();
        } else if (poprzednie && grupa != &ekran) {
            if (ramka(*poprzednie) != &ekran) opuszczone.insert(ramka(*poprzednie));
            EXPECT_FALSE(opuszczone.contains(grupa)) << "back to the frame of " << nazwa(*pole).toStdString();
        }
        poprzednie = pole;
    }
}

TEST_F(EkranyTest, KazdyOtwieraSieZMenuIZamykaEscapeBezZmianWBazie) {
    otworzOkno();
    const auto przedtem = calaBaza();
    wKazdymOknie([](QWidget& ekran) {
        SCOPED_TRACE(nazwa(ekran).toStdString());
        EXPECT_FALSE(ekran.windowTitle().isEmpty());
        EXPECT_TRUE(QRect(0, 0, 1280, 800).contains(QRect(QPoint(), ekran.size())));
        naKazdejZakladce(ekran, [&](const QString& zakladka) {
            const auto widoczne = ekran.findChildren<QWidget*>();
            EXPECT_TRUE(std::ranges::any_of(
                widoczne,
                [](const QWidget* w) {
                    const auto* lista = qobject_cast<const QAbstractItemView*>(w);
                    const auto* napis = qobject_cast<const QLabel*>(w);
                    return w->isVisible() && (qobject_cast<const QLineEdit*>(w) ||
                                              (lista && lista->model() && lista->model()->rowCount() > 0) ||
                                              (napis && !napis->text().isEmpty()));
                }))
                << zakladka.toStdString() << " is empty";
        });
    });
    int otwartych = 0;
    for (const PozycjaMenu& p : menuGlowne()) {
        if (bezEkranu(p.wejscie) || !okno_->akcja(p.wejscie)->isEnabled()) continue;
        SCOPED_TRACE(p.napis.toString().toStdString());
        otwarte_.clear();
        okno_->akcja(p.wejscie)->trigger();
        EXPECT_FALSE(otwarte_.isEmpty()) << "nothing opens";
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        EXPECT_EQ(rozmowa_.pytania, QStringList()) << "nothing was changed, so nothing is asked";
        EXPECT_EQ(calaBaza(), przedtem);
        ++otwartych;
    }
    EXPECT_GE(otwartych, 15);
}

TEST_F(EkranyTest, KlawiaturaNaKazdymEkranie) {
    otworzOkno();
    wKazdymOknie([](QWidget& ekran) {
        naKazdejZakladce(ekran, [&](const QString& zakladka) {
            SCOPED_TRACE(nazwa(ekran).toStdString() + " / " + zakladka.toStdString());
            QCoreApplication::processEvents();
            sprawdzMnemoniki(ekran);
            sprawdzNazwyDostepne(ekran);
            sprawdzKolejnosc(ekran);
        });
    });
    for (const PozycjaMenu& p : menuGlowne())
        if (!bezEkranu(p.wejscie) && okno_->akcja(p.wejscie)->isEnabled()) okno_->akcja(p.wejscie)->trigger();
    // Screens that other screens open.
    Otoczenie& o = otoczenie();
    ListaUzytkownikow uzytkownicy(o);
    frmLogowanie().exec();
    frmPlaceLista(o, {2001, 3}, u" "_s).exec();
    frmWybPr(o, 1).exec();
    frmNowyPrc(o).exec();
    frmFind([](const QString&) { return false; }).exec();
    frmLogNowy(uzytkownicy).exec();
    frmInputData(frmInputData::Tryb::Miesiac, u"Miesiąc"_s, QDate(2001, 4, 1)).exec();
    frmInputData(frmInputData::Tryb::Data, u"Dzień"_s, QDate(2001, 4, 1)).exec();
    frmData(u"1"_s, RodzajeUrlopu()).exec();
    frmWybKonta(o, nullptr, PytanieOPrzelewy{u"1"_s, u"wydrukowano"_s, true}).exec();
    {
        const OtwartyMiesiac miesiac(o.sesja, {2001, 3});
        frmMCS(o, {}).exec();
    }
    frmWykazPodstawL4({}, {}).exec();
    frmWykazPodstaw({}, 0, {}).exec();
    frmNrSkladnikaURL({}, 0).exec();
    EXPECT_GE(otwarte_.size(), 35) << otwarte_.join(u' ').toStdString();
}

/// Texts that do not fit into their controls, and controls that stand outside their window.
void sprawdzMiejsce(const QWidget& ekran, bool napisyPol) {
    const auto calyWEkranie = [&](const QWidget& w) {
        const QRect tu(w.mapTo(&ekran, QPoint()), w.size());
        return ekran.rect().contains(tu);
    };
    for (const auto* p : ekran.findChildren<QPushButton*>()) {
        if (!p->isVisible()) continue;
        EXPECT_GE(p->width(), p->sizeHint().width()) << "cut: " << p->text().toStdString();
        bool przewijany = false;
        for (const QWidget* w = p->parentWidget(); w; w = w->parentWidget())
            przewijany = przewijany || w->inherits("QScrollArea");
        EXPECT_TRUE(przewijany || calyWEkranie(*p)) << "outside: " << p->text().toStdString();
    }
    for (const auto* l : ekran.findChildren<QLabel*>()) {
        if (!napisyPol || !l->isVisible() || l->text().isEmpty() || l->wordWrap() ||
            l->textFormat() == Qt::RichText)
            continue;
        EXPECT_GE(l->width() + 1, l->minimumSizeHint().width()) << "cut: " << l->text().toStdString();
    }
    for (const auto* f : ekran.findChildren<QCheckBox*>())
        if (f->isVisible())
            EXPECT_GE(f->width() + 1, f->sizeHint().width()) << "cut: " << f->text().toStdString();
}

TEST_F(EkranyTest, KazdyMiesciSieNaMalymEkranieIPrzyDuzymPismie) {
    const QFont dawne = QApplication::font();
    const struct {
        int punkty;
        QSize ekran;
    } warunki[] = {{10, {1280, 720}}, {16, {1920, 1080}}};
    for (const auto& w : warunki) {
        QFont pismo = dawne;
        pismo.setPointSize(w.punkty);
        QApplication::setFont(pismo);
        otworzOkno();
        const QSize ramka(8, 40); // of the window manager
        straznik_.disconnect();
        wKazdymOknie([&](QWidget& ekran) {
            naKazdejZakladce(ekran, [&](const QString& zakladka) {
                SCOPED_TRACE(std::to_string(w.punkty) + " " + nazwa(ekran).toStdString() + " / " +
                             zakladka.toStdString());
                QCoreApplication::processEvents();
                EXPECT_LE(ekran.width(), w.ekran.width() - ramka.width());
                EXPECT_LE(ekran.height(), w.ekran.height() - ramka.height());
                // In a large font the names of components are cut beside their fields; their tips have them.
                sprawdzMiejsce(ekran, w.punkty == 10);
            });
        });
        for (const PozycjaMenu& p : menuGlowne())
            if (!bezEkranu(p.wejscie) && okno_->akcja(p.wejscie)->isEnabled())
                okno_->akcja(p.wejscie)->trigger();
        frmPlaceLista(otoczenie(), {2001, 3}, u" "_s).exec();
        frmWybPr(otoczenie(), 1).exec();
        EXPECT_GE(otwarte_.size(), 15);
        okno_.reset();
    }
    QApplication::setFont(dawne);
}

void klik(const QWidget& ekran, const QString& przycisk) {
    QTest::mouseClick(&widzet(ekran, przycisk), Qt::LeftButton);
}

/// Goes to the field, on whatever tab it is, types over what it holds, and leaves it with Enter.
void wpisz(QWidget& ekran, const QString& pole, const QString& tekst) {
    // A screen gets its focus back from the one above it only with the next events.
    ekran.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ekran));
    auto& linia = widzet<QLineEdit>(ekran, pole);
    if (auto* zakladki = ekran.findChild<QTabWidget*>())
        for (int i = 0; i < zakladki->count(); ++i)
            if (zakladki->widget(i)->isAncestorOf(&linia)) zakladki->setCurrentIndex(i);
    linia.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&linia, tekst);
    QTest::keyClick(&linia, Qt::Key_Return);
}

TEST_F(EkranyTest, OdNowegoPracownikaDoKwotyDoWyplaty) {
    rozmowa_.odpowiedz = Odpowiedz::Tak;
    otworzOkno();
    wOknie<frmPrac>([&](frmPrac& ekran) {
        wOknie<frmNowyPrc>([](frmNowyPrc& nowy) {
            EXPECT_EQ(widzet<QLineEdit>(nowy, u"txtNR"_s).text(), u"13"_s);
            wpisz(nowy, u"txtNazwisko"_s, u"Nowicki"_s);
            EXPECT_TRUE(nowy.isVisible()) << "Enter moves on to the last line";
            wpisz(nowy, u"txtImie"_s, u"Adam"_s);
        });
        klik(ekran, u"cmdnowyprac"_s);
        EXPECT_EQ(widzet<WidokListy>(ekran, u"lvwPrac"_s).wybrany(), 13);
        wpisz(ekran, u"dtData_zatr"_s, u"01032001"_s);
        wpisz(ekran, u"txtPlaca_zas"_s, u"2000"_s);
        wpisz(ekran, u"txtEtat"_s, u"1"_s);
        wpisz(ekran, u"txtEtat2"_s, u"1"_s);
        wpisz(ekran, u"txtKup"_s, u"101,82"_s);
        for (const QString& flaga : {u"chkCzy_kuz"_s, u"chkCzy_ulga"_s})
            QTest::keyClick(&widzet(ekran, flaga), Qt::Key_Space);
        QTest::keyClick(&ekran, Qt::Key_S, Qt::ControlModifier);
        QTest::keyClick(&ekran, Qt::Key_Escape);
    });
    okno_->akcja(Wejscie::PracownicyWszyscy)->trigger();

    wOknie<frmPlace>([&](frmPlace& ekran) {
        ASSERT_TRUE(widzet<WidokListy>(ekran, u"lvwLista"_s).wybierz(200103));
        const auto suma = [&](const QString& pole) { return widzet<QLineEdit>(ekran, pole).text(); };
        EXPECT_EQ(suma(u"txtIlWyplat"_s) + u'|' + suma(u"txtDoWyplaty"_s), u"11|25432,85"_s);
        wOknie<frmPlaceLista>([](frmPlaceLista& lista) {
            wOknie<frmWybPr>([](frmWybPr& wybor) {
                EXPECT_TRUE(widzet<WidokListy>(wybor, u"lvwWybPr"_s).wybierz(13));
                klik(wybor, u"cmdWybierz"_s);
            });
            klik(lista, u"cmdNowy"_s);
            klik(lista, u"cmdPrzelicz"_s);
            EXPECT_EQ(widzet<QLineEdit>(lista, u"txtBrutto"_s).text(), u"2000,00"_s);
            // Contributions of 195,20, 130 and 49; 1523,98 to be taxed; 289,56 less the credit of 36,35.
            EXPECT_EQ(widzet<QLineEdit>(lista, u"txtDoWyplaty"_s).text(), u"1372,59"_s);
            QTest::keyClick(&lista, Qt::Key_Escape);
        });
        klik(ekran, u"Command2"_s);
        EXPECT_EQ(suma(u"txtIlWyplat"_s) + u'|' + suma(u"txtDoWyplaty"_s), u"12|26805,44"_s);
        QTest::keyClick(&ekran, Qt::Key_Escape);
    });
    okno_->akcja(Wejscie::ListaPlac)->trigger();
    EXPECT_EQ(rozmowa_.pytania.join(u'|'),
              u"Został zarejestrowany nowy pracownik. Czy nastąpi zgłoszenie pracownika do ubezpieczeń "
              "społecznych ?|Czy nastąpi zgłoszenie pracownika do ubezpieczenia zdrowotnego ?|Czy wyliczyć "
              "ilość przepracowanych dni dla pracownika ?|Czy ilość dni wyliczyć z bazy dni wolnych "
              "pracownika ?|Brak dni w kalendarzu dla "
              "pracownika. Czy szukać dni w kalendarzu dni wolnych ogólnych ?"_s);
}

TEST_F(EkranyTest, KadryNieDochodzaDoPlac) {
    const auto wszystkimi = [&] {
        otwarte_.clear();
        for (QAction* akcja : okno_->findChildren<QAction*>()) akcja->trigger();
        for (QAbstractButton* przycisk : okno_->findChildren<QAbstractButton*>()) {
            auto* zLista = qobject_cast<QToolButton*>(przycisk);
            // The menu of such a button holds the actions already tried.
            if (!zLista || !zLista->menu()) przycisk->click();
        }
        for (int klawisz = Qt::Key_F1; klawisz <= Qt::Key_F12; ++klawisz)
            QTest::keyClick(okno_.get(), static_cast<Qt::Key>(klawisz));
        for (int klawisz = Qt::Key_0; klawisz <= Qt::Key_Z; ++klawisz)
            for (const auto modyfikatory :
                 {Qt::KeyboardModifiers(Qt::AltModifier), Qt::KeyboardModifiers(Qt::ControlModifier),
                  Qt::AltModifier | Qt::ControlModifier})
                QTest::keyClick(okno_.get(), static_cast<Qt::Key>(klawisz), modyfikatory);
        return std::set<QString>(otwarte_.begin(), otwarte_.end());
    };
    wKazdymOknie([](QWidget&) {});
    otworzOkno();
    const auto administrator = wszystkimi();
    for (const QString& ekran : {u"frmPrac"_s, u"frmPlace"_s, u"frmStaleProgramu"_s, u"frmLogLista"_s})
        EXPECT_TRUE(administrator.contains(ekran)) << ekran.toStdString();

    otoczenie().sesja.uzytkownik = {u"Kadrowa"_s, {}, 1};
    okno_.reset();
    otworzOkno();
    EXPECT_EQ(wszystkimi(),
              (std::set<QString>{u"frmPrac"_s, u"frmUmoP"_s, u"frmHaslo"_s, u"frmAbout"_s,
                                 u"frmOstatnieBazy"_s, u"QFileDialog"_s, u"frmDziennik"_s, u"frmWyglad"_s}));
}

} // namespace

} // namespace tornel::testy
