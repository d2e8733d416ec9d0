// The monthly reports: what a month's lists, the contracts and the register of breaks say of an employee.
#pragma once
#include "rules/Otoczenie.h"
#include "rules/SkladnikiPlac.h"
#include "store/Sesja.h"
#include "zus/DaneRaportu.h"
#include "zus/OpisKedu.h"
#include <QHash>

namespace tornel::zus {

/// A monthly report as it was asked for.
struct ZamowionyRaport {
    RokMies miesiac;
    QString identyfikator; ///< whatever the clerk gave
};

/// The first and the last day of the contracts that an RZA takes; none without both.
struct OkresZlecen {
    QDate od, dokad;
};

/// The month of a report, open on the session's handles as long as this object lives; the month in work is
/// open again afterwards.
class RaportMiesieczny {
public:
    /// Reads the month's tables, `SZ_PL`, `KALENDARZ` and, as the report needs them, `UZL`, `URL`. Throws
    /// `BladBazy`, `UszkodzonaWartosc`.
    RaportMiesieczny(Otoczenie& otoczenie, KodKedu kod, const ZamowionyRaport& raport,
                     const OkresZlecen& zlecenia);

    /// Whether there is such a month.
    [[nodiscard]] bool jestMiesiac() const { return miesiac_.jest(); }
    /// What the report says of the employee. Without a row of his in the month, `jest` is false and all is
    /// empty but the identifier.
    [[nodiscard]] DaneRaportu dane(qint64 prcId) const;
    /// The blocks of an RSA, in their order: components with a benefit code, then breaks of the register.
    [[nodiscard]] QList<WpisSwiadczenia> przerwy(qint64 prcId) const;

private:
    struct SumyZlecen {
        Waluta podstawa, skladka; ///< zł
    };
    void czytajZlecenia(const OkresZlecen& zlecenia);
    void czytajPrzerwy();
    [[nodiscard]] int dniObowiazku() const;
    void dodajSkladniki(DaneRaportu& d, Wiersz s) const;
    void dodajWpisy(DaneRaportu& d, Wiersz s, std::optional<Wiersz> daty) const;

    Sesja& sesja_;
    const Stale& stale_;
    RokMies rm_;
    QString identyfikator_;
    OtwartyMiesiac miesiac_;
    SkladnikiPlac katalog_;
    int dniObowiazku_ = 0;
    QHash<qint64, SumyZlecen> zlecenia_;
    QHash<qint64, QList<WpisSwiadczenia>> przerwy_;
};

} // namespace tornel::zus
