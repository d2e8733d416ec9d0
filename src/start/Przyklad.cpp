#include "start/Przyklad.h"
#include "common/Blad.h"
#include "common/Csv.h"
#include "common/Daty.h"
#include "payroll/lista/ListaPlac.h"
#include "payroll/miesiace/Miesiace.h"
#include "payroll/nadgodziny/ListaNadgodzin.h"
#include "payroll/nadgodziny/Nadgodziny.h"
#include "personnel/Kalendarz.h"
#include "rules/Konfiguracja.h"
#include "start/NieobecnosciPrzykladu.h"
#include "start/PracownicyPrzykladu.h"
#include "start/Rozruch.h"
#include "start/UmowyOPracePrzykladu.h"
#include "start/UmowyPrzykladu.h"
#include "store/TabelaCsv.h"
#include <QFile>
#include <QFileInfo>

namespace tornel::start {

using schemat::PLA;
using schemat::PRACPR;

namespace {

constexpr int kRok = 2001;
/// The months of the year before that the first averages are made of.
constexpr RokMies kHistoria[] = {{kRok - 1, 10}, {kRok - 1, 11}, {kRok - 1, 12}};
/// Hours of overtime in a group, of somebody in a month.
struct Nadgodzina {
    int mies;
    int prcId;
    int grupa;
    const char16_t* godziny;
};
constexpr Nadgodzina kNadgodziny[] = {
    {2, 4, 1, u"8"}, {2, 6, 1, u"6"}, {2, 6, 2, u"4"}, {3, 6, 1, u"5,5"}, {3, 10, 1, u"3"}};

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

/// The year's general calendar and the absences of the employees.
void wpiszNieobecnosci(Otoczenie& o, int ile) {
    for (const auto& [rok, mies] : kHistoria)
        (void)Kalendarz(o).Nowy_dniwolne({kKalendarzOgolny, rok, mies}, Swieta::Zaznaczone);
    for (int mies = 1; mies <= 12; ++mies)
        (void)Kalendarz(o).Nowy_dniwolne({kKalendarzOgolny, kRok, mies}, Swieta::Zaznaczone);
    const int opisanych = std::min(ile, kPracownikowPrzykladu);
    for (const QString& tabela : {QStringLiteral("URL"), QStringLiteral("ZW")})
        wczytaj(o.sesja, tabela, danePracownikow(tabela, opisanych));
    if (ile > opisanych) DodajNieobecnosciPrzykladu(o, opisanych + 1, ile);
}

/// Who is on the month's payroll: employed by its last day and not dismissed before its first.
QList<qint64> zatrudnieni(Sesja& sesja, RokMies miesiac) {
    QList<qint64> wynik;
    Recordset& pr = sesja.rsPRACPR;
    for (pr.MoveFirst(); !pr.EOF_(); pr.MoveNext()) {
        const QDate zwolniony = pr.data(PRACPR("data_zwoln"));
        if (pr.data(PRACPR("data_zatr")) <= OstatniDzien(miesiac.rok, miesiac.mies) &&
            (!zwolniony.isValid() || zwolniony >= PierwszyDzien(miesiac.rok, miesiac.mies)))
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
    pla.UpdateBatch(u"Przelewy firmy przykładowej");
}

/// The month's overtime, of those whom the firm has.
void wpiszNadgodziny(Otoczenie& o, RokMies miesiac) {
    std::optional<ListaNadgodzin> lista;
    for (const Nadgodzina& n : kNadgodziny) {
        if (RokMies{kRok, n.mies} != miesiac || !o.sesja.UstawPracownika(n.prcId)) continue;
        if (!lista) {
            (void)payroll::Nadgodziny(o).NowaLista([&] { return miesiac; });
            lista.emplace(o, miesiac);
        }
        if (!lista->WypiszNadgodziny(n.prcId)) {
            (void)lista->NowaOsoba(n.prcId);
            (void)lista->WypiszNadgodziny(n.prcId);
        }
        (void)lista->ZmienGodziny(0, n.grupa, QString::fromUtf16(n.godziny));
    }
}

void policzMiesiac(Otoczenie& o, RokMies miesiac) {
    Miesiace miesiace(o);
    (void)miesiace.Nowy_miesiac([miesiac] { return miesiac; });
    wpiszNadgodziny(o, miesiac);
    ListaPlac lista(o, miesiac.rok, miesiac.mies, QStringLiteral(" "));
    const RaportSerii raport = lista.DodajPracownikow(zatrudnieni(o.sesja, miesiac));
    if (!raport.niepowodzenia.isEmpty()) throw Blad(raport.tekst());
    przeznaczNaPrzelewy(o.sesja);
    lista.ZapiszSumy();
}

void utworzFirme(const QString& sciezka, int pracownikow, int miesiecy, const QString& folderProgramu) {
    RozmowaPrzykladu rozmowa;
    UtworzBazeZSzablonu(sciezka, folderProgramu, rozmowa);
    Program program(sciezka, folderProgramu, rozmowa);
    Otoczenie& o = program.otoczenie();
    o.sesja.cnPlace.WylaczDziennik(); // the journal is the clerk's
    {
        Transakcja transakcja(o.sesja.cnPlace, u"Firma przykładowa");
        ustawFirme(o);
        zatrudnij(o, pracownikow);
        wpiszNieobecnosci(o, pracownikow);
        DodajUmowyPrzykladu(o, pracownikow);
        DodajUmowyOPracePrzykladu(o, pracownikow);
        transakcja.zatwierdz();
    }
    QList<RokMies> miesiace;
    if (miesiecy > 0) miesiace.append(QList<RokMies>(std::begin(kHistoria), std::end(kHistoria)));
    for (int mies = 1; mies <= miesiecy; ++mies) miesiace.append({kRok, mies});
    for (const RokMies miesiac : std::as_const(miesiace)) {
        policzMiesiac(o, miesiac);
        if (miesiac != miesiace.last()) (void)Miesiace(o).BlokadaMies(miesiac);
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

} // namespace tornel::start
