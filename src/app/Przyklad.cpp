#include "app/Przyklad.h"
#include "app/PracownicyPrzykladu.h"
#include "app/Rozruch.h"
#include "common/Blad.h"
#include "common/Csv.h"
#include "common/Daty.h"
#include "payroll/ListaPlac.h"
#include "payroll/Miesiace.h"
#include "rules/Konfiguracja.h"
#include "store/TabelaCsv.h"
#include <QFile>
#include <QFileInfo>

using schemat::PLA;
using schemat::PRACPR;

namespace {

constexpr int kRok = 2001;

/// Says Yes, but for the report to the insurer: the staff was reported long ago, and whoever is new says so
/// in his own data.
class RozmowaPrzykladu : public Rozmowa {
public:
    void komunikat(const QString&, Styl, const QString&) override {}
    [[nodiscard]] bool pytanie(const QString& tekst, const QString&) override {
        return !tekst.startsWith(QStringLiteral("Został zarejestrowany nowy pracownik."));
    }
    [[nodiscard]] std::optional<QString> wprowadz(const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
    [[nodiscard]] std::unique_ptr<Postep> postep(const QString&, int) override {
        class Cichy : public Postep {
            [[nodiscard]] bool krok(int, const QString&) override { return true; }
        };
        return std::make_unique<Cichy>();
    }
};

QByteArray dane(const QString& nazwa) {
    QFile plik(QStringLiteral(":/dane/przyklad/%1.csv").arg(nazwa));
    if (!plik.open(QIODevice::ReadOnly))
        throw Blad(QStringLiteral("Brak danych firmy przykładowej: %1.").arg(nazwa));
    return plik.readAll();
}

/// The header and the lines whose first field is an employee's number up to `ile`.
QByteArray danePracownikow(const QString& nazwa, int ile) {
    QByteArray wynik;
    for (const QByteArray& linia : dane(nazwa).split('\n')) {
        if (linia.isEmpty()) continue;
        const QByteArray numer = linia.left(linia.indexOf(';'));
        if (wynik.isEmpty() || numer.toInt() <= ile) wynik += linia + '\n';
    }
    return wynik;
}

void wczytaj(Sesja& sesja, const QString& tabela, const QByteArray& csv) {
    (void)ImportujTabele(sesja.cnPlace, ZnajdzTabele(sesja.cnPlace, tabela), csv);
}

void ustawFirme(Otoczenie& o) {
    for (const WierszCsv& stala : CzytajCsv(dane(QStringLiteral("stale"))).mid(1))
        UstawStala(o.sesja, o.stale, stala.pola.value(0).toInt(), stala.pola.value(1));
    for (const QString& tabela : {QStringLiteral("US"), QStringLiteral("KONTA"), QStringLiteral("M_PRACY")})
        wczytaj(o.sesja, tabela, dane(tabela));
}

void zatrudnij(Otoczenie& o, int ile) {
    const int opisanych = std::min(ile, kPracownikowPrzykladu);
    const QString osobowe = QStringLiteral("PRACDP");
    Pracownicy pracownicy(o);
    for (const WierszCsv& osoba : CzytajCsv(danePracownikow(osobowe, opisanych)).mid(1))
        pracownicy.NowyPracownik({osoba.pola.value(0).toInt(), osoba.pola.value(1), osoba.pola.value(2)});
    for (const QString& tabela :
         {osobowe, QStringLiteral("PRACPR"), QStringLiteral("PRACSK"), QStringLiteral("PRACZUS"),
          QStringLiteral("PRACINF"), QStringLiteral("RODZINA")})
        wczytaj(o.sesja, tabela, danePracownikow(tabela, opisanych));
    o.sesja.OdswiezUchwyty();
    if (ile > opisanych) DodajPracownikowPrzykladu(o.sesja, opisanych + 1, ile);
}

/// Who is on the month's payroll: employed by its last day and not dismissed before its first.
QList<qint64> zatrudnieni(Sesja& sesja, int mies) {
    QList<qint64> wynik;
    Recordset& pr = sesja.rsPRACPR;
    for (pr.MoveFirst(); !pr.EOF_(); pr.MoveNext()) {
        const QDate zwolniony = pr.data(PRACPR("data_zwoln"));
        if (pr.data(PRACPR("data_zatr")) <= OstatniDzien(kRok, mies) &&
            (!zwolniony.isValid() || zwolniony >= PierwszyDzien(kRok, mies)))
            wynik.append(pr.liczba(PRACPR("prc_id")));
    }
    return wynik;
}

/// The whole pay of those who have it sent to their account.
void przeznaczNaPrzelewy(Sesja& sesja) {
    Recordset& pla = sesja.rsPLA;
    for (pla.MoveFirst(); !pla.EOF_(); pla.MoveNext())
        if (sesja.rsPRACPR.Znajdz(pla.liczba(PLA("PRC_ID"))) && sesja.rsPRACPR.flaga(PRACPR("czy_konto")))
            pla.ustaw(PLA("PRZELEWEM"), pla.kwota(PLA("DO_WYPLATY")));
    pla.UpdateBatch();
}

void policzMiesiac(Otoczenie& o, int mies) {
    Miesiace miesiace(o);
    (void)miesiace.Nowy_miesiac([mies] { return RokMies{kRok, mies}; });
    ListaPlac lista(o, kRok, mies, QStringLiteral(" "));
    const RaportSerii raport = lista.DodajPracownikow(zatrudnieni(o.sesja, mies));
    if (!raport.niepowodzenia.isEmpty()) throw Blad(raport.tekst());
    przeznaczNaPrzelewy(o.sesja);
    lista.ZapiszSumy();
}

void utworzFirme(const QString& sciezka, int pracownikow, int miesiecy, const QString& folderProgramu) {
    RozmowaPrzykladu rozmowa;
    UtworzBazeZSzablonu(sciezka, folderProgramu, rozmowa);
    Program program(sciezka, folderProgramu, rozmowa);
    Otoczenie& o = program.otoczenie();
    {
        Transakcja transakcja(o.sesja.cnPlace);
        ustawFirme(o);
        zatrudnij(o, pracownikow);
        transakcja.zatwierdz();
    }
    for (int mies = 1; mies <= miesiecy; ++mies) {
        policzMiesiac(o, mies);
        if (mies < miesiecy) (void)Miesiace(o).BlokadaMies({kRok, mies});
    }
}

} // namespace

void UtworzPrzyklad(const QString& sciezka, int liczbaPracownikow, int miesiecy,
                    const QString& folderProgramu) {
    if (liczbaPracownikow < 1 || liczbaPracownikow > kNajwiecejPracownikow || miesiecy < 0 || miesiecy > 12)
        throw Blad(QStringLiteral("Firma przykładowa ma od 1 do %1 pracowników i od 0 do 12 miesięcy.")
                       .arg(kNajwiecejPracownikow));
    if (QFileInfo::exists(sciezka))
        throw Blad(
            QStringLiteral("Plik „%1” już istnieje. Firma przykładowa nie została utworzona.").arg(sciezka));
    const QString robocza = sciezka + QStringLiteral(".nowa");
    const auto usunRoboczy = [&robocza] {
        // The journal with it: a stale one would be played back into the next file of this name.
        for (const QString& plik : {robocza, robocza + QStringLiteral("-journal")}) QFile::remove(plik);
    };
    usunRoboczy();
    try {
        utworzFirme(robocza, liczbaPracownikow, miesiecy, folderProgramu);
        if (!QFile::rename(robocza, sciezka))
            throw Blad(QStringLiteral("Nie można utworzyć pliku „%1”.").arg(sciezka));
    } catch (...) {
        usunRoboczy();
        throw;
    }
    usunRoboczy();
}
