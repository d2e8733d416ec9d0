// The personnel file without windows: who is in it, new employees with their defaults, deletion, and whom the
// person picker offers.
#pragma once
#include "rules/Otoczenie.h"
#include "store/Tabela.h"
#include <optional>
#include <QDate>
#include <QList>
#include <QString>

namespace tornel::store {
class Recordset;
} // namespace tornel::store

namespace tornel::personnel {

/// The list's filter, by the menu that opened it.
enum class FiltrPracownikow { Wszyscy, Pracujacy, Zwolnieni, UmowaZlecenie, UmowaODzielo, Honoraria };

/// "Według nazwisk" (Polish collation) or "Według numerów".
enum class PorzadekPracownikow { Nazwiska, Numery };

/// What becomes of the dismissed in a list of persons.
enum class Zwolnieni { Pominieci, Takze, Tylko };

struct Osoba {
    qint64 prcId = 0;
    QString nazwisko;
    QString imie;
    QString dzial;
    bool zwolniony = false;
};

/// A department and how many employees it has; an empty name for those who are in none.
struct DzialFirmy {
    QString nazwa;
    qint64 pracownikow = 0;
};

/// What registers a new employee.
struct DaneNowegoPracownika {
    qint64 prcId = 0;
    QString nazwisko;
    QString imie;
};

/// Employee numbers go from 1 to this.
inline constexpr qint64 kNajwyzszyNumer = 99999;

class Pracownicy {
public:
    explicit Pracownicy(Otoczenie& otoczenie) : o_(otoczenie) {}

    /// The employees that pass the filter. Reads `PRACDP`, `PRACPR`.
    [[nodiscard]] QList<Osoba> lista(FiltrPracownikow filtr, PorzadekPracownikow porzadek) const;

    /// The title of the list with this filter.
    [[nodiscard]] static QString tytulListy(FiltrPracownikow filtr);
    /// Whom a search over the list finds: a text that reads as a number is a number, any other the beginning
    /// of "Naz Imie_1", else a part of it, whatever the case. The first that fits, -1 for nobody.
    [[nodiscard]] static qint64 szukaj(const QList<Osoba>& osoby, const QString& szukany);

    /// Whom the person picker offers: mode 1 working employees; 2, 4 and 8 those of them with `umowa_zlec`,
    /// `umowa_o_dz`, `honorarium` "T"; the dismissed if they are wanted. By surname. Reads `PRACDP`,
    /// `PRACPR`.
    [[nodiscard]] QList<Osoba> doWyboru(int tryb, Zwolnieni zwolnieni = Zwolnieni::Pominieci) const;
    /// The message for an empty list of the picker, empty for a mode without one.
    [[nodiscard]] static QString komunikatPustejListy(int tryb);

    /// The departments that employees are in, by name. Reads `PRACPR`.
    [[nodiscard]] QList<DzialFirmy> dzialy() const;
    /// Who was employed on some day from `od` to `dokad`, by surname: since `data_zatr`, or always without
    /// it, until `data_zwoln`; a dismissed one without that date never. Reads `PRACDP`, `PRACPR`.
    [[nodiscard]] QList<qint64> zatrudnieni(QDate od, QDate dokad) const;
    /// Those among `numery`, in their order, who were.
    [[nodiscard]] QList<qint64> zatrudnieniSposrod(const QList<qint64>& numery, QDate od, QDate dokad) const;

    /// The highest used number plus one.
    [[nodiscard]] qint64 proponowanyNumer() const;
    /// Whether the number is in use. Reads `PRACDP`.
    [[nodiscard]] bool istnieje(qint64 prcId) const;
    /// "Naz Imie_1"; empty for an unknown number.
    [[nodiscard]] QString nazwisko(qint64 prcId) const;

    /// Asks whether the new employee will be reported to the social and the health insurance and adds one
    /// record to each of `PRACDP`, `PRACPR`, `PRACINF`, `PRACSK`, `PRACZUS` with the defaults: texts empty,
    /// amounts 0, flags "N", sex "M", rates from constants 20 to 25, component masks from the catalogue. The
    /// handles stand on the new employee. Throws `Blad` for an empty surname, a number out of 1 to
    /// `kNajwyzszyNumer` or one in use.
    void NowyPracownik(const DaneNowegoPracownika& dane);

    /// Writes the defaults of a new employee into the current, newly added record of one of the five tables,
    /// in memory.
    void WpiszDomyslne(Recordset& nowy) const;

    /// Asks (twice, the second time warning of family members; a third time where payroll lists, overtime or
    /// contracts hold him, naming them) and deletes the employee's records and his rows of `RODZINA`. Month
    /// tables, contracts, calendars and registers keep their rows. False when the clerk said No. Throws
    /// `Blad` for an unknown number.
    bool UsunPracownika(qint64 prcId);

private:
    struct Warunki {
        Kolumna flaga; ///< that must be "T"; without a table for none
        Zwolnieni zwolnieni;
        PorzadekPracownikow porzadek;
    };

    [[nodiscard]] QList<Osoba> wybierz(const Warunki& warunki) const;
    [[nodiscard]] int zgloszenieDoUbezpieczen();
    void dodajRekordy(const DaneNowegoPracownika& dane, int oiZua);
    [[nodiscard]] bool mimoZapisow(qint64 prcId) const;

    Otoczenie& o_;
};

} // namespace tornel::personnel
