// The main window on a copy of the example firm, and what opens from it.
#pragma once
#include "app/frmMain.h"
#include "app/frmMainEkrany.h"
#include "start/Przyklad.h"
#include "start/Rozruch.h"
#include "wsparcie/Przestrzen.h"
#include "wsparcie/RozmowaZgoda.h"
#include "wsparcie/WejsciaBezEkranu.h"
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace tornel::testy {

using namespace Qt::StringLiterals;

/// A clerk with one answer to everything. What he was asked stands in `pytania`.
class RozmowaStala : public RozmowaZgoda {
public:
    [[nodiscard]] bool pytanie(const QString& tekst, const QString&) override {
        pytania += tekst;
        return odpowiedz == Odpowiedz::Tak;
    }
    Odpowiedz odpowiedz = Odpowiedz::Nie;
    QStringList pytania;
};

inline QString nazwa(const QWidget& widzet) {
    return widzet.objectName().isEmpty() ? QString::fromLatin1(widzet.metaObject()->className())
                                         : widzet.objectName();
}

class EkranyTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        wzor_ = std::make_unique<QTemporaryDir>();
        UtworzPrzyklad(wzor_->filePath(u"Tornel.mdb"_s));
    }
    static void TearDownTestSuite() { wzor_.reset(); }

    EkranyTest() {
        QFile::copy(wzor_->filePath(u"Tornel.mdb"_s), plik_);
        program_ = std::make_unique<Program>(plik_, folder_.path(), rozmowa_);
        program_->sesja().uzytkownik = {u"Admin"_s, {}, 0};
        for (bool Stale::*przelacznik :
             {&Stale::AktRejNadg, &Stale::AktRejPrzepDni, &Stale::OsobHarPrac, &Stale::AktywneUmowyZlecenia,
              &Stale::AktywneUmowyODzielo, &Stale::AktywneHonoraria})
            otoczenie().stale.*przelacznik = true;
    }
    ~EkranyTest() override { straznik_.stop(); }

    Otoczenie& otoczenie() { return program_->otoczenie(); }
    void otworzOkno() {
        okno_ = std::make_unique<frmMain>(otoczenie());
        ZarejestrujEkrany(*okno_, otoczenie());
        okno_->wczytaj();
        okno_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(okno_.get()));
    }
    /// Does `czynnosc` in every modal window that opens from now on, and closes it with Escape.
    void wKazdymOknie(std::function<void(QWidget&)> czynnosc) {
        QObject::connect(&straznik_, &QTimer::timeout, &straznik_, [this, czynnosc = std::move(czynnosc)] {
            const QPointer<QWidget> modalne = QApplication::activeModalWidget();
            if (!modalne || zajety_) return;
            zajety_ = true;
            otwarte_ += modalne->objectName();
            EXPECT_TRUE(QTest::qWaitForWindowActive(modalne)) << otwarte_.last().toStdString();
            czynnosc(*modalne);
            if (modalne) QTest::keyClick(modalne, Qt::Key_Escape);
            const bool zamkniete = QTest::qWaitFor([&] { return !modalne || !modalne->isVisible(); }, 2000);
            EXPECT_TRUE(zamkniete) << otwarte_.last().toStdString() << " stays open";
            if (!zamkniete) modalne->hide();
            zajety_ = false;
        });
        straznik_.start(1);
    }
    /// Does `czynnosc` in the next modal screen, which must be of this kind and closed behind it.
    template <typename T>
    static void wOknie(std::function<void(T&)> czynnosc) {
        QTimer::singleShot(0, qApp, [czynnosc = std::move(czynnosc)] {
            const QPointer<T> ekran = qobject_cast<T*>(QApplication::activeModalWidget());
            ASSERT_TRUE(ekran) << "another screen is open, or none";
            EXPECT_TRUE(QTest::qWaitForWindowActive(ekran));
            czynnosc(*ekran);
            if (!ekran || !ekran->isVisible()) return;
            ADD_FAILURE() << nazwa(*ekran).toStdString() << " stays open";
            ekran->hide();
        });
    }
    /// Every row of every table of the file.
    std::map<std::string, QStringList> calaBaza() {
        Polaczenie& baza = program_->sesja().cnPlace;
        std::vector<std::string> tabele;
        for (Instrukcja i(baza, "SELECT name FROM sqlite_master WHERE type = 'table'"); i.wiersz();)
            tabele.emplace_back(i.utf8(0));
        std::map<std::string, QStringList> wynik;
        for (const std::string& tabela : tabele) {
            Instrukcja kolumny(baza, "SELECT group_concat('quote(\"' || name || '\")', ' || ''|'' || ') FROM "
                                     "pragma_table_info('" +
                                         tabela + "')");
            EXPECT_TRUE(kolumny.wiersz());
            const std::string sql =
                "SELECT " + std::string(kolumny.utf8(0)) + " FROM \"" + tabela + "\" ORDER BY rowid";
            for (Instrukcja i(baza, sql); i.wiersz();) wynik[tabela] += i.tekst(0);
        }
        EXPECT_GT(wynik.size(), 10U);
        return wynik;
    }

    static inline std::unique_ptr<QTemporaryDir> wzor_;
    QTemporaryDir folder_;
    QString plik_ = folder_.filePath(u"Tornel.mdb"_s);
    RozmowaStala rozmowa_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<frmMain> okno_;
    QTimer straznik_;
    bool zajety_ = false;
    QStringList otwarte_;
};

/// Shows each tab of the screen in turn; a screen without tabs as it is.
inline void naKazdejZakladce(QWidget& ekran, const std::function<void(const QString&)>& czynnosc) {
    if (auto* zakladki = ekran.findChild<QTabWidget*>()) {
        for (int i = 0; i < zakladki->count(); ++i) {
            zakladki->setCurrentIndex(i);
            czynnosc(zakladki->tabText(i));
        }
    } else if (auto* lista = ekran.findChild<QListWidget*>()) {
        for (int i = 0; i < lista->count(); ++i) {
            lista->setCurrentRow(i);
            czynnosc(lista->item(i)->text());
        }
    } else {
        czynnosc(ekran.windowTitle());
    }
}

/// What can be typed into or chosen from on the tab shown, in the order of the Tab key.
inline QList<QWidget*> pola(QWidget& ekran) {
    QList<QWidget*> wynik;
    for (QWidget* w = ekran.nextInFocusChain(); w != &ekran; w = w->nextInFocusChain()) {
        const bool pole = qobject_cast<QLineEdit*>(w) || qobject_cast<QComboBox*>(w) ||
                          qobject_cast<QCheckBox*>(w) || qobject_cast<QPlainTextEdit*>(w) ||
                          qobject_cast<QAbstractSpinBox*>(w);
        const bool czesc =
            qobject_cast<QAbstractSpinBox*>(w->parentWidget()) || qobject_cast<QComboBox*>(w->parentWidget());
        if (pole && !czesc && ekran.isAncestorOf(w) && w->isVisible() && w->isEnabled() &&
            (w->focusPolicy() & Qt::TabFocus) != 0)
            wynik += w;
    }
    return wynik;
}

} // namespace tornel::testy
