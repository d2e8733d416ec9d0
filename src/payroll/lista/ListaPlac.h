// The open payroll list of a month: its rows, adding and removing employees, hand edits with what is computed
// after them, and calculations for one row or a batch.
#pragma once
#include "payroll/lista/PolaListy.h"
#include "payroll/lista/Pozycje.h"
#include "payroll/lista/SumyMiesiaca.h"
#include "payroll/lista/ZrodlaPlac.h"
#include "rules/Otoczenie.h"
#include "store/RaportSerii.h"
#include <functional>
#include <QList>
#include <QString>

namespace tornel::store {
class Transakcja;
} // namespace tornel::store

namespace tornel::payroll {

/// One line of the list.
struct LiniaListy {
    KluczListy klucz;
    QString nazwisko;
    QString imie;
};

enum class Obliczenie {
    PoliczenieDni, ///< `Przelicz_Dni`: the month's days by kind
    Przepisanie,   ///< `Przelicz2`: components anew from the personnel file
    Przeliczenie,  ///< `Przelicz1`: bases, contributions, tax, amount to pay
};

class ListaPlac {
public:
    /// Opens the month's four tables. `symbol` is the list's symbol, a blank for all lists. `wykazy`, if any,
    /// lets the clerk correct averages while one row is computed; it outlives the list. Throws `Blad` when
    /// the month does not exist or one of its tables is missing.
    ListaPlac(Otoczenie& otoczenie, int rok, int mies, const QString& symbol,
              WykazyPodstaw* wykazy = nullptr);
    ~ListaPlac();
    ListaPlac(const ListaPlac&) = delete;
    ListaPlac& operator=(const ListaPlac&) = delete;

    /// "Lista plac za miesiąc 07.2001", with the symbol and the mark of a blocked month.
    [[nodiscard]] QString tytul() const;
    [[nodiscard]] bool zablokowany() const { return zablokowany_; }
    [[nodiscard]] const QString& symbol() const { return symbol_; }
    [[nodiscard]] const Pozycje& pozycje() const { return pozycje_; }
    /// The sums of the row in work, as the last calculation left them.
    [[nodiscard]] const SumyWiersza& sumy() const { return sumy_; }

    /// The list's rows in the order "PRC_ID, LISTA". When no row has the list's symbol, asks whether to make
    /// the list; on No the symbol becomes a blank. Reads `PLA`.
    [[nodiscard]] QList<LiniaListy> Wczytaj_listep();

    /// Takes up a row: moves the four month handles and the personnel handles to it. Says so when the
    /// employee has left the personnel file or a table has no partner row (critical); the rest is shown all
    /// the same. False when `PLA` itself has no such row.
    bool Wypisz_daneP(const KluczListy& klucz);
    /// The row taken up; none at the start, after a deletion and after a batch.
    [[nodiscard]] const std::optional<KluczListy>& wiersz() const { return wiersz_; }

    // Adding, removing, computing. Each is one action; a blocked month throws `Blad`. The questions of an
    // action are settled before it begins: when the clerk cancels them nothing changes. What was left out is
    // told when the action is done.

    /// Adds the employee with his components and days, without computing the row; the handles stand on it.
    /// Nothing (after a message) if he is on the list already, or when the questions were cancelled. Reads
    /// the personnel tables; writes `PLA`, `PLB`, `PLS`, `PLD`. Throws `Blad` for an unknown employee.
    std::optional<KluczListy> Nowy_prac(qint64 prcId);
    /// Adds and computes all given employees as one batch: an employee whose calculation fails is left out
    /// and named in the report. Cancelled questions give a report of a stopped batch. The month's sums are
    /// stored with the batch.
    RaportSerii DodajPracownikow(const QList<qint64>& numery);
    /// Asks and deletes the records of the row taken up. False on No.
    bool Usun_prac();

    // Calculations of the row taken up, saved. False when the questions were cancelled, or when the clerk
    // keeps the component amounts that he typed. One that fails leaves
    // the row as it was and throws `Blad` with the employee and the cause.

    bool Przelicz_Dni() { return przelicz(Obliczenie::PoliczenieDni); }
    bool Przelicz2() { return przelicz(Obliczenie::Przepisanie); }
    bool Przelicz1() { return przelicz(Obliczenie::Przeliczenie); }
    /// The same for many rows as a batch; a row whose calculation fails stays as it was, and so does one with
    /// typed component amounts that the clerk keeps. Several calculations are carried out one behind the
    /// other on each row, in one action and with one set of questions; typed amounts then keep back the
    /// refill alone.
    RaportSerii PrzeliczSerie(const QList<Obliczenie>& obliczenia, const QList<KluczListy>& wiersze);
    RaportSerii PrzeliczSerie(Obliczenie obliczenie, const QList<KluczListy>& wiersze) {
        return PrzeliczSerie(QList{obliczenie}, wiersze);
    }

