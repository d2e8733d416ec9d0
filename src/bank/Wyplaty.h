// What is to be paid by transfer: the rows of a payroll list, or contracts of one kind.
#pragma once
#include "common/Waluta.h"
#include "rules/Otoczenie.h"
#include "store/Tabela.h"
#include <optional>
#include <QDate>
#include <QList>
#include <QString>

namespace tornel::bank {

/// A kind of contract, as payments see it.
struct RodzajWyplat {
    const store::TabelaDef* tabela;
    store::Kolumna id, numer, prcId, usId, zawarta, wyplacona, przelewem, podatek;
    QStringView tytulJednego; ///< of the transfer for one contract
    QStringView tytulSerii;   ///< and of those for a period: a fee has two titles, deliberately
    QStringView brakUmow;     ///< when a period has none
    QStringView brakPodatku;  ///< when none of them has a tax
    store::Kolumna wyslana =
        {}; ///< whether it went into a file for the bank; none for a kind that never does
};
/// By the table's name, in any case: UZL, UOD, HON; none for another.
[[nodiscard]] const RodzajWyplat* rodzajWyplat(const QString& tabela);

/// One payment: to an employee or, of a tax, to an office.
struct Wyplata {
    qint64 komu = 0;      ///< `PRC_ID` or `US_ID`
    Waluta kwota;         ///< zł, above 0
    QString lista = {};   ///< symbol of the row's list; of a tax, that of the list in work
    qint64 dokument = 0;  ///< number of the contract, 0 for a list or a tax
    bool wyslana = false; ///< stands in a file for the bank already
};

/// The tax transfer's title where none is given.
[[nodiscard]] QString tytulPodatku();

class Wyplaty {
public:
    explicit Wyplaty(Otoczenie& otoczenie) : o_(otoczenie) {}

    // Of the month that is open, its rows in the order "PRC_ID, LISTA"; `symbol` blank for all lists. Read
    // `PLA`, `PLB`.

    /// The rows with an amount by transfer, of these employees or, without any, of all.
    [[nodiscard]] QList<Wyplata> zListy(const QString& symbol, const QList<qint64>& numery = {}) const;
    /// The tax of the rows, summed by office in order of appearance; sums above 0.
    [[nodiscard]] QList<Wyplata> podatekListy(const QString& symbol) const;

    // Of contracts, in the order of conclusion, number and key.

    /// The contract with this key, if it has an amount by transfer. Throws `Blad` for an unknown one.
    [[nodiscard]] std::optional<Wyplata> zUmowy(const RodzajWyplat& rodzaj, qint64 id) const;
    /// Those concluded from `od` to `dokad` that have an amount by transfer.
    [[nodiscard]] QList<Wyplata> zUmow(const RodzajWyplat& rodzaj, QDate od, QDate dokad) const;
    /// The tax of those paid from `od` to `dokad`, by office; nothing at all when none of them is paid by
    /// transfer: contracts in cash do not count, deliberately.
    [[nodiscard]] std::optional<QList<Wyplata>> podatekUmow(const RodzajWyplat& rodzaj, QDate od,
                                                            QDate dokad) const;

private:
    Otoczenie& o_;
};

} // namespace tornel::bank
