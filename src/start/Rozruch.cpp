#include "start/Rozruch.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "rules/Konfiguracja.h"
#include "start/Uzytkownicy.h"
#include "store/Struktura.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>

// The data files of the library; a static library's resources are not there until somebody asks for them.
// The macro cannot stand in a namespace.
static void udostepnijDane() { Q_INIT_RESOURCE(dane); }

namespace tornel::start {

Przelaczniki CzytajPrzelaczniki(const QString& wierszPolecen) {
    Przelaczniki wynik;
    const QStringList czesci = wierszPolecen.split(QLatin1Char('/'));
    for (const QString& czesc : czesci.mid(1)) {
        const QString nazwa = czesc.trimmed().toUpper();
        if (nazwa == QLatin1String("ADMIN"))
            wynik.admin = true;
        else if (nazwa == QLatin1String("CLRPWD"))
            wynik.clrpwd = true;
        else if (nazwa == QLatin1String("AKTUA"))
            wynik.aktua = true;
    }
    return wynik;
}

QString ZnajdzBaze(const QString& folderProgramu, Rozmowa& rozmowa) {
    const QDir folder(folderProgramu);
    QFile ini(folder.filePath(QStringLiteral("Baza.ini")));
    if (ini.open(QIODevice::ReadOnly)) {
        QString sciezka = QString::fromUtf8(ini.readLine()).trimmed();
        if (!sciezka.isEmpty() && QFileInfo(sciezka).isFile()) return sciezka;
        rozmowa.komunikat(QStringLiteral("Nie można znaleźć bazy podadnej w pliku Baza.ini"),
                          Styl::Krytyczny);
    }
    return folder.filePath(QStringLiteral("Tornel.mdb"));
}

BladStartu::BladStartu(int krok, const QString& przyczyna)
    : Blad(QStringLiteral("Procedura 'PStart': błąd w lini: ") + QString::number(krok) +
           QStringLiteral("\n\n") + przyczyna) {}

Program::Program(const QString& sciezka, const QString& folderProgramu, Rozmowa& rozmowa) {
    int krok = 1;
    try {
        sesja_ = std::make_unique<Sesja>(sciezka);
        ++krok;
        skladniki_.WczytajSkladnikiPlac(*sesja_);
        ++krok;
        WczytajKonfiguracje(*sesja_, stale_, folderProgramu);
        ++krok;
        InitUzytkownicy(*sesja_);
    } catch (const Blad& blad) {
        throw BladStartu(krok, blad.komunikat());
    }
    if (const auto& zmiana = sesja_->zmianaWersji())
        rozmowa.komunikat(
            QStringLiteral("Baza danych została przystosowana do tej wersji programu. Poprzednia "
                           "baza danych jest w pliku „%1”.")
                .arg(zmiana->kopia),
            Styl::Informacja);
    otoczenie_ = std::make_unique<Otoczenie>(Otoczenie{*sesja_, stale_, skladniki_, rozmowa});
}

namespace {

/// The catalogue of a new database: one line a component, flags and codes as a firm of 2001 has them.
void wypelnijSkladniki(Sesja& sesja) {
    udostepnijDane();
    QFile plik(QStringLiteral(":/dane/skladniki.csv"));
    if (!plik.open(QIODevice::ReadOnly)) throw Blad(QStringLiteral("Brak szablonu składników płac."));
    const QStringList linie = QString::fromUtf8(plik.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    Recordset& szPl = sesja.rsSZ_PL;
    const QStringList nazwy = linie.first().trimmed().split(QLatin1Char(';'));
    for (const QString& linia : linie.mid(1)) {
        const QStringList pola = linia.trimmed().split(QLatin1Char(';'));
        szPl.AddNewZero(pola.value(0).toInt());
        for (qsizetype i = 1; i < nazwy.size(); ++i)
            szPl.ustaw(schemat::SZ_PL.nr(schemat::SZ_PL.numer(nazwy[i].toStdString())), pola.value(i));
    }
    szPl.UpdateBatch(u"Składniki płac nowej bazy");
}

} // namespace

void UtworzBazeZSzablonu(const QString& sciezka, const QString& folderProgramu, Rozmowa& rozmowa) {
    UtworzBaze(sciezka);
    try {
        {
            Sesja sesja(sciezka);
            wypelnijSkladniki(sesja);
        }
        const Program program(sciezka, folderProgramu, rozmowa); // the first start fills constants and users
    } catch (...) {
        QFile::remove(sciezka);
        throw;
    }
}

} // namespace tornel::start