    // Hand edits of the row taken up. Each is one action, saved when the procedure returns.

    /// An amount of `PLA` or `PLB`, followed by its chain. False when the clerk refused the new amount or
    /// cancelled the questions, and the old one stands.
    bool ZmienKwote(const PoleListy& pole, Waluta kwota);
    /// Saves the components (`PLS`) typed into the row in memory.
    void WpiszSK();
    /// Saves the periods (`PLD`) typed into the row in memory.
    void WpiszDatyGr();
    /// Saves the days, benefit counts and transfer marks (`PLA`, `PLB`) typed into the row in memory; `dn_pr`
    /// becomes the working days, Saturdays and Sundays together.
    void WpiszDni();
    /// Whether working days, Saturdays, Sundays, vacation, sick and other free days make up the whole month.
    [[nodiscard]] bool DniZgodneZMiesiacem() const;
    /// Drops what was typed into the row in memory and not saved.
    void CofnijWiersz();

    /// The month sums over all lists, should `PLACE` not hold them: every action that changes rows has stored
    /// them, but an import has not. Not for a blocked month. Throws `Przepelnienie` when they cannot be
    /// expressed.
    void ZapiszSumy();

private:
    void Pobierz_Akt();
    void wymagajOtwartego() const;
    void wymagajWiersza();
    void wymagajPracownika(qint64 prcId) const;
    void ustawNa(const KluczListy& klucz);
    void szukajWiersza(const KluczListy& klucz);
    [[nodiscard]] bool naLiscie(const KluczListy& klucz) const;
    [[nodiscard]] QString symbolNowegoWiersza(const QString& wlasna) const;
    [[nodiscard]] MiesiacPlac miesiac() const { return {{rok_, mies_}, o_.stale, pozycje_}; }

    [[nodiscard]] std::optional<Waluta> zapisanyZasilek(const KluczListy& klucz) const;
    [[nodiscard]] RachunekWiersza nowyRachunek(const AkcjaPlac& akcja, const KluczListy& klucz,
                                               const DanePracownika& pracownik);
    [[nodiscard]] ZbiorPytan pytaniaWiersza(Obliczenie obliczenie, const WierszPlac& wiersz);
    [[nodiscard]] ZbiorPytan pytaniaDodawania(const QList<qint64>& numery);
    [[nodiscard]] ZbiorPytan pytaniaSerii(const QList<Obliczenie>& obliczenia,
                                          const QList<KluczListy>& wiersze);
    void dodajPytania(Obliczenie obliczenie, const KluczListy& klucz, ZbiorPytan& moga);
    bool przeliczWSerii(const QList<Obliczenie>& obliczenia, const KluczListy& klucz, const AkcjaPlac& akcja,
                        ListaUwag& uwagi);
    void wykonajObliczenie(Obliczenie obliczenie, const AkcjaPlac& akcja, RachunekWiersza& rachunek);
    bool przelicz(Obliczenie obliczenie);
    [[nodiscard]] bool przeliczWiersz(Obliczenie obliczenie);
    [[nodiscard]] bool policzLancuch(Kroki kroki, RachunekWiersza& rachunek);
    void pytajOSkladkePPE(WierszPlac& wiersz);
    [[nodiscard]] bool przyjmijPrzelew(WierszPlac& wiersz);

    void wpiszZasilek(const RachunekWiersza& rachunek);
    void wpiszObliczenia(const QList<Obliczenie>& wykonane, const WierszPlac& przedtem,
                         const RachunekWiersza& rachunek);
    [[nodiscard]] bool saWpisane(const KluczListy& klucz);
    void zapiszRekordy(const Transakcja& akcja);
    void zapiszSumyMiesiaca(const Transakcja& akcja);
    /// Runs a writing of rows and sums; after a failure the sums are added up anew.
    void zSumami(const std::function<void()>& zapis);
    void zapiszWiersz(const KluczListy& klucz, const std::function<void()>& zmiana);
    void pokazUwagi(const ListaUwag& uwagi);

    struct Seria {
        qsizetype ile = 0;
        std::function<qint64(qsizetype i)> numer;
        std::function<ZbiorPytan()> pytania;
        /// Computes item `i` in memory; false when there is nothing to do.
        std::function<bool(qsizetype i, const AkcjaPlac& akcja, ListaUwag& uwagi)> krok;
    };
    RaportSerii wykonajSerie(const QString& czynnosc, const Seria& seria);

    Otoczenie& o_;
    int rok_;
    int mies_;
    QString symbol_;
    bool zablokowany_ = false;
    Pozycje pozycje_;
    ZrodlaPlac zrodla_;
    std::optional<KluczListy> wiersz_;
    SumyWiersza sumy_;
    SumyMiesiaca sumyMiesiaca_;
};

} // namespace tornel::payroll
