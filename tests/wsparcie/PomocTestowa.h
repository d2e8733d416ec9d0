// The handbook beside the screens of the example firm: what F1 shows, and the handbook by its tables.
#pragma once
#include "app/frmMain.h"
#include "app/frmMainEkrany.h"
#include "okna/frmPomoc.h"
#include "okna/Pomoc.h"
#include "start/Przyklad.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <QPointer>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QTimer>
#include <QTreeWidget>

namespace tornel::testy {

using namespace Qt::StringLiterals;

inline QString plikPomocy() { return QCoreApplication::applicationDirPath() + u"/Help.hlp"_s; }

inline frmPomoc* oknoPomocy() {
    for (QWidget* okno : QApplication::topLevelWidgets())
        if (auto* pomoc = qobject_cast<frmPomoc*>(okno); pomoc && pomoc->isVisible()) return pomoc;
    return nullptr;
}

/// What F1 shows on the screen; the help is closed again as the clerk does it.
inline QString tematPoF1(QWidget& ekran) {
    QWidget* wPracy = ekran.focusWidget();
    QTest::keyClick(wPracy ? wPracy : &ekran, Qt::Key_F1);
    frmPomoc* pomoc = oknoPomocy();
    if (!pomoc) return {};
    const QString temat = pomoc->temat();
    QTest::keyClick(pomoc, Qt::Key_Escape);
    EXPECT_EQ(oknoPomocy(), nullptr);
    return temat;
}

/// The page of the screen itself or the section of one of its tabs.
inline bool stronaEkranu(const QString& temat, const QWidget& ekran) {
    return temat == ekran.objectName() || temat.startsWith(ekran.objectName() + u'-');
}

/// Runs `reakcja` on the screen that opens next, then closes it.
inline void naEkranie(const std::function<void(QWidget&)>& reakcja) {
    QTimer::singleShot(0, qApp, [reakcja] {
        QPointer<QWidget> ekran = QApplication::activeModalWidget();
        ASSERT_NE(ekran, nullptr) << "nothing opened";
        if (QTest::qWaitForWindowActive(ekran)) reakcja(*ekran);
        if (ekran) ekran->close();
    });
}

/// The handbook as its window shows it, by its tables and headings.
class Podrecznik {
public:
    Podrecznik() {
        QFile plik(plikPomocy());
        EXPECT_TRUE(plik.open(QIODevice::ReadOnly)) << plikPomocy().toStdString();
        okno_ = std::make_unique<frmPomoc>(QString::fromUtf8(plik.readAll()));
    }
    frmPomoc& okno() { return *okno_; }
    QTextDocument& tekst() { return *okno_->findChild<QTextBrowser*>()->document(); }
    QString tytul(const QString& temat) {
        for (QTreeWidgetItemIterator i(okno_->findChild<QTreeWidget*>()); *i; ++i)
            if ((*i)->data(0, Qt::UserRole) == temat) return (*i)->text(0);
        return {};
    }
    /// The first columns of the tables under the heading `temat`, without their captions.
    QStringList pierwszeKolumny(const QString& temat) {
        QStringList wynik;
        QString tutaj;
        for (QTextBlock blok = tekst().begin(); blok.isValid(); blok = blok.next()) {
            if (blok.blockFormat().headingLevel() > 0)
                tutaj = blok.begin().fragment().charFormat().anchorNames().value(0);
            QTextTable* tabela = QTextCursor(blok).currentTable();
            if (tutaj != temat || !tabela) continue;
            const QTextTableCell komorka = tabela->cellAt(blok.position());
            if (komorka.column() == 0 && komorka.row() > 0) wynik.append(blok.text());
        }
        return wynik;
    }

private:
    std::unique_ptr<frmPomoc> okno_;
};

/// The example firm, in which every screen has something to show, with everything switched on.
class PomocOkna : public testing::Test {
protected:
    PomocOkna() {
        const QString baza = folder_.filePath(u"Tornel.mdb"_s);
        UtworzPrzyklad(baza);
        program_ = std::make_unique<Program>(baza, folder_.path(), rozmowa_);
        Stale& stale = o().stale;
        for (bool Stale::*przelacznik :
             {&Stale::AktRejPrzepDni, &Stale::OsobHarPrac, &Stale::AktRejNadg, &Stale::AktywneUmowyZlecenia,
              &Stale::AktywneUmowyODzielo, &Stale::AktywneHonoraria})
            stale.*przelacznik = true;
        pomoc_ = std::make_unique<Pomoc>(plikPomocy(), rozmowa_);
    }
    Otoczenie& o() { return program_->otoczenie(); }
    static void pokaz(QWidget& okno) {
        okno.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    }
    /// The main window as the program makes it.
    std::unique_ptr<frmMain> glowne() {
        auto okno = std::make_unique<frmMain>(o());
        ZarejestrujEkrany(*okno, o());
        okno->rejestruj(Wejscie::Pomoc, [this, w = okno.get()] { pomoc_->pokazSpis(*w); });
        okno->wczytaj();
        pokaz(*okno);
        return okno;
    }

    QTemporaryDir folder_;
    RozmowaSkrypt rozmowa_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<Pomoc> pomoc_;
};

} // namespace tornel::testy
