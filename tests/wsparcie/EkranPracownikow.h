// The screen of the personnel file with three employees, driven as a clerk drives it.
#pragma once
#include "okna/WidokListy.h"
#include "personnel/frmNowyPrc.h"
#include "personnel/frmPrac.h"
#include "personnel/frmPracPola.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <functional>
#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

namespace tornel::testy {

class EkranPracownikow : public BazaTestowa {
protected:
    void SetUp() override {
        dodajPracownika(7, QStringLiteral("Nowak"), QStringLiteral("Anna"));
        dodajPracownika(8, QStringLiteral("Łoś"), QStringLiteral("Jan"));
        dodajPracownika(1234, QStringLiteral("Lis"), QStringLiteral("Ewa"));
        slownik(sesja().rsUS, schemat::US("Nazwa"));
        slownik(sesja().rsM_PRACY, schemat::M_PRACY("Nazwa"));
    }
    void slownik(Recordset& rs, Kolumna nazwa) {
        rs.Open(sesja().cnPlace);
        rs.AddNewZero(3);
        rs.ustaw(nazwa, QStringLiteral("trzeci & ostatni"));
        rs.UpdateBatch(u"Dane testu");
    }
    frmPrac& ekran(FiltrPracownikow filtr = FiltrPracownikow::Wszyscy, qint64 wybrany = -1) {
        okno = std::make_unique<frmPrac>(otoczenie(), filtr);
        okno->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(okno.get()));
        if (wybrany >= 0) EXPECT_TRUE(lista().wybierz(wybrany));
        return *okno;
    }
    /// Ends the program without a word, and starts it again.
    void odNowa() {
        okno.reset();
        otworzPonownie();
    }
    template <typename K = QLineEdit>
    K& k(const QString& nazwa) {
        return *okno->findChild<K*>(nazwa);
    }
    WidokListy& lista() { return k<WidokListy>(QStringLiteral("lvwPrac")); }
    QTabWidget& karty() { return k<QTabWidget>(QStringLiteral("tabPrac")); }
    void klik(const char16_t* nazwa) { k<QPushButton>(QString::fromUtf16(nazwa)).click(); }
    QStringList wiersze() {
        QStringList wynik;
        for (int i = 0; i < lista().lista().rowCount(); ++i)
            wynik += lista().lista().index(i, 0).data().toString() + QLatin1Char(' ') +
                     lista().lista().index(i, 1).data().toString();
        return wynik;
    }
    Wartosc wPliku(Kolumna kolumna, qint64 prcId = 7) {
        Recordset rs(*kolumna.tabela);
        rs.Open(sesja().cnPlace);
        return rs.Znajdz(prcId) ? rs.wartosc(kolumna) : Wartosc(QStringLiteral("no such row"));
    }
    /// Types over what stands in the field, one character after the other.
    void wpisz(QWidget& pole, const QString& tekst) {
        pole.setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        if (auto* notatkaPola = qobject_cast<QPlainTextEdit*>(&pole)) notatkaPola->selectAll();
        for (const char32_t znak : tekst.toUcs4()) {
            QKeyEvent zdarzenie(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUcs4(&znak, 1));
            QApplication::sendEvent(&pole, &zdarzenie);
        }
    }
    void wpisz(const QString& nazwa, const QString& tekst) { wpisz(k<QWidget>(nazwa), tekst); }
    /// What the clerk does in the next dialog that opens.
    template <typename Okno>
    void wDialogu(std::function<void(Okno&)> czyn) {
        QTimer::singleShot(0, qApp, [czyn] {
            auto* dialog = qobject_cast<Okno*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog) << "another dialog, or none";
            const QPointer<Okno> zyje(dialog);
            czyn(*dialog);
            if (!zyje || !zyje->isVisible()) return;
            ADD_FAILURE() << "still open";
            zyje->reject();
        });
    }
    void wypelnijNowego(frmNowyPrc& dialog, const QString& numer, const QString& nazwisko) {
        dialog.findChild<QLineEdit*>(QStringLiteral("txtNR"))->setText(numer);
        dialog.findChild<QLineEdit*>(QStringLiteral("txtNazwisko"))->setText(nazwisko);
        dialog.findChild<QPushButton*>(QStringLiteral("cmdDalej"))->click();
    }

    std::unique_ptr<frmPrac> okno;
};

/// Every field of the tabs, and the note, with the tab it stands on.
inline QList<std::pair<int, Pole>> wszystkiePola() {
    using namespace ekranKartoteki;
    QList<std::pair<int, Pole>> wynik;
    for (int z = 0; z < zakladki().size(); ++z)
        for (const KolumnaKartoteki& kolumna : zakladki().at(z).kolumny)
            for (const GrupaKartoteki& grupa : kolumna)
                for (const Pole& pole : grupa.pola) wynik.append({z, pole});
    wynik.append({Ogolne, notatka()});
    return wynik;
}

} // namespace tornel::testy
