// Renders the screens on the example firm into PNG files of a folder: what the handbook and the README show.
#include "app/frmLogowanie.h"
#include "app/frmMain.h"
#include "app/frmMainEkrany.h"
#include "app/Przyklad.h"
#include "app/Rozruch.h"
#include "app/Uzytkownicy.h"
#include "okna/Aplikacja.h"
#include "okna/RozmowaOkien.h"
#include "okna/Wyglad.h"
#include "payroll/frmPlace.h"
#include "payroll/frmPlaceLista.h"
#include "personnel/frmWybPr.h"
#include <QDir>
#include <QTabWidget>
#include <QTemporaryDir>

namespace {

void zapisz(QWidget& okno, const QDir& folder, const QString& nazwa, bool pelny = true) {
    if (pelny) okno.resize(1280, 800);
    okno.show();
    Aplikacja::processEvents();
    if (!okno.grab().save(folder.filePath(nazwa + QStringLiteral(".png"))))
        qFatal("cannot write %s", qPrintable(nazwa));
}

/// One picture for each tab of the screen.
void zapiszKarty(QWidget& okno, const QDir& folder, const QString& nazwa) {
    zapisz(okno, folder, nazwa);
    auto* karty = okno.findChild<QTabWidget*>();
    for (int i = 1; karty && i < karty->count(); ++i) {
        karty->setCurrentIndex(i);
        zapisz(okno, folder, QStringLiteral("%1-%2").arg(nazwa).arg(i + 1));
    }
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Aplikacja aplikacja(argc, argv);
    Wyglad::zastosuj(aplikacja);
    const QDir folder(Aplikacja::arguments().value(1, QStringLiteral("zrzuty")));
    folder.mkpath(QStringLiteral("."));

    const QTemporaryDir baza;
    const QString plik = baza.filePath(QStringLiteral("Tornel.mdb"));
    UtworzPrzyklad(plik);
    RozmowaOkien rozmowa;
    Program program(plik, baza.path(), rozmowa);
    (void)SprawdzUzytkownika(program.sesja(), QStringLiteral("Admin"), {});
    Otoczenie& o = program.otoczenie();

    frmLogowanie logowanie;
    zapisz(logowanie, folder, QStringLiteral("logowanie"), false);
    frmMain glowne(o);
    ZarejestrujEkrany(glowne, o);
    glowne.wczytaj();
    zapisz(glowne, folder, QStringLiteral("okno-glowne"));
    {
        frmPlace place(o);
        zapisz(place, folder, QStringLiteral("miesiace"));
    }
    {
        frmPlaceLista lista(o, {2001, 3}, QStringLiteral(" "));
        zapiszKarty(lista, folder, QStringLiteral("lista-plac"));
    }
    {
        frmPlaceLista zablokowana(o, {2001, 1}, QStringLiteral("A"));
        zapisz(zablokowana, folder, QStringLiteral("lista-zablokowana"));
    }
    frmWybPr wybor(o, 1);
    zapisz(wybor, folder, QStringLiteral("wybor-pracownika"), false);
    return 0;
}
