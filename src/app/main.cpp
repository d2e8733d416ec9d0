// Main: from the command line to the main window.
#include "app/frmLogowanie.h"
#include "app/frmMain.h"
#include "app/frmMainEkrany.h"
#include "app/frmSplash.h"
#include "okna/Aplikacja.h"
#include "okna/Pomoc.h"
#include "okna/RozmowaOkien.h"
#include "okna/Wyglad.h"
#include "start/Rozruch.h"
#include "start/Uzytkownicy.h"
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>

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
std::unique_ptr<Program> PStart(const QString& baza, Rozmowa& rozmowa) {
    try {
        return std::make_unique<Program>(baza, QCoreApplication::applicationDirPath(), rozmowa);
    } catch (const Blad& blad) {
        rozmowa.komunikat(blad.komunikat(), Styl::Krytyczny);
        return nullptr;
    }
}

bool zaloguj(Sesja& sesja, Rozmowa& rozmowa) {
    frmLogowanie logowanie;
    if (logowanie.exec() != QDialog::Accepted) return false;
    if (SprawdzLogin(sesja, logowanie.nazwa(), logowanie.haslo())) return true;
    rozmowa.komunikat(
        QStringLiteral("Podana nazwa użytkownika lub hasło są nieprawidłowe. Program nie zostanie "
                       "uruchomiony."),
        Styl::Wykrzyknik);
    return false;
}

} // namespace

static int Uruchom(int argc, char** argv) {
    Aplikacja aplikacja(argc, argv);
    wczytajTlumaczenieQt(aplikacja);
    Wyglad::zastosuj(aplikacja);
    const WierszPolecen polecenie = czytajArgumenty(Aplikacja::arguments());

    frmSplash splash;
    splash.show();
    Aplikacja::processEvents();
    Aplikacja::setOverrideCursor(Qt::WaitCursor);
    RozmowaOkien rozmowa;
    Pomoc pomoc(QDir(Aplikacja::applicationDirPath()).filePath(QStringLiteral("Help.hlp")), rozmowa);
    const QString baza =
        polecenie.baza.isEmpty() ? ZnajdzBaze(Aplikacja::applicationDirPath(), rozmowa) : polecenie.baza;
    const std::unique_ptr<Program> program = PStart(baza, rozmowa);
    Aplikacja::restoreOverrideCursor();
    if (!program) return 1;
    aplikacja.ustawNaprawe([&](const QString& komunikat) { rozmowa.komunikat(komunikat, Styl::Krytyczny); });
    aplikacja.ustawOdczyt([&] { program->sesja().OdswiezUchwyty(); });
    if (!zaloguj(program->sesja(), rozmowa)) return 0;

    frmMain okno(program->otoczenie());
    ZarejestrujEkrany(okno, program->otoczenie());
    okno.rejestruj(Wejscie::Pomoc, [&] { pomoc.pokazSpis(okno); });
    splash.finish(&okno);
    okno.show();
    okno.wczytaj();
    return Aplikacja::exec();
}

} // namespace tornel::app

int main(int argc, char** argv) { return tornel::app::Uruchom(argc, argv); }
