// The clerk's side of the absence calculations as a port: the lists of averages, which she may correct, and
// the component that a vacation period goes to. Only for one row; a batch never asks here.
#pragma once
#include "common/Waluta.h"
#include <optional>
#include <QDate>
#include <QList>
#include <QString>

namespace tornel::payroll {

/// A month of the list of averages.
struct LiniaWykazu {
    QString miesiac; ///< year, a blank and the month's name
    Waluta kwota;    ///< zł
    Waluta netto;    ///< zł after the employee's contributions; only for sick pay
};

struct OkresUrlopu {
    QDate od;
    QDate dokad;
    Waluta kwota; ///< zł
};

class WykazyPodstaw {
public:
    virtual ~WykazyPodstaw() = default;
    /// Shows the months and their average (gross, zł) for sick pay. Gives the average that the clerk leaves;
    /// nothing when what she left is no number.
    [[nodiscard]] virtual std::optional<Waluta> sredniaL4(const QList<LiniaWykazu>& miesiace,
                                                          Waluta sredniaBrutto) = 0;
    /// The same for vacation pay: days worked in the months and the rate of a day, zł.
    [[nodiscard]] virtual std::optional<Waluta> dniowka(const QList<LiniaWykazu>& miesiace, qint64 dni,
                                                        Waluta stawkaDzienna) = 0;
    /// Asks for the component of a period, with a suggestion (0 for none). Nothing when she skips the period.
    [[nodiscard]] virtual std::optional<int> numerSkladnika(const OkresUrlopu& okres, int proponowany) = 0;
};

} // namespace tornel::payroll
