// What the calculations of one payroll row share.
#pragma once
#include "payroll/lista/OdpowiedziSerii.h"
#include "payroll/lista/Pozycje.h"
#include "payroll/nieobecnosci/DaneNieobecnosci.h"
#include "payroll/nieobecnosci/PodstawySrednich.h"
#include "payroll/nieobecnosci/WykazyPodstaw.h"
#include "rules/Otoczenie.h"
#include <QStringList>

namespace tornel::payroll {

struct Warsztat {
    Otoczenie& o;
    const Pozycje& pozycje;
    OdpowiedziSerii& odpowiedzi;
    WykazyPodstaw* wykazy; ///< none: the computed averages and the suggested components stand
    DaneNieobecnosci dane;
    Odczyt odczyt = Odczyt::PoJednym;
    std::unique_ptr<PodstawySrednich> podstawyZnane = nullptr; ///< none until they are first needed
    QStringList uwagi = {}; ///< of the row in work, for the closing report of a batch

    /// Forgets what was read outside the open month; from now on it is read in this manner.
    void zapomnij(Odczyt nowy);
    [[nodiscard]] PodstawySrednich& podstawy();

    /// Whether the component may take an amount: a number from 1 to 30 with both active marks.
    [[nodiscard]] bool aktywny(int nr) const { return nr >= 1 && nr <= 30 && pozycje.dodatnia(nr).aktywna(); }
    /// Sets amount (zł) and period of component `nr`, 1 to 30, on the row in work. Changes `PLS`, `PLD`.
    void wpisz(int nr, Waluta kwota, QDate od, QDate dokad);
    /// Working days, Saturdays and Sundays of the row in work together. Reads `PLA`.
    [[nodiscard]] qint64 dniPrzepracowane() const;
    /// Tells the clerk that something was left out: at once for one row, in the closing report for a batch.
    void uwaga(Tryb tryb, const QString& tekst, Styl styl = Styl::Wykrzyknik);
};

} // namespace tornel::payroll
