// The personnel file in work, without windows: what a tab writes to the handles, the previous identity that
// goes with it, copies of the address, component masks, and storing it all as one action.
#pragma once
#include "rules/Otoczenie.h"
#include "store/Grupa.h"
#include <map>
#include <optional>
#include <QList>
#include <QString>
#include <utility>

namespace tornel::store {
class Recordset;
} // namespace tornel::store

namespace tornel::personnel {

/// The addresses into which that of registration may be copied.
enum class AdresKopii { Zamieszkania, Korespondencji };

/// Changes go to the five personnel handles in memory, of as many employees as the clerk visits, until
/// `Zapisz` stores them or `Porzuc` drops them.
class KartotekaPracownika {
public:
    using Zmiany = QList<std::pair<Kolumna, Wartosc>>;
    using Slownik = QList<std::pair<qint64, QString>>;

    explicit KartotekaPracownika(Otoczenie& otoczenie);

    /// Takes up an employee, or nobody.
    void Ustaw(std::optional<qint64> prcId) { prcId_ = prcId; }
    [[nodiscard]] std::optional<qint64> pracownik() const { return prcId_; }
    /// What the handles hold of him; null for nobody, and where his record of the table is missing.
    [[nodiscard]] Wartosc wartosc(Kolumna kolumna) const;

    /// Writes the changed fields of one tab to the handles as one write: where an identity column really
    /// differs, the value before this write, unless it was empty, goes to its column of the previous
    /// identity; series and number of the identity card go together. A record that is missing in one of the
    /// tables is added.
    void ZapiszZakladke(const Zmiany& zmiany);

    /// Whether anything waits to be stored, of anybody and of the employee taken up.
    [[nodiscard]] bool zmieniony() const { return !dziennik_.empty(); }
    [[nodiscard]] bool zmienionyPracownik() const;
    /// Whether this value of the employee taken up does.
    [[nodiscard]] bool zmieniona(Kolumna kolumna) const;
    /// Writes `PRACDP`, `PRACPR`, `PRACSK`, `PRACINF`, `PRACZUS` in one transaction. Throws `BladBazy`; once
    /// the handles were read again, `Ponow` brings the changes back.
    void Zapisz();
    /// Drops what waits to be stored, of everybody.
    void Porzuc();
    /// Asks, and drops what waits to be stored of the employee taken up; false when the clerk said No.
    bool Anuluj();
    /// Makes the changes anew on handles that were read again; those of employees who are gone are dropped.
    void Ponow();

    /// The text of the field on leaving it: empty, after a message, when it is too short.
    [[nodiscard]] QString SprawdzPesel(const QString& tekst) const;
    [[nodiscard]] QString SprawdzNip(const QString& tekst) const;

    /// On entering an address that is empty in memory: asks, and copies that of registration. True when it
    /// was copied.
    bool ZaproponujKopieAdresu(AdresKopii adres);

    /// Whether the tab "Składniki" lays out additive component `n`, 1 to 30, or deductive component `n`, 1 to
    /// 15: ticked for the employee and active in the catalogue.
    [[nodiscard]] bool miejsceDodatnie(int n) const;
    [[nodiscard]] bool miejsceUjemne(int n) const;

    /// Tax offices and workplaces: number, and number with name. Reads `US`, `M_PRACY` from the file.
    [[nodiscard]] Slownik urzedy() const;
    [[nodiscard]] Slownik miejscaPracy() const;

private:
    /// A value by its employee, the place of its table in `tabele_` and its ordinal.
    struct Klucz {
        qint64 prcId;
        std::size_t tabela;
        int kolumna;
        auto operator<=>(const Klucz&) const = default;
    };
    struct Zmiana {
        Wartosc przed, po;
    };

    [[nodiscard]] std::size_t ktoraTabela(Kolumna kolumna) const;
    void ustaw(Kolumna kolumna, const Wartosc& wartosc);
    [[nodiscard]] Zmiany poprzedniaTozsamosc(const Zmiany& zmiany) const;
    [[nodiscard]] quint32 maska(Kolumna kolumna) const;

    Otoczenie& o_;
    const Grupa& tabele_;
    std::optional<qint64> prcId_;
    std::map<Klucz, Zmiana> dziennik_;
};

} // namespace tornel::personnel
