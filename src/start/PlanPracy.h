// What the clerk has to do next: the way to the first payment, later the month in work. For the start page;
// no widgets.
#pragma once
#include "common/RokMies.h"
#include "common/Waluta.h"
#include "rules/Otoczenie.h"
#include "rules/Wykonane.h"
#include <optional>
#include <QDate>
#include <QList>
#include <QString>

namespace tornel::rules {
struct Stale;
} // namespace tornel::rules

namespace tornel::start {

/// A step of the work, in its order. Each has a screen that it is done on.
enum class KrokPracy {
    DaneFirmy,
    Stawki,
    Kalendarz,
    Pracownicy,
    Miesiac,
    Lista,
    Obliczenie,
    Wydruk,
    Przelewy,
    Podatek,
    Skladki,
    Dokumenty,
    NastepnyMiesiac,
    Archiwum,
};

struct Zadanie {
    KrokPracy krok = KrokPracy::DaneFirmy;
    QString napis;    ///< what is to be done
    QString szczegol; ///< how far it is; may be empty
    bool zrobione = false;
    QDate termin = {}; ///< the last day for it; invalid for none
    bool poTerminie = false;

    /// "do 15-04-2001", "po terminie: 15-04-2001", of a day on which offices are closed also its name; empty
    /// without a day.
    [[nodiscard]] QString napisTerminu() const;
};

/// A sum of the month in work beside that of the month before it.
struct PorownanieKwot {
    QStringView napis;
    Waluta teraz;
    std::optional<Waluta> przedtem; ///< nothing in the first month
};

enum class EtapPracy {
    PierwszaWyplata, ///< until every step of the first month is done, or it is blocked, or a second one
                     ///< exists
    MiesiacWPracy,
};

struct PlanPracy {
    EtapPracy etap = EtapPracy::PierwszaWyplata;
    std::optional<RokMies> miesiac;   ///< the last one
    std::optional<RokMies> poprzedni; ///< the one that `kwoty` compare with
    QList<Zadanie> zadania;           ///< in the order of the work
    QList<PorownanieKwot> kwoty;      ///< zł, over all lists; empty before the first month
    std::optional<int>
        niepotwierdzoneStawki; ///< the year of rates that nobody confirmed; 0 before the first month
    QString uwaga = {};        ///< why the months cannot be read; empty when they can
};

/// What there is to do, by what is stored. `folderProgramu`: where archives are unless constant 701 says
/// otherwise. Costs time by the rows of one month. Reads `PLACE`, the month's `PLA`, `PLB`, `PLS`, `PRACDP`,
/// `KALENDARZ`, `WYKONANE`, `PIT4`, `ZUS`. What is damaged is told in its task and keeps none of the others.
[[nodiscard]] PlanPracy UlozPlan(Otoczenie& otoczenie, QDate dzis, const QString& folderProgramu);

// Rates. A new database has those of its template, which hold until the law changes them: every year wants
// somebody's look.

/// As it is noted in `WYKONANE`.
inline constexpr RodzajWykonania kPotwierdzenieStawek{u"stawki", u"potwierdzono"};
/// The question whether the rates are right, with each of them. `rok` 0: before the first month.
[[nodiscard]] QString PytanieOStawki(const Stale& stale, int rok);
/// Notes that they are. Writes `WYKONANE`. Throws `BladBazy`.
void PotwierdzStawki(Otoczenie& otoczenie, int rok, const QDateTime& kiedy);

} // namespace tornel::start
