// The registers of absences: vacations and other breaks (`URL`), sick leaves (`ZW`).
#pragma once
#include "rules/Otoczenie.h"
#include "store/Recordset.h"
#include <initializer_list>
#include <optional>
#include <QDate>
#include <QStringView>
#include <utility>

namespace tornel::common {
class Rozmowa;
} // namespace tornel::common

namespace tornel::personnel {

/// First and last day.
struct ZakresDat {
    QDate od;
    QDate dokad;

    [[nodiscard]] bool poprawny() const { return od.isValid() && dokad.isValid() && od <= dokad; }
    /// The length in calendar days, 0 of one that is no range.
    [[nodiscard]] qint64 dni() const { return poprawny() ? od.daysTo(dokad) + 1 : 0; }
    [[nodiscard]] bool maWspolnyDzien(const ZakresDat& inny) const {
        return od <= inny.dokad && inny.od <= dokad;
    }
};

/// False, after a message, for an end before the start.
[[nodiscard]] bool ZakresPrzyjety(Rozmowa& rozmowa, const ZakresDat& zakres);
/// What is said of a range that ends before it begins.
[[nodiscard]] QString odmowaZakresu();

/// One line of the list.
struct WierszRejestru {
    qint64 id = 0; ///< of the row in the file
    qint64 prcId = 0;
    QString naz;
    QString imie;
    ZakresDat zakres;
};

/// What the two registers do alike. The rows of one employee, or a single one, are read through the index of
/// the file; only the list itself walks the table. Every operation throws `BladBazy`.
class RejestrNieobecnosci {
public:
    virtual ~RejestrNieobecnosci() = default;

    /// All rows, or those of one employee, in the order "PRC_ID, DATA, DATA_DO".
    [[nodiscard]] QList<WierszRejestru> lista() const;
    /// The same rows with all their columns.
    [[nodiscard]] Recordset wiersze(std::optional<qint64> prcId) const;

    /// The handle that stands on the row taken up.
    [[nodiscard]] Recordset& tabela() const { return uchwyt_; }
    /// Takes the row up: finds it by employee and dates. False, after a message, if it is gone.
    [[nodiscard]] bool Wypisz(const WierszRejestru& wiersz);
    /// Writes what was changed in the row taken up; `Kwota` is rounded to grosze. On a failure the changes
    /// stay pending.
    virtual void Wpisz();
    /// Asks and deletes the row taken up. False on No.
    [[nodiscard]] bool Usun();

protected:
    struct Teksty {
        QStringView pokrywaSie; ///< refusal of a range that another row has a day of
        QStringView usunac;     ///< question before deleting
    };

    RejestrNieobecnosci(Otoczenie& otoczenie, Recordset& uchwyt, const Teksty& teksty);

    /// False, after a message, for an end before the start and for a day that the register has already for
    /// this employee. Throws `Blad` for somebody who is not in the personnel file.
    [[nodiscard]] bool moznaZarejestrowac(qint64 prcId, const ZakresDat& zakres) const;
    /// Adds the row with these values besides employee, name and dates, takes it up and gives its
    /// `WierszRejestru::id`. Reads `PRACDP`.
    qint64 dopisz(qint64 prcId, const ZakresDat& zakres,
                  std::initializer_list<std::pair<Kolumna, Wartosc>> wartosci);
    /// A column that both registers have.
    [[nodiscard]] Kolumna kolumna(std::string_view nazwa) const;

    Otoczenie& o_;

private:
    Recordset& uchwyt_;
    Teksty teksty_;
};

} // namespace tornel::personnel
