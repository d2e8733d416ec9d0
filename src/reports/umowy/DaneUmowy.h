// What the papers of a contract take from the file: the contract, the person, the tax office, the employer.
#pragma once
#include "contracts/RodzajeUmow.h"
#include "rules/Otoczenie.h"
#include "store/Recordset.h"
#include "store/Schemat.h"
#include <optional>
#include <QStringList>

namespace tornel::reports {

class DaneUmowy {
public:
    /// Reads the kind's table, `PRACDP` and `US`. Throws `BladBazy`.
    DaneUmowy(Otoczenie& otoczenie, const RodzajUmowy& rodzaj, qint64 id);

    /// Whether there are the contract and the person.
    [[nodiscard]] bool jest() const { return jest_; }
    [[nodiscard]] bool maUrzad() const { return maUrzad_; }

    // By the columns of the tables, in any case.
    [[nodiscard]] QString tekst(std::string_view kolumna) const;
    [[nodiscard]] Waluta kwota(std::string_view kolumna) const;
    [[nodiscard]] QString data(std::string_view kolumna) const;
    [[nodiscard]] QString osoba(std::string_view kolumna) const;
    [[nodiscard]] QString osobaData(std::string_view kolumna) const;
    [[nodiscard]] QString urzad(std::string_view kolumna) const;

    /// Brutto less the contractor's contributions.
    [[nodiscard]] Waluta przychod() const;
    [[nodiscard]] Waluta skladki() const;
    [[nodiscard]] QString imieNazwisko() const;
    [[nodiscard]] QString rodzice() const; ///< "Jan / Anna"
    [[nodiscard]] QString ulica() const;   ///< "Szkolna 14 / 7"
    [[nodiscard]] QString kodMiasto() const;
    [[nodiscard]] QString dowod() const;
    [[nodiscard]] QString adresUrzedu() const;
    /// The employer's name and address (constants 300, 301, 304, 303), as many lines as are filled.
    [[nodiscard]] QStringList pracodawca() const;
    /// "Radom, dnia" (constant 662).
    [[nodiscard]] QString miastoDnia() const;

private:
    [[nodiscard]] Kolumna kolumna(std::string_view nazwa) const { return rodzaj_.kolumna(nazwa); }
    Otoczenie& o_;
    const RodzajUmowy& rodzaj_;
    Recordset umowa_, urzad_{schemat::US};
    std::optional<Wiersz> dp_;
    bool jest_ = false, maUrzad_ = false;
};

} // namespace tornel::reports
