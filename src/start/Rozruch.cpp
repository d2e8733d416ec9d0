#include "start/Rozruch.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "rules/Konfiguracja.h"
#include "start/Archiwum.h"
#include "start/BazaIni.h"
#include "start/Uzytkownicy.h"
#include "store/StanPliku.h"
#include "store/Struktura.h"
#include "store/ZapisDziennika.h"
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
    if (const auto ini = CzytajBazeIni(folderProgramu)) {
        if (!ini->baza.isEmpty() && QFileInfo(ini->baza).isFile()) return ini->baza;
        rozmowa.komunikat(QStringLiteral("Nie można znaleźć bazy podadnej w pliku Baza.ini"),
                          Styl::Krytyczny);
    }
    return folder.filePath(QStringLiteral("Tornel.mdb"));
}

BladStartu::BladStartu(int krok, const QString& przyczyna)
    : Blad(QStringLiteral("Procedura 'PStart': błąd w lini: ") + QString::number(krok) +
           QStringLiteral("\n\n") + przyczyna) {}

namespace {

/// Stands beside the database while a program works on it; one that is there at a start tells of a program
/// that was killed.
QString znakPracy(const QString& baza) { return baza + QStringLiteral("-praca"); }

/// What a start is about to clear up.
struct Pozostalosci {
    bool praca = false;        ///< the program did not end
    bool czynnosc = false;     ///< an action stands in the file half done
    bool przywracanie = false; ///< an archive was being restored

    [[nodiscard]] QString opis() const {
        if (przywracanie)
            return QStringLiteral(
                "Przerwane przywracanie archiwum zostało dokończone. Poprzednia baza jest w "
                "kopii obok.");
        if (czynnosc)
            return QStringLiteral(
                "Poprzednia praca została przerwana w trakcie zapisu. Niedokończona czynność "
                "została cofnięta, wcześniejsze są zapisane.");
        if (praca)
            return QStringLiteral(
                "Poprzednia praca została przerwana. Wszystkie zapisane czynności są w bazie, "
                "nic nie zginęło.");
        return {};
    }
};

void wymagajBudowy(Polaczenie& polaczenie) {
    if (const QStringList braki = BrakiBudowy(polaczenie.uchwyt()); !braki.isEmpty())
        throw BladBazy(QStringLiteral("Baza danych „%1” jest niekompletna.").arg(polaczenie.sciezka()));
}

} // namespace

QString ZaleceniePrzyStarcie(const QString& sciezka) {
    const QString zArchiwum =
        QStringLiteral("Przywróć ostatnie archiwum: polecenia „tornel-cli archiwum lista” i "
                       "„tornel-cli archiwum przywroc”.");
    const ZbadanyPlik plik = ZbadajPlik(sciezka);
    switch (plik.stan) {
    case StanPliku::Brak:
        return QStringLiteral(
                   "Sprawdź, czy plik leży tam, gdzie wskazuje Baza.ini, a bez niej obok programu. ") +
               zArchiwum;
    case StanPliku::Zajety:
        return QStringLiteral("Zamknij program, który pracuje na tym pliku, i uruchom ten jeszcze raz.");
    case StanPliku::BezZapisu:
        return QStringLiteral(
            "Nadaj sobie prawo zapisu do pliku i do jego katalogu i uruchom program jeszcze raz.");
    case StanPliku::NieBaza:
        return QStringLiteral("Sprawdź, jaki plik wskazuje Baza.ini. ") + zArchiwum;
    case StanPliku::Nowszy:
        return QStringLiteral("Zainstaluj nowszy program albo wskaż inną bazę w pliku Baza.ini.");
    case StanPliku::Uszkodzony:
        return QStringLiteral("Nie pracuj na tym pliku. ") + zArchiwum +
               QStringLiteral("\nUszkodzone lub niepełne tabele:\n") + plik.tabele.join(u'\n');
    case StanPliku::Dobry:
        break;
    }
    return QStringLiteral("Plik bazy jest cały. Uruchom program jeszcze raz.");
}

Program::Program(const QString& sciezka, const QString& folderProgramu, Rozmowa& rozmowa,
                 const std::function<void(Polaczenie&)>& przedTabelami)
    : sciezka_(sciezka) {
    int krok = 1;
    try {
        const Pozostalosci pozostalosci{
            QFileInfo::exists(znakPracy(sciezka)),
            QFileInfo(sciezka + QStringLiteral("-journal")).size() > 0,
            DokonczPrzywracanie(sciezka),
        };
        sesja_ = std::make_unique<Sesja>(sciezka, [&](Polaczenie& polaczenie) {
            if (przedTabelami) przedTabelami(polaczenie);
            wymagajBudowy(polaczenie);
        });
        znalezione_ = pozostalosci.opis();
        QFile(znakPracy(sciezka)).open(QIODevice::WriteOnly);
        ++krok;
        skladniki_.WczytajSkladnikiPlac(*sesja_);
        ++krok;
        WczytajKonfiguracje(*sesja_, stale_, folderProgramu);
        ++krok;
        InitUzytkownicy(*sesja_);
        // What the start itself fills in is nobody's action.
        sesja_->cnPlace.WlaczDziennik();
        sesja_->cnPlace.dziennik()->UstawUzytkownika([s = sesja_.get()] { return s->uzytkownik.nazwa; });
    } catch (const Blad& blad) {
        const bool otwarta = sesja_ != nullptr;
        sesja_.reset();
        if (otwarta) QFile::remove(znakPracy(sciezka));
        throw BladStartu(krok, blad.komunikat() + QStringLiteral("\n\n") + ZaleceniePrzyStarcie(sciezka));
    }
    if (const auto& zmiana = sesja_->zmianaWersji())
        rozmowa.komunikat(
            QStringLiteral("Baza danych została przystosowana do tej wersji programu. Poprzednia "
                           "baza danych jest w pliku „%1”.")
                .arg(zmiana->kopia),
            Styl::Informacja);
    otoczenie_ = std::make_unique<Otoczenie>(Otoczenie{*sesja_, stale_, skladniki_, rozmowa});
}

Program::~Program() {
    otoczenie_.reset();
    sesja_.reset();
    QFile::remove(znakPracy(sciezka_));
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
