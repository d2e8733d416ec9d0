// Main: from the command line to the main window.
#include "app/frmLogowanie.h"
#include "app/frmMain.h"
#include "app/frmMainArchiwum.h"
#include "app/frmMainEkrany.h"
#include "app/frmSplash.h"
#include "okna/Aplikacja.h"
#include "okna/Pomoc.h"
#include "okna/RozmowaOkien.h"
#include "okna/Wyglad.h"
#include "start/Foldery.h"
#include "start/Rozruch.h"
#include "start/Uzytkownicy.h"
#include "store/ZapisDziennika.h"
#include <algorithm>
#include <cstdio>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QScopeGuard>
#include <QTranslator>
#include <string_view>

namespace tornel::app {
namespace {

/// What the window program takes: switches behind slashes, and a database other than the one beside the
/// program.
struct WierszPolecen {
    Przelaczniki przelaczniki;
    QString baza;
};

WierszPolecen czytajArgumenty(QStringList argumenty) {
    WierszPolecen wynik;
    argumenty.removeFirst();
    if (const auto i = argumenty.indexOf(QStringLiteral("--baza")); i >= 0) {
        wynik.baza = argumenty.value(i + 1);
        argumenty.remove(i, std::min<qsizetype>(2, argumenty.size() - i));
    } else {
        // The desktop opens a file by naming it; a path begins with a stroke as switches do.
        const auto plik =
            std::ranges::find_if(argumenty, [](const QString& a) { return QFileInfo(a).isFile(); });
        if (plik != argumenty.end()) {
            wynik.baza = *plik;
            argumenty.erase(plik);
        }
    }
    wynik.przelaczniki = CzytajPrzelaczniki(argumenty.join(QLatin1Char(' ')));
    return wynik;
}

void wczytajTlumaczenieQt(Aplikacja& aplikacja) {
    auto* tlumacz = new QTranslator(&aplikacja);
    if (tlumacz->load(QStringLiteral("qtbase_pl"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(tlumacz);
}

/// Opens the session, or says why it cannot be opened.
std::unique_ptr<Program> PStart(const QString& baza, const QString& folder, const Przelaczniki& przelaczniki,
                                Rozmowa& rozmowa) {
    try {
        // The structure is brought up to date before any table is opened, since that changes the tables.
        return std::make_unique<Program>(baza, folder, rozmowa, [&](Polaczenie& polaczenie) {
            if (przelaczniki.aktua &&
                rozmowa.pytanie(QStringLiteral("Czy zaktualizować bezę danych programu ?")))
                AktualizujBaze(polaczenie, aktualizacjaWOknach(nullptr), rozmowa);
        });
    } catch (const Blad& blad) {
        rozmowa.komunikat(blad.komunikat(), Styl::Krytyczny);
        return nullptr;
    }
}

bool zaloguj(Sesja& sesja, Rozmowa& rozmowa) {
    frmLogowanie logowanie;
    if (logowanie.exec() != QDialog::Accepted) return false;
    const bool wpuszczony = SprawdzLogin(sesja, logowanie.nazwa(), logowanie.haslo());
    try {
        sesja.cnPlace.dziennik()->dopiszZdarzenie(wpuszczony ? QStringLiteral("Logowanie")
                                                             : QStringLiteral("Odmowa logowania"));
    } catch (const Blad& blad) {
        // A full disk keeps nobody out: room is made from inside.
        rozmowa.komunikat(blad.komunikat(), Styl::Wykrzyknik);
    }
    if (wpuszczony) return true;
    rozmowa.komunikat(
        QStringLiteral("Podana nazwa użytkownika lub hasło są nieprawidłowe. Program nie zostanie "
                       "uruchomiony."),
        Styl::Wykrzyknik);
    return false;
}

/// From the search for the database to the closed session. Without a window there is nothing to be done after
/// it: the program ends with `status`.
struct Praca {
    frmMain::PoZamknieciu po;
    int status = 0;
};

Praca pracuj(Aplikacja& aplikacja, Rozmowa& rozmowa, Pomoc& pomoc, const WierszPolecen& polecenie) {
    frmSplash splash;
    splash.show();
    Aplikacja::processEvents();
    Aplikacja::setOverrideCursor(Qt::WaitCursor);
    const QString folder = FolderDanych(Aplikacja::applicationDirPath());
    const QString baza = polecenie.baza.isEmpty() ? ZnajdzBaze(folder, rozmowa) : polecenie.baza;
    // Whoever opens an installed program for the first time has no database, and no folder to look for one
    // in.
    if (folder != Aplikacja::applicationDirPath() && polecenie.baza.isEmpty() && !QFile::exists(baza))
        UtworzBazeZSzablonu(baza, folder, rozmowa);
    const std::unique_ptr<Program> program = PStart(baza, folder, polecenie.przelaczniki, rozmowa);
    Aplikacja::restoreOverrideCursor();
    if (!program) return {{}, 1};
    program->sesja().cnPlace.dziennik()->UstawZegar([] { return QDateTime::currentDateTime(); });
    aplikacja.ustawOdczyt([&] { program->sesja().OdswiezUchwyty(); });
    const auto koniec = qScopeGuard([&] { aplikacja.ustawOdczyt({}); });
    if (!zaloguj(program->sesja(), rozmowa)) return {};

    frmMain okno(program->otoczenie());
    ZarejestrujEkrany(okno, program->otoczenie());
    okno.rejestruj(Wejscie::Pomoc, [&] { pomoc.pokazSpis(okno); });
    splash.finish(&okno);
    okno.show();
    okno.pokazZnalezione(program->znalezione());
    okno.wczytaj();
    const int status = Aplikacja::exec();
    return {okno.poZamknieciu(), status};
}

} // namespace

static int Uruchom(int argc, char** argv) {
    Aplikacja aplikacja(argc, argv);
    wczytajTlumaczenieQt(aplikacja);
    Wyglad::zastosuj(aplikacja);
    WierszPolecen polecenie = czytajArgumenty(Aplikacja::arguments());
    RozmowaOkien rozmowa;
    aplikacja.ustawNaprawe([&](const QString& komunikat) { rozmowa.komunikat(komunikat, Styl::Krytyczny); });
    Pomoc pomoc(PlikProgramu(Aplikacja::applicationDirPath(), QStringLiteral("Help.hlp")), rozmowa);
    for (;;) {
        Praca praca;
        try {
            praca = pracuj(aplikacja, rozmowa, pomoc, polecenie);
        } catch (const Blad& blad) {
            Aplikacja::restoreOverrideCursor();
            rozmowa.komunikat(blad.komunikat(), Styl::Krytyczny);
            return 1;
        }
        for (const auto& czynnosc : praca.po.prace) {
            try {
                czynnosc();
            } catch (const Blad& blad) {
                rozmowa.komunikat(blad.komunikat(), Styl::Krytyczny);
            }
        }
        if (!praca.po.odNowa) return praca.status;
        // Another database stands in Baza.ini; a restore has left the same one in its place.
        polecenie.przelaczniki = {};
        if (praca.po.innaBaza) polecenie.baza.clear();
    }
}

} // namespace tornel::app

int main(int argc, char** argv) {
    // Answered without a screen.
    for (int i = 1; i < argc; ++i) {
        const std::string_view argument(argv[i]);
        if (argument == "--version") return std::puts("tornel " TORNEL_WERSJA) < 0;
        if (argument == "--help")
            return std::puts("Użycie: tornel [--baza PLIK | PLIK] [/AKTUA]\n\n"
                             "  --baza PLIK  baza danych; bez niej Baza.ini i Tornel.mdb obok programu, a "
                             "zainstalowanego\n               w folderze danych użytkownika\n"
                             "  /AKTUA       aktualizuje strukturę bazy z plików Tabele.rec i Pola.rec\n"
                             "  --version    wersja programu") < 0;
    }
    return tornel::app::Uruchom(argc, argv);
}
