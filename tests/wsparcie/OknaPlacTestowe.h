// Payroll screens driven through their controls: the clerk's hands on a database of the test.
#pragma once
#include "okna/Aplikacja.h"
#include "okna/frmInputData.h"
#include "okna/WidokListy.h"
#include "payroll/lista/frmPlaceLista.h"
#include "payroll/miesiace/frmPlace.h"
#include "personnel/frmWybPr.h"
#include "wsparcie/NieobecnosciTestowe.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/Widzet.h"
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

namespace tornel::testy {

using namespace Qt::StringLiterals;

/// A clerk's row: the ZUS rates, costs, the tax credit and a base salary, with the first tax group.
inline const std::string kPracownik =
    "placa_zas=1650 gr_pod=1 Kup=101,82 czy_kuz=T czy_ulga=T etat=1 etat2=1 wsk_fe=9,76 wsk_fr=6,5 "
    "wsk_fc=2,45 wsk_ubzdr=7,75 Fp=2,45 gsp=0,08";

class OknaPlacTestowe : public NieobecnosciTestowe {
protected:
    void pokaz(QWidget& okno) {
        okno.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    }
    void klik(QWidget& okno, const QString& nazwa) {
        QTest::mouseClick(&widzet(okno, nazwa), Qt::LeftButton);
    }
    static QString tekst(const QWidget& okno, const QString& nazwa) {
        return widzet<QLineEdit>(okno, nazwa).text();
    }
    /// Opens the field's tab and goes into the field.
    static QLineEdit& wejdz(QWidget& okno, const QString& nazwa) {
        // A screen under another one gets its focus back only with the next events.
        okno.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&okno));
        auto& pole = widzet<QLineEdit>(okno, nazwa);
        auto& zakladki = widzet<QTabWidget>(okno, u"tabPlace"_s);
        for (int i = 0; i < zakladki.count(); ++i)
            if (zakladki.widget(i)->isAncestorOf(&pole)) zakladki.setCurrentIndex(i);
        pole.setFocus(Qt::TabFocusReason);
        return pole;
    }
    /// Types letters of any script.
    static void pisz(QWidget& pole, const QString& tekst) {
        for (const char32_t znak : tekst.toUcs4()) {
            QKeyEvent klawisz(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(&znak, 1));
            QApplication::sendEvent(&pole, &klawisz);
        }
    }
    /// Types over what stands in the field, without leaving it.
    static QLineEdit& wpisz(QWidget& okno, const QString& nazwa, const QString& nowy) {
        QLineEdit& pole = wejdz(okno, nazwa);
        pisz(pole, nowy);
        return pole;
    }
    static void zmien(QWidget& okno, const QString& nazwa, const QString& nowy) {
        QTest::keyClick(&wpisz(okno, nazwa, nowy), Qt::Key_Tab);
    }
    static void wybierz(QWidget& okno, int wiersz) {
        auto& lista = widzet<WidokListy>(okno, u"lvwPlace"_s);
        QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                          lista.visualRect(lista.model()->index(wiersz, 0)).center());
    }
    static QStringList wiersze(const QWidget& okno, const QString& nazwa) {
        const auto& lista = widzet<WidokListy>(okno, nazwa);
        QStringList wynik;
        for (int i = 0; i < lista.model()->rowCount(); ++i) {
            QStringList komorki;
            for (int k = 0; k < lista.model()->columnCount(); ++k)
                komorki += lista.model()->index(i, k).data().toString();
            wynik += komorki.join(u"|"_s);
        }
        return wynik;
    }
    /// What the clerk does in the next modal screen of this kind, which is closed behind him.
    template <typename T>
    void wOknie(std::function<void(T&)> czynnosc) {
        QTimer::singleShot(0, qApp, [this, czynnosc] {
            auto* okno = qobject_cast<T*>(QApplication::activeModalWidget());
            if (!okno) {
                ADD_FAILURE() << "another screen is open, or none";
                return;
            }
            ++otwarte_;
            const QPointer<T> zyje(okno);
            czynnosc(*okno);
            if (zyje && zyje->isVisible()) zyje->reject();
        });
    }
    void wybierzOsoby(const QString& przycisk = {}) {
        wOknie<frmWybPr>([this, przycisk](frmWybPr& okno) {
            if (!przycisk.isEmpty()) klik(okno, przycisk);
            klik(okno, u"cmdWybierz"_s);
        });
    }
    /// A list of July with computed rows of employees 1 to `ile`.
    void lista(int ile, const std::string& dane = kPracownik) {
        miesiac();
        QList<qint64> numery;
        for (int nr = 1; nr <= ile; ++nr) {
            pracownik(nr, dane, u"Nowak%1"_s.arg(nr));
            numery += nr;
        }
        ListaPlac nowa(otoczenie(), 2001, 7, u" "_s);
        if (ile > 0) EXPECT_EQ(nowa.DodajPracownikow(numery).wykonane, ile);
        sesja().ZamknijMiesiac();
    }
    /// Failures in slots are shown and undone as in the program; their messages stand in `bledy_`.
    void naprawiaj() {
        aplikacja().ustawNaprawe([this](const QString& komunikat) {
            bledy_ += komunikat;
            sesja().OdswiezUchwyty();
        });
    }
    void TearDown() override {
        aplikacja().ustawNaprawe([](const QString& komunikat) { ADD_FAILURE() << komunikat.toStdString(); });
    }
    static Aplikacja& aplikacja() { return *qobject_cast<Aplikacja*>(qApp); }

    int otwarte_ = 0;
    QStringList bledy_;
};

} // namespace tornel::testy
