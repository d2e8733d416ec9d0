// Transfers from their source to the list of what was made: the same for the console and for every screen
// that pays.
#pragma once
#include "bank/Przelewy.h"
#include "rules/Wykonane.h"

namespace tornel::bank {

/// What was made, as it is remembered.
namespace wykonanie {
inline constexpr RodzajWykonania Przelew{u"przelew", u"wydrukowano"};
inline constexpr RodzajWykonania PrzelewPodatku{u"przelew-podatku", u"wydrukowano"};
inline constexpr RodzajWykonania MultiCash{u"multicash", u"zapisano"};
/// A bank file between its writing and the marks of its orders: found only when that was broken off.
inline constexpr RodzajWykonania MultiCashWToku{u"multicash-w-toku", u"rozpoczęto"};
} // namespace wykonanie

enum class KomuPrzelew { Osoby, Urzedy };

/// What is paid.
struct ZrodloPrzelewow {
    const RodzajWyplat* umowy = nullptr; ///< contracts of this kind; none for the payroll list that is open
    QString symbol = {};                 ///< of the list, blank for all
    QList<qint64> numery = {};           ///< of the list's employees, none for all
    std::optional<QString> lista = {};   ///< the rows of exactly this list, also of the blank one
    std::optional<qint64> umowa = {};    ///< one contract, or else
    QDate od = {};                       ///< those concluded in these days, for a tax: paid
    QDate dokad = {};
};

/// The payments, or why there are none.
struct DoPrzelania {
    QList<Wyplata> wyplaty;
    QString tytul;  ///< empty: the clerk is asked
    QString odmowa; ///< message; empty when there is something to pay
};
/// Reads `PLA` of the open month, or the contracts. Throws `Blad` for a contract that is not there.
[[nodiscard]] DoPrzelania ZnajdzDoPrzelania(Otoczenie& otoczenie, KomuPrzelew komu,
                                            const ZrodloPrzelewow& zrodlo);

/// Which of the payments were made already, on paper or in a file for the bank.
struct JuzWydrukowane {
    QList<bool> ktore; ///< by payment
    QString napis;     ///< "wydrukowano 10-04-2001", of several "wydrukowano 3 z 5, ostatnio 10-04-2001",
                       ///< then "wysłano do banku w pliku 2 z 5"; empty when none was
};
/// Reads `WYKONANE`.
[[nodiscard]] JuzWydrukowane SprawdzWydrukowane(Otoczenie& otoczenie, KomuPrzelew komu,
                                                const ZrodloPrzelewow& zrodlo, const QList<Wyplata>& wyplaty);
/// The source as `WYKONANE` has it: the table's name and the month of the payments, zeros for contracts that
/// are paid one by one.
[[nodiscard]] QString NazwaZrodla(const ZrodloPrzelewow& zrodlo);
/// Notes the transfers as put on paper, or into the file `plik`. Writes `WYKONANE`, one action.
void ZapamietajWydrukowane(Otoczenie& otoczenie, KomuPrzelew komu, const ZrodloPrzelewow& zrodlo,
                           const QList<Przelew>& przelewy, const QDateTime& kiedy, const QString& plik = {});

} // namespace tornel::bank
