// Calendars of days off: the general one and the employees' own, kept month by month in `KALENDARZ`.
#pragma once
#include "personnel/DniKalendarza.h"
#include "rules/Otoczenie.h"
#include "store/RaportSerii.h"
#include <array>
#include <optional>
#include <QList>
#include <QString>

namespace tornel::personnel {

/// Stands for the general calendar where an employee's number would stand.
inline constexpr qint64 kKalendarzOgolny = 0;

struct MiesiacKalendarza {
    qint64 prcId = kKalendarzOgolny;
    int rok = 0;
    int mies = 0;
    friend bool operator==(const MiesiacKalendarza&, const MiesiacKalendarza&) = default;
};

/// What one month says: the marks of its days and their descriptions.
struct TrescMiesiaca {
    DniKalendarza dni;
    std::array<QString, 31> opisy; ///< beginning with day 1

    [[nodiscard]] QString& opis(int dzien) { return opisy.at(static_cast<std::size_t>(dzien - 1)); }
    [[nodiscard]] const QString& opis(int dzien) const {
        return opisy.at(static_cast<std::size_t>(dzien - 1));
    }
};

/// The longest description of a day, in characters.
[[nodiscard]] int NajdluzszyOpisDnia();

/// Whether a new month has the statutory holidays marked besides its Saturdays and Sundays.
enum class Swieta { BezZaznaczania, Zaznaczone };

/// Makes the statutory holidays of the month free; a description that stands there already is kept.
void ZaznaczSwieta(TrescMiesiaca& tresc, int rok, int mies);

/// Every operation reads only the months it needs, through the index of the file, and changes the file in one
/// action. All throw `BladBazy`; nothing is changed then.
class Kalendarz {
public:
    explicit Kalendarz(Otoczenie& otoczenie) : o_(otoczenie) {}

    // Reading `KALENDARZ`.

    /// Whether no calendar has any month.
    [[nodiscard]] bool pusty() const;
    /// The months of one calendar in the order "ROK, MIES".
    [[nodiscard]] QList<MiesiacKalendarza> miesiace(qint64 prcId) const;
    /// The employees that have a calendar of their own, ascending.
    [[nodiscard]] QList<qint64> pracownicy() const;
    /// Flags and descriptions; nothing for a month that the calendar lacks.
    [[nodiscard]] std::optional<TrescMiesiaca> WypiszDni(const MiesiacKalendarza& miesiac) const;
    /// The flags alone.
    [[nodiscard]] std::optional<DniKalendarza> dni(const MiesiacKalendarza& miesiac) const;

    // Changing it.

    /// A new month with Saturdays and Sundays free. False, after a message, for a month that exists. Throws
    /// `Blad` for a month outside 1 to 12 and for an employee who is not in the personnel file.
    bool Nowy_dniwolne(const MiesiacKalendarza& miesiac, Swieta swieta = Swieta::BezZaznaczania);
    /// Writes all flags and descriptions. Throws `Blad` for a month that the calendar lacks.
    void ZapiszDni(const MiesiacKalendarza& miesiac, const TrescMiesiaca& tresc);
    /// Asks and removes the month. False on No. Throws `Blad` for a month that the calendar lacks.
    bool Usun(const MiesiacKalendarza& miesiac);
    /// Asks and removes all months of the employee's calendar. False on No.
    bool UsunPracownika(qint64 prcId);
    /// Asks and marks the statutory holidays in the months of the year that the calendar has. False on No, or
    /// after a message when it has none.
    bool SwietaRoku(qint64 prcId, int rok);

    /// Copies the general calendar's month to the employees, as one batch: asks whether to change months that
    /// they have already, adds those they lack. Its messages tell how it ended. Nothing when nobody was
    /// chosen or the general calendar lacks the month. Stopped between two employees, it keeps what is done.
    /// Throws `Blad` for somebody who is not in the personnel file.
    std::optional<RaportSerii> Transp(int rok, int mies, const QList<qint64>& numery);

private:
    enum class Istniejace { Zmieniac, Pomijac };
    [[nodiscard]] RaportSerii przenies(const MiesiacKalendarza& ogolny, const TrescMiesiaca& tresc,
                                       const QList<qint64>& numery, Istniejace istniejace);

    Otoczenie& o_;
};

} // namespace tornel::personnel
