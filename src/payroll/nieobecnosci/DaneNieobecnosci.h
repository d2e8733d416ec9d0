// What the registers of absence and the calendars say about an employee in the open month.
#pragma once
#include "common/Waluta.h"
#include "payroll/lista/Odczyt.h"
#include "personnel/DniKalendarza.h"
#include "store/Zapytanie.h"
#include <memory>
#include <optional>
#include <QDate>
#include <QHash>
#include <span>

namespace tornel::store {
class Sesja;
} // namespace tornel::store

namespace tornel::payroll {

/// A row of `URL` or `ZW`.
struct Nieobecnosc {
    qint64 prcId = 0;
    QDate Data;     ///< first day
    QDate data_do;  ///< last day
    int Rodzaj = 0; ///< kind of a vacation, 0 to 6
    Waluta Kwota;   ///< fixed amount of a vacation, zł; 0 for none
    Stawka st_proc; ///< pay of a sick leave
};
/// Rows of one employee in the order of `DATA`, `DATA_DO`.
using Nieobecnosci = std::span<const Nieobecnosc>;

/// Look-ups for one action over the open month, through the file's indexes. What was read stays known until
/// `zapomnij`.
class DaneNieobecnosci {
public:
    explicit DaneNieobecnosci(Sesja& sesja);
    ~DaneNieobecnosci();

    /// Forgets everything that was read; the next look-ups read the two registers in this manner.
    void zapomnij(Odczyt odczyt);

    // What these two give is valid until the next of these calls.

    /// Vacations with a day in the open month. Reads `URL`.
    [[nodiscard]] Nieobecnosci urlopy(qint64 prcId);
    /// Sick leaves with a day from 1 January to the last day of the open month. A leave that
    /// began in the year before is among them. Reads `ZW`.
    [[nodiscard]] Nieobecnosci zwolnieniaRoku(qint64 prcId);
    /// A month of the employee's own calendar, or of the general one for number 0. Reads `KALENDARZ`.
    [[nodiscard]] std::optional<DniKalendarza> kalendarz(qint64 prcId, int rok, int mies);
    /// The employee's own calendar month if he has one, else the general one.
    [[nodiscard]] std::optional<DniKalendarza> kalendarzLubOgolny(qint64 prcId, int rok, int mies);
    /// Whether there is no calendar at all.
    [[nodiscard]] bool kalendarzPusty();

private:
    class Rejestr;
    struct PytanyMiesiac {
        qint64 prcId = -1;
        int rok = 0;
        int mies = 0;
        std::optional<DniKalendarza> dni;
    };

    [[nodiscard]] std::optional<DniKalendarza> czytajKalendarz(qint64 prcId, int rok, int mies);

    Sesja& sesja_;
    Odczyt odczyt_ = Odczyt::PoJednym;
    std::unique_ptr<Rejestr> urlopy_, zwolnienia_;
    std::optional<PrzygotowaneZapytanie> kalendarz_;
    QHash<int, std::optional<DniKalendarza>> ogolny_; // by 12 * year + month
    PytanyMiesiac wlasny_;                            // the last one asked for
    std::optional<bool> pusty_;
};

} // namespace tornel::payroll
