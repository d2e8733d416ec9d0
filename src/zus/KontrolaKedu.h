// What the insurer would reject in a collection, looked for before it is written. Nothing here stops it: the
// clerk may know better.
#pragma once
#include "zus/ZbiorKedu.h"

namespace tornel::zus {

/// Where the clerk mends what a remark tells.
enum class MiejscePoprawki { Pracownik, Rodzina, Stale, Konta, Adresy, Brak };

struct UwagaKedu {
    MiejscePoprawki gdzie = MiejscePoprawki::Brak;
    qint64 prcId = 0;  ///< of `Pracownik` and `Rodzina`
    QString kto;       ///< name of the person, or "Płatnik"
    QString dokumenty; ///< "ZUA, RCA"
    QString uwaga;
};

/// The remarks about the documents of an order, by document and person. Reads the personnel tables,
/// `RODZINA`, `KONTA`, `M_PRACY`, the month's `PLA` and `UZL`. Throws `BladBazy`, `UszkodzonaWartosc`.
[[nodiscard]] QList<UwagaKedu> SprawdzKedu(Otoczenie& otoczenie, const ZamowienieKedu& zamowienie);

/// How many documents or, of a report, persons would be written for all employees; -1 for one that goes by a
/// type. Reads as `SprawdzKedu`, without the month.
[[nodiscard]] int IleOznaczonych(Otoczenie& otoczenie, KodKedu kod);

} // namespace tornel::zus
