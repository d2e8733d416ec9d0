// The rate equations of overtime: which one a time group has on which day, and what an hour is worth by it.
#pragma once
#include "common/Godziny.h"
#include "common/Rozmowa.h"
#include "payroll/nadgodziny/KolumnyNadgodzin.h"
#include "rules/Otoczenie.h"
#include "rules/Wzory.h"
#include <map>
#include <optional>
#include <QDate>
#include <QSet>
#include <QString>

namespace tornel::store {
class Recordset;
} // namespace tornel::store

namespace tornel::payroll {

/// The equations of a month, as its header keeps them.
struct RownaniaNadgodzin {
    /// One equation for groups 1 to 3, one for groups 4 to 6, one for group 7.
    using Trojka = std::array<QString, 3>;
    Trojka robocze, soboty, niedziele;
    WgGrup<QString> grupowe; ///< for hours that are not told by days

    /// The equations that the constants hold today.
    [[nodiscard]] static RownaniaNadgodzin zeStalych(const Stale& stale);
    /// Those of the header's current row. Reads `NADG`.
    [[nodiscard]] static RownaniaNadgodzin zNaglowka(const Recordset& naglowek);
    /// Writes them into the header's current row, in memory.
    void naNaglowek(Recordset& naglowek) const;

    /// The equation of `grupa`, 1 to 7: by the weekday of `dzien`, or by the group alone for an invalid date.
    /// Free days of the calendar do not matter.
    [[nodiscard]] const QString& dla(QDate dzien, int grupa) const;
};

/// What an hour is worth, through one action of the clerk: an equation is evaluated once for an employee and
/// base rate, and each message of the formula language is shown once.
class StawkiNadgodzin {
public:
    explicit StawkiNadgodzin(Otoczenie& otoczenie)
        : sesja_(otoczenie.sesja), komunikaty_(otoczenie.rozmowa), wzory_(otoczenie.sesja, komunikaty_) {}

    /// From now on the equations read this employee's data; moves the personnel handles to him. Throws
    /// `Blad` when he is not in the personnel file. Reads `PRACPR`, `PRACSK`.
    void ustawOsobe(qint64 prcId);
    /// Hours times rate for each group, `sgp` being the base rate (zł). A group without hours is worth 0, its
    /// equation is not looked at; an equation with a formula error is told and gives 0. Throws `BladWzoru`
    /// for one that cannot be carried to an end, `Przepelnienie`.
    [[nodiscard]] WgGrup<Waluta> kwoty(const RownaniaNadgodzin& rownania, QDate dzien,
                                       const WgGrup<Godziny>& godziny, Waluta sgp);

private:
    /// Passes each message on once; the language has no questions.
    class KomunikatyRaz : public Rozmowa {
    public:
        explicit KomunikatyRaz(Rozmowa& dalej) : dalej_(dalej) {}
        void komunikat(const QString& tekst, Styl styl, const QString& tytul) override;
        [[nodiscard]] bool pytanie(const QString& tekst, const QString& tytul) override;
        [[nodiscard]] std::optional<QString> wprowadz(const QString& tekst, const QString& tytul,
                                                      const QString& domyslna) override;
        [[nodiscard]] std::unique_ptr<Postep> postep(const QString& tytul, int ile) override;

    private:
        Rozmowa& dalej_;
        QSet<QString> pokazane_;
    };

    [[nodiscard]] Waluta stawka(const QString& rownanie, Waluta sgp);

    Sesja& sesja_;
    KomunikatyRaz komunikaty_;
    Wzory wzory_;
    std::map<std::pair<QString, Waluta>, Waluta> policzone_;
};

} // namespace tornel::payroll
