// The main window and the database file as a whole: what happens once window and session are closed.
#include "app/frmArchiwa.h"
#include "app/frmInform.h"
#include "app/frmMain.h"
#include "app/frmMainEkrany.h"
#include "app/frmOstatnieBazy.h"
#include "start/BazaIni.h"
#include "store/KopiaPliku.h"
#include "wsparcie/BazaTestowa.h"
#include "wsparcie/Przestrzen.h"
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace tornel::testy {

using namespace Qt::StringLiterals;

namespace {

const QString kKoniec = u"Zakończyć pracę programu ?"_s;
const QString kArchiwum = u"Czy utworzyć archiwum bazy danych programu ?"_s;
const QString kNazwaArchiwum = u"Podaj nazwę katalogu dla archiwum:"_s;
const QString kZamkniecie =
    u"Utworzenie archiwum wiąże się z koniecznością zamknięcia programu. Kontynuować ?"_s;

class BezpieczenstwoTest : public BazaTestowa {
protected:
    BezpieczenstwoTest() {
        stale().ArchPath = folder_.filePath(u"arch"_s);
        stale().PytajArch = true;
        sesja().uzytkownik = {u"Admin"_s, {}, 0};
        okno_ = std::make_unique<frmMain>(otoczenie());
        ZarejestrujEkrany(*okno_, otoczenie());
        okno_->wczytaj();
        okno_->show();
    }
    /// What main does behind the window.
    frmMain::PoZamknieciu zamknij() {
        const frmMain::PoZamknieciu po = okno_->poZamknieciu();
        okno_.reset();
        program_.reset();
        for (const auto& praca : po.prace) praca();
        return po;
    }
    /// The message on a new archive names its size, which only the file tells.
    void spodziewajArchiwum(const QString& nazwa) {
        const qint64 kilo = (QFileInfo(sciezka()).size() + 1023) / 1024;
        rozmowa_.spodziewaj(
            u"Archiwum zostało utworzone i sprawdzone: „%1/%2/Tornel.mdb” (%3 KB, miesiące: 0, "
            "pracownicy: 0)."_s.arg(stale().ArchPath, nazwa)
                .arg(kilo),
            Styl::Informacja);
    }
    std::unique_ptr<frmMain> okno_;
};

TEST_F(BezpieczenstwoTest, TheExitQuestionMakesAnArchiveOfTheClosedFile) {
    rozmowa_.spodziewaj(kKoniec, Odpowiedz::Tak);
    rozmowa_.spodziewaj(kArchiwum, Odpowiedz::Tak);
    rozmowa_.spodziewaj(kNazwaArchiwum, std::optional(u"koniec"_s));
    rozmowa_.spodziewaj(kZamkniecie, Odpowiedz::Tak);
    const QString kopia = stale().ArchPath + u"/koniec/Tornel.mdb"_s;
    EXPECT_TRUE(okno_->close());
    EXPECT_FALSE(QFileInfo::exists(kopia)) << "the session is still open";
    spodziewajArchiwum(u"koniec"_s);
    EXPECT_FALSE(zamknij().odNowa);
    EXPECT_TRUE(QFileInfo::exists(kopia));
}

TEST_F(BezpieczenstwoTest, ARefusedArchiveFromTheMenuKeepsTheProgramOpen) {
    rozmowa_.spodziewaj(kNazwaArchiwum, std::optional(u"a"_s));
    rozmowa_.spodziewaj(kZamkniecie, Odpowiedz::Nie);
    okno_->akcja(Wejscie::UtworzArchiwum)->trigger();
    EXPECT_TRUE(okno_->isVisible());
    EXPECT_TRUE(okno_->poZamknieciu().prace.empty());
}

TEST_F(BezpieczenstwoTest, AChosenArchiveTakesThePlaceOfTheDatabaseAndTheProgramStartsAnew) {
    const QString archiwum = stale().ArchPath + u"/dawne/Tornel.mdb"_s;
    QDir().mkpath(QFileInfo(archiwum).path());
    KopiujOtwarta(sesja().cnPlace, archiwum);
    dodajPracownika(1);
    const auto wybierz = [&](Odpowiedz odpowiedz) {
        QTimer::singleShot(0, qApp, [this, odpowiedz] {
            auto* lista = qobject_cast<frmArchiwa*>(QApplication::activeModalWidget());
            ASSERT_NE(lista, nullptr);
            const OpisArchiwum opis = lista->wybrane().value();
            rozmowa_.spodziewaj(
                u"Archiwum „dawne” z dnia %1 (%2) zastąpi bazę danych „%3”. Wszystko, co zapisano później, "
                "zostanie tylko w odłożonej kopii obecnej bazy. Przywrócić ?"_s.arg(
                    FormatDaty(opis.data.date()), NapisTresci(opis), sciezka()),
                odpowiedz);
            lista->findChild<QPushButton*>(u"cmdPrzywroc"_s)->click();
            if (lista->isVisible()) lista->reject();
        });
        okno_->akcja(Wejscie::PrzywrocArchiwum)->trigger();
    };
    wybierz(Odpowiedz::Nie);
    EXPECT_TRUE(okno_->isVisible());
    wybierz(Odpowiedz::Tak);
    EXPECT_FALSE(okno_->isVisible());

    const frmMain::PoZamknieciu po = okno_->poZamknieciu();
    EXPECT_TRUE(po.odNowa);
    EXPECT_FALSE(po.innaBaza);
    okno_.reset();
    program_.reset();
    rozmowa_.spodziewaj(
        u"Archiwum zostało przywrócone. Poprzednia baza danych jest odłożona obok, pod nazwą z dopiskiem "
        "„przed-przywroceniem”. Program uruchomi się teraz na przywróconej bazie."_s,
        Styl::Informacja);
    po.prace.at(0)();
    const QStringList odlozone = QDir(folder_.path()).entryList({u"Tornel-przed-przywroceniem-*.mdb"_s});
    ASSERT_EQ(odlozone.size(), 1);
    otworz();
    EXPECT_EQ(sesja().rsPRACDP.RecordCount(), 0);
}

TEST_F(BezpieczenstwoTest, WhatAStartFoundStandsInTheStatusBar) {
    auto* napis = okno_->findChild<QLabel*>(u"labZnalezione"_s);
    okno_->pokazZnalezione({});
    EXPECT_FALSE(napis->isVisible());
    okno_->pokazZnalezione(u"Poprzednia praca została przerwana."_s);
    EXPECT_TRUE(napis->isVisible());
    EXPECT_EQ(napis->text(), u"Poprzednia praca została przerwana."_s);
}

TEST_F(BezpieczenstwoTest, TheExitQuestionStandsBeforeAnotherDatabase) {
    bool wskazana = false;
    rozmowa_.spodziewaj(kKoniec, Odpowiedz::Nie);
    okno_->zamknijIZacznijOdNowa([&] { wskazana = true; });
    EXPECT_TRUE(okno_->isVisible());
    EXPECT_FALSE(okno_->poZamknieciu().odNowa);
    rozmowa_.spodziewaj(kKoniec, Odpowiedz::Tak);
    rozmowa_.spodziewaj(kArchiwum, Odpowiedz::Nie);
    okno_->zamknijIZacznijOdNowa([&] { wskazana = true; });
    const auto po = zamknij();
    EXPECT_TRUE(po.odNowa && po.innaBaza && wskazana);
}

} // namespace

} // namespace tornel::testy
