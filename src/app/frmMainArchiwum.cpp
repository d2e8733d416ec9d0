#include "app/frmMainArchiwum.h"
#include "app/frmArchiwa.h"
#include "app/frmInform.h"
#include "app/frmMain.h"
#include "app/frmOstatnieBazy.h"
#include "app/frmRaport.h"
#include "common/Rozmowa.h"
#include "okna/Klepsydra.h"
#include "rules/Stale.h"
#include "start/Archiwum.h"
#include "start/BazaIni.h"
#include "start/Foldery.h"
#include "store/Sesja.h"
#include "store/StanPliku.h"
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace tornel::app {

namespace {

QString folderDanych() { return FolderDanych(QCoreApplication::applicationDirPath()); }

QString sciezkaBazy(const Otoczenie& o) { return QFileInfo(o.sesja.cnPlace.sciezka()).absoluteFilePath(); }

void utworzArchiwum(frmMain& okno, const Otoczenie& o) {
    const auto zlecenie = TworzArchiwum(
        o.rozmowa, sciezkaBazy(o), FolderArchiwow(o.stale.ArchPath, folderDanych()), QDate::currentDate());
    if (!zlecenie) return;
    DopiszArchiwum(o.sesja.cnPlace, *zlecenie);
    // The session is gone by then, the clerk's side is not.
    okno.zamknijBezPytania([zlecenie = *zlecenie, &rozmowa = o.rozmowa] {
        const OpisArchiwum archiwum = [&] {
            const Klepsydra klepsydra;
            return SkopiujDoArchiwum(zlecenie);
        }();
        rozmowa.komunikat(QStringLiteral("Archiwum zostało utworzone i sprawdzone: „%1” (%2).")
                              .arg(archiwum.plik, NapisTresci(archiwum)),
                          Styl::Informacja, QStringLiteral("Tworzenie archiwum"));
    });
}

void przywroc(frmMain& okno, const Otoczenie& o) {
    const QString baza = sciezkaBazy(o);
    frmArchiwa wybor(o.rozmowa, FolderArchiwow(o.stale.ArchPath, folderDanych()), baza, &okno);
    if (wybor.exec() != QDialog::Accepted) return;
    const auto archiwum = wybor.wybrane();
    if (!archiwum) return;
    okno.zamknijBezPytania(
        [baza, plik = archiwum->plik, &rozmowa = o.rozmowa] {
            {
                const Klepsydra klepsydra;
                PrzywrocArchiwum(baza, plik, QDateTime::currentDateTime());
            }
            rozmowa.komunikat(
                QStringLiteral(
                    "Archiwum zostało przywrócone. Poprzednia baza danych jest odłożona obok, pod nazwą "
                    "z dopiskiem „przed-przywroceniem”. Program uruchomi się teraz na przywróconej bazie."),
                Styl::Informacja);
        },
        frmMain::Dalej::OdNowa);
}

/// Why a file cannot be opened; empty for a good one.
QString powodOdmowy(const QString& plik) {
    const ZbadanyPlik zbadany = ZbadajPlik(plik);
    switch (zbadany.stan) {
    case StanPliku::Dobry:
        return {};
    case StanPliku::Brak:
        return QStringLiteral("nie ma takiego pliku");
    case StanPliku::Zajety:
        return QStringLiteral("plik jest otwarty w innym programie");
    case StanPliku::BezZapisu:
        return QStringLiteral("pliku lub katalogu nie wolno zapisywać");
    case StanPliku::NieBaza:
        return QStringLiteral("plik nie jest bazą danych programu");
    case StanPliku::Nowszy:
        return QStringLiteral("plik zapisał nowszy program");
    case StanPliku::Uszkodzony:
        // A file of an older program lacks tables, which its start brings.
        return zbadany.tabele.join(u'\n').contains(QStringLiteral("brak ")) ? QString()
                                                                            : zbadany.tabele.join(u'\n');
    }
    return {};
}

void otworzInna(frmMain& okno, const Otoczenie& o, const QString& plik) {
    const QString obecna = sciezkaBazy(o);
    const QString nowa = QFileInfo(plik).absoluteFilePath();
    if (nowa == obecna) return;
    if (const QString powod = powodOdmowy(nowa); !powod.isEmpty()) {
        o.rozmowa.komunikat(QStringLiteral("Nie można otworzyć bazy danych „%1”: %2.").arg(nowa, powod),
                            Styl::Wykrzyknik);
        return;
    }
    okno.zamknijIZacznijOdNowa([folder = folderDanych(), obecna, nowa] { WskazBaze(folder, obecna, nowa); });
}

void wskazBaze(frmMain& okno, const Otoczenie& o) {
    const QString plik =
        QFileDialog::getOpenFileName(&okno, QStringLiteral("Otwórz bazę"), QFileInfo(sciezkaBazy(o)).path(),
                                     QStringLiteral("Bazy danych (*.mdb);;Wszystkie pliki (*)"));
    if (!plik.isEmpty()) otworzInna(okno, o, plik);
}

void ostatnieBazy(frmMain& okno, const Otoczenie& o) {
    const BazaIni ini = CzytajBazeIni(folderDanych()).value_or(BazaIni());
    QStringList bazy = ini.dawniejsze;
    if (!ini.baza.isEmpty()) bazy.prepend(ini.baza);
    bazy.removeAll(sciezkaBazy(o));
    frmOstatnieBazy wybor(bazy, &okno);
    if (wybor.exec() == QDialog::Accepted && !wybor.wybrana().isEmpty()) otworzInna(okno, o, wybor.wybrana());
}

void aktualizuj(frmMain& okno, Otoczenie& o) {
    if (!o.rozmowa.pytanie(QStringLiteral("Czy na pewno aktualizować bazę danych ?"))) return;
    o.sesja.PrzyZamknietychUchwytach(
        [&] { AktualizujBaze(o.sesja.cnPlace, aktualizacjaWOknach(&okno), o.rozmowa); });
}

} // namespace

OtoczenieAktualizacji aktualizacjaWOknach(QWidget* rodzic) {
    OtoczenieAktualizacji wynik{folderDanych(), QDateTime::currentDateTime(), {}, {}};
    wynik.pokazTrwa = [rodzic] {
        auto inform = std::make_shared<frmInform>(rodzic);
        inform->pokaz();
        return std::shared_ptr<void>(inform);
    };
    wynik.pokazRaport = [rodzic](const QString& plik, const QString& tekst) {
        frmRaport(plik, tekst, rodzic).exec();
        return true;
    };
    return wynik;
}

void ZarejestrujArchiwum(frmMain& okno, Otoczenie& otoczenie) {
    static constexpr std::pair<Wejscie, void (*)(frmMain&, const Otoczenie&)> wejscia[] = {
        {Wejscie::OtworzBaze, wskazBaze},
        {Wejscie::OstatnieBazy, ostatnieBazy},
        {Wejscie::UtworzArchiwum, utworzArchiwum},
        {Wejscie::PrzywrocArchiwum, przywroc},
    };
    for (const auto& [wejscie, otworz] : wejscia)
        okno.rejestruj(wejscie, [&okno, &otoczenie, funkcja = otworz] { funkcja(okno, otoczenie); });
    okno.rejestruj(Wejscie::AktualizujBaze, [&] { aktualizuj(okno, otoczenie); });
    okno.rejestruj(Wejscie::PobierzStrukture, [&] {
        (void)ZapiszStrukture(otoczenie.sesja.cnPlace, folderDanych(), otoczenie.rozmowa);
    });
}

} // namespace tornel::app
