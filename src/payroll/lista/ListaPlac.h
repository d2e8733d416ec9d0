// The open payroll list of a month: its rows, adding and removing employees, hand edits with what is computed
// after them, and calculations for one row or a batch.
#pragma once
#include "common/Rozmowa.h"
#include "payroll/lista/Naliczanie.h"
#include "payroll/lista/OdpowiedziSerii.h"
#include "payroll/lista/PolaListy.h"
#include "payroll/lista/Pozycje.h"
#include "rules/Otoczenie.h"
#include "store/RaportSerii.h"
#include <functional>
#include <QList>
#include <QString>
#include <QStringList>

namespace tornel::payroll {

/// What names a row: the four tables' common key.
struct KluczListy {
    qint64 prcId = 0;
    QString lista;
    friend bool operator==(const KluczListy&, const KluczListy&) = default;
};

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
    [[nodiscard]] const SumyWiersza& sumy() const { return naliczanie_.sumy(); }

    /// The list's rows in the order "PRC_ID, LISTA". When no row has the list's symbol, asks whether to make
    /// the list; on No the symbol becomes a blank. Reads `PLA`.
    [[nodiscard]] QList<LiniaListy> Wczytaj_listep();

    /// Takes up a row: moves the four month handles and the personnel handles to it. Says so when the
    /// employee has left the personnel file or a table has no partner row (critical); the rest is shown all
    /// the same. False when `PLA` itself has no such row.
    bool Wypisz_daneP(const KluczListy& klucz);
    /// The row taken up; none at the start, after a deletion and after a batch.
    [[nodiscard]] const std::optional<KluczListy>& wiersz() const { return wiersz_; }

    // Adding and removing. Each is one action; a blocked month throws `Blad`.

    /// Adds the employee with his components and days, without computing the row; the handles stand on it.
    /// Nothing (after a message) if he is on the list already. Reads the personnel tables; writes `PLA`,
    /// `PLB`, `PLS`, `PLD`. Throws `Blad` for an unknown employee.
    std::optional<KluczListy> Nowy_prac(qint64 prcId);
    /// Adds and computes all given employees as one batch: questions once, progress with cancel, an employee
    /// whose calculation fails is left out and named in the report. The whole batch is one write.
    RaportSerii DodajPracownikow(const QList<qint64>& numery);
    /// Asks and deletes the four records of the row taken up. False on No.
    bool Usun_prac();

    // Calculations. One that fails leaves the row as it was and throws `Blad` with the employee and the
    // cause.

    /// `Przelicz_Dni` of the row taken up, saved.
    void Przelicz_Dni();
    /// `Przelicz2` of the row taken up, saved.
    void Przelicz2();
    /// `Przelicz1` of the row taken up, saved.
    void Przelicz1();
    /// The same for many rows as a batch; a row whose calculation fails stays as it was.
    RaportSerii PrzeliczSerie(Obliczenie obliczenie, const QList<KluczListy>& wiersze);

    // Hand edits of the row taken up. Each is one action, saved when the procedure returns.

    /// An amount of `PLA` or `PLB`, followed by its chain. False when the clerk refused the new amount, and
    /// the old one stands.
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

    /// The month sums over all lists, written to `PLACE`; not for a blocked month. Reads `PLA`, `PLB`.
    void ZapiszSumy();

private:
    void Pobierz_Akt();
    void wymagajOtwartego() const;
    void wymagajWiersza();
    void wymagajPracownika(qint64 prcId) const;
    void zapiszWiersz();
    void zmienWiersz(const std::function<void()>& zmiana);
    void obliczWiersz(const std::function<void()>& obliczenie);
    [[nodiscard]] bool naLiscie(qint64 prcId, const QString& lista);
    [[nodiscard]] QString symbolNowegoWiersza() const;
    void dodajRekordy(qint64 prcId, const QString& lista, Tryb tryb);
    void przepiszIloscZasilkow(Tryb tryb);
    void wykonajLancuch(Lancuch lancuch);
    void pytajOSkladkePPE();
    [[nodiscard]] bool przyjmijPrzelew(Waluta kwota);
    void ustawNa(const KluczListy& klucz);
    RaportSerii wykonajSerie(const QString& tytul, qsizetype ile,
                             const std::function<qint64(qsizetype)>& numer,
                             const std::function<bool(qsizetype)>& krok);

    Otoczenie& o_;
    int rok_;
    int mies_;
    QString symbol_;
    bool zablokowany_ = false;
    Pozycje pozycje_;
    OdpowiedziSerii odpowiedzi_;
    Naliczanie naliczanie_;
    std::optional<KluczListy> wiersz_;
};

} // namespace tornel::payroll
