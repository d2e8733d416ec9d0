// The open overtime list of a month: its persons, their hours by time group and what these are worth.
#pragma once
#include "common/Godziny.h"
#include "payroll/miesiace/Miesiace.h"
#include "payroll/nadgodziny/RownaniaNadgodzin.h"
#include "store/Recordset.h"
#include "store/Seria.h"
#include <functional>
#include <QDate>
#include <QList>
#include <QString>

namespace tornel::payroll {

/// Hours and amounts (zł) by time group.
struct SumyNadgodzin {
    WgGrup<Godziny> godziny{};
    WgGrup<Waluta> kwoty{};

    [[nodiscard]] Godziny godzinyRazem() const;
    [[nodiscard]] Waluta kwotaRazem() const;
    SumyNadgodzin& operator+=(const SumyNadgodzin& inne);
};

/// One person of the list.
struct OsobaNadgodzin {
    qint64 prcId = 0;
    QString nazwisko; ///< "Naz Imie_1", empty when he has left the personnel file
    SumyNadgodzin sumy;
};

/// What is typed for a person: a day, or the whole month when `data` is invalid.
struct WierszNadgodzin {
    QDate data;
    QString dzien;      ///< weekday
    SumyNadgodzin sumy; ///< of this row
    Waluta stawka;      ///< the base rate `SGP`, zł
    QString uwagi;      ///< only of a day
};

/// Hours that a cell can hold in either direction: of a day, and of a whole month.
inline constexpr Godziny kNajwiecejGodzinDnia = Godziny::calych(24);
inline constexpr Godziny kNajwiecejGodzinMiesiaca = Godziny::calych(744);

/// The caption of group 1 to 7: element of constant 253, "Grupa n" where that is empty.
[[nodiscard]] QString NazwaGrupyNadgodzin(const Stale& stale, int grupa);

class ListaNadgodzin {
public:
    /// Opens the month's tables. Throws `Blad` when the month does not exist or one of its tables is missing.
    ListaNadgodzin(Otoczenie& otoczenie, RokMies miesiac);
    ListaNadgodzin(const ListaNadgodzin&) = delete;
    ListaNadgodzin& operator=(const ListaNadgodzin&) = delete;

    [[nodiscard]] RokMies miesiac() const { return miesiac_; }
    /// The month's own equations.
    [[nodiscard]] const RownaniaNadgodzin& rownania() const { return rownania_; }
    /// The caption of group 1 to 7.
    [[nodiscard]] QString nazwaGrupy(int grupa) const { return NazwaGrupyNadgodzin(o_.stale, grupa); }

    /// The persons in the order of their numbers. Reads `NADGN`, `PRACDP`.
    [[nodiscard]] QList<OsobaNadgodzin> WczytajNazw();
    /// The sums of the month as the header holds them. Reads `NADG`.
    [[nodiscard]] SumyNadgodzin sumyMiesiaca() const;

    // The person in work.

    /// Takes up a person. False, and nobody is taken up, when he is not on the list. Reads `NADGN`, `NADG`.
    bool WypiszNadgodziny(qint64 prcId);
    /// The person taken up with his sums.
    [[nodiscard]] const std::optional<OsobaNadgodzin>& osoba() const { return osoba_; }
    /// Whether the person's hours are told by days. It was settled by constant 251 when he was added.
    [[nodiscard]] bool szczegolowa() const { return dni_.RecordCount() > 0; }
    /// The rows of the person taken up: his days, or one row for the month; none without a person.
    [[nodiscard]] QList<WierszNadgodzin> wiersze();

    // Changes. Each is one action with the sums of person and month; a failure leaves all as it was.

    /// Adds the employee with the base rate of the personnel file (`Sgp`); with constant 251 a row for each
    /// day. False after a message: on the list already, or without data in the personnel file. Nobody is
    /// taken up afterwards. Reads `PRACPR`; writes `NADGN`, `NADG`.
    bool NowaOsoba(qint64 prcId);
    /// Adds all given employees, with progress and cancel. Those on the list already are passed over, those
    /// without data are named in the report.
    RaportSerii NoweOsoby(QList<qint64> numery);
    /// Asks and takes the person in work off the list. False on No.
    bool UsunOsobe();

    /// The hours of `grupa` (1 to 7) on row `wiersz` of the person in work, as typed. The row's amounts are
    /// computed anew. False after a message: no hours, or an equation that cannot be carried to an end.
    bool ZmienGodziny(qsizetype wiersz, int grupa, const QString& wpisane);
    /// The base rate (zł) on row `wiersz`, as typed; of days it holds for that day. False as above.
    bool ZmienStawke(qsizetype wiersz, const QString& wpisane);
    /// Carries the base rate of row `wiersz` to the days behind it. False as above.
    bool PrzeniesStawke(qsizetype wiersz);
    /// The remark on the day in row `wiersz`.
    void ZmienUwagi(qsizetype wiersz, const QString& uwagi);

    /// All amounts and sums of the month anew by its equations, with progress and cancel. A person whose
    /// equations cannot be carried to an end keeps his amounts and is named in the report.
    RaportSerii Odswiez();

private:
    using Zmiana = std::function<void(WierszNadgodzin&)>;

    [[nodiscard]] QString nazwaTabeli(const TabelaDef& tabela) const;
    /// An action's name in words: `co` with the month behind it.
    [[nodiscard]] QString czynnosc(const QString& co) const;
    RaportSerii wykonajSerie(const NapisySerii& napisy, const QList<qint64>& numery,
                             const std::function<WynikKroku(qint64)>& krok);
    void otworzDni(qint64 prcId);
    void odczytaj();
    void wymagajOsoby() const;
    [[nodiscard]] QString opisOsoby(qint64 prcId) const;
    [[nodiscard]] WierszNadgodzin wierszBiezacy() const;
    void wpiszBiezacy(const WierszNadgodzin& wiersz);
    void ustawNaWierszu(qsizetype nr);
    void sumujDni();
    void sumujMiesiac();
    void ustawNaglowek();
    void zapisz(const std::function<void()>& zmiana);
    bool zmienWiersze(qsizetype od, qsizetype ile, const Zmiana& zmiana);
    void dodajWiersze(qint64 prcId);
    void przeliczOsobe(StawkiNadgodzin& stawki);

    Otoczenie& o_;
    RokMies miesiac_;
    Recordset osoby_{schemat::NADGN};
    Recordset dni_{schemat::NADGDzien};
    RownaniaNadgodzin rownania_;
    std::optional<OsobaNadgodzin> osoba_;
};

} // namespace tornel::payroll
